// What the dialogs ask of the shell, and what a refusal does to them.
#include "tests/support/ImportPatch.h"
#include "tests/ui/DialogFixture.h"

#include <string>
#include <vector>

namespace
{

// What was asked for, in order: "bar FLAGS MENU" or "init FLAGS".
std::vector<std::string> g_asked;
bool g_formsAreRight;
DWORD g_error;

BOOL WINAPI RefuseBar(SHMENUBARINFO* info)
{
    g_asked.push_back("bar " + std::to_string(info->dwFlags) + " " +
                      std::to_string(info->nToolBarId));
    g_formsAreRight = g_formsAreRight && info->cbSize == sizeof(SHMENUBARINFO) &&
                      IsWindow(info->hwndParent) && info->hInstRes == ModuleInstance();
    SetLastError(g_error);
    return FALSE;
}

BOOL WINAPI RefuseInit(SHINITDLGINFO* info)
{
    g_asked.push_back("init " + std::to_string(info->dwFlags));
    g_formsAreRight = g_formsAreRight && info->dwMask == SHIDIM_FLAGS && IsWindow(info->hDlg);
    SetLastError(g_error);
    return FALSE;
}

class ShellDialog : public DialogFixture
{
protected:
    ShellDialog()
    {
        g_asked.clear();
        g_formsAreRight = true;
        g_error = 0;
    }

    HRESULT CodeThrownBy(void (*call)(HWND), DWORD error)
    {
        g_error = error;
        try
        {
            call(owner.get());
        }
        catch (const CTavException& exception)
        {
            return exception.Code();
        }
        ADD_FAILURE() << "nothing was thrown";
        return S_OK;
    }

    CImportPatch bar{GetModuleHandleW(nullptr), "aygshell.dll", "SHCreateMenuBar", RefuseBar};
    CImportPatch init{GetModuleHandleW(nullptr), "aygshell.dll", "SHInitDialog", RefuseInit};
};

void MakeBar(HWND window)
{
    CreateMenuBar(window, IDR_DONE_CANCEL, 0x14);
}

void MakeFullScreen(HWND window)
{
    InitShellDialog(window, 12);
}

} // namespace

TEST_F(ShellDialog, TheBaseAsksForAnEmptyBarThenForTheFullScreenAndToleratesRefusals)
{
    CTestDialog dialog;
    EXPECT_EQ(IDOK, Run(dialog, [](HWND) {}));
    EXPECT_EQ((std::vector<std::string>{"bar 1 0", "init 13"}), g_asked);
    EXPECT_TRUE(g_formsAreRight);
}

TEST_F(ShellDialog, ADialogsOwnBarNamesItsMenuAndFlags)
{
    CodeThrownBy(MakeBar, 5);
    EXPECT_EQ((std::vector<std::string>{"bar 20 207"}), g_asked);
    EXPECT_TRUE(g_formsAreRight);
}

TEST_F(ShellDialog, ARefusedBarThrowsTheLastError)
{
    EXPECT_EQ(static_cast<HRESULT>(0x80070005), CodeThrownBy(MakeBar, 5));
    EXPECT_EQ(static_cast<HRESULT>(0x80070578), CodeThrownBy(MakeBar, 1400));
}

TEST_F(ShellDialog, ARefusedFullScreenThrowsTheLastError)
{
    EXPECT_EQ(static_cast<HRESULT>(0x80070005), CodeThrownBy(MakeFullScreen, 5));
}

TEST_F(ShellDialog, ARefusalWithoutAnErrorThrowsZero)
{
    EXPECT_EQ(S_OK, CodeThrownBy(MakeBar, 0));
    EXPECT_EQ(S_OK, CodeThrownBy(MakeFullScreen, 0));
}

TEST_F(ShellDialog, ANegativeErrorIsThrownAsItIs)
{
    EXPECT_EQ(static_cast<HRESULT>(0x8000FFFF), CodeThrownBy(MakeBar, 0x8000FFFF));
    EXPECT_EQ(-1, CodeThrownBy(MakeFullScreen, 0xFFFFFFFF));
}

TEST_F(ShellDialog, OnlyTheLowWordOfAnErrorCounts)
{
    EXPECT_EQ(static_cast<HRESULT>(0x80070005), CodeThrownBy(MakeBar, 0x12340005));
}

TEST_F(ShellDialog, ARefusalInADialogsOwnStartUpLeavesItsRun)
{
    CTestDialog dialog;
    dialog.onInit = MakeBar;
    g_error = 5;
    HRESULT code = S_OK;
    try
    {
        dialog.RunModal(owner.get());
    }
    catch (const CTavException& exception)
    {
        code = exception.Code();
    }
    EXPECT_EQ(static_cast<HRESULT>(0x80070005), code);
    EXPECT_TRUE(IsWindowEnabled(owner.get()));
}
