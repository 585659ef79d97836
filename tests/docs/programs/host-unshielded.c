/* A host in C that nothing stands before: says which structured exception reaches it first. */
#include "tests/docs/programs/Host.h"

#include "include/TavLumenarDialogs.h"

static LONG CALLBACK Report(EXCEPTION_POINTERS* exception)
{
    const DWORD code = exception->ExceptionRecord->ExceptionCode;
    /* Thrown once more on its way through the window manager; one line is enough. */
    static LONG reported;
    if (InterlockedExchange(&reported, 1) == 0)
    {
        printf("exception %08lX\n", code);
        fflush(stdout);
    }
    return EXCEPTION_CONTINUE_SEARCH;
}

int wmain(void)
{
    CITYINFO city = {0};
    AddVectoredExceptionHandler(1, Report);
    SelectCity(MakeOwner(), &city, 0);
    puts("survived");
    return 0;
}
