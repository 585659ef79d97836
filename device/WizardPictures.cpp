#include "device/WizardPictures.h"

#include <algorithm>
#include <cstring>

#include "device/ColourScheme.h"
#include "device/NowPainting.h"
#include "device/Painting.h"
#include "platform/Bytes.h"
#include "platform/Handles.h"

namespace wizard
{
namespace
{

// The screen is drawn larger and each block of pixels becomes one: text turns into an even grey.
constexpr int kBlock = 3;
// 240 logical pixels wide, as the device's screen is.
constexpr int kDpi = 96 * kBlock * kPictureWidth / 240;

constexpr uint32_t kHeadersSize = 54;

ScreenPixels DrawLarge(LayoutType type)
{
    ScreenPixels pixels;
    pixels.Width = kPictureWidth * kBlock;
    pixels.Height = kPictureHeight * kBlock;
    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof(info.bmiHeader);
    info.bmiHeader.biWidth = pixels.Width;
    info.bmiHeader.biHeight = -pixels.Height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 24;
    void* bits = nullptr;
    const UniqueBitmap bitmap(CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0));
    const UniqueMemoryDc memory(CreateCompatibleDC(nullptr));
    if (!bitmap || !memory)
        return {};
    const CSelectObject selected(memory.get(), bitmap.get());
    const RECT area = {0, 0, pixels.Width, pixels.Height};
    PaintNow(memory.get(), area, kDpi, {type, NowPanelsOf({})});
    const UniqueBrush frame(CreateSolidBrush(colours::kTeal));
    RECT edge = area;
    for (int i = 0; i < kBlock; ++i)
    {
        FrameRect(memory.get(), &edge, frame.get());
        InflateRect(&edge, -1, -1);
    }
    GdiFlush();
    pixels.Bytes.resize(static_cast<size_t>(pixels.Stride()) * static_cast<size_t>(pixels.Height));
    memcpy(pixels.Bytes.data(), bits, pixels.Bytes.size());
    return pixels;
}

// Where one colour of a pixel stands among the bytes.
size_t PositionOf(const ScreenPixels& pixels, int x, int y, int channel)
{
    return static_cast<size_t>(y) * static_cast<size_t>(pixels.Stride()) +
           static_cast<size_t>(x) * 3 + static_cast<size_t>(channel);
}

// The mean of one colour channel over a block.
uint8_t MeanOf(const ScreenPixels& large, int column, int row, int channel)
{
    int sum = 0;
    for (int y = row * kBlock; y < (row + 1) * kBlock; ++y)
        for (int x = column * kBlock; x < (column + 1) * kBlock; ++x)
            sum += large.Bytes[PositionOf(large, x, y, channel)];
    return static_cast<uint8_t>(sum / (kBlock * kBlock));
}

bool WriteBytes(const std::wstring& path, const std::vector<uint8_t>& bytes)
{
    const UniqueFile file(CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                      FILE_ATTRIBUTE_NORMAL, nullptr));
    DWORD written = 0;
    return file &&
           WriteFile(file.get(), bytes.data(), static_cast<DWORD>(bytes.size()), &written,
                     nullptr) &&
           written == bytes.size();
}

} // namespace

ScreenPixels DrawPicture(LayoutType type)
{
    const ScreenPixels large = DrawLarge(type);
    if (large.Bytes.empty())
        return {};
    ScreenPixels small;
    small.Width = kPictureWidth;
    small.Height = kPictureHeight;
    small.Bytes.resize(static_cast<size_t>(small.Stride()) * static_cast<size_t>(small.Height));
    for (int y = 0; y < small.Height; ++y)
        for (int x = 0; x < small.Width; ++x)
            for (int channel = 0; channel < 3; ++channel)
                small.Bytes[PositionOf(small, x, y, channel)] = MeanOf(large, x, y, channel);
    return small;
}

std::vector<uint8_t> BitmapFile(const ScreenPixels& pixels)
{
    const auto stride = static_cast<size_t>(pixels.Stride());
    std::vector<uint8_t> file(kHeadersSize + pixels.Bytes.size());
    file[0] = 'B';
    file[1] = 'M';
    bytes::PutU32LE(&file[2], static_cast<uint32_t>(file.size()));
    bytes::PutU32LE(&file[10], kHeadersSize);
    bytes::PutU32LE(&file[14], sizeof(BITMAPINFOHEADER));
    bytes::PutU32LE(&file[18], static_cast<uint32_t>(pixels.Width));
    bytes::PutU32LE(&file[22], static_cast<uint32_t>(pixels.Height));
    bytes::PutU16LE(&file[26], 1);
    bytes::PutU16LE(&file[28], 24);
    bytes::PutU32LE(&file[34], static_cast<uint32_t>(pixels.Bytes.size()));
    // The lowest row comes first.
    for (size_t row = 0; row < static_cast<size_t>(pixels.Height); ++row)
        std::copy_n(&pixels.Bytes[row * stride], stride, &file[file.size() - (row + 1) * stride]);
    return file;
}

bool WritePictures(const std::wstring& installFolder)
{
    const std::wstring folder = installFolder + L"\\qa_wizard.dat";
    CreateDirectoryW(installFolder.c_str(), nullptr);
    CreateDirectoryW(folder.c_str(), nullptr);
    return WriteBytes(folder + L"\\Classic.bmp", BitmapFile(DrawPicture(LayoutType::Classic))) &&
           WriteBytes(folder + L"\\Professional.bmp",
                      BitmapFile(DrawPicture(LayoutType::Professional)));
}

} // namespace wizard
