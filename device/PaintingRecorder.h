// What painting::Text has drawn, for tests that look for text which is cut off. Nothing is recorded
// unless a test asks for it.
#pragma once

#include "platform/Win.h"

#include <string>
#include <vector>

namespace painting
{

// One line of text. All lengths are in device pixels.
struct DrawnText
{
    std::wstring Text;
    // Where it was to be drawn, and what of the surface could take it.
    RECT Area;
    RECT Surface;
    // What the whole line takes in its font.
    SIZE Needed;

    // Whether the line ends in an ellipsis, or lacks its upper or lower edge.
    bool IsCut() const
    {
        return Needed.cx > Area.right - Area.left || Needed.cy > Area.bottom - Area.top;
    }
};

// Records from construction to destruction what all threads draw; one at a time.
class CTextRecorder
{
public:
    CTextRecorder();
    ~CTextRecorder();
    CTextRecorder(const CTextRecorder&) = delete;
    CTextRecorder& operator=(const CTextRecorder&) = delete;

    // What was drawn since the last call, in order.
    static std::vector<DrawnText> Take();
};

// Called by Text with the font selected; returns at once while nobody records.
void Record(HDC dc, const std::wstring& text, const RECT& area);

} // namespace painting
