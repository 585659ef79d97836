#include "dialogs/now/PluginList.h"

#include "dialogs/now/PluginRules.h"
#include "frame/Localizer.h"
#include "menu/MemoryFailure.h"
#include "platform/Memory.h"

#include <algorithm>
#include <optional>

namespace
{

constexpr const wchar_t* kNowPath = L"\\SOFTWARE\\Orvane\\Shared\\Tav Menu\\Now";

// The values of a registration.
constexpr const wchar_t* kTextValue = L"Text";
constexpr const wchar_t* kKindValue = L"Kind";
constexpr const wchar_t* kBuildInValue = L"BuildIn";
constexpr const wchar_t* kCheckMachineValue = L"CheckHKLM";
constexpr const wchar_t* kCheckUserValue = L"CheckHKCU";
constexpr const wchar_t* kInactiveValue = L"Inactive";

enum class Registration
{
    Listed,
    Hidden,
    Malformed
};

std::optional<uint32_t> NumberOf(const CVORegistry& key, const wchar_t* name)
{
    DWORD value = 0;
    return key.GetDWORD(name, value) ? std::optional<uint32_t>(value) : std::nullopt;
}

bool KeyExists(HKEY root, const std::wstring& path)
{
    return CVORegistry(root, path.c_str(), FALSE, FALSE, 0).Key != nullptr;
}

// A plug-in may name a key that its installation made. The user's key counts only when no key of
// the machine is named.
bool IsInstalled(CVORegistry& key)
{
    const std::wstring machinePath = key.GetString(kCheckMachineValue, nullptr);
    if (!machinePath.empty())
        return KeyExists(HKEY_LOCAL_MACHINE, machinePath);
    const std::wstring userPath = key.GetString(kCheckUserValue, nullptr);
    return userPath.empty() || KeyExists(HKEY_CURRENT_USER, userPath);
}

std::wstring ShownText(CVORegistry& key)
{
    std::wstring text = key.GetString(kTextValue, nullptr);
    if (NumberOf(key, kBuildInValue).value_or(0) != 0)
        text = GetLocalizer().TranslateToString(text.c_str());
    return text;
}

// A text that there was no memory for reads as an empty one, which must not cost the registration:
// once there is enough, the text is read again.
bool HasMemoryForText(const CVORegistry& key)
{
    constexpr DWORD kRoom = 2048;
    DWORD size = 0;
    key.GetBinary(kTextValue, nullptr, &size);
    return AllocateZeroed<char>(static_cast<size_t>(size) + kRoom) != nullptr;
}

Registration ReadPlugin(const CVORegistry& now, const std::wstring& keyName, Plugin& plugin)
{
    CVORegistry key(now.Key, keyName.c_str(), FALSE, FALSE, 0);
    // What can't be read can't be told to be malformed either: it must not be deleted for it.
    if (!key.Key || !IsInstalled(key))
        return Registration::Hidden;
    std::wstring text = ShownText(key);
    if (text.empty() && !HasMemoryForText(key))
        return Registration::Hidden;
    if (text.empty())
        text = ShownText(key);
    const std::optional<uint32_t> stored = NumberOf(key, kKindValue);
    const int32_t kind = stored ? static_cast<int32_t>(*stored) : KindMissing;
    if (IsMalformedPlugin(text, kind))
        return Registration::Malformed;
    plugin.KeyName = keyName;
    plugin.Label = text + GetLocalizer().LoadTranslatedString(KindSuffix(kind));
    plugin.Kind = kind;
    plugin.IsUsed = IsPluginUsed(NumberOf(key, kInactiveValue));
    return Registration::Listed;
}

// Names the malformed registrations, too.
std::vector<Plugin> ReadAll(const CVORegistry& now, std::vector<std::wstring>& malformed)
{
    std::vector<Plugin> plugins;
    std::wstring name;
    for (DWORD index = 0; now.EnumKey(index, name); ++index)
    {
        Plugin plugin;
        const Registration found = ReadPlugin(now, name, plugin);
        if (found == Registration::Listed)
            plugins.push_back(std::move(plugin));
        else if (found == Registration::Malformed)
            malformed.push_back(name);
    }
    return plugins;
}

std::vector<Plugin> ReadOnly()
{
    const CVORegistry now(HKEY_LOCAL_MACHINE, kNowPath, FALSE, FALSE, 0);
    std::vector<std::wstring> malformed;
    return ReadAll(now, malformed);
}

std::vector<Plugin> ReadAndCleanUp()
{
    CVORegistry now(HKEY_LOCAL_MACHINE, kNowPath, FALSE, FALSE, 0);
    std::vector<std::wstring> malformed;
    std::vector<Plugin> plugins = ReadAll(now, malformed);
    // Only now: a key that goes while the keys are counted moves the others up.
    std::for_each(malformed.rbegin(), malformed.rend(),
                  [&](const std::wstring& key) { now.DeleteKeyTree(key.c_str()); });
    return plugins;
}

} // namespace

std::vector<Plugin> LoadPlugins()
{
    return WithMemoryFailure(ReadAndCleanUp);
}

std::vector<Plugin> PeekPlugins()
{
    return WithMemoryFailure(ReadOnly);
}

CPluginSaving::CPluginSaving() : m_now(HKEY_LOCAL_MACHINE, kNowPath, TRUE, TRUE, 0) {}

void CPluginSaving::SetUsed(const std::wstring& keyName, bool isUsed)
{
    CVORegistry key(m_now.Key, keyName.c_str(), TRUE, TRUE, 0);
    if (IsPluginUsed(NumberOf(key, kInactiveValue)) != isUsed)
        key.SetDWORD(kInactiveValue, isUsed ? 0 : 1);
}
