#include "tests/faults/Session.h"

#include "resources/resource.h"
#include "tests/dialogs/city/CityFolder.h"
#include "tests/dialogs/city/SampleCities.h"
#include "tests/dialogs/now/NowSandbox.h"
#include "tests/dialogs/wizard/WizardPictures.h"
#include "tests/faults/QuietMenuProcess.h"
#include "tests/support/DialogRun.h"
#include "tests/support/MenuSandbox.h"
#include "tests/support/StartMenu.h"
#include "tests/support/TreeDriver.h"

#include <commctrl.h>

#include <cstring>

namespace
{

constexpr UINT kBoxOff = 1;
constexpr UINT kBoxOn = 2;
constexpr WPARAM kScreenTurned = 0x3002;

// What every session does once: the screen is turned, everything is painted anew.
void TurnScreen(HWND dialog)
{
    SendMessageW(dialog, WM_SETTINGCHANGE, kScreenTurned, 0);
    RedrawWindow(dialog, nullptr, nullptr,
                 RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW | RDW_ALLCHILDREN);
}

std::function<void(HWND)> Post(UINT command)
{
    return [command](HWND dialog) { PostCommand(dialog, command); };
}

// As with the arrow keys: buttons without pictures have no size to be tapped.
std::function<void(HWND)> Choose(int control)
{
    return [control](HWND dialog)
    { CheckRadioButton(dialog, IDC_CLASSIC, IDC_PROFESSIONAL, control); };
}

std::function<void(HWND)> Click(int control)
{
    return [control](HWND dialog) { SendDlgItemMessageW(dialog, control, BM_CLICK, 0, 0); };
}

// The same steps at the end of each session.
Script Ended(const wchar_t* title, SessionEnd end, Script script)
{
    script.push_back({title, TurnScreen});
    script.push_back({title, Post(static_cast<UINT>(end))});
    return script;
}

// Acts on the node at a path of a dialog's tree; a failure may have kept it out of it.
std::function<void(HWND)> WithNode(int control, const wchar_t* path,
                                   std::function<void(HWND, const CTreeDriver&, HTREEITEM)> act)
{
    return [=](HWND dialog)
    {
        const CTreeDriver tree(GetDlgItem(dialog, control));
        if (const HTREEITEM node = tree.Find(path))
            act(dialog, tree, node);
    };
}

bool Contains(const std::wstring& text, const wchar_t* part)
{
    return text.find(part) != std::wstring::npos;
}

void SwitchBox(const CTreeDriver& tree, HTREEITEM node)
{
    tree.SetBox(node, tree.BoxOf(node) == kBoxOn ? kBoxOff : kBoxOn);
}

class CMenuSession : public CSession
{
public:
    CMenuSession()
    {
        m_start.AddFile(L"Programs\\Calculator.lnk");
        m_registry.SetText(L"SOFTWARE\\Orvane 2\\Tav Lumenar\\Menu\\Settings", L"DefFolder",
                           m_start.PathOf(L"Programs"));
    }

    BOOL Call(const CModule& module, HWND owner) override
    {
        return module.CustomizeMenu(owner, 0, 0, 0);
    }

    Script Steps(SessionEnd end) const override
    {
        constexpr const wchar_t* kOptions = L"Menu Options ('Programs')";
        return Ended(kTitle, end,
                     {{kTitle, Switch(L"Programs/Notes")},
                      {kTitle, Do(L"Programs/Maps", ID_MOVE_UP)},
                      {kTitle, Do(L"Tools", ID_MOVE_DOWN)},
                      {kTitle, Do(L"My Menu/Radio", ID_REMOVE_ITEM)},
                      {kTitle, OpenContextMenu},
                      {kTitle, Do(L"Programs", ID_MENU_OPTIONS)},
                      {kOptions, Click(IDC_LAYOUT_GRID)},
                      {kOptions, Click(IDC_MOST_USED_FIRST)},
                      {kOptions, TurnScreen},
                      {kOptions, Post(IDOK)},
                      {kTitle, Do(L"Programs", ID_ADD_MENU)},
                      {kItem, Name(L"Extra")},
                      {kItem, Post(IDC_CHANGE_ICON)},
                      {kIcon, Post(IDOK)},
                      {kItem, TurnScreen},
                      {kItem, Post(IDOK)},
                      {kTitle, Do(L"Programs/Maps", ID_EDIT_ITEM)},
                      {kItem, Name(L"Charts")},
                      {kItem, Post(IDOK)},
                      {kTitle, Do(L"Programs", ID_ADD_LINK)},
                      {kLink, TurnScreen},
                      {kLink, Post(IDCANCEL)},
                      {kTitle, Do(L"Programs", ID_ADD_FILE)},
                      {kFile, TurnScreen},
                      {kFile, Post(IDCANCEL)},
                      {kTitle, Switch(L"Tools/Alarm")}});
    }

