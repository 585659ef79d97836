// Every text that the shell itself shows, in English; each goes through the module's translator.
#pragma once

#include <string>

namespace texts
{

constexpr const wchar_t* kMenu = L"Menu";
constexpr const wchar_t* kExit = L"Exit";
constexpr const wchar_t* kOpen = L"Open";
constexpr const wchar_t* kBack = L"Back";
constexpr const wchar_t* kPinned = L"%d pinned";
constexpr const wchar_t* kInUse = L"%d in use";
constexpr const wchar_t* kHidden = L"%d hidden";
constexpr const wchar_t* kNoProgram = L"This sample device has no program for '%s'.";
constexpr const wchar_t* kNotStarted = L"'%s' could not be started.";
constexpr const wchar_t* kGone = L"'%s' is no longer on this device.";
constexpr const wchar_t* kCannotTurn = L"This screen can't be turned.";
constexpr const wchar_t* kNoItems = L"There is nothing in this menu.";

// The home screen's bands and city, and the page behind its right soft key.
constexpr const wchar_t* kPinnedBand = L"Pinned";
constexpr const wchar_t* kMostUsedBand = L"Most used";
constexpr const wchar_t* kNothingUsed = L"What you use will be shown here.";
constexpr const wchar_t* kNoCity = L"No city chosen";
constexpr const wchar_t* kCustomize = L"Customize";
constexpr const wchar_t* kHelp = L"Help";

// The dialogs that can be opened.
constexpr const wchar_t* kCustomizeMenu = L"Customize Menu";
constexpr const wchar_t* kCustomizeHome = L"Manage Pinned";
constexpr const wchar_t* kCustomizeNow = L"Customize Now";
constexpr const wchar_t* kInstallWizard = L"Choose Layout";
constexpr const wchar_t* kSelectCity = L"Select City";

// The layouts as the install wizard calls them.
constexpr const wchar_t* kClassic = L"Classic";
constexpr const wchar_t* kProfessional = L"Professional";

// The Now screen and its default panels.
constexpr const wchar_t* kNow = L"Now";
constexpr const wchar_t* kNowCalendar = L"Calendar";
constexpr const wchar_t* kNowMeeting = L"10:30 Team meeting";
constexpr const wchar_t* kNowLunch = L"13:00 Lunch with Ana";
constexpr const wchar_t* kNowEmail = L"E-mail";
constexpr const wchar_t* kNowMessages = L"2 new messages";
constexpr const wchar_t* kNowSubject = L"Ana: holiday pictures";
constexpr const wchar_t* kNowWeather = L"Weather";
constexpr const wchar_t* kNowToday = L"Sunny, 24 degrees";
constexpr const wchar_t* kNowTomorrow = L"Tomorrow: showers";
constexpr const wchar_t* kNowProfile = L"Profile";
constexpr const wchar_t* kNowNormal = L"Normal";
constexpr const wchar_t* kNowRinger = L"Ringer on, alarm at 7:00";
constexpr const wchar_t* kNowPlugin = L"Shown by a plug-in";

constexpr const wchar_t* kAll[] = {
    kCannotTurn,    kMenu,          kExit,         kOpen,          kBack,        kPinned,
    kInUse,         kHidden,        kNoProgram,    kNotStarted,    kGone,        kNoItems,
    kPinnedBand,    kMostUsedBand,  kNothingUsed,  kNoCity,        kCustomize,   kHelp,
    kCustomizeMenu, kCustomizeHome, kCustomizeNow, kInstallWizard, kSelectCity,  kClassic,
    kProfessional,  kNow,           kNowCalendar,  kNowMeeting,    kNowLunch,    kNowEmail,
    kNowMessages,   kNowSubject,    kNowWeather,   kNowToday,      kNowTomorrow, kNowProfile,
    kNowNormal,     kNowRinger,     kNowPlugin};

// The translation of a text, the text itself where there is none.
std::wstring Translate(const wchar_t* text);

// The same with `value` in place of the first "%s" or "%d".
std::wstring Translate(const wchar_t* text, const std::wstring& value);

} // namespace texts
