// Whole files in and out, with errors that name the file.
#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace citydb
{

// The path that a UTF-8 name from the command line means; by itself the C++ library takes narrow
// names on Windows for those of an old code page.
std::filesystem::path PathOf(const std::string& utf8);

// The bytes of a file; throws CInputError when it can't be read or is larger than `limit`.
std::string ReadFile(const std::filesystem::path& path, uint64_t limit);

// Lets `write` make a file beside `path` and then renames it to `path`, so that whoever reads
// `path` meets the old file or the whole new one. When anything fails the beginnings are removed
// and CInputError is thrown.
void ReplaceFile(const std::filesystem::path& path,
                 const std::function<void(const std::filesystem::path& temporary)>& write);

// Writes the bytes, replacing a file as ReplaceFile does.
void WriteFile(const std::filesystem::path& path, const std::vector<uint8_t>& bytes);

} // namespace citydb
