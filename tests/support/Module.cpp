#include "tests/support/Module.h"

#include <gtest/gtest.h>

namespace
{

template <class Function>
void Find(HMODULE module, const char* name, Function& function)
{
    function = reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(module, name)));
    EXPECT_NE(nullptr, function) << name;
}

} // namespace

CModule::CModule() : m_module(LoadLibraryW(L"TavLumenarDialogs.dll"))
{
    EXPECT_NE(nullptr, m_module) << GetLastError();
    Find(m_module, "CustomizeMenu", CustomizeMenu);
    Find(m_module, "CustomizeHome", CustomizeHome);
    Find(m_module, "CustomizeNow", CustomizeNow);
    Find(m_module, "InstallWizard", InstallWizard);
    Find(m_module, "SelectCity", SelectCity);
}

CModule::~CModule()
{
    FreeLibrary(m_module);
}
