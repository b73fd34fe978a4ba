// Edit Pickup Order (template 150): the cargo items and sarges a helicopter
// group picks up. Add, Update and Delete change the order's list at once and
// Cancel does not undo them, so callers give this dialog a fresh order or a
// copy; OK writes nothing.
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
dlist *entries = nullptr;  // pickup_entry *

using entry_name = char[sizeof(pickup_entry::name)];

// One line per entry, its name; the line carries its entry. No line is
// selected afterwards. Centred and shown again, even if the designer moved it.
void refresh(HWND dialog) {
    line_batch lines(GetDlgItem(dialog, IDC_PICKUP_LIST));
    for (pickup_entry *entry : dlist_values<pickup_entry>(entries)) {
        if (!entry) continue;
        entry_name name;
        copy_field(name, entry->name);
        lines.add(name, reinterpret_cast<LPARAM>(entry));
    }
    lines.commit();
    centre_dialog(dialog);
    ShowWindow(dialog, SW_SHOWNORMAL);
}

pickup_entry *selected_entry(HWND dialog) { return list_selected<pickup_entry>(GetDlgItem(dialog, IDC_PICKUP_LIST)); }

// The edit takes 31 characters but an entry holds 24: a longer name is cut
// to 24 here, before the duplicate and existence checks, so that both check
// (and their boxes name) exactly what is stored, and the list shows it.
void read_name(HWND dialog, entry_name &name) { get_item_text(dialog, IDC_PICKUP_NAME, name); }

void add(HWND dialog) {
    entry_name name;
    read_name(dialog, name);
    if (!name[0] || !accept_entry_name<pickup_entry>(entries, name, nullptr)) return;
    auto *entry = host_new<pickup_entry>();
    if (!entry) return;
    copy_text(entry->name, name);
    if (append_entry(entries, entry)) refresh(dialog);
}

// Renaming an entry to its own name changes nothing, not even the list.
void update(HWND dialog) {
    entry_name name;
    read_name(dialog, name);
    pickup_entry *entry = selected_entry(dialog);
    if (!entry || field_equals(entry->name, name) || !name[0]) return;
    if (!accept_entry_name(entries, name, entry)) return;
    copy_text(entry->name, name);
    refresh(dialog);
}

void delete_selected(HWND dialog) {
    if (remove_entry(entries, selected_entry(dialog))) refresh(dialog);
}

// A double-click puts the line's name into the edit.
void show_selected(HWND dialog) {
    if (pickup_entry *entry = selected_entry(dialog)) show_field(dialog, IDC_PICKUP_NAME, entry->name);
}

void on_init(HWND dialog) { refresh(dialog); }

bool on_command(HWND dialog, int id, int code) {
    if (id == IDC_PICKUP_LIST) {
        if (code == LBN_DBLCLK) show_selected(dialog);
        return true;
    }
    if (code != BN_CLICKED) return false;
    switch (id) {
    case IDC_PICKUP_ADD: add(dialog); return true;
    case IDC_PICKUP_UPDATE: update(dialog); return true;
    case IDC_PICKUP_DELETE: delete_selected(dialog); return true;
    default: return false;
    }
}

const dialog_class pickup_dialog = {on_init, on_command, nullptr, nullptr, TRUE};
}  // namespace

int edit_pickup_order(HWND owner, dlist *list) {
    modal_session session(module);
    if (!session || !list) return 0;
    entries = list;
    return session.run(IDD_PICKUP_ORDER, owner, dialog_proc<pickup_dialog>);
}
