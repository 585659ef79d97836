/* Every identifier of the module's resources. Those of templates, menus, commands, controls and
 * strings are fixed: hosts, translations and other programs of the shell rely on them. */
#pragma once

/* Dialog templates. */
#define IDD_CUSTOMIZE_MENU 9
#define IDD_SELECT_CITY 201
#define IDD_EDIT_MENU_ITEM 202
#define IDD_SELECT_FILE 203
#define IDD_EDIT_MENU 204
#define IDD_CHOOSE_ICON 206
#define IDD_MANAGE_PINNED 207
#define IDD_SELECT_LINK 208
#define IDD_MENU_OPTIONS 209
#define IDD_CUSTOMIZE_NOW 210
#define IDD_INSTALL_WIZARD 211

/* Menus that soft-key bars are made from. */
#define IDR_MENU_EDITOR 203
#define IDR_DONE_CANCEL 207

/* Commands of the menu editor. */
#define ID_EDIT_ITEM 32772
#define ID_REMOVE_ITEM 32773
#define ID_MOVE_DOWN 32774
#define ID_MOVE_UP 32775
#define ID_ADD_MENU 32782
#define ID_ADD_LINK 32783
#define ID_ADD_FILE 32785
#define ID_MENU_OPTIONS 32792

/* Controls of Customize Menu. */
#define IDC_MENU_TREE 203

/* Controls of Select City. */
#define IDC_CITY_SEARCH 201
#define IDC_CITY_LIST 202

/* Controls of Manage Pinned. */
#define IDC_PINNED_TREE 203

/* Controls of Customize Now Screen. */
#define IDC_NOW_LIST 202
#define IDC_NOW_EMPTY 219
#define IDC_NOW_EXPLANATION 220

/* Controls of the install wizard. */
#define IDC_CLASSIC 221
#define IDC_PROFESSIONAL 222
#define IDC_PROFESSIONAL_PICTURE 223
#define IDC_CLASSIC_PICTURE 224

/* Controls of Menu Options. */
#define IDC_LAYOUT_LIST 210
#define IDC_LAYOUT_GRID 211
#define IDC_MOST_USED_FIRST 212
#define IDC_HARDWARE_NAVIGATION 213
#define IDC_LAYOUT_HEADING 214
#define IDC_OPTIONS_HEADING 215

/* Controls of Edit Item; a menu's has no path. */
#define IDC_ITEM_NAME 206
#define IDC_ITEM_PATH 207
#define IDC_ITEM_ICON 208
#define IDC_CHANGE_ICON 209
#define IDC_NAME_LABEL 216
#define IDC_PATH_LABEL 217
#define IDC_ICON_LABEL 218

/* Controls of Choose Icon, Select File and Select Link. */
#define IDC_ICON_LIST 201
#define IDC_FILE_TREE 207
#define IDC_LINK_TREE 209

/* The input panel preference of any dialog. */
#define IDC_SIP_PREFERENCE 65535

/* Strings. */
#define IDS_ROOT 101
#define IDS_PROGRAMS 102
#define IDS_MENU_OPTIONS_CAPTION 103
#define IDS_KIND_EMAIL 104
#define IDS_KIND_CALENDAR 105
#define IDS_KIND_WEATHER 106
#define IDS_KIND_PROFILE 107
#define IDS_PIN_LIMIT 109
#define IDS_PRODUCT 110
