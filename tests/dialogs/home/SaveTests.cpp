// What "Done" writes: the differences between the boxes and the list as it is then.
#include "tests/dialogs/home/HomeFixture.h"
#include "tests/support/ImportPatch.h"
#include "tests/support/Wait.h"

namespace
{

constexpr const wchar_t* kMutex = L"TavLumenar_GlobalMRU";
constexpr const wchar_t* kSoftware = L"SOFTWARE";

class HomeSave : public HomeFixture
{
protected:
    // "Layout" is left out: reading the list may write it.
    std::wstring State() const
    {
        std::wstring lines;
        const std::wstring all = registry.Dump(kSoftware);
        for (size_t begin = 0; begin < all.size();)
        {
            const size_t end = all.find(L'\n', begin) + 1;
            const std::wstring line = all.substr(begin, end - begin);
            if (line.find(L"|Layout=") == std::wstring::npos)
                lines += line;
            begin = end;
        }
        return lines;
    }
    // A missing value of this name is created with its default by the one who asks for it.
    HomeSave() { registry.SetText(L"SOFTWARE\\Orvane 2\\Tav Lumenar", L"InstallDir", L""); }
};

} // namespace

TEST_F(HomeSave, DoneWritesWhatWasCheckedWithItsKind)
{
    Open();
    Switch(L"Tools/Alarm");
    Switch(L"Programs/Games/Bubbles");
    Switch(L"My Menu/Radio");
    Done();
    EXPECT_EQ(
        (Lines{L"*" + LinkName(L"Programs\\Games\\Bubbles.lnk"), L"*" + MenuName(L"Tools\\Alarm"),
               L"*m:\\" + std::wstring(kCustomMenu) + L"\\User 1\\User 2"}),
        List());
    EXPECT_EQ(3u, Timestamp());
}

TEST_F(HomeSave, DoneUnpinsWhatWasUnchecked)
{
    StoreList({{MenuName(L"Tools"), kPinned}, {LinkName(L"Programs\\Mail.exe"), kPinned | 3}});
    Open();
    Switch(L"Tools");
    Switch(L"Programs/Mail");
    Done();
    EXPECT_EQ((Lines{LinkName(L"Programs\\Mail.exe"), MenuName(L"Tools")}), List());
}

TEST_F(HomeSave, DoneWithoutAChangeWritesNothing)
{
    StoreList({{MenuName(L"Tools"), kPinned}, {LinkName(L"Programs\\Mail.exe"), kPinned}});
    const std::wstring before = State();
    Open();
    Done();
    EXPECT_EQ(Lines{}, DumpDifference(before, State()));
}

TEST_F(HomeSave, ABoxThatWasSwitchedThereAndBackWritesNothing)
{
    StoreList({{MenuName(L"Tools"), kPinned}});
    const std::wstring before = State();
    Open();
    Switch(L"Tools");
    Switch(L"Tools");
    Switch(L"Settings");
    Switch(L"Settings");
    Done();
    EXPECT_EQ(Lines{}, DumpDifference(before, State()));
}

TEST_F(HomeSave, NothingIsWrittenBeforeDone)
{
    StoreList({{MenuName(L"Tools"), kPinned}});
    const std::wstring before = State();
    Open();
    Switch(L"Tools");
    Switch(L"Programs/Mail");
    EXPECT_EQ(Lines{}, DumpDifference(before, State()));
}

TEST_F(HomeSave, CancelWritesNothing)
{
    StoreList({{MenuName(L"Tools"), kPinned}});
    const std::wstring before = State();
    Open();
    Switch(L"Tools");
    Switch(L"Programs/Mail");
    Cancel();
    EXPECT_EQ(Lines{}, DumpDifference(before, State()));
}

TEST_F(HomeSave, ARefusedBoxIsNotWritten)
{
    Open(0);
    PostSwitch(L"Tools");
    ExpectLimitMessage(L"Only 0 items may be pinned");
    Done();
    EXPECT_EQ(Lines{}, List());
    EXPECT_EQ(0u, Timestamp());
}

TEST_F(HomeSave, NodesWithoutABoxAreNeverWritten)
{
    Open();
    const std::wstring folder = start.PathOf(L"Programs\\Games");
    StoreList({{L"l:" + folder, kPinned}});
    Done();
    EXPECT_EQ(Lines{L"*l:" + folder}, List());
    EXPECT_EQ(0u, Timestamp());
}

// The list as it is at "Done".

TEST_F(HomeSave, WhatTheShellPinnedMeanwhileIsUnpinnedWhereItsBoxIsOff)
{
    Open();
    StoreList({{MenuName(L"Tools"), kPinned}, {L"l:\\elsewhere.lnk", kPinned}});
    Switch(L"Settings");
    Done();
    EXPECT_EQ((Lines{L"*l:\\elsewhere.lnk", L"*" + MenuName(L"Settings"), MenuName(L"Tools")}),
              List())
        << "entries that the tree doesn't show stay pinned";
}

