// Ground orders and object names. Request 10 lists the sample objects for
// renaming. The Sarge Order and contingency order dialogs have no request of
// their own: a game reaches them through Group Composition and Group Orders,
// so the developer entries put one sample order into a scratch group, open
// request 9 and click through to the order's Edit button; the designer then
// works in the order dialog, and the host logs the order as it came back.
#include <array>
#include <cstdio>
#include <cstring>
#include <string>
#include <vector>

#include "host/host_app.h"
#include "host/sample_mission.h"
#include "host/ui_driver.h"
#include "resources/ground_ids.h"

namespace {
// The shared group record, by its byte offsets (7844 bytes).
constexpr uint32_t group_size = 7844;
constexpr size_t group_name = 4;
constexpr size_t group_orders = 36;
constexpr size_t group_order_count = 4336;
constexpr size_t group_members = 4348;
constexpr size_t group_contingencies = 4352;
constexpr size_t group_contingency_count = 7832;
constexpr size_t group_type = 7840;

// Group Composition and Group Orders are both titled "Dialog".
constexpr const char *group_title = "Dialog";

void copy_name(char *field, size_t size, const char *text) {
    std::snprintf(field, size, "%s", text);
}

sarge_order_record sample_order(int32_t type, const char *name) {
    sarge_order_record r;
    std::memset(&r, 0, sizeof r);
    r.type = type;
    copy_name(r.name, sizeof r.name, name);
    r.duration = type == SARGE_ORDER_HALT ? 30.0f : type == SARGE_ORDER_BARRAGE ? 120.0f : 0.0f;
    copy_name(r.destination, sizeof r.destination, "WP_Bridge");
    copy_name(r.formation, sizeof r.formation, "Wedge");
    r.formation_rotation = 45.0f;
    if (type == SARGE_ORDER_ADVANCE) {
        copy_name(r.message, sizeof r.message, "bridge taken");
        copy_name(r.message_target, sizeof r.message_target, "HQ");
    }
    return r;
}

// The host's sample records, kept between openings.
std::array<sarge_order_record, 4> &sample_orders() {
    static std::array<sarge_order_record, 4> orders = {
        sample_order(SARGE_ORDER_HALT, "hold"),
        sample_order(SARGE_ORDER_DEFEND, "dig in"),
        sample_order(SARGE_ORDER_BARRAGE, "shell bridge"),
        sample_order(SARGE_ORDER_ADVANCE, "take bridge"),
    };
    return orders;
}

contingency_order_record &sample_contingency() {
    static contingency_order_record c = [] {
        contingency_order_record r;
        std::memset(&r, 0, sizeof r);
        r.trigger = TRIGGER_DAMAGE;
        r.survivors = 3;
        copy_name(r.next_order, sizeof r.next_order, "regroup");
        r.order = sample_order(SARGE_ORDER_ADVANCE, "fall back");
        copy_name(r.order.destination, sizeof r.order.destination, "LZ_Alpha");
        return r;
    }();
    return c;
}

template <class T>
T *at(unsigned char *group, size_t offset) {
    return reinterpret_cast<T *>(group + offset);
}

// A scratch group holding one order or one contingency order.
unsigned char *make_group(const sarge_order_record *order, const contingency_order_record *contingency) {
    auto *group = static_cast<unsigned char *>(app().memory.alloc(group_size));
    if (!group) return nullptr;
    std::memset(group, 0, group_size);
    copy_name(at<char>(group, group_name), 32, "sarge9");
    *at<int32_t>(group, group_type) = 1;
    if (order) {
        std::memcpy(group + group_orders, order, sizeof *order);
        *at<int32_t>(group, group_order_count) = 1;
    }
    if (contingency) {
        std::memcpy(group + group_contingencies, contingency, sizeof *contingency);
        *at<int32_t>(group, group_contingency_count) = 1;
    }
    return group;
}

// Frees the scratch group with whatever member list the editor gave it.
void free_group(unsigned char *group) {
    auto *members = *at<dlist_node *>(group, group_members);
    if (members) {
        for (dlist_node *node = members->next; node != members; node = node->next)
            if (node->value) app().memory.free(reinterpret_cast<void *>(node->value), 68);
        host_list_free(members);
    }
    app().memory.free(group, group_size);
}

std::string text_of(const char *field, size_t size) { return std::string(field, strnlen(field, size)); }

void log_order(const char *what, const sarge_order_record &r) {
    char line[512];
    std::snprintf(line, sizeof line,
                  "%s: type %d, name \"%s\", duration %f, destination \"%s\", formation \"%s\", rotation %f, "
                  "message \"%s\" to \"%s\"",
                  what, static_cast<int>(r.type), text_of(r.name, 32).c_str(), static_cast<double>(r.duration),
                  text_of(r.destination, 32).c_str(), text_of(r.formation, 32).c_str(),
                  static_cast<double>(r.formation_rotation), text_of(r.message, 32).c_str(),
                  text_of(r.message_target, 32).c_str());
    app().log(line);
}

void log_contingency(const contingency_order_record &c) {
    char line[256];
    std::snprintf(line, sizeof line,
                  "contingency: trigger %d, next order \"%s\", survivors %d, distance %f, trigger string \"%s\"",
                  static_cast<int>(c.trigger), text_of(c.next_order, 16).c_str(), static_cast<int>(c.survivors),
                  static_cast<double>(c.distance), text_of(c.trigger_string, 32).c_str());
    app().log(line);
    log_order("  its order", c.order);
}

// Opens request 9 on the group and clicks through to the Edit button of one
// list. `at_order` are steps on the order dialog: for the tour they screenshot
// and cancel; interactively there are none, the designer works, and once the order
// dialog is gone Group Orders and Group Composition are confirmed.
using order_steps = std::vector<ui_driver::action>;

int open_through_groups(unsigned char *group, int list, int edit, const char *order_title,
                        const order_steps &at_order) {
    const bool tour = !at_order.empty();
    // Group Composition lists the host's units when it opens.
    host_ops ops = sample_host_ops();
    if (!ops.host_unit_list || !ops.host_unit_list_standalone) {
        app().log("ground orders: the sample host offers no unit lists yet; Group Composition cannot open");
        return 0;
    }
    ui_driver driver(tour ? 8000 : 3600 * 1000);
    driver.then(group_title, [](HWND composition) { ui_command(composition, IDC_GC_EDIT_ORDERS); });
    driver.then(group_title, [list, edit](HWND orders) {
        ui_list_select_index(orders, list, 0);
        ui_command(orders, edit);
    });
    for (const ui_driver::action &step : at_order) driver.then(order_title, step);
    const int close = tour ? IDCANCEL : IDOK;
    driver.then(group_title, [close](HWND orders) { ui_command(orders, close); });
    driver.then(group_title, [close](HWND composition) { ui_command(composition, close); });
    int result = app().window(REQUEST_GROUP_COMPOSITION, reinterpret_cast<uintptr_t>(group), 0);
    if (tour)
        tour_check(driver);
    else if (!driver.ok())
        app().log("ground orders: " + driver.failures());
    return result;
}

void edit_order(size_t index, const order_steps &at_order = {}) {
    sarge_order_record &order = sample_orders()[index];
    unsigned char *group = make_group(&order, nullptr);
    if (!group) return;
    int result = open_through_groups(group, IDC_GO_ORDERS, IDC_GO_EDIT, "Sarge Order", at_order);
    app().log("sarge order: group composition answered " + std::to_string(result));
    if (result && *at<int32_t>(group, group_order_count) >= 1)
        std::memcpy(&order, group + group_orders, sizeof order);
    log_order("sarge order", order);
    free_group(group);
}

void edit_contingency(const order_steps &at_order = {}) {
    contingency_order_record &c = sample_contingency();
    unsigned char *group = make_group(nullptr, &c);
    if (!group) return;
    int result = open_through_groups(group, IDC_GO_CONTINGENCIES, IDC_GO_C_EDIT, "Sarge Order", at_order);
    app().log("contingency order: group composition answered " + std::to_string(result));
    if (result && *at<int32_t>(group, group_contingency_count) >= 1)
        std::memcpy(&c, group + group_contingencies, sizeof c);
    log_contingency(c);
    free_group(group);
}

// Request 10 over the sample objects: 68-byte unit entries in host memory,
// renamed in place; new names go back into the sample mission.
int object_names(const std::function<void()> &script = nullptr) {
    sample_mission &m = mission();
    dlist_node *list = host_list_create();
    if (!list) return 0;
    for (const sample_object &o : m.objects) {
        auto *entry = static_cast<unit_entry *>(app().memory.alloc(68));
        if (!entry) continue;
        std::memset(entry, 0, sizeof *entry);
        copy_name(entry->name, sizeof entry->name, o.name.c_str());
        copy_name(entry->type_name, sizeof entry->type_name, o.shape.c_str());
        entry->id = static_cast<int32_t>(o.id);
        host_list_append(list, reinterpret_cast<uintptr_t>(entry));
    }
    if (script) script();
    int result = app().window(REQUEST_OBJECT_NAMES, reinterpret_cast<uintptr_t>(list), 0);
    app().log("object names: answered " + std::to_string(result));
    for (dlist_node *node = list->next; node != list; node = node->next) {
        auto *entry = reinterpret_cast<unit_entry *>(node->value);
        for (sample_object &o : m.objects) {
            if (static_cast<int32_t>(o.id) != entry->id) continue;
            std::string name = text_of(entry->name, 32);
            if (name != o.name) app().log("  " + std::to_string(o.id) + " renamed \"" + o.name + "\" -> \"" + name + "\"");
            o.name = name;
        }
        app().memory.free(entry, 68);
    }
    host_list_free(list);
    return result;
}

void tour_orders() {
    // Each opened as its Developer entry does: request 9 on a scratch group
    // holding the order, Edit Orders, then the order's Edit.
    const std::string how = " (request 9 on a scratch group, Edit Orders, Edit): ";
    struct shot {
        const char *name;
        const char *entry;
        const char *order;
    };
    static const shot shots[] = {
        {"sarge_order_halt", "Sarge order (Halt)", "the Halt order \"hold\", 30 s."},
        {"sarge_order_defend", "Sarge order (Defend)", "the Defend order \"dig in\", a name only."},
        {"sarge_order_barrage", "Sarge order (Barrage)", "the Barrage order \"shell bridge\", 120 s on WP_Bridge."},
        {"sarge_order_advance", "Sarge order (Advance)",
         "the Advance order \"take bridge\" to WP_Bridge in Wedge, reporting \"bridge taken\" to HQ."},
    };
    for (size_t i = 0; i < sample_orders().size(); ++i) {
        const shot &s = shots[i];
        const std::string caption = std::string("Ground menu, Developer: ") + s.entry + how + s.order;
        edit_order(i, {[&s, &caption](HWND dialog) {
                       tour_screenshot(dialog, "Sarge Order", s.name, caption);
                       ui_command(dialog, IDCANCEL);
                   }});
    }
    // Damage with an Advance order, then switched to Enemy Close with a Halt.
    const std::string first = "Ground menu, Developer: Contingency order" + how +
                              "on Damage with 3 survivors, Advance \"fall back\" to LZ_Alpha, then \"regroup\".";
    edit_contingency({[&first](HWND dialog) {
                          tour_screenshot(dialog, "Sarge Order (contingency)", "contingency_damage_advance", first);
                          ui_combo_select(dialog, IDC_CT_TRIGGER, "Enemy Close");
                          ui_combo_select(dialog, IDC_CT_ORDER_TYPE, "Halt");
                      },
                      [](HWND dialog) {
                          tour_screenshot(dialog, "Sarge Order (contingency)", "contingency_enemy_close_halt",
                                          "The same contingency order with its trigger set to Enemy Close and its "
                                          "order type to Halt.");
                          ui_command(dialog, IDCANCEL);
                      }});
}

void tour_names() {
    ui_driver driver;
    driver.then("Dialog", [](HWND list) {
        tour_screenshot(list, "Object Names", "object_names",
                        "Ground menu, Object names (request 10) over the sample's five objects, the unnamed oak "
                        "included.");
        ui_list_select_index(list, IDC_ON_LIST, 2);
        ui_command(list, IDC_ON_EDIT_NAME);
    });
    driver.then("", [](HWND edit) {
        tour_screenshot(edit, "Edit Name", "edit_name", "Object Names, Edit Name on 103, Tank1.");
        SetDlgItemTextA(edit, IDC_EN_NAME, "Tank2");
        ui_command(edit, IDOK);
    });
    driver.then("Name Error", [](HWND box) {
        tour_screenshot(box, "Edit Name", "edit_name_refused",
                        "Edit Name, OK after renaming Tank1 to Tank2, a name the sample mission already has.");
        ui_command(box, IDOK);
    });
    driver.then("Dialog", [](HWND list) { ui_command(list, IDCANCEL); });
    object_names();
    tour_check(driver);
}
}  // namespace

HOST_FEATURE("&Ground", "Object &names...", [] { object_names(); }, tour_names, 50);
HOST_FEATURE("&Ground", "Developer: Sarge order (Halt)...", [] { edit_order(0); }, tour_orders, 51);
HOST_FEATURE("&Ground", "Developer: Sarge order (Defend)...", [] { edit_order(1); }, nullptr, 51);
HOST_FEATURE("&Ground", "Developer: Sarge order (Barrage)...", [] { edit_order(2); }, nullptr, 51);
HOST_FEATURE("&Ground", "Developer: Sarge order (Advance)...", [] { edit_order(3); }, nullptr, 51);
HOST_FEATURE("&Ground", "Developer: Contingency order...", [] { edit_contingency(); }, nullptr, 51);
