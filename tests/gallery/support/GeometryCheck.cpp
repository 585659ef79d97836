#include "tests/gallery/support/GeometryCheck.h"

#include "platform/aygshell/SipButton.h"
#include "tests/gallery/support/TextMeasure.h"
#include "tests/support/DialogRun.h"
#include "tests/support/Pixels.h"
#include "tests/support/Screen.h"
#include "tests/support/SoftKeys.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <iterator>

namespace
{

// Between a soft key's text and the key's edges, in pixels of a 96-dpi screen.
constexpr int kSoftKeyMargin = 4;
// Title band with its line, and where the title begins.
constexpr int kBandHeight = 24;
constexpr int kTitleLeft = 8;

// The language that is no language: its texts are 40 % longer than the English ones.
constexpr const char* kPseudo = "pseudo";

// What may be cut off although it is seen, and why nothing can be done about it.
struct Allowance
{
    const char* Language;
    const char* View;
    // How the part's name begins.
    const char* Part;
};
constexpr Allowance kAllowed[] = {
    // The column is as wide as the list less a scroll bar; a longer name ends in an ellipsis.
    {kPseudo, "customize-now", "syslistview32"},
    // A choice is as wide as its picture.
    {kPseudo, "install-wizard", "button"},
    // The system's own box: it breaks its text at the screen's width and stands in its middle.
    {kPseudo, "customize-home-limit", "the message box"},
    // One line across the screen, in which the menu's name stands last.
    {kPseudo, "menu-options", "the title band"},
    // Two columns on a screen of 320 pixels, two keys on one of 240.
    {kPseudo, "settings", "the window"},
    {kPseudo, "now-professional", "the window"},
    {kPseudo, "now-professional", "soft key 0"},
    {kPseudo, "now", "soft key 0"},
    // Stands beside the date.
    {kPseudo, "home", "the window"},
};

bool IsAllowed(const std::string& language, const std::string& view, const std::string& part)
{
    return std::any_of(std::begin(kAllowed), std::end(kAllowed),
                       [&](const Allowance& allowed)
                       {
                           return language == allowed.Language && view == allowed.View &&
                                  part.compare(0, strlen(allowed.Part), allowed.Part) == 0;
                       });
}

std::string Show(const RECT& rect)
{
    return "(" + std::to_string(rect.left) + ", " + std::to_string(rect.top) + ")-(" +
           std::to_string(rect.right) + ", " + std::to_string(rect.bottom) + ")";
}

std::string Show(SIZE size)
{
    return std::to_string(size.cx) + "x" + std::to_string(size.cy);
}

RECT ScreenRect()
{
    return {0, 0, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)};
}

RECT WorkArea()
{
    RECT area = {};
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0);
    return area;
}

} // namespace

CGeometryCheck::CGeometryCheck(const std::string& language, const std::string& view)
    : m_language(language), m_view(view)
{
}

void CGeometryCheck::Fail(const std::string& part, const std::string& text) const
{
    if (!IsAllowed(m_language, m_view, part))
        ADD_FAILURE() << m_language << " " << GetSystemMetrics(SM_CXSCREEN) << "x"
                      << GetSystemMetrics(SM_CYSCREEN) << " " << m_view << ": " << part << " "
                      << text;
}

void CGeometryCheck::Inside(const std::string& part, const RECT& inner, const RECT& outer) const
{
    RECT both = {};
    UnionRect(&both, &inner, &outer);
    if (!EqualRect(&both, &outer))
        Fail(part, "stands at " + Show(inner) + ", outside " + Show(outer));
}

void CGeometryCheck::Fits(const std::string& part, const std::wstring& text, SIZE needed,
                          SIZE given) const
{
    if (needed.cx > given.cx || needed.cy > given.cy)
        Fail(part, "has no room for \"" + (testing::Message() << text).GetString() + "\": needs " +
                       Show(needed) + ", has " + Show(given));
}

