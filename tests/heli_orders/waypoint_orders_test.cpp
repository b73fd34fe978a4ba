// The waypoint order list and Select New Order Type through their real
// dialogs. Edit Waypoint is stood in for by a small dialog built here with the
// order list and its four buttons, whose procedure hands them to the
// order-list code as Edit Waypoint does.
#include "heli/waypoint_orders.h"
#include "tests/heli_orders/order_fixture.h"

namespace {
const char *const waypoint_title = "Edit Waypoint";
const char *const chooser_title = "Select New Order Type";
waypoint_record *stood_in = nullptr;
int reloads = 0;

void reload(HWND dialog) {
    ++reloads;
    fill_waypoint_order_list(dialog, stood_in);
}

INT_PTR CALLBACK stand_in_proc(HWND dialog, UINT message, WPARAM wparam, LPARAM) {
    const int id = LOWORD(wparam);
    if (message == WM_INITDIALOG) fill_waypoint_order_list(dialog, stood_in);
    if (message != WM_COMMAND) return message == WM_INITDIALOG;
    if (!waypoint_order_command(dialog, stood_in, id, HIWORD(wparam), reload) && (id == IDOK || id == IDCANCEL))
        EndDialog(dialog, id);
    return TRUE;
}

// Runs the stand-in from a template made here: the list box and the four
// buttons with Edit Waypoint's ids, classes by ordinal.
int run_stand_in(waypoint_record &waypoint) {
    stood_in = &waypoint;
    reloads = 0;
    std::vector<WORD> t(sizeof(DLGTEMPLATE) / 2);
    *reinterpret_cast<DLGTEMPLATE *>(t.data()) = {WS_POPUP | WS_CAPTION | WS_VISIBLE, 0, 5, 0, 0, 180, 100};
    t.insert(t.end(), {0, 0});  // no menu, the standard class
    for (const char *c = waypoint_title; *c || (t.push_back(0), false); ++c) t.push_back(WORD(*c));
    for (int id : {IDC_WPO_ORDERS, IDC_WPO_ADD, IDC_WPO_INSERT, IDC_WPO_EDIT, IDC_WPO_REMOVE}) {
        t.resize((t.size() + 1) / 2 * 2);  // items start on 4-byte boundaries
        const bool list = id == IDC_WPO_ORDERS;
        const DLGITEMTEMPLATE item{DWORD(WS_CHILD | WS_VISIBLE | (list ? LBS_NOTIFY | WS_BORDER : BS_PUSHBUTTON)), 0,
                                   short(list ? 5 : 110), short(list ? 5 : id % 100), 100, short(list ? 90 : 12), WORD(id)};
        const WORD *words = reinterpret_cast<const WORD *>(&item);
        t.insert(t.end(), words, words + sizeof item / 2);
        t.insert(t.end(), {0xFFFF, WORD(list ? 0x83 : 0x80), 0, 0});  // class, no caption, no data
    }
    return int(DialogBoxIndirectParamA(nullptr, reinterpret_cast<DLGTEMPLATE *>(t.data()), current_host->main_window,
                                       stand_in_proc, 0));
}
}  // namespace

class waypoint_orders_test : public heli_order_test {
protected:
    waypoint_record waypoint{};

    // The orders left in the list are the test's to destroy; the editor
    // destroyed the others.
    void TearDown() override {
        ui_driver::close_all_dialogs();
        made = values<heli_order_record>(waypoint.orders);
        host.free_list(waypoint.orders);
        heli_order_test::TearDown();
    }
    void set_orders(const std::vector<heli_order_record *> &orders) {
        std::vector<uintptr_t> list;
        for (heli_order_record *o : orders) list.push_back(reinterpret_cast<uintptr_t>(o));
        waypoint.orders = host.build_list(list);
        made.clear();
    }
    static ui_driver::action on_line(int index, int button) { return pick(IDC_WPO_ORDERS, index, button); }
    static ui_driver::action choose(int kind) { return pick(IDC_SOT_KINDS, kind, IDOK); }
};

