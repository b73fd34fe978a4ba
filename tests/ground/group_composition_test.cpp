// Group Composition: what it offers, what it writes back, and that every copy
// it makes goes back to the host with its exact size on every way out.
#include "ground/group_composition.h"
#include "ground/group_record.h"
#include "tests/ground/group_fixture.h"

namespace {
int edit(uintptr_t group, uintptr_t list) { return editor_window(REQUEST_GROUP_COMPOSITION, group, list); }
uintptr_t arg(const void *p) { return reinterpret_cast<uintptr_t>(p); }
}  // namespace

TEST_F(group_test, offers_units_no_other_live_group_holds_and_never_the_groups_own) {
    add_group("sarge0", {1});
    add_group("sarge1", {2}, GROUP_STATUS_REMOVED);
    group_record *edited = add_group("sarge2", {3});
    group_record *empty = add_group("sarge3", {});
    host.free_list(empty->members);
    empty->members = nullptr;  // a group without a member list has no members
    std::vector<std::string> available, members;
    ui_driver d;
    d.then("Dialog", [&](HWND dlg) {
        available = ui_list_items(dlg, GC_AVAILABLE);
        members = ui_list_items(dlg, GC_MEMBERS);
        ui_command(dlg, IDCANCEL);
    });
    EXPECT_EQ(edit(arg(edited), groups_arg()), 0);
    EXPECT_DRIVER_OK(d);
    EXPECT_EQ(available, (std::vector<std::string>{"Jeep3 (jeep)", "Mortar2 (mortar)", "Tank2 (tank_t80)"}));
    EXPECT_EQ(members, (std::vector<std::string>{"Grunt7 (infantry)"}));
    EXPECT_EQ(host.unit_acquires, 1);
    EXPECT_EQ(host.standalone_acquires, 0);
}

TEST_F(group_test, without_a_group_list_the_standalone_units_are_offered) {
    host.standalone_units = {test_host::unit(7, "Scout9", "recon"), test_host::unit(1, "Tank1", "tank_t80")};
    group_record *g = loose_group("alone", {host.units[0]});
    host.units.clear();
    std::vector<std::string> available;
    ui_driver d;
    d.then("Dialog", [&](HWND dlg) {
        available = ui_list_items(dlg, GC_AVAILABLE);
        // Add-> looks units up in the other host list, empty here: nothing joins.
        ui_list_select(dlg, GC_AVAILABLE, "Scout9 (recon)");
        ui_command(dlg, GC_ADD);
    });
    d.then("Dialog", [&](HWND dlg) { ui_command(dlg, IDOK); });
    EXPECT_EQ(edit(arg(g), 0), 1);
    EXPECT_DRIVER_OK(d);
    EXPECT_EQ(available, (std::vector<std::string>{"Scout9 (recon)"}));
    EXPECT_EQ(host.standalone_acquires, 2);
    EXPECT_EQ(host.unit_acquires, 1);
    EXPECT_EQ(member_ids(g), (std::vector<int32_t>{1}));
    // The index array is sized by that empty list: 0 x 4 bytes, asked for all the same.
    auto sizes = host.memory.requested_sizes();
    EXPECT_NE(std::find(sizes.begin(), sizes.end(), 0u), sizes.end());
}

