// Which texts are found in resources and code.
#include "tests/tools/translations/TranslationsFixture.h"

#include "tools/citydb/Errors.h"
#include "tools/translations/Extraction.h"

#include <gmock/gmock.h>

namespace
{

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class Extract : public CTranslationsTest
{
protected:
    std::vector<std::string> Texts() const
    {
        std::vector<std::string> texts;
        for (const translations::SourceText& text : translations::ExtractTexts(Folder.Path()))
            texts.push_back(text.English);
        return texts;
    }
    std::vector<std::string> ResourceTexts(const std::string& resources) const
    {
        WriteProject(resources);
        return Texts();
    }
    std::vector<std::string> CodeTexts(const std::string& code,
                                       const std::string& file = "Some.cpp") const
    {
        WriteProject("", file, code);
        return Texts();
    }
    std::string Problem() const
    {
        try
        {
            translations::ExtractTexts(Folder.Path());
        }
        catch (const citydb::CInputError& error)
        {
            return error.what();
        }
        return {};
    }
};

} // namespace

TEST_F(Extract, FindsCaptionsControlsMenusAndStrings)
{
    EXPECT_THAT(
        ResourceTexts("IDD_ONE DIALOG 0, 0, 160, 165\n"
                      "CAPTION \"Title\"\nFONT 8, \"Tahoma\"\nBEGIN\n"
                      "LTEXT \"Label:\", 1, 2, 3, 4, 5\n"
                      "PUSHBUTTON \"Press\", 1, 2, 3, 4, 5\n"
                      "AUTORADIOBUTTON \"One\", 1\nAUTOCHECKBOX \"Check\", 1\n"
                      "CONTROL \"Text\", 1, \"SIPPREF\", 0, 0, 0, 0, 0\n"
                      "EDITTEXT 5, 46, 20, 110, 12\nEND\n"
                      "IDR_MENU MENU\nBEGIN\nMENUITEM \"Done\", IDOK\n"
                      "POPUP \"More\"\nBEGIN\nMENUITEM SEPARATOR\nEND\nEND\n"
                      "STRINGTABLE\nBEGIN\nIDS_KIND \" (kind)\"\nEND\n"),
        ElementsAre("Title", "Label:", "Press", "One", "Check", "Text", "Done", "More", " (kind)"));
}

TEST_F(Extract, LeavesOutVersionsFontsClassesAndTextsWithoutLetters)
{
    EXPECT_THAT(ResourceTexts("FONT 8, \"Tahoma\"\nVALUE \"ProductName\", \"Tav Lumenar\"\n"
                              "BLOCK \"040904B0\"\nLTEXT \"\", 1\nLTEXT \"12 + %%\", 1\n"
                              "CONTROL \"\", 1, \"SIPPREF\", 0\n"),
                IsEmpty());
}

TEST_F(Extract, ReadsQuotesAndEscapesOfResources)
{
    EXPECT_THAT(ResourceTexts("IDS_A \"Say \"\"yes\"\"\\nor \\\\no\"\n"),
                ElementsAre("Say \"yes\"\nor \\no"));
}

TEST_F(Extract, ATextOfAnUnknownKindIsAnErrorWithItsPlace)
{
    WriteProject("// One line.\nMYCONTROL \"Text\", 1\n");
    EXPECT_EQ("resources/All.rc2:2: a text of an unknown kind", Problem());
}

TEST_F(Extract, CommentsAndDirectivesHoldNoTexts)
{
    EXPECT_THAT(ResourceTexts("// LTEXT \"a\"\n/* LTEXT \"b\"\n*/ #include \"c.h\"\n"
                              "#define D \\\n \"d\"\nLTEXT \"e\", 1\n"),
                ElementsAre("e"));
}

TEST_F(Extract, FindsWhatTheTranslatorIsCalledWith)
{
    EXPECT_THAT(CodeTexts("auto a = GetLocalizer().TranslateText(L\"One\");\n"
                          "auto b = localizer.TranslateToString(L\"Two\");\n"
                          "localizer.TranslateTextToBuffer(L\"Three\", buffer, size(L\"none\"));\n"
                          "auto c = texts::Translate(L\"Four \" L\"'%s'\", Name(L\"none\"));\n"
                          "auto d = Other(L\"none\");\n"),
                ElementsAre("One", "Two", "Three", "Four '%s'"));
}

TEST_F(Extract, BothTextsOfAChoiceAreFound)
{
    EXPECT_THAT(CodeTexts("auto a = Translate(isOne ? L\"One\" : L\"Two\");\n"),
                ElementsAre("One", "Two"));
}

