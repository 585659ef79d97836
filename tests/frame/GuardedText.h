// A text that ends at a page that can't be accessed, and one that lacks its terminating zero.
#pragma once

#include "platform/Win.h"

#include <cstring>
#include <string>

// Puts `text`, without a zero behind it, directly before an inaccessible page.
class CGuardedText
{
public:
    explicit CGuardedText(const std::wstring& text)
    {
        constexpr size_t kPage = 0x1000;
        m_pages = static_cast<BYTE*>(
            VirtualAlloc(nullptr, 2 * kPage, MEM_RESERVE | MEM_COMMIT, PAGE_READWRITE));
        DWORD old = 0;
        VirtualProtect(m_pages + kPage, kPage, PAGE_NOACCESS, &old);
        const size_t bytes = text.size() * sizeof(wchar_t);
        m_text = reinterpret_cast<wchar_t*>(m_pages + kPage - bytes);
        std::memcpy(m_text, text.data(), bytes);
    }
    ~CGuardedText() { VirtualFree(m_pages, 0, MEM_RELEASE); }
    CGuardedText(const CGuardedText&) = delete;
    CGuardedText& operator=(const CGuardedText&) = delete;

    wchar_t* get() const { return m_text; }

private:
    BYTE* m_pages;
    wchar_t* m_text;
};

// An address that no program may use.
inline wchar_t* WildPointer()
{
    return reinterpret_cast<wchar_t*>(INT_PTR{4});
}
