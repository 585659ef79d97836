// The project's own translations: complete, free of mistakes, and as old as their sources.
#include "tests/tools/translations/TranslationsFixture.h"

#include "tools/translations/Catalog.h"
#include "tools/translations/Check.h"
#include "tools/translations/DeviceFile.h"

#include <gmock/gmock.h>

#include <set>

namespace
{

using namespace translations;

const std::string kLanguages = std::string(TAV_SOURCE_DIR) + "/device/languages/";
constexpr const char* kHow = "run device/languages/make-languages.sh";

std::set<std::string> EnglishOf(const std::vector<Entry>& entries)
{
    std::set<std::string> texts;
    for (const Entry& entry : entries)
        texts.insert(entry.English);
    return texts;
}

// The codes of all translations.
std::set<std::string> Languages()
{
    std::set<std::string> languages;
    for (const auto& entry : std::filesystem::directory_iterator(kLanguages))
        if (entry.path().extension() == ".po")
            languages.insert(entry.path().stem());
    return languages;
}

class Project : public testing::TestWithParam<std::string>
{
protected:
    std::string Po() const { return kLanguages + GetParam() + ".po"; }
};

} // namespace

TEST(ProjectTemplate, HasEveryTextOfTheSourcesAndNoOther)
{
    const std::set<std::string> texts = EnglishOf(MergeTexts(ExtractTexts(TAV_SOURCE_DIR)));
    const std::set<std::string> known =
        EnglishOf(ReadCatalog(kLanguages + "TavLumenar.pot").Entries);
    EXPECT_GE(texts.size(), 150u);
    for (const std::string& text : texts)
        EXPECT_EQ(1u, known.count(text)) << "not in the template: \"" << text << "\"; " << kHow;
    for (const std::string& text : known)
        EXPECT_EQ(1u, texts.count(text)) << "in no source: \"" << text << "\"; " << kHow;
}

TEST_P(Project, EveryTextIsTranslatedWithoutMistakes)
{
    const Catalog catalog = ReadCatalog(Po());
    const Catalog pattern = ReadCatalog(kLanguages + "TavLumenar.pot");
    EXPECT_THAT(EntryFaults(catalog), testing::IsEmpty());
    EXPECT_THAT(CoverageFaults(catalog, pattern), testing::IsEmpty());
}

TEST_P(Project, TheDevicesFileIsMadeFromTheTranslation)
{
    const std::vector<uint8_t> made = MakeDeviceFile(ReadCatalog(Po()));
    EXPECT_TRUE(std::string(made.begin(), made.end()) ==
                Slurp(kLanguages + GetParam() + "/TavLumenar.txt"))
        << kHow;
}

TEST_P(Project, ATranslationThatIsTakenAwayIsNamed)
{
    Catalog catalog = ReadCatalog(Po());
    const Catalog pattern = ReadCatalog(kLanguages + "TavLumenar.pot");
    ASSERT_FALSE(catalog.Entries.empty());
    const std::string english = catalog.Entries.back().English;
    catalog.Entries.pop_back();
    const std::vector<std::string> faults = CoverageFaults(catalog, pattern);
    ASSERT_EQ(1u, faults.size());
    EXPECT_THAT(faults[0], testing::HasSubstr("\"" + english + "\": is missing, shown by "));
}

INSTANTIATE_TEST_SUITE_P(All, Project, testing::ValuesIn(Languages()),
                         [](const auto& info) { return info.param; });

TEST(ProjectLanguages, EveryFolderHasATranslationAndTheOtherWayRound)
{
    std::set<std::string> folders;
    for (const auto& entry : std::filesystem::directory_iterator(kLanguages))
        if (entry.is_directory())
            folders.insert(entry.path().filename());
    EXPECT_EQ(folders, Languages());
    for (const char* language : {"de", "ja", "pseudo", "ru"})
        EXPECT_EQ(1u, folders.count(language)) << language;
}

TEST(ProjectLanguages, ThePseudoLanguageIsMadeFromTheTemplate)
{
    const CTempFolder folder;
    ASSERT_EQ(0, RunTranslations(
                     {"pseudo", kLanguages + "TavLumenar.pot", "--out", folder.File("pseudo.po")})
                     .Code);
    const std::vector<Entry> made = ReadCatalog(folder.File("pseudo.po")).Entries;
    const std::vector<Entry> there = ReadCatalog(kLanguages + "pseudo.po").Entries;
    ASSERT_EQ(made.size(), there.size()) << kHow;
    for (size_t i = 0; i < made.size(); ++i)
        EXPECT_EQ(made[i].Translation, there[i].Translation) << kHow;
}
