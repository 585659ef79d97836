// A Windows program or library read as a file, for either word size: its header and its imports.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

class CPortableFile
{
public:
    // Throws std::runtime_error when the file can't be read or isn't a program.
    explicit CPortableFile(const std::string& path);

    bool Is64Bit() const;
    // The bits IMAGE_DLLCHARACTERISTICS_...
    uint16_t Characteristics() const;
    // True when the system can move it: base relocations are there and not declared stripped.
    bool IsMovable() const;
    // Bytes of the file without its resources.
    size_t SizeWithoutResources() const;
    // The time that the linker noted.
    uint32_t TimeStamp() const;
    // Names of the libraries it needs, in lower case.
    std::vector<std::string> Libraries() const;

private:
    uint16_t U16(size_t offset) const;
    uint32_t U32(size_t offset) const;
    // Where a data directory's entry stands: its address, with the size behind it.
    size_t Directory(size_t number) const;
    size_t OffsetOf(uint32_t address) const;

    std::string m_bytes;
    size_t m_header = 0;
};
