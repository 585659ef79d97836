#include "device/ScreenPicture.h"

#include <objbase.h>
#include <wincodec.h>

#include <cstring>

#include "platform/Handles.h"

namespace
{

constexpr DWORD kPause = 120;
constexpr int kMostLooks = 40;

// A COM object that is released at the end of the scope.
template <class Interface>
class CComObject
{
public:
    CComObject() = default;
    ~CComObject()
    {
        if (m_object)
            m_object->Release();
    }
    CComObject(const CComObject&) = delete;
    CComObject& operator=(const CComObject&) = delete;
    Interface** put() { return &m_object; }
    Interface* get() const { return m_object; }
    Interface* operator->() const { return m_object; }

private:
    Interface* m_object = nullptr;
};

bool EncodeFrame(IWICBitmapEncoder& encoder, const ScreenPixels& pixels)
{
    CComObject<IWICBitmapFrameEncode> frame;
    if (FAILED(encoder.CreateNewFrame(frame.put(), nullptr)) ||
        FAILED(frame->Initialize(nullptr)) ||
        FAILED(frame->SetSize(static_cast<UINT>(pixels.Width), static_cast<UINT>(pixels.Height))))
        return false;
    WICPixelFormatGUID format = GUID_WICPixelFormat24bppBGR;
    if (FAILED(frame->SetPixelFormat(&format)) || !IsEqualGUID(format, GUID_WICPixelFormat24bppBGR))
        return false;
    std::vector<uint8_t> bytes = pixels.Bytes;
    return SUCCEEDED(frame->WritePixels(static_cast<UINT>(pixels.Height),
                                        static_cast<UINT>(pixels.Stride()),
                                        static_cast<UINT>(bytes.size()), bytes.data())) &&
           SUCCEEDED(frame->Commit());
}

} // namespace

ScreenPixels CopyScreen()
{
    ScreenPixels pixels;
    pixels.Width = GetSystemMetrics(SM_CXSCREEN);
    pixels.Height = GetSystemMetrics(SM_CYSCREEN);
    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof(info.bmiHeader);
    info.bmiHeader.biWidth = pixels.Width;
    info.bmiHeader.biHeight = -pixels.Height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 24;
    const UniqueScreenDc screen(GetDC(nullptr));
    void* bits = nullptr;
    const UniqueBitmap bitmap(
        CreateDIBSection(screen.get(), &info, DIB_RGB_COLORS, &bits, nullptr, 0));
    const UniqueMemoryDc memory(CreateCompatibleDC(screen.get()));
    if (!bitmap || !memory)
        return {};
    const CSelectObject selected(memory.get(), bitmap.get());
    if (!BitBlt(memory.get(), 0, 0, pixels.Width, pixels.Height, screen.get(), 0, 0, SRCCOPY))
        return {};
    GdiFlush();
    pixels.Bytes.resize(static_cast<size_t>(pixels.Stride()) * static_cast<size_t>(pixels.Height));
    memcpy(pixels.Bytes.data(), bits, pixels.Bytes.size());
    return pixels;
}

ScreenPixels CopySettledScreen()
{
    ScreenPixels last = CopyScreen();
    for (int look = 0; look < kMostLooks; ++look)
    {
        Sleep(kPause);
        ScreenPixels next = CopyScreen();
        if (next == last)
            break;
        last = next;
    }
    return last;
}

bool WritePng(const ScreenPixels& pixels, const std::wstring& file)
{
    CComObject<IWICImagingFactory> factory;
    CComObject<IWICStream> stream;
    CComObject<IWICBitmapEncoder> encoder;
    return pixels.Width > 0 &&
           SUCCEEDED(CoCreateInstance(CLSID_WICImagingFactory, nullptr, CLSCTX_INPROC_SERVER,
                                      IID_IWICImagingFactory,
                                      reinterpret_cast<void**>(factory.put()))) &&
           SUCCEEDED(factory->CreateStream(stream.put())) &&
           SUCCEEDED(stream->InitializeFromFilename(file.c_str(), GENERIC_WRITE)) &&
           SUCCEEDED(factory->CreateEncoder(GUID_ContainerFormatPng, nullptr, encoder.put())) &&
           SUCCEEDED(encoder->Initialize(stream.get(), WICBitmapEncoderNoCache)) &&
           EncodeFrame(*encoder.get(), pixels) && SUCCEEDED(encoder->Commit());
}
