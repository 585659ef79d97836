// Members of a zip archive, read through minizip. The archive may be damaged or made to do harm:
// whatever it claims, nothing is written behind the caller's buffer.
#pragma once

#include <cstdint>
#include <cstdio>

#include <unzip.h>

namespace skin
{

// Opens the archive in `file`, which the caller keeps open as long as the archive; minizip would
// forget a file of its own when memory runs out. Null when it is no archive; unzClose closes it.
unzFile OpenZip(std::FILE* file);

// Finds the member `name` without regard to case (of several, the first) and returns its size in
// bytes. 0 when it is missing, empty, or can't be read as a whole: encrypted, of an unknown method,
// of 4 GB - 1 or more, or said to be larger than its packed bytes could ever become.
uint32_t ZipMemberSize(unzFile archive, const char* name);

// Unpacks the member `name` into `buffer` of `size` bytes. False when it is missing, unreadable as
// above, larger than the buffer, or doesn't hold exactly what the archive says of it; the buffer's
// contents are undefined then. `attribute` gets the member's attributes, -1 when it is missing.
bool ReadZipMember(unzFile archive, const char* name, void* buffer, uint32_t size,
                   uint32_t& attribute);

} // namespace skin
