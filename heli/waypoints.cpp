// Edit Waypoints (template 143): a heli group's route, one line per
// waypoint; Edit Waypoint (template 144): one waypoint. Helicopter
// discipline: a new waypoint comes from the host's create and joins the
// route only when its Edit Waypoint is confirmed; an edited waypoint is
// worked on as a host copy, which on OK takes the original's node while the
// original is destroyed; a cancelled new record or copy, and a removed
// waypoint, are destroyed at once. Every record leaving the route this way
// is destroyed exactly once.
#include "heli/waypoints.h"

#include <cstddef>
#include <cstdio>
#include <cstring>

#include "editor/editor.h"
#include "heli/waypoint_orders.h"
#include "resources/heli_ids.h"
#include "resources/string_ids.h"
#include "util/controls.h"
#include "util/dialogs.h"
#include "util/host_list.h"
#include "util/line_batch.h"
#include "util/modal.h"
#include "util/numbers.h"
#include "util/scope.h"
#include "util/text.h"

namespace {
module_flag route_module;     // Edit Waypoints
module_flag waypoint_module;  // Edit Waypoint
dlist *route = nullptr;                 // the list Edit Waypoints works on
waypoint_record *edited = nullptr;      // the record Edit Waypoint works on
const dlist *markers = nullptr;         // the marker list held while Edit Waypoint is open

void destroy_waypoint(waypoint_record *waypoint) { host().host_waypoint_destroy(&waypoint); }

// ---------------------------------------------------------------------------
// Edit Waypoints
// ---------------------------------------------------------------------------

waypoint_record *selected_waypoint(HWND dialog) {
    return list_selected<waypoint_record>(GetDlgItem(dialog, IDC_WPS_LIST));
}

dlist_node *node_holding(const waypoint_record *waypoint) {
    for (dlist_node *node : dlist_nodes(route))
        if (node->value == dlist_value(waypoint)) return node;
    return nullptr;
}

void refresh_route(HWND dialog) {
    fill_waypoint_list(dialog);
    centre_dialog(dialog);
    ShowWindow(dialog, SW_SHOWNORMAL);
}

// Add (place: the head) and Insert (place: the selected waypoint's node): a
// new waypoint, edited, then put before `place`, so that it follows the
// waypoint before `place` and starts with that waypoint's settings. The first
// waypoint of a route keeps the host's defaults.
void add_waypoint(HWND dialog, dlist_node *place) {
    waypoint_record *waypoint = nullptr;
    if (!host().host_waypoint_create(&waypoint) || !waypoint) return;
    dlist_node *previous = place->prev;
    if (previous != route && previous->value)
        inherit_waypoint_settings(reinterpret_cast<waypoint_record *>(previous->value), waypoint);
    if (edit_waypoint(dialog, waypoint)) {
        dlist_insert_before(place, dlist_value(waypoint));
        if (place->prev != previous) {
            refresh_route(dialog);
            return;
        }
    }
    // Cancelled, or no list node could be had for it: the route never held it.
    destroy_waypoint(waypoint);
}

void insert_waypoint(HWND dialog) {
    const waypoint_record *selected = selected_waypoint(dialog);
    dlist_node *place = selected ? node_holding(selected) : nullptr;
    // No selection: Add. A selected waypoint no longer in the route: the end.
    add_waypoint(dialog, place ? place : route);
}

void edit_selected(HWND dialog) {
    waypoint_record *original = selected_waypoint(dialog);
    if (!original) return;
    waypoint_record *copy = nullptr;
    if (!host().host_waypoint_copy(original, &copy) || !copy) return;
    dlist_node *node = edit_waypoint(dialog, copy) ? node_holding(original) : nullptr;
    if (!node) {
        destroy_waypoint(copy);
        return;
    }
    node->value = dlist_value(copy);
    destroy_waypoint(original);
    refresh_route(dialog);
}

void remove_selected(HWND dialog) {
    waypoint_record *waypoint = selected_waypoint(dialog);
    dlist_node *node = waypoint ? node_holding(waypoint) : nullptr;
    if (!node) return;
    dlist_remove_node(node);
    destroy_waypoint(waypoint);
    refresh_route(dialog);
}

void on_route_init(HWND dialog) { refresh_route(dialog); }

bool on_route_command(HWND dialog, int id, int code) {
    if (id == IDC_WPS_LIST) {
        if (code != LBN_DBLCLK) return false;
        edit_selected(dialog);
        return true;
    }
    if (code != BN_CLICKED) return false;
    switch (id) {
    case IDC_WPS_ADD:
        add_waypoint(dialog, route);
        return true;
    case IDC_WPS_INSERT:
        insert_waypoint(dialog);
        return true;
    case IDC_WPS_EDIT:
        edit_selected(dialog);
        return true;
    case IDC_WPS_REMOVE:
        remove_selected(dialog);
        return true;
    default:
        return false;
    }
}

const dialog_class route_dialog = {on_route_init, on_route_command, nullptr, nullptr, FALSE};

// ---------------------------------------------------------------------------
// Edit Waypoint
// ---------------------------------------------------------------------------

// A setting chosen from a table of texts: the line's index plus `base` is
// the stored value.
struct setting_choice {
    int combo;
    uint32_t waypoint_record::*field;
    uint32_t base;
    int lines[4];  // string ids, 0 after the last
};

// In the order OK stores them.
const setting_choice setting_choices[] = {
    {IDC_WP_HEIGHT, &waypoint_record::height_level, 0,
     {IDS_HEIGHT_NOE, IDS_HEIGHT_LOW, IDS_HEIGHT_MEDIUM, IDS_HEIGHT_HIGH}},
    {IDC_WP_NON_THREAT, &waypoint_record::non_threat_action, 0, {IDS_CONTACT_BYPASS, IDS_HELI_ENGAGE}},
    {IDC_WP_THREAT, &waypoint_record::threat_action, 0, {IDS_CONTACT_BYPASS, IDS_HELI_ENGAGE}},
    {IDC_WP_WEAPONS_LOW, &waypoint_record::weapons_low_action, 0,
     {IDS_ACTION_CONTINUE, IDS_ACTION_USE_ARSP, IDS_ACTION_GO_HOME}},
    {IDC_WP_FUEL_LOW, &waypoint_record::fuel_low_action, 0,
     {IDS_ACTION_CONTINUE, IDS_ACTION_USE_ARSP, IDS_ACTION_GO_HOME}},
    {IDC_WP_DAMAGE, &waypoint_record::damage_action, 0,
     {IDS_ACTION_CONTINUE, IDS_ACTION_USE_RALLY_POINT, IDS_ACTION_GO_HOME}},
    // FMC (0) is never offered: PMC is line 0.
    {IDC_WP_DAMAGE_LEVEL, &waypoint_record::damage_level, DAMAGE_PMC, {IDS_DAMAGE_PMC, IDS_DAMAGE_NMC}},
};

// Speeds are kept in m/s and shown in km/h, each way by its own
// single-precision constant (0.277777 is not 1/3.6).
constexpr float kmh_per_ms = 3.6f;
constexpr float ms_per_kmh = 0.277777f;

// The product rounded to a single, as the record holds it (the x87 unit
// would otherwise carry more precision into the display).
float single(float value) {
    volatile float rounded = value;
    return rounded;
}

const setting_choice *choice_of(int combo) {
    for (const setting_choice &choice : setting_choices)
        if (choice.combo == combo) return &choice;
    return nullptr;
}

void fill_choice(HWND dialog, const setting_choice &choice) {
    HWND combo = GetDlgItem(dialog, choice.combo);
    SendMessageA(combo, CB_RESETCONTENT, 0, 0);
    uint32_t count = 0;
    for (int line : choice.lines)
        if (line && combo_add_string_id(combo, line) >= 0) ++count;
    // A stored value without a line (a height of 7, a damage level of 0)
    // leaves the combo without a selection.
    const uint32_t value = edited->*choice.field;
    if (value >= choice.base && value - choice.base < count)
        SendMessageA(combo, CB_SETCURSEL, value - choice.base, 0);
}

void store_choice(HWND dialog, const setting_choice &choice) {
    LRESULT index = SendDlgItemMessageA(dialog, choice.combo, CB_GETCURSEL, 0, 0);
    if (index >= 0) edited->*choice.field = static_cast<uint32_t>(index) + choice.base;
}

// The marker field against a host name, byte by byte; the field may fill
// its 32 bytes without a terminator.
bool is_marker(const char (&field)[32], const char *name) {
    size_t length = strnlen(field, sizeof field);
    return strnlen(name, sizeof field + 1) == length && std::memcmp(field, name, length) == 0;
}

void fill_markers(HWND dialog) {
    HWND combo = GetDlgItem(dialog, IDC_WP_MARKER);
    line_batch lines(combo);
    char none[32];
    load_string(IDS_NONE_SELECTED, none, sizeof none);
    lines.add(none, 0);
    size_t selected = 0;  // in the order added
    for (dlist_node *node : dlist_nodes(markers)) {
        const char *name = reinterpret_cast<const char *>(node->value);
        if (!name) continue;
        // Shown as it would be stored.
        char line[sizeof edited->marker_name];
        copy_text(line, name);
        if (is_marker(edited->marker_name, name)) selected = lines.size();
        lines.add(line, static_cast<LPARAM>(node->value));
    }
    SendMessageA(combo, CB_SETCURSEL, static_cast<WPARAM>(lines.commit()[selected]), 0);
}

// "None Selected" (no name behind it) leaves the stored name as it was.
void store_marker(HWND dialog) {
    LPARAM name = 0;
    if (combo_selected_data(GetDlgItem(dialog, IDC_WP_MARKER), name) && name)
        copy_text(edited->marker_name, reinterpret_cast<const char *>(name));
}

void show_speed(HWND dialog) {
    set_item_text_f(dialog, IDC_WP_SPEED, "%6.1f", static_cast<double>(single(edited->transit_speed * kmh_per_ms)));
}

// Any number the text begins with ("120km/h" is 120); otherwise the speed
// stays as it was.
void store_speed(HWND dialog) {
    char text[32];
    get_item_text(dialog, IDC_WP_SPEED, text);
    float kmh = 0;
    if (parse_number_lenient(text, kmh)) edited->transit_speed = kmh * ms_per_kmh;
}

bool is_order_list_control(int id) {
    switch (id) {
    case IDC_WP_ORDERS:
    case IDC_WP_ORDER_ADD:
    case IDC_WP_ORDER_INSERT:
    case IDC_WP_ORDER_EDIT:
    case IDC_WP_ORDER_REMOVE:
        return true;
    default:
        return false;
    }
}

// Every change is written into the record at once, whatever the
// notification: the record is a new one or a copy, which the caller keeps
// or destroys whole.
bool on_waypoint_command(HWND dialog, int id, int code) {
    if (is_order_list_control(id)) return waypoint_order_command(dialog, edited, id, code, load_waypoint_dialog);
    if (id == IDC_WP_MARKER) {
        store_marker(dialog);
        return true;
    }
    if (id == IDC_WP_SPEED) {
        store_speed(dialog);
        return true;
    }
    if (const setting_choice *choice = choice_of(id)) {
        store_choice(dialog, *choice);
        return true;
    }
    return false;
}

dialog_end on_waypoint_ok(HWND dialog) {
    store_marker(dialog);
    for (const setting_choice &choice : setting_choices) store_choice(dialog, choice);
    store_speed(dialog);
    return END_CONFIRMED;
}

const dialog_class waypoint_dialog = {load_waypoint_dialog, on_waypoint_command, on_waypoint_ok, nullptr, FALSE};
}  // namespace

