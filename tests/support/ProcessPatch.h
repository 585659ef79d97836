// Stands in for the system's search for programs and for starting them.
#pragma once

#include "tests/support/ImportPatch.h"

#include <string>
#include <vector>

// One program that would have been started.
struct StartedProgram
{
    std::wstring application;
    std::wstring commandLine;
};

// While it lives, a module's code finds every program (or none) in "C:\Programs" and starts none:
// what it would have started is kept. One at a time.
class CProcessPatch
{
public:
    // Without a module it is the test program itself.
    explicit CProcessPatch(bool found = true, HMODULE module = GetModuleHandleW(nullptr));
    ~CProcessPatch();

    const std::vector<StartedProgram>& Started() const;
    // The folders that were searched; none of them is the current one.
    const std::wstring& SearchedPath() const;
    // Whether the handles of the last "process" and its thread have been closed.
    bool HandlesAreClosed() const;

private:
    CImportPatch m_search;
    CImportPatch m_create;
};

// Asks a dialog of the module for help, and checks that this starts the viewer at the topic and
// lets go of it.
void ExpectHelp(HMODULE module, HWND dialog, const std::wstring& topic = L"Main_Contents");
