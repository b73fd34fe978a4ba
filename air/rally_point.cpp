// Edit Rally Point Details (template 140). ARSP additions, deletions and
// updates change the host's list at once and are not undone by Cancel; the
// name and position are written on OK only; `cancelled` tells the host how
// the dialog ended.
//
// The ARSP list's lines are found again by their position: line i is the
// list's i-th location.
#include "air/rally_point.h"

#include <cstdio>

#include "editor/editor.h"
#include "resources/air_ids.h"
#include "util/controls.h"
#include "util/line_batch.h"
#include "util/dialogs.h"
#include "util/host_memory.h"
#include "util/modal.h"

namespace {
module_flag module;
rally_point_record *edited = nullptr;

// How far along x each new location lands per location in the list.
constexpr float arsp_spacing = 2.0f;

// A sum rounded to single precision, whatever precision the arithmetic ran in.
float single(float value) {
    volatile float stored = value;
    return stored;
}

arsp_location *selected_location(HWND dialog) {
    dlist_node *node = dlist_node_at(edited->arsp_locations, list_selection(dialog, IDC_RP_ARSP));
    return node ? reinterpret_cast<arsp_location *>(node->value) : nullptr;
}

void refill_locations(HWND dialog) {
    line_batch lines(GetDlgItem(dialog, IDC_RP_ARSP));
    for (arsp_location *location : dlist_values<arsp_location>(edited->arsp_locations)) {
        // A null value still gets its line, so that lines and locations keep
        // the same positions.
        // Wide enough for two of the widest numbers a float can hold (42
        // characters each with "%6.1f"), so no line is ever cut.
        char line[96] = "";
        if (location)
            std::snprintf(line, sizeof line, "%6.1f %6.1f", static_cast<double>(location->x),
                          static_cast<double>(location->z));
        lines.add(line);
    }
}

// The selected location into the two edits; without one they keep their text.
void load_selection(HWND dialog) {
    const arsp_location *location = selected_location(dialog);
    if (!location) return;
    set_item_text_f(dialog, IDC_RP_ARSP_X, "%6.1f", static_cast<double>(location->x));
    set_item_text_f(dialog, IDC_RP_ARSP_Z, "%6.1f", static_cast<double>(location->z));
}

// A new location at the tail, from the stored position (not the edits):
// with n locations in the list, the new one included, 2 m is added to its x
// n times, one single-precision sum at a time.
void add_location(HWND dialog) {
    dlist *locations = edited->arsp_locations;
    if (!locations) return;
    auto *location = static_cast<arsp_location *>(host().host_alloc(sizeof(arsp_location)));
    if (!location) return;
    *location = {edited->x, edited->y, edited->z};
    if (!append_entry(locations, location)) return;
    const uint32_t count = dlist_count(locations);
    for (uint32_t i = 0; i < count; ++i) location->x = single(location->x + arsp_spacing);
    refill_locations(dialog);
    SendDlgItemMessageA(dialog, IDC_RP_ARSP, LB_SETCURSEL, count - 1, 0);
    load_selection(dialog);
}

// The x and z edits keep their text.
void delete_location(HWND dialog) {
    dlist_node *node = dlist_node_at(edited->arsp_locations, list_selection(dialog, IDC_RP_ARSP));
    if (!node) return;
    host_delete(reinterpret_cast<arsp_location *>(node->value));
    dlist_remove_node(node);
    refill_locations(dialog);
    SendDlgItemMessageA(dialog, IDC_RP_ARSP, LB_SETCURSEL, 0, 0);
}

// Both edits must be numbers. The list is refilled with or without a
// selection, and is left without one.
void update_location(HWND dialog) {
    float x = 0, z = 0;
    if (!read_number_lenient(dialog, IDC_RP_ARSP_X, x) || !read_number_lenient(dialog, IDC_RP_ARSP_Z, z)) return;
    if (arsp_location *location = selected_location(dialog)) {
        location->x = x;
        location->z = z;
    }
    refill_locations(dialog);
}

void on_init(HWND dialog) {
    const rally_point_record &point = *edited;
    show_field(dialog, IDC_RP_NAME, point.name);
    set_item_text_f(dialog, IDC_RP_X, "%.3f", static_cast<double>(point.x));
    set_item_text_f(dialog, IDC_RP_Z, "%.3f", static_cast<double>(point.z));
    refill_locations(dialog);
    SendDlgItemMessageA(dialog, IDC_RP_ARSP, LB_SETCURSEL, 0, 0);
    load_selection(dialog);
    centre_dialog(dialog);
    ShowWindow(dialog, SW_SHOWNORMAL);
}

bool on_command(HWND dialog, int id, int code) {
    // The ARSP list: every notification it sends (selection, double-click,
    // focus) loads the selection.
    if (id == IDC_RP_ARSP) {
        load_selection(dialog);
        return true;
    }
    if (code != BN_CLICKED) return false;
    switch (id) {
    case IDC_RP_ADD:
        add_location(dialog);
        return true;
    case IDC_RP_DELETE:
        delete_location(dialog);
        return true;
    case IDC_RP_UPDATE:
        update_location(dialog);
        return true;
    default:
        return false;
    }
}

// A coordinate whose text is refused keeps its value; OK closes all the same.
dialog_end on_ok(HWND dialog) {
    rally_point_record &point = *edited;
    get_item_text(dialog, IDC_RP_NAME, point.name);
    read_number_lenient(dialog, IDC_RP_X, point.x);
    read_number_lenient(dialog, IDC_RP_Z, point.z);
    point.cancelled = 0;
    return END_CONFIRMED;
}

// Cancel and the close box: only the mark; ARSP edits stay made.
void on_cancel(HWND) { edited->cancelled = 1; }

const dialog_class rally_point_dialog = {on_init, on_command, on_ok, on_cancel, TRUE};
}  // namespace

int rally_point_start() { return module.start(); }
int rally_point_tidyup() { return module.tidyup(); }

int edit_rally_point(rally_point_record *record) {
    if (!editor_started) return 0;
    modal_session session(module);
    if (!session || !record) return 0;
    edited = record;
    return session.run(IDD_RALLY_POINT, editor_main_window(), dialog_proc<rally_point_dialog>);
}
