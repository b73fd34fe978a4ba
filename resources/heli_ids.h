/* Helicopter groups and waypoints: template and control ids of List Heli
 * Groups, Edit Heli Group, Edit Waypoints and Edit Waypoint; shared by
 * heli.rc, the code, the tests and the host. Controls are prefixed by their
 * dialog. */
#ifndef EDITOR_HELI_IDS_H
#define EDITOR_HELI_IDS_H

/* List Heli Groups. */
#define IDD_LIST_HELI_GROUPS 141
#define IDC_LHG_EDIT 5
#define IDC_LHG_GROUPS 1148
#define IDC_LHG_REMOVE 1146
#define IDC_LHG_ADD 1145

/* Edit Heli Group. */
#define IDD_EDIT_HELI_GROUP 142
#define IDC_HG_MEMBERS 1143
#define IDC_HG_AVAILABLE 1144
#define IDC_HG_REMOVE 1146
#define IDC_HG_ADD 1145
#define IDC_HG_AVAILABLE_LABEL 1041
#define IDC_HG_MEMBERS_LABEL 1042
#define IDC_HG_EDIT_WAYPOINTS 1149
#define IDC_HG_NAME 1142
#define IDC_HG_NAME_LABEL 1129
#define IDC_HG_RALLY_POINT 1147
#define IDC_HG_IN_TRANSIT 1151

/* Edit Waypoints: the route. */
#define IDD_EDIT_WAYPOINTS 143
#define IDC_WPS_EDIT 1157
#define IDC_WPS_LIST 1156
#define IDC_WPS_REMOVE 1159
#define IDC_WPS_ADD 1158
#define IDC_WPS_INSERT 1147

/* Edit Waypoint: one waypoint, with its order list and the list's buttons. */
#define IDD_EDIT_WAYPOINT 144
#define IDC_WP_MARKER 1160
#define IDC_WP_HEIGHT 1161
#define IDC_WP_SPEED 1150
#define IDC_WP_NON_THREAT 1149
#define IDC_WP_THREAT 1152
#define IDC_WP_FUEL_LOW 1154
#define IDC_WP_WEAPONS_LOW 1155
#define IDC_WP_DAMAGE 1156
#define IDC_WP_DAMAGE_LEVEL 1157
#define IDC_WP_ORDERS 1158
#define IDC_WP_ORDER_EDIT 1162
#define IDC_WP_ORDER_REMOVE 1166
#define IDC_WP_ORDER_ADD 1165
#define IDC_WP_ORDER_INSERT 1151

#endif
