// Sarge Order (template 130): the name, duration, destination, formation
// and completion message of one ground order.
#include "ground/sarge_order.h"

#include <cstring>

#include "editor/editor.h"
#include "ground/order_types.h"
#include "resources/ground_ids.h"
#include "util/controls.h"
#include "util/dialogs.h"
#include "util/host_list.h"
#include "util/line_batch.h"
#include "util/modal.h"
#include "util/text.h"

namespace {
module_flag module;
sarge_order_record *edited = nullptr;

const char none_entry[] = "NONE";

// Fills a combo with the names of a host list. Names longer than 31
// characters are cut, so every entry fits the 32-byte record fields; null
// names are left out. The line holding `selected` is found among the lines
// just made rather than read back from the control, one message a line.
int fill_names(HWND combo, host_list_fn list_op, bool with_none, const char (&selected)[32]) {
    SendMessageA(combo, CB_RESETCONTENT, 0, 0);
    held_list names(list_op);
    if (!names) return 0;
    {
        line_batch lines(combo);
        for (dlist_node *node : dlist_nodes(names.get())) {
            const char *name = reinterpret_cast<const char *>(node->value);
            if (!name) continue;
            char entry[32];
            copy_text(entry, name);
            lines.add(entry, static_cast<LPARAM>(node->value));
        }
        if (with_none) lines.add(none_entry, 0);
        const std::vector<LRESULT> &indices = lines.commit();
        // "NONE" (the last line) stands for an empty target; any other name
        // missing from the list selects the first line.
        char wanted[32];
        copy_field(wanted, selected);
        LRESULT line = with_none && !wanted[0] ? indices.back() : lines.index_of(wanted);
        SendMessageA(combo, CB_SETCURSEL, static_cast<WPARAM>(line >= 0 ? line : 0), 0);
    }
    if (!names.release()) {
        SendMessageA(combo, CB_RESETCONTENT, 0, 0);
        return 0;
    }
    return 1;
}

void on_init(HWND dialog) {
    const sarge_order_record &order = *edited;
    const int32_t type = order.type;
    show_field(dialog, IDC_ORDER_NAME, order.name);

    if (uses_duration(type))
        set_item_text_f(dialog, IDC_SO_DURATION, "%f", static_cast<double>(order.duration));
    else
        enable_controls(dialog, {IDC_SO_DURATION_LABEL, IDC_SO_DURATION}, false);

    HWND destination = GetDlgItem(dialog, IDC_ORDER_DESTINATION);
    HWND formation = GetDlgItem(dialog, IDC_ORDER_FORMATION);
    if (uses_formation(type)) {
        fill_formation_combo(formation, order.formation);
        fill_destination_combo(destination, order.destination);
        set_item_text_f(dialog, IDC_SO_ROTATION, "%f", static_cast<double>(order.formation_rotation));
    } else if (type == SARGE_ORDER_BARRAGE) {
        fill_destination_combo(destination, order.destination);
        enable_controls(dialog, {IDC_ORDER_FORMATION_LABEL, IDC_ORDER_FORMATION}, false);
    } else {
        enable_controls(dialog,
                        {IDC_ORDER_DESTINATION_LABEL, IDC_ORDER_DESTINATION, IDC_ORDER_FORMATION_LABEL,
                         IDC_ORDER_FORMATION},
                        false);
    }

    HWND target = GetDlgItem(dialog, IDC_ORDER_MESSAGE_TARGET);
    fill_message_target_combo(target, order.message_target);
    if (order.message_target[0]) show_field(dialog, IDC_ORDER_MESSAGE, order.message);

    // The rotation is shown for information only; this dialog always stores 0.
    enable_controls(dialog, {IDC_SO_ROTATION_LABEL, IDC_SO_ROTATION}, false);

    centre_dialog(dialog);
    ShowWindow(dialog, SW_SHOW);
}

dialog_end on_ok(HWND dialog) {
    sarge_order_record &order = *edited;
    const int32_t type = order.type;
    if (uses_duration(type))
        scan_float_item(dialog, IDC_SO_DURATION, 9, order.duration);
    else
        order.duration = 0;
    if (uses_formation(type)) read_combo_selection(GetDlgItem(dialog, IDC_ORDER_FORMATION), order.formation);
    if (uses_destination(type)) read_combo_selection(GetDlgItem(dialog, IDC_ORDER_DESTINATION), order.destination);
    get_item_text(dialog, IDC_ORDER_NAME, order.name);
    order.formation_rotation = 0;
    read_message_and_target(dialog, order);
    return END_CONFIRMED;
}

const dialog_class sarge_order_dialog = {on_init, nullptr, on_ok, nullptr, TRUE};
}  // namespace

int sarge_order_start() { return module.start(); }
int sarge_order_tidyup() { return module.tidyup(); }

int edit_sarge_order(HWND owner, sarge_order_record *order) {
    modal_session session(module);
    if (!session || !order) return 0;
    edited = order;
    return session.run(IDD_SARGE_ORDER, owner, dialog_proc<sarge_order_dialog>);
}

int fill_formation_combo(HWND combo, const char (&selected)[32]) {
    return fill_names(combo, host().host_formation_list, false, selected);
}
int fill_destination_combo(HWND combo, const char (&selected)[32]) {
    return fill_names(combo, host().host_marker_list, false, selected);
}
int fill_message_target_combo(HWND combo, const char (&selected)[32]) {
    return fill_names(combo, host().host_message_target_list, true, selected);
}

void read_message_and_target(HWND dialog, sarge_order_record &order) {
    char target[32] = "";
    if (!read_combo_selection(GetDlgItem(dialog, IDC_ORDER_MESSAGE_TARGET), target)) return;
    if (std::strcmp(target, none_entry) == 0) return;
    char text[32];
    get_item_text(dialog, IDC_ORDER_MESSAGE, text);
    if (!text[0]) return;
    copy_text(order.message_target, target);
    copy_text(order.message, text);
}
