// The device's colours: deep teal on near-white, set as the system's colours so that every dialog
// and control takes them.
#pragma once

#include "platform/Win.h"

#include <vector>

namespace colours
{

constexpr COLORREF kTeal = RGB(13, 104, 122);
constexpr COLORREF kDeepTeal = RGB(8, 66, 80);
constexpr COLORREF kSoftKeys = RGB(29, 73, 84);
constexpr COLORREF kPaper = RGB(252, 254, 254);
constexpr COLORREF kFace = RGB(236, 243, 244);
constexpr COLORREF kMist = RGB(205, 225, 229);
constexpr COLORREF kInk = RGB(22, 38, 43);
constexpr COLORREF kFaded = RGB(100, 120, 126);
constexpr COLORREF kWhite = RGB(255, 255, 255);

} // namespace colours

// Sets the scheme for the length of its life and puts the earlier colours back.
class CColourScheme
{
public:
    CColourScheme();
    ~CColourScheme();
    CColourScheme(const CColourScheme&) = delete;
    CColourScheme& operator=(const CColourScheme&) = delete;

private:
    std::vector<COLORREF> m_earlier;
};
