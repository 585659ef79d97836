// A valid image by hand, and where its fields are: what the builder's own code has no part in.
#pragma once

#include <cstdint>
#include <vector>

// Two areas, one subarea, two details and two cities.
namespace small
{

constexpr uint32_t kAreas = 0x38;
constexpr uint32_t kSubareas = kAreas + 2 * 8;
constexpr uint32_t kDetails = kSubareas + 8;
constexpr uint32_t kCities = kDetails + 2 * 176;
constexpr uint32_t kTexts = kCities + 2 * 20;
constexpr uint32_t kEast = kTexts;       // "East"
constexpr uint32_t kWest = kEast + 10;   // "West"
constexpr uint32_t kCoast = kWest + 10;  // "Coast"
constexpr uint32_t kAlpha = kCoast + 12; // "Alpha"
constexpr uint32_t kBeta = kAlpha + 12;  // "Beta", and nothing behind its zero
constexpr uint32_t kEnd = kBeta + 10;

std::vector<uint8_t> Image();

void Put(std::vector<uint8_t>& image, uint32_t offset, uint32_t value);

} // namespace small
