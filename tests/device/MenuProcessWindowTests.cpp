// The launcher-menu window, asked like the dialogs ask it: by WM_COPYDATA from another thread.
#include "device/MenuProcessWindow.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "device/LauncherIcons.h"
#include "device/Shortcut.h"
#include "include/TavLumenarDialogs.h"
#include "platform/Bytes.h"
#include "tests/support/RegistrySandbox.h"

namespace
{

constexpr int kSide = 32;
constexpr COLORREF kWhite = RGB(255, 255, 255);

// A white drawing surface.
class CCanvas
{
public:
    CCanvas()
    {
        const UniqueScreenDc screen(GetDC(nullptr));
        m_dc.reset(CreateCompatibleDC(screen.get()));
        m_bitmap.reset(CreateCompatibleBitmap(screen.get(), kSide, kSide));
        m_old = SelectObject(m_dc.get(), m_bitmap.get());
        const RECT all = {0, 0, kSide, kSide};
        FillRect(m_dc.get(), &all, static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH)));
    }
    ~CCanvas() { SelectObject(m_dc.get(), m_old); }
    CCanvas(const CCanvas&) = delete;
    CCanvas& operator=(const CCanvas&) = delete;

    HDC Dc() const { return m_dc.get(); }
    int ColouredPixels() const
    {
        int count = 0;
        for (int y = 0; y < kSide; ++y)
            for (int x = 0; x < kSide; ++x)
                count += GetPixel(m_dc.get(), x, y) != kWhite;
        return count;
    }

private:
    UniqueBitmap m_bitmap;
    UniqueMemoryDc m_dc;
    HGDIOBJ m_old = nullptr;
};

std::vector<uint8_t> ImageRecord(uint32_t kind, const std::wstring& path, int number, HDC dc)
{
    std::vector<uint8_t> record(548);
    bytes::PutU32LE(&record[0], kind);
    for (size_t i = 0; i < path.size(); ++i)
        bytes::PutU16LE(&record[4 + i * 2], path[i]);
    bytes::PutU32LE(&record[524], static_cast<uint32_t>(number));
    bytes::PutU32LE(&record[528], static_cast<uint32_t>(reinterpret_cast<uintptr_t>(dc)));
    bytes::PutU32LE(&record[540], kSide);
    bytes::PutU32LE(&record[544], kSide);
    return record;
}

class MenuProcessWindow : public testing::Test
{
protected:
    LRESULT Ask(ULONG_PTR code, std::vector<uint8_t> record)
    {
        COPYDATASTRUCT data = {code, static_cast<DWORD>(record.size()), record.data()};
        return SendMessageW(m_window.Window(), WM_COPYDATA, 0, reinterpret_cast<LPARAM>(&data));
    }

    LRESULT DrawNumber(int number, HDC dc) { return Ask(6000, ImageRecord(2, L"", number, dc)); }
    LRESULT DrawFile(const std::wstring& path)
    {
        return Ask(6000, ImageRecord(0, path, 0, m_canvas.Dc()));
    }

    LRESULT IsShown(const std::wstring& path)
    {
        std::vector<uint8_t> record(524);
        for (size_t i = 0; i < path.size() && i < 260; ++i)
            bytes::PutU16LE(&record[4 + i * 2], path[i]);
        return Ask(6002, record);
    }

    CMenuProcessWindow m_window;
    CCanvas m_canvas;
};

// A Start Menu folder of the test's own with one shortcut in it.
class MenuProcessFiles : public MenuProcessWindow
{
protected:
    MenuProcessFiles() : m_users(HKEY_CURRENT_USER)
    {
        wchar_t temp[MAX_PATH];
        GetTempPathW(MAX_PATH, temp);
        m_folder = std::wstring(temp) + L"tav-start-" + std::to_wstring(GetCurrentProcessId());
        CreateDirectoryW(m_folder.c_str(), nullptr);
        CreateDirectoryW((m_folder + L"\\Programs").c_str(), nullptr);
        Write(L"\\Chess.lnk", shortcut::Format({L"\\chess.exe", L"\\shell.exe", 117}));
        Write(L"\\Readme.txt", L"text");
        Write(L"\\Plain.lnk", L"not a shortcut");
        m_users.SetText(
            L"Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\User Shell Folders",
            L"Start Menu", m_folder);
    }
    ~MenuProcessFiles() override
    {
        for (const wchar_t* name : {L"\\Chess.lnk", L"\\Readme.txt", L"\\Plain.lnk"})
            DeleteFileW((m_folder + name).c_str());
        RemoveDirectoryW((m_folder + L"\\Programs").c_str());
        RemoveDirectoryW(m_folder.c_str());
    }

