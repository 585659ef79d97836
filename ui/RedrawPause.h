// Filling a control without drawing what comes in between.
#pragma once

#include <atlctrls.h>

// No redrawing while many nodes or items come and go: it costs a hundred times what inserting them
// does.
template <class Control>
class CRedrawPause
{
public:
    explicit CRedrawPause(Control& control) : m_control(control) { m_control.SetRedraw(FALSE); }
    ~CRedrawPause() { m_control.SetRedraw(TRUE); }
    CRedrawPause(const CRedrawPause&) = delete;
    CRedrawPause& operator=(const CRedrawPause&) = delete;

private:
    Control& m_control;
};
