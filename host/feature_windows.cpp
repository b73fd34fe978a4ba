// The editor's own windows: the host drives the toolbar and cursors through
// the edit mode, fills the Status window from a simulated selection, and asks
// for file names to save under.
#include <cstdio>
#include <cstring>
#include <string>

#include "host/host_app.h"
#include "host/sample_mission.h"
#include "host/ui_driver.h"

namespace {
void pump() {
    MSG msg;
    while (PeekMessageA(&msg, nullptr, 0, 0, PM_REMOVE)) {
        TranslateMessage(&msg);
        DispatchMessageA(&msg);
    }
}

template <int Mode, int Submode>
void set_mode() {
    host_app &a = app();
    a.state.edit_mode = Mode;
    a.state.edit_submode = Submode;
    a.log("mode " + std::to_string(Mode) + ", sub-mode " + std::to_string(Submode));
    a.send_state();
}

// --- Simulated selections ---------------------------------------------------------
void select_common(float x, float y, float z, float heading) {
    editor_state &s = app().state;
    s.position[0] = x;
    s.position[1] = y;
    s.position[2] = z;
    s.orientation[0] = 0.0f;
    s.orientation[1] = heading;
    s.orientation[2] = 0.0f;
    std::memset(&s.info, 0, sizeof s.info);
    s.shape_name = nullptr;
}

void select_object(uint32_t id, bool named, float x, float z, float heading) {
    const sample_object *o = mission().find(id);
    select_common(x, 2.5f, z, heading);
    editor_state &s = app().state;
    s.info_kind = INFO_OBJECT;
    s.info.object.object_id = id;
    s.info.object.named = named ? 1 : 0;
    s.shape_name = o ? o->shape.c_str() : nullptr;  // lives as long as the mission
    app().log("selection: object " + std::to_string(id) + (named ? " (named)" : ""));
    app().send_state();
}

void select_tree() { select_object(101, false, 120.5f, -48.25f, 0.0f); }
void select_tank() { select_object(103, true, 310.0f, 75.75f, 1.5707964f); }
void select_bridge() { select_object(102, true, -42.0f, 200.0f, 3.1415927f); }

void select_terrain() {
    select_common(64.0f, 2.3f, 8.0f, 0.0f);
    editor_state &s = app().state;
    s.info_kind = INFO_TERRAIN;
    s.info.terrain.location[0] = 64.0f;
    s.info.terrain.location[1] = 2.34f;
    s.info.terrain.location[2] = 8.0f;
    s.info.terrain.normal[0] = 0.12f;
    s.info.terrain.normal[1] = 0.98f;
    s.info.terrain.normal[2] = 0.05f;
    app().log("selection: terrain point");
    app().send_state();
}

void select_nothing() {
    select_common(0.0f, 0.0f, 0.0f, 0.0f);
    app().state.info_kind = 0;
    app().log("selection: nothing");
    app().send_state();
}

// --- Save dialogs -------------------------------------------------------------------
void save(int request, const char *what) {
    char buffer[MAX_PATH] = "";
    GetCurrentDirectoryA(sizeof buffer, buffer);
    int result = app().window(request, reinterpret_cast<uintptr_t>(buffer), sizeof buffer);
    app().log(std::string(what) + ": " + std::to_string(result) + " \"" + buffer + "\"");
}
void save_world() { save(REQUEST_SAVE_WORLD_FILE, "save world"); }
void save_mission() { save(REQUEST_SAVE_MISSION_FILE, "save mission"); }

// --- Tour ---------------------------------------------------------------------------
bool is_toolbar(HWND window) {
    char class_name[16] = "";
    GetClassNameA(window, class_name, sizeof class_name);
    return std::strcmp(class_name, "#32770") == 0 && GetWindowTextLengthA(window) == 0 && app().is_editor(window);
}

HWND find_editor_window(bool toolbar) {
    for (HWND w : ui_thread_windows()) {
        if (!app().is_editor(w)) continue;
        if (is_toolbar(w) == toolbar) return w;
    }
    return nullptr;
}

// A folder holding the sample mission's files, so that the save dialogs in
// the pictures list what a designer would find there.
std::string sample_files_folder() {
    std::string folder = app().settings_folder + "Missions";
    CreateDirectoryA(folder.c_str(), nullptr);
    for (const char *file : {"sample.mis", "sample.dat", "bridge_crossing.mis", "bridge_crossing.dat"}) {
        HANDLE h = CreateFileA((folder + "\\" + file).c_str(), GENERIC_WRITE, 0, nullptr, OPEN_ALWAYS,
                               FILE_ATTRIBUTE_NORMAL, nullptr);
        if (h != INVALID_HANDLE_VALUE) CloseHandle(h);
    }
    return folder;
}

void tour_save(int request, const char *name, const char *caption) {
    ui_driver driver;
    driver.then("Save Editor File...", [name, caption](HWND dialog) {
        tour_screenshot(dialog, "Save Editor File", name, caption);
        ui_command(dialog, IDCANCEL);
    });
    char buffer[MAX_PATH] = "";
    std::snprintf(buffer, sizeof buffer, "%s", sample_files_folder().c_str());
    app().window(request, reinterpret_cast<uintptr_t>(buffer), sizeof buffer);
    tour_check(driver);
}

void tour() {
    host_app &a = app();
    // Mode menu entries for edit modes 0 to 4, and where each mode's button sits.
    static const char *const keys[] = {"Ctrl+1", "Ctrl+3", "Ctrl+5", "Ctrl+9", "Ctrl+0"};
    static const char *const places[] = {"first", "second", "third", "fifth", "fourth"};
    for (int mode = 0; mode < 5; ++mode) {
        a.state.edit_mode = mode;
        a.state.edit_submode = 1;
        a.send_state();
        pump();
        std::string m = std::to_string(mode);
        tour_screenshot(find_editor_window(true), "Toolbar", "toolbar_mode_" + m,
                        "Mode menu, Mode " + m + ", sub-mode 1 (" + keys[mode] + "): editor_update reports edit mode " +
                            m + " and the toolbar marks its " + places[mode] + " button.");
    }
    a.state.edit_mode = 0;
    a.send_state();
    // Both windows open at their template's place; set the Status window
    // beside the toolbar so that neither hides the other in the pictures.
    RECT bar;
    HWND status = find_editor_window(false);
    if (GetWindowRect(find_editor_window(true), &bar))
        SetWindowPos(status, HWND_TOP, bar.right + 8, bar.top, 0, 0, SWP_NOSIZE);
    struct selection {
        void (*select)();
        const char *name;
        const char *caption;
    };
    const selection selections[] = {
        {select_tree, "status_object_shape",
         "Selection menu, Object with id and shape (101): the unnamed oak at (120.5, 2.5, -48.25) shows its id and shape."},
        {select_tank, "status_object_named",
         "Selection menu, Named object in a group (Tank1): Tank1 of group sarge0 at (310, 2.5, 75.75), turned 90 degrees."},
        {select_bridge, "status_object_unattached",
         "Selection menu, Named unattached object (Bridge1): Bridge1, in no group, at (-42, 2.5, 200), turned 180 degrees."},
        {select_terrain, "status_terrain",
         "Selection menu, Terrain point: the ground at (64, 2.34, 8) with its normal (0.12, 0.98, 0.05)."},
        {select_nothing, "status_nothing", "Selection menu, Nothing: with no selection the info line stays empty."}};
    for (const selection &s : selections) {
        s.select();
        pump();
        tour_screenshot(find_editor_window(false), "Status", s.name, s.caption);
    }
    tour_save(REQUEST_SAVE_WORLD_FILE, "save_world_file",
              "File menu, Save World... (request 5), starting in a folder with the sample's world and mission files: "
              "the world files (*.dat) are listed.");
    tour_save(REQUEST_SAVE_MISSION_FILE, "save_mission_file",
              "File menu, Save Mission... (request 6), starting in the same folder: the mission files (*.mis) are "
              "listed.");
}
}  // namespace

