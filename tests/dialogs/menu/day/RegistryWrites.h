// Counts the module's writes to the registry and ends the process before a chosen one. Used by the
// tests of the editing day.
#pragma once

#include "tests/support/ImportPatch.h"

// Counts from construction to destruction, one at a time: values that are set or deleted, keys that
// are created or deleted. Opening a key that is there is no write.
class CRegistryWrites
{
public:
    // `deadly` is the number, from 1, of the write that the process does not live to make; 0 for
    // none.
    explicit CRegistryWrites(HMODULE module, int deadly = 0);

    int Count() const;

private:
    CImportPatch m_setValue;
    CImportPatch m_deleteValue;
    CImportPatch m_createKey;
    CImportPatch m_deleteKey;
};

// Exit code of a process that was ended so.
constexpr UINT kEndedAtWrite = 77;
