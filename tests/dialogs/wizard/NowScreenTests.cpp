// The message by which the Now screen learns of the choice.
#include "platform/Handles.h"
#include "tests/dialogs/wizard/WizardFixture.h"

#include <atomic>
#include <thread>

namespace
{

// The Now screen's main window, on a thread that looks at its messages when it is told to. Says
// what came, and what the registry held then.
class CNowScreen
{
public:
    explicit CNowScreen(CRegistrySandbox& registry)
        : m_registry(registry), m_ready(CreateEventW(nullptr, TRUE, FALSE, nullptr)),
          m_look(CreateEventW(nullptr, TRUE, FALSE, nullptr)), m_thread([this] { Run(); })
    {
        EXPECT_EQ(WAIT_OBJECT_0, WaitForSingleObject(m_ready.get(), 10000));
    }
    ~CNowScreen()
    {
        if (m_thread.joinable())
            Look();
    }
    CNowScreen(const CNowScreen&) = delete;
    CNowScreen& operator=(const CNowScreen&) = delete;

    // Handles everything that has come so far, then goes.
    void Look()
    {
        SetEvent(m_look.get());
        m_thread.join();
    }

    int posted = 0;
    int sent = 0;
    WPARAM wParam = 1;
    LPARAM lParam = 1;
    std::wstring typeThen;

private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
    {
        auto* const self = reinterpret_cast<CNowScreen*>(GetWindowLongPtrW(window, GWLP_USERDATA));
        if (message == 0x8067 && self)
        {
            ++(InSendMessage() ? self->sent : self->posted);
            self->wParam = wParam;
            self->lParam = lParam;
            self->typeThen = self->m_registry.Text(kTypeKey, L"Type");
        }
        return DefWindowProcW(window, message, wParam, lParam);
    }
    void Run()
    {
        WNDCLASSW type = {};
        type.lpfnWndProc = Procedure;
        type.hInstance = GetModuleHandleW(nullptr);
        type.lpszClassName = L"TavNow_MainWindow";
        RegisterClassW(&type);
        const HWND window = CreateWindowExW(0, type.lpszClassName, L"any title", WS_POPUP, 0, 0, 1,
                                            1, nullptr, nullptr, type.hInstance, nullptr);
        SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
        SetEvent(m_ready.get());
        // Busy until then: nobody must wait for it.
        WaitForSingleObject(m_look.get(), 60000);
        MSG message;
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE))
            DispatchMessageW(&message);
        DestroyWindow(window);
        UnregisterClassW(type.lpszClassName, type.hInstance);
    }

    CRegistrySandbox& m_registry;
    UniqueKernelHandle m_ready;
    UniqueKernelHandle m_look;
    std::thread m_thread;
};

class WizardNowScreen : public WizardFixture
{
protected:
    WizardNowScreen() { WriteWizardArchive(folder, BothPictures()); }
};

} // namespace

TEST_F(WizardNowScreen, IsToldOnceAndNotWaitedFor)
{
    CNowScreen now(registry);
    Open();
    Choose(kProfessional);
    End(IDOK);
    now.Look();
    EXPECT_EQ(1, now.posted);
    EXPECT_EQ(0, now.sent);
    EXPECT_EQ(0u, now.wParam);
    EXPECT_EQ(0, now.lParam);
    EXPECT_EQ(L"Detailed", now.typeThen);
}

TEST_F(WizardNowScreen, IsToldOfAnUnchangedChoiceToo)
{
    StoreType(L"Simple");
    CNowScreen now(registry);
    Open();
    End(IDOK);
    now.Look();
    EXPECT_EQ(1, now.posted);
}

TEST_F(WizardNowScreen, IsToldNothingOnCancel)
{
    CNowScreen now(registry);
    Open();
    Choose(kProfessional);
    End(IDCANCEL);
    now.Look();
    EXPECT_EQ(0, now.posted + now.sent);
}

TEST_F(WizardNowScreen, MayBeMissing)
{
    Open();
    End(IDOK);
    EXPECT_EQ(L"Simple", StoredType());
}
