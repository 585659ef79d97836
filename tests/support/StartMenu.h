// A Start Menu of the test's own: a temporary folder with a Programs folder in it, which the system
// takes for the user's as long as the object lives.
#pragma once

#include "tests/support/RegistrySandbox.h"

#include <string>

// Replaces HKEY_CURRENT_USER of this process; destroy it before any other registry sandbox.
class CStartMenu
{
public:
    CStartMenu();
    ~CStartMenu();
    CStartMenu(const CStartMenu&) = delete;
    CStartMenu& operator=(const CStartMenu&) = delete;

    // The folder's path, without a trailing backslash.
    const std::wstring& Path() const { return m_path; }
    // The path of something in it: L"Programs\\Games\\Chess.lnk".
    std::wstring PathOf(const std::wstring& below) const { return m_path + L"\\" + below; }

    // The key that stands in for HKEY_CURRENT_USER, for a child process that joins it: after it has
    // joined HKEY_LOCAL_MACHINE's, which lies below the real user's.
    const std::wstring& UserBackingPath() const { return m_user.BackingPath(); }

    // Create an empty file or a folder with all folders above it; return the path.
    std::wstring AddFile(const std::wstring& below) const;
    std::wstring AddFolder(const std::wstring& below) const;
    // Creates a folder with so many shortcuts, named by numbers from 0.
    void AddManyFiles(const std::wstring& below, int count) const;
    void Remove(const std::wstring& below) const;

    // Makes the system take other folders for the two. They need not exist.
    void SetPrograms(const std::wstring& path);
    void SetStartMenu(const std::wstring& path);

private:
    CRegistrySandbox m_user;
    std::wstring m_path;
};
