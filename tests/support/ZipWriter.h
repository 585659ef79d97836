// Writes zip archives for tests, byte by byte, so that every field can be made to lie. Works
// without windows.h: the native tests and the fuzzers use it too.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include <zlib.h>

namespace zip
{

using Bytes = std::vector<uint8_t>;

constexpr uint16_t kEncrypted = 1;
constexpr uint16_t kStored = 0;
constexpr uint16_t kDeflated = 8;
constexpr uint16_t kBzip2 = 12;

// One member, as the archive claims it is; `packed` is what it really holds.
struct Entry
{
    std::string name;
    Bytes packed;
    uint16_t flags = 0;
    uint16_t method = kStored;
    uint32_t crc = 0;
    // 32-bit sizes are given as 0xFFFFFFFF when these don't fit.
    uint64_t packedSize = 0;
    uint64_t size = 0;
    uint32_t attributes = 0x20;
};

inline uint32_t CrcOf(std::string_view data)
{
    return static_cast<uint32_t>(
        crc32(0, reinterpret_cast<const Bytef*>(data.data()), static_cast<uInt>(data.size())));
}

inline Entry Stored(const std::string& name, std::string_view data)
{
    Entry entry;
    entry.name = name;
    entry.packed.assign(data.begin(), data.end());
    entry.crc = CrcOf(data);
    entry.packedSize = entry.size = data.size();
    return entry;
}

// Data without zlib's header, as archives hold it.
inline Bytes Deflate(std::string_view data, int level = 6)
{
    z_stream stream = {};
    deflateInit2(&stream, level, Z_DEFLATED, -MAX_WBITS, 8, Z_DEFAULT_STRATEGY);
    Bytes packed(deflateBound(&stream, static_cast<uLong>(data.size())));
    stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(data.data()));
    stream.avail_in = static_cast<uInt>(data.size());
    stream.next_out = packed.data();
    stream.avail_out = static_cast<uInt>(packed.size());
    deflate(&stream, Z_FINISH);
    packed.resize(stream.total_out);
    deflateEnd(&stream);
    return packed;
}

inline Entry Deflated(const std::string& name, std::string_view data)
{
    Entry entry = Stored(name, data);
    entry.method = kDeflated;
    entry.packed = Deflate(data);
    entry.packedSize = entry.packed.size();
    return entry;
}

// Appends fields to an archive.
class CWriter
{
public:
    void U16(uint64_t value) { Number(value, 2); }
    void U32(uint64_t value) { Number(value, 4); }
    void U64(uint64_t value) { Number(value, 8); }
    template <class Range>
    void Append(const Range& range)
    {
        bytes.insert(bytes.end(), range.begin(), range.end());
    }
    uint64_t Position() const { return bytes.size(); }

    Bytes bytes;

private:
    void Number(uint64_t value, int count)
    {
        for (int i = 0; i < count; ++i)
            bytes.push_back(static_cast<uint8_t>(value >> (8 * i)));
    }
};

inline bool NeedsLongSizes(const Entry& entry)
{
    return entry.size > UINT32_MAX || entry.packedSize > UINT32_MAX;
}

// The fields that stand alike before the member and in the directory.
inline void WriteCommon(CWriter& out, const Entry& entry)
{
    const bool isLong = NeedsLongSizes(entry);
    out.U16(isLong ? 45 : 20);
    out.U16(entry.flags);
    out.U16(entry.method);
    out.U32(0x58210000); // a date
    out.U32(entry.crc);
    out.U32(isLong ? UINT32_MAX : entry.packedSize);
    out.U32(isLong ? UINT32_MAX : entry.size);
    out.U16(entry.name.size());
    out.U16(isLong ? 20 : 0);
}

inline void WriteLongSizes(CWriter& out, const Entry& entry)
{
    if (!NeedsLongSizes(entry))
        return;
    out.U16(1);
    out.U16(16);
    out.U64(entry.size);
    out.U64(entry.packedSize);
}

// The whole archive.
inline Bytes Archive(const std::vector<Entry>& entries)
{
    CWriter out;
    std::vector<uint64_t> positions;
    for (const Entry& entry : entries)
    {
        positions.push_back(out.Position());
        out.U32(0x04034B50);
        WriteCommon(out, entry);
        out.Append(entry.name);
        WriteLongSizes(out, entry);
        out.Append(entry.packed);
    }
    const uint64_t directory = out.Position();
    for (size_t i = 0; i < entries.size(); ++i)
    {
        out.U32(0x02014B50);
        out.U16(20);
        WriteCommon(out, entries[i]);
        out.U16(0); // comment
        out.U16(0); // disk
        out.U16(0); // internal attributes
        out.U32(entries[i].attributes);
        out.U32(positions[i]);
        out.Append(entries[i].name);
        WriteLongSizes(out, entries[i]);
    }
    const uint64_t directorySize = out.Position() - directory;
    out.U32(0x06054B50);
    out.U32(0); // disks
    out.U16(entries.size());
    out.U16(entries.size());
    out.U32(directorySize);
    out.U32(directory);
    out.U16(0); // comment
    return out.bytes;
}

} // namespace zip
