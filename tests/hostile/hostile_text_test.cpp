// Hostile text: every edit and editable combo of every dialog is fed one
// table of inputs (nothing, blanks, 4 KB, format directives, bytes above
// 127, and numbers no field should take whole). Each field must then hold
// what its reading rule makes of the input, and every other byte of the
// record the dialog edits must be as it was.
#include <climits>
#include <cstdlib>
#include <cstddef>
#include <cstring>
#include <type_traits>

#include "air/bombing_run.h"
#include "air/rally_point.h"
#include "ground/group_composition.h"
#include "ground/object_names.h"
#include "ground/sarge_order.h"
#include "ground/contingency.h"
#include "heli/heli_group.h"
#include "heli/waypoints.h"
#include "heli_orders/order_dialogs.h"
#include "placement/create_objects.h"
#include "resources/air_ids.h"
#include "resources/ground_ids.h"
#include "resources/heli_ids.h"
#include "resources/heli_order_ids.h"
#include "resources/placement_ids.h"
#include "resources/window_ids.h"
#include "tests/hostile/hostile_fixture.h"
#include "windows/status.h"

// Records are written as aggregates of their leading fields; the rest is zero.
#pragma GCC diagnostic ignored "-Wmissing-field-initializers"

namespace {
const std::string digits(4096, '7');

struct input {
    const char *label;
    std::string text;
    bool number;    // begins with a number: plain decimal text a float can hold
    float value;
    bool alone;     // nothing follows the number
    int32_t whole;  // what a whole-number field makes of its first 31 characters
};
const input inputs[] = {
    {"empty", "", false, 0, false, 0},
    {"blanks", "   ", false, 0, false, 0},
    {"4 KB of letters", std::string(4096, 'W'), false, 0, false, 0},
    {"4 KB of digits", digits, true, 0, true, INT32_MAX},  // the number depends on how much is read
    {"format directives", "%s%n%x%p", false, 0, false, 0},
    {"bytes above 127", "\xC4rger \xE9t\xE9 \xFC\xDF\xFF", false, 0, false, 0},
    {"nan", "nan", false, 0, false, 0},
    {"inf", "inf", false, 0, false, 0},
    {"1e39", "1e39", false, 0, false, 1},  // beyond any float
    {"-0", "-0", true, -0.0f, true, 0},
    {"2,5", "2,5", true, 2.0f, false, 2},
    {"0x10", "0x10", true, 0.0f, false, 0},
    {"12abc", "12abc", true, 12.0f, false, 12},
    {"12.5", "12.5", true, 12.5f, true, 12},
};

struct reading {
    bool number;
    float value;
    bool alone;
};
// What the first `chars` characters begin with. Only the digits depend on
// how many are read: 38 sevens still fit a float, 39 do not.
reading first(const input &in, size_t chars) {
    if (in.text != digits) return {in.number, in.value, in.alone};
    const size_t n = std::min(chars, in.text.size());
    if (n > 38) return {false, 0, false};
    return {true, std::strtof(std::string(n, '7').c_str(), nullptr), true};
}

// How a field reads its text.
enum rule {
    as_name,       // the text, cut to the field
    as_message,    // a name, but an empty text keeps the field (and changes nothing else)
    as_wait_name,  // a name, but empty or NO_OBJECT is refused with a box
    strict,     // the number alone, else the field keeps its value
    lenient,    // a leading number, else the field keeps its value
    decimal,    // a leading number, else 0
    whole,      // a leading whole number, else 0
    speed,      // a leading number of km/h, stored in m/s
    object_count,      // the whole text as a number of objects, 1 to 10, else refused with a box
    distance,   // the whole text as a number alone above 0, else refused with a box
    offered_name,  // one of the offered names, else refused with a box
    no_type,  // a typed group type that is none of the listed: -1
};

struct field {
    int id;
    rule how;
    size_t offset;
    size_t size;   // bytes of the field
    size_t chars;  // characters read
};
#define TEXT_FIELD(id, how, record, member) field{id, how, offsetof(record, member), sizeof(record::member), sizeof(record::member) - 1}
#define NUMBER_FIELD(id, how, record, member, chars) field{id, how, offsetof(record, member), 4, chars}
constexpr size_t all_of_it = SIZE_MAX;

float single(float value) {
    volatile float stored = value;
    return stored;
}

template <class T>
void put(std::string &record, size_t offset, T value) {
    std::memcpy(&record[offset], &value, sizeof value);
}

// The field's part of the expected record; false when the dialog refuses
// the text with an error box and stays open.
bool expect(std::string &record, const field &f, const input &in) {
    const reading r = first(in, f.chars);
    const std::string cut = in.text.substr(0, f.chars);
    switch (f.how) {
    case as_wait_name:
        if (cut.empty() || cut == "NO_OBJECT") return false;
        [[fallthrough]];
    case as_message:
        if (cut.empty()) return true;
        [[fallthrough]];
    case as_name:
        record.replace(f.offset, cut.size() + 1, cut + '\0');  // only the text and its terminator
        return true;
    case strict:
        if (r.number && r.alone) put(record, f.offset, r.value);
        return true;
    case lenient:
        if (r.number) put(record, f.offset, r.value);
        return true;
    case decimal:
        put(record, f.offset, r.number ? r.value : 0.0f);
        return true;
    case whole:
        put(record, f.offset, in.whole);
        return true;
    case speed:
        if (r.number) put(record, f.offset, single(r.value * 0.277777f));
        return true;
    case object_count:
        // Read whole, so the 4 KB of digits overflow and are refused.
        if (in.text == digits || in.whole < 1 || in.whole > 10) return false;
        put(record, f.offset, static_cast<uint32_t>(in.whole));
        return true;
    case distance:
        if (!r.number || !r.alone || !(r.value > 0)) return false;
        put(record, f.offset, r.value);
        return true;
    case offered_name:
        return false;
    case no_type:
        put(record, f.offset, int32_t{-1});
        return true;
    }
    return true;
}

// One dialog and the fields that take the input together.
struct text_case {
    const char *title;
    std::vector<field> fields;
    size_t size;                              // the bytes of the record compared
    std::function<void *()> make;             // a fresh record in host memory
    std::function<int(void *)> open;          // runs the dialog on it
    std::function<void(HWND)> prepare = {};   // before the fields are typed
    std::vector<int> clicks = {IDOK};         // after
    bool known = false;                       // the host knows the name typed
};

// Puts the text into an edit; into a combo box's edit field, after which
// the combo box hears of the change as it does of a designer's typing (and
// lets go of its selected line).
void type(HWND dialog, int id, const std::string &text) {
    HWND control = GetDlgItem(dialog, id);
    HWND field = FindWindowExA(control, nullptr, "Edit", nullptr);
    SetWindowTextA(field ? field : control, text.c_str());
    if (field) SendMessageA(control, WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(field), EN_CHANGE), reinterpret_cast<LPARAM>(field));
}

