#include "ground/sarge_order.h"

#include "util/module_flag.h"

namespace {
module_flag module;
}  // namespace

int sarge_order_start() { return module.start(); }
int sarge_order_tidyup() { return module.tidyup(); }

int edit_sarge_order(HWND, sarge_order_record *) { return 0; }
int fill_formation_combo(HWND) { return 0; }
int fill_destination_combo(HWND) { return 0; }
int fill_message_target_combo(HWND) { return 0; }
int select_combo_string(HWND, const char *) { return -1; }
