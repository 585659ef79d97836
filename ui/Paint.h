// Painting a window for the length of a scope.
#pragma once

#include "platform/Win.h"

// BeginPaint and EndPaint around a scope; what was to be painted counts as painted whatever happens
// in between.
class CPaint
{
public:
    explicit CPaint(HWND window) : m_window(window), m_dc(BeginPaint(window, &m_paint)) {}
    ~CPaint() { EndPaint(m_window, &m_paint); }
    CPaint(const CPaint&) = delete;
    CPaint& operator=(const CPaint&) = delete;

    HDC dc() const { return m_dc; }
    // What has to be painted, in the window's client area.
    const RECT& rect() const { return m_paint.rcPaint; }

private:
    HWND m_window;
    PAINTSTRUCT m_paint = {};
    HDC m_dc;
};
