#include "editor/requests.h"

#include "air/bombing_run.h"
#include "air/rally_point.h"
#include "editor/editor.h"
#include "editor_api.h"
#include "ground/group_composition.h"
#include "ground/group_list.h"
#include "ground/object_names.h"
#include "heli/heli_group.h"
#include "heli/heli_group_list.h"
#include "placement/create_objects.h"
#include "resources/string_ids.h"
#include "util/dialogs.h"
#include "windows/save_file.h"

namespace {
using request_handler = int (*)(uintptr_t arg1, uintptr_t arg2);

template <int Id, int Kind>
int fixed_message(uintptr_t, uintptr_t) {
    return show_message_id(Id, Kind);
}

template <int Mission>
int save_file(uintptr_t buffer, uintptr_t size) {
    return save_file_dialog(reinterpret_cast<char *>(buffer), static_cast<uint32_t>(size), Mission);
}

int message_box(uintptr_t text, uintptr_t kind) {
    return show_message(reinterpret_cast<const char *>(text), static_cast<int>(kind));
}

int create_objects(uintptr_t record, uintptr_t) {
    return create_objects_dialog(reinterpret_cast<create_objects_record *>(record));
}

int group_composition(uintptr_t group, uintptr_t groups) {
    return edit_group(reinterpret_cast<group_record *>(group), reinterpret_cast<dlist_node *>(groups));
}

int object_names(uintptr_t units, uintptr_t) {
    return list_object_names(reinterpret_cast<dlist_node *>(units));
}

int group_list(uintptr_t groups, uintptr_t) { return list_groups(reinterpret_cast<dlist_node *>(groups)); }

int edit_heli_group_request(uintptr_t group, uintptr_t available) {
    return edit_heli_group(editor_main_window(), reinterpret_cast<heli_group_record *>(group),
                           reinterpret_cast<dlist_node *>(available));
}

int list_heli_groups_request(uintptr_t groups, uintptr_t available) {
    return list_heli_groups(reinterpret_cast<dlist_node *>(groups), reinterpret_cast<dlist_node *>(available));
}

int bombing_run(uintptr_t record, uintptr_t) {
    return edit_bombing_run(reinterpret_cast<bombing_run_record *>(record));
}

int rally_point(uintptr_t record, uintptr_t) {
    return edit_rally_point(reinterpret_cast<rally_point_record *>(record));
}

// Indexed by request code.
const request_handler handlers[] = {
    message_box,                                 // REQUEST_MESSAGE_BOX
    fixed_message<IDS_CONFIRM_QUIT, MESSAGE_QUESTION>, // REQUEST_CONFIRM_QUIT
    fixed_message<IDS_INVALID_SELECTION, MESSAGE_ERROR>, // REQUEST_INVALID_SELECTION
    fixed_message<IDS_NOTHING_SELECTED, MESSAGE_ERROR>, // REQUEST_NOTHING_SELECTED
    create_objects,                              // REQUEST_CREATE_OBJECTS
    save_file<0>,                                // REQUEST_SAVE_WORLD_FILE
    save_file<1>,                                // REQUEST_SAVE_MISSION_FILE
    fixed_message<IDS_CONFIRM_DELETE, MESSAGE_QUESTION>, // REQUEST_CONFIRM_DELETE
    fixed_message<IDS_UNMATCHED_GROUP, MESSAGE_ERROR>, // REQUEST_UNMATCHED_GROUP
    group_composition,                           // REQUEST_GROUP_COMPOSITION
    object_names,                                // REQUEST_OBJECT_NAMES
    group_list,                                  // REQUEST_GROUP_LIST
    bombing_run,                                 // REQUEST_BOMBING_RUN
    rally_point,                                 // REQUEST_RALLY_POINT
    edit_heli_group_request,                     // REQUEST_EDIT_HELI_GROUP
    list_heli_groups_request,                    // REQUEST_LIST_HELI_GROUPS
};
static_assert(sizeof handlers / sizeof handlers[0] == 16, "one handler per request code");
}  // namespace

int dispatch_request(uint32_t code, uintptr_t arg1, uintptr_t arg2) {
    if (code >= 16 || !handlers[code]) return 0;
    return handlers[code](arg1, arg2);
}
