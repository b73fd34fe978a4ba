#include "ground/orders_list.h"

#include "editor/editor.h"
#include "ground/order_types.h"
#include "ground/sarge_order.h"
#include "util/dialogs.h"
#include "util/module_flag.h"

namespace {
enum { IDD_ORDERS = 129, IDC_ORDER_TYPES = 1054 };

module_flag module;
sarge_order_record *typed = nullptr;

void on_init(HWND dialog) {
    HWND list = GetDlgItem(dialog, IDC_ORDER_TYPES);
    for (int row = 0; row < ORDER_TYPE_ROWS; ++row) {
        char name[32];
        load_string(order_type_table[row].string_id, name, sizeof name);
        LRESULT index = SendMessageA(list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(name));
        if (index >= 0) SendMessageA(list, LB_SETITEMDATA, static_cast<WPARAM>(index), row);
    }
    SendMessageA(list, LB_SETCURSEL, 0, 0);
    centre_dialog(dialog);
    ShowWindow(dialog, SW_SHOW);
}

void on_ok(HWND dialog) {
    HWND list = GetDlgItem(dialog, IDC_ORDER_TYPES);
    int confirmed = 0;
    LRESULT index = SendMessageA(list, LB_GETCURSEL, 0, 0);
    if (index != LB_ERR) {
        LRESULT row = SendMessageA(list, LB_GETITEMDATA, static_cast<WPARAM>(index), 0);
        if (row >= 0 && row < ORDER_TYPE_ROWS) {
            typed->type = order_type_table[row].type;
            confirmed = edit_sarge_order(dialog, typed) ? 1 : 0;
        }
    }
    EndDialog(dialog, confirmed);
}

void on_cancel(HWND dialog) {
    typed->type = -1;
    EndDialog(dialog, 0);
}

INT_PTR CALLBACK orders_proc(HWND dialog, UINT message, WPARAM wparam, LPARAM) {
    switch (message) {
    case WM_INITDIALOG:
        on_init(dialog);
        return TRUE;
    case WM_COMMAND:
        if (HIWORD(wparam) != BN_CLICKED) return TRUE;
        if (LOWORD(wparam) == IDOK) on_ok(dialog);
        if (LOWORD(wparam) == IDCANCEL) on_cancel(dialog);
        return TRUE;
    case WM_CLOSE:
        on_cancel(dialog);
        return TRUE;
    default:
        return FALSE;
    }
}
}  // namespace

int orders_list_start() { return module.start(); }
int orders_list_tidyup() { return module.tidyup(); }

int choose_order_type(HWND owner, sarge_order_record *order) {
    if (!module.started || !order) return 0;
    typed = order;
    INT_PTR result = DialogBoxParamA(editor_instance(), MAKEINTRESOURCEA(IDD_ORDERS), owner, orders_proc, 0);
    typed = nullptr;
    return result == 1 ? 1 : 0;
}
