// Bitmaps out of a storage: which are kept, who owns them, when they are deleted.
#include "skin/Skin.h"

#include "tests/skin/BitmapSample.h"
#include "tests/skin/StorageFixture.h"
#include "tests/support/ImportPatch.h"

#include <gtest/gtest.h>

#include <memory>
#include <type_traits>

extern "C" void* __imp_LocalAlloc;

namespace
{

using skin::CSkin;
using skin::CSkinBitmapStorage;

static_assert(std::is_base_of_v<skin::CSkinStorage, CSkinBitmapStorage>);
static_assert(std::has_virtual_destructor_v<CSkinBitmapStorage>);
static_assert(std::has_virtual_destructor_v<CSkin>);

BitmapSample Wide()
{
    BitmapSample sample;
    sample.width = 50;
    return sample;
}

bool IsBitmap(HBITMAP bitmap)
{
    return GetObjectType(bitmap) == OBJ_BITMAP;
}

LONG WidthOf(HBITMAP bitmap)
{
    BITMAP shape = {};
    GetObjectW(bitmap, sizeof(shape), &shape);
    return shape.bmWidth;
}

class SkinBitmap : public testing::TestWithParam<Form>
{
protected:
    void SetUp() override
    {
        const CStorageFolder::Members members = {{"narrow.bmp", BitmapSample().Text()},
                                                 {"wide.bmp", Wide().Text()},
                                                 {"text.bmp", "no bitmap"}};
        const std::wstring path =
            GetParam() == Form::Folder ? folder.WriteFiles(members) : folder.WriteArchive(members);
        ASSERT_TRUE(Storage().Open(path.c_str()));
    }
    CSkinBitmapStorage& Storage() { return skin->Storage(); }
    HBITMAP Cached(const wchar_t* name) { return Storage().Bitmap(name, nullptr, true, false); }
    HBITMAP Uncached(const wchar_t* name) { return Storage().Bitmap(name, nullptr, false, false); }
    HBITMAP Owned(const wchar_t* name) { return Storage().Bitmap(name, nullptr, false, true); }

