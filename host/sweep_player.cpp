#include "host/sweep_player.h"

#include <cstring>
#include <set>

#include "editor/editor.h"
#include "host/list_walk.h"
#include "resources/ground_ids.h"
#include "util/text.h"

// --- The mission -------------------------------------------------------------------
namespace {
template <class T>
std::string raw(const T &value) {
    return std::string(reinterpret_cast<const char *>(&value), sizeof value);
}
std::string raw(const void *block, size_t size) {
    return block ? std::string(static_cast<const char *>(block), size) : "null";
}

// Where a snapshot reports the lists it finds broken, and the allocator
// whose live blocks their nodes must be.
std::vector<std::string> *broken = nullptr;
const alloc_tracker *walk_memory = nullptr;

// The values of a list, front to back, the list checked on the way.
std::vector<void *> values(const dlist_node *list) {
    std::vector<void *> out;
    if (!list) return out;
    std::string fault;
    for (uintptr_t value : checked_values(list, fault, walk_memory)) out.push_back(reinterpret_cast<void *>(value));
    if (!fault.empty() && broken) broken->push_back(fault);
    return out;
}
std::string entries(const dlist_node *list, size_t size) {
    if (!list) return "no list";
    std::string out;
    for (void *entry : values(list)) out += "|" + raw(entry, size);
    return out;
}
// A block of host memory filled from a record.
template <class T>
T *host_block(test_host &host, const T &record) {
    return static_cast<T *>(std::memcpy(host.memory.alloc(sizeof record), &record, sizeof record));
}
template <class T>
dlist_node *host_list(test_host &host, std::initializer_list<T> records) {
    std::vector<uintptr_t> blocks;
    for (const T &r : records) blocks.push_back(reinterpret_cast<uintptr_t>(host_block(host, r)));
    return host.build_list(blocks);
}
template <class T>
void free_host_list(test_host &host, dlist_node *list, size_t size = sizeof(T)) {
    for (void *entry : values(list)) host.memory.free(entry, static_cast<uint32_t>(size));
    host.free_list(list);
}

sarge_order_record sarge_order(int32_t type, const char *name, const char *destination = "",
                               const char *formation = "") {
    sarge_order_record o{};
    o.type = type;
    copy_text(o.name, name);
    copy_text(o.destination, destination);
    copy_text(o.formation, formation);
    o.duration = 30;
    return o;
}

std::string order_bytes(const heli_order_record *order) {
    if (!order) return "null";
    heli_order_record record = *order;
    record.body.word = nullptr;
    std::string out = raw(record);
    switch (order->kind) {
    case HELI_ORDER_ENGAGE: return out + raw(order->body.engage, heli_records::engage_size);
    case HELI_ORDER_DEPLOY: return out + entries(order->body.deploy, sizeof(deploy_entry));
    case HELI_ORDER_PICKUP: return out + entries(order->body.pickup, sizeof(pickup_entry));
    case HELI_ORDER_PATROL: {
        if (!order->body.patrol) return out + "null";
        patrol_order body = *order->body.patrol;
        body.points = nullptr;
        return out + raw(body) + entries(order->body.patrol->points, heli_records::patrol_point_size);
    }
    case HELI_ORDER_WAIT: return out + raw(order->body.wait, sizeof(wait_order));
    case HELI_ORDER_LAND: return out + raw(order->body.land, sizeof(land_order));
    default: return out;
    }
}

// The host's whole block (the editor's part and the host's tail), pointer words zeroed.
std::string without_pointers(const void *record, size_t size, std::initializer_list<size_t> pointers) {
    std::string bytes = raw(record, size);
    for (size_t offset : pointers) bytes.replace(offset, 4, 4, '\0');
    return bytes;
}
}  // namespace

