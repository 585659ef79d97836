// Ids of the menus in TestMenus.rc.
#pragma once

// "Done" (1), "Cancel" (2).
#define IDM_TWO_KEYS 301
// "&Done" (1) and the pop-up "&Menu" with commands that lie where pop-up ids start.
#define IDM_KEY_AND_POPUP 302
// "Close" (7).
#define IDM_ONE_KEY 303
// "Done" (1), grayed; "Cancel" (2).
#define IDM_GRAYED_KEY 304
