#include "ground/object_names.h"

#include "util/module_flag.h"

namespace {
module_flag module;
}  // namespace

int object_names_start() { return module.start(); }
int object_names_tidyup() { return module.tidyup(); }

int edit_name(HWND, char *) { return 0; }
int list_object_names(dlist_node *) { return 0; }
