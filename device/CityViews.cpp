#include "device/CityViews.h"

#include <aygshell.h>

#include <optional>

#include "device/Stylus.h"
#include "device/Waiting.h"
#include "platform/aygshell/SipButton.h"

namespace
{

// Part of the names of cities all over the world, and the name of one.
constexpr const wchar_t* kTyped = L"LON";
constexpr const wchar_t* kCity = L"LISBON";

// Where the input panel begins on the screen; nothing while it is down.
std::optional<int> PanelTop()
{
    SIPINFO panel = {};
    panel.cbSize = sizeof(panel);
    if (!SHSipInfo(SPI_GETSIPINFO, 0, &panel, 0) || (panel.fdwFlags & SIPF_ON) == 0)
        return std::nullopt;
    return panel.rcVisibleDesktop.bottom;
}

LRESULT CityCount(HWND list)
{
    return SendMessageW(list, LVM_GETITEMCOUNT, 0, 0);
}

int BottomOf(HWND window)
{
    RECT place = {};
    GetWindowRect(window, &place);
    return place.bottom;
}

// The search box raises the panel, and the list makes room for it.
bool WaitForPanel(HWND list)
{
    return waiting::Until(
        [&]
        {
            const std::optional<int> top = PanelTop();
            return top && BottomOf(list) < *top;
        });
}

// Taps the keyboard button between the soft keys.
bool LowerPanel(HWND dialog, HWND list)
{
    const HWND bar = SHFindMenuBar(dialog);
    const HWND button = FindWindowExW(GetParent(bar), nullptr, shell::kSipButtonClass, nullptr);
    RECT place = {};
    if (!bar || !button || !GetWindowRect(button, &place))
        return false;
    const int bottom = BottomOf(list);
    stylus::Tap({(place.left + place.right) / 2, (place.top + place.bottom) / 2});
    return waiting::Until([&] { return !PanelTop() && BottomOf(list) > bottom; });
}

bool TypeName(HWND search, HWND list, const wchar_t* name)
{
    const LRESULT before = CityCount(list);
    for (const wchar_t* letter = name; *letter; ++letter)
        stylus::Key(static_cast<WORD>(*letter));
    return waiting::Until(
        [&] { return GetWindowTextLengthW(search) == lstrlenW(name) && CityCount(list) < before; });
}

// From the search box into the list.
bool SelectFirst(HWND list)
{
    stylus::Key(VK_TAB);
    stylus::Key(VK_DOWN);
    return waiting::Until(
        [&] {
            return SendMessageW(list, LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED) == 0;
        });
}

} // namespace

std::wstring BringUpCityView(HWND dialog, const std::wstring& view)
{
    const HWND search = FindWindowExW(dialog, nullptr, WC_EDITW, nullptr);
    const HWND list = FindWindowExW(dialog, nullptr, WC_LISTVIEWW, nullptr);
    if (!search || !list)
        return L"there is no search box or no list";
    const bool wantsCities = view != L"select-city-no-database";
    if ((CityCount(list) > 0) != wantsCities)
        return wantsCities ? L"there are no cities" : L"there are cities";
    if (!WaitForPanel(list))
        return L"the input panel did not come up";
    if (view == L"select-city-panel")
        return {};
    const bool isChosen = view == kSelectCityChosen;
    if ((view == L"select-city-search" && !TypeName(search, list, kTyped)) ||
        (isChosen && !TypeName(search, list, kCity)))
        return L"typing did not narrow the list";
    if (!LowerPanel(dialog, list))
        return L"the input panel did not go down";
    if (isChosen && !SelectFirst(list))
        return L"the city was not selected";
    waiting::ForThreadOf(dialog);
    return {};
}