void mission::build(test_host &host) {
    memory = &host.memory;
    heli_records &heli = host.heli;
    const std::vector<unit_entry> &u = host.units;
    group_record *sarge0 = host.make_group("sarge0", {u[0], u[1]});
    sarge0->orders[0] = sarge_order(SARGE_ORDER_HALT, "Wait");
    sarge0->orders[1] = sarge_order(SARGE_ORDER_ADVANCE, "Push", "WP2", "Line");
    copy_text(sarge0->orders[1].message_target, "HQ");
    copy_text(sarge0->orders[1].message, "Done");
    sarge0->order_count = 2;
    sarge0->contingencies[0].trigger = TRIGGER_DAMAGE;
    sarge0->contingencies[0].survivors = 3;
    sarge0->contingencies[0].order = sarge_order(SARGE_ORDER_DEFEND, "Duck");
    sarge0->contingency_count = 1;
    sarge0->appearance = 40 | APPEAR_BY_UNIT;
    groups = host.make_group_list({sarge0, host.make_group("sarge1", {u[2]}),
                                   host.make_group("sarge2", {u[3]}, GROUP_STATUS_REMOVED)});
    objects = host_list(host, {test_host::unit(2, "Tank2", "tank_t80"), test_host::unit(10, "Bridge1", "bridge"),
                               test_host::unit(7, "Church", "building")});

    auto units = [&](std::initializer_list<int> ids) {
        dlist_node *list = heli.new_list();
        for (int id : ids) heli.append(list, host_block(host, test_host::unit(id, "U" + std::to_string(id), "heli")));
        return list;
    };
    auto group = [&](const char *name, std::initializer_list<int> ids) {
        heli_group_record *g = heli.create_heli_group();
        copy_text(g->name, name);
        heli.free_list(g->members);
        g->members = units(ids);
        g->rally_point_id = 202;
        return g;
    };
    auto waypoint = [&](heli_group_record *g, const char *marker, std::initializer_list<heli_order_record *> orders) {
        waypoint_record *w = heli.create_waypoint();
        copy_text(w->marker_name, marker);
        for (heli_order_record *o : orders) heli.append(w->orders, o);
        heli.append(g->waypoints, w);
    };
    heli_group_record *alpha = group("Alpha", {11, 12});
    heli_order_record *patrol = heli.create_order(HELI_ORDER_PATROL);
    heli.append(patrol->body.patrol->points, heli.create_patrol_point("WP_South"));
    heli.append(patrol->body.patrol->points, heli.create_patrol_point("LZ_Alpha"));
    heli_order_record *wait = heli.create_order(HELI_ORDER_WAIT);
    wait->body.wait->mode = WAIT_FOR_OBJECT;
    copy_text(wait->body.wait->name, "Bridge1");
    waypoint(alpha, "WP_North", {patrol, wait});
    waypoint(alpha, "WP_South", {heli.create_order(HELI_ORDER_ENGAGE)});
    deploy_entry cargo{};
    copy_text(cargo.name, "Tank1");
    cargo.x = 5;
    cargo.z = 6;
    heli.append(alpha->in_transit->body.deploy, host_block(host, cargo));
    heli_groups = heli.new_list();
    heli.append(heli_groups, alpha);
    heli.append(heli_groups, group("Bravo", {13}));
    available = units({14, 15, 16});

    bombing_run_record r{};
    copy_text(r.name, "Strike");
    r.target_x = 1000;
    r.target_z = -500;
    r.release_height = 300;
    r.attack_radius = 150;
    r.attack_time = 600;
    copy_text(r.aircraft_type, "F-16");
    r.aircraft_count = 2;
    bombing_waypoint ingress{};
    copy_text(ingress.name, "WP1");
    ingress.height = 80;
    r.ingress = host_list(host, {ingress});
    r.egress = host.build_list({});
    struct type_name {
        char text[32];
    };
    r.aircraft_types = host_list(host, {type_name{"A-10"}, type_name{"F-16"}, type_name{"Tornado"}});
    run = host_block(host, r);

    rally_point_record p{};
    copy_text(p.name, "RP_North");
    p.x = 100;
    p.y = 5;
    p.z = -20;
    p.arsp_locations = host_list(host, {arsp_location{102, 5, -20}});
    rally = host_block(host, p);

    // Every field preset, so that what Create New Objects remembers from an
    // earlier run never shows.
    create_objects_record c{};
    c.enabled = c.preset = 0x1FF;
    copy_text(c.ref_obj, "Church");
    c.number = 1;
    c.obj_dist = 50;
    c.cam_dist = 100;
    c.aalign = c.orient = 3;
    c.aacamrel = c.ocamrel = 1;
    placement = host_block(host, c);
}

