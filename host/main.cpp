// The substitute host's main window, its menus, and the tour that
// screenshots every window the editor has.
#include <cstdio>
#include <cstring>
#include <algorithm>

#include "host/gallery.h"
#include "host/host_app.h"
#include "host/sample_mission.h"

namespace {
constexpr int first_feature_command = 40000;
constexpr int command_exit = 100;

std::vector<host_feature> &registry() {
    static std::vector<host_feature> features;
    return features;
}

// Keyboard shortcuts named in feature labels after a tab, "Ctrl+<key>".
std::vector<ACCEL> &shortcuts() {
    static std::vector<ACCEL> table;
    return table;
}

void add_shortcut(const char *label, int command) {
    const char *tab = std::strchr(label, '\t');
    if (!tab || std::strncmp(tab + 1, "Ctrl+", 5) != 0 || !tab[6] || tab[7]) return;
    shortcuts().push_back(ACCEL{static_cast<BYTE>(FCONTROL | FVIRTKEY), static_cast<WORD>(tab[6]), static_cast<WORD>(command)});
}

HMENU build_menus() {
    HMENU bar = CreateMenu();
    HMENU file = CreatePopupMenu();
    // Features may add to the File menu too; Exit stays last.
    std::vector<std::pair<std::string, HMENU>> menus{{"&File", file}};
    const auto &features = registry();
    for (size_t i = 0; i < features.size(); ++i) {
        auto found = std::find_if(menus.begin(), menus.end(),
                                  [&](const auto &m) { return m.first == features[i].menu; });
        if (found == menus.end()) {
            menus.push_back({features[i].menu, CreatePopupMenu()});
            found = menus.end() - 1;
        }
        AppendMenuA(found->second, MF_STRING, first_feature_command + i, features[i].label);
        add_shortcut(features[i].label, static_cast<int>(first_feature_command + i));
    }
    if (GetMenuItemCount(file) > 0) AppendMenuA(file, MF_SEPARATOR, 0, nullptr);
    AppendMenuA(file, MF_STRING, command_exit, "E&xit");
    for (const auto &m : menus) AppendMenuA(bar, MF_POPUP, reinterpret_cast<UINT_PTR>(m.second), m.first.c_str());
    return bar;
}

// Tidies the editor up while its owner window still exists, so that the
// window positions can be read and saved.
void shut_down_editor() {
    host_app &a = app();
    if (!a.tidyup || !a.editor_running) return;
    a.editor_running = false;
    a.log("editor_tidyup: " + std::to_string(a.tidyup()));
}

LRESULT CALLBACK main_proc(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    host_app &a = app();
    switch (message) {
    case WM_SIZE:
        if (a.log_view) MoveWindow(a.log_view, 0, 0, LOWORD(lparam), HIWORD(lparam), TRUE);
        return 0;
    case WM_SETCURSOR:
        // The host hands cursor messages for its view to the editor, which puts
        // the mode cursor up.
        if (LOWORD(lparam) == HTCLIENT && a.win_messages) {
            a.win_messages(0, WM_SETCURSOR);
            return TRUE;
        }
        break;
    case WM_COMMAND: {
        int id = LOWORD(wparam);
        if (id == command_exit) {
            shut_down_editor();
            DestroyWindow(window);
            return 0;
        }
        size_t index = static_cast<size_t>(id - first_feature_command);
        if (id >= first_feature_command && index < registry().size()) {
            registry()[index].run();
            return 0;
        }
        break;
    }
    case WM_CLOSE:
        shut_down_editor();
        DestroyWindow(window);
        return 0;
    case WM_DESTROY:
        PostQuitMessage(0);
        return 0;
    }
    return DefWindowProcA(window, message, wparam, lparam);
}

std::string settings_folder() {
    char folder[MAX_PATH] = "";
    DWORD n = GetEnvironmentVariableA("APPDATA", folder, sizeof folder);
    if (n == 0 || n >= sizeof folder) GetTempPathA(sizeof folder, folder);
    std::string path = folder;
    if (!path.empty() && path.back() != '\\') path += '\\';
    path += "EditorHost\\";
    CreateDirectoryA(path.c_str(), nullptr);
    return path;
}

void run_tour() {
    host_app &a = app();
    std::vector<host_feature> tours;
    for (const host_feature &f : registry())
        if (f.tour) tours.push_back(f);
    std::stable_sort(tours.begin(), tours.end(), [](const auto &x, const auto &y) { return x.order < y.order; });
    for (const host_feature &f : tours) {
        a.log(std::string("tour: ") + f.menu + " / " + f.label);
        f.tour();
        MSG msg;
        while (PeekMessageA(&msg, nullptr, 0, 0, PM_REMOVE)) DispatchMessageA(&msg);
    }
}
}  // namespace

