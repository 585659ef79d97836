// Three other ways to read the menu from the registry, to measure the product's beside: the least
// work that any load must do, the same for the product's layer alone, and the plain way with one
// key object per item.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

// As much of an item as a load needs.
struct WalkedItem
{
    std::wstring Name;
    std::wstring Text;
    int32_t Index = 0;
    bool Inactive = false;
    std::vector<WalkedItem> Children;
};

// All three layers, merged and sorted; every key opened once, relative to its parent.
WalkedItem WalkMinimal();

// The product's layer only, neither merged nor sorted.
WalkedItem WalkOwnLayer();

// All three layers; every key opened by its full path for its values and again for its subkeys,
// every text asked for its size first.
WalkedItem WalkPlain();

// The item and all below it.
size_t CountItems(const WalkedItem& item);
