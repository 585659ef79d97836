// The plug-ins of the Now screen as the registry keeps them. The dialog CCustomizeNowDlg shows the
// list and hands back which of them are to be used.
#pragma once

#include "frame/VORegistry.h"

#include <cstdint>
#include <string>
#include <vector>

// A plug-in that is installed.
struct Plugin
{
    // Its registration's key below the Now key.
    std::wstring KeyName;
    // Its text, translated if it is one of the shell's own, and the name of its kind.
    std::wstring Label;
    int32_t Kind;
    // Whether the Now screen shows it instead of the default panel of its kind.
    bool IsUsed;
};

// Reads all registrations, in the registry's order. Those that are malformed are deleted; those of
// plug-ins that are not installed, or whose text there is no memory for, are left out and stay.
// Without the Now key the list is empty.
// Throws CTavException 0x8007000E when memory runs out.
std::vector<Plugin> LoadPlugins();

// The same for those who only show the plug-ins: nothing is deleted.
std::vector<Plugin> PeekPlugins();

// Writes which plug-ins are used, for the length of one saving. The Now key is created if it is
// missing; each registration that was changed is flushed. A failure to write is not reported.
class CPluginSaving
{
public:
    CPluginSaving();

    // Writes the plug-in's flag, unless it says the same already.
    void SetUsed(const std::wstring& keyName, bool isUsed);

private:
    CVORegistry m_now;
};
