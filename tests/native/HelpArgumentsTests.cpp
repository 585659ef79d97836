// The forms of the help viewer's command line, and which names of pages it takes.
#include "device/help/HelpArguments.h"

#include <gtest/gtest.h>

#include "device/help/PageName.h"

namespace
{

using help::HelpRequest;
using help::JudgePageName;
using help::PageName;
using help::ReadHelpRequest;

constexpr const char16_t* kProgram = u"C:\\Program Files\\Tav Lumenar\\PegHelp.exe";

void ExpectRequest(StringView16 commandLine, StringView16 file, StringView16 topic)
{
    const HelpRequest request = ReadHelpRequest(commandLine, kProgram);
    EXPECT_EQ(file, request.File);
    EXPECT_EQ(topic, request.Topic);
}

} // namespace

TEST(HelpArguments, ThePageAloneIsTheWholeCommandLineOfTheDialogs)
{
    ExpectRequest(u"TavLumenar.htm#Main_Contents", u"TavLumenar.htm", u"Main_Contents");
    ExpectRequest(u"TavLumenar.htm#Edit_Item", u"TavLumenar.htm", u"Edit_Item");
}

TEST(HelpArguments, ATopicMayHoldBlanks)
{
    ExpectRequest(u"TavLumenar.htm#Menu Options", u"TavLumenar.htm", u"Menu Options");
}

TEST(HelpArguments, TheProgramsNameInFrontIsLeftOut)
{
    for (const StringView16 program :
         {u"PegHelp.exe", u"PegHelp", u"peghelp.EXE", u"C:\\x\\PegHelp.exe", u"\"PegHelp.exe\"",
          u"\"C:\\Program Files\\PegHelp.exe\"", u"C:\\Program Files\\Tav Lumenar\\PegHelp.exe",
          u"c:\\program files\\tav lumenar\\peghelp.exe",
          u"  \"C:\\Program Files\\Tav Lumenar\\PegHelp.exe\"  "})
        ExpectRequest(String16(program) + u" Book.htm#Topic", u"Book.htm", u"Topic");
}

TEST(HelpArguments, NothingAtAllIsTheTableOfContents)
{
    ExpectRequest(u"", u"TavLumenar.htm", u"Main_Contents");
    ExpectRequest(u"PegHelp.exe", u"TavLumenar.htm", u"Main_Contents");
    ExpectRequest(kProgram, u"TavLumenar.htm", u"Main_Contents");
    ExpectRequest(u"PegHelp.exe #", u"TavLumenar.htm", u"Main_Contents");
    ExpectRequest(u"PegHelp.exe \"\"", u"TavLumenar.htm", u"Main_Contents");
}

TEST(HelpArguments, AWordAloneIsATopic)
{
    ExpectRequest(u"PegHelp.exe Edit_Item", u"TavLumenar.htm", u"Edit_Item");
    ExpectRequest(u"PegHelp.exe #Edit_Item", u"TavLumenar.htm", u"Edit_Item");
    ExpectRequest(u"Edit_Item", u"TavLumenar.htm", u"Edit_Item");
}

TEST(HelpArguments, AFileWithoutATopicIsShownFromItsContents)
{
    ExpectRequest(u"PegHelp.exe Other.html", u"Other.html", u"Main_Contents");
    ExpectRequest(u"\\Windows\\Page.htm", u"\\Windows\\Page.htm", u"Main_Contents");
}

TEST(HelpArguments, QuotationMarksMayStandAroundAllOrAroundTheFile)
{
    ExpectRequest(u"\"C:\\My Help\\Book.htm#Some Topic\"", u"C:\\My Help\\Book.htm", u"Some Topic");
    ExpectRequest(u"PegHelp.exe \"C:\\My Help\\Book.htm\"#Topic", u"C:\\My Help\\Book.htm",
                  u"Topic");
    ExpectRequest(u"\"unclosed.htm#T", u"unclosed.htm", u"T");
}

TEST(HelpArguments, APathMayHoldBlanks)
{
    ExpectRequest(u"PegHelp.exe C:\\My Help\\Book.htm#T", u"C:\\My Help\\Book.htm", u"T");
}

TEST(HelpArguments, OptionsStandBeforeThePage)
{
    const HelpRequest request = ReadHelpRequest(
        u"PegHelp.exe --window --picture \"C:\\My Pictures\\a.png\" Choose_Icon", kProgram);
    EXPECT_TRUE(request.OwnWindow);
    EXPECT_EQ(u"C:\\My Pictures\\a.png", request.PictureFile);
    EXPECT_EQ(u"Choose_Icon", request.Topic);
}

