// Data that end where memory ends, as forged messages may.
#pragma once

#include "platform/Win.h"

// The end of a page behind which no memory can be read.
class CPageEnd
{
public:
    CPageEnd()
        : m_pages(static_cast<char*>(
              VirtualAlloc(nullptr, 2 * kPage, MEM_RESERVE | MEM_COMMIT, PAGE_READWRITE)))
    {
        DWORD old = 0;
        VirtualProtect(m_pages + kPage, kPage, PAGE_NOACCESS, &old);
    }
    ~CPageEnd() { VirtualFree(m_pages, 0, MEM_RELEASE); }
    CPageEnd(const CPageEnd&) = delete;
    CPageEnd& operator=(const CPageEnd&) = delete;

    // The last bytes that can be read.
    template <class T>
    T* Last() const
    {
        return reinterpret_cast<T*>(m_pages + kPage - sizeof(T));
    }

private:
    static constexpr size_t kPage = 4096;
    char* m_pages;
};
