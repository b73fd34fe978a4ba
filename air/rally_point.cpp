#include "air/rally_point.h"

#include "util/module_flag.h"

namespace {
module_flag module;
}  // namespace

int rally_point_start() { return module.start(); }
int rally_point_tidyup() { return module.tidyup(); }
