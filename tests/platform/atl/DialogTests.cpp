// Modal dialogs as objects: how they bind to their windows, answer messages and end.
#include "tests/platform/atl/ProbeDialog.h"

#include <gtest/gtest.h>

namespace
{

// The templates are the test program's own.
class Dialog : public testing::Test
{
protected:
    Dialog()
    {
        _AtlBaseModule.SetResourceInstance(GetModuleHandleW(nullptr));
        SetLastError(0);
    }
};

// No thunk can be had.
class CEmptyAllocator : public ATL::CThunkAllocator
{
public:
    void* Allocate(void* /*procedure*/, void* /*self*/) override { return nullptr; }
    void Redirect(void* /*code*/, void* /*procedure*/, void* /*self*/) override {}
    void Free(void* /*code*/) override {}
};

} // namespace

TEST_F(Dialog, DoModalReturnsTheCodeThatTheDialogEndedWith)
{
    CProbe dialog;
    EXPECT_EQ(kEndCode, dialog.DoModal(nullptr));
}

TEST_F(Dialog, TheObjectKnowsItsWindowWhileItRunsAndForgetsItThen)
{
    CProbe dialog;
    HWND window = nullptr;
    dialog.onInit = [&](HWND created)
    {
        window = created;
        EXPECT_TRUE(IsWindow(created));
        EXPECT_EQ(created, dialog.m_hWnd);
        PostMessageW(created, kMessageEnd, 0, 0);
    };
    dialog.DoModal(nullptr);
    EXPECT_NE(nullptr, window);
    EXPECT_EQ(nullptr, dialog.m_hWnd);
    EXPECT_FALSE(IsWindow(window));
    EXPECT_EQ(1, dialog.finalMessages);
}

TEST_F(Dialog, AnObjectCanRunAgain)
{
    CProbe dialog;
    dialog.DoModal(nullptr);
    EXPECT_EQ(kEndCode, dialog.DoModal(nullptr));
    EXPECT_EQ(2, dialog.finalMessages);
}

TEST_F(Dialog, AHandlersResultReachesTheSender)
{
    CProbe dialog;
    LRESULT answer = 0;
    dialog.onAct = [&](HWND window)
    {
        answer = SendMessageW(window, kMessageAnswer, 0, 0);
        PostMessageW(window, kMessageEnd, 0, 0);
    };
    dialog.onInit = [](HWND window) { PostMessageW(window, kMessageAct, 0, 0); };
    dialog.DoModal(nullptr);
    EXPECT_EQ(kAnswer, answer);
}

TEST_F(Dialog, AColourHandlersBrushIsTheResultItself)
{
    CProbe dialog;
    dialog.brush = static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH));
    LRESULT answer = 0;
    dialog.onInit = [&](HWND window)
    {
        answer = SendMessageW(window, WM_CTLCOLORSTATIC, 0, 0);
        PostMessageW(window, kMessageEnd, 0, 0);
    };
    dialog.DoModal(nullptr);
    EXPECT_EQ(reinterpret_cast<LRESULT>(dialog.brush), answer);
}

TEST_F(Dialog, AMessageThatNobodyTakesGetsItsDefault)
{
    CProbe dialog;
    LRESULT length = 0;
    dialog.onInit = [&](HWND window)
    {
        length = SendMessageW(window, WM_GETTEXTLENGTH, 0, 0);
        PostMessageW(window, kMessageEnd, 0, 0);
    };
    dialog.DoModal(nullptr);
    EXPECT_EQ(5, length);
}

TEST_F(Dialog, AMissingTemplateGivesMinusOne)
{
    CProbeDialog<IDD_MISSING> missing;
    EXPECT_EQ(-1, missing.DoModal(nullptr));
    // Nobody is left waiting for a window: the next dialog is bound to its own object.
    EXPECT_EQ(nullptr, ATL::ExtractCreateWndData());
}

TEST_F(Dialog, ATemplateThatCannotBeShownGivesMinusOne)
{
    CProbeDialog<IDD_UNKNOWN_CLASS> unknown;
    EXPECT_EQ(-1, unknown.DoModal(nullptr));
    EXPECT_EQ(nullptr, ATL::ExtractCreateWndData());
    CProbe next;
    EXPECT_EQ(kEndCode, next.DoModal(nullptr));
}

TEST_F(Dialog, AnOwnerThatIsNoWindowShowsNothing)
{
    CProbe dialog;
    bool shown = false;
    dialog.onInit = [&](HWND window)
    {
        shown = true;
        PostMessageW(window, kMessageEnd, 0, 0);
    };
    EXPECT_NE(kEndCode, dialog.DoModal(reinterpret_cast<HWND>(static_cast<INT_PTR>(0x7FFF1234))));
    EXPECT_FALSE(shown);
    EXPECT_EQ(nullptr, ATL::ExtractCreateWndData());
}

TEST_F(Dialog, WithoutAThunkDoModalReportsExhaustedMemory)
{
    CEmptyAllocator empty;
    ATL::SetThunkAllocator(&empty);
    CProbe dialog;
    EXPECT_EQ(-1, dialog.DoModal(nullptr));
    EXPECT_EQ(static_cast<DWORD>(ERROR_OUTOFMEMORY), GetLastError());
    EXPECT_EQ(nullptr, ATL::ExtractCreateWndData());
    ATL::SetThunkAllocator(nullptr);
}

TEST_F(Dialog, ASecondDialogRunsInsideTheFirst)
{
    CProbe outer;
    CProbe inner;
    INT_PTR innerCode = 0;
    outer.onAct = [&](HWND window)
    {
        innerCode = inner.DoModal(window);
        PostMessageW(window, kMessageEnd, 0, 0);
    };
    outer.onInit = [](HWND window) { PostMessageW(window, kMessageAct, 0, 0); };
    EXPECT_EQ(kEndCode, outer.DoModal(nullptr));
    EXPECT_EQ(kEndCode, innerCode);
}
