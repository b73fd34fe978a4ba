#include "editor/requests.h"

#include "editor_api.h"
#include "util/dialogs.h"

namespace {
using request_handler = int (*)(uintptr_t arg1, uintptr_t arg2);

template <int Id, int Kind>
int fixed_message(uintptr_t, uintptr_t) {
    return show_message_id(Id, Kind);
}

int message_box(uintptr_t text, uintptr_t kind) {
    return show_message(reinterpret_cast<const char *>(text), static_cast<int>(kind));
}

// Indexed by request code. A null entry is a dialog not built yet: it answers 0.
const request_handler handlers[] = {
    message_box,                                 // REQUEST_MESSAGE_BOX
    fixed_message<6, MESSAGE_QUESTION>,          // REQUEST_CONFIRM_QUIT
    fixed_message<7, MESSAGE_ERROR>,             // REQUEST_INVALID_SELECTION
    fixed_message<8, MESSAGE_ERROR>,             // REQUEST_NOTHING_SELECTED
    nullptr,                                     // REQUEST_CREATE_OBJECTS
    nullptr,                                     // REQUEST_SAVE_WORLD_FILE
    nullptr,                                     // REQUEST_SAVE_MISSION_FILE
    fixed_message<20, MESSAGE_QUESTION>,         // REQUEST_CONFIRM_DELETE
    fixed_message<25, MESSAGE_ERROR>,            // REQUEST_UNMATCHED_GROUP
    nullptr,                                     // REQUEST_GROUP_COMPOSITION
    nullptr,                                     // REQUEST_OBJECT_NAMES
    nullptr,                                     // REQUEST_GROUP_LIST
    nullptr,                                     // REQUEST_BOMBING_RUN
    nullptr,                                     // REQUEST_RALLY_POINT
    nullptr,                                     // REQUEST_EDIT_HELI_GROUP
    nullptr,                                     // REQUEST_LIST_HELI_GROUPS
};
static_assert(sizeof handlers / sizeof handlers[0] == 16, "one handler per request code");
}  // namespace

int dispatch_request(uint32_t code, uintptr_t arg1, uintptr_t arg2) {
    if (code >= 16 || !handlers[code]) return 0;
    return handlers[code](arg1, arg2);
}
