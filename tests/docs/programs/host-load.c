/* Loads the DLL of the folder that it is given; this program is not linked with it. */
#include "tests/docs/programs/Host.h"

#include "examples/host-load.c"

int wmain(int count, WCHAR** arguments)
{
    if (count < 2)
        return 2;
    puts(CustomizeNowFrom(arguments[1], MakeOwner()) ? "confirmed" : "cancelled");
    return GetModuleHandleW(L"TavLumenarDialogs.dll") ? 1 : 0;
}
