// What a module lists: which folders, and with attributes that the tests' own file system may not
// be able to keep.
#pragma once

#include "tests/support/ImportPatch.h"

#include <string>
#include <vector>

// Watches the module from construction to destruction; one at a time.
class CFolderWatch
{
public:
    explicit CFolderWatch(HMODULE module);

    // The patterns that were listed, in order.
    static std::vector<std::wstring> Patterns();
    // The names that the system found, in order, "." and ".." included where it has them.
    static std::vector<std::wstring> Names();
    // From now on everything of that name has these attributes as well.
    static void AddAttributes(const std::wstring& name, DWORD attributes);

private:
    CImportPatch m_first;
    CImportPatch m_next;
};
