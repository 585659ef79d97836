// A thin layer over libgettextpo: ownership, and its errors as exceptions.
#pragma once

#include <filesystem>
#include <memory>
#include <string>

#include <gettext-po.h>

namespace translations
{

struct PoFileDeleter
{
    void operator()(po_file_t file) const { po_file_free(file); }
};
using UniquePoFile = std::unique_ptr<struct po_file, PoFileDeleter>;

struct PoIteratorDeleter
{
    void operator()(po_message_iterator_t iterator) const { po_message_iterator_free(iterator); }
};
using UniquePoIterator = std::unique_ptr<struct po_message_iterator, PoIteratorDeleter>;

struct MallocDeleter
{
    void operator()(char* text) const { std::free(text); }
};
using UniqueCString = std::unique_ptr<char, MallocDeleter>;

// Both throw citydb::CInputError with everything that the library found wrong.
UniquePoFile ReadPo(const std::filesystem::path& path);
void WritePo(const UniquePoFile& file, const std::filesystem::path& path);

// A field of the header; empty without one.
std::string HeaderField(const char* header, const char* field);

} // namespace translations
