// Zip archives with one member: what the archive forms are made of. The builds for this machine and
// for Windows have different libraries behind it.
#pragma once

#include <cstdint>
#include <filesystem>
#include <vector>

namespace citydb
{

// Writes an archive whose only member holds the bytes, deflated and dated 1980-01-01: the same
// image gives the same bytes. Throws CInputError.
void WriteZip(const std::filesystem::path& path, const char* member,
              const std::vector<uint8_t>& image);

// The bytes of the member, whose name may be spelt in any case. Throws CInputError, also when the
// member claims more than `limit` bytes.
std::vector<uint8_t> ReadZip(const std::filesystem::path& path, const char* member, uint64_t limit);

// True when so many packed bytes can't hold so many.
bool IsBeyondDeflate(uint64_t size, uint64_t packedSize);

} // namespace citydb
