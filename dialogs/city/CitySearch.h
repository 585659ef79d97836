// Finds cities by a part of their name. Typing on narrows what was found; anything else starts
// afresh. The texts are compared as the system lower-cases them.
#pragma once

#include "dialogs/city/CityNames.h"

#include <vector>

// The result index of one dialog and the search that fills it. Allocation failures leave as
// std::bad_alloc, broken images as CTavException with 0x84000001.
class CCitySearch
{
public:
    // `fold` gives the lower-case form of each of the 65,536 code units and must outlive the
    // object.
    explicit CCitySearch(const Char16* fold) : m_fold(fold), m_units(fold) {}

    // Starts on another image, which must outlive its use here: the index gets one entry per city.
    // The previous text becomes empty.
    void Attach(const CCityImage& image);

    // Fills the front of the index with the cities whose names contain `text`, which is already
    // lower-cased, and returns how many they are. Unless `restart` is set, a text that begins with
    // the previous one is looked for in the first `currentCount` entries only.
    uint32_t Search(StringView16 text, bool restart, uint32_t currentCount);

    // The record number of the city at a position of the index; throws at or behind the number of
    // all cities.
    uint32_t At(size_t position) const;
    uint32_t CityCount() const { return static_cast<uint32_t>(m_index.size()); }
    const CCityImage& Image() const { return m_image; }

private:
    bool BeginsWithPrevious(StringView16 text) const;
    uint32_t SearchAll(const FoldedText& text);
    uint32_t SearchShown(const FoldedText& text, uint32_t currentCount);
    uint32_t Filter(const FoldedText& text, uint32_t candidates);
    void ResetFrom(uint32_t position);

    const Char16* m_fold;
    CFoldedUnits m_units;
    CCityImage m_image;
    CCityNames m_names;
    std::vector<uint32_t> m_index;
    // From here on each entry of the index is its own position.
    uint32_t m_changed = 0;
    // How many entries are all the cities that contain the previous text, in table order.
    uint32_t m_complete = kNotComplete;
    String16 m_previous;

    static constexpr uint32_t kNotComplete = 0xFFFFFFFF;
};
