/* Air support: template and control ids of Edit Bombing Run Details and Edit
 * Rally Point Details; shared by air.rc, the code, the tests and the host.
 * Controls are prefixed by their dialog. */
#ifndef EDITOR_AIR_IDS_H
#define EDITOR_AIR_IDS_H

/* Edit Bombing Run Details. Buttons marked "<<" act on the ingress route at
 * the left, buttons marked ">>" on the egress route at the right. */
#define IDD_BOMBING_RUN 138
#define IDC_BR_NAME 1104
#define IDC_BR_NAME_LABEL 1105
#define IDC_BR_AIRCRAFT_TYPE 1106
#define IDC_BR_AIRCRAFT_TYPE_LABEL 1107
#define IDC_BR_AIRCRAFT_COUNT_LABEL 1108
#define IDC_BR_AIRCRAFT_COUNT 1109
#define IDC_BR_TARGET_X 1110
#define IDC_BR_TARGET_Z 1111
#define IDC_BR_TARGET_LABEL 1112
#define IDC_BR_ATTACK_TIME_LABEL 1113
#define IDC_BR_RELEASE_HEIGHT 1114
#define IDC_BR_ATTACK_TIME 1115
#define IDC_BR_RELEASE_HEIGHT_LABEL 1116
#define IDC_BR_ATTACK_RADIUS_LABEL 1117
#define IDC_BR_ATTACK_RADIUS 1118
#define IDC_BR_EGRESS 1119
#define IDC_BR_INGRESS 1120
#define IDC_BR_MARKERS 1121
#define IDC_BR_INGRESS_HEIGHT 1123
#define IDC_BR_EGRESS_HEIGHT 1124
#define IDC_BR_INGRESS_LABEL 1125
#define IDC_BR_MARKERS_LABEL 1126
#define IDC_BR_EGRESS_LABEL 1127
#define IDC_BR_INGRESS_ADD 3
#define IDC_BR_INGRESS_SET_HEIGHT 4
#define IDC_BR_EGRESS_DELETE 5
#define IDC_BR_EGRESS_ADD 6
#define IDC_BR_INGRESS_INSERT 7
#define IDC_BR_EGRESS_INSERT 8
#define IDC_BR_INGRESS_DELETE 9
#define IDC_BR_EGRESS_SET_HEIGHT 10

/* Edit Rally Point Details. */
#define IDD_RALLY_POINT 140
#define IDC_RP_NAME_LABEL 1129
#define IDC_RP_NAME 1130
#define IDC_RP_POSITION_LABEL 1131
#define IDC_RP_X 1132
#define IDC_RP_Z 1133
#define IDC_RP_ARSP_LABEL 1134
#define IDC_RP_ARSP 1135
#define IDC_RP_ARSP_X 1136
#define IDC_RP_ADD 1137
#define IDC_RP_ARSP_Z 1138
#define IDC_RP_DELETE 1139
#define IDC_RP_EDIT_LABEL 1140
#define IDC_RP_UPDATE 1141

/* Resource type of a template's initial list items, as resource editors
 * store them beside the template. */
#define RT_DIALOG_INIT 240

#endif
