// Group Composition: what it offers, what it writes back, and that every copy
// it makes goes back to the host with its exact size on every way out.
#include "ground/group_composition.h"
#include "ground/group_record.h"
#include "tests/ground/group_fixture.h"

namespace {
using lines = std::vector<std::string>;
uintptr_t arg(const void *p) { return reinterpret_cast<uintptr_t>(p); }
bool asked_for(test_host &host, size_t size) {
    auto sizes = host.memory.requested_sizes();
    return std::find(sizes.begin(), sizes.end(), size) != sizes.end();
}
}  // namespace

class composition_test : public group_test {
protected:
    int edit(group_record *g, std::initializer_list<ui_driver::action> steps, bool with_list = true) {
        return drive("Dialog", steps, [&] {
            return editor_window(REQUEST_GROUP_COMPOSITION, arg(g), with_list ? groups_arg() : 0);
        });
    }
};

TEST_F(composition_test, offers_units_no_other_live_group_holds_and_never_the_groups_own) {
    add_group("sarge0", {1});
    add_group("sarge1", {2}, GROUP_STATUS_REMOVED);
    group_record *edited = add_group("sarge2", {3});
    group_record *empty = add_group("sarge3", {});
    host.free_list(empty->members);
    empty->members = nullptr;  // a group without a member list has no members
    lines available, members;
    EXPECT_EQ(0, edit(edited, {[&](HWND dlg) {
        available = ui_list_items(dlg, IDC_GC_AVAILABLE);
        members = ui_list_items(dlg, IDC_GC_MEMBERS);
        ui_command(dlg, IDCANCEL);
    }}));
    EXPECT_EQ(available, (lines{"Jeep3 (jeep)", "Mortar2 (mortar)", "Tank2 (tank_t80)"}));
    EXPECT_EQ(members, (lines{"Grunt7 (infantry)"}));
    EXPECT_EQ(host.unit_acquires, 1);
    EXPECT_EQ(host.standalone_acquires, 0);
}

TEST_F(composition_test, without_a_group_list_the_standalone_units_are_offered) {
    host.standalone_units = {test_host::unit(7, "Scout9", "recon"), test_host::unit(1, "Tank1", "tank_t80")};
    group_record *g = loose_group("alone", {host.units[0]});
    host.units.clear();
    lines available;
    EXPECT_EQ(edit(g,
                   {[&](HWND dlg) {
                        available = ui_list_items(dlg, IDC_GC_AVAILABLE);
                        // Add-> looks units up in the other host list, empty here: nothing joins.
                        ui_list_select(dlg, IDC_GC_AVAILABLE, "Scout9 (recon)");
                        ui_command(dlg, IDC_GC_ADD);
                    },
                    press_ok},
                   false),
              1);
    EXPECT_EQ(available, (lines{"Scout9 (recon)"}));
    EXPECT_EQ(host.standalone_acquires, 2);
    EXPECT_EQ(host.unit_acquires, 1);
    EXPECT_EQ(member_ids(g), (std::vector<int32_t>{1}));
    EXPECT_TRUE(asked_for(host, 0));  // the index array sized by that empty list: 0 x 4 bytes
}

TEST_F(composition_test, added_units_go_in_front_vanished_ones_are_skipped_removed_ones_return) {
    host.units.push_back(test_host::unit(-1, "Minus1", "decoy"));  // -1 is an id like any other
    group_record *g = add_group("sarge0", {3, 4});
    lines available, members;
    EXPECT_EQ(edit(g, {[&](HWND dlg) {
                           for (const char *line : {"Minus1 (decoy)", "Tank1 (tank_t80)", "Tank2 (tank_t80)"})
                               ui_list_select(dlg, IDC_GC_AVAILABLE, line);
                           host.units.erase(host.units.begin());  // Tank1 goes away
                           ui_command(dlg, IDC_GC_ADD);
                       },
                       [&](HWND dlg) {
                           ui_list_select(dlg, IDC_GC_MEMBERS, "Jeep3 (jeep)");
                           ui_command(dlg, IDC_GC_REMOVE);
                       },
                       [&](HWND dlg) {
                           available = ui_list_items(dlg, IDC_GC_AVAILABLE);
                           members = ui_list_items(dlg, IDC_GC_MEMBERS);
                           ui_command(dlg, IDOK);
                       }}),
              1);
    EXPECT_EQ(available, (lines{"Jeep3 (jeep)", "Mortar2 (mortar)"}));  // refilled from the host
    EXPECT_EQ(members, (lines{"Grunt7 (infantry)", "Minus1 (decoy)", "Tank2 (tank_t80)"}));
    // Each selected unit in turn goes to the front.
    EXPECT_EQ(member_ids(g), (std::vector<int32_t>{2, -1, 3}));
    EXPECT_TRUE(asked_for(host, 20));  // the index array sized by the host's list at the time (5 units)
}

