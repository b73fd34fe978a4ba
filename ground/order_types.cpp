#include "ground/order_types.h"

const order_type_row order_type_table[ORDER_TYPE_ROWS] = {
    {SARGE_ORDER_HALT, 26},            // "Halt"
    {SARGE_ORDER_DEFEND, 27},          // "Defend"
    {SARGE_ORDER_MOBILE_DEFENCE, 28},  // "Mobile Defence"
    {SARGE_ORDER_MARCH, 29},           // "March"
    {SARGE_ORDER_ADVANCE, 30},         // "Advance"
    {SARGE_ORDER_BARRAGE, 31},         // "Barrage"
};

const int trigger_name_table[TRIGGER_NAME_ENTRIES] = {
    0,
    40,  // TRIGGER_ENEMY_CLOSE "Enemy Close"
    41,  // TRIGGER_UNDER_FIRE "Under Fire"
    39,  // TRIGGER_DAMAGE "Damage"
    38,  // TRIGGER_MESSAGE "Message"
    42,  // TRIGGER_CONTINUE "Continue"
    0,
};

int order_type_row_of(int32_t type) {
    for (int row = 0; row < ORDER_TYPE_ROWS; ++row)
        if (order_type_table[row].type == type) return row;
    return -1;
}

int order_type_string_id(int32_t type) {
    int row = order_type_row_of(type);
    return row < 0 ? 0 : order_type_table[row].string_id;
}
