/* The customisation dialogs of the Tav Lumenar home screen: what a host needs to call them.
 *
 * Plain C. Link with the import library or load TavLumenarDialogs.dll and look the five exports up
 * by name. Each export shows one full-screen modal dialog on the calling thread, which must be a
 * user-interface thread, and returns when the dialog has ended. See docs/host-guide.md.
 */
#ifndef TAVLUMENAR_DIALOGS_H
#define TAVLUMENAR_DIALOGS_H

#include <windows.h>

#ifdef __cplusplus
extern "C"
{
#endif

#ifdef TAVLUMENAR_DIALOGS_EXPORTS
#define TAVLUMENAR_API
#else
#define TAVLUMENAR_API __declspec(dllimport)
#endif

/* The record that SelectCity exchanges: always 244 bytes, in this layout. */
#pragma pack(push, 1)
    typedef struct CITYINFO
    {
        DWORD identifier;  /* the city; on input only used to pre-select it */
        WCHAR name[32];    /* at most 31 characters, padded with zeros */
        DWORD hasDetails;  /* 1 when `details` was filled from the database */
        BYTE details[172]; /* as the database holds them, see TavLumenarCityDetails.h; untouched
                              when hasDetails is 0 */
    } CITYINFO;
#pragma pack(pop)

    /* All exports return TRUE exactly when the user confirmed with "Done"; FALSE when the dialog
     * was cancelled, closed in any other way or could not be shown. A failure inside the dialog may
     * leave an export as a C++ exception (CTavException); see the host guide. Arguments named
     * unused are accepted and ignored.
     */

    /* Edits the launcher menu. Changes are written to the registry while the dialog is open. */
    TAVLUMENAR_API BOOL WINAPI CustomizeMenu(HWND owner, DWORD unused2, DWORD unused3,
                                             DWORD unused4);

    /* Chooses which entries are pinned to the home screen, at most `maxPinned` of them. */
    TAVLUMENAR_API BOOL WINAPI CustomizeHome(HWND owner, DWORD maxPinned, DWORD unused3,
                                             DWORD unused4);

    /* Chooses which plug-ins the Now screen uses. */
    TAVLUMENAR_API BOOL WINAPI CustomizeNow(HWND owner, DWORD unused2, DWORD unused3,
                                            DWORD unused4);

    /* The first-run choice of the layout; owned by the calling thread's active window. */
    TAVLUMENAR_API BOOL WINAPI InstallWizard(DWORD unused1, DWORD unused2, DWORD unused3,
                                             DWORD unused4);

    /* Picks a city of the database in the installation folder. `city` is the initial choice and
     * receives the new one, whole, when the result is TRUE; otherwise it is left untouched. "Done"
     * without a chosen city counts as "Cancel". FALSE at once when `city` is null.
     */
    TAVLUMENAR_API BOOL WINAPI SelectCity(HWND owner, CITYINFO* city, DWORD unused3);

/* The window of the launcher-menu process: draws icons and filters launch targets on request. */
#define TAVLUMENAR_MENU_WINDOW_CLASS L"TavMenu_ProcessWindow"
/* COPYDATASTRUCT::dwData of its requests. */
#define TAVLUMENAR_REQUEST_DRAW_IMAGE 6000
#define TAVLUMENAR_REQUEST_IS_SHOWN 6002

/* The window of the Now screen, and the message that tells it of a new layout type. */
#define TAVLUMENAR_NOW_WINDOW_CLASS L"TavNow_MainWindow"
#define TAVLUMENAR_NOW_LAYOUT_CHANGED 0x8067

/* Registered message by which a scrolling host tells a dialog its new position. */
#define TAVLUMENAR_SCROLL_MESSAGE L"PPCD_ScrollMessage"

/* The mutex that guards every change of the most-recently-used list. */
#define TAVLUMENAR_MRU_MUTEX L"TavLumenar_GlobalMRU"

#ifdef __cplusplus
}
#endif

#endif
