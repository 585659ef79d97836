// System calls that fail while a picker opens or lists a folder: what leaves the export.
#include "tests/dialogs/menu/pick/PickFixture.h"
#include "tests/support/ShellCalls.h"

#include "dialogs/menu/SelectFileDlg.h"
#include "dialogs/menu/SelectLinkDlg.h"
#include "frame/Module.h"
#include "frame/TavException.h"
#include "platform/Handles.h"

namespace
{

constexpr HRESULT kOutOfMemory = static_cast<HRESULT>(0x8007000E);
constexpr HRESULT kAccessDenied = static_cast<HRESULT>(0x80070005);

// The editor asks twice, each time for itself: first the base, then its own start-up.
constexpr int kPickersFirst = 3;
constexpr int kPickersOwn = 4;

struct Picker
{
    EditorCommand command;
    const wchar_t* title;
};
constexpr Picker kPickers[] = {{CommandAddFile, L"Select File"}, {CommandAddLink, L"Select Link"}};

// Both pickers in turn, with the shell refusing one call.
class PickFailing : public LinkFixture, public testing::WithParamInterface<Picker>
{
protected:
    PickFailing()
    {
        start.AddFile(L"Programs\\Mail.lnk");
        device.AddFile(L"\\a.exe");
        LoadModule();
        calls = std::make_unique<CShellCalls>(module->Handle());
    }
    ~PickFailing() override
    {
        run.reset();
        calls.reset();
    }
    void OpenEditor()
    {
        Open();
        Select(L"Programs");
    }
    void ExpectEndsWith(HRESULT code)
    {
        OpenEditor();
        PostCommand(dialog, GetParam().command);
        ExpectThrown(code);
        EXPECT_EQ(nullptr, run->InnermostDialog());
    }
    void ExpectOpens()
    {
        OpenEditor();
        OpenPicker(GetParam().command, L"Programs");
        EndPicker(IDCANCEL);
        Cancel();
    }

    CDeviceRoot device;
    std::unique_ptr<CShellCalls> calls;
};

INSTANTIATE_TEST_SUITE_P(Of, PickFailing, testing::ValuesIn(kPickers),
                         [](const testing::TestParamInfo<Picker>& test) {
                             return test.param.command == CommandAddFile ? "SelectFile"
                                                                         : "SelectLink";
                         });

} // namespace

TEST_P(PickFailing, TheFirstFullScreenRequestMayFail)
{
    CShellCalls::RefuseInit(kPickersFirst, ERROR_ACCESS_DENIED);
    ExpectOpens();
}

TEST_P(PickFailing, TheEmptyBarMayFail)
{
    CShellCalls::RefuseBar(kPickersFirst, ERROR_ACCESS_DENIED);
    ExpectOpens();
}

TEST_P(PickFailing, ThePickersOwnFullScreenRequestMustNotFail)
{
    CShellCalls::RefuseInit(kPickersOwn, ERROR_ACCESS_DENIED);
    ExpectEndsWith(kAccessDenied);
}

TEST_P(PickFailing, ThePickersOwnBarMustNotFail)
{
    CShellCalls::RefuseBar(kPickersOwn, ERROR_ACCESS_DENIED);
    ExpectEndsWith(kAccessDenied);
}

TEST_P(PickFailing, ANegativeErrorCodeIsCarriedAsItIs)
{
    CShellCalls::RefuseBar(kPickersOwn, 0x80004005);
    ExpectEndsWith(static_cast<HRESULT>(0x80004005));
}

TEST_P(PickFailing, AfterAFailureTheNextCallWorks)
{
    CShellCalls::RefuseBar(kPickersOwn, ERROR_ACCESS_DENIED);
    ExpectEndsWith(kAccessDenied);
    ExpectOpens();
}

namespace
{

// Insertions into any tree of the module, and which of them fails, from 1; 0 for none.
int g_insertions;
int g_failing;

LRESULT WINAPI FailOneInsertion(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == TVM_INSERTITEMW && ++g_insertions == g_failing)
        return 0;
    return SendMessageW(window, message, wParam, lParam);
}

