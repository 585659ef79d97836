#include "device/ShellEntry.h"

#include "device/LauncherIcons.h"
#include "device/Launching.h"
#include "frame/VORegistry.h"
#include "menu/MenuKeys.h"
#include "menu/ProgramScanData.h"
#include "menu/Rating.h"
#include "platform/os/Text.h"

namespace
{

bool IsMenu(const CMenuItem& item)
{
    return item.ChildCount() > 0 || item.CanAdd() ||
           os::EqualNoCase(item.KeyPath, kProgramsBranchPath);
}

// Built-in items bring their icon along in their own key.
int OwnIconOf(const CMenuItem& item)
{
    const CVORegistry key(HKEY_LOCAL_MACHINE, item.KeyPath.c_str(), FALSE, FALSE, 0);
    DWORD own = 0;
    if (key.GetDWORD(kImageValue, own) && own >= static_cast<DWORD>(icons::kFirst))
        return static_cast<int>(own);
    return 0;
}

EntryIcon IconOf(const CMenuItem& item, bool isMenu)
{
    EntryIcon icon;
    icon.Fallback = isMenu ? icons::kFolder : icons::kDocument;
    const int32_t chosen = item.GetImage();
    if (chosen != kNoImage)
    {
        icon.Number = chosen;
        return icon;
    }
    icon.File = item.GetImagePath();
    if (icon.File.empty())
        icon.Number = OwnIconOf(item);
    return icon;
}

} // namespace

ShellEntry EntryOf(const CMenuItemPtr& item)
{
    ShellEntry entry;
    entry.Text = item->Text;
    entry.Name = Ratings::EntryNameOf(item->KeyPath, Ratings::TargetKind::Menu);
    entry.IsMenu = IsMenu(*item);
    entry.Icon = IconOf(*item, entry.IsMenu);
    entry.Item = item;
    entry.Path = item->GetFile();
    entry.IsGone = !entry.Path.empty() && !launching::Exists(entry.Path);
    return entry;
}

ShellEntry EntryOfFile(const std::wstring& path)
{
    ShellEntry entry;
    entry.Text = programs::DisplayText(path);
    entry.Name = Ratings::LinkEntryName(path);
    entry.Icon.File = path;
    entry.Icon.Fallback = icons::kDocument;
    entry.Path = path;
    entry.IsGone = !launching::Exists(path);
    return entry;
}

ShellEntry EntryOfMissingItem(const std::wstring& keyPath)
{
    ShellEntry entry;
    entry.Text = keyPath.substr(keyPath.rfind(L'\\') + 1);
    entry.Name = Ratings::MenuEntryName(keyPath);
    entry.Icon.Fallback = icons::kDocument;
    entry.IsGone = true;
    return entry;
}