    void Write(const wchar_t* name, const std::wstring& text)
    {
        const UniqueFile file(CreateFileW((m_folder + name).c_str(), GENERIC_WRITE, 0, nullptr,
                                          CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr));
        const std::string content(text.begin(), text.end());
        DWORD written = 0;
        WriteFile(file.get(), content.data(), static_cast<DWORD>(content.size()), &written,
                  nullptr);
    }

    CRegistrySandbox m_users;
    std::wstring m_folder;
};

} // namespace

TEST_F(MenuProcessWindow, TheDialogsFindItByItsClass)
{
    ASSERT_NE(nullptr, m_window.Window());
    EXPECT_EQ(m_window.Window(), FindWindowW(TAVLUMENAR_MENU_WINDOW_CLASS, nullptr));
    EXPECT_NE(GetCurrentThreadId(), GetWindowThreadProcessId(m_window.Window(), nullptr));
}

TEST_F(MenuProcessWindow, AnIconNumberIsDrawnIntoTheCallersContext)
{
    EXPECT_NE(0, DrawNumber(100, m_canvas.Dc()));
    EXPECT_GT(m_canvas.ColouredPixels(), 200);
}

TEST_F(MenuProcessWindow, NumbersRunFromAHundredWithoutAGapAndThenEnd)
{
    int number = icons::kFirst;
    while (DrawNumber(number, m_canvas.Dc()))
        ++number;
    EXPECT_GE(number - icons::kFirst, 40) << "so that the list of icons has to be scrolled";
    EXPECT_EQ(0, DrawNumber(99, m_canvas.Dc()));
    EXPECT_EQ(0, DrawNumber(0, m_canvas.Dc()));
    EXPECT_EQ(0, DrawNumber(-1, m_canvas.Dc()));
    EXPECT_EQ(0, DrawNumber(INT32_MAX, m_canvas.Dc()));
}

TEST_F(MenuProcessWindow, OnlyAMemoryContextIsDrawnInto)
{
    const UniqueScreenDc screen(GetDC(nullptr));
    EXPECT_EQ(0, DrawNumber(100, screen.get()));
    EXPECT_EQ(0, DrawNumber(100, nullptr));
    EXPECT_EQ(0, DrawNumber(100, reinterpret_cast<HDC>(uintptr_t{0x7654321})));
    const UniqueFont font(CreateFontW(10, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, L"Tahoma"));
    EXPECT_EQ(0, DrawNumber(100, reinterpret_cast<HDC>(font.get())));
}

TEST_F(MenuProcessWindow, MalformedRecordsAreAnsweredWithZero)
{
    std::vector<uint8_t> record = ImageRecord(2, L"", 100, m_canvas.Dc());
    record.push_back(0);
    EXPECT_EQ(0, Ask(6000, record));
    record.resize(547);
    EXPECT_EQ(0, Ask(6000, record));
    EXPECT_EQ(0, Ask(6000, {}));
    EXPECT_EQ(0, Ask(6000, ImageRecord(1, L"", 100, m_canvas.Dc())));
    record = ImageRecord(2, L"", 100, m_canvas.Dc());
    bytes::PutU32LE(&record[540], 0x80000000u);
    EXPECT_EQ(0, Ask(6000, record));
    EXPECT_EQ(0, m_canvas.ColouredPixels());
}

