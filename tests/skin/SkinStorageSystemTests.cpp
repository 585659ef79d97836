// What the storage asks of the system, how long its texts may be, and what it makes of the system's
// refusals.
#include "skin/SkinStorage.h"

#include "tests/frame/GuardedText.h"
#include "tests/skin/StorageFixture.h"
#include "tests/support/ImportPatch.h"

#include <gtest/gtest.h>

extern "C" void* __imp_CreateFileW;
extern "C" void* __imp_GetFileAttributesW;
extern "C" void* __imp_GetFileSize;
extern "C" void* __imp_LocalAlloc;
extern "C" void* __imp_ReadFile;
extern "C" void* __imp_WideCharToMultiByte;

namespace
{

using skin::CSkinStorage;

std::wstring g_path;
DWORD g_access;
DWORD g_sharing;
DWORD g_disposition;
int g_calls;

HANDLE WINAPI RecordCreateFile(const wchar_t* path, DWORD access, DWORD sharing,
                               SECURITY_ATTRIBUTES* /*security*/, DWORD disposition,
                               DWORD /*attributes*/, HANDLE /*model*/)
{
    g_path = path;
    g_access = access;
    g_sharing = sharing;
    g_disposition = disposition;
    return INVALID_HANDLE_VALUE;
}

DWORD WINAPI EverythingIsAFolder(const wchar_t* path)
{
    g_path = path;
    return FILE_ATTRIBUTE_DIRECTORY;
}

DWORD WINAPI EverythingIsAFile(const wchar_t* path)
{
    g_path = path;
    return FILE_ATTRIBUTE_NORMAL;
}

UINT g_codePage;
DWORD g_flags;
int g_room;
int g_converted;

int WINAPI RecordConversion(UINT codePage, DWORD flags, const wchar_t* text, int length, char* out,
                            int room, const char* character, BOOL* used)
{
    g_codePage = codePage;
    g_flags = flags;
    g_room = room;
    g_converted = OfKernel32<decltype(WideCharToMultiByte)>("WideCharToMultiByte")(
        codePage, flags, text, length, out, room, character, used);
    return g_converted;
}

class SkinStorageTexts : public testing::Test
{
protected:
    SkinStorageTexts() { g_path.clear(); }

