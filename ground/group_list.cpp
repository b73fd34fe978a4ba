// Group List (template 133, request 11): every ground group that is not
// removed. Add, Edit and Remove act on the host's list at once; OK and
// Cancel only decide the result.
#include "ground/group_list.h"

#include <climits>
#include <cstdio>
#include <string>
#include <unordered_set>

#include "editor/editor.h"
#include "ground/group_composition.h"
#include "resources/ground_ids.h"
#include "util/controls.h"
#include "util/dialogs.h"
#include "util/dlist.h"
#include "util/host_memory.h"
#include "util/line_batch.h"
#include "util/modal.h"
#include "util/text.h"

namespace {
module_flag module;
dlist *group_list = nullptr;

void fill_group_list(HWND dialog) {
    line_batch lines(GetDlgItem(dialog, IDC_GL_GROUPS));
    for (group_record *group : dlist_values<group_record>(group_list)) {
        if (!group || group->status == GROUP_STATUS_REMOVED) continue;
        char name[32];
        copy_field(name, group->name);
        lines.add(name, reinterpret_cast<LPARAM>(group));
    }
}

group_record *selected_group(HWND dialog) { return list_selected<group_record>(GetDlgItem(dialog, IDC_GL_GROUPS)); }

void edit_selected(HWND dialog) {
    group_record *group = selected_group(dialog);
    if (!group) return;
    if (editor_window(REQUEST_GROUP_COMPOSITION, reinterpret_cast<uintptr_t>(group),
                      reinterpret_cast<uintptr_t>(group_list)))
        fill_group_list(dialog);
}

void remove_selected(HWND dialog) {
    group_record *group = selected_group(dialog);
    if (!group) return;
    group->status = GROUP_STATUS_REMOVED;
    fill_group_list(dialog);
}

void add_group(HWND dialog) {
    // Without a host list there is nowhere to keep a new group.
    if (!group_list) return;
    auto *group = host_new<group_record>();
    if (!group) return;
    automatic_group_name(group_list, group->name);
    group->order_count = 0;
    group->status = GROUP_STATUS_ADDED;
    group->members = dlist_create();
    group->target_player_only = 0;
    // A group without its member list, or one no list node can be had for,
    // is never listed: the Add adds nothing.
    if (!group->members || !edit_group(group, group_list) || !dlist_push_back(group_list, dlist_value(group))) {
        // Group Composition stores members only on OK, so a cancelled group's
        // list holds no entries; after a failed append it may.
        destroy_entry_list<unit_entry>(group->members);
        host_delete(group);
        return;
    }
    fill_group_list(dialog);
}

void on_init(HWND dialog) {
    fill_group_list(dialog);
    SendDlgItemMessageA(dialog, IDC_GL_GROUPS, LB_SETCURSEL, 0, 0);
    centre_dialog(dialog);
    ShowWindow(dialog, SW_SHOW);
}

bool on_command(HWND dialog, int id, int code) {
    // Group Composition is owned by the main window, so this dialog stays
    // enabled under it; nothing here (not even OK, Cancel or the close box)
    // may act over its one working copy.
    if (group_composition_open()) return true;
    if (id == IDC_GL_GROUPS && code == LBN_DBLCLK) {
        edit_selected(dialog);
        return true;
    }
    if (code != BN_CLICKED) return false;
    switch (id) {
    case IDC_GL_EDIT:
        edit_selected(dialog);
        return true;
    case IDC_GL_REMOVE:
        remove_selected(dialog);
        return true;
    case IDC_GL_ADD:
        add_group(dialog);
        return true;
    default:
        return false;
    }
}

const dialog_class group_list_dialog = {on_init, on_command, nullptr, nullptr, TRUE};
}  // namespace

void automatic_group_name(const dlist_node *groups, char (&name)[32]) {
    // Every name in the list, removed groups' included, gathered once.
    std::unordered_set<std::string> taken;
    for (group_record *group : dlist_values<group_record>(groups)) {
        if (!group) continue;
        char existing[32];
        copy_field(existing, group->name);
        taken.insert(existing);
    }
    // Past sarge998 the count simply goes on (sarge999, sarge1000, ...): a
    // finite list always leaves a free name, and every such name fits.
    for (int n = 0; n < INT_MAX; ++n) {
        std::snprintf(name, sizeof name, "sarge%d", n);
        if (!taken.count(name)) return;
    }
}

int group_list_start() { return module.start(); }
int group_list_tidyup() { return module.tidyup(); }

int list_groups(dlist_node *groups) {
    // A list asked for while Group Composition is up is refused too: it would
    // ignore every command and could never be closed.
    if (group_composition_open()) return 0;
    modal_session session(module);
    if (!session) return 0;
    group_list = groups;
    return session.run(IDD_GROUP_LIST, editor_main_window(), dialog_proc<group_list_dialog>);
}
