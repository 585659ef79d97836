// The message-map macros: which messages they match, in which order, and what they answer.
#include <atlwin.h>

#include <gtest/gtest.h>

#include <string>

namespace
{

constexpr UINT kTaken = WM_APP + 1;
constexpr UINT kPassedOn = WM_APP + 2;
constexpr UINT kOnlyInBase = WM_APP + 3;
constexpr UINT kInBoth = WM_APP + 4;

// Writes down which of its handlers ran, each under a letter.
class CBaseMap : public ATL::CMessageMap
{
public:
    virtual ~CBaseMap() = default;
    std::string log;

    BEGIN_MSG_MAP(CBaseMap)
        MESSAGE_HANDLER(kOnlyInBase, OnBase)
        MESSAGE_HANDLER(kInBoth, OnBase)
        MESSAGE_HANDLER(kPassedOn, OnBase)
    END_MSG_MAP()

private:
    LRESULT OnBase(UINT /*message*/, WPARAM /*wParam*/, LPARAM /*lParam*/, BOOL& /*handled*/)
    {
        log += 'B';
        return 1000;
    }
};

class CMap : public CBaseMap
{
public:
    BEGIN_MSG_MAP(CMap)
        MESSAGE_HANDLER(kTaken, OnFirst)
        MESSAGE_HANDLER(kTaken, OnSecond)
        MESSAGE_HANDLER(kPassedOn, OnPassing)
        MESSAGE_HANDLER(kPassedOn, OnPassing)
        MESSAGE_HANDLER(kInBoth, OnFirst)
        COMMAND_HANDLER(7, BN_CLICKED, OnClick)
        COMMAND_ID_HANDLER(7, OnCommand)
        NOTIFY_HANDLER(9, static_cast<UINT>(NM_CLICK), OnNotify)
        NOTIFY_CODE_HANDLER(static_cast<UINT>(NM_DBLCLK), OnNotifyCode)
        CHAIN_MSG_MAP(CBaseMap)
    END_MSG_MAP()

    // Offers a message; the map's answer and result are kept.
    void Offer(UINT message, WPARAM wParam = 0, LPARAM lParam = 0)
    {
        log.clear();
        result = -1;
        taken = ProcessWindowMessage(nullptr, message, wParam, lParam, result);
    }
    void Notify(UINT_PTR notifier, UINT notification)
    {
        NMHDR header = {};
        header.idFrom = notifier;
        header.code = notification;
        Offer(WM_NOTIFY, notifier, reinterpret_cast<LPARAM>(&header));
    }

    BOOL taken = FALSE;
    LRESULT result = 0;
    WORD code = 0;
    WORD id = 0;
    HWND control = nullptr;

private:
    LRESULT OnFirst(UINT /*message*/, WPARAM wParam, LPARAM lParam, BOOL& /*handled*/)
    {
        log += '1';
        return static_cast<LRESULT>(wParam) + lParam;
    }
    LRESULT OnSecond(UINT /*message*/, WPARAM /*wParam*/, LPARAM /*lParam*/, BOOL& /*handled*/)
    {
        log += '2';
        return 0;
    }
    LRESULT OnPassing(UINT /*message*/, WPARAM /*wParam*/, LPARAM /*lParam*/, BOOL& handled)
    {
        log += 'P';
        handled = FALSE;
        return 0;
    }
    LRESULT OnClick(WORD notification, WORD command, HWND window, BOOL& /*handled*/)
    {
        log += 'C';
        code = notification;
        id = command;
        control = window;
        return 0;
    }
    LRESULT OnCommand(WORD notification, WORD /*id*/, HWND /*control*/, BOOL& /*handled*/)
    {
        log += 'c';
        code = notification;
        return 0;
    }
    LRESULT OnNotify(int notifier, NMHDR* /*header*/, BOOL& /*handled*/)
    {
        log += 'N';
        return notifier;
    }
    LRESULT OnNotifyCode(int /*notifier*/, NMHDR* /*header*/, BOOL& /*handled*/)
    {
        log += 'n';
        return 0;
    }
};

} // namespace

