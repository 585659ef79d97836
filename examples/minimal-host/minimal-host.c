/* A small host of the customisation dialogs, in plain C: it opens one dialog, answers the questions
 * that the dialogs ask of the shell's two windows, and prints what happened. docs/host-guide.md
 * tells how it is built and walks through it; the tests run it.
 */
#include "TavLumenarDialogs.h"

#include <shellapi.h>
#include <stdio.h>

/* ---- The window of the launcher-menu process ---- */

#define DRAW_IMAGE_SIZE 548
#define IS_SHOWN_SIZE 524
#define PATH_UNITS 260

/* Our icons: squares of four colours, numbered from 100. */
static const COLORREF icons[] = {RGB(52, 101, 164), RGB(78, 154, 6), RGB(206, 92, 0),
                                 RGB(117, 80, 123)};
#define FIRST_ICON 100
#define LAST_ICON 103

static LONG NumberAt(const BYTE* record, size_t offset)
{
    LONG number;
    memcpy(&number, record + offset, sizeof(number));
    return number;
}

/* The path in a request; FALSE when it has no end within its field. */
static BOOL PathAt(const BYTE* record, size_t offset, WCHAR path[PATH_UNITS])
{
    memcpy(path, record + offset, PATH_UNITS * sizeof(WCHAR));
    return wcsnlen(path, PATH_UNITS) < PATH_UNITS;
}

static BOOL DrawNumber(HDC dc, LONG number, const RECT* area)
{
    HBRUSH brush;
    if (number < FIRST_ICON || number > LAST_ICON)
        return FALSE;
    brush = CreateSolidBrush(icons[number - FIRST_ICON]);
    FillRect(dc, area, brush);
    DeleteObject(brush);
    printf("drew icon %ld\n", number);
    return TRUE;
}

static BOOL DrawFile(HDC dc, const WCHAR* path, const RECT* area)
{
    SHFILEINFOW info;
    if (!SHGetFileInfoW(path, 0, &info, sizeof(info), SHGFI_ICON | SHGFI_SMALLICON))
        return FALSE;
    DrawIconEx(dc, area->left, area->top, info.hIcon, 0, 0, 0, NULL, DI_NORMAL);
    DestroyIcon(info.hIcon);
    return TRUE;
}

/* Request 6000: draws into the caller's device context. */
static BOOL DrawImage(const BYTE* record)
{
    WCHAR path[PATH_UNITS];
    /* A handle has 32 bits that matter; on a 64-bit system its sign goes on. */
    const HDC dc = (HDC)(LONG_PTR)NumberAt(record, 528);
    const RECT area = {NumberAt(record, 532), NumberAt(record, 536), NumberAt(record, 540),
                       NumberAt(record, 544)};
    BOOL drawn = FALSE;
    /* Anybody can send this message. */
    if (GetObjectType(dc) != OBJ_MEMDC || !PathAt(record, 4, path))
        return FALSE;
    if (NumberAt(record, 0) == 2)
        drawn = DrawNumber(dc, NumberAt(record, 524), &area);
    else if (NumberAt(record, 0) == 0)
        drawn = DrawFile(dc, path, &area);
    /* The dialog reads the pixels on its own thread. */
    GdiFlush();
    return drawn;
}

/* Request 6002: our launcher shows everything but what is called "Setup". */
static BOOL IsShown(const BYTE* record)
{
    WCHAR path[PATH_UNITS];
    BOOL shown;
    if (!PathAt(record, 4, path))
        return FALSE;
    shown = wcsstr(path, L"Setup") == NULL;
    printf("%s %ls\n", shown ? "shown:" : "hidden:", wcsrchr(path, L'\\') + 1);
    return shown;
}

static LRESULT CALLBACK MenuProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_COPYDATA)
    {
        const COPYDATASTRUCT* request = (const COPYDATASTRUCT*)lParam;
        if (request->dwData == TAVLUMENAR_REQUEST_DRAW_IMAGE && request->cbData == DRAW_IMAGE_SIZE)
            return DrawImage((const BYTE*)request->lpData);
        if (request->dwData == TAVLUMENAR_REQUEST_IS_SHOWN && request->cbData == IS_SHOWN_SIZE)
            return IsShown((const BYTE*)request->lpData);
        return FALSE;
    }
    return DefWindowProcW(window, message, wParam, lParam);
}

