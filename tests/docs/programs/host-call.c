/* Says when the launcher menu would be loaded again. */
#include "tests/docs/programs/Host.h"

static void ReloadLauncherMenu(void)
{
    puts("reloading");
}

#include "examples/host-call.c"

int wmain(void)
{
    OnCustomizeMenu(MakeOwner());
    puts("returned");
    return 0;
}
