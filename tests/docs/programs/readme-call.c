/* Says when the launcher menu would be loaded again. */
#include "tests/docs/programs/Host.h"

static void ReloadLauncherMenu(void)
{
    puts("reloading");
}

#include "include/TavLumenarDialogs.h"

static void Customize(HWND mainWindow)
{
#include "examples/readme-call.c"
}

int wmain(void)
{
    Customize(MakeOwner());
    puts("returned");
    return 0;
}
