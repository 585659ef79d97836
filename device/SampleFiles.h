// The sample device's Start Menu folder: the shortcuts that its programs have put there.
#pragma once

#include "device/SampleMenu.h"

namespace sample
{

struct StartMenuFile
{
    // Below the Start Menu folder.
    const wchar_t* Path;
    // The program that it starts.
    const wchar_t* Target;
    // Which of the launcher's icons it shows.
    int Icon;
};

Table<StartMenuFile> StartMenuFiles();

// The folder on the device; a single leading backslash, as on a handheld without drive letters.
constexpr const wchar_t* kStartMenuFolder = L"\\Windows\\Start Menu";

} // namespace sample
