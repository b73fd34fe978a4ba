// Runs every scenario for each N, alternating the editor's dialog and its
// floor, and prints the medians, the ratio to the floor and the growth from
// 1,000 to 10,000 entries. A run that leaks, keeps a host list or leaves a
// dialog open fails the benchmark instead of printing a number.
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <map>

#include "bench/bench.h"

namespace {
double now_ms() {
    static LARGE_INTEGER frequency = [] {
        LARGE_INTEGER f;
        QueryPerformanceFrequency(&f);
        return f;
    }();
    LARGE_INTEGER counter;
    QueryPerformanceCounter(&counter);
    return 1000.0 * static_cast<double>(counter.QuadPart) / static_cast<double>(frequency.QuadPart);
}

[[noreturn]] void fail(const std::string &why) {
    std::fprintf(stderr, "bench: %s\n", why.c_str());
    std::fflush(stderr);
    ExitProcess(1);
}

// --- The host operations ----------------------------------------------------------
int names_out(const std::vector<std::string> &names, dlist_node **list, int acquire) {
    bench_host &h = bench();
    if (acquire) {
        std::vector<const void *> values;
        values.reserve(names.size());
        for (const std::string &name : names) values.push_back(name.c_str());
        *list = h.list(values);
        ++h.lists_out;
        return 1;
    }
    h.free_list(*list);
    *list = nullptr;
    --h.lists_out;
    return 1;
}

int EDITOR_CDECL op_notify(int, uintptr_t) { return 0; }
int EDITOR_CDECL op_reference_list(int, dlist_node **list, int acquire) {
    return names_out(bench().reference_names, list, acquire);
}
int EDITOR_CDECL op_message_targets(dlist_node **list, int acquire) {
    return names_out(bench().message_targets, list, acquire);
}
int EDITOR_CDECL op_formations(dlist_node **list, int acquire) { return names_out(bench().formations, list, acquire); }
int EDITOR_CDECL op_markers(dlist_node **list, int acquire) { return names_out(bench().markers, list, acquire); }
int EDITOR_CDECL op_units(dlist_node **list, int acquire) {
    bench_host &h = bench();
    if (acquire) {
        std::vector<const void *> values;
        values.reserve(h.units.size());
        for (const unit_entry &unit : h.units) values.push_back(&unit);
        *list = h.list(values);
        ++h.lists_out;
        return 1;
    }
    h.free_list(*list);
    *list = nullptr;
    --h.lists_out;
    return 1;
}
int EDITOR_CDECL op_units_standalone(dlist_node **list, int acquire) { return acquire ? op_units(list, 1) : 0; }
void *EDITOR_CDECL op_alloc(uint32_t size) { return bench().memory.alloc(size); }
int EDITOR_CDECL op_free(void *block, uint32_t size) {
    bench().memory.free(block, size);
    return 0;
}
int EDITOR_CDECL op_object_name(uint32_t, int, char *names) {
    std::memset(names, 0, 32);
    return 0;
}
int EDITOR_CDECL op_object_exists(const char *) { return 1; }

// Rally points: 68-byte entries made on acquire and freed on release.
int EDITOR_CDECL op_rally_points(dlist_node **list, int acquire) {
    bench_host &h = bench();
    if (acquire) {
        std::vector<const void *> values;
        uint32_t id = 0;
        for (const std::string &name : h.rally_points) {
            auto *entry = static_cast<rally_point_entry *>(h.memory.alloc(sizeof(rally_point_entry)));
            std::memset(entry, 0, sizeof *entry);
            std::snprintf(entry->name, sizeof entry->name, "%s", name.c_str());
            entry->id = ++id;
            values.push_back(entry);
        }
        *list = h.list(values);
        ++h.lists_out;
        return 1;
    }
    h.heli.free_units(*list);  // 68-byte entries, like units
    *list = nullptr;
    --h.lists_out;
    return 1;
}

template <class T, T *(heli_records::*Make)()>
int EDITOR_CDECL op_create(T **out) {
    T *made = (bench().heli.*Make)();
    if (made) *out = made;
    return made ? 1 : 0;
}
template <class T, T *(heli_records::*Copy)(const T &)>
int EDITOR_CDECL op_copy(T *source, T **out) {
    T *made = source ? (bench().heli.*Copy)(*source) : nullptr;
    if (made) *out = made;
    return made ? 1 : 0;
}
template <class T, void (heli_records::*Destroy)(T *)>
int EDITOR_CDECL op_destroy(T **record) {
    (bench().heli.*Destroy)(*record);
    return 0;
}
int EDITOR_CDECL op_order_create(uint32_t kind, heli_order_record **out) {
    heli_order_record *made = bench().heli.create_order(kind);
    if (made) *out = made;
    return made ? 1 : 0;
}
int EDITOR_CDECL op_patrol_point_create(const char *marker, patrol_point **out) {
    patrol_point *made = bench().heli.create_patrol_point(marker);
    if (made) *out = made;
    return made ? 1 : 0;
}

editor_setup bench_setup() {
    editor_setup s{};
    s.state.edit_mode = 0;
    s.state.edit_submode = 1;
    s.main_window = bench().main_window;
    s.ops.host_notify = op_notify;
    s.ops.host_reference_list = op_reference_list;
    s.ops.host_unit_list = op_units;
    s.ops.host_unit_list_standalone = op_units_standalone;
    s.ops.host_message_target_list = op_message_targets;
    s.ops.host_formation_list = op_formations;
    s.ops.host_marker_list = op_markers;
    s.ops.host_alloc = op_alloc;
    s.ops.host_free = op_free;
    s.ops.host_object_name = op_object_name;
    s.ops.host_object_exists = op_object_exists;
    s.ops.host_rally_point_list = op_rally_points;
    s.ops.host_order_create = op_order_create;
    s.ops.host_order_copy = op_copy<heli_order_record, &heli_records::copy_order>;
    s.ops.host_order_destroy = op_destroy<heli_order_record, &heli_records::destroy_order>;
    s.ops.host_waypoint_create = op_create<waypoint_record, &heli_records::create_waypoint>;
    s.ops.host_waypoint_copy = op_copy<waypoint_record, &heli_records::copy_waypoint>;
    s.ops.host_waypoint_destroy = op_destroy<waypoint_record, &heli_records::destroy_waypoint>;
    s.ops.host_heli_group_create = op_create<heli_group_record, &heli_records::create_heli_group>;
    s.ops.host_heli_group_copy = op_copy<heli_group_record, &heli_records::copy_heli_group>;
    s.ops.host_heli_group_destroy = op_destroy<heli_group_record, &heli_records::destroy_heli_group>;
    s.ops.host_patrol_point_create = op_patrol_point_create;
    s.ops.host_patrol_point_destroy = op_destroy<patrol_point, &heli_records::destroy_patrol_point>;
    return s;
}

// --- Watching the dialogs ------------------------------------------------------------
struct run_state {
    const scenario *current = nullptr;
    double init_started = 0;
    double init_ms = -1;
    double total_ms = -1;
    double last_progress = 0;
} run;

std::string title_of(HWND window) {
    char text[128] = "";
    GetWindowTextA(window, text, sizeof text);
    return text;
}

LRESULT CALLBACK before_proc(int code, WPARAM wparam, LPARAM lparam) {
    const auto *message = reinterpret_cast<const CWPSTRUCT *>(lparam);
    if (code == HC_ACTION && message->message == WM_INITDIALOG && run.current &&
        title_of(message->hwnd) == run.current->title)
        run.init_started = now_ms();
    return CallNextHookEx(nullptr, code, wparam, lparam);
}

// After a dialog's WM_INITDIALOG: the measured one is timed and cancelled at
// once; the others on the way are clicked through by the scenario.
LRESULT CALLBACK after_proc(int code, WPARAM wparam, LPARAM lparam) {
    const auto *message = reinterpret_cast<const CWPRETSTRUCT *>(lparam);
    if (code == HC_ACTION && message->message == WM_INITDIALOG && run.current) {
        run.last_progress = now_ms();
        const std::string title = title_of(message->hwnd);
        if (title == run.current->title) {
            run.init_ms = now_ms() - run.init_started;
            PostMessageA(message->hwnd, WM_COMMAND, MAKEWPARAM(IDCANCEL, BN_CLICKED), 0);
        } else if (run.current->on_ready) {
            run.current->on_ready(message->hwnd, title);
        }
    }
    return CallNextHookEx(nullptr, code, wparam, lparam);
}

DWORD WINAPI watchdog(void *) {
    for (;;) {
        Sleep(1000);
        if (run.current && run.last_progress > 0 && now_ms() - run.last_progress > 60000)
            fail("a dialog of '" + run.current->name + "' did not close within a minute");
    }
}

std::map<UINT_PTR, std::function<void()>> &pending_clicks() {
    static std::map<UINT_PTR, std::function<void()>> clicks;
    return clicks;
}

void CALLBACK run_click(HWND, UINT, UINT_PTR timer, DWORD) {
    KillTimer(nullptr, timer);
    auto found = pending_clicks().find(timer);
    if (found == pending_clicks().end()) return;
    std::function<void()> act = std::move(found->second);
    pending_clicks().erase(found);
    act();
}

// --- The floor ----------------------------------------------------------------------
INT_PTR CALLBACK floor_proc(HWND dialog, UINT message, WPARAM wparam, LPARAM lparam) {
    if (message == WM_INITDIALOG) {
        for (const floor_control &c : *reinterpret_cast<const std::vector<floor_control> *>(lparam)) {
            HWND control = GetDlgItem(dialog, c.id);
            char kind[16] = "";
            GetClassNameA(control, kind, sizeof kind);
            const bool combo = _stricmp(kind, "ComboBox") == 0;
            const UINT add = combo ? CB_ADDSTRING : LB_ADDSTRING;
            const UINT set = combo ? CB_SETITEMDATA : LB_SETITEMDATA;
            for (const floor_line &line : c.lines) {
                LRESULT index = SendMessageA(control, add, 0, reinterpret_cast<LPARAM>(line.text.c_str()));
                if (line.data && index >= 0) SendMessageA(control, set, static_cast<WPARAM>(index), line.data);
            }
        }
        return TRUE;
    }
    if (message == WM_COMMAND && LOWORD(wparam) == IDCANCEL) {
        EndDialog(dialog, 0);
        return TRUE;
    }
    return FALSE;
}

void run_floor(const scenario &s, const std::vector<floor_control> &controls) {
    HMODULE dll = bench().editor.dll;
    HRSRC found = FindResourceA(dll, MAKEINTRESOURCEA(s.template_id), MAKEINTRESOURCEA(5));
    if (!found) fail("no template " + std::to_string(s.template_id) + " in editor.dll");
    auto *dialog_template = static_cast<const DLGTEMPLATE *>(LockResource(LoadResource(dll, found)));
    const double start = now_ms();
    DialogBoxIndirectParamA(dll, dialog_template, bench().main_window, floor_proc,
                            reinterpret_cast<LPARAM>(&controls));
    run.total_ms = now_ms() - start;
}

void check_host(const scenario &s) {
    bench_host &h = bench();
    if (h.lists_out != 0) fail(s.name + ": a host list was not released");
    std::vector<std::string> problems = h.heli.report();
    for (const std::string &p : h.memory.problems()) problems.push_back(p);
    if (!problems.empty()) fail(s.name + ": " + problems.front());
}

double median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values.empty() ? 0 : values[values.size() / 2];
}

