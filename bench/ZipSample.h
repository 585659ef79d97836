// Members to read in the benchmarks, and the least work that reading one takes.
#pragma once

#include "tests/skin/BitmapSample.h"
#include "tests/support/ZipWriter.h"

#include <cstdint>
#include <string>

// A picture of 10.5 MB that packs to about a sixth: shapes, shades and a little noise.
inline std::string PictureFile()
{
    BitmapSample sample;
    sample.width = 1872;
    sample.height = 1868;
    std::string file = sample.Text();
    uint32_t noise = 1;
    for (size_t i = sample.PixelOffset(); i < file.size(); ++i)
    {
        const size_t pixel = i - sample.PixelOffset();
        const size_t row = pixel / sample.Stride();
        const size_t column = pixel % sample.Stride() / 3;
        noise = noise * 1664525 + 1013904223;
        const bool isRough = (row / 64 + column / 64) % 3 == 0;
        file[i] = static_cast<char>((row + pixel % 3 * 40) / 8 + (isRough ? noise >> 29 : 0));
    }
    return file;
}

// A database of 6.9 MB with many short UTF-16 names and numbers; packs to about a third.
inline std::string DatabaseFile()
{
    std::string file;
    uint32_t random = 1;
    const auto next = [&random](uint32_t below)
    {
        random = random * 1664525 + 1013904223;
        return (random >> 8) % below;
    };
    const char* const syllables[] = {"lon", "don", "ber", "lin", "ma", "ri", "san", "ta", "ka",
                                     "no",  "vil", "le",  "bur", "g",  "to", "ne",  "os", "el"};
    while (file.size() < 6860000)
    {
        for (uint32_t count = 2 + next(3); count > 0; --count)
            for (const char* letter = syllables[next(18)]; *letter != 0; ++letter)
                file.append({*letter, '\0'});
        file.append(2, '\0');
        for (int i = 0; i < 4; ++i)
            file.append({static_cast<char>(next(256)), static_cast<char>(next(4)), '\0', '\0'});
    }
    return file;
}

// Unpacks into `out`, which has room for `size` bytes, in one call.
inline bool InflateAtOnce(const zip::Bytes& packed, void* out, size_t size)
{
    z_stream stream = {};
    inflateInit2(&stream, -MAX_WBITS);
    stream.next_in = const_cast<Bytef*>(packed.data());
    stream.avail_in = static_cast<uInt>(packed.size());
    stream.next_out = static_cast<Bytef*>(out);
    stream.avail_out = static_cast<uInt>(size);
    const int result = inflate(&stream, Z_FINISH);
    inflateEnd(&stream);
    return result == Z_STREAM_END;
}

// The least that reading a deflated member takes.
inline bool InflateAndCheck(const zip::Entry& entry, void* out)
{
    const auto size = static_cast<uInt>(entry.size);
    return InflateAtOnce(entry.packed, out, size) &&
           crc32(0, static_cast<const Bytef*>(out), size) == entry.crc;
}
