// Every text that the shell itself shows, in English; each goes through the module's translator.
#pragma once

#include <string>

namespace texts
{

constexpr const wchar_t* kMenu = L"Menu";
constexpr const wchar_t* kExit = L"Exit";
constexpr const wchar_t* kOpen = L"Open";
constexpr const wchar_t* kBack = L"Back";
constexpr const wchar_t* kToCome = L"to come";
constexpr const wchar_t* kHidden = L"%d hidden";
constexpr const wchar_t* kNoProgram = L"This sample device has no program for '%s'.";

// The dialogs that can be opened.
constexpr const wchar_t* kCustomizeMenu = L"Customize Menu";
constexpr const wchar_t* kCustomizeHome = L"Manage Pinned";
constexpr const wchar_t* kCustomizeNow = L"Customize Now";
constexpr const wchar_t* kInstallWizard = L"Choose Layout";
constexpr const wchar_t* kSelectCity = L"Select City";

constexpr const wchar_t* kAll[] = {kMenu,          kExit,         kOpen,          kBack,
                                   kToCome,        kHidden,       kNoProgram,     kCustomizeMenu,
                                   kCustomizeHome, kCustomizeNow, kInstallWizard, kSelectCity};

// The translation of a text, the text itself where there is none.
std::wstring Translate(const wchar_t* text);

// The same with `value` in place of the first "%s" or "%d".
std::wstring Translate(const wchar_t* text, const std::wstring& value);

} // namespace texts
