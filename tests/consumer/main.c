/* The smallest host: calls the exports by linking with the package's import library. The test
 * compares what it prints. */
#include <TavLumenarCityDetails.h>
#include <TavLumenarDialogs.h>

#include <stdio.h>

enum
{
    PatienceMs = 20000
};

/* A host names whichever exports it likes: all five link. */
static const void* const exports[] = {
    (const void*)(ULONG_PTR)CustomizeMenu, (const void*)(ULONG_PTR)CustomizeHome,
    (const void*)(ULONG_PTR)CustomizeNow, (const void*)(ULONG_PTR)InstallWizard,
    (const void*)(ULONG_PTR)SelectCity};

static BOOL CALLBACK CancelDialog(HWND window, LPARAM found)
{
    WCHAR name[8];
    if (!IsWindowVisible(window) || !GetClassNameW(window, name, 8) || lstrcmpW(name, L"#32770"))
        return TRUE;
    PostMessageW(window, WM_COMMAND, IDCANCEL, 0);
    *(BOOL*)found = TRUE;
    return FALSE;
}

/* Waits for the dialog of the thread that is handed in, and cancels it as its user would. */
static DWORD WINAPI CancelWhenOpen(LPVOID thread)
{
    const DWORD begin = GetTickCount();
    BOOL found = FALSE;
    while (!found && GetTickCount() - begin < PatienceMs)
    {
        Sleep(20);
        EnumThreadWindows((DWORD)(ULONG_PTR)thread, CancelDialog, (LPARAM)&found);
    }
    return 0;
}

int main(void)
{
    HANDLE driver;
    size_t i;
    for (i = 0; i < sizeof(exports) / sizeof(exports[0]); ++i)
        if (!exports[i])
            return 1;
    printf("A record has %u bytes.\n", (unsigned)sizeof(CITYINFO));
    printf("Without a record: %d\n", (int)SelectCity(NULL, NULL, 0));
    driver = CreateThread(NULL, 0, CancelWhenOpen, (LPVOID)(ULONG_PTR)GetCurrentThreadId(), 0, NULL);
    printf("Cancelled: %d\n", (int)InstallWizard(0, 0, 0, 0));
    WaitForSingleObject(driver, PatienceMs);
    CloseHandle(driver);
    return sizeof(((CITYINFO*)0)->details) == sizeof(CITYDETAILS) ? 0 : 1;
}
