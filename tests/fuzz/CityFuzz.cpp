// Fuzzes the city image and its search. A case is one byte for the number of keys, the keys, and
// the image: each key is a letter of a small alphabet that is typed, 0 deletes one, a high bit
// restarts. Every result is compared with a plain reading of the rules.
#include "dialogs/city/CitySearch.h"
#include "tests/native/CityImages.h"

#include <cstdlib>

namespace
{

constexpr uint8_t kRestart = 0x80;

void Check(bool condition)
{
    if (!condition)
        std::abort();
}

// False when the action met a bound.
template <class Action>
bool Works(Action action)
{
    try
    {
        action();
        return true;
    }
    catch (const CTavException& exception)
    {
        Check(exception.Code() == kTavBroken);
        return false;
    }
}

void ReadAll(const CCityImage& image, uint32_t cities)
{
    for (uint32_t i = 0; i < cities; ++i)
    {
        const CityRecord city = image.City(i);
        Char16 area[20];
        if (Works([&] { FormatCityArea(image, city, area, std::size(area)); }))
            Check(area[std::size(area) - 1] == 0);
        Works(
            [&] {
                Check(image.DetailsOf(city.Details) + kCityDetailsSize <=
                      image.Data() + image.Size());
            });
    }
}

class CTyping
{
public:
    explicit CTyping(const CCityImage& image) : m_search(Search()), m_plain(TestFold())
    {
        m_isThere = Works([&] { m_plain.Attach(image); });
        Check(m_isThere == Works([&] { m_search.Attach(image); }));
        if (m_isThere)
            Run(true);
    }

    void Press(uint8_t key)
    {
        static constexpr Char16 kLetters[] = u"abkioA\u00E5\u0436\u6100\uFFFF";
        const size_t letter = key & ~kRestart;
        if (letter != 0)
            m_text += kLetters[letter % (std::size(kLetters) - 1)];
        else if (!m_text.empty())
            m_text.pop_back();
        if (m_isThere)
            Run((key & kRestart) != 0);
    }

private:
    void Run(bool restart)
    {
        uint32_t expected = 0, found = 0;
        const bool works = Works([&] { expected = m_plain.Search(m_text, restart, m_shown); });
        Check(works == Works([&] { found = m_search.Search(m_text, restart, m_shown); }));
        Check(expected == found);
        for (size_t i = 0; i < m_plain.Index.size(); ++i)
            Check(m_plain.Index[i] == m_search.At(i));
        if (works)
            m_shown = found;
    }

    // One for all cases: making it takes longer than a case.
    static CCitySearch& Search()
    {
        static CCitySearch search(TestFold());
        return search;
    }

    CCitySearch& m_search;
    CPlainSearch m_plain;
    String16 m_text;
    uint32_t m_shown = 0;
    bool m_isThere;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    if (size == 0 || size - 1 < data[0])
        return 0;
    const uint8_t* const keys = data + 1;
    const uint8_t* const image = keys + data[0];
    const CHeldImage held(Bytes(image, data + size));
    if (!CCityImage::IsUsable(held.View().Data(), held.View().Size()))
        return 0;
    CTyping typing(held.View());
    for (const uint8_t* key = keys; key != image; ++key)
        typing.Press(*key);
    uint32_t cities = 0;
    if (Works([&] { cities = held.View().CityCount(); }))
        ReadAll(held.View(), cities);
    return 0;
}