struct figures {
    std::vector<double> total, init;
};

long file_size(const char *path) {
    WIN32_FILE_ATTRIBUTE_DATA data;
    return GetFileAttributesExA(path, GetFileExInfoStandard, &data) ? static_cast<long>(data.nFileSizeLow) : -1;
}

// editor_init followed by editor_tidyup (no settings file), beside a bare DLL
// that only creates and destroys the same two modeless windows.
void measure_lifecycle(int runs) {
    HMODULE bare = LoadLibraryA("bench_bare.dll");
    auto bare_init = reinterpret_cast<int (*)(HWND)>(reinterpret_cast<void *>(GetProcAddress(bare, "bare_init")));
    auto bare_tidyup = reinterpret_cast<int (*)()>(reinterpret_cast<void *>(GetProcAddress(bare, "bare_tidyup")));
    if (!bare_init || !bare_tidyup) fail("bench_bare.dll cannot be loaded");
    bench_host &h = bench();
    std::vector<double> editor, floor;
    for (int r = 0; r < runs; ++r) {
        double start = now_ms();
        if (!h.editor.init(bench_setup())) fail("editor_init failed");
        h.editor.tidyup();
        editor.push_back(now_ms() - start);
        start = now_ms();
        if (!bare_init(h.main_window)) fail("the bare DLL's windows could not be made");
        bare_tidyup();
        floor.push_back(now_ms() - start);
    }
    std::printf("%-26s %6s %10.2f %10.2f %6.2f\n", "editor_init + tidyup", "", median(editor), median(floor),
                median(editor) / median(floor));
    std::printf("%-26s %6s %10ld %10ld %6.2f   (bytes)\n", "DLL size", "", file_size("editor.dll"),
                file_size("bench_bare.dll"),
                static_cast<double>(file_size("editor.dll")) / static_cast<double>(file_size("bench_bare.dll")));
    FreeLibrary(bare);
}
}  // namespace

