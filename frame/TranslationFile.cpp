#include "frame/TranslationFile.h"

#include "platform/Handles.h"
#include "platform/os/FileKind.h"

namespace
{

constexpr DWORD kMarkSize = 2;
// A larger file can't be a translation; the limit keeps all sizes below within their types.
constexpr DWORD kLargestFile = 0x3FFFFFFF;

bool SizeOf(HANDLE file, DWORD& size)
{
    DWORD high = 0;
    size = GetFileSize(file, &high);
    // A failure gives 0xFFFFFFFF, which is too large as well.
    return high == 0 && size <= kLargestFile;
}

// Reads up to `size` bytes; how many there were.
DWORD Read(HANDLE file, void* buffer, DWORD size)
{
    DWORD read = 0;
    return ReadFile(file, buffer, size, &read, nullptr) ? read : 0;
}

bool BeginsWithMark(HANDLE file)
{
    BYTE mark[kMarkSize] = {};
    return Read(file, mark, kMarkSize) == kMarkSize && mark[0] == 0xFF && mark[1] == 0xFE;
}

// The file stands behind its mark. Half a character at the end is dropped.
UniqueText ReadUtf16(HANDLE file, DWORD size, size_t& length)
{
    if (size <= kMarkSize)
        return nullptr;
    UniqueText text(static_cast<wchar_t*>(std::malloc(size)));
    const DWORD bytes = size - kMarkSize;
    if (!text || Read(file, text.get(), bytes) != bytes)
        return nullptr;
    length = bytes / sizeof(wchar_t);
    text[length] = L'\0';
    return text;
}

UniqueText ReadAnsi(HANDLE file, DWORD size, size_t& length)
{
    length = 0;
    // The conversion takes no empty text.
    if (size == 0)
        return AllocateZeroed<wchar_t>(1);
    const UniqueMemory<char> bytes(static_cast<char*>(std::malloc(size)));
    if (!bytes || SetFilePointer(file, 0, nullptr, FILE_BEGIN) != 0 ||
        Read(file, bytes.get(), size) != size)
        return nullptr;
    // UTF-8 as the code page takes no flags.
    const DWORD flags = GetACP() == CP_UTF8 ? 0 : MB_PRECOMPOSED;
    const int count = static_cast<int>(size);
    const int units = MultiByteToWideChar(CP_ACP, flags, bytes.get(), count, nullptr, 0);
    if (units <= 0)
        return nullptr;
    UniqueText text = AllocateZeroed<wchar_t>(static_cast<size_t>(units) + 1);
    if (!text || MultiByteToWideChar(CP_ACP, flags, bytes.get(), count, text.get(), units) != units)
        return nullptr;
    length = static_cast<size_t>(units);
    return text;
}

} // namespace

UniqueText ReadTranslationFile(const wchar_t* path, size_t& length)
{
    const UniqueFile file(CreateFileW(path, GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING,
                                      FILE_ATTRIBUTE_NORMAL, nullptr));
    DWORD size = 0;
    if (!file || !os::IsDiskFile(file.get()) || !SizeOf(file.get(), size))
        return nullptr;
    if (BeginsWithMark(file.get()))
        return ReadUtf16(file.get(), size, length);
    return ReadAnsi(file.get(), size, length);
}
