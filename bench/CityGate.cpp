// Searches 20,000 generated names from scratch for one text: what the instruction gate counts.
#include "bench/CitySample.h"
#include "dialogs/city/CitySearch.h"

namespace
{

constexpr uint32_t kCities = 20000;

} // namespace

// The gate counts what happens inside this function, which it knows by its name.
extern "C" [[gnu::noinline]] uint32_t Measured(CCitySearch& search, StringView16 text)
{
    return search.Search(text, true, 0);
}

int main(int count, char** arguments)
{
    const std::string key = count == 2 ? arguments[1] : "";
    const CCitySample sample(kCities);
    const std::vector<Char16> fold = LowerCaseTable();
    CCitySearch search(fold.data());
    search.Attach(sample.View());
    const uint32_t found = Measured(search, String16(key.begin(), key.end()));
    return found != 0 && found != kCities ? 0 : 1;
}
