#include "ground/order_types.h"

#include "resources/string_ids.h"

const order_type_row order_type_table[ORDER_TYPE_ROWS] = {
    {SARGE_ORDER_HALT, IDS_ORDER_HALT},
    {SARGE_ORDER_DEFEND, IDS_ORDER_DEFEND},
    {SARGE_ORDER_MOBILE_DEFENCE, IDS_ORDER_MOBILE_DEFENCE},
    {SARGE_ORDER_MARCH, IDS_ORDER_MARCH},
    {SARGE_ORDER_ADVANCE, IDS_ORDER_ADVANCE},
    {SARGE_ORDER_BARRAGE, IDS_ORDER_BARRAGE},
};

const int trigger_name_table[TRIGGER_NAME_ENTRIES] = {
    0,
    IDS_TRIGGER_ENEMY_CLOSE,
    IDS_TRIGGER_UNDER_FIRE,
    IDS_TRIGGER_DAMAGE,
    IDS_TRIGGER_MESSAGE,
    IDS_TRIGGER_CONTINUE,
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
