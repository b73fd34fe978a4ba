// The sarge order types and contingency trigger types with their display
// names (string-table ids), and which fields each order type uses. Every
// list of order types is built from order_type_table in its row order.
#pragma once

#include "editor_api.h"

struct order_type_row {
    int32_t type;   // sarge_order_type
    int string_id;  // its name in the string table
};

constexpr int ORDER_TYPE_ROWS = 6;
extern const order_type_row order_type_table[ORDER_TYPE_ROWS];

// The row of `type`, or -1 for a type the table does not hold (no name).
int order_type_row_of(int32_t type);
// The string id of `type`'s name, or 0 when it has none.
int order_type_string_id(int32_t type);

// String id of each trigger_type's name, indexed 0..6; 0 where there is none
// (entries 0 and 6).
constexpr int TRIGGER_NAME_ENTRIES = 7;
extern const int trigger_name_table[TRIGGER_NAME_ENTRIES];

// The fields an order type uses: a duration (Halt, Barrage), a formation and
// its rotation (Advance, March), a destination (those three).
inline bool uses_duration(int32_t type) { return type == SARGE_ORDER_HALT || type == SARGE_ORDER_BARRAGE; }
inline bool uses_formation(int32_t type) { return type == SARGE_ORDER_ADVANCE || type == SARGE_ORDER_MARCH; }
inline bool uses_destination(int32_t type) { return uses_formation(type) || type == SARGE_ORDER_BARRAGE; }