    CStorageFolder folder;
    std::unique_ptr<CSkin> skin = std::make_unique<CSkin>();
};

INSTANTIATE_TEST_SUITE_P(Both, SkinBitmap, testing::Values(Form::Folder, Form::Archive), FormName);

TEST_P(SkinBitmap, ThePixelsAreThoseOfTheFile)
{
    for (const bool useCache : {false, true})
    {
        void* bits = nullptr;
        const HBITMAP bitmap = Storage().Bitmap(L"narrow.bmp", &bits, useCache, false);
        ASSERT_TRUE(IsBitmap(bitmap));
        const zip::Bytes file = BitmapSample().Bytes();
        EXPECT_EQ(0, memcmp(bits, file.data() + 54, file.size() - 54));
    }
}

TEST_P(SkinBitmap, ThePixelsNeedNotBeAskedFor)
{
    EXPECT_TRUE(IsBitmap(Cached(L"narrow.bmp")));
    EXPECT_TRUE(IsBitmap(Uncached(L"wide.bmp")));
}

TEST_P(SkinBitmap, ACachedBitmapIsMadeOnce)
{
    void* first = nullptr;
    void* second = nullptr;
    const HBITMAP bitmap = Storage().Bitmap(L"narrow.bmp", &first, true, false);
    EXPECT_EQ(bitmap, Storage().Bitmap(L"narrow.bmp", &second, true, false));
    EXPECT_EQ(first, second);
    EXPECT_NE(nullptr, second);
    EXPECT_EQ(1u, Storage().Cache().Count());
}

TEST_P(SkinBitmap, DifferentSpellingsFillTwoEntries)
{
    const HBITMAP lower = Cached(L"narrow.bmp");
    const HBITMAP upper = Cached(L"NARROW.BMP");
    EXPECT_TRUE(IsBitmap(lower));
    EXPECT_TRUE(IsBitmap(upper));
    EXPECT_NE(lower, upper);
    EXPECT_EQ(2u, Storage().Cache().Count());
}

TEST_P(SkinBitmap, ACachedNameGivesTheCachedBitmapWhateverIsAskedFor)
{
    void* bits = nullptr;
    void* again = nullptr;
    const HBITMAP cached = Storage().Bitmap(L"narrow.bmp", &bits, true, false);
    EXPECT_EQ(cached, Storage().Bitmap(L"narrow.bmp", &again, false, false));
    EXPECT_EQ(bits, again);
    EXPECT_EQ(cached, Owned(L"narrow.bmp"));
    skin.reset();
    EXPECT_FALSE(IsBitmap(cached));
}

TEST_P(SkinBitmap, CachedBitmapsStayUntilTheEnd)
{
    const HBITMAP narrow = Cached(L"narrow.bmp");
    const HBITMAP wide = Cached(L"wide.bmp");
    EXPECT_TRUE(IsBitmap(narrow));
    EXPECT_EQ(50, WidthOf(wide));
    skin.reset();
    EXPECT_FALSE(IsBitmap(narrow));
    EXPECT_FALSE(IsBitmap(wide));
}

TEST_P(SkinBitmap, AnUncachedBitmapIsDeletedWhenTheNextArrives)
{
    const HBITMAP first = Uncached(L"narrow.bmp");
    ASSERT_TRUE(IsBitmap(first));
    const HBITMAP second = Uncached(L"narrow.bmp");
    EXPECT_NE(first, second);
    EXPECT_FALSE(IsBitmap(first));
    EXPECT_TRUE(IsBitmap(second));
    EXPECT_EQ(0u, Storage().Cache().Count());
}

TEST_P(SkinBitmap, AnUncachedBitmapStaysWhenNoneArrives)
{
    const HBITMAP first = Uncached(L"narrow.bmp");
    EXPECT_EQ(nullptr, Uncached(L"missing.bmp"));
    EXPECT_EQ(nullptr, Uncached(L"text.bmp"));
    EXPECT_TRUE(IsBitmap(first));
    Cached(L"wide.bmp");
    EXPECT_TRUE(IsBitmap(first));
}

TEST_P(SkinBitmap, TheLastUncachedBitmapEndsWithTheStorage)
{
    const HBITMAP bitmap = Uncached(L"narrow.bmp");
    ASSERT_TRUE(IsBitmap(bitmap));
    skin.reset();
    EXPECT_FALSE(IsBitmap(bitmap));
}

TEST_P(SkinBitmap, ABitmapOfTheCallersOwnOutlivesTheStorage)
{
    const UniqueBitmap bitmap(Owned(L"narrow.bmp"));
    const UniqueBitmap other(Owned(L"narrow.bmp"));
    EXPECT_NE(bitmap.get(), other.get());
    Uncached(L"wide.bmp");
    skin.reset();
    EXPECT_TRUE(IsBitmap(bitmap.get()));
    EXPECT_TRUE(IsBitmap(other.get()));
}

TEST_P(SkinBitmap, ABitmapOfTheCallersOwnLeavesTheLastOneAlone)
{
    const HBITMAP last = Uncached(L"narrow.bmp");
    const UniqueBitmap owned(Owned(L"wide.bmp"));
    EXPECT_TRUE(IsBitmap(last));
}

TEST_P(SkinBitmap, AFailureGivesNeitherBitmapNorPixels)
{
    for (const wchar_t* name : {L"missing.bmp", L"text.bmp", L""})
        for (const bool useCache : {false, true})
            for (const bool callerOwns : {false, true})
            {
                void* bits = &folder;
                EXPECT_EQ(nullptr, Storage().Bitmap(name, &bits, useCache, callerOwns));
                EXPECT_EQ(nullptr, bits);
            }
    EXPECT_EQ(nullptr, Storage().Bitmap(nullptr, nullptr, true, false));
}

TEST_P(SkinBitmap, AFailureLeavesItsEntryEmpty)
{
    EXPECT_EQ(nullptr, Cached(L"text.bmp"));
    EXPECT_EQ(nullptr, Cached(L"text.bmp"));
    EXPECT_EQ(1u, Storage().Cache().Count());
    const skin::BitmapEntry* const entry = Storage().Cache().Find(L"text.bmp");
    ASSERT_NE(nullptr, entry);
    EXPECT_EQ(nullptr, entry->Bitmap);
    EXPECT_EQ(nullptr, entry->Bits);
}

TEST_P(SkinBitmap, AnEmptyNameFillsAnEntryEachTime)
{
    EXPECT_EQ(nullptr, Cached(L""));
    EXPECT_EQ(nullptr, Cached(L""));
    EXPECT_EQ(2u, Storage().Cache().Count());
}

TEST_P(SkinBitmap, TheFilesBlockIsFreed)
{
    Cached(L"narrow.bmp");
    const ResourceCounts before = SteadyCounts();
    for (int i = 0; i < 20; ++i)
    {
        Cached(L"narrow.bmp");
        const UniqueBitmap owned(Owned(L"wide.bmp"));
        Storage().Bitmap(L"text.bmp", nullptr, false, false);
    }
    EXPECT_EQ(before.gdiObjects, CountResources().gdiObjects);
    EXPECT_EQ(before.heapBytes, CountResources().heapBytes);
}

int g_allocationsLeft;

HLOCAL WINAPI FailWhenUsedUp(UINT flags, SIZE_T size)
{
    if (g_allocationsLeft-- == 0)
        return nullptr;
    return OfKernel32<decltype(LocalAlloc)>("LocalAlloc")(flags, size);
}

// Lets the first, the second, ... allocation fail until none is left to fail; returns how many
// there are.
int CountRefusals(CSkinBitmapStorage& storage, bool useCache)
{
    const CImportPatch memory(&__imp_LocalAlloc, FailWhenUsedUp);
    for (int allowed = 0;; ++allowed)
    {
        g_allocationsLeft = allowed;
        void* bits = &storage;
        const UniqueBitmap owned(useCache ? nullptr
                                          : storage.Bitmap(L"wide.bmp", &bits, false, true));
        const HBITMAP bitmap =
            useCache ? storage.Bitmap(L"wide.bmp", &bits, true, false) : owned.get();
        EXPECT_EQ(bitmap != nullptr, bits != nullptr);
        if (bitmap)
            return allowed;
    }
}

TEST_P(SkinBitmap, WithoutMemoryThereIsNoBitmapAndNothingIsLost)
{
    // The file and its header.
    EXPECT_EQ(2, CountRefusals(Storage(), false));
    const ResourceCounts before = SteadyCounts();
    EXPECT_EQ(2, CountRefusals(Storage(), false));
    EXPECT_EQ(before.gdiObjects, CountResources().gdiObjects);
    EXPECT_EQ(before.heapBytes, CountResources().heapBytes);
    // Before them the entry, its name and the array; once these are there they stay.
    EXPECT_GE(CountRefusals(Storage(), true), 3);
    EXPECT_EQ(1u, Storage().Cache().Count());
}

TEST_P(SkinBitmap, NothingIsLeftBehind)
{
    const std::wstring path = Storage().Path();
    const auto use = [&path]
    {
        CSkin one;
        CSkinBitmapStorage& storage = one.Storage();
        storage.Open(path.c_str());
        for (const wchar_t* name : {L"narrow.bmp", L"wide.bmp", L"text.bmp", L"missing.bmp"})
        {
            storage.Bitmap(name, nullptr, false, false);
            const UniqueBitmap owned(storage.Bitmap(name, nullptr, false, true));
            storage.Bitmap(name, nullptr, true, false);
        }
    };
    for (int i = 0; i < 10; ++i)
        use();
    const ResourceCounts before = SteadyCounts();
    for (int i = 0; i < 200; ++i)
        use();
    EXPECT_EQ(before, CountResources());
}

TEST(SkinBitmapRetry, ABitmapThatCouldNotBeMadeIsTriedAgain)
{
    const CStorageFolder folder;
    CSkin skin;
    folder.Write(L"late.bmp", "not yet");
    ASSERT_TRUE(skin.Storage().Open(folder.Path().c_str()));
    EXPECT_EQ(nullptr, skin.Storage().Bitmap(L"late.bmp", nullptr, true, false));
    folder.Write(L"late.bmp", Wide().Text());
    EXPECT_EQ(50, WidthOf(skin.Storage().Bitmap(L"late.bmp", nullptr, true, false)));
    EXPECT_EQ(1u, skin.Storage().Cache().Count());
}

} // namespace
