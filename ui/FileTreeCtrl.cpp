#include "ui/FileTreeCtrl.h"

#include "frame/TavException.h"
#include "platform/os/Folder.h"
#include "platform/os/SystemIcon.h"
#include "platform/os/Text.h"
#include "ui/FileTreeEntries.h"
#include "ui/RedrawPause.h"
#include "ui/WaitCursor.h"

#include <algorithm>
#include <cstdlib>
#include <vector>

namespace
{

// Entries are a letter, which sorts folders first, and the name.
constexpr wchar_t kFolderType = L'd';
constexpr wchar_t kFileType = L'e';

// A folder's node data.
constexpr LPARAM kUnfilled = 0;
constexpr LPARAM kFilled = 1;

// Not asked for yet.
constexpr int kUnknownIcon = -1;

// Images without the system's icons.
constexpr int kFolderImage = 0;
constexpr int kOtherImage = 1;
constexpr int kFileImage = 2;

int ImageOf(wchar_t type)
{
    if (type == kFolderType)
        return kFolderImage;
    return type == kFileType ? kFileImage : kOtherImage;
}

// What a folder holds, in the order in which it is shown.
std::vector<std::wstring> EntriesOf(const std::wstring& folder)
{
    std::vector<std::wstring> entries;
    for (const os::FolderEntry& found : os::ListFolder(filetree::JoinPath(folder, L"*.*")))
        if (found.IsFolder || filetree::IsListedFile(found.Name, found.IsHidden, os::FoldCase))
            entries.push_back((found.IsFolder ? kFolderType : kFileType) + found.Name);
    std::sort(entries.begin(), entries.end(),
              [](const std::wstring& left, const std::wstring& right)
              { return os::CompareNoCase(left, right) < 0; });
    return entries;
}

} // namespace

void CTavFileTreeCtrl::AttachTo(HWND tree)
{
    if (!SubclassWindow(tree))
        ThrowLastError();
    SetImageList(os::SmallIcons(), TVSIL_NORMAL);
    BuildRoot();
}

std::wstring CTavFileTreeCtrl::SelectedPath() const
{
    return FullPath(GetSelectedItem());
}

// A forged notification may name any node: only one of the tree's own is touched.
LRESULT CTavFileTreeCtrl::OnItemExpanding(int /*id*/, NMHDR* header, BOOL& /*handled*/)
{
    if (IsBadReadPtr(header, sizeof(NMTREEVIEWW)))
        return 0;
    const auto* const notification = reinterpret_cast<const NMTREEVIEWW*>(header);
    const HTREEITEM node = notification->itemNew.hItem;
    if (notification->action == TVE_EXPAND && !m_expanding && m_icons.count(node) != 0)
        FillFolder(node);
    return 0;
}

// The tree asks for both images of a node when it first shows or tells them, and keeps the answers.
// The system takes milliseconds for an icon, which in a full folder would add up to half a minute.
LRESULT CTavFileTreeCtrl::OnGetDispInfo(int /*id*/, NMHDR* header, BOOL& /*handled*/)
{
    if (IsBadWritePtr(header, sizeof(NMTVDISPINFOW)))
        return 0;
    TVITEMW& item = reinterpret_cast<NMTVDISPINFOW*>(header)->item;
    const auto found = m_icons.find(item.hItem);
    if (!(item.mask & (TVIF_IMAGE | TVIF_SELECTEDIMAGE)) || found == m_icons.end())
        return 0;
    int& icon = found->second;
    if (icon == kUnknownIcon)
        icon = os::SmallIconOf(FullPath(item.hItem));
    item.iImage = icon;
    item.iSelectedImage = icon;
    item.mask |= TVIF_DI_SETITEM;
    return 0;
}

// No context menu to hold the stylus for.
LRESULT CTavFileTreeCtrl::OnStylusDown(int /*id*/, NMHDR* /*header*/, BOOL& /*handled*/)
{
    return TRUE;
}

