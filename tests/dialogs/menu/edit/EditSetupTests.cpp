// What the dialogs ask of the shell and of the drawing system as they open, and what happens when
// that is refused.
#include "tests/dialogs/menu/edit/EditFixture.h"
#include "tests/support/ShellCalls.h"

namespace
{

constexpr HRESULT kAccessDenied = static_cast<HRESULT>(0x80070005);

// Calls of the shell since the editor opened. A dialog calls each function twice: the first time
// for what all dialogs have, which may fail.
enum ShellCall
{
    EditBase = 1,
    EditOwn,
    ChoiceBase,
    ChoiceOwn,
};

// Bitmaps and lists of images that are refused.
HBITMAP WINAPI RefuseSection(HDC, const BITMAPINFO*, UINT, void**, HANDLE, DWORD)
{
    SetLastError(ERROR_ACCESS_DENIED);
    return nullptr;
}

HIMAGELIST WINAPI RefuseList(int, int, UINT, int, int)
{
    SetLastError(ERROR_ACCESS_DENIED);
    return nullptr;
}

UINT g_listFlags;
int g_initialImages;
int g_growth;
decltype(&ImageList_Create) g_createList;

HIMAGELIST WINAPI RecordList(int width, int height, UINT flags, int initial, int growth)
{
    g_listFlags = flags;
    g_initialImages = initial;
    g_growth = growth;
    return g_createList(width, height, flags, initial, growth);
}

class EditSetup : public EditFixture
{
protected:
    EditSetup()
    {
        Open();
        shell = std::make_unique<CShellCalls>(module->Handle());
    }
    ~EditSetup() override
    {
        run.reset();
        RestoreAll();
    }
    void RestoreAll()
    {
        patches.clear();
        shell.reset();
    }

    template <class Function>
    void Replace(const char* dll, const char* name, Function* replacement)
    {
        patches.push_back(std::make_unique<CImportPatch>(module->Handle(), dll, name, replacement));
    }
    // The same, and keeps the original.
    template <class Function>
    void Replace(const char* dll, const char* name, Function* replacement, Function*& original)
    {
        original = reinterpret_cast<Function*>(*FindImport(module->Handle(), dll, name));
        Replace(dll, name, replacement);
    }

    // Opens the dialogs until one of them throws.
    void ExpectThrownFromEdit(const std::wstring& path)
    {
        Select(path);
        PostCommand(dialog, CommandEdit);
        ExpectThrown(kAccessDenied);
        EXPECT_EQ(nullptr, run->InnermostDialog());
    }
    void ExpectThrownFromChoice()
    {
        OpenEdit(L"My Menu");
        PostCommand(edit, kChangeId);
        ExpectThrown(kAccessDenied);
        EXPECT_FALSE(IsWindow(edit));
    }
    // Opens and closes all of them.
    void ExpectAllOpen()
    {
        OpenEdit(L"My Menu");
        OpenChoice();
        EndChoice(IDOK);
        EndEdit(IDOK);
        Done();
    }

    std::unique_ptr<CShellCalls> shell;
    std::vector<std::unique_ptr<CImportPatch>> patches;
};

} // namespace

TEST_F(EditSetup, EditItemIsFullScreenWithTheInputPanelDownAndItsButtonThere)
{
    OpenEdit(L"My Menu");
    EXPECT_EQ(CShellCalls::OfOneDialog("bar 16 207"), CShellCalls::Asked());
    EndEdit(IDCANCEL);
    OpenEdit(L"Programs/Maps");
    EXPECT_EQ(CShellCalls::OfOneDialog("bar 16 207"), CShellCalls::Asked(4));
}

TEST_F(EditSetup, ChooseIconIsFullScreenWithoutTheInputPanelsButton)
{
    OpenEdit(L"My Menu");
    OpenChoice();
    EXPECT_EQ(CShellCalls::OfOneDialog("bar 20 207"), CShellCalls::Asked(4));
}