TEST_F(composition_test, cancel_leaves_the_record_and_frees_the_working_copy) {
    group_record *g = add_group("sarge0", {1});
    g->orders[0] = order(SARGE_ORDER_HALT, "wait");
    g->order_count = 1;
    g->contingencies[0] = contingency(TRIGGER_UNDER_FIRE, "duck");
    g->contingency_count = 1;
    std::vector<unsigned char> before(reinterpret_cast<unsigned char *>(g), reinterpret_cast<unsigned char *>(g + 1));
    size_t blocks = host.memory.live_blocks();
    EXPECT_EQ(edit(g, {[&](HWND dlg) {
                           ui_list_select(dlg, IDC_GC_AVAILABLE, "Tank2 (tank_t80)");
                           ui_command(dlg, IDC_GC_ADD);
                           ui_command(dlg, IDC_GC_PLUS);
                           ui_click(dlg, IDC_GC_TARGET_PLAYER);
                       },
                       press_cancel}),
              0);
    EXPECT_EQ(0, std::memcmp(before.data(), g, sizeof *g));
    EXPECT_EQ(host.memory.live_blocks(), blocks);
}

TEST_F(composition_test, ok_writes_everything_back_and_a_null_member_list_gets_a_new_one) {
    group_record *g = add_group("sarge0", {});
    host.free_list(g->members);
    g->members = nullptr;
    g->host_word = 0xCAFEF00D;
    g->status = 77;
    g->group_type = 2;
    g->appearance = APPEAR_BY_UNIT | 40;
    g->target_player_only = 1;
    g->orders[0] = order(SARGE_ORDER_DEFEND, "hold");
    g->order_count = 1;
    for (auto &c : g->contingencies) c.trigger = 9;  // stale slots are cleared on OK
    g->contingencies[0] = contingency(TRIGGER_DAMAGE, "run");
    g->contingency_count = 1;
    std::string shown_name;
    ui_driver d;
    d.then("Dialog", [&](HWND dlg) {
        EXPECT_EQ(ui_combo_selected(dlg, IDC_GC_TYPE), "FRIENDLY_ARMOUR");
        EXPECT_EQ(ui_text(dlg, IDC_GC_NAME), "sarge0");
        EXPECT_FALSE(ui_checked(dlg, IDC_GC_BY_GROUP));
        EXPECT_TRUE(ui_checked(dlg, IDC_GC_BY_UNIT) && ui_checked(dlg, IDC_GC_TARGET_PLAYER));
        ui_combo_select(dlg, IDC_GC_TYPE, "ENEMY_ARMOUR");
        ui_click(dlg, IDC_GC_TARGET_PLAYER);
        ui_list_select(dlg, IDC_GC_AVAILABLE, "Mortar2 (mortar)");
        ui_command(dlg, IDC_GC_ADD);
        ui_command(dlg, IDC_GC_RENAME);
    });
    d.then("", [&](HWND name) {
        ui_set_text(name, IDC_EN_NAME, "Alpha Company");
        ui_command(name, IDOK);
    });
    d.then("Dialog", [&](HWND dlg) {
        shown_name = ui_text(dlg, IDC_GC_NAME);
        ui_command(dlg, IDOK);
    });
    EXPECT_EQ(editor_window(REQUEST_GROUP_COMPOSITION, arg(g), groups_arg()), 1);
    EXPECT_DRIVER_OK(d);
    EXPECT_EQ(shown_name, "Alpha Company");
    EXPECT_STREQ(g->name, "Alpha Company");
    EXPECT_EQ(g->host_word, 0xCAFEF00Du);
    EXPECT_EQ(g->status, 77);
    EXPECT_EQ(g->group_type, 23);
    EXPECT_EQ(g->target_player_only, 0);
    EXPECT_EQ(g->appearance, APPEAR_BY_UNIT | 40u);
    ASSERT_NE(g->members, nullptr);
    EXPECT_EQ(member_ids(g), (std::vector<int32_t>{5}));
    EXPECT_EQ(g->order_count, 1);
    EXPECT_STREQ(g->orders[0].name, "hold");
    EXPECT_EQ(g->contingency_count, 1);
    EXPECT_EQ(g->contingencies[0].trigger, TRIGGER_DAMAGE);
    for (int i = 1; i < GROUP_MAX_CONTINGENCIES; ++i) EXPECT_EQ(g->contingencies[i].trigger, 0) << i;
}

