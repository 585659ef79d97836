#include "skin/SkinStorage.h"

#include "skin/MemberName.h"

#include <cstring>

namespace skin
{

namespace
{

// The text's length without the terminating zero, or kPathCapacity when it is longer than allowed.
size_t LengthWithin(const wchar_t* text)
{
    size_t length = 0;
    while (text && length < kPathCapacity && text[length] != 0)
        ++length;
    return length;
}

bool IsPathLength(size_t length)
{
    return length > 0 && length < kPathCapacity;
}

bool IsName(const wchar_t* name)
{
    return IsPathLength(LengthWithin(name));
}

// A text in the ANSI code page, which is what minizip takes.
class CAnsiText
{
public:
    explicit CAnsiText(const wchar_t* text)
    {
        // UTF-8 as the code page allows no flags.
        const DWORD flags = GetACP() == CP_UTF8 ? 0 : WC_COMPOSITECHECK;
        if (WideCharToMultiByte(CP_ACP, flags, text, -1, m_text, kCapacity, nullptr, nullptr) == 0)
            m_text[0] = 0;
    }
    // Null when the text does not fit.
    const char* get() const { return m_text[0] != 0 ? m_text : nullptr; }

private:
    static constexpr int kCapacity = 260;
    char m_text[kCapacity] = {};
};

// False for what is no disk file, or larger than 32 bits can say.
bool GetSizeOf(const UniqueFile& file, uint32_t& size)
{
    if (!file)
        return false;
    DWORD high = 0;
    SetLastError(NO_ERROR);
    const DWORD low = GetFileSize(file.get(), &high);
    if (high != 0 || (low == INVALID_FILE_SIZE && GetLastError() != NO_ERROR))
        return false;
    size = low;
    return true;
}

} // namespace

bool CSkinStorage::Open(const wchar_t* path)
{
    m_archive.reset();
    m_file.reset();
    m_isFolder = false;
    const size_t length = LengthWithin(path);
    if (!IsPathLength(length))
        return false;
    std::memcpy(m_path, path, (length + 1) * sizeof(wchar_t));
    const DWORD attributes = GetFileAttributesW(m_path);
    if (attributes == INVALID_FILE_ATTRIBUTES)
        return false;
    return (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0 ? OpenFolder(length) : OpenArchive();
}

bool CSkinStorage::OpenFolder(size_t length)
{
    if (m_path[length - 1] != L'\\')
    {
        if (length + 1 == kPathCapacity)
            return false;
        m_path[length] = L'\\';
        m_path[length + 1] = 0;
    }
    m_isFolder = true;
    return true;
}

bool CSkinStorage::OpenArchive()
{
    const CAnsiText path(m_path);
    m_file.reset(path.get() ? std::fopen(path.get(), "rb") : nullptr);
    if (m_file)
        m_archive.reset(OpenZip(m_file.get()));
    return static_cast<bool>(m_archive);
}

uint32_t CSkinStorage::MemberSize(const wchar_t* name) const
{
    if (!IsName(name))
        return 0;
    if (m_isFolder)
    {
        // Without any right: the size alone needs none.
        uint32_t size = 0;
        return GetSizeOf(OpenFile(name, 0), size) ? size : 0;
    }
    const CAnsiText ansiName(name);
    return m_archive && ansiName.get() ? ZipMemberSize(m_archive.get(), ansiName.get()) : 0;
}

bool CSkinStorage::ReadMember(const wchar_t* name, void* buffer, uint32_t size)
{
    if (!IsName(name))
        return false;
    if (m_isFolder)
        return ReadFileMember(name, buffer, size);
    m_lastMemberAttribute = UINT32_MAX;
    const CAnsiText ansiName(name);
    return m_archive && ansiName.get() &&
           ReadZipMember(m_archive.get(), ansiName.get(), buffer, size, m_lastMemberAttribute);
}

void* CSkinStorage::ReadMemberWhole(const wchar_t* name, uint32_t* size)
{
    const uint32_t memberSize = MemberSize(name);
    if (memberSize == 0 || memberSize > UINT32_MAX - kMemberPadding)
        return nullptr;
    UniqueLocal block(LocalAlloc(LMEM_FIXED | LMEM_ZEROINIT, memberSize + kMemberPadding));
    if (!block || !ReadMember(name, block.get(), memberSize))
        return nullptr;
    if (size)
        *size = memberSize;
    return block.release();
}

// No file for a name that leads out of the folder.
UniqueFile CSkinStorage::OpenFile(const wchar_t* name, DWORD access) const
{
    if (!StaysInFolder(name))
        return UniqueFile();
    const size_t folderLength = LengthWithin(m_path);
    wchar_t path[2 * kPathCapacity];
    std::memcpy(path, m_path, folderLength * sizeof(wchar_t));
    std::memcpy(path + folderLength, name, (LengthWithin(name) + 1) * sizeof(wchar_t));
    return UniqueFile(CreateFileW(path, access, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                  OPEN_EXISTING, 0, nullptr));
}

bool CSkinStorage::ReadFileMember(const wchar_t* name, void* buffer, uint32_t size) const
{
    const UniqueFile file = OpenFile(name, GENERIC_READ);
    uint32_t fileSize = 0;
    if (!GetSizeOf(file, fileSize) || fileSize > size)
        return false;
    DWORD done = 0;
    return ReadFile(file.get(), buffer, fileSize, &done, nullptr) && done == fileSize;
}

} // namespace skin
