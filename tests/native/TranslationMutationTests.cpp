// Damaged translation files: every truncation and every byte of valid files changed to 00, FF, 7F
// and 80. The sanitizers watch; here the parser's promises are checked on each.
#include "tests/native/Translations.h"

#include <gtest/gtest.h>

#include <string_view>

namespace
{

constexpr std::u16string_view kSample =
    u"; Sample translation\r\n"
    u"Done|Fertig\r\nCancel|Abbrechen\r\n"
    u"Menu Options ('%s')|Men\u00FCoptionen (\u00BB%s\u00AB)\r\n"
    u"two\\nlines|zwei\\nZeilen|rest\\\n\n\r"
    u" with \\| bar\\\\|mit \\| Strich\r|\nempty|\n|side\nDone|Fertig!\n"
    u"_LARGE_SMALL_FONTS|1\nlast\\";

using Bytes = std::vector<unsigned char>;

constexpr unsigned char kBytes[] = {0x00, 0xFF, 0x7F, 0x80};

// As the file's bytes become text in either encoding; one byte is one character of the code page.
String16 TextOfAnsi(const Bytes& bytes)
{
    return String16(bytes.begin(), bytes.end());
}

String16 TextOfUtf16(const Bytes& bytes)
{
    String16 text;
    for (size_t i = 0; i + 1 < bytes.size(); i += 2)
        text += static_cast<Char16>(bytes[i] | bytes[i + 1] << 8);
    return text;
}

Bytes AnsiSample()
{
    return Bytes(kSample.begin(), kSample.end());
}

Bytes Utf16Sample()
{
    Bytes bytes;
    for (const Char16 unit : kSample)
    {
        bytes.push_back(static_cast<unsigned char>(unit & 0xFF));
        bytes.push_back(static_cast<unsigned char>(unit >> 8));
    }
    return bytes;
}

// Every entry of the text is found in the map with the value of its last line, and nothing else is.
void Check(const String16& text)
{
    const Pairs pairs = Parsed(text);
    const CLoadedTexts loaded(text);
    std::vector<std::pair<String16, String16>> last;
    for (const auto& [key, value] : pairs)
    {
        ASSERT_FALSE(key.empty());
        ASSERT_FALSE(value.empty());
        auto same = last.begin();
        while (same != last.end() && same->first != key)
            ++same;
        if (same == last.end())
            last.emplace_back(key, value);
        else
            same->second = value;
    }
    ASSERT_EQ(last.size(), loaded.Map.Count);
    for (const auto& [key, value] : last)
        ASSERT_EQ(value, loaded[key.c_str()]);
}

template <class Decode>
void CheckTruncations(const Bytes& sample, Decode textOf)
{
    for (size_t length = 0; length <= sample.size(); ++length)
        Check(textOf(Bytes(sample.begin(), sample.begin() + static_cast<ptrdiff_t>(length))));
}

template <class Decode>
void CheckFlips(const Bytes& sample, Decode textOf)
{
    for (size_t i = 0; i < sample.size(); ++i)
        for (const unsigned char byte : kBytes)
        {
            Bytes changed = sample;
            changed[i] = byte;
            Check(textOf(changed));
        }
}

TEST(TranslationMutation, TheSamplesAreRead)
{
    EXPECT_EQ(7u, Parsed(kSample).size());
    EXPECT_EQ(Parsed(TextOfAnsi(AnsiSample())), Parsed(TextOfUtf16(Utf16Sample())));
}

TEST(TranslationMutation, EveryTruncationOfAnAnsiFileIsHarmless)
{
    CheckTruncations(AnsiSample(), TextOfAnsi);
}

TEST(TranslationMutation, EveryTruncationOfAUtf16FileIsHarmless)
{
    CheckTruncations(Utf16Sample(), TextOfUtf16);
}

TEST(TranslationMutation, EveryChangedByteOfAnAnsiFileIsHarmless)
{
    CheckFlips(AnsiSample(), TextOfAnsi);
}

TEST(TranslationMutation, EveryChangedByteOfAUtf16FileIsHarmless)
{
    CheckFlips(Utf16Sample(), TextOfUtf16);
}

} // namespace
