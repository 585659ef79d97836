#include "tools/translations/Extraction.h"

#include "tools/citydb/Errors.h"
#include "tools/citydb/Files.h"
#include "tools/translations/CodeTexts.h"
#include "tools/translations/ResourceTexts.h"

#include <algorithm>

#include <unicode/uchar.h>
#include <unicode/utf8.h>

namespace translations
{

namespace
{

constexpr uint64_t kLargestSource = 16 << 20;
// Rooms whose code calls the translator.
constexpr const char* kCodeRooms[] = {"frame", "menu", "ui", "dialogs", "device"};

using Paths = std::vector<std::filesystem::path>;

Paths FilesBelow(const std::filesystem::path& folder, const std::vector<std::string>& endings)
{
    Paths found;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder))
        if (std::find(endings.begin(), endings.end(), entry.path().extension()) != endings.end())
            found.push_back(entry.path());
    std::sort(found.begin(), found.end());
    return found;
}

bool HasLetter(const std::string& text)
{
    const auto* bytes = reinterpret_cast<const uint8_t*>(text.data());
    const auto size = static_cast<int32_t>(text.size());
    for (int32_t i = 0; i < size;)
    {
        UChar32 character = 0;
        U8_NEXT(bytes, i, size, character);
        if (character >= 0 && u_isalpha(character))
            return true;
    }
    return false;
}

void AddTo(std::vector<SourceText>& all, const std::vector<SourceText>& texts)
{
    std::copy_if(texts.begin(), texts.end(), std::back_inserter(all),
                 [](const SourceText& text) { return HasLetter(text.English); });
}

std::vector<Token> TokensOf(const std::filesystem::path& path, Language language,
                            const std::string& name)
{
    return Tokens(citydb::ReadFile(path, kLargestSource), language, name);
}

} // namespace

std::vector<SourceText> ExtractTexts(const std::filesystem::path& folder)
{
    if (!std::filesystem::is_directory(folder / "resources"))
        throw citydb::CInputError(folder.string() +
                                  ": not the project's folder, it has no resources");
    const auto nameOf = [&](const std::filesystem::path& path)
    { return path.lexically_relative(folder).generic_string(); };
    std::vector<SourceText> all;
    for (const auto& path : FilesBelow(folder / "resources", {".rc", ".rc2"}))
        AddTo(all, ResourceTexts(TokensOf(path, Language::Resources, nameOf(path)), nameOf(path)));
    std::vector<CodeFile> code;
    for (const char* room : kCodeRooms)
        if (std::filesystem::is_directory(folder / room))
            for (const auto& path : FilesBelow(folder / room, {".cpp", ".h"}))
                code.push_back({nameOf(path), TokensOf(path, Language::Code, nameOf(path))});
    const Constants constants = CollectConstants(code);
    for (const CodeFile& file : code)
        AddTo(all, CodeTexts(file, constants));
    return all;
}

} // namespace translations
