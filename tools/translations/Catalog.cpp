#include "tools/translations/Catalog.h"

#include "tools/citydb/Errors.h"
#include "tools/citydb/Files.h"
#include "tools/citydb/Text.h"
#include "tools/translations/PoFile.h"

#include <algorithm>
#include <cctype>
#include <map>

namespace translations
{

namespace
{

constexpr uint64_t kLargestPo = 64 << 20;
constexpr const char* kDefaultEncoding = "UTF-16LE";
constexpr const char* kSwitchNote =
    "no text: 1 where letters of 13 pixels are too small to read, otherwise empty";
constexpr const char* kUtf8 = "charset=UTF-8";

std::string Upper(std::string text)
{
    for (char& c : text)
        c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    return text;
}

// The lines where entries begin, obsolete ones included, in the file's order: the library doesn't
// tell.
std::vector<size_t> LinesOfEntries(const std::string& source)
{
    std::vector<size_t> lines;
    size_t line = 1;
    for (size_t begin = 0; begin < source.size(); ++line)
    {
        const size_t end = std::min(source.find('\n', begin), source.size());
        size_t word = source.find_first_not_of(" \t", begin);
        if (word < end && source.compare(word, 2, "#~") == 0)
            word = source.find_first_not_of(" \t", word + 2);
        if (word < end && source.compare(word, 5, "msgid") == 0 &&
            source.compare(word, 6, "msgid_") != 0)
            lines.push_back(line);
        begin = end + 1;
    }
    return lines;
}

void CheckHeader(const std::string& file, const char* header)
{
    const std::string type = HeaderField(header, "Content-Type");
    if (type.empty())
        throw citydb::CInputError(file + ":1: there is no header with a Content-Type");
    if (Upper(type).find(Upper(kUtf8)) == std::string::npos)
        throw citydb::CInputError(file + ":1: must be in UTF-8 and say so, not " + type +
                                  " (msgconv --to-code=UTF-8 converts it)");
}

void CheckUtf8(const std::string& file, const Entry& entry)
{
    if (!citydb::ToUtf16(entry.English) || !citydb::ToUtf16(entry.Translation))
        throw citydb::CInputError(file + ":" + std::to_string(entry.Line) + ": is not UTF-8");
}

Entry ReadEntry(po_message_t message)
{
    Entry entry;
    entry.English = po_message_msgid(message);
    const char* const translation = po_message_msgstr(message);
    entry.Translation = translation ? translation : "";
    entry.Note = po_message_extracted_comments(message);
    entry.Fuzzy = po_message_is_fuzzy(message) != 0;
    entry.HasContext = po_message_msgctxt(message) != nullptr;
    entry.HasPlural = po_message_msgid_plural(message) != nullptr;
    for (int i = 0; po_filepos_t place = po_message_filepos(message, i); ++i)
        entry.Files.emplace_back(po_filepos_file(place));
    return entry;
}

void ReadEntries(const UniquePoFile& file, const std::vector<size_t>& lines, Catalog& catalog)
{
    const UniquePoIterator iterator(po_message_iterator(file.get(), nullptr));
    for (size_t i = 0; po_message_t message = po_next_message(iterator.get()); ++i)
    {
        if (po_message_is_obsolete(message))
            continue;
        Entry entry = ReadEntry(message);
        entry.Line = i < lines.size() ? lines[i] : 0;
        CheckUtf8(catalog.File, entry);
        // The header's own entry has no English text.
        if (!entry.English.empty())
            catalog.Entries.push_back(std::move(entry));
    }
}

std::string HeaderFor(const std::string& language)
{
    return "Project-Id-Version: Tav Lumenar\n"
           "Language: " +
           language +
           "\n"
           "MIME-Version: 1.0\n"
           "Content-Type: text/plain; charset=UTF-8\n"
           "Content-Transfer-Encoding: 8bit\n";
}

void Insert(const UniquePoIterator& iterator, const Entry& entry)
{
    const po_message_t message = po_message_create();
    po_message_set_msgid(message, entry.English.c_str());
    po_message_set_msgstr(message, entry.Translation.c_str());
    po_message_set_extracted_comments(message, entry.Note.c_str());
    // Without line numbers: they would change with every edit of the sources.
    for (const std::string& place : entry.Files)
        po_message_add_filepos(message, place.c_str(), static_cast<size_t>(-1));
    if (entry.English.find('%') != std::string::npos)
        po_message_set_format(message, "c-format", 1);
    po_message_insert(iterator.get(), message);
}

void AddUnlessThere(std::vector<std::string>& all, const std::string& text)
{
    if (std::find(all.begin(), all.end(), text) == all.end())
        all.push_back(text);
}

} // namespace

bool IsSwitch(const std::string& english)
{
    return !english.empty() && english[0] == '_';
}

Catalog ReadCatalog(const std::filesystem::path& path)
{
    const std::string source = citydb::ReadFile(path, kLargestPo);
    const UniquePoFile file = ReadPo(path);
    const char* const header = po_file_domain_header(file.get(), nullptr);
    Catalog catalog;
    catalog.File = path.string();
    CheckHeader(catalog.File, header);
    for (const char* const* domain = po_file_domains(file.get()); *domain; ++domain)
        if (std::string(*domain) != "messages")
            throw citydb::CInputError(catalog.File + ": has a domain, " + *domain +
                                      ", which the device doesn't know");
    catalog.Encoding = HeaderField(header, "X-Device-Encoding");
    if (catalog.Encoding.empty())
        catalog.Encoding = kDefaultEncoding;
    ReadEntries(file, LinesOfEntries(source), catalog);
    return catalog;
}

std::vector<Entry> MergeTexts(const std::vector<SourceText>& texts)
{
    std::vector<Entry> entries;
    std::map<std::string, size_t> places;
    for (const SourceText& text : texts)
    {
        const auto [place, isNew] = places.emplace(text.English, entries.size());
        if (isNew)
        {
            entries.emplace_back();
            entries.back().English = text.English;
        }
        Entry& entry = entries[place->second];
        AddUnlessThere(entry.Files, text.File);
        if (IsSwitch(entry.English))
            entry.Note = kSwitchNote;
        else if (entry.Note.find(text.Note) == std::string::npos)
            entry.Note += (entry.Note.empty() ? "" : ", ") + text.Note;
    }
    return entries;
}

void WriteCatalog(const std::filesystem::path& path, const std::string& language,
                  const std::vector<Entry>& entries)
{
    const UniquePoFile file(po_file_create());
    Entry header;
    header.Translation = HeaderFor(language);
    {
        const UniquePoIterator iterator(po_message_iterator(file.get(), nullptr));
        Insert(iterator, header);
        for (const Entry& entry : entries)
            Insert(iterator, entry);
    }
    citydb::ReplaceFile(path,
                        [&](const std::filesystem::path& temporary) { WritePo(file, temporary); });
}

} // namespace translations
