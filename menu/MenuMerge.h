// Which subkeys of the three layers make up the children of one menu: the merge by key name,
// ignoring case, in linear time. The loader reads the keys accordingly.
#pragma once

#include <string>
#include <vector>

using KeyNames = std::vector<std::wstring>;

enum class MenuLayer
{
    Own,
    Shared,
    Customize,
};

// One child to be. The pointers lead into the lists that were merged.
struct MergedChild
{
    const std::wstring* Name;
    // Where the child's own key is. A Customize child comes to be only if its key is a user's.
    MenuLayer Layer;
    // The layer may have a key of that name, too, where more of the child's children are.
    bool HasShared = false;
    bool HasCustomised = false;
    // The customisation subkeys that match the child, in order; a later one overrules an earlier.
    std::vector<const std::wstring*> Customised = {};
};

// Takes the subkey names of one menu in registry order and gives its children in the order in which
// they come to be: own ones, those that only the shared component has, those that only the
// customisation layer has. Where several children match a name, the last one takes it.
std::vector<MergedChild> MergeLayers(const KeyNames& own, const KeyNames& shared,
                                     const KeyNames& customised);
