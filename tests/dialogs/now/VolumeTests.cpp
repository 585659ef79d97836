// Many plug-ins: calls into the registry, counted at the one place where they are made, and time.
#include "dialogs/now/PluginList.h"
#include "platform/os/Registry.h"
#include "tests/dialogs/now/NowFixture.h"
#include "tests/support/ImportPatch.h"
#include "tests/support/LongRun.h"

#include <chrono>
#include <cstring>

namespace
{

// Ten thousand in the long run. A registry call takes six times longer when the server happens to
// sit on another core, which would decide the test instead of the dialog.
const int kMany = IsLongRun() ? 10000 : 2000;

class NowVolume : public NowFixture
{
protected:
    using Clock = std::chrono::steady_clock;

    static double SecondsSince(Clock::time_point begin)
    {
        return std::chrono::duration<double>(Clock::now() - begin).count();
    }
    // Waits longer than for other dialogs: how long is what the test measures.
    void OpenMany()
    {
        const auto begin = Clock::now();
        Call();
        Open(run);
        const double seconds = SecondsSince(begin);
        RecordProperty("milliseconds", static_cast<int>(seconds * 1000));
        EXPECT_LT(seconds, 10.0);
    }
    void ExpectSorted() const
    {
        ASSERT_EQ(kMany, RowCount());
        std::wstring previous = LabelOf(0);
        for (int row = 1; row < kMany; ++row)
        {
            const std::wstring label = LabelOf(row);
            ASSERT_LE(lstrcmpiW(previous.c_str(), label.c_str()), 0) << row;
            previous = label;
        }
    }

private:
    void Open(const std::unique_ptr<CDialogRun>& opening)
    {
        dialog = opening->WaitForDialog(kNowTitle);
        ASSERT_NE(nullptr, dialog);
        list = GetDlgItem(dialog, kListId);
    }
};

// The registry calls of one piece of work.
template <class Work>
os::RegistryCallCounts CallsOf(Work work)
{
    const os::RegistryCallCounts before = os::CountedRegistryCalls();
    work();
    os::RegistryCallCounts calls = os::CountedRegistryCalls();
    calls.open -= before.open;
    calls.create -= before.create;
    calls.query -= before.query;
    calls.set -= before.set;
    calls.enumerate -= before.enumerate;
    calls.deleteKey -= before.deleteKey;
    calls.flush -= before.flush;
    calls.close -= before.close;
    return calls;
}

class NowCalls : public testing::Test
{
protected:
    CNowSandbox registry;
};

} // namespace

TEST_F(NowCalls, AMissingNowKeyTakesOneOpenAndOneClose)
{
    const os::RegistryCallCounts calls = CallsOf([] { LoadPlugins(); });
    EXPECT_EQ(1u, calls.open);
    EXPECT_EQ(0u, calls.create);
    EXPECT_EQ(0u, calls.query);
    EXPECT_EQ(1u, calls.close);
}

TEST_F(NowCalls, APluginIsOpenedOnceAndEachValueReadOnce)
{
    registry.AddMany(10, L"p");
    const os::RegistryCallCounts calls = CallsOf([] { EXPECT_EQ(10u, LoadPlugins().size()); });
    EXPECT_EQ(11u, calls.open);
    EXPECT_EQ(60u, calls.query);
    EXPECT_EQ(11u, calls.enumerate);
    EXPECT_EQ(11u, calls.close);
    EXPECT_EQ(0u, calls.set + calls.flush + calls.deleteKey + calls.create);
}

TEST_F(NowCalls, SavingAnUnchangedPluginWritesAndFlushesNothing)
{
    registry.Add(L"A", L"a", kEmail, 0);
    const os::RegistryCallCounts calls = CallsOf(
        []
        {
            CPluginSaving saving;
            saving.SetUsed(L"A", true);
        });
    EXPECT_EQ(2u, calls.create);
    EXPECT_EQ(1u, calls.query);
    EXPECT_EQ(0u, calls.set);
    EXPECT_EQ(0u, calls.flush);
    EXPECT_EQ(2u, calls.close);
}

TEST_F(NowCalls, SavingAChangedPluginWritesAndFlushesItOnce)
{
    registry.Add(L"A", L"a", kEmail, 0);
    const os::RegistryCallCounts calls = CallsOf(
        []
        {
            CPluginSaving saving;
            saving.SetUsed(L"A", false);
        });
    EXPECT_EQ(1u, calls.set);
    EXPECT_EQ(1u, calls.flush);
    EXPECT_EQ(1u, registry.Inactive(L"A"));
}

