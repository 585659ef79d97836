/* Identifiers of the test program's own resources. */
#pragma once

#define IDR_HANDHELD_FUNCTIONS 101
#define IDR_OTHER_FUNCTIONS 102
