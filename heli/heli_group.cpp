#include "heli/heli_group.h"

#include "util/module_flag.h"

namespace {
module_flag module;
}  // namespace

int heli_group_start() { return module.start(); }
int heli_group_tidyup() { return module.tidyup(); }