TEST_F(EditSetup, TheListOfImagesStartsWith32AndGrowsBy16)
{
    Replace("comctl32.dll", "ImageList_Create", RecordList, g_createList);
    OpenEdit(L"My Menu");
    OpenChoice();
    EXPECT_EQ(32, g_initialImages);
    EXPECT_EQ(16, g_growth);
    EXPECT_EQ(0u, g_listFlags & ILC_MASK);
}

TEST_F(EditSetup, EditItemWithoutItsOwnSetUpThrowsTheSystemsCode)
{
    shell->RefuseInit(EditOwn, ERROR_ACCESS_DENIED);
    ExpectThrownFromEdit(L"My Menu");
}

TEST_F(EditSetup, EditItemWithoutItsSoftKeysThrowsTheSystemsCode)
{
    shell->RefuseBar(EditOwn, ERROR_ACCESS_DENIED);
    ExpectThrownFromEdit(L"Programs/Maps");
}

TEST_F(EditSetup, ChooseIconWithoutItsOwnSetUpThrowsThroughAllThree)
{
    shell->RefuseInit(ChoiceOwn, ERROR_ACCESS_DENIED);
    ExpectThrownFromChoice();
}

TEST_F(EditSetup, ChooseIconWithoutItsSoftKeysThrowsThroughAllThree)
{
    shell->RefuseBar(ChoiceOwn, ERROR_ACCESS_DENIED);
    ExpectThrownFromChoice();
}

TEST_F(EditSetup, WhatAllDialogsHaveMayFailForEditItem)
{
    shell->RefuseInit(EditBase, ERROR_ACCESS_DENIED);
    shell->RefuseBar(EditBase, ERROR_ACCESS_DENIED);
    ExpectAllOpen();
}

TEST_F(EditSetup, WhatAllDialogsHaveMayFailForChooseIcon)
{
    shell->RefuseInit(ChoiceBase, ERROR_ACCESS_DENIED);
    shell->RefuseBar(ChoiceBase, ERROR_ACCESS_DENIED);
    ExpectAllOpen();
}

TEST_F(EditSetup, APreviewWithoutItsBitmapThrowsThroughTheEditor)
{
    Replace("gdi32.dll", "CreateDIBSection", RefuseSection);
    ExpectThrownFromEdit(L"My Menu");
}

TEST_F(EditSetup, APreviewThatLosesItsBitmapBehindChooseIconThrowsThroughAllThree)
{
    OpenEdit(L"My Menu");
    OpenChoice();
    Replace("gdi32.dll", "CreateDIBSection", RefuseSection);
    SetWindowPos(Control(kIconId), nullptr, 0, 0, 12, 14, SWP_NOMOVE | SWP_NOZORDER);
    RedrawWindow(Control(kIconId), nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    PostCommand(choice, IDCANCEL);
    ExpectThrown(kAccessDenied);
    EXPECT_FALSE(IsWindow(choice));
    EXPECT_FALSE(IsWindow(edit));
}

TEST_F(EditSetup, ChooseIconWithoutAListOfImagesThrowsThroughAllThree)
{
    Replace("comctl32.dll", "ImageList_Create", RefuseList);
    ExpectThrownFromChoice();
}

TEST_F(EditSetup, ChooseIconWithoutABitmapThrowsThroughAllThree)
{
    OpenEdit(L"My Menu");
    Replace("gdi32.dll", "CreateDIBSection", RefuseSection);
    PostCommand(edit, kChangeId);
    ExpectThrown(kAccessDenied);
    EXPECT_FALSE(IsWindow(edit));
}

TEST_F(EditSetup, AfterAFailureTheNextCallWorks)
{
    shell->RefuseBar(ChoiceOwn, ERROR_ACCESS_DENIED);
    ExpectThrownFromChoice();
    RestoreAll();
    Open();
    ExpectAllOpen();
}

TEST_F(EditSetup, ADialogThatIsEndedBehindChooseIconEndsWithIt)
{
    OpenEdit(L"My Menu");
    OpenChoice();
    SendCommand(edit, IDCANCEL);
    PostCommand(choice, IDOK);
    EXPECT_EQ(dialog, run->WaitForDialog(L"Customize Menu"));
    EXPECT_FALSE(IsWindow(edit));
    Done();
}
