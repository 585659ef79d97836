#include "tools/citydb/Files.h"

#include "tools/citydb/Errors.h"

#include <cerrno>
#include <cstring>
#include <fstream>
#include <system_error>

#include <unistd.h>

namespace citydb
{

namespace
{

[[noreturn]] void Fail(const std::filesystem::path& path, const std::string& what)
{
    throw CInputError(path.string() + ": " + what);
}

std::string LastError()
{
    return std::strerror(errno);
}

} // namespace

std::filesystem::path PathOf(const std::string& utf8)
{
    return std::filesystem::u8path(utf8);
}

std::string ReadFile(const std::filesystem::path& path, uint64_t limit)
{
    std::error_code error;
    if (std::filesystem::is_directory(path, error))
        Fail(path, "is a folder");
    std::ifstream file(path, std::ios::binary);
    if (!file)
        Fail(path, "can't be opened: " + LastError());
    std::string text;
    std::vector<char> block(1 << 20);
    while (file.read(block.data(), static_cast<std::streamsize>(block.size())) || file.gcount() > 0)
    {
        text.append(block.data(), static_cast<size_t>(file.gcount()));
        if (text.size() > limit)
            Fail(path, "is larger than " + std::to_string(limit) + " bytes");
    }
    if (file.bad())
        Fail(path, "can't be read");
    return text;
}

void ReplaceFile(const std::filesystem::path& path,
                 const std::function<void(const std::filesystem::path& temporary)>& write)
{
    std::filesystem::path temporary = path;
    temporary += ".new-" + std::to_string(getpid());
    std::error_code ignored;
    try
    {
        write(temporary);
        std::error_code error;
        std::filesystem::rename(temporary, path, error);
        if (error)
            Fail(path, "can't be replaced: " + error.message());
    }
    catch (...)
    {
        std::filesystem::remove(temporary, ignored);
        throw;
    }
}

void WriteFile(const std::filesystem::path& path, const std::vector<uint8_t>& bytes)
{
    ReplaceFile(path,
                [&](const std::filesystem::path& temporary)
                {
                    std::ofstream file(temporary, std::ios::binary | std::ios::trunc);
                    file.write(reinterpret_cast<const char*>(bytes.data()),
                               static_cast<std::streamsize>(bytes.size()));
                    file.close();
                    if (!file)
                        Fail(path, "can't be written: " + LastError());
                });
}

} // namespace citydb