TEST_F(MenuProcessWindow, OtherRequestCodesAreAnsweredWithZero)
{
    const std::vector<uint8_t> record = ImageRecord(2, L"", 100, m_canvas.Dc());
    for (const ULONG_PTR code : {ULONG_PTR{0}, ULONG_PTR{5999}, ULONG_PTR{6001}, ULONG_PTR{6003}})
        EXPECT_EQ(0, Ask(code, record)) << code;
    // Only the whole code counts where it is wider than 32 bits.
    const auto wide = static_cast<ULONG_PTR>(0x100000000ull + 6000);
    EXPECT_EQ(sizeof(ULONG_PTR) > 4 ? 0 : 1, Ask(wide, record));
}

TEST_F(MenuProcessWindow, ItAnswersWhileTheAskingThreadHandlesNoMessages)
{
    EXPECT_NE(0, DrawNumber(101, m_canvas.Dc()));
    EXPECT_NE(0, DrawNumber(102, m_canvas.Dc()));
}

TEST_F(MenuProcessWindow, AProgramsOwnIconIsDrawn)
{
    wchar_t self[MAX_PATH];
    GetModuleFileNameW(nullptr, self, MAX_PATH);
    EXPECT_NE(0, DrawFile(self));
    EXPECT_GT(m_canvas.ColouredPixels(), 50);
}

TEST_F(MenuProcessWindow, AMissingFileIsNotDrawn)
{
    EXPECT_EQ(0, DrawFile(L"C:\\no\\such\\file.exe"));
    EXPECT_EQ(0, DrawFile(L"C:\\windows\\notepad.exe,-2"));
    EXPECT_EQ(0, DrawFile(L""));
    EXPECT_EQ(0, m_canvas.ColouredPixels());
}

TEST_F(MenuProcessFiles, AShortcutShowsTheIconThatItNames)
{
    CCanvas expected;
    const RECT all = {0, 0, kSide, kSide};
    ASSERT_TRUE(icons::Draw(expected.Dc(), 117, all, kSide));
    ASSERT_NE(0, DrawFile(m_folder + L"\\Chess.lnk"));
    for (int y = 0; y < kSide; ++y)
        for (int x = 0; x < kSide; ++x)
            ASSERT_EQ(GetPixel(expected.Dc(), x, y), GetPixel(m_canvas.Dc(), x, y))
                << x << "," << y;
}

TEST_F(MenuProcessFiles, ABrokenShortcutStillHasSomeIcon)
{
    EXPECT_NE(0, DrawFile(m_folder + L"\\Plain.lnk"));
}

TEST_F(MenuProcessFiles, AFolderHasTheSystemsIcon)
{
    EXPECT_NE(0, DrawFile(m_folder));
    EXPECT_GT(m_canvas.ColouredPixels(), 50);
}

TEST_F(MenuProcessFiles, ShortcutsAndFoldersOfTheStartMenuAreShown)
{
    EXPECT_NE(0, IsShown(m_folder + L"\\Chess.lnk"));
    EXPECT_NE(0, IsShown(m_folder + L"\\Programs"));
    EXPECT_EQ(0, IsShown(m_folder + L"\\Readme.txt"));
    EXPECT_EQ(0, IsShown(m_folder + L"\\Missing.lnk"));
    EXPECT_EQ(0, IsShown(m_folder));
    EXPECT_EQ(0, IsShown(L"C:\\windows\\notepad.exe"));
    EXPECT_EQ(0, IsShown(m_folder + L"\\..\\.."));
    EXPECT_EQ(0, IsShown(L""));
    EXPECT_EQ(0, IsShown(std::wstring(260, L'a')));
}

TEST(ShownEntries, OnlyEntriesBelowTheFolderCount)
{
    using menuprocess::IsShownBelow;
    EXPECT_TRUE(IsShownBelow(L"C:\\Start", L"c:\\start\\a.LNK", false));
    EXPECT_TRUE(IsShownBelow(L"C:\\Start", L"C:\\Start\\Sub\\a.exe", false));
    EXPECT_FALSE(IsShownBelow(L"C:\\Start", L"C:\\Start2\\a.exe", false));
    EXPECT_FALSE(IsShownBelow(L"C:\\Start", L"C:\\Start", true));
    EXPECT_FALSE(IsShownBelow(L"", L"\\a.exe", false));
    EXPECT_FALSE(IsShownBelow(L"C:\\Start", L"C:\\Start\\a.dll", false));
}
