// List Heli Groups through request 15: new records and copies committed
// only on OK (the copy in the original's node, the private units in the
// host's list), destroyed on Cancel; Remove hides a group and gives its
// members back.
#include "heli/heli_group_list.h"
#include "tests/heli/heli_fixture.h"

class heli_group_list_test : public heli_test {
protected:
    // Every group in the host's list (name, status, members), then the available units.
    std::string state() const {
        std::string out;
        for (heli_group_record *g : values<heli_group_record>(groups)) {
            out += std::string(g->name, strnlen(g->name, sizeof g->name));
            out += ":" + std::to_string(g->status) + ":" + ids(g->members) + " ";
        }
        return out + "| " + ids(available);
    }
};

TEST_F(heli_group_list_test, adds_edits_and_removes_reach_the_host_only_when_confirmed) {
    heli_group_record *group0 = add_group("Group0", {7, 8});
    add_group("Group1", {}, HELI_GROUP_STATUS_REMOVED);
    heli_group_record *odd = add_group("", {}, HELI_GROUP_STATUS_ADDED);
    std::memset(odd->name, 'X', sizeof odd->name);  // no terminator
    const std::string x31(31, 'X'), x32 = x31 + 'X';
    const std::vector<void *> units = values(available);
    const char *const list = "List Heli Groups", *const group = "Edit Heli Group";
    lines seen;
    const auto look = [&](HWND dlg) { return listed(dlg, IDC_LHG_GROUPS) + "|" + state(); };
    const auto name = [](HWND dlg) { return ui_text(dlg, IDC_HG_NAME); };
    const auto edit_line = [](int line) { return picking(IDC_LHG_GROUPS, line, press(IDC_LHG_EDIT)); };
    EXPECT_EQ(1, drive({
        {list, press(IDC_LHG_ADD)},
        {group, noting(seen, name, picking(IDC_HG_AVAILABLE, 0, press(IDC_HG_ADD)))},
        {group, press(IDCANCEL)},
        {list, [&](HWND dlg) {
             EXPECT_EQ(values(available), units);  // the private units went, not these
             ui_command(dlg, IDC_LHG_ADD);
         }},
        {group, noting(seen, name, picking(IDC_HG_AVAILABLE, 0, press(IDC_HG_ADD)))},
        {group, press(IDOK)},
        // The available units cannot be copied whole: Edit opens nothing.
        {list, noting(seen, look, [&](HWND dlg) { host.memory.fail_after = 2, edit_line(0)(dlg); })},
        {list, [&](HWND dlg) { host.memory.fail_after = -1, picking(IDC_LHG_GROUPS, 0)(dlg); }},
        {group, typing({{IDC_HG_NAME, "Alpha2"}}, picking(IDC_HG_MEMBERS, 1, press(IDC_HG_REMOVE)))},
        {group, press(IDCANCEL)},
        {list, noting(seen, look, edit_line(0))},
        {group, typing({{IDC_HG_NAME, "Alpha2"}}, picking(IDC_HG_MEMBERS, 0, press(IDC_HG_REMOVE)))},
        {group, press(IDOK)},
        {list, noting(seen, look, edit_line(1))},
        {group, press(IDOK)},
        {list, noting(seen, look, picking(IDC_LHG_GROUPS, 0, press(IDC_LHG_REMOVE)))},
        {list, noting(seen, look, press(IDOK))},
    }, [&] { return editor_window(REQUEST_LIST_HELI_GROUPS, dlist_value(groups), dlist_value(available)); }));
    // The first free GroupN names a new group; a confirmed one is listed
    // last, marked added. An edited group's copy keeps the status the host's
    // copy gave it, and its name as the edit read it; a removed one stays in
    // the host's list, hidden.
    const std::string listed_groups = "Group0:0:7,8 Group1:2: " + x32 + ":1: Group2:1:1 ";
    EXPECT_EQ(seen, (lines{"Group2", "Group2", "Group0/" + x31 + "/Group2|" + listed_groups + "| 2,3,4",
                           ">Group0/" + x31 + "/Group2|" + listed_groups + "| 2,3,4",  // a cancelled edit: no refill
                           "Alpha2/" + x31 + "/Group2|Alpha2:0:8 Group1:2: " + x32 + ":1: Group2:1:1 | 7,2,3,4",
                           "Alpha2/" + x31 + "/Group2|Alpha2:0:8 Group1:2: " + x31 + ":1: Group2:1:1 | 7,2,3,4",
                           x31 + "/Group2|Alpha2:2: Group1:2: " + x31 + ":1: Group2:1:1 | 7,2,3,4,8"}));
    const std::vector<heli_group_record *> now = values<heli_group_record>(groups);
    EXPECT_TRUE(now[0] != group0 && now[2] != odd && !live(group0) && !live(odd));  // copies in their nodes
    for (void *unit : units) EXPECT_FALSE(host.memory.owns(unit));  // replaced by the private copies
}
