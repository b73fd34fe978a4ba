/* Ground forces: template and control ids of Group Composition, Orders,
 * Group List, Group Orders, Sarge Order, the contingency order, the object
 * name list and Edit Name; shared by ground_groups.rc, ground_orders.rc, the
 * code, the tests and the host. Controls are prefixed by their dialog. */
#ifndef EDITOR_GROUND_IDS_H
#define EDITOR_GROUND_IDS_H

/* Group Composition. */
#define IDD_GROUP_COMPOSITION 127
#define IDC_GC_NAME 1075
#define IDC_GC_RENAME 1074
#define IDC_GC_AVAILABLE_LABEL 1041
#define IDC_GC_MEMBERS_LABEL 1042
#define IDC_GC_AVAILABLE 1036
#define IDC_GC_ADD 1038
#define IDC_GC_REMOVE 1037
#define IDC_GC_MEMBERS 1034
#define IDC_GC_TYPE_FRAME 1080
#define IDC_GC_TYPE 1081
#define IDC_GC_APPEARANCE_FRAME 1082
#define IDC_GC_PERCENT 1087
#define IDC_GC_PLUS 1090
#define IDC_GC_MINUS 1091
#define IDC_GC_BY_GROUP 1096
#define IDC_GC_BY_UNIT 1097
#define IDC_GC_TARGET_FRAME 1197
#define IDC_GC_TARGET_PLAYER 1198
#define IDC_GC_EDIT_ORDERS 1086

/* Orders: the choice of a new order's type. */
#define IDD_ORDERS 129
#define IDC_OR_TYPES 1054

/* Group List. */
#define IDD_GROUP_LIST 133
#define IDC_GL_GROUPS 1076
#define IDC_GL_EDIT 3
#define IDC_GL_REMOVE 4
#define IDC_GL_ADD 5

/* Group Orders. */
#define IDD_GROUP_ORDERS 135
#define IDC_GO_ORDERS_FRAME 1069
#define IDC_GO_ORDERS 1039
#define IDC_GO_ADD 1049
#define IDC_GO_INSERT 1047
#define IDC_GO_REMOVE 1048
#define IDC_GO_EDIT 1050
#define IDC_GO_CONTINGENCIES_FRAME 1070
#define IDC_GO_CONTINGENCIES 1079
#define IDC_GO_C_ADD 1053
#define IDC_GO_C_INSERT 1051
#define IDC_GO_C_REMOVE 1052
#define IDC_GO_C_EDIT 1054

/* The order controls that Sarge Order and the contingency order share. */
#define IDC_ORDER_NAME_LABEL 1070
#define IDC_ORDER_NAME 1071
#define IDC_ORDER_DESTINATION_LABEL 1061
#define IDC_ORDER_DESTINATION 1059
#define IDC_ORDER_FORMATION_LABEL 1064
#define IDC_ORDER_FORMATION 1058
#define IDC_ORDER_MESSAGE_LABEL 1063
#define IDC_ORDER_MESSAGE 1057
#define IDC_ORDER_TARGET_LABEL 1062
#define IDC_ORDER_MESSAGE_TARGET 1065

/* Sarge Order. */
#define IDD_SARGE_ORDER 130
#define IDC_SO_DURATION_LABEL 1060
#define IDC_SO_DURATION 1056
#define IDC_SO_ROTATION_LABEL 1068
#define IDC_SO_ROTATION 1069

/* Contingency order (also titled "Sarge Order"). */
#define IDD_CONTINGENCY 136
#define IDC_CT_TRIGGER_LABEL 1066
#define IDC_CT_TRIGGER 1067
#define IDC_CT_NEXT_ORDER_LABEL 1082
#define IDC_CT_NEXT_ORDER 1083
#define IDC_CT_VALUE_LABEL 1084
#define IDC_CT_VALUE 1085
#define IDC_CT_ORDER_TYPE_LABEL 1074
#define IDC_CT_ORDER_TYPE 1075
#define IDC_CT_AMOUNT_LABEL 1100 /* duration, or formation rotation */
#define IDC_CT_AMOUNT 1101

/* Object name list. */
#define IDD_OBJECT_NAMES 131
#define IDC_ON_FRAME 1068
#define IDC_ON_LIST 1063
#define IDC_ON_EDIT_NAME 1067

/* Edit Name. */
#define IDD_EDIT_NAME 132
#define IDC_EN_NAME 1066

#endif
