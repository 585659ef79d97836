// Requests that SHCreateMenuBar refuses, each with its last error.
#include "tests/platform/aygshell/TestDialog.h"

#include <thread>

#include <gtest/gtest.h>

#include "tests/platform/aygshell/TestMenus.h"

namespace
{

SHMENUBARINFO InfoFor(HWND parent)
{
    SHMENUBARINFO info{};
    info.cbSize = sizeof info;
    info.hwndParent = parent;
    info.dwFlags = SHCMBF_HMENU | SHCMBF_HIDESIPBUTTON;
    info.nToolBarId = IDM_TWO_KEYS;
    info.hInstRes = GetModuleHandleW(nullptr);
    return info;
}

DWORD ErrorOf(SHMENUBARINFO* info)
{
    SetLastError(ERROR_SUCCESS);
    return SHCreateMenuBar(info) ? ERROR_SUCCESS : GetLastError();
}

} // namespace

TEST(MenuBar, AMissingMenuIsRefused)
{
    CTestDialog dialog;
    SHMENUBARINFO info = InfoFor(dialog.Window());
    info.nToolBarId = 999;
    EXPECT_EQ(ErrorOf(&info), static_cast<DWORD>(ERROR_RESOURCE_NAME_NOT_FOUND));
    EXPECT_EQ(SHFindMenuBar(dialog.Window()), nullptr);
}

TEST(MenuBar, AMissingParentIsRefused)
{
    SHMENUBARINFO info = InfoFor(nullptr);
    EXPECT_EQ(ErrorOf(&info), static_cast<DWORD>(ERROR_INVALID_WINDOW_HANDLE));
}

TEST(MenuBar, AnotherThreadsParentIsRefused)
{
    CTestDialog dialog;
    SHMENUBARINFO info = InfoFor(dialog.Window());
    DWORD error = 0;
    std::thread([&] { error = ErrorOf(&info); }).join();
    EXPECT_EQ(error, static_cast<DWORD>(ERROR_WINDOW_OF_OTHER_THREAD));
}

TEST(MenuBar, AWrongSizeIsRefused)
{
    CTestDialog dialog;
    SHMENUBARINFO info = InfoFor(dialog.Window());
    info.cbSize = sizeof info - 4;
    EXPECT_EQ(ErrorOf(&info), static_cast<DWORD>(ERROR_INVALID_PARAMETER));
    EXPECT_EQ(ErrorOf(nullptr), static_cast<DWORD>(ERROR_INVALID_PARAMETER));
}

TEST(MenuBar, AToolbarResourceIsRefused)
{
    CTestDialog dialog;
    SHMENUBARINFO info = InfoFor(dialog.Window());
    info.dwFlags = SHCMBF_HIDESIPBUTTON;
    EXPECT_EQ(ErrorOf(&info), static_cast<DWORD>(ERROR_NOT_SUPPORTED));
}

TEST(MenuBar, AFailureLeavesTheEarlierBar)
{
    CTestDialog dialog;
    ASSERT_TRUE(dialog.CreateBar(IDM_TWO_KEYS));
    const HWND toolbar = SHFindMenuBar(dialog.Window());
    EXPECT_FALSE(dialog.CreateBar(999));
    EXPECT_EQ(SHFindMenuBar(dialog.Window()), toolbar);
    EXPECT_EQ(SendMessageW(toolbar, TB_BUTTONCOUNT, 0, 0), 2);
}
