#include "ground/sarge_order.h"

#include "util/module_flag.h"

namespace {
module_flag module;
}  // namespace

int sarge_order_start() { return module.start(); }
int sarge_order_tidyup() { return module.tidyup(); }