void mission::free(test_host &host) {
    host.free_group_list(groups);
    free_host_list<unit_entry>(host, objects);
    for (void *g : values(heli_groups)) host.heli.destroy_heli_group(static_cast<heli_group_record *>(g));
    host.heli.free_list(heli_groups);
    host.heli.free_units(available);
    free_host_list<bombing_waypoint>(host, run->ingress);
    free_host_list<bombing_waypoint>(host, run->egress);
    free_host_list<char>(host, run->aircraft_types, 32);
    host.memory.free(run, sizeof *run);
    free_host_list<arsp_location>(host, rally->arsp_locations);
    host.memory.free(rally, sizeof *rally);
    host.memory.free(placement, sizeof *placement);
    *this = mission{};
}

record_bytes mission::snapshot(std::vector<std::string> *broken_lists) const {
    broken = broken_lists;
    walk_memory = memory;
    record_bytes out;
    int i = 0;
    for (void *g : values(groups)) {
        group_record record = *static_cast<group_record *>(g);
        record.members = nullptr;
        out["ground group " + std::to_string(i++)] = raw(record) + entries(static_cast<group_record *>(g)->members, 68);
    }
    out["objects"] = entries(objects, sizeof(unit_entry));
    i = 0;
    for (void *value : values(heli_groups)) {
        auto *g = static_cast<heli_group_record *>(value);
        std::string bytes = without_pointers(g, heli_records::heli_group_size, {36, 44, 48}) +
                            entries(g->members, sizeof(unit_entry)) + "|in transit " + order_bytes(g->in_transit);
        for (void *w : values(g->waypoints)) {
            bytes += "|waypoint " + without_pointers(w, heli_records::waypoint_size, {56});
            for (void *o : values(static_cast<waypoint_record *>(w)->orders))
                bytes += "|order " + order_bytes(static_cast<heli_order_record *>(o));
        }
        out["heli group " + std::to_string(i++)] = bytes;
    }
    out["available"] = entries(available, sizeof(unit_entry));
    out["bombing run"] = without_pointers(run, sizeof *run, {96, 100, 108}) + entries(run->ingress, 48) + "|egress" +
                         entries(run->egress, 48) + "|types" + entries(run->aircraft_types, 32);
    out["rally point"] = without_pointers(rally, sizeof *rally, {48}) + entries(rally->arsp_locations, 12);
    out["create objects"] = raw(placement, sizeof *placement);
    broken = nullptr;
    return out;
}

// --- Fault points --------------------------------------------------------------------
const char *const family_names[FAMILY_COUNT] = {"host_alloc", "list acquisition", "list release",
                                                "create and copy"};
fault_plan faults;

namespace {
host_ops real;  // the test host's own operations
std::map<const dlist_node *, int> acquisitions;  // a held list's head -> which acquisition it was

bool fail_now(fault_family family) {
    const int n = ++faults.seen[family];
    if (faults.family != family || n != faults.k) return false;
    faults.reached = true;
    return true;
}

void *EDITOR_CDECL fallible_alloc(uint32_t size) { return fail_now(FAIL_ALLOCATION) ? nullptr : real.host_alloc(size); }

// Acquire and release of any list. A refused release has still freed the
// list: the host answers failure after doing its part.
template <class Call>
int list_operation(dlist_node **list, int acquire, Call call) {
    if (acquire) {
        if (fail_now(REFUSE_ACQUIRE)) return 0;
        const int n = faults.seen[REFUSE_ACQUIRE];
        if (n == faults.empty_acquire) {
            *list = current_host->build_list({});
            ++current_host->lists_out;
        } else if (!call(list, acquire)) {
            return 0;
        }
        acquisitions[*list] = n;
        return 1;
    }
    const int paired = acquisitions[*list];
    acquisitions.erase(*list);
    const int answer = call(list, acquire);
    if (!fail_now(REFUSE_RELEASE)) return answer;
    faults.refused_acquire = paired;
    return 0;
}

int EDITOR_CDECL reference_list(int type, dlist_node **list, int acquire) {
    return list_operation(list, acquire, [type](dlist_node **l, int a) { return real.host_reference_list(type, l, a); });
}
template <host_list_fn host_ops::*Slot>
int EDITOR_CDECL list_op(dlist_node **list, int acquire) {
    return list_operation(list, acquire, [](dlist_node **l, int a) { return (real.*Slot)(l, a); });
}

template <auto Slot>
struct fallible;
template <class... A, int(EDITOR_CDECL *host_ops::*Slot)(A...)>
struct fallible<Slot> {
    static int EDITOR_CDECL call(A... args) { return fail_now(FAIL_CREATE_COPY) ? 0 : (real.*Slot)(args...); }
};
}  // namespace