TEST_F(group_test, added_units_go_in_front_and_removed_ones_are_released) {
    group_record *g = add_group("sarge0", {3, 4});
    ui_driver d;
    d.then("Dialog", [&](HWND dlg) {
        ui_list_select(dlg, GC_AVAILABLE, "Tank1 (tank_t80)");
        ui_list_select(dlg, GC_AVAILABLE, "Tank2 (tank_t80)");
        ui_command(dlg, GC_ADD);
    });
    d.then("Dialog", [&](HWND dlg) {
        ui_list_select(dlg, GC_MEMBERS, "Jeep3 (jeep)");
        ui_command(dlg, GC_REMOVE);
    });
    std::vector<std::string> available, members;
    d.then("Dialog", [&](HWND dlg) {
        available = ui_list_items(dlg, GC_AVAILABLE);
        members = ui_list_items(dlg, GC_MEMBERS);
        ui_command(dlg, IDOK);
    });
    EXPECT_EQ(edit(arg(g), groups_arg()), 1);
    EXPECT_DRIVER_OK(d);
    EXPECT_EQ(available, (std::vector<std::string>{"Jeep3 (jeep)", "Mortar2 (mortar)"}));
    EXPECT_EQ(members, (std::vector<std::string>{"Grunt7 (infantry)", "Tank1 (tank_t80)", "Tank2 (tank_t80)"}));
    // Each selected unit in turn goes to the front.
    EXPECT_EQ(member_ids(g), (std::vector<int32_t>{2, 1, 3}));
    EXPECT_EQ(host.memory.live_blocks_of_size(68), 3u);  // the host's unit lists went back
}

TEST_F(group_test, cancel_leaves_the_record_and_frees_the_working_copy) {
    group_record *g = add_group("sarge0", {1});
    g->orders[0] = order(SARGE_ORDER_HALT, "wait");
    g->order_count = 1;
    g->contingencies[0] = contingency(TRIGGER_UNDER_FIRE, "duck");
    g->contingency_count = 1;
    std::vector<unsigned char> before(reinterpret_cast<unsigned char *>(g), reinterpret_cast<unsigned char *>(g + 1));
    size_t blocks = host.memory.live_blocks();
    ui_driver d;
    d.then("Dialog", [&](HWND dlg) {
        ui_list_select(dlg, GC_AVAILABLE, "Tank2 (tank_t80)");
        ui_command(dlg, GC_ADD);
        ui_command(dlg, GC_PLUS);
        ui_click(dlg, GC_TARGET_PLAYER);
    });
    d.then("Dialog", [&](HWND dlg) { ui_command(dlg, IDCANCEL); });
    EXPECT_EQ(edit(arg(g), groups_arg()), 0);
    EXPECT_DRIVER_OK(d);
    EXPECT_EQ(0, std::memcmp(before.data(), g, sizeof *g));
    EXPECT_EQ(host.memory.live_blocks(), blocks);
}

TEST_F(group_test, ok_writes_everything_back_and_a_null_member_list_gets_a_new_one) {
    group_record *g = add_group("sarge0", {});
    host.free_list(g->members);
    g->members = nullptr;
    g->host_word = 0xCAFEF00D;
    g->status = 77;
    g->group_type = 2;
    g->orders[0] = order(SARGE_ORDER_DEFEND, "hold");
    g->order_count = 1;
    for (auto &c : g->contingencies) c.trigger = 9;  // stale slots are cleared on OK
    g->contingencies[0] = contingency(TRIGGER_DAMAGE, "run");
    g->contingency_count = 1;
    std::string shown_type;
    ui_driver d;
    d.then("Dialog", [&](HWND dlg) {
        shown_type = ui_combo_selected(dlg, GC_TYPE);
        ui_combo_select(dlg, GC_TYPE, "ENEMY_ARMOUR");
        ui_click(dlg, GC_TARGET_PLAYER);
        ui_list_select(dlg, GC_AVAILABLE, "Mortar2 (mortar)");
        ui_command(dlg, GC_ADD);
    });
    d.then("Dialog", [&](HWND dlg) { ui_command(dlg, IDOK); });
    EXPECT_EQ(edit(arg(g), groups_arg()), 1);
    EXPECT_DRIVER_OK(d);
    EXPECT_EQ(shown_type, "FRIENDLY_ARMOUR");
    EXPECT_EQ(g->host_word, 0xCAFEF00Du);
    EXPECT_EQ(g->status, 77);
    EXPECT_EQ(g->group_type, 23);
    EXPECT_EQ(g->target_player_only, 1);
    ASSERT_NE(g->members, nullptr);
    EXPECT_EQ(member_ids(g), (std::vector<int32_t>{5}));
    EXPECT_EQ(g->order_count, 1);
    EXPECT_STREQ(g->orders[0].name, "hold");
    EXPECT_EQ(g->contingency_count, 1);
    EXPECT_EQ(g->contingencies[0].trigger, TRIGGER_DAMAGE);
    for (int i = 1; i < GROUP_MAX_CONTINGENCIES; ++i) EXPECT_EQ(g->contingencies[i].trigger, 0) << i;
}

