/* Create New Objects: template and control ids, shared by
 * create_objects.rc, the code, the tests and the host. */
#ifndef EDITOR_PLACEMENT_IDS_H
#define EDITOR_PLACEMENT_IDS_H

#define IDD_CREATE_OBJECTS 122
#define IDC_CO_TYPE_LABEL 1006
#define IDC_CO_TYPE 1008
#define IDC_CO_REF_OBJ_LABEL 1007
#define IDC_CO_REF_OBJ 1021
#define IDC_CO_NUMBER_LABEL 1009
#define IDC_CO_NUMBER 1010
#define IDC_CO_OBJ_DIST_LABEL 1011
#define IDC_CO_OBJ_DIST 1012
#define IDC_CO_CAM_DIST_LABEL 1019
#define IDC_CO_CAM_DIST 1020
#define IDC_CO_AALIGN_FRAME 1013
#define IDC_CO_AALIGN_X 1015
#define IDC_CO_AALIGN_Y 1017
#define IDC_CO_AALIGN_Z 1018
#define IDC_CO_AACAMREL 1016
#define IDC_CO_ORIENT_FRAME 1014
#define IDC_CO_ORIENT_X 1022
#define IDC_CO_ORIENT_Y 1023
#define IDC_CO_ORIENT_Z 1024
#define IDC_CO_OCAMREL 1025

#endif
