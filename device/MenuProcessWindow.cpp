#include "device/MenuProcessWindow.h"

#include <shlobj.h>

#include "device/ImageRequest.h"
#include "device/LauncherIcons.h"
#include "include/TavLumenarDialogs.h"
#include "platform/os/Text.h"
#include "ui/Scale.h"

namespace menuprocess
{
namespace
{

// A handle's upper half only repeats the sign of its lower one.
HDC ToDc(uint32_t handle)
{
    return reinterpret_cast<HDC>(static_cast<intptr_t>(static_cast<int32_t>(handle)));
}

bool DrawImage(const requests::ImageRequest& request)
{
    const HDC dc = ToDc(request.Dc);
    // A context of another process, or no context at all, would swallow the picture silently.
    if (GetObjectType(dc) != OBJ_MEMDC)
        return false;
    const RECT area = {request.Left, request.Top, request.Right, request.Bottom};
    const int size = ScaleY(32);
    const bool drawn = request.Kind == requests::ImageKind::IconNumber
                           ? icons::Draw(dc, request.Number, area, size)
                           : icons::DrawOfFile(dc, request.Path.c_str(), area, size);
    // The dialog reads the pixels on its own thread.
    GdiFlush();
    return drawn;
}

std::wstring FullPath(const std::wstring& path)
{
    wchar_t full[MAX_PATH];
    const DWORD length = GetFullPathNameW(path.c_str(), MAX_PATH, full, nullptr);
    return length > 0 && length < MAX_PATH ? std::wstring(full, length) : std::wstring();
}

bool IsShown(const std::wstring& path)
{
    wchar_t startMenu[MAX_PATH];
    if (!SHGetSpecialFolderPathW(nullptr, startMenu, CSIDL_STARTMENU, FALSE))
        return false;
    const DWORD attributes = GetFileAttributesW(path.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES)
        return false;
    return IsShownBelow(FullPath(startMenu), FullPath(path),
                        (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0);
}

class CAnsweringWindow : public CHostWindow
{
public:
    CAnsweringWindow()
    {
        Create(TAVLUMENAR_MENU_WINDOW_CLASS, L"", WS_EX_TOOLWINDOW, WS_POPUP, {});
    }

protected:
    LRESULT OnMessage(UINT message, WPARAM wparam, LPARAM lparam) override
    {
        if (message == WM_DESTROY)
            PostQuitMessage(0);
        if (message != WM_COPYDATA)
            return CHostWindow::OnMessage(message, wparam, lparam);
        const auto* sent = reinterpret_cast<const COPYDATASTRUCT*>(lparam);
        if (!sent || sent->dwData > UINT32_MAX)
            return FALSE;
        return Answer(static_cast<uint32_t>(sent->dwData),
                      static_cast<const uint8_t*>(sent->lpData), sent->cbData);
    }
};

} // namespace

LRESULT Answer(uint32_t code, const uint8_t* data, size_t size)
{
    requests::ImageRequest image;
    if (code == requests::kDrawImage && requests::ReadImageRequest(data, size, image))
        return DrawImage(image);
    std::wstring path;
    if (code == requests::kIsShown && requests::ReadShownRequest(data, size, path))
        return IsShown(path);
    return FALSE;
}

bool IsShownBelow(const std::wstring& startMenu, const std::wstring& path, bool isFolder)
{
    if (startMenu.empty() || !os::BeginsNoCase(path, startMenu + L"\\"))
        return false;
    if (isFolder)
        return true;
    if (path.size() < 5)
        return false;
    const std::wstring extension = path.substr(path.size() - 4);
    return os::EqualNoCase(extension, L".lnk") || os::EqualNoCase(extension, L".exe");
}

} // namespace menuprocess

CMenuProcessWindow::CMenuProcessWindow()
    : m_thread([] { return std::make_unique<menuprocess::CAnsweringWindow>(); })
{
}
