#include "windows/status.h"

#include "util/module_flag.h"

namespace {
module_flag module;
}  // namespace

int status_start(HWND, const char *, const char *) { return module.start(); }
int status_tidyup(const char *, const char *) { return module.tidyup(); }
int status_refresh() { return 1; }
int is_status_window(HWND) { return 0; }
