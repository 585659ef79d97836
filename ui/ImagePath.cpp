#include "ui/ImagePath.h"

#include "frame/MenuProcess.h"
#include "platform/os/SystemIcon.h"
#include "ui/IconLocation.h"
#include "ui/ImageRequest.h"
#include "ui/Scale.h"

#include <shellapi.h>

namespace
{

constexpr int kIconSize = 32;

void DrawIconOfFile(const IconLocation& location, HDC dc, POINT corner)
{
    HICON extracted = nullptr;
    ExtractIconExW(location.File.c_str(), location.Index, &extracted, nullptr, 1);
    const UniqueIcon icon(extracted);
    if (icon)
        DrawIconEx(dc, corner.x, corner.y, icon.get(), IconWidth(), IconHeight(), 0, nullptr,
                   DI_NORMAL);
}

void DrawFilesOwnIcon(const std::wstring& path, HDC dc, POINT corner)
{
    const DWORD attributes = GetFileAttributesW(path.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES)
        return;
    int index = 0;
    const HIMAGELIST list = os::SystemIcon(path, attributes, 0, index);
    if (list)
        ImageList_Draw(list, index, dc, corner.x, corner.y, ILD_TRANSPARENT);
}

} // namespace

int IconWidth()
{
    return ScaleX(kIconSize);
}

int IconHeight()
{
    return ScaleY(kIconSize);
}

void DrawImagePath(const std::wstring& path, CBitmapBuffer& buffer)
{
    RefreshMenuProcess();
    const RECT all = {0, 0, buffer.Width(), buffer.Height()};
    if (!DrawFileImage(path, buffer.GetMemoryDC(), all))
        DrawImagePathLocally(path, buffer);
}

void DrawImagePathLocally(const std::wstring& path, CBitmapBuffer& buffer)
{
    const HDC dc = buffer.GetMemoryDC();
    const POINT corner = {(buffer.Width() - IconWidth()) / 2, (buffer.Height() - IconHeight()) / 2};
    if (const auto location = SplitIconLocation(path))
        DrawIconOfFile(*location, dc, corner);
    else
        DrawFilesOwnIcon(path, dc, corner);
}
