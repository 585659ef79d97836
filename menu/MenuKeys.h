// Where the menu and its ratings live in the registry, below HKEY_LOCAL_MACHINE, and what their
// values are called. Paths keep the handheld's leading backslash: they are also item key paths and
// parts of rating names.
#pragma once

#include <cstdint>

// The three layers of the menu.
constexpr const wchar_t* kMenuRootPath = L"\\SOFTWARE\\Orvane 2\\Tav Lumenar\\Menu\\Root";
constexpr const wchar_t* kSharedRootPath = L"\\SOFTWARE\\Orvane\\Shared\\Tav Menu\\1.0";
constexpr const wchar_t* kCustomizeRootPath = L"\\SOFTWARE\\Orvane\\Shared\\Tav Menu\\Customize";

// Branches of the product's layer that get a treatment of their own.
constexpr const wchar_t* kSettingsBranchPath =
    L"\\SOFTWARE\\Orvane 2\\Tav Lumenar\\Menu\\Root\\Settings";
constexpr const wchar_t* kProgramsBranchPath =
    L"\\SOFTWARE\\Orvane 2\\Tav Lumenar\\Menu\\Root\\Programs";

// Settings of the menu as a whole.
constexpr const wchar_t* kMenuSettingsPath = L"\\SOFTWARE\\Orvane 2\\Tav Lumenar\\Menu\\Settings";
// The icon number of new menus.
constexpr const wchar_t* kDefFolderValue = L"DefFolder";

// Holds one key per rating list.
constexpr const wchar_t* kRatingsRootPath = L"\\SOFTWARE\\Orvane 2\\Tav Lumenar\\Ratings";

// The values of an item's key.
constexpr const wchar_t* kTextValue = L"Text";
constexpr const wchar_t* kIndexValue = L"Index";
constexpr const wchar_t* kInactiveValue = L"Inactive";
constexpr const wchar_t* kUserValue = L"User";
constexpr const wchar_t* kFileValue = L"File";
constexpr const wchar_t* kImagePathValue = L"ImagePath";
constexpr const wchar_t* kImageValue = L"Image";
constexpr const wchar_t* kDrawTypeValue = L"DrawType";
constexpr const wchar_t* kRtFlagsValue = L"RtFlags";
constexpr const wchar_t* kRatingValue = L"Rating";
constexpr const wchar_t* kAddValue = L"Add";

// On the customisation root: the last number that a new key name took.
constexpr const wchar_t* kLastKeyValue = L"LastKey";

// The texts of "DrawType".
constexpr const wchar_t* kGridText = L"Grid";
constexpr const wchar_t* kListText = L"List";

// An item without "Index" stands behind the numbered ones; an item that only the shared component
// has stands behind those of the product by the same distance again.
constexpr uint32_t kDefaultIndex = 10000;
constexpr uint32_t kSharedIndexOffset = 10000;

// "Image" of an item for which no icon was chosen; never stored.
constexpr int32_t kNoImage = -1;

// The bits of "RtFlags".
constexpr uint32_t kRtHardwareNavigation = 0x1;
constexpr uint32_t kRtMostUsedFirst = 0x2;
// The menu has, or once had, a rating list of its own: stays when the rating is switched off.
constexpr uint32_t kRtHasRating = 0x4;
