// A file system of the test's own whose root is "\", as on the handheld: a drive that exists as
// long as the object and is the current one.
#pragma once

#include <string>

// One at a time. Everything that is named without a drive goes there meanwhile.
class CDeviceRoot
{
public:
    CDeviceRoot();
    ~CDeviceRoot();
    CDeviceRoot(const CDeviceRoot&) = delete;
    CDeviceRoot& operator=(const CDeviceRoot&) = delete;

    // Create an empty file or a folder with all folders above it; take and return the path as the
    // handheld writes it: L"\\Windows\\calc.exe".
    std::wstring AddFile(const std::wstring& path) const;
    std::wstring AddFolder(const std::wstring& path) const;
    void RemoveFile(const std::wstring& path) const;
    void RemoveFolder(const std::wstring& path) const;

private:
    // The folder that is the drive, and where the process stood before.
    std::wstring m_folder;
    std::wstring m_previous;
};
