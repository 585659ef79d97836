// The module's five dialogs as the shell offers them: names, titles, icons and the call of each
// export through the public header.
#pragma once

#include "platform/Win.h"

#include <string>

// How a dialog ended.
struct DialogResult
{
    // What the export returned.
    BOOL Confirmed;
    // What came back beside that, in words; lines that end with a line feed, or nothing.
    std::wstring Words;
};

// One row of the table.
struct DialogEntry
{
    // What ./run and the command line call it.
    const wchar_t* Name;
    // What the home screen calls it; English, to be translated.
    const wchar_t* Title;
    int Icon;
    // Runs the dialog over `owner`. Exceptions of the dialog pass through.
    DialogResult (*Run)(HWND owner);
    // What is chosen at the moment, for the home screen; empty when nothing is. Null for a dialog
    // whose choices are seen elsewhere.
    std::wstring (*Choice)();
};

constexpr int kDialogCount = 5;
extern const DialogEntry kDialogs[kDialogCount];

// Null for an unknown name.
const DialogEntry* FindDialogEntry(const std::wstring& name);
