#include "tests/device/ShellDevice.h"

#include <gtest/gtest.h>

#include <atomic>
#include <thread>

#include "device/Seed.h"
#include "device/resource.h"
#include "menu/Rating.h"
#include "tests/support/Wait.h"

namespace
{

// The longer of a message box's texts is the message: the other one belongs to its icon.
std::wstring MessageIn(HWND box)
{
    std::wstring message;
    for (HWND child = FindWindowExW(box, nullptr, L"Static", nullptr); child;
         child = FindWindowExW(box, child, L"Static", nullptr))
    {
        wchar_t text[512] = {};
        GetWindowTextW(child, text, 512);
        if (message.size() < std::wstring(text).size())
            message = text;
    }
    return message;
}

HWND FindBox()
{
    const HWND box = FindWindowW(L"#32770", L"Tav Lumenar");
    return box && IsWindowVisible(box) ? box : nullptr;
}

} // namespace

CShellDevice::CShellDevice()
{
    seed::WriteRegistry(L"C:\\Device");
    seed::WriteStartMenu(m_startMenu.Path(), L"C:\\shell.exe");
}

void CShellDevice::Start()
{
    m_shell = std::make_unique<CHomeScreen>(m_now);
    ASSERT_NE(nullptr, m_shell->Window());
    m_shell->Show();
}

void CShellDevice::Press(WPARAM key)
{
    SendMessageW(m_shell->Window(), WM_KEYDOWN, key, 0);
}

void CShellDevice::TapAt(POINT point)
{
    SendMessageW(m_shell->Window(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(point.x, point.y));
    SendMessageW(m_shell->Window(), WM_LBUTTONUP, 0, MAKELPARAM(point.x, point.y));
}

void CShellDevice::Tap(const CPage& page, int target)
{
    const std::vector<RECT> areas = page.Areas();
    ASSERT_LT(static_cast<size_t>(target), areas.size());
    const RECT& area = areas[static_cast<size_t>(target)];
    ASSERT_FALSE(IsRectEmpty(&area)) << "the target isn't on the screen";
    TapAt({(area.left + area.right) / 2, (area.top + area.bottom) / 2});
}

void CShellDevice::LeftKey()
{
    SendMessageW(m_shell->Window(), WM_COMMAND, ID_LEFT_KEY, 0);
}

void CShellDevice::RightKey()
{
    SendMessageW(m_shell->Window(), WM_COMMAND, ID_RIGHT_KEY, 0);
}

std::wstring CShellDevice::MessageOf(const std::function<void()>& work)
{
    std::atomic<bool> isDone = false;
    std::wstring message;
    std::thread answering(
        [&]
        {
            WaitUntil(
                [&]
                {
                    const HWND box = FindBox();
                    if (box && message.empty())
                        message = MessageIn(box);
                    if (box)
                        PostMessageW(box, WM_COMMAND, IDOK, 0);
                    return isDone.load();
                },
                20000);
        });
    work();
    isDone = true;
    answering.join();
    return message;
}

void CShellDevice::SetList(const std::wstring& list, const std::vector<Entry>& entries)
{
    const boost::shared_ptr<Ratings::CRating> rating(new Ratings::CRating(list));
    rating->Entries.clear();
    for (const Entry& entry : entries)
        rating->Entries.push_back({entry.Name, Ratings::kNoNumber, entry.Weight});
    rating->Save(false);
    Ratings::CLayoutHints hints(rating);
    hints.Slots.clear();
    hints.Save();
}

uint16_t CShellDevice::WeightIn(const std::wstring& list, const std::wstring& name)
{
    const Ratings::CRating rating(list);
    for (const Ratings::CEntry& entry : rating.Entries)
        if (entry.Name == name)
            return entry.Weight;
    return 0xFFFF;
}

std::vector<std::wstring> CShellDevice::NamesIn(const std::wstring& list)
{
    std::vector<std::wstring> names;
    const Ratings::CRating rating(list);
    for (const Ratings::CEntry& entry : rating.Entries)
        names.push_back(entry.Name);
    return names;
}

std::wstring CShellDevice::ItemPath(const std::wstring& below)
{
    return L"\\SOFTWARE\\Orvane 2\\Tav Lumenar\\Menu\\Root\\" + below;
}

std::vector<std::wstring> TextsOf(const std::vector<ShellEntry>& entries)
{
    std::vector<std::wstring> texts;
    for (const ShellEntry& entry : entries)
        texts.push_back(entry.Text);
    return texts;
}
