#include "util/host_memory.h"

#include "util/text.h"

unit_entry *copy_unit(const unit_entry &unit) {
    unit_entry *copy = host_new<unit_entry>();
    if (!copy) return nullptr;
    copy_field(copy->name, unit.name);
    copy_field(copy->type_name, unit.type_name);
    copy->id = unit.id;
    return copy;
}
