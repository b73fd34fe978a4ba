#include "ground/group_orders.h"

#include "util/module_flag.h"

namespace {
module_flag module;
}  // namespace

int group_orders_start() { return module.start(); }
int group_orders_tidyup() { return module.tidyup(); }
