#include "ui/DialogFonts.h"

#include "frame/Localizer.h"
#include "frame/Resolution.h"
#include "platform/os/Text.h"
#include "ui/Scale.h"

#include <cwchar>

namespace
{

// Not a text but a switch in the translation file.
constexpr const wchar_t* kLargeSmallFonts = L"_LARGE_SMALL_FONTS";

bool LanguageNeedsLargeGlyphs()
{
    return os::EqualNoCase(GetLocalizer().TranslateToString(kLargeSmallFonts), L"1");
}

} // namespace

HFONT CreateFontExactly(const wchar_t* face, int height, int weight, BYTE charset)
{
    LOGFONTW font = {};
    font.lfHeight = height;
    font.lfWeight = weight;
    font.lfCharSet = charset;
    wcsncpy(font.lfFaceName, face, LF_FACESIZE - 1);
    return CreateFontIndirectW(&font);
}

HFONT CreateFontFor(const wchar_t* face, int height, int weight, BYTE charset)
{
    if (!LanguageNeedsLargeGlyphs())
        return CreateFontExactly(face, height, weight, charset);
    return CreateFontExactly(face, height + ScaleY(1), FW_NORMAL, charset);
}

CDialogFonts& CDialogFonts::Instance()
{
    static CDialogFonts fonts;
    return fonts;
}

CDialogFonts::CDialogFonts()
{
    ReadScreenResolution();
}

HFONT CDialogFonts::Get(bool bold)
{
    UniqueFont& font = bold ? m_bold : m_normal;
    if (!font)
        font.reset(CreateFontFor(kDialogFontFace, ScaleY(kDialogFontHeight),
                                 bold ? FW_BOLD : FW_NORMAL, ANSI_CHARSET));
    return font.get();
}
