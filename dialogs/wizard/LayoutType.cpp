#include "dialogs/wizard/LayoutType.h"

#include "frame/VORegistry.h"
#include "include/TavLumenarDialogs.h"

namespace
{

constexpr wchar_t kKey[] = L"\\SOFTWARE\\Orvane 2\\Tav Lumenar\\NowScreen\\PluginEnvironment";
constexpr wchar_t kTypeValue[] = L"Type";
constexpr wchar_t kClassic[] = L"Simple";
constexpr wchar_t kProfessional[] = L"Detailed";

} // namespace

// Capitals matter: other readers of the value compare it exactly, too.
LayoutType LoadLayoutType()
{
    CVORegistry key(HKEY_LOCAL_MACHINE, kKey, FALSE, FALSE, 0);
    return key.GetString(kTypeValue, L"") == kProfessional ? LayoutType::Professional
                                                           : LayoutType::Classic;
}

void SaveLayoutType(LayoutType type)
{
    CVORegistry key(HKEY_LOCAL_MACHINE, kKey, TRUE, TRUE, 0);
    key.SetString(kTypeValue, type == LayoutType::Professional ? kProfessional : kClassic);
}

void AnnounceLayoutType()
{
    const HWND now = FindWindowW(TAVLUMENAR_NOW_WINDOW_CLASS, nullptr);
    if (now)
        PostMessageW(now, TAVLUMENAR_NOW_LAYOUT_CHANGED, 0, 0);
}
