#include "tests/support/LeakCounter.h"

#include "tests/support/Wait.h"

#include <gtest/gtest.h>

#include <winternl.h>

#include <cstdint>
#include <ostream>
#include <vector>

namespace
{

// The process's table of GDI objects, as the system lays it out.
struct GdiEntry
{
    void* object;
    uint32_t owner;
    uint16_t unique;
    uint8_t type;
    uint8_t flags;
    void* userData;
};
constexpr size_t kGdiEntries = 65536;
constexpr size_t kGdiTableInPeb = sizeof(void*) == 8 ? 0xF8 : 0x94;

// The list of all kernel handles of the system.
constexpr int kExtendedHandleInformation = 64;
constexpr LONG kInfoLengthMismatch = static_cast<LONG>(0xC0000004);

struct HandleEntry
{
    void* object;
    ULONG_PTR process;
    ULONG_PTR handle;
    ULONG access;
    USHORT backTrace;
    USHORT type;
    ULONG attributes;
    ULONG reserved;
};

struct HandleList
{
    ULONG_PTR count;
    ULONG_PTR reserved;
    HandleEntry entries[1];
};

// Newer than the headers' enumeration, hence with a plain number.
using QuerySystemInformation = LONG(WINAPI*)(int what, void* data, ULONG size, ULONG* needed);

const char* ProcessEnvironmentBlock()
{
    PROCESS_BASIC_INFORMATION info = {};
    NtQueryInformationProcess(GetCurrentProcess(), ProcessBasicInformation, &info, sizeof(info),
                              nullptr);
    return reinterpret_cast<const char*>(info.PebBaseAddress);
}

int CountGdiObjects()
{
    const char* const peb = ProcessEnvironmentBlock();
    const auto* table = *reinterpret_cast<const GdiEntry* const*>(peb + kGdiTableInPeb);
    int count = 0;
    for (size_t i = 0; table && i < kGdiEntries; ++i)
        count += table[i].type != 0;
    return count;
}

BOOL CALLBACK CountWindow(HWND /*window*/, LPARAM count)
{
    ++*reinterpret_cast<int*>(count);
    return TRUE;
}

BOOL CALLBACK CountTopWindow(HWND window, LPARAM count)
{
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    if (process != GetCurrentProcessId())
        return TRUE;
    EnumChildWindows(window, CountWindow, count);
    return CountWindow(window, count);
}

int CountWindows()
{
    int count = 0;
    EnumWindows(CountTopWindow, reinterpret_cast<LPARAM>(&count));
    return count;
}

// The system also knows its objects by the low words of their handles.
int CountMenus()
{
    int count = 0;
    for (ULONG_PTR handle = 0x20; handle < 0xFFF0; handle += 2)
        count += IsMenu(reinterpret_cast<HMENU>(handle)) != FALSE;
    return count;
}

int CountKernelHandles()
{
    const auto query = reinterpret_cast<QuerySystemInformation>(reinterpret_cast<void*>(
        GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "NtQuerySystemInformation")));
    std::vector<char> buffer(1 << 20);
    while (query(kExtendedHandleInformation, buffer.data(), static_cast<ULONG>(buffer.size()),
                 nullptr) == kInfoLengthMismatch)
        buffer.resize(buffer.size() * 2);
    const auto& list = *reinterpret_cast<const HandleList*>(buffer.data());
    int count = 0;
    for (size_t i = 0; i < list.count; ++i)
        count += list.entries[i].process == GetCurrentProcessId();
    return count;
}

size_t BusyBytes(HANDLE heap)
{
    size_t bytes = 0;
    PROCESS_HEAP_ENTRY entry = {};
    HeapLock(heap);
    while (HeapWalk(heap, &entry))
        if (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY)
            bytes += entry.cbData;
    HeapUnlock(heap);
    return bytes;
}

size_t CountHeapBytes()
{
    HANDLE heaps[64] = {};
    const DWORD count = GetProcessHeaps(64, heaps);
    size_t bytes = 0;
    for (DWORD i = 0; i < count && i < 64; ++i)
        bytes += BusyBytes(heaps[i]);
    return bytes;
}

// A cursor's first use makes objects that stay: which cursors a test meets depends on where the
// pointer happens to be.
void LoadSystemCursors()
{
    for (const wchar_t* cursor :
         {IDC_ARROW, IDC_IBEAM, IDC_WAIT, IDC_CROSS, IDC_UPARROW, IDC_SIZENWSE, IDC_SIZENESW,
          IDC_SIZEWE, IDC_SIZENS, IDC_SIZEALL, IDC_NO, IDC_HAND, IDC_APPSTARTING, IDC_HELP})
        LoadCursorW(nullptr, cursor);
}

} // namespace

ResourceCounts CountResources()
{
    LoadSystemCursors();
    ResourceCounts counts;
    counts.gdiObjects = CountGdiObjects();
    counts.windows = CountWindows();
    counts.menus = CountMenus();
    counts.kernelHandles = CountKernelHandles();
    counts.heapBytes = CountHeapBytes();
    return counts;
}

ResourceCounts CountUntil(const ResourceCounts& expected)
{
    ResourceCounts counts;
    WaitUntil([&] { return (counts = CountResources()) == expected; }, 3000);
    return counts;
}

void ExpectNothingLeftBy(const std::function<void()>& work)
{
    constexpr int kAttempts = 3;
    ResourceCounts before;
    ResourceCounts after = CountResources();
    for (int i = 0; i < kAttempts && !(i > 0 && after == before); ++i)
    {
        before = after;
        work();
        after = CountUntil(before);
    }
    EXPECT_EQ(before, after);
}

bool operator==(const ResourceCounts& left, const ResourceCounts& right)
{
    return left.gdiObjects == right.gdiObjects && left.windows == right.windows &&
           left.menus == right.menus && left.kernelHandles == right.kernelHandles &&
           left.heapBytes == right.heapBytes;
}

std::ostream& operator<<(std::ostream& stream, const ResourceCounts& counts)
{
    return stream << counts.gdiObjects << " GDI objects, " << counts.windows << " windows, "
                  << counts.menus << " menus, " << counts.kernelHandles << " kernel handles, "
                  << counts.heapBytes << " bytes in heaps";
}
