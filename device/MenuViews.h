// Brings the menu editor and its sub-dialogs into the state that a picture shows, with real stylus
// and key input; CPictureDriver calls it on its own thread.
#pragma once

#include "platform/Win.h"

#include <string>

// `view` is "customize-menu" (a folder open), "customize-menu-popup" (the soft key's menu),
// "customize-menu-add" (its second menu), "customize-menu-context", "menu-options" (of a folder),
// "menu-options-root", "edit-menu", "edit-item", "choose-icon", "select-file"
// or "select-link". Returns what went wrong, an empty text when nothing did.
std::wstring BringUpMenuView(HWND editor, const std::wstring& view);
