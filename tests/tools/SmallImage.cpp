#include "tests/tools/SmallImage.h"

#include <initializer_list>

namespace small
{

namespace
{

void PutAll(std::vector<uint8_t>& image, uint32_t offset, std::initializer_list<uint32_t> values)
{
    for (const uint32_t value : values)
    {
        Put(image, offset, value);
        offset += 4;
    }
}

void PutText(std::vector<uint8_t>& image, uint32_t offset, const char* text)
{
    for (; *text != 0; ++text, offset += 2)
        image[offset] = static_cast<uint8_t>(*text);
}

void PutDetails(std::vector<uint8_t>& image, uint32_t offset, uint32_t city)
{
    PutAll(image, offset, {city, 1, 46948090, 7447440, 134000});
    PutText(image, offset + 4 + 16, "CH");
    PutText(image, offset + 4 + 24, "Europe/Zurich");
}

} // namespace

void Put(std::vector<uint8_t>& image, uint32_t offset, uint32_t value)
{
    for (int i = 0; i < 4; ++i)
        image.at(offset + static_cast<uint32_t>(i)) = static_cast<uint8_t>(value >> (8 * i));
}

std::vector<uint8_t> Image()
{
    std::vector<uint8_t> image(kEnd);
    PutAll(image, 0, {2, 4, kAreas, 2, 8, kSubareas, 1, 8, kDetails, 2, 176, kCities, 2, 20});
    PutAll(image, kAreas, {1, kEast, 2, kWest});
    PutAll(image, kSubareas, {3, kCoast});
    PutDetails(image, kDetails, 100);
    PutDetails(image, kDetails + 176, 200);
    PutAll(image, kCities, {100, kAlpha, 0, 0xFFFFFFFF, 0});
    PutAll(image, kCities + 20, {200, kBeta, 1, 0, 1});
    PutText(image, kEast, "East");
    PutText(image, kWest, "West");
    PutText(image, kCoast, "Coast");
    PutText(image, kAlpha, "Alpha");
    PutText(image, kBeta, "Beta");
    return image;
}

} // namespace small
