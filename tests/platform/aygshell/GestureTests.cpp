// SHRecognizeGesture: holds of the stylus and of the Action key.
#include "tests/platform/aygshell/TestDialog.h"
#include "tests/support/DialogRun.h"

#include <thread>

#include <gtest/gtest.h>

namespace
{

void SendButton(DWORD flags)
{
    INPUT input{};
    input.type = INPUT_MOUSE;
    input.mi.dwFlags = flags;
    SendInput(1, &input, sizeof input);
}

void SendKey(WORD key, DWORD flags)
{
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = key;
    input.ki.dwFlags = flags;
    SendInput(1, &input, sizeof input);
}

class Gesture : public testing::Test
{
protected:
    Gesture() : dialog({{L"Static", 0, 7, 5, 5, 40, 40}})
    {
        dialog.Open();
        dialog.ParkPointer({50, 50});
    }
    ~Gesture() override
    {
        SendButton(MOUSEEVENTF_LEFTUP);
        SendKey(VK_RETURN, KEYEVENTF_KEYUP);
        dialog.RunPending();
    }

    DWORD Recognise(DWORD flags = SHRG_RETURNCMD)
    {
        SHRGINFO info{sizeof(SHRGINFO), dialog.Window(), {50, 50}, flags};
        const ULONGLONG start = GetTickCount64();
        const DWORD result = SHRecognizeGesture(&info);
        took = GetTickCount64() - start;
        return result;
    }

    CTestDialog dialog;
    ULONGLONG took = 0;
};

} // namespace

TEST_F(Gesture, WrongRequestsAreRefused)
{
    SendButton(MOUSEEVENTF_LEFTDOWN);
    EXPECT_EQ(SHRecognizeGesture(nullptr), 0u);
    SHRGINFO info{sizeof(SHRGINFO) - 4, dialog.Window(), {50, 50}, SHRG_RETURNCMD};
    EXPECT_EQ(SHRecognizeGesture(&info), 0u);
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_INVALID_PARAMETER));
    info = {sizeof(SHRGINFO), nullptr, {50, 50}, SHRG_RETURNCMD};
    EXPECT_EQ(SHRecognizeGesture(&info), 0u);
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_INVALID_WINDOW_HANDLE));
}

TEST_F(Gesture, WithNothingDownThereIsNoGestureAtOnce)
{
    EXPECT_EQ(Recognise(), 0u);
    EXPECT_LT(took, 100u);
}

TEST_F(Gesture, AHeldStylusIsATapAndHold)
{
    SendButton(MOUSEEVENTF_LEFTDOWN);
    EXPECT_EQ(Recognise(), GN_CONTEXTMENU);
    EXPECT_GE(took, 690u);
    EXPECT_EQ(dialog.CountNotify(GN_CONTEXTMENU), 0);
}

TEST_F(Gesture, ALiftedStylusIsNone)
{
    SendButton(MOUSEEVENTF_LEFTDOWN);
    std::thread lift(
        []
        {
            Sleep(200);
            SendButton(MOUSEEVENTF_LEFTUP);
        });
    EXPECT_EQ(Recognise(), 0u);
    EXPECT_LT(took, 650u);
    lift.join();
}

TEST_F(Gesture, AMovedStylusIsNone)
{
    SendButton(MOUSEEVENTF_LEFTDOWN);
    std::thread move(
        []
        {
            Sleep(200);
            SetCursorPos(50 + Scaled(6), 50);
        });
    EXPECT_EQ(Recognise(), 0u);
    EXPECT_LT(took, 650u);
    move.join();
}

TEST_F(Gesture, AHeldActionKeyIsATapAndHold)
{
    // The display server takes a key as released when it hands the focus over behind the press:
    // then the key has to be held again.
    DWORD result = 0;
    bool wasHeld = false;
    for (int attempt = 0; attempt < 5 && !wasHeld; ++attempt)
    {
        SendKey(VK_RETURN, 0);
        result = Recognise();
        wasHeld = IsKeyDown(VK_RETURN);
    }
    EXPECT_TRUE(wasHeld);
    EXPECT_EQ(result, GN_CONTEXTMENU);
    EXPECT_GE(took, 690u);
}

TEST_F(Gesture, AReleasedActionKeyIsNone)
{
    SendKey(VK_RETURN, 0);
    std::thread lift(
        []
        {
            Sleep(200);
            SendKey(VK_RETURN, KEYEVENTF_KEYUP);
        });
    EXPECT_EQ(Recognise(), 0u);
    EXPECT_LT(took, 650u);
    lift.join();
}

TEST_F(Gesture, WithoutReturnCommandTheWindowIsNotified)
{
    SendButton(MOUSEEVENTF_LEFTDOWN);
    Recognise(0);
    EXPECT_EQ(dialog.CountNotify(GN_CONTEXTMENU), 1);
}

TEST_F(Gesture, TheParentIsNotifiedWithThePlaceOnTheScreen)
{
    NMRGINFO seen{};
    dialog.SetHandler(
        [&seen](const LoggedMessage& entry, LRESULT&)
        {
            if (entry.Message == WM_NOTIFY && entry.Code == GN_CONTEXTMENU)
                seen = *reinterpret_cast<const NMRGINFO*>(entry.LParam);
            return false;
        });
    SendButton(MOUSEEVENTF_LEFTDOWN);
    SHRGINFO info{sizeof(SHRGINFO), dialog.Control(7), {3, 4}, SHRG_NOTIFYPARENT};
    EXPECT_EQ(SHRecognizeGesture(&info), GN_CONTEXTMENU);
    POINT expected{3, 4};
    ClientToScreen(dialog.Control(7), &expected);
    EXPECT_EQ(seen.hdr.hwndFrom, dialog.Control(7));
    EXPECT_EQ(seen.hdr.idFrom, 7u);
    EXPECT_EQ(seen.ptAction.x, expected.x);
    EXPECT_EQ(seen.ptAction.y, expected.y);
}
