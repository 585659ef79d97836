// The home screen itself: the date with the way to the Now screen, the chosen city with its time,
// and the slots of what is pinned and what is used most.
#pragma once

#include "device/CityFacts.h"
#include "device/HomeEntries.h"
#include "device/HomeLayout.h"
#include "device/Page.h"

class CHomePage : public CPage
{
public:
    // Looks the slots' entries up in `menu`, which must live longer and be loaded first.
    CHomePage(CPageHost& host, const CItemPainter& painter, const CLauncherMenu& menu);

    const wchar_t* LeftKeyText() const override;
    const wchar_t* RightKeyText() const override;
    void OnLeftKey() override;
    void OnRightKey() override;
    void Reload() override;
    void OnResize() override;
    void Paint(HDC dc) override;
    std::vector<RECT> Areas() const override;
    void Activate(int target) override;

    // The targets: the way to the Now screen, the city, and from here on the slots.
    static constexpr int kNowTarget = 0;
    static constexpr int kCityTarget = 1;
    static constexpr int kFirstSlot = 2;

    const HomeEntries& Entries() const { return m_entries; }
    // What is told about the city at the moment.
    CityFacts City() const;
    // Its time, as it is shown; empty when it isn't known.
    std::wstring CityTime() const;
    HomeLayout Layout() const;

private:
    void LoadSlots();
    void PaintDate(HDC dc, const HomeLayout& layout) const;
    void PaintCity(HDC dc, RECT area) const;
    void PaintCityInTwoLines(HDC dc, RECT area, const CityFacts& facts) const;
    void PaintCityInOneLine(HDC dc, RECT area, const CityFacts& facts) const;
    void PaintSlots(HDC dc, const HomeLayout& layout) const;

    const CLauncherMenu& m_menu;
    HomeEntries m_entries;
    CITYINFO m_city = {};
};
