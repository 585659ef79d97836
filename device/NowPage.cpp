#include "device/NowPage.h"

#include "device/Texts.h"

CNowPage::CNowPage(CPageHost& host, const CItemPainter& painter, const CNowScreen& now)
    : CPage(host, painter), m_now(now)
{
}

const wchar_t* CNowPage::LeftKeyText() const
{
    return texts::kCustomizeNow;
}

const wchar_t* CNowPage::RightKeyText() const
{
    return texts::kBack;
}

void CNowPage::OnLeftKey()
{
    OnHide();
    m_host.OpenDialog(*FindDialogEntry(L"customize-now"));
    OnShow();
}

void CNowPage::OnRightKey()
{
    m_host.GoTo(PageId::Home);
}

void CNowPage::OnShow()
{
    m_isShown = true;
    CoverPage();
}

void CNowPage::OnHide()
{
    m_isShown = false;
    m_now.Hide();
}

void CNowPage::Reload()
{
    m_now.Refresh();
}

void CNowPage::OnResize()
{
    if (m_isShown)
        CoverPage();
}

void CNowPage::CoverPage() const
{
    RECT area = {};
    GetWindowRect(m_host.PageWindow(), &area);
    m_now.Show(area);
}

void CNowPage::Paint(HDC dc)
{
    CItemPainter::PaintWallpaper(dc, Client());
}

std::vector<RECT> CNowPage::Areas() const
{
    return {};
}

void CNowPage::Activate(int /*target*/) {}

bool CNowPage::OnKey(WPARAM key)
{
    if (key != VK_UP && key != VK_DOWN)
        return CPage::OnKey(key);
    m_now.Scroll(key == VK_DOWN ? 1 : -1);
    return true;
}
