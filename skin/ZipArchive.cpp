#include "skin/ZipArchive.h"

#include <algorithm>

namespace skin
{

namespace
{

// minizip's word for "as usual on this system": it is built to ignore the case of names.
constexpr int kSystemCase = 0;
// The most that is asked of minizip at once.
constexpr uint32_t kChunkSize = 10240;

constexpr uLong kEncryptedFlag = 1;
constexpr uLong kStored = 0;
constexpr uLong kDeflated = Z_DEFLATED;
// Deflate never makes more of one byte than this; the rest is for the smallest members.
constexpr uint64_t kMostFromOneByte = 1032;
constexpr uint64_t kMostFromNothing = 64;

bool IsReadable(const unz_file_info64& info)
{
    if ((info.flag & kEncryptedFlag) != 0)
        return false;
    // With any other method minizip would hand out the packed bytes.
    if (info.compression_method != kStored && info.compression_method != kDeflated)
        return false;
    // The largest number, too, only marks that the size is told elsewhere.
    if (info.uncompressed_size >= UINT32_MAX)
        return false;
    const uint64_t packed = std::min<uint64_t>(info.compressed_size, UINT32_MAX);
    return info.uncompressed_size <= packed * kMostFromOneByte + kMostFromNothing;
}

// A member that is open for reading; at most one at a time for an archive.
class COpenMember
{
public:
    COpenMember(unzFile archive, const char* name) : m_archive(archive)
    {
        if (unzLocateFile(archive, name, kSystemCase) != UNZ_OK)
            return;
        m_found =
            unzGetCurrentFileInfo64(archive, &m_info, nullptr, 0, nullptr, 0, nullptr, 0) == UNZ_OK;
        m_open = m_found && IsReadable(m_info) && unzOpenCurrentFile(archive) == UNZ_OK;
    }
    ~COpenMember() { Close(); }
    COpenMember(const COpenMember&) = delete;
    COpenMember& operator=(const COpenMember&) = delete;

    bool IsOpen() const { return m_open; }
    uint32_t Size() const { return static_cast<uint32_t>(m_info.uncompressed_size); }
    // -1 when the archive's directory lacks the member.
    uint32_t Attribute() const
    {
        return m_found ? static_cast<uint32_t>(m_info.external_fa) : UINT32_MAX;
    }

    // Reads the whole member into `buffer`, which has room for Size() bytes.
    bool Read(uint8_t* buffer)
    {
        uint32_t done = 0;
        while (done < Size())
        {
            const uint32_t wanted = std::min(kChunkSize, Size() - done);
            const int count = unzReadCurrentFile(m_archive, buffer + done, wanted);
            if (count <= 0)
                return false;
            done += static_cast<uint32_t>(count);
        }
        return true;
    }

    // False when the checksum of what was read is wrong.
    bool Close()
    {
        if (!m_open)
            return false;
        m_open = false;
        return unzCloseCurrentFile(m_archive) == UNZ_OK;
    }

private:
    unzFile m_archive;
    unz_file_info64 m_info = {};
    bool m_found = false;
    bool m_open = false;
};

// The file that is open already, in the place of a path.
voidpf ZCALLBACK UseOpenFile(voidpf file, const void* /*path*/, int /*mode*/)
{
    return file;
}

int ZCALLBACK KeepOpen(voidpf /*file*/, voidpf /*stream*/)
{
    return 0;
}

} // namespace

unzFile OpenZip(std::FILE* file)
{
    zlib_filefunc64_def functions = {};
    fill_fopen64_filefunc(&functions);
    functions.zopen64_file = UseOpenFile;
    functions.zclose_file = KeepOpen;
    functions.opaque = file;
    return unzOpen2_64(nullptr, &functions);
}

uint32_t ZipMemberSize(unzFile archive, const char* name)
{
    const COpenMember member(archive, name);
    return member.IsOpen() ? member.Size() : 0;
}

bool ReadZipMember(unzFile archive, const char* name, void* buffer, uint32_t size,
                   uint32_t& attribute)
{
    COpenMember member(archive, name);
    attribute = member.Attribute();
    if (!member.IsOpen() || member.Size() > size)
        return false;
    return member.Read(static_cast<uint8_t*>(buffer)) && member.Close();
}

} // namespace skin
