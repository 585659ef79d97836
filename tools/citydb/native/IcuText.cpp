#include "tools/citydb/SystemText.h"
#include "tools/citydb/Text.h"

#include "tools/citydb/Errors.h"

#include <algorithm>
#include <memory>
#include <vector>

#include <unicode/coll.h>
#include <unicode/translit.h>
#include <unicode/uchar.h>
#include <unicode/unistr.h>
#include <unicode/ustring.h>

namespace citydb
{

namespace
{

void Require(UErrorCode status, const char* what)
{
    if (U_FAILURE(status))
        throw CInputError(std::string("ICU's data for ") + what +
                          " is missing: " + u_errorName(status));
}

icu::UnicodeString ToIcu(StringView16 text)
{
    return icu::UnicodeString(text.data(), static_cast<int32_t>(text.size()));
}

const icu::Transliterator& PlainSpeller()
{
    static const std::unique_ptr<icu::Transliterator> speller = []
    {
        UErrorCode status = U_ZERO_ERROR;
        std::unique_ptr<icu::Transliterator> made(icu::Transliterator::createInstance(
            "NFD; [:Mn:] Remove; NFC; Latin-ASCII", UTRANS_FORWARD, status));
        Require(status, "spelling without accents");
        return made;
    }();
    return *speller;
}

const icu::Collator& ReaderOrder()
{
    static const std::unique_ptr<icu::Collator> order = []
    {
        UErrorCode status = U_ZERO_ERROR;
        std::unique_ptr<icu::Collator> made(
            icu::Collator::createInstance(icu::Locale::getRoot(), status));
        Require(status, "the order of names");
        return made;
    }();
    return *order;
}

} // namespace

std::string CollationKey(StringView16 text)
{
    std::vector<uint8_t> key(text.size() * 4 + 32);
    int32_t length =
        ReaderOrder().getSortKey(ToIcu(text), key.data(), static_cast<int32_t>(key.size()));
    if (static_cast<size_t>(length) > key.size())
    {
        key.resize(static_cast<size_t>(length));
        length = ReaderOrder().getSortKey(ToIcu(text), key.data(), length);
    }
    return std::string(key.begin(), key.begin() + length);
}

bool IsLetterOrDigit(Char16 unit)
{
    return u_isalnum(unit);
}

std::optional<String16> ToUtf16(std::string_view utf8)
{
    String16 text(utf8.size(), u'\0');
    int32_t length = 0;
    UErrorCode status = U_ZERO_ERROR;
    u_strFromUTF8(text.data(), static_cast<int32_t>(text.size()), &length, utf8.data(),
                  static_cast<int32_t>(utf8.size()), &status);
    if (U_FAILURE(status))
        return std::nullopt;
    text.resize(static_cast<size_t>(length));
    return text;
}

std::string ToUtf8(StringView16 text)
{
    std::string utf8;
    ToIcu(text).toUTF8String(utf8);
    return utf8;
}

String16 PlainSpelling(StringView16 text)
{
    if (std::all_of(text.begin(), text.end(), [](Char16 unit) { return unit < 0x80; }))
        return String16(text);
    icu::UnicodeString spelt = ToIcu(text);
    PlainSpeller().transliterate(spelt);
    return String16(spelt.getBuffer(), static_cast<size_t>(spelt.length()));
}

const Char16* FoldTable()
{
    static const std::vector<Char16> table = []
    {
        std::vector<Char16> made(0x10000);
        for (UChar32 unit = 0; unit < 0x10000; ++unit)
        {
            // A letter whose small form needs two units can't be folded unit by unit.
            const UChar32 small = u_tolower(unit);
            made[static_cast<size_t>(unit)] = static_cast<Char16>(small < 0x10000 ? small : unit);
        }
        return made;
    }();
    return table.data();
}

} // namespace citydb
