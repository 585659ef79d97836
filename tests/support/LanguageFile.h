// The translation files of the device as they are in the source tree.
#pragma once

#include <string>

// The file of a language as UTF-16 text, its lines ended by line feeds alone, without the
// byte-order mark; `isAnsi` tells whether it is in the language's ANSI code page instead of UTF-16.
// `folder` is the folder of the languages as a Windows path. A missing file fails the running test.
std::wstring ReadLanguageFile(const std::string& folder, const std::string& language,
                              bool* isAnsi = nullptr);

// Its path.
std::wstring LanguageFilePath(const std::string& folder, const std::string& language);

// Cyrillic, the ANSI code page of the languages whose file is not in UTF-16.
constexpr unsigned kAnsiCodePage = 1251;
