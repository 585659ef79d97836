// Little-endian fields at byte offsets: records that cross a process, a file or the registry.
#pragma once

#include <cstddef>
#include <cstdint>

namespace bytes
{

// Reads the 16-bit word at p; the caller has checked that 2 bytes are there.
inline uint16_t GetU16LE(const uint8_t* p)
{
    return static_cast<uint16_t>(p[0] | (p[1] << 8));
}

// Reads the 32-bit word at p; the caller has checked that 4 bytes are there.
inline uint32_t GetU32LE(const uint8_t* p)
{
    return static_cast<uint32_t>(GetU16LE(p)) | (static_cast<uint32_t>(GetU16LE(p + 2)) << 16);
}

// Writes a 16-bit word at p, which has room for 2 bytes.
inline void PutU16LE(uint8_t* p, uint16_t value)
{
    p[0] = static_cast<uint8_t>(value);
    p[1] = static_cast<uint8_t>(value >> 8);
}

// Writes a 32-bit word at p, which has room for 4 bytes.
inline void PutU32LE(uint8_t* p, uint32_t value)
{
    PutU16LE(p, static_cast<uint16_t>(value));
    PutU16LE(p + 2, static_cast<uint16_t>(value >> 16));
}

} // namespace bytes
