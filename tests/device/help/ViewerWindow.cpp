#include "tests/device/help/ViewerWindow.h"

#include "tests/support/DialogRun.h"
#include "tests/support/SoftKeys.h"

ViewerWindow::ViewerWindow()
{
    m_window.Show();
    HandleMessages();
}

void ViewerWindow::Open(const std::string& html, const std::wstring& topic)
{
    // A page that is shown already is not read again.
    const std::wstring name = L"Page" + std::to_wstring(++m_pages) + L".htm";
    EXPECT_EQ(L"", m_window.Open(m_folder.Add(name, html), topic));
    HandleMessages();
}

void ViewerWindow::OpenBook(const std::wstring& topic)
{
    EXPECT_EQ(L"", m_window.Open(BookPath(), topic));
    HandleMessages();
}

void ViewerWindow::Tap(POINT point) const
{
    const LPARAM place = MAKELPARAM(point.x, point.y);
    SendMessageW(ViewWindow(), WM_LBUTTONDOWN, MK_LBUTTON, place);
    SendMessageW(ViewWindow(), WM_LBUTTONUP, 0, place);
}

POINT ViewerWindow::MiddleOf(int link) const
{
    const help::BookLayout& layout = m_window.View().Layout();
    for (const help::Line& line : layout.Lines)
        for (size_t i = 0; i < line.PieceCount; ++i)
        {
            const help::Piece& piece = layout.Pieces[line.FirstPiece + i];
            if (piece.Link == link)
                return {piece.Left + piece.Width / 2,
                        line.Top + line.Height / 2 - m_window.View().Position()};
        }
    ADD_FAILURE() << "the page has no such link";
    return {};
}

std::wstring ViewerWindow::FirstLine() const
{
    const std::wstring text = TextOf(ViewWindow());
    return text.substr(0, text.find(L'\n'));
}

std::wstring ViewerWindow::FocusedText() const
{
    const std::wstring text = TextOf(ViewWindow());
    const size_t mark = text.find(L'\n');
    return mark == std::wstring::npos ? std::wstring() : text.substr(mark + 1);
}

std::wstring ViewerWindow::KeyText(int key) const
{
    return SoftKeyText(m_window.Window(), key);
}

void ViewerWindow::PressSoftKey(int key) const
{
    SendMessageW(m_window.Window(), WM_COMMAND, SoftKeyCommand(m_window.Window(), key), 0);
}

bool ViewerWindow::HandleMessages() const
{
    MSG message;
    bool isEnded = false;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE))
    {
        isEnded = isEnded || message.message == WM_QUIT;
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
    return isEnded;
}