// Where two records differ, by offset.
std::string differences(const std::string &actual, const std::string &expected) {
    std::string out;
    for (size_t i = 0; i < actual.size() && out.size() < 200; ++i)
        if (actual[i] != expected[i]) out += " " + std::to_string(i);
    return out.empty() ? "" : "bytes differ at" + out;
}
}  // namespace

class hostile_text_test : public hostile_test {
protected:
    void run(const text_case &c, const input &in) {
        SCOPED_TRACE(std::string(c.title) + " fed " + in.label);
        void *record = c.make();
        const std::string before(static_cast<const char *>(record), c.size);
        std::string expected = before;
        bool accepted = true;
        for (const field &f : c.fields) accepted = expect(expected, f, in) && accepted;
        // A name the dialog checks is one the host knows, so no question comes.
        if (c.known) host.existing_names.insert(in.text.substr(0, c.fields[0].chars));
        ui_driver d;
        d.then(c.title, [&](HWND dialog) {
            if (c.prepare) c.prepare(dialog);
            for (const field &f : c.fields) type(dialog, f.id, in.text);
            for (int id : c.clicks) ui_command(dialog, id);
        });
        if (!accepted) d.answer_box("Editor Error", IDOK).then(c.title, [](HWND dialog) { ui_command(dialog, IDCANCEL); });
        const int result = c.open(record);
        EXPECT_DRIVER_OK(d);
        EXPECT_EQ(result, accepted ? 1 : 0);
        const std::string after(static_cast<const char *>(record), c.size);
        EXPECT_EQ(differences(after, accepted ? expected : before), "");
    }

