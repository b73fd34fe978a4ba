// The request dispatcher behind editor_window.
#pragma once

#include <cstdint>

// The request's result; 0 for codes above 15 (taken as unsigned) and for
// requests whose dialog is not built.
int dispatch_request(uint32_t code, uintptr_t arg1, uintptr_t arg2);
