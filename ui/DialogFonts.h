// The two faces that all dialogs are set in, made once and kept until the process ends.
#pragma once

#include "platform/Handles.h"

// A font of cell height `height` device pixels. A translation for a language with intricate glyphs
// ("_LARGE_SMALL_FONTS" = "1") makes it one logical pixel larger and never bold. The caller owns
// it; null when the system has none left.
HFONT CreateFontFor(const wchar_t* face, int height, int weight, BYTE charset);

// The same font without the language's rule.
HFONT CreateFontExactly(const wchar_t* face, int height, int weight, BYTE charset);

// The module-wide pair of Tahoma fonts, 13 logical pixels high.
class CDialogFonts
{
public:
    // The one pair; the first call also reads the screen's resolution if that wasn't done.
    static CDialogFonts& Instance();

    // The font, made on first use and owned by the pair.
    HFONT Get(bool bold);

private:
    CDialogFonts();

    UniqueFont m_normal;
    UniqueFont m_bold;
};

// The height of dialog texts in logical pixels.
constexpr int kDialogFontHeight = 13;
constexpr const wchar_t* kDialogFontFace = L"Tahoma";