void CGeometryCheck::Dialog(HWND dialog, TitleBand band)
{
    ASSERT_NE(nullptr, dialog) << m_view;
    const HWND bar = SoftKeyBar(dialog);
    ASSERT_NE(nullptr, bar) << m_view;
    RECT free = WorkArea();
    free.bottom = RectOf(GetParent(bar)).top;
    Inside("the dialog", RectOf(dialog), free);
    SoftKeys(dialog);
    RECT room = RectOf(dialog);
    if (band == TitleBand::Painted)
    {
        Title(dialog);
        room.top += Px(kBandHeight);
    }
    Controls(dialog, room);
}

void CGeometryCheck::MessageBox(HWND box)
{
    ASSERT_NE(nullptr, box) << m_view;
    Inside("the message box", RectOf(box), ScreenRect());
    RECT client = ClientOf(box);
    MapWindowPoints(box, nullptr, reinterpret_cast<POINT*>(&client), 2);
    Controls(box, client);
}

void CGeometryCheck::Title(HWND dialog)
{
    const std::wstring title = TextOf(dialog);
    Fits("the title band", title, TitleSize(title),
         {ClientOf(dialog).right - Px(kTitleLeft), Px(kBandHeight)});
}

void CGeometryCheck::SoftKeys(HWND window)
{
    Inside("the soft-key bar", RectOf(GetParent(SoftKeyBar(window))), ScreenRect());
    for (int key = 0; key < SoftKeyCount(window); ++key)
        SoftKey(window, key);
}

// The keyboard button between the keys takes its room from both.
void CGeometryCheck::SoftKey(HWND dialog, int key)
{
    const HWND bar = SoftKeyBar(dialog);
    RECT place = {};
    SendMessageW(bar, TB_GETITEMRECT, static_cast<WPARAM>(key), reinterpret_cast<LPARAM>(&place));
    MapWindowPoints(bar, nullptr, reinterpret_cast<POINT*>(&place), 2);
    const HWND keyboard = FindWindowExW(GetParent(bar), nullptr, shell::kSipButtonClass, nullptr);
    if (keyboard && key == 0)
        place.right = std::min(place.right, RectOf(keyboard).left);
    else if (keyboard)
        place.left = std::max(place.left, RectOf(keyboard).right);
    InflateRect(&place, -Px(kSoftKeyMargin), 0);
    const std::wstring text = SoftKeyText(dialog, key);
    Fits("soft key " + std::to_string(key), text, LineSize(bar, text), SizeOf(place));
}

void CGeometryCheck::Controls(HWND dialog, const RECT& room)
{
    for (const HWND control : ControlsOf(dialog))
    {
        if (!IsWindowVisible(control))
            continue;
        Inside(ControlName(control), RectOf(control), room);
        Control(control);
    }
    Overlaps(dialog);
}

void CGeometryCheck::Drawn(const std::vector<painting::DrawnText>& texts,
                           const std::set<std::wstring>& names)
{
    EXPECT_FALSE(texts.empty()) << m_view;
    for (const painting::DrawnText& text : texts)
    {
        SIZE needed = text.Needed;
        if (names.count(text.Text) != 0)
            needed.cx = 0;
        Fits("the window", text.Text, needed, SizeOf(text.Area));
        Inside("a text", text.Area, text.Surface);
    }
}

void CGeometryCheck::Overlaps(HWND dialog)
{
    const std::vector<HWND> controls = ControlsOf(dialog);
    for (size_t i = 0; i < controls.size(); ++i)
        for (size_t j = i + 1; j < controls.size(); ++j)
        {
            const RECT one = RectOf(controls[i]);
            const RECT other = RectOf(controls[j]);
            RECT common = {};
            if (IsWindowVisible(controls[i]) && IsWindowVisible(controls[j]) &&
                IntersectRect(&common, &one, &other))
                Fail(ControlName(controls[i]),
                     "and " + ControlName(controls[j]) + " share " + Show(common));
        }
}
