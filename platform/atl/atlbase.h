// The module's instance handles, as the window classes need them.
#pragma once

#include "atldef.h"
#include "atlexcept.h"

namespace ATL
{

// The module's own instance and the one that its resources are taken from.
class CAtlBaseModule
{
public:
    HINSTANCE GetModuleInstance() const { return m_hInst; }
    HINSTANCE GetResourceInstance() const { return m_hInstResource; }
    // Exchanges the resource instance; returns the old one.
    HINSTANCE SetResourceInstance(HINSTANCE instance)
    {
        void* const old = InterlockedExchangePointer(
            reinterpret_cast<void* volatile*>(&m_hInstResource), instance);
        return static_cast<HINSTANCE>(old);
    }

    HINSTANCE m_hInst = nullptr;
    HINSTANCE m_hInstResource = nullptr;
};

extern CAtlBaseModule _AtlBaseModule;

} // namespace ATL

using ATL::_AtlBaseModule;
