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
    // Writes a file of these bytes; returns its path.
    std::wstring Write(const wchar_t* name, const std::string& bytes) const;

private:
    std::wstring m_path;
};

// The text as the bytes of a UTF-16 file with its mark.
std::string Utf16File(const std::wstring& text);

// Writes `entries`, lines of "English|translation", as the translation file "TavLumenar.txt" of
// `folder`. Returns the file's path.
std::wstring WriteTranslation(const CTempFolder& folder, const std::wstring& entries);

// Makes `folder` the installation folder in a sandbox of HKEY_LOCAL_MACHINE.
void SetInstallFolder(CRegistrySandbox& registry, const CTempFolder& folder);
