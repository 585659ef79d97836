// What the city search is measured against: the same names in a SQLite table, in a SQLite trigram
// index, in one lower-cased block for memmem, and in the image, searched name by name.
#pragma once

#include "bench/CitySample.h"

#include <sqlite3.h>

#include <string>

// The names of an image, as UTF-8 and with their units.
class CCityNameList
{
public:
    explicit CCityNameList(const CCityImage& image);
    const std::vector<std::string>& Utf8() const { return m_utf8; }
    const std::vector<const Char16*>& Units() const { return m_units; }
    // The bytes from the first name to the end of the last one.
    const uint8_t* Begin() const { return m_begin; }
    const uint8_t* End() const { return m_end; }

private:
    std::vector<std::string> m_utf8;
    std::vector<const Char16*> m_units;
    const uint8_t* m_begin = nullptr;
    const uint8_t* m_end = nullptr;
};

// A database in memory with one table of names.
class CSqliteNames
{
public:
    // Ends the program when SQLite fails: there is nothing to measure then.
    CSqliteNames(const std::vector<std::string>& names, const char* createTable);
    ~CSqliteNames();
    CSqliteNames(const CSqliteNames&) = delete;
    CSqliteNames& operator=(const CSqliteNames&) = delete;

    // Reads the numbers of the rows whose names contain the text, and returns how many they are.
    uint32_t Find(const std::string& text);

private:
    void Require(bool condition) const;

    sqlite3* m_database = nullptr;
    sqlite3_stmt* m_find = nullptr;
    std::vector<int64_t> m_rows;
};

// All names in one block of UTF-8, lower-cased beforehand (ASCII only), each behind a line end.
class CLowerCasedBlock
{
public:
    explicit CLowerCasedBlock(const std::vector<std::string>& names);
    uint32_t Find(const std::string& text) const;

private:
    std::string m_block;
};

// Copies each name to the stack, lower-cases it there and searches it.
uint32_t FindNaively(const CCityNameList& names, const String16& text, const Char16* fold,
                     std::vector<uint32_t>& cities);
