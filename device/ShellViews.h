// The shell's own views by the names that pictures are asked for.
#pragma once

#include <string>

class CHomeScreen;

// Brings up a view: "home", "settings", "launcher-menu" (a grid), "launcher-menu-list",
// "launcher-menu-hardware", "now", "now-professional". False for any other name.
bool ShowShellView(CHomeScreen& home, const std::wstring& view);
