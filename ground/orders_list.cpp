#include "ground/orders_list.h"

#include "util/module_flag.h"

namespace {
module_flag module;
}  // namespace

int orders_list_start() { return module.start(); }
int orders_list_tidyup() { return module.tidyup(); }
