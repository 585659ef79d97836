#include "tests/tools/translations/TranslationsFixture.h"

#include "tools/translations/Commands.h"

#include <sstream>

// What the library for PO files still holds when a fatal mistake in a file makes it give up.
extern "C" const char* __lsan_default_suppressions();
extern "C" const char* __lsan_default_suppressions()
{
    return "leak:libgettextpo\n";
}

ToolRun RunTranslations(const std::vector<std::string>& arguments)
{
    std::vector<const char*> argv = {"translations"};
    for (const std::string& argument : arguments)
        argv.push_back(argument.c_str());
    std::ostringstream out;
    std::ostringstream err;
    const int code = translations::RunProgram(static_cast<int>(argv.size()), argv.data(), out, err);
    return {code, out.str(), err.str()};
}

ToolRun RunTranslationsProgram(const std::string& arguments)
{
    // Its leaks, of the library too, are looked for in the tests' own process.
    return RunShell(std::string("LSAN_OPTIONS=detect_leaks=0 '") + TAV_TRANSLATIONS + "' " +
                    arguments);
}

std::string CTranslationsTest::Po(const std::string& name, const std::string& entries,
                                  const std::string& encoding) const
{
    return Folder.Write(name, "msgid \"\"\n"
                              "msgstr \"\"\n"
                              "\"Language: xx\\n\"\n"
                              "\"Content-Type: text/plain; charset=UTF-8\\n\"\n"
                              "\"Content-Transfer-Encoding: 8bit\\n\"\n"
                              "\"X-Device-Encoding: " +
                                  encoding + "\\n\"\n\n" + entries);
}

void CTranslationsTest::WriteProject(const std::string& resources, const std::string& file,
                                     const std::string& code) const
{
    std::filesystem::create_directories(Folder.Path() / "resources");
    std::filesystem::create_directories(Folder.Path() / "device");
    Folder.Write("resources/All.rc2", resources);
    if (!file.empty())
        Folder.Write("device/" + file, code);
}

std::string CTranslationsTest::Extracted() const
{
    const ToolRun run = RunTranslations(
        {"extract", "--source", Folder.Path().string(), "--out", Folder.File("all.pot")});
    EXPECT_EQ(0, run.Code) << run.Err;
    return Slurp(Folder.File("all.pot"));
}

std::string CTranslationsTest::Built(const std::string& entries, const std::string& encoding) const
{
    const ToolRun run = RunTranslations({"build", Po("xx.po", entries, encoding)});
    EXPECT_EQ(0, run.Code) << run.Out << run.Err;
    return Slurp(Folder.File("xx/TavLumenar.txt"));
}

ToolRun CTranslationsTest::Check(const std::string& entries, const std::string& pattern) const
{
    return RunTranslations({"check", "--template", Po("all.pot", pattern), Po("xx.po", entries)});
}

std::string PoEntry(const std::string& english, const std::string& translation)
{
    return "msgid \"" + english + "\"\nmsgstr \"" + translation + "\"\n\n";
}

std::string Utf16(const std::string& text)
{
    std::string units;
    for (const char c : text)
        units += std::string(1, c) + '\0';
    return units;
}
