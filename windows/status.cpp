#include "windows/status.h"

#include <cstdio>
#include <cstring>

#include "editor/editor.h"
#include "resources/string_ids.h"
#include "resources/window_ids.h"
#include "util/controls.h"
#include "util/dialogs.h"
#include "util/module_flag.h"
#include "util/numbers.h"
#include "util/settings.h"
#include "util/text.h"
#include "windows/floating.h"

namespace {
// Single-precision constants: not exact reciprocals, but a typed 1 still
// shows as 1.00 after going both ways.
constexpr float degrees_to_radians = 0.01745328f;
constexpr float radians_to_degrees = 57.295826f;

// The six fields, by the stored state word each one shows.
const int position_fields[3] = {IDC_ST_POSITION_X, IDC_ST_POSITION_Y, IDC_ST_POSITION_Z};
const int orientation_fields[3] = {IDC_ST_ORIENTATION_X, IDC_ST_ORIENTATION_Y, IDC_ST_ORIENTATION_Z};

module_flag module;
HWND status_window = nullptr;

int field_index(const int (&fields)[3], int id) {
    for (int i = 0; i < 3; ++i)
        if (fields[i] == id) return i;
    return -1;
}

// A designer's typing: stored at once and handed to the host. Only taken up
// while the Status window is active, so that a refresh (which sets every
// field while the host's window is active) sends nothing back.
void field_changed(HWND window, int id) {
    int position = field_index(position_fields, id);
    int orientation = field_index(orientation_fields, id);
    if (position < 0 && orientation < 0) return;
    if (GetActiveWindow() != window) return;
    char text[64];
    get_item_text(window, id, text);
    float value = 0;
    if (!scan_decimal(text, value)) return;
    editor_state &state = editor_stored_state();
    if (position >= 0) {
        state.position[position] = value;
        host_notify(NOTIFY_POSITION, reinterpret_cast<uintptr_t>(&state.position[0]));
    } else {
        state.orientation[orientation] = value * degrees_to_radians;
        host_notify(NOTIFY_ORIENTATION, reinterpret_cast<uintptr_t>(&state.orientation[0]));
    }
}

// "id, (shape)". A shape name too long for the 79 characters is cut so that
// the text still ends with its closing parenthesis.
void format_object_shape(char (&text)[80], uint32_t id, const char *shape) {
    int prefix = std::snprintf(text, sizeof text, "%u, (", static_cast<unsigned>(id));
    if (prefix < 0 || prefix >= static_cast<int>(sizeof text) - 1) return;
    size_t room = sizeof text - static_cast<size_t>(prefix) - 2;  // the ')' and the NUL
    size_t length = 0;
    while (length < room && shape[length]) ++length;
    std::memcpy(text + prefix, shape, length);
    text[prefix + length] = ')';
    text[prefix + length + 1] = '\0';
}

// "name, (group)", with "NIL," and " (Unattached)" for missing parts. Each
// half of the host's buffer is a 32-byte name field, cut like any other.
void format_object_names(char (&text)[80], const char (&names)[64]) {
    char name[32];
    char group[32];
    copy_field(name, sizeof name, names, 32);
    copy_field(group, sizeof group, names + 32, 32);
    char name_part[40];
    char group_part[40];
    if (name[0])
        std::snprintf(name_part, sizeof name_part, "%s,", name);
    else
        copy_text(name_part, "NIL,");
    if (group[0])
        std::snprintf(group_part, sizeof group_part, " (%s)", group);
    else
        copy_text(group_part, " (Unattached)");
    std::snprintf(text, sizeof text, "%s%s", name_part, group_part);
}

void set_caption_id(HWND window, int string_id) {
    char caption[80];
    load_string(string_id, caption, sizeof caption);
    SetDlgItemTextA(window, IDC_ST_INFO_CAPTION, caption);
}

void refresh_info_line(HWND window, const editor_state &state) {
    if (!GetDlgItem(window, IDC_ST_INFO_TEXT)) return;
    if (state.edit_mode != 0 || (state.info_kind != INFO_OBJECT && state.info_kind != INFO_TERRAIN)) {
        SetDlgItemTextA(window, IDC_ST_INFO_CAPTION, "");
        SetDlgItemTextA(window, IDC_ST_INFO_TEXT, "");
        return;
    }
    char text[80];
    if (state.info_kind == INFO_TERRAIN) {
        set_caption_id(window, IDS_INFO_TERRAIN);
        const float *l = state.info.terrain.location;
        const float *n = state.info.terrain.normal;
        std::snprintf(text, sizeof text, "(%.1f, %.1f, %.1f), (%1.2f, %1.2f, %1.2f)", l[0], l[1], l[2], n[0],
                      n[1], n[2]);
    } else if (!state.info.object.named) {
        set_caption_id(window, IDS_INFO_OBJECT_SHAPE);
        format_object_shape(text, state.info.object.object_id, state.shape_name ? state.shape_name : "???");
    } else {
        set_caption_id(window, IDS_INFO_OBJECT_NAMES);
        char names[64] = {};
        // The host not knowing the object leaves the previous text showing.
        if (!host().host_object_name || !host().host_object_name(state.info.object.object_id, 0, names)) return;
        format_object_names(text, names);
    }
    SetDlgItemTextA(window, IDC_ST_INFO_TEXT, text);
}
}  // namespace

INT_PTR CALLBACK status_proc(HWND window, UINT message, WPARAM wparam, LPARAM) {
    switch (message) {
    case WM_INITDIALOG:
        return 1;
    case WM_COMMAND:
        if (module.started && HIWORD(wparam) == EN_CHANGE) field_changed(window, LOWORD(wparam));
        return 0;
    case WM_SETCURSOR:
        take_activation_for_cursor(window);
        return 0;
    default:
        return 0;
    }
}

int status_start(HWND owner, const char *settings_file, const char *settings_folder) {
    if (module.started) return 0;
    status_window = floating_window_open(IDD_STATUS, owner, status_proc, settings_file, settings_folder,
                                         SETTINGS_STATUS, IDS_STATUS_FAILED);
    return status_window ? module.start() : 0;
}

int status_tidyup(const char *settings_file, const char *settings_folder) {
    if (!module.started) return 0;
    floating_window_close(status_window, settings_file, settings_folder, SETTINGS_STATUS);
    status_window = nullptr;
    module.tidyup();
    return 1;
}

void status_refresh() {
    if (!module.started) return;
    HWND window = status_window;
    // Read the stored state afresh for each field: while the Status window is
    // active, setting a field stores its value back (rounded) and the host
    // may answer with an editor_update from inside the notification.
    for (int i = 0; i < 3; ++i) {
        if (GetDlgItem(window, position_fields[i]))
            set_item_text_f(window, position_fields[i], "%.2f", editor_stored_state().position[i]);
    }
    for (int i = 0; i < 3; ++i) {
        if (GetDlgItem(window, orientation_fields[i])) {
            float degrees = editor_stored_state().orientation[i] * radians_to_degrees;
            set_item_text_f(window, orientation_fields[i], "%.2f", degrees);
        }
    }
    refresh_info_line(window, editor_stored_state());
}

int is_status_window(HWND window) { return module.started && window == status_window ? 1 : 0; }
