// The cache: its entries, how it grows, what it deletes.
#include "skin/BitmapCache.h"

#include "tests/skin/StorageFixture.h"
#include "tests/support/ImportPatch.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <type_traits>

extern "C" void* __imp_DeleteObject;
extern "C" void* __imp_LocalAlloc;
extern "C" void* __imp_LocalReAlloc;

namespace
{

using skin::BitmapEntry;
using skin::CBitmapCache;

static_assert(std::has_virtual_destructor_v<CBitmapCache>);

HBITMAP NewBitmap()
{
    return CreateBitmap(1, 1, 1, 1, nullptr);
}

std::wstring Name(size_t number)
{
    return L"name" + std::to_wstring(number);
}

void Fill(CBitmapCache& cache, size_t count)
{
    for (size_t i = 0; i < count; ++i)
        ASSERT_NE(nullptr, cache.Append(Name(i).c_str()));
}

TEST(BitmapCache, BeginsWithNothing)
{
    const CBitmapCache cache;
    EXPECT_EQ(0u, cache.Count());
    EXPECT_EQ(0u, cache.Capacity());
    EXPECT_EQ(nullptr, cache.Find(L"a"));
}

TEST(BitmapCache, ANewEntryHasItsNameOnly)
{
    CBitmapCache cache;
    wchar_t name[] = L"Classic.bmp";
    const BitmapEntry* const entry = cache.Append(name);
    name[0] = L'x';
    ASSERT_NE(nullptr, entry);
    EXPECT_STREQ(L"Classic.bmp", entry->Name);
    EXPECT_EQ(nullptr, entry->Bitmap);
    EXPECT_EQ(nullptr, entry->Companion);
    EXPECT_EQ(nullptr, entry->Bits);
}

TEST(BitmapCache, NamesAreComparedExactly)
{
    CBitmapCache cache;
    BitmapEntry* const lower = cache.Append(L"a.bmp");
    BitmapEntry* const upper = cache.Append(L"A.bmp");
    EXPECT_EQ(lower, cache.Find(L"a.bmp"));
    EXPECT_EQ(upper, cache.Find(L"A.bmp"));
    EXPECT_EQ(nullptr, cache.Find(L"a.BMP"));
    EXPECT_EQ(nullptr, cache.Find(L"a.bm"));
    EXPECT_EQ(nullptr, cache.Find(L"a.bmp2"));
}

TEST(BitmapCache, AnEmptyNameIsNeverFound)
{
    CBitmapCache cache;
    ASSERT_NE(nullptr, cache.Append(L""));
    EXPECT_EQ(nullptr, cache.Find(L""));
}

TEST(BitmapCache, GrowsBy128EntriesAtATime)
{
    CBitmapCache cache;
    Fill(cache, 1);
    EXPECT_EQ(128u, cache.Capacity());
    Fill(cache, 127);
    EXPECT_EQ(128u, cache.Capacity());
    Fill(cache, 1);
    EXPECT_EQ(129u, cache.Count());
    EXPECT_EQ(256u, cache.Capacity());
    Fill(cache, 128);
    EXPECT_EQ(384u, cache.Capacity());
}

TEST(BitmapCache, EntriesStayWhereTheyAreWhenItGrows)
{
    CBitmapCache cache;
    const BitmapEntry* const first = cache.Append(L"first");
    Fill(cache, 1000);
    EXPECT_EQ(first, cache.Find(L"first"));
    for (size_t i = 0; i < 1000; ++i)
    {
        const BitmapEntry* const entry = cache.Find(Name(i).c_str());
        ASSERT_NE(nullptr, entry);
        EXPECT_EQ(Name(i), entry->Name);
    }
}

TEST(BitmapCache, ClearingLeavesNothing)
{
    CBitmapCache cache;
    Fill(cache, 200);
    cache.Clear();
    EXPECT_EQ(0u, cache.Count());
    EXPECT_EQ(0u, cache.Capacity());
    EXPECT_EQ(nullptr, cache.Find(L"name0"));
    Fill(cache, 1);
    EXPECT_EQ(128u, cache.Capacity());
}

std::vector<HGDIOBJ> g_deleted;

BOOL WINAPI RecordDelete(HGDIOBJ object)
{
    g_deleted.push_back(object);
    return TRUE;
}

TEST(BitmapCache, ItsEndDeletesBothObjectsOfEachEntryTheLastEntryFirst)
{
    const auto handle = [](INT_PTR number) { return reinterpret_cast<HBITMAP>(number); };
    g_deleted.clear();
    const CImportPatch deletion(&__imp_DeleteObject, RecordDelete);
    {
        CBitmapCache cache;
        BitmapEntry* const first = cache.Append(L"first");
        first->Bitmap = handle(1);
        first->Companion = handle(2);
        cache.Append(L"without a bitmap");
        cache.Append(L"last")->Bitmap = handle(3);
    }
    EXPECT_THAT(g_deleted, testing::ElementsAre(handle(3), handle(1), handle(2)));
}

TEST(BitmapCache, ItsEndLeavesNothingBehind)
{
    const auto use = []
    {
        CBitmapCache cache;
        Fill(cache, 300);
        cache.Find(L"name7")->Bitmap = NewBitmap();
        cache.Find(L"name8")->Companion = NewBitmap();
    };
    use();
    const ResourceCounts before = SteadyCounts();
    for (int i = 0; i < 50; ++i)
        use();
    EXPECT_EQ(before, CountResources());
}

UINT g_growFlags;
SIZE_T g_growSize;

HLOCAL WINAPI NoMoreMemory(HLOCAL /*block*/, SIZE_T size, UINT flags)
{
    g_growSize = size;
    g_growFlags = flags;
    return nullptr;
}

TEST(BitmapCache, WithoutMemoryToGrowTheOldEntriesStay)
{
    CBitmapCache cache;
    Fill(cache, 128);
    const ResourceCounts before = SteadyCounts();
    {
        const CImportPatch memory(&__imp_LocalReAlloc, NoMoreMemory);
        EXPECT_EQ(nullptr, cache.Append(L"more"));
    }
    EXPECT_EQ(before, CountResources());
    EXPECT_EQ(static_cast<UINT>(LMEM_MOVEABLE), g_growFlags);
    EXPECT_EQ(256 * sizeof(void*), g_growSize);
    EXPECT_EQ(128u, cache.Count());
    EXPECT_EQ(128u, cache.Capacity());
    EXPECT_NE(nullptr, cache.Find(L"name127"));
    EXPECT_NE(nullptr, cache.Append(L"more"));
}

int g_allocationsLeft;

HLOCAL WINAPI FailWhenUsedUp(UINT flags, SIZE_T size)
{
    if (g_allocationsLeft-- == 0)
        return nullptr;
    return OfKernel32<decltype(LocalAlloc)>("LocalAlloc")(flags, size);
}

TEST(BitmapCache, WithoutMemoryForAnEntryNothingChanges)
{
    int refused = 0;
    for (int allowed = 0;; ++allowed)
    {
        CBitmapCache cache;
        const ResourceCounts before = SteadyCounts();
        const CImportPatch memory(&__imp_LocalAlloc, FailWhenUsedUp);
        g_allocationsLeft = allowed;
        if (cache.Append(L"name"))
            break;
        ++refused;
        EXPECT_EQ(before, CountResources());
        EXPECT_EQ(0u, cache.Count());
        g_allocationsLeft = -1;
        EXPECT_NE(nullptr, cache.Append(L"name"));
    }
    // The entry, its name, the array.
    EXPECT_EQ(3, refused);
}

} // namespace
