#include "ground/group_composition.h"

#include "util/module_flag.h"

namespace {
module_flag module;
}  // namespace

int group_composition_start() { return module.start(); }
int group_composition_tidyup() { return module.tidyup(); }