    CStorageFolder folder;
    CSkinStorage storage;
};

TEST_F(SkinStorageTexts, APathOf260CharactersIsTried)
{
    const CImportPatch attributes(&__imp_GetFileAttributesW, EverythingIsAFile);
    storage.Open(std::wstring(260, L'p').c_str());
    EXPECT_EQ(std::wstring(260, L'p'), g_path);
}

TEST_F(SkinStorageTexts, APathOf261CharactersIsNot)
{
    const CImportPatch attributes(&__imp_GetFileAttributesW, EverythingIsAFolder);
    EXPECT_FALSE(storage.Open(std::wstring(261, L'p').c_str()));
    EXPECT_FALSE(storage.Open(std::wstring(5000, L'p').c_str()));
    EXPECT_EQ(L"", g_path);
    // Not even its end is looked for.
    const CGuardedText endless(std::wstring(261, L'p'));
    EXPECT_FALSE(storage.Open(endless.get()));
}

TEST_F(SkinStorageTexts, AFoldersBackslashMustFit)
{
    const CImportPatch attributes(&__imp_GetFileAttributesW, EverythingIsAFolder);
    EXPECT_FALSE(storage.Open(std::wstring(260, L'p').c_str()));
    EXPECT_FALSE(storage.IsFolder());
    EXPECT_TRUE(storage.Open(std::wstring(259, L'p').c_str()));
    EXPECT_EQ(std::wstring(259, L'p') + L"\\", storage.Path());
    EXPECT_TRUE(storage.Open((std::wstring(259, L'p') + L"\\").c_str()));
    EXPECT_EQ(std::wstring(259, L'p') + L"\\", storage.Path());
}

TEST_F(SkinStorageTexts, ANameOf260CharactersIsTriedBehindThePath)
{
    const CImportPatch attributes(&__imp_GetFileAttributesW, EverythingIsAFolder);
    const CImportPatch files(&__imp_CreateFileW, RecordCreateFile);
    const std::wstring path = std::wstring(259, L'p') + L"\\";
    const std::wstring name(260, L'n');
    ASSERT_TRUE(storage.Open(path.c_str()));
    EXPECT_EQ(0u, storage.MemberSize(name.c_str()));
    EXPECT_EQ(path + name, g_path);
    g_path.clear();
    char buffer[4];
    EXPECT_FALSE(storage.ReadMember(name.c_str(), buffer, sizeof(buffer)));
    EXPECT_EQ(path + name, g_path);
}

TEST_F(SkinStorageTexts, ANameOf261CharactersIsNot)
{
    const CImportPatch files(&__imp_CreateFileW, RecordCreateFile);
    ASSERT_TRUE(storage.Open(folder.Path().c_str()));
    char buffer[4];
    const CGuardedText endless(std::wstring(261, L'n'));
    EXPECT_EQ(0u, storage.MemberSize(endless.get()));
    EXPECT_FALSE(storage.ReadMember(endless.get(), buffer, sizeof(buffer)));
    EXPECT_EQ(L"", g_path);
}

TEST_F(SkinStorageTexts, APathIsConvertedToTheSystemsCodePage)
{
    const std::wstring path = folder.WriteArchive({{"member", "text"}});
    const CImportPatch conversion(&__imp_WideCharToMultiByte, RecordConversion);
    ASSERT_TRUE(storage.Open(path.c_str()));
    EXPECT_EQ(static_cast<UINT>(CP_ACP), g_codePage);
    EXPECT_EQ(static_cast<DWORD>(GetACP() == CP_UTF8 ? 0 : WC_COMPOSITECHECK), g_flags);
    EXPECT_EQ(260, g_room);
}

TEST_F(SkinStorageTexts, APathThatIsTooLongInTheCodePageDoesNotOpen)
{
    const CImportPatch attributes(&__imp_GetFileAttributesW, EverythingIsAFile);
    const CImportPatch conversion(&__imp_WideCharToMultiByte, RecordConversion);
    EXPECT_FALSE(storage.Open(std::wstring(260, L'p').c_str()));
    EXPECT_EQ(0, g_converted);
    EXPECT_FALSE(storage.Open(std::wstring(259, L'p').c_str()));
    EXPECT_EQ(260, g_converted);
}

TEST_F(SkinStorageTexts, ANameThatIsTooLongInTheCodePageIsMissing)
{
    ASSERT_TRUE(storage.Open(folder.WriteArchive({{"member", "text"}}).c_str()));
    const CImportPatch conversion(&__imp_WideCharToMultiByte, RecordConversion);
    char buffer[4];
    const std::wstring name(260, L'n');
    EXPECT_EQ(0u, storage.MemberSize(name.c_str()));
    EXPECT_EQ(0, g_converted);
    EXPECT_FALSE(storage.ReadMember(name.c_str(), buffer, sizeof(buffer)));
    EXPECT_EQ(0u, storage.MemberSize(std::wstring(259, L'n').c_str()));
    EXPECT_EQ(260, g_converted);
}

TEST_F(SkinStorageTexts, AFilesSizeIsAskedForWithoutAnyRight)
{
    const CImportPatch files(&__imp_CreateFileW, RecordCreateFile);
    ASSERT_TRUE(storage.Open(folder.Path().c_str()));
    storage.MemberSize(L"member");
    EXPECT_EQ(folder.Path() + L"\\member", g_path);
    EXPECT_EQ(0u, g_access);
    EXPECT_EQ(static_cast<DWORD>(FILE_SHARE_READ | FILE_SHARE_WRITE), g_sharing);
    EXPECT_EQ(static_cast<DWORD>(OPEN_EXISTING), g_disposition);
}

TEST_F(SkinStorageTexts, AFileIsReadWithTheRightToReadOnly)
{
    const CImportPatch files(&__imp_CreateFileW, RecordCreateFile);
    ASSERT_TRUE(storage.Open(folder.Path().c_str()));
    char buffer[4];
    storage.ReadMember(L"member", buffer, sizeof(buffer));
    EXPECT_EQ(static_cast<DWORD>(GENERIC_READ), g_access);
    EXPECT_EQ(static_cast<DWORD>(FILE_SHARE_READ | FILE_SHARE_WRITE), g_sharing);
    EXPECT_EQ(static_cast<DWORD>(OPEN_EXISTING), g_disposition);
}

TEST_F(SkinStorageTexts, AFileThatSomebodyWritesToIsReadNevertheless)
{
    const std::wstring path = folder.Write(L"member", "text");
    const UniqueFile writer(CreateFileW(path.c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr,
                                        OPEN_EXISTING, 0, nullptr));
    ASSERT_TRUE(writer);
    ASSERT_TRUE(storage.Open(folder.Path().c_str()));
    EXPECT_EQ("text", WholeMember(storage, L"member"));
}

DWORD WINAPI SizeUnknown(HANDLE /*file*/, DWORD* /*high*/)
{
    SetLastError(ERROR_INVALID_FUNCTION);
    return INVALID_FILE_SIZE;
}

DWORD WINAPI SizeOfFourGigabytesAndSome(HANDLE /*file*/, DWORD* high)
{
    *high = 1;
    return 4;
}

DWORD WINAPI SizeOfNearlyFourGigabytes(HANDLE /*file*/, DWORD* high)
{
    *high = 0;
    SetLastError(NO_ERROR);
    return INVALID_FILE_SIZE;
}

BOOL WINAPI ReadCounted(HANDLE file, void* buffer, DWORD size, DWORD* done, OVERLAPPED* overlapped)
{
    ++g_calls;
    return OfKernel32<decltype(ReadFile)>("ReadFile")(file, buffer, size, done, overlapped);
}

BOOL WINAPI ReadOneLess(HANDLE file, void* buffer, DWORD size, DWORD* done, OVERLAPPED* overlapped)
{
    return OfKernel32<decltype(ReadFile)>("ReadFile")(file, buffer, size - 1, done, overlapped);
}

BOOL WINAPI ReadFails(HANDLE /*file*/, void* /*buffer*/, DWORD /*size*/, DWORD* done,
                      OVERLAPPED* /*overlapped*/)
{
    *done = 4;
    return FALSE;
}

UINT g_allocationFlags;
SIZE_T g_allocationSize;

HLOCAL WINAPI NoMemory(UINT flags, SIZE_T size)
{
    g_allocationFlags = flags;
    g_allocationSize = size;
    return nullptr;
}

class SkinStorageFile : public testing::Test
{
protected:
    SkinStorageFile() { storage.Open(folder.WriteFiles({{"member", "text"}}).c_str()); }

