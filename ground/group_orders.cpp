// Group Orders (template 135): the two order lists of the group open in
// Group Composition, edited on the dialog's own copies; OK replaces the
// working copy's lists with them.
#include "ground/group_orders.h"

#include "editor/editor.h"
#include "ground/contingency.h"
#include "ground/group_record.h"
#include "ground/order_types.h"
#include "ground/orders_list.h"
#include "ground/sarge_order.h"
#include "resources/ground_ids.h"
#include "util/controls.h"
#include "util/dialogs.h"
#include "util/host_memory.h"
#include "util/modal.h"
#include "util/scope.h"

namespace {
module_flag module;
group_working_copy *group = nullptr;
dlist *orders = nullptr;         // sarge_order_record *, the dialog's own copies
dlist *contingencies = nullptr;  // contingency_order_record *

// The record can only hold so many; Add and Insert are disabled at the limit
// (and refuse if reached anyway), so the record's slots never overflow.
void show_capacity(HWND dialog) {
    enable_controls(dialog, {IDC_GO_ADD, IDC_GO_INSERT}, dlist_count(orders) < GROUP_MAX_ORDERS);
    enable_controls(dialog, {IDC_GO_C_ADD, IDC_GO_C_INSERT}, dlist_count(contingencies) < GROUP_MAX_CONTINGENCIES);
}

void fill_group_order_list(HWND dialog) {
    HWND list = GetDlgItem(dialog, IDC_GO_ORDERS);
    SendMessageA(list, LB_RESETCONTENT, 0, 0);
    for (sarge_order_record *order : dlist_values<sarge_order_record>(orders)) {
        int string_id = order_type_string_id(order->type);
        if (!string_id) continue;  // a type without a name gets no line, yet stays in the list
        char type_name[32];
        load_string(string_id, type_name, sizeof type_name);
        char line[UNIT_LINE_SIZE];
        format_pair_line(line, order->name, type_name);
        list_add_line(list, line, reinterpret_cast<LPARAM>(order));
    }
    show_capacity(dialog);
}

void fill_contingency_list(HWND dialog) {
    HWND list = GetDlgItem(dialog, IDC_GO_CONTINGENCIES);
    SendMessageA(list, LB_RESETCONTENT, 0, 0);
    for (contingency_order_record *order : dlist_values<contingency_order_record>(contingencies)) {
        char trigger_name[32] = "";
        if (order->trigger >= 0 && order->trigger < TRIGGER_NAME_ENTRIES && trigger_name_table[order->trigger])
            load_string(trigger_name_table[order->trigger], trigger_name, sizeof trigger_name);
        char line[UNIT_LINE_SIZE];
        format_pair_line(line, order->order.name, trigger_name);
        list_add_line(list, line, reinterpret_cast<LPARAM>(order));
    }
    show_capacity(dialog);
}

template <class T>
T *selected_record(HWND dialog, int list_id) {
    return list_selected<T>(GetDlgItem(dialog, list_id));
}

dlist_node *node_of(dlist *list, const void *record) {
    for (dlist_node *node : dlist_nodes(list))
        if (node->value == reinterpret_cast<uintptr_t>(record)) return node;
    return nullptr;
}

// Puts a confirmed new record before `before` (or at the end when there is
// none); given back again when no list node could be had.
template <class T>
void place_new(dlist *list, T *record, const T *before) {
    dlist_node *node = before ? node_of(list, before) : nullptr;
    if (!node) {
        append_entry(list, record);
        return;
    }
    dlist_node *previous = node->prev;
    dlist_insert_before(node, dlist_value(record));
    if (node->prev == previous) host_delete(record);
}

// Add and Insert: a new zero-filled order, typed and edited, then placed.
void add_order(HWND dialog, bool insert) {
    if (dlist_count(orders) >= GROUP_MAX_ORDERS) return;
    auto *order = host_new<sarge_order_record>();
    if (!order) return;
    if (!choose_order_type(dialog, order)) {
        host_delete(order);
        return;
    }
    place_new(orders, order, insert ? selected_record<sarge_order_record>(dialog, IDC_GO_ORDERS) : nullptr);
    fill_group_order_list(dialog);
}

void add_contingency(HWND dialog, bool insert) {
    if (dlist_count(contingencies) >= GROUP_MAX_CONTINGENCIES) return;
    auto *order = host_new<contingency_order_record>();
    if (!order) return;
    if (!edit_contingency_order(dialog, order)) {
        host_delete(order);
        return;
    }
    place_new(contingencies, order,
              insert ? selected_record<contingency_order_record>(dialog, IDC_GO_CONTINGENCIES) : nullptr);
    fill_contingency_list(dialog);
}

template <class T>
void remove_selected(HWND dialog, dlist *list, int list_id) {
    if (T *record = selected_record<T>(dialog, list_id)) {
        if (dlist_node *node = node_of(list, record)) {
            dlist_remove_node(node);
            host_delete(record);
        }
    }
}

void on_init(HWND dialog) {
    fill_group_order_list(dialog);
    fill_contingency_list(dialog);
    centre_dialog(dialog);
    ShowWindow(dialog, SW_SHOW);
}

bool on_command(HWND dialog, int id, int code) {
    if (code != BN_CLICKED) return false;
    switch (id) {
    case IDC_GO_ADD:
    case IDC_GO_INSERT:
        add_order(dialog, id == IDC_GO_INSERT);
        return true;
    case IDC_GO_REMOVE:
        remove_selected<sarge_order_record>(dialog, orders, IDC_GO_ORDERS);
        fill_group_order_list(dialog);
        return true;
    case IDC_GO_EDIT:
        if (sarge_order_record *order = selected_record<sarge_order_record>(dialog, IDC_GO_ORDERS)) {
            edit_sarge_order(dialog, order);
            fill_group_order_list(dialog);
        }
        return true;
    case IDC_GO_C_ADD:
    case IDC_GO_C_INSERT:
        add_contingency(dialog, id == IDC_GO_C_INSERT);
        return true;
    case IDC_GO_C_REMOVE:
        remove_selected<contingency_order_record>(dialog, contingencies, IDC_GO_CONTINGENCIES);
        fill_contingency_list(dialog);
        return true;
    case IDC_GO_C_EDIT:
        if (auto *order = selected_record<contingency_order_record>(dialog, IDC_GO_CONTINGENCIES)) {
            edit_contingency_order(dialog, order);
            fill_contingency_list(dialog);
        }
        return true;
    default:
        return false;
    }
}

// OK: the working copy's lists are replaced by copies of the dialog's lists,
// both copied whole before either is replaced.
dialog_end on_ok(HWND) {
    dlist *new_orders = copy_entries<sarge_order_record>(orders);
    dlist *new_contingencies = new_orders ? copy_entries<contingency_order_record>(contingencies) : nullptr;
    if (!new_contingencies) {
        destroy_entry_list<sarge_order_record>(new_orders);
        return KEEP_OPEN;
    }
    replace_entries<sarge_order_record>(group->orders, new_orders);
    replace_entries<contingency_order_record>(group->contingencies, new_contingencies);
    return END_CONFIRMED;
}

const dialog_class group_orders_dialog = {on_init, on_command, on_ok, nullptr, TRUE};

void free_dialog_lists() {
    destroy_entry_list<sarge_order_record>(orders);
    destroy_entry_list<contingency_order_record>(contingencies);
}
}  // namespace

int group_orders_start() { return module.start(); }
int group_orders_tidyup() { return module.tidyup(); }

int edit_group_orders(HWND owner, group_working_copy *working) {
    modal_session session(module);
    if (!session || !working) return 0;
    auto free_lists = on_scope_exit(free_dialog_lists);
    // The working copy's lists stay within the record's limits (it was loaded
    // from the record, and this dialog keeps them there). Copied whole or the
    // dialog does not open.
    orders = copy_entries<sarge_order_record>(working->orders);
    contingencies = orders ? copy_entries<contingency_order_record>(working->contingencies) : nullptr;
    if (!contingencies) return 0;
    group = working;
    return session.run(IDD_GROUP_ORDERS, owner, dialog_proc<group_orders_dialog>);
}
