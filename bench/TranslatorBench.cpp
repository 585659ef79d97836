// Measures the translator's parser and map beside their limits and peers, in turn in one run, and
// says which goals are missed.
#include "bench/Catalog.h"
#include "bench/Goals.h"
#include "bench/Timing.h"
#include "bench/TranslatorSample.h"
#include "frame/LocalizerMap.h"
#include "frame/TranslationParser.h"

#include <malloc.h>

#include <cstdio>
#include <memory>
#include <random>
#include <unordered_map>

namespace
{

using StdMap = std::unordered_map<String16, String16>;

size_t HeapInUse()
{
    const struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

// The file's text in a buffer that is written anew before each parse.
class CFileBuffer
{
public:
    explicit CFileBuffer(const String16& file) : m_file(file), m_text(file.size() + 1) {}
    void Refill() { m_file.copy(m_text.data(), m_file.size()); }
    std::vector<TranslationEntry> Parse()
    {
        return ParseTranslation(m_text.data(), m_text.data() + m_file.size());
    }
    size_t Bytes() const { return m_text.size() * sizeof(Char16); }

private:
    const String16& m_file;
    std::vector<Char16> m_text;
};

void FillStd(StdMap& map, const std::vector<TranslationEntry>& entries)
{
    for (const TranslationEntry& entry : entries)
        map[entry.English] = entry.Translation;
}

// The hash as it is defined, one unit after the other: the least that a look-up must do.
[[gnu::noinline]] uint32_t PlainHash(const Char16* text)
{
    uint32_t hash = 0;
    for (; *text != 0; ++text)
        hash = 5 * hash + 37u * *text;
    return hash;
}

struct Loaded
{
    explicit Loaded(const TranslatorSample& sample) : buffer(sample.file)
    {
        buffer.Refill();
        const std::vector<TranslationEntry> entries = buffer.Parse();
        const size_t before = HeapInUse();
        map.StoreAll(entries);
        bytes = HeapInUse() - before + buffer.Bytes();
        const size_t beforeStd = HeapInUse();
        FillStd(stdMap, entries);
        stdBytes = HeapInUse() - beforeStd;
    }

    CFileBuffer buffer;
    CLocalizerMap map;
    StdMap stdMap;
    size_t bytes;
    size_t stdBytes;
};

void MeasureLoading(const TranslatorSample& sample, CGoals& goals)
{
    CFileBuffer buffer(sample.file);
    std::unique_ptr<CLocalizerMap> map;
    std::unique_ptr<StdMap> stdMap;
    const auto prepare = [&]
    {
        map = std::make_unique<CLocalizerMap>();
        stdMap = std::make_unique<StdMap>();
        buffer.Refill();
        // A large request makes the heap tidy up what was freed, here and not in what is timed.
        void* const large = std::malloc(size_t{1} << 20);
        Keep(large);
        std::free(large);
    };
    std::vector<Contestant> all = {
        {"load", prepare, [&] { map->StoreAll(buffer.Parse()); }, {}},
        {"std", prepare, [&] { FillStd(*stdMap, buffer.Parse()); }, {}},
        {"parse only", prepare, [&] { Keep(buffer.Parse().size()); }, {}},
    };
    RunInTurn(all, sample.keys.size() > 10000 ? 31 : 301);
    for (const Contestant& one : all)
        std::printf("  %-46s %8.3f ms\n", one.name.c_str(), one.Best() * 1000);
    goals.Check("load / std::unordered_map<u16string,u16string>", all[0].Best() / all[1].Best(),
                0.5);
    goals.Check("load / parse only", all[0].Best() / all[2].Best(), 2.2);
}

// Texts to look up, one behind the other in memory: a program has the text that it asks for at
// hand.
class CQuestions
{
public:
    explicit CQuestions(const std::vector<String16>& texts)
    {
        for (const String16& text : texts)
            m_units.append(text.c_str(), text.size() + 1);
        const Char16* position = m_units.c_str();
        for (const String16& text : texts)
        {
            m_texts.push_back(position);
            position += text.size() + 1;
        }
    }
    auto begin() const { return m_texts.begin(); }
    auto end() const { return m_texts.end(); }

private:
    String16 m_units;
    std::vector<const Char16*> m_texts;
};

std::vector<String16> Shuffled(std::vector<String16> texts)
{
    std::shuffle(texts.begin(), texts.end(), std::mt19937(1));
    return texts;
}

template <class Texts, class Work>
Contestant Each(const char* name, const Texts& texts, Work work)
{
    return {name,
            [] {},
            [&texts, work]
            {
                for (const auto& text : texts)
                    Keep(work(text));
            },
            {}};
}

// Nanoseconds for one text.
double PerText(const Contestant& contestant, size_t texts)
{
    return contestant.Best() * 1e9 / static_cast<double>(texts);
}

void MeasureLookups(const TranslatorSample& sample, const Loaded& loaded, CGoals& goals)
{
    const CCatalog catalog(sample);
    const CQuestions hits(sample.keys);
    const CQuestions misses(sample.absent);
    const CQuestions anyOrder(Shuffled(sample.keys));
    const auto find = [&](const Char16* text)
    {
        Char16* value = nullptr;
        loaded.map.Find({text}, value);
        return value;
    };
    const auto findStd = [&](const Char16* text) { return loaded.stdMap.find(String16(text)); };
    const auto hash = [&](const Char16* text) { return loaded.map.Hash({text}); };
    const auto ask = [&](const std::string& text) { return catalog.Translate(text); };
    std::vector<Contestant> all = {
        Each("hit", hits, find),
        Each("hash only, unit by unit", hits, PlainHash),
        Each("std hit, key made from a pointer", hits, findStd),
        Each("miss", misses, find),
        Each("std miss, key made from a pointer", misses, findStd),
        Each("hit, not in the file's order", anyOrder, find),
        Each("the map's hash only", hits, hash),
    };
    if (catalog.Works())
        all.push_back(Each("dgettext hit", catalog.Keys(), ask));
    RunInTurn(all, sample.keys.size() > 10000 ? 31 : 301);
    for (const Contestant& one : all)
        std::printf("  %-46s %8.1f ns\n", one.name.c_str(), PerText(one, sample.keys.size()));
    if (sample.keys.size() <= 2000)
        goals.Check("hit / hash only, unit by unit", all[0].Best() / all[1].Best(), 1.7);
    goals.Check("hit / std from pointer", all[0].Best() / all[2].Best(), 0.45);
    if (catalog.Works())
        goals.Check("hit / dgettext", all[0].Best() / all.back().Best(), 0.25);
    else
        std::printf("  no msgfmt or no locale: the gettext peer is left out\n");
}

} // namespace

int main()
{
    // Memory stays with the process, so that no round pays for the page faults of another.
    mallopt(M_MMAP_THRESHOLD, 1 << 30);
    mallopt(M_TRIM_THRESHOLD, 1 << 30);
    CGoals goals;
    for (const unsigned entries : {2000u, 50000u})
    {
        const TranslatorSample sample(entries);
        std::printf("%u entries, %zu KB\n", entries, sample.file.size() * 2 / 1024);
        MeasureLoading(sample, goals);
        const Loaded loaded(sample);
        MeasureLookups(sample, loaded, goals);
        std::printf("  %-46s %8zu KB\n", "memory", loaded.bytes / 1024);
        std::printf("  %-46s %8zu KB\n", "std memory", loaded.stdBytes / 1024);
        goals.Check("memory / std",
                    static_cast<double>(loaded.bytes) / static_cast<double>(loaded.stdBytes), 0.65);
    }
    return goals.Finish();
}
