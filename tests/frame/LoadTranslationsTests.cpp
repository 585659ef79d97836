#include "frame/Localizer.h"

#include "platform/os/Registry.h"
#include "tests/frame/TranslationFixture.h"
#include "tests/support/ImportPatch.h"
#include "tests/support/RegistrySandbox.h"

#include <gtest/gtest.h>

#include <cstring>

extern "C" void* __imp_malloc;

namespace
{

constexpr wchar_t kShellKey[] = L"SOFTWARE\\Orvane 2\\Tav Lumenar";

class LoadTranslations : public testing::Test
{
protected:
    ~LoadTranslations() override { GetLocalizer().Clear(); }

    CRegistrySandbox hive;
    CTempFolder folder;
};

void*(__cdecl* g_realMalloc)(size_t);
int g_allocationsBeforeFailure;

// Fails once.
void* __cdecl MallocFailingOnce(size_t size)
{
    return g_allocationsBeforeFailure-- == 0 ? nullptr : g_realMalloc(size);
}

TEST_F(LoadTranslations, ReadsTheFileInTheInstallationFolder)
{
    folder.Write(L"TavLumenar.txt", "Done|Fertig\n");
    hive.SetText(kShellKey, L"InstallDir", folder.Path());
    ::LoadTranslations();
    EXPECT_STREQ(L"Fertig", GetLocalizer().TranslateText(L"Done"));
}

TEST_F(LoadTranslations, TheFoldersTrailingBackslashDoesntMatter)
{
    folder.Write(L"TavLumenar.txt", "Done|Fertig\n");
    hive.SetText(kShellKey, L"InstallDir", folder.Path() + L"\\");
    ::LoadTranslations();
    EXPECT_STREQ(L"Fertig", GetLocalizer().TranslateText(L"Done"));
}

TEST_F(LoadTranslations, WithoutTheFileEverythingStaysEnglish)
{
    hive.SetText(kShellKey, L"InstallDir", folder.Path());
    ::LoadTranslations();
    EXPECT_EQ(nullptr, GetLocalizer().Text);
    EXPECT_STREQ(L"Done", GetLocalizer().TranslateText(L"Done"));
}

TEST_F(LoadTranslations, WithoutTheKeyEverythingStaysEnglishAndNothingIsCreated)
{
    ::LoadTranslations();
    EXPECT_EQ(nullptr, GetLocalizer().Text);
    EXPECT_FALSE(hive.KeyExists(kShellKey));
}

TEST_F(LoadTranslations, AMissingFolderValueCountsAsEmptyAndIsNotCreated)
{
    hive.CreateKey(kShellKey);
    ::LoadTranslations();
    EXPECT_EQ(nullptr, GetLocalizer().Text);
    EXPECT_FALSE(hive.ValueExists(kShellKey, L"InstallDir"));
}

TEST_F(LoadTranslations, AFolderValueOfAnotherTypeCountsAsEmpty)
{
    hive.SetDword(kShellKey, L"InstallDir", 5);
    ::LoadTranslations();
    EXPECT_EQ(nullptr, GetLocalizer().Text);
    EXPECT_EQ(5u, hive.Dword(kShellKey, L"InstallDir"));
}

TEST_F(LoadTranslations, TheKeyIsOpenedReadAndClosedOnce)
{
    hive.SetText(kShellKey, L"InstallDir", folder.Path());
    const auto before = os::CountedRegistryCalls();
    ::LoadTranslations();
    const auto after = os::CountedRegistryCalls();
    EXPECT_EQ(1u, after.open - before.open);
    EXPECT_EQ(1u, after.query - before.query);
    EXPECT_EQ(1u, after.close - before.close);
    EXPECT_EQ(3u, after.Total() - before.Total());
}

TEST_F(LoadTranslations, WhicheverAllocationFailsEverythingStaysEnglish)
{
    folder.Write(L"TavLumenar.txt", "Done|Fertig\n");
    hive.SetText(kShellKey, L"InstallDir", folder.Path());
    GetLocalizer();
    std::memcpy(&g_realMalloc, &__imp_malloc, sizeof(g_realMalloc));
    int failures = 0;
    for (int before = 0; before < 20; ++before)
    {
        {
            g_allocationsBeforeFailure = before;
            const CImportPatch patch(&__imp_malloc, MallocFailingOnce);
            ::LoadTranslations();
        }
        if (g_allocationsBeforeFailure >= 0)
            break;
        ++failures;
        EXPECT_EQ(nullptr, GetLocalizer().Text) << before;
    }
    EXPECT_LT(2, failures) << "the folder, the path and the file's bytes";
    EXPECT_STREQ(L"Fertig", GetLocalizer().TranslateText(L"Done"));
}

} // namespace
