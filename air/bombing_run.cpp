// Edit Bombing Run Details (template 138). Route edits (append, insert,
// delete, set height) change the host's ingress and egress lists at once and
// are not undone by Cancel; the name, target, heights, time, radius and the
// aircraft choice are written on OK only; `cancelled` tells the host how the
// dialog ended.
//
// A route's lines are found again by their position: line i is the route's
// i-th waypoint.
#include "air/bombing_run.h"

#include <cstdio>
#include <cstring>

#include "editor/editor.h"
#include "heli_orders/heli_order.h"
#include "resources/air_ids.h"
#include "util/controls.h"
#include "util/dialogs.h"
#include "util/host_list.h"
#include "util/line_batch.h"
#include "util/host_memory.h"
#include "util/modal.h"
#include "util/text.h"

namespace {
module_flag module;
bombing_run_record *edited = nullptr;

// What a route's height edit reads after every refill and refused height.
const char default_height_text[] = "50.0";
constexpr float new_waypoint_height = 50.0f;
constexpr uint32_t max_aircraft = 8;

struct route {
    dlist *bombing_run_record::*head;
    int list;    // one line per waypoint
    int height;  // the height Set Height stores
};
const route ingress = {&bombing_run_record::ingress, IDC_BR_INGRESS, IDC_BR_INGRESS_HEIGHT};
const route egress = {&bombing_run_record::egress, IDC_BR_EGRESS, IDC_BR_EGRESS_HEIGHT};

dlist *head_of(const route &r) { return edited->*r.head; }

// Marker and aircraft type names that do not fit a 32-byte field are not
// offered: cut short, they would name no marker or type the host knows.
bool fits_field(const char *name) { return name && strnlen(name, 32) < 32; }

void refill_route(HWND dialog, const route &r) {
    line_batch lines(GetDlgItem(dialog, r.list));
    for (bombing_waypoint *waypoint : dlist_values<bombing_waypoint>(head_of(r))) {
        // A null value still gets its line, so that lines and waypoints keep
        // the same positions.
        char name[32] = "";
        float height = 0;
        if (waypoint) {
            copy_field(name, waypoint->name);
            height = waypoint->height;
        }
        // Wide enough for a 31-character name and the widest height a float
        // can hold (44 characters with "%.3f"), so no line is ever cut.
        char line[96];
        std::snprintf(line, sizeof line, "%10s %.3f", name, static_cast<double>(height));
        lines.add(line);
    }
    lines.commit();
    SetDlgItemTextA(dialog, r.height, default_height_text);
}

// The host's marker list is held only while the list box is filled; the
// dialog then works from the list box's text.
void fill_markers(HWND dialog) {
    HWND list = GetDlgItem(dialog, IDC_BR_MARKERS);
    SendMessageA(list, LB_RESETCONTENT, 0, 0);
    held_list markers(host().host_marker_list);
    if (markers) {
        line_batch lines(list);
        for (const char *name : dlist_values<const char>(markers.get()))
            if (fits_field(name)) lines.add(name);
        lines.commit();
        SendMessageA(list, LB_SETCURSEL, 0, 0);
        if (!markers.release()) SendMessageA(list, LB_RESETCONTENT, 0, 0);
    }
    SendMessageA(list, LB_SETCURSEL, 0, 0);
}

void fill_aircraft_types(HWND dialog) {
    if (!edited->aircraft_types) return;
    HWND combo = GetDlgItem(dialog, IDC_BR_AIRCRAFT_TYPE);
    line_batch lines(combo);
    for (const char *name : dlist_values<const char>(edited->aircraft_types))
        if (fits_field(name)) lines.add(name);
    lines.commit();
    // The platform's prefix search, case-insensitive, from item 1 onward and
    // item 0 last: a stored type that begins another type's name may pick
    // that one.
    char stored[32];
    copy_field(stored, edited->aircraft_type);
    SendMessageA(combo, CB_SELECTSTRING, 0, reinterpret_cast<LPARAM>(stored));
}

void fill_aircraft_counts(HWND dialog) {
    HWND combo = GetDlgItem(dialog, IDC_BR_AIRCRAFT_COUNT);
    SendMessageA(combo, CB_RESETCONTENT, 0, 0);  // the template's "0" goes
    for (uint32_t count = 1; count <= max_aircraft; ++count) {
        char text[4];
        std::snprintf(text, sizeof text, "%d", static_cast<int>(count));
        SendMessageA(combo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text));
    }
    // A count of 0 or above 8 asks for no line: nothing is selected.
    SendMessageA(combo, CB_SETCURSEL, static_cast<WPARAM>(edited->aircraft_count - 1), 0);
}

// The selected marker's name; false when none is selected.
bool selected_marker(HWND dialog, char (&name)[32]) {
    HWND list = GetDlgItem(dialog, IDC_BR_MARKERS);
    LRESULT index = SendMessageA(list, LB_GETCURSEL, 0, 0);
    if (index < 0) return false;
    LRESULT length = SendMessageA(list, LB_GETTEXTLEN, static_cast<WPARAM>(index), 0);
    if (length < 0 || length >= static_cast<LRESULT>(sizeof name)) return false;
    SendMessageA(list, LB_GETTEXT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(name));
    return true;
}

// A new waypoint at the marker's default height, or null (no marker chosen,
// the marker already in this route, or no memory). Only the name, its
// terminator and the height are written; the rest is the host's.
bombing_waypoint *new_waypoint(HWND dialog, const route &r) {
    char name[32];
    if (!selected_marker(dialog, name)) return nullptr;
    if (entry_named<bombing_waypoint>(head_of(r), name)) return nullptr;  // silently: once per route
    auto *waypoint = static_cast<bombing_waypoint *>(host().host_alloc(sizeof(bombing_waypoint)));
    if (!waypoint) return nullptr;
    std::memcpy(waypoint->name, name, std::strlen(name) + 1);
    waypoint->height = new_waypoint_height;
    return waypoint;
}

