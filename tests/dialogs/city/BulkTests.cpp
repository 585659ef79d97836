// A small database, damaged in every place and way, through the whole dialog: each call ends, in
// one of the ways that calls end.
#include "frame/TavException.h"
#include "tests/dialogs/city/CityFixture.h"
#include "tests/support/FaultCounter.h"

namespace
{

// What any one call may take, in milliseconds.
constexpr ULONGLONG kLongest = 5000;

// Paints, types, chooses the first result and confirms it, on the dialog's own thread: a thread per
// call would take most of the time.
void CALLBACK WorkDialog(HWND, UINT, UINT_PTR, DWORD)
{
    const HWND dialog = OpenDialogOf(GetCurrentThreadId());
    if (!dialog)
        return;
    const HWND list = GetDlgItem(dialog, kListId);
    const auto paint = [list]
    { RedrawWindow(list, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW); };
    paint();
    SetDlgItemTextW(dialog, kSearchId, L"o");
    paint();
    LVITEMW item = {};
    item.state = item.stateMask = LVIS_SELECTED | LVIS_FOCUSED;
    SendMessageW(list, LVM_SETITEMSTATE, 0, reinterpret_cast<LPARAM>(&item));
    SendMessageW(list, LVM_SETSELECTIONMARK, 0, 0);
    PostMessageW(dialog, WM_COMMAND, IDOK, 0);
}

Bytes TwoCities()
{
    CCityImageBuilder builder;
    builder.Area(L"Ar");
    builder.Subarea(L"S");
    builder.Details(1);
    builder.City({1, builder.Text(L"Rom"), 0, kNoCityRecord, kNoCityRecord});
    builder.City({2, builder.Text(L"Oslo"), 0, 0, 0});
    return builder.Build();
}

class CityDamage : public testing::Test
{
protected:
    CityDamage()
        : m_owner(CreateWindowExW(0, L"Static", L"owner", WS_POPUP | WS_VISIBLE, 0, 0, 100, 100,
                                  nullptr, nullptr, nullptr, nullptr)),
          m_timer(SetTimer(nullptr, 0, USER_TIMER_MINIMUM, WorkDialog)), m_faults(m_module.Handle())
    {
        SetInstallFolder(m_registry, m_folder);
    }
    ~CityDamage() override
    {
        KillTimer(nullptr, m_timer);
        DestroyWindow(m_owner);
        EXPECT_EQ(0, m_faults.Count());
    }

    void Try(const Bytes& image)
    {
        m_folder.InstallAsFolder(image);
        CITYINFO city = RecordOf(2);
        const ULONGLONG begin = GetTickCount64();
        try
        {
            ++(m_module.SelectCity(m_owner, &city, 0) ? chosen : empty);
        }
        catch (const CTavException& exception)
        {
            EXPECT_EQ(kBroken, exception.Code());
            ++broken;
        }
        EXPECT_LT(GetTickCount64() - begin, kLongest);
        EXPECT_TRUE(IsWindowEnabled(m_owner));
    }
    // Each byte but those that are handed through unread becomes `value`.
    void TryEachByte(uint8_t value)
    {
        const Bytes image = TwoCities();
        const size_t details = bytes::GetU32LE(image.data() + FirstRecordField(2)) + 4;
        for (size_t i = 0; i < image.size(); ++i)
        {
            if (i >= details && i < details + kCityDetailsSize)
                continue;
            Bytes damaged = image;
            damaged[i] = value;
            Try(damaged);
            ASSERT_FALSE(HasFailure()) << "byte " << i;
        }
    }

    int chosen = 0;
    int empty = 0;
    int broken = 0;

private:
    CRegistrySandbox m_registry;
    CCityFolder m_folder;
    CModule m_module;
    HWND m_owner;
    UINT_PTR m_timer;
    CFaultCounter m_faults;
};

} // namespace

TEST_F(CityDamage, TheSoundDatabaseHasACity)
{
    Try(TwoCities());
    EXPECT_EQ(1, chosen);
}

TEST_F(CityDamage, EachByteAsZero)
{
    TryEachByte(0x00);
    EXPECT_GT(chosen, 0);
    EXPECT_GT(empty, 0);
}

TEST_F(CityDamage, EachByteAs255)
{
    TryEachByte(0xFF);
    EXPECT_GT(chosen, 0);
    EXPECT_GT(empty, 0);
    EXPECT_GT(broken, 0);
}

TEST_F(CityDamage, EachByteAs127)
{
    TryEachByte(0x7F);
    EXPECT_GT(broken, 0);
}

TEST_F(CityDamage, EachByteAs128)
{
    TryEachByte(0x80);
    EXPECT_GT(broken, 0);
}

TEST_F(CityDamage, CutAtEveryLength)
{
    const Bytes image = TwoCities();
    for (size_t size = 0; size < image.size(); ++size)
    {
        Try(Bytes(image.begin(), image.begin() + static_cast<ptrdiff_t>(size)));
        ASSERT_FALSE(HasFailure()) << "length " << size;
    }
    // The cities stand last: without all of them there are none.
    EXPECT_EQ(static_cast<int>(image.size()), empty);
}