    bool IsOwnPlace(const std::wstring& place) const override
    {
        return Contains(place, L"\\Tav Menu\\Customize");
    }

private:
    static constexpr const wchar_t* kTitle = L"Customize Menu";
    static constexpr const wchar_t* kItem = L"Edit Item";
    static constexpr const wchar_t* kIcon = L"Choose Icon";
    static constexpr const wchar_t* kLink = L"Select Link";
    static constexpr const wchar_t* kFile = L"Select File";

    static std::function<void(HWND)> Name(const wchar_t* text)
    {
        return [text](HWND dialog) { SetDlgItemTextW(dialog, IDC_ITEM_NAME, text); };
    }

    static std::function<void(HWND)> Switch(const wchar_t* path)
    {
        return WithNode(IDC_MENU_TREE, path,
                        [](HWND, const CTreeDriver& tree, HTREEITEM node)
                        { SwitchBox(tree, node); });
    }
    static std::function<void(HWND)> Do(const wchar_t* path, UINT command)
    {
        return WithNode(IDC_MENU_TREE, path,
                        [command](HWND dialog, const CTreeDriver& tree, HTREEITEM node)
                        {
                            tree.Select(node);
                            PostCommand(dialog, command);
                        });
    }
    static void OpenContextMenu(HWND dialog)
    {
        PostMessageW(dialog, WM_CONTEXTMENU, 0, MAKELPARAM(20, 60));
    }

    CMenuSandbox m_registry;
    CStartMenu m_start;
    CQuietMenuProcess m_menuProcess;
};

class CHomeSession : public CSession
{
public:
    CHomeSession()
    {
        m_start.AddFile(L"Programs\\Calculator.lnk");
        m_start.AddFile(L"Programs\\Games\\Bubbles.lnk");
        m_start.AddFile(L"Programs\\Mail.exe");
        constexpr const wchar_t* kList = L"SOFTWARE\\Orvane 2\\Tav Lumenar\\Ratings\\GlobalMRUList";
        const WORD index[] = {0, 0x8000, 1, 7};
        m_registry.SetRaw(kList, L"Index", REG_BINARY, index, sizeof(index));
        m_registry.SetText(kList, L"0", L"m:\\" + std::wstring(kProductMenu) + L"\\Tools\\Alarm");
        m_registry.SetText(kList, L"1", L"l:" + m_start.PathOf(L"Programs\\Mail.exe"));
    }

    BOOL Call(const CModule& module, HWND owner) override
    {
        return module.CustomizeHome(owner, kLimit, 0, 0);
    }

    // The fourth entry is one too many, which a message says.
    Script Steps(SessionEnd end) const override
    {
        constexpr const wchar_t* kTitle = L"Manage Pinned";
        return Ended(kTitle, end,
                     {{kTitle, Switch(L"Tools/Alarm")},
                      {kTitle, Switch(L"Programs/Games/Bubbles")},
                      {kTitle, Switch(L"My Menu/Radio")},
                      {kTitle, Switch(L"Programs/Mail")},
                      {kTitle, Switch(L"Settings/Clock")},
                      {L"Tav Lumenar", Post(IDOK)}});
    }

    bool IsOwnPlace(const std::wstring& place) const override
    {
        return Contains(place, L"\\Ratings\\GlobalMRUList");
    }

private:
    static constexpr DWORD kLimit = 3;

    // As the tree does when a box is tapped.
    static std::function<void(HWND)> Switch(const wchar_t* path)
    {
        return WithNode(IDC_PINNED_TREE, path,
                        [](HWND dialog, const CTreeDriver& tree, HTREEITEM node)
                        {
                            constexpr UINT kBoxSwitched = 0x8014;
                            SwitchBox(tree, node);
                            PostMessageW(dialog, kBoxSwitched, 0, reinterpret_cast<LPARAM>(node));
                        });
    }

    CMenuSandbox m_registry;
    CStartMenu m_start;
    CQuietMenuProcess m_menuProcess;
};

class CNowSession : public CSession
{
public:
    CNowSession()
    {
        m_registry.Add(L"Mail", L"Mailbox", kEmail, 0);
        m_registry.Add(L"Forecast", std::wstring(2000, L'w'), kWeather);
        m_registry.Add(L"Day", L"Day", kCalendar, 1);
        m_registry.Set(L"Day", L"BuildIn", 1);
        m_registry.Add(L"Ring", L"Ring tones", kProfile, 1);
        m_registry.Set(L"Ring", L"CheckHKLM", L"SOFTWARE\\Orvane");
        m_registry.Add(L"Gone", L"Not installed", kProfile);
        m_registry.Set(L"Gone", L"CheckHKLM", L"SOFTWARE\\Missing");
        // A registration that is cleaned away, with a key of its own.
        m_registry.Add(L"Bad", L"", kEmail);
        m_registry.Set(L"Bad\\Below", L"Value", 1);
    }

