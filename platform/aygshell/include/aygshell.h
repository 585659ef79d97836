// The Pocket PC shell functions that the dialogs use, as documented by the platform: full-screen
// dialogs, soft-key bars, the soft input panel and tap-and-hold. Structures have their natural
// layout; cbSize is sizeof the structure.
#pragma once

#include "platform/Win.h"

#ifdef AYGSHELL_EXPORTS
// The names come from aygshell.def: dllexport would decorate them on 32-bit systems.
#define AYGSHELLAPI extern "C"
#else
#define AYGSHELLAPI extern "C" __declspec(dllimport)
#endif

// SHINITDLGINFO::dwMask: which fields are valid.
constexpr DWORD SHIDIM_FLAGS = 0x0001;

// SHINITDLGINFO::dwFlags.
constexpr DWORD SHIDIF_DONEBUTTON = 0x0001;
constexpr DWORD SHIDIF_SIZEDLG = 0x0002;
constexpr DWORD SHIDIF_SIZEDLGFULLSCREEN = 0x0004;
constexpr DWORD SHIDIF_SIPDOWN = 0x0008;

struct SHINITDLGINFO
{
    DWORD dwMask;
    HWND hDlg;
    DWORD dwFlags;
};

// Sizes a dialog to the screen's work area and gives it the platform's dialog manners; to be called
// from WM_INITDIALOG. With SHIDIF_SIZEDLGFULLSCREEN the dialog loses its frame and is fitted anew
// whenever the screen changes, before it hears of it. Tree and list views of the dialog, also those
// created later, send NM_STYLUSDOWN and know tap-and-hold. Returns TRUE on success; FALSE with the
// last error set otherwise.
AYGSHELLAPI BOOL WINAPI SHInitDialog(SHINITDLGINFO* info);

// SHMENUBARINFO::dwFlags.
constexpr DWORD SHCMBF_EMPTYBAR = 0x0001;
constexpr DWORD SHCMBF_HIDDEN = 0x0002;
constexpr DWORD SHCMBF_HIDESIPBUTTON = 0x0004;
constexpr DWORD SHCMBF_COLORBK = 0x0008;
constexpr DWORD SHCMBF_HMENU = 0x0010;

struct SHMENUBARINFO
{
    DWORD cbSize;
    HWND hwndParent;
    DWORD dwFlags;
    UINT nToolBarId;
    HINSTANCE hInstRes;
    int nBmpId;
    int cBmpImages;
    HWND hwndMB;
    COLORREF clrBk;
};

// Creates the soft-key bar of a window. With SHCMBF_HMENU, nToolBarId is a menu resource of
// hInstRes whose top-level entries become the soft keys. The window owns the bar; hwndMB receives
// its toolbar. A second bar replaces the first. Returns TRUE on success; FALSE with the last error
// set otherwise. On a keyboard F1 is the left and F2 the right soft key, Alt and an underlined
// letter press the key that shows it; help (WM_HELP) is asked for by Ctrl+F1 or the Help key, and
// by F1 alone only while the bar has no keys.
AYGSHELLAPI BOOL WINAPI SHCreateMenuBar(SHMENUBARINFO* info);

// The soft-key bar of a window: a toolbar that answers TB_BUTTONCOUNT, TB_GETBUTTON and
// TB_GET/SETBUTTONINFO; a button that opens a pop-up has its HMENU in lParam. Null without one.
AYGSHELLAPI HWND WINAPI SHFindMenuBar(HWND window);

// SHRGINFO::dwFlags.
constexpr DWORD SHRG_RETURNCMD = 0x0001;
constexpr DWORD SHRG_NOTIFYPARENT = 0x0002;
constexpr DWORD SHRG_LONGDELAY = 0x0008;
constexpr DWORD SHRG_NOANIMATION = 0x0010;

// Result of SHRecognizeGesture with SHRG_RETURNCMD, and the notification code otherwise.
constexpr UINT GN_CONTEXTMENU = 1000;

struct SHRGINFO
{
    DWORD cbSize;
    HWND hwndClient;
    POINT ptDown;
    DWORD dwFlags;
};

// What comes with WM_NOTIFY GN_CONTEXTMENU: where the stylus was held, on the screen.
struct NMRGINFO
{
    NMHDR hdr;
    POINT ptAction;
    DWORD dwItemSpec;
};

// Watches whether the stylus (or the Action key) stays down long enough to be a tap-and-hold, 700
// milliseconds; ptDown is in hwndClient's client area. Returns GN_CONTEXTMENU when it does, 0
// otherwise, at once when neither is down. Without SHRG_RETURNCMD a tap-and-hold is also notified,
// to hwndClient's parent with SHRG_NOTIFYPARENT, else to hwndClient.
AYGSHELLAPI DWORD WINAPI SHRecognizeGesture(SHRGINFO* info);

// SHSipInfo actions.
constexpr UINT SPI_SETSIPINFO = 224;
constexpr UINT SPI_GETSIPINFO = 225;

// SIPINFO::fdwFlags.
constexpr DWORD SIPF_OFF = 0x0000;
constexpr DWORD SIPF_ON = 0x0001;
constexpr DWORD SIPF_DOCKED = 0x0002;
constexpr DWORD SIPF_LOCKED = 0x0004;

struct SIPINFO
{
    DWORD cbSize;
    DWORD fdwFlags;
    RECT rcVisibleDesktop;
    RECT rcSipRect;
    DWORD dwImDataSize;
    void* pvImData;
};

// Asks for (SPI_GETSIPINFO) or sets (SPI_SETSIPINFO) the state of the soft input panel; a change
// is announced to all windows with WM_SETTINGCHANGE, wParam SPI_SETSIPINFO. Returns TRUE on
// success.
AYGSHELLAPI BOOL WINAPI SHSipInfo(UINT action, UINT param, void* data, UINT winIni);

// Registers the shell's own control classes, SIPPREF among them. Returns TRUE on success.
AYGSHELLAPI BOOL WINAPI SHInitExtraControls(void);

// The notification of tree and list views at stylus-down; the parent answers TRUE for "no gesture".
constexpr UINT NM_STYLUSDOWN = static_cast<UINT>(-50);

// What comes with NM_STYLUSDOWN: the point in the control's client area behind the header.
struct NMSTYLUSDOWN
{
    NMHDR hdr;
    POINT point;
};

static_assert(sizeof(void*) != 4 ||
                  (sizeof(SHMENUBARINFO) == 36 && sizeof(SHRGINFO) == 20 && sizeof(SIPINFO) == 48),
              "the handheld's documented sizes");