TEST_F(composition_test, group_type_is_minus_one_when_nothing_is_selected) {
    group_record *g = add_group("sarge0", {});
    g->group_type = 99;  // matches no entry: nothing selected
    EXPECT_EQ(1, edit(g, {[&](HWND dlg) {
        EXPECT_EQ(ui_combo_selected(dlg, IDC_GC_TYPE), "");
        EXPECT_EQ(ui_combo_items(dlg, IDC_GC_TYPE).size(), 43u);
        ui_command(dlg, IDOK);
    }}));
    EXPECT_EQ(g->group_type, -1);
    // Text typed into the combo's edit field that matches no entry.
    g->group_type = 4;
    EXPECT_EQ(1, edit(g, {[&](HWND dlg) {
        HWND edit_field = FindWindowExA(GetDlgItem(dlg, IDC_GC_TYPE), nullptr, "Edit", nullptr);
        SetWindowTextA(edit_field, "NOT_A_TYPE");
        SendMessageA(GetDlgItem(dlg, IDC_GC_TYPE), WM_COMMAND, MAKEWPARAM(1001, EN_CHANGE),
                     reinterpret_cast<LPARAM>(edit_field));
        ui_command(dlg, IDOK);
    }}));
    EXPECT_EQ(g->group_type, -1);
}

TEST_F(composition_test, appearance_percent_steps_by_ten_and_the_radios_keep_higher_bits) {
    struct appearance_case {
        uint32_t appearance;
        std::vector<int> clicks;
        lines shown;  // the percent before each click and at OK
        uint32_t stored;
    };
    const appearance_case cases[] = {
        {100, {IDC_GC_PLUS, IDC_GC_MINUS}, {"100", "100", "90"}, 90},
        {0, {IDC_GC_MINUS, IDC_GC_PLUS}, {"0", "0", "10"}, 10},
        {95, {IDC_GC_PLUS, IDC_GC_MINUS}, {"95", "95", "85"}, 85},
        {10, {IDC_GC_MINUS}, {"10", "10"}, 10},
        {0x3000 | 0xC00 | 50, {IDC_GC_BY_UNIT, IDC_GC_BY_GROUP}, {"50", "50", "50"}, 0x3000u | APPEAR_BY_GROUP | 50},
        {0x3000 | 0x500 | 50, {IDC_GC_BY_UNIT}, {"50", "50"}, 0x3000u | APPEAR_BY_UNIT | 50},
    };
    for (const appearance_case &c : cases) {
        SCOPED_TRACE(c.appearance);
        group_record *g = add_group("sarge" + std::to_string(c.appearance), {});
        g->appearance = c.appearance;
        lines shown;
        std::vector<bool> radios;
        ui_driver d;
        auto look = [&](HWND dlg) {
            shown.push_back(ui_text(dlg, IDC_GC_PERCENT));
            radios.push_back(ui_enabled(dlg, IDC_GC_BY_GROUP) && ui_enabled(dlg, IDC_GC_BY_UNIT));
        };
        for (int id : c.clicks)
            d.then("Dialog", [=](HWND dlg) {
                look(dlg);
                (id == IDC_GC_BY_GROUP || id == IDC_GC_BY_UNIT) ? ui_click(dlg, id) : ui_command(dlg, id);
            });
        d.then("Dialog", [=](HWND dlg) {
            look(dlg);
            ui_command(dlg, IDOK);
        });
        EXPECT_EQ(editor_window(REQUEST_GROUP_COMPOSITION, arg(g), groups_arg()), 1);
        EXPECT_DRIVER_OK(d);
        EXPECT_EQ(shown, c.shown);
        EXPECT_EQ(g->appearance, c.stored);
        for (size_t i = 0; i < shown.size(); ++i) EXPECT_EQ(radios[i], shown[i] != "100") << i;  // 100%: no choice
    }
}

