// Group Composition (template 127, request 9): the name, members, type and
// appearance of one ground group, edited on a working copy that OK writes
// back into the host's record.
#include "ground/group_composition.h"

#include <unordered_map>
#include <unordered_set>

#include "editor/editor.h"
#include "ground/group_orders.h"
#include "ground/group_record.h"
#include "ground/object_names.h"
#include "resources/ground_ids.h"
#include "util/controls.h"
#include "util/dialogs.h"
#include "util/host_list.h"
#include "util/host_memory.h"
#include "util/line_batch.h"
#include "util/modal.h"
#include "util/scope.h"

namespace {
module_flag module;
group_working_copy working{};
group_record *edited = nullptr;
dlist *group_list = nullptr;
int member_lines = 0;

void collect_ids(const dlist *members, std::unordered_set<int32_t> &ids) {
    for (unit_entry *member : dlist_values<unit_entry>(members))
        if (member) ids.insert(member->id);
}

// The ids of the units that are taken: held by a listed, not removed group
// other than the edited one, or by the working copy. Gathered once per refill,
// so the refill costs the size of the lists, not their product.
std::unordered_set<int32_t> taken_unit_ids() {
    std::unordered_set<int32_t> ids;
    if (group_list) {
        for (group_record *group : dlist_values<group_record>(group_list)) {
            if (!group || group == edited || group->status == GROUP_STATUS_REMOVED) continue;
            collect_ids(group->members, ids);
        }
    }
    collect_ids(working.members, ids);
    return ids;
}

void add_unit_line(line_batch &lines, const unit_entry &unit) {
    char line[UNIT_LINE_SIZE];
    format_pair_line(line, unit.name, unit.type_name);
    lines.add(line, static_cast<LPARAM>(unit.id));
}

bool fill_available_units(HWND dialog) {
    HWND list = GetDlgItem(dialog, IDC_GC_AVAILABLE);
    SendMessageA(list, LB_RESETCONTENT, 0, 0);
    // Both kinds of list go back through the unit list operation.
    held_list units(group_list ? host().host_unit_list : host().host_unit_list_standalone, host().host_unit_list);
    if (!units) return false;
    {
        line_batch lines(list);
        const std::unordered_set<int32_t> taken = taken_unit_ids();
        for (unit_entry *unit : dlist_values<unit_entry>(units.get())) {
            if (unit && !taken.count(unit->id)) add_unit_line(lines, *unit);
        }
    }
    if (!units.release()) {
        SendMessageA(list, LB_RESETCONTENT, 0, 0);
        return false;
    }
    return true;
}

void fill_group_members(HWND dialog) {
    line_batch lines(GetDlgItem(dialog, IDC_GC_MEMBERS));
    for (unit_entry *member : dlist_values<unit_entry>(working.members))
        if (member) add_unit_line(lines, *member);
    member_lines = 0;
    for (LRESULT index : lines.commit()) member_lines += index >= 0;
}

void show_appearance(HWND dialog) {
    int percent = static_cast<int>(working.appearance & APPEAR_PERCENT_MASK);
    set_item_text_f(dialog, IDC_GC_PERCENT, "%d", percent);
    enable_controls(dialog, {IDC_GC_BY_GROUP, IDC_GC_BY_UNIT}, percent != 100);
    if (working.appearance & APPEAR_BY_GROUP) CheckDlgButton(dialog, IDC_GC_BY_GROUP, BST_CHECKED);
    if (working.appearance & APPEAR_BY_UNIT) CheckDlgButton(dialog, IDC_GC_BY_UNIT, BST_CHECKED);
}

void show_name(HWND dialog) { SetDlgItemTextA(dialog, IDC_GC_NAME, working.name); }

void fill_group_types(HWND dialog) {
    HWND combo = GetDlgItem(dialog, IDC_GC_TYPE);
    SendMessageA(combo, CB_RESETCONTENT, 0, 0);
    for (int type = 0; type < UNIT_TYPE_COUNT; ++type) {
        LRESULT index = combo_add_line(combo, unit_type_names[type], type);
        if (index >= 0 && type == working.group_type) SendMessageA(combo, CB_SETCURSEL, static_cast<WPARAM>(index), 0);
    }
}

// Add->: the selected available units join the front of the members, the
// last selected first. Every copy is made before any joins, so the members
// change whole or not at all (a failed allocation adds nothing, silently, as
// every failed host operation does).
void join_selected(const dlist *units, const selected_lines &selection) {
    dlist *joining = dlist_create();
    if (!joining) return;
    // The host's units by id, the first of each id, found once for the whole selection.
    std::unordered_map<int32_t, const unit_entry *> by_id;
    for (unit_entry *unit : dlist_values<unit_entry>(units))
        if (unit) by_id.emplace(unit->id, unit);
    bool whole = true;
    selection.for_each_data([&](LRESULT data) {
        auto found = by_id.find(static_cast<int32_t>(data));
        // A unit that left the host's list since the last refill is skipped.
        if (!whole || found == by_id.end()) return;
        unit_entry *member = copy_unit(*found->second);
        dlist_node *first = joining->next;
        if (member) dlist_push_front(joining, dlist_value(member));
        if (joining->next == first) {
            host_delete(member);
            whole = false;
        }
    });
    if (!whole) {
        destroy_entry_list<unit_entry>(joining);
        return;
    }
    dlist_splice(joining, working.members);  // the new members, then the old ones
    dlist_splice(working.members, joining);
    dlist_destroy(joining);
}

void add_selected_units(HWND dialog) {
    held_list units(host().host_unit_list);
    if (!units) return;
    // Sized by the host's list, which the available lines were made from.
    selected_lines selection(GetDlgItem(dialog, IDC_GC_AVAILABLE), units.get() ? dlist_count(units.get()) : 0);
    if (selection.count() > 0) join_selected(units.get(), selection);
    fill_group_members(dialog);
    fill_available_units(dialog);
}

void remove_selected_members(HWND dialog) {
    if (member_lines == 0) return;
    selected_lines selection(GetDlgItem(dialog, IDC_GC_MEMBERS), static_cast<uint32_t>(member_lines));
    // The first member of each selected id leaves, in one walk of the members.
    std::unordered_set<int32_t> leaving;
    selection.for_each_data([&](LRESULT data) { leaving.insert(static_cast<int32_t>(data)); });
    for (dlist_node *node : dlist_nodes(working.members)) {
        if (leaving.empty()) break;
        auto *member = reinterpret_cast<unit_entry *>(node->value);
        if (!member || !leaving.erase(member->id)) continue;
        dlist_remove_node(node);
        host_delete(member);
    }
    fill_group_members(dialog);
    fill_available_units(dialog);
}

void on_init(HWND dialog) {
    fill_available_units(dialog);
    fill_group_members(dialog);
    show_name(dialog);
    enable_control(dialog, IDC_GC_RENAME, true);
    if (working.target_player_only) CheckDlgButton(dialog, IDC_GC_TARGET_PLAYER, BST_CHECKED);
    show_appearance(dialog);
    fill_group_types(dialog);
    centre_dialog(dialog);
    ShowWindow(dialog, SW_SHOW);
}

bool on_command(HWND dialog, int id, int code) {
    // The appearance controls act on any notification.
    switch (id) {
    case IDC_GC_PLUS:
        if ((working.appearance & APPEAR_PERCENT_MASK) <= 90) working.appearance += 10;
        show_appearance(dialog);
        return true;
    case IDC_GC_MINUS:
        if ((working.appearance & APPEAR_PERCENT_MASK) > 10) working.appearance -= 10;
        show_appearance(dialog);
        return true;
    case IDC_GC_BY_GROUP:
        working.appearance = (working.appearance & ~0xE00u) | APPEAR_BY_GROUP;
        return true;
    case IDC_GC_BY_UNIT:
        working.appearance = (working.appearance & ~0xD00u) | APPEAR_BY_UNIT;
        return true;
    default:
        break;
    }
    if (code != BN_CLICKED) return false;
    switch (id) {
    case IDC_GC_TARGET_PLAYER:
        working.target_player_only = working.target_player_only == 0 ? 1 : 0;
        return true;
    case IDC_GC_RENAME:
        edit_name(dialog, working.name);
        show_name(dialog);
        return true;
    case IDC_GC_EDIT_ORDERS:
        edit_group_orders(dialog, &working);
        return true;
    case IDC_GC_ADD:
        add_selected_units(dialog);
        return true;
    case IDC_GC_REMOVE:
        remove_selected_members(dialog);
        return true;
    default:
        return false;
    }
}

dialog_end on_ok(HWND dialog) {
    LPARAM type = -1;
    if (!combo_selected_data(GetDlgItem(dialog, IDC_GC_TYPE), type)) type = -1;
    working.group_type = static_cast<int32_t>(type);
    // A record that cannot be written whole stays as it was, and so does the dialog.
    return store_group(*edited, working) ? END_CONFIRMED : KEEP_OPEN;
}

const dialog_class group_composition_dialog = {on_init, on_command, on_ok, nullptr, TRUE};
}  // namespace

int group_composition_start() { return module.start(); }
int group_composition_tidyup() { return module.tidyup(); }

bool group_composition_open() { return module.open; }

int edit_group(group_record *group, dlist_node *groups) {
    modal_session session(module);
    if (!session || !group) return 0;
    // A working copy that cannot be made whole: the dialog does not open.
    if (!load_group(working, *group)) return 0;
    auto free_copy = on_scope_exit([] { free_group_working_copy(working); });
    edited = group;
    group_list = groups;
    return session.run(IDD_GROUP_COMPOSITION, editor_main_window(), dialog_proc<group_composition_dialog>);
}
