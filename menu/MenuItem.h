// One node of the launcher menu. The dialogs read its fields and change it through the operations
// below, which write to the registry at once: there is no separate save.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "menu/RefCount.h"

class CMenuItem;
class CMenuTree;

using CMenuItemPtr = CRefPtr<CMenuItem>;

// How a menu shows its items.
enum class MenuDrawType : int32_t
{
    List = 0,
    Grid = 1,
};

// A menu, link or file of the launcher menu. What it is follows from its registry values.
// Every operation throws CTavException: 0x84000001 for a null item or a position out of range,
// 0x8007000E when memory runs out. Registry failures are silent: reads give the defaults, writes
// do nothing. What was written before a throw stays written.
class CMenuItem : public CBaseRefCount
{
public:
    // A child with empty texts; `parent` null throws 0x80070057. Doesn't join parent's Children.
    explicit CMenuItem(CMenuItem* parent);
    // A root.
    explicit CMenuItem(std::wstring keyPath);

    // Children, in memory only.
    // The position of `item` by identity, or -1.
    int32_t FindChild(const CMenuItem* item) const;
    void AppendChild(const CMenuItemPtr& item);
    void RemoveChildAt(int32_t position);
    void SwapChildren(int32_t first, int32_t second);
    // By Index, then by Text ignoring case; equal ones keep their order.
    void SortChildren();
    int32_t ChildCount() const { return static_cast<int32_t>(Children.size()); }

    // Numbers the children 0, 1, 2 ... and writes "Index" of those whose number changed.
    void Renumber();
    // True when the item can move one place up (or down) among its siblings; does it unless
    // `checkOnly`. A true answer renumbers the siblings in both cases: asking normalises what is
    // stored, deliberately.
    bool Move(bool up, bool checkOnly);

    // Attributes. The setters marked (existing) act only on an item that has a customisation key;
    // the others create it.
    void SetInactive(bool inactive);
    void SetText(const std::wstring& text); // (existing)
    // The icon number, kNoImage when none was chosen.
    int32_t GetImage() const;
    void SetImage(int32_t image); // (existing)
    // The file that gives the icon, empty when there is none.
    std::wstring GetImagePath() const;
    // The target of a user link, empty for menus.
    std::wstring GetFile() const;
    MenuDrawType GetDrawType() const;
    void SetDrawType(MenuDrawType type);
    // The kRt... bits.
    uint32_t GetRtFlags() const;
    void SetRtFlags(uint32_t flags);
    // The name of the menu's rating list, empty when it has none.
    std::wstring GetRating() const;
    // Most used items first. Switching it off keeps the rating list's name and kRtHasRating.
    void SetRated(bool on);

    // True for what the user has added.
    bool IsUserItem() const;
    // True when the user may add items to it.
    bool CanAdd() const;

    // Append a user item, register it in `tree` and return it. A link is named after its file.
    CMenuItemPtr AddLink(const std::wstring& path, CMenuTree& tree);
    CMenuItemPtr AddMenu(const std::wstring& text, int32_t image, CMenuTree& tree);
    // Deletes a user item with everything below it; false, doing nothing, for any other item.
    // Siblings keep their Index.
    bool Remove(CMenuTree& tree);

    // Unique while the module is loaded; the data word of tree-view nodes.
    uint32_t Id;
    // The key the item came from, with its leading backslash; ends in the item's key name.
    std::wstring KeyPath;
    // The place among the siblings.
    int32_t Index = 0;
    // Hidden from the shell's menu.
    bool Inactive = false;
    // What is displayed.
    std::wstring Text;
    // Null for the root, and for an item that was removed or outlived its parent.
    CMenuItem* Parent = nullptr;
    std::vector<CMenuItemPtr> Children;

protected:
    ~CMenuItem() override;

private:
    CMenuItemPtr AppendUserItem(const std::wstring& keyPath, const std::wstring& text,
                                CMenuTree& tree);
    void LeaveParent(CMenuItem* child);
    void SetIndex(int32_t index);
};
