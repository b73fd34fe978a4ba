// The waypoint order list and Select New Order Type through their real
// dialogs. Edit Waypoint itself is stood in for by a small dialog built here
// with the order list and its four buttons; its procedure hands them to the
// order-list code, as Edit Waypoint does.
#include "heli/waypoint_orders.h"
#include "tests/heli_orders/order_fixture.h"

namespace {
const char *const waypoint_title = "Edit Waypoint";
const char *const chooser_title = "Select New Order Type";

struct stand_in_state {
    waypoint_record *waypoint = nullptr;
    int reloads = 0;
} stand_in;

void reload(HWND dialog) {
    ++stand_in.reloads;
    fill_waypoint_order_list(dialog, stand_in.waypoint);
}

INT_PTR CALLBACK stand_in_proc(HWND dialog, UINT message, WPARAM wparam, LPARAM) {
    if (message == WM_INITDIALOG) {
        fill_waypoint_order_list(dialog, stand_in.waypoint);
        return TRUE;
    }
    if (message != WM_COMMAND) return FALSE;
    const int id = LOWORD(wparam);
    if (waypoint_order_command(dialog, stand_in.waypoint, id, HIWORD(wparam), reload)) return TRUE;
    if (id == IDOK || id == IDCANCEL) EndDialog(dialog, id);
    return id == IDOK || id == IDCANCEL;
}

// A visible modal template: the list box and the four buttons with the ids
// Edit Waypoint gives them, classes by ordinal.
std::vector<WORD> stand_in_template() {
    std::vector<WORD> t;
    auto put = [&t](const void *data, size_t bytes) {
        const WORD *words = static_cast<const WORD *>(data);
        t.insert(t.end(), words, words + bytes / 2);
    };
    auto text = [&t](const char *s) {
        while (*s) t.push_back(static_cast<WORD>(*s++));
        t.push_back(0);
    };
    const struct {
        int id;
        WORD class_ordinal;
        DWORD style;
        short y;
    } controls[] = {{IDC_WPO_ORDERS, 0x83, LBS_NOTIFY | WS_BORDER | WS_VSCROLL, 5},
                    {IDC_WPO_ADD, 0x80, BS_PUSHBUTTON, 5},
                    {IDC_WPO_INSERT, 0x80, BS_PUSHBUTTON, 25},
                    {IDC_WPO_EDIT, 0x80, BS_PUSHBUTTON, 45},
                    {IDC_WPO_REMOVE, 0x80, BS_PUSHBUTTON, 65}};
    DLGTEMPLATE head{DS_MODALFRAME | WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_VISIBLE, 0, 5, 0, 0, 180, 100};
    put(&head, sizeof head);
    t.push_back(0);  // no menu
    t.push_back(0);  // the standard dialog class
    text(waypoint_title);
    for (const auto &c : controls) {
        if (t.size() % 2) t.push_back(0);  // items start on 4-byte boundaries
        const bool list = c.class_ordinal == 0x83;
        DLGITEMTEMPLATE item{WS_CHILD | WS_VISIBLE | c.style, 0, short(list ? 5 : 110), c.y, short(list ? 100 : 60),
                             short(list ? 90 : 14), WORD(c.id)};
        put(&item, sizeof item);
        t.push_back(0xFFFF);
        t.push_back(c.class_ordinal);
        text(list ? "" : "button");
        t.push_back(0);  // no creation data
    }
    return t;
}

int run_stand_in(waypoint_record &waypoint) {
    stand_in = {&waypoint, 0};
    std::vector<WORD> t = stand_in_template();
    return static_cast<int>(DialogBoxIndirectParamA(GetModuleHandleA(nullptr),
                                                    reinterpret_cast<const DLGTEMPLATE *>(t.data()),
                                                    current_host->main_window, stand_in_proc, 0));
}
}  // namespace

class waypoint_orders_test : public heli_order_test {
protected:
    waypoint_record waypoint{};

