#include "device/MenuReport.h"

#include "menu/MenuKeys.h"
#include "platform/os/Text.h"

namespace report
{
namespace
{

std::wstring Quoted(const std::wstring& text)
{
    return L"\"" + text + L"\"";
}

std::wstring LastComponent(const std::wstring& path)
{
    return path.substr(path.rfind(L'\\') + 1);
}

// The part of a customisation path that it shares with the layers below.
std::wstring Relative(const std::wstring& path)
{
    return path.substr(std::wstring(kCustomizeRootPath).size());
}

// What the item of a customisation key is called on the screen, in quotation marks.
std::wstring ItemName(const RegistrySnapshot& snapshot, const std::wstring& path)
{
    const std::wstring relative = Relative(path);
    if (relative.empty())
        return L"the menu itself";
    for (const wchar_t* root : {kMenuRootPath, kSharedRootPath, kCustomizeRootPath})
    {
        const std::wstring text = TextOf(FindValue(snapshot, root + relative, kTextValue));
        if (!text.empty())
            return Quoted(text);
    }
    return Quoted(LastComponent(path));
}

std::wstring ParentName(const RegistrySnapshot& snapshot, const std::wstring& path)
{
    return ItemName(snapshot, path.substr(0, path.rfind(L'\\')));
}

// The position by which the menu sorts the item of a customisation key.
uint32_t SortPosition(const RegistrySnapshot& snapshot, const std::wstring& path)
{
    const std::wstring relative = Relative(path);
    if (const RegistryValue* own = FindValue(snapshot, path, kIndexValue))
        return NumberOf(own, kDefaultIndex);
    if (snapshot.count(kMenuRootPath + relative))
        return NumberOf(FindValue(snapshot, kMenuRootPath + relative, kIndexValue), kDefaultIndex);
    if (snapshot.count(kSharedRootPath + relative))
        return kSharedIndexOffset +
               NumberOf(FindValue(snapshot, kSharedRootPath + relative, kIndexValue),
                        kDefaultIndex);
    return kDefaultIndex;
}

// "(Index = 3)", or what stands there instead.
std::wstring InBrackets(const wchar_t* name, const RegistryValue* now)
{
    if (!now)
        return std::wstring(L" (") + name + L" deleted)";
    const std::wstring text = now->Type == 1 ? TextOf(now) : std::to_wstring(NumberOf(now, 0));
    return std::wstring(L" (") + name + L" = " + text + L")";
}

bool IsUser(const RegistrySnapshot& snapshot, const std::wstring& path)
{
    return NumberOf(FindValue(snapshot, path, kUserValue), 0) != 0;
}

} // namespace

CMenuReport::CMenuReport(const RegistrySnapshot& before, const RegistrySnapshot& after)
    : m_before(before), m_after(after)
{
}

bool CMenuReport::Covers(const std::wstring& path)
{
    const std::wstring root = kCustomizeRootPath;
    return os::BeginsNoCase(path, root) &&
           (path.size() == root.size() || path[root.size()] == L'\\');
}

std::wstring CMenuReport::KeyAppeared(const std::wstring& path) const
{
    if (!IsUser(m_after, path))
        return {};
    const std::wstring file = TextOf(FindValue(m_after, path, kFileValue));
    const std::wstring what = file.empty() ? L"new menu " : L"new link ";
    const std::wstring target = file.empty() ? L"" : L" to " + file;
    return what + ItemName(m_after, path) + L" in " + ParentName(m_after, path) + target +
           L" (key " + LastComponent(path) + L")";
}

std::wstring CMenuReport::KeyVanished(const std::wstring& path) const
{
    if (!IsUser(m_before, path))
        return {};
    return ItemName(m_before, path) + L" was removed from " + ParentName(m_before, path) +
           L" (key " + LastComponent(path) + L" deleted)";
}

std::wstring CMenuReport::Moved(const std::wstring& path, const RegistryValue* was,
                                const RegistryValue* now) const
{
    const std::wstring name = ItemName(m_after, path);
    const uint32_t from = SortPosition(m_before, path);
    const uint32_t to = SortPosition(m_after, path);
    if (from == to && !was)
        return name + L" keeps place " + std::to_wstring(to + 1) + L", which is stored now" +
               InBrackets(kIndexValue, now);
    if (from >= kDefaultIndex)
        return name + L", unplaced before, has place " + std::to_wstring(to + 1) + L" now" +
               InBrackets(kIndexValue, now);
    return name + L" moved from place " + std::to_wstring(from + 1) + L" to " +
           std::to_wstring(to + 1) + InBrackets(kIndexValue, now);
}

std::wstring CMenuReport::FlagsChanged(const std::wstring& path, const RegistryValue* was,
                                       const RegistryValue* now) const
{
    const auto builtIn = [&]
    {
        const RegistryValue* flags =
            FindValue(m_before, kMenuRootPath + Relative(path), kRtFlagsValue);
        return NumberOf(flags, 0);
    };
    const uint32_t from = was ? NumberOf(was, 0) : builtIn();
    const uint32_t to = NumberOf(now, 0);
    std::wstring said;
    if ((from ^ to) & kRtMostUsedFirst)
        said += to & kRtMostUsedFirst ? L"shows most used items first now"
                                      : L"no longer shows most used items first";
    if ((from ^ to) & kRtHardwareNavigation)
    {
        said += said.empty() ? L"" : L" and ";
        said += to & kRtHardwareNavigation ? L"is optimized for hardware navigation now"
                                           : L"is no longer optimized for hardware navigation";
    }
    if (said.empty())
        said = L"has its display options stored now";
    return ItemName(m_after, path) + L" " + said + InBrackets(kRtFlagsValue, now);
}

std::wstring CMenuReport::ValueChanged(const std::wstring& path, const std::wstring& name,
                                       const RegistryValue* was, const RegistryValue* now) const
{
    const std::wstring item = ItemName(m_after, path);
    const auto is = [&](const wchar_t* known) { return os::EqualNoCase(name, known); };
    if (is(kLastKeyValue) && now)
        return L"the next new key will be User " + std::to_wstring(NumberOf(now, 0) + 1) +
               InBrackets(kLastKeyValue, now);
    if (is(kInactiveValue) && now)
    {
        if (NumberOf(was, 0) == NumberOf(now, 0))
            return item + L" stays as visible as it was" + InBrackets(kInactiveValue, now);
        return item + (NumberOf(now, 0) ? L" is now hidden" : L" is shown again") +
               InBrackets(kInactiveValue, now);
    }
    if (is(kIndexValue) && now)
        return Moved(path, was, now);
    if (is(kTextValue) && was && now)
        return Quoted(TextOf(was)) + L" was renamed to " + Quoted(TextOf(now));
    if (is(kImageValue))
        return item + (now ? L" has another icon now" : L" has no icon of its own any more") +
               InBrackets(kImageValue, now);
    if (is(kDrawTypeValue) && now)
        return item + L" is laid out as a " +
               (os::EqualNoCase(TextOf(now), kGridText) ? L"grid now" : L"list now") +
               InBrackets(kDrawTypeValue, now);
    if (is(kRtFlagsValue) && now)
        return FlagsChanged(path, was, now);
    if (is(kRatingValue) && now)
        return item + L" has a usage list of its own now" + InBrackets(kRatingValue, now);
    return {};
}

} // namespace report
