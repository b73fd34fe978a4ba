#include "ground/object_names.h"

#include <cstdio>
#include <cstring>

#include "editor/editor.h"
#include "util/dialogs.h"
#include "util/dlist.h"
#include "util/module_flag.h"

namespace {
module_flag module;
dlist_node *listed = nullptr;
bool open = false;

// Edit Name: the field being edited and its text when the dialog opened.
char *name_field = nullptr;
char saved_name[32];

enum {
    TEMPLATE_OBJECT_NAMES = 131,
    TEMPLATE_EDIT_NAME = 132,
    IDC_NAME = 1066,
    IDC_OBJECT_LIST = 1063,
    IDC_EDIT_NAME = 1067
};

// The refusal is a fixed box, not one of the editor's message kinds: no
// owner, system-modal, exclamation icon (0x1030).
void refuse_name() {
    MessageBoxA(nullptr, "Name Already Exists", "Name Error", MB_ICONEXCLAMATION | MB_SYSTEMMODAL);
}

// Whether the host knows another object by this name. The name is handed
// over in a 64-byte buffer, the size of the operation's name buffer, so a host
// that writes into it cannot reach past the record's 32-byte field.
bool name_in_use(const char *name) {
    host_object_name_fn lookup = host().host_object_name;
    if (!lookup) return false;
    char buffer[64] = "";
    copy_text(buffer, name);
    return lookup(0, 1, buffer) != 0;
}

void confirm_name(HWND dialog) {
    char text[32];
    get_item_text(dialog, IDC_NAME, text);
    copy_text(name_field, 32, text);
    if (std::strcmp(name_field, saved_name) != 0 && name_in_use(name_field)) {
        refuse_name();
        copy_text(name_field, 32, saved_name);
        EndDialog(dialog, 0);
        return;
    }
    EndDialog(dialog, 1);
}

INT_PTR CALLBACK edit_name_proc(HWND dialog, UINT message, WPARAM wparam, LPARAM) {
    switch (message) {
    case WM_INITDIALOG:
        SetDlgItemTextA(dialog, IDC_NAME, saved_name);
        centre_dialog(dialog);
        ShowWindow(dialog, SW_SHOW);
        return TRUE;
    case WM_COMMAND:
        if (HIWORD(wparam) != BN_CLICKED) break;
        if (LOWORD(wparam) == IDOK) {
            confirm_name(dialog);
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

// One line per record: "id : name  (type name)". Nodes without a record get
// no line: there is nothing to show or rename. The texts are read at most 31
// characters each, so the line always fits its buffer.
void fill_object_names(HWND dialog) {
    HWND list = GetDlgItem(dialog, IDC_OBJECT_LIST);
    SendMessageA(list, LB_RESETCONTENT, 0, 0);
    for (unit_entry *entry : dlist_values<unit_entry>(listed)) {
        if (!entry) continue;
        char line[96];
        std::snprintf(line, sizeof line, "%d : %.31s  (%.31s)", static_cast<int>(entry->id), entry->name,
                      entry->type_name);
        LRESULT index = SendMessageA(list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(line));
        if (index >= 0) SendMessageA(list, LB_SETITEMDATA, index, static_cast<LPARAM>(entry->id));
    }
}

void rename_selected(HWND dialog) {
    HWND list = GetDlgItem(dialog, IDC_OBJECT_LIST);
    LRESULT selected = SendMessageA(list, LB_GETCURSEL, 0, 0);
    if (selected < 0) return;
    auto id = static_cast<int32_t>(SendMessageA(list, LB_GETITEMDATA, selected, 0));
    for (unit_entry *entry : dlist_values<unit_entry>(listed)) {
        if (entry && entry->id == id) {
            edit_name(dialog, entry->name);
            fill_object_names(dialog);
            return;
        }
    }
}

INT_PTR CALLBACK object_names_proc(HWND dialog, UINT message, WPARAM wparam, LPARAM) {
    switch (message) {
    case WM_INITDIALOG:
        fill_object_names(dialog);
        centre_dialog(dialog);
        ShowWindow(dialog, SW_SHOW);
        return TRUE;
    case WM_COMMAND:
        if (HIWORD(wparam) != BN_CLICKED) break;
        switch (LOWORD(wparam)) {
        case IDC_EDIT_NAME:
            rename_selected(dialog);
            return TRUE;
        case IDOK:
            EndDialog(dialog, 1);
            return TRUE;
        case IDCANCEL:
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

int object_names_start() { return module.start(); }
int object_names_tidyup() { return module.tidyup(); }

int edit_name(HWND owner, char *name32) {
    // One field at a time: a nested edit (a host request from inside this
    // dialog) would leave the outer one without its field.
    if (!name32 || name_field) return 0;
    // The field may arrive unterminated; the saved copy and the edit hold at
    // most its first 31 characters.
    name_field = name32;
    size_t length = strnlen(name32, 31);
    std::memcpy(saved_name, name32, length);
    saved_name[length] = '\0';
    INT_PTR result = DialogBoxParamA(editor_instance(), MAKEINTRESOURCEA(TEMPLATE_EDIT_NAME), owner,
                                     edit_name_proc, 0);
    name_field = nullptr;
    return result == 1 ? 1 : 0;
}

int list_object_names(dlist_node *list) {
    // One set of module state: a nested second list is refused.
    if (!module.started || open) return 0;
    open = true;
    listed = list;
    INT_PTR result = DialogBoxParamA(editor_instance(), MAKEINTRESOURCEA(TEMPLATE_OBJECT_NAMES),
                                     editor_main_window(), object_names_proc, 0);
    listed = nullptr;
    open = false;
    return result == 1 ? 1 : 0;
}