TEST_F(NowVolume, ThousandsOfPluginsAreShownAndSavedInTenSecondsEach)
{
    registry.AddMany(kMany, L"Plug-in ");
    OpenMany();
    ExpectSorted();
    Check(L"Plug-in 00000 (calendar)", true);
    const auto begin = Clock::now();
    Done();
    EXPECT_LT(SecondsSince(begin), 10.0);
    EXPECT_EQ(0u, registry.Inactive(L"P00000"));
    EXPECT_FALSE(registry.HasInactive(L"P01999"));
}

// Texts whose order by code unit is not that of the language.
TEST_F(NowVolume, ThousandsOfPluginsOfManyLettersAreShownInTenSeconds)
{
    const wchar_t* const texts[] = {L"zebra ", L"\u00C9clair ", L"_x", L"-y", L"Alpha", L"\u044F "};
    for (int i = 0; i < kMany; ++i)
        registry.Add(std::to_wstring(i), texts[i % 6] + std::to_wstring(kMany - i),
                     static_cast<DWORD>(i % 4));
    OpenMany();
    ExpectSorted();
}

TEST_F(NowVolume, ThousandsOfMalformedRegistrationsGoInTenSeconds)
{
    for (int i = 0; i < kMany; ++i)
        registry.Set(std::to_wstring(i), L"Kind", 4);
    OpenMany();
    EXPECT_EQ(0, RowCount());
    EXPECT_EQ(L"", registry.DumpNow());
}

// More plug-ins than a row's data can tell apart: the 65,537th row stands for the first key.

namespace
{

constexpr DWORD kBeyond = 65537;

// The key that was found last.
DWORD g_found;

// Lists that many keys, of which only three names exist: to write so many takes minutes.
LSTATUS WINAPI EnumMany(HKEY, DWORD index, wchar_t* name, DWORD* size, DWORD*, wchar_t*, DWORD*,
                        FILETIME*)
{
    if (index >= kBeyond)
        return ERROR_NO_MORE_ITEMS;
    g_found = index;
    lstrcpyW(name, index == 0 ? L"First" : index == kBeyond - 1 ? L"Last" : L"Other");
    *size = static_cast<DWORD>(wcslen(name));
    return ERROR_SUCCESS;
}

// Takes a value from here instead of the registry.
LSTATUS Give(const void* value, DWORD valueType, DWORD bytes, DWORD* type, BYTE* data, DWORD* size)
{
    if (!data || *size < bytes)
        return ERROR_MORE_DATA;
    memcpy(data, value, bytes);
    if (type)
        *type = valueType;
    *size = bytes;
    return ERROR_SUCCESS;
}

// Gives each of them a text of its own; of the registry's values only the flag is the real one.
LSTATUS WINAPI DescribeMany(HKEY key, const wchar_t* name, DWORD* reserved, DWORD* type, BYTE* data,
                            DWORD* size)
{
    const std::wstring value = name;
    if (value == L"Inactive")
        return RegQueryValueExW(key, name, reserved, type, data, size);
    if (value == L"Kind")
        return Give(&kProfile, REG_DWORD, sizeof(kProfile), type, data, size);
    if (value != L"Text")
        return ERROR_FILE_NOT_FOUND;
    const std::wstring text = std::to_wstring(100000 + g_found);
    const auto bytes = static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t));
    return Give(text.c_str(), REG_SZ, bytes, type, data, size);
}

} // namespace

TEST_F(NowVolume, Of65537PluginsTheLastOneIsSavedToTheFirstKey)
{
    constexpr DWORD kPatience = 55000;
    for (const wchar_t* const plugin : {L"First", L"Other", L"Last"})
        registry.Add(plugin, plugin, kProfile);
    module = std::make_unique<CModule>();
    const CImportPatch keys(module->Handle(), "advapi32.dll", "RegEnumKeyExW", EnumMany);
    const CImportPatch values(module->Handle(), "advapi32.dll", "RegQueryValueExW", DescribeMany);
    Call();
    dialog = run->WaitForDialog(kNowTitle, kPatience);
    ASSERT_NE(nullptr, dialog);
    list = GetDlgItem(dialog, kListId);
    constexpr int kLast = kBeyond - 1;
    ASSERT_EQ(kLast + 1, RowCount());
    EXPECT_EQ(L"165536 (profile)", LabelOf(kLast));
    EXPECT_EQ(0x00030000u, DataOf(kLast));
    EXPECT_EQ(0x0003FFFFu, DataOf(kLast - 1));
    CheckRow(kLast, true);
    PostCommand(dialog, IDOK);
    ASSERT_TRUE(run->WaitForEnd(kPatience));
    EXPECT_EQ(TRUE, run->Result());
    EXPECT_EQ(0u, registry.Inactive(L"First"));
    EXPECT_FALSE(registry.HasInactive(L"Last"));
    EXPECT_FALSE(registry.HasInactive(L"Other"));
}
