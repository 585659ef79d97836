// Malformed registrations: what counts as one, and that opening the dialog deletes it.
#include "tests/dialogs/now/NowFixture.h"
#include "tests/support/ImportPatch.h"

#include <mutex>
#include <set>

namespace
{

class NowCleaning : public NowFixture
{
protected:
    // Opens the dialog and checks that the registration is neither shown nor there any more, while
    // the good one beside it is both.
    void ExpectDeleted(const std::wstring& plugin)
    {
        registry.Add(L"Good", L"good", kEmail);
        Open();
        EXPECT_EQ((Labels{L"good (email)"}), AllLabels());
        EXPECT_FALSE(registry.Exists(plugin));
        EXPECT_TRUE(registry.Exists(L"Good"));
    }
};

// Deleting keys, watched; the keys named by g_refused can't be deleted.
std::mutex g_lock;
std::vector<std::wstring> g_deleted;
std::set<std::wstring> g_refused;

LSTATUS WINAPI DeleteUnlessRefused(HKEY parent, const wchar_t* name)
{
    const std::lock_guard<std::mutex> lock(g_lock);
    g_deleted.push_back(name);
    return g_refused.count(name) != 0 ? ERROR_ACCESS_DENIED : RegDeleteKeyW(parent, name);
}

LSTATUS WINAPI OpenUnlessRefused(HKEY parent, const wchar_t* name, DWORD options, REGSAM access,
                                 HKEY* key)
{
    return g_refused.count(name) != 0 ? ERROR_NO_SYSTEM_RESOURCES
                                      : RegOpenKeyExW(parent, name, options, access, key);
}

class NowDeleting : public NowFixture
{
protected:
    NowDeleting()
    {
        g_deleted.clear();
        g_refused.clear();
        module = std::make_unique<CModule>();
        m_patch = std::make_unique<CImportPatch>(module->Handle(), "advapi32.dll", "RegDeleteKeyW",
                                                 DeleteUnlessRefused);
    }
    ~NowDeleting() override
    {
        run.reset();
        m_patch.reset();
    }

private:
    std::unique_ptr<CImportPatch> m_patch;
};

} // namespace

TEST_F(NowCleaning, ARegistrationWithoutTextDisappears)
{
    registry.Set(L"Bad", L"Kind", kEmail);
    ExpectDeleted(L"Bad");
}

TEST_F(NowCleaning, ARegistrationWithAnEmptyTextDisappears)
{
    registry.Add(L"Bad", L"", kEmail);
    ExpectDeleted(L"Bad");
}

TEST_F(NowCleaning, ARegistrationWhoseTextIsNoStringDisappears)
{
    registry.Set(L"Bad", L"Kind", kEmail);
    registry.Set(L"Bad", L"Text", DWORD{65});
    ExpectDeleted(L"Bad");
}

TEST_F(NowCleaning, ARegistrationWithoutKindDisappears)
{
    registry.Set(L"Bad", L"Text", L"bad");
    ExpectDeleted(L"Bad");
}

TEST_F(NowCleaning, ARegistrationOfKindFourDisappears)
{
    registry.Add(L"Bad", L"bad", 4);
    ExpectDeleted(L"Bad");
}

TEST_F(NowCleaning, ARegistrationOfANegativeKindDisappears)
{
    registry.Add(L"Bad", L"bad", 0xFFFFFFFF);
    ExpectDeleted(L"Bad");
}

TEST_F(NowCleaning, ARegistrationOfTheLowestKindDisappears)
{
    registry.Add(L"Bad", L"bad", 0x80000000);
    ExpectDeleted(L"Bad");
}

TEST_F(NowCleaning, AKindThatIsTooLongDisappears)
{
    registry.Set(L"Bad", L"Text", L"bad");
    registry.SetBytes(L"Bad", L"Kind", REG_BINARY, std::string(8, '\0'));
    ExpectDeleted(L"Bad");
}

// Four bytes are a number whatever their type is: the digit 1 with its terminator is 49.
TEST_F(NowCleaning, AKindThatIsStoredAsADigitDisappears)
{
    registry.Set(L"Bad", L"Text", L"bad");
    registry.Set(L"Bad", L"Kind", std::wstring(L"1"));
    ExpectDeleted(L"Bad");
}

TEST_F(NowCleaning, AKeyWithoutValuesDisappears)
{
    registry.CreateKey((std::wstring(kNowKey) + L"\\Bad").c_str());
    ExpectDeleted(L"Bad");
}

TEST_F(NowCleaning, AnEmptyBuiltInTextDisappearsToo)
{
    registry.Add(L"Bad", L"", kEmail);
    registry.Set(L"Bad", L"BuildIn", 1);
    ExpectDeleted(L"Bad");
}

TEST_F(NowCleaning, KindsZeroToThreeStay)
{
    for (const DWORD kind : {kCalendar, kEmail, kWeather, kProfile})
        registry.Add(std::to_wstring(kind), L"t", kind);
    Open();
    EXPECT_EQ(4, RowCount());
    for (const DWORD kind : {kCalendar, kEmail, kWeather, kProfile})
        EXPECT_TRUE(registry.Exists(std::to_wstring(kind))) << kind;
}

TEST_F(NowCleaning, AMalformedRegistrationThatIsNotInstalledStays)
{
    registry.Add(L"Bad", L"", 4);
    registry.Set(L"Bad", L"CheckHKLM", L"SOFTWARE\\Missing");
    Open();
    EXPECT_EQ(0, RowCount());
    EXPECT_TRUE(registry.Exists(L"Bad"));
}

