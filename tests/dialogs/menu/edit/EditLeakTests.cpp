// Opening and closing Edit Item and Choose Icon again and again leaves nothing behind.
#include "frame/TavException.h"
#include "include/TavLumenarDialogs.h"
#include "tests/dialogs/menu/edit/EditFixture.h"
#include "tests/support/ImportPatch.h"
#include "tests/support/LeakCounter.h"

namespace
{

constexpr int kWarmUp = 10;
constexpr int kRounds = 200;
constexpr int kFailures = 50;
constexpr int kIcons = 5;

// What the timer works in an open editor; on the dialogs' own thread, since a thread per round
// would cost memory of its own.
struct Script
{
    const wchar_t* Path;
    UINT Command;
    // How Edit Item and Choose Icon end.
    UINT End;
    // Still to be opened: Edit Item from the editor, Choose Icon from the first of those.
    int Edits;
    int Choices;
};
Script g_script;
int g_editsSeen;
int g_choicesSeen;

void WorkEditor(HWND editor)
{
    if (g_script.Edits-- <= 0)
    {
        PostCommand(editor, IDCANCEL);
        return;
    }
    const CTreeDriver tree(GetDlgItem(editor, kTreeId));
    tree.Select(tree.Find(g_script.Path));
    ++g_editsSeen;
    PostCommand(editor, g_script.Command);
}

void WorkEdit(HWND edit)
{
    PostCommand(edit, g_script.Choices-- > 0 ? kChangeId : g_script.End);
}

void WorkChoice(HWND choice)
{
    ++g_choicesSeen;
    PostCommand(choice, g_script.End);
}

void CALLBACK WorkDialog(HWND, UINT, UINT_PTR, DWORD)
{
    const HWND dialog = OpenDialogOf(GetCurrentThreadId());
    if (!dialog)
        return;
    const std::wstring title = TextOf(dialog);
    if (title == L"Customize Menu")
        WorkEditor(dialog);
    else if (title == L"Edit Item")
        WorkEdit(dialog);
    else
        WorkChoice(dialog);
}

// A launcher-menu process on the dialogs' own thread, so that asking it leaves nothing behind.
LRESULT CALLBACK DrawIcon(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message != WM_COPYDATA)
        return DefWindowProcW(window, message, wParam, lParam);
    const auto* const data = reinterpret_cast<const COPYDATASTRUCT*>(lParam);
    const auto* const record = static_cast<const uint32_t*>(data->lpData);
    return record[kNumberField / sizeof(uint32_t)] < 100 + kIcons;
}

HWND CreateProcessWindow()
{
    // Another test of this process may have left its own.
    UnregisterClassW(TAVLUMENAR_MENU_WINDOW_CLASS, nullptr);
    WNDCLASSW type = {};
    type.lpfnWndProc = DrawIcon;
    type.lpszClassName = TAVLUMENAR_MENU_WINDOW_CLASS;
    RegisterClassW(&type);
    return CreateWindowExW(0, TAVLUMENAR_MENU_WINDOW_CLASS, L"", WS_POPUP, 0, 0, 0, 0, nullptr,
                           nullptr, nullptr, nullptr);
}

class EditLeaks : public testing::Test
{
protected:
    EditLeaks()
        : m_process(CreateProcessWindow()),
          m_owner(CreateWindowExW(0, L"Static", L"owner", WS_POPUP | WS_VISIBLE, 0, 0, 100, 100,
                                  nullptr, nullptr, nullptr, nullptr)),
          m_timer(SetTimer(nullptr, 0, USER_TIMER_MINIMUM, WorkDialog))
    {
    }
    ~EditLeaks() override
    {
        KillTimer(nullptr, m_timer);
        DestroyWindow(m_owner);
        DestroyWindow(m_process);
    }

    BOOL Open() { return module.CustomizeMenu(m_owner, 0, 0, 0); }
    // Opens and closes a dialog that often within one editor: Choose Icon within one Edit Item.
    void Run(const Script& script, int rounds, bool isChoice)
    {
        g_script = script;
        g_script.Edits = isChoice ? 1 : rounds;
        g_script.Choices = isChoice ? rounds : 0;
        g_editsSeen = g_choicesSeen = 0;
        EXPECT_FALSE(Open());
        EXPECT_EQ(rounds, isChoice ? g_choicesSeen : g_editsSeen);
    }
    void ExpectNothingLeft(const Script& script, bool isChoice = false)
    {
        Run(script, kWarmUp, isChoice);
        Run(script, kWarmUp, isChoice);
        ExpectNothingLeftBy([&] { Run(script, kRounds, isChoice); });
    }

    // The same for a dialog whose opening fails, with an editor for each. Returns how many failed.
    int ExpectNothingLeftOfFailures(const Script& script)
    {
        int failures = 0;
        const auto fail = [&](int rounds)
        {
            for (int i = 0; i < rounds; ++i, ++failures)
            {
                g_script = script;
                EXPECT_THROW(Open(), CTavException);
            }
        };
        fail(kWarmUp);
        ExpectNothingLeftBy([&] { fail(kFailures); });
        return failures;
    }

    CMenuSandbox registry;
    CModule module;

private:
    HWND m_process;
    HWND m_owner;
    UINT_PTR m_timer;
};

// Refuses the soft keys of every Choose Icon: its own are the sixth of an editor.
int g_bars;
BOOL(WINAPI* g_createBar)(void*);

BOOL WINAPI RefuseSixthBar(void* info)
{
    if (++g_bars % 6 != 0)
        return g_createBar(info);
    SetLastError(ERROR_ACCESS_DENIED);
    return FALSE;
}

HBITMAP WINAPI RefuseSection(HDC, const BITMAPINFO*, UINT, void**, HANDLE, DWORD)
{
    SetLastError(ERROR_NOT_ENOUGH_MEMORY);
    return nullptr;
}

} // namespace

TEST_F(EditLeaks, OpeningEditItemOfALinkTwoHundredTimes)
{
    ExpectNothingLeft({L"Programs/Maps", CommandEdit, IDCANCEL, 0, 0});
}

// Without a name nothing is added.
TEST_F(EditLeaks, OpeningEditItemOfANewMenuTwoHundredTimes)
{
    ExpectNothingLeft({L"Programs", CommandAddMenu, IDOK, 0, 0});
}

TEST_F(EditLeaks, OpeningChooseIconTwoHundredTimes)
{
    ExpectNothingLeft({L"Programs/Maps", CommandEdit, IDCANCEL, 0, 0}, true);
}

TEST_F(EditLeaks, FailingToOpenChooseIconFiftyTimes)
{
    g_createBar = reinterpret_cast<BOOL(WINAPI*)(void*)>(
        *FindImport(module.Handle(), "aygshell.dll", "SHCreateMenuBar"));
    const CImportPatch patch(module.Handle(), "aygshell.dll", "SHCreateMenuBar", RefuseSixthBar);
    g_bars = 0;
    const int failures = ExpectNothingLeftOfFailures({L"My Menu", CommandEdit, IDCANCEL, 1, 1});
    EXPECT_EQ(6 * failures, g_bars);
}

TEST_F(EditLeaks, FailingToDrawThePreviewFiftyTimes)
{
    const CImportPatch patch(module.Handle(), "gdi32.dll", "CreateDIBSection", RefuseSection);
    ExpectNothingLeftOfFailures({L"Programs/Maps", CommandEdit, IDCANCEL, 1, 0});
}
