// Exceptions leave a modal dialog through the call that runs it, never through the window manager.
#include "tests/platform/atl/ProbeDialog.h"

#include "platform/Handles.h"

#include <gtest/gtest.h>

#include <new>
#include <stdexcept>
#include <string>

namespace
{

class ModalException : public testing::Test
{
protected:
    ModalException() { _AtlBaseModule.SetResourceInstance(GetModuleHandleW(nullptr)); }

    // An owner to be found enabled at the end.
    UniqueWindow owner{CreateWindowExW(0, L"Static", L"owner", WS_POPUP | WS_VISIBLE, 0, 0, 200,
                                       200, nullptr, nullptr, nullptr, nullptr)};
};

// The text of the runtime_error that the dialog's run throws; empty when it doesn't.
template <class Dialog>
std::string TextThrownBy(Dialog& dialog, HWND owner)
{
    try
    {
        dialog.DoModal(owner);
    }
    catch (const std::runtime_error& error)
    {
        return error.what();
    }
    return std::string();
}

void ActLater(HWND window)
{
    PostMessageW(window, kMessageAct, 0, 0);
}

void Fail(HWND /*window*/)
{
    throw std::runtime_error("failed");
}

} // namespace

TEST_F(ModalException, ThrownAtStartUpLeavesTheCall)
{
    CProbe dialog;
    HWND window = nullptr;
    dialog.onInit = [&](HWND created)
    {
        window = created;
        throw std::runtime_error("at start-up");
    };
    EXPECT_EQ("at start-up", TextThrownBy(dialog, owner.get()));
    EXPECT_FALSE(IsWindow(window));
    EXPECT_TRUE(IsWindowEnabled(owner.get()));
    EXPECT_EQ(nullptr, dialog.m_hWnd);
}

TEST_F(ModalException, ThrownFromAPostedMessageLeavesTheCall)
{
    CProbe dialog;
    HWND window = nullptr;
    dialog.onInit = [&](HWND created)
    {
        window = created;
        ActLater(created);
    };
    dialog.onAct = Fail;
    EXPECT_EQ("failed", TextThrownBy(dialog, owner.get()));
    EXPECT_FALSE(IsWindow(window));
    EXPECT_TRUE(IsWindowEnabled(owner.get()));
}

TEST_F(ModalException, ThrownFromASentMessageReturnsToTheSenderFirst)
{
    CProbe dialog;
    bool returned = false;
    dialog.onAct = Fail;
    dialog.onInit = [&](HWND window)
    {
        SendMessageW(window, kMessageAct, 0, 0);
        returned = true;
    };
    EXPECT_EQ("failed", TextThrownBy(dialog, owner.get()));
    EXPECT_TRUE(returned);
}

TEST_F(ModalException, OnlyTheFirstOneLeaves)
{
    CProbe dialog;
    dialog.onInit = ActLater;
    dialog.onAct = Fail;
    dialog.onDestroy = [](HWND) { throw std::runtime_error("second"); };
    EXPECT_EQ("failed", TextThrownBy(dialog, owner.get()));
}

TEST_F(ModalException, ADialogThatFailedActsNoMore)
{
    CProbe dialog;
    dialog.onInit = ActLater;
    dialog.onAct = [&](HWND window)
    {
        if (dialog.actions > 1)
            return;
        ActLater(window);
        Fail(window);
    };
    dialog.onDestroy = [](HWND window) { SendMessageW(window, kMessageAct, 0, 0); };
    EXPECT_EQ("failed", TextThrownBy(dialog, owner.get()));
    EXPECT_EQ(1, dialog.actions);
    EXPECT_EQ(1, dialog.finalMessages);
}

TEST_F(ModalException, LeavesThroughEveryDialogThatDoesNotCatchIt)
{
    CProbe outer;
    CProbe inner;
    outer.onInit = ActLater;
    outer.onAct = [&](HWND window) { inner.DoModal(window); };
    inner.onInit = ActLater;
    inner.onAct = Fail;
    EXPECT_EQ("failed", TextThrownBy(outer, owner.get()));
    EXPECT_EQ(1, inner.finalMessages);
    EXPECT_EQ(1, outer.finalMessages);
    EXPECT_TRUE(IsWindowEnabled(owner.get()));
}

