// Memory that runs out at any point of reading the plug-ins: it costs no registration.
#include <cstdint>
#include <cstdlib>

#include "dialogs/now/PluginList.h"
#include "frame/TavException.h"
#include "tests/dialogs/now/NowSandbox.h"
#include "tests/support/ImportPatch.h"

#include <gtest/gtest.h>

namespace
{

// The allocation that fails next, counted down; 0 when none is to fail.
int g_failNext;
// Once one has failed, all further ones do.
bool g_failForEver;
bool g_hasFailed;
// Allocations of more bytes than this fail, too.
size_t g_largest = SIZE_MAX;

bool FailsNow()
{
    if (g_failNext == 0 || --g_failNext > 0)
        return false;
    g_failNext = g_failForEver ? 1 : 0;
    g_hasFailed = true;
    return true;
}

template <class Function>
Function RuntimeFunction(const char* name)
{
    return reinterpret_cast<Function>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"msvcrt.dll"), name)));
}

void* FailingMalloc(size_t size)
{
    static const auto allocate = RuntimeFunction<void*(__cdecl*)(size_t)>("malloc");
    return FailsNow() ? nullptr : allocate(size);
}

void* FailingCalloc(size_t count, size_t size)
{
    static const auto allocate = RuntimeFunction<void*(__cdecl*)(size_t, size_t)>("calloc");
    return FailsNow() || count * size > g_largest ? nullptr : allocate(count, size);
}

class NowMemory : public testing::TestWithParam<bool>
{
protected:
    NowMemory()
        : m_malloc(GetModuleHandleW(nullptr), "msvcrt.dll", "malloc",
                   reinterpret_cast<void*>(FailingMalloc)),
          m_calloc(GetModuleHandleW(nullptr), "msvcrt.dll", "calloc",
                   reinterpret_cast<void*>(FailingCalloc))
    {
        // The runtime's reserve for exceptions needs memory of its own when it is first used.
        g_failForEver = false;
        g_failNext = 1;
        EXPECT_THROW(ThrowOutOfMemory(), CTavException);
        g_failForEver = GetParam();
    }
    ~NowMemory() override
    {
        g_failNext = 0;
        g_largest = SIZE_MAX;
    }

    // Reads the plug-ins with that allocation failing. False when there were not so many.
    static bool LoadWithFailure(int allocation)
    {
        g_hasFailed = false;
        g_failNext = allocation;
        try
        {
            LoadPlugins();
        }
        catch (const CTavException& exception)
        {
            g_failNext = 0;
            EXPECT_EQ(kTavOutOfMemory, exception.Code()) << allocation;
        }
        g_failNext = 0;
        return g_hasFailed;
    }

    CNowSandbox registry;

private:
    CImportPatch m_malloc;
    CImportPatch m_calloc;
};

} // namespace

TEST_P(NowMemory, NoRegistrationIsTakenForAMalformedOne)
{
    registry.Add(L"A", L"short", kEmail);
    registry.Add(L"B", std::wstring(3000, L'x'), kProfile);
    registry.Add(L"C", L"built in", kWeather);
    registry.Set(L"C", L"BuildIn", 1);
    registry.Set(L"C", L"CheckHKLM", L"SOFTWARE");
    const std::wstring before = registry.DumpNow();
    int allocation = 1;
    while (LoadWithFailure(allocation))
    {
        ASSERT_EQ(before, registry.DumpNow()) << "allocation " << allocation;
        ++allocation;
    }
    EXPECT_GT(allocation, 10);
    EXPECT_EQ(3u, LoadPlugins().size());
}

TEST_P(NowMemory, ATextThatIsTooLargeForItHidesItsPlugin)
{
    registry.Add(L"A", std::wstring(100000, L'x'), kEmail);
    registry.Add(L"B", L"b", kEmail);
    g_largest = 100000;
    const std::vector<Plugin> plugins = LoadPlugins();
    ASSERT_EQ(1u, plugins.size());
    EXPECT_EQ(L"B", plugins[0].KeyName);
    EXPECT_TRUE(registry.Exists(L"A"));
    g_largest = SIZE_MAX;
    EXPECT_EQ(2u, LoadPlugins().size());
}

TEST_P(NowMemory, MalformedOnesGoAsSoonAsThereIsMemory)
{
    registry.Add(L"Bad", L"", kEmail);
    registry.Add(L"Good", L"good", kEmail);
    int allocation = 1;
    while (LoadWithFailure(allocation))
        ++allocation;
    EXPECT_GT(allocation, 5);
    EXPECT_FALSE(registry.Exists(L"Bad"));
    EXPECT_TRUE(registry.Exists(L"Good"));
}

INSTANTIATE_TEST_SUITE_P(Failing, NowMemory, testing::Bool(),
                         [](const testing::TestParamInfo<bool>& forEver)
                         { return forEver.param ? "ForEver" : "Once"; });
