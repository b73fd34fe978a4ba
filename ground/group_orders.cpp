#include "ground/group_orders.h"

#include <cstring>

#include "editor/editor.h"
#include "ground/contingency.h"
#include "ground/group_record.h"
#include "ground/order_types.h"
#include "ground/orders_list.h"
#include "ground/sarge_order.h"
#include "util/dialogs.h"
#include "util/module_flag.h"

namespace {
enum {
    IDD_GROUP_ORDERS = 135,
    IDC_ORDERS = 1039,
    IDC_ORDER_ADD = 1049,
    IDC_ORDER_INSERT = 1047,
    IDC_ORDER_REMOVE = 1048,
    IDC_ORDER_EDIT = 1050,
    IDC_CONTINGENCIES = 1079,
    IDC_CONTINGENCY_ADD = 1053,
    IDC_CONTINGENCY_INSERT = 1051,
    IDC_CONTINGENCY_REMOVE = 1052,
    IDC_CONTINGENCY_EDIT = 1054,
};

module_flag module;
group_working_copy *group = nullptr;
dlist *orders = nullptr;         // sarge_order_record *, the dialog's own copies
dlist *contingencies = nullptr;  // contingency_order_record *
bool open = false;

void add_line(HWND list, const char *line, const void *record) {
    LRESULT index = SendMessageA(list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(line));
    if (index >= 0) SendMessageA(list, LB_SETITEMDATA, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(record));
}

// The record can only hold so many; Add and Insert are disabled at the limit
// (and refuse if reached anyway), so the record's slots never overflow.
void show_capacity(HWND dialog) {
    BOOL more_orders = dlist_count(orders) < GROUP_MAX_ORDERS;
    EnableWindow(GetDlgItem(dialog, IDC_ORDER_ADD), more_orders);
    EnableWindow(GetDlgItem(dialog, IDC_ORDER_INSERT), more_orders);
    BOOL more_contingencies = dlist_count(contingencies) < GROUP_MAX_CONTINGENCIES;
    EnableWindow(GetDlgItem(dialog, IDC_CONTINGENCY_ADD), more_contingencies);
    EnableWindow(GetDlgItem(dialog, IDC_CONTINGENCY_INSERT), more_contingencies);
}

void fill_group_order_list(HWND dialog) {
    HWND list = GetDlgItem(dialog, IDC_ORDERS);
    SendMessageA(list, LB_RESETCONTENT, 0, 0);
    for (sarge_order_record *order : dlist_values<sarge_order_record>(orders)) {
        int string_id = order_type_string_id(order->type);
        if (!string_id) continue;  // a type without a name gets no line, yet stays in the list
        char type_name[32];
        load_string(string_id, type_name, sizeof type_name);
        char line[UNIT_LINE_SIZE];
        format_pair_line(line, order->name, type_name);
        add_line(list, line, order);
    }
    show_capacity(dialog);
}

void fill_contingency_list(HWND dialog) {
    HWND list = GetDlgItem(dialog, IDC_CONTINGENCIES);
    SendMessageA(list, LB_RESETCONTENT, 0, 0);
    for (contingency_order_record *order : dlist_values<contingency_order_record>(contingencies)) {
        char trigger_name[32] = "";
        if (order->trigger >= 0 && order->trigger < TRIGGER_NAME_ENTRIES && trigger_name_table[order->trigger])
            load_string(trigger_name_table[order->trigger], trigger_name, sizeof trigger_name);
        char line[UNIT_LINE_SIZE];
        format_pair_line(line, order->order.name, trigger_name);
        add_line(list, line, order);
    }
    show_capacity(dialog);
}

// The item data of the list's current selection, or null.
template <class T>
T *selected_record(HWND dialog, int list_id) {
    LRESULT index = SendDlgItemMessageA(dialog, list_id, LB_GETCURSEL, 0, 0);
    if (index == LB_ERR) return nullptr;
    LRESULT data = SendDlgItemMessageA(dialog, list_id, LB_GETITEMDATA, static_cast<WPARAM>(index), 0);
    return data == LB_ERR ? nullptr : reinterpret_cast<T *>(data);
}

dlist_node *node_of(dlist *list, const void *record) {
    for (dlist_node *node : dlist_nodes(list))
        if (node->value == reinterpret_cast<uintptr_t>(record)) return node;
    return nullptr;
}

// Puts a confirmed new record before `before` (or at the end when there is
// none); released again when no list node could be had.
template <class T>
void place_new(dlist *list, T *record, const T *before) {
    dlist_node *node = before ? node_of(list, before) : nullptr;
    uint32_t count = dlist_count(list);
    if (node)
        dlist_insert_before(node, dlist_value(record));
    else
        dlist_push_back(list, dlist_value(record));
    if (dlist_count(list) == count) host().host_free(record, sizeof(T));
}

sarge_order_record *new_order() {
    auto *order = static_cast<sarge_order_record *>(host().host_alloc(sizeof(sarge_order_record)));
    if (order) std::memset(order, 0, sizeof *order);
    return order;
}

contingency_order_record *new_contingency() {
    auto *order = static_cast<contingency_order_record *>(host().host_alloc(sizeof(contingency_order_record)));
    if (order) std::memset(order, 0, sizeof *order);
    return order;
}

void add_order(HWND dialog, bool insert) {
    if (dlist_count(orders) >= GROUP_MAX_ORDERS) return;
    sarge_order_record *order = new_order();
    if (!order) return;
    if (!choose_order_type(dialog, order)) {
        host().host_free(order, sizeof *order);
        return;
    }
    place_new(orders, order, insert ? selected_record<sarge_order_record>(dialog, IDC_ORDERS) : nullptr);
    fill_group_order_list(dialog);
}

void add_contingency(HWND dialog, bool insert) {
    if (dlist_count(contingencies) >= GROUP_MAX_CONTINGENCIES) return;
    contingency_order_record *order = new_contingency();
    if (!order) return;
    if (!edit_contingency_order(dialog, order)) {
        host().host_free(order, sizeof *order);
        return;
    }
    place_new(contingencies, order,
              insert ? selected_record<contingency_order_record>(dialog, IDC_CONTINGENCIES) : nullptr);
    fill_contingency_list(dialog);
}

template <class T>
void remove_selected(HWND dialog, dlist *list, int list_id) {
    if (T *record = selected_record<T>(dialog, list_id)) {
        if (dlist_node *node = node_of(list, record)) {
            dlist_remove_node(node);
            host().host_free(record, sizeof(T));
        }
    }
}

// OK: the working copy's lists are replaced by copies of the dialog's lists.
void write_back() {
    free_entries<sarge_order_record>(group->orders);
    free_entries<contingency_order_record>(group->contingencies);
    for (sarge_order_record *order : dlist_values<sarge_order_record>(orders))
        append_copy(group->orders, host_copy(*order));
    for (contingency_order_record *order : dlist_values<contingency_order_record>(contingencies))
        append_copy(group->contingencies, host_copy(*order));
}

void free_dialog_lists() {
    destroy_entry_list<sarge_order_record>(orders);
    destroy_entry_list<contingency_order_record>(contingencies);
}

void on_command(HWND dialog, int id) {
    switch (id) {
    case IDC_ORDER_ADD:
        add_order(dialog, false);
        break;
    case IDC_ORDER_INSERT:
        add_order(dialog, true);
        break;
    case IDC_ORDER_REMOVE:
        remove_selected<sarge_order_record>(dialog, orders, IDC_ORDERS);
        fill_group_order_list(dialog);
        break;
    case IDC_ORDER_EDIT:
        if (sarge_order_record *order = selected_record<sarge_order_record>(dialog, IDC_ORDERS)) {
            edit_sarge_order(dialog, order);
            fill_group_order_list(dialog);
        }
        break;
    case IDC_CONTINGENCY_ADD:
        add_contingency(dialog, false);
        break;
    case IDC_CONTINGENCY_INSERT:
        add_contingency(dialog, true);
        break;
    case IDC_CONTINGENCY_REMOVE:
        remove_selected<contingency_order_record>(dialog, contingencies, IDC_CONTINGENCIES);
        fill_contingency_list(dialog);
        break;
    case IDC_CONTINGENCY_EDIT:
        if (contingency_order_record *order = selected_record<contingency_order_record>(dialog, IDC_CONTINGENCIES)) {
            edit_contingency_order(dialog, order);
            fill_contingency_list(dialog);
        }
        break;
    case IDOK:
        write_back();
        free_dialog_lists();
        EndDialog(dialog, 1);
        break;
    case IDCANCEL:
        free_dialog_lists();
        EndDialog(dialog, 0);
        break;
    default:
        break;
    }
}

INT_PTR CALLBACK group_orders_proc(HWND dialog, UINT message, WPARAM wparam, LPARAM) {
    switch (message) {
    case WM_INITDIALOG:
        fill_group_order_list(dialog);
        fill_contingency_list(dialog);
        centre_dialog(dialog);
        ShowWindow(dialog, SW_SHOW);
        return TRUE;
    case WM_COMMAND:
        if (HIWORD(wparam) == BN_CLICKED) on_command(dialog, LOWORD(wparam));
        return TRUE;
    case WM_CLOSE:
        free_dialog_lists();
        EndDialog(dialog, 0);
        return TRUE;
    default:
        return FALSE;
    }
}
}  // namespace

int group_orders_start() { return module.start(); }
int group_orders_tidyup() { return module.tidyup(); }

int edit_group_orders(HWND owner, group_working_copy *working) {
    if (!module.started || !working || open) return 0;
    group = working;
    orders = dlist_create();
    contingencies = dlist_create();
    if (!orders || !contingencies) {
        free_dialog_lists();
        return 0;
    }
    // More than the record holds is never copied, so the limits hold from the start.
    int count = 0;
    for (sarge_order_record *order : dlist_values<sarge_order_record>(group->orders)) {
        if (count++ == GROUP_MAX_ORDERS) break;
        append_copy(orders, host_copy(*order));
    }
    count = 0;
    for (contingency_order_record *order : dlist_values<contingency_order_record>(group->contingencies)) {
        if (count++ == GROUP_MAX_CONTINGENCIES) break;
        append_copy(contingencies, host_copy(*order));
    }
    open = true;
    INT_PTR result =
        DialogBoxParamA(editor_instance(), MAKEINTRESOURCEA(IDD_GROUP_ORDERS), owner, group_orders_proc, 0);
    free_dialog_lists();  // already done on every way out of the dialog; covers one that never ran
    open = false;
    group = nullptr;
    return result == 1 ? 1 : 0;
}
