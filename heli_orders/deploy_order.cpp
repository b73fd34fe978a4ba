// Edit Deploy Order (template 149): the cargo items and sarges a helicopter
// group puts down, each with the position to deploy it at. Add, Update and
// Delete change the order's list at once and Cancel does not undo them, so
// callers give this dialog a fresh order or a copy; OK writes nothing.
#include <cstdio>
#include <cstring>

#include "editor/editor.h"
#include "heli_orders/heli_order.h"
#include "heli_orders/order_dialogs.h"
#include "resources/heli_order_ids.h"
#include "util/controls.h"
#include "util/line_batch.h"
#include "util/dialogs.h"
#include "util/host_memory.h"
#include "util/modal.h"
#include "util/text.h"

namespace {
module_flag module{1};  // always started: the order dialogs have no flag of their own
dlist *entries = nullptr;  // deploy_entry *

// One line per entry, "name x z"; the line carries its entry. No line is
// selected afterwards. Centred and shown again, even if the designer moved it.
void refresh(HWND dialog) {
    line_batch lines(GetDlgItem(dialog, IDC_DEPLOY_LIST));
    for (deploy_entry *entry : dlist_values<deploy_entry>(entries)) {
        if (!entry) continue;
        char name[32];
        copy_field(name, entry->name);
        char line[160];
        std::snprintf(line, sizeof line, "%s %6.1f %6.1f", name, static_cast<double>(entry->x),
                      static_cast<double>(entry->z));
        lines.add(line, reinterpret_cast<LPARAM>(entry));
    }
    lines.commit();
    centre_dialog(dialog);
    ShowWindow(dialog, SW_SHOWNORMAL);
}

deploy_entry *selected_entry(HWND dialog) { return list_selected<deploy_entry>(GetDlgItem(dialog, IDC_DEPLOY_LIST)); }

struct typed_entry {
    char name[32];
    float x, z;
};

// The three edits as Add and Update take them: false, silently, when the name
// is empty or either number is refused by the strict rule.
bool read_typed(HWND dialog, typed_entry &typed) {
    get_item_text(dialog, IDC_DEPLOY_NAME, typed.name);
    return typed.name[0] && read_number_strict(dialog, IDC_DEPLOY_X, typed.x) &&
           read_number_strict(dialog, IDC_DEPLOY_Z, typed.z);
}

// The y word is the host's and is never written.
void store(deploy_entry &entry, const typed_entry &typed) {
    copy_text(entry.name, typed.name);
    entry.x = typed.x;
    entry.z = typed.z;
}

void add(HWND dialog) {
    typed_entry typed;
    if (!read_typed(dialog, typed) || !accept_entry_name<deploy_entry>(entries, typed.name, nullptr)) return;
    auto *entry = static_cast<deploy_entry *>(host().host_alloc(sizeof(deploy_entry)));
    if (!entry) return;
    std::memset(entry->name, 0, sizeof entry->name);
    store(*entry, typed);
    if (append_entry(entries, entry)) refresh(dialog);
}

void update(HWND dialog) {
    deploy_entry *entry = selected_entry(dialog);
    typed_entry typed;
    if (!entry || !read_typed(dialog, typed) || !accept_entry_name(entries, typed.name, entry)) return;
    store(*entry, typed);
    refresh(dialog);
}

void delete_selected(HWND dialog) {
    if (remove_entry(entries, selected_entry(dialog))) refresh(dialog);
}

// A double-click puts the line's entry into the edits.
void show_selected(HWND dialog) {
    deploy_entry *entry = selected_entry(dialog);
    if (!entry) return;
    show_field(dialog, IDC_DEPLOY_NAME, entry->name);
    show_number(dialog, IDC_DEPLOY_X, entry->x);
    show_number(dialog, IDC_DEPLOY_Z, entry->z);
}

void on_init(HWND dialog) { refresh(dialog); }

bool on_command(HWND dialog, int id, int code) {
    if (id == IDC_DEPLOY_LIST) {
        if (code == LBN_DBLCLK) show_selected(dialog);
        return true;
    }
    if (code != BN_CLICKED) return false;
    switch (id) {
    case IDC_DEPLOY_ADD: add(dialog); return true;
    case IDC_DEPLOY_UPDATE: update(dialog); return true;
    case IDC_DEPLOY_DELETE: delete_selected(dialog); return true;
    default: return false;
    }
}

const dialog_class deploy_dialog = {on_init, on_command, nullptr, nullptr, TRUE};
}  // namespace

int edit_deploy_order(HWND owner, dlist *list) {
    modal_session session(module);
    if (!session || !list) return 0;
    entries = list;
    return session.run(IDD_DEPLOY_ORDER, owner, dialog_proc<deploy_dialog>);
}