TEST_F(composition_test, refused_unit_lists_leave_the_available_list_empty) {
    group_record *g = add_group("sarge0", {1});
    host.refuse_unit_acquire = true;
    lines available, members{"x"};
    EXPECT_EQ(edit(g, {[&](HWND dlg) {
                           available = ui_list_items(dlg, IDC_GC_AVAILABLE);
                           ui_list_select(dlg, IDC_GC_MEMBERS, "Tank1 (tank_t80)");
                           ui_command(dlg, IDC_GC_ADD);  // cannot acquire: nothing happens
                           ui_command(dlg, IDC_GC_REMOVE);
                       },
                       [&](HWND dlg) {
                           members = ui_list_items(dlg, IDC_GC_MEMBERS);
                           ui_command(dlg, IDOK);
                       }}),
              1);
    EXPECT_TRUE(available.empty());
    EXPECT_TRUE(members.empty());
    EXPECT_TRUE(member_ids(g).empty());

    host.refuse_unit_acquire = false;
    host.refuse_unit_release = true;
    available = {"x"};
    EXPECT_EQ(0, edit(g, {[&](HWND dlg) {
        available = ui_list_items(dlg, IDC_GC_AVAILABLE);
        ui_command(dlg, IDCANCEL);
    }}));
    EXPECT_TRUE(available.empty());
}

TEST_F(composition_test, over_long_and_unterminated_names_are_cut_not_overrun) {
    unit_entry wide{};
    std::memset(wide.name, 'N', sizeof wide.name);  // no terminator at all
    std::memset(wide.type_name, 'T', sizeof wide.type_name - 1);
    wide.id = 9;
    host.units = {wide};
    group_record *g = add_group("sarge0", {});
    lines available;
    EXPECT_EQ(edit(g, {[&](HWND dlg) {
                           available = ui_list_items(dlg, IDC_GC_AVAILABLE);
                           ui_list_select_index(dlg, IDC_GC_AVAILABLE, 0);
                           ui_command(dlg, IDC_GC_ADD);
                       },
                       press_ok}),
              1);
    EXPECT_EQ(available, (lines{std::string(31, 'N') + " (" + std::string(31, 'T') + ")"}));
    ASSERT_EQ(member_ids(g), (std::vector<int32_t>{9}));
    EXPECT_EQ(std::string(reinterpret_cast<unit_entry *>(g->members->next->value)->name), std::string(31, 'N'));
}

TEST_F(composition_test, out_of_memory_shows_nothing_and_host_counts_are_capped) {
    group_record *g = add_group("sarge0", {1});
    host.memory.failing = true;
    EXPECT_EQ(editor_window(REQUEST_GROUP_COMPOSITION, arg(g), groups_arg()), 0);
    host.memory.failing = false;

    g->order_count = 40;  // host counts beyond the slots
    g->contingency_count = 40;
    group_working_copy copy{};
    ASSERT_TRUE(load_group(copy, *g));
    EXPECT_EQ(dlist_count(copy.orders), 25u);
    EXPECT_EQ(dlist_count(copy.contingencies), 15u);
    group_record *target = loose_group("target", {});
    store_group(*target, copy);
    EXPECT_EQ(target->order_count, 25);
    EXPECT_EQ(target->contingency_count, 15);
    free_group_working_copy(copy);
    free_group_working_copy(copy);  // a second call finds nothing to free
}
