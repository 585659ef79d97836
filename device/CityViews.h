// Brings the city picker into the state that a picture shows, with real stylus and key input;
// CPictureDriver calls it on its own thread.
#pragma once

#include "platform/Win.h"

#include <string>

// The view whose city the device keeps: its dialog is to be ended with Done.
constexpr const wchar_t* kSelectCityChosen = L"select-city-chosen";

// `view` is "select-city" (all cities), "select-city-search" (a part of a name typed),
// kSelectCityChosen (one selected), "select-city-panel" (the input panel up, as when the picker
// opens) or "select-city-no-database". Returns what went wrong, an empty text when nothing did.
std::wstring BringUpCityView(HWND dialog, const std::wstring& view);
