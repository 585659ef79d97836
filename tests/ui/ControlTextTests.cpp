// The text of a control, whatever its length.
#include "ui/ControlText.h"

#include "platform/Handles.h"

#include <gtest/gtest.h>

#include <string>

namespace
{

class ControlTexts : public testing::Test
{
protected:
    void ExpectText(const std::wstring& text) const
    {
        ASSERT_TRUE(SetWindowTextW(m_edit.get(), text.c_str()));
        EXPECT_TRUE(ControlText(m_edit.get()) == text) << text.size();
    }

private:
    UniqueWindow m_edit{CreateWindowExW(0, L"Edit", L"", WS_POPUP | ES_AUTOHSCROLL, 0, 0, 50, 20,
                                        nullptr, nullptr, nullptr, nullptr)};
};

// A control that lies about how long its text is.
LRESULT CALLBACK Lie(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_GETTEXTLENGTH)
        return static_cast<LRESULT>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (message != WM_GETTEXT)
        return DefWindowProcW(window, message, wParam, lParam);
    const std::wstring text(L"text");
    return lstrcpynW(reinterpret_cast<wchar_t*>(lParam), text.c_str(), static_cast<int>(wParam))
               ? std::min(static_cast<LRESULT>(text.size()), static_cast<LRESULT>(wParam) - 1)
               : 0;
}

UniqueWindow CreateLiar(LONG_PTR length)
{
    WNDCLASSW type = {};
    type.lpfnWndProc = Lie;
    type.lpszClassName = L"Liar";
    RegisterClassW(&type);
    UniqueWindow window(
        CreateWindowExW(0, L"Liar", L"", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr, nullptr, nullptr));
    SetWindowLongPtrW(window.get(), GWLP_USERDATA, length);
    return window;
}

} // namespace

TEST_F(ControlTexts, IsEmptyWithoutOne)
{
    ExpectText(L"");
}

TEST_F(ControlTexts, IsWholeAtAnyLength)
{
    for (const size_t length : {1u, 2u, 255u, 256u, 259u, 260u, 4095u, 4096u, 5000u, 30000u})
        ExpectText(std::wstring(length - 1, L'x') + L'!');
}

TEST_F(ControlTexts, KeepsEveryUnit)
{
    ExpectText(L"\u05E9\u202E\U0001F4C1\xD83D.");
}

TEST_F(ControlTexts, OfNoWindowIsEmpty)
{
    EXPECT_EQ(L"", ControlText(nullptr));
    EXPECT_EQ(L"", ControlText(reinterpret_cast<HWND>(INT_PTR{0x12345678})));
}

TEST_F(ControlTexts, OfAControlThatPromisesTooMuchIsWhatItGives)
{
    EXPECT_EQ(L"text", ControlText(CreateLiar(1000).get()));
}

TEST_F(ControlTexts, OfAControlThatPromisesTooLittleIsCut)
{
    EXPECT_EQ(L"te", ControlText(CreateLiar(2).get()));
}

TEST_F(ControlTexts, OfAControlThatPromisesNothingIsEmpty)
{
    EXPECT_EQ(L"", ControlText(CreateLiar(0).get()));
    EXPECT_EQ(L"", ControlText(CreateLiar(-5).get()));
}