bench_host &bench() {
    static bench_host host;
    return host;
}

dlist_node *bench_host::list(const std::vector<const void *> &values) {
    dlist_node *head = heli.new_list();
    if (!head) fail("out of memory");
    for (const void *value : values)
        if (!heli.append(head, value)) fail("out of memory");
    return head;
}

void bench_host::free_list(dlist_node *head) { heli.free_list(head); }

void bench_host::forget_lists() {
    for (auto *names : {&reference_names, &markers, &formations, &message_targets, &rally_points}) names->clear();
    units.clear();
}

void click_through(std::vector<HWND> parents, std::function<void()> act) {
    UINT_PTR timer = SetTimer(nullptr, 0, 0, run_click);
    pending_clicks()[timer] = [parents, act] {
        const double start = now_ms();
        act();
        run.total_ms = now_ms() - start;
        for (HWND parent : parents) PostMessageA(parent, WM_COMMAND, MAKEWPARAM(IDCANCEL, BN_CLICKED), 0);
    };
}

std::string scrambled_name(const char *prefix, int i) {
    // A multiplicative hash keeps the names distinct and out of order.
    const uint32_t h = static_cast<uint32_t>(i) * 2654435761u;
    char text[32];
    std::snprintf(text, sizeof text, "%s%08x", prefix, h);
    return text;
}

