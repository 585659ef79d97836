// CBitmapBuffer: an off-screen bitmap that icons and pictures are drawn into before they get into a
// control or an image list.
#pragma once

#include "platform/Handles.h"

// The pixel formats of a buffer, by the numbers that Create takes.
enum BitmapFormat
{
    BitmapFormatMono = 0,   // 1 bit: black, white
    BitmapFormatGrey4 = 1,  // 4 bits: 16 greys
    BitmapFormatGrey8 = 2,  // 8 bits: 256 greys
    BitmapFormatRgb565 = 3, // 16 bits: 5 red, 6 green, 5 blue
    BitmapFormatRgb24 = 4,  // 24 bits
};

// A device-independent bitmap, rows bottom-up, with a memory device context on demand. Lengths are
// device pixels. Empty until Create or Attach.
class CBitmapBuffer
{
public:
    CBitmapBuffer() = default;
    virtual ~CBitmapBuffer();
    CBitmapBuffer(const CBitmapBuffer&) = delete;
    CBitmapBuffer& operator=(const CBitmapBuffer&) = delete;

    // Makes a new bitmap, all pixels 0, in the place of the old one. False, with the old one gone,
    // the last error set and the buffer empty, for any other format, a width or height below 1, or
    // when the system refuses.
    bool Create(int width, int height, int format);

    // Takes a bitmap over in the place of the old one. False when it isn't a DIB section with
    // pixels in memory: the buffer is empty then and the bitmap stays the caller's.
    bool Attach(HBITMAP bitmap);

    // The device context with the bitmap in it, made by the first call; null for an empty buffer.
    // It belongs to the buffer.
    HDC GetMemoryDC();

    // Deletes the device context: an image list takes only a bitmap that nothing else has selected.
    void ReleaseMemoryDC();

    // Fills a rectangle with a colour. Always opaque: `alpha` is 255 in every call.
    void Fill(int left, int top, int right, int bottom, COLORREF colour, BYTE alpha);

    int Width() const { return m_width; }
    int Height() const { return m_height; }
    // Bytes per row, padded to a multiple of 4.
    int Stride() const { return m_stride; }
    int BitsPerPixel() const { return m_bitsPerPixel; }
    // The pixels, owned by the bitmap.
    void* Bits() const { return m_bits; }
    // The bitmap, owned by the buffer; null when it is empty.
    HBITMAP Bitmap() const { return m_bitmap.get(); }

private:
    void Release();

    int m_width = 0;
    int m_height = 0;
    int m_stride = 0;
    int m_bitsPerPixel = 0;
    void* m_bits = nullptr;
    UniqueBitmap m_bitmap;
    UniqueMemoryDc m_dc;
    int m_savedState = 0;
};