TEST_F(ModalException, CanBeCaughtAroundTheInnerDialog)
{
    CProbe outer;
    CProbe inner;
    std::string caught;
    outer.onInit = ActLater;
    outer.onAct = [&](HWND window)
    {
        caught = TextThrownBy(inner, window);
        EXPECT_TRUE(IsWindowEnabled(window));
        PostMessageW(window, kMessageEnd, 0, 0);
    };
    inner.onInit = ActLater;
    inner.onAct = Fail;
    EXPECT_EQ(kEndCode, outer.DoModal(owner.get()));
    EXPECT_EQ("failed", caught);
}

TEST_F(ModalException, OfTheOuterDialogEndsTheInnerOneFirst)
{
    CProbe outer;
    CProbe inner;
    HWND outerWindow = nullptr;
    std::string caught;
    outer.onInit = [&](HWND window)
    {
        outerWindow = window;
        ActLater(window);
    };
    outer.onAct = [&](HWND window)
    {
        // The second time, while the inner dialog runs.
        if (outer.actions == 2)
            Fail(window);
        caught = TextThrownBy(inner, window);
        PostMessageW(window, kMessageEnd, 0, 0);
    };
    inner.onInit = ActLater;
    inner.onAct = [&](HWND) { SendMessageW(outerWindow, kMessageAct, 0, 0); };
    EXPECT_EQ(kEndCode, outer.DoModal(owner.get()));
    EXPECT_EQ("failed", caught);
}

TEST_F(ModalException, WhileAPopupMenuIsOpenClosesTheMenuToo)
{
    CProbe dialog;
    const UniqueMenu menu(CreatePopupMenu());
    AppendMenuW(menu.get(), MF_STRING, 1, L"entry");
    dialog.onInit = ActLater;
    dialog.onAct = [&](HWND window)
    {
        if (dialog.actions == 2)
            Fail(window);
        ActLater(window);
        TrackPopupMenu(menu.get(), 0, 10, 10, 0, window, nullptr);
    };
    EXPECT_EQ("failed", TextThrownBy(dialog, owner.get()));
}

TEST_F(ModalException, ExhaustedMemoryBecomesTheFrameworksException)
{
    CProbe dialog;
    dialog.onInit = ActLater;
    dialog.onAct = [](HWND) { throw std::bad_alloc(); };
    HRESULT code = S_OK;
    try
    {
        dialog.DoModal(owner.get());
    }
    catch (const CAtlException& exception)
    {
        code = exception;
    }
    EXPECT_EQ(E_OUTOFMEMORY, code);
}

TEST_F(ModalException, TheDialogCanRunAgainAfterwards)
{
    CProbe dialog;
    dialog.onInit = ActLater;
    dialog.onAct = Fail;
    TextThrownBy(dialog, owner.get());
    dialog.onAct = [](HWND window) { PostMessageW(window, kMessageEnd, 0, 0); };
    EXPECT_EQ(kEndCode, dialog.DoModal(owner.get()));
}

TEST(ModalScope, WithoutAModalDialogTheExceptionGoesOn)
{
    EXPECT_THROW(
        {
            try
            {
                Fail(nullptr);
            }
            catch (...)
            {
                ATL::CModalScope::KeepCurrentException();
            }
        },
        std::runtime_error);
}

TEST(ModalScope, WithoutAFailureRethrowDoesNothing)
{
    ATL::CModalScope scope;
    EXPECT_NO_THROW(scope.Rethrow());
}

TEST(AtlException, CarriesItsCode)
{
    HRESULT code = S_OK;
    try
    {
        AtlThrow(E_INVALIDARG);
    }
    catch (const CAtlException& exception)
    {
        code = exception;
    }
    EXPECT_EQ(E_INVALIDARG, code);
    EXPECT_EQ(E_FAIL, static_cast<HRESULT>(CAtlException()));
}
