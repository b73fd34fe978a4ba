#include "ground/sarge_order.h"

#include <cstdlib>
#include <cstring>

#include "editor/editor.h"
#include "util/dialogs.h"
#include "util/dlist.h"
#include "util/module_flag.h"
#include "util/numbers.h"
#include "util/scope.h"

namespace {
module_flag module;
sarge_order_record *edited = nullptr;

enum {
    TEMPLATE_SARGE_ORDER = 130,
    IDC_DURATION_LABEL = 1060,
    IDC_DURATION = 1056,
    IDC_ROTATION_LABEL = 1068,
    IDC_ROTATION = 1069
};

const char none_entry[] = "NONE";

bool uses_duration(int32_t type) { return type == SARGE_ORDER_HALT || type == SARGE_ORDER_BARRAGE; }
bool uses_formation(int32_t type) { return type == SARGE_ORDER_ADVANCE || type == SARGE_ORDER_MARCH; }

void enable(HWND dialog, int id, bool on) { EnableWindow(GetDlgItem(dialog, id), on ? TRUE : FALSE); }

// Fills a combo with the names of a host list. Names longer than 31
// characters are cut, so every entry fits the 32-byte record fields; null
// names are left out. The list is released on every way out.
int fill_names(HWND combo, host_list_fn list_op, bool with_none) {
    SendMessageA(combo, CB_RESETCONTENT, 0, 0);
    dlist_node *list = nullptr;
    if (!list_op || !list_op(&list, HOST_LIST_ACQUIRE)) return 0;
    int released = 0;
    {
        auto release = on_scope_exit([&] { released = list_op(&list, HOST_LIST_RELEASE); });
        for (dlist_node *node : dlist_nodes(list)) {
            const char *name = reinterpret_cast<const char *>(node->value);
            if (!name) continue;
            char entry[32];
            copy_text(entry, name);
            LRESULT index = SendMessageA(combo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(entry));
            if (index >= 0) SendMessageA(combo, CB_SETITEMDATA, index, static_cast<LPARAM>(node->value));
        }
        if (with_none) {
            LRESULT index = SendMessageA(combo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(none_entry));
            if (index >= 0) SendMessageA(combo, CB_SETITEMDATA, index, 0);
            SendMessageA(combo, CB_SETCURSEL, index, 0);
        } else {
            SendMessageA(combo, CB_SETCURSEL, 0, 0);
        }
    }
    if (!released) {
        SendMessageA(combo, CB_RESETCONTENT, 0, 0);
        return 0;
    }
    return 1;
}

void open_dialog(HWND dialog) {
    const sarge_order_record &order = *edited;
    const int32_t type = order.type;
    show_field(dialog, IDC_ORDER_NAME, order.name, sizeof order.name);

    if (uses_duration(type)) {
        set_item_text_f(dialog, IDC_DURATION, "%f", static_cast<double>(order.duration));
    } else {
        enable(dialog, IDC_DURATION_LABEL, false);
        enable(dialog, IDC_DURATION, false);
    }

    HWND destination = GetDlgItem(dialog, IDC_ORDER_DESTINATION);
    HWND formation = GetDlgItem(dialog, IDC_ORDER_FORMATION);
    if (uses_formation(type)) {
        fill_formation_combo(formation);
        select_combo_field(formation, order.formation, sizeof order.formation);
        fill_destination_combo(destination);
        select_combo_field(destination, order.destination, sizeof order.destination);
        set_item_text_f(dialog, IDC_ROTATION, "%f", static_cast<double>(order.formation_rotation));
    } else if (type == SARGE_ORDER_BARRAGE) {
        fill_destination_combo(destination);
        select_combo_field(destination, order.destination, sizeof order.destination);
        enable(dialog, IDC_ORDER_FORMATION_LABEL, false);
        enable(dialog, IDC_ORDER_FORMATION, false);
    } else {
        enable(dialog, IDC_ORDER_DESTINATION_LABEL, false);
        enable(dialog, IDC_ORDER_DESTINATION, false);
        enable(dialog, IDC_ORDER_FORMATION_LABEL, false);
        enable(dialog, IDC_ORDER_FORMATION, false);
    }

    HWND target = GetDlgItem(dialog, IDC_ORDER_MESSAGE_TARGET);
    fill_message_target_combo(target);
    if (order.message_target[0]) {
        select_combo_field(target, order.message_target, sizeof order.message_target);
        show_field(dialog, IDC_ORDER_MESSAGE, order.message, sizeof order.message);
    }

    // The rotation is shown for information only; this dialog always stores 0.
    enable(dialog, IDC_ROTATION_LABEL, false);
    enable(dialog, IDC_ROTATION, false);

    centre_dialog(dialog);
    ShowWindow(dialog, SW_SHOW);
}

void confirm(HWND dialog) {
    sarge_order_record &order = *edited;
    const int32_t type = order.type;
    if (uses_duration(type))
        scan_float_item(dialog, IDC_DURATION, 9, order.duration);
    else
        order.duration = 0;
    if (uses_formation(type))
        read_combo_selection(GetDlgItem(dialog, IDC_ORDER_FORMATION), order.formation, sizeof order.formation);
    if (uses_formation(type) || type == SARGE_ORDER_BARRAGE)
        read_combo_selection(GetDlgItem(dialog, IDC_ORDER_DESTINATION), order.destination,
                             sizeof order.destination);
    get_item_text(dialog, IDC_ORDER_NAME, order.name);
    order.formation_rotation = 0;
    read_message_and_target(dialog, order);
}

INT_PTR CALLBACK sarge_order_proc(HWND dialog, UINT message, WPARAM wparam, LPARAM) {
    switch (message) {
    case WM_INITDIALOG:
        open_dialog(dialog);
        return TRUE;
    case WM_COMMAND:
        if (HIWORD(wparam) != BN_CLICKED) break;
        if (LOWORD(wparam) == IDOK) {
            confirm(dialog);
            EndDialog(dialog, 1);
            return TRUE;
        }
        if (LOWORD(wparam) == IDCANCEL) {
            EndDialog(dialog, 0);
            return TRUE;
        }
        break;
    case WM_CLOSE:
        EndDialog(dialog, 0);
        return TRUE;
    }
    return FALSE;
}
}  // namespace

