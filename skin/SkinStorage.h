// skin::CSkinStorage: read-only data that comes as a folder of files or as one zip archive with the
// same names in it. Used by the picture storage beside it and by the city picker.
#pragma once

#include "platform/Handles.h"
#include "skin/ZipArchive.h"

namespace skin
{

// Paths and names have fewer characters than this.
constexpr size_t kPathCapacity = 261;
// Zero bytes behind a member that was read whole, so that a text that runs to its end is
// terminated.
constexpr uint32_t kMemberPadding = 4;

struct StreamHandle
{
    using Type = std::FILE*;
    static Type Null() { return nullptr; }
    static void Close(std::FILE* file) { std::fclose(file); }
};

struct ZipHandle
{
    using Type = unzFile;
    static Type Null() { return nullptr; }
    static void Close(unzFile archive) { unzClose(archive); }
};

// A container of named members. Nothing here throws: failure is false, 0 or null.
class CSkinStorage
{
public:
    CSkinStorage() = default;
    // Closes the archive.
    virtual ~CSkinStorage() = default;
    CSkinStorage(const CSkinStorage&) = delete;
    CSkinStorage& operator=(const CSkinStorage&) = delete;

    // Opens the folder or archive at `path` (of at most 260 characters) in the place of what was
    // open before.
    bool Open(const wchar_t* path);

    // The member's size in bytes; 0 when it is missing, empty or unreadable. A folder's members
    // lie in the folder or below it: names that lead elsewhere are refused.
    uint32_t MemberSize(const wchar_t* name) const;

    // Fills `buffer`, which has `size` bytes, with the whole member. False, never a part, when the
    // member is missing, unreadable or larger than the buffer.
    bool ReadMember(const wchar_t* name, void* buffer, uint32_t size);

    // Returns the whole member in a new block, which the caller gives to LocalFree, with
    // kMemberPadding zero bytes behind it; `size` gets the bytes without these. Null and `size`
    // untouched when the member is missing, empty or unreadable, or memory runs out.
    void* ReadMemberWhole(const wchar_t* name, uint32_t* size = nullptr);

    // The storage's path; a folder's ends in a backslash.
    const wchar_t* Path() const { return m_path; }
    bool IsFolder() const { return m_isFolder; }
    // The attributes of the member that was last read from an archive; -1 when it was missing.
    uint32_t LastMemberAttribute() const { return m_lastMemberAttribute; }

private:
    bool OpenFolder(size_t length);
    bool OpenArchive();
    UniqueFile OpenFile(const wchar_t* name, DWORD access) const;
    bool ReadFileMember(const wchar_t* name, void* buffer, uint32_t size) const;

    wchar_t m_path[kPathCapacity] = {};
    // The archive and the file that it reads from, which must outlive it.
    CUnique<StreamHandle> m_file;
    CUnique<ZipHandle> m_archive;
    bool m_isFolder = false;
    uint32_t m_lastMemberAttribute = UINT32_MAX;
};

} // namespace skin
