// The lock on the global list between processes: nothing is lost, nobody waits for the dead.
#include "menu/GlobalMruLock.h"
#include "menu/MenuKeys.h"
#include "menu/Rating.h"
#include "tests/menu/support/RatingFixture.h"
#include "tests/support/ChildProcess.h"
#include "tests/support/ImportPatch.h"

namespace
{

constexpr const wchar_t* kList = L"GlobalMRUList";
constexpr const wchar_t* kMutexName = L"TavLumenar_GlobalMRU";
constexpr DWORD kPatience = 30000;
constexpr int kRounds = 1000;

// Arguments of a child: the sandbox's key and a name, with a bar between them.
std::wstring FirstPart(const std::wstring& argument)
{
    return argument.substr(0, argument.find(L'|'));
}

std::wstring SecondPart(const std::wstring& argument)
{
    return argument.substr(argument.find(L'|') + 1);
}

// Pins and unpins an entry of its own again and again. Returns 0 when every call succeeded.
CHILD_ENTRY(PinOften)
{
    if (!JoinRegistrySandbox(HKEY_LOCAL_MACHINE, FirstPart(argument)))
        return 1;
    for (int round = 0; round < kRounds; ++round)
        if (!Ratings::SetGlobalPinned(round % 2 == 0, SecondPart(argument),
                                      Ratings::TargetKind::Link, INFINITE))
            return 2;
    return 0;
}

// Which of its registry writes a process doesn't survive.
int g_writesToLive = 0;

LONG WINAPI DieInsteadOfWriting(HKEY key, const wchar_t* name, DWORD /*reserved*/, DWORD type,
                                const BYTE* data, DWORD size)
{
    if (--g_writesToLive < 0)
        TerminateProcess(GetCurrentProcess(), 0);
    return RegSetKeyValueW(key, nullptr, name, type, data, size);
}

// Pins "\\new" and dies before the write of the given number. Returns 1 if it lives.
CHILD_ENTRY(DieAtWrite)
{
    if (!JoinRegistrySandbox(HKEY_LOCAL_MACHINE, FirstPart(argument)))
        return 1;
    g_writesToLive = std::stoi(SecondPart(argument));
    const CImportPatch patch(GetModuleHandleW(nullptr), "advapi32.dll", "RegSetValueExW",
                             DieInsteadOfWriting);
    Ratings::SetGlobalPinned(true, L"\\new", Ratings::TargetKind::Link, INFINITE);
    return 1;
}

// Takes the lock, says so by an event of the given name, and keeps it until it is ended.
CHILD_ENTRY(HoldTheLock)
{
    const Ratings::CGlobalMruLock lock(INFINITE);
    const UniqueKernelHandle taken(OpenEventW(EVENT_MODIFY_STATE, FALSE, argument.c_str()));
    if (!lock.IsHeld() || !taken)
        return 1;
    SetEvent(taken.get());
    WaitForSingleObject(GetCurrentProcess(), kPatience);
    return 0;
}

class GlobalMruProcess : public RatingTest
{
};

// A process that holds the lock for as long as the object lives, or until it is killed.
class CHolder
{
public:
    CHolder()
        : m_eventName(L"TavHolder" + std::to_wstring(GetCurrentProcessId())),
          m_taken(CreateEventW(nullptr, TRUE, FALSE, m_eventName.c_str())),
          m_process(L"HoldTheLock", m_eventName)
    {
        EXPECT_EQ(WAIT_OBJECT_0, WaitForSingleObject(m_taken.get(), kPatience));
    }
    void Kill() { m_process.Kill(); }

private:
    std::wstring m_eventName;
    UniqueKernelHandle m_taken;
    CChildProcess m_process;
};

TEST_F(GlobalMruProcess, FourProcessesThatPinAThousandTimesEachLoseNothing)
{
    {
        CChildProcess a(L"PinOften", m_hive.BackingPath() + L"|\\a");
        CChildProcess b(L"PinOften", m_hive.BackingPath() + L"|\\b");
        CChildProcess c(L"PinOften", m_hive.BackingPath() + L"|\\c");
        CChildProcess d(L"PinOften", m_hive.BackingPath() + L"|\\d");
        for (const CChildProcess* const child : {&a, &b, &c, &d})
        {
            EXPECT_TRUE(child->WaitForEnd(kPatience));
            EXPECT_EQ(0u, child->ExitCode());
        }
    }
    EXPECT_EQ(4u * kRounds, Dword(RatingsKey(kList), L"Timestamp"));
    // Each ended with an unpin; all four entries are there, once each.
    const std::wstring names = StoredNames(kList);
    for (const wchar_t* const name : {L"l:\\a", L"l:\\b", L"l:\\c", L"l:\\d"})
        EXPECT_NE(std::wstring::npos, names.find(name));
    EXPECT_EQ(19u, names.size());
    EXPECT_EQ(L"", PinnedNames(kList));
}

TEST_F(GlobalMruProcess, AProcessKilledInsideItsTurnStopsNobody)
{
    // Keeps the mutex alive, so that it is abandoned and not made anew.
    const UniqueKernelHandle mutex(CreateMutexW(nullptr, FALSE, kMutexName));
    ASSERT_TRUE(mutex);
    StoreList(kList, Entries(3, 1));
    CHolder holder;
    EXPECT_FALSE(SetGlobalPinned(true, L"\\2", Ratings::TargetKind::Link, 0));
    holder.Kill();
    EXPECT_TRUE(SetGlobalPinned(true, L"\\2", Ratings::TargetKind::Link, kPatience));
    EXPECT_EQ(L"l:\\0 l:\\2", PinnedNames(kList));
    EXPECT_TRUE(SetGlobalPinned(false, L"\\2", Ratings::TargetKind::Link, 0))
        << "released again after the abandoned turn";
}

TEST_F(GlobalMruProcess, ReadingGoesOnAfterAKilledHolderToo)
{
    const UniqueKernelHandle mutex(CreateMutexW(nullptr, FALSE, kMutexName));
    StoreList(kList, Entries(3, 1));
    CHolder().Kill();
    Ratings::CMruSlots slots;
    EXPECT_TRUE(ReadGlobalMru(slots, 3));
    EXPECT_EQ(3u, slots.Names.size());
}

TEST_F(GlobalMruProcess, AProcessThatDiesAtAnyWriteOfItsSaveLeavesTheOldList)
{
    const UniqueKernelHandle mutex(CreateMutexW(nullptr, FALSE, kMutexName));
    // The counter, the new entry's name, the list.
    for (const wchar_t* const write : {L"0", L"1", L"2"})
    {
        StoreList(kList, Entries(3, 1));
        const CChildProcess child(L"DieAtWrite", m_hive.BackingPath() + L"|" + write);
        ASSERT_TRUE(child.WaitForEnd(kPatience));
        EXPECT_EQ(0u, child.ExitCode()) << write;
        EXPECT_EQ(L"l:\\0 l:\\1 l:\\2", StoredNames(kList)) << write;
    }
    EXPECT_TRUE(SetGlobalPinned(true, L"\\other", Ratings::TargetKind::Link, kPatience));
    EXPECT_EQ(L"l:\\0 l:\\other l:\\1 l:\\2", StoredNames(kList));
}

TEST_F(GlobalMruProcess, PinningGivesUpAfterItsTimeoutAndChangesNothing)
{
    StoreList(kList, Entries(3, 1));
    const CHolder holder;
    const std::wstring before = Dump();
    const DWORD begin = GetTickCount();
    EXPECT_FALSE(SetGlobalPinned(true, L"\\2", Ratings::TargetKind::Link, 200));
    const DWORD waited = GetTickCount() - begin;
    EXPECT_GE(waited, 150u);
    EXPECT_LT(waited, 10000u);
    EXPECT_EQ(before, Dump());
}

TEST_F(GlobalMruProcess, ANameTakenByAnotherKindOfObjectGivesFalse)
{
    const UniqueKernelHandle squatter(CreateEventW(nullptr, TRUE, TRUE, kMutexName));
    ASSERT_TRUE(squatter);
    StoreList(kList, Entries(3, 1));
    const std::wstring before = Dump();
    EXPECT_FALSE(SetGlobalPinned(true, L"\\2", Ratings::TargetKind::Link, INFINITE));
    Ratings::CMruSlots slots;
    EXPECT_FALSE(ReadGlobalMru(slots, 3));
    EXPECT_EQ(before, Dump());
}

TEST_F(GlobalMruProcess, TheLockIsReleasedAfterEachOperation)
{
    // Keeps the mutex alive: what this thread still held, no other process could take.
    const UniqueKernelHandle mutex(CreateMutexW(nullptr, FALSE, kMutexName));
    SetGlobalPinned(true, L"\\a", Ratings::TargetKind::Link, INFINITE);
    CHolder().Kill();
    Ratings::CMruSlots slots;
    ReadGlobalMru(slots, 3);
    CHolder().Kill();
}

} // namespace
