// The monkey's host: the substitute host's sample mission behind editor.dll's
// exports, requests chosen at random until the designer has spent its
// action budget, and the host's own checks after every dialog and request.
//
//   editor_monkey [--seed N] [--actions N] [--timeout SECONDS] [--trace]
//
// Exit status 0 when nothing went wrong; otherwise the first failure is
// printed with its kind, the seed and the action count, and the run ends.
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <set>

#include "host/host_app.h"
#include "host/list_walk.h"
#include "host/sample_mission.h"
#include "tools/monkey/monkey.h"

// --- What the sample mission needs of the substitute host ---------------------------
host_app &app() {
    static host_app a;
    return a;
}
void host_app::send_state() {
    if (update) update(state);
}
void host_app::log(const std::string &) {}

namespace {
monkey_figures run_figures;
monkey_random *generator = nullptr;
DWORD timeout_ms = 60000;

// --- Lists for choosing, counted -------------------------------------------------------
// Every list the editor acquires must come back exactly once.
host_ops sample_ops;
std::set<const dlist_node *> held;

void note_list(dlist_node **list, int acquire, int answer) {
    if (acquire) {
        if (answer) held.insert(*list);
        return;
    }
    if (!held.erase(*list)) monkey_fail("host list", "a list released that was not held");
}

template <host_list_fn host_ops::*Slot>
int EDITOR_CDECL counted(dlist_node **list, int acquire) {
    const bool releasing = !acquire;
    if (releasing) note_list(list, 0, 0);
    const int answer = (sample_ops.*Slot)(list, acquire);
    if (!releasing) note_list(list, 1, answer);
    return answer;
}

int EDITOR_CDECL counted_references(int type, dlist_node **list, int acquire) {
    if (!acquire) note_list(list, 0, 0);
    const int answer = sample_ops.host_reference_list(type, list, acquire);
    if (acquire) note_list(list, 1, answer);
    return answer;
}

host_ops monkey_ops() {
    sample_ops = sample_host_ops();
    host_ops ops = sample_ops;
    ops.host_reference_list = counted_references;
    ops.host_unit_list = counted<&host_ops::host_unit_list>;
    ops.host_unit_list_standalone = counted<&host_ops::host_unit_list_standalone>;
    ops.host_message_target_list = counted<&host_ops::host_message_target_list>;
    ops.host_formation_list = counted<&host_ops::host_formation_list>;
    ops.host_marker_list = counted<&host_ops::host_marker_list>;
    ops.host_rally_point_list = counted<&host_ops::host_rally_point_list>;
    return ops;
}

// --- The mission whole ------------------------------------------------------------------
[[noreturn]] void broken(const std::string &what, const std::string &after) {
    monkey_fail("broken record or list", what + " (after " + after + ")");
}

template <size_t N>
bool terminated(const char (&field)[N]) {
    return strnlen(field, N) < N;
}

// A host list, whole (host/list_walk.h); `each` gets every value in order.
template <class F>
void walk(const dlist_node *head, const std::string &what, const std::string &after, F each) {
    std::string fault;
    const std::vector<uintptr_t> values = checked_values(head, fault, &app().memory);
    if (!fault.empty()) broken(what + ": " + fault, after);
    for (uintptr_t value : values) each(value);
}

template <class T>
const T *entry(uintptr_t value, const std::string &what, const std::string &after) {
    if (app().memory.size_of(reinterpret_cast<const void *>(value)) != sizeof(T))
        broken(what + ": an entry that is no live block of its size", after);
    return reinterpret_cast<const T *>(value);
}

// A record of the helicopter store, live and of the kind expected.
template <class T>
const T *live(uintptr_t value, const char *kind, const std::string &what, const std::string &after) {
    auto found = app().heli.live.find(reinterpret_cast<const void *>(value));
    if (found == app().heli.live.end() || found->second != kind) broken(what + ": a " + kind + " that is not live", after);
    return reinterpret_cast<const T *>(value);
}

void check_units(const dlist_node *units, const std::string &what, const std::string &after) {
    walk(units, what, after, [&](uintptr_t value) {
        const unit_entry *unit = entry<unit_entry>(value, what, after);
        if (!terminated(unit->name) || !terminated(unit->type_name)) broken(what + ": an unterminated name", after);
    });
}

void check_sarge_order(const sarge_order_record &o, const std::string &what, const std::string &after) {
    if (!terminated(o.name) || !terminated(o.destination) || !terminated(o.formation) || !terminated(o.message) ||
        !terminated(o.message_target))
        broken(what + ": an unterminated order text", after);
}

void check_ground(const std::string &after) {
    walk(sample_groups(), "ground groups", after, [&](uintptr_t value) {
        const group_record *g = entry<group_record>(value, "ground groups", after);
        const std::string what = "ground group";
        if (!terminated(g->name)) broken(what + ": an unterminated name", after);
        if (g->order_count < 0 || g->order_count > GROUP_MAX_ORDERS || g->contingency_count < 0 ||
            g->contingency_count > GROUP_MAX_CONTINGENCIES)
            broken(what + ": counts beyond its slots", after);
        for (int i = 0; i < g->order_count; ++i) check_sarge_order(g->orders[i], what, after);
        for (int i = 0; i < g->contingency_count; ++i) {
            const contingency_order_record &c = g->contingencies[i];
            check_sarge_order(c.order, what, after);
            if (!terminated(c.next_order) || !terminated(c.trigger_string))
                broken(what + ": an unterminated contingency text", after);
        }
        if (g->members) check_units(g->members, "ground group members", after);
    });
}

void check_order(const heli_order_record *order, const std::string &after) {
    const std::string what = "heli order";
    switch (order->kind) {
    case HELI_ORDER_DEPLOY:
        walk(order->body.deploy, "deploy entries", after, [&](uintptr_t value) {
            if (value && !terminated(entry<deploy_entry>(value, what, after)->name)) broken(what + ": a name", after);
        });
        break;
    case HELI_ORDER_PICKUP:
        walk(order->body.pickup, "pickup entries", after, [&](uintptr_t value) {
            if (value && !terminated(entry<pickup_entry>(value, what, after)->name)) broken(what + ": a name", after);
        });
        break;
    case HELI_ORDER_PATROL:
        walk(order->body.patrol->points, "patrol points", after,
             [&](uintptr_t value) { live<patrol_point>(value, "patrol point", what, after); });
        if (order->body.patrol->cycles > 19) broken(what + ": cycles beyond 19", after);
        break;
    case HELI_ORDER_WAIT:
        if (!terminated(order->body.wait->name)) broken(what + ": an unterminated wait name", after);
        break;
    default:
        break;
    }
}

void check_heli(const std::string &after) {
    check_units(sample_available_units(), "available helicopters", after);
    walk(sample_heli_groups(), "heli groups", after, [&](uintptr_t value) {
        const heli_group_record *g = live<heli_group_record>(value, "heli group", "heli groups", after);
        if (!terminated(g->name)) broken("heli group: an unterminated name", after);
        check_units(g->members, "heli group members", after);
        walk(g->waypoints, "route", after, [&](uintptr_t w) {
            if (!w) return;
            const waypoint_record *waypoint = live<waypoint_record>(w, "waypoint", "route", after);
            if (!terminated(waypoint->marker_name)) broken("waypoint: an unterminated marker name", after);
            walk(waypoint->orders, "waypoint orders", after, [&](uintptr_t o) {
                if (o) check_order(live<heli_order_record>(o, "order", "waypoint orders", after), after);
            });
        });
        if (g->in_transit) check_order(live<heli_order_record>(reinterpret_cast<uintptr_t>(g->in_transit), "order",
                                                               "in-transit order", after),
                                       after);
    });
}

void check_air(const std::string &after) {
    for (const bombing_run_record *run : air_sample().bombing_runs) {
        if (!terminated(run->name) || !terminated(run->aircraft_type) || run->cancelled > 1 ||
            run->aircraft_count < 1 || run->aircraft_count > 8)
            broken("bombing run: its fields", after);
        for (const dlist_node *route : {run->ingress, run->egress})
            walk(route, "bombing route", after, [&](uintptr_t value) {
                if (!terminated(entry<bombing_waypoint>(value, "bombing route", after)->name))
                    broken("bombing route: an unterminated name", after);
            });
    }
    for (const rally_point_record *point : air_sample().rally_points) {
        if (!terminated(point->name) || point->cancelled > 1) broken("rally point: its fields", after);
        walk(point->arsp_locations, "ARSP locations", after,
             [&](uintptr_t value) { entry<arsp_location>(value, "ARSP locations", after); });
    }
}

// --- The requests ---------------------------------------------------------------------------
template <class T>
T *nth(const dlist_node *list, uint32_t n) {
    for (const dlist_node *node = list->next; node != list; node = node->next)
        if (n-- == 0) return reinterpret_cast<T *>(node->value);
    return nullptr;
}

uint32_t count_of(const dlist_node *list) {
    uint32_t n = 0;
    for (const dlist_node *node = list->next; node != list; node = node->next) ++n;
    return n;
}

int ask(int code, const void *arg1, uintptr_t arg2 = 0) {
    return app().window(code, reinterpret_cast<uintptr_t>(arg1), arg2);
}

int create_objects(monkey_random &r) {
    create_objects_record record{};
    record.enabled = r.percent(70) ? 0x1FFu : r.next() & 0x1FFu;
    record.preset = r.next() & 0x1FFu;
    record.type = static_cast<int32_t>(r.below(10));  // 9 is no type
    const std::string &name = r.pick(text_pool());
    std::snprintf(record.ref_obj, sizeof record.ref_obj, "%s", name.c_str());
    record.number = r.below(13);  // above 10 is refused before the dialog opens
    const std::vector<float> distances = {0.5f, 50.0f, -1.0f, 0.0f, 1e30f};
    record.obj_dist = r.pick(distances);
    record.cam_dist = r.pick(distances);
    record.aalign = static_cast<int32_t>(r.below(5));
    record.aacamrel = static_cast<int32_t>(r.below(3));
    record.orient = static_cast<int32_t>(r.below(5));
    record.ocamrel = static_cast<int32_t>(r.below(3));
    return ask(REQUEST_CREATE_OBJECTS, &record);
}

// Request 10 over the sample objects, as 68-byte entries in host memory, now
// and then with a node that holds no record.
int object_names(monkey_random &r) {
    dlist_node *list = host_list_create();
    for (const sample_object &o : mission().objects) {
        auto *entry = static_cast<unit_entry *>(app().memory.alloc(sizeof(unit_entry)));
        std::memset(entry, 0, sizeof *entry);
        std::snprintf(entry->name, sizeof entry->name, "%s", o.name.c_str());
        std::snprintf(entry->type_name, sizeof entry->type_name, "%s", o.shape.c_str());
        entry->id = static_cast<int32_t>(o.id);
        host_list_append(list, reinterpret_cast<uintptr_t>(entry));
    }
    if (r.percent(30)) host_list_append(list, 0);
    const int answer = ask(REQUEST_OBJECT_NAMES, list);
    for (dlist_node *node = list->next; node != list; node = node->next)
        if (node->value) app().memory.free(reinterpret_cast<void *>(node->value), sizeof(unit_entry));
    host_list_free(list);
    return answer;
}

int save_file(monkey_random &r, int code) {
    char folder[MAX_PATH];
    GetTempPathA(sizeof folder, folder);
    std::string path = std::string(folder) + "editor_monkey";
    CreateDirectoryA(path.c_str(), nullptr);
    char buffer[MAX_PATH];
    std::snprintf(buffer, sizeof buffer, "%s", path.c_str());
    const std::vector<uint32_t> sizes = {sizeof buffer, sizeof buffer, 12, 1};
    return ask(code, buffer, r.pick(sizes));
}

// Now and then no request: the designer turns to the toolbar and the
// Status window while the host's own loop runs.
constexpr int no_request = -1;

// One request, chosen by weight.
void run_request(monkey_random &r) {
    struct choice {
        int code;
        uint32_t weight;
    };
    static const choice choices[] = {
        {REQUEST_CREATE_OBJECTS, 8},  {REQUEST_GROUP_COMPOSITION, 12}, {REQUEST_OBJECT_NAMES, 6},
        {REQUEST_GROUP_LIST, 14},     {REQUEST_BOMBING_RUN, 10},       {REQUEST_RALLY_POINT, 8},
        {REQUEST_EDIT_HELI_GROUP, 12}, {REQUEST_LIST_HELI_GROUPS, 16}, {REQUEST_MESSAGE_BOX, 2},
        {REQUEST_CONFIRM_QUIT, 1},    {REQUEST_INVALID_SELECTION, 1},  {REQUEST_NOTHING_SELECTED, 1},
        {REQUEST_CONFIRM_DELETE, 1},  {REQUEST_UNMATCHED_GROUP, 1},    {REQUEST_SAVE_WORLD_FILE, 1},
        {REQUEST_SAVE_MISSION_FILE, 2}, {no_request, 4},
    };
    uint32_t total = 0;
    for (const choice &c : choices) total += c.weight;
    uint32_t roll = r.below(total);
    const choice *chosen = choices;
    while (roll >= chosen->weight) roll -= (chosen++)->weight;

    dlist_node *groups = sample_groups();
    dlist_node *heli_groups = sample_heli_groups();
    int answer = 0;
    switch (chosen->code) {
    case REQUEST_CREATE_OBJECTS: answer = create_objects(r); break;
    case REQUEST_GROUP_COMPOSITION:
        answer = ask(chosen->code, nth<group_record>(groups, r.below(count_of(groups))),
                     r.percent(80) ? reinterpret_cast<uintptr_t>(groups) : 0);
        break;
    case REQUEST_OBJECT_NAMES: answer = object_names(r); break;
    case REQUEST_GROUP_LIST: answer = ask(chosen->code, groups); break;
    case REQUEST_BOMBING_RUN: answer = ask(chosen->code, r.pick(air_sample().bombing_runs)); break;
    case REQUEST_RALLY_POINT: answer = ask(chosen->code, r.pick(air_sample().rally_points)); break;
    case REQUEST_EDIT_HELI_GROUP:
        answer = ask(chosen->code, nth<heli_group_record>(heli_groups, r.below(count_of(heli_groups))),
                     reinterpret_cast<uintptr_t>(sample_available_units()));
        break;
    case REQUEST_LIST_HELI_GROUPS:
        answer = ask(chosen->code, heli_groups, reinterpret_cast<uintptr_t>(sample_available_units()));
        break;
    case REQUEST_MESSAGE_BOX: answer = ask(chosen->code, r.pick(text_pool()).c_str(), r.below(6)); break;
    case REQUEST_SAVE_WORLD_FILE:
    case REQUEST_SAVE_MISSION_FILE: answer = save_file(r, chosen->code); break;
    case no_request: designer_modeless(1 + static_cast<long>(r.below(5))); break;
    default: answer = ask(chosen->code, nullptr); break;
    }
    if (chosen->code != no_request) ++run_figures.requests;
    if (answer != 0 && answer != 1) monkey_fail("request", "request " + std::to_string(chosen->code) + " answered " +
                                                               std::to_string(answer));
    check_host("request " + std::to_string(chosen->code), true);
}

// --- Hangs and crashes ---------------------------------------------------------------------------
DWORD WINAPI watchdog(void *) {
    for (;;) {
        Sleep(1000);
        if (designer_idle_ms() > timeout_ms)
            monkey_fail("hang", "no action for " + std::to_string(timeout_ms / 1000) + " s; windows up:" +
                                    designer_last_seen());
    }
}

LONG WINAPI on_crash(EXCEPTION_POINTERS *e) {
    char text[96];
    std::snprintf(text, sizeof text, "exception 0x%08lx at %p", e->ExceptionRecord->ExceptionCode,
                  e->ExceptionRecord->ExceptionAddress);
    monkey_fail("crash", text + std::string("; windows up:") + designer_last_seen());
}

void print_figures(const char *verdict) {
    const monkey_figures &f = run_figures;
    std::printf("monkey: seed %u: %ld actions in %ld requests; %ld dialogs opened (%u kinds), %ld boxes answered; "
                "%s; digest %08x\n",
                f.seed, f.actions, f.requests, f.dialogs_opened, static_cast<unsigned>(f.opened_by_title.size()),
                f.boxes_answered, verdict, f.digest);
    std::string line = "  actions:";
    for (const auto &k : f.actions_by_kind) line += " " + k.first + " " + std::to_string(k.second) + ",";
    std::printf("%s\n", line.c_str());
    line = "  dialogs:";
    for (const auto &t : f.opened_by_title) line += " '" + t.first + "' " + std::to_string(t.second) + ",";
    std::printf("%s\n", line.c_str());
    std::fflush(stdout);
}
}  // namespace

