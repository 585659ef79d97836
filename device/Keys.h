// Registry paths of the device that the menu doesn't know, below HKEY_LOCAL_MACHINE.
#pragma once

namespace keys
{

constexpr const wchar_t* kProduct = L"\\SOFTWARE\\Orvane 2\\Tav Lumenar";
constexpr const wchar_t* kSharedComponent = L"\\SOFTWARE\\Orvane\\Shared\\Tav Menu";
// The global list of what is used and pinned, and who shows what on the Now screen.
constexpr const wchar_t* kGlobalList = L"\\SOFTWARE\\Orvane 2\\Tav Lumenar\\Ratings\\GlobalMRUList";
constexpr const wchar_t* kPlugins = L"\\SOFTWARE\\Orvane\\Shared\\Tav Menu\\Now";
constexpr const wchar_t* kNowLayout =
    L"\\SOFTWARE\\Orvane 2\\Tav Lumenar\\NowScreen\\PluginEnvironment";
// Where the stand-in shell keeps its own few values.
constexpr const wchar_t* kDevice = L"\\SOFTWARE\\Orvane 2\\Tav Lumenar\\Device";

} // namespace keys
