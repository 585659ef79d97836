#include "tests/dialogs/menu/support/EditorRun.h"

#include "resources/resource.h"

#include <gtest/gtest.h>

CEditorRun::~CEditorRun()
{
    Close();
}

void CEditorRun::Open()
{
    if (!module)
        module = std::make_unique<CModule>();
    run = std::make_unique<CDialogRun>([this](HWND owner)
                                       { return module->CustomizeMenu(owner, 0, 0, 0); });
    dialog = run->WaitForDialog(L"Customize Menu");
    ASSERT_NE(nullptr, dialog);
    tree = CTreeDriver(GetDlgItem(dialog, IDC_MENU_TREE));
    ASSERT_NE(nullptr, tree.Window());
}

HTREEITEM CEditorRun::Select(const std::wstring& path)
{
    const HTREEITEM node = tree.Find(path);
    EXPECT_NE(nullptr, node) << "no such node";
    tree.Select(node);
    return node;
}

void CEditorRun::Done()
{
    EndWith(IDOK, TRUE);
}

void CEditorRun::Cancel()
{
    EndWith(IDCANCEL, FALSE);
}

void CEditorRun::Close()
{
    run.reset();
    module.reset();
}

void CEditorRun::EndWith(UINT command, BOOL result)
{
    PostCommand(dialog, command);
    ASSERT_TRUE(run->WaitForEnd());
    EXPECT_EQ(0, run->ThrownCode());
    EXPECT_EQ(result, run->Result());
}
