// A translation file of the test's own.
#pragma once

#include "frame/Localizer.h"
#include "platform/Win.h"

#include <string>

// A folder for the length of a scope, deleted with the files in it.
class CTemporaryFolder
{
public:
    CTemporaryFolder();
    ~CTemporaryFolder();
    CTemporaryFolder(const CTemporaryFolder&) = delete;
    CTemporaryFolder& operator=(const CTemporaryFolder&) = delete;

    // Without a trailing backslash.
    const std::wstring& Path() const { return m_path; }
    // Writes a file of these bytes; returns its path.
    std::wstring Write(const wchar_t* name, const std::string& bytes) const;

private:
    std::wstring m_path;
};

// The text as the bytes of a UTF-16 file with its mark.
std::string Utf16File(const std::wstring& text);

// Loads the text as a file into a translator; fails the running test if that doesn't work.
void LoadTexts(CTavLocalizerAPI& localizer, const std::wstring& text);
