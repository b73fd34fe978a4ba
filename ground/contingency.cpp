#include "ground/contingency.h"

int edit_contingency_order(HWND, contingency_order_record *) { return 0; }
