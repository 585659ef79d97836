#include "device/RegistryReport.h"

#include "platform/Win.h"

#include <set>

#include "device/MenuReport.h"

namespace report
{
namespace
{

using Lines = std::vector<std::wstring>;

void Add(Lines& lines, const std::wstring& sentence)
{
    if (!sentence.empty())
        lines.push_back(sentence);
}

std::wstring PlainChange(const std::wstring& path, const std::wstring& name,
                         const RegistryValue* was, const RegistryValue* now)
{
    return L"key " + path + L", value \"" + name + L"\": was " +
           (was ? ValueInWords(*was) : L"absent") + L", now " +
           (now ? ValueInWords(*now) : L"absent");
}

const RegistryValue* Find(const RegistryValues& values, const std::wstring& name)
{
    const auto value = values.find(name);
    return value == values.end() ? nullptr : &value->second;
}

bool Same(const RegistryValue* left, const RegistryValue* right)
{
    return left == right || (left && right && *left == *right);
}

// The values of one key that differ, each in a sentence.
void DescribeValues(const CMenuReport& menu, const std::wstring& path, const RegistryValues& was,
                    const RegistryValues& now, Lines& lines)
{
    std::set<std::wstring, CaseFreeLess> names;
    for (const auto& value : was)
        names.insert(value.first);
    for (const auto& value : now)
        names.insert(value.first);
    for (const std::wstring& name : names)
    {
        const RegistryValue* before = Find(was, name);
        const RegistryValue* after = Find(now, name);
        if (Same(before, after))
            continue;
        std::wstring sentence;
        if (CMenuReport::Covers(path))
            sentence = menu.ValueChanged(path, name, before, after);
        Add(lines, sentence.empty() ? PlainChange(path, name, before, after) : sentence);
    }
}

// A key that only one side has.
void DescribeKey(const CMenuReport& menu, const std::wstring& path, const RegistryValues& values,
                 bool appeared, Lines& lines)
{
    if (CMenuReport::Covers(path))
    {
        const std::wstring sentence = appeared ? menu.KeyAppeared(path) : menu.KeyVanished(path);
        if (!sentence.empty())
        {
            lines.push_back(sentence);
            return;
        }
    }
    if (!appeared || values.empty())
        lines.push_back(L"key " + path + (appeared ? L" was created" : L" was deleted"));
    if (appeared)
        DescribeValues(menu, path, {}, values, lines);
}

} // namespace

std::wstring ValueInWords(const RegistryValue& value)
{
    if (value.Type == REG_DWORD && value.Data.size() == 4)
        return std::to_wstring(NumberOf(&value, 0));
    if (value.Type == REG_SZ)
        return L"\"" + TextOf(&value) + L"\"";
    constexpr size_t kMostBytes = 16;
    constexpr const wchar_t* kDigits = L"0123456789ABCDEF";
    std::wstring words = std::to_wstring(value.Data.size()) + L" bytes";
    for (size_t i = 0; i < value.Data.size() && i < kMostBytes; ++i)
    {
        words += i == 0 ? L": " : L" ";
        words += kDigits[value.Data[i] >> 4];
        words += kDigits[value.Data[i] & 15];
    }
    return value.Data.size() > kMostBytes ? words + L" ..." : words;
}

std::vector<std::wstring> DescribeChanges(const RegistrySnapshot& before,
                                          const RegistrySnapshot& after)
{
    const CMenuReport menu(before, after);
    std::set<std::wstring, CaseFreeLess> paths;
    for (const auto& key : before)
        paths.insert(key.first);
    for (const auto& key : after)
        paths.insert(key.first);
    Lines lines;
    for (const std::wstring& path : paths)
    {
        const auto was = before.find(path);
        const auto now = after.find(path);
        if (was == before.end())
            DescribeKey(menu, path, now->second, true, lines);
        else if (now == after.end())
            DescribeKey(menu, path, was->second, false, lines);
        else
            DescribeValues(menu, path, was->second, now->second, lines);
    }
    return lines;
}

} // namespace report
