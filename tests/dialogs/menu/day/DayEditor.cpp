#include "tests/dialogs/menu/day/DayEditor.h"

#include "resources/resource.h"
#include "tests/support/SoftKeys.h"

#include <gtest/gtest.h>

#include <commctrl.h>

namespace
{

constexpr const wchar_t* kEditItem = L"Edit Item";
constexpr int kMenuKey = 1;

void Choose(HWND list, int place)
{
    LVITEMW item = {};
    item.state = item.stateMask = LVIS_SELECTED | LVIS_FOCUSED;
    EXPECT_TRUE(SendMessageW(list, LVM_SETITEMSTATE, static_cast<WPARAM>(place),
                             reinterpret_cast<LPARAM>(&item)));
}

} // namespace

void CDayEditor::AddMenu(const std::wstring& parent, const std::wstring& name, int icon)
{
    const HWND editItem = OpenSubDialog(parent, ID_ADD_MENU, kEditItem);
    FillEditItem(editItem, name, icon);
    End(editItem, IDOK);
}

void CDayEditor::AddLink(const std::wstring& parent, const std::wstring& link)
{
    const HWND select = OpenSubDialog(parent, ID_ADD_LINK, L"Select Link");
    const CTreeDriver links(GetDlgItem(select, IDC_LINK_TREE));
    EXPECT_NE(nullptr, links.Find(link));
    links.Select(links.Find(link));
    End(select, IDOK);
}

void CDayEditor::AddFile(const std::wstring& parent, const std::wstring& folder,
                         const std::wstring& file)
{
    const HWND select = OpenSubDialog(parent, ID_ADD_FILE, L"Select File");
    const CTreeDriver files(GetDlgItem(select, IDC_FILE_TREE));
    files.Expand(files.Find(folder));
    EXPECT_NE(nullptr, files.Find(folder + L"/" + file));
    files.Select(files.Find(folder + L"/" + file));
    End(select, IDOK);
}

void CDayEditor::Edit(const std::wstring& item, const std::wstring& path, const std::wstring& name,
                      int icon)
{
    const HWND editItem = OpenSubDialog(item, ID_EDIT_ITEM, kEditItem);
    EXPECT_EQ(path, TextOf(GetDlgItem(editItem, IDC_ITEM_PATH)));
    EXPECT_EQ(item.substr(item.rfind(L'/') + 1), TextOf(GetDlgItem(editItem, IDC_ITEM_NAME)));
    FillEditItem(editItem, name, icon);
    End(editItem, IDOK);
}

void CDayEditor::SetOptions(const std::wstring& menu, const std::wstring& title,
                            std::initializer_list<int> clicks)
{
    const HWND options = OpenSubDialog(menu, ID_MENU_OPTIONS, title);
    for (const int control : clicks)
        SendDlgItemMessageW(options, control, BM_CLICK, 0, 0);
    End(options, IDOK);
}

void CDayEditor::MoveUp(const std::wstring& item)
{
    Command(item, ID_MOVE_UP);
}

void CDayEditor::MoveDown(const std::wstring& item)
{
    Command(item, ID_MOVE_DOWN);
}

void CDayEditor::Remove(const std::wstring& item)
{
    Command(item, ID_REMOVE_ITEM);
}

void CDayEditor::LookAtCommands(const std::wstring& item)
{
    Select(item);
    SendMessageW(dialog, WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(SoftKeyMenu(dialog, kMenuKey)),
                 0);
}

void CDayEditor::SwitchBox(const std::wstring& item, UINT box)
{
    const HTREEITEM node = Select(item);
    EXPECT_NE(box, tree.BoxOf(node));
    tree.SetBox(node, box);
}

void CDayEditor::EndSitting()
{
    treeAtEnd = tree.Dump();
    Done();
}

void CDayEditor::OpenAndCancel(const std::wstring& item, UINT command, const std::wstring& title)
{
    End(OpenSubDialog(item, command, title), IDCANCEL);
}

HWND CDayEditor::OpenSubDialog(const std::wstring& item, UINT command, const std::wstring& title)
{
    Select(item);
    PostCommand(dialog, command);
    return run->WaitForDialog(title);
}

void CDayEditor::End(HWND subDialog, UINT command, const std::wstring& backTo)
{
    PostCommand(subDialog, command);
    run->WaitForDialog(backTo);
}

void CDayEditor::ChooseIcon(HWND editItem, int icon)
{
    PostCommand(editItem, IDC_CHANGE_ICON);
    const HWND choice = run->WaitForDialog(L"Choose Icon");
    Choose(GetDlgItem(choice, IDC_ICON_LIST), icon);
    End(choice, IDOK, kEditItem);
}

void CDayEditor::FillEditItem(HWND editItem, const std::wstring& name, int icon)
{
    SetDlgItemTextW(editItem, IDC_ITEM_NAME, name.c_str());
    if (icon != kKeepIcon)
        ChooseIcon(editItem, icon);
}

void CDayEditor::Command(const std::wstring& item, UINT command)
{
    Select(item);
    SendCommand(dialog, command);
}
