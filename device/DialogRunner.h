// Runs one dialog for ./run --dialog and tells in words what came of it.
#pragma once

#include "platform/Win.h"

#include <string>

struct DialogEntry;

// How a run ended; the numbers are ./run's exit codes.
enum class DialogOutcome
{
    Ended = 0,
    Failed = 1,
    NotThere = 3
};

// Runs the dialog over `owner` and writes a UTF-8 report to `file`: the outcome's number on the
// first line, then the return value, what else came back and every change of the registry. `entry`
// null means that there is no dialog of that name.
DialogOutcome RunAndReport(const DialogEntry* entry, HWND owner, const std::wstring& file);
