#include "editor/editor.h"

int editor_started = 0;

namespace {
editor_setup stored_setup{};
HINSTANCE instance_handle = nullptr;
}  // namespace

editor_setup &editor_stored_setup() { return stored_setup; }

HINSTANCE editor_instance() { return instance_handle; }
void editor_set_instance(HINSTANCE instance) { instance_handle = instance; }

void host_notify(int code, uintptr_t argument) {
    if (!editor_started || !host().host_notify) return;
    host().host_notify(code, argument);
}
