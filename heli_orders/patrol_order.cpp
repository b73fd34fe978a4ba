// Edit Patrol Order (template 151): the route a helicopter group patrols,
// made of patrol points that the host makes from waypoint marker objects,
// and the number of patrol cycles. Adding and deleting points changes the
// order's list at once and Cancel does not undo it, so callers give this
// dialog a fresh order or a copy; the cycles are stored on OK.
#include <cstdio>

#include "editor/editor.h"
#include "heli_orders/order_dialogs.h"
#include "resources/heli_order_ids.h"
#include "resources/string_ids.h"
#include "util/controls.h"
#include "util/line_batch.h"
#include "util/dialogs.h"
#include "util/host_list.h"
#include "util/modal.h"
#include "util/scope.h"
#include "util/text.h"

namespace {
module_flag module{1};  // always started: the order dialogs have no flag of their own
patrol_order *edited = nullptr;
// The dialog's own marker list, held while it is open (Edit Waypoint under it
// holds another).
const dlist *markers = nullptr;

constexpr int max_cycles = 19;

// Rebuilds all three lists. The cycles choice goes back to the stored
// number, so a choice not yet confirmed by OK is reset by every list change.
void refresh(HWND dialog) {
    HWND cycles = GetDlgItem(dialog, IDC_PATROL_CYCLES);
    SendMessageA(cycles, CB_RESETCONTENT, 0, 0);
    combo_add_string_id(cycles, IDS_CYCLES_UNLIMITED);
    for (int n = 1; n <= max_cycles; ++n) {
        char text[8];
        std::snprintf(text, sizeof text, "%d", n);
        SendMessageA(cycles, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text));
    }
    SendMessageA(cycles, CB_SETCURSEL, edited->cycles, 0);

    line_batch marker_lines(GetDlgItem(dialog, IDC_PATROL_MARKERS));
    for (dlist_node *node : dlist_nodes(markers)) {
        const char *name = reinterpret_cast<const char *>(node->value);
        if (!name) continue;
        char line[32];
        copy_text(line, name);
        marker_lines.add(line, static_cast<LPARAM>(node->value));
    }
    marker_lines.commit();

    line_batch point_lines(GetDlgItem(dialog, IDC_PATROL_POINTS));
    for (patrol_point *point : dlist_values<patrol_point>(edited->points)) {
        if (!point) continue;
        char line[32];
        copy_field(line, point->marker_name);
        point_lines.add(line, reinterpret_cast<LPARAM>(point));
    }
    point_lines.commit();
    centre_dialog(dialog);
    ShowWindow(dialog, SW_SHOWNORMAL);
}

// A new point from the selected marker; null when no marker is selected or
// the host makes none.
patrol_point *point_from_selected_marker(HWND dialog) {
    const char *name = list_selected<const char>(GetDlgItem(dialog, IDC_PATROL_MARKERS));
    patrol_point *point = nullptr;
    if (!name || !host().host_patrol_point_create(name, &point)) return nullptr;
    return point;
}

// The node of the selected point line, counted by position among the lines
// (which skip null values) from the list's first node; null without a selection.
dlist_node *node_of_selected_line(HWND dialog) {
    LRESULT line = SendDlgItemMessageA(dialog, IDC_PATROL_POINTS, LB_GETCURSEL, 0, 0);
    if (line < 0) return nullptr;
    for (dlist_node *node : dlist_nodes(edited->points))
        if (node->value && line-- == 0) return node;
    return nullptr;
}

// Add appends; Insert puts the point before the selected one, or appends
// when none is selected. A point that cannot be placed is destroyed again.
void add_point(HWND dialog, bool insert) {
    patrol_point *point = point_from_selected_marker(dialog);
    if (!point) return;
    dlist_node *before = insert ? node_of_selected_line(dialog) : nullptr;
    const bool placed = before ? dlist_insert_before(before, dlist_value(point)) != nullptr
                               : dlist_push_back(edited->points, dlist_value(point)) != nullptr;
    if (!placed) {
        host().host_patrol_point_destroy(&point);
        return;
    }
    refresh(dialog);
}

void delete_point(HWND dialog) {
    patrol_point *point = list_selected<patrol_point>(GetDlgItem(dialog, IDC_PATROL_POINTS));
    dlist_node *node = point ? dlist_find(edited->points, dlist_value(point)) : nullptr;
    if (!node) return;
    dlist_remove_node(node);
    host().host_patrol_point_destroy(&point);
    refresh(dialog);
}

void on_init(HWND dialog) { refresh(dialog); }

// A double-click on a marker adds it; on a point, deletes it.
bool on_command(HWND dialog, int id, int code) {
    if (id == IDC_PATROL_MARKERS || id == IDC_PATROL_POINTS) {
        if (code == LBN_DBLCLK && id == IDC_PATROL_MARKERS) add_point(dialog, false);
        if (code == LBN_DBLCLK && id == IDC_PATROL_POINTS) delete_point(dialog);
        return true;
    }
    if (code != BN_CLICKED) return false;
    switch (id) {
    case IDC_PATROL_ADD: add_point(dialog, false); return true;
    case IDC_PATROL_INSERT: add_point(dialog, true); return true;
    case IDC_PATROL_DELETE: delete_point(dialog); return true;
    default: return false;
    }
}

// No choice (a stored number above 19) keeps the stored number.
dialog_end on_ok(HWND dialog) {
    LRESULT selected = SendDlgItemMessageA(dialog, IDC_PATROL_CYCLES, CB_GETCURSEL, 0, 0);
    if (selected >= 0) edited->cycles = static_cast<uint32_t>(selected);
    return END_CONFIRMED;
}

const dialog_class patrol_dialog = {on_init, on_command, on_ok, nullptr, TRUE};
}  // namespace

int edit_patrol_order(HWND owner, patrol_order *order) {
    modal_session session(module);
    if (!session || !order || !order->points) return 0;
    held_list marker_list(host().host_marker_list);  // released once, however the dialog ends
    if (!marker_list) return 0;
    auto forget = on_scope_exit([] { markers = nullptr; });
    edited = order;
    markers = marker_list.get();
    return session.run(IDD_PATROL_ORDER, owner, dialog_proc<patrol_dialog>);
}
