// A translation file for the module, in an installation folder of the test's own.
#pragma once

#include "tests/support/RegistrySandbox.h"

#include <string>

// A temporary folder that is deleted with all its files at the end.
class CTempFolder
{
public:
    CTempFolder();
    ~CTempFolder();
    CTempFolder(const CTempFolder&) = delete;
    CTempFolder& operator=(const CTempFolder&) = delete;

    // Without a trailing backslash.
    const std::wstring& Path() const { return m_path; }

private:
    std::wstring m_path;
};

// Writes `entries`, lines of "English|translation", as the translation file "TavLumenar.txt" of
// `folder`. Returns the file's path.
std::wstring WriteTranslation(const CTempFolder& folder, const std::wstring& entries);

// Makes `folder` the installation folder in a sandbox of HKEY_LOCAL_MACHINE.
void SetInstallFolder(CRegistrySandbox& registry, const CTempFolder& folder);
