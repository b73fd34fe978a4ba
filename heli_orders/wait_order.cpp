// Edit Wait Order (template 152): what a helicopter group waits for, a time
// (modes 0 and 1) or an object, sarge or heli group within a range (modes 2
// to 4). Everything is stored on OK; the fields of the other kind of mode
// keep their values.
#include <cstdio>
#include <cstring>

#include "heli_orders/heli_order.h"
#include "heli_orders/order_dialogs.h"
#include "resources/heli_order_ids.h"
#include "resources/string_ids.h"
#include "util/controls.h"
#include "util/dialogs.h"
#include "util/modal.h"
#include "util/text.h"

namespace {
module_flag module{1};  // always started: the order dialogs have no flag of their own
wait_order *edited = nullptr;

// The name a time mode stores, and which no object mode accepts.
const char no_object[] = "NO_OBJECT";

// The combo's lines in wait_mode order (mode 0 is string 75, mode 1 string 74).
const int mode_labels[] = {IDS_WAIT_UNTIL_TIME, IDS_WAIT_FIXED_TIME, IDS_WAIT_FOR_OBJECT, IDS_WAIT_FOR_SARGE,
                           IDS_WAIT_FOR_HELI_GROUP};

bool is_object_mode(uint32_t mode) {
    return mode == WAIT_FOR_OBJECT || mode == WAIT_FOR_SARGE || mode == WAIT_FOR_HELI_GROUP;
}

// The fields of the selected mode are enabled, the others disabled; with no
// mode selected (a stored mode without a line) nothing changes.
void enable_by_mode(HWND dialog) {
    LRESULT selected = SendDlgItemMessageA(dialog, IDC_WAIT_MODE, CB_GETCURSEL, 0, 0);
    if (selected < 0) return;
    const bool object = is_object_mode(static_cast<uint32_t>(selected));
    enable_control(dialog, IDC_WAIT_TIME, !object);
    enable_controls(dialog, {IDC_WAIT_NAME, IDC_WAIT_RANGE}, object);
}

void on_init(HWND dialog) {
    HWND modes = GetDlgItem(dialog, IDC_WAIT_MODE);
    SendMessageA(modes, CB_RESETCONTENT, 0, 0);
    for (int label : mode_labels) combo_add_string_id(modes, label);
    SendMessageA(modes, CB_SETCURSEL, edited->mode, 0);
    show_number(dialog, IDC_WAIT_TIME, edited->time);
    show_field(dialog, IDC_WAIT_NAME, edited->name);
    show_number(dialog, IDC_WAIT_RANGE, edited->range);
    enable_by_mode(dialog);
    centre_dialog(dialog);
    ShowWindow(dialog, SW_SHOWNORMAL);
}

// The mode combo acts on every notification it sends.
bool on_command(HWND dialog, int id, int) {
    if (id != IDC_WAIT_MODE) return false;
    enable_by_mode(dialog);
    return true;
}

// The mode is stored first and stays stored even when the name is refused:
// callers undo through the copy they edit. A refused time or range keeps its
// value and does not hold the dialog open.
dialog_end on_ok(HWND dialog) {
    wait_order &order = *edited;
    LRESULT selected = SendDlgItemMessageA(dialog, IDC_WAIT_MODE, CB_GETCURSEL, 0, 0);
    if (selected >= 0) order.mode = static_cast<uint32_t>(selected);

    if (!is_object_mode(order.mode)) {
        copy_text(order.name, no_object);
        read_number_strict(dialog, IDC_WAIT_TIME, order.time);
        return END_CONFIRMED;
    }
    char name[32];
    get_item_text(dialog, IDC_WAIT_NAME, name);
    if (!name[0] || std::strcmp(name, no_object) == 0) {
        char text[64];
        std::snprintf(text, sizeof text, "Invalid object name <%s>", name);
        show_message(text, MESSAGE_ERROR);
        return KEEP_OPEN;
    }
    if (!field_equals(order.name, name) && !check_object_name(name)) return KEEP_OPEN;
    copy_text(order.name, name);
    read_number_strict(dialog, IDC_WAIT_RANGE, order.range);
    return END_CONFIRMED;
}

const dialog_class wait_dialog = {on_init, on_command, on_ok, nullptr, TRUE};
}  // namespace

int edit_wait_order(HWND owner, wait_order *order) {
    modal_session session(module);
    if (!session || !order) return 0;
    edited = order;
    return session.run(IDD_WAIT_ORDER, owner, dialog_proc<wait_dialog>);
}
