#include "tests/support/RegistrySandbox.h"

#include <gtest/gtest.h>

#include <atomic>
#include <set>
#include <sstream>

namespace
{

constexpr const wchar_t* kSandboxes = L"Software\\TavLumenarTests";
// Values of this size are dumped by one call.
constexpr DWORD kUsualSize = 1024;

const wchar_t* Relative(const wchar_t* path)
{
    while (*path == L'\\')
        ++path;
    return path;
}

std::wstring UniqueName()
{
    static std::atomic<int> counter{0};
    return std::to_wstring(GetCurrentProcessId()) + L"-" + std::to_wstring(GetTickCount64()) +
           L"-" + std::to_wstring(++counter);
}

// A key that is open for the length of a scope.
class COpenKey
{
public:
    COpenKey(HKEY root, const wchar_t* path)
    {
        RegOpenKeyExW(root, Relative(path), 0, KEY_READ | KEY_WOW64_64KEY, &m_key);
    }
    ~COpenKey()
    {
        if (m_key)
            RegCloseKey(m_key);
    }
    COpenKey(const COpenKey&) = delete;
    COpenKey& operator=(const COpenKey&) = delete;
    HKEY get() const { return m_key; }

private:
    HKEY m_key = nullptr;
};

std::string ReadBytes(HKEY key, const wchar_t* name, DWORD* type, bool* found)
{
    DWORD size = 0;
    *found = key && RegQueryValueExW(key, name, nullptr, type, nullptr, &size) == ERROR_SUCCESS;
    std::string data(*found ? size : 0, '\0');
    if (!data.empty())
        RegQueryValueExW(key, name, nullptr, type, reinterpret_cast<BYTE*>(data.data()), &size);
    return data;
}

// A value's type and bytes in words.
using ValueFormat = std::wstring (*)(DWORD type, const std::string& data);

std::wstring TextIn(const std::string& data)
{
    return std::wstring(reinterpret_cast<const wchar_t*>(data.data()), data.size() / 2).c_str();
}

std::wstring HexOf(const std::string& data)
{
    std::wstring digits;
    for (const char byte : data)
    {
        wchar_t hex[4];
        swprintf(hex, 4, L"%02X", static_cast<unsigned char>(byte));
        digits += hex;
    }
    return digits;
}

std::wstring PlainFormat(DWORD type, const std::string& data)
{
    return type == REG_SZ ? TextIn(data) : HexOf(data);
}

std::wstring TypedFormat(DWORD type, const std::string& data)
{
    DWORD number = 0;
    if (type == REG_SZ)
        return L'"' + TextIn(data) + L'"';
    if (type != REG_DWORD || data.size() != sizeof(number))
        return L"type " + std::to_wstring(type) + L": " + HexOf(data);
    memcpy(&number, data.data(), sizeof(number));
    return std::to_wstring(number);
}

void DumpKey(HKEY key, const std::wstring& path, ValueFormat format, std::wstring& lines)
{
    wchar_t name[1024];
    for (DWORD i = 0;; ++i)
    {
        DWORD length = 1024;
        DWORD type = 0;
        std::string data(kUsualSize, '\0');
        DWORD size = kUsualSize;
        const LONG error = RegEnumValueW(key, i, name, &length, nullptr, &type,
                                         reinterpret_cast<BYTE*>(data.data()), &size);
        if (error != ERROR_SUCCESS && error != ERROR_MORE_DATA)
            break;
        bool found = false;
        if (error == ERROR_SUCCESS)
            data.resize(size);
        else
            data = ReadBytes(key, name, &type, &found);
        lines += path + L"|" + name + L"=" + format(type, data) + L"\n";
    }
    for (DWORD i = 0;; ++i)
    {
        DWORD length = 1024;
        if (RegEnumKeyExW(key, i, name, &length, nullptr, nullptr, nullptr, nullptr))
            break;
        lines += path + L"\\" + name + L"\n";
        COpenKey child(key, name);
        DumpKey(child.get(), path + L"\\" + name, format, lines);
    }
}

std::wstring DumpBelow(HKEY root, const wchar_t* path, ValueFormat format)
{
    const COpenKey key(root, path);
    std::wstring lines;
    if (key.get())
        DumpKey(key.get(), L"", format, lines);
    return lines;
}

std::set<std::wstring> LinesOf(const std::wstring& dump)
{
    std::wistringstream stream(dump);
    std::set<std::wstring> lines;
    for (std::wstring line; std::getline(stream, line);)
        lines.insert(line);
    return lines;
}

} // namespace