TEST_F(NowCleaning, CancelBringsNothingBack)
{
    registry.Add(L"Bad", L"bad", 4);
    Open();
    Cancel();
    EXPECT_FALSE(registry.Exists(L"Bad"));
}

TEST_F(NowCleaning, MalformedOnesBetweenGoodOnesHideNone)
{
    for (int i = 0; i < 10; ++i)
        registry.Add(std::to_wstring(i), std::to_wstring(i), i % 2 ? kEmail : 4);
    Open();
    EXPECT_EQ((Labels{L"1 (email)", L"3 (email)", L"5 (email)", L"7 (email)", L"9 (email)"}),
              AllLabels());
    for (int i = 0; i < 10; i += 2)
        EXPECT_FALSE(registry.Exists(std::to_wstring(i))) << i;
    Check(L"7 (email)", true);
    Done();
    EXPECT_EQ(0u, registry.Inactive(L"7"));
}

TEST_F(NowCleaning, SubkeysAreDeletedWithTheirKey)
{
    registry.Set(L"Bad\\One\\Deep\\Deeper", L"Text", L"x");
    registry.Set(L"Bad\\Two", L"Text", L"x");
    ExpectDeleted(L"Bad");
}

TEST_F(NowCleaning, WhatALinkInsidePointsToStays)
{
    registry.SetDword(L"SOFTWARE\\Precious\\Inner", L"Value", 7);
    registry.Set(L"Bad", L"Kind", 4);
    registry.AddLink(L"Bad\\Link", L"SOFTWARE\\Precious");
    ExpectDeleted(L"Bad");
    EXPECT_EQ(7u, registry.Dword(L"SOFTWARE\\Precious\\Inner", L"Value"));
}

TEST_F(NowCleaning, ALinkThatIsMalformedGoesAndItsTargetStays)
{
    registry.SetDword(L"SOFTWARE\\Precious\\Inner", L"Value", 7);
    registry.CreateKey(kNowKey);
    registry.AddLink(L"Link", L"SOFTWARE\\Precious");
    ExpectDeleted(L"Link");
    EXPECT_EQ(7u, registry.Dword(L"SOFTWARE\\Precious\\Inner", L"Value"));
}

TEST_F(NowCleaning, ALinkToAnAncestorEnds)
{
    registry.Set(L"Bad", L"Kind", 4);
    registry.AddLink(L"Bad\\Loop", L"SOFTWARE\\Orvane\\Shared");
    ExpectDeleted(L"Bad");
}

TEST_F(NowDeleting, HappensInTheReverseOrderOfFinding)
{
    for (const wchar_t* plugin : {L"A", L"B", L"C"})
        registry.Add(plugin, L"bad", 4);
    Open();
    EXPECT_EQ((std::vector<std::wstring>{L"C", L"B", L"A"}), g_deleted);
}

TEST_F(NowDeleting, HappensOnceEverythingWasRead)
{
    registry.Add(L"A", L"bad", 4);
    registry.Add(L"B", L"good", kEmail);
    Open();
    EXPECT_EQ((std::vector<std::wstring>{L"A"}), g_deleted);
    EXPECT_EQ((Labels{L"good (email)"}), AllLabels());
}

TEST_F(NowDeleting, SubkeysGoBeforeTheirKey)
{
    registry.Set(L"Bad\\One\\Deep", L"Text", L"x");
    registry.Set(L"Bad\\Two", L"Text", L"x");
    Open();
    EXPECT_EQ((std::vector<std::wstring>{L"Deep", L"One", L"Two", L"Bad"}), g_deleted);
}

TEST_F(NowDeleting, AKeyThatCanNotBeDeletedIsTriedOnceAndStaysUnlisted)
{
    g_refused = {L"Bad"};
    registry.Add(L"Bad", L"bad", 4);
    Open();
    EXPECT_EQ(1u, g_deleted.size());
    EXPECT_TRUE(registry.Exists(L"Bad"));
    EXPECT_EQ(0, RowCount());
    Done();
}

TEST_F(NowDeleting, ASubkeyThatCanNotBeDeletedStopsItsKeyAlone)
{
    g_refused = {L"Stuck"};
    registry.Add(L"A", L"bad", 4);
    registry.Add(L"B", L"bad", 4);
    registry.Set(L"B\\Stuck", L"Text", L"x");
    registry.Set(L"B\\Untouched", L"Text", L"x");
    registry.Add(L"C", L"bad", 4);
    Open();
    EXPECT_EQ((std::vector<std::wstring>{L"C", L"Stuck", L"A"}), g_deleted);
    EXPECT_TRUE(registry.Exists(L"B\\Untouched"));
    EXPECT_FALSE(registry.Exists(L"A"));
    EXPECT_FALSE(registry.Exists(L"C"));
}

TEST_F(NowDeleting, ARegistrationThatCanNotBeOpenedIsHiddenAndStays)
{
    registry.Add(L"A", L"a", kEmail);
    registry.Add(L"B", L"b", kEmail);
    g_refused = {L"B"};
    const CImportPatch open(module->Handle(), "advapi32.dll", "RegOpenKeyExW", OpenUnlessRefused);
    Open();
    EXPECT_EQ((Labels{L"a (email)"}), AllLabels());
    Done();
    EXPECT_TRUE(g_deleted.empty());
    EXPECT_TRUE(registry.Exists(L"B"));
}