    void TearDown() override {
        ui_driver::close_all_dialogs();
        // The orders left in the list are the test's to destroy; the others
        // the editor destroyed already.
        made.clear();
        if (waypoint.orders) {
            for (heli_order_record *o : values<heli_order_record>(waypoint.orders)) made.push_back(o);
            host.free_list(waypoint.orders);
        }
        heli_order_test::TearDown();
    }
    void set_orders(const std::vector<heli_order_record *> &orders) {
        std::vector<uintptr_t> list;
        for (heli_order_record *o : orders) list.push_back(reinterpret_cast<uintptr_t>(o));
        waypoint.orders = host.build_list(list);
    }
    std::vector<uint32_t> kinds() const {
        std::vector<uint32_t> out;
        for (heli_order_record *o : values<heli_order_record>(waypoint.orders)) out.push_back(o->kind);
        return out;
    }
    void pick(ui_driver &d, const std::string &kind) {
        d.then(chooser_title, [kind](HWND dlg) {
            ui_list_select(dlg, IDC_SOT_KINDS, kind);
            ui_command(dlg, IDOK);
        });
    }
};

TEST_F(waypoint_orders_test, select_order_type_offers_the_kinds_in_kind_order) {
    const struct {
        int line;       // -1: none selected
        bool double_click;
        int button;     // when not double-clicking
        int result;
        uint32_t kind;  // 99: left alone
    } cases[] = {
        {5, true, 0, 1, HELI_ORDER_LAND}, {0, true, 0, 1, HELI_ORDER_ENGAGE}, {3, false, IDOK, 1, HELI_ORDER_PATROL},
        {-1, false, IDOK, 0, 99},         {-1, true, 0, 0, 99},               {2, false, IDCANCEL, 0, 99},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.line);
        uint32_t kind = 99;
        ui_driver d;
        d.then(chooser_title, [&](HWND dlg) {
            EXPECT_EQ(ui_list_items(dlg, IDC_SOT_KINDS), (names{"Engage", "Deploy", "Pickup", "Patrol", "Wait", "Land"}));
            EXPECT_TRUE(ui_list_selected(dlg, IDC_SOT_KINDS).empty());
            if (c.line >= 0) ui_list_select_index(dlg, IDC_SOT_KINDS, c.line);
            c.double_click ? ui_list_double_click(dlg, IDC_SOT_KINDS) : ui_command(dlg, c.button);
        });
        EXPECT_EQ(select_order_type(host.main_window, &kind), c.result);
        EXPECT_DRIVER_OK(d);
        EXPECT_EQ(kind, c.kind);
    }
    EXPECT_EQ(host.heli.creates, 0);
}

