// The soft-key bar: a window at the bottom of the screen that an owner gets from SHCreateMenuBar.
// It holds a toolbar with the soft keys and, unless hidden, the button of the input panel.
#pragma once

#include "aygshell.h"

#include "platform/Handles.h"

namespace shell
{

inline constexpr wchar_t kMenuBarClass[] = L"SoftKeyBar";

// To the bar: the soft key with index wParam was chosen by keyboard or stylus.
constexpr UINT kPressSoftKey = WM_USER + 1;

// The id of the input panel's button among the bar's children.
constexpr int kSipButtonId = 1;

bool RegisterMenuBarClass();

// Puts the bar of a window where the screen now wants it; nothing without a bar.
void FitMenuBar(HWND owner);

// One bar; lives exactly as long as its window.
class CMenuBar
{
public:
    // Makes a bar as `info` asks, with the entries of `menu` (null for none) as soft keys; the bar
    // takes the menu over. Returns the bar's window, null with the last error set on failure.
    static HWND Create(const SHMENUBARINFO& info, UniqueMenu menu);

    // Gives the owner's bar the entries of `menu` as soft keys, if it has none yet and is otherwise
    // what `info` asks for: a dialog's first, empty bar becomes its own one, since a new window
    // costs more than all its keys. Takes the menu over only then; false otherwise.
    static bool FillEmpty(const SHMENUBARINFO& info, UniqueMenu& menu);

    // The window procedure of the bar's class.
    static LRESULT CALLBACK WindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

private:
    CMenuBar(HWND window, const SHMENUBARINFO& info, UniqueMenu menu);
    ~CMenuBar();
    CMenuBar(const CMenuBar&) = delete;
    CMenuBar& operator=(const CMenuBar&) = delete;

    bool CreateParts(const SHMENUBARINFO& info);
    bool TakeKeys(const SHMENUBARINFO& info, UniqueMenu& menu);
    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT OnNotify(const NMHDR& header, LPARAM lParam);
    void Fit();
    void Redraw();
    void Press(int index);
    void ShowPopup(int index, const TBBUTTON& key, HMENU popup);

    HWND m_window;
    HWND m_owner;
    HWND m_toolbar = nullptr;
    HWND m_sipButton = nullptr;
    HHOOK m_hook = nullptr;
    const bool m_isColoured;
    bool m_isPopupOpen = false;
    UniqueMenu m_menu;
    UniqueFont m_font;
};

} // namespace shell