TEST_F(waypoint_orders_test, new_orders_and_confirmed_copies_take_the_place_of_the_selected_line) {
    heli_order_record *patrol = order(HELI_ORDER_PATROL), *wait = order(HELI_ORDER_WAIT),
                      *odd = order(HELI_ORDER_ENGAGE), *engage = order(HELI_ORDER_ENGAGE);
    odd->kind = 7;  // no line, out of the list's reach
    set_orders({patrol, wait, odd, engage});
    ui_driver d;
    d.then(waypoint_title, [](HWND dlg) {
        EXPECT_EQ(ui_list_items(dlg, IDC_WPO_ORDERS), (names{"Patrol", "Wait", "Engage"}));
        on_line(2, IDC_WPO_INSERT)(dlg);  // Engage, the fourth node
    });
    d.then(chooser_title, choose(HELI_ORDER_DEPLOY));
    d.then("Edit Deploy Order", type({}, IDOK));
    d.then(waypoint_title, [](HWND dlg) {
        EXPECT_EQ(ui_list_items(dlg, IDC_WPO_ORDERS), (names{"Patrol", "Wait", "Deploy", "Engage"}));
        EXPECT_TRUE(ui_list_selected(dlg, IDC_WPO_ORDERS).empty());
        on_line(1, 0)(dlg);
    });
    d.then("Edit Wait Order", [](HWND dlg) {
        ui_combo_select(dlg, IDC_WAIT_MODE, "Wait Until Time");
        ui_command(dlg, IDOK);
    });
    d.then(waypoint_title, on_line(3, IDC_WPO_REMOVE));
    d.then(waypoint_title, on_line(-1, IDC_WPO_INSERT));  // no line: at the end
    d.then(chooser_title, [](HWND dlg) {
        EXPECT_EQ(ui_list_items(dlg, IDC_SOT_KINDS), (names{"Engage", "Deploy", "Pickup", "Patrol", "Wait", "Land"}));
        pick(IDC_SOT_KINDS, HELI_ORDER_LAND, 0)(dlg);
    });
    d.then("Edit Land Order", type({}, IDCANCEL));  // the new order is destroyed
    d.then(waypoint_title, type({}, IDC_WPO_ADD));
    d.then(chooser_title, type({}, IDOK));  // no kind chosen: nothing made
    d.then(waypoint_title, type({}, IDC_WPO_ADD));
    d.then(chooser_title, type({}, IDCANCEL));
    d.then(waypoint_title, [&](HWND dlg) {
        host.heli.refuse_create = true;
        type({}, IDC_WPO_ADD)(dlg);
    });
    d.then(chooser_title, choose(HELI_ORDER_ENGAGE));
    d.then(waypoint_title, [&](HWND dlg) {
        host.heli.refuse_create = false;
        host.heli.refuse_copy = true;
        on_line(0, IDC_WPO_EDIT)(dlg);
    });
    d.then(waypoint_title, [&](HWND dlg) {
        host.heli.refuse_copy = false;
        EXPECT_EQ(reloads, 3);
        type({}, IDC_WPO_ADD)(dlg);
    });
    d.then(chooser_title, choose(HELI_ORDER_PICKUP));
    d.then("Edit Pickup Order", type({}, IDOK));
    d.then(waypoint_title, [](HWND dlg) {
        EXPECT_EQ(ui_list_items(dlg, IDC_WPO_ORDERS), (names{"Patrol", "Wait", "Deploy", "Pickup"}));
        ui_command(dlg, IDCANCEL);
    });
    EXPECT_EQ(run_stand_in(waypoint), IDCANCEL);
    EXPECT_DRIVER_OK(d);
    std::vector<heli_order_record *> orders = values<heli_order_record>(waypoint.orders);
    ASSERT_EQ(orders.size(), 5u);
    EXPECT_TRUE(orders[0] == patrol && orders[1] != wait && orders[2] == odd);
    EXPECT_EQ(std::make_pair(orders[3]->kind, orders[4]->kind), std::make_pair(1u, 2u));  // Deploy, Pickup
    EXPECT_EQ(orders[1]->body.wait->mode, uint32_t(WAIT_UNTIL_TIME));  // the confirmed copy
    // Only the listed orders are left: the replaced, removed and cancelled ones are gone.
    EXPECT_EQ(host.heli.live.size(), 5u);
    EXPECT_EQ(std::make_tuple(host.heli.creates, host.heli.copies, host.heli.destroys), std::make_tuple(7, 1, 3));
    odd->kind = HELI_ORDER_ENGAGE;  // so that the host frees its body
}

