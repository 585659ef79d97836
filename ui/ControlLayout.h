// Fonts and sizes of a dialog's controls.
#pragma once

#include "platform/Win.h"

// Gives each direct child of `dialog` its font and adjusts its size or place, by its class: bold
// push buttons and labels that start no group, normal everything else; low edit controls, combo
// boxes and spinners keep their height, higher ones get the standard one; check boxes and radio
// buttons move to an even row of the screen. Nothing is redrawn.
void LayoutControls(HWND dialog);

// The control's rectangle in the dialog's client area.
RECT ControlPlace(HWND dialog, HWND control);

// Moves the control to a rectangle of the dialog's client area and repaints it.
void MoveControl(HWND control, const RECT& place);

// Moves `control` so that it reaches from its own top edge to the right and bottom of the dialog's
// client area.
void FitMainControl(HWND dialog, HWND control);