monkey_figures &figures() { return run_figures; }
monkey_random &random_source() { return *generator; }

void monkey_fail(const std::string &kind, const std::string &detail) {
    std::printf("monkey: FAILED (%s) with seed %u after %ld actions: %s\n", kind.c_str(), run_figures.seed,
                run_figures.actions, detail.c_str());
    std::printf("monkey: replay with: editor_monkey --seed %u --actions %ld --trace\n", run_figures.seed,
                run_figures.budget);
    print_figures("failed");
    ExitProcess(1);
}

void check_host(const std::string &after, bool idle) {
    host_app &a = app();
    if (!a.memory.errors().empty()) monkey_fail("allocator", a.memory.errors().front() + " (after " + after + ")");
    if (!a.heli.problems.empty()) monkey_fail("record destroyed twice", a.heli.problems.front() + " (after " + after + ")");
    if (idle && !held.empty())
        monkey_fail("host list", std::to_string(held.size()) + " list(s) acquired and never released (after " + after + ")");
    check_ground(after);
    check_heli(after);
    check_air(after);
}

int main(int argc, char **argv) {
    bool trace = false;
    run_figures.seed = 1;
    run_figures.budget = 1000;
    for (int i = 1; i < argc; ++i) {
        if (!std::strcmp(argv[i], "--seed") && i + 1 < argc) run_figures.seed = static_cast<uint32_t>(std::strtoul(argv[++i], nullptr, 10));
        else if (!std::strcmp(argv[i], "--actions") && i + 1 < argc) run_figures.budget = std::atol(argv[++i]);
        else if (!std::strcmp(argv[i], "--timeout") && i + 1 < argc) timeout_ms = 1000u * static_cast<DWORD>(std::atol(argv[++i]));
        else if (!std::strcmp(argv[i], "--trace")) trace = true;
    }
    monkey_random seeded(run_figures.seed);
    generator = &seeded;
    SetUnhandledExceptionFilter(on_crash);

    host_app &a = app();
    a.memory.guard_pages = true;
    WNDCLASSA wc{};
    wc.lpfnWndProc = DefWindowProcA;
    wc.hInstance = GetModuleHandleA(nullptr);
    wc.lpszClassName = "editor_monkey";
    RegisterClassA(&wc);
    a.main_window = CreateWindowA("editor_monkey", "Monkey Host", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 400, 300,
                                  nullptr, nullptr, wc.hInstance, nullptr);
    if (!a.load("editor.dll")) monkey_fail("start", "editor.dll cannot be loaded");

    // A settings file of this run's own, so that no earlier run's choices leak in.
    char temp[MAX_PATH];
    GetTempPathA(sizeof temp, temp);
    a.settings_folder = std::string(temp);
    a.settings_file = "editor_monkey.ini";
    DeleteFileA((a.settings_folder + a.settings_file).c_str());
    editor_setup setup{};
    a.state.edit_submode = 1;
    setup.state = a.state;
    setup.main_window = a.main_window;
    setup.settings_file = a.settings_file.c_str();
    setup.settings_folder = a.settings_folder.c_str();
    setup.ops = monkey_ops();
    if (!a.init(setup)) monkey_fail("start", "editor_init answered 0");
    a.editor_running = true;
    sample_groups();
    sample_heli_groups();
    air_sample();
    check_host("start", true);

    CreateThread(nullptr, 0, watchdog, nullptr, 0, nullptr);
    designer_start(trace);
    while (run_figures.actions < run_figures.budget) run_request(seeded);
    designer_stop();

    a.tidyup();
    a.editor_running = false;
    check_host("tidy-up", true);
    // The host frees its mission (the samples go with the main window); every
    // block must have come back, and every helicopter record been destroyed once.
    DestroyWindow(a.main_window);
    for (const std::string &problem : a.heli.report()) monkey_fail("helicopter record", problem);
    for (const std::string &problem : a.memory.problems()) monkey_fail("leak or allocator", problem);
    a.unload();
    print_figures("failures: 0");
    return 0;
}
