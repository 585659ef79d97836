// Searching cities: the rules by name, and agreement with their plain reading on thousands of
// images, sound and broken.
#include "dialogs/city/CitySearch.h"
#include "tests/native/CityImages.h"

#include <gtest/gtest.h>

#include <chrono>
#include <random>
#include <string>

namespace
{

using Cities = std::vector<uint32_t>;

// A search over an image, driven as the dialog does.
class CSearched
{
public:
    explicit CSearched(const CCityImageBuilder& builder, const Char16* fold = TestFold())
        : m_image(builder.Build()), m_search(fold)
    {
        m_search.Attach(m_image.View());
        m_count = m_search.Search({}, true, 0);
    }

    Cities Type(StringView16 text) { return Run(text, false); }
    Cities Run(StringView16 text, bool restart)
    {
        m_count = m_search.Search(text, restart, m_count);
        return Front(m_count);
    }
    Cities Front(uint32_t count) const
    {
        Cities cities;
        for (uint32_t i = 0; i < count; ++i)
            cities.push_back(m_search.At(i));
        return cities;
    }
    CCitySearch& Search() { return m_search; }

private:
    CHeldImage m_image;
    CCitySearch m_search;
    uint32_t m_count = 0;
};

CCityImageBuilder Names(std::initializer_list<StringView16> names)
{
    CCityImageBuilder builder;
    for (const StringView16 name : names)
        builder.City(name);
    return builder;
}

CCityImageBuilder Sample()
{
    return Names({u"London", u"Loncin", u"Oslo", u"Abingdon", u"", u"LONDONDERRY", u"Paris"});
}

template <class Action>
bool IsBroken(Action action)
{
    try
    {
        action();
        return false;
    }
    catch (const CTavException& exception)
    {
        return exception.Code() == kTavBroken;
    }
}

TEST(CitySearch, AnEmptyTextListsEveryCityInTableOrder)
{
    CSearched searched(Sample());
    EXPECT_EQ((Cities{0, 1, 2, 3, 4, 5, 6}), searched.Type(u""));
    EXPECT_EQ((Cities{0, 1, 2, 3, 4, 5, 6}), searched.Run(u"", true));
}

TEST(CitySearch, ATextInTheMiddleOfANameMatches)
{
    CSearched searched(Sample());
    EXPECT_EQ((Cities{0, 3, 5}), searched.Type(u"don"));
    EXPECT_EQ((Cities{1}), searched.Type(u"cin"));
    EXPECT_EQ((Cities{0, 1, 3, 5}), searched.Type(u"on"));
}

TEST(CitySearch, TheCaseOfTheNamesIsIgnored)
{
    CSearched searched(Names({u"\u00C5s", u"\u212Bs", u"\u00E5S", u"As", u"\u0416ukov",
                              u"\u0436UKOV", u"Kelvin", u"\u212Aelvin", u"\u0130zmir"}));
    EXPECT_EQ((Cities{0, 1, 2}), searched.Type(u"\u00E5s"));
    EXPECT_EQ((Cities{4, 5}), searched.Type(u"\u0436uk"));
    EXPECT_EQ((Cities{6, 7}), searched.Type(u"kelvin"));
    EXPECT_EQ((Cities{6, 7, 8}), searched.Run(u"i", true));
}

TEST(CitySearch, ATextThatIsNotLowerCasedIsFoundNowhere)
{
    CSearched searched(Sample());
    EXPECT_TRUE(searched.Type(u"L").empty());
    EXPECT_TRUE(searched.Run(u"lonDon", true).empty());
}

TEST(CitySearch, ATextLongerThanTheNameDoesNotMatch)
{
    CSearched searched(Names({u"London", u"derry", u"Lo", u"Londonderry"}));
    EXPECT_EQ((Cities{3}), searched.Type(u"londonderry"));
    EXPECT_TRUE(searched.Type(u"londonderryx").empty());
}

TEST(CitySearch, ATextNeverReachesOverTheEndOfAName)
{
    CSearched searched(Names({u"ab", u"cd"}));
    EXPECT_TRUE(searched.Type(u"bc").empty());
    EXPECT_TRUE(searched.Run({u"b\0c", 3}, true).empty());
    EXPECT_TRUE(searched.Run({u"\0", 1}, true).empty());
    EXPECT_TRUE(searched.Run({u"b\0", 2}, true).empty());
}

TEST(CitySearch, ATextNeverReachesOverTheEndOfAShownName)
{
    CCityImageBuilder builder;
    for (int i = 0; i < 100; ++i)
        builder.City(i % 2 == 0 ? u"ab" : u"cd");
    CSearched searched(builder);
    for (const StringView16 text : {StringView16(u"b\0", 2), StringView16(u"b\0c", 3)})
    {
        searched.Run(u"", true);
        EXPECT_EQ(0u, searched.Search().Search(text, false, 1));
    }
    searched.Run(u"", true);
    EXPECT_EQ(0u, searched.Search().Search(u"bc", false, 1));
}

TEST(CitySearch, AVeryLongShownNameIsSearchedToItsEnd)
{
    CCityImageBuilder builder;
    for (int i = 0; i < 100; ++i)
        builder.City(String16(5000, u'a') + (i == 1 ? u"c" : u"b"));
    CSearched searched(builder);
    EXPECT_EQ(2u, searched.Search().Search(u"b", false, 3));
    EXPECT_EQ((Cities{0, 2}), searched.Front(2));
}

TEST(CitySearch, TextsThatOnlyFoldAlikeNarrowToTheShownCities)
{
    std::vector<Char16> fold(TestFold(), TestFold() + 0x10000);
    fold['a'] = 'b';
    fold['b'] = 'c';
    CSearched searched(Names({u"a", u"b"}), fold.data());
    EXPECT_EQ((Cities{0}), searched.Type(u"b"));
    EXPECT_TRUE(searched.Type(u"c").empty());
    EXPECT_EQ((Cities{1}), searched.Run(u"c", true));
}

TEST(CitySearch, ARepeatedBeginningIsFoundAgainFurtherOn)
{
    CSearched searched(Names({u"aaab", u"ababac", u"aab"}));
    EXPECT_EQ((Cities{0, 2}), searched.Type(u"aab"));
    EXPECT_EQ((Cities{1}), searched.Type(u"abac"));
}

TEST(CitySearch, TypingOnLooksInTheShownCitiesOnly)
{
    CSearched searched(Sample());
    EXPECT_EQ(3u, searched.Type(u"lon").size());
    // Only the first one is said to be shown.
    EXPECT_EQ(1u, searched.Search().Search(u"lond", false, 1));
    EXPECT_EQ(0u, searched.Search().At(0));
    EXPECT_EQ(0u, searched.Search().Search(u"londo", false, 0));
}

TEST(CitySearch, DeletingALetterSearchesAllCitiesAgain)
{
    CSearched searched(Sample());
    searched.Type(u"lond");
    EXPECT_EQ((Cities{0, 1, 5}), searched.Type(u"lon"));
    EXPECT_EQ((Cities{0, 1, 2, 5}), searched.Type(u"lo"));
}

TEST(CitySearch, AnotherTextSearchesAllCitiesAgain)
{
    CSearched searched(Sample());
    searched.Type(u"lond");
    EXPECT_EQ((Cities{2}), searched.Type(u"osl"));
    EXPECT_EQ((Cities{6}), searched.Type(u"paris"));
}

TEST(CitySearch, ARestartSearchesAllCitiesThoughTheTextGrew)
{
    CSearched searched(Sample());
    searched.Type(u"lon");
    EXPECT_EQ(3u, searched.Search().Search(u"lon", true, 0));
    EXPECT_EQ(2u, searched.Search().Search(u"lond", true, 0));
}

TEST(CitySearch, ThePreviousTextIsComparedIgnoringCase)
{
    CSearched searched(Sample());
    EXPECT_TRUE(searched.Type(u"L").empty());
    EXPECT_TRUE(searched.Type(u"lo").empty());
}

TEST(CitySearch, TheSameTextAgainKeepsTheShownCities)
{
    CSearched searched(Sample());
    searched.Type(u"lon");
    EXPECT_EQ(2u, searched.Search().Search(u"lon", false, 2));
    EXPECT_EQ((Cities{0, 1}), searched.Front(2));
}

TEST(CitySearch, EntriesBehindTheResultsKeepWhatTheyHeld)
{
    CSearched searched(Sample());
    searched.Type(u"lo");
    EXPECT_EQ((Cities{0, 1, 2, 5, 4, 5, 6}), searched.Front(7));
    searched.Type(u"lond");
    EXPECT_EQ((Cities{0, 5, 2, 5, 4, 5, 6}), searched.Front(7));
    searched.Type(u"p");
    EXPECT_EQ((Cities{6, 1, 2, 3, 4, 5, 6}), searched.Front(7));
}

TEST(CitySearch, APositionBehindAllCitiesIsBroken)
{
    CSearched searched(Sample());
    EXPECT_EQ(6u, searched.Search().At(6));
    EXPECT_TRUE(IsBroken([&] { searched.Search().At(7); }));
    EXPECT_TRUE(IsBroken([&] { searched.Search().Search(u"x", false, 8); }));
}

TEST(CitySearch, WithoutAnImageNothingIsThere)
{
    CCitySearch search(TestFold());
    EXPECT_TRUE(IsBroken([&] { search.Attach(CCityImage()); }));
    EXPECT_EQ(0u, search.CityCount());
    EXPECT_EQ(0u, search.Search(u"lon", false, 0));
    EXPECT_EQ(0u, search.Search(u"", true, 0));
    EXPECT_TRUE(IsBroken([&] { search.At(0); }));
}

TEST(CitySearch, AnotherImageForgetsTheFirstOne)
{
    CSearched searched(Sample());
    searched.Type(u"lon");
    const CHeldImage other(Names({u"Paris", u"Lonely"}).Build());
    searched.Search().Attach(other.View());
    EXPECT_EQ(2u, searched.Search().CityCount());
    EXPECT_EQ((Cities{0, 1}), searched.Run(u"", true));
    EXPECT_EQ((Cities{1}), searched.Type(u"lone"));
}

TEST(CitySearch, AnotherImageForgetsThePreviousText)
{
    CSearched searched(Sample());
    searched.Type(u"lon");
    searched.Search().Search(u"lon", true, 0);
    const CHeldImage other(Names({u"Paris", u"Lonely"}).Build());
    searched.Search().Attach(other.View());
    // Any text begins with the empty one, so only what is said to be shown is searched.
    EXPECT_EQ(0u, searched.Search().Search(u"p", false, 0));
}

TEST(CitySearch, AFailedImageLeavesNoCities)
{
    CSearched searched(Sample());
    EXPECT_TRUE(IsBroken([&] { searched.Search().Attach(CCityImage()); }));
    EXPECT_EQ(0u, searched.Search().CityCount());
    EXPECT_EQ(0u, searched.Search().Search(u"lon", true, 0));
}

TEST(CitySearch, AnImageWithoutCitiesFindsNothing)
{
    CSearched searched(CCityImageBuilder{});
    EXPECT_TRUE(searched.Type(u"").empty());
    EXPECT_TRUE(searched.Type(u"a").empty());
}

TEST(CitySearch, CitiesShareTextsAndTheEndsOfOthers)
{
    CCityImageBuilder builder;
    const uint32_t text = builder.Text(u"New London");
    builder.CityAt(text + 8);
    builder.CityAt(text);
    builder.CityAt(text + 8);
    builder.CityAt(text + 10);
    CSearched searched(builder);
    EXPECT_EQ((Cities{0, 1, 2}), searched.Type(u"lon"));
    EXPECT_EQ((Cities{0, 1, 2, 3}), searched.Run(u"ondon", true));
    EXPECT_EQ((Cities{1}), searched.Run(u"w", true));
}

TEST(CitySearch, TextsInAnyOrderAreListedInTableOrder)
{
    CCityImageBuilder builder;
    std::vector<uint32_t> offsets;
    for (int i = 0; i < 300; ++i)
        offsets.push_back(builder.Text(i % 3 == 0 ? u"Ayr" : u"Ely"));
    std::reverse(offsets.begin(), offsets.end());
    Cities expected;
    for (uint32_t city = 0; city < 300; ++city)
    {
        builder.CityAt(offsets[city]);
        if (city % 3 == 2)
            expected.push_back(city);
    }
    CSearched searched(builder);
    EXPECT_EQ(expected, searched.Type(u"ay"));
}

TEST(CitySearch, TextsAtOddOffsetsAreFound)
{
    CCityImageBuilder builder;
    builder.City(u"London");
    builder.Raw({0});
    builder.City(u"Londonderry");
    builder.City(u"Oslo");
    builder.Raw({0});
    builder.City(u"Long");
    CSearched searched(builder);
    EXPECT_EQ((Cities{0, 1, 3}), searched.Type(u"lon"));
}

TEST(CitySearch, ANameThatReachesTheImagesEndIsSearchedWhole)
{
    for (const size_t extra : {0u, 1u, 2u, 3u})
    {
        Bytes image = Names({u"x"}).Build();
        const size_t first = image.size();
        for (const Char16 unit : StringView16(u"Unended"))
            image.insert(image.end(), {static_cast<uint8_t>(unit), 0});
        image.resize(image.size() - extra);
        SetField(image, first - 20 + 4, static_cast<uint32_t>(first));
        const CHeldImage held(image);
        CCitySearch search(TestFold());
        search.Attach(held.View());
        EXPECT_EQ(extra < 2 ? 1u : 0u, search.Search(u"unended", true, 0)) << extra;
        EXPECT_EQ(extra < 4 ? 1u : 0u, search.Search(u"unend", true, 0)) << extra;
    }
}

TEST(CitySearch, ANameOutsideTheImageIsBrokenWhereItIsMet)
{
    CCityImageBuilder builder = Sample();
    builder.CityAt(0x7FFFFFFF);
    builder.City(u"Lonato");
    CSearched searched(builder);
    EXPECT_TRUE(IsBroken([&] { searched.Type(u"lon"); }));
    // The city that can't be read is not among the first seven.
    EXPECT_EQ(9u, searched.Search().Search(u"", true, 0));
    EXPECT_EQ(3u, searched.Search().Search(u"lon", false, 7));
    EXPECT_TRUE(IsBroken([&] { searched.Search().Search(u"lon", true, 0); }));
    EXPECT_EQ((Cities{0, 1, 5, 3, 4, 5, 6, 7, 8}), searched.Front(9));
}

TEST(CitySearch, NoNameInsideTheImageIsBrokenAtTheFirstCity)
{
    CCityImageBuilder builder;
    for (int i = 0; i < 40; ++i)
        builder.CityAt(0x7FFFFFFF);
    CSearched searched(builder);
    EXPECT_TRUE(IsBroken([&] { searched.Search().Search(u"a", false, 1); }));
    EXPECT_TRUE(IsBroken([&] { searched.Search().Search(u"a", false, 40); }));
    EXPECT_TRUE(IsBroken([&] { searched.Search().Search(u"a", true, 0); }));
    EXPECT_EQ(0u, searched.Search().Search(u"a", false, 0));
}

TEST(CitySearch, AnEmptyTextNeedsNoNames)
{
    CCityImageBuilder builder = Sample();
    builder.CityAt(0xFFFFFFFF);
    EXPECT_EQ(8u, CSearched(builder).Type(u"").size());
}

TEST(CitySearch, AUnitThatManyOthersAreFoldedToIsFound)
{
    std::vector<Char16> fold(TestFold(), TestFold() + 0x10000);
    for (const Char16 unit : u"\u0101\u0234\u0789\u0BCD\u0EF0\u1357\u2468")
        fold[unit] = unit == 0 ? u'\0' : u'e';
    CSearched searched(Names({u"\u0234x", u"Ex", u"ex", u"\u2468x", u"ax"}), fold.data());
    EXPECT_EQ((Cities{0, 1, 2, 3}), searched.Type(u"e"));
    EXPECT_EQ((Cities{0, 1, 2, 3}), searched.Run(u"ex", true));
    EXPECT_TRUE(searched.Run(u"ea", true).empty());
}

// Agreement with the plain reading.

class CRandomCase
{
public:
    explicit CRandomCase(unsigned seed) : m_random(seed) {}

