// The files for the device, and what is refused on the way.
#include "tests/tools/translations/TranslationsFixture.h"

#include <gmock/gmock.h>

namespace
{

using testing::HasSubstr;

constexpr const char* kFirstLine = "Made from xx.po - change that file instead.\r\n";

class Build : public CTranslationsTest
{
protected:
    // Both ways: that a broken file is refused, and with which words.
    std::string Refused(const std::string& content) const
    {
        const ToolRun run = RunTranslations({"build", Folder.Write("xx.po", content)});
        EXPECT_EQ(1, run.Code);
        EXPECT_FALSE(std::filesystem::exists(Folder.Path() / "xx"));
        return run.Out + run.Err;
    }
    std::string RefusedEntries(const std::string& entries,
                               const std::string& encoding = "UTF-16LE") const
    {
        return Refused(Slurp(Po("source.po", entries, encoding)));
    }
    // The message of a mistake on a line of xx.po.
    std::string At(int line, const std::string& what) const
    {
        return Folder.File("xx.po") + ":" + std::to_string(line) + ": " + what;
    }
};

constexpr const char* kHeader =
    "msgid \"\"\nmsgstr \"Content-Type: text/plain; charset=UTF-8\\n\"\n";

} // namespace

TEST_F(Build, Utf16HasAMarkAndOneEntryALine)
{
    EXPECT_EQ("\xFF\xFE" + Utf16(kFirstLine + std::string("Done|Fertig\r\nOpen|Offen\r\n")),
              Built(PoEntry("Done", "Fertig") + PoEntry("Open", "Offen")));
}

TEST_F(Build, AnAnsiCodePageHasNoMark)
{
    EXPECT_EQ(kFirstLine + std::string("Done|\xC3\xEE\xF2\xEE\xE2\xEE\r\n"),
              Built(PoEntry("Done", "Готово"), "CP1251"));
}

TEST_F(Build, Utf16IsTheDefault)
{
    Folder.Write("xx.po", kHeader + std::string("\n") + PoEntry("Done", "Fertig"));
    EXPECT_EQ(0, RunTranslations({"build", Folder.File("xx.po")}).Code);
    EXPECT_EQ("\xFF\xFE", Slurp(Folder.File("xx/TavLumenar.txt")).substr(0, 2));
}

TEST_F(Build, BackslashesBarsAndLineEndsAreEscaped)
{
    EXPECT_EQ("\xFF\xFE" + Utf16(kFirstLine + std::string("a\\|b\\\\c|d\\ne\\rf\\|\r\n")),
              Built(PoEntry("a|b\\\\c", "d\\ne\\rf|")));
}

TEST_F(Build, UntranslatedAndObsoleteEntriesAreLeftOut)
{
    EXPECT_EQ("\xFF\xFE" + Utf16(kFirstLine + std::string("Done|Fertig\r\n")),
              Built(PoEntry("Open", "") + PoEntry("Done", "Fertig") +
                    "#~ msgid \"Old\"\n#~ msgstr \"Alt\"\n"));
}

TEST_F(Build, CharactersBeyondTheFirstPlaneAreSurrogatePairs)
{
    const std::string file = Built(PoEntry("a", "\xF0\x9F\x98\x80"));
    EXPECT_NE(std::string::npos, file.find("\x3D\xD8\x00\xDE", 0, 4));
}

TEST_F(Build, AnotherFolderCanBeChosen)
{
    const ToolRun run =
        RunTranslations({"build", Po("xx.po", PoEntry("a", "b")), "--out", Folder.File("new")});
    EXPECT_EQ(0, run.Code);
    EXPECT_NE("", Slurp(Folder.File("new/xx/TavLumenar.txt")));
}

TEST_F(Build, ACharacterThatTheCodePageLacksIsNamedWithItsLine)
{
    EXPECT_EQ(At(8, "\"Done\": has characters that CP1251 lacks: 完了\n"),
              RefusedEntries(PoEntry("Done", "完了 Готово 完"), "CP1251"));
}

TEST_F(Build, AnUnknownEncodingIsNamed)
{
    EXPECT_THAT(RefusedEntries(PoEntry("a", "b"), "Klingon"), HasSubstr("no encoding 'Klingon'"));
}

TEST_F(Build, AnUnterminatedQuoteIsNamedWithItsLine)
{
    EXPECT_THAT(Refused(kHeader + std::string("\nmsgid \"Done\nmsgstr \"Fertig\"\n")),
                HasSubstr(At(5, "end-of-line within string")));
}

