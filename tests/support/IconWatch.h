// Gives every file an icon number of its own, so that a test sees whose icon a node shows: the
// system the tests run on has the same one for all.
#pragma once

#include "tests/support/ImportPatch.h"

#include <string>
#include <vector>

// Answers a module's questions for icons from construction to destruction; one at a time. The
// system's image list stays what it is.
class CIconWatch
{
public:
    explicit CIconWatch(HMODULE module);

    // The number that the path got; -1 when it wasn't asked about. Without its drive.
    static int IconOf(const std::wstring& path);
    // How often the module has asked.
    static size_t Questions();
    // Whether every question was for the place of a small icon in the system's list, and about what
    // really exists.
    static bool AreAllForSmallIcons();

private:
    CImportPatch m_patch;
};
