#include "windows/toolbar.h"

#include "util/module_flag.h"

namespace {
module_flag module;
}  // namespace

int toolbar_start(HWND, const char *, const char *) { return module.start(); }
int toolbar_tidyup(const char *, const char *) { return module.tidyup(); }
int toolbar_sync_mode(int) { return 0; }
int is_toolbar_window(HWND) { return 0; }
