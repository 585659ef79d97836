#include "tools/citydb/TextCheck.h"

#include "platform/Bytes.h"

namespace citydb
{

namespace
{

bool IsHigh(uint16_t unit)
{
    return (unit & 0xFC00) == 0xD800;
}

bool IsLow(uint16_t unit)
{
    return (unit & 0xFC00) == 0xDC00;
}

} // namespace

CTextCheck::CTextCheck(const uint8_t* image, size_t size) : m_image(image), m_states(size / 2) {}

TextState CTextCheck::StateAt(uint32_t offset)
{
    std::vector<size_t> passed;
    TextState state = TextState::Unknown;
    for (size_t i = offset / 2; state == TextState::Unknown;)
    {
        if (i >= m_states.size())
        {
            state = TextState::NoEnd;
            break;
        }
        state = m_states[i];
        if (state != TextState::Unknown)
            break;
        passed.push_back(i);
        const uint16_t unit = Unit(i);
        const bool isPair = IsHigh(unit) && i + 1 < m_states.size() && IsLow(Unit(i + 1));
        if (unit == 0)
            state = TextState::Good;
        else if (!isPair && (IsHigh(unit) || IsLow(unit)))
            state = TextState::BrokenPair;
        i += isPair ? 2 : 1;
    }
    for (const size_t i : passed)
        m_states[i] = state;
    return state;
}

size_t CTextCheck::LengthAt(uint32_t offset, size_t limit) const
{
    size_t length = 0;
    for (size_t i = offset / 2; length < limit && i < m_states.size() && Unit(i) != 0; ++i)
        ++length;
    return length;
}

uint16_t CTextCheck::Unit(size_t index) const
{
    return bytes::GetU16LE(m_image + 2 * index);
}

} // namespace citydb
