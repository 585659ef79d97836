#include "tools/translations/Check.h"

#include "tools/citydb/Text.h"
#include "tools/translations/DeviceFile.h"
#include "tools/translations/Placeholders.h"

#include <map>
#include <set>

namespace translations
{

namespace
{

// The dialogs cut longer texts; in UTF-16 code units.
constexpr size_t kLongestText = 1023;

std::string Quoted(const std::string& text)
{
    std::string quoted = "\"";
    for (const char c : text)
        quoted += c == '\n' ? std::string("\\n") : std::string(1, c);
    return quoted + "\"";
}

std::string LeadingBlanks(const std::string& text)
{
    return text.substr(0, text.find_first_not_of(" \t\n"));
}

std::string TrailingBlanks(const std::string& text)
{
    const size_t last = text.find_last_not_of(" \t\n");
    return last == std::string::npos ? text : text.substr(last + 1);
}

std::string Named(const std::string& placeholders)
{
    return placeholders.empty() ? "none" : placeholders;
}

size_t UnitsOf(const std::string& text)
{
    return citydb::ToUtf16(text).value_or(String16()).size();
}

class CEntryCheck
{
public:
    CEntryCheck(const Catalog& catalog, std::vector<std::string>& faults)
        : m_catalog(catalog), m_faults(faults)
    {
    }

    void Check(const Entry& entry)
    {
        if (entry.HasContext)
            Report(entry, "has a context, but texts are looked up by their English alone");
        if (entry.HasPlural)
            Report(entry, "has plural forms, which the device doesn't know");
        if (entry.Fuzzy)
            Report(entry, "is fuzzy: look at it and remove the mark");
        if (UnitsOf(entry.English) > kLongestText)
            Report(entry, "the English text is longer than 1023 characters");
        if (!entry.Translation.empty() && !entry.Fuzzy)
            CheckTranslation(entry);
    }

private:
    void CheckTranslation(const Entry& entry)
    {
        const std::string english = Placeholders(entry.English);
        const std::string translated = Placeholders(entry.Translation);
        if (english != translated)
            Report(entry,
                   "needs the placeholders " + Named(english) + " but has " + Named(translated));
        if (LeadingBlanks(entry.English) != LeadingBlanks(entry.Translation) ||
            TrailingBlanks(entry.English) != TrailingBlanks(entry.Translation))
            Report(entry, "begins or ends with other blanks than its translation " +
                              Quoted(entry.Translation));
        if (UnitsOf(entry.Translation) > kLongestText)
            Report(entry, "the translation is longer than 1023 characters");
        const std::string lacking =
            Encode(entry.English + entry.Translation, m_catalog.Encoding).Lacking;
        if (!lacking.empty())
            Report(entry, "has characters that " + m_catalog.Encoding + " lacks: " + lacking);
    }

    void Report(const Entry& entry, const std::string& what)
    {
        m_faults.push_back(m_catalog.File + ":" + std::to_string(entry.Line) + ": " +
                           Quoted(entry.English) + ": " + what);
    }

    const Catalog& m_catalog;
    std::vector<std::string>& m_faults;
};

} // namespace

std::vector<std::string> EntryFaults(const Catalog& catalog)
{
    std::vector<std::string> faults;
    CEntryCheck check(catalog, faults);
    for (const Entry& entry : catalog.Entries)
        check.Check(entry);
    return faults;
}

std::vector<std::string> CoverageFaults(const Catalog& catalog, const Catalog& pattern)
{
    std::vector<std::string> faults;
    std::map<std::string, const Entry*> translated;
    for (const Entry& entry : catalog.Entries)
        translated.emplace(entry.English, &entry);
    std::set<std::string> wanted;
    for (const Entry& entry : pattern.Entries)
    {
        wanted.insert(entry.English);
        const auto found = translated.find(entry.English);
        const std::string files = entry.Files.empty() ? "" : ", shown by " + entry.Files.front();
        if (found == translated.end())
            faults.push_back(catalog.File + ": " + Quoted(entry.English) + ": is missing" + files);
        else if (found->second->Translation.empty() && !IsSwitch(entry.English))
            faults.push_back(catalog.File + ":" + std::to_string(found->second->Line) + ": " +
                             Quoted(entry.English) + ": has no translation" + files);
    }
    for (const Entry& entry : catalog.Entries)
        if (wanted.count(entry.English) == 0)
            faults.push_back(catalog.File + ":" + std::to_string(entry.Line) + ": " +
                             Quoted(entry.English) + ": is no text of the program any more");
    return faults;
}

} // namespace translations
