// System calls that fail while a dialog opens: what leaves the export, and what is left behind.
#include "tests/dialogs/menu/support/EditorFixture.h"
#include "tests/support/ImportPatch.h"

namespace
{

constexpr HRESULT kAccessDenied = static_cast<HRESULT>(0x80070005);

// Calls of a patched function, and which of them fail, from 1; 0 for none, kAll for all.
constexpr int kAll = -1;
int g_calls;
int g_failing;
DWORD g_error;
void* g_original;

bool IsFailingCall()
{
    ++g_calls;
    if (g_failing != kAll && g_calls != g_failing)
        return false;
    SetLastError(g_error);
    return true;
}

BOOL WINAPI FailOneCall(void* info)
{
    if (IsFailingCall())
        return FALSE;
    return reinterpret_cast<BOOL(WINAPI*)(void*)>(g_original)(info);
}

void* WINAPI AllocateNothing(void*, SIZE_T, DWORD, DWORD)
{
    ++g_calls;
    return nullptr;
}

HRSRC WINAPI FindNothing(HMODULE, const wchar_t*, const wchar_t*)
{
    ++g_calls;
    return nullptr;
}

int WINAPI LoadNoString(HINSTANCE, UINT, wchar_t*, int)
{
    ++g_calls;
    return 0;
}

HMENU WINAPI LoadNoMenu(HINSTANCE, const wchar_t*)
{
    ++g_calls;
    SetLastError(ERROR_RESOURCE_NAME_NOT_FOUND);
    return nullptr;
}

class Failing : public EditorFixture
{
protected:
    Failing()
    {
        g_calls = 0;
        g_error = ERROR_ACCESS_DENIED;
        module = std::make_unique<CModule>();
    }
    ~Failing() override
    {
        run.reset();
        patch.reset();
    }

    // Makes one call of a function of the shell fail; the others go through.
    void FailCall(const char* function, int call)
    {
        g_failing = call;
        g_original = *FindImport(module->Handle(), "aygshell.dll", function);
        patch =
            std::make_unique<CImportPatch>(module->Handle(), "aygshell.dll", function, FailOneCall);
    }
    template <class Function>
    void Replace(const char* dll, const char* function, Function replacement)
    {
        patch = std::make_unique<CImportPatch>(module->Handle(), dll, function, replacement);
    }

    // Calls the export and keeps the last error that it leaves.
    void Call()
    {
        run = std::make_unique<CDialogRun>(
            [this](HWND owner)
            {
                const BOOL result = module->CustomizeMenu(owner, 0, 0, 0);
                lastError = GetLastError();
                return result;
            });
    }
    void ExpectCodeThrown(HRESULT code)
    {
        ASSERT_TRUE(run->WaitForEnd());
        EXPECT_FALSE(run->Result());
        EXPECT_EQ(code, run->ThrownCode());
        EXPECT_TRUE(run->OwnerEnabledAtEnd());
        EXPECT_EQ(nullptr, run->InnermostDialog());
    }
    void ExpectFalse()
    {
        ASSERT_TRUE(run->WaitForEnd());
        EXPECT_EQ(FALSE, run->Result());
        EXPECT_TRUE(run->OwnerEnabledAtEnd());
    }
    void ExpectOpens()
    {
        dialog = run->WaitForDialog(L"Customize Menu");
        ASSERT_NE(nullptr, dialog);
        Done();
    }

    DWORD lastError = 0;
    std::unique_ptr<CImportPatch> patch;
};

} // namespace

TEST_F(Failing, TheFirstFullScreenRequestMayFail)
{
    FailCall("SHInitDialog", 1);
    Call();
    ExpectOpens();
    EXPECT_EQ(2, g_calls);
}

TEST_F(Failing, TheDialogsOwnFullScreenRequestMustNotFail)
{
    FailCall("SHInitDialog", 2);
    Call();
    ExpectCodeThrown(kAccessDenied);
}

TEST_F(Failing, TheEmptyBarMayFail)
{
    FailCall("SHCreateMenuBar", 1);
    Call();
    ExpectOpens();
    EXPECT_EQ(2, g_calls);
}

