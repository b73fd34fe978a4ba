// Group Composition: what it offers and what OK writes back. Cancel and
// failed allocations are in all_or_nothing_test.cpp.
#include "tests/ground/group_fixture.h"

namespace {
bool asked_for(test_host &host, size_t size) {
    auto sizes = host.memory.requested_sizes();
    return std::find(sizes.begin(), sizes.end(), size) != sizes.end();
}
}  // namespace

TEST_F(group_test, composition_without_a_group_list_offers_the_standalone_units) {
    host.standalone_units = {test_host::unit(7, "Scout9", "recon"), test_host::unit(1, "Tank1", "tank_t80")};
    group_record *g = loose_group("alone", {host.units[0]});
    g->group_type = 99;  // matches no entry: nothing selected, stored as none
    g->order_count = g->contingency_count = 40;  // host counts beyond the slots
    host.units.clear();
    lines available;
    EXPECT_EQ(compose(g, {[&](HWND dlg) {
        available = ui_list_items(dlg, IDC_GC_AVAILABLE);
        // Add-> looks units up in the other host list, empty here: nothing joins.
        ui_list_select(dlg, IDC_GC_AVAILABLE, "Scout9 (recon)");
        ui_command(dlg, IDC_GC_ADD);
    }, press_ok}, false), 1);
    EXPECT_EQ(available, (lines{"Scout9 (recon)"}));
    EXPECT_EQ(host.standalone_acquires * 10 + host.unit_acquires, 21);
    EXPECT_EQ(member_ids(g), (std::vector<int32_t>{1}));
    EXPECT_EQ(g->group_type, -1);
    EXPECT_EQ(g->order_count * 100 + g->contingency_count, GROUP_MAX_ORDERS * 100 + GROUP_MAX_CONTINGENCIES);
    EXPECT_TRUE(asked_for(host, 0));  // the index array sized by that empty list: 0 x 4 bytes
}

TEST_F(group_test, composition_adds_in_front_skips_vanished_units_and_returns_removed_ones) {
    host.units.push_back(test_host::unit(-1, "Minus1", "decoy"));  // -1 is an id like any other
    group_record *g = add_group("sarge0", {3, 4});
    lines available, members;
    EXPECT_EQ(compose(g, {[&](HWND dlg) {
        for (const char *line : {"Minus1 (decoy)", "Tank1 (tank_t80)", "Tank2 (tank_t80)"})
            ui_list_select(dlg, IDC_GC_AVAILABLE, line);
        host.units.erase(host.units.begin());  // Tank1 goes away
        ui_command(dlg, IDC_GC_ADD);
    }, [&](HWND dlg) {
        ui_list_select(dlg, IDC_GC_MEMBERS, "Jeep3 (jeep)");
        ui_command(dlg, IDC_GC_REMOVE);
    }, [&](HWND dlg) {
        available = ui_list_items(dlg, IDC_GC_AVAILABLE);
        members = ui_list_items(dlg, IDC_GC_MEMBERS);
        press_ok(dlg);
    }}), 1);
    EXPECT_EQ(available, (lines{"Jeep3 (jeep)", "Mortar2 (mortar)"}));  // refilled from the host
    EXPECT_EQ(members, (lines{"Grunt7 (infantry)", "Minus1 (decoy)", "Tank2 (tank_t80)"}));
    EXPECT_EQ(member_ids(g), (std::vector<int32_t>{2, -1, 3}));  // each selected unit in turn to the front
    EXPECT_TRUE(asked_for(host, 20));  // the index array sized by the host's list at the time (5 units)
}