void CTavFileTreeCtrl::BuildRoot()
{
    DeleteAllItems();
    m_icons.clear();
    m_baseFolder.clear();
    std::wstring entry(1, kFolderType);
    if (StartPath.empty())
        entry += L'\\';
    else
    {
        std::wstring_view folder;
        std::wstring_view name;
        if (!filetree::SplitPath(StartPath, folder, name))
            ThrowBroken();
        m_baseFolder = folder;
        entry += name;
    }
    ExpandFolder(InsertEntry(TVI_ROOT, entry));
}

HTREEITEM CTavFileTreeCtrl::InsertEntry(HTREEITEM parent, const std::wstring& entry)
{
    std::wstring name = entry.substr(1);
    TVINSERTSTRUCTW insert = {};
    insert.hParent = parent;
    insert.hInsertAfter = TVI_LAST;
    insert.item.mask = TVIF_TEXT | TVIF_IMAGE | TVIF_SELECTEDIMAGE | TVIF_PARAM;
    insert.item.pszText = name.data();
    insert.item.lParam = kUnfilled;
    insert.item.iImage = IconMode ? I_IMAGECALLBACK : ImageOf(entry.front());
    insert.item.iSelectedImage = insert.item.iImage;
    const HTREEITEM node = InsertItem(insert);
    if (!node)
        ThrowOutOfMemory();
    m_icons.emplace(node, kUnknownIcon);
    if (entry.front() == kFolderType)
        InsertPlaceholder(node);
    return node;
}

// The child without a name makes the tree draw a button to expand the folder.
void CTavFileTreeCtrl::InsertPlaceholder(HTREEITEM folder)
{
    wchar_t noText[] = L"";
    TVINSERTSTRUCTW insert = {};
    insert.hParent = folder;
    insert.hInsertAfter = TVI_FIRST;
    insert.item.mask = TVIF_TEXT;
    insert.item.pszText = noText;
    if (!InsertItem(insert))
        ThrowOutOfMemory();
}

void CTavFileTreeCtrl::FillFolder(HTREEITEM node)
{
    if (GetItemData(node) != kUnfilled)
        return;
    const CWaitCursor wait;
    const CRedrawPause pause(*this);
    SetItemData(node, kFilled);
    // Without a node to delete, the tree would delete all.
    if (const HTREEITEM placeholder = GetChildItem(node))
        DeleteItem(placeholder);
    for (const std::wstring& entry : EntriesOf(FullPath(node)))
        InsertEntry(node, entry);
}

void CTavFileTreeCtrl::ExpandFolder(HTREEITEM node)
{
    if (GetItemState(node, TVIS_EXPANDED) & TVIS_EXPANDED)
        return;
    if (!m_expanding)
        FillFolder(node);
    m_expanding = TRUE;
    Expand(node, TVE_EXPAND);
    m_expanding = FALSE;
}

std::wstring CTavFileTreeCtrl::FullPath(HTREEITEM node) const
{
    if (!node || node == TVI_ROOT)
        return std::wstring();
    std::wstring path = TextOf(node);
    while ((node = GetParentItem(node)) != nullptr)
        path = filetree::JoinPath(TextOf(node), path);
    return filetree::JoinPath(m_baseFolder, path);
}

// The tree cuts a text that doesn't fit without a word: one that fills the buffer may go on.
std::wstring CTavFileTreeCtrl::TextOf(HTREEITEM node) const
{
    std::wstring text(MAX_PATH, L'\0');
    for (;;)
    {
        TVITEMW item = {};
        item.mask = TVIF_HANDLE | TVIF_TEXT;
        item.hItem = node;
        item.pszText = text.data();
        item.cchTextMax = static_cast<int>(text.size());
        if (!GetItem(item))
            return std::wstring();
        const size_t length = text.find(L'\0');
        if (length < text.size() - 1)
            return text.substr(0, length);
        text.assign(text.size() * 2, L'\0');
    }
}
