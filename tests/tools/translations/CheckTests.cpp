// What check says about translations, the pseudo-language, and the command line.
#include "tests/tools/translations/TranslationsFixture.h"

#include "tools/translations/Placeholders.h"
#include "tools/translations/Pseudo.h"

#include <gmock/gmock.h>

namespace
{

using testing::HasSubstr;
using translations::Placeholders;
using translations::PseudoText;

class CheckCommand : public CTranslationsTest
{
protected:
    // The faults of one entry.
    std::string FaultsOf(const std::string& english, const std::string& translation) const
    {
        const ToolRun run = Check(PoEntry(english, translation), PoEntry(english, ""));
        EXPECT_EQ(run.Out.find(": good: ") == std::string::npos ? 1 : 0, run.Code);
        return run.Out;
    }
};

size_t CharactersIn(const std::string& text)
{
    size_t count = 0;
    for (const char c : text)
        count += (static_cast<unsigned char>(c) & 0xC0) != 0x80 ? 1u : 0u;
    return count;
}

} // namespace

TEST_F(CheckCommand, ACompleteTranslationIsGood)
{
    const ToolRun run = Check(PoEntry("Done", "Fertig"), PoEntry("Done", ""));
    EXPECT_EQ(0, run.Code);
    EXPECT_EQ(Folder.File("xx.po") + ": good: 1 texts\n", run.Out);
}

TEST_F(CheckCommand, MissingTextsAreNamedWithWhoShowsThem)
{
    const ToolRun run = Check("", "#: device/Texts.h\n" + PoEntry("Done", ""));
    EXPECT_EQ(1, run.Code);
    EXPECT_EQ(Folder.File("xx.po") + ": \"Done\": is missing, shown by device/Texts.h\n", run.Out);
}

TEST_F(CheckCommand, EmptyTranslationsAreNamedWithTheirLine)
{
    EXPECT_EQ(Folder.File("xx.po") + ":8: \"Done\": has no translation\n", FaultsOf("Done", ""));
}

TEST_F(CheckCommand, ASwitchMayStayEmptyButNotBeMissing)
{
    EXPECT_THAT(FaultsOf("_LARGE_SMALL_FONTS", ""), HasSubstr("good"));
    EXPECT_EQ(1, Check("", PoEntry("_LARGE_SMALL_FONTS", "")).Code);
}

TEST_F(CheckCommand, UnusedTranslationsAreNamed)
{
    const ToolRun run = Check(PoEntry("Done", "a") + PoEntry("Old", "b"), PoEntry("Done", ""));
    EXPECT_EQ(1, run.Code);
    EXPECT_EQ(Folder.File("xx.po") + ":11: \"Old\": is no text of the program any more\n", run.Out);
}

TEST_F(CheckCommand, DifferentPlaceholdersAreNamed)
{
    EXPECT_THAT(FaultsOf("%d of %s", "%d von %s"), HasSubstr("good"));
    EXPECT_THAT(FaultsOf("100%% of %d", "%d von 100"), HasSubstr("good"));
    EXPECT_THAT(FaultsOf("%d of %s", "%s von %d"),
                HasSubstr("needs the placeholders %d %s but has %s %d"));
    EXPECT_THAT(FaultsOf("%d of", "von"), HasSubstr("needs the placeholders %d but has none"));
    EXPECT_THAT(FaultsOf("of", "von %s"), HasSubstr("needs the placeholders none but has %s"));
    EXPECT_THAT(FaultsOf("%d", "%s"), HasSubstr("needs the placeholders %d but has %s"));
    EXPECT_THAT(FaultsOf("%d", "% d"), HasSubstr("but has % "));
}

TEST_F(CheckCommand, OuterBlanksAreKept)
{
    EXPECT_THAT(FaultsOf(" (mail)", " (Post)"), HasSubstr("good"));
    EXPECT_THAT(FaultsOf(" (mail)", "(Post)"), HasSubstr("begins or ends with other blanks"));
    EXPECT_THAT(FaultsOf("Done", "Fertig "), HasSubstr("begins or ends with other blanks"));
}

TEST_F(CheckCommand, TextsOfMoreThan1023CharactersAreTooLong)
{
    EXPECT_THAT(FaultsOf("a", std::string(1023, 'x')), HasSubstr("good"));
    EXPECT_THAT(FaultsOf("a", std::string(1024, 'x')),
                HasSubstr("the translation is longer than 1023 characters"));
    EXPECT_THAT(FaultsOf(std::string(1024, 'x'), "a"),
                HasSubstr("the English text is longer than 1023 characters"));
    std::string smiles;
    for (int i = 0; i < 512; ++i)
        smiles += "\xF0\x9F\x98\x80";
    EXPECT_THAT(FaultsOf("a", smiles), HasSubstr("longer")) << "surrogate pairs count twice";
}

