/* Identifiers of the test program's own resources. */
#pragma once

#define IDD_TEST 301
/* A template without dialog-init entries and without a caption of its own. */
#define IDD_PLAIN 302

#define IDC_FIRST 1001
#define IDC_LIST 1002
#define IDC_COMBO 1003
#define IDC_MAIN 1004

/* Strings: one with a placeholder, one without a translation. */
#define IDS_GREETING 401