void install_fault_points() {
    host_ops &ops = editor_stored_setup().ops;
    real = ops;
    ops.host_alloc = fallible_alloc;
    ops.host_reference_list = reference_list;
    ops.host_unit_list = list_op<&host_ops::host_unit_list>;
    ops.host_message_target_list = list_op<&host_ops::host_message_target_list>;
    ops.host_formation_list = list_op<&host_ops::host_formation_list>;
    ops.host_marker_list = list_op<&host_ops::host_marker_list>;
    ops.host_unit_list_standalone = list_op<&host_ops::host_unit_list_standalone>;
    ops.host_rally_point_list = list_op<&host_ops::host_rally_point_list>;
    ops.host_order_create = fallible<&host_ops::host_order_create>::call;
    ops.host_order_copy = fallible<&host_ops::host_order_copy>::call;
    ops.host_waypoint_create = fallible<&host_ops::host_waypoint_create>::call;
    ops.host_waypoint_copy = fallible<&host_ops::host_waypoint_copy>::call;
    ops.host_heli_group_create = fallible<&host_ops::host_heli_group_create>::call;
    ops.host_heli_group_copy = fallible<&host_ops::host_heli_group_copy>::call;
    ops.host_patrol_point_create = fallible<&host_ops::host_patrol_point_create>::call;
}

// --- Dialog kinds ----------------------------------------------------------------------
namespace {
struct kind_entry {
    const char *kind, *title;
    int control;  // present only in this kind's template, among those of its title
    int request;
};
const kind_entry kinds[] = {
    {"create objects", "Create New Objects", 0, REQUEST_CREATE_OBJECTS},
    {"composition", "Dialog", IDC_GC_EDIT_ORDERS, REQUEST_GROUP_COMPOSITION},
    {"group orders", "Dialog", IDC_GO_ORDERS, -1},
    {"object names", "Dialog", IDC_ON_LIST, REQUEST_OBJECT_NAMES},
    {"edit name", "", IDC_EN_NAME, -1},
    {"group list", "Group List", 0, REQUEST_GROUP_LIST},
    {"orders", "Orders", 0, -1},
    {"contingency", "Sarge Order", IDC_CT_TRIGGER, -1},
    {"sarge order", "Sarge Order", 0, -1},
    {"heli list", "List Heli Groups", 0, REQUEST_LIST_HELI_GROUPS},
    {"heli group", "Edit Heli Group", 0, REQUEST_EDIT_HELI_GROUP},
    {"route", "Edit Waypoints", 0, -1},
    {"waypoint", "Edit Waypoint", 0, -1},
    {"order type", "Select New Order Type", 0, -1},
    {"engage", "Edit Engage Order", 0, -1},
    {"deploy", "Edit Deploy Order", 0, -1},
    {"pickup", "Edit Pickup Order", 0, -1},
    {"patrol", "Edit Patrol Order", 0, -1},
    {"wait", "Edit Wait Order", 0, -1},
    {"land", "Edit Land Order", 0, -1},
    {"bombing run", "Edit Bombing Run Details", 0, REQUEST_BOMBING_RUN},
    {"rally point", "Edit Rally Point Details", 0, REQUEST_RALLY_POINT},
    {"save file", "Save Editor File...", 0, REQUEST_SAVE_MISSION_FILE},
    {"box", "Editor Error", 0, -1},
    {"box", "Editor Warning", 0, -1},
    {"box", "Editor Informaiton", 0, -1},
    {"box", "Editor Question", 0, -1},
    {"box", "Name Error", 0, -1},
};
}  // namespace