int main(int argc, char **argv) {
    int runs = 5;
    std::vector<int> sizes = {100, 1000, 10000};
    std::string only;
    for (int i = 1; i < argc; ++i) {
        if (!std::strcmp(argv[i], "--runs") && i + 1 < argc) runs = std::max(1, std::atoi(argv[++i]));
        else if (!std::strcmp(argv[i], "--quick")) sizes = {100, 1000};
        else if (!std::strcmp(argv[i], "--only") && i + 1 < argc) only = argv[++i];
        else if (!std::strcmp(argv[i], "--sizes") && i + 1 < argc) {
            // A comma-separated list of N, to try other scales (100000).
            sizes.clear();
            for (char *n = std::strtok(argv[++i], ","); n; n = std::strtok(nullptr, ","))
                if (std::atoi(n) > 0) sizes.push_back(std::atoi(n));
        }
    }

    bench_host &h = bench();
    if (!h.editor.load("editor.dll")) fail("editor.dll cannot be loaded");
    WNDCLASSA wc{};
    wc.lpfnWndProc = DefWindowProcA;
    wc.hInstance = GetModuleHandleA(nullptr);
    wc.lpszClassName = "editor_bench";
    RegisterClassA(&wc);
    h.main_window = CreateWindowA("editor_bench", "Bench", WS_OVERLAPPEDWINDOW, 0, 0, 400, 300, nullptr, nullptr,
                                  wc.hInstance, nullptr);
    if (!h.editor.init(bench_setup())) fail("editor_init failed");
    SetWindowsHookExA(WH_CALLWNDPROC, before_proc, nullptr, GetCurrentThreadId());
    SetWindowsHookExA(WH_CALLWNDPROCRET, after_proc, nullptr, GetCurrentThreadId());
    CreateThread(nullptr, 0, watchdog, nullptr, 0, nullptr);

    std::vector<scenario> scenarios = ground_scenarios();
    for (scenario &s : heli_scenarios()) scenarios.push_back(std::move(s));
    for (scenario &s : air_scenarios()) scenarios.push_back(std::move(s));
    std::printf("%-26s %6s %10s %10s %6s %10s %10s %6s\n", "dialog", "N", "dll ms", "floor ms", "ratio",
                "init dll", "init floor", "ratio");
    for (const scenario &s : scenarios) {
        if (!only.empty() && s.name.find(only) == std::string::npos) continue;
        std::map<int, std::pair<figures, figures>> by_size;  // dll, floor
        for (int n : sizes) {
            figures &dll = by_size[n].first;
            figures &floor = by_size[n].second;
            std::vector<floor_control> lines = s.floor(n);
            for (int r = 0; r < runs; ++r) {
                // The editor's dialog, through the exports.
                h.forget_lists();
                s.prepare(n);
                run = run_state{};
                run.current = &s;
                run.last_progress = now_ms();
                const double start = now_ms();
                s.open();
                if (run.total_ms < 0) run.total_ms = now_ms() - start;
                if (run.init_ms < 0) fail(s.name + ": the dialog did not open");
                dll.total.push_back(run.total_ms);
                dll.init.push_back(run.init_ms);
                run.current = nullptr;
                s.release();
                check_host(s);
                // Its floor.
                run = run_state{};
                run.current = &s;
                run.last_progress = now_ms();
                run_floor(s, lines);
                if (run.init_ms < 0) fail(s.name + ": the floor did not open");
                floor.total.push_back(run.total_ms);
                floor.init.push_back(run.init_ms);
                run.current = nullptr;
            }
            const double dt = median(dll.total), ft = median(floor.total);
            const double di = median(dll.init), fi = median(floor.init);
            std::printf("%-26s %6d %10.2f %10.2f %6.2f %10.2f %10.2f %6.2f\n", s.name.c_str(), n, dt, ft, dt / ft, di,
                        fi, di / fi);
            std::fflush(stdout);
        }
        if (by_size.count(1000) && by_size.count(10000)) {
            std::printf("%-26s growth t(10000)/t(1000): dll %.1f, floor %.1f\n", s.name.c_str(),
                        median(by_size[10000].first.total) / median(by_size[1000].first.total),
                        median(by_size[10000].second.total) / median(by_size[1000].second.total));
        }
    }
    h.editor.tidyup();
    check_host(scenario{"tidy-up", 0, "", {}, {}, {}, {}, {}});
    measure_lifecycle(runs);
    h.editor.unload();
    return 0;
}