TEST(HelpArguments, WithoutOptionsTheBrowserIsWanted)
{
    const HelpRequest request = ReadHelpRequest(u"TavLumenar.htm#--window", kProgram);
    EXPECT_FALSE(request.OwnWindow);
    EXPECT_TRUE(request.PictureFile.empty());
    EXPECT_EQ(u"--window", request.Topic);
}

TEST(HelpArguments, APictureIsOfTheOwnWindow)
{
    EXPECT_TRUE(ReadHelpRequest(u"PegHelp.exe --picture a.png", kProgram).OwnWindow);
    EXPECT_TRUE(ReadHelpRequest(u"PegHelp.exe --picture", kProgram).PictureFile.empty());
}

TEST(HelpArguments, AMillionCharactersAreTakenAsTheyAre)
{
    EXPECT_EQ(1000000u, ReadHelpRequest(String16(1000000, u'x'), kProgram).Topic.size());
}

TEST(PageNames, PlainAndNestedNamesAreRelative)
{
    for (const StringView16 name :
         {u"TavLumenar.htm", u"a.HTML", u"more\\a.htm", u"more/a.htm", u"a..b.htm", u"..a.htm"})
        EXPECT_EQ(PageName::Relative, JudgePageName(name));
}

TEST(PageNames, FullPathsAreTakenWithAndWithoutADrive)
{
    for (const StringView16 name : {u"C:\\a.htm", u"c:/x/a.html", u"\\Windows\\a.htm", u"/a.htm"})
        EXPECT_EQ(PageName::Absolute, JudgePageName(name));
}

TEST(PageNames, NamesThatClimbOutAreRefused)
{
    for (const StringView16 name : {u"..\\a.htm", u"x/../a.htm", u"C:\\x\\..\\a.htm",
                                    u"x\\.. \\a.htm", u"\\..\\a.htm", u"...\\a.htm"})
        EXPECT_EQ(PageName::LeavesFolder, JudgePageName(name));
}

TEST(PageNames, NamesOfTheNetworkAndOfTheSystemsOwnKindAreRefused)
{
    for (const StringView16 name :
         {u"\\\\server\\a.htm", u"//server/a.htm", u"\\/server/a.htm", u"\\\\?\\C:\\a.htm",
          u"\\\\.\\pipe\\a.htm", u"C:\\\\server\\a.htm"})
        EXPECT_EQ(PageName::ForeignPlace, JudgePageName(name));
}

TEST(PageNames, NamesRelativeToADrivesCurrentFolderAreRefused)
{
    EXPECT_EQ(PageName::ForeignPlace, JudgePageName(u"C:a.htm"));
    EXPECT_EQ(PageName::ForeignPlace, JudgePageName(u"C:"));
}

TEST(PageNames, OnlyPagesAreTaken)
{
    for (const StringView16 name :
         {u"a.exe", u"a.htm.exe", u"a", u"htm", u".htm", u"a.htmx", u"C:\\"})
        EXPECT_EQ(PageName::NoPage, JudgePageName(name));
}

TEST(PageNames, CharactersThatNoFileHasAreRefused)
{
    using namespace std::string_view_literals;
    for (const StringView16 name : {u"a.htm:stream.htm"sv, u"a?.htm"sv, u"*.htm"sv, u"a|b.htm"sv,
                                    u"a\0b.htm"sv, u"a\nb.htm"sv, u"http://x/a.htm"sv, u""sv})
        EXPECT_EQ(PageName::Malformed, JudgePageName(name));
    EXPECT_EQ(PageName::Malformed, JudgePageName(String16(300, u'a') + u".htm"));
}

TEST(PageNames, LinksWithinTheBookAreOwnTargetsAndAddressesAreNot)
{
    EXPECT_TRUE(help::IsOwnTarget(u"#Topic"));
    EXPECT_TRUE(help::IsOwnTarget(u"Other.htm#Topic"));
    EXPECT_FALSE(help::IsOwnTarget(u"http://example.org/a.htm"));
    EXPECT_FALSE(help::IsOwnTarget(u"C:\\a.htm"));
    EXPECT_FALSE(help::IsOwnTarget(u"a.exe"));
}
