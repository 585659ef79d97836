// Drawing what an image path names: by the launcher-menu process, by an index in a file, by the
// file's own icon.
#include "ui/ImagePath.h"

#include "tests/support/ImportPatch.h"
#include "tests/support/TranslationFixture.h"
#include "tests/ui/IconFixture.h"

#include <shellapi.h>

namespace
{

// What the patched functions were asked, and what they give.
std::wstring g_extractedFile;
int g_extractedIndex;
int g_extractions;
HICON g_givenIcon;

UINT WINAPI ExtractGiven(const wchar_t* file, int index, HICON* large, HICON* small, UINT count)
{
    ++g_extractions;
    g_extractedFile = file;
    g_extractedIndex = index;
    EXPECT_EQ(nullptr, small);
    EXPECT_EQ(1u, count);
    *large = g_givenIcon;
    return g_givenIcon ? 1 : 0;
}

std::wstring g_askedPath;
DWORD g_askedAttributes;
UINT g_askedFlags;
int g_questions;
HIMAGELIST g_givenList;
int g_givenIndex;

DWORD_PTR WINAPI InfoGiven(const wchar_t* path, DWORD attributes, SHFILEINFOW* info, UINT size,
                           UINT flags)
{
    ++g_questions;
    g_askedPath = path;
    g_askedAttributes = attributes;
    g_askedFlags = flags;
    EXPECT_EQ(sizeof(SHFILEINFOW), size);
    info->iIcon = g_givenIndex;
    return reinterpret_cast<DWORD_PTR>(g_givenList);
}

class ImagePath : public testing::Test
{
protected:
    ImagePath()
    {
        // Paths from the root are those of this drive.
        SetCurrentDirectoryW(L"C:\\");
        g_extractions = 0;
        g_questions = 0;
        g_givenIcon = nullptr;
        g_givenList = nullptr;
        SetSize(50, 40);
    }

    void SetSize(int width, int height)
    {
        ASSERT_TRUE(buffer.Create(width, height, 3));
        buffer.Fill(0, 0, width, height, kIconWhite, 255);
    }
    // What was drawn of the buffer.
    RECT Drawn()
    {
        return DrawnPart(buffer.GetMemoryDC(), buffer.Width(), buffer.Height(), kIconWhite);
    }
    void ExpectDrawn(RECT expected)
    {
        const RECT drawn = Drawn();
        EXPECT_EQ(expected.left, drawn.left);
        EXPECT_EQ(expected.top, drawn.top);
        EXPECT_EQ(expected.right, drawn.right);
        EXPECT_EQ(expected.bottom, drawn.bottom);
    }
    bool IsWhite() { return Drawn().right == 0; }
    COLORREF Middle()
    {
        return GetPixel(buffer.GetMemoryDC(), buffer.Width() / 2, buffer.Height() / 2);
    }

    CBitmapBuffer buffer;
};

// The system's functions are replaced.
class PatchedImagePath : public ImagePath
{
    CImportPatch m_extract{GetModuleHandleW(nullptr), "shell32.dll", "ExtractIconExW",
                           ExtractGiven};
    CImportPatch m_info{GetModuleHandleW(nullptr), "shell32.dll", "SHGetFileInfoW", InfoGiven};
};

class IconGeometry : public PatchedImagePath
{
};

} // namespace

TEST_F(PatchedImagePath, IsDrawnByTheProcessIfThatCan)
{
    CImageProcess process(
        [](const ImageProcessRequest& request)
        {
            FillRectOf(request, kIconGreen);
            return LRESULT{1};
        });
    DrawImagePath(L"\\a.dll,3", buffer);
    const auto requests = process.Requests();
    ASSERT_EQ(1u, requests.size());
    EXPECT_EQ(0u, requests[0].Field(0));
    EXPECT_EQ(L"\\a.dll,3", requests[0].TextAt(4));
    EXPECT_EQ(buffer.GetMemoryDC(), requests[0].Dc());
    const RECT rect = requests[0].Rect();
    EXPECT_EQ(0, rect.left);
    EXPECT_EQ(0, rect.top);
    EXPECT_EQ(50, rect.right);
    EXPECT_EQ(40, rect.bottom);
    ExpectDrawn({0, 0, 50, 40});
    EXPECT_EQ(0, g_extractions);
    EXPECT_EQ(0, g_questions);
}

