// The file tree control by itself: start paths, pictures without the system's icons, long names and
// windows that it can't take. What it lists is shown by the tests of Select File.
#include "frame/TavException.h"
#include "platform/Handles.h"
#include "tests/support/DeviceRoot.h"
#include "tests/support/FolderWatch.h"
#include "tests/support/IconWatch.h"
#include "tests/support/TreeDriver.h"
#include "ui/FileTreeCtrl.h"

#include <gtest/gtest.h>

namespace
{

using Lines = std::vector<std::wstring>;

// Sends the tree's notifications back to it, as the control's parent does.
class CReflector : public CWindowImpl<CReflector>
{
public:
    BEGIN_MSG_MAP(CReflector)
        REFLECT_NOTIFICATIONS()
    END_MSG_MAP()
};

HWND CreateTree(HWND parent)
{
    INITCOMMONCONTROLSEX classes = {sizeof(classes), ICC_TREEVIEW_CLASSES};
    InitCommonControlsEx(&classes);
    return CreateWindowExW(0, WC_TREEVIEWW, L"", WS_CHILD | TVS_HASBUTTONS, 0, 0, 200, 200, parent,
                           nullptr, nullptr, nullptr);
}

class FileTreeControl : public testing::Test
{
protected:
    FileTreeControl()
    {
        reflector.SubclassWindow(parent.get());
        device.AddFile(L"\\Windows\\Programs\\calc.exe");
        device.AddFile(L"\\Windows\\about.lnk");
    }

    void Attach(const std::wstring& startPath, BOOL iconMode = FALSE)
    {
        control.StartPath = startPath;
        control.IconMode = iconMode;
        control.AttachTo(tree.Window());
    }
    HRESULT CodeThrownFor(const std::wstring& startPath)
    {
        try
        {
            Attach(startPath);
        }
        catch (const CTavException& exception)
        {
            return exception.Code();
        }
        return S_OK;
    }
    std::wstring PathOf(const std::wstring& node)
    {
        tree.Select(tree.Find(node));
        return control.SelectedPath();
    }
    void Rename(HTREEITEM node, const std::wstring& text)
    {
        TVITEMW item = {};
        item.mask = TVIF_HANDLE | TVIF_TEXT;
        item.hItem = node;
        item.pszText = const_cast<wchar_t*>(text.c_str());
        SendMessageW(tree.Window(), TVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&item));
    }

    CDeviceRoot device;
    CFolderWatch watch{GetModuleHandleW(nullptr)};
    CReflector reflector;
    UniqueWindow parent{CreateWindowExW(0, L"Static", L"", WS_POPUP, 0, 0, 200, 200, nullptr,
                                        nullptr, nullptr, nullptr)};
    CTreeDriver tree{CreateTree(parent.get())};
    CTavFileTreeCtrl control;
};

} // namespace

TEST_F(FileTreeControl, WithoutAStartPathShowsTheRootOfTheFileSystem)
{
    Attach(L"");
    EXPECT_EQ(L"\\", tree.TextOf(tree.Find(L"")));
    EXPECT_EQ(L"\\", PathOf(L""));
    EXPECT_EQ(L"\\Windows", PathOf(L"Windows"));
    EXPECT_EQ(Lines{L"\\*.*"}, CFolderWatch::Patterns());
}

TEST_F(FileTreeControl, WithAStartPathShowsThatFolderByItsName)
{
    Attach(L"\\Windows\\Programs");
    EXPECT_EQ(L"Programs", tree.TextOf(tree.Find(L"")));
    EXPECT_TRUE(tree.IsExpanded(tree.Find(L"")));
    EXPECT_EQ(Lines{L"calc.exe"}, tree.ChildrenOf(L""));
    EXPECT_EQ(Lines{L"\\Windows\\Programs\\*.*"}, CFolderWatch::Patterns());
}

TEST_F(FileTreeControl, JoinsTheStartPathsFolderInFrontOfEveryPath)
{
    Attach(L"\\Windows\\Programs");
    EXPECT_EQ(L"\\Windows\\Programs", PathOf(L""));
    EXPECT_EQ(L"\\Windows\\Programs\\calc.exe", PathOf(L"calc.exe"));
}

TEST_F(FileTreeControl, ListsFoldersBelowTheStartPathByTheirFullPaths)
{
    Attach(L"P:\\Windows");
    tree.Expand(tree.Find(L"Programs"));
    EXPECT_EQ((Lines{L"P:\\Windows\\*.*", L"P:\\Windows\\Programs\\*.*"}),
              CFolderWatch::Patterns());
    EXPECT_EQ(L"P:\\Windows\\Programs\\calc.exe", PathOf(L"Programs/calc.exe"));
}

// Nothing stands before the only backslash, so nothing is joined in front.
TEST_F(FileTreeControl, OfAStartPathInTheRootKeepsTheNameAlone)
{
    Attach(L"\\Windows");
    EXPECT_EQ(L"Windows", PathOf(L""));
    EXPECT_EQ(Lines{L"Windows\\*.*"}, CFolderWatch::Patterns());
}

