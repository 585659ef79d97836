// Messages of the picker, each by itself: what is answered, and what is left alone.
#include "tests/dialogs/city/CityFixture.h"
#include "tests/support/FaultCounter.h"

#include <climits>

namespace
{

constexpr UINT kStylusDown = static_cast<UINT>(-50);
constexpr wchar_t kUnwritten = L'#';

class CityMessages : public CityFixture
{
protected:
    // Asks for a cell as a list does; `item` is filled as the dialog answers.
    LRESULT Ask(int row, int column, int size)
    {
        std::fill(std::begin(m_buffer), std::end(m_buffer), kUnwritten);
        m_asked = {};
        m_asked.hdr = {list, kListId, static_cast<UINT>(LVN_GETDISPINFOW)};
        m_asked.item.mask = m_mask;
        m_asked.item.iItem = row;
        m_asked.item.iSubItem = column;
        m_asked.item.pszText = m_buffer + 1;
        m_asked.item.cchTextMax = size;
        return SendMessageW(dialog, WM_NOTIFY, kListId, reinterpret_cast<LPARAM>(&m_asked));
    }
    const LVITEMW& Answer() const { return m_asked.item; }
    // The buffer's characters, with the ones in front of and behind it.
    std::wstring Buffer(size_t size) const { return std::wstring(m_buffer, size + 2); }
    bool IsIgnored() const
    {
        return Answer().pszText == m_buffer + 1 && Answer().mask == m_mask &&
               Buffer(30) == std::wstring(32, kUnwritten);
    }
    LRESULT Notify(HWND control, int id, UINT code)
    {
        // As long as any notification's data.
        struct
        {
            NMHDR header;
            char rest[200];
        } data = {{control, static_cast<UINT_PTR>(id), code}, {}};
        return SendMessageW(dialog, WM_NOTIFY, static_cast<WPARAM>(id),
                            reinterpret_cast<LPARAM>(&data));
    }

    UINT m_mask = LVIF_TEXT;

private:
    NMLVDISPINFOW m_asked = {};
    wchar_t m_buffer[100] = {};
};

} // namespace

TEST_F(CityMessages, TheNameComesStraightFromTheImage)
{
    Open();
    EXPECT_EQ(0, Ask(2, 0, 30));
    EXPECT_STREQ(L"Abingdon", Answer().pszText);
    EXPECT_EQ(std::wstring(32, kUnwritten), Buffer(30)) << "it was copied";
    const wchar_t* const first = Answer().pszText;
    Ask(2, 0, 0);
    EXPECT_EQ(first, Answer().pszText);
}

TEST_F(CityMessages, TheAreaIsWrittenIntoTheListsBuffer)
{
    Open();
    EXPECT_EQ(0, Ask(1, 1, 30));
    EXPECT_STREQ(L"Ontario (Middlesex)", Answer().pszText);
    EXPECT_EQ(kUnwritten, Buffer(30).front());
    EXPECT_EQ(kUnwritten, Buffer(30).back());
}

TEST_F(CityMessages, ALongAreaIsCutToTheBuffer)
{
    Open();
    Ask(1, 1, 10);
    EXPECT_EQ(std::wstring(L"#Ontario (") + L'\0' + kUnwritten, Buffer(10));
    Ask(0, 1, 4);
    EXPECT_EQ(std::wstring(L"#Eng") + L'\0' + kUnwritten, Buffer(4));
}

TEST_F(CityMessages, ABufferOfOneCharacterGetsAZero)
{
    Open();
    Ask(1, 1, 1);
    EXPECT_EQ(std::wstring(L"#") + L'\0' + kUnwritten, Buffer(1));
}

TEST_F(CityMessages, ABufferOfNothingIsNotWritten)
{
    Open();
    for (const int size : {0, -1, INT_MIN})
    {
        Ask(1, 1, size);
        EXPECT_EQ(std::wstring(32, kUnwritten), Buffer(30)) << size;
    }
}

TEST_F(CityMessages, TheTextMaskIsSetEvenIfNoTextWasAskedFor)
{
    Open();
    m_mask = 0;
    Ask(0, 0, 30);
    EXPECT_EQ(static_cast<UINT>(LVIF_TEXT), Answer().mask & LVIF_TEXT);
    m_mask = LVIF_STATE | LVIF_TEXT;
    Ask(0, 0, 30);
    EXPECT_EQ(static_cast<UINT>(LVIF_STATE | LVIF_TEXT), Answer().mask);
}

TEST_F(CityMessages, RowsOutsideTheDatabaseAreIgnored)
{
    Open();
    for (const int row : {-1, INT_MIN, kSampleCount, kSampleCount + 1, INT_MAX})
    {
        EXPECT_EQ(0, Ask(row, 0, 30));
        EXPECT_TRUE(IsIgnored()) << row;
        EXPECT_EQ(0, Ask(row, 1, 30));
        EXPECT_TRUE(IsIgnored()) << row;
    }
}