TEST_F(HomeSave, WhatTheShellUnpinnedMeanwhileIsPinnedAgain)
{
    StoreList({{MenuName(L"Tools"), kPinned}});
    Open();
    StoreList({{MenuName(L"Tools"), 7}});
    Done();
    EXPECT_EQ(Lines{L"*" + MenuName(L"Tools")}, List());
}

TEST_F(HomeSave, WhatTheShellPinnedMeanwhileAlreadyIsNotWrittenAgain)
{
    Open();
    Switch(L"Tools");
    StoreList({{MenuName(L"Tools"), kPinned}});
    Done();
    EXPECT_EQ(0u, Timestamp());
}

TEST_F(HomeSave, AnItemThatStandsForAShortcutIsPinnedByItsFileEachTime)
{
    registry.AddUserLink(L"User 4", L"Shortcut", 9, L"\\Windows\\s.lnk");
    Open();
    Switch(L"Shortcut");
    Done();
    EXPECT_EQ(Lines{L"*l:\\Windows\\s.lnk"}, List());
    Open();
    EXPECT_EQ(static_cast<UINT>(BoxOff), BoxOf(L"Shortcut"));
    Done();
    EXPECT_EQ(Lines{L"*l:\\Windows\\s.lnk"}, List()) << "an unchecked one is not looked for";
    EXPECT_EQ(1u, Timestamp());
}

TEST_F(HomeSave, WhatWasPinnedIsCheckedWhenTheDialogOpensAgain)
{
    Open();
    Switch(L"Programs/Games/Bubbles");
    Switch(L"Settings/Clock");
    Done();
    Open();
    EXPECT_EQ(static_cast<UINT>(BoxOn), BoxOf(L"Programs/Games/Bubbles"));
    EXPECT_EQ(static_cast<UINT>(BoxOn), BoxOf(L"Settings/Clock"));
    EXPECT_TRUE(IsBold(L"Settings"));
}

// The list's mutex.

namespace
{

// Which of the creations of the mutex fail: bit n for the nth.
unsigned g_refused;
unsigned g_asked;
decltype(&CreateMutexW) g_createMutex;

HANDLE WINAPI CreateSomeMutexes(SECURITY_ATTRIBUTES* security, BOOL owned, const wchar_t* name)
{
    const unsigned bit = 1u << g_asked++;
    if (g_refused & bit)
    {
        SetLastError(ERROR_INVALID_HANDLE);
        return nullptr;
    }
    return g_createMutex(security, owned, name);
}

class HomeMutex : public HomeSave
{
protected:
    ~HomeMutex() override
    {
        run.reset();
        m_patch.reset();
    }
    void Refuse(unsigned which)
    {
        if (!module)
            module = std::make_unique<CModule>();
        g_asked = 0;
        g_refused = which;
        g_createMutex = CreateMutexW;
        m_patch = std::make_unique<CImportPatch>(module->Handle(), "kernel32.dll", "CreateMutexW",
                                                 CreateSomeMutexes);
    }

private:
    std::unique_ptr<CImportPatch> m_patch;
};

} // namespace

TEST_F(HomeMutex, WithoutItTheDialogOpensWithNothingChecked)
{
    StoreList({{MenuName(L"Tools"), kPinned}});
    Refuse(1);
    Open();
    EXPECT_EQ(static_cast<UINT>(BoxOff), BoxOf(L"Tools"));
}

TEST_F(HomeMutex, AFailedWaitSkipsThatOneEntry)
{
    Open();
    Switch(L"Settings");
    Switch(L"Tools");
    Switch(L"My Menu");
    // Reading the list, Settings, Tools, My Menu.
    Refuse(4);
    Done();
    EXPECT_EQ(
        (Lines{L"*" + MenuName(L"Settings"), L"*m:\\" + std::wstring(kCustomMenu) + L"\\User 1"}),
        List());
}

TEST_F(HomeMutex, NeverToBeHadWritesNothingAndDoneIsStillTrue)
{
    StoreList({{MenuName(L"Tools"), kPinned}});
    const std::wstring before = State();
    Open();
    Switch(L"Tools");
    Switch(L"Settings");
    Refuse(0xFFFFFFFF);
    Done();
    EXPECT_EQ(Lines{}, DumpDifference(before, State()));
}

TEST_F(HomeMutex, HeldByAnotherIsWaitedForAndThenUsed)
{
    Open();
    Switch(L"Tools");
    const HANDLE mutex = CreateMutexW(nullptr, TRUE, kMutex);
    ASSERT_NE(nullptr, mutex);
    PostCommand(dialog, IDOK);
    EXPECT_FALSE(WaitUntil([&] { return run->HasEnded(); }, 300));
    EXPECT_EQ(Lines{}, List());
    ReleaseMutex(mutex);
    ASSERT_TRUE(run->WaitForEnd());
    EXPECT_EQ(TRUE, run->Result());
    EXPECT_EQ(Lines{L"*" + MenuName(L"Tools")}, List());
    CloseHandle(mutex);
}
