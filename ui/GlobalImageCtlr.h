// CGlobalImageCtlr: shows one icon of the launcher menu in a static control, by its number or its
// image path.
#pragma once

#include "ui/BitmapBuffer.h"

#include <atlwin.h>

#include <string>

// Subclass the static control with SubclassWindow. White without an icon.
class CGlobalImageCtlr : public CWindowImpl<CGlobalImageCtlr>
{
public:
    BEGIN_MSG_MAP(CGlobalImageCtlr)
        MESSAGE_HANDLER(WM_PAINT, OnPaint)
        MESSAGE_HANDLER(WM_SIZE, OnSize)
    END_MSG_MAP()

    // Shows an icon of the launcher-menu process; -1 for none.
    void SetIcon(int number);
    // Shows the image that a path names.
    void SetImagePath(const std::wstring& path);

private:
    LRESULT OnPaint(UINT message, WPARAM wParam, LPARAM lParam, BOOL& handled);
    LRESULT OnSize(UINT message, WPARAM wParam, LPARAM lParam, BOOL& handled);

    void MarkDirty();
    void Redraw();
    void FitBuffer(const RECT& client);

    // The buffer has to be drawn again.
    BOOL m_dirty = TRUE;
    int m_iconNumber = -1;
    // Used when there is no icon number.
    std::wstring m_imagePath;
    // As large as the control's client area.
    CBitmapBuffer m_buffer;
};
