// A ground group as the editor works on it: the working copy that Group
// Composition edits, the group type names, and the line texts of unit lists.
#pragma once

#include <cstddef>
#include <cstdint>

#include "editor_api.h"
#include "util/dlist.h"

// The group open in Group Composition. Every entry of its lists is the
// editor's own host_alloc copy (68, 172 and 232 bytes).
struct group_working_copy {
    char name[32];
    dlist *orders;         // sarge_order_record *
    dlist *contingencies;  // contingency_order_record *
    int32_t status;
    dlist *members;        // unit_entry *
    uint32_t appearance;
    int32_t target_player_only;
    int32_t group_type;
};

// Indexed by group_record.group_type.
extern const char *const unit_type_names[UNIT_TYPE_COUNT];

// Fills `copy` from `record`, whole or not at all: false, with nothing left
// allocated, when the host is out of memory for any list or entry.
bool load_group(group_working_copy &copy, const group_record &record);
// Writes the working copy into the record. Every block the record needs is
// allocated before anything is written: false, with the record exactly as it
// was, when that cannot be done.
bool store_group(group_record &record, const group_working_copy &copy);
// Releases every entry and list of the copy; safe to call twice.
void free_group_working_copy(group_working_copy &copy);

// "%s (%s)" of two 32-byte fields. Each part is cut at 31 characters, so the
// buffer below always holds the whole line: nothing is cut or overrun.
constexpr size_t UNIT_LINE_SIZE = 68;
void format_pair_line(char (&line)[UNIT_LINE_SIZE], const char *name, const char *detail);