    BOOL Call(const CModule& module, HWND owner) override
    {
        return module.CustomizeNow(owner, 0, 0, 0);
    }

    Script Steps(SessionEnd end) const override
    {
        constexpr const wchar_t* kTitle = L"Customize Now Screen";
        return Ended(kTitle, end, {{kTitle, Check(0)}, {kTitle, Check(2)}});
    }

    bool IsOwnPlace(const std::wstring& place) const override
    {
        return Contains(place, L"\\Tav Menu\\Now\\") && Contains(place, L"|Inactive");
    }
    bool CleansUp() const override { return true; }

private:
    static std::function<void(HWND)> Check(int row)
    {
        return [row](HWND dialog)
        {
            LVITEMW item = {};
            item.state = INDEXTOSTATEIMAGEMASK(kBoxOn);
            item.stateMask = LVIS_STATEIMAGEMASK;
            SendDlgItemMessageW(dialog, IDC_NOW_LIST, LVM_SETITEMSTATE, static_cast<WPARAM>(row),
                                reinterpret_cast<LPARAM>(&item));
        };
    }

    CNowSandbox m_registry;
};

class CWizardSession : public CSession
{
public:
    CWizardSession()
    {
        SetInstallFolder(m_registry, m_folder);
        const COLORREF red = RGB(200, 30, 10);
        const std::string classic = BitmapFileOf(60, 80, red);
        const std::string professional = BitmapFileOf(70, 90, red);
        const zip::Bytes archive = zip::Archive(
            {zip::Stored("Classic.bmp", classic), zip::Stored("Professional.bmp", professional)});
        m_folder.Write(L"qa_wizard.dat", std::string(archive.begin(), archive.end()));
    }

    BOOL Call(const CModule& module, HWND /*owner*/) override
    {
        return module.InstallWizard(0, 0, 0, 0);
    }

    Script Steps(SessionEnd end) const override
    {
        constexpr const wchar_t* kTitle = L"Tav Lumenar";
        return Ended(kTitle, end,
                     {{kTitle, Choose(IDC_CLASSIC)}, {kTitle, Choose(IDC_PROFESSIONAL)}});
    }

    bool IsOwnPlace(const std::wstring& place) const override
    {
        return Contains(place, L"\\NowScreen\\PluginEnvironment");
    }

private:
    CTempFolder m_folder;
    CRegistrySandbox m_registry;
};

class CCitySession : public CSession
{
public:
    CCitySession()
    {
        SetInstallFolder(m_registry, m_folder);
        m_folder.InstallAsFolder(SampleCities().Build());
        std::memset(&m_before, 0x5A, sizeof(m_before));
        m_before.identifier = 10;
    }

    BOOL Call(const CModule& module, HWND owner) override
    {
        m_city = m_before;
        return module.SelectCity(owner, &m_city, 0);
    }

    Script Steps(SessionEnd end) const override
    {
        constexpr const wchar_t* kTitle = L"Select City";
        return Ended(kTitle, end,
                     {{kTitle, Type(L"d")},
                      {kTitle, Type(L"don")},
                      {kTitle, Type(L"a text that no city's name has in it")},
                      {kTitle, Type(L"lon")},
                      {kTitle, SelectFirstRow}});
    }
    bool IsHostUntouched() const override
    {
        return std::memcmp(&m_city, &m_before, sizeof(m_city)) == 0;
    }

    bool IsOwnPlace(const std::wstring& place) const override { return place.empty(); }

private:
    static std::function<void(HWND)> Type(const wchar_t* text)
    {
        return [text](HWND dialog) {
            SendDlgItemMessageW(dialog, IDC_CITY_SEARCH, WM_SETTEXT, 0,
                                reinterpret_cast<LPARAM>(text));
        };
    }
    static void SelectFirstRow(HWND dialog)
    {
        LVITEMW item = {};
        item.state = item.stateMask = LVIS_SELECTED | LVIS_FOCUSED;
        SendDlgItemMessageW(dialog, IDC_CITY_LIST, LVM_SETITEMSTATE, 0,
                            reinterpret_cast<LPARAM>(&item));
    }

    CRegistrySandbox m_registry;
    CCityFolder m_folder;
    CITYINFO m_before = {};
    CITYINFO m_city = {};
};

} // namespace

std::unique_ptr<CSession> MakeSession(const std::string& exportName)
{
    if (exportName == "CustomizeMenu")
        return std::make_unique<CMenuSession>();
    if (exportName == "CustomizeHome")
        return std::make_unique<CHomeSession>();
    if (exportName == "CustomizeNow")
        return std::make_unique<CNowSession>();
    if (exportName == "InstallWizard")
        return std::make_unique<CWizardSession>();
    return std::make_unique<CCitySession>();
}
