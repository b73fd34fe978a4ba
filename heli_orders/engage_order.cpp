// Edit Engage Order (template 148): which targets a helicopter group engages
// and how far out. Both fields are stored on OK only.
#include "heli_orders/heli_order.h"
#include "heli_orders/order_dialogs.h"
#include "resources/heli_order_ids.h"
#include "resources/string_ids.h"
#include "util/dialogs.h"
#include "util/modal.h"

namespace {
module_flag module{1};  // always started: the order dialogs have no flag of their own
engage_order *edited = nullptr;

// The combo's lines in target_type order.
const int target_labels[] = {IDS_TARGETS_ALL_ENEMIES, IDS_TARGETS_PRIMARY, IDS_TARGETS_SECONDARY,
                             IDS_TARGETS_SEAD, IDS_TARGETS_AFV};

void on_init(HWND dialog) {
    HWND targets = GetDlgItem(dialog, IDC_ENGAGE_TARGETS);
    SendMessageA(targets, CB_RESETCONTENT, 0, 0);
    for (int label : target_labels) combo_add_string_id(targets, label);
    // A type without a line selects nothing.
    SendMessageA(targets, CB_SETCURSEL, edited->target_type, 0);
    show_number(dialog, IDC_ENGAGE_RANGE, edited->range);
    centre_dialog(dialog);
    ShowWindow(dialog, SW_SHOWNORMAL);
}

// No message in any case: an unselected type or a refused range keeps its value.
dialog_end on_ok(HWND dialog) {
    LRESULT selected = SendDlgItemMessageA(dialog, IDC_ENGAGE_TARGETS, CB_GETCURSEL, 0, 0);
    if (selected >= 0) edited->target_type = static_cast<uint32_t>(selected);
    read_number_strict(dialog, IDC_ENGAGE_RANGE, edited->range);
    return END_CONFIRMED;
}

const dialog_class engage_dialog = {on_init, nullptr, on_ok, nullptr, TRUE};
}  // namespace

int edit_engage_order(HWND owner, engage_order *order) {
    modal_session session(module);
    if (!session || !order) return 0;
    edited = order;
    return session.run(IDD_ENGAGE_ORDER, owner, dialog_proc<engage_dialog>);
}
