#include "platform/Handles.h"
#include "tests/frame/TranslationFixture.h"
#include "tests/support/ImportPatch.h"

#include <gtest/gtest.h>

#include <cstring>
#include <algorithm>

extern "C" void* __imp_GetFileSize;
extern "C" void* __imp_ReadFile;
extern "C" void* __imp_MultiByteToWideChar;
extern "C" void* __imp_malloc;
extern "C" void* __imp_calloc;

namespace
{

class TranslationFile : public testing::Test
{
protected:
    BOOL Load(const std::string& bytes)
    {
        return localizer.LoadFile(folder.Write(L"texts.txt", bytes).c_str());
    }
    std::wstring Translated(const wchar_t* text) { return localizer.TranslateText(text); }
    void ExpectNothingLoaded()
    {
        EXPECT_EQ(nullptr, localizer.Text);
        EXPECT_EQ(nullptr, localizer.Map.Table);
        EXPECT_EQ(0u, localizer.Map.Bits);
        EXPECT_EQ(0u, localizer.Map.Count);
    }

    CTempFolder folder;
    CTavLocalizerWTL localizer;
};

DWORD WINAPI SizeUnknown(HANDLE, DWORD* high)
{
    *high = 0;
    return INVALID_FILE_SIZE;
}

DWORD WINAPI SizeAboveFourGigabytes(HANDLE, DWORD* high)
{
    *high = 1;
    return 10;
}

DWORD WINAPI SizeAboveLimit(HANDLE, DWORD* high)
{
    *high = 0;
    return 0x40000000;
}

DWORD WINAPI SizeOfLargestFile(HANDLE, DWORD* high)
{
    *high = 0;
    return 0x3FFFFFFF;
}

// As if the file had been cut between the question for its size and the read.
DWORD WINAPI SizeBeforeTheCut(HANDLE, DWORD* high)
{
    *high = 0;
    return 100;
}

BOOL WINAPI FailingRead(HANDLE, void*, DWORD, DWORD* read, OVERLAPPED*)
{
    *read = 0;
    return FALSE;
}

int WINAPI FailingConversion(UINT, DWORD, const char*, int, wchar_t*, int)
{
    return 0;
}

void* __cdecl FailingMalloc(size_t)
{
    return nullptr;
}

void* __cdecl FailingCalloc(size_t, size_t)
{
    return nullptr;
}

void*(__cdecl* g_realMalloc)(size_t);
size_t g_largestRequest;

void* __cdecl RecordingMalloc(size_t size)
{
    g_largestRequest = std::max(g_largestRequest, size);
    return size < 0x1000000 ? g_realMalloc(size) : nullptr;
}

// The code page that the conversion is asked for.
UINT g_codePage;
DWORD g_flags;

int WINAPI RecordingConversion(UINT codePage, DWORD flags, const char* bytes, int count,
                               wchar_t* text, int)
{
    g_codePage = codePage;
    g_flags = flags;
    for (int i = 0; text && i < count; ++i)
        text[i] = static_cast<wchar_t>(static_cast<unsigned char>(bytes[i]));
    return count;
}

TEST_F(TranslationFile, BytesFFFEMakeItUtf16)
{
    EXPECT_TRUE(Load(Utf16File(L"Done|\u0393\u03B9\u03B1\n")));
    EXPECT_EQ(L"\u0393\u03B9\u03B1", Translated(L"Done"));
}

TEST_F(TranslationFile, AnythingElseIsTheSystemsCodePage)
{
    const CImportPatch patch(&__imp_MultiByteToWideChar, RecordingConversion);
    EXPECT_TRUE(Load("Done|Fertig\n"));
    EXPECT_EQ(static_cast<UINT>(CP_ACP), g_codePage);
    EXPECT_EQ(static_cast<DWORD>(GetACP() == CP_UTF8 ? 0 : MB_PRECOMPOSED), g_flags);
    EXPECT_EQ(L"Fertig", Translated(L"Done"));
}

TEST_F(TranslationFile, T6AUtf8MarkIsReadInTheSystemsCodePage)
{
    EXPECT_TRUE(Load("\xEF\xBB\xBF"
                     "Done|Fertig\nCancel|Abbrechen"));
    EXPECT_EQ(L"Done", Translated(L"Done")) << "the mark belongs to the first key";
    EXPECT_EQ(L"Abbrechen", Translated(L"Cancel"));
}

TEST_F(TranslationFile, T6ABigEndianMarkIsReadInTheSystemsCodePage)
{
    EXPECT_TRUE(Load(std::string("\xFE\xFF\0a\0|\0b", 8)));
    EXPECT_EQ(0u, localizer.Map.Count) << "the text ends at its first zero";
}

TEST_F(TranslationFile, T6AFailedConversionLoadsNothing)
{
    const CImportPatch patch(&__imp_MultiByteToWideChar, FailingConversion);
    EXPECT_FALSE(Load("Done|Fertig\n"));
    ExpectNothingLoaded();
}

TEST_F(TranslationFile, T1ALoneBackslashAtTheEndIsDropped)
{
    EXPECT_TRUE(Load("Done|Fertig\\"));
    EXPECT_EQ(L"Fertig", Translated(L"Done"));
    EXPECT_TRUE(Load(Utf16File(L"Done|Fertig\\")));
    EXPECT_EQ(L"Fertig", Translated(L"Done"));
}

TEST_F(TranslationFile, T2ABackslashBeforeALineEndLetsTheLineGoOn)
{
    EXPECT_TRUE(Load("a|b\\\nc\n"));
    EXPECT_EQ(L"b\nc", Translated(L"a"));
}

TEST_F(TranslationFile, T3TheLastByteOfAnOddSizedUtf16FileIsDropped)
{
    EXPECT_TRUE(Load(Utf16File(L"a|b") + "c"));
    EXPECT_EQ(L"b", Translated(L"a"));
    EXPECT_TRUE(Load("\xFF\xFE"
                     "a"));
    EXPECT_EQ(0u, localizer.Map.Count);
}

TEST_F(TranslationFile, T4AFileOfNothingButTheMarkFails)
{
    EXPECT_FALSE(Load("\xFF\xFE"));
    ExpectNothingLoaded();
}

TEST_F(TranslationFile, T4AnEmptyFileHasNoEntries)
{
    EXPECT_TRUE(Load(""));
    EXPECT_EQ(0u, localizer.Map.Count);
}

TEST_F(TranslationFile, T4AFileOfOneByteHasNoEntries)
{
    EXPECT_TRUE(Load("\xFF"));
    EXPECT_EQ(0u, localizer.Map.Count);
    EXPECT_TRUE(Load("|"));
    EXPECT_EQ(0u, localizer.Map.Count);
}

TEST_F(TranslationFile, T5AZeroInsideEndsTheFile)
{
    EXPECT_TRUE(Load(std::string("a|b\nc\0|d\ne|f", 12)));
    EXPECT_EQ(1u, localizer.Map.Count);
    EXPECT_EQ(L"b", Translated(L"a"));
}

TEST_F(TranslationFile, T7AFileThatIsTooLargeFails)
{
    std::memcpy(&g_realMalloc, &__imp_malloc, sizeof(g_realMalloc));
    for (const auto size : {SizeUnknown, SizeAboveFourGigabytes, SizeAboveLimit})
    {
        g_largestRequest = 0;
        const CImportPatch patch(&__imp_GetFileSize, size);
        const CImportPatch recorder(&__imp_malloc, RecordingMalloc);
        EXPECT_FALSE(Load("Done|Fertig\n"));
        EXPECT_FALSE(Load(Utf16File(L"Done|Fertig\n")));
        EXPECT_GT(0x1000000u, g_largestRequest) << "no memory is asked for";
        ExpectNothingLoaded();
    }
}

TEST_F(TranslationFile, T7TheLargestSizeIsNoMoreThanAFailedRead)
{
    const CImportPatch patch(&__imp_GetFileSize, SizeOfLargestFile);
    EXPECT_FALSE(Load("Done|Fertig\n"));
    EXPECT_FALSE(Load(Utf16File(L"Done|Fertig\n")));
    ExpectNothingLoaded();
}

TEST_F(TranslationFile, T8AFileThatShrinksWhileItIsReadFails)
{
    const CImportPatch patch(&__imp_GetFileSize, SizeBeforeTheCut);
    EXPECT_FALSE(Load("Done|Fertig\n"));
    EXPECT_FALSE(Load(Utf16File(L"Done|Fertig\n")));
    ExpectNothingLoaded();
}

TEST_F(TranslationFile, T8AFileThatCantBeReadFails)
{
    const CImportPatch patch(&__imp_ReadFile, FailingRead);
    EXPECT_FALSE(Load("Done|Fertig\n"));
    ExpectNothingLoaded();
}

TEST_F(TranslationFile, T8AFolderFails)
{
    EXPECT_FALSE(localizer.LoadFile(folder.Path().c_str()));
    ExpectNothingLoaded();
}

TEST_F(TranslationFile, T8ADeviceNameFails)
{
    for (const wchar_t* name : {L"NUL", L"\\\\.\\NUL", L"CON", L"COM9", L"\\\\.\\pipe\\tav"})
        EXPECT_FALSE(localizer.LoadFile(name)) << name;
    ExpectNothingLoaded();
}

TEST_F(TranslationFile, AMissingFileFails)
{
    EXPECT_FALSE(localizer.LoadFile((folder.Path() + L"\\absent.txt").c_str()));
    EXPECT_FALSE(localizer.LoadFile(L""));
    EXPECT_FALSE(localizer.LoadFile(nullptr));
    ExpectNothingLoaded();
}

TEST_F(TranslationFile, WithoutMemoryNothingIsLoaded)
{
    const std::wstring path = folder.Write(L"ansi.txt", "Done|Fertig\n");
    const std::wstring widePath = folder.Write(L"wide.txt", Utf16File(L"Done|Fertig\n"));
    {
        const CImportPatch patch(&__imp_malloc, FailingMalloc);
        EXPECT_FALSE(localizer.LoadFile(path.c_str()));
        EXPECT_FALSE(localizer.LoadFile(widePath.c_str()));
    }
    ExpectNothingLoaded();
    {
        const CImportPatch patch(&__imp_calloc, FailingCalloc);
        EXPECT_FALSE(localizer.LoadFile(path.c_str()));
    }
    ExpectNothingLoaded();
}

TEST_F(TranslationFile, AnotherFileReplacesWhatWasLoaded)
{
    EXPECT_TRUE(Load("Done|Fertig\n"));
    EXPECT_TRUE(Load("Cancel|Abbrechen\n"));
    EXPECT_EQ(L"Done", Translated(L"Done"));
    EXPECT_EQ(L"Abbrechen", Translated(L"Cancel"));
}

TEST_F(TranslationFile, AFileThatFailsClearsWhatWasLoaded)
{
    EXPECT_TRUE(Load("Done|Fertig\n"));
    EXPECT_FALSE(localizer.LoadFile(L"absent.txt"));
    ExpectNothingLoaded();
    EXPECT_EQ(L"Done", Translated(L"Done"));
}

TEST_F(TranslationFile, AFileWithoutEntriesIsLoaded)
{
    EXPECT_TRUE(Load("; nothing but a comment\n"));
    EXPECT_NE(nullptr, localizer.Text);
    EXPECT_EQ(0u, localizer.Map.Count);
}

TEST_F(TranslationFile, TheFileCanBeReadByOthersMeanwhileAndIsClosedAfterwards)
{
    const std::wstring path = folder.Write(L"texts.txt", "Done|Fertig\n");
    const UniqueFile reader(CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr,
                                        OPEN_EXISTING, 0, nullptr));
    EXPECT_TRUE(localizer.LoadFile(path.c_str()));
}