std::string kind_of(HWND window) {
    const std::string title = ui_window_text(window);
    for (const kind_entry &k : kinds)
        if (title == k.title && (!k.control || GetDlgItem(window, k.control))) return k.kind;
    return "";
}

std::string kind_opened_by(int request) {
    switch (request) {
    case REQUEST_MESSAGE_BOX:
    case REQUEST_CONFIRM_QUIT:
    case REQUEST_INVALID_SELECTION:
    case REQUEST_NOTHING_SELECTED:
    case REQUEST_CONFIRM_DELETE:
    case REQUEST_UNMATCHED_GROUP: return "box";
    case REQUEST_SAVE_WORLD_FILE: return "save file";
    }
    for (const kind_entry &k : kinds)
        if (k.request == request) return k.kind;
    return "";
}

bool is_flow_window(HWND window) {
    char name[16] = "";
    GetClassNameA(window, name, sizeof name);
    return std::strcmp(name, "#32770") == 0 && !is_editor_window(window) && window != editor_main_window();
}

// --- The player --------------------------------------------------------------------------
namespace {
// Each dialog kind takes its own next step; a dialog with no step left is
// cancelled; a message box is answered OK or Yes.
class player {
public:
    player(const flow &f, variation v, outcome &out) : f_(f), v_(std::move(v)), out_(out) {}
    static player *current;
    static void CALLBACK tick(HWND, UINT, UINT_PTR, DWORD) {
        if (current) current->on_tick();
    }

private:
    // The designer acts on the newest enabled window: Group List stays
    // enabled under Group Composition, and the stacking order of the two
    // may change when some other window closes.
    void on_tick() {
        if (busy_) return;
        busy_ = true;
        std::map<HWND, int> up;
        for (HWND w : ui_thread_windows())
            if (is_flow_window(w)) up[w] = arrivals_.count(w) ? arrivals_[w] : ++arrived_;
        arrivals_ = up;
        HWND newest = nullptr;
        for (const auto &w : up)
            if (IsWindowEnabled(w.first) && (!newest || w.second > up[newest])) newest = w.first;
        if (GetTickCount() - started_ > 60000 || out_.log.size() > 600) {
            out_.hung = true;
            for (const auto &w : up) EndDialog(w.first, IDCANCEL);
        } else if (newest) {
            visit(newest, static_cast<int>(up.size()));
        }
        busy_ = false;
    }

    void visit(HWND window, int depth) {
        const std::string kind = kind_of(window);
        if (kind == "box") {
            out_.log.push_back("box: " + ui_message_text(window));
            ui_command(window, GetDlgItem(window, IDYES) ? IDYES : IDOK);
            return;
        }
        if (kind.empty()) {
            out_.log.push_back("unexpected window '" + ui_window_text(window) + "'");
            EndDialog(window, IDCANCEL);
            return;
        }
        size_t s = cursor_;
        while (s < f_.steps.size() && f_.steps[s].kind != kind) ++s;
        if (s == v_.probe_at && v_.probe) {
            auto probe = std::move(v_.probe);
            v_.probe = nullptr;
            if (!probe(window)) v_.stop = s;
            if (!IsWindow(window)) return;
        }
        if (s >= f_.steps.size() || s >= v_.stop) {
            out_.log.push_back(kind + ": Cancel");
            ui_command(window, IDCANCEL);
            return;
        }
        cursor_ = s + 1;
        out_.played.push_back({s, faults.family >= 0 ? faults.seen[faults.family] : 0, depth});
        if (static_cast<int>(s) == v_.drop) {
            out_.log.push_back(kind + ": (" + f_.steps[s].name + ")");
            return;
        }
        out_.log.push_back(kind + ": " + f_.steps[s].name);
        f_.steps[s].act(window);
    }

    const flow &f_;
    variation v_;
    outcome &out_;
    size_t cursor_ = 0;
    std::map<HWND, int> arrivals_;  // each window up, by when it came
    int arrived_ = 0;
    bool busy_ = false;
    DWORD started_ = GetTickCount();
};
player *player::current = nullptr;

void classify(const std::string &problem, outcome &out) {
    const char *kind = problem.find("unknown") != std::string::npos      ? "unknown free"
                       : problem.find("freed with size") != std::string::npos ? "size mismatch"
                       : problem.find("not live") != std::string::npos        ? "double destroy"
                                                                              : "leak";
    out.failures[kind].push_back(problem);
}
}  // namespace

