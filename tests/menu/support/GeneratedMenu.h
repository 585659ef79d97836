// Menus of realistic shape and any size, written into the registry for tests and benchmarks.
#pragma once

#include <cstdint>

// What was written.
struct GeneratedMenu
{
    uint32_t Items = 0;
    // The registry calls that any load of it must make: each key that has something to say is
    // opened, its needed values are queried, its subkeys are enumerated to the end, and it is
    // closed.
    uint32_t MinimalCalls = 0;
};

// About `items` items, nested up to four deep, 12 to 24 per menu; every tenth item only the shared
// component has, every fifth one the user has customised.
GeneratedMenu GenerateMenu(uint32_t items);

// The same mixture in one menu without any below it.
GeneratedMenu GenerateFlatMenu(uint32_t items);
