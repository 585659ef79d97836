// Checks the texts of an image. Records may share texts or begin inside of one another's: each unit
// is looked at once all the same.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace citydb
{

enum class TextState : uint8_t
{
    Unknown,
    Good,
    NoEnd,     // the image ends before the text does
    BrokenPair // half of a surrogate pair stands alone
};

class CTextCheck
{
public:
    CTextCheck(const uint8_t* image, size_t size);

    // `offset` is even.
    TextState StateAt(uint32_t offset);
    // Units of a good text up to its zero, counting no further than `limit`.
    size_t LengthAt(uint32_t offset, size_t limit) const;

private:
    uint16_t Unit(size_t index) const;

    const uint8_t* m_image;
    // What a text is like that begins at each unit.
    std::vector<TextState> m_states;
};

} // namespace citydb