TEST_F(Failing, TheDialogsOwnBarMustNotFail)
{
    FailCall("SHCreateMenuBar", 2);
    Call();
    ExpectCodeThrown(kAccessDenied);
}

TEST_F(Failing, WithoutAnErrorCodeTheExceptionCarriesZero)
{
    g_error = 0;
    FailCall("SHCreateMenuBar", 2);
    Call();
    ASSERT_TRUE(run->WaitForEnd());
    EXPECT_FALSE(run->Result()) << "it was thrown all the same";
    EXPECT_EQ(0, run->ThrownCode());
}

TEST_F(Failing, ANegativeErrorCodeIsCarriedAsItIs)
{
    g_error = 0x80004005;
    FailCall("SHInitDialog", 2);
    Call();
    ExpectCodeThrown(static_cast<HRESULT>(0x80004005));
}

TEST_F(Failing, AMissingMenuResourceIsTheBarsFailure)
{
    patch = std::make_unique<CImportPatch>(GetModuleHandleW(L"aygshell.dll"), "user32.dll",
                                           "LoadMenuW", LoadNoMenu);
    Call();
    ExpectCodeThrown(static_cast<HRESULT>(0x80070000 | ERROR_RESOURCE_NAME_NOT_FOUND));
}

TEST_F(Failing, AnExceptionOfASubDialogLeavesThroughBoth)
{
    // The base and the editor itself make one bar each, then the sub-dialog.
    FailCall("SHCreateMenuBar", 4);
    Call();
    dialog = run->WaitForDialog(L"Customize Menu");
    tree = CTreeDriver(GetDlgItem(dialog, kTreeId));
    Select(L"Programs");
    PostCommand(dialog, CommandOptions);
    ExpectCodeThrown(kAccessDenied);
    EXPECT_FALSE(IsWindow(dialog));
    EXPECT_EQ(4, g_calls);
}

TEST_F(Failing, ASubDialogsFirstRequestsMayFailLikeAnyOthers)
{
    FailCall("SHInitDialog", 3);
    Call();
    dialog = run->WaitForDialog(L"Customize Menu");
    tree = CTreeDriver(GetDlgItem(dialog, kTreeId));
    EXPECT_NE(nullptr, OpenOptions(L"Programs", L"Menu Options ('Programs')"));
}

TEST_F(Failing, WithoutMemoryForTheThunkNothingIsShown)
{
    Replace("kernel32.dll", "VirtualAlloc", AllocateNothing);
    Call();
    ExpectFalse();
    EXPECT_EQ(static_cast<DWORD>(ERROR_OUTOFMEMORY), lastError);
    EXPECT_GT(g_calls, 0);
}

TEST_F(Failing, WithoutItsTemplateNothingIsShown)
{
    Replace("kernel32.dll", "FindResourceW", FindNothing);
    Call();
    ExpectFalse();
    EXPECT_GT(g_calls, 0);
}

TEST_F(Failing, AfterAFailureTheNextCallWorks)
{
    Replace("kernel32.dll", "FindResourceW", FindNothing);
    Call();
    ExpectFalse();
    patch.reset();
    Call();
    ExpectOpens();
}

TEST_F(Failing, WithoutItsStringTheRootHasNoText)
{
    Replace("user32.dll", "LoadStringW", LoadNoString);
    Call();
    dialog = run->WaitForDialog(L"Customize Menu");
    tree = CTreeDriver(GetDlgItem(dialog, kTreeId));
    EXPECT_EQ(L"", tree.TextOf(tree.Find(L"")));
    Done();
}

TEST_F(Failing, WithoutItsMenuThereIsNoContextMenu)
{
    Open();
    Select(L"Programs");
    Replace("user32.dll", "LoadMenuW", LoadNoMenu);
    SendMessageW(dialog, WM_CONTEXTMENU, 0, MAKELPARAM(10, 10));
    EXPECT_EQ(1, g_calls);
    EXPECT_EQ(nullptr, run->OpenPopup());
    Done();
}
