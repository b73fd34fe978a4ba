#include "ground/contingency.h"

#include <cstdlib>
#include <cstring>

#include "editor/editor.h"
#include "ground/order_types.h"
#include "ground/sarge_order.h"
#include "util/dialogs.h"
#include "util/numbers.h"

namespace {
contingency_order_record *edited = nullptr;
// The choices of the two type combos; written to the record only by OK.
int32_t chosen_trigger = 0;
int32_t chosen_order_type = 0;

enum {
    TEMPLATE_CONTINGENCY = 136,
    IDC_TRIGGER_TYPE = 1067,
    IDC_NEXT_ORDER_LABEL = 1082,
    IDC_NEXT_ORDER = 1083,
    IDC_VALUE_LABEL = 1084,
    IDC_VALUE = 1085,
    IDC_ORDER_TYPE = 1075,
    IDC_AMOUNT_LABEL = 1100,  // duration, or formation rotation
    IDC_AMOUNT = 1101,
    STRING_SURVIVORS = 36,
    STRING_DISTANCE = 37,
    STRING_TRIGGER_STRING = 43,
    STRING_DURATION = 44,
    STRING_ROTATION = 45
};

void enable(HWND dialog, int id, bool on) { EnableWindow(GetDlgItem(dialog, id), on ? TRUE : FALSE); }

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
    case TRIGGER_ENEMY_CLOSE: return STRING_DISTANCE;
    case TRIGGER_DAMAGE: return STRING_SURVIVORS;
    case TRIGGER_MESSAGE:
    case TRIGGER_CONTINUE: return STRING_TRIGGER_STRING;
    default: return 0;
    }
}

void refresh_trigger(HWND dialog) {
    const contingency_order_record &record = *edited;
    HWND combo = GetDlgItem(dialog, IDC_TRIGGER_TYPE);
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
        enable(dialog, IDC_NEXT_ORDER_LABEL, false);
        enable(dialog, IDC_NEXT_ORDER, false);
        enable(dialog, IDC_VALUE_LABEL, false);
        enable(dialog, IDC_VALUE, false);
        return;
    }
    enable(dialog, IDC_NEXT_ORDER, true);
    show_field(dialog, IDC_NEXT_ORDER, record.next_order, sizeof record.next_order);
    enable(dialog, IDC_NEXT_ORDER_LABEL, true);
    enable(dialog, IDC_VALUE_LABEL, true);

    int label = value_label_of(chosen_trigger);
    if (label == 0) {
        SetDlgItemTextA(dialog, IDC_VALUE_LABEL, "");
        enable(dialog, IDC_VALUE_LABEL, false);
        enable(dialog, IDC_VALUE, false);
        return;
    }
    set_label(dialog, IDC_VALUE_LABEL, label);
    enable(dialog, IDC_VALUE, true);
    if (chosen_trigger != record.trigger) {
        SetDlgItemTextA(dialog, IDC_VALUE, "");
    } else if (chosen_trigger == TRIGGER_ENEMY_CLOSE) {
        set_item_text_f(dialog, IDC_VALUE, "%f", static_cast<double>(record.distance));
    } else if (chosen_trigger == TRIGGER_DAMAGE) {
        set_item_text_f(dialog, IDC_VALUE, "%d", static_cast<int>(record.survivors));
    } else {
        show_field(dialog, IDC_VALUE, record.trigger_string, sizeof record.trigger_string);
    }
}

bool uses_duration(int32_t type) { return type == SARGE_ORDER_HALT || type == SARGE_ORDER_BARRAGE; }
bool uses_formation(int32_t type) { return type == SARGE_ORDER_ADVANCE || type == SARGE_ORDER_MARCH; }
bool uses_destination(int32_t type) { return uses_formation(type) || type == SARGE_ORDER_BARRAGE; }

