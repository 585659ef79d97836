#include "tests/package/PortableFile.h"

#include "platform/Win.h"

#include <fstream>
#include <iterator>
#include <stdexcept>

namespace
{

// Offsets from the signature "PE" on, as the format has them.
constexpr size_t kSectionCount = 6;
constexpr size_t kTimeStamp = 8;
constexpr size_t kOptionalSize = 20;
constexpr size_t kFileBits = 22;
constexpr size_t kOptional = 24;
constexpr size_t kCharacteristics = kOptional + 70;
constexpr size_t kDirectories32 = kOptional + 96;
constexpr size_t kDirectories64 = kOptional + 112;
constexpr size_t kSectionSize = 40;
constexpr size_t kImportSize = 20;
constexpr size_t kImportName = 12;
constexpr size_t kRelocations = 5;
constexpr size_t kImports = 1;
constexpr size_t kResources = 2;

} // namespace

CPortableFile::CPortableFile(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    m_bytes.assign(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
    if (m_bytes.compare(0, 2, "MZ") != 0)
        throw std::runtime_error(path + " is no program");
    m_header = U32(0x3C);
    if (U32(m_header) != 0x4550)
        throw std::runtime_error(path + " is no Windows program");
}

bool CPortableFile::Is64Bit() const
{
    return U16(m_header + kOptional) == 0x20B;
}

uint16_t CPortableFile::Characteristics() const
{
    return U16(m_header + kCharacteristics);
}

bool CPortableFile::IsMovable() const
{
    const bool isStripped = (U16(m_header + kFileBits) & IMAGE_FILE_RELOCS_STRIPPED) != 0;
    const size_t relocations = Directory(kRelocations);
    return !isStripped && U32(relocations) != 0 && U32(relocations + 4) != 0;
}

size_t CPortableFile::SizeWithoutResources() const
{
    return m_bytes.size() - U32(Directory(kResources) + 4);
}

uint32_t CPortableFile::TimeStamp() const
{
    return U32(m_header + kTimeStamp);
}

std::vector<std::string> CPortableFile::Libraries() const
{
    std::vector<std::string> names;
    for (size_t entry = OffsetOf(U32(Directory(kImports))); U32(entry + kImportName) != 0;
         entry += kImportSize)
    {
        std::string name = m_bytes.c_str() + OffsetOf(U32(entry + kImportName));
        CharLowerA(name.data());
        names.push_back(name);
    }
    return names;
}

uint16_t CPortableFile::U16(size_t offset) const
{
    return static_cast<uint16_t>(static_cast<uint8_t>(m_bytes.at(offset)) |
                                 static_cast<uint8_t>(m_bytes.at(offset + 1)) << 8);
}

uint32_t CPortableFile::U32(size_t offset) const
{
    return U16(offset) | static_cast<uint32_t>(U16(offset + 2)) << 16;
}

size_t CPortableFile::Directory(size_t number) const
{
    return m_header + (Is64Bit() ? kDirectories64 : kDirectories32) + number * 8;
}

size_t CPortableFile::OffsetOf(uint32_t address) const
{
    const size_t sections = m_header + kOptional + U16(m_header + kOptionalSize);
    for (size_t i = 0; i < U16(m_header + kSectionCount); ++i)
    {
        const size_t section = sections + i * kSectionSize;
        const uint32_t begin = U32(section + 12);
        if (address >= begin && address - begin < U32(section + 16))
            return U32(section + 20) + address - begin;
    }
    throw std::runtime_error("an address lies in no section");
}
