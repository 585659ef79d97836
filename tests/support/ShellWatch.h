// What a module asks of the Pocket PC shell while its dialogs start up; one of the requests can be
// made to fail.
#pragma once

#include "tests/support/ImportPatch.h"

#include <utility>
#include <vector>

// Patches the module from construction to destruction, between two calls of it; one at a time.
class CShellWatch
{
public:
    explicit CShellWatch(HMODULE module);

    // Lets one request for a full screen or for a bar fail with a last error; requests are counted
    // from 1. The others go through to the shell.
    void FailFullScreen(int request, DWORD error = ERROR_ACCESS_DENIED);
    void FailBar(int request, DWORD error = ERROR_ACCESS_DENIED);

    // The flags of each request for a full screen, the failed one too.
    const std::vector<DWORD>& FullScreens() const;
    // Flags and menu of each request for a bar.
    const std::vector<std::pair<DWORD, UINT>>& Bars() const;

private:
    CImportPatch m_initDialog;
    CImportPatch m_createBar;
};
