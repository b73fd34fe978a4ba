// The random designer: one action per timer tick on the dialogs the thread
// shows, chosen by the generator among what is enabled there.
#include <algorithm>
#include <cstdio>
#include <cstring>
#include <map>
#include <set>

#include "host/host_app.h"
#include "host/ui_driver.h"
#include "resources/ground_ids.h"
#include "tools/monkey/monkey.h"

#include <dlgs.h>  // after the platform types it uses

namespace {
// Titles of the message boxes the editor can show; anything titled so is
// answered, not explored.
const std::set<std::string> box_titles = {"Editor Error", "Editor Warning", "Editor Informaiton", "Editor Question",
                                          "Name Error"};
const char save_title[] = "Save Editor File...";

// What the designer does, with how often it does it when the dialog offers
// it. Message boxes are only answered, and the toolbar and the Status window
// (which stay enabled under the dialogs) are reached now and then.
enum action_kind {
    ACT_CLICK, ACT_OK, ACT_CANCEL, ACT_CLOSE_BOX, ACT_KEY, ACT_CHECK, ACT_TYPE, ACT_COMBO, ACT_SELECT,
    ACT_DOUBLE_CLICK, ACT_MULTI, ACT_KIND_COUNT, ACT_BOX = ACT_KIND_COUNT, ACT_TOOLBAR, ACT_STATUS
};
const char *const kind_names[] = {"click",  "ok",     "cancel",       "close box",    "Enter or Esc",
                                  "check",  "type",   "combo",        "select",       "double-click",
                                  "multi-select", "box answer", "toolbar", "Status window"};
const uint32_t kind_weights[ACT_KIND_COUNT] = {30, 5, 4, 2, 3, 6, 22, 10, 12, 5, 10};
// Percent of the ticks with a dialog up that go to the modeless windows.
constexpr uint32_t modeless_share = 3;

struct designer_state {
    UINT_PTR timer = 0;
    long modeless_turns = 0;  // actions asked for while no dialog is up
    DWORD started = 0;
    bool busy = false;
    bool trace = false;
    std::map<HWND, long> open;  // the dialogs up at the last tick, by when they were first seen
    long opened = 0;
    DWORD last_action = 0;
    CRITICAL_SECTION seen_lock;
    std::string last_seen;
} designer;

std::string class_of(HWND window) {
    char name[32] = "";
    GetClassNameA(window, name, sizeof name);
    return name;
}

// Visible dialogs of this thread, topmost first. The toolbar and the Status
// window are dialogs too, but stay up all the time: they are reached apart
// (act_modeless), never closed.
std::vector<HWND> visible_dialogs() {
    std::vector<HWND> out;
    for (HWND window : ui_thread_windows())
        if (class_of(window) == "#32770" && !app().is_editor(window)) out.push_back(window);
    return out;
}

// The dialog's name for the figures: the three titled "Dialog", the two
// titled "Sarge Order" and the untitled Edit Name told apart by a control.
std::string kind_of(HWND dialog) {
    const std::string title = ui_window_text(dialog);
    if (title == "Dialog")
        return GetDlgItem(dialog, IDC_GC_NAME) ? "Group Composition" : GetDlgItem(dialog, IDC_GO_ORDERS) ? "Group Orders"
                                                                                                        : "Object names";
    if (title == "Sarge Order" && GetDlgItem(dialog, IDC_CT_TRIGGER)) return "Sarge Order (contingency)";
    return title.empty() ? "Edit Name" : title;
}

void note_seen(const std::vector<HWND> &windows) {
    std::string text;
    for (HWND w : windows) text += " '" + ui_window_text(w) + "'" + (IsWindowEnabled(w) ? "" : " (disabled)");
    EnterCriticalSection(&designer.seen_lock);
    designer.last_seen = text.empty() ? " none" : text;
    LeaveCriticalSection(&designer.seen_lock);
}

void record(const std::string &title, action_kind kind, int id, long detail) {
    monkey_figures &f = figures();
    char line[200];
    std::snprintf(line, sizeof line, "%ld '%s' %s %d %ld", f.actions, title.c_str(), kind_names[kind], id, detail);
    for (const char *c = line; *c; ++c) f.digest = (f.digest ^ static_cast<unsigned char>(*c)) * 16777619u;
    ++f.actions;
    ++f.actions_by_kind[kind_names[kind]];
    if (designer.trace) std::printf("  %8lu ms  %s\n", static_cast<unsigned long>(GetTickCount() - designer.started), line);
}

struct control {
    HWND window;
    int id;
};

// The dialog's own enabled, visible controls by what the designer can do with them.
struct offered {
    std::vector<control> push, check, text, combo, list, multi;
};

offered controls_of(HWND dialog) {
    offered out;
    for (HWND child = GetWindow(dialog, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
        if (!IsWindowVisible(child) || !IsWindowEnabled(child)) continue;
        const control c{child, GetDlgCtrlID(child)};
        const LONG style = GetWindowLongA(child, GWL_STYLE);
        const std::string kind = class_of(child);
        if (_stricmp(kind.c_str(), "Button") == 0) {
            const LONG type = style & BS_TYPEMASK;
            if ((type == BS_PUSHBUTTON || type == BS_DEFPUSHBUTTON) && c.id != IDOK && c.id != IDCANCEL)
                out.push.push_back(c);
            else if (type == BS_CHECKBOX || type == BS_AUTOCHECKBOX || type == BS_3STATE || type == BS_AUTO3STATE ||
                     type == BS_RADIOBUTTON || type == BS_AUTORADIOBUTTON)
                out.check.push_back(c);
        } else if (_stricmp(kind.c_str(), "Edit") == 0) {
            if (!(style & ES_READONLY)) out.text.push_back(c);
        } else if (_stricmp(kind.c_str(), "ComboBox") == 0) {
            out.combo.push_back(c);
            if ((style & 3) != CBS_DROPDOWNLIST) out.text.push_back(c);  // an edit field over the list
        } else if (_stricmp(kind.c_str(), "ListBox") == 0) {
            (style & (LBS_MULTIPLESEL | LBS_EXTENDEDSEL) ? out.multi : out.list).push_back(c);
        }
    }
    return out;
}

void post_command(HWND dialog, int id, int code) {
    PostMessageA(dialog, WM_COMMAND, MAKEWPARAM(id, code), reinterpret_cast<LPARAM>(GetDlgItem(dialog, id)));
}

// OK and Cancel are pressed as buttons when the dialog has them enabled.
void press(HWND dialog, int id) {
    HWND button = GetDlgItem(dialog, id);
    if (button && IsWindowEnabled(button)) PostMessageA(button, BM_CLICK, 0, 0);
    else post_command(dialog, id, BN_CLICKED);
}

// A message box (or any dialog without controls to explore): one of its
// standard buttons at random.
void answer_box(HWND box, const std::string &title) {
    std::vector<int> buttons;
    for (int id : {IDOK, IDCANCEL, IDYES, IDNO})
        if (GetDlgItem(box, id)) buttons.push_back(id);
    int id = buttons.empty() ? IDCANCEL : random_source().pick(buttons);
    record(title, ACT_BOX, id, 0);
    ++figures().boxes_answered;
    post_command(box, id, BN_CLICKED);
}

// The platform's save dialog: a typed name and OK, or Cancel. Nothing else
// of it is explored (its folder buttons reach the file system).
void answer_save(HWND dialog) {
    const int name_field = GetDlgItem(dialog, cmb13) ? cmb13 : edt1;
    if (random_source().percent(40)) {
        record(save_title, ACT_CANCEL, IDCANCEL, 0);
        post_command(dialog, IDCANCEL, BN_CLICKED);
        return;
    }
    static const std::vector<std::string> names = {"level1", "raid.mis", "a b", "%s%n%x%p", "\xC4rger", "x.dat.dat"};
    const uint32_t which = random_source().below(static_cast<uint32_t>(names.size()));
    record(save_title, ACT_TYPE, name_field, which);
    SetDlgItemTextA(dialog, name_field, names[which].c_str());
    post_command(dialog, IDOK, BN_CLICKED);
}

void act_on_list(HWND dialog, const std::string &title, action_kind kind, const control &c) {
    monkey_random &r = random_source();
    const int count = static_cast<int>(SendMessageA(c.window, LB_GETCOUNT, 0, 0));
    if (kind == ACT_MULTI) {
        uint32_t chosen = 0;  // the selection as bits, for the digest (wraps on long lists)
        for (int i = 0; i < count; ++i) {
            const bool on = r.percent(35);
            SendMessageA(c.window, LB_SETSEL, on, i);
            chosen = chosen * 2 + on;
        }
        record(title, kind, c.id, static_cast<long>(chosen));
        post_command(dialog, c.id, LBN_SELCHANGE);
        return;
    }
    // A line (or, for a plain selection, sometimes none), then the notification.
    const int line = kind == ACT_SELECT ? static_cast<int>(r.below(static_cast<uint32_t>(count) + 1)) - 1
                                    : static_cast<int>(r.below(static_cast<uint32_t>(std::max(count, 1))));
    const bool multiple = (GetWindowLongA(c.window, GWL_STYLE) & (LBS_MULTIPLESEL | LBS_EXTENDEDSEL)) != 0;
    if (multiple) SendMessageA(c.window, LB_SETSEL, TRUE, line);
    else SendMessageA(c.window, LB_SETCURSEL, static_cast<WPARAM>(line), 0);
    record(title, kind, c.id, line);
    post_command(dialog, c.id, kind == ACT_DOUBLE_CLICK ? LBN_DBLCLK : LBN_SELCHANGE);
}

void act(HWND dialog) {
    const std::string title = ui_window_text(dialog);
    if (box_titles.count(title)) return answer_box(dialog, title);
    if (title == save_title) {
        if (GetDlgItem(dialog, cmb13) || GetDlgItem(dialog, edt1)) return answer_save(dialog);
        return answer_box(dialog, title);  // the file dialog's own questions
    }
    const offered o = controls_of(dialog);
    const bool has[ACT_KIND_COUNT] = {!o.push.empty(),  true, true, true, true, !o.check.empty(), !o.text.empty(),
                                      !o.combo.empty(), !o.list.empty(), !(o.list.empty() && o.multi.empty()),
                                      !o.multi.empty()};
    uint32_t total = 0;
    for (int k = 0; k < ACT_KIND_COUNT; ++k) total += has[k] ? kind_weights[k] : 0;
    monkey_random &r = random_source();
    uint32_t roll = r.below(total);
    int kind = 0;
    while (!has[kind] || roll >= kind_weights[kind]) {
        if (has[kind]) roll -= kind_weights[kind];
        ++kind;
    }
    switch (static_cast<action_kind>(kind)) {
    case ACT_CLICK:
    case ACT_CHECK: {
        const control &c = r.pick(kind == ACT_CLICK ? o.push : o.check);
        record(title, static_cast<action_kind>(kind), c.id, 0);
        PostMessageA(c.window, BM_CLICK, 0, 0);
        break;
    }
    case ACT_OK:
    case ACT_CANCEL:
        record(title, static_cast<action_kind>(kind), kind == ACT_OK ? IDOK : IDCANCEL, 0);
        press(dialog, kind == ACT_OK ? IDOK : IDCANCEL);
        break;
    case ACT_CLOSE_BOX:
        record(title, ACT_CLOSE_BOX, 0, 0);
        PostMessageA(dialog, WM_SYSCOMMAND, SC_CLOSE, 0);
        break;
    case ACT_KEY: {
        // To the control with the focus, as the keyboard would: the dialog
        // manager turns it into its default button or Cancel.
        const WPARAM key = r.percent(50) ? VK_RETURN : VK_ESCAPE;
        HWND focus = GetFocus();
        record(title, ACT_KEY, 0, static_cast<long>(key));
        PostMessageA(focus && IsChild(dialog, focus) ? focus : dialog, WM_KEYDOWN, key, 1);
        break;
    }
    case ACT_TYPE: {
        const control &c = r.pick(o.text);
        const uint32_t which = r.below(static_cast<uint32_t>(text_pool().size()));
        record(title, ACT_TYPE, c.id, which);
        // Into an edit; into a combo box's edit field, after which the combo
        // box hears of the change as it does of typing (it lets go of its
        // selected line). Either way the dialog is told of the change.
        const char *text = text_pool()[which].c_str();
        if (HWND field = FindWindowExA(c.window, nullptr, "Edit", nullptr)) {
            SetWindowTextA(field, text);
            SendMessageA(c.window, WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(field), EN_CHANGE), reinterpret_cast<LPARAM>(field));
        } else {
            SetWindowTextA(c.window, text);
        }
        break;
    }
    case ACT_COMBO: {
        const control &c = r.pick(o.combo);
        const uint32_t count = static_cast<uint32_t>(std::max<LRESULT>(SendMessageA(c.window, CB_GETCOUNT, 0, 0), 0));
        const uint32_t line = r.below(count);
        record(title, ACT_COMBO, c.id, line);
        if (count) SendMessageA(c.window, CB_SETCURSEL, line, 0);
        post_command(dialog, c.id, CBN_SELCHANGE);
        break;
    }
    case ACT_SELECT:
        act_on_list(dialog, title, ACT_SELECT, r.pick(o.list));
        break;
    case ACT_DOUBLE_CLICK: {
        std::vector<control> lists = o.list;
        lists.insert(lists.end(), o.multi.begin(), o.multi.end());
        act_on_list(dialog, title, ACT_DOUBLE_CLICK, r.pick(lists));
        break;
    }
    case ACT_MULTI:
        act_on_list(dialog, title, ACT_MULTI, r.pick(o.multi));
        break;
    default:
        break;
    }
}

HWND editor_window_where(bool toolbar) {
    for (HWND window : ui_thread_windows())
        if (app().is_editor(window) && (class_of(window) == "#32770") &&
            (ui_window_text(window) == "Status") != toolbar && IsWindowEnabled(window))
            return window;
    return nullptr;
}

// The toolbar (a mode button) or the Status window (text typed into one of
// its six fields while it is active, which goes to the host at once).
void act_modeless() {
    monkey_random &r = random_source();
    const bool toolbar = r.percent(40);
    HWND window = editor_window_where(toolbar);
    if (!window) return;
    const offered o = controls_of(window);
    if (toolbar && !o.check.empty()) {  // the mode buttons are push-like radio buttons
        const control &c = r.pick(o.check);
        record("ToolBar", ACT_TOOLBAR, c.id, 0);
        PostMessageA(c.window, BM_CLICK, 0, 0);
    } else if (!toolbar && !o.text.empty()) {
        const control &c = r.pick(o.text);
        const uint32_t which = r.below(static_cast<uint32_t>(text_pool().size()));
        record("Status", ACT_STATUS, c.id, which);
        SetActiveWindow(window);
        SetWindowTextA(c.window, text_pool()[which].c_str());
    }
}

// Once the budget is spent: the topmost dialog is cancelled, a question
// answered No, until nothing is left open.
void wind_down(HWND dialog) {
    const int id = GetDlgItem(dialog, IDNO) ? IDNO : IDCANCEL;
    post_command(dialog, id, BN_CLICKED);
}

void CALLBACK on_tick(HWND, UINT, UINT_PTR, DWORD) {
    // An action may run a nested modal loop in which the timer fires again.
    if (designer.busy) return;
    designer.busy = true;
    const std::vector<HWND> windows = visible_dialogs();
    note_seen(windows);
    // Every dialog that has gone since the last tick is checked after.
    std::map<HWND, long> now;
    for (HWND window : windows) {
        auto seen = designer.open.find(window);
        if (seen != designer.open.end()) {
            now.insert(*seen);
            continue;
        }
        now[window] = ++designer.opened;
        ++figures().dialogs_opened;
        ++figures().opened_by_title[kind_of(window)];
    }
    for (const auto &was : designer.open)
        if (!now.count(was.first)) check_host("a dialog closed", false);
    designer.open = now;

    // The enabled dialogs, the one opened last first. Not by stacking order:
    // that follows activation, which the platform settles in its own time.
    std::vector<HWND> enabled;
    for (HWND window : windows)
        if (IsWindowEnabled(window)) enabled.push_back(window);
    std::stable_sort(enabled.begin(), enabled.end(), [](HWND a, HWND b) { return designer.open[a] > designer.open[b]; });
    monkey_figures &f = figures();
    if (enabled.empty() && designer.modeless_turns > 0) {
        --designer.modeless_turns;
        act_modeless();
        designer.last_action = GetTickCount();
    } else if (!enabled.empty()) {
        if (f.actions >= f.budget) {
            wind_down(enabled.front());
        } else if (random_source().percent(modeless_share)) {
            act_modeless();
            designer.last_action = GetTickCount();
        } else {
            // Mostly the dialog opened last; now and then one under it that
            // is still enabled (Group List stays so under Group Composition).
            monkey_random &r = random_source();
            HWND target = enabled.size() > 1 && r.percent(10) ? r.pick(enabled) : enabled.front();
            act(target);
            designer.last_action = GetTickCount();
        }
    }
    designer.busy = false;
}
}  // namespace