TEST_F(PatchedImagePath, FindsAProcessThatHasStartedSince)
{
    DrawImagePath(L"a", buffer);
    CImageProcess process;
    DrawImagePath(L"a", buffer);
    EXPECT_EQ(1u, process.Requests().size());
}

TEST_F(PatchedImagePath, IsDrawnHereIfTheProcessCannot)
{
    CImageProcess process;
    g_givenIcon = MakeIcon(32, kIconBlue);
    DrawImagePath(L"a.dll,-5", buffer);
    EXPECT_EQ(1u, process.Requests().size());
    EXPECT_EQ(1, g_extractions);
    EXPECT_EQ(kIconBlue, Middle());
}

TEST_F(PatchedImagePath, IsDrawnHereIfTheProcessDies)
{
    CImageProcess process;
    process.Behave(ImageProcessManner::Die);
    g_givenIcon = MakeIcon(32, kIconBlue);
    DrawImagePath(L"a.dll,-5", buffer);
    EXPECT_EQ(kIconBlue, Middle());
}

TEST_F(PatchedImagePath, IsDrawnHereIfTheProcessHangs)
{
    CImageProcess process;
    process.Behave(ImageProcessManner::Hang);
    g_givenIcon = MakeIcon(32, kIconBlue);
    DrawImagePath(L"a.dll,-5", buffer);
    EXPECT_EQ(kIconBlue, Middle());
}

TEST_F(PatchedImagePath, OfTooManyCharactersIsDrawnHere)
{
    CImageProcess process([](const ImageProcessRequest&) { return LRESULT{1}; });
    const std::wstring path = std::wstring(256, L'p') + L",-5";
    ASSERT_EQ(259u, path.size());
    DrawImagePath(path, buffer);
    EXPECT_EQ(0, g_extractions);
    DrawImagePath(L"p" + path, buffer);
    EXPECT_EQ(1, g_extractions);
    EXPECT_EQ(std::wstring(257, L'p'), g_extractedFile);
    EXPECT_EQ(1u, process.Requests().size());
}

TEST_F(PatchedImagePath, BehindTheFirstCommaHasTheIndex)
{
    const struct
    {
        const wchar_t* path;
        const wchar_t* file;
        int index;
    } kPaths[] = {{L"\\windows\\a.dll,-5", L"\\windows\\a.dll", -5},
                  {L"a,12,b", L"a", 12},
                  {L"a,12x,3", L"a", 12},
                  {L",", L"", 0},
                  {L",99999999999", L"", 2147483647}};
    for (const auto& each : kPaths)
    {
        DrawImagePath(each.path, buffer);
        EXPECT_EQ(each.file, g_extractedFile);
        EXPECT_EQ(each.index, g_extractedIndex) << each.index;
    }
    EXPECT_EQ(5, g_extractions);
    EXPECT_EQ(0, g_questions);
    EXPECT_TRUE(IsWhite());
}

TEST_F(PatchedImagePath, DestroysTheExtractedIcon)
{
    g_givenIcon = MakeIcon(32, kIconBlue);
    DrawImagePath(L"a,1", buffer);
    ICONINFO info = {};
    EXPECT_FALSE(GetIconInfo(g_givenIcon, &info));
}

TEST_F(PatchedImagePath, WithoutACommaIsTheFilesOwnIcon)
{
    const UniqueImageList list(ImageList_Create(Px(32), Px(32), ILC_COLOR32, 2, 1));
    const UniqueIcon green(MakeIcon(Px(32), kIconGreen));
    const UniqueIcon blue(MakeIcon(Px(32), kIconBlue));
    ImageList_ReplaceIcon(list.get(), -1, green.get());
    ImageList_ReplaceIcon(list.get(), -1, blue.get());
    g_givenList = list.get();
    g_givenIndex = 1;
    const CTempFolder folder;
    const std::wstring file = folder.Write(L"file.xyz", "text");
    SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_READONLY);
    DrawImagePath(file, buffer);
    SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_NORMAL);
    EXPECT_EQ(1, g_questions);
    EXPECT_EQ(file, g_askedPath);
    EXPECT_TRUE(g_askedAttributes & FILE_ATTRIBUTE_READONLY);
    EXPECT_EQ(0x4010u, g_askedFlags);
    EXPECT_EQ(kIconBlue, Middle());
    EXPECT_EQ(0, g_extractions);
}

