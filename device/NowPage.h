// The page on which the Now screen is shown: a window of its own, over this one, which takes the
// keys.
#pragma once

#include "device/NowScreen.h"
#include "device/Page.h"

class CNowPage : public CPage
{
public:
    // `now` must live longer.
    CNowPage(CPageHost& host, const CItemPainter& painter, const CNowScreen& now);

    const wchar_t* LeftKeyText() const override;
    const wchar_t* RightKeyText() const override;
    // The dialog comes up below the Now screen, which therefore makes room for it.
    void OnLeftKey() override;
    void OnRightKey() override;
    void OnShow() override;
    void OnHide() override;
    void Reload() override;
    void OnResize() override;
    void Paint(HDC dc) override;
    std::vector<RECT> Areas() const override;
    void Activate(int target) override;
    // Up and down scroll.
    bool OnKey(WPARAM key) override;

private:
    void CoverPage() const;

    const CNowScreen& m_now;
    bool m_isShown = false;
};
