#include "ground/group_list.h"

#include "util/module_flag.h"

namespace {
module_flag module;
}  // namespace

int group_list_start() { return module.start(); }
int group_list_tidyup() { return module.tidyup(); }