CRegistrySandbox::CRegistrySandbox(HKEY root)
    : m_root(root), m_path(std::wstring(kSandboxes) + L"\\" + UniqueName())
{
    RegDeleteTreeW(HKEY_CURRENT_USER, m_path.c_str());
    EXPECT_EQ(ERROR_SUCCESS,
              RegCreateKeyExW(HKEY_CURRENT_USER, m_path.c_str(), 0, nullptr, 0,
                              KEY_ALL_ACCESS | KEY_WOW64_64KEY, nullptr, &m_key, nullptr));
    EXPECT_EQ(ERROR_SUCCESS, RegOverridePredefKey(m_root, m_key));
}

CRegistrySandbox::~CRegistrySandbox()
{
    RegOverridePredefKey(m_root, nullptr);
    RegCloseKey(m_key);
    RegDeleteTreeW(HKEY_CURRENT_USER, m_path.c_str());
    RegDeleteKeyW(HKEY_CURRENT_USER, m_path.c_str());
}

void CRegistrySandbox::SetRaw(const wchar_t* path, const wchar_t* name, DWORD type,
                              const void* data, DWORD size)
{
    HKEY key = nullptr;
    ASSERT_EQ(ERROR_SUCCESS,
              RegCreateKeyExW(m_key, Relative(path), 0, nullptr, 0,
                              KEY_ALL_ACCESS | KEY_WOW64_64KEY, nullptr, &key, nullptr));
    EXPECT_EQ(ERROR_SUCCESS,
              RegSetValueExW(key, name, 0, type, static_cast<const BYTE*>(data), size));
    RegCloseKey(key);
}

void CRegistrySandbox::SetDword(const wchar_t* path, const wchar_t* name, DWORD value)
{
    SetRaw(path, name, REG_DWORD, &value, sizeof(value));
}

void CRegistrySandbox::SetText(const wchar_t* path, const wchar_t* name, const std::wstring& text)
{
    SetRaw(path, name, REG_SZ, text.c_str(), static_cast<DWORD>((text.size() + 1) * 2));
}

void CRegistrySandbox::CreateKey(const wchar_t* path)
{
    HKEY key = nullptr;
    ASSERT_EQ(ERROR_SUCCESS,
              RegCreateKeyExW(m_key, Relative(path), 0, nullptr, 0,
                              KEY_ALL_ACCESS | KEY_WOW64_64KEY, nullptr, &key, nullptr));
    RegCloseKey(key);
}

bool CRegistrySandbox::KeyExists(const wchar_t* path) const
{
    return COpenKey(m_key, path).get() != nullptr;
}

bool CRegistrySandbox::ValueExists(const wchar_t* path, const wchar_t* name) const
{
    const COpenKey key(m_key, path);
    bool found = false;
    DWORD type = 0;
    ReadBytes(key.get(), name, &type, &found);
    return found;
}

DWORD CRegistrySandbox::Dword(const wchar_t* path, const wchar_t* name, DWORD absent) const
{
    DWORD type = 0;
    const std::string data = Raw(path, name, &type);
    if (type != REG_DWORD || data.size() != sizeof(DWORD))
        return absent;
    DWORD value = 0;
    memcpy(&value, data.data(), sizeof(value));
    return value;
}

std::wstring CRegistrySandbox::Text(const wchar_t* path, const wchar_t* name,
                                    const wchar_t* absent) const
{
    DWORD type = 0;
    std::string data = Raw(path, name, &type);
    if (type != REG_SZ)
        return absent;
    data.append(2, '\0');
    return std::wstring(reinterpret_cast<const wchar_t*>(data.data()));
}

std::string CRegistrySandbox::Raw(const wchar_t* path, const wchar_t* name, DWORD* type) const
{
    const COpenKey key(m_key, path);
    bool found = false;
    DWORD ignored = 0;
    return ReadBytes(key.get(), name, type ? type : &ignored, &found);
}

std::wstring CRegistrySandbox::Dump(const wchar_t* path) const
{
    return DumpBelow(m_key, path, PlainFormat);
}

std::wstring CRegistrySandbox::TypedDump(const wchar_t* path) const
{
    return DumpBelow(m_key, path, TypedFormat);
}

std::vector<std::wstring> DumpDifference(const std::wstring& before, const std::wstring& after)
{
    const std::set<std::wstring> old = LinesOf(before);
    const std::set<std::wstring> now = LinesOf(after);
    std::vector<std::wstring> difference;
    for (const std::wstring& line : now)
        if (old.count(line) == 0)
            difference.push_back(L"+" + line);
    for (const std::wstring& line : old)
        if (now.count(line) == 0)
            difference.push_back(L"-" + line);
    return difference;
}

bool JoinRegistrySandbox(HKEY root, const std::wstring& backingPath)
{
    HKEY key = nullptr;
    if (RegOpenKeyExW(HKEY_CURRENT_USER, backingPath.c_str(), 0, KEY_ALL_ACCESS | KEY_WOW64_64KEY,
                      &key))
        return false;
    const bool joined = RegOverridePredefKey(root, key) == ERROR_SUCCESS;
    RegCloseKey(key);
    return joined;
}
