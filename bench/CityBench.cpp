// Measures the city search beside its limits and peers, in turn in one run, and says which goals
// are missed. The argument is an image file; without one, the names are generated.
#include "bench/CityPeers.h"
#include "bench/Goals.h"
#include "bench/Timing.h"
#include "dialogs/city/CitySearch.h"

#include <zlib.h>

#include <cstring>
#include <numeric>

namespace
{

constexpr uint32_t kGeneratedCities = 171000;
constexpr int kRounds = 41;
const char* const kTyped[] = {"l", "lo", "lon", "lond", "londo", "london"};
const char* const kOthers[] = {"don", "san", "a"};

String16 Wide(const std::string& text)
{
    return String16(text.begin(), text.end());
}

// Every byte once: the least that a search which reads all names can take.
uint64_t SumOf(const CCityNameList& names)
{
    uint64_t sum = 0;
    const uint8_t* at = names.Begin();
    for (; names.End() - at >= 8; at += 8)
    {
        uint64_t word;
        std::memcpy(&word, at, sizeof(word));
        sum += word;
    }
    return std::accumulate(at, names.End(), sum);
}

// All contestants, ready to search.
struct Field
{
    explicit Field(const CCitySample& sample)
        : image(sample.View()), names(image), fold(LowerCaseTable()),
          like(names.Utf8(), "CREATE TABLE cities(name TEXT)"),
          trigrams(names.Utf8(),
                   "CREATE VIRTUAL TABLE cities USING fts5(name, tokenize='trigram')"),
          block(names.Utf8()), cities(names.Units().size()), search(fold.data()), typed(fold.data())
    {
        search.Attach(image);
        typed.Attach(image);
    }

    CCityImage image;
    CCityNameList names;
    std::vector<Char16> fold;
    CSqliteNames like;
    CSqliteNames trigrams;
    CLowerCasedBlock block;
    std::vector<uint32_t> cities;
    CCitySearch search;
    CCitySearch typed;
};

// The order of a key's contestants.
enum Method
{
    Limit,
    Naive,
    Scratch,
    Narrowed,
    Like,
    Trigrams,
    Memmem,
    Methods
};

std::vector<Contestant> ContestantsFor(Field& field, const std::string& key, uint32_t counts[])
{
    const auto nothing = [] {};
    const String16 text = Wide(key);
    const String16 before = text.substr(0, text.size() - 1);
    const auto shown = std::make_shared<uint32_t>(0);
    return {
        {"limit: sum", nothing, [&field] { Keep(SumOf(field.names)); }, {}},
        {"naive",
         nothing,
         [&field, text, counts]
         { counts[Naive] = FindNaively(field.names, text, field.fold.data(), field.cities); },
         {}},
        {"product",
         nothing,
         [&field, text, counts] { counts[Scratch] = field.search.Search(text, true, 0); },
         {}},
        {"narrowing",
         [&field, before, shown] { *shown = field.typed.Search(before, true, 0); },
         [&field, text, shown, counts]
         { counts[Narrowed] = field.typed.Search(text, false, *shown); },
         {}},
        {"LIKE", nothing, [&field, key, counts] { counts[Like] = field.like.Find(key); }, {}},
        {"FTS5",
         nothing,
         [&field, key, counts] { counts[Trigrams] = field.trigrams.Find(key); },
         {}},
        {"memmem", nothing, [&field, key, counts] { counts[Memmem] = field.block.Find(key); }, {}},
    };
}

class CTable
{
public:
    explicit CTable(Field& field) : m_field(field)
    {
        std::printf("%-8s %7s %8s %8s %8s %8s %8s %8s %8s   (ms)\n", "key", "found", "sum", "naive",
                    "product", "narrow", "LIKE", "FTS5", "memmem");
    }

    // Measures one key; returns false when the contestants disagree.
    bool Measure(const char* key, double (&total)[Methods])
    {
        uint32_t counts[Methods] = {};
        std::vector<Contestant> all = ContestantsFor(m_field, key, counts);
        RunInTurn(all, kRounds);
        std::printf("%-8s %7u", key, counts[Scratch]);
        for (int method = 0; method < Methods; ++method)
        {
            total[method] += all[static_cast<size_t>(method)].Best() * 1000;
            std::printf(" %8.3f", all[static_cast<size_t>(method)].Best() * 1000);
        }
        std::printf("\n");
        worst = std::max(worst, all[Narrowed].Best() / all[Scratch].Best());
        return std::all_of(counts + Naive, counts + Methods,
                           [&](uint32_t count) { return count == counts[Scratch]; });
    }

    // The largest ratio of narrowing to searching from scratch.
    double worst = 0;

private:
    Field& m_field;
};

void CheckSearch(const double (&total)[Methods], double worstNarrowing, CGoals& goals)
{
#ifdef __SSE2__
    goals.Check("15 x six keys / LIKE", 15 * total[Scratch] / total[Like], 1);
    goals.Check("15 x six keys / FTS5", 15 * total[Scratch] / total[Trigrams], 1);
    goals.Check("six keys / memmem", total[Scratch] / total[Memmem], 1.2);
#else
    goals.Check("4 x six keys / LIKE", 4 * total[Scratch] / total[Like], 1);
#endif
    goals.Check("six keys narrowing / from scratch", total[Narrowed] / total[Scratch], 1);
    // Where both do the same, chance decides.
    goals.Check("worst key narrowing / from scratch", worstNarrowing, 1.05);
}

void CheckPreparation(const CCitySample& sample, const Field& field, CGoals& goals)
{
    std::vector<Bytef> packed(compressBound(sample.Size()));
    uLongf packedSize = packed.size();
    compress(packed.data(), &packedSize, sample.View().Data(), sample.Size());
    std::vector<Bytef> image(sample.Size());
    std::vector<Contestant> all = {
        {"inflate",
         [] {},
         [&]
         {
             uLongf size = image.size();
             Keep(uncompress(image.data(), &size, packed.data(), packedSize));
         },
         {}},
        {"prepare",
         [] {},
         [&]
         {
             CCitySearch search(field.fold.data());
             search.Attach(field.image);
         },
         {}},
    };
    RunInTurn(all, kRounds);
    std::printf("inflate %.3f ms, prepare %.3f ms\n", all[0].Best() * 1000, all[1].Best() * 1000);
    goals.Check("prepare / inflate", all[1].Best() / all[0].Best(), 0.2);
}

} // namespace

int main(int count, char** arguments)
{
    const CCitySample sample =
        count > 1 ? CCitySample(arguments[1]) : CCitySample(kGeneratedCities);
    if (!CCityImage::IsUsable(sample.View().Data(), sample.Size()))
    {
        std::fprintf(stderr, "%s is no city image\n", arguments[1]);
        return 2;
    }
    Field field(sample);
    std::printf("%u cities, %zu KB\n", field.image.CityCount(), sample.Size() / 1024);

    CGoals goals;
    CTable table(field);
    double total[Methods] = {};
    double others[Methods] = {};
    bool agree = true;
    for (const char* const key : kTyped)
        agree = table.Measure(key, total) && agree;
    for (const char* const key : kOthers)
        agree = table.Measure(key, others) && agree;
    if (!agree)
    {
        std::printf("the contestants found different numbers of cities\n");
        return 2;
    }
    CheckSearch(total, table.worst, goals);
    CheckPreparation(sample, field, goals);
    return goals.Finish();
}