    bool Read()
    {
        char buffer[16];
        return storage.ReadMember(L"member", buffer, sizeof(buffer));
    }

    CStorageFolder folder;
    CSkinStorage storage;
};

TEST_F(SkinStorageFile, AFileIsReadAtOnce)
{
    const std::string text = Text(300000);
    folder.Write(L"large", text);
    g_calls = 0;
    const CImportPatch reading(&__imp_ReadFile, ReadCounted);
    EXPECT_EQ(text, WholeMember(storage, L"large"));
    EXPECT_EQ(1, g_calls);
}

TEST_F(SkinStorageFile, AFileOfUnknownSizeIsUnreadable)
{
    const CImportPatch size(&__imp_GetFileSize, SizeUnknown);
    EXPECT_EQ(0u, storage.MemberSize(L"member"));
    EXPECT_FALSE(Read());
}

TEST_F(SkinStorageFile, AFileAboveFourGigabytesIsUnreadable)
{
    const CImportPatch size(&__imp_GetFileSize, SizeOfFourGigabytesAndSome);
    EXPECT_EQ(0u, storage.MemberSize(L"member"));
    EXPECT_FALSE(Read());
    EXPECT_EQ(nullptr, storage.ReadMemberWhole(L"member"));
}

TEST_F(SkinStorageFile, AFileTooLargeForABlockIsNotReadWhole)
{
    const CImportPatch size(&__imp_GetFileSize, SizeOfNearlyFourGigabytes);
    EXPECT_EQ(UINT32_MAX, storage.MemberSize(L"member"));
    EXPECT_FALSE(Read());
    g_allocationSize = 0;
    const CImportPatch memory(&__imp_LocalAlloc, NoMemory);
    EXPECT_EQ(nullptr, storage.ReadMemberWhole(L"member"));
    EXPECT_EQ(0u, g_allocationSize);
}

TEST_F(SkinStorageFile, AShortReadIsAFailure)
{
    const CImportPatch reading(&__imp_ReadFile, ReadOneLess);
    EXPECT_FALSE(Read());
    EXPECT_EQ(nullptr, storage.ReadMemberWhole(L"member"));
}

TEST_F(SkinStorageFile, AFailedReadIsAFailure)
{
    const CImportPatch reading(&__imp_ReadFile, ReadFails);
    EXPECT_FALSE(Read());
    EXPECT_EQ(nullptr, storage.ReadMemberWhole(L"member"));
}

TEST_F(SkinStorageFile, WithoutMemoryNothingIsReadWhole)
{
    uint32_t size = 5;
    const CImportPatch memory(&__imp_LocalAlloc, NoMemory);
    EXPECT_EQ(nullptr, storage.ReadMemberWhole(L"member", &size));
    EXPECT_EQ(5u, size);
    EXPECT_EQ(8u, g_allocationSize);
    EXPECT_EQ(static_cast<UINT>(LMEM_FIXED | LMEM_ZEROINIT), g_allocationFlags);
}

TEST(SkinStorageLeaks, NothingIsLeftBehind)
{
    const CStorageFolder folder;
    const std::wstring archive = folder.WriteArchive({{"member", Text(50000)}});
    zip::Entry broken = zip::Deflated("member", Text(50000));
    broken.crc ^= 1;
    const std::wstring damaged = folder.WriteArchive({broken}, L"damaged.zip");
    folder.Write(L"member", "text");
    const auto useAll = [&]
    {
        for (const std::wstring& path : {archive, damaged, folder.Path(), archive + L"missing"})
        {
            CSkinStorage storage;
            storage.Open(path.c_str());
            WholeMember(storage, L"member");
            WholeMember(storage, L"missing");
            storage.MemberSize(L"member");
        }
    };
    for (int i = 0; i < 10; ++i)
        useAll();
    const ResourceCounts before = SteadyCounts();
    for (int i = 0; i < 200; ++i)
        useAll();
    EXPECT_EQ(before, CountResources());
}

} // namespace
