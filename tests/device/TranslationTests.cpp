// The device's languages: every text of the module's resources, of the shell and of the built-in
// menu has a translation, with the same placeholders, in the encoding that the module reads.
#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>
#include <vector>

#include "device/SampleMenu.h"
#include "device/SamplePlugins.h"
#include "device/Texts.h"
#include "frame/Localizer.h"
#include "platform/Handles.h"
#include "tests/device/ModuleTexts.h"

namespace
{

using Translations = std::map<std::wstring, std::wstring>;

std::string ReadBytes(const std::string& name)
{
    const std::string path = std::string(TAV_LANGUAGES) + "/" + name;
    const UniqueFile file(CreateFileA(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr,
                                      OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    EXPECT_TRUE(file) << path;
    std::string bytes(file ? GetFileSize(file.get(), nullptr) : 0, '\0');
    DWORD length = 0;
    if (!bytes.empty())
        ReadFile(file.get(), bytes.data(), static_cast<DWORD>(bytes.size()), &length, nullptr);
    EXPECT_EQ(bytes.size(), length);
    return bytes;
}

std::wstring Decode(const std::string& bytes, UINT codePage)
{
    std::wstring text(bytes.size(), L'\0');
    text.resize(static_cast<size_t>(MultiByteToWideChar(codePage, 0, bytes.data(),
                                                        static_cast<int>(bytes.size()), text.data(),
                                                        static_cast<int>(text.size()))));
    return text;
}

// The source of a language as "English|translation" lines; comments have no bar.
Translations ReadSource(const std::string& language)
{
    std::wstring text = Decode(ReadBytes(language + "/texts.txt"), CP_UTF8);
    Translations found;
    size_t begin = 0;
    while (begin < text.size())
    {
        const size_t end = std::min(text.find(L'\n', begin), text.size());
        const std::wstring line = text.substr(begin, end - begin);
        const size_t bar = line.find(L'|');
        if (bar != std::wstring::npos)
        {
            EXPECT_EQ(0u, found.count(line.substr(0, bar))) << "twice: " << line;
            found[line.substr(0, bar)] = line.substr(bar + 1);
        }
        begin = end + 1;
    }
    return found;
}

std::set<std::wstring> AllTexts()
{
    std::set<std::wstring> texts = TextsOfModule(L"TavLumenarDialogs.dll");
    EXPECT_GE(texts.size(), 20u) << "the module's resources were not found";
    for (const wchar_t* text : texts::kAll)
        texts.insert(text);
    for (const sample::MenuKey& key : sample::MenuKeys())
        if (key.Text && key.Where != sample::Layer::Customised)
            texts.insert(key.Text);
    for (const sample::PluginKey& plugin : sample::PluginKeys())
        if (plugin.BuiltIn == 1 && *plugin.Text)
            texts.insert(plugin.Text);
    return texts;
}

std::vector<std::wstring> Placeholders(const std::wstring& text)
{
    std::vector<std::wstring> found;
    for (size_t i = text.find(L'%'); i != std::wstring::npos; i = text.find(L'%', i + 1))
        found.push_back(text.substr(i, 2));
    return found;
}

class Languages : public testing::TestWithParam<std::string>
{
};

} // namespace

TEST_P(Languages, EveryTextHasATranslation)
{
    const Translations translations = ReadSource(GetParam());
    for (const std::wstring& text : AllTexts())
    {
        const auto found = translations.find(text);
        EXPECT_TRUE(found != translations.end() && !found->second.empty()) << text;
    }
}

TEST_P(Languages, EveryEntryIsStillUsed)
{
    const std::set<std::wstring> texts = AllTexts();
    for (const auto& entry : ReadSource(GetParam()))
        EXPECT_EQ(1u, texts.count(entry.first)) << entry.first;
}

TEST_P(Languages, PlaceholdersAreTheSameInTheTranslation)
{
    for (const auto& entry : ReadSource(GetParam()))
        EXPECT_EQ(Placeholders(entry.first), Placeholders(entry.second)) << entry.first;
}

INSTANTIATE_TEST_SUITE_P(All, Languages, testing::Values("de", "ru"));

TEST(LanguageFiles, GermanIsUtf16MadeFromItsSource)
{
    CTavLocalizerWTL localizer;
    const std::wstring path = Decode(std::string(TAV_LANGUAGES) + "/de/TavLumenar.txt", CP_UTF8);
    EXPECT_EQ("\xFF\xFE", ReadBytes("de/TavLumenar.txt").substr(0, 2));
    ASSERT_TRUE(localizer.LoadFile(path.c_str()));
    for (const auto& entry : ReadSource("de"))
        EXPECT_STREQ(entry.second.c_str(), localizer.TranslateText(entry.first.c_str()));
}

TEST(LanguageFiles, RussianIsInItsAnsiCodePageMadeFromItsSource)
{
    const std::wstring text = Decode(ReadBytes("ru/TavLumenar.txt"), 1251);
    for (const auto& entry : ReadSource("ru"))
        EXPECT_NE(std::wstring::npos,
                  text.find(L"\n" + entry.first + L"|" + entry.second + L"\r\n"))
            << entry.first;
}
