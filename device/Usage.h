// Counts what is launched, in the lists that the shell shares with the dialogs: the global one of
// the home screen and those of single menus.
#pragma once

#include "platform/Win.h"

#include <string>

#include "menu/MenuItem.h"

namespace usage
{

// The name of the list that the home screen shows.
constexpr const wchar_t* kGlobalList = L"GlobalMRUList";

// How many milliseconds a launch waits for the global list; the person with the stylus comes first.
constexpr DWORD kPatience = 2000;

// Counts a launch of the entry of that name ("l:" or "m:") in the global list. False, with nothing
// counted, when another process keeps the list for longer than `patience` milliseconds. Throws
// CTavException 0x8007000E.
bool CountLaunch(const std::wstring& name, DWORD patience = kPatience);

// Counts a use of one of a menu's items in the menu's own list; nothing happens for a menu that
// doesn't show the most used ones first.
void CountInMenu(const CMenuItem& menu, const std::wstring& name);

} // namespace usage
