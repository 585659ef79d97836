#include "menu/GlobalMruLock.h"

namespace Ratings
{
namespace
{

// Agreed with the shell's processes.
constexpr const wchar_t* kMutexName = L"TavLumenar_GlobalMRU";

} // namespace

// No mutex comes from a name that another kind of object has taken.
CGlobalMruLock::CGlobalMruLock(DWORD timeout) : m_mutex(CreateMutexW(nullptr, FALSE, kMutexName))
{
    if (!m_mutex)
        return;
    const DWORD result = WaitForSingleObject(m_mutex.get(), timeout);
    // Abandoned by a process that ended inside its turn: the list's values stay readable then,
    // because "Index" is written last.
    m_held = result == WAIT_OBJECT_0 || result == WAIT_ABANDONED;
}

CGlobalMruLock::~CGlobalMruLock()
{
    if (m_held)
        ReleaseMutex(m_mutex.get());
}

} // namespace Ratings
