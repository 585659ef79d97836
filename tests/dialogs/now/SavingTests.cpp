// What "Done" writes, and what it leaves alone. Writes and flushes are counted where the module
// calls the system.
#include "tests/dialogs/now/NowFixture.h"
#include "tests/support/ImportPatch.h"

#include <atomic>

namespace
{

std::atomic<int> g_written;
std::atomic<int> g_flushed;
std::atomic<bool> g_refusesToWrite;

LSTATUS WINAPI CountWrite(HKEY key, const wchar_t* name, DWORD reserved, DWORD type,
                          const BYTE* data, DWORD size)
{
    ++g_written;
    return g_refusesToWrite ? ERROR_ACCESS_DENIED
                            : RegSetValueExW(key, name, reserved, type, data, size);
}

LSTATUS WINAPI CountFlush(HKEY key)
{
    ++g_flushed;
    return RegFlushKey(key);
}

class NowSaving : public NowFixture
{
protected:
    NowSaving()
    {
        g_written = 0;
        g_flushed = 0;
        g_refusesToWrite = false;
        module = std::make_unique<CModule>();
        m_write = std::make_unique<CImportPatch>(module->Handle(), "advapi32.dll", "RegSetValueExW",
                                                 CountWrite);
        m_flush = std::make_unique<CImportPatch>(module->Handle(), "advapi32.dll", "RegFlushKey",
                                                 CountFlush);
    }
    ~NowSaving() override
    {
        run.reset();
        m_write.reset();
        m_flush.reset();
    }

    void ExpectCalls(int written, int flushed)
    {
        EXPECT_EQ(written, g_written);
        EXPECT_EQ(flushed, g_flushed);
    }

private:
    std::unique_ptr<CImportPatch> m_write;
    std::unique_ptr<CImportPatch> m_flush;
};

} // namespace

TEST_F(NowSaving, ACheckedBoxWritesZero)
{
    registry.Add(L"A", L"a", kEmail, 1);
    Open();
    Check(L"a (email)", true);
    Done();
    EXPECT_EQ(0u, registry.Inactive(L"A"));
    ExpectCalls(1, 1);
}

TEST_F(NowSaving, AnEmptyBoxWritesOne)
{
    registry.Add(L"A", L"a", kEmail, 0);
    Open();
    Check(L"a (email)", false);
    Done();
    EXPECT_EQ(1u, registry.Inactive(L"A"));
    ExpectCalls(1, 1);
}

TEST_F(NowSaving, WithoutInactiveAnEmptyBoxWritesNothing)
{
    registry.Add(L"A", L"a", kEmail);
    const std::wstring before = registry.DumpNow();
    Open();
    Done();
    EXPECT_EQ(before, registry.DumpNow());
    EXPECT_FALSE(registry.HasInactive(L"A"));
    ExpectCalls(0, 0);
}

TEST_F(NowSaving, WithoutInactiveACheckedBoxWritesZero)
{
    registry.Add(L"A", L"a", kEmail);
    Open();
    Check(L"a (email)", true);
    Done();
    EXPECT_EQ(0u, registry.Inactive(L"A"));
    ExpectCalls(1, 1);
}

TEST_F(NowSaving, AnyOtherNumberStaysAsLongAsItsBoxIsEmpty)
{
    registry.Add(L"A", L"a", kEmail, 5);
    Open();
    Done();
    EXPECT_EQ(5u, registry.Inactive(L"A"));
    ExpectCalls(0, 0);
}

TEST_F(NowSaving, OnlyWhatChangedIsWrittenAndFlushed)
{
    registry.Add(L"A", L"a", kCalendar, 0);
    registry.Add(L"B", L"b", kEmail, 1);
    registry.Add(L"C", L"c", kWeather, 0);
    registry.Add(L"D", L"d", kProfile);
    Open();
    Check(L"b (email)", true);
    Check(L"c (weather)", false);
    Done();
    EXPECT_EQ(0u, registry.Inactive(L"A"));
    EXPECT_EQ(0u, registry.Inactive(L"B"));
    EXPECT_EQ(1u, registry.Inactive(L"C"));
    EXPECT_FALSE(registry.HasInactive(L"D"));
    ExpectCalls(2, 2);
}

TEST_F(NowSaving, ABoxThatIsBackWhereItWasWritesNothing)
{
    registry.Add(L"A", L"a", kEmail, 0);
    Open();
    Check(L"a (email)", false);
    Check(L"a (email)", true);
    Done();
    ExpectCalls(0, 0);
}

