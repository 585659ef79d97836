// Collects every English text that a program file's resources can show.
#pragma once

#include <set>
#include <string>

// Captions and control texts of all dialog templates, all menu items and all strings. Texts without
// a letter are left out: nothing is to be translated in them.
std::set<std::wstring> TextsOfModule(const wchar_t* file);
