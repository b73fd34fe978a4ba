// The object name list (template 131, request 10) and Edit Name (template
// 132), which renames one 32-byte name field in place and refuses a name the
// host reports as taken.
#include "ground/object_names.h"

#include <cstdio>
#include <cstring>

#include "editor/editor.h"
#include "resources/ground_ids.h"
#include "util/controls.h"
#include "util/dialogs.h"
#include "util/dlist.h"
#include "util/line_batch.h"
#include "util/modal.h"
#include "util/text.h"

namespace {
// --- Edit Name -------------------------------------------------------------------
module_flag edit_name_kind{1};  // always started: Edit Name has no flag of its own
// The field being edited and its text when the dialog opened.
char *name_field = nullptr;
char saved_name[32];

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

void edit_name_init(HWND dialog) {
    SetDlgItemTextA(dialog, IDC_EN_NAME, saved_name);
    centre_dialog(dialog);
    ShowWindow(dialog, SW_SHOW);
}

// An unchanged name never goes to the host; a taken one is put back and the
// dialog ends unconfirmed.
dialog_end edit_name_ok(HWND dialog) {
    char text[32];
    get_item_text(dialog, IDC_EN_NAME, text);
    copy_text(name_field, 32, text);
    if (std::strcmp(name_field, saved_name) != 0 && name_in_use(name_field)) {
        refuse_name();
        copy_text(name_field, 32, saved_name);
        return END_UNCONFIRMED;
    }
    return END_CONFIRMED;
}

const dialog_class edit_name_dialog = {edit_name_init, nullptr, edit_name_ok, nullptr, TRUE};

// --- Object name list --------------------------------------------------------------
module_flag module;
dlist_node *listed = nullptr;

// One line per record: "id : name  (type name)". Nodes without a record get
// no line: there is nothing to show or rename. The texts are read at most 31
// characters each, so the line always fits its buffer.
void fill_object_names(HWND dialog) {
    line_batch lines(GetDlgItem(dialog, IDC_ON_LIST));
    for (unit_entry *entry : dlist_values<unit_entry>(listed)) {
        if (!entry) continue;
        char line[96];
        std::snprintf(line, sizeof line, "%d : %.31s  (%.31s)", static_cast<int>(entry->id), entry->name,
                      entry->type_name);
        lines.add(line, static_cast<LPARAM>(entry->id));
    }
}

void on_init(HWND dialog) {
    fill_object_names(dialog);
    centre_dialog(dialog);
    ShowWindow(dialog, SW_SHOW);
}

void rename_selected(HWND dialog) {
    LPARAM id = 0;
    if (!list_selected_data(GetDlgItem(dialog, IDC_ON_LIST), id)) return;
    for (unit_entry *entry : dlist_values<unit_entry>(listed)) {
        if (entry && entry->id == static_cast<int32_t>(id)) {
            edit_name(dialog, entry->name);
            fill_object_names(dialog);
            return;
        }
    }
}

bool on_command(HWND dialog, int id, int code) {
    if (id != IDC_ON_EDIT_NAME || code != BN_CLICKED) return false;
    rename_selected(dialog);
    return true;
}

const dialog_class object_names_dialog = {on_init, on_command, nullptr, nullptr, TRUE};
}  // namespace

int object_names_start() { return module.start(); }
int object_names_tidyup() { return module.tidyup(); }

int edit_name(HWND owner, char *name32) {
    modal_session session(edit_name_kind);
    if (!session || !name32) return 0;
    // The field may arrive unterminated; the saved copy and the edit hold at
    // most its first 31 characters.
    name_field = name32;
    copy_field(saved_name, sizeof saved_name, name32, 32);
    return session.run(IDD_EDIT_NAME, owner, dialog_proc<edit_name_dialog>);
}

int list_object_names(dlist_node *list) {
    modal_session session(module);
    if (!session) return 0;
    listed = list;
    return session.run(IDD_OBJECT_NAMES, editor_main_window(), dialog_proc<object_names_dialog>);
}
