// Opening and closing the picker again and again leaves nothing behind.
#include "frame/TavException.h"
#include "tests/dialogs/city/CityFixture.h"
#include "tests/support/ImportPatch.h"
#include "tests/support/LeakCounter.h"

namespace
{

constexpr int kWarmUp = 10;
constexpr int kRounds = 100;

UINT g_command;

BOOL CALLBACK EndDialogBy(HWND window, LPARAM /*unused*/)
{
    wchar_t name[32] = {};
    GetClassNameW(window, name, 32);
    if (lstrcmpW(name, L"#32770") != 0 || !IsWindowVisible(window))
        return TRUE;
    SetDlgItemTextW(window, kSearchId, L"lon");
    SendDlgItemMessageW(window, kListId, LVM_SETSELECTIONMARK, 0, 1);
    PostMessageW(window, WM_COMMAND, g_command, 0);
    return FALSE;
}

// On the dialogs' own thread: one per round would cost memory of its own.
void CALLBACK WorkDialog(HWND, UINT, UINT_PTR, DWORD)
{
    EnumThreadWindows(GetCurrentThreadId(), EndDialogBy, 0);
}

class CityLeaks : public testing::Test
{
protected:
    CityLeaks()
        : m_owner(CreateWindowExW(0, L"Static", L"owner", WS_POPUP | WS_VISIBLE, 0, 0, 100, 100,
                                  nullptr, nullptr, nullptr, nullptr)),
          m_timer(SetTimer(nullptr, 0, USER_TIMER_MINIMUM, WorkDialog))
    {
        g_command = IDCANCEL;
        SetInstallFolder(m_registry, folder);
        folder.InstallAsFolder(SampleCities().Build());
    }
    ~CityLeaks() override
    {
        KillTimer(nullptr, m_timer);
        DestroyWindow(m_owner);
    }

    BOOL Open()
    {
        CITYINFO city = RecordOf(20);
        return m_module.SelectCity(m_owner, &city, 0);
    }
    template <class Round>
    void ExpectNothingLeft(Round round)
    {
        for (int i = 0; i < kWarmUp; ++i)
            round();
        ExpectNothingLeftBy(
            [&]
            {
                for (int i = 0; i < kRounds; ++i)
                    round();
            });
    }
    HMODULE Module() const { return m_module.Handle(); }

    CCityFolder folder;

private:
    CRegistrySandbox m_registry;
    CModule m_module;
    HWND m_owner;
    UINT_PTR m_timer;
};

int g_bars;

// Refuses the bar of every dialog: the base's own one has come before it.
BOOL WINAPI RefuseSecondBar(void*)
{
    SetLastError(ERROR_ACCESS_DENIED);
    return ++g_bars % 2 != 0;
}

} // namespace

TEST_F(CityLeaks, CancellingAHundredTimes)
{
    ExpectNothingLeft([this] { EXPECT_FALSE(Open()); });
}

TEST_F(CityLeaks, ChoosingAHundredTimes)
{
    g_command = IDOK;
    ExpectNothingLeft([this] { EXPECT_TRUE(Open()); });
}

TEST_F(CityLeaks, ChoosingFromAnArchiveAHundredTimes)
{
    folder.InstallAsArchive(SampleCities().Build(), true);
    g_command = IDOK;
    ExpectNothingLeft([this] { EXPECT_TRUE(Open()); });
}

TEST_F(CityLeaks, OpeningWithoutADatabaseAHundredTimes)
{
    folder.Uninstall();
    ExpectNothingLeft([this] { EXPECT_FALSE(Open()); });
}

TEST_F(CityLeaks, FailingToOpenAHundredTimes)
{
    const CImportPatch patch(Module(), "aygshell.dll", "SHCreateMenuBar", RefuseSecondBar);
    ExpectNothingLeft([this] { EXPECT_THROW(Open(), CTavException); });
}

TEST_F(CityLeaks, MeetingABrokenCityAHundredTimes)
{
    Bytes image = SampleCities().Build();
    SetField(image, PositionOf(image, 0, FieldArea), 99);
    folder.InstallAsFolder(image);
    ExpectNothingLeft([this] { EXPECT_THROW(Open(), CTavException); });
}
