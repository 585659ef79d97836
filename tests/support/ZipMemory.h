// An archive in memory, opened through minizip as if it were a file.
#pragma once

#include <algorithm>
#include <cstdint>
#include <cstring>

#include <unzip.h>

namespace zip
{

// Reads from bytes that belong to the caller and outlive the object.
class CMemoryArchive
{
public:
    CMemoryArchive(const uint8_t* data, size_t size) : m_data(data), m_size(size)
    {
        zlib_filefunc64_def functions = {};
        functions.zopen64_file = Open;
        functions.zread_file = Read;
        functions.ztell64_file = Tell;
        functions.zseek64_file = Seek;
        functions.zclose_file = Close;
        functions.zerror_file = Error;
        functions.opaque = this;
        m_archive = unzOpen2_64("memory", &functions);
    }
    ~CMemoryArchive()
    {
        if (m_archive)
            unzClose(m_archive);
    }
    CMemoryArchive(const CMemoryArchive&) = delete;
    CMemoryArchive& operator=(const CMemoryArchive&) = delete;

    // Null when it is no archive.
    unzFile get() const { return m_archive; }

private:
    static CMemoryArchive* Self(voidpf stream) { return static_cast<CMemoryArchive*>(stream); }
    static voidpf Open(voidpf opaque, const void* /*name*/, int /*mode*/) { return opaque; }
    static uLong Read(voidpf /*opaque*/, voidpf stream, void* buffer, uLong size)
    {
        CMemoryArchive& self = *Self(stream);
        const size_t count = std::min<size_t>(size, self.m_size - self.m_position);
        if (count > 0)
            std::memcpy(buffer, self.m_data + self.m_position, count);
        self.m_position += count;
        return static_cast<uLong>(count);
    }
    static ZPOS64_T Tell(voidpf /*opaque*/, voidpf stream) { return Self(stream)->m_position; }
    static long Seek(voidpf /*opaque*/, voidpf stream, ZPOS64_T offset, int origin)
    {
        CMemoryArchive& self = *Self(stream);
        const ZPOS64_T base = origin == ZLIB_FILEFUNC_SEEK_CUR   ? self.m_position
                              : origin == ZLIB_FILEFUNC_SEEK_END ? self.m_size
                                                                 : 0;
        if (offset > self.m_size - base)
            return -1;
        self.m_position = static_cast<size_t>(base + offset);
        return 0;
    }
    static int Close(voidpf /*opaque*/, voidpf /*stream*/) { return 0; }
    static int Error(voidpf /*opaque*/, voidpf /*stream*/) { return 0; }

    const uint8_t* m_data;
    size_t m_size;
    size_t m_position = 0;
    unzFile m_archive = nullptr;
};

} // namespace zip