TEST(MessageMap, TheFirstEntryOfAMessageTakesIt)
{
    CMap map;
    map.Offer(kTaken, 40, 2);
    EXPECT_TRUE(map.taken);
    EXPECT_EQ("1", map.log);
    EXPECT_EQ(42, map.result);
}

TEST(MessageMap, AHandlerThatClearsHandledLetsTheMapGoOn)
{
    CMap map;
    map.Offer(kPassedOn);
    EXPECT_TRUE(map.taken);
    // The second entry of the same message is asked again with the flag set anew.
    EXPECT_EQ("PPB", map.log);
    EXPECT_EQ(1000, map.result);
}

TEST(MessageMap, AMessageWithoutAnEntryIsNotTaken)
{
    CMap map;
    map.Offer(WM_APP + 99);
    EXPECT_FALSE(map.taken);
    EXPECT_EQ("", map.log);
}

TEST(MessageMap, TheChainedMapIsAskedLast)
{
    CMap map;
    map.Offer(kInBoth);
    EXPECT_EQ("1", map.log);
    map.Offer(kOnlyInBase);
    EXPECT_TRUE(map.taken);
    EXPECT_EQ("B", map.log);
}

TEST(MessageMap, ACommandHandlerWantsBothIdAndCode)
{
    CMap map;
    map.Offer(WM_COMMAND, MAKEWPARAM(7, BN_CLICKED), 0x55);
    EXPECT_EQ("C", map.log);
    EXPECT_EQ(BN_CLICKED, map.code);
    EXPECT_EQ(7, map.id);
    EXPECT_EQ(reinterpret_cast<HWND>(0x55), map.control);
    map.Offer(WM_COMMAND, MAKEWPARAM(8, BN_CLICKED));
    EXPECT_FALSE(map.taken);
}

TEST(MessageMap, ACommandIdHandlerTakesAnyCode)
{
    CMap map;
    map.Offer(WM_COMMAND, MAKEWPARAM(7, BN_SETFOCUS));
    EXPECT_EQ("c", map.log);
    EXPECT_EQ(BN_SETFOCUS, map.code);
}

TEST(MessageMap, ANotifyHandlerWantsBothIdAndCode)
{
    CMap map;
    map.Notify(9, static_cast<UINT>(NM_CLICK));
    EXPECT_EQ("N", map.log);
    EXPECT_EQ(9, map.result);
    map.Notify(8, static_cast<UINT>(NM_CLICK));
    EXPECT_FALSE(map.taken);
    map.Notify(9, static_cast<UINT>(NM_RETURN));
    EXPECT_FALSE(map.taken);
}

TEST(MessageMap, ANotifyCodeHandlerTakesAnyControl)
{
    CMap map;
    map.Notify(1, static_cast<UINT>(NM_DBLCLK));
    EXPECT_EQ("n", map.log);
    map.Notify(2, static_cast<UINT>(NM_DBLCLK));
    EXPECT_EQ("n", map.log);
}

TEST(CreateWindowData, TheObjectThatRegisteredLastIsTakenFirst)
{
    int first = 0;
    int second = 0;
    ATL::_AtlCreateWndData firstData;
    ATL::_AtlCreateWndData secondData;
    ATL::AddCreateWndData(firstData, &first);
    ATL::AddCreateWndData(secondData, &second);
    EXPECT_EQ(&second, ATL::ExtractCreateWndData());
    EXPECT_EQ(&first, ATL::ExtractCreateWndData());
    EXPECT_EQ(nullptr, ATL::ExtractCreateWndData());
}

TEST(BaseModule, SettingTheResourceInstanceReturnsTheOldOne)
{
    ATL::CAtlBaseModule module;
    const auto instance = reinterpret_cast<HINSTANCE>(0x10000);
    EXPECT_EQ(nullptr, module.SetResourceInstance(instance));
    EXPECT_EQ(instance, module.SetResourceInstance(nullptr));
    EXPECT_EQ(nullptr, module.GetResourceInstance());
}
