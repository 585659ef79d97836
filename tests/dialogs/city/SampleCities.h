// The cities that the picker's tests choose from, as an image in memory.
#pragma once

#include "tests/native/CityImages.h"

#include <string>

// Row by row:
//
//     0  10  London    England              details counting up from 1
//     1  20  London    Ontario (Middlesex)  details counting up from 101
//     2  30  Abingdon  England              no details
//     3  40  MÜNCHEN   Bavaria              no details
//     4  20  Long Eaton  England (Kent)     no details; an identifier that row 1 has, too
//     5   0  Croydon   England (Kent)       no details
//     6  50  a name of 40 characters, a to n behind a whole alphabet; Bavaria
constexpr int kSampleCount = 7;
constexpr int kLongNameRow = 6;
constexpr wchar_t kLongName[] = L"Abcdefghijklmnopqrstuvwxyzabcdefghijklmn";
// What a record has room for of it.
constexpr wchar_t kLongNameCut[] = L"Abcdefghijklmnopqrstuvwxyzabcde";

inline CCityImageBuilder SampleCities()
{
    CCityImageBuilder builder;
    for (const wchar_t* area : {L"England", L"Ontario", L"Bavaria"})
        builder.Area(area);
    for (const wchar_t* subarea : {L"Kent", L"Middlesex"})
        builder.Subarea(subarea);
    builder.Details(1);
    builder.Details(101);
    builder.City({10, builder.Text(L"London"), 0, kNoCityRecord, 0});
    builder.City({20, builder.Text(L"London"), 1, 1, 1});
    builder.City({30, builder.Text(L"Abingdon"), 0, kNoCityRecord, kNoCityRecord});
    builder.City({40, builder.Text(L"MÜNCHEN"), 2, kNoCityRecord, kNoCityRecord});
    builder.City({20, builder.Text(L"Long Eaton"), 0, 0, kNoCityRecord});
    builder.City({0, builder.Text(L"Croydon"), 0, 0, kNoCityRecord});
    builder.City({50, builder.Text(kLongName), 2, kNoCityRecord, kNoCityRecord});
    return builder;
}

// Cities of one area, numbered from 1 and named "Town 1" on: more than any screen has rows for.
inline CCityImageBuilder ManyCities(uint32_t count)
{
    CCityImageBuilder builder;
    builder.Area(L"Somewhere");
    for (uint32_t i = 1; i <= count; ++i)
        builder.City(L"Town " + std::to_wstring(i));
    return builder;
}

// The position of a city's field in the sample's image, for tests that break it.
enum CityField : size_t
{
    FieldIdentifier = 0,
    FieldName = 4,
    FieldArea = 8,
    FieldSubarea = 12,
    FieldDetails = 16,
};

inline size_t PositionOf(const Bytes& image, uint32_t city, CityField field)
{
    return bytes::GetU32LE(image.data() + FirstRecordField(3)) + size_t{20} * city + field;
}