TEST_F(PatchedImagePath, OfAFolderAsksWithItsAttributes)
{
    const CTempFolder folder;
    DrawImagePath(folder.Path(), buffer);
    EXPECT_TRUE(g_askedAttributes & FILE_ATTRIBUTE_DIRECTORY);
    EXPECT_TRUE(IsWhite());
}

TEST_F(PatchedImagePath, OfAMissingFileDrawsNothing)
{
    DrawImagePath(L"C:\\no such file.exe", buffer);
    DrawImagePath(L"", buffer);
    EXPECT_EQ(0, g_questions);
    EXPECT_TRUE(IsWhite());
}

TEST_F(PatchedImagePath, FromTheDrivesRootIsMadeAFullOneForTheShell)
{
    DrawImagePath(L"\\windows", buffer);
    ASSERT_EQ(1, g_questions);
    EXPECT_EQ(L':', g_askedPath.at(1));
    EXPECT_EQ(L"\\windows", g_askedPath.substr(2));
}

TEST_F(PatchedImagePath, IntoAnEmptyBufferDrawsNothing)
{
    CBitmapBuffer empty;
    g_givenIcon = MakeIcon(32, kIconBlue);
    DrawImagePath(L"a,1", empty);
    DrawImagePath(L"\\windows", empty);
    EXPECT_EQ(nullptr, empty.Bitmap());
}

TEST_F(ImagePath, OfARealProgramDrawsItsIcon)
{
    wchar_t explorer[MAX_PATH] = {};
    GetWindowsDirectoryW(explorer, MAX_PATH);
    lstrcatW(explorer, L"\\explorer.exe");
    DrawImagePath(explorer, buffer);
    EXPECT_FALSE(IsWhite());
}

TEST_F(ImagePath, OfARealIconInAFileDrawsIt)
{
    DrawImagePath(L"\\windows\\system32\\shell32.dll,3", buffer);
    EXPECT_FALSE(IsWhite());
}

TEST_F(ImagePath, OfARealFolderDrawsItsIcon)
{
    DrawImagePath(L"\\windows", buffer);
    EXPECT_FALSE(IsWhite());
}

TEST_F(IconGeometry, AnIconIs32LogicalPixelsLarge)
{
    EXPECT_EQ(Px(32), IconWidth());
    EXPECT_EQ(Px(32), IconHeight());
}

TEST_F(IconGeometry, AnExtractedIconStandsInTheMiddle)
{
    SetSize(Px(50), Px(40));
    g_givenIcon = MakeIcon(Px(32), kIconBlue);
    DrawImagePath(L"a,1", buffer);
    ExpectDrawn({Px(9), Px(4), Px(41), Px(36)});
}

TEST_F(IconGeometry, AnExtractedIconIsDrawnAtTheScreensSize)
{
    SetSize(Px(50), Px(40));
    g_givenIcon = MakeIcon(16, kIconBlue);
    DrawImagePath(L"a,1", buffer);
    ExpectDrawn({Px(9), Px(4), Px(41), Px(36)});
}

TEST_F(IconGeometry, AnOddDistanceIsHalvedTowardsZero)
{
    SetSize(Px(32) + 5, Px(32) - 5);
    g_givenIcon = MakeIcon(Px(32), kIconBlue);
    DrawImagePath(L"a,1", buffer);
    // 5 / 2 = 2 and -5 / 2 = -2: three rows less of the icon's lower end.
    ExpectDrawn({2, 0, 2 + Px(32), Px(32) - 5});
    EXPECT_EQ(kIconWhite, GetPixel(buffer.GetMemoryDC(), 1, 0));
}

TEST_F(IconGeometry, TheFilesOwnIconStandsInTheMiddle)
{
    SetSize(Px(50), Px(40));
    const UniqueImageList list(ImageList_Create(Px(32), Px(32), ILC_COLOR32, 1, 1));
    const UniqueIcon icon(MakeIcon(Px(32), kIconGreen));
    ImageList_ReplaceIcon(list.get(), -1, icon.get());
    g_givenList = list.get();
    g_givenIndex = 0;
    DrawImagePath(L"\\windows", buffer);
    ExpectDrawn({Px(9), Px(4), Px(41), Px(36)});
}
