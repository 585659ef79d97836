// How much room texts take, each in the font that it is shown in, and how much there is.
#pragma once

#include "platform/Win.h"

#include <string>

// One line in the control's font. Without `prefix` an ampersand is a letter like any other.
SIZE LineSize(HWND control, const std::wstring& text, bool prefix = true);

// Several lines in the control's font, broken at `width`; wider than that where a word is.
SIZE ParagraphSize(HWND control, const std::wstring& text, int width, bool prefix = true);

// One line as a dialog's title band shows it, and as the system's menus do.
SIZE TitleSize(const std::wstring& text);
SIZE MenuTextSize(const std::wstring& text);

// What stands in front of the text of a check box or radio button: the box and the gap.
int CheckGlyphWidth(HWND control);

// A control's class in lower case, and how failures name it: by class and number.
std::wstring ClassOf(HWND window);
std::string ControlName(HWND control);

SIZE SizeOf(const RECT& rect);
// A window's client area, from (0, 0).
RECT ClientOf(HWND window);