int sarge_order_start() { return module.start(); }
int sarge_order_tidyup() { return module.tidyup(); }

int edit_sarge_order(HWND owner, sarge_order_record *order) {
    if (!module.started || !order) return 0;
    edited = order;
    INT_PTR result = DialogBoxParamA(editor_instance(), MAKEINTRESOURCEA(TEMPLATE_SARGE_ORDER), owner,
                                     sarge_order_proc, 0);
    edited = nullptr;
    return result == 1 ? 1 : 0;
}

int fill_formation_combo(HWND combo) { return fill_names(combo, host().host_formation_list, false); }
int fill_destination_combo(HWND combo) { return fill_names(combo, host().host_marker_list, false); }
int fill_message_target_combo(HWND combo) { return fill_names(combo, host().host_message_target_list, true); }

int select_combo_string(HWND combo, const char *text) {
    if (!text) return -1;
    LRESULT count = SendMessageA(combo, CB_GETCOUNT, 0, 0);
    for (LRESULT i = 0; i < count; ++i) {
        // Longer entries cannot be read into the buffer, and cannot equal a name.
        LRESULT length = SendMessageA(combo, CB_GETLBTEXTLEN, i, 0);
        if (length < 0 || length > 31) continue;
        char entry[32] = "";
        SendMessageA(combo, CB_GETLBTEXT, i, reinterpret_cast<LPARAM>(entry));
        entry[31] = '\0';
        if (std::strcmp(entry, text) == 0) {
            SendMessageA(combo, CB_SETCURSEL, i, 0);
            return static_cast<int>(i);
        }
    }
    return -1;
}

void show_field(HWND dialog, int id, const char *field, size_t size) {
    char text[64];
    size_t length = strnlen(field, size < sizeof text ? size : sizeof text - 1);
    std::memcpy(text, field, length);
    text[length] = '\0';
    SetDlgItemTextA(dialog, id, text);
}

void select_combo_field(HWND combo, const char *field, size_t size) {
    char text[64];
    size_t length = strnlen(field, size < sizeof text ? size : sizeof text - 1);
    std::memcpy(text, field, length);
    text[length] = '\0';
    if (select_combo_string(combo, text) < 0) SendMessageA(combo, CB_SETCURSEL, 0, 0);
}

bool read_combo_selection(HWND combo, char *field, size_t size) {
    LRESULT selected = SendMessageA(combo, CB_GETCURSEL, 0, 0);
    if (selected < 0) return false;
    LRESULT length = SendMessageA(combo, CB_GETLBTEXTLEN, selected, 0);
    if (length < 0) return false;
    char entry[256] = "";
    if (length >= static_cast<LRESULT>(sizeof entry)) return false;
    SendMessageA(combo, CB_GETLBTEXT, selected, reinterpret_cast<LPARAM>(entry));
    copy_text(field, size, entry);
    return true;
}

void read_message_and_target(HWND dialog, sarge_order_record &order) {
    HWND combo = GetDlgItem(dialog, IDC_ORDER_MESSAGE_TARGET);
    char target[32] = "";
    if (!read_combo_selection(combo, target, sizeof target)) return;
    if (std::strcmp(target, none_entry) == 0) return;
    char text[32];
    get_item_text(dialog, IDC_ORDER_MESSAGE, text);
    if (!text[0]) return;
    copy_text(order.message_target, target);
    copy_text(order.message, text);
}

void scan_float_item(HWND dialog, int id, int chars, float &value) {
    char text[64];
    if (chars > 63) chars = 63;
    get_item_text(dialog, id, text, chars + 1);
    scan_decimal(text, value);
}
