#include "tools/citydb/ZipFile.h"

namespace citydb
{

bool IsBeyondDeflate(uint64_t size, uint64_t packedSize)
{
    // Deflate can't shrink data further than this.
    constexpr uint64_t kDeflateLimit = 1032;
    return size > kDeflateLimit * packedSize + 64;
}

} // namespace citydb