// Reloads the whole order section from the record for the chosen order type.
void refresh_order(HWND dialog) {
    const sarge_order_record &order = edited->order;
    const int32_t t = chosen_order_type;
    show_field(dialog, IDC_ORDER_NAME, order.name, sizeof order.name);

    HWND types = GetDlgItem(dialog, IDC_ORDER_TYPE);
    SendMessageA(types, CB_RESETCONTENT, 0, 0);
    for (int row = 0; row < ORDER_TYPE_ROWS; ++row) {
        LRESULT index = combo_add_string_id(types, order_type_table[row].string_id);
        if (index >= 0) SendMessageA(types, CB_SETITEMDATA, index, row);
    }
    int row = order_type_row_of(t);
    select_by_name(types, order_type_table[row < 0 ? 0 : row].string_id);

    enable(dialog, IDC_AMOUNT_LABEL, false);
    enable(dialog, IDC_AMOUNT, false);

    HWND destination = GetDlgItem(dialog, IDC_ORDER_DESTINATION);
    bool with_destination = uses_destination(t);
    enable(dialog, IDC_ORDER_DESTINATION_LABEL, with_destination);
    enable(dialog, IDC_ORDER_DESTINATION, with_destination);
    if (with_destination) {
        fill_destination_combo(destination);
        select_combo_field(destination, order.destination, sizeof order.destination);
    }

    HWND formation = GetDlgItem(dialog, IDC_ORDER_FORMATION);
    bool with_formation = uses_formation(t);
    enable(dialog, IDC_ORDER_FORMATION_LABEL, with_formation);
    enable(dialog, IDC_ORDER_FORMATION, with_formation);
    if (with_formation) {
        enable(dialog, IDC_AMOUNT_LABEL, true);
        set_label(dialog, IDC_AMOUNT_LABEL, STRING_ROTATION);
        enable(dialog, IDC_AMOUNT, true);
        set_item_text_f(dialog, IDC_AMOUNT, "%f", static_cast<double>(order.formation_rotation));
        fill_formation_combo(formation);
        select_combo_field(formation, order.formation, sizeof order.formation);
    }
    if (uses_duration(t)) {
        enable(dialog, IDC_AMOUNT_LABEL, true);
        set_label(dialog, IDC_AMOUNT_LABEL, STRING_DURATION);
        enable(dialog, IDC_AMOUNT, true);
        set_item_text_f(dialog, IDC_AMOUNT, "%f", static_cast<double>(order.duration));
    }

    HWND target = GetDlgItem(dialog, IDC_ORDER_MESSAGE_TARGET);
    fill_message_target_combo(target);
    if (order.message_target[0]) {
        select_combo_field(target, order.message_target, sizeof order.message_target);
        show_field(dialog, IDC_ORDER_MESSAGE, order.message, sizeof order.message);
    }
}

void confirm(HWND dialog) {
    contingency_order_record &record = *edited;
    get_item_text(dialog, IDC_NEXT_ORDER, record.next_order);

    char value[32];
    get_item_text(dialog, IDC_VALUE, value);
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
        scan_float_item(dialog, IDC_AMOUNT, 9, order.duration);
    else
        order.duration = 0;
    if (uses_formation(t)) {
        read_combo_selection(GetDlgItem(dialog, IDC_ORDER_FORMATION), order.formation, sizeof order.formation);
        scan_float_item(dialog, IDC_AMOUNT, 31, order.formation_rotation);
    }
    if (uses_destination(t))
        read_combo_selection(GetDlgItem(dialog, IDC_ORDER_DESTINATION), order.destination,
                             sizeof order.destination);
    get_item_text(dialog, IDC_ORDER_NAME, order.name);
    read_message_and_target(dialog, order);
}

void selection_changed(HWND dialog, int id) {
    HWND combo = GetDlgItem(dialog, id);
    LRESULT selected = SendMessageA(combo, CB_GETCURSEL, 0, 0);
    if (id == IDC_TRIGGER_TYPE) {
        if (selected >= 0) chosen_trigger = static_cast<int32_t>(SendMessageA(combo, CB_GETITEMDATA, selected, 0));
        refresh_trigger(dialog);
        return;
    }
    if (selected >= 0) {
        LRESULT row = SendMessageA(combo, CB_GETITEMDATA, selected, 0);
        if (row >= 0 && row < ORDER_TYPE_ROWS) chosen_order_type = order_type_table[row].type;
    }
    refresh_order(dialog);
}

INT_PTR CALLBACK contingency_proc(HWND dialog, UINT message, WPARAM wparam, LPARAM) {
    switch (message) {
    case WM_INITDIALOG:
        refresh_trigger(dialog);
        refresh_order(dialog);
        centre_dialog(dialog);
        ShowWindow(dialog, SW_SHOW);
        return TRUE;
    case WM_COMMAND: {
        int id = LOWORD(wparam);
        int code = HIWORD(wparam);
        if (code == CBN_SELCHANGE && (id == IDC_TRIGGER_TYPE || id == IDC_ORDER_TYPE)) {
            selection_changed(dialog, id);
            return TRUE;
        }
        if (code != BN_CLICKED) break;
        if (id == IDOK) {
            confirm(dialog);
            EndDialog(dialog, 1);
            return TRUE;
        }
        if (id == IDCANCEL) {
            EndDialog(dialog, 0);
            return TRUE;
        }
        break;
    }
    case WM_CLOSE:
        EndDialog(dialog, 0);
        return TRUE;
    }
    return FALSE;
}
}  // namespace

int edit_contingency_order(HWND owner, contingency_order_record *order) {
    if (!order) return 0;
    edited = order;
    chosen_trigger = order->trigger;
    chosen_order_type = order->order.type;
    INT_PTR result = DialogBoxParamA(editor_instance(), MAKEINTRESOURCEA(TEMPLATE_CONTINGENCY), owner,
                                     contingency_proc, 0);
    edited = nullptr;
    return result == 1 ? 1 : 0;
}
