#include "device/NowReport.h"

#include "platform/Win.h"

#include "device/Keys.h"
#include "dialogs/now/PluginRules.h"
#include "menu/MenuKeys.h"
#include "platform/os/Text.h"

namespace report
{
namespace
{

// A registration itself, not a key below one.
bool IsPlugin(const std::wstring& path)
{
    const std::wstring above = std::wstring(keys::kPlugins) + L"\\";
    return os::BeginsNoCase(path, above) && path.find(L'\\', above.size()) == std::wstring::npos;
}

// Whether the dialog deletes such a registration of its own accord.
bool IsMalformed(const RegistrySnapshot& snapshot, const std::wstring& path)
{
    const RegistryValue* const kind = FindValue(snapshot, path, L"Kind");
    return IsMalformedPlugin(TextOf(FindValue(snapshot, path, kTextValue)),
                             kind ? static_cast<int32_t>(NumberOf(kind, 0)) : KindMissing);
}

std::wstring KeyNameOf(const std::wstring& path)
{
    return path.substr(path.rfind(L'\\') + 1);
}

// The plug-in's name, or its key's when it has none.
std::wstring PluginName(const RegistrySnapshot& snapshot, const std::wstring& path)
{
    const std::wstring text = TextOf(FindValue(snapshot, path, kTextValue));
    return L"\"" + (text.empty() ? KeyNameOf(path) : text) + L"\"";
}

bool IsUsed(const RegistryValue* inactive)
{
    return IsPluginUsed(inactive ? std::optional<uint32_t>(NumberOf(inactive, 1)) : std::nullopt);
}

std::wstring PluginSwitched(const std::wstring& plugin, const RegistryValue* was,
                            const RegistryValue* now)
{
    const std::wstring stored = L" (Inactive = " + std::to_wstring(NumberOf(now, 1)) + L")";
    if (IsUsed(was) == IsUsed(now))
        return L"plug-in " + plugin + L" stays as it was" + stored;
    return L"plug-in " + plugin +
           (IsUsed(now) ? L" is used on the Now screen now"
                        : L" is no longer used on the Now screen") +
           stored;
}

// The layout by the name that the wizard shows.
std::wstring LayoutName(const RegistryValue* type)
{
    return type && TextOf(type) == L"Detailed" ? L"Professional" : L"Classic";
}

std::wstring LayoutChanged(const RegistryValue* was, const RegistryValue* now)
{
    const std::wstring to = LayoutName(now);
    const std::wstring stored = L" (Type = \"" + TextOf(now) + L"\")";
    if (LayoutName(was) == to)
        return L"the Now screen keeps its layout " + to + stored;
    return L"the Now screen's layout changed from " + LayoutName(was) + L" to " + to + stored;
}

} // namespace

std::wstring NowValueChanged(const RegistrySnapshot& after, const std::wstring& path,
                             const std::wstring& name, const RegistryValue* was,
                             const RegistryValue* now)
{
    if (now && IsPlugin(path) && os::EqualNoCase(name, kInactiveValue))
        return PluginSwitched(PluginName(after, path), was, now);
    if (now && os::EqualNoCase(path, keys::kNowLayout) && os::EqualNoCase(name, L"Type"))
        return LayoutChanged(was, now);
    return {};
}

std::wstring NowKeyVanished(const RegistrySnapshot& before, const std::wstring& path)
{
    if (!IsPlugin(path))
        return {};
    return std::wstring(IsMalformed(before, path) ? L"the malformed plug-in registration "
                                                  : L"the plug-in registration ") +
           PluginName(before, path) + L" was deleted (key " + KeyNameOf(path) + L")";
}

} // namespace report
