// The table of dialogs, and the city picker as the device calls it: the module's real export.
#include "device/Dialogs.h"

#include <gmock/gmock.h>

#include <cstring>
#include <set>

#include <commctrl.h>

#include "device/ChosenCity.h"
#include "device/Texts.h"
#include "tests/device/CityDevice.h"
#include "tests/support/DialogRun.h"

namespace
{

using testing::HasSubstr;

class PickingACity : public testing::Test
{
protected:
    // Opens the picker as the home screen does, waits for it and runs `work` on it.
    void Pick(const std::function<void(HWND dialog, HWND list)>& work)
    {
        CDialogRun run(
            [this](HWND owner)
            {
                m_result = FindDialogEntry(L"select-city")->Run(owner);
                return m_result.Confirmed;
            });
        const HWND dialog = run.WaitForDialog(L"Select City");
        ASSERT_NE(nullptr, dialog);
        work(dialog, FindWindowExW(dialog, nullptr, WC_LISTVIEWW, nullptr));
        ASSERT_TRUE(run.WaitForEnd());
        ASSERT_TRUE(run.Result().has_value())
            << "the picker threw " << std::hex << run.ThrownCode();
    }

    static void Select(HWND list, int row)
    {
        LVITEMW item = {};
        item.state = LVIS_SELECTED | LVIS_FOCUSED;
        item.stateMask = item.state;
        SendMessageW(list, LVM_SETITEMSTATE, static_cast<WPARAM>(row),
                     reinterpret_cast<LPARAM>(&item));
        SendMessageW(list, LVM_SETSELECTIONMARK, 0, row);
    }

    void Confirm(int row)
    {
        Pick(
            [row](HWND dialog, HWND list)
            {
                Select(list, row);
                PostCommand(dialog, IDOK);
            });
    }

    static std::wstring Choice() { return FindDialogEntry(L"select-city")->Choice(); }

    CCityDevice m_device;
    DialogResult m_result = {};
};

} // namespace

TEST(DialogTable, EachDialogHasANameOfItsOwnAndATitleThatIsTranslated)
{
    std::set<std::wstring> names;
    for (const DialogEntry& entry : kDialogs)
    {
        EXPECT_TRUE(names.insert(entry.Name).second) << entry.Name;
        EXPECT_EQ(&entry, FindDialogEntry(entry.Name));
        const std::set<std::wstring> translated(std::begin(texts::kAll), std::end(texts::kAll));
        EXPECT_EQ(1u, translated.count(entry.Title)) << entry.Title;
    }
}

TEST(DialogTable, AnUnknownNameIsNoDialog)
{
    EXPECT_EQ(nullptr, FindDialogEntry(L""));
    EXPECT_EQ(nullptr, FindDialogEntry(L"select-town"));
}

TEST(DialogTable, EachDialogCanBeOpened)
{
    for (const DialogEntry& entry : kDialogs)
        EXPECT_NE(nullptr, entry.Run) << entry.Name;
}

TEST_F(PickingACity, TheConfirmedCityIsKept)
{
    EXPECT_EQ(L"", Choice());
    Confirm(1);
    EXPECT_TRUE(m_result.Confirmed);
    EXPECT_EQ(CCityDevice::kPorto, LoadChosenCity().identifier);
    EXPECT_EQ(L"Porto, PT", Choice());
    EXPECT_THAT(m_result.Words, HasSubstr(L"identifier   22\n"));
    EXPECT_THAT(m_result.Words, HasSubstr(L"population   249,633\n"));
    EXPECT_THAT(m_result.Words, HasSubstr(L"The device keeps it for the next time.\n"));
}

TEST_F(PickingACity, TheKeptCityIsPassedInTheNextTime)
{
    Confirm(1);
    Pick(
        [](HWND dialog, HWND list)
        {
            EXPECT_EQ(1,
                      SendMessageW(list, LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED));
            PostCommand(dialog, IDCANCEL);
        });
    EXPECT_THAT(m_result.Words, HasSubstr(L"current city: Porto, PT (identifier 22)"));
}

TEST_F(PickingACity, ACityWithoutDetailsKeepsTheBytesOfTheEarlierOne)
{
    Confirm(1);
    const CITYINFO earlier = LoadChosenCity();
    Confirm(0);
    const CITYINFO kept = LoadChosenCity();
    EXPECT_EQ(CCityDevice::kLisbon, kept.identifier);
    EXPECT_EQ(0u, kept.hasDetails);
    EXPECT_EQ(0, memcmp(earlier.details, kept.details, sizeof(kept.details)));
    EXPECT_EQ(L"Lisbon", Choice());
    EXPECT_THAT(m_result.Words, HasSubstr(L"details are as they were passed in"));
}

TEST_F(PickingACity, ACancelledChoiceKeepsTheEarlierCity)
{
    Confirm(1);
    const CITYINFO earlier = LoadChosenCity();
    Pick(
        [](HWND dialog, HWND list)
        {
            Select(list, 0);
            PostCommand(dialog, IDCANCEL);
        });
    const CITYINFO kept = LoadChosenCity();
    EXPECT_FALSE(m_result.Confirmed);
    EXPECT_EQ(0, memcmp(&earlier, &kept, sizeof(kept)));
    EXPECT_THAT(m_result.Words, HasSubstr(L"The record is untouched"));
}
