// What the Now screen shows, as plain values: the layout and one panel for each plug-in in use, or
// the default panel of a kind that has none.
#pragma once

#include <string>
#include <vector>

#include "dialogs/now/PluginList.h"
#include "dialogs/wizard/LayoutType.h"

struct NowPanel
{
    // The launcher's icon of that number.
    int Icon;
    std::wstring Title;
    // The most important line first.
    std::vector<std::wstring> Lines;
};

struct NowContents
{
    LayoutType Type = LayoutType::Classic;
    std::vector<NowPanel> Panels;
};

// Reads layout and plug-ins from the registry; changes nothing there. Throws CTavException.
NowContents ReadNowContents();

// The panels in the order calendar, e-mail, weather, profile. The plug-ins of one kind that are in
// use follow each other.
std::vector<NowPanel> NowPanelsOf(const std::vector<Plugin>& plugins);
