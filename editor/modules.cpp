#include "editor/modules.h"

#include "air/bombing_run.h"
#include "air/rally_point.h"
#include "ground/group_composition.h"
#include "ground/group_list.h"
#include "ground/group_orders.h"
#include "ground/object_names.h"
#include "ground/orders_list.h"
#include "ground/sarge_order.h"
#include "heli/heli_group.h"
#include "placement/create_objects.h"
#include "windows/cursor.h"
#include "windows/status.h"
#include "windows/toolbar.h"

namespace {
struct module_entry {
    int (*start)(const editor_setup &setup);
    int (*tidyup)(const editor_setup &setup);
};

// Modules whose start and tidy-up need nothing from the setup record.
template <int (*Start)(), int (*Tidyup)()>
constexpr module_entry plain() {
    return {[](const editor_setup &) { return Start(); }, [](const editor_setup &) { return Tidyup(); }};
}

// Started in this order, and tidied up in the same order (not the reverse).
const module_entry modules[] = {
    {[](const editor_setup &s) { return toolbar_start(s.main_window, s.settings_file, s.settings_folder); },
     [](const editor_setup &s) { return toolbar_tidyup(s.settings_file, s.settings_folder); }},
    {[](const editor_setup &s) { return status_start(s.main_window, s.settings_file, s.settings_folder); },
     [](const editor_setup &s) { return status_tidyup(s.settings_file, s.settings_folder); }},
    {[](const editor_setup &s) { return create_objects_start(s.settings_file, s.settings_folder); },
     [](const editor_setup &s) { return create_objects_tidyup(s.settings_file, s.settings_folder); }},
    plain<group_composition_start, group_composition_tidyup>(),
    plain<orders_list_start, orders_list_tidyup>(),
    plain<sarge_order_start, sarge_order_tidyup>(),
    plain<object_names_start, object_names_tidyup>(),
    plain<group_list_start, group_list_tidyup>(),
    plain<group_orders_start, group_orders_tidyup>(),
    plain<bombing_run_start, bombing_run_tidyup>(),
    plain<rally_point_start, rally_point_tidyup>(),
    plain<heli_group_start, heli_group_tidyup>(),
    plain<cursor_start, cursor_tidyup>(),
};
}  // namespace

int modules_start(const editor_setup &setup) {
    for (const module_entry &module : modules) {
        if (!module.start(setup)) return 0;
    }
    return 1;
}

void modules_tidyup(const editor_setup &setup) {
    for (const module_entry &module : modules) module.tidyup(setup);
}
