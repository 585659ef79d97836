#include "frame/InstallFolder.h"

#include "frame/VORegistry.h"
#include "platform/os/Text.h"

namespace
{

constexpr wchar_t kShellKey[] = L"\\SOFTWARE\\Orvane 2\\Tav Lumenar";

std::wstring ReadInstallFolder()
{
    CVORegistry key(HKEY_LOCAL_MACHINE, kShellKey, FALSE, FALSE, 0);
    std::wstring folder = key.GetString(L"InstallDir", L"");
    if (!folder.empty() && folder.back() != L'\\')
        folder += L'\\';
    return os::FoldCase(folder);
}

} // namespace

const std::wstring& InstallFolder()
{
    static const std::wstring folder = ReadInstallFolder();
    return folder;
}
