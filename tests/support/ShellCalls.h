// What a module asks of the shell while its dialogs open, and refusals of it.
#pragma once

#include "tests/support/ImportPatch.h"

#include <string>
#include <vector>

// Watches the module's calls of SHInitDialog and SHCreateMenuBar from construction to destruction;
// one at a time. All go through to the shell but the one that is to be refused.
class CShellCalls
{
public:
    explicit CShellCalls(HMODULE module);

    // Refuses the call of that number among all of its function, from 1, with this last error.
    static void RefuseInit(int call, DWORD error = ERROR_ACCESS_DENIED);
    static void RefuseBar(int call, DWORD error = ERROR_ACCESS_DENIED);

    // The calls so far, behind the first so many: "init FLAGS" or "bar FLAGS MENU".
    static std::vector<std::string> Asked(size_t skipped = 0);
    // What a dialog asks: first what all of them do, then its own, with `bar` last.
    static std::vector<std::string> OfOneDialog(const std::string& bar);

private:
    CImportPatch m_init;
    CImportPatch m_bar;
};