TEST_F(waypoint_orders_test, new_orders_and_confirmed_copies_enter_the_list_found_by_their_lines) {
    heli_order_record *patrol = order(HELI_ORDER_PATROL), *wait = order(HELI_ORDER_WAIT),
                      *unknown = order(HELI_ORDER_ENGAGE), *engage = order(HELI_ORDER_ENGAGE);
    unknown->kind = 7;  // no line, and beyond the editor's reach
    set_orders({patrol, wait, unknown, engage});
    const std::string patrol_before = snapshot(patrol);
    ui_driver d;
    d.then(waypoint_title, [](HWND dlg) {
        EXPECT_EQ(ui_list_items(dlg, IDC_WPO_ORDERS), (names{"Patrol", "Wait", "Engage"}));
        ui_list_select_index(dlg, IDC_WPO_ORDERS, 2);  // Engage: the list's fourth node
        ui_command(dlg, IDC_WPO_INSERT);
    });
    pick(d, "Deploy");
    d.then("Edit Deploy Order", [](HWND dlg) { ui_command(dlg, IDOK); });
    d.then(waypoint_title, [&](HWND dlg) {
        EXPECT_EQ(ui_list_items(dlg, IDC_WPO_ORDERS), (names{"Patrol", "Wait", "Deploy", "Engage"}));
        EXPECT_TRUE(ui_list_selected(dlg, IDC_WPO_ORDERS).empty());
        EXPECT_EQ(stand_in.reloads, 1);
        ui_list_select_index(dlg, IDC_WPO_ORDERS, 1);
        ui_command(dlg, IDC_WPO_EDIT);
    });
    d.then("Edit Wait Order", [](HWND dlg) {
        ui_combo_select(dlg, IDC_WAIT_MODE, "Wait Until Time");
        ui_command(dlg, IDOK);
    });
    d.then(waypoint_title, [&](HWND dlg) {
        // Edited on a copy, cancelled after list changes: the order stays whole.
        ui_list_select_index(dlg, IDC_WPO_ORDERS, 0);
        ui_list_double_click(dlg, IDC_WPO_ORDERS);
    });
    d.then("Edit Patrol Order", [](HWND dlg) {
        ui_list_select_index(dlg, IDC_PATROL_MARKERS, 0);
        ui_command(dlg, IDC_PATROL_ADD);
    });
    d.then("Edit Patrol Order", [](HWND dlg) { ui_command(dlg, IDCANCEL); });
    d.then(waypoint_title, [&](HWND dlg) {
        EXPECT_EQ(snapshot(patrol), patrol_before);
        EXPECT_EQ(stand_in.reloads, 2);
        ui_list_select_index(dlg, IDC_WPO_ORDERS, 3);
        ui_command(dlg, IDC_WPO_REMOVE);
    });
    // Nothing selected: Insert adds at the end; cancelled in its dialog it is gone again.
    d.then(waypoint_title, [](HWND dlg) { ui_command(dlg, IDC_WPO_INSERT); });
    pick(d, "Land");
    d.then("Edit Land Order", [](HWND dlg) { ui_command(dlg, IDCANCEL); });
    d.then(waypoint_title, [](HWND dlg) { ui_command(dlg, IDC_WPO_ADD); });
    d.then(chooser_title, [](HWND dlg) { ui_command(dlg, IDCANCEL); });
    d.then(waypoint_title, [&](HWND dlg) {
        host.heli.refuse_create = true;
        ui_command(dlg, IDC_WPO_ADD);
    });
    pick(d, "Land");
    d.then(waypoint_title, [&](HWND dlg) {
        host.heli.refuse_create = false;
        host.heli.refuse_copy = true;
        ui_list_select_index(dlg, IDC_WPO_ORDERS, 0);
        ui_command(dlg, IDC_WPO_EDIT);
    });
    d.then(waypoint_title, [&](HWND dlg) {
        host.heli.refuse_copy = false;
        ui_list_select_index(dlg, IDC_WPO_ORDERS, -1);
        ui_command(dlg, IDC_WPO_EDIT);  // no line selected: nothing
        ui_command(dlg, IDC_WPO_REMOVE);
    });
    d.then(waypoint_title, [](HWND dlg) { ui_command(dlg, IDC_WPO_ADD); });
    pick(d, "Pickup");
    d.then("Edit Pickup Order", [](HWND dlg) { ui_command(dlg, IDOK); });
    d.then(waypoint_title, [&](HWND dlg) {
        EXPECT_EQ(ui_list_items(dlg, IDC_WPO_ORDERS), (names{"Patrol", "Wait", "Deploy", "Pickup"}));
        EXPECT_EQ(stand_in.reloads, 4);
        ui_command(dlg, IDCANCEL);
    });
    EXPECT_EQ(run_stand_in(waypoint), IDCANCEL);
    EXPECT_DRIVER_OK(d);

    EXPECT_EQ(kinds(), (std::vector<uint32_t>{HELI_ORDER_PATROL, HELI_ORDER_WAIT, 7, HELI_ORDER_DEPLOY, HELI_ORDER_PICKUP}));
    heli_order_record *wait_now = values<heli_order_record>(waypoint.orders)[1];
    EXPECT_NE(wait_now, wait);  // the confirmed copy took the original's node
    EXPECT_EQ(wait_now->body.wait->mode, uint32_t(WAIT_UNTIL_TIME));
    EXPECT_EQ(host.heli.live.size(), 5u);  // only the listed orders: the replaced and removed ones are gone
    EXPECT_EQ(std::make_pair(host.heli.copies, host.heli.destroys), std::make_pair(2, 4));
    unknown->kind = HELI_ORDER_ENGAGE;  // so that the host frees its body at the end
}