TEST_F(NowSaving, WhatIsStoredNowCountsNotWhatWasRead)
{
    registry.Add(L"A", L"a", kEmail, 0);
    registry.Add(L"B", L"b", kEmail, 0);
    Open();
    registry.Set(L"A", L"Inactive", 1);
    Check(L"b (email)", false);
    registry.Set(L"B", L"Inactive", 1);
    Done();
    EXPECT_EQ(0u, registry.Inactive(L"A"));
    EXPECT_EQ(1u, registry.Inactive(L"B"));
    ExpectCalls(1, 1);
}

TEST_F(NowSaving, CancelWritesNothing)
{
    registry.Add(L"A", L"a", kEmail, 1);
    const std::wstring before = registry.DumpNow();
    Open();
    Check(L"a (email)", true);
    Cancel();
    EXPECT_EQ(before, registry.DumpNow());
    ExpectCalls(0, 0);
}

TEST_F(NowSaving, SortedRowsWriteToTheirOwnKeys)
{
    registry.Add(L"1", L"d", kEmail, 1);
    registry.Add(L"2", L"b", kEmail, 1);
    registry.Add(L"3", L"c", kEmail, 1);
    registry.Add(L"4", L"a", kEmail, 1);
    Open();
    Check(L"b (email)", true);
    Check(L"d (email)", true);
    Done();
    EXPECT_EQ(0u, registry.Inactive(L"1"));
    EXPECT_EQ(0u, registry.Inactive(L"2"));
    EXPECT_EQ(1u, registry.Inactive(L"3"));
    EXPECT_EQ(1u, registry.Inactive(L"4"));
}

TEST_F(NowSaving, OtherValuesStayAsTheyAre)
{
    registry.Add(L"A", L"a", kEmail, 1);
    registry.Set(L"A", L"Mine", L"kept");
    const std::wstring before = registry.DumpNow();
    Open();
    Check(L"a (email)", true);
    Done();
    EXPECT_EQ((std::vector<std::wstring>{L"+\\A|Inactive=00000000", L"-\\A|Inactive=01000000"}),
              DumpDifference(before, registry.DumpNow()));
}

TEST_F(NowSaving, AKeyThatWentMeanwhileIsMadeAgain)
{
    registry.Add(L"A", L"a", kEmail, 0);
    Open();
    ASSERT_EQ(ERROR_SUCCESS,
              RegDeleteTreeW(HKEY_LOCAL_MACHINE, (std::wstring(kNowKey) + L"\\A").c_str()));
    Done();
    EXPECT_EQ(0u, registry.Inactive(L"A"));
}

TEST_F(NowSaving, WithoutPluginsNothingIsWrittenButTheNowKeyIsThere)
{
    Open();
    Done();
    EXPECT_TRUE(registry.KeyExists(kNowKey));
    EXPECT_EQ(L"", registry.DumpNow());
    ExpectCalls(0, 0);
}

TEST_F(NowSaving, CancelMakesNoNowKey)
{
    Open();
    Cancel();
    EXPECT_FALSE(registry.KeyExists(kNowKey));
}

TEST_F(NowSaving, AFailureToWriteIsNotReported)
{
    g_refusesToWrite = true;
    registry.Add(L"A", L"a", kEmail, 1);
    registry.Add(L"B", L"b", kEmail, 1);
    Open();
    Check(L"a (email)", true);
    Check(L"b (email)", true);
    Done();
    EXPECT_EQ(1u, registry.Inactive(L"A"));
    ExpectCalls(2, 2);
}

TEST_F(NowSaving, ARowsPlaceIsItsLowWordAlone)
{
    registry.Add(L"A", L"a", kEmail, 1);
    Open();
    SetData(0, 0xABCD0000);
    Check(L"a (email)", true);
    Done();
    EXPECT_EQ(0u, registry.Inactive(L"A"));
}

TEST_F(NowSaving, ARowBeyondAllKeysIsThrownAndWhatCameBeforeIsWritten)
{
    registry.Add(L"A", L"a", kEmail, 1);
    registry.Add(L"B", L"b", kEmail, 1);
    registry.Add(L"C", L"c", kEmail, 1);
    Open();
    for (const wchar_t* label : {L"a (email)", L"b (email)", L"c (email)"})
        Check(label, true);
    SetData(1, 3);
    PostCommand(dialog, IDOK);
    ExpectThrown(kBroken);
    EXPECT_EQ(0u, registry.Inactive(L"A"));
    EXPECT_EQ(1u, registry.Inactive(L"B"));
    EXPECT_EQ(1u, registry.Inactive(L"C"));
}

TEST_F(NowSaving, TheSecondOpeningShowsWhatTheFirstSaved)
{
    registry.Add(L"A", L"a", kEmail, 1);
    registry.Add(L"B", L"b", kEmail, 0);
    Open();
    Check(L"a (email)", true);
    Check(L"b (email)", false);
    Done();
    Open();
    EXPECT_EQ((Labels{L"a (email)"}), CheckedLabels());
}
