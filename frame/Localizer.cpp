#include "frame/Localizer.h"

#include "frame/Module.h"
#include "frame/TranslationFile.h"
#include "frame/TranslationParser.h"
#include "frame/VORegistry.h"

#include <new>

namespace
{

constexpr wchar_t kShellKey[] = L"\\SOFTWARE\\Orvane 2\\Tav Lumenar";
constexpr wchar_t kInstallDir[] = L"InstallDir";
constexpr wchar_t kFileName[] = L"\\TavLumenar.txt";

// Texts and string resources are cut at this size, the terminating zero included.
constexpr int kTextSize = 1024;

std::wstring TranslationPath()
{
    CVORegistry key(HKEY_LOCAL_MACHINE, kShellKey, FALSE, FALSE, 0);
    return key.GetString(kInstallDir, nullptr) + kFileName;
}

} // namespace

CTavLocalizerAPI::CTavLocalizerAPI() : Text(nullptr), Module(GetModuleHandleW(nullptr)) {}

CTavLocalizerAPI::~CTavLocalizerAPI()
{
    Clear();
}

CTavLocalizerWTL::~CTavLocalizerWTL() = default;

BOOL CTavLocalizerAPI::LoadFile(const wchar_t* path)
{
    Clear();
    size_t length = 0;
    Text = ReadTranslationFile(path, length).release();
    if (!Text)
        return FALSE;
    Map.StoreAll(ParseTranslation(Text, Text + length));
    return TRUE;
}

void CTavLocalizerAPI::Clear()
{
    Map.Clear();
    std::free(Text);
    Text = nullptr;
}

BOOL CTavLocalizerAPI::Lookup(const wchar_t* text, wchar_t*& translation) const
{
    return Map.Find({text}, translation);
}

// The translation to show, null when there is none.
const wchar_t* CTavLocalizerAPI::Translation(const wchar_t* text) const
{
    wchar_t* translation = nullptr;
    return Lookup(text, translation) && *translation ? translation : nullptr;
}

const wchar_t* CTavLocalizerAPI::TranslateText(const wchar_t* text) const
{
    if (!text || !*text)
        return L"";
    const wchar_t* const translation = Translation(text);
    return translation ? translation : text;
}

int CTavLocalizerAPI::TranslateTextToBuffer(const wchar_t* text, wchar_t* buffer, int size) const
{
    if (!buffer || size < 1)
        return 0;
    const std::wstring_view shown(TranslateText(text));
    const size_t length = shown.copy(buffer, static_cast<size_t>(size) - 1);
    buffer[length] = L'\0';
    return static_cast<int>(length);
}

std::wstring CTavLocalizerAPI::TranslateToString(const wchar_t* text) const
{
    wchar_t buffer[kTextSize];
    const int length = TranslateTextToBuffer(text, buffer, kTextSize);
    return std::wstring(buffer, static_cast<size_t>(length));
}

int CTavLocalizerAPI::LoadString(UINT id, wchar_t* buffer, int size) const
{
    // Size 0 would make the system store a pointer in the buffer.
    if (!buffer || size < 1)
        return 0;
    const int length = LoadStringW(ModuleInstance(), id, buffer, size);
    if (length <= 0)
        return 0;
    const wchar_t* const translation = Translation(buffer);
    if (!translation)
        return length;
    wcsncpy(buffer, translation, static_cast<size_t>(size));
    buffer[size - 1] = L'\0';
    return static_cast<int>(wcslen(buffer));
}

std::wstring CTavLocalizerAPI::LoadTranslatedString(UINT id) const
{
    wchar_t buffer[kTextSize];
    const int length = LoadString(id, buffer, kTextSize);
    return std::wstring(buffer, static_cast<size_t>(length));
}

CTavLocalizerWTL& GetLocalizer()
{
    static CTavLocalizerWTL localizer;
    return localizer;
}

void LoadTranslations()
{
    try
    {
        GetLocalizer().LoadFile(TranslationPath().c_str());
    }
    catch (const std::bad_alloc&)
    {
        // Start-up must not fail for want of memory: the texts stay English.
        GetLocalizer().Clear();
    }
}