TEST_F(waypoint_orders_test, cancelled_list_edits_on_copies_leave_every_original_whole) {
    heli_order_record *deploy = order(HELI_ORDER_DEPLOY), *pickup = order(HELI_ORDER_PICKUP),
                      *patrol = order(HELI_ORDER_PATROL);
    host.existing_names.insert("Jeep3");
    for (const char *name : {"Tank1", "Grunt7"}) {
        auto *d = static_cast<deploy_entry *>(host.memory.alloc(sizeof(deploy_entry)));
        std::memset(d, 0, sizeof *d);
        std::strcpy(d->name, name);
        host.heli.append(deploy->body.deploy, d);
        auto *p = static_cast<pickup_entry *>(host.memory.alloc(sizeof(pickup_entry)));
        std::memset(p, 0, sizeof *p);
        std::strcpy(p->name, name);
        host.heli.append(pickup->body.pickup, p);
    }
    for (const char *marker : {"WP_North", "LZ_Alpha"})
        host.heli.append(patrol->body.patrol->points, host.heli.create_patrol_point(marker));
    set_orders({deploy, pickup, patrol});
    const std::string before = snapshot(deploy) + snapshot(pickup) + snapshot(patrol);

    // In each dialog: delete the first entry, add one, and cancel.
    const struct {
        const char *title;
        int list, del, add;
        std::function<void(HWND)> fill;
    } dialogs[] = {
        {"Edit Deploy Order", IDC_DEPLOY_LIST, IDC_DEPLOY_DELETE, IDC_DEPLOY_ADD,
         [](HWND dlg) {
             ui_set_text(dlg, IDC_DEPLOY_NAME, "Jeep3");
             ui_set_text(dlg, IDC_DEPLOY_X, "1");
             ui_set_text(dlg, IDC_DEPLOY_Z, "2");
         }},
        {"Edit Pickup Order", IDC_PICKUP_LIST, IDC_PICKUP_DELETE, IDC_PICKUP_ADD,
         [](HWND dlg) { ui_set_text(dlg, IDC_PICKUP_NAME, "Jeep3"); }},
        {"Edit Patrol Order", IDC_PATROL_POINTS, IDC_PATROL_DELETE, IDC_PATROL_ADD,
         [](HWND dlg) { ui_list_select_index(dlg, IDC_PATROL_MARKERS, 1); }},
    };
    ui_driver d;
    for (int line = 0; line < 3; ++line) {
        const auto &dialog = dialogs[line];
        d.then(waypoint_title, [line](HWND dlg) {
            ui_list_select_index(dlg, IDC_WPO_ORDERS, line);
            ui_command(dlg, IDC_WPO_EDIT);
        });
        d.then(dialog.title, [&dialog](HWND dlg) {
            ui_list_select_index(dlg, dialog.list, 0);
            ui_command(dlg, dialog.del);
        });
        d.then(dialog.title, [&dialog](HWND dlg) {
            dialog.fill(dlg);
            ui_command(dlg, dialog.add);
        });
        d.then(dialog.title, [&dialog](HWND dlg) {
            EXPECT_EQ(ui_list_items(dlg, dialog.list).size(), 2u);
            ui_command(dlg, IDCANCEL);
        });
    }
    d.then(waypoint_title, [](HWND dlg) { ui_command(dlg, IDOK); });
    EXPECT_EQ(run_stand_in(waypoint), IDOK);
    EXPECT_DRIVER_OK(d);
    EXPECT_EQ(snapshot(deploy) + snapshot(pickup) + snapshot(patrol), before);
    EXPECT_EQ(stand_in.reloads, 0);
    EXPECT_EQ(std::make_pair(host.heli.copies, host.heli.destroys), std::make_pair(3, 3));
}
