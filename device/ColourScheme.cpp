#include "device/ColourScheme.h"

#include "platform/Handles.h"

namespace
{

struct Entry
{
    int Element;
    COLORREF Colour;
};

using namespace colours;

constexpr Entry kScheme[] = {
    {COLOR_DESKTOP, kDeepTeal},
    {COLOR_WINDOW, kPaper},
    {COLOR_WINDOWTEXT, kInk},
    {COLOR_WINDOWFRAME, kTeal},
    {COLOR_HIGHLIGHT, kTeal},
    {COLOR_HIGHLIGHTTEXT, kWhite},
    {COLOR_ACTIVECAPTION, kTeal},
    {COLOR_GRADIENTACTIVECAPTION, kDeepTeal},
    {COLOR_CAPTIONTEXT, kWhite},
    {COLOR_INACTIVECAPTION, kSoftKeys},
    {COLOR_GRADIENTINACTIVECAPTION, kSoftKeys},
    {COLOR_INACTIVECAPTIONTEXT, kMist},
    {COLOR_BTNFACE, kFace},
    {COLOR_BTNTEXT, kInk},
    {COLOR_BTNHIGHLIGHT, kWhite},
    {COLOR_3DLIGHT, kFace},
    {COLOR_BTNSHADOW, RGB(152, 173, 178)},
    {COLOR_3DDKSHADOW, RGB(72, 98, 105)},
    {COLOR_GRAYTEXT, kFaded},
    {COLOR_MENU, kPaper},
    {COLOR_MENUTEXT, kInk},
    {COLOR_MENUHILIGHT, kTeal},
    {COLOR_MENUBAR, kSoftKeys},
    {COLOR_SCROLLBAR, kMist},
    {COLOR_INFOBK, kPaper},
    {COLOR_INFOTEXT, kInk},
};
constexpr int kCount = sizeof(kScheme) / sizeof(kScheme[0]);

// The common controls keep copies of the colours; any one of them renews the copies for all when it
// hears of a change, which is announced to top-level windows only.
void RefreshControls()
{
    const INITCOMMONCONTROLSEX wanted = {sizeof(wanted), ICC_BAR_CLASSES};
    InitCommonControlsEx(&wanted);
    const UniqueWindow bar(CreateWindowExW(0, TOOLBARCLASSNAMEW, L"", WS_POPUP, 0, 0, 0, 0, nullptr,
                                           nullptr, nullptr, nullptr));
    SendMessageW(bar.get(), WM_SYSCOLORCHANGE, 0, 0);
}

void Apply(const std::vector<COLORREF>& wanted)
{
    int elements[kCount];
    for (int i = 0; i < kCount; ++i)
        elements[i] = kScheme[i].Element;
    SetSysColors(kCount, elements, wanted.data());
    RefreshControls();
}

} // namespace

CColourScheme::CColourScheme()
{
    std::vector<COLORREF> wanted;
    for (const Entry& entry : kScheme)
    {
        m_earlier.push_back(GetSysColor(entry.Element));
        wanted.push_back(entry.Colour);
    }
    Apply(wanted);
}

CColourScheme::~CColourScheme()
{
    Apply(m_earlier);
}
