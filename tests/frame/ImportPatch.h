// Replaces one imported system function of the test program for the length of a scope, so that the
// code under test meets failures and values that the system gives only rarely.
#pragma once

#include "platform/Win.h"

#include <cstring>

// `slot` is the address of the program's import entry, __imp_Function.
class CImportPatch
{
public:
    template <class Function>
    CImportPatch(void** slot, Function* replacement) : m_slot(slot), m_original(*slot)
    {
        void* address = nullptr;
        static_assert(sizeof(address) == sizeof(replacement));
        std::memcpy(&address, &replacement, sizeof(address));
        Write(address);
    }
    ~CImportPatch() { Write(m_original); }
    CImportPatch(const CImportPatch&) = delete;
    CImportPatch& operator=(const CImportPatch&) = delete;

private:
    void Write(void* address)
    {
        DWORD old = 0;
        VirtualProtect(m_slot, sizeof(void*), PAGE_READWRITE, &old);
        *m_slot = address;
        VirtualProtect(m_slot, sizeof(void*), old, &old);
    }

    void** m_slot;
    void* m_original;
};
