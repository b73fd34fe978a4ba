// The Waypoint Orders list of Edit Waypoint with its four buttons, and the
// Select New Order Type dialog (template 146) that asks for a new order's
// kind. The list edits the orders of the waypoint Edit Waypoint is editing,
// always a new waypoint or a copy, so every change goes into it at once.
// Orders themselves are edited as the helicopter discipline has it: a new
// order from the host's create, an existing one on the host's copy; a
// confirmed copy takes the original's node and the original is destroyed; a
// cancelled new order or copy is destroyed.
#include "heli/waypoint_orders.h"

#include "editor/editor.h"
#include "heli_orders/heli_order.h"
#include "resources/heli_ids.h"
#include "resources/heli_order_ids.h"
#include "util/controls.h"
#include "util/dialogs.h"
#include "util/dlist.h"
#include "util/modal.h"

// --- Select New Order Type ----------------------------------------------------------
namespace {
module_flag chooser{1};  // always started: the dialog has no flag of its own
uint32_t *chosen_kind = nullptr;

// The kinds' labels in kind order, so that a line's index is its kind; the
// list is unsorted for that reason.
void chooser_init(HWND dialog) {
    HWND kinds = GetDlgItem(dialog, IDC_SOT_KINDS);
    SendMessageA(kinds, LB_RESETCONTENT, 0, 0);
    for (uint32_t kind = 0; kind < HELI_ORDER_KIND_COUNT; ++kind) list_add_string_id(kinds, heli_order_label(kind));
    centre_dialog(dialog);
    ShowWindow(dialog, SW_SHOWNORMAL);
}

// OK, or a double-click: the selected line's kind; no line chooses nothing.
dialog_end choose(HWND dialog) {
    LRESULT line = SendDlgItemMessageA(dialog, IDC_SOT_KINDS, LB_GETCURSEL, 0, 0);
    if (line < 0) return END_UNCONFIRMED;
    *chosen_kind = static_cast<uint32_t>(line);
    return END_CONFIRMED;
}

bool chooser_command(HWND dialog, int id, int code) {
    if (id != IDC_SOT_KINDS) return false;
    if (code == LBN_DBLCLK) EndDialog(dialog, choose(dialog));
    return true;
}

const dialog_class chooser_dialog = {chooser_init, chooser_command, choose, nullptr, TRUE};
}  // namespace

int select_order_type(HWND owner, uint32_t *kind) {
    modal_session session(chooser);
    if (!session || !kind) return 0;
    uint32_t chosen = 0;
    chosen_kind = &chosen;
    if (!session.run(IDD_SELECT_ORDER_TYPE, owner, dialog_proc<chooser_dialog>)) return 0;
    *kind = chosen;
    return 1;
}

// --- The Waypoint Orders list ------------------------------------------------------
void fill_waypoint_order_list(HWND dialog, const waypoint_record *waypoint) {
    HWND list = GetDlgItem(dialog, IDC_WP_ORDERS);
    SendMessageA(list, LB_RESETCONTENT, 0, 0);
    if (!waypoint) return;
    // An order of an unknown kind gets no line, so it can be neither edited
    // nor removed here; it stays in the list.
    for (heli_order_record *order : dlist_values<heli_order_record>(waypoint->orders)) {
        if (!order || order->kind >= HELI_ORDER_KIND_COUNT) continue;
        LRESULT line = list_add_string_id(list, heli_order_label(order->kind));
        if (line >= 0) SendMessageA(list, LB_SETITEMDATA, static_cast<WPARAM>(line), reinterpret_cast<LPARAM>(order));
    }
}

namespace {
// The selected line's order, found by the line's item data, never its place.
heli_order_record *selected_order(HWND dialog) {
    return list_selected<heli_order_record>(GetDlgItem(dialog, IDC_WP_ORDERS));
}

void destroy_order(heli_order_record *order) { host().host_order_destroy(&order); }

// Add (`before` is the list's head) and Insert: a kind, a new order of it,
// its dialog; a confirmed order goes in before `before`. Anything refused or
// cancelled on the way leaves the list as it was, with no order left over.
bool add_order_before(HWND dialog, dlist_node *before) {
    uint32_t kind = 0;
    heli_order_record *order = nullptr;
    if (!select_order_type(dialog, &kind) || !host().host_order_create(kind, &order)) return false;
    if (!edit_heli_order(dialog, order) || !dlist_insert_before(before, dlist_value(order))) {
        destroy_order(order);
        return false;
    }
    return true;
}

// Insert with no line selected, or with a line no node holds, adds at the end.
bool insert_order(HWND dialog, dlist *orders) {
    heli_order_record *selected = selected_order(dialog);
    dlist_node *before = selected ? dlist_find(orders, dlist_value(selected)) : nullptr;
    return add_order_before(dialog, before ? before : orders);
}

// Edit works on the host's copy: confirmed, the copy takes the order's node
// and the order is destroyed; otherwise the copy is destroyed.
bool edit_order(HWND dialog, dlist *orders) {
    heli_order_record *order = selected_order(dialog);
    heli_order_record *copy = nullptr;
    if (!order || !host().host_order_copy(order, &copy)) return false;
    if (!copy || copy->kind >= HELI_ORDER_KIND_COUNT || !edit_heli_order(dialog, copy)) {
        destroy_order(copy);
        return false;
    }
    dlist_node *node = dlist_find(orders, dlist_value(order));
    if (!node) {
        destroy_order(copy);
        return false;
    }
    node->value = dlist_value(copy);
    destroy_order(order);
    return true;
}

// Remove asks nothing; the order is destroyed at once.
bool remove_order(HWND dialog, dlist *orders) {
    heli_order_record *order = selected_order(dialog);
    dlist_node *node = order ? dlist_find(orders, dlist_value(order)) : nullptr;
    if (!node) return false;
    dlist_remove_node(node);
    destroy_order(order);
    return true;
}
}  // namespace

bool waypoint_order_command(HWND dialog, waypoint_record *waypoint, int id, int code, void (*reload)(HWND dialog)) {
    const bool click = code == BN_CLICKED;
    const bool handled = (click && (id == IDC_WP_ORDER_ADD || id == IDC_WP_ORDER_INSERT || id == IDC_WP_ORDER_EDIT ||
                                    id == IDC_WP_ORDER_REMOVE)) ||
                         (id == IDC_WP_ORDERS && code == LBN_DBLCLK);
    if (!handled || !waypoint || !waypoint->orders) return handled;
    dlist *orders = waypoint->orders;
    bool changed = false;
    switch (id) {
    case IDC_WP_ORDER_ADD: changed = add_order_before(dialog, orders); break;
    case IDC_WP_ORDER_INSERT: changed = insert_order(dialog, orders); break;
    case IDC_WP_ORDER_EDIT:
    case IDC_WP_ORDERS: changed = edit_order(dialog, orders); break;
    case IDC_WP_ORDER_REMOVE: changed = remove_order(dialog, orders); break;
    }
    if (changed && reload) reload(dialog);
    return true;
}