void append_waypoint(HWND dialog, const route &r) {
    if (!head_of(r)) return;
    append_entry(head_of(r), new_waypoint(dialog, r));
    refill_route(dialog, r);
}

// Before the selected line's waypoint; without a selection, as append.
void insert_waypoint(HWND dialog, const route &r) {
    const int line = list_selection(dialog, r.list);
    if (line < 0) return append_waypoint(dialog, r);
    dlist_node *before = dlist_node_at(head_of(r), line);
    if (!before) return;
    insert_entry_before(before, new_waypoint(dialog, r));
    refill_route(dialog, r);
}

void delete_waypoint(HWND dialog, const route &r) {
    dlist_node *node = dlist_node_at(head_of(r), list_selection(dialog, r.list));
    if (!node) return;
    host_delete(reinterpret_cast<bombing_waypoint *>(node->value));
    dlist_remove_node(node);
    refill_route(dialog, r);
}

void set_waypoint_height(HWND dialog, const route &r) {
    float height = 0;
    if (!read_number_lenient(dialog, r.height, height)) {
        SetDlgItemTextA(dialog, r.height, default_height_text);
        return;
    }
    dlist_node *node = dlist_node_at(head_of(r), list_selection(dialog, r.list));
    if (!node) return;
    if (auto *waypoint = reinterpret_cast<bombing_waypoint *>(node->value)) waypoint->height = height;
    refill_route(dialog, r);
}

struct route_button {
    int id;
    const route &r;
    void (*act)(HWND dialog, const route &r);
};
const route_button route_buttons[] = {
    {IDC_BR_INGRESS_ADD, ingress, append_waypoint},         {IDC_BR_EGRESS_ADD, egress, append_waypoint},
    {IDC_BR_INGRESS_INSERT, ingress, insert_waypoint},      {IDC_BR_EGRESS_INSERT, egress, insert_waypoint},
    {IDC_BR_INGRESS_DELETE, ingress, delete_waypoint},      {IDC_BR_EGRESS_DELETE, egress, delete_waypoint},
    {IDC_BR_INGRESS_SET_HEIGHT, ingress, set_waypoint_height}, {IDC_BR_EGRESS_SET_HEIGHT, egress, set_waypoint_height},
};

void on_init(HWND dialog) {
    const bombing_run_record &run = *edited;
    show_field(dialog, IDC_BR_NAME, run.name);
    set_item_text_f(dialog, IDC_BR_TARGET_X, "%.3f", static_cast<double>(run.target_x));
    set_item_text_f(dialog, IDC_BR_TARGET_Z, "%.3f", static_cast<double>(run.target_z));
    set_item_text_f(dialog, IDC_BR_RELEASE_HEIGHT, "%.3f", static_cast<double>(run.release_height));
    set_item_text_f(dialog, IDC_BR_ATTACK_TIME, "%.3f", static_cast<double>(run.attack_time));
    set_item_text_f(dialog, IDC_BR_ATTACK_RADIUS, "%.3f", static_cast<double>(run.attack_radius));
    fill_markers(dialog);
    refill_route(dialog, ingress);
    refill_route(dialog, egress);
    fill_aircraft_types(dialog);
    fill_aircraft_counts(dialog);
    centre_dialog(dialog);
    ShowWindow(dialog, SW_SHOWNORMAL);
}

// Only clicks of the route buttons; the list and combo boxes' notifications
// are not acted on.
bool on_command(HWND dialog, int id, int code) {
    if (code != BN_CLICKED) return false;
    for (const route_button &button : route_buttons) {
        if (button.id != id) continue;
        button.act(dialog, button.r);
        return true;
    }
    return false;
}

// A field whose text is refused keeps its value; OK closes all the same.
dialog_end on_ok(HWND dialog) {
    bombing_run_record &run = *edited;
    get_item_text(dialog, IDC_BR_NAME, run.name);
    read_number_lenient(dialog, IDC_BR_TARGET_X, run.target_x);
    read_number_lenient(dialog, IDC_BR_TARGET_Z, run.target_z);
    read_number_lenient(dialog, IDC_BR_RELEASE_HEIGHT, run.release_height);
    read_number_lenient(dialog, IDC_BR_ATTACK_TIME, run.attack_time);
    read_number_lenient(dialog, IDC_BR_ATTACK_RADIUS, run.attack_radius);
    read_combo_selection(GetDlgItem(dialog, IDC_BR_AIRCRAFT_TYPE), run.aircraft_type);
    LRESULT count = SendDlgItemMessageA(dialog, IDC_BR_AIRCRAFT_COUNT, CB_GETCURSEL, 0, 0);
    if (count >= 0) run.aircraft_count = static_cast<uint32_t>(count) + 1;
    run.cancelled = 0;
    return END_CONFIRMED;
}

// Cancel and the close box: only the mark; route edits stay made.
void on_cancel(HWND) { edited->cancelled = 1; }

const dialog_class bombing_run_dialog = {on_init, on_command, on_ok, on_cancel, TRUE};
}  // namespace

int bombing_run_start() { return module.start(); }
int bombing_run_tidyup() { return module.tidyup(); }

int edit_bombing_run(bombing_run_record *record) {
    if (!editor_started) return 0;
    modal_session session(module);
    if (!session || !record) return 0;
    edited = record;
    return session.run(IDD_BOMBING_RUN, editor_main_window(), dialog_proc<bombing_run_dialog>);
}
