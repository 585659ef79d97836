#include "ui/IconImageList.h"

#include "frame/MenuProcess.h"
#include "frame/TavException.h"
#include "platform/os/SystemIcon.h"
#include "ui/BitmapBuffer.h"
#include "ui/ImagePath.h"
#include "ui/ImageRequest.h"

namespace
{

constexpr int kInitialImages = 32;
constexpr int kGrowth = 16;
// A process that draws any number must not fill the memory.
constexpr int kMostIcons = 4096;

void MakeWhite(CBitmapBuffer& buffer)
{
    buffer.Fill(0, 0, buffer.Width(), buffer.Height(), RGB(255, 255, 255), 255);
}

bool AddImage(HIMAGELIST list, CBitmapBuffer& buffer)
{
    buffer.ReleaseMemoryDC();
    return ImageList_Add(list, buffer.Bitmap(), nullptr) != -1;
}

void AddNumberedIcons(HIMAGELIST list, CBitmapBuffer& buffer)
{
    const RECT all = {0, 0, buffer.Width(), buffer.Height()};
    for (int i = 0; i < kMostIcons; ++i)
    {
        if (!DrawIconNumber(kFirstIconNumber + i, buffer.GetMemoryDC(), all))
            return;
        if (!AddImage(list, buffer))
            return;
        MakeWhite(buffer);
    }
}

// A process that hung while the icons were drawn is not waited for once more.
void AddImagePath(HIMAGELIST list, CBitmapBuffer& buffer, const std::wstring& path)
{
    MakeWhite(buffer);
    if (HasMenuProcessTimedOut())
        DrawImagePathLocally(path, buffer);
    else
        DrawImagePath(path, buffer);
    AddImage(list, buffer);
}

} // namespace

UniqueImageList BuildIconList(const std::wstring& imagePath)
{
    UniqueImageList list(
        ImageList_Create(IconWidth(), IconHeight(), os::kScreenColours, kInitialImages, kGrowth));
    if (!list)
        ThrowLastError();
    CBitmapBuffer buffer;
    if (!buffer.Create(IconWidth(), IconHeight(), BitmapFormatRgb565))
        ThrowLastError();
    RefreshMenuProcess();
    MakeWhite(buffer);
    AddNumberedIcons(list.get(), buffer);
    if (!imagePath.empty())
        AddImagePath(list.get(), buffer, imagePath);
    return list;
}
