/* The floating toolbar and the Status window: template and control ids,
 * shared by toolbar.rc, status.rc, the code and the tests. */
#ifndef EDITOR_WINDOW_IDS_H
#define EDITOR_WINDOW_IDS_H

/* Toolbar: one picture button per edit mode, in template order top to
 * bottom; the fourth button is mode 4 and the fifth mode 3. */
#define IDD_TOOLBAR 103
#define IDC_TB_MODE0 1005
#define IDC_TB_MODE1 1006
#define IDC_TB_MODE2 1009
#define IDC_TB_MODE3 1008
#define IDC_TB_MODE4 1007
/* The button pictures, by mode. */
#define IDI_MODE0 105
#define IDI_MODE1 106
#define IDI_MODE2 109
#define IDI_MODE3 107
#define IDI_MODE4 108

/* Status window. */
#define IDD_STATUS 125
#define IDC_ST_POSITION_FRAME 1020
#define IDC_ST_POSITION_X 1017
#define IDC_ST_POSITION_Y 1018
#define IDC_ST_POSITION_Z 1019
#define IDC_ST_POSITION_X_LABEL 1021
#define IDC_ST_POSITION_Y_LABEL 1022
#define IDC_ST_POSITION_Z_LABEL 1023
#define IDC_ST_ORIENTATION_FRAME 1025
#define IDC_ST_ORIENTATION_X 1024
#define IDC_ST_ORIENTATION_Y 1026
#define IDC_ST_ORIENTATION_Z 1027
#define IDC_ST_ORIENTATION_X_LABEL 1028
#define IDC_ST_ORIENTATION_Y_LABEL 1029
#define IDC_ST_ORIENTATION_Z_LABEL 1030
#define IDC_ST_INFO_CAPTION 1031
#define IDC_ST_INFO_TEXT 1032

#endif
