// The part of the help viewer that shows a page: scrolls, and takes stylus and keys.
#pragma once

#include "device/HostWindow.h"

#include "device/help/FontMeasure.h"

namespace help
{

// What a person asks of the viewer while looking at a page.
class IBookReader
{
public:
    virtual ~IBookReader() = default;
    virtual void FollowLink(const std::wstring& target) = 0;
    virtual void GoBack() = 0;
    virtual void Leave() = 0;
};

// Keys: Down and Up go to the next link in sight or scroll, Tab and Shift+Tab go to the next link
// wherever it is, Enter follows it; Page Down, Page Up and Space scroll by a screen, Home and End
// to the ends; Backspace and Left go back, Esc leaves. A tap follows a link; the wheel scrolls.
//
// The window's text is the first line in sight and, behind a line feed, the link that has the
// focus: for programs that read the screen aloud.
class CBookView : public CHostWindow
{
public:
    // `reader` lives longer.
    explicit CBookView(IBookReader& reader) : m_reader(reader) {}

    // Makes the window, a child of `parent`, without a size yet.
    void CreateIn(HWND parent);

    // Shows a page from its beginning.
    void Show(Book book);
    // Puts the topic at the window's top; the page's beginning for an unknown one.
    void GoTo(const std::wstring& topic);

    // How far the page is scrolled, for coming back to it.
    int Position() const { return m_position; }
    void SetPosition(int position);

    // The link that has the focus; -1 when none has.
    int FocusedLink() const { return m_focus; }
    void SetFocusedLink(int link);

    const Book& Page() const { return m_book; }
    const BookLayout& Layout() const { return m_layout; }

protected:
    LRESULT OnMessage(UINT message, WPARAM wparam, LPARAM lparam) override;

private:
    void Arrange();
    void OnSize();
    void OnKey(WPARAM key);
    bool OnScrollKey(WPARAM key);
    void OnScrollBar(int request);
    void OnWheel(int delta);
    void OnTap(POINT point, bool released);
    void StepTo(bool forward);
    void TabTo(bool forward);
    void Reveal(int link);
    void Follow(int link);
    void ScrollTo(int position);
    void UpdateScrollBar();
    void UpdateText();

    void Paint();
    void PaintLine(HDC dc, const Line& line, int right);
    void PaintPiece(HDC dc, const Piece& piece, int top, int height);

    int PageHeight() const;
    int LineStep() { return m_fonts.Height(TextStyle::Normal); }

    IBookReader& m_reader;
    CFontMeasure m_fonts;
    Book m_book;
    BookLayout m_layout;
    // How far down the page can be scrolled to: as far as its end, or until its topic is at the
    // top.
    int m_scrollHeight = 0;
    int m_topicTop = 0;
    int m_position = 0;
    int m_width = 0;
    int m_focus = -1;
    int m_pressed = -1;
};

} // namespace help
