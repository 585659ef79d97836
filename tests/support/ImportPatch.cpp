#include "tests/support/ImportPatch.h"

#include "tests/support/ImportTable.h"

#include <gtest/gtest.h>

namespace
{

void Write(void** slot, void* address)
{
    DWORD protection = 0;
    VirtualProtect(slot, sizeof(*slot), PAGE_READWRITE, &protection);
    *slot = address;
    VirtualProtect(slot, sizeof(*slot), protection, &protection);
}

} // namespace

CImportPatch::CImportPatch(HMODULE module, const char* dll, const char* function, void* replacement)
    : CImportPatch(FindImport(module, dll, function), replacement)
{
    EXPECT_NE(nullptr, m_slot) << dll << " " << function << " is not imported";
}

CImportPatch::CImportPatch(void** slot, void* replacement) : m_slot(slot)
{
    if (!m_slot)
        return;
    m_original = *m_slot;
    Write(m_slot, replacement);
}

CImportPatch::~CImportPatch()
{
    if (m_slot)
        Write(m_slot, m_original);
}

void** FindImport(HMODULE module, const char* dll, const char* function)
{
    for (const ImportedFunction& import : ImportsOf(module))
        if (lstrcmpiA(import.dll.c_str(), dll) == 0 && import.name == function)
            return import.slot;
    return nullptr;
}