TEST_F(FileTreeControl, AStartPathThatEndsInABackslashHasARootWithoutAName)
{
    Attach(L"\\Windows\\");
    EXPECT_EQ(L"", tree.TextOf(tree.Find(L"")));
    EXPECT_EQ(L"\\Windows\\about.lnk", PathOf(L"about.lnk"));
}

TEST_F(FileTreeControl, AStartPathWithoutABackslashIsABrokenPrecondition)
{
    EXPECT_EQ(static_cast<HRESULT>(0x84000001), CodeThrownFor(L"Windows"));
    EXPECT_EQ(Lines{}, CFolderWatch::Patterns());
}

TEST_F(FileTreeControl, AStartPathThatIsNotThereShowsItsNameOnly)
{
    Attach(L"\\Windows\\nowhere");
    EXPECT_EQ(L"  nowhere\n", tree.Dump());
    EXPECT_EQ(1, tree.DataOf(tree.Find(L"")));
}

TEST_F(FileTreeControl, WhatIsNoWindowCannotBeTaken)
{
    EXPECT_THROW(control.AttachTo(nullptr), CTavException);
}

TEST_F(FileTreeControl, WhatTheTreeHeldBeforeGoes)
{
    TVINSERTSTRUCTW insert = {};
    insert.item.mask = TVIF_TEXT;
    insert.item.pszText = const_cast<wchar_t*>(L"old");
    SendMessageW(tree.Window(), TVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&insert));
    Attach(L"");
    EXPECT_EQ(L"\\", tree.TextOf(tree.Find(L"")));
    EXPECT_EQ(nullptr, tree.Next(tree.Find(L""), TVGN_NEXT));
}

TEST_F(FileTreeControl, WithoutIconsFoldersHavePictureZeroAndFilesPictureTwo)
{
    const CIconWatch icons(GetModuleHandleW(nullptr));
    Attach(L"\\Windows\\Programs");
    EXPECT_EQ(std::make_pair(0, 0), tree.ImagesOf(tree.Find(L"")));
    EXPECT_EQ(std::make_pair(2, 2), tree.ImagesOf(tree.Find(L"calc.exe")));
    EXPECT_EQ(-1, CIconWatch::IconOf(L"\\Windows\\Programs\\calc.exe"));
}

TEST_F(FileTreeControl, WithIconsNodesShowTheIconsOfTheirFullPaths)
{
    const CIconWatch icons(GetModuleHandleW(nullptr));
    Attach(L"\\Windows\\Programs", TRUE);
    const auto images = tree.ImagesOf(tree.Find(L"calc.exe"));
    const int icon = CIconWatch::IconOf(L"\\Windows\\Programs\\calc.exe");
    EXPECT_NE(-1, icon);
    EXPECT_EQ(std::make_pair(icon, icon), images);
}

TEST_F(FileTreeControl, ANodesIconIsAskedForOnce)
{
    const CIconWatch icons(GetModuleHandleW(nullptr));
    Attach(L"\\Windows\\Programs", TRUE);
    tree.ImagesOf(tree.Find(L"calc.exe"));
    const size_t asked = CIconWatch::Questions();
    tree.ImagesOf(tree.Find(L"calc.exe"));
    EXPECT_EQ(asked, CIconWatch::Questions());
}

TEST_F(FileTreeControl, ForgedQuestionsForPicturesAreNotAnswered)
{
    Attach(L"\\Windows\\Programs", TRUE);
    NMTVDISPINFOW question = {};
    question.hdr.hwndFrom = tree.Window();
    question.hdr.code = static_cast<UINT>(TVN_GETDISPINFOW);
    question.item.mask = TVIF_IMAGE;
    question.item.iImage = -7;
    question.item.hItem = reinterpret_cast<HTREEITEM>(&question);
    SendMessageW(tree.Window(), OCM_NOTIFY, 0, reinterpret_cast<LPARAM>(&question));
    EXPECT_EQ(-7, question.item.iImage);
}

TEST_F(FileTreeControl, TheTreeGetsTheSystemsImageListInBothModes)
{
    Attach(L"");
    EXPECT_NE(nullptr, tree.Images());
}

TEST_F(FileTreeControl, WithNothingSelectedThePathIsEmpty)
{
    Attach(L"");
    tree.Select(nullptr);
    EXPECT_EQ(L"", control.SelectedPath());
}

TEST_F(FileTreeControl, NamesOfAnyLengthAreReadWhole)
{
    Attach(L"");
    const HTREEITEM node = tree.Find(L"Windows");
    tree.Select(node);
    for (const size_t length : {size_t(1), size_t(258), size_t(259), size_t(260), size_t(261),
                                size_t(518), size_t(519), size_t(520), size_t(521), size_t(5000)})
    {
        const std::wstring name(length, L'n');
        Rename(node, name);
        EXPECT_EQ(L"\\" + name, control.SelectedPath()) << length;
    }
}

TEST_F(FileTreeControl, TheTreeOutlivesItsControl)
{
    {
        CTavFileTreeCtrl brief;
        brief.AttachTo(tree.Window());
    }
    const Lines before = CFolderWatch::Patterns();
    tree.Expand(tree.Find(L"Windows"));
    EXPECT_EQ(before, CFolderWatch::Patterns()) << "a plain tree again";
}