HOST_FEATURE("&Mode", "Mode &0, sub-mode 1\tCtrl+1", set_mode<0, 1>, tour, 5);
HOST_FEATURE("&Mode", "Mode 0, sub-mode 2\tCtrl+2", set_mode<0, 2>, nullptr, 5);
HOST_FEATURE("&Mode", "Mode &1, sub-mode 1\tCtrl+3", set_mode<1, 1>, nullptr, 5);
HOST_FEATURE("&Mode", "Mode 1, sub-mode 2\tCtrl+4", set_mode<1, 2>, nullptr, 5);
HOST_FEATURE("&Mode", "Mode &2, sub-mode 1\tCtrl+5", set_mode<2, 1>, nullptr, 5);
HOST_FEATURE("&Mode", "Mode 2, sub-mode 2\tCtrl+6", set_mode<2, 2>, nullptr, 5);
HOST_FEATURE("&Mode", "Mode 2, sub-mode 4097\tCtrl+7", set_mode<2, 4097>, nullptr, 5);
HOST_FEATURE("&Mode", "Mode 2, sub-mode 4098\tCtrl+8", set_mode<2, 4098>, nullptr, 5);
HOST_FEATURE("&Mode", "Mode &3, sub-mode 1\tCtrl+9", set_mode<3, 1>, nullptr, 5);
HOST_FEATURE("&Mode", "Mode &4, sub-mode 1\tCtrl+0", set_mode<4, 1>, nullptr, 5);
HOST_FEATURE("&Mode", "Mode &7 (no mode)", set_mode<7, 1>, nullptr, 5);
HOST_FEATURE("&Selection", "&Object with id and shape (101)", select_tree, nullptr, 6);
HOST_FEATURE("&Selection", "&Named object in a group (Tank1)", select_tank, nullptr, 6);
HOST_FEATURE("&Selection", "Named &unattached object (Bridge1)", select_bridge, nullptr, 6);
HOST_FEATURE("&Selection", "&Terrain point", select_terrain, nullptr, 6);
HOST_FEATURE("&Selection", "Not&hing", select_nothing, nullptr, 6);
HOST_FEATURE("&File", "Save &World...", save_world, nullptr, 1);
HOST_FEATURE("&File", "Save &Mission...", save_mission, nullptr, 1);
