#include "aygshell.h"

BOOL WINAPI DllMain(HINSTANCE /*module*/, DWORD /*reason*/, void* /*reserved*/)
{
    return TRUE;
}
