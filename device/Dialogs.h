// The module's five dialogs as the shell offers them: names, titles, icons and the call of each
// export through the public header.
#pragma once

#include "platform/Win.h"

#include <string>

// One row of the table.
struct DialogEntry
{
    // What ./run and the command line call it.
    const wchar_t* Name;
    // What the home screen calls it; English, to be translated.
    const wchar_t* Title;
    int Icon;
    // Runs the dialog over `owner` and returns what the export returned; null while the dialog is
    // still to come. Exceptions of the dialog pass through.
    BOOL (*Run)(HWND owner);
};

constexpr int kDialogCount = 5;
extern const DialogEntry kDialogs[kDialogCount];

// Null for an unknown name.
const DialogEntry* FindDialogEntry(const std::wstring& name);
