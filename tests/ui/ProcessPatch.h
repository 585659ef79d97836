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

// While it lives, the test program's code finds every program (or none) in "C:\Programs" and starts
// none: what it would have started is kept.
class CProcessPatch
{
public:
    explicit CProcessPatch(bool found = true);
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