// Units no other live group holds are offered (a removed group's are, the
// edited group's own are not), long and unterminated names cut; OK writes
// everything back, a null member list gets a new one.
TEST_F(group_test, composition_offers_free_units_and_ok_writes_everything_back) {
    add_group("sarge0", {1});
    add_group("sarge1", {2}, GROUP_STATUS_REMOVED);
    group_record *g = add_group("sarge2", {});
    host.free_list(g->members);
    g->members = nullptr;  // a group without a member list has no members
    unit_entry wide = test_host::unit(9, "", std::string(31, 'T'));
    std::memset(wide.name, 'N', sizeof wide.name);  // no terminator at all
    host.units.push_back(wide);
    const std::string wide_line = std::string(31, 'N') + " (" + std::string(31, 'T') + ")";
    g->host_word = 0xCAFEF00D;
    g->status = 77;
    g->group_type = 2;
    g->appearance = APPEAR_BY_UNIT | 40;
    g->target_player_only = 1;
    g->orders[g->order_count++] = order(SARGE_ORDER_DEFEND, "hold");
    for (auto &c : g->contingencies) c.trigger = 9;  // stale slots are cleared on OK
    g->contingencies[g->contingency_count++] = contingency(TRIGGER_DAMAGE, "run");
    std::string before, after;
    lines available;
    ui_driver d;
    d.then("Dialog", [&](HWND dlg) {
        available = ui_list_items(dlg, IDC_GC_AVAILABLE);
        before = shown(dlg, {IDC_GC_TYPE, IDC_GC_NAME, IDC_GC_BY_GROUP, IDC_GC_BY_UNIT, IDC_GC_TARGET_PLAYER});
        ui_combo_select(dlg, IDC_GC_TYPE, "ENEMY_ARMOUR");
        ui_click(dlg, IDC_GC_TARGET_PLAYER);
        ui_list_select(dlg, IDC_GC_AVAILABLE, wide_line);
        ui_command(dlg, IDC_GC_ADD);
        ui_command(dlg, IDC_GC_RENAME);
    });
    d.then("", [&](HWND name) { ui_set_text(name, IDC_EN_NAME, "Alpha Company"); press_ok(name); });
    d.then("Dialog", [&](HWND dlg) { after = ui_text(dlg, IDC_GC_NAME); press_ok(dlg); });
    EXPECT_EQ(editor_window(REQUEST_GROUP_COMPOSITION, arg(g), groups_arg()), 1);
    EXPECT_DRIVER_OK(d);
    EXPECT_EQ(available, (lines{"Grunt7 (infantry)", "Jeep3 (jeep)", "Mortar2 (mortar)", wide_line, "Tank2 (tank_t80)"}));
    EXPECT_EQ(host.standalone_acquires, 0);
    EXPECT_EQ(before, "FRIENDLY_ARMOUR,sarge2,o,x,x");
    EXPECT_EQ(after, "Alpha Company");
    EXPECT_STREQ(g->name, "Alpha Company");
    EXPECT_TRUE(g->host_word == 0xCAFEF00Du && g->status == 77 && g->appearance == (APPEAR_BY_UNIT | 40u));
    EXPECT_EQ(g->group_type, 23);
    EXPECT_EQ(g->target_player_only, 0);
    ASSERT_EQ(member_ids(g), (std::vector<int32_t>{9}));
    EXPECT_EQ(std::string(reinterpret_cast<unit_entry *>(g->members->next->value)->name), std::string(31, 'N'));
    EXPECT_TRUE(g->order_count == 1 && !std::strcmp(g->orders[0].name, "hold"));
    EXPECT_TRUE(g->contingency_count == 1 && g->contingencies[0].trigger == TRIGGER_DAMAGE);
    for (int i = 1; i < GROUP_MAX_CONTINGENCIES; ++i) EXPECT_EQ(g->contingencies[i].trigger, 0) << i;
}

TEST_F(group_test, composition_appearance_steps_by_ten_and_the_radios_keep_higher_bits) {
    const struct {
        uint32_t appearance;
        std::vector<int> clicks;
        lines shown;  // the percent and the radios' state before each click and at OK
        uint32_t stored;
    } cases[] = {
        {100, {IDC_GC_PLUS, IDC_GC_MINUS}, {"100,[o],[o]", "100,[o],[o]", "90,o,o"}, 90},
        {0, {IDC_GC_MINUS, IDC_GC_PLUS}, {"0,o,o", "0,o,o", "10,o,o"}, 10},
        {95, {IDC_GC_PLUS, IDC_GC_MINUS}, {"95,o,o", "95,o,o", "85,o,o"}, 85},
        {10, {IDC_GC_MINUS}, {"10,o,o", "10,o,o"}, 10},
        {0x3000 | 0xC00 | 50, {IDC_GC_BY_UNIT, IDC_GC_BY_GROUP}, {"50,o,o", "50,o,x", "50,x,o"},
         0x3000u | APPEAR_BY_GROUP | 50},
        {0x3000 | 0x500 | 50, {IDC_GC_BY_UNIT}, {"50,x,o", "50,o,x"}, 0x3000u | APPEAR_BY_UNIT | 50},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.appearance);
        group_record *g = add_group("sarge" + std::to_string(c.appearance), {});
        g->appearance = c.appearance;
        lines seen;
        auto look = [&](HWND dlg) { seen.push_back(shown(dlg, {IDC_GC_PERCENT, IDC_GC_BY_GROUP, IDC_GC_BY_UNIT})); };
        ui_driver d;
        for (int id : c.clicks)
            d.then("Dialog", [=](HWND dlg) {
                look(dlg);
                (id == IDC_GC_BY_GROUP || id == IDC_GC_BY_UNIT) ? ui_click(dlg, id) : ui_command(dlg, id);
            });
        d.then("Dialog", [=](HWND dlg) { look(dlg); press_ok(dlg); });
        EXPECT_EQ(editor_window(REQUEST_GROUP_COMPOSITION, arg(g), groups_arg()), 1);
        EXPECT_DRIVER_OK(d);
        EXPECT_EQ(seen, c.shown);
        EXPECT_EQ(g->appearance, c.stored);
    }
}

// A unit list the host will not take back is shown empty although its units were read.
TEST_F(group_test, composition_with_a_refused_unit_release_offers_nothing) {
    group_record *g = add_group("sarge0", {1});
    host.refuse_unit_release = true;
    lines available{"x"};
    EXPECT_EQ(compose(g, {[&](HWND dlg) { available = ui_list_items(dlg, IDC_GC_AVAILABLE); press_cancel(dlg); }}), 0);
    EXPECT_TRUE(available.empty());
}