TEST_F(waypoint_orders_test, cancelled_list_edits_on_copies_leave_every_original_whole) {
    heli_order_record *deploy = order(HELI_ORDER_DEPLOY), *pickup = order(HELI_ORDER_PICKUP),
                      *patrol = order(HELI_ORDER_PATROL);
    for (const char *name : {"Tank1", "Grunt7"}) {
        auto *d = static_cast<deploy_entry *>(host.memory.alloc(sizeof(deploy_entry)));
        auto *p = static_cast<pickup_entry *>(host.memory.alloc(sizeof(pickup_entry)));
        std::strcpy(d->name, name);
        std::strcpy(p->name, name);
        host.heli.append(deploy->body.deploy, d);
        host.heli.append(pickup->body.pickup, p);
        host.heli.append(patrol->body.patrol->points, host.heli.create_patrol_point("WP_North"));
    }
    set_orders({deploy, pickup, patrol});
    const std::string before = snapshot(deploy) + snapshot(pickup) + snapshot(patrol);
    // In each dialog: delete the first entry, add one, cancel.
    const struct {
        const char *title;
        int list, del, add, name;
    } dialogs[] = {{"Edit Deploy Order", IDC_DEPLOY_LIST, IDC_DEPLOY_DELETE, IDC_DEPLOY_ADD, IDC_DEPLOY_NAME},
                   {"Edit Pickup Order", IDC_PICKUP_LIST, IDC_PICKUP_DELETE, IDC_PICKUP_ADD, IDC_PICKUP_NAME},
                   {"Edit Patrol Order", IDC_PATROL_POINTS, IDC_PATROL_DELETE, IDC_PATROL_ADD, 0}};
    ui_driver d;
    for (int line = 0; line < 3; ++line) {
        const auto &dialog = dialogs[line];
        d.then(waypoint_title, on_line(line, IDC_WPO_EDIT));
        d.then(dialog.title, [&dialog](HWND dlg) {
            ui_list_select_index(dlg, dialog.list, 0);
            ui_command(dlg, dialog.del);
        });
        d.then(dialog.title, [&dialog](HWND dlg) {
            ui_set_text(dlg, dialog.name, "Tank2");
            ui_set_text(dlg, IDC_DEPLOY_X, "1");
            ui_set_text(dlg, IDC_DEPLOY_Z, "2");
            ui_list_select_index(dlg, IDC_PATROL_MARKERS, 1);
            ui_command(dlg, dialog.add);
        });
        d.then(dialog.title, [&dialog](HWND dlg) {
            EXPECT_EQ(ui_list_items(dlg, dialog.list).size(), 2u) << dialog.title;
            ui_command(dlg, IDCANCEL);
        });
    }
    d.then(waypoint_title, type({}, IDOK));
    EXPECT_EQ(run_stand_in(waypoint), IDOK);
    EXPECT_DRIVER_OK(d);
    EXPECT_EQ(snapshot(deploy) + snapshot(pickup) + snapshot(patrol), before);
    EXPECT_EQ(std::make_pair(host.heli.copies, host.heli.destroys), std::make_pair(3, 3));
    EXPECT_EQ(reloads, 0);
}