    // A fresh copy of `initial` in host memory for each run.
    template <class R>
    std::function<void *()> copy_of(const R &initial) {
        return [this, initial] { return static_cast<void *>(host.held_record(initial)); };
    }
    template <class R>
    std::function<int(void *)> opening(int (*open)(HWND, R *)) {
        return [open, owner = host.main_window](void *r) { return open(owner, static_cast<R *>(r)); };
    }
    template <class R>
    std::function<int(void *)> opening(int (*open)(R *)) {
        return [open](void *r) { return open(static_cast<R *>(r)); };
    }
    // The body of a new order of the host's, adjusted.
    template <class B>
    std::function<void *()> body(uint32_t kind, void (*adjust)(B &) = nullptr) {
        return [this, kind, adjust] {
            auto *b = reinterpret_cast<B *>(order(kind)->body.word);
            if (adjust) adjust(*b);
            return static_cast<void *>(b);
        };
    }

    std::vector<text_case> cases() {
        sarge_order_record halt{SARGE_ORDER_HALT, "Hold", 30.0f, "", "", 0.0f, "at the ridge", "HQ"};
        contingency_order_record close{TRIGGER_ENEMY_CLOSE, halt, "Next", 0, 25.0f, ""};
        contingency_order_record damage{TRIGGER_DAMAGE, {SARGE_ORDER_ADVANCE, "Push", 0.0f, "WP1", "Line", 45.0f, "", ""}, "", 5};
        contingency_order_record message{TRIGGER_MESSAGE, {SARGE_ORDER_DEFEND, "Dig"}, "", 0, 0.0f, "go"};
        const auto contingency = opening(edit_contingency_order);
        char name[32] = "sarge0";
        // The bombing run and rally point that some cases edit parts of.
        static bombing_run_record *run_edited = nullptr;
        static rally_point_record *point_edited = nullptr;
        auto bombing_run = [this] {
            bombing_run_record r{0, "Bridge Strike", 1200.5f, 0.0f, -340.25f, 300.0f, 150.0f, 120.0f, "A-10", 2};
            r.ingress = waypoints({"WP1"});
            r.egress = waypoints({"WP2"});
            r.aircraft_types = host.held_names({"A-10", "Jaguar"});
            return run_edited = host.held_record(r);
        };
        auto rally_point = [this] {
            const arsp_location location = {402.0f, 12.0f, 900.5f};
            rally_point_record r{0, "RP Alpha", 400.0f, 12.0f, 900.5f};
            r.arsp_locations = host.held_entries<arsp_location>({&location});
            return point_edited = host.held_record(r);
        };
        auto first_of = [](dlist_node *list) { return reinterpret_cast<void *>(list->next->value); };
        // The twelve landing positions take the input all at once.
        std::vector<field> land;
        const int land_x[] = {IDC_LAND_X0, IDC_LAND_X1, IDC_LAND_X2, IDC_LAND_X3, IDC_LAND_X4, IDC_LAND_X5,
                              IDC_LAND_X6, IDC_LAND_X7, IDC_LAND_X8, IDC_LAND_X9, IDC_LAND_X10, IDC_LAND_X11};
        for (int i = 0; i < LAND_POSITIONS; ++i)
            land.insert(land.end(), {{land_x[i], lenient, 12u * i, 4, 31}, {IDC_LAND_Z0 + i, lenient, 12u * i + 8, 4, 31}});

        std::vector<text_case> all = {
            {"Sarge Order",
             {TEXT_FIELD(IDC_ORDER_NAME, as_name, sarge_order_record, name),
              NUMBER_FIELD(IDC_SO_DURATION, lenient, sarge_order_record, duration, 9),
              TEXT_FIELD(IDC_ORDER_MESSAGE, as_message, sarge_order_record, message)},
             sizeof halt, copy_of(halt), opening(edit_sarge_order)},
            {"Sarge Order",
             {TEXT_FIELD(IDC_CT_NEXT_ORDER, as_name, contingency_order_record, next_order),
              NUMBER_FIELD(IDC_CT_VALUE, decimal, contingency_order_record, distance, 31),
              TEXT_FIELD(IDC_ORDER_NAME, as_name, contingency_order_record, order.name),
              NUMBER_FIELD(IDC_CT_AMOUNT, lenient, contingency_order_record, order.duration, 9),
              TEXT_FIELD(IDC_ORDER_MESSAGE, as_message, contingency_order_record, order.message)},
             sizeof close, copy_of(close), contingency},
            {"Sarge Order",
             {NUMBER_FIELD(IDC_CT_VALUE, whole, contingency_order_record, survivors, 31),
              NUMBER_FIELD(IDC_CT_AMOUNT, lenient, contingency_order_record, order.formation_rotation, 31)},
             sizeof damage, copy_of(damage), contingency},
            {"Sarge Order", {TEXT_FIELD(IDC_CT_VALUE, as_name, contingency_order_record, trigger_string)},
             sizeof message, copy_of(message), contingency},
            {"", {field{IDC_EN_NAME, as_name, 0, 32, 31}}, 32, copy_of(name), opening(edit_name)},
            {"Dialog", {NUMBER_FIELD(IDC_GC_TYPE, no_type, group_record, group_type, 31)}, sizeof(group_record),
             [this] {
                 group_record *g = host.make_group("sarge0", {});
                 g->group_type = 2;
                 cleanup.push_back([this, g] { host.free_group(g); });
                 return static_cast<void *>(g);
             },
             [](void *r) { return edit_group(static_cast<group_record *>(r), nullptr); }},
            {"Edit Heli Group", {TEXT_FIELD(IDC_HG_NAME, as_name, heli_group_record, name)}, heli_records::heli_group_size,
             [this] {
                 heli_group_record *g = host.heli.create_heli_group();
                 cleanup.push_back([this, g] { host.heli.destroy_heli_group(g); });
                 return static_cast<void *>(g);
             },
             [owner = host.main_window](void *r) { return edit_heli_group(owner, static_cast<heli_group_record *>(r), nullptr); }},
            {"Edit Waypoint", {NUMBER_FIELD(IDC_WP_SPEED, speed, waypoint_record, transit_speed, 31)},
             heli_records::waypoint_size,
             [this] {
                 waypoint_record *w = host.heli.create_waypoint();
                 w->transit_speed = single(100.0f * 0.277777f);  // shown as 100.0, read back the same
                 cleanup.push_back([this, w] { host.heli.destroy_waypoint(w); });
                 return static_cast<void *>(w);
             },
             opening(edit_waypoint)},
            {"Edit Engage Order", {NUMBER_FIELD(IDC_ENGAGE_RANGE, strict, engage_order, range, 31)},
             heli_records::engage_size, body<engage_order>(HELI_ORDER_ENGAGE), opening(edit_engage_order)},
            {"Edit Wait Order", {NUMBER_FIELD(IDC_WAIT_TIME, strict, wait_order, time, 31)}, sizeof(wait_order),
             body<wait_order>(HELI_ORDER_WAIT), opening(edit_wait_order)},
            {"Edit Wait Order", {TEXT_FIELD(IDC_WAIT_NAME, as_wait_name, wait_order, name)}, sizeof(wait_order),
             body<wait_order>(HELI_ORDER_WAIT, [](wait_order &w) { w = {WAIT_FOR_OBJECT, 0, "Tank1", 100.0f}; }),
             opening(edit_wait_order), {}, {IDOK}, true},
            {"Edit Wait Order", {NUMBER_FIELD(IDC_WAIT_RANGE, strict, wait_order, range, 31)}, sizeof(wait_order),
             body<wait_order>(HELI_ORDER_WAIT, [](wait_order &w) { w = {WAIT_FOR_SARGE, 0, "Tank1", 100.0f}; }),
             opening(edit_wait_order)},
            {"Edit Land Order", land, sizeof(land_order), body<land_order>(HELI_ORDER_LAND), opening(edit_land_order)},
            {"Edit Bombing Run Details",
             {TEXT_FIELD(IDC_BR_NAME, as_name, bombing_run_record, name),
              NUMBER_FIELD(IDC_BR_TARGET_X, lenient, bombing_run_record, target_x, 31),
              NUMBER_FIELD(IDC_BR_TARGET_Z, lenient, bombing_run_record, target_z, 31),
              NUMBER_FIELD(IDC_BR_RELEASE_HEIGHT, lenient, bombing_run_record, release_height, 31),
              NUMBER_FIELD(IDC_BR_ATTACK_TIME, lenient, bombing_run_record, attack_time, 31),
              NUMBER_FIELD(IDC_BR_ATTACK_RADIUS, lenient, bombing_run_record, attack_radius, 31)},
             offsetof(bombing_run_record, cancelled),  // which OK writes
             [=] { return static_cast<void *>(bombing_run()); }, opening(edit_bombing_run)},
            {"Edit Rally Point Details",
             {TEXT_FIELD(IDC_RP_NAME, as_name, rally_point_record, name), NUMBER_FIELD(IDC_RP_X, lenient, rally_point_record, x, 31),
              NUMBER_FIELD(IDC_RP_Z, lenient, rally_point_record, z, 31)},
             offsetof(rally_point_record, cancelled), [=] { return static_cast<void *>(rally_point()); },
             opening(edit_rally_point)},
            {"Edit Rally Point Details",
             {NUMBER_FIELD(IDC_RP_ARSP_X, lenient, arsp_location, x, 31), NUMBER_FIELD(IDC_RP_ARSP_Z, lenient, arsp_location, z, 31)},
             sizeof(arsp_location), [=] { return first_of(rally_point()->arsp_locations); },
             [](void *) { return edit_rally_point(point_edited); }, {}, {IDC_RP_UPDATE, IDOK}},
        };
        // Each route's height, set on its first waypoint.
        for (auto route : {std::make_pair(&bombing_run_record::ingress, IDC_BR_INGRESS),
                           std::make_pair(&bombing_run_record::egress, IDC_BR_EGRESS)}) {
            const bool in = route.second == IDC_BR_INGRESS;
            all.push_back({"Edit Bombing Run Details",
                           {NUMBER_FIELD(in ? IDC_BR_INGRESS_HEIGHT : IDC_BR_EGRESS_HEIGHT, lenient, bombing_waypoint, height, 31)},
                           sizeof(bombing_waypoint), [=] { return first_of(bombing_run()->*route.first); },
                           [](void *) { return edit_bombing_run(run_edited); },
                           [list = route.second](HWND dialog) { ui_list_select_index(dialog, list, 0); },
                           {in ? IDC_BR_INGRESS_SET_HEIGHT : IDC_BR_EGRESS_SET_HEIGHT, IDOK}});
        }
        // Update of a Deploy or Pickup entry: the name (an empty one changes
        // nothing), or both positions by the strict rule (a refused one
        // changes nothing either).
        static dlist_node *entries_edited = nullptr;
        auto one_entry = [this, first_of](const auto &entry) -> std::function<void *()> {
            return [this, first_of, entry] {
                return first_of(entries_edited = host.held_entries<std::decay_t<decltype(entry)>>({&entry}));
            };
        };
        const deploy_entry cargo{"Tank1", 1.5f, 0.0f, -2.0f};
        const auto deploy = [owner = host.main_window](void *) { return edit_deploy_order(owner, entries_edited); };
        auto choose_first = [](int list, std::vector<std::pair<int, const char *>> texts) {
            return [=](HWND dialog) {
                ui_list_select_index(dialog, list, 0);
                for (const auto &t : texts) ui_set_text(dialog, t.first, t.second);
            };
        };
        all.push_back({"Edit Deploy Order", {TEXT_FIELD(IDC_DEPLOY_NAME, as_message, deploy_entry, name)},
                       sizeof cargo, one_entry(cargo), deploy,
                       choose_first(IDC_DEPLOY_LIST, {{IDC_DEPLOY_X, "1.5"}, {IDC_DEPLOY_Z, "-2"}}),
                       {IDC_DEPLOY_UPDATE, IDOK}, true});
        all.push_back({"Edit Deploy Order",
                       {NUMBER_FIELD(IDC_DEPLOY_X, strict, deploy_entry, x, 31), NUMBER_FIELD(IDC_DEPLOY_Z, strict, deploy_entry, z, 31)},
                       sizeof cargo, one_entry(cargo), deploy, choose_first(IDC_DEPLOY_LIST, {{IDC_DEPLOY_NAME, "Tank1"}}),
                       {IDC_DEPLOY_UPDATE, IDOK}});
        all.push_back({"Edit Pickup Order", {TEXT_FIELD(IDC_PICKUP_NAME, as_message, pickup_entry, name)},
                       sizeof(pickup_entry), one_entry(pickup_entry{"Tank1"}),
                       [owner = host.main_window](void *) { return edit_pickup_order(owner, entries_edited); },
                       choose_first(IDC_PICKUP_LIST, {}), {IDC_PICKUP_UPDATE, IDOK}, true});
        // Create New Objects validates only the fields it enables: one at a time.
        create_objects_record objects{CO_NUMBER | CO_OBJ_DIST | CO_CAM_DIST | CO_TYPE, 0, 0, "", 5, 50.0f, 100.0f};
        for (const field &f : {NUMBER_FIELD(IDC_CO_NUMBER, object_count, create_objects_record, number, all_of_it),
                               NUMBER_FIELD(IDC_CO_OBJ_DIST, distance, create_objects_record, obj_dist, all_of_it),
                               NUMBER_FIELD(IDC_CO_CAM_DIST, distance, create_objects_record, cam_dist, all_of_it),
                               TEXT_FIELD(IDC_CO_REF_OBJ, offered_name, create_objects_record, ref_obj)}) {
            objects.enabled = f.id == IDC_CO_NUMBER ? CO_NUMBER : f.id == IDC_CO_OBJ_DIST ? CO_OBJ_DIST
                              : f.id == IDC_CO_CAM_DIST ? CO_CAM_DIST : CO_TYPE | CO_REF_OBJ;
            all.push_back({"Create New Objects", {f}, sizeof objects, copy_of(objects), opening(create_objects_dialog)});
        }
        return all;
    }
};

