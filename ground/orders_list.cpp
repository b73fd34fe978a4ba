// Orders (template 129): the type of a new sarge order, after which the
// Sarge Order dialog opens on it.
#include "ground/orders_list.h"

#include "ground/order_types.h"
#include "ground/sarge_order.h"
#include "resources/ground_ids.h"
#include "util/controls.h"
#include "util/dialogs.h"
#include "util/modal.h"

namespace {
module_flag module;
sarge_order_record *typed = nullptr;

void on_init(HWND dialog) {
    HWND list = GetDlgItem(dialog, IDC_OR_TYPES);
    for (int row = 0; row < ORDER_TYPE_ROWS; ++row) {
        char name[32];
        load_string(order_type_table[row].string_id, name, sizeof name);
        list_add_line(list, name, row);
    }
    SendMessageA(list, LB_SETCURSEL, 0, 0);
    centre_dialog(dialog);
    ShowWindow(dialog, SW_SHOW);
}

// Confirmed only when both the type and the order itself were.
dialog_end on_ok(HWND dialog) {
    LPARAM row = 0;
    if (!list_selected_data(GetDlgItem(dialog, IDC_OR_TYPES), row) || row < 0 || row >= ORDER_TYPE_ROWS)
        return END_UNCONFIRMED;
    typed->type = order_type_table[row].type;
    return edit_sarge_order(dialog, typed) ? END_CONFIRMED : END_UNCONFIRMED;
}

void on_cancel(HWND) { typed->type = -1; }

const dialog_class orders_dialog = {on_init, nullptr, on_ok, on_cancel, TRUE};
}  // namespace

int orders_list_start() { return module.start(); }
int orders_list_tidyup() { return module.tidyup(); }

int choose_order_type(HWND owner, sarge_order_record *order) {
    modal_session session(module);
    if (!session || !order) return 0;
    typed = order;
    return session.run(IDD_ORDERS, owner, dialog_proc<orders_dialog>);
}
