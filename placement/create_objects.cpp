#include "placement/create_objects.h"

#include "util/module_flag.h"

namespace {
module_flag module;
}  // namespace

int create_objects_start(const char *, const char *) { return module.start(); }
int create_objects_tidyup(const char *, const char *) { return module.tidyup(); }
