#include "ui/ImageRequest.h"

#include "frame/MenuProcess.h"

#include <algorithm>

namespace
{

ImageRequestRecord RequestFor(ImageRequestKind kind, HDC dc, const RECT& rect)
{
    ImageRequestRecord record = {};
    record.Kind = kind;
    record.Dc = static_cast<uint32_t>(reinterpret_cast<uintptr_t>(dc));
    record.Left = rect.left;
    record.Top = rect.top;
    record.Right = rect.right;
    record.Bottom = rect.bottom;
    return record;
}

bool Ask(const ImageRequestRecord& record)
{
    return AskMenuProcess(kDrawImageRequest, &record, sizeof(record));
}

} // namespace

bool DrawIconNumber(int number, HDC dc, const RECT& rect)
{
    ImageRequestRecord record = RequestFor(ImageRequestNumber, dc, rect);
    record.Number = number;
    return Ask(record);
}

bool DrawFileImage(StringView16 path, HDC dc, const RECT& rect)
{
    if (path.size() >= kImagePathSize)
        return false;
    ImageRequestRecord record = RequestFor(ImageRequestFile, dc, rect);
    std::copy(path.begin(), path.end(), record.Path);
    return Ask(record);
}
