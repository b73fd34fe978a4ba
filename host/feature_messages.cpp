// Message requests: the confirmations and errors a game asks the editor for.
#include "host/host_app.h"
#include "host/ui_driver.h"

namespace {
void ask(int request, const char *what) {
    int answer = app().window(request, 0, 0);
    app().log(std::string(what) + ": answered " + std::to_string(answer));
}

void custom(int kind, const char *what) {
    const char *text = "The sample mission has 5 objects and 3 formations.";
    int answer = app().window(REQUEST_MESSAGE_BOX, reinterpret_cast<uintptr_t>(text), static_cast<uintptr_t>(kind));
    app().log(std::string(what) + ": answered " + std::to_string(answer));
}

void tour_box(const char *title, const char *name, const char *caption, int request, uintptr_t arg1 = 0,
              uintptr_t arg2 = 0) {
    ui_driver driver;
    driver.then(title, [name, caption](HWND box) {
        tour_screenshot(box, "Message boxes", name, caption);
        ui_command(box, GetDlgItem(box, IDYES) ? IDYES : IDOK);
    });
    app().window(request, arg1, arg2);
    tour_check(driver);
}

void tour() {
    tour_box("Editor Question", "message_confirm_quit", "Messages menu, Confirm quit (request 1).",
             REQUEST_CONFIRM_QUIT);
    tour_box("Editor Error", "message_invalid_selection", "Messages menu, Invalid selection (request 2).",
             REQUEST_INVALID_SELECTION);
    tour_box("Editor Error", "message_nothing_selected", "Messages menu, Nothing selected (request 3).",
             REQUEST_NOTHING_SELECTED);
    tour_box("Editor Question", "message_confirm_delete", "Messages menu, Confirm delete (request 7).",
             REQUEST_CONFIRM_DELETE);
    tour_box("Editor Error", "message_unmatched_group", "Messages menu, Unmatched group (request 8).",
             REQUEST_UNMATCHED_GROUP);
    static const char text[] = "Mission saved.";
    tour_box("Editor Warning", "message_warning", "Request 0 with the host's own text \"Mission saved.\", as a warning.",
             REQUEST_MESSAGE_BOX, reinterpret_cast<uintptr_t>(text), MESSAGE_WARNING);
    tour_box("Editor Informaiton", "message_information",
             "Request 0 with the host's own text \"Mission saved.\", as information.", REQUEST_MESSAGE_BOX,
             reinterpret_cast<uintptr_t>(text), MESSAGE_INFORMATION);
}
}  // namespace

HOST_FEATURE("&Messages", "Confirm &quit", [] { ask(REQUEST_CONFIRM_QUIT, "confirm quit"); }, tour, 10);
HOST_FEATURE("&Messages", "&Invalid selection", [] { ask(REQUEST_INVALID_SELECTION, "invalid selection"); }, nullptr, 10);
HOST_FEATURE("&Messages", "&Nothing selected", [] { ask(REQUEST_NOTHING_SELECTED, "nothing selected"); }, nullptr, 10);
HOST_FEATURE("&Messages", "Confirm &delete", [] { ask(REQUEST_CONFIRM_DELETE, "confirm delete"); }, nullptr, 10);
HOST_FEATURE("&Messages", "&Unmatched group", [] { ask(REQUEST_UNMATCHED_GROUP, "unmatched group"); }, nullptr, 10);
HOST_FEATURE("&Messages", "Custom &error", [] { custom(MESSAGE_ERROR, "custom error"); }, nullptr, 10);
HOST_FEATURE("&Messages", "Custom &warning", [] { custom(MESSAGE_WARNING, "custom warning"); }, nullptr, 10);
HOST_FEATURE("&Messages", "Custom in&formation", [] { custom(MESSAGE_INFORMATION, "custom information"); }, nullptr, 10);
HOST_FEATURE("&Messages", "Custom &question", [] { custom(MESSAGE_QUESTION, "custom question"); }, nullptr, 10);
