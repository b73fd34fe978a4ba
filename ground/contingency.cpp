// The contingency order (template 136, titled "Sarge Order"): a trigger with
// its value, the next order, and the sarge order it fires. Both type combos
// rebuild their section when the designer changes them.
#include "ground/contingency.h"

#include <cstdlib>

#include "ground/order_types.h"
#include "ground/sarge_order.h"
#include "resources/ground_ids.h"
#include "resources/string_ids.h"
#include "util/controls.h"
#include "util/dialogs.h"
#include "util/modal.h"
#include "util/numbers.h"
#include "util/text.h"

namespace {
module_flag module{1};  // always started: the dialog has no flag of its own
contingency_order_record *edited = nullptr;
// The choices of the two type combos; written to the record only by OK.
int32_t chosen_trigger = 0;
int32_t chosen_order_type = 0;

void set_label(HWND dialog, int id, int string_id) {
    char text[64];
    load_string(string_id, text, sizeof text);
    SetDlgItemTextA(dialog, id, text);
}

// CB_SELECTSTRING with the string-table name `string_id`.
void select_by_name(HWND combo, int string_id) {
    char name[32];
    load_string(string_id, name, sizeof name);
    SendMessageA(combo, CB_SELECTSTRING, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(name));
}

// The value label of each trigger type; 0 for Under Fire and for types
// outside the table.
int value_label_of(int32_t trigger) {
    switch (trigger) {
    case TRIGGER_ENEMY_CLOSE: return IDS_LABEL_DISTANCE;
    case TRIGGER_DAMAGE: return IDS_LABEL_SURVIVORS;
    case TRIGGER_MESSAGE:
    case TRIGGER_CONTINUE: return IDS_LABEL_TRIGGER_STRING;
    default: return 0;
    }
}

void refresh_trigger(HWND dialog) {
    const contingency_order_record &record = *edited;
    HWND combo = GetDlgItem(dialog, IDC_CT_TRIGGER);
    SendMessageA(combo, CB_RESETCONTENT, 0, 0);
    for (int type = TRIGGER_ENEMY_CLOSE; type <= TRIGGER_CONTINUE; ++type) {
        LRESULT index = combo_add_string_id(combo, trigger_name_table[type]);
        if (index >= 0) SendMessageA(combo, CB_SETITEMDATA, index, type);
    }
    if (chosen_trigger == 0) {
        // A fresh record starts as the first type, Enemy Close.
        SendMessageA(combo, CB_SETCURSEL, 0, 0);
        chosen_trigger = static_cast<int32_t>(SendMessageA(combo, CB_GETITEMDATA, 0, 0));
    } else if (chosen_trigger >= TRIGGER_ENEMY_CLOSE && chosen_trigger <= TRIGGER_CONTINUE) {
        select_by_name(combo, trigger_name_table[chosen_trigger]);
    } else {
        // A stored type without a name: nothing selected; it is kept as it is
        // and its value fields are left alone, as for Under Fire.
        SendMessageA(combo, CB_SETCURSEL, static_cast<WPARAM>(-1), 0);
    }

    if (chosen_trigger == -1) {
        enable_controls(dialog, {IDC_CT_NEXT_ORDER_LABEL, IDC_CT_NEXT_ORDER, IDC_CT_VALUE_LABEL, IDC_CT_VALUE},
                        false);
        return;
    }
    enable_control(dialog, IDC_CT_NEXT_ORDER, true);
    show_field(dialog, IDC_CT_NEXT_ORDER, record.next_order);
    enable_controls(dialog, {IDC_CT_NEXT_ORDER_LABEL, IDC_CT_VALUE_LABEL}, true);

    int label = value_label_of(chosen_trigger);
    if (label == 0) {
        SetDlgItemTextA(dialog, IDC_CT_VALUE_LABEL, "");
        enable_controls(dialog, {IDC_CT_VALUE_LABEL, IDC_CT_VALUE}, false);
        return;
    }
    set_label(dialog, IDC_CT_VALUE_LABEL, label);
    enable_control(dialog, IDC_CT_VALUE, true);
    if (chosen_trigger != record.trigger) {
        SetDlgItemTextA(dialog, IDC_CT_VALUE, "");
    } else if (chosen_trigger == TRIGGER_ENEMY_CLOSE) {
        set_item_text_f(dialog, IDC_CT_VALUE, "%f", static_cast<double>(record.distance));
    } else if (chosen_trigger == TRIGGER_DAMAGE) {
        set_item_text_f(dialog, IDC_CT_VALUE, "%d", static_cast<int>(record.survivors));
    } else {
        show_field(dialog, IDC_CT_VALUE, record.trigger_string);
    }
}

// Reloads the whole order section from the record for the chosen order type.
void refresh_order(HWND dialog) {
    const sarge_order_record &order = edited->order;
    const int32_t t = chosen_order_type;
    show_field(dialog, IDC_ORDER_NAME, order.name);

    HWND types = GetDlgItem(dialog, IDC_CT_ORDER_TYPE);
    SendMessageA(types, CB_RESETCONTENT, 0, 0);
    for (int row = 0; row < ORDER_TYPE_ROWS; ++row) {
        LRESULT index = combo_add_string_id(types, order_type_table[row].string_id);
        if (index >= 0) SendMessageA(types, CB_SETITEMDATA, index, row);
    }
    int row = order_type_row_of(t);
    select_by_name(types, order_type_table[row < 0 ? 0 : row].string_id);

    enable_controls(dialog, {IDC_CT_AMOUNT_LABEL, IDC_CT_AMOUNT}, false);

    bool with_destination = uses_destination(t);
    enable_controls(dialog, {IDC_ORDER_DESTINATION_LABEL, IDC_ORDER_DESTINATION}, with_destination);
    if (with_destination) {
        HWND destination = GetDlgItem(dialog, IDC_ORDER_DESTINATION);
        fill_destination_combo(destination, order.destination);
    }

    bool with_formation = uses_formation(t);
    enable_controls(dialog, {IDC_ORDER_FORMATION_LABEL, IDC_ORDER_FORMATION}, with_formation);
    if (with_formation) {
        enable_control(dialog, IDC_CT_AMOUNT_LABEL, true);
        set_label(dialog, IDC_CT_AMOUNT_LABEL, IDS_LABEL_ROTATION);
        enable_control(dialog, IDC_CT_AMOUNT, true);
        set_item_text_f(dialog, IDC_CT_AMOUNT, "%f", static_cast<double>(order.formation_rotation));
        HWND formation = GetDlgItem(dialog, IDC_ORDER_FORMATION);
        fill_formation_combo(formation, order.formation);
    }
    if (uses_duration(t)) {
        enable_control(dialog, IDC_CT_AMOUNT_LABEL, true);
        set_label(dialog, IDC_CT_AMOUNT_LABEL, IDS_LABEL_DURATION);
        enable_control(dialog, IDC_CT_AMOUNT, true);
        set_item_text_f(dialog, IDC_CT_AMOUNT, "%f", static_cast<double>(order.duration));
    }

    HWND target = GetDlgItem(dialog, IDC_ORDER_MESSAGE_TARGET);
    fill_message_target_combo(target, order.message_target);
    if (order.message_target[0]) show_field(dialog, IDC_ORDER_MESSAGE, order.message);
}

void on_init(HWND dialog) {
    refresh_trigger(dialog);
    refresh_order(dialog);
    centre_dialog(dialog);
    ShowWindow(dialog, SW_SHOW);
}

// The two type combos rebuild their section on a selection change.
bool on_command(HWND dialog, int id, int code) {
    if (code != CBN_SELCHANGE || (id != IDC_CT_TRIGGER && id != IDC_CT_ORDER_TYPE)) return false;
    LPARAM data = 0;
    bool selected = combo_selected_data(GetDlgItem(dialog, id), data);
    if (id == IDC_CT_TRIGGER) {
        if (selected) chosen_trigger = static_cast<int32_t>(data);
        refresh_trigger(dialog);
    } else {
        if (selected && data >= 0 && data < ORDER_TYPE_ROWS) chosen_order_type = order_type_table[data].type;
        refresh_order(dialog);
    }
    return true;
}

dialog_end on_ok(HWND dialog) {
    contingency_order_record &record = *edited;
    get_item_text(dialog, IDC_CT_NEXT_ORDER, record.next_order);

    char value[32];
    get_item_text(dialog, IDC_CT_VALUE, value);
    record.trigger = chosen_trigger;
    switch (chosen_trigger) {
    case TRIGGER_ENEMY_CLOSE:
        // The longest leading number; 0 when there is none.
        record.distance = 0;
        scan_decimal(value, record.distance);
        break;
    case TRIGGER_DAMAGE:
        record.survivors = static_cast<int32_t>(std::strtol(value, nullptr, 10));
        break;
    case TRIGGER_MESSAGE:
    case TRIGGER_CONTINUE:
        copy_text(record.trigger_string, value);
        break;
    default:
        break;
    }

    sarge_order_record &order = record.order;
    const int32_t t = chosen_order_type;
    order.type = t;
    if (uses_duration(t))
        scan_float_item(dialog, IDC_CT_AMOUNT, 9, order.duration);
    else
        order.duration = 0;
    if (uses_formation(t)) {
        read_combo_selection(GetDlgItem(dialog, IDC_ORDER_FORMATION), order.formation);
        scan_float_item(dialog, IDC_CT_AMOUNT, 31, order.formation_rotation);
    }
    if (uses_destination(t)) read_combo_selection(GetDlgItem(dialog, IDC_ORDER_DESTINATION), order.destination);
    get_item_text(dialog, IDC_ORDER_NAME, order.name);
    read_message_and_target(dialog, order);
    return END_CONFIRMED;
}

const dialog_class contingency_dialog = {on_init, on_command, on_ok, nullptr, TRUE};
}  // namespace

int edit_contingency_order(HWND owner, contingency_order_record *order) {
    modal_session session(module);
    if (!session || !order) return 0;
    edited = order;
    chosen_trigger = order->trigger;
    chosen_order_type = order->order.type;
    return session.run(IDD_CONTINGENCY, owner, dialog_proc<contingency_dialog>);
}
