#include "menu/ProgramScan.h"

#include <shlobj.h>

#include <vector>

#include "frame/MenuProcess.h"
#include "frame/TavException.h"
#include "include/TavLumenarDialogs.h"
#include "menu/MemoryFailure.h"
#include "menu/MenuPaths.h"
#include "menu/NodeBox.h"
#include "menu/ProgramScanData.h"
#include "platform/os/Folder.h"
#include "platform/os/SystemIcon.h"
#include "platform/os/Text.h"

namespace
{

constexpr size_t kPathBuckets = 10;

bool FindSpecialFolder(int id, std::wstring& path)
{
    wchar_t buffer[MAX_PATH] = {};
    if (!SHGetSpecialFolderPathW(nullptr, buffer, id, FALSE))
        return false;
    path = buffer;
    return true;
}

// Whether the launcher-menu process shows the entry. Once it took too long, nothing more is asked
// and shown in this scan.
bool IsShown(const std::wstring& path)
{
    if (!programs::FitsRequest(path))
        return false;
    const programs::FilterRequest request = programs::MakeRequest(path);
    return AskMenuProcess(TAVLUMENAR_REQUEST_IS_SHOWN, &request, sizeof(request));
}

struct Entry
{
    std::wstring Path;
    bool IsFolder;
};
using EntryList = std::vector<Entry>;

// One filling of a branch.
class CFilling
{
public:
    CFilling(CProgramScan& scan, CTreeViewCtrl tree, const Ratings::CMruSlots* pinned)
        : m_scan(scan), m_tree(tree), m_pinned(pinned)
    {
    }

    // Returns how many nodes it checked.
    uint32_t Run(HTREEITEM parent)
    {
        if (m_scan.ShowIcons)
            m_tree.SetImageList(os::SmallIcons(), TVSIL_NORMAL);
        RefreshMenuProcess();
        m_scan.Paths.clear();
        std::wstring startMenu;
        if (FindSpecialFolder(CSIDL_STARTMENU, startMenu))
            AddEntries(EntriesOf(startMenu, true), parent);
        return m_checked;
    }

private:
    EntryList EntriesOf(const std::wstring& folder, bool recurse)
    {
        EntryList list;
        Collect(folder, list, recurse);
        return list;
    }

    // Flattens the folders of the Start Menu, but not those within its Programs folder. A folder
    // whose own path is too long to be asked about can't hold anything that is shown; this bounds
    // the depth.
    void Collect(const std::wstring& folder, EntryList& list, bool recurse)
    {
        if (!programs::FitsRequest(folder))
            return;
        for (const os::FolderEntry& found : os::ListFolder(folder + L"\\*.*"))
        {
            if (!found.IsFolder && !programs::IsProgramFile(found.Name, os::FoldCase))
                continue;
            std::wstring path = ChildPath(folder, found.Name);
            if (found.IsFolder && recurse)
                Collect(path, list, !os::EqualNoCase(path, m_scan.ProgramsFolder));
            else if (IsShown(path))
                list.push_back({std::move(path), found.IsFolder});
        }
    }

    // Sorted once all are there: the tree would search the place of each among the others.
    void AddEntries(const EntryList& list, HTREEITEM parent)
    {
        for (const Entry& entry : list)
        {
            if (entry.IsFolder)
                AddFolder(entry.Path, parent);
            else
                AddFile(entry.Path, parent);
        }
        if (list.size() > 1)
            m_tree.SortChildren(parent);
    }

    // A folder in which nothing is shown isn't shown either.
    void AddFolder(const std::wstring& path, HTREEITEM parent)
    {
        const EntryList list = EntriesOf(path, false);
        if (list.empty())
            return;
        const HTREEITEM node = Insert(path, parent, kNoBox);
        AddEntries(list, node);
        // A tree with check boxes gives every new node one.
        if (m_pinned)
            m_tree.SetItemState(node, INDEXTOSTATEIMAGEMASK(kNoBox), TVIS_STATEIMAGEMASK);
    }

    void AddFile(const std::wstring& path, HTREEITEM parent)
    {
        const bool isPinned = m_pinned && m_pinned->IsPinned(Ratings::LinkEntryName(path));
        Insert(path, parent, isPinned ? kCheckedBox : kUncheckedBox);
        m_checked += isPinned;
    }

    HTREEITEM Insert(const std::wstring& path, HTREEITEM parent, UINT box)
    {
        std::wstring text = programs::DisplayText(path);
        TVINSERTSTRUCTW insert = {};
        insert.hParent = parent;
        insert.hInsertAfter = TVI_LAST;
        insert.item.mask = TVIF_TEXT | TVIF_PARAM;
        insert.item.pszText = text.data();
        // Keeps its sign in the wider data word.
        insert.item.lParam = m_scan.Add(path);
        if (m_pinned)
        {
            insert.item.mask |= TVIF_STATE;
            insert.item.state = INDEXTOSTATEIMAGEMASK(box);
            insert.item.stateMask = TVIS_STATEIMAGEMASK;
        }
        if (m_scan.ShowIcons)
        {
            insert.item.mask |= TVIF_IMAGE | TVIF_SELECTEDIMAGE;
            insert.item.iImage = os::SmallIconOf(path);
            insert.item.iSelectedImage = insert.item.iImage;
        }
        return m_tree.InsertItem(insert);
    }

    CProgramScan& m_scan;
    CTreeViewCtrl m_tree;
    const Ratings::CMruSlots* m_pinned;
    uint32_t m_checked = 0;
};

} // namespace

CProgramScan::CProgramScan(bool showIcons) : ShowIcons(showIcons), Paths(kPathBuckets)
{
    if (!FindSpecialFolder(CSIDL_PROGRAMS, ProgramsFolder))
        ThrowLastError();
}

uint32_t CProgramScan::Fill(CTreeViewCtrl tree, HTREEITEM parent, const Ratings::CMruSlots* pinned)
{
    return WithMemoryFailure([&] { return CFilling(*this, tree, pinned).Run(parent); });
}

std::wstring CProgramScan::PathOf(int32_t number) const
{
    const auto found = Paths.find(number);
    return found != Paths.end() ? found->second : std::wstring();
}

int32_t CProgramScan::Add(const std::wstring& path)
{
    Paths.emplace(--NextNumber, path);
    return NextNumber;
}