TEST_F(Build, ACutEntryIsNamedWithItsLine)
{
    EXPECT_THAT(Refused(kHeader + std::string("\nmsgid \"Done\"\n")), HasSubstr(At(4, "")));
}

TEST_F(Build, AnEntryThatIsThereTwiceIsNamedWithItsLine)
{
    EXPECT_EQ("translations: " + At(11, "duplicate message definition\n"),
              RefusedEntries(PoEntry("Done", "a") + PoEntry("Done", "b")));
}

TEST_F(Build, AnotherCharsetIsRefused)
{
    EXPECT_THAT(Refused("msgid \"\"\nmsgstr \"Content-Type: text/plain; charset=ISO-8859-1\\n\"\n\n"
                        "msgid \"a\"\nmsgstr \"\xFC\"\n"),
                HasSubstr(At(1, "must be in UTF-8")));
}

TEST_F(Build, BytesThatAreNotUtf8AreRefused)
{
    EXPECT_THAT(RefusedEntries(PoEntry("a", "\xFC")), HasSubstr(Folder.File("xx.po") + ":9"));
}

TEST_F(Build, AFileWithoutAHeaderIsRefused)
{
    EXPECT_THAT(Refused(PoEntry("a", "b")), HasSubstr(At(1, "there is no header")));
    EXPECT_THAT(Refused(""), HasSubstr(At(1, "there is no header")));
}

TEST_F(Build, ContextsAreRefused)
{
    EXPECT_THAT(RefusedEntries("msgctxt \"menu\"\nmsgid \"Open\"\nmsgstr \"Auf\"\n"),
                HasSubstr(At(9, "\"Open\": has a context")));
}

TEST_F(Build, PluralFormsAreRefused)
{
    EXPECT_THAT(RefusedEntries("msgid \"one\"\nmsgid_plural \"many\"\n"
                               "msgstr[0] \"eins\"\nmsgstr[1] \"viele\"\n"),
                HasSubstr(At(8, "\"one\": has plural forms")));
}

TEST_F(Build, FuzzyEntriesAreRefused)
{
    EXPECT_THAT(RefusedEntries("#, fuzzy\n" + PoEntry("Open", "Auf")),
                HasSubstr(At(9, "\"Open\": is fuzzy")));
}

TEST_F(Build, OtherDomainsAreRefused)
{
    EXPECT_THAT(RefusedEntries(PoEntry("a", "b") + "domain \"more\"\n" + PoEntry("c", "d")),
                HasSubstr("has a domain, more"));
}

TEST_F(Build, LinesAreRightBehindEntriesThatWereGivenUp)
{
    EXPECT_EQ(At(13, "\"b\": needs the placeholders none but has %d\n"),
              RefusedEntries("#~ msgid \"old\"\n#~ msgstr \"alt\"\n\n" +
                             std::string("#. note\n#| msgid \"before\"\n") + PoEntry("b", "%d")));
}

TEST_F(Build, AMissingFileAndAFolderAreRefused)
{
    EXPECT_EQ(1, RunTranslations({"build", Folder.File("absent.po")}).Code);
    EXPECT_EQ(1, RunTranslations({"build", Folder.Path().string()}).Code);
}

TEST_F(Build, AMegabyteOfEntriesIsBuilt)
{
    std::string entries;
    for (int i = 0; entries.size() < (1u << 20); ++i)
        entries +=
            PoEntry("Text number " + std::to_string(i), "Übersetzung Nummer " + std::to_string(i));
    EXPECT_GT(Built(entries).size(), 1u << 20);
}

TEST_F(Build, EveryCutFileIsBuiltOrRefusedWithWords)
{
    const std::string whole =
        Slurp(Po("source.po", "#, c-format\n" + PoEntry("Done %s", "Fertig %s")));
    for (size_t size = 0; size < whole.size(); ++size)
    {
        const ToolRun run =
            RunTranslations({"build", Folder.Write("xx.po", whole.substr(0, size))});
        EXPECT_TRUE(run.Code == 0 || (run.Code == 1 && !(run.Out + run.Err).empty())) << size;
    }
}

TEST_F(Build, TwentyMistakesAndMoreAreRefusedWithWords)
{
    std::string broken = kHeader;
    for (int i = 0; i < 40; ++i)
        broken += "msgid \"a" + std::to_string(i) + "\nmsgstr \"b\"\n";
    const ToolRun run = RunTranslationsProgram("build '" + Folder.Write("xx.po", broken) + "'");
    EXPECT_EQ(1, run.Code);
    EXPECT_THAT(run.Out, HasSubstr(At(4, "end-of-line within string")));
}