TEST_F(group_test, group_type_is_minus_one_when_nothing_is_selected) {
    group_record *g = add_group("sarge0", {});
    g->group_type = 99;  // matches no entry: nothing selected
    std::string shown;
    ui_driver d;
    d.then("Dialog", [&](HWND dlg) {
        shown = ui_combo_selected(dlg, GC_TYPE);
        EXPECT_EQ(ui_combo_items(dlg, GC_TYPE).size(), 43u);
        ui_command(dlg, IDOK);
    });
    EXPECT_EQ(edit(arg(g), groups_arg()), 1);
    EXPECT_DRIVER_OK(d);
    EXPECT_EQ(shown, "");
    EXPECT_EQ(g->group_type, -1);

    // Text typed into the combo's edit field that matches no entry.
    g->group_type = 4;
    ui_driver typed;
    typed.then("Dialog", [&](HWND dlg) {
        HWND edit_field = FindWindowExA(GetDlgItem(dlg, GC_TYPE), nullptr, "Edit", nullptr);
        SetWindowTextA(edit_field, "NOT_A_TYPE");
        SendMessageA(GetDlgItem(dlg, GC_TYPE), WM_COMMAND, MAKEWPARAM(1001, EN_CHANGE),
                     reinterpret_cast<LPARAM>(edit_field));
        ui_command(dlg, IDOK);
    });
    EXPECT_EQ(edit(arg(g), groups_arg()), 1);
    EXPECT_DRIVER_OK(typed);
    EXPECT_EQ(g->group_type, -1);
}

// Opens the group with `appearance`, runs `clicks` (one step each) and OK; the
// stored appearance, with the percent text and radio state seen after each click.
struct appearance_run {
    uint32_t stored;
    std::vector<std::string> shown;
    std::vector<bool> radios_enabled;
};

class appearance_test : public group_test {
protected:
    appearance_run run(uint32_t appearance, const std::vector<int> &clicks) {
        group_record *g = add_group("sarge" + std::to_string(appearance), {});
        g->appearance = appearance;
        appearance_run r{};
        auto look = [&r](HWND dlg) {
            r.shown.push_back(ui_text(dlg, GC_PERCENT));
            r.radios_enabled.push_back(ui_enabled(dlg, GC_BY_GROUP) && ui_enabled(dlg, GC_BY_UNIT));
        };
        ui_driver d;
        for (int id : clicks) {
            d.then("Dialog", [=](HWND dlg) {
                look(dlg);
                if (id == GC_BY_GROUP || id == GC_BY_UNIT)
                    ui_click(dlg, id);
                else
                    ui_command(dlg, id);
            });
        }
        d.then("Dialog", [=](HWND dlg) {
            look(dlg);
            ui_command(dlg, IDOK);
        });
        EXPECT_EQ(edit(arg(g), groups_arg()), 1);
        EXPECT_DRIVER_OK(d);
        r.stored = g->appearance;
        return r;
    }
};

TEST_F(appearance_test, percent_steps_by_ten_within_its_range) {
    appearance_run full = run(100, {GC_PLUS, GC_MINUS});
    EXPECT_EQ(full.shown, (std::vector<std::string>{"100", "100", "90"}));
    EXPECT_EQ(full.radios_enabled, (std::vector<bool>{false, false, true}));
    EXPECT_EQ(full.stored, 90u);

    appearance_run fresh = run(0, {GC_MINUS, GC_PLUS});
    EXPECT_EQ(fresh.shown, (std::vector<std::string>{"0", "0", "10"}));
    EXPECT_EQ(fresh.stored, 10u);

    appearance_run odd = run(95, {GC_PLUS, GC_MINUS});
    EXPECT_EQ(odd.shown, (std::vector<std::string>{"95", "95", "85"}));
    EXPECT_EQ(odd.stored, 85u);

    appearance_run low = run(10, {GC_MINUS});
    EXPECT_EQ(low.stored, 10u);
}

