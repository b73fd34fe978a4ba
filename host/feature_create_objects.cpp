// Placing new objects: the host asks the editor for the details with a record
// saying which fields it offers (enabled) and which values it already knows
// (preset), and logs what came back.
#include <cstdio>
#include <cstring>
#include <string>

#include "host/host_app.h"
#include "host/ui_driver.h"

namespace {
const uint32_t all_fields = CO_TYPE | CO_REF_OBJ | CO_NUMBER | CO_OBJ_DIST | CO_CAM_DIST | CO_AALIGN | CO_AACAMREL |
                            CO_ORIENT | CO_OCAMREL;

const char *const type_names[OBJECT_TYPE_COUNT] = {
    "World (General)", "Cultural", "Gralls", "Group Waypoint Object", "Bombing Run",
    "Rally Point",     "Helicopter", "Grunit", "Man"};

// A record with the host's own guesses; only the preset ones are shown.
create_objects_record record_for(uint32_t preset, uint32_t enabled) {
    create_objects_record r{};
    r.preset = preset;
    r.enabled = enabled;
    r.type = OBJECT_GRALLS;
    std::strncpy(r.ref_obj, "Tank1", sizeof r.ref_obj - 1);
    r.number = 1;
    r.obj_dist = 25.0f;
    r.cam_dist = 80.0f;
    r.aalign = CO_AXIS_Z;
    r.aacamrel = 1;
    r.orient = CO_AXIS_Y;
    r.ocamrel = 0;
    return r;
}

void log_record(const char *what, int answer, const create_objects_record &r) {
    char line[512];
    const char *type = r.type >= 0 && r.type < OBJECT_TYPE_COUNT ? type_names[r.type] : "?";
    std::snprintf(line, sizeof line,
                  "%s: answered %d; type %d (%s), ref_obj \"%.63s\", number %u, obj_dist %.3f, cam_dist %.3f, "
                  "aalign %d, aacamrel %d, orient %d, ocamrel %d",
                  what, answer, static_cast<int>(r.type), type, r.ref_obj, static_cast<unsigned>(r.number),
                  static_cast<double>(r.obj_dist), static_cast<double>(r.cam_dist), static_cast<int>(r.aalign),
                  static_cast<int>(r.aacamrel), static_cast<int>(r.orient), static_cast<int>(r.ocamrel));
    app().log(line);
}

int ask(const char *what, create_objects_record r) {
    int answer = app().window(REQUEST_CREATE_OBJECTS, reinterpret_cast<uintptr_t>(&r), 0);
    log_record(what, answer, r);
    return answer;
}

int all_enabled() { return ask("create objects (all enabled)", record_for(0, all_fields)); }

int grunit_number_fixed() {
    create_objects_record r = record_for(CO_TYPE | CO_NUMBER, all_fields & ~(CO_TYPE | CO_NUMBER));
    r.type = OBJECT_GRUNIT;
    return ask("create objects (Grunit, one object)", r);
}

int everything_preset() {
    create_objects_record r = record_for(all_fields, all_fields);
    r.number = 4;
    return ask("create objects (everything preset)", r);
}

int reference_fixed() {
    return ask("create objects (reference preset, type and reference fixed)",
               record_for(CO_TYPE | CO_REF_OBJ, all_fields & ~(CO_TYPE | CO_REF_OBJ)));
}

int placement_only() {
    return ask("create objects (camera distance and orientation only)",
               record_for(0, CO_CAM_DIST | CO_ORIENT | CO_OCAMREL));
}

int rally_point() {
    create_objects_record r = record_for(CO_TYPE, CO_REF_OBJ | CO_CAM_DIST);
    r.type = OBJECT_RALLY_POINT;  // the sample mission has nothing to refer to
    return ask("create objects (rally point, no reference objects)", r);
}

int number_too_large() {
    create_objects_record r = record_for(CO_NUMBER, all_fields);
    r.number = 11;
    return ask("create objects (preset number 11)", r);
}

void tour() {
    const char *const group = "Create New Objects";
    tour_modal(group, group, "create_objects",
               "Objects menu, Create objects (all enabled) (request 4): every field offered, nothing preset; "
               "the reference list holds the sample's World objects.",
               all_enabled);
    tour_modal(group, group, "create_objects_grunit_fixed",
               "Objects menu, Create objects (type preset to Grunit, number fixed): type and number shown but not "
               "offered; the reference list holds the sample's Grunits.",
               grunit_number_fixed);
    tour_modal(group, group, "create_objects_preset",
               "Objects menu, Create objects (everything preset): Gralls, Tank1, 4 objects 25 m apart, 80 m from "
               "the camera, aligned on Z, oriented on Y.",
               everything_preset);
    tour_modal(group, group, "create_objects_placement_only",
               "Objects menu, Create objects (camera distance and orientation only): the other fields are not "
               "offered, so type and reference stay empty.",
               placement_only);
}
}  // namespace

HOST_FEATURE("&Objects", "Create objects (&all enabled)...", [] { all_enabled(); }, tour, 20);
HOST_FEATURE("&Objects", "Create objects (type preset to &Grunit, number fixed)...", [] { grunit_number_fixed(); },
             nullptr, 20);
HOST_FEATURE("&Objects", "Create objects (&everything preset)...", [] { everything_preset(); }, nullptr, 20);
HOST_FEATURE("&Objects", "Create objects (&reference preset, type and reference fixed)...",
             [] { reference_fixed(); }, nullptr, 20);
HOST_FEATURE("&Objects", "Create objects (&camera distance and orientation only)...", [] { placement_only(); },
             nullptr, 20);
HOST_FEATURE("&Objects", "Create &rally point (no reference objects)...", [] { rally_point(); }, nullptr, 20);
HOST_FEATURE("&Objects", "Create objects (preset &number 11)...", [] { number_too_large(); }, nullptr, 20);
