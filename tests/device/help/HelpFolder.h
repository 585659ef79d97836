// Pages of help for a test: a folder of their own, and a registry in which it is the shell's
// installation folder.
#pragma once

#include <string>

#include "tests/support/RegistrySandbox.h"

// Lives from construction to destruction and takes its files away again.
class CHelpFolder
{
public:
    CHelpFolder();
    ~CHelpFolder();
    CHelpFolder(const CHelpFolder&) = delete;
    CHelpFolder& operator=(const CHelpFolder&) = delete;

    // With a backslash at its end.
    const std::wstring& Path() const { return m_path; }
    // Writes a page; returns its path.
    std::wstring Add(const std::wstring& name, const std::string& bytes) const;

private:
    CRegistrySandbox m_hive;
    std::wstring m_path;
};

// A file's bytes; a failed test when it can't be read.
std::string BytesOf(const std::wstring& path);

// The book that stands beside the test program, and its bytes as text.
std::wstring BookPath();
std::wstring BookSource();