TEST_F(hostile_text_test, every_field_of_every_dialog_reads_hostile_text_by_its_rule) {
    for (const text_case &c : cases())
        for (const input &in : inputs) run(c, in);
}

// The Status window's six fields: a leading number of at most 63 characters
// is stored and sent; anything else changes nothing and tells the host nothing.
TEST_F(hostile_text_test, status_fields_take_only_numbers_a_float_holds) {
    HWND status = nullptr;
    for (HWND w : ui_thread_windows())
        if (is_status_window(w)) status = w;
    ASSERT_NE(status, nullptr);
    const int fields[] = {IDC_ST_POSITION_X, IDC_ST_POSITION_Y, IDC_ST_POSITION_Z,
                          IDC_ST_ORIENTATION_X, IDC_ST_ORIENTATION_Y, IDC_ST_ORIENTATION_Z};
    for (const input &in : inputs) {
        SCOPED_TRACE(in.label);
        editor_state &stored = editor_stored_state();
        std::memset(stored.position, 0, sizeof stored.position);
        std::memset(stored.orientation, 0, sizeof stored.orientation);
        host.notifications.clear();
        SetActiveWindow(status);
        for (int id : fields) SetDlgItemTextA(status, id, in.text.c_str());
        const reading r = first(in, 63);
        EXPECT_EQ(host.notifications.size(), r.number ? 6u : 0u);
        for (int i = 0; i < 3; ++i) {
            EXPECT_EQ(stored.position[i], r.number ? r.value : 0.0f);
            EXPECT_EQ(stored.orientation[i], r.number ? single(r.value * 0.01745328f) : 0.0f);
        }
    }
    SetActiveWindow(host.main_window);
}
