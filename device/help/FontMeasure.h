// The fonts of the help viewer and the widths of their characters.
#pragma once

#include <array>
#include <memory>

#include "device/help/BookLayout.h"
#include "platform/Handles.h"

namespace help
{

// Tahoma in the four looks of a page, scaled to the screen. Each character is measured once, when
// it is first met.
class CFontMeasure : public ITextMeasure
{
public:
    CFontMeasure();

    int Width(TextStyle style, Char16 unit) override;
    int Height(TextStyle style) override { return m_faces[Index(style)].Height; }
    HFONT Font(TextStyle style) const { return m_faces[Index(style)].Font.get(); }

    // Draws a text at these widths; `x` and `y` are its upper left corner.
    void Draw(HDC dc, TextStyle style, int x, int y, StringView16 text, COLORREF colour);

private:
    static constexpr size_t kPageSize = 256;
    // Widths of characters in a row; below 0 while not measured.
    using WidthPage = std::array<int, kPageSize>;
    struct Face
    {
        UniqueFont Font;
        int Height = 0;
        std::unique_ptr<WidthPage> Pages[kPageSize];
    };

    static size_t Index(TextStyle style) { return static_cast<size_t>(style); }
    int Measure(const Face& face, Char16 unit) const;

    UniqueMemoryDc m_dc;
    Face m_faces[kTextStyles];
};

} // namespace help