    bool Once(unsigned in) { return m_random() % in == 0; }
    size_t Below(size_t end) { return m_random() % end; }

    Bytes Image()
    {
        CCityImageBuilder builder;
        const size_t units = Below(Once(3) ? 2500 : 60) + 1;
        const unsigned zeros = Once(4) ? 1000 : 8;
        String16 text;
        for (size_t i = 0; i < units; ++i)
            text += Once(zeros) ? u'\0' : Unit();
        const uint32_t first = builder.Text(text);
        AddCities(builder, text, first);
        Bytes image = builder.Build();
        if (Once(20))
            SetField(image, RecordSizeField(3), 20 + static_cast<uint32_t>(Below(3)));
        if (Once(20))
            SetField(image, RecordCountField(3), static_cast<uint32_t>(Below(20)));
        return image;
    }

    // Often the last text and something more.
    String16 Text(const String16& last)
    {
        String16 text = Once(3) ? String16() : last;
        if (Once(5) && !text.empty())
            text.pop_back();
        for (size_t more = Below(Once(8) ? 12 : 3); more != 0; --more)
            text += Once(40) ? u'A' : TestFold()[Unit()];
        return Once(60) ? text + u'\0' : text;
    }

private:
    void AddCities(CCityImageBuilder& builder, const String16& text, uint32_t first)
    {
        const size_t count = Below(Once(3) ? 400 : 20);
        const bool isTidy = Once(2);
        const bool hasOdd = Once(4);
        const unsigned broken = Once(6) ? (Once(4) ? 1 : 30) : 0;
        std::vector<uint32_t> offsets;
        for (size_t i = 0; i < count; ++i)
        {
            size_t unit = Below(text.size());
            // Where a text begins.
            while (isTidy && unit != 0 && text[unit - 1] != 0)
                --unit;
            uint32_t offset = first + 2 * static_cast<uint32_t>(unit);
            if (hasOdd && Once(2))
                ++offset;
            if (broken != 0 && Once(broken))
                offset = static_cast<uint32_t>(m_random()) | 0x100000;
            offsets.push_back(offset);
        }
        if (Once(2))
            std::sort(offsets.begin(), offsets.end());
        for (const uint32_t offset : offsets)
            builder.CityAt(offset);
    }