TEST_F(appearance_test, by_group_and_by_unit_clear_their_bits_and_keep_higher_ones) {
    appearance_run r = run(0x3000 | 0xC00 | 50, {GC_BY_UNIT, GC_BY_GROUP});
    EXPECT_EQ(r.stored, 0x3000u | APPEAR_BY_GROUP | 50);
    appearance_run u = run(0x3000 | 0x500 | 50, {GC_BY_UNIT});
    EXPECT_EQ(u.stored, 0x3000u | APPEAR_BY_UNIT | 50);
}

TEST_F(group_test, shows_the_stored_choices) {
    group_record *g = add_group("sarge0", {});
    g->appearance = APPEAR_BY_UNIT | 40;
    g->target_player_only = 1;
    bool by_group = true, by_unit = false, target = false;
    ui_driver d;
    d.then("Dialog", [&](HWND dlg) {
        by_group = ui_checked(dlg, GC_BY_GROUP);
        by_unit = ui_checked(dlg, GC_BY_UNIT);
        target = ui_checked(dlg, GC_TARGET_PLAYER);
        EXPECT_EQ(ui_text(dlg, GC_NAME), "sarge0");
        ui_click(dlg, GC_TARGET_PLAYER);
    });
    d.then("Dialog", [&](HWND dlg) { ui_command(dlg, IDOK); });
    EXPECT_EQ(edit(arg(g), groups_arg()), 1);
    EXPECT_DRIVER_OK(d);
    EXPECT_FALSE(by_group);
    EXPECT_TRUE(by_unit);
    EXPECT_TRUE(target);
    EXPECT_EQ(g->target_player_only, 0);
    EXPECT_EQ(g->appearance, APPEAR_BY_UNIT | 40u);
}

TEST_F(group_test, rename_shows_the_new_name_and_ok_stores_it) {
    group_record *g = add_group("sarge0", {});
    std::string shown;
    ui_driver d;
    d.then("Dialog", [&](HWND dlg) { ui_command(dlg, GC_RENAME); });
    d.then("", [&](HWND name) {
        ui_set_text(name, 1066, "Alpha Company");
        ui_command(name, IDOK);
    });
    d.then("Dialog", [&](HWND dlg) {
        shown = ui_text(dlg, GC_NAME);
        ui_command(dlg, IDOK);
    });
    EXPECT_EQ(edit(arg(g), groups_arg()), 1);
    EXPECT_DRIVER_OK(d);
    EXPECT_EQ(shown, "Alpha Company");
    EXPECT_STREQ(g->name, "Alpha Company");
}

TEST_F(group_test, refused_unit_lists_leave_the_available_list_empty) {
    group_record *g = add_group("sarge0", {1});
    host.refuse_unit_acquire = true;
    std::vector<std::string> available, members;
    ui_driver d;
    d.then("Dialog", [&](HWND dlg) {
        available = ui_list_items(dlg, GC_AVAILABLE);
        ui_list_select(dlg, GC_MEMBERS, "Tank1 (tank_t80)");
        ui_command(dlg, GC_ADD);  // cannot acquire: nothing happens
        ui_command(dlg, GC_REMOVE);
    });
    d.then("Dialog", [&](HWND dlg) {
        members = ui_list_items(dlg, GC_MEMBERS);
        ui_command(dlg, IDOK);
    });
    EXPECT_EQ(edit(arg(g), groups_arg()), 1);
    EXPECT_DRIVER_OK(d);
    EXPECT_TRUE(available.empty());
    EXPECT_TRUE(members.empty());
    EXPECT_TRUE(member_ids(g).empty());

    host.refuse_unit_acquire = false;
    host.refuse_unit_release = true;
    ui_driver released;
    released.then("Dialog", [&](HWND dlg) {
        available = ui_list_items(dlg, GC_AVAILABLE);
        ui_command(dlg, IDCANCEL);
    });
    EXPECT_EQ(edit(arg(g), groups_arg()), 0);
    EXPECT_DRIVER_OK(released);
    EXPECT_TRUE(available.empty());
}

