#include "air/bombing_run.h"

#include "util/module_flag.h"

namespace {
module_flag module;
}  // namespace

int bombing_run_start() { return module.start(); }
int bombing_run_tidyup() { return module.tidyup(); }
