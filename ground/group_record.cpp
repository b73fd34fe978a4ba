#include "ground/group_record.h"

#include <cstdio>
#include <cstring>

#include "editor/editor.h"

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


void copy_name(char (&dest)[32], const char (&src)[32]) {
    const void *end = std::memchr(src, '\0', sizeof src);
    size_t length = end ? static_cast<size_t>(static_cast<const char *>(end) - src) : sizeof src - 1;
    std::memcpy(dest, src, length);
    dest[length] = '\0';
}

void format_pair_line(char (&line)[UNIT_LINE_SIZE], const char *name, const char *detail) {
    std::snprintf(line, sizeof line, "%.31s (%.31s)", name, detail);
}

unit_entry *copy_unit(const unit_entry &unit) {
    auto *copy = static_cast<unit_entry *>(host().host_alloc(sizeof(unit_entry)));
    if (!copy) return nullptr;
    // Zeroed first so the bytes after each name are the same on every copy.
    std::memset(copy, 0, sizeof *copy);
    copy_name(copy->name, unit.name);
    copy_name(copy->type_name, unit.type_name);
    copy->id = unit.id;
    return copy;
}

void clear_members(dlist *members) { free_entries<unit_entry>(members); }

bool load_group(group_working_copy &copy, const group_record &record) {
    copy = group_working_copy{};
    copy_name(copy.name, record.name);
    // Each list is made just before it is filled: orders, contingencies, members.
    copy.orders = dlist_create();
    if (!copy.orders) return false;
    // The counts are the host's; the slots bound them whatever they say.
    int orders = record.order_count < GROUP_MAX_ORDERS ? record.order_count : GROUP_MAX_ORDERS;
    for (int i = 0; i < orders; ++i) {
        append_copy(copy.orders, host_copy(record.orders[i]));
    }
    copy.contingencies = dlist_create();
    if (!copy.contingencies) {
        free_group_working_copy(copy);
        return false;
    }
    int contingencies =
        record.contingency_count < GROUP_MAX_CONTINGENCIES ? record.contingency_count : GROUP_MAX_CONTINGENCIES;
    for (int i = 0; i < contingencies; ++i) {
        append_copy(copy.contingencies, host_copy(record.contingencies[i]));
    }
    copy.members = dlist_create();
    if (!copy.members) {
        free_group_working_copy(copy);
        return false;
    }
    for (unit_entry *unit : dlist_values<unit_entry>(record.members)) {
        if (unit) append_copy(copy.members, copy_unit(*unit));
    }
    copy.status = record.status;
    copy.appearance = record.appearance;
    copy.target_player_only = record.target_player_only;
    copy.group_type = record.group_type;
    return true;
}

void store_group(group_record &record, const group_working_copy &copy) {
    record.status = copy.status;
    record.appearance = copy.appearance;
    record.target_player_only = copy.target_player_only;
    copy_name(record.name, copy.name);
    record.group_type = copy.group_type;

    int count = 0;
    for (sarge_order_record *order : dlist_values<sarge_order_record>(copy.orders)) {
        if (count == GROUP_MAX_ORDERS) break;
        std::memcpy(&record.orders[count++], order, sizeof *order);
    }
    record.order_count = count;

    for (contingency_order_record &slot : record.contingencies) slot.trigger = 0;
    count = 0;
    for (contingency_order_record *order : dlist_values<contingency_order_record>(copy.contingencies)) {
        if (count == GROUP_MAX_CONTINGENCIES) break;
        std::memcpy(&record.contingencies[count++], order, sizeof *order);
    }
    record.contingency_count = count;

    if (record.members) {
        clear_members(record.members);
    } else {
        record.members = dlist_create();
        if (!record.members) return;
    }
    for (unit_entry *unit : dlist_values<unit_entry>(copy.members)) {
        append_copy(record.members, copy_unit(*unit));
    }
}

void free_group_working_copy(group_working_copy &copy) {
    destroy_entry_list<unit_entry>(copy.members);
    destroy_entry_list<sarge_order_record>(copy.orders);
    destroy_entry_list<contingency_order_record>(copy.contingencies);
}
