/* Helicopter orders: template and control ids of Select New Order Type and
 * the six order dialogs; shared by heli_orders.rc, the code, the tests and
 * the host. Controls are prefixed by their dialog. The Waypoint Orders list
 * and its buttons belong to Edit Waypoint (heli_ids.h). */
#ifndef EDITOR_HELI_ORDER_IDS_H
#define EDITOR_HELI_ORDER_IDS_H

/* Select New Order Type: a line's index is the order kind. */
#define IDD_SELECT_ORDER_TYPE 146
#define IDC_SOT_KINDS 1168

/* Edit Engage Order. */
#define IDD_ENGAGE_ORDER 148
#define IDC_ENGAGE_TARGETS 1191
#define IDC_ENGAGE_RANGE 1192

/* Edit Deploy Order. */
#define IDD_DEPLOY_ORDER 149
#define IDC_DEPLOY_LIST 1155
#define IDC_DEPLOY_NAME 1179
#define IDC_DEPLOY_X 1180
#define IDC_DEPLOY_Z 1181
#define IDC_DEPLOY_ADD 1182
#define IDC_DEPLOY_UPDATE 1183
#define IDC_DEPLOY_DELETE 1184

/* Edit Pickup Order. */
#define IDD_PICKUP_ORDER 150
#define IDC_PICKUP_LIST 1185
#define IDC_PICKUP_NAME 1189
#define IDC_PICKUP_ADD 1186
#define IDC_PICKUP_UPDATE 1187
#define IDC_PICKUP_DELETE 1188

/* Edit Patrol Order. */
#define IDD_PATROL_ORDER 151
#define IDC_PATROL_ADD 1174
#define IDC_PATROL_POINTS_LABEL 1169
#define IDC_PATROL_POINTS 1173
#define IDC_PATROL_MARKERS_LABEL 1126
#define IDC_PATROL_INSERT 1175
#define IDC_PATROL_DELETE 1176
#define IDC_PATROL_MARKERS 1122
#define IDC_PATROL_CYCLES 1178

/* Edit Wait Order. */
#define IDD_WAIT_ORDER 152
#define IDC_WAIT_MODE 1193
#define IDC_WAIT_NAME 1194
#define IDC_WAIT_RANGE 1195
#define IDC_WAIT_TIME 1196

/* Edit Land Order: the x and z edits of landing positions 0 to 11. */
#define IDD_LAND_ORDER 153
#define IDC_LAND_X0 1164
#define IDC_LAND_X1 1112
#define IDC_LAND_X2 1116
#define IDC_LAND_X3 1118
#define IDC_LAND_X4 1120
#define IDC_LAND_X5 1122
#define IDC_LAND_X6 1124
#define IDC_LAND_X7 1126
#define IDC_LAND_X8 1128
#define IDC_LAND_X9 1132
#define IDC_LAND_X10 1134
#define IDC_LAND_X11 1136
#define IDC_LAND_Z0 1138
#define IDC_LAND_Z1 1139
#define IDC_LAND_Z2 1140
#define IDC_LAND_Z3 1141
#define IDC_LAND_Z4 1142
#define IDC_LAND_Z5 1143
#define IDC_LAND_Z6 1144
#define IDC_LAND_Z7 1145
#define IDC_LAND_Z8 1146
#define IDC_LAND_Z9 1147
#define IDC_LAND_Z10 1148
#define IDC_LAND_Z11 1149

#endif
