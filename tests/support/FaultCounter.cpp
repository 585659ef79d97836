#include "tests/support/FaultCounter.h"

#include <atomic>

namespace
{

const char* g_begin;
const char* g_end;
std::atomic<int> g_faults;

LONG CALLBACK CountFault(EXCEPTION_POINTERS* exception)
{
    const auto* const where =
        static_cast<const char*>(exception->ExceptionRecord->ExceptionAddress);
    if (exception->ExceptionRecord->ExceptionCode == EXCEPTION_ACCESS_VIOLATION &&
        where >= g_begin && where < g_end)
        ++g_faults;
    return EXCEPTION_CONTINUE_SEARCH;
}

} // namespace

CFaultCounter::CFaultCounter(HMODULE module)
{
    g_begin = reinterpret_cast<const char*>(module);
    const auto* const dos = reinterpret_cast<const IMAGE_DOS_HEADER*>(g_begin);
    const auto* const headers = reinterpret_cast<const IMAGE_NT_HEADERS*>(g_begin + dos->e_lfanew);
    g_end = g_begin + headers->OptionalHeader.SizeOfImage;
    g_faults = 0;
    m_handler = AddVectoredExceptionHandler(1, CountFault);
}

CFaultCounter::~CFaultCounter()
{
    RemoveVectoredExceptionHandler(m_handler);
}

int CFaultCounter::Count() const
{
    return g_faults;
}