/* ---- The window of the Now screen ---- */

/* What the wizard wrote; FALSE is the Classic layout, also when nothing was written yet. */
static BOOL IsProfessional(void)
{
    WCHAR type[16] = L"";
    DWORD size = sizeof(type) - sizeof(WCHAR);
    HKEY key;
    /* The dialogs use the 64-bit view whatever their own word size. */
    if (RegOpenKeyExW(HKEY_LOCAL_MACHINE,
                      L"SOFTWARE\\Orvane 2\\Tav Lumenar\\NowScreen\\PluginEnvironment", 0,
                      KEY_QUERY_VALUE | KEY_WOW64_64KEY, &key) != ERROR_SUCCESS)
        return FALSE;
    RegQueryValueExW(key, L"Type", NULL, NULL, (BYTE*)type, &size);
    RegCloseKey(key);
    return wcscmp(type, L"Detailed") == 0;
}

static LRESULT CALLBACK NowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == TAVLUMENAR_NOW_LAYOUT_CHANGED)
    {
        printf("layout: %s\n", IsProfessional() ? "Professional" : "Classic");
        return 0;
    }
    return DefWindowProcW(window, message, wParam, lParam);
}

/* ---- Both live on a thread of their own: the dialogs' thread waits for their answers ---- */

static HWND MakeWindow(const WCHAR* name, WNDPROC procedure)
{
    WNDCLASSW description = {0};
    description.lpfnWndProc = procedure;
    description.hInstance = GetModuleHandleW(NULL);
    description.lpszClassName = name;
    RegisterClassW(&description);
    return CreateWindowExW(WS_EX_TOOLWINDOW, name, L"", WS_POPUP, 0, 0, 0, 0, NULL, NULL,
                           description.hInstance, NULL);
}

static DWORD WINAPI ShellWindows(void* ready)
{
    MSG message;
    HWND menu = MakeWindow(TAVLUMENAR_MENU_WINDOW_CLASS, MenuProcedure);
    HWND now = MakeWindow(TAVLUMENAR_NOW_WINDOW_CLASS, NowProcedure);
    SetEvent((HANDLE)ready);
    while (GetMessageW(&message, NULL, 0, 0) > 0)
        DispatchMessageW(&message);
    DestroyWindow(now);
    DestroyWindow(menu);
    return 0;
}

/* ---- The dialogs ---- */

static BOOL Choose(HWND owner)
{
    static CITYINFO city; /* a shell keeps it; zeros on the first run */
    if (!SelectCity(owner, &city, 0))
        return FALSE;
    printf("city %lu: %ls\n", city.identifier, city.name);
    return TRUE;
}

static BOOL Open(const WCHAR* name, HWND owner)
{
    if (wcscmp(name, L"customize-menu") == 0)
        return CustomizeMenu(owner, 0, 0, 0);
    if (wcscmp(name, L"customize-home") == 0)
        return CustomizeHome(owner, 8, 0, 0);
    if (wcscmp(name, L"customize-now") == 0)
        return CustomizeNow(owner, 0, 0, 0);
    if (wcscmp(name, L"install-wizard") == 0)
        return InstallWizard(0, 0, 0, 0);
    return Choose(owner);
}

static HWND MakeMainWindow(void)
{
    HWND window = CreateWindowExW(0, L"Static", L"Minimal host", WS_POPUP | WS_VISIBLE, 0, 0,
                                  GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN),
                                  NULL, NULL, GetModuleHandleW(NULL), NULL);
    SetForegroundWindow(window);
    return window;
}

int wmain(int count, WCHAR** arguments)
{
    DWORD thread;
    HANDLE ready = CreateEventW(NULL, TRUE, FALSE, NULL);
    HANDLE windows = CreateThread(NULL, 0, ShellWindows, ready, 0, &thread);
    WaitForSingleObject(ready, INFINITE);

    HWND mainWindow = MakeMainWindow();
    BOOL confirmed = Open(count > 1 ? arguments[1] : L"select-city", mainWindow);
    DestroyWindow(mainWindow);

    /* What was posted to the Now screen comes before the end. */
    PostThreadMessageW(thread, WM_QUIT, 0, 0);
    WaitForSingleObject(windows, INFINITE);
    CloseHandle(windows);
    CloseHandle(ready);
    puts(confirmed ? "confirmed" : "cancelled");
    return 0;
}
