// Window procedure thunks: code that puts an object in the place of the window handle.
#include <atlthunk.h>

#include <gtest/gtest.h>

#include <array>
#include <memory>
#include <set>
#include <vector>

namespace
{

using ATL::CThunkAllocator;
using ATL::CWndProcThunk;

// What the last call of a thunk delivered.
struct Call
{
    void* object;
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
};
Call g_call;

LRESULT CALLBACK Receive(HWND object, UINT message, WPARAM wParam, LPARAM lParam)
{
    g_call = {object, message, wParam, lParam};
    return 77;
}

LRESULT CALLBACK ReceiveElsewhere(HWND object, UINT /*message*/, WPARAM /*wParam*/,
                                  LPARAM /*lParam*/)
{
    g_call.object = object;
    return 78;
}

// Runs out at once.
class CEmptyAllocator : public CThunkAllocator
{
public:
    void* Allocate(void* /*procedure*/, void* /*self*/) override { return nullptr; }
    void Redirect(void* /*code*/, void* /*procedure*/, void* /*self*/) override { FAIL(); }
    void Free(void* /*code*/) override { FAIL(); }
};

DWORD ProtectionOf(const void* address)
{
    MEMORY_BASIC_INFORMATION info = {};
    VirtualQuery(address, &info, sizeof(info));
    return info.Protect;
}

HWND AnyWindow()
{
    return reinterpret_cast<HWND>(static_cast<INT_PTR>(0x12340));
}

} // namespace

TEST(WndProcThunk, CallsItsProcedureWithTheObjectInPlaceOfTheWindow)
{
    CWndProcThunk thunk;
    int object = 0;
    ASSERT_TRUE(thunk.Init(Receive, &object));
    EXPECT_EQ(77, thunk.GetWNDPROC()(AnyWindow(), WM_USER, 0x1111222233334444, -5));
    EXPECT_EQ(&object, g_call.object);
    EXPECT_EQ(static_cast<UINT>(WM_USER), g_call.message);
    EXPECT_EQ(0x1111222233334444u, g_call.wParam);
    EXPECT_EQ(-5, g_call.lParam);
}

TEST(WndProcThunk, HasNoCodeBeforeInit)
{
    EXPECT_EQ(nullptr, CWndProcThunk().GetWNDPROC());
}

TEST(WndProcThunk, CanBePointedElsewhereWithoutChangingItsAddress)
{
    CWndProcThunk thunk;
    int first = 0;
    int second = 0;
    thunk.Init(Receive, &first);
    const WNDPROC code = thunk.GetWNDPROC();
    EXPECT_TRUE(thunk.Init(ReceiveElsewhere, &second));
    EXPECT_EQ(code, thunk.GetWNDPROC());
    EXPECT_EQ(78, code(AnyWindow(), WM_USER, 0, 0));
    EXPECT_EQ(&second, g_call.object);
}

TEST(WndProcThunk, OfManyThunksEachReachesItsOwnObject)
{
    // More than fit on a few pages of code.
    constexpr size_t kMany = 2000;
    std::vector<int> objects(kMany);
    std::vector<std::unique_ptr<CWndProcThunk>> thunks;
    std::set<WNDPROC> codes;
    for (int& object : objects)
    {
        thunks.push_back(std::make_unique<CWndProcThunk>());
        ASSERT_TRUE(thunks.back()->Init(Receive, &object));
        codes.insert(thunks.back()->GetWNDPROC());
    }
    EXPECT_EQ(kMany, codes.size());
    for (size_t i = 0; i < kMany; ++i)
    {
        thunks[i]->GetWNDPROC()(AnyWindow(), WM_NULL, 0, 0);
        ASSERT_EQ(&objects[i], g_call.object);
    }
}

TEST(WndProcThunk, CodeThatWasGivenBackIsUsedAgain)
{
    auto first = std::make_unique<CWndProcThunk>();
    int object = 0;
    first->Init(Receive, &object);
    const WNDPROC code = first->GetWNDPROC();
    CWndProcThunk kept;
    kept.Init(Receive, &object);
    first.reset();
    CWndProcThunk next;
    int other = 0;
    next.Init(Receive, &other);
    EXPECT_EQ(code, next.GetWNDPROC());
    next.GetWNDPROC()(AnyWindow(), WM_NULL, 0, 0);
    EXPECT_EQ(&other, g_call.object);
    kept.GetWNDPROC()(AnyWindow(), WM_NULL, 0, 0);
    EXPECT_EQ(&object, g_call.object);
}

TEST(WndProcThunk, CodeIsNeverWritable)
{
    std::array<CWndProcThunk, 300> thunks;
    int object = 0;
    for (CWndProcThunk& thunk : thunks)
    {
        thunk.Init(Receive, &object);
        const auto* code = reinterpret_cast<const void*>(thunk.GetWNDPROC());
        ASSERT_EQ(static_cast<DWORD>(PAGE_EXECUTE_READ), ProtectionOf(code));
        thunk.Init(ReceiveElsewhere, &object);
        ASSERT_EQ(static_cast<DWORD>(PAGE_EXECUTE_READ), ProtectionOf(code));
    }
}

TEST(WndProcThunk, DataBesideTheCodeIsNotExecutable)
{
    CWndProcThunk thunk;
    int object = 0;
    thunk.Init(Receive, &object);
    const auto* code = reinterpret_cast<const char*>(thunk.GetWNDPROC());
    EXPECT_EQ(static_cast<DWORD>(PAGE_READWRITE), ProtectionOf(code + 4096));
}

TEST(WndProcThunk, InitFailsWhenThereAreNoThunksLeft)
{
    CEmptyAllocator empty;
    CThunkAllocator* const old = ATL::SetThunkAllocator(&empty);
    EXPECT_EQ(nullptr, old);
    CWndProcThunk thunk;
    int object = 0;
    EXPECT_FALSE(thunk.Init(Receive, &object));
    EXPECT_EQ(nullptr, thunk.GetWNDPROC());
    EXPECT_EQ(&empty, ATL::SetThunkAllocator(nullptr));
    EXPECT_TRUE(thunk.Init(Receive, &object));
}
