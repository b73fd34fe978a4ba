#include "ground/group_composition.h"

#include <cstdio>

#include "editor/editor.h"
#include "ground/group_orders.h"
#include "ground/group_record.h"
#include "ground/object_names.h"
#include "util/dialogs.h"
#include "util/module_flag.h"
#include "util/scope.h"

namespace {
enum {
    IDD_GROUP_COMPOSITION = 127,
    IDC_AVAILABLE = 1036,
    IDC_MEMBERS = 1034,
    IDC_ADD = 1038,
    IDC_REMOVE = 1037,
    IDC_NAME = 1075,
    IDC_RENAME = 1074,
    IDC_TYPE = 1081,
    IDC_PERCENT = 1087,
    IDC_PLUS = 1090,
    IDC_MINUS = 1091,
    IDC_BY_GROUP = 1096,
    IDC_BY_UNIT = 1097,
    IDC_TARGET_PLAYER = 1198,
    IDC_EDIT_ORDERS = 1086,
};

module_flag module;
group_working_copy working{};
group_record *edited = nullptr;
dlist *group_list = nullptr;
int member_lines = 0;
bool open = false;

bool has_member(const dlist *members, int32_t id) {
    for (unit_entry *member : dlist_values<unit_entry>(members))
        if (member && member->id == id) return true;
    return false;
}

// A unit is taken when a listed, not removed group other than the edited one
// holds it, or when the working copy holds it.
bool unit_taken(const unit_entry &unit) {
    if (group_list) {
        for (group_record *group : dlist_values<group_record>(group_list)) {
            if (!group || group == edited || group->status == GROUP_STATUS_REMOVED) continue;
            if (has_member(group->members, unit.id)) return true;
        }
    }
    return has_member(working.members, unit.id);
}

bool add_unit_line(HWND list, const unit_entry &unit) {
    char line[UNIT_LINE_SIZE];
    format_pair_line(line, unit.name, unit.type_name);
    LRESULT index = SendMessageA(list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(line));
    if (index < 0) return false;
    SendMessageA(list, LB_SETITEMDATA, static_cast<WPARAM>(index), static_cast<LPARAM>(unit.id));
    return true;
}

bool fill_available_units(HWND dialog) {
    HWND list = GetDlgItem(dialog, IDC_AVAILABLE);
    SendMessageA(list, LB_RESETCONTENT, 0, 0);
    dlist *units = nullptr;
    int acquired = group_list ? host().host_unit_list(&units, HOST_LIST_ACQUIRE)
                              : host().host_unit_list_standalone(&units, HOST_LIST_ACQUIRE);
    if (!acquired) {
        SendMessageA(list, LB_RESETCONTENT, 0, 0);
        return false;
    }
    for (unit_entry *unit : dlist_values<unit_entry>(units)) {
        if (unit && !unit_taken(*unit)) add_unit_line(list, *unit);
    }
    // Both kinds of list go back through the same operation.
    if (!host().host_unit_list(&units, HOST_LIST_RELEASE)) {
        SendMessageA(list, LB_RESETCONTENT, 0, 0);
        return false;
    }
    return true;
}

void fill_group_members(HWND dialog) {
    HWND list = GetDlgItem(dialog, IDC_MEMBERS);
    SendMessageA(list, LB_RESETCONTENT, 0, 0);
    member_lines = 0;
    for (unit_entry *member : dlist_values<unit_entry>(working.members)) {
        if (member && add_unit_line(list, *member)) ++member_lines;
    }
}

void show_appearance(HWND dialog) {
    int percent = static_cast<int>(working.appearance & APPEAR_PERCENT_MASK);
    set_item_text_f(dialog, IDC_PERCENT, "%d", percent);
    BOOL choose = percent != 100;
    EnableWindow(GetDlgItem(dialog, IDC_BY_GROUP), choose);
    EnableWindow(GetDlgItem(dialog, IDC_BY_UNIT), choose);
    if (working.appearance & APPEAR_BY_GROUP) SendDlgItemMessageA(dialog, IDC_BY_GROUP, BM_SETCHECK, BST_CHECKED, 0);
    if (working.appearance & APPEAR_BY_UNIT) SendDlgItemMessageA(dialog, IDC_BY_UNIT, BM_SETCHECK, BST_CHECKED, 0);
}

void show_name(HWND dialog) { SetDlgItemTextA(dialog, IDC_NAME, working.name); }

void fill_group_types(HWND dialog) {
    HWND combo = GetDlgItem(dialog, IDC_TYPE);
    SendMessageA(combo, CB_RESETCONTENT, 0, 0);
    for (int type = 0; type < UNIT_TYPE_COUNT; ++type) {
        LRESULT index = SendMessageA(combo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(unit_type_names[type]));
        if (index < 0) continue;
        SendMessageA(combo, CB_SETITEMDATA, static_cast<WPARAM>(index), type);
        if (type == working.group_type) SendMessageA(combo, CB_SETCURSEL, static_cast<WPARAM>(index), 0);
    }
}

// An index array of `count` entries in host memory, for LB_GETSELITEMS. It is
// asked for even when `count` is 0 (an empty host list), so the host sees
// count x 4 bytes come and go on every Add-> and <-Remove.
struct index_array {
    uint32_t count;
    int *indices;
    explicit index_array(uint32_t n) : count(n), indices(static_cast<int *>(host().host_alloc(n * 4))) {}
    ~index_array() { release(); }
    index_array(const index_array &) = delete;
    index_array &operator=(const index_array &) = delete;
    void release() {
        if (indices) host().host_free(indices, count * 4);
        indices = nullptr;
    }
    // Calls act(id) with the item data of each selected line, in ascending order.
    template <class F>
    void for_selected_ids(HWND list, F act) {
        if (!indices) return;
        LRESULT selected = SendMessageA(list, LB_GETSELITEMS, count, reinterpret_cast<LPARAM>(indices));
        if (selected == LB_ERR || selected == 0) return;
        // The indices came from the list itself, so the item data is always an
        // id (-1 included: it is a valid id, not an error here).
        for (LRESULT i = 0; i < selected; ++i)
            act(static_cast<int32_t>(SendMessageA(list, LB_GETITEMDATA, static_cast<WPARAM>(indices[i]), 0)));
    }
};

void add_selected_units(HWND dialog) {
    dlist *units = nullptr;
    if (!host().host_unit_list(&units, HOST_LIST_ACQUIRE)) return;
    auto release = on_scope_exit([&] { host().host_unit_list(&units, HOST_LIST_RELEASE); });
    // Sized by the host's list, which the available lines were made from.
    index_array selection(units ? dlist_count(units) : 0);
    selection.for_selected_ids(GetDlgItem(dialog, IDC_AVAILABLE), [&](int32_t id) {
        for (unit_entry *unit : dlist_values<unit_entry>(units)) {
            if (!unit || unit->id != id) continue;
            unit_entry *member = copy_unit(*unit);
            if (!member) return;
            dlist_node *first = working.members->next;
            dlist_push_front(working.members, dlist_value(member));
            if (working.members->next == first) host().host_free(member, sizeof(unit_entry));
            return;
        }
        // A unit that left the host's list since the last refill is skipped.
    });
    fill_group_members(dialog);
    fill_available_units(dialog);
    selection.release();
}

void remove_selected_members(HWND dialog) {
    if (member_lines == 0) return;
    index_array selection(static_cast<uint32_t>(member_lines));
    selection.for_selected_ids(GetDlgItem(dialog, IDC_MEMBERS), [&](int32_t id) {
        for (dlist_node *node : dlist_nodes(working.members)) {
            auto *member = reinterpret_cast<unit_entry *>(node->value);
            if (!member || member->id != id) continue;
            dlist_remove_node(node);
            host().host_free(member, sizeof(unit_entry));
            return;
        }
    });
    fill_group_members(dialog);
    fill_available_units(dialog);
}

void on_init(HWND dialog) {
    fill_available_units(dialog);
    fill_group_members(dialog);
    show_name(dialog);
    EnableWindow(GetDlgItem(dialog, IDC_RENAME), TRUE);
    if (working.target_player_only) SendDlgItemMessageA(dialog, IDC_TARGET_PLAYER, BM_SETCHECK, BST_CHECKED, 0);
    show_appearance(dialog);
    fill_group_types(dialog);
    centre_dialog(dialog);
    ShowWindow(dialog, SW_SHOW);
}

void on_ok(HWND dialog) {
    LRESULT index = SendDlgItemMessageA(dialog, IDC_TYPE, CB_GETCURSEL, 0, 0);
    working.group_type =
        index == CB_ERR ? -1 : static_cast<int32_t>(SendDlgItemMessageA(dialog, IDC_TYPE, CB_GETITEMDATA, index, 0));
    store_group(*edited, working);
    free_group_working_copy(working);
    EndDialog(dialog, 1);
}

void on_command(HWND dialog, int id, int code) {
    switch (id) {
    // The appearance controls act on any notification.
    case IDC_PLUS:
        if ((working.appearance & APPEAR_PERCENT_MASK) <= 90) working.appearance += 10;
        show_appearance(dialog);
        return;
    case IDC_MINUS:
        if ((working.appearance & APPEAR_PERCENT_MASK) > 10) working.appearance -= 10;
        show_appearance(dialog);
        return;
    case IDC_BY_GROUP:
        working.appearance = (working.appearance & ~0xE00u) | APPEAR_BY_GROUP;
        return;
    case IDC_BY_UNIT:
        working.appearance = (working.appearance & ~0xD00u) | APPEAR_BY_UNIT;
        return;
    default:
        break;
    }
    if (code != BN_CLICKED) return;
    switch (id) {
    case IDC_TARGET_PLAYER:
        working.target_player_only = working.target_player_only == 0 ? 1 : 0;
        break;
    case IDC_RENAME:
        edit_name(dialog, working.name);
        show_name(dialog);
        break;
    case IDC_EDIT_ORDERS:
        edit_group_orders(dialog, &working);
        break;
    case IDC_ADD:
        add_selected_units(dialog);
        break;
    case IDC_REMOVE:
        remove_selected_members(dialog);
        break;
    case IDOK:
        on_ok(dialog);
        break;
    case IDCANCEL:
        free_group_working_copy(working);
        EndDialog(dialog, 0);
        break;
    default:
        break;
    }
}

INT_PTR CALLBACK group_composition_proc(HWND dialog, UINT message, WPARAM wparam, LPARAM) {
    switch (message) {
    case WM_INITDIALOG:
        on_init(dialog);
        return TRUE;
    case WM_COMMAND:
        on_command(dialog, LOWORD(wparam), HIWORD(wparam));
        return TRUE;
    case WM_CLOSE:
        free_group_working_copy(working);
        EndDialog(dialog, 0);
        return TRUE;
    default:
        return FALSE;
    }
}
}  // namespace

int group_composition_start() { return module.start(); }
int group_composition_tidyup() { return module.tidyup(); }

bool group_composition_open() { return open; }

int edit_group(group_record *group, dlist_node *groups) {
    if (!module.started || !group) return 0;
    // One working copy: a nested second edit is refused rather than clobbering it.
    if (open) return 0;
    edited = group;
    group_list = groups;
    if (!load_group(working, *group)) return 0;
    open = true;
    INT_PTR result = DialogBoxParamA(editor_instance(), MAKEINTRESOURCEA(IDD_GROUP_COMPOSITION),
                                     editor_main_window(), group_composition_proc, 0);
    // Every way out of the dialog frees the copy; this covers a dialog that never ran.
    free_group_working_copy(working);
    open = false;
    edited = nullptr;
    group_list = nullptr;
    return result == 1 ? 1 : 0;
}
