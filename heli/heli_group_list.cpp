// List Heli Groups (template 141, request 15): every heli group that is not
// removed. Add and Edit open Edit Heli Group on a new record from the host
// or on a host deep copy, together with a private copy of the available
// units, and commit both only when it is confirmed: the copy takes the
// original's node (the original is destroyed) and the private units replace
// the host's entries. Cancelled, the record or copy is destroyed and the
// private units freed. Remove marks a group removed and gives its members
// back. OK and Cancel undo nothing; they only decide the result.
#include "heli/heli_group_list.h"

#include <cstdio>
#include <cstring>
#include <string>
#include <unordered_set>

#include "editor/editor.h"
#include "heli/heli_group.h"
#include "resources/heli_ids.h"
#include "util/controls.h"
#include "util/dialogs.h"
#include "util/host_memory.h"
#include "util/line_batch.h"
#include "util/modal.h"
#include "util/scope.h"
#include "util/text.h"

namespace {
module_flag module;
dlist *groups = nullptr;     // dlist of heli_group_record *, removed ones included
dlist *available = nullptr;  // dlist of unit_entry *, the host's

void destroy_group(heli_group_record *group) { host().host_heli_group_destroy(&group); }

void refresh(HWND dialog) {
    if (groups) {
        line_batch lines(GetDlgItem(dialog, IDC_LHG_GROUPS));
        for (heli_group_record *group : dlist_values<heli_group_record>(groups)) {
            if (!group || group->status == HELI_GROUP_STATUS_REMOVED) continue;
            char name[sizeof group->name];
            copy_field(name, group->name);
            lines.add(name, reinterpret_cast<LPARAM>(group));
        }
    }
    centre_dialog(dialog);
    ShowWindow(dialog, SW_SHOWNORMAL);
}

heli_group_record *selected_group(HWND dialog) {
    return list_selected<heli_group_record>(GetDlgItem(dialog, IDC_LHG_GROUPS));
}

dlist_node *node_holding(const heli_group_record *group) {
    for (dlist_node *node : dlist_nodes(groups))
        if (node->value == dlist_value(group)) return node;
    return nullptr;
}

// Zeroed 68-byte copies of the host's available units, all or none.
dlist *copy_available() { return copy_entries<unit_entry>(available, copy_unit); }

// The first of Group0 to Group998 that no listed group has, removed groups
// included; when all are taken the host's own name stays. The names are
// gathered once, not once per candidate.
void name_new_group(heli_group_record &group) {
    std::unordered_set<std::string> taken;
    for (heli_group_record *listed : dlist_values<heli_group_record>(groups))
        if (listed) taken.emplace(listed->name, strnlen(listed->name, sizeof listed->name));
    for (int n = 0; n <= 998; ++n) {
        char name[sizeof group.name];
        std::snprintf(name, sizeof name, "Group%d", n);
        if (taken.count(name)) continue;
        copy_text(group.name, name);
        return;
    }
}

void add_group(HWND dialog) {
    // Without the host's list there is nowhere to keep a new group.
    if (!groups) return;
    heli_group_record *group = nullptr;
    if (!host().host_heli_group_create(&group) || !group) return;
    name_new_group(*group);
    dlist *units = nullptr;
    if (available && !(units = copy_available())) {
        destroy_group(group);
        return;
    }
    const bool confirmed = edit_heli_group(dialog, group, units);
    if (confirmed) group->status = HELI_GROUP_STATUS_ADDED;
    // Listed only when confirmed and a list node could be had for it.
    if (!confirmed || !dlist_push_back(groups, dlist_value(group))) {
        destroy_entry_list<unit_entry>(units);
        destroy_group(group);
        return;
    }
    if (units) replace_entries<unit_entry>(available, units);
    refresh(dialog);
}

void edit_group(HWND dialog) {
    heli_group_record *original = selected_group(dialog);
    if (!original || !available) return;
    dlist *units = copy_available();
    if (!units) return;
    heli_group_record *copy = nullptr;
    if (!host().host_heli_group_copy(original, &copy) || !copy) {
        destroy_entry_list<unit_entry>(units);
        return;
    }
    dlist_node *node = edit_heli_group(dialog, copy, units) ? node_holding(original) : nullptr;
    if (!node) {
        destroy_entry_list<unit_entry>(units);
        destroy_group(copy);
        return;
    }
    replace_entries<unit_entry>(available, units);
    node->value = dlist_value(copy);
    // The copy keeps the status the host's copy gave it (a group added in
    // this dialog stays added). The record about to go is marked 0 unless it
    // was added here, so that the host's destroy can tell an edited group of
    // its own from a new one.
    if (original->status != HELI_GROUP_STATUS_ADDED) original->status = 0;
    destroy_group(original);
    refresh(dialog);
}

// The group stays in the host's list, hidden, until the host drops it. Its
// members go back, in their order, to the end of the available units: the
// same entries on the same nodes, moved without allocating, so the move
// cannot half happen.
void remove_group(HWND dialog) {
    if (heli_group_record *group = selected_group(dialog)) {
        if (group->members && available && group->members != available) dlist_splice(available, group->members);
        group->status = HELI_GROUP_STATUS_REMOVED;
    }
    refresh(dialog);
}

bool on_command(HWND dialog, int id, int code) {
    if (id == IDC_LHG_GROUPS) {
        if (code != LBN_DBLCLK) return false;
        edit_group(dialog);
        return true;
    }
    if (code != BN_CLICKED) return false;
    switch (id) {
    case IDC_LHG_ADD:
        add_group(dialog);
        return true;
    case IDC_LHG_EDIT:
        edit_group(dialog);
        return true;
    case IDC_LHG_REMOVE:
        remove_group(dialog);
        return true;
    default:
        return false;
    }
}

const dialog_class heli_group_list_dialog = {refresh, on_command, nullptr, nullptr, FALSE};
}  // namespace

int heli_group_list_start() { return module.start(); }
int heli_group_list_tidyup() { return module.tidyup(); }

int list_heli_groups(dlist *group_list, dlist *units) {
    modal_session session(module);
    if (!session) return 0;
    groups = group_list;
    available = units;
    auto forget = on_scope_exit([] {
        groups = nullptr;
        available = nullptr;
    });
    return session.run(IDD_LIST_HELI_GROUPS, editor_main_window(), dialog_proc<heli_group_list_dialog>);
}