int waypoint_dialogs_start() { return route_module.start() & waypoint_module.start(); }
int waypoint_dialogs_tidyup() { return route_module.tidyup() & waypoint_module.tidyup(); }

void fill_waypoint_list(HWND dialog) {
    line_batch lines(GetDlgItem(dialog, IDC_WPS_LIST));
    int unnamed = 1;
    for (waypoint_record *waypoint : dlist_values<waypoint_record>(route)) {
        if (!waypoint) continue;
        char line[sizeof waypoint->marker_name];
        copy_field(line, waypoint->marker_name);
        if (!line[0]) std::snprintf(line, sizeof line, "Waypoint %d", unnamed++);
        lines.add(line, reinterpret_cast<LPARAM>(waypoint));
    }
}

void load_waypoint_dialog(HWND dialog) {
    if (!edited) return;
    fill_waypoint_order_list(dialog, edited);
    fill_markers(dialog);
    for (const setting_choice &choice : setting_choices) fill_choice(dialog, choice);
    // The edit tells the dialog of its new text, so the record then holds
    // the shown km/h value converted back.
    show_speed(dialog);
    centre_dialog(dialog);
    ShowWindow(dialog, SW_SHOWNORMAL);
}

void inherit_waypoint_settings(const waypoint_record *from, waypoint_record *to) {
    if (!from || !to || from == to) return;
    // Copied as bytes: the two carried words are the host's, whatever they hold.
    auto copy_words = [&](size_t first, size_t end) {
        std::memcpy(reinterpret_cast<char *>(to) + first, reinterpret_cast<const char *>(from) + first, end - first);
    };
    copy_words(offsetof(waypoint_record, height_level), offsetof(waypoint_record, orders));
    copy_words(offsetof(waypoint_record, damage_level), sizeof(waypoint_record));
}

int edit_waypoints(HWND owner, dlist *waypoints) {
    modal_session session(route_module);
    if (!session || !waypoints) return 0;
    route = waypoints;
    auto forget = on_scope_exit([] { route = nullptr; });
    return session.run(IDD_EDIT_WAYPOINTS, owner, dialog_proc<route_dialog>);
}

int edit_waypoint(HWND owner, waypoint_record *waypoint) {
    modal_session session(waypoint_module);
    if (!session || !waypoint) return 0;
    // Held from just before the dialog opens until just after it ends.
    held_list marker_list(host().host_marker_list);
    if (!marker_list) return 0;
    edited = waypoint;
    markers = marker_list.get();
    auto forget = on_scope_exit([] {
        edited = nullptr;
        markers = nullptr;
    });
    return session.run(IDD_EDIT_WAYPOINT, owner, dialog_proc<waypoint_dialog>);
}