    Char16 Unit()
    {
        static constexpr Char16 kUnits[] = u"aAbBkK\u212Ai\u0130\u00E5\u00C5\u212B\u6100";
        return kUnits[Below(Once(3) ? std::size(kUnits) - 1 : 4)];
    }

    std::mt19937 m_random;
};

struct Outcome
{
    bool Broken;
    uint32_t Found;
};

template <class Search>
Outcome Run(Search& search, const String16& text, bool restart, uint32_t count)
{
    try
    {
        return {false, search.Search(text, restart, count)};
    }
    catch (const CTavException&)
    {
        return {true, 0};
    }
}

void CompareOneCase(unsigned seed)
{
    CRandomCase random(seed);
    const CHeldImage image(random.Image());
    CCitySearch search(TestFold());
    CPlainSearch plain(TestFold());
    bool isBroken = IsBroken([&] { plain.Attach(image.View()); });
    ASSERT_EQ(isBroken, IsBroken([&] { search.Attach(image.View()); }));
    String16 text;
    uint32_t count = 0;
    for (int step = 0; step < 12 && !isBroken; ++step)
    {
        text = random.Text(text);
        const bool restart = step == 0 || random.Once(6);
        if (random.Once(15))
            count = static_cast<uint32_t>(random.Below(plain.Index.size() + 2));
        const Outcome expected = Run(plain, text, restart, count);
        const Outcome outcome = Run(search, text, restart, count);
        ASSERT_EQ(expected.Broken, outcome.Broken);
        ASSERT_EQ(expected.Found, outcome.Found);
        for (size_t i = 0; i < plain.Index.size(); ++i)
            ASSERT_EQ(plain.Index[i], search.At(i)) << "position " << i;
        if (!expected.Broken)
            count = expected.Found;
    }
}

TEST(CitySearch, AgreesWithThePlainReadingOnRandomImages)
{
    for (unsigned seed = 0; seed < 4000; ++seed)
    {
        ASSERT_NO_FATAL_FAILURE(CompareOneCase(seed)) << "seed " << seed;
    }
}

// Images that would make a search that goes name by name read for hours.

double SecondsFor(CCitySearch& search, StringView16 text, bool restart, uint32_t count)
{
    const auto begin = std::chrono::steady_clock::now();
    search.Search(text, restart, count);
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
}

Bytes OverlappingNames(uint32_t cities, size_t units, uint32_t step)
{
    CCityImageBuilder builder;
    const uint32_t first = builder.Text(String16(units, u'a'));
    for (uint32_t i = 0; i < cities; ++i)
        builder.CityAt(first + i * step % static_cast<uint32_t>(2 * units));
    return builder.Build();
}

TEST(CitySearch, HugeOverlappingNamesAreSearchedInOneGo)
{
    for (const uint32_t step : {0u, 2u, 1u, 14u})
    {
        const CHeldImage image(OverlappingNames(300000, 500000, step));
        CCitySearch search(TestFold());
        search.Attach(image.View());
        EXPECT_LT(SecondsFor(search, u"b", true, 0), 0.5) << step;
        EXPECT_LT(SecondsFor(search, u"a", true, 0), 0.5) << step;
        EXPECT_LT(SecondsFor(search, u"ab", false, 300000), 0.5) << step;
        // Few candidates, each as long.
        search.Search(u"", true, 0);
        EXPECT_LT(SecondsFor(search, u"b", false, 9000), 0.5) << step;
    }
}

} // namespace