TEST_F(Extract, FollowsConstantsOfTheFileAndOfHeaders)
{
    std::filesystem::create_directories(Folder.Path() / "ui");
    Folder.Write("ui/Names.h", "constexpr const wchar_t* kFar = L\"Far\";\n");
    EXPECT_THAT(CodeTexts("constexpr wchar_t kNear[] = L\"Near\";\n"
                          "auto a = TranslateText(kNear);\nauto b = Translate(names::kFar);\n"),
                ElementsAre("Near", "Far"));
}

TEST_F(Extract, AConstantThatIsNowhereIsAnErrorWithItsPlace)
{
    WriteProject("", "Some.cpp", "\n\nauto a = TranslateText(kLost);\n");
    EXPECT_THAT(Problem(), HasSubstr("device/Some.cpp:3: which text is kLost?"));
}

TEST_F(Extract, DataOfTheRunTimeIsNoText)
{
    EXPECT_THAT(CodeTexts("auto a = TranslateText(item->Text.c_str());\n"
                          "auto b = Translate(kTable[i].Title);\n"
                          "std::wstring Translate(const wchar_t* text);\n"),
                IsEmpty());
}

TEST_F(Extract, EveryTextOfATableOfTextsCounts)
{
    EXPECT_THAT(CodeTexts("constexpr const wchar_t* kA = L\"One\";\n"
                          "constexpr int kB = 1'000;\nconstexpr wchar_t kC = L'\"';\n"
                          "constexpr const wchar_t* kAll[] = {kA, L\"Two\"};\n",
                          "SomeTexts.h"),
                ElementsAre("One", "Two"));
}

TEST_F(Extract, BuiltInMenuItemsAndPluginsCountAndTheUsersDoNot)
{
    EXPECT_THAT(CodeTexts("Product(L\"Office\\\\Notes\", L\"Notes\").At(1),\n"
                          "Shared(L\"Tools\", L\"Tools\"),\nUserMenu(L\"User 1\", L\"Mine\"),\n",
                          "SampleMenu.cpp"),
                ElementsAre("Notes", "Tools"));
}

TEST_F(Extract, OwnPluginsCountAndOthersDoNot)
{
    EXPECT_THAT(CodeTexts("Own(L\"Agenda\", L\"Week\", kCalendar, 0),\n"
                          "{L\"SkyWatch\", L\"Sky Watch\", kWeather},\n",
                          "SamplePlugins.cpp"),
                ElementsAre("Week"));
}

TEST_F(Extract, CodeUnitsAreReadFromEscapes)
{
    EXPECT_THAT(CodeTexts("auto a = Translate(L\"M\\u00FCnchen \\xE4\");\n"),
                ElementsAre("München ä"));
}

TEST_F(Extract, ATextWithoutItsEndIsAnErrorWithItsPlace)
{
    WriteProject("", "Some.cpp", "\nauto a = L\"open;\n");
    EXPECT_EQ("device/Some.cpp:2: a text without its end", Problem());
    WriteProject("", "Some.cpp", "auto a = 'x");
    EXPECT_EQ("device/Some.cpp:1: a text without its end", Problem());
    WriteProject("", "Some.cpp", "auto a = LR\"x(never");
    EXPECT_EQ("device/Some.cpp:1: a text without its end", Problem());
}

TEST_F(Extract, RawStringsAreSkipped)
{
    EXPECT_THAT(CodeTexts("auto a = R\"x(Translate(L\"no\") )x\"; Translate(L\"yes\");"),
                ElementsAre("yes"));
}

TEST_F(Extract, ATextOfTwoPlacesIsOneEntryWithBoth)
{
    WriteProject("MENUITEM \"Menu\", 1\nLTEXT \"Only %d\", 1", "SomeTexts.h",
                 "auto a = L\"Menu\";");
    const std::string pot = Extracted();
    EXPECT_THAT(pot, HasSubstr("#. soft key or menu item, text of the device\n"
                               "#: resources/All.rc2 device/SomeTexts.h\n"
                               "msgid \"Menu\"\nmsgstr \"\"\n"));
    EXPECT_THAT(pot, HasSubstr("#, c-format\nmsgid \"Only %d\"\n"));
}

TEST_F(Extract, AFolderThatIsNoProjectIsAnError)
{
    const ToolRun run = RunTranslations(
        {"extract", "--source", Folder.Path().string(), "--out", Folder.File("x.pot")});
    EXPECT_EQ(1, run.Code);
    EXPECT_THAT(run.Err, HasSubstr("it has no resources"));
}

TEST_F(Extract, EveryCutSourceIsSurvived)
{
    const std::string code =
        "auto a = Translate(kX ? L\"a\\u00FC\" : R\"x(y)x\"); // '\n/* */ '\\'";
    for (size_t size = 0; size <= code.size(); ++size)
    {
        WriteProject(code.substr(0, size), "Some.cpp", code.substr(0, size));
        Problem();
    }
}
