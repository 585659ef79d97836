/* Identifiers of the test program's own dialog templates. */
#pragma once

#define IDD_PROBE 101
#define IDD_UNKNOWN_CLASS 102
/* A number that no template has. */
#define IDD_MISSING 103

#define IDC_LABEL 1001
#define IDC_PUSH 1002
