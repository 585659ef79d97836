// The Enter key on a node: switches its box unless it is held down.
#include "tests/dialogs/menu/support/EditorFixture.h"
#include "tests/support/ImportPatch.h"
#include "tests/support/Wait.h"

namespace
{

// The request for recognising a gesture, as the shell documents it.
struct GestureRequest
{
    DWORD size;
    HWND client;
    POINT down;
    DWORD flags;
};
GestureRequest g_request;
DWORD g_answer;
int g_requests;

DWORD WINAPI AnswerGesture(GestureRequest* request)
{
    g_request = *request;
    ++g_requests;
    return g_answer;
}

class EnterKey : public EditorFixture
{
protected:
    EnterKey()
    {
        g_request = GestureRequest();
        g_answer = 0;
        g_requests = 0;
    }

    // Opens the dialog with the shell's answer to every gesture replaced.
    void OpenAnswering(DWORD answer)
    {
        Open();
        patch = std::make_unique<CImportPatch>(module->Handle(), "aygshell.dll",
                                               "SHRecognizeGesture", AnswerGesture);
        g_answer = answer;
    }
    ~EnterKey() override
    {
        run.reset();
        patch.reset();
    }

    // The notification that the tree sends for a key.
    LRESULT Notify(WORD key)
    {
        NMTVKEYDOWN down = {};
        down.hdr.hwndFrom = tree.Window();
        down.hdr.idFrom = kTreeId;
        down.hdr.code = static_cast<UINT>(TVN_KEYDOWN);
        down.wVKey = key;
        return SendMessageW(dialog, WM_NOTIFY, kTreeId, reinterpret_cast<LPARAM>(&down));
    }

    UINT BoxOf(const std::wstring& path) { return tree.BoxOf(tree.Find(path)); }

    std::unique_ptr<CImportPatch> patch;
};

} // namespace

TEST_F(EnterKey, SwitchesTheSelectedBoxOffAndOn)
{
    OpenAnswering(0);
    Select(L"Programs/Calendar");
    EXPECT_EQ(0, Notify(VK_RETURN));
    EXPECT_EQ(static_cast<UINT>(BoxOff), BoxOf(L"Programs/Calendar"));
    Notify(VK_RETURN);
    EXPECT_EQ(static_cast<UINT>(BoxOn), BoxOf(L"Programs/Calendar"));
}

TEST_F(EnterKey, SwitchesAMenusBoxToo)
{
    OpenAnswering(0);
    Select(L"Tools");
    Notify(VK_RETURN);
    EXPECT_EQ(static_cast<UINT>(BoxOn), BoxOf(L"Tools"));
}

TEST_F(EnterKey, WritesNothingUntilDone)
{
    OpenAnswering(0);
    Select(L"Programs/Calendar");
    const std::wstring before = registry.CustomDump();
    Notify(VK_RETURN);
    EXPECT_EQ(before, registry.CustomDump());
    Done();
    EXPECT_EQ(1u, registry.CustomDword(L"Programs\\Calendar", L"Inactive"));
}

TEST_F(EnterKey, LeavesTheRootWithoutABox)
{
    OpenAnswering(0);
    Select(L"");
    Notify(VK_RETURN);
    EXPECT_EQ(static_cast<UINT>(NoBox), BoxOf(L""));
}

TEST_F(EnterKey, LeavesTheSettingsMenuWithoutABox)
{
    OpenAnswering(0);
    Select(L"Settings");
    Notify(VK_RETURN);
    EXPECT_EQ(static_cast<UINT>(NoBox), BoxOf(L"Settings"));
}

TEST_F(EnterKey, LeavesAMovedSettingsMenusBoxAlone)
{
    OpenAnswering(0);
    Select(L"Settings");
    SendCommand(dialog, CommandMoveUp);
    Notify(VK_RETURN);
    EXPECT_EQ(static_cast<UINT>(BoxOn), BoxOf(L"Settings"));
}

TEST_F(EnterKey, HeldDownSwitchesNothing)
{
    OpenAnswering(1000);
    Select(L"Programs/Calendar");
    EXPECT_EQ(0, Notify(VK_RETURN));
    EXPECT_EQ(1, g_requests);
    EXPECT_EQ(static_cast<UINT>(BoxOn), BoxOf(L"Programs/Calendar"));
}

TEST_F(EnterKey, AnyOtherAnswerOfTheShellIsATap)
{
    OpenAnswering(1001);
    Select(L"Programs/Calendar");
    Notify(VK_RETURN);
    EXPECT_EQ(static_cast<UINT>(BoxOff), BoxOf(L"Programs/Calendar"));
}

TEST_F(EnterKey, AsksTheShellForAGestureAtTheLabelsCentreInTheDialog)
{
    OpenAnswering(0);
    Select(L"Programs");
    Notify(VK_RETURN);
    POINT expected = tree.LabelCentreOnScreen(tree.Find(L"Programs"));
    ScreenToClient(dialog, &expected);
    EXPECT_EQ(sizeof(GestureRequest), g_request.size);
    EXPECT_EQ(dialog, g_request.client);
    EXPECT_EQ(expected.x, g_request.down.x);
    EXPECT_EQ(expected.y, g_request.down.y);
    EXPECT_EQ(1u, g_request.flags);
}

TEST_F(EnterKey, AnyOtherKeySwitchesNothing)
{
    OpenAnswering(0);
    Select(L"Programs/Calendar");
    for (const int key : {VK_DOWN, VK_SPACE, VK_TAB, VK_F1, VK_ESCAPE, 0x41, 0})
        EXPECT_EQ(0, Notify(static_cast<WORD>(key)));
    EXPECT_EQ(0, g_requests);
    EXPECT_EQ(static_cast<UINT>(BoxOn), BoxOf(L"Programs/Calendar"));
}

TEST_F(EnterKey, WithoutASelectionNothingHappens)
{
    OpenAnswering(0);
    tree.Select(nullptr);
    EXPECT_EQ(0, Notify(VK_RETURN));
    EXPECT_FALSE(run->HasEnded());
}

TEST_F(EnterKey, PressedReallySwitchesTheBox)
{
    Open();
    Select(L"Programs/Calendar");
    PressKey(VK_RETURN);
    EXPECT_TRUE(WaitUntil([&] { return BoxOf(L"Programs/Calendar") == BoxOff; }));
    EXPECT_FALSE(run->HasEnded()) << "Enter belongs to the tree, not to Done";
}

TEST_F(EnterKey, ReallyHeldDownSwitchesNothing)
{
    Open();
    Select(L"Programs/Calendar");
    // The display server takes a key as released when it hands the focus over behind the press:
    // that was a tap, and the key has to be held again.
    bool wasHeld = false;
    for (int attempt = 0; attempt < 5 && !wasHeld; ++attempt)
    {
        const UINT before = BoxOf(L"Programs/Calendar");
        HoldKey(VK_RETURN, true);
        // Longer than a hold takes to be recognised.
        WaitUntil([] { return !IsKeyDown(VK_RETURN); }, 1200);
        wasHeld = IsKeyDown(VK_RETURN);
        HoldKey(VK_RETURN, false);
        // Answered when whatever the key started is over.
        SendMessageW(dialog, WM_NULL, 0, 0);
        if (wasHeld)
        {
            EXPECT_EQ(before, BoxOf(L"Programs/Calendar"));
        }
    }
    EXPECT_TRUE(wasHeld);
}