class InsertionFailing : public FileFixture
{
protected:
    InsertionFailing()
    {
        device.AddFile(L"\\Windows\\a.exe");
        g_insertions = g_failing = 0;
    }
    // Counts the insertions from now on; the one of that number fails.
    void FailInsertion(int number)
    {
        patch = std::make_unique<CImportPatch>(module->Handle(), "user32.dll", "SendMessageW",
                                               FailOneInsertion);
        g_failing = number;
    }
    ~InsertionFailing() override
    {
        run.reset();
        patch.reset();
    }

    std::unique_ptr<CImportPatch> patch;
};

} // namespace

// The root, its placeholder, the folder in it and that one's placeholder.
TEST_F(InsertionFailing, OfAnyNodeOfTheFirstPictureLeavesAsOutOfMemory)
{
    for (int number = 1; number <= 4; ++number)
    {
        Open();
        Select(L"Programs");
        g_insertions = 0;
        FailInsertion(number);
        PostCommand(dialog, CommandAddFile);
        ExpectThrown(kOutOfMemory);
        EXPECT_EQ(number, g_insertions);
        patch.reset();
        run.reset();
    }
}

TEST_F(InsertionFailing, WhileAFolderIsExpandedLeavesAsOutOfMemoryThroughBothDialogs)
{
    OpenFiles();
    FailInsertion(1);
    PostMessageW(entries.Window(), TVM_EXPAND, TVE_EXPAND,
                 reinterpret_cast<LPARAM>(entries.Find(L"Windows")));
    ExpectThrown(kOutOfMemory);
    EXPECT_FALSE(IsWindow(picker));
}

namespace
{

// Has memory for a number of thunks only.
class CScarceAllocator : public ATL::CThunkAllocator
{
public:
    explicit CScarceAllocator(int thunks) : m_left(thunks), m_real(ATL::ThunkAllocator())
    {
        ATL::SetThunkAllocator(this);
    }
    ~CScarceAllocator() { ATL::SetThunkAllocator(nullptr); }
    CScarceAllocator(const CScarceAllocator&) = delete;
    CScarceAllocator& operator=(const CScarceAllocator&) = delete;

    void* Allocate(void* procedure, void* self) override
    {
        return m_left-- > 0 ? m_real.Allocate(procedure, self) : nullptr;
    }
    void Redirect(void* code, void* procedure, void* self) override
    {
        m_real.Redirect(code, procedure, self);
    }
    void Free(void* code) override { m_real.Free(code); }

private:
    int m_left;
    ATL::CThunkAllocator& m_real;
};

// The dialogs' classes themselves, over the module's resources: the module's own allocator has room
// for many more windows than can be opened.
class ThunkFailing : public testing::Test
{
protected:
    ThunkFailing()
    {
        SetModuleInstance(module.Handle());
        SetResourceInstance(module.Handle());
    }

    CMenuSandbox registry;
    CStartMenu start;
    CModule module;
    UniqueWindow owner{CreateWindowExW(0, L"Static", L"owner", WS_POPUP | WS_VISIBLE, 0, 0, 240,
                                       240, nullptr, nullptr, nullptr, nullptr)};
};

} // namespace

TEST_F(ThunkFailing, WithoutOneForTheDialogNothingIsShown)
{
    CSelectFileDlg files(std::wstring(), TRUE);
    CSelectLinkDlg links;
    const CScarceAllocator none(0);
    EXPECT_EQ(-1, files.RunModal(owner.get()));
    EXPECT_EQ(static_cast<DWORD>(ERROR_OUTOFMEMORY), GetLastError());
    EXPECT_EQ(-1, links.RunModal(owner.get()));
    EXPECT_EQ(static_cast<DWORD>(ERROR_OUTOFMEMORY), GetLastError());
    EXPECT_TRUE(IsWindowEnabled(owner.get()));
}

TEST_F(ThunkFailing, WithoutOneForTheTreeOfFilesItsCodeLeavesTheRun)
{
    const CScarceAllocator one(1);
    HRESULT code = 0;
    try
    {
        CSelectFileDlg files(std::wstring(), TRUE);
        files.RunModal(owner.get());
    }
    catch (const CTavException& exception)
    {
        code = exception.Code();
    }
    EXPECT_EQ(kOutOfMemory, code);
    EXPECT_TRUE(IsWindowEnabled(owner.get()));
    EXPECT_EQ(nullptr, OpenDialogOf(GetCurrentThreadId()));
}