TEST_F(CityMessages, RowsBehindTheResultsStandForWhatTheIndexHolds)
{
    Open();
    Type(L"abing");
    ASSERT_EQ(1, RowCount());
    Ask(kSampleCount - 1, 0, 30);
    EXPECT_STREQ(kLongName, Answer().pszText);
}

TEST_F(CityMessages, OtherColumnsHaveNoText)
{
    Open();
    for (const int column : {2, -1, INT_MAX})
    {
        EXPECT_EQ(0, Ask(0, column, 30));
        EXPECT_EQ(std::wstring(32, kUnwritten), Buffer(30)) << column;
    }
}

TEST_F(CityMessages, WithoutCitiesEveryRowIsIgnored)
{
    folder.Uninstall();
    Open();
    EXPECT_EQ(0, Ask(0, 0, 30));
    EXPECT_TRUE(IsIgnored());
}

TEST_F(CityMessages, TheStylusNotificationOfAnyControlIsAnsweredWithOne)
{
    Open();
    EXPECT_EQ(1, Notify(list, kListId, kStylusDown));
    EXPECT_EQ(1, Notify(search, kSearchId, kStylusDown));
    EXPECT_FALSE(run->HasEnded());
}

TEST_F(CityMessages, OtherNotificationsAreNotAnswered)
{
    Open(10);
    for (const int code : {NM_CLICK, NM_DBLCLK, NM_RETURN, LVN_KEYDOWN, LVN_ODCACHEHINT})
        EXPECT_EQ(0, Notify(list, kListId, static_cast<UINT>(code))) << code;
    EXPECT_FALSE(run->HasEnded());
}

TEST_F(CityMessages, TheListsNotificationsOfAnotherControlAreNotTheLists)
{
    Open(10);
    EXPECT_EQ(0, Notify(search, kSearchId, static_cast<UINT>(LVN_ITEMACTIVATE)));
    EXPECT_EQ(0, Notify(search, kSearchId, static_cast<UINT>(LVN_GETDISPINFOW)));
    EXPECT_FALSE(run->HasEnded());
}

TEST_F(CityMessages, NotificationsWithoutDataAreDropped)
{
    Open(10);
    const CFaultCounter faults(module->Handle());
    for (const LPARAM data : {LPARAM(0), LPARAM(4), LPARAM(-1), LPARAM(0x7FFF00000000)})
        SendMessageW(dialog, WM_NOTIFY, kListId, data);
    EXPECT_FALSE(run->HasEnded());
    EXPECT_EQ(0, faults.Count());
}

TEST_F(CityMessages, NotificationsOfForeignWindowsAreDropped)
{
    Open(10);
    for (const HWND from : {HWND(nullptr), dialog, GetDesktopWindow(), run->Owner()})
    {
        EXPECT_EQ(0, Notify(from, kListId, static_cast<UINT>(LVN_ITEMACTIVATE)));
        EXPECT_EQ(0, Notify(from, kListId, kStylusDown));
    }
    EXPECT_FALSE(run->HasEnded());
}

TEST_F(CityMessages, SettingChangesAreHandledAndTheirDataNotLookedAt)
{
    Open();
    const CFaultCounter faults(module->Handle());
    for (const WPARAM kind : {WPARAM{0}, WPARAM{224}, WPARAM{0x3002}, WPARAM{0xFFFF}})
        for (const LPARAM data : {LPARAM(0), LPARAM(4), LPARAM(-1)})
            EXPECT_EQ(0, SendMessageW(dialog, WM_SETTINGCHANGE, kind, data)) << kind;
    EXPECT_EQ(0, faults.Count());
}

TEST_F(CityMessages, ScrollMessagesOfAnyPositionAreHarmless)
{
    Open();
    const UINT scroll = RegisterWindowMessageW(L"PPCD_ScrollMessage");
    for (const int position : {INT_MIN, -1, 0, 1, 23, 24, INT_MAX})
        EXPECT_EQ(0, SendMessageW(dialog, scroll, static_cast<WPARAM>(position), 0));
    EXPECT_FALSE(run->HasEnded());
}

TEST_F(CityMessages, UnknownCommandsDoNothing)
{
    Open(10);
    for (const UINT command : {0u, 3u, 200u, 203u, 0xFFFFu})
        SendCommand(dialog, command);
    EXPECT_FALSE(run->HasEnded());
    EXPECT_EQ(kSampleCount, RowCount());
}

TEST_F(CityMessages, ErasingTheBackgroundEnablesTheOwner)
{
    Open();
    RedrawWindow(dialog, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
    EXPECT_TRUE(IsWindowEnabled(run->Owner()));
}
