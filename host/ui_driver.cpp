#include "host/ui_driver.h"

#include <algorithm>
#include <cstring>

namespace {
ui_driver *active_driver = nullptr;
constexpr unsigned tick_ms = 15;
// A window nobody scripted may stay up this long before it counts as stuck.
constexpr DWORD stray_timeout_ms = 4000;

bool is_dialog(HWND window) {
    char name[16] = "";
    GetClassNameA(window, name, sizeof name);
    return std::string(name) == "#32770";
}

BOOL CALLBACK collect_window(HWND window, LPARAM out) {
    if (IsWindowVisible(window)) reinterpret_cast<std::vector<HWND> *>(out)->push_back(window);
    return TRUE;
}

// The window the designer could type into now: visible and enabled.
HWND find_window(const std::string &title) {
    for (HWND window : ui_thread_windows()) {
        if (IsWindowEnabled(window) && ui_window_text(window) == title) return window;
    }
    return nullptr;
}

HWND top_dialog() {
    for (HWND window : ui_thread_windows()) {
        if (is_dialog(window) && IsWindowEnabled(window)) return window;
    }
    return nullptr;
}

void close_dialog(HWND window) {
    // Message boxes with Yes/No ignore IDCANCEL; EndDialog ends any of them.
    EndDialog(window, GetDlgItem(window, IDNO) ? IDNO : IDCANCEL);
}
}  // namespace

ui_driver::ui_driver(unsigned step_timeout_ms) : step_timeout_ms_(step_timeout_ms) {
    active_driver = this;
    timer_ = SetTimer(nullptr, 0, tick_ms, on_timer);
}

ui_driver::~ui_driver() {
    if (timer_) KillTimer(nullptr, timer_);
    if (active_driver == this) active_driver = nullptr;
}

ui_driver &ui_driver::then(const std::string &title, action act) {
    if (steps_.empty()) step_started_ = GetTickCount();
    steps_.push_back({title, std::move(act)});
    return *this;
}

ui_driver &ui_driver::answer_box(const std::string &title, int answer, std::string *text) {
    return then(title, [answer, text](HWND box) {
        if (text) *text = ui_message_text(box);
        ui_command(box, answer);
    });
}

std::string ui_driver::failures() const {
    std::string out;
    for (const std::string &line : failures_) out += line + "\n";
    for (const step &pending : steps_) out += "step never ran: window '" + pending.title + "'\n";
    return out;
}

void ui_driver::close_all_dialogs() {
    for (int round = 0; round < 50; ++round) {
        HWND dialog = top_dialog();
        if (!dialog) return;
        close_dialog(dialog);
        MSG msg;
        while (PeekMessageA(&msg, nullptr, 0, 0, PM_REMOVE)) DispatchMessageA(&msg);
    }
}

void CALLBACK ui_driver::on_timer(HWND, UINT, UINT_PTR, DWORD) {
    if (active_driver) active_driver->tick();
}

void ui_driver::tick() {
    // An action may open a nested modal loop in which this timer fires again.
    if (busy_) return;
    busy_ = true;
    DWORD now = GetTickCount();
    if (closing_) {
        if (HWND dialog = top_dialog()) close_dialog(dialog);
        else closing_ = false;
    } else if (!steps_.empty()) {
        step &current = steps_.front();
        if (HWND window = find_window(current.title)) {
            action act = std::move(current.act);
            steps_.pop_front();
            step_started_ = now;
            stray_ = nullptr;
            act(window);
        } else if (now - step_started_ > step_timeout_ms_) {
            std::string seen;
            for (HWND w : ui_thread_windows()) seen += " '" + ui_window_text(w) + "'";
            failures_.push_back("timed out waiting for window '" + current.title +
                                "'; windows up:" + seen);
            steps_.clear();
            closing_ = true;
        }
    } else if (HWND dialog = top_dialog()) {
        // Nothing left to do, yet a dialog is up: fine for a moment (it may be
        // closing), a failure if it stays.
        if (dialog != stray_) {
            stray_ = dialog;
            stray_seen_ = now;
        } else if (now - stray_seen_ > stray_timeout_ms) {
            failures_.push_back("unexpected window '" + ui_window_text(dialog) + "': " +
                                ui_message_text(dialog));
            closing_ = true;
            stray_ = nullptr;
        }
    }
    busy_ = false;
}

std::vector<HWND> ui_thread_windows() {
    std::vector<HWND> windows;
    EnumThreadWindows(GetCurrentThreadId(), collect_window, reinterpret_cast<LPARAM>(&windows));
    return windows;
}

std::string ui_window_text(HWND window) {
    char text[1024] = "";
    GetWindowTextA(window, text, sizeof text);
    return text;
}

void ui_set_text(HWND dialog, int id, const std::string &text) {
    SetDlgItemTextA(dialog, id, text.c_str());
}

std::string ui_text(HWND dialog, int id) {
    HWND control = GetDlgItem(dialog, id);
    if (!control) return "<no control " + std::to_string(id) + ">";
    int length = GetWindowTextLengthA(control);
    std::string text(static_cast<size_t>(length) + 1, '\0');
    GetWindowTextA(control, &text[0], length + 1);
    text.resize(std::strlen(text.c_str()));
    return text;
}

