// The built module, loaded like a host loads it: after a test has prepared the registry.
#pragma once

#include "include/TavLumenarDialogs.h"
#include "platform/Win.h"

// Loads TavLumenarDialogs.dll from the test program's folder and finds its five exports; fails the
// running test when that doesn't work. Unloads it at the end.
class CModule
{
public:
    CModule();
    ~CModule();
    CModule(const CModule&) = delete;
    CModule& operator=(const CModule&) = delete;

    HMODULE Handle() const { return m_module; }

    decltype(&::CustomizeMenu) CustomizeMenu = nullptr;
    decltype(&::CustomizeHome) CustomizeHome = nullptr;
    decltype(&::CustomizeNow) CustomizeNow = nullptr;
    decltype(&::InstallWizard) InstallWizard = nullptr;
    decltype(&::SelectCity) SelectCity = nullptr;

private:
    HMODULE m_module;
};
