#include "tests/support/LanguageFile.h"

#include "platform/Handles.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace
{

std::string ReadBytes(const std::wstring& path)
{
    const UniqueFile file(CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr,
                                      OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    EXPECT_TRUE(file) << path;
    std::string bytes(file ? GetFileSize(file.get(), nullptr) : 0, '\0');
    DWORD length = 0;
    if (!bytes.empty())
        ReadFile(file.get(), bytes.data(), static_cast<DWORD>(bytes.size()), &length, nullptr);
    EXPECT_EQ(bytes.size(), length);
    return bytes;
}

std::wstring FromAnsi(const std::string& bytes)
{
    std::wstring text(bytes.size(), L'\0');
    text.resize(static_cast<size_t>(MultiByteToWideChar(kAnsiCodePage, 0, bytes.data(),
                                                        static_cast<int>(bytes.size()), text.data(),
                                                        static_cast<int>(text.size()))));
    return text;
}

std::wstring FromUtf16(const std::string& bytes)
{
    std::wstring text((bytes.size() - 2) / sizeof(wchar_t), L'\0');
    std::copy(bytes.begin() + 2,
              bytes.begin() + 2 + static_cast<std::ptrdiff_t>(text.size() * sizeof(wchar_t)),
              reinterpret_cast<char*>(text.data()));
    return text;
}

} // namespace

std::wstring LanguageFilePath(const std::string& folder, const std::string& language)
{
    const std::string path = folder + "/" + language + "/TavLumenar.txt";
    return std::wstring(path.begin(), path.end());
}

std::wstring ReadLanguageFile(const std::string& folder, const std::string& language, bool* isAnsi)
{
    const std::string bytes = ReadBytes(LanguageFilePath(folder, language));
    const bool hasMark = bytes.compare(0, 2, "\xFF\xFE") == 0;
    if (isAnsi)
        *isAnsi = !hasMark;
    std::wstring text = hasMark ? FromUtf16(bytes) : FromAnsi(bytes);
    text.erase(std::remove(text.begin(), text.end(), L'\r'), text.end());
    return text;
}
