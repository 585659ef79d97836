// Storages in both forms, with the same members in them.
#pragma once

#include "skin/SkinStorage.h"
#include "tests/support/LeakCounter.h"
#include "tests/support/TranslationFixture.h"
#include "tests/support/ZipWriter.h"

#include <gtest/gtest.h>

#include <optional>
#include <utility>

// What a storage is made of; the parameter of tests that hold for both.
enum class Form
{
    Folder,
    Archive
};

inline void PrintTo(Form form, std::ostream* stream)
{
    *stream << (form == Form::Folder ? "Folder" : "Archive");
}

inline std::string FormName(const testing::TestParamInfo<Form>& form)
{
    return testing::PrintToString(form.param);
}

inline std::string BytesOf(const zip::Bytes& bytes)
{
    return std::string(bytes.begin(), bytes.end());
}

inline std::wstring Widen(const std::string& text)
{
    return std::wstring(text.begin(), text.end());
}

// Bytes that repeat late and pack badly enough for several chunks.
inline std::string Text(size_t size)
{
    std::string text;
    uint32_t state = 1;
    for (size_t i = 0; i < size; ++i)
    {
        state = state * 1664525 + 1013904223;
        text += static_cast<char>('a' + (state >> 28));
    }
    return text;
}

// A folder for one test, in which it makes storages.
class CStorageFolder : public CTempFolder
{
public:
    using Members = std::vector<std::pair<std::string, std::string>>;

    // Writes an archive of deflated members; returns its path.
    std::wstring WriteArchive(const Members& members, const wchar_t* name = L"data.zip") const
    {
        std::vector<zip::Entry> entries;
        for (const auto& [memberName, data] : members)
            entries.push_back(zip::Deflated(memberName, data));
        return WriteArchive(entries, name);
    }
    std::wstring WriteArchive(const std::vector<zip::Entry>& entries,
                              const wchar_t* name = L"data.zip") const
    {
        return Write(name, BytesOf(zip::Archive(entries)));
    }
    // Writes the members as files into the folder itself; returns its path.
    std::wstring WriteFiles(const Members& members) const
    {
        for (const auto& [memberName, data] : members)
            Write(Widen(memberName).c_str(), data);
        return Path();
    }
};

// The whole member, or nothing when it can't be had.
inline std::optional<std::string> WholeMember(skin::CSkinStorage& storage, const wchar_t* name)
{
    uint32_t size = 0;
    const UniqueLocal block(storage.ReadMemberWhole(name, &size));
    if (!block)
        return std::nullopt;
    return std::string(static_cast<const char*>(block.get()), size);
}

// What this process holds. The first count of a process starts parts of the system that stay.
inline ResourceCounts SteadyCounts()
{
    CountResources();
    return CountResources();
}

// The system's own function, also while a test has put another in its place.
template <class Function>
Function* OfKernel32(const char* name)
{
    return reinterpret_cast<Function*>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"kernel32.dll"), name)));
}

// Memory whose end can't be stepped over: an inaccessible page follows.
class CGuardedBytes
{
public:
    explicit CGuardedBytes(size_t size)
    {
        constexpr size_t kPage = 0x1000;
        const size_t usable = (size + kPage - 1) / kPage * kPage;
        m_pages = static_cast<uint8_t*>(
            VirtualAlloc(nullptr, usable + kPage, MEM_RESERVE | MEM_COMMIT, PAGE_READWRITE));
        DWORD old = 0;
        VirtualProtect(m_pages + usable, kPage, PAGE_NOACCESS, &old);
        m_bytes = m_pages + usable - size;
    }
    explicit CGuardedBytes(const zip::Bytes& bytes) : CGuardedBytes(bytes.size())
    {
        std::copy(bytes.begin(), bytes.end(), m_bytes);
    }
    ~CGuardedBytes() { VirtualFree(m_pages, 0, MEM_RELEASE); }
    CGuardedBytes(const CGuardedBytes&) = delete;
    CGuardedBytes& operator=(const CGuardedBytes&) = delete;

    uint8_t* get() const { return m_bytes; }

private:
    uint8_t* m_pages;
    uint8_t* m_bytes;
};
