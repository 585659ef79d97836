// Which messages the editor keeps for itself and which ones its base sees as well. Asked of the
// message map alone: through a window the difference can't be seen.
#include "dialogs/menu/CustomizeMenuDlg.h"

#include <gtest/gtest.h>

namespace
{

bool IsTaken(CCustomizeMenuDlg& dialog, UINT message, WPARAM wParam)
{
    LRESULT result = 0;
    return dialog.ProcessWindowMessage(nullptr, message, wParam, 0, result, 0) != FALSE;
}

} // namespace

TEST(EditorMessages, AnActivationGoesOnToTheBase)
{
    CCustomizeMenuDlg dialog;
    EXPECT_FALSE(IsTaken(dialog, WM_ACTIVATE, WA_ACTIVE));
    EXPECT_FALSE(IsTaken(dialog, WM_ACTIVATE, WA_CLICKACTIVE));
    dialog.Ended = TRUE;
    EXPECT_FALSE(IsTaken(dialog, WM_ACTIVATE, WA_INACTIVE));
}

TEST(EditorMessages, WhatNobodyKnowsIsLeftToTheSystem)
{
    CCustomizeMenuDlg dialog;
    for (const UINT message : {WM_NULL, WM_SIZE, WM_CLOSE, WM_USER})
        EXPECT_FALSE(IsTaken(dialog, static_cast<UINT>(message), 0));
    EXPECT_FALSE(IsTaken(dialog, WM_COMMAND, 12345));
}