void mission::stock(test_host &host) {
    host.units = {test_host::unit(1, "Tank1", "tank_t80"), test_host::unit(2, "Tank2", "tank_t80"),
                  test_host::unit(3, "Grunt7", "infantry"), test_host::unit(4, "Jeep3", "jeep"),
                  test_host::unit(5, "Mortar2", "mortar"), test_host::unit(6, "Medic9", "medic")};
    host.standalone_units = host.units;
    host.markers = {"WP1", "WP2", "WP3", "WP_North", "WP_South", "LZ_Alpha"};
    host.formations = {"Column", "Line", "Wedge"};
    host.message_targets = {"HQ", "Alpha"};
    host.reference_names[0] = {"Church", "Bridge1"};
    host.reference_names[1] = {"Windmill", "Barn"};
    host.rally_points = {test_host::rally_point(201, "RP_North"), test_host::rally_point(202, "RP_South")};
    host.existing_names = {"Tank1", "Tank2", "Grunt7", "sarge0", "Bridge1"};
}

outcome play(test_host &host, const flow &f, const fault_plan &plan, variation v) {
    mission m;
    m.build(host);
    outcome out;
    faults = plan;
    player p(f, std::move(v), out);
    player::current = &p;
    UINT_PTR timer = SetTimer(nullptr, 0, 10, player::tick);
    const std::pair<uintptr_t, uintptr_t> args = f.args(m);
    const int result = editor_window(f.request, args.first, args.second);
    KillTimer(nullptr, timer);
    player::current = nullptr;
    std::copy(std::begin(faults.seen), std::end(faults.seen), out.seen);
    out.reached = faults.reached;
    out.refused_acquire = faults.refused_acquire;
    faults = fault_plan{};

    for (HWND w : ui_thread_windows())
        if (is_flow_window(w)) out.failures["window left open"].push_back(ui_window_text(w));
    ui_driver::close_all_dialogs();
    if (out.hung) out.failures["hang"].push_back("the run did not end: " + std::to_string(out.log.size()) + " steps");
    for (const std::string &line : out.log)
        if (line.rfind("unexpected", 0) == 0) out.failures["unexpected window"].push_back(line);
    std::vector<std::string> broken_lists;
    out.state = m.snapshot(&broken_lists);
    out.state["result"] = std::to_string(result);
    for (const std::string &b : broken_lists) out.failures["broken list"].push_back(b);
    m.free(host);
    if (host.lists_out) out.failures["list not released"].push_back(std::to_string(host.lists_out) + " lists");
    host.lists_out = 0;
    for (const std::string &problem : host.finish()) classify(problem, out);
    acquisitions.clear();
    return out;
}

namespace {
struct answering {
    std::set<HWND> before;  // up before the call: not the request's
    std::vector<std::string> shown;
    std::map<HWND, int> ticks;
};
answering *active = nullptr;

void CALLBACK answer(HWND, UINT, UINT_PTR, DWORD) {
    for (HWND w : ui_thread_windows()) {
        if (!is_flow_window(w) || active->before.count(w) || !IsWindowEnabled(w)) continue;
        const int seen = active->ticks[w]++;
        const std::string kind = kind_of(w);
        if (seen == 0) {
            active->shown.push_back(kind.empty() ? "'" + ui_window_text(w) + "'" : kind);
            ui_command(w, kind != "box" ? IDCANCEL : GetDlgItem(w, IDYES) ? IDYES : IDOK);
        } else if (seen == 300) {
            active->shown.push_back(kind + " would not close");
            EndDialog(w, IDCANCEL);
        }
        return;
    }
}
}  // namespace

int answered(const std::function<int()> &call, std::vector<std::string> &shown) {
    answering a;
    for (HWND w : ui_thread_windows()) a.before.insert(w);
    active = &a;
    const UINT_PTR timer = SetTimer(nullptr, 0, 10, answer);
    const int result = call();
    KillTimer(nullptr, timer);
    active = nullptr;
    shown = a.shown;
    return result;
}
