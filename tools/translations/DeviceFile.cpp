#include "tools/translations/DeviceFile.h"

#include "tools/citydb/Errors.h"

#include <array>
#include <cerrno>
#include <filesystem>

#include <iconv.h>

namespace translations
{

namespace
{

constexpr std::string_view kUtf16 = "UTF-16LE";
constexpr std::string_view kMark = "\xFF\xFE";

class CConverter
{
public:
    explicit CConverter(const std::string& encoding)
        : m_iconv(iconv_open(encoding.c_str(), "UTF-8"))
    {
        // iconv's own word for "none".
        if (m_iconv == reinterpret_cast<iconv_t>(-1))
            throw citydb::CInputError("there is no encoding '" + encoding + "'");
    }
    ~CConverter() { iconv_close(m_iconv); }
    CConverter(const CConverter&) = delete;
    CConverter& operator=(const CConverter&) = delete;

    // One character; false when the encoding lacks it.
    bool Append(std::string& bytes, const std::string& text)
    {
        // The library asks for text that it may write to.
        std::string character(text);
        std::array<char, 16> buffer;
        char* in = character.data();
        size_t inLeft = character.size();
        char* out = buffer.data();
        size_t outLeft = buffer.size();
        const size_t replaced = iconv(m_iconv, &in, &inLeft, &out, &outLeft);
        iconv(m_iconv, nullptr, nullptr, nullptr, nullptr);
        if (replaced != 0)
            return false;
        bytes.append(buffer.data(), buffer.size() - outLeft);
        return true;
    }

private:
    iconv_t m_iconv;
};

size_t CharacterLength(const std::string& text, size_t at)
{
    size_t length = 1;
    while (at + length < text.size() &&
           (static_cast<unsigned char>(text[at + length]) & 0xC0) == 0x80)
        ++length;
    return length;
}

std::string Escaped(const std::string& text)
{
    std::string escaped;
    for (const char c : text)
    {
        if (c == '\n')
            escaped += "\\n";
        else if (c == '\r')
            escaped += "\\r";
        else
            escaped += (c == '\\' || c == '|' ? "\\" : "") + std::string(1, c);
    }
    return escaped;
}

} // namespace

Encoded Encode(const std::string& text, const std::string& encoding)
{
    CConverter converter(encoding);
    Encoded encoded;
    for (size_t at = 0; at < text.size();)
    {
        const std::string character = text.substr(at, CharacterLength(text, at));
        if (!converter.Append(encoded.Bytes, character) &&
            encoded.Lacking.find(character) == std::string::npos)
            encoded.Lacking += character;
        at += character.size();
    }
    return encoded;
}

std::vector<uint8_t> MakeDeviceFile(const Catalog& catalog)
{
    const std::string source = std::filesystem::path(catalog.File).filename().string();
    // A line without a bar is a comment.
    std::string text = "Made from " + source + " - change that file instead.\r\n";
    for (const Entry& entry : catalog.Entries)
        if (!entry.Translation.empty() && !entry.Fuzzy)
            text += Escaped(entry.English) + "|" + Escaped(entry.Translation) + "\r\n";
    const Encoded encoded = Encode(text, catalog.Encoding);
    if (!encoded.Lacking.empty())
        throw citydb::CInputError(catalog.File + ": " + catalog.Encoding +
                                  " lacks: " + encoded.Lacking);
    const std::string mark(catalog.Encoding == kUtf16 ? kMark : std::string_view());
    const std::string bytes = mark + encoded.Bytes;
    return std::vector<uint8_t>(bytes.begin(), bytes.end());
}

} // namespace translations
