#include "device/SamplePlugins.h"

namespace sample
{
namespace
{

constexpr int64_t kCalendar = 0;
constexpr int64_t kEmail = 1;
constexpr int64_t kWeather = 2;
constexpr int64_t kProfile = 3;
constexpr int64_t kUnset = PluginKey::kNone;

// Programs that were on the device once.
constexpr const wchar_t* kRemovedFromMachine =
    L"\\SOFTWARE\\Orvane 2\\Tav Lumenar\\Device\\Installed\\Inbox Plus";
constexpr const wchar_t* kRemovedFromUser = L"\\Software\\Tav Lumenar Device\\Quiet Hours";

// One of the shell's own, whose names are translated.
constexpr PluginKey Own(const wchar_t* name, const wchar_t* text, int64_t kind,
                        int64_t inactive = kUnset)
{
    return {name, text, kind, 1, inactive};
}

constexpr PluginKey kKeys[] = {
    Own(L"Agenda", L"Week at a Glance", kCalendar, 0),
    Own(L"Mail", L"Message Summary", kEmail, 1),
    Own(L"Sky", L"Moon and Tides", kWeather),
    // Of other makers: on the device ...
    {L"SkyWatch", L"Sky Watch", kWeather, kUnset, 1, kInstalledForMachine},
    {L"RingControl", L"Ring Control", kProfile, 0, 0, nullptr, kInstalledForUser},
    {L"Birthdays", L"Birthdays", kCalendar},
    // ... and removed without their registrations. The user's key doesn't count for the second.
    {L"InboxPlus", L"Inbox Plus", kEmail, kUnset, 0, kRemovedFromMachine},
    {L"StormAlert", L"Storm Alert", kWeather, kUnset, 1, kRemovedFromMachine, kInstalledForUser},
    {L"QuietHours", L"Quiet Hours", kProfile, kUnset, kUnset, nullptr, kRemovedFromUser},
    // Malformed: without a name, with an empty one, of an unknown kind, of none.
    {L"Broken1", nullptr, kWeather},
    {L"Broken2", L"", kCalendar, 1, 0},
    {L"Broken3", L"Stock Ticker", 4, kUnset, 0},
    {L"Broken4", L"Headlines"},
};

} // namespace

Table<PluginKey> PluginKeys()
{
    return {kKeys, sizeof(kKeys) / sizeof(kKeys[0])};
}

} // namespace sample
