#include "ground/group_list.h"

#include <climits>
#include <cstdio>
#include <cstring>

#include "editor/editor.h"
#include "ground/group_composition.h"
#include "util/dialogs.h"
#include "util/dlist.h"
#include "util/module_flag.h"

namespace {
enum { IDD_GROUP_LIST = 133, IDC_GROUPS = 1076, IDC_EDIT = 3, IDC_REMOVE = 4, IDC_ADD = 5 };

module_flag module;
dlist *group_list = nullptr;
bool open = false;

bool name_taken(const dlist *groups, const char *name) {
    for (group_record *group : dlist_values<group_record>(groups))
        if (group && std::strncmp(group->name, name, sizeof group->name) == 0) return true;
    return false;
}

void fill_group_list(HWND dialog) {
    HWND list = GetDlgItem(dialog, IDC_GROUPS);
    SendMessageA(list, LB_RESETCONTENT, 0, 0);
    for (group_record *group : dlist_values<group_record>(group_list)) {
        if (!group || group->status == GROUP_STATUS_REMOVED) continue;
        char name[32];
        std::memcpy(name, group->name, sizeof name);
        name[31] = '\0';
        LRESULT index = SendMessageA(list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(name));
        if (index >= 0) SendMessageA(list, LB_SETITEMDATA, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(group));
    }
}

group_record *selected_group(HWND dialog) {
    LRESULT index = SendDlgItemMessageA(dialog, IDC_GROUPS, LB_GETCURSEL, 0, 0);
    if (index == LB_ERR) return nullptr;
    LRESULT data = SendDlgItemMessageA(dialog, IDC_GROUPS, LB_GETITEMDATA, static_cast<WPARAM>(index), 0);
    return data == LB_ERR ? nullptr : reinterpret_cast<group_record *>(data);
}

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
    auto *group = static_cast<group_record *>(host().host_alloc(sizeof(group_record)));
    if (!group) return;
    std::memset(group, 0, sizeof *group);
    automatic_group_name(group_list, group->name);
    group->order_count = 0;
    group->status = GROUP_STATUS_ADDED;
    group->members = dlist_create();
    group->target_player_only = 0;
    if (!edit_group(group, group_list) || !dlist_push_back(group_list, dlist_value(group))) {
        // Group Composition stores members only on OK, so a cancelled group's
        // list holds no entries; after a failed append it may.
        for (dlist_node *node : dlist_nodes(group->members)) {
            if (node->value) host().host_free(reinterpret_cast<unit_entry *>(node->value), sizeof(unit_entry));
        }
        dlist_destroy(group->members);
        host().host_free(group, sizeof *group);
        return;
    }
    fill_group_list(dialog);
}

void on_command(HWND dialog, int id, int code) {
    // Group Composition is owned by the main window, so this dialog stays
    // enabled under it; a second edit must not start over its one working copy.
    if (group_composition_open()) return;
    if (id == IDC_GROUPS && code == LBN_DBLCLK) {
        edit_selected(dialog);
        return;
    }
    if (code != BN_CLICKED) return;
    switch (id) {
    case IDC_EDIT:
        edit_selected(dialog);
        break;
    case IDC_REMOVE:
        remove_selected(dialog);
        break;
    case IDC_ADD:
        add_group(dialog);
        break;
    case IDOK:
        EndDialog(dialog, 1);
        break;
    case IDCANCEL:
        EndDialog(dialog, 0);
        break;
    default:
        break;
    }
}

INT_PTR CALLBACK group_list_proc(HWND dialog, UINT message, WPARAM wparam, LPARAM) {
    switch (message) {
    case WM_INITDIALOG:
        fill_group_list(dialog);
        SendDlgItemMessageA(dialog, IDC_GROUPS, LB_SETCURSEL, 0, 0);
        centre_dialog(dialog);
        ShowWindow(dialog, SW_SHOW);
        return TRUE;
    case WM_COMMAND:
        on_command(dialog, LOWORD(wparam), HIWORD(wparam));
        return TRUE;
    case WM_CLOSE:
        if (!group_composition_open()) EndDialog(dialog, 0);
        return TRUE;
    default:
        return FALSE;
    }
}
}  // namespace

void automatic_group_name(const dlist_node *groups, char (&name)[32]) {
    // Past sarge998 the count simply goes on (sarge999, sarge1000, ...): a
    // finite list always leaves a free name, and every such name fits.
    for (int n = 0; n < INT_MAX; ++n) {
        std::snprintf(name, sizeof name, "sarge%d", n);
        if (!name_taken(groups, name)) return;
    }
}

int group_list_start() { return module.start(); }
int group_list_tidyup() { return module.tidyup(); }

int list_groups(dlist_node *groups) {
    // One set of module state: a nested second list is refused. So is a list
    // asked for while Group Composition is up: it would ignore every command
    // (see on_command) and could never be closed.
    if (open || group_composition_open()) return 0;
    group_list = groups;
    if (!module.started) return 0;
    open = true;
    INT_PTR result =
        DialogBoxParamA(editor_instance(), MAKEINTRESOURCEA(IDD_GROUP_LIST), editor_main_window(), group_list_proc, 0);
    open = false;
    return result == 1 ? 1 : 0;
}
