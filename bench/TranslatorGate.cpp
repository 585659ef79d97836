// Loads a translation file of 2,000 entries, or looks each of them up once: what the instruction
// gate counts.
#include "bench/TranslatorSample.h"
#include "frame/LocalizerMap.h"
#include "frame/TranslationParser.h"

#include <cstring>

namespace
{

constexpr unsigned kEntries = 2000;

class CSubject
{
public:
    explicit CSubject(const TranslatorSample& sample)
        : m_keys(sample.keys), m_text(sample.file.begin(), sample.file.end())
    {
        m_text.push_back(0);
    }

    // Whether every entry is there.
    bool Load()
    {
        m_map.StoreAll(ParseTranslation(m_text.data(), m_text.data() + m_text.size() - 1));
        return m_map.Count == kEntries;
    }

    // Whether every entry is found.
    bool LookUp() const
    {
        unsigned found = 0;
        for (const String16& key : m_keys)
        {
            Char16* translation = nullptr;
            found += m_map.Find({key.c_str()}, translation);
        }
        return found == kEntries;
    }

private:
    const std::vector<String16>& m_keys;
    std::vector<Char16> m_text;
    CLocalizerMap m_map;
};

} // namespace

// The gate counts what happens inside this function, which it knows by its name.
extern "C" [[gnu::noinline]] bool Measured(CSubject& subject, bool load)
{
    return load ? subject.Load() : subject.LookUp();
}

int main(int count, char** arguments)
{
    const bool load = count == 2 && std::strcmp(arguments[1], "load") == 0;
    const TranslatorSample sample(kEntries);
    CSubject subject(sample);
    if (!load && !subject.Load())
        return 1;
    return Measured(subject, load) ? 0 : 1;
}