TEST_F(TranslationFile, KeysAndValuesPointIntoTheFilesText)
{
    EXPECT_TRUE(Load(Utf16File(L"Done|Fertig\n")));
    wchar_t* translation = nullptr;
    ASSERT_TRUE(localizer.Lookup(L"Done", translation));
    EXPECT_EQ(localizer.Text + 5, translation);
}

TEST_F(TranslationFile, ClearFreesTheTextAndTheTable)
{
    EXPECT_TRUE(Load("Done|Fertig\n"));
    localizer.Clear();
    ExpectNothingLoaded();
    localizer.Clear();
    ExpectNothingLoaded();
}

TEST_F(TranslationFile, T9ALargeFileIsLoadedWhole)
{
    std::wstring text;
    for (int i = 0; i < 50000; ++i)
        text += L"English text number " + std::to_wstring(i) + L"|" + std::to_wstring(i) + L"\r\n";
    EXPECT_TRUE(Load(Utf16File(text)));
    EXPECT_EQ(50000u, localizer.Map.Count);
    EXPECT_EQ(17u, localizer.Map.Bits);
    EXPECT_EQ(L"49999", Translated(L"English text number 49999"));
}

TEST_F(TranslationFile, T10SixteenThousandCollidingTextsAreLoadedInBoundedTime)
{
    std::wstring text;
    for (unsigned number = 0; number < 0x4000; ++number)
    {
        for (unsigned bit = 0; bit < 14; ++bit)
            text += (number >> bit) & 1 ? L"af" : L"ba";
        text += L"|x\n";
    }
    const ULONGLONG begin = GetTickCount64();
    EXPECT_TRUE(Load(Utf16File(text)));
    EXPECT_EQ(0x4000u, localizer.Map.Count);
    EXPECT_LT(GetTickCount64() - begin, 30000u);
}

} // namespace
