#include "dialogs/city/CitySearch.h"

#include "frame/TavException.h"
#include "platform/Bytes.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace
{

// Up to this part of all cities, looking at each candidate's name is quicker than going over all
// names.
constexpr uint32_t kFewPart = 32;
// Units that may be read for one city looked at: many more than a name has. Names that all are
// long, or that overlap, are better searched together.
constexpr uint64_t kPatience = 128;

// Whether the text's rest follows its first unit at a place in a name.
bool TextStandsAt(const uint8_t* place, const FoldedText& text)
{
    for (size_t i = 1; i < text.Text.size(); ++i)
    {
        const uint16_t unit = bytes::GetU16LE(place + sizeof(Char16) * i);
        if (unit == 0 || text.Fold[unit] != text.Text[i])
            return false;
    }
    return true;
}

// Looks for the text in one name, and counts the units that were read down from `patience`; at 0 it
// gives up.
bool NameContains(const uint8_t* name, const FoldedText& text, uint64_t& patience)
{
    const Char16 first = text.Text.front();
    for (; patience != 0; name += sizeof(Char16), --patience)
    {
        const uint16_t unit = bytes::GetU16LE(name);
        if (unit == 0)
            return false;
        if (text.Fold[unit] == first && TextStandsAt(name, text))
            return true;
    }
    return false;
}

} // namespace

void CCitySearch::Attach(const CCityImage& image)
{
    m_image = image;
    m_names = CCityNames();
    m_index.clear();
    m_previous.clear();
    m_complete = kNotComplete;
    // An image that fails here leaves no cities.
    CCityNames names(image, image.CityCount());
    m_index.resize(image.CityCount());
    m_changed = CityCount();
    m_names = std::move(names);
}

uint32_t CCitySearch::Search(StringView16 text, bool restart, uint32_t currentCount)
{
    const bool narrows = !restart && BeginsWithPrevious(text);
    const FoldedText folded = {text, m_fold, m_units};
    const uint32_t found = narrows ? SearchShown(folded, currentCount) : SearchAll(folded);
    m_previous = text;
    return found;
}

uint32_t CCitySearch::At(size_t position) const
{
    if (position >= m_index.size())
        ThrowBroken();
    return m_index[position];
}

bool CCitySearch::BeginsWithPrevious(StringView16 text) const
{
    const auto same = [this](Char16 a, Char16 b) { return m_fold[a] == m_fold[b]; };
    return text.size() >= m_previous.size() &&
           std::equal(m_previous.begin(), m_previous.end(), text.begin(), same);
}

uint32_t CCitySearch::SearchAll(const FoldedText& text)
{
    m_complete = kNotComplete;
    if (text.Text.empty())
    {
        ResetFrom(0);
        m_complete = CityCount();
        return m_complete;
    }
    const uint32_t found = m_names.List(text, m_index.data());
    m_changed = std::max(m_changed, found);
    // The cities before the first one that can't be read have been met by then.
    const uint32_t broken = m_names.FirstBroken();
    const auto end = m_index.begin() + found;
    ResetFrom(
        static_cast<uint32_t>(std::lower_bound(m_index.begin(), end, broken) - m_index.begin()));
    if (broken != CityCount())
        ThrowBroken();
    m_complete = found;
    return found;
}

uint32_t CCitySearch::SearchShown(const FoldedText& text, uint32_t currentCount)
{
    const bool complete =
        m_complete == currentCount && text.Text.substr(0, m_previous.size()) == m_previous;
    m_complete = kNotComplete;
    const uint32_t candidates = std::min(currentCount, CityCount());
    uint32_t found = currentCount;
    if (!text.Text.empty())
    {
        const uint32_t changedBefore = std::exchange(m_changed, std::max(m_changed, candidates));
        // Every city that contains this text contains the previous one: then all cities are as
        // good a place to look in.
        if (complete && candidates > CityCount() / kFewPart && m_names.FirstBroken() == CityCount())
            found = m_names.List(text, m_index.data());
        else
            found = Filter(text, candidates);
        m_changed = std::max(changedBefore, found);
        if (candidates != currentCount)
            ThrowBroken();
    }
    m_complete = complete ? found : kNotComplete;
    return found;
}

uint32_t CCitySearch::Filter(const FoldedText& text, uint32_t candidates)
{
    uint32_t read = 0;
    uint32_t kept = 0;
    if (candidates <= CityCount() / kFewPart)
    {
        uint64_t patience = kPatience * candidates + kPatience;
        for (; read < candidates; ++read)
        {
            const bool contains = NameContains(m_names.NameOf(m_index[read]), text, patience);
            if (patience == 0)
                break;
            if (contains)
                m_index[kept++] = m_index[read];
        }
    }
    if (read == candidates)
        return kept;
    const CityMarks marks = m_names.Mark(text);
    for (; read < candidates; ++read)
    {
        const uint32_t city = m_index[read];
        if (city >= m_names.FirstBroken())
            m_names.NameOf(city);
        if (IsMarked(marks, city))
            m_index[kept++] = city;
    }
    return kept;
}

void CCitySearch::ResetFrom(uint32_t position)
{
    if (position < m_changed)
        std::iota(m_index.begin() + position, m_index.begin() + m_changed, position);
    m_changed = position;
}
