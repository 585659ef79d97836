// City images for measuring: one from a file, or one of generated names, the same on every run.
#pragma once

#include "dialogs/city/CityImage.h"
#include "platform/Bytes.h"

#include <clocale>
#include <cstdio>
#include <cwctype>
#include <memory>
#include <random>
#include <vector>

class CCitySample
{
public:
    // Generated: each name two to five syllables, one in five with a letter beyond ASCII.
    explicit CCitySample(uint32_t cities)
    {
        std::mt19937 random(20051101);
        std::vector<uint8_t> texts;
        constexpr uint32_t kHead = 8 + 4 * 12;
        m_image.resize(kHead + size_t{kRecordSize} * cities);
        const uint32_t header[] = {2, 4,     kHead, 0,   8,     kHead,  0,
                                   8, kHead, 0,     176, kHead, cities, kRecordSize};
        for (size_t i = 0; i < std::size(header); ++i)
            bytes::PutU32LE(m_image.data() + 4 * i, header[i]);
        const auto start = static_cast<uint32_t>(m_image.size());
        for (uint32_t city = 0; city < cities; ++city)
        {
            uint8_t* const record = m_image.data() + kHead + size_t{kRecordSize} * city;
            bytes::PutU32LE(record, city + 1);
            bytes::PutU32LE(record + 4, start + static_cast<uint32_t>(texts.size()));
            bytes::PutU32LE(record + 12, kNoCityRecord);
            bytes::PutU32LE(record + 16, kNoCityRecord);
            for (const Char16 unit : Name(random))
                texts.insert(texts.end(),
                             {static_cast<uint8_t>(unit & 0xFF), static_cast<uint8_t>(unit >> 8)});
            texts.insert(texts.end(), 2, 0);
        }
        m_image.insert(m_image.end(), texts.begin(), texts.end());
        Close();
    }

    // The file's bytes; an empty image when it can't be read.
    explicit CCitySample(const char* path)
    {
        const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(path, "rb"),
                                                                   std::fclose);
        uint8_t part[0x10000];
        size_t got;
        while (file && (got = std::fread(part, 1, sizeof(part), file.get())) != 0)
            m_image.insert(m_image.end(), part, part + got);
        Close();
    }

    size_t Size() const { return m_image.size() - kCityImagePadding; }
    CCityImage View() const { return CCityImage(m_image.data(), Size()); }

private:
    static constexpr uint32_t kRecordSize = 20;

    static String16 Name(std::mt19937& random)
    {
        static const char* const kSyllables[] = {"lon", "san", "don", "ber", "ta", "ri", "mo", "el",
                                                 "ka",  "vil", "le",  "bur", "gh", "os", "na", "u",
                                                 "sto", "pe",  "ton", "ha",  "mi", "ra", "ch", "i"};
        String16 name;
        for (size_t syllables = 2 + random() % 4; syllables != 0; --syllables)
            for (const char* at = kSyllables[random() % std::size(kSyllables)]; *at != 0; ++at)
                name += static_cast<Char16>(*at);
        name[0] = static_cast<Char16>(name[0] - 0x20);
        if (random() % 5 == 0)
            name[random() % name.size()] = static_cast<Char16>(0xE0 + random() % 16);
        return name;
    }
    void Close() { m_image.resize(m_image.size() + kCityImagePadding); }

    std::vector<uint8_t> m_image;
};

// Lower-case forms as this machine's C library knows them.
inline std::vector<Char16> LowerCaseTable()
{
    std::setlocale(LC_CTYPE, "C.UTF-8");
    std::vector<Char16> fold(0x10000);
    for (size_t i = 0; i < fold.size(); ++i)
    {
        const std::wint_t lower = std::towlower(static_cast<std::wint_t>(i));
        fold[i] = static_cast<Char16>(lower < fold.size() ? lower : i);
    }
    return fold;
}
