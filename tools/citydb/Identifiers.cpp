#include "tools/citydb/Identifiers.h"

#include <algorithm>
#include <unordered_map>
#include <unordered_set>

namespace citydb
{

namespace
{

// Parts of a key can't run into each other: names hold no control characters.
constexpr char kSeparator = '\x1F';

struct Candidate
{
    uint32_t Hash;
    std::string Key;
    size_t Row;
};

bool ComesBefore(const Candidate& left, const Candidate& right)
{
    return left.Hash != right.Hash ? left.Hash < right.Hash : left.Key < right.Key;
}

uint32_t HashOfRound(const std::string& key, unsigned round)
{
    return HashOf(round == 0 ? key : key + kSeparator + std::to_string(round));
}

// One round over the rows that have no identifier yet. Returns those that were not served.
std::vector<Candidate> Serve(std::vector<Candidate> waiting, std::unordered_set<uint32_t>& taken,
                             std::vector<CityRow>& rows)
{
    std::sort(waiting.begin(), waiting.end(), ComesBefore);
    std::vector<Candidate> left;
    for (Candidate& candidate : waiting)
    {
        if (!IsReservedIdentifier(candidate.Hash) && taken.insert(candidate.Hash).second)
            rows[candidate.Row].Identifier = candidate.Hash;
        else
            left.push_back(std::move(candidate));
    }
    return left;
}

// Leaves out rows whose identifier or place another one has already.
void DropRepeated(std::vector<CityRow>& rows, CProblems& problems)
{
    std::unordered_map<uint32_t, SourcePlace> identifiers;
    std::unordered_map<std::string, SourcePlace> keys;
    std::vector<CityRow> kept;
    kept.reserve(rows.size());
    for (CityRow& row : rows)
    {
        const auto [first, isNew] = row.Identifier != 0
                                        ? identifiers.emplace(row.Identifier, row.Place)
                                        : std::pair(identifiers.end(), true);
        if (!isNew)
        {
            problems.Add(CProblems::RowLeftOut, row.Place,
                         "identifier " + std::to_string(row.Identifier) + " is taken by " +
                             Describe(first->second));
            continue;
        }
        if (row.Identifier == 0)
        {
            const auto [same, isNewPlace] = keys.emplace(PlaceKey(row), row.Place);
            if (!isNewPlace)
            {
                problems.Add(CProblems::RowLeftOut, row.Place,
                             "it is the same place as " + Describe(same->second));
                continue;
            }
        }
        kept.push_back(std::move(row));
    }
    rows = std::move(kept);
}

} // namespace

std::string PlaceKey(const CityRow& row)
{
    std::string key;
    for (const std::string* part : {&row.Country, &row.Region1, &row.Region2, &row.Name})
        key += *part + kSeparator;
    return key + std::to_string(row.Latitude) + kSeparator + std::to_string(row.Longitude);
}

uint32_t HashOf(const std::string& text)
{
    uint32_t hash = 0x811C9DC5;
    for (const char c : text)
        hash = (hash ^ static_cast<unsigned char>(c)) * 0x01000193u;
    return hash;
}

void AssignIdentifiers(std::vector<CityRow>& rows, CProblems& problems)
{
    DropRepeated(rows, problems);
    std::unordered_set<uint32_t> taken;
    std::vector<Candidate> waiting;
    for (size_t i = 0; i < rows.size(); ++i)
    {
        if (rows[i].Identifier != 0)
            taken.insert(rows[i].Identifier);
        else
            waiting.push_back({0, PlaceKey(rows[i]), i});
    }
    for (unsigned round = 0; !waiting.empty(); ++round)
    {
        for (Candidate& candidate : waiting)
            candidate.Hash = HashOfRound(candidate.Key, round);
        waiting = Serve(std::move(waiting), taken, rows);
    }
}

} // namespace citydb