host_app &app() {
    static host_app a;
    return a;
}

int register_host_feature(const host_feature &feature) {
    auto &features = registry();
    auto at = std::upper_bound(features.begin(), features.end(), feature,
                               [](const host_feature &x, const host_feature &y) { return x.order < y.order; });
    features.insert(at, feature);
    return static_cast<int>(features.size());
}

const std::vector<host_feature> &host_features() { return registry(); }

void host_app::send_state() {
    if (update) update(state);
}

void host_app::log(const std::string &line) {
    if (!gallery.empty()) std::printf("%s\n", line.c_str());
    if (!log_view) return;
    std::string text = line + "\r\n";
    int end = GetWindowTextLengthA(log_view);
    SendMessageA(log_view, EM_SETSEL, end, end);
    SendMessageA(log_view, EM_REPLACESEL, FALSE, reinterpret_cast<LPARAM>(text.c_str()));
}

int WINAPI WinMain(HINSTANCE instance, HINSTANCE, LPSTR command_line, int show) {
    host_app &a = app();
    // Overruns of host blocks and uses of freed ones fault where they happen.
    a.memory.guard_pages = true;
    const char *tour = std::strstr(command_line, "--tour");
    if (tour) {
        tour += 6;
        while (*tour == ' ') ++tour;
        a.gallery = *tour ? tour : "gallery";
        CreateDirectoryA(a.gallery.c_str(), nullptr);
        // A file dialog moves the current folder while it is open, and the
        // tour photographs it then: keep the gallery's place absolute.
        char full[MAX_PATH];
        DWORD n = GetFullPathNameA(a.gallery.c_str(), sizeof full, full, nullptr);
        if (n > 0 && n < sizeof full) a.gallery = full;
    }

    WNDCLASSA wc{};
    wc.lpfnWndProc = main_proc;
    wc.hInstance = instance;
    wc.hCursor = LoadCursorA(nullptr, reinterpret_cast<LPCSTR>(IDC_ARROW));
    wc.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1);
    wc.lpszClassName = "EditorHostMain";
    RegisterClassA(&wc);
    a.main_window = CreateWindowA("EditorHostMain", "Editor Host - sample mission", WS_OVERLAPPEDWINDOW,
                                  CW_USEDEFAULT, CW_USEDEFAULT, 760, 520, nullptr, build_menus(), instance, nullptr);
    a.log_view = CreateWindowA("EDIT", "", WS_CHILD | WS_VISIBLE | WS_VSCROLL | ES_MULTILINE | ES_READONLY | ES_AUTOVSCROLL,
                               0, 0, 0, 0, a.main_window, nullptr, instance, nullptr);
    ShowWindow(a.main_window, show);
    UpdateWindow(a.main_window);

    if (!a.load()) {
        MessageBoxA(a.main_window, "editor.dll could not be loaded, or lacks an export.", "Editor Host", MB_ICONHAND);
        return 2;
    }
    a.settings_folder = settings_folder();
    a.state.edit_mode = 0;
    a.state.edit_submode = 1;
    editor_setup setup{};
    setup.state = a.state;
    setup.main_window = a.main_window;
    setup.settings_file = a.settings_file.c_str();
    setup.settings_folder = a.settings_folder.c_str();
    setup.ops = sample_host_ops();
    a.editor_running = a.init(setup) != 0;
    a.log(std::string("editor_init: ") + (a.editor_running ? "1" : "0") + " (settings in " + a.settings_folder +
          a.settings_file + ")");
    // A game reports its state every frame; the first changed report fills the
    // Status window.
    a.state.host_word = 1;
    a.send_state();

    int exit_code = 0;
    if (!a.gallery.empty()) {
        run_tour();
        if (finish_tour_gallery() > 0) exit_code = 3;
        shut_down_editor();
        DestroyWindow(a.main_window);
    } else {
        HACCEL accelerators =
            shortcuts().empty() ? nullptr : CreateAcceleratorTableA(shortcuts().data(), static_cast<int>(shortcuts().size()));
        MSG msg;
        while (GetMessageA(&msg, nullptr, 0, 0) > 0) {
            if (accelerators && TranslateAcceleratorA(a.main_window, accelerators, &msg)) continue;
            TranslateMessage(&msg);
            DispatchMessageA(&msg);
        }
    }
    shut_down_editor();
    // Every helicopter record made or copied must be destroyed exactly once.
    for (const std::string &problem : a.heli.report()) {
        std::printf("%s\n", problem.c_str());
        exit_code = 1;
    }
    std::string report = a.memory.report();
    std::printf("%s", report.c_str());
    std::fflush(stdout);
    if (!a.memory.problems().empty()) exit_code = 1;
    a.unload();
    return exit_code;
}
