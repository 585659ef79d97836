// One pointer per thread, without anything to destroy when a thread or the module goes away.
#pragma once

#include "atldef.h"

namespace ATL
{

// A pointer that each thread has its own of, null at first. Owns nothing but the system's slot.
template <class T>
class CThreadPointer
{
public:
    CThreadPointer() : m_slot(TlsAlloc()) {}
    ~CThreadPointer() { TlsFree(m_slot); }
    CThreadPointer(const CThreadPointer&) = delete;
    CThreadPointer& operator=(const CThreadPointer&) = delete;

    // Reading clears the thread's last error as a side effect of the system call.
    T* Get() const { return static_cast<T*>(TlsGetValue(m_slot)); }
    void Set(T* value) { TlsSetValue(m_slot, value); }

private:
    DWORD m_slot;
};

} // namespace ATL
