#include "ground/group_record.h"

#include <cstdio>
#include <cstring>

#include "util/host_memory.h"
#include "util/text.h"

const char *const unit_type_names[UNIT_TYPE_COUNT] = {
    "NONE",
    "FRIENDLY_INFANTRY", "FRIENDLY_ARMOUR", "FRIENDLY_MECHANISED", "FRIENDLY_RECON",
    "FRIENDLY_SPECIAL_FORCES", "FRIENDLY_ENGINEERS", "FRIENDLY_WHEELED_INF", "FRIENDLY_TRANSPORT",
    "FRIENDLY_ARTILLERY", "FRIENDLY_SP_ARTILLERY", "FRIENDLY_AVIATION", "FRIENDLY_ROTARY_WING",
    "FRIENDLY_MARINES", "FRIENDLY_PARATROOPS", "FRIENDLY_RADAR", "FRIENDLY_ANTI_AIRCRAFT",
    "FRIENDLY_HEADQUARTERS", "FRIENDLY_ROCKET_ARTLY", "FRIENDLY_ARSP", "FRIENDLY_AIRMOBILE_INF",
    "FRIENDLY_ALPINE_INF",
    "ENEMY_INFANTRY", "ENEMY_ARMOUR", "ENEMY_MECHANISED", "ENEMY_RECON",
    "ENEMY_SPECIAL_FORCES", "ENEMY_ENGINEERS", "ENEMY_WHEELED_INF", "ENEMY_TRANSPORT",
    "ENEMY_ARTILLERY", "ENEMY_SP_ARTILLERY", "ENEMY_AVIATION", "ENEMY_ROTARY_WING",
    "ENEMY_MARINES", "ENEMY_PARATROOPS", "ENEMY_RADAR", "ENEMY_ANTI_AIRCRAFT",
    "ENEMY_HEADQUARTERS", "ENEMY_ROCKET_ARTLY", "ENEMY_ARSP", "ENEMY_AIRMOBILE_INF",
    "ENEMY_ALPINE_INF",
};

namespace {
// A list holding a copy of each of the first `count` slots (the count is the
// host's; the slots bound it whatever it says); null, with nothing left, when
// any block cannot be had.
template <class T, size_t N>
dlist *copy_slots(const T (&slots)[N], int32_t count) {
    dlist *list = dlist_create();
    if (!list) return nullptr;
    for (int32_t i = 0; i < count && i < static_cast<int32_t>(N); ++i) {
        if (!append_entry(list, host_copy(slots[i]))) {
            destroy_entry_list<T>(list);
            return nullptr;
        }
    }
    return list;
}

// Copies a list into the record's slots, whole records, at most N of them;
// the number written.
template <class T, size_t N>
int32_t store_slots(T (&slots)[N], const dlist *list) {
    int32_t count = 0;
    for (T *entry : dlist_values<T>(list)) {
        if (count == static_cast<int32_t>(N)) break;
        std::memcpy(&slots[count++], entry, sizeof(T));
    }
    return count;
}
}  // namespace

void format_pair_line(char (&line)[UNIT_LINE_SIZE], const char *name, const char *detail) {
    std::snprintf(line, sizeof line, "%.31s (%.31s)", name, detail);
}

bool load_group(group_working_copy &copy, const group_record &record) {
    copy = group_working_copy{};
    copy_field(copy.name, record.name);
    // Each list is made just before it is filled: orders, contingencies, members.
    copy.orders = copy_slots(record.orders, record.order_count);
    if (copy.orders) copy.contingencies = copy_slots(record.contingencies, record.contingency_count);
    if (copy.contingencies) copy.members = copy_entries<unit_entry>(record.members, copy_unit);
    if (!copy.members) {
        free_group_working_copy(copy);
        return false;
    }
    copy.status = record.status;
    copy.appearance = record.appearance;
    copy.target_player_only = record.target_player_only;
    copy.group_type = record.group_type;
    return true;
}

bool store_group(group_record &record, const group_working_copy &copy) {
    dlist *members = copy_entries<unit_entry>(copy.members, copy_unit);
    if (!members) return false;

    record.status = copy.status;
    record.appearance = copy.appearance;
    record.target_player_only = copy.target_player_only;
    copy_field(record.name, copy.name);
    record.group_type = copy.group_type;

    record.order_count = store_slots(record.orders, copy.orders);
    for (contingency_order_record &slot : record.contingencies) slot.trigger = 0;
    record.contingency_count = store_slots(record.contingencies, copy.contingencies);

    if (record.members)
        replace_entries<unit_entry>(record.members, members);
    else
        record.members = members;
    return true;
}

void free_group_working_copy(group_working_copy &copy) {
    destroy_entry_list<unit_entry>(copy.members);
    destroy_entry_list<sarge_order_record>(copy.orders);
    destroy_entry_list<contingency_order_record>(copy.contingencies);
}