const std::vector<std::string> &text_pool() {
    static const std::vector<std::string> pool = [] {
        std::vector<std::string> p = {
            // Hostile: empty, blanks, 4 KB, formats, bytes above 127, numbers no field takes whole.
            "", "   ", std::string(4096, 'W'), std::string(4096, '7'), "%s%n%x%p", "\xC4rger \xE9t\xE9 \xFC\xDF\xFF",
            "nan", "inf", "1e39", "-0", "2,5", "0x10", "12abc",
            // Ordinary: numbers and names the sample mission knows, and names at their fields' limits.
            "12.5", "100", "3", "7", "50", "0", "-250.75", "Bridge1", "Tank1", "Grunt7", "sarge0", "Group1",
            "NO_OBJECT", "WP_North", std::string(24, 'P'), std::string(25, 'Q'), std::string(31, 'R'),
            std::string(32, 'S')};
        return p;
    }();
    return pool;
}

void designer_start(bool trace) {
    InitializeCriticalSection(&designer.seen_lock);
    designer.trace = trace;
    designer.last_action = designer.started = GetTickCount();
    designer.timer = SetTimer(nullptr, 0, USER_TIMER_MINIMUM, on_tick);
}

void designer_stop() {
    if (designer.timer) KillTimer(nullptr, designer.timer);
    designer.timer = 0;
}

std::string designer_last_seen() {
    EnterCriticalSection(&designer.seen_lock);
    std::string text = designer.last_seen;
    LeaveCriticalSection(&designer.seen_lock);
    return text;
}

DWORD designer_idle_ms() { return GetTickCount() - designer.last_action; }

void designer_modeless(long actions) {
    designer.modeless_turns = actions;
    // The editor's windows are served by the host's own message loop.
    MSG msg;
    while (designer.modeless_turns > 0 && GetMessageA(&msg, nullptr, 0, 0) > 0) {
        TranslateMessage(&msg);
        DispatchMessageA(&msg);
    }
    // Let the last click reach its window.
    while (PeekMessageA(&msg, nullptr, 0, 0, PM_REMOVE)) DispatchMessageA(&msg);
}
