// The search under the system's own lower-casing: with every code unit, in names and as the text,
// it finds what CharLowerBuffW and a search in the copy find.
#include "dialogs/city/CitySearch.h"
#include "platform/Bytes.h"
#include "platform/Win.h"
#include "platform/os/Text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

namespace
{

// An image of these names and nothing else.
class CNamesImage
{
public:
    explicit CNamesImage(const std::vector<std::wstring>& names)
    {
        constexpr uint32_t kHead = 8 + 4 * 12;
        constexpr uint32_t kRecordSize = 20;
        const auto count = static_cast<uint32_t>(names.size());
        for (const uint32_t field :
             {2u, 4u, kHead, 0u, 8u, kHead, 0u, 8u, kHead, 0u, 176u, kHead, count, kRecordSize})
            Append(field);
        uint32_t text = kHead + kRecordSize * count;
        for (const std::wstring& name : names)
        {
            for (const uint32_t field : {0u, text, 0u, kNoCityRecord, kNoCityRecord})
                Append(field);
            text += static_cast<uint32_t>(2 * (name.size() + 1));
        }
        for (const std::wstring& name : names)
        {
            const auto* const units = reinterpret_cast<const uint8_t*>(name.c_str());
            m_bytes.insert(m_bytes.end(), units, units + 2 * (name.size() + 1));
        }
        m_bytes.resize(m_bytes.size() + kCityImagePadding);
    }
    CCityImage View() const
    {
        return CCityImage(m_bytes.data(), m_bytes.size() - kCityImagePadding);
    }

private:
    void Append(uint32_t field)
    {
        m_bytes.resize(m_bytes.size() + 4);
        bytes::PutU32LE(m_bytes.data() + m_bytes.size() - 4, field);
    }

    std::vector<uint8_t> m_bytes;
};

std::wstring Lowered(std::wstring text)
{
    CharLowerBuffW(text.data(), static_cast<DWORD>(text.size()));
    return text;
}

std::vector<std::wstring> Lowered(std::vector<std::wstring> texts)
{
    for (std::wstring& text : texts)
        text = Lowered(text);
    return texts;
}

std::vector<uint32_t> FoundIn(const std::vector<std::wstring>& lowered, const std::wstring& text)
{
    std::vector<uint32_t> found;
    for (uint32_t i = 0; i < lowered.size(); ++i)
        if (lowered[i].find(text) != std::wstring::npos)
            found.push_back(i);
    return found;
}

std::vector<uint32_t> Front(const CCitySearch& search, uint32_t count)
{
    std::vector<uint32_t> front;
    for (uint32_t i = 0; i < count; ++i)
        front.push_back(search.At(i));
    return front;
}

// Every unit but zero, each in the middle of a name of its own.
std::vector<std::wstring> NamesOfAllUnits()
{
    std::vector<std::wstring> names;
    for (unsigned unit = 1; unit < 0x10000; ++unit)
        names.push_back({L'P', static_cast<wchar_t>(unit), L'q'});
    return names;
}

TEST(SearchFold, EveryUnitIsFoundAsTheSystemLowerCasesIt)
{
    const std::vector<std::wstring> names = NamesOfAllUnits();
    std::vector<std::vector<uint32_t>> byForm(0x10000);
    for (uint32_t i = 0; i < names.size(); ++i)
        byForm[static_cast<size_t>(Lowered(names[i])[1])].push_back(i);
    const CNamesImage image(names);
    CCitySearch search(os::FoldTable());
    search.Attach(image.View());
    const std::wstring letters = L"pq";
    for (unsigned unit = 1; unit < 0x10000; unit += unit < 0x600 ? 1 : 37)
    {
        const auto form = static_cast<wchar_t>(unit);
        if (letters.find(form) != std::wstring::npos)
            continue;
        ASSERT_EQ(byForm[unit], Front(search, search.Search({&form, 1}, true, 0))) << unit;
    }
}

TEST(SearchFold, EveryNameIsFoundByItsOwnLowerCaseForm)
{
    const std::vector<std::wstring> names = NamesOfAllUnits();
    const CNamesImage image(names);
    CCitySearch search(os::FoldTable());
    search.Attach(image.View());
    const auto all = static_cast<uint32_t>(names.size());
    for (uint32_t i = 0; i < all; i += 61)
    {
        const std::vector<uint32_t> found =
            Front(search, search.Search(Lowered(names[i]), true, 0));
        ASSERT_NE(found.end(), std::find(found.begin(), found.end(), i)) << i;
    }
}

TEST(SearchFold, RandomNamesGiveWhatLowerCasingAndSearchingGives)
{
    std::mt19937 random(3);
    // Letters of several scripts in both cases, title-case ones, and signs.
    static constexpr wchar_t kUnits[] =
        L"aAbBkKiI\u212A\u212B\u00E5\u00C5\u0130\u0131\u00DF\u1E9E\u01C4\u01C5\u01C6\u0416\u0436"
        L"\u03A3\u03C3\u03C2\u10A0\u2C00\u1F88\u1F80\uFF21\uFF41\u24B6\u24D0\u0307 -'";
    const auto text = [&](size_t length)
    {
        std::wstring units;
        for (; length != 0; --length)
            units += kUnits[random() % (std::size(kUnits) - 1)];
        return units;
    };
    std::vector<std::wstring> names;
    for (int i = 0; i < 20000; ++i)
        names.push_back(text(random() % 12));
    const std::vector<std::wstring> lowered = Lowered(names);
    const CNamesImage image(names);
    CCitySearch search(os::FoldTable());
    search.Attach(image.View());
    for (int round = 0; round < 60; ++round)
    {
        const std::wstring typed = Lowered(text(4));
        uint32_t shown = search.Search({}, true, 0);
        for (size_t length = 1; length <= typed.size(); ++length)
        {
            const std::wstring key = typed.substr(0, length);
            shown = search.Search(key, false, shown);
            ASSERT_EQ(FoundIn(lowered, key), Front(search, shown));
            ASSERT_EQ(shown, search.Search(key, true, 0));
        }
    }
}

TEST(SearchFold, UpperCaseLettersFindWhatLowerCaseOnesFind)
{
    const CNamesImage image({L"London", L"Oslo", L"ABINGDON"});
    CCitySearch search(os::FoldTable());
    search.Attach(image.View());
    const uint32_t lower = search.Search(os::FoldCase(L"don"), true, 0);
    const std::vector<uint32_t> found = Front(search, lower);
    EXPECT_EQ((std::vector<uint32_t>{0, 2}), found);
    EXPECT_EQ(found, Front(search, search.Search(os::FoldCase(L"DON"), true, 0)));
}

} // namespace