void ui_click(HWND dialog, int id) { PostMessageA(GetDlgItem(dialog, id), BM_CLICK, 0, 0); }

void ui_command(HWND dialog, int id) {
    PostMessageA(dialog, WM_COMMAND, MAKEWPARAM(id, BN_CLICKED),
                 reinterpret_cast<LPARAM>(GetDlgItem(dialog, id)));
}

bool ui_enabled(HWND dialog, int id) {
    HWND control = GetDlgItem(dialog, id);
    return control && IsWindowEnabled(control);
}

bool ui_visible(HWND dialog, int id) {
    HWND control = GetDlgItem(dialog, id);
    return control && IsWindowVisible(control);
}

bool ui_checked(HWND dialog, int id) { return IsDlgButtonChecked(dialog, id) == BST_CHECKED; }

namespace {
void notify_parent(HWND dialog, int id, int code) {
    PostMessageA(dialog, WM_COMMAND, MAKEWPARAM(id, code),
                 reinterpret_cast<LPARAM>(GetDlgItem(dialog, id)));
}

std::vector<std::string> items(HWND dialog, int id, UINT count_msg, UINT len_msg, UINT text_msg) {
    std::vector<std::string> out;
    HWND control = GetDlgItem(dialog, id);
    LRESULT count = SendMessageA(control, count_msg, 0, 0);
    for (LRESULT i = 0; i < count; ++i) {
        LRESULT length = SendMessageA(control, len_msg, i, 0);
        std::string text(static_cast<size_t>(std::max<LRESULT>(length, 0)) + 1, '\0');
        SendMessageA(control, text_msg, i, reinterpret_cast<LPARAM>(&text[0]));
        text.resize(std::strlen(text.c_str()));
        out.push_back(text);
    }
    return out;
}
}  // namespace

std::vector<std::string> ui_combo_items(HWND dialog, int id) {
    return items(dialog, id, CB_GETCOUNT, CB_GETLBTEXTLEN, CB_GETLBTEXT);
}

bool ui_combo_select(HWND dialog, int id, const std::string &text) {
    std::vector<std::string> all = ui_combo_items(dialog, id);
    auto found = std::find(all.begin(), all.end(), text);
    if (found == all.end()) return false;
    ui_combo_select_index(dialog, id, static_cast<int>(found - all.begin()));
    return true;
}

void ui_combo_select_index(HWND dialog, int id, int index) {
    SendDlgItemMessageA(dialog, id, CB_SETCURSEL, static_cast<WPARAM>(index), 0);
    notify_parent(dialog, id, CBN_SELCHANGE);
}

std::string ui_combo_selected(HWND dialog, int id) {
    LRESULT index = SendDlgItemMessageA(dialog, id, CB_GETCURSEL, 0, 0);
    if (index == CB_ERR) return "";
    std::vector<std::string> all = ui_combo_items(dialog, id);
    return static_cast<size_t>(index) < all.size() ? all[static_cast<size_t>(index)] : "";
}

std::vector<std::string> ui_list_items(HWND dialog, int id) {
    return items(dialog, id, LB_GETCOUNT, LB_GETTEXTLEN, LB_GETTEXT);
}

void ui_list_select_index(HWND dialog, int id, int index) {
    HWND list = GetDlgItem(dialog, id);
    LONG style = GetWindowLongA(list, GWL_STYLE);
    if (style & (LBS_MULTIPLESEL | LBS_EXTENDEDSEL)) {
        SendMessageA(list, LB_SETSEL, TRUE, index);
    } else {
        SendMessageA(list, LB_SETCURSEL, static_cast<WPARAM>(index), 0);
    }
    notify_parent(dialog, id, LBN_SELCHANGE);
}

bool ui_list_select(HWND dialog, int id, const std::string &text) {
    std::vector<std::string> all = ui_list_items(dialog, id);
    auto found = std::find(all.begin(), all.end(), text);
    if (found == all.end()) return false;
    ui_list_select_index(dialog, id, static_cast<int>(found - all.begin()));
    return true;
}

std::vector<int> ui_list_selected(HWND dialog, int id) {
    HWND list = GetDlgItem(dialog, id);
    std::vector<int> out;
    LRESULT count = SendMessageA(list, LB_GETCOUNT, 0, 0);
    for (LRESULT i = 0; i < count; ++i) {
        if (SendMessageA(list, LB_GETSEL, static_cast<WPARAM>(i), 0) > 0) out.push_back(static_cast<int>(i));
    }
    return out;
}

void ui_list_double_click(HWND dialog, int id) { notify_parent(dialog, id, LBN_DBLCLK); }

namespace {
BOOL CALLBACK longest_static(HWND child, LPARAM out) {
    char name[16] = "";
    GetClassNameA(child, name, sizeof name);
    if (lstrcmpiA(name, "Static") == 0) {
        std::string text = ui_window_text(child);
        auto *best = reinterpret_cast<std::string *>(out);
        if (text.size() > best->size()) *best = text;
    }
    return TRUE;
}
}  // namespace

std::string ui_message_text(HWND box) {
    std::string text;
    EnumChildWindows(box, longest_static, reinterpret_cast<LPARAM>(&text));
    return text;
}
