#include "tests/dialogs/menu/day/DayDevice.h"

#include "device/Seed.h"

#include <gtest/gtest.h>

#include <sstream>

namespace
{

// How a state's lines name the two places that are written to.
struct ShortName
{
    const wchar_t* name;
    const wchar_t* path;
};
constexpr ShortName kCustomize = {L"Customize", L"\\Orvane\\Shared\\Tav Menu\\Customize"};
constexpr ShortName kRatings = {L"Ratings", L"\\Orvane 2\\Tav Lumenar\\Ratings"};

// Fields of the launcher's requests.
constexpr ULONG_PTR kDrawImage = 6000;
constexpr ULONG_PTR kIsShown = 6002;
constexpr size_t kKindOffset = 0;
constexpr size_t kNumberOffset = 524;
constexpr uint32_t kIconNumber = 2;
constexpr uint32_t kFirstIcon = 100;

LRESULT AnswerRequest(const ImageProcessRequest& request)
{
    if (request.code == kIsShown)
        return TRUE;
    if (request.code != kDrawImage || request.Field(kKindOffset) != kIconNumber)
        return FALSE;
    const uint32_t icon = request.Field(kNumberOffset) - kFirstIcon;
    if (icon >= kLauncherIcons)
        return FALSE;
    const RECT area = request.Rect();
    SetDCBrushColor(request.Dc(), RGB(6 * icon, 0, 255 - 6 * icon));
    return FillRect(request.Dc(), &area, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
}

// Puts the one in the place of the other at the beginning of a line; false if it isn't there.
bool ReplaceStart(std::wstring& line, const std::wstring& old, const wchar_t* fresh)
{
    if (line.compare(0, old.size(), old) != 0)
        return false;
    line.replace(0, old.size(), fresh);
    return true;
}

// The key that a line is about, below HKEY_LOCAL_MACHINE.
std::wstring KeyIn(const std::wstring& line)
{
    std::wstring key = line.substr(0, line.find(L'|'));
    EXPECT_TRUE(ReplaceStart(key, kCustomize.name, kCustomize.path) ||
                ReplaceStart(key, kRatings.name, kRatings.path));
    return L"SOFTWARE" + key;
}

// The value's name; empty for the line of a key.
std::wstring ValueNameIn(const std::wstring& line)
{
    const size_t bar = line.find(L'|');
    return bar == std::wstring::npos ? L"" : line.substr(bar + 1, line.find(L'=') - bar - 1);
}

void Delete(const std::wstring& line)
{
    const std::wstring key = KeyIn(line);
    const std::wstring value = ValueNameIn(line);
    if (value.empty())
        RegDeleteTreeW(HKEY_LOCAL_MACHINE, key.c_str());
    else
        RegDeleteKeyValueW(HKEY_LOCAL_MACHINE, key.c_str(), value.c_str());
}

void Add(CRegistrySandbox& registry, const std::wstring& line)
{
    const std::wstring key = KeyIn(line);
    const std::wstring value = ValueNameIn(line);
    const std::wstring data = line.substr(line.find(L'=') + 1);
    if (value.empty())
        registry.CreateKey(key.c_str());
    else if (data.front() == L'"')
        registry.SetText(key.c_str(), value.c_str(), data.substr(1, data.size() - 2));
    else
        registry.SetDword(key.c_str(), value.c_str(), std::stoul(data));
}

} // namespace

CDayDevice::CDayDevice()
{
    seed::WriteRegistry(std::wstring());
    EXPECT_TRUE(seed::WriteStartMenu(m_startMenu.Path(), L"\\Windows\\Icons.dll"));
    m_files.AddFile(kDayFile);
}

// What the system itself keeps in the registry is none of the device's.
DeviceState CDayDevice::State() const
{
    std::wistringstream dump(m_registry.TypedDump(L"SOFTWARE"));
    DeviceState state;
    for (std::wstring line; std::getline(dump, line);)
        if (ReplaceStart(line, kCustomize.path, kCustomize.name) ||
            ReplaceStart(line, kRatings.path, kRatings.name) ||
            ReplaceStart(line, L"\\Orvane", L"Orvane"))
            state += line + L'\n';
    return state;
}

DWORD CDayDevice::LastKey() const
{
    return m_registry.Dword(KeyIn(kCustomize.name).c_str(), L"LastKey");
}

// What goes before what comes: a value that changes is named by both.
void CDayDevice::Change(const std::vector<std::wstring>& changes)
{
    for (const std::wstring& change : changes)
        if (change.front() == L'-')
            Delete(change.substr(1));
    for (const std::wstring& change : changes)
        if (change.front() == L'+')
            Add(m_registry, change.substr(1));
}

std::wstring CDayDevice::Address() const
{
    return m_registry.BackingPath() + L"|" + m_startMenu.UserBackingPath() + L"|" +
           m_startMenu.Path();
}

std::wstring JoinDayDevice(const std::wstring& address)
{
    std::wistringstream parts(address);
    std::wstring machine, user, startMenu;
    std::getline(parts, machine, L'|');
    std::getline(parts, user, L'|');
    std::getline(parts, startMenu, L'|');
    // The user's key last: the other one is found below the real user's.
    EXPECT_TRUE(JoinRegistrySandbox(HKEY_LOCAL_MACHINE, machine));
    EXPECT_TRUE(JoinRegistrySandbox(HKEY_CURRENT_USER, user));
    return startMenu;
}

CDayLauncher::CDayLauncher() : m_process(AnswerRequest) {}
