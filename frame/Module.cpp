#include "frame/Module.h"

#include <atlbase.h>

// The window classes of the template layer need the same handles: they are kept there, once.

HINSTANCE ModuleInstance()
{
    return _AtlBaseModule.GetModuleInstance();
}

HINSTANCE ResourceInstance()
{
    return _AtlBaseModule.GetResourceInstance();
}

void SetModuleInstance(HINSTANCE instance)
{
    _AtlBaseModule.m_hInst = instance;
}

void SetResourceInstance(HINSTANCE instance)
{
    _AtlBaseModule.SetResourceInstance(instance);
}
