// CTavFileTreeCtrl: a browser of the device's folders and launchable files in a tree view. Folders
// are listed the first time they are expanded.
#pragma once

#include <atlctrls.h>
#include <aygshell.h>

#include <string>
#include <unordered_map>

// The control's parent sends its notifications back to it (REFLECT_NOTIFICATIONS). Nodes are named
// by file and folder names; a folder's data are 0 until it is filled, and it has a child without a
// name till then.
class CTavFileTreeCtrl : public CWindowImpl<CTavFileTreeCtrl, CTreeViewCtrl>
{
public:
    BEGIN_MSG_MAP(CTavFileTreeCtrl)
        if (uMsg == OCM_NOTIFY && IsBadReadPtr(reinterpret_cast<void*>(lParam), sizeof(NMHDR)))
            return FALSE;
        REFLECTED_NOTIFY_CODE_HANDLER(static_cast<UINT>(TVN_ITEMEXPANDINGW), OnItemExpanding)
        REFLECTED_NOTIFY_CODE_HANDLER(static_cast<UINT>(TVN_GETDISPINFOW), OnGetDispInfo)
        REFLECTED_NOTIFY_CODE_HANDLER(NM_STYLUSDOWN, OnStylusDown)
    END_MSG_MAP()

    // Takes the messages of an existing tree view, gives it the system's small icons and shows the
    // root, expanded. Throws CTavException: 0x84000001 for a start path without a backslash,
    // 0x8007000E when a node can't be inserted, the system's error when the window can't be taken.
    virtual void AttachTo(HWND tree);

    // The full path of the selected node; empty when none is selected.
    std::wstring SelectedPath() const;

    // To be set before AttachTo: the folder to show, empty for the root of the file system, and
    // whether nodes show the icons that the system has for them.
    std::wstring StartPath;
    BOOL IconMode = FALSE;

private:
    LRESULT OnItemExpanding(int id, NMHDR* header, BOOL& handled);
    LRESULT OnGetDispInfo(int id, NMHDR* header, BOOL& handled);
    LRESULT OnStylusDown(int id, NMHDR* header, BOOL& handled);

    void BuildRoot();
    // `entry` is its type and its name.
    HTREEITEM InsertEntry(HTREEITEM parent, const std::wstring& entry);
    void InsertPlaceholder(HTREEITEM folder);
    void FillFolder(HTREEITEM node);
    void ExpandFolder(HTREEITEM node);

    std::wstring FullPath(HTREEITEM node) const;
    std::wstring TextOf(HTREEITEM node) const;

    // The folder that contains the root node's entry.
    std::wstring m_baseFolder;
    // All nodes with a name, and their icons as far as they are known. Asking the tree whether it
    // has a node takes the longer the more there are.
    std::unordered_map<HTREEITEM, int> m_icons;
    // The control itself expands a node, which it has filled.
    BOOL m_expanding = FALSE;
};