TEST_F(CheckCommand, FuzzyEntriesAreNamed)
{
    const ToolRun run = Check("#, fuzzy\n" + PoEntry("Open", "Auf"), PoEntry("Open", ""));
    EXPECT_EQ(1, run.Code);
    EXPECT_THAT(run.Out, HasSubstr(":9: \"Open\": is fuzzy"));
}

TEST_F(CheckCommand, AllFilesAreCheckedAndNamed)
{
    const std::string pattern = Po("all.pot", PoEntry("a", ""));
    const ToolRun run =
        RunTranslations({"check", "--template", pattern, Po("bad.po", PoEntry("a", "")),
                         Po("good.po", PoEntry("a", "b"))});
    EXPECT_EQ(1, run.Code);
    EXPECT_THAT(run.Out, HasSubstr("bad.po:8"));
    EXPECT_THAT(run.Out, HasSubstr("good.po: good"));
}

TEST(PlaceholderText, KeepsTheOrderAndSkipsPercentSigns)
{
    EXPECT_EQ("", Placeholders("50 %% of it"));
    EXPECT_EQ("%d %s", Placeholders("%d%%%s"));
    EXPECT_EQ("%", Placeholders("at the end %"));
}

TEST(PseudoLanguage, IsBracketedAccentedAndTwoFifthsLonger)
{
    EXPECT_EQ("[Ďööñéé]", PseudoText("Done"));
    for (const char* text : {"a", "Hm", "Menu...", "Optimize for hardware navigation", "Psst"})
    {
        const std::string pseudo = PseudoText(text);
        EXPECT_GE(5 * (CharactersIn(pseudo) - 2), 7 * CharactersIn(text)) << pseudo;
        EXPECT_EQ('[', pseudo.front());
        EXPECT_EQ(']', pseudo.back());
    }
}

TEST(PseudoLanguage, KeepsPlaceholdersOuterBlanksAndLineEnds)
{
    EXPECT_EQ("[%d íííñ úúséé]", PseudoText("%d in use"));
    EXPECT_EQ(" [(máááííł)]", PseudoText(" (mail)"));
    EXPECT_EQ("[%s%%]", PseudoText("%s%%").substr(0, 5) + "]");
    EXPECT_NE(std::string::npos, PseudoText("one\ntwo").find('\n'));
    EXPECT_EQ("  ", PseudoText("  "));
}

TEST_F(CheckCommand, ThePseudoLanguageOfATemplateIsGood)
{
    const std::string pattern =
        Po("all.pot", PoEntry("%d of '%s'", "") + PoEntry("_SWITCH", "") + PoEntry(" (x)", ""));
    const std::string pseudo = Folder.File("pseudo.po");
    EXPECT_EQ(0, RunTranslations({"pseudo", pattern, "--out", pseudo}).Code);
    EXPECT_EQ(0, RunTranslations({"check", "--template", pattern, pseudo}).Code);
    EXPECT_THAT(Slurp(pseudo), HasSubstr("msgid \"_SWITCH\"\nmsgstr \"\"\n"));
}

TEST_F(CheckCommand, ExitCodesTellGoodBadAndMisused)
{
    const std::string good = "'" + Po("good.po", PoEntry("a", "b")) + "'";
    const std::string pattern = "'" + Po("all.pot", PoEntry("a", "")) + "'";
    EXPECT_EQ(0, RunTranslationsProgram("check --template " + pattern + " " + good).Code);
    EXPECT_EQ(1, RunTranslationsProgram("check --template " + pattern + " " + pattern).Code);
    EXPECT_EQ(1, RunTranslationsProgram("check --template absent.pot " + good).Code);
    EXPECT_EQ(1, RunTranslationsProgram("extract --source /nowhere --out x.pot").Code);
    EXPECT_EQ(1, RunTranslationsProgram("pseudo " + pattern + " --out /nowhere/x.po").Code);
    for (const std::string& misuse :
         {std::string(), std::string("fly"), std::string("build"), std::string("extract"),
          "check " + good, "check --template " + pattern, "pseudo " + pattern})
        EXPECT_EQ(2, RunTranslationsProgram(misuse).Code) << misuse;
    for (const char* command : {"extract", "build", "check", "pseudo"})
        EXPECT_EQ(0, RunTranslationsProgram(std::string(command) + " --help").Code) << command;
}
