// A translation file of a given size, the same on every run: keys of 28 or 29 characters made of
// words, as in a real one. (Running numbers would be no fair sample: the map's hash gives many of
// them the same value.)
#pragma once

#include "platform/Char16.h"

#include <random>
#include <string>
#include <vector>

struct TranslatorSample
{
    explicit TranslatorSample(unsigned entries)
    {
        std::mt19937 random(20051101);
        for (unsigned i = 0; i < entries; ++i)
        {
            keys.push_back(Text(random));
            values.push_back(Text(random));
            absent.push_back(Text(random));
            file += keys.back() + u"|" + values.back() + u"\r\n";
        }
    }

    String16 file;
    std::vector<String16> keys;
    std::vector<String16> values;
    // Texts of the same kind that aren't in the file.
    std::vector<String16> absent;

private:
    // 28 or 29 characters in words of three to nine letters.
    static String16 Text(std::mt19937& random)
    {
        String16 text;
        const size_t length = 28 + random() % 2;
        while (text.size() < length)
        {
            for (size_t letters = 3 + random() % 7; letters != 0; --letters)
                text += static_cast<Char16>(u'a' + random() % 26);
            text += u' ';
        }
        text.resize(length);
        text.back() = u'.';
        return text;
    }
};