TEST_F(group_test, a_selected_unit_that_left_the_host_list_is_skipped) {
    host.units.push_back(test_host::unit(-1, "Minus1", "decoy"));  // -1 is an id like any other
    group_record *g = add_group("sarge0", {});
    ui_driver d;
    d.then("Dialog", [&](HWND dlg) {
        ui_list_select(dlg, GC_AVAILABLE, "Jeep3 (jeep)");
        ui_list_select(dlg, GC_AVAILABLE, "Minus1 (decoy)");
        ui_list_select(dlg, GC_AVAILABLE, "Tank1 (tank_t80)");
        host.units.erase(host.units.begin());  // Tank1 goes away
        ui_command(dlg, GC_ADD);
    });
    d.then("Dialog", [&](HWND dlg) { ui_command(dlg, IDOK); });
    EXPECT_EQ(edit(arg(g), groups_arg()), 1);
    EXPECT_DRIVER_OK(d);
    EXPECT_EQ(member_ids(g), (std::vector<int32_t>{-1, 4}));
    // The index array was sized by the host's list at the time (5 units).
    auto sizes = host.memory.requested_sizes();
    EXPECT_NE(std::find(sizes.begin(), sizes.end(), 20u), sizes.end());
}

TEST_F(group_test, over_long_and_unterminated_names_are_cut_not_overrun) {
    unit_entry wide{};
    std::memset(wide.name, 'N', sizeof wide.name);  // no terminator at all
    std::memset(wide.type_name, 'T', sizeof wide.type_name - 1);
    wide.id = 9;
    host.units = {wide};
    group_record *g = add_group("sarge0", {});
    std::vector<std::string> available;
    ui_driver d;
    d.then("Dialog", [&](HWND dlg) {
        available = ui_list_items(dlg, GC_AVAILABLE);
        ui_list_select_index(dlg, GC_AVAILABLE, 0);
        ui_command(dlg, GC_ADD);
    });
    d.then("Dialog", [&](HWND dlg) { ui_command(dlg, IDOK); });
    EXPECT_EQ(edit(arg(g), groups_arg()), 1);
    EXPECT_DRIVER_OK(d);
    ASSERT_EQ(available.size(), 1u);
    EXPECT_EQ(available[0], std::string(31, 'N') + " (" + std::string(31, 'T') + ")");
    ASSERT_EQ(member_ids(g), (std::vector<int32_t>{9}));
    auto *member = reinterpret_cast<unit_entry *>(g->members->next->value);
    EXPECT_EQ(std::string(member->name), std::string(31, 'N'));
}

TEST_F(group_test, not_started_or_out_of_memory_shows_nothing_and_leaks_nothing) {
    group_record *g = add_group("sarge0", {1});
    host.memory.failing = true;
    EXPECT_EQ(edit(arg(g), groups_arg()), 0);
    host.memory.failing = false;
    editor_tidyup();
    EXPECT_EQ(edit_group(g, groups), 0);
}

TEST_F(group_test, store_group_copies_at_most_what_the_slots_hold) {
    group_record *source = loose_group("big", {});
    source->order_count = 40;  // a host count beyond the slots
    source->contingency_count = 40;
    group_working_copy copy{};
    ASSERT_TRUE(load_group(copy, *source));
    EXPECT_EQ(dlist_count(copy.orders), 25u);
    EXPECT_EQ(dlist_count(copy.contingencies), 15u);
    group_record *target = loose_group("target", {});
    store_group(*target, copy);
    EXPECT_EQ(target->order_count, 25);
    EXPECT_EQ(target->contingency_count, 15);
    free_group_working_copy(copy);
    free_group_working_copy(copy);  // a second call finds nothing to free
}
