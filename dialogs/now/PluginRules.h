// What the values of a Now screen plug-in's registration mean: decisions about plain values, apart
// from the registry and the list that shows them.
#pragma once

#include "platform/Char16.h"

#include <cstddef>
#include <cstdint>
#include <optional>

// The default panel that a plug-in replaces, by the number that "Kind" stores.
enum PluginKind : int32_t
{
    KindMissing = -1,
    KindCalendar = 0,
    KindEmail = 1,
    KindWeather = 2,
    KindProfile = 3
};

// True for a registration that can't be shown and is to be deleted: no text, or no kind that the
// Now screen has a panel of.
bool IsMalformedPlugin(StringView16 text, int32_t kind);

// The string resource that follows a plug-in's text in its label. `kind` is one of the four.
unsigned KindSuffix(int32_t kind);

// Whether the Now screen uses a plug-in with that "Inactive"; one without the value is not used.
bool IsPluginUsed(std::optional<uint32_t> inactive);

// A list item's data: in the low word the position of the plug-in's key name, cut to 16 bits,
// in the high word its kind.
uint32_t PluginItemData(size_t keyPosition, int32_t kind);
size_t KeyPositionOf(uint32_t itemData);
