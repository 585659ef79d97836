// The help viewer's own window: a title band and a page of help across the screen, with soft keys.
#pragma once

#include <string>
#include <vector>

#include "device/SoftKeys.h"
#include "device/help/BookView.h"

namespace help
{

// The window's class, by which a second viewer finds the first one.
constexpr const wchar_t* kViewerClass = L"TavHelpViewer";

// What tells a window that is open already to show "[PAGE.htm][#TOPIC]": WM_COPYDATA with this
// code and the text, without an end, as its data.
constexpr ULONG_PTR kShowTarget = 0x48454C50;

// The left soft key goes to the table of contents. The right one goes back to where the last link
// was followed; where there is no way back it is "Done" and closes the window, as Esc always does.
// Closing the window ends the thread's message loop.
class CHelpWindow : public CHostWindow, public IBookReader
{
public:
    CHelpWindow();

    // Shows a page at a topic; it becomes the first place to go back to from here. Returns what
    // went wrong in a sentence, empty when nothing did.
    std::wstring Open(const std::wstring& path, const std::wstring& topic);

    // Shows the window and brings it to the foreground.
    void Show();

    void FollowLink(const std::wstring& target) override;
    void GoBack() override;
    void Leave() override;

    const CBookView& View() const { return m_view; }

protected:
    LRESULT OnMessage(UINT message, WPARAM wparam, LPARAM lparam) override;

private:
    // Where a link was followed from.
    struct Place
    {
        std::wstring Path;
        int Position;
        int Link;
    };

    std::wstring Load(const std::wstring& path);
    void GoToTopic(const std::wstring& path, const std::wstring& topic);
    void FollowAddress(const std::wstring& address);
    LRESULT OnCopyData(const COPYDATASTRUCT& data);
    void OnCommand(int id);
    void OnScreenChanged();
    void FillScreen();
    void ArrangeView();
    void UpdateKeys();
    void Complain(const std::wstring& problem);
    void Paint();

    CSoftKeys m_keys;
    UniqueFont m_titleFont;
    CBookView m_view;
    std::wstring m_path;
    std::vector<Place> m_places;
};

// The part of the screen that is free for a window: below the device's top bar, where there is one.
RECT FreeScreen();

} // namespace help
