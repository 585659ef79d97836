// Owning handles: one template, one traits class per kind of resource.
// Movable, not copyable; no implicit conversion to the raw handle.
#pragma once

#include "platform/Win.h"

#include <utility>

// Owns one handle of the kind that Traits describes: its type, its null value, how it is closed.
template <class Traits>
class CUnique
{
public:
    using Type = typename Traits::Type;

    CUnique() = default;
    explicit CUnique(Type handle) : m_handle(handle) {}
    CUnique(CUnique&& other) noexcept : m_handle(other.release()) {}
    CUnique& operator=(CUnique&& other) noexcept
    {
        if (this != &other)
            reset(other.release());
        return *this;
    }
    CUnique(const CUnique&) = delete;
    CUnique& operator=(const CUnique&) = delete;
    ~CUnique() { reset(); }

    Type get() const { return m_handle; }
    explicit operator bool() const { return m_handle != Traits::Null(); }

    // Closes what is held and returns the place for a new handle.
    Type* put()
    {
        reset();
        return &m_handle;
    }

    // Gives the handle away; the object is empty afterwards.
    [[nodiscard]] Type release() { return std::exchange(m_handle, Traits::Null()); }

    // Closes what is held and takes the given handle over.
    void reset(Type handle = Traits::Null())
    {
        const Type old = std::exchange(m_handle, handle);
        if (old != Traits::Null())
            Traits::Close(old);
    }

private:
    Type m_handle = Traits::Null();
};

namespace handles
{

template <class Handle>
struct Nullable
{
    using Type = Handle;
    static Type Null() { return nullptr; }
};

struct File
{
    using Type = HANDLE;
    static Type Null() { return INVALID_HANDLE_VALUE; }
    static void Close(HANDLE file) { CloseHandle(file); }
};

// A search through a folder.
struct Find
{
    using Type = HANDLE;
    static Type Null() { return INVALID_HANDLE_VALUE; }
    static void Close(HANDLE find) { FindClose(find); }
};

struct Kernel : Nullable<HANDLE>
{
    static void Close(HANDLE object) { CloseHandle(object); }
};

// A block from LocalAlloc.
struct Local : Nullable<HLOCAL>
{
    static void Close(HLOCAL block) { LocalFree(block); }
};

struct MemoryDc : Nullable<HDC>
{
    static void Close(HDC dc) { DeleteDC(dc); }
};

struct ScreenDc : Nullable<HDC>
{
    static void Close(HDC dc) { ReleaseDC(nullptr, dc); }
};

template <class Handle>
struct GdiObject : Nullable<Handle>
{
    static void Close(Handle object) { DeleteObject(object); }
};

struct Menu : Nullable<HMENU>
{
    static void Close(HMENU menu) { DestroyMenu(menu); }
};

struct Icon : Nullable<HICON>
{
    static void Close(HICON icon) { DestroyIcon(icon); }
};

struct ImageList : Nullable<HIMAGELIST>
{
    static void Close(HIMAGELIST list) { ImageList_Destroy(list); }
};

struct Window : Nullable<HWND>
{
    static void Close(HWND window) { DestroyWindow(window); }
};

} // namespace handles

using UniqueFile = CUnique<handles::File>;
// From FindFirstFileW.
using UniqueFind = CUnique<handles::Find>;
// A mutex, event, process or thread handle.
using UniqueKernelHandle = CUnique<handles::Kernel>;
using UniqueLocal = CUnique<handles::Local>;
using UniqueMemoryDc = CUnique<handles::MemoryDc>;
// From GetDC(nullptr).
using UniqueScreenDc = CUnique<handles::ScreenDc>;
using UniqueFont = CUnique<handles::GdiObject<HFONT>>;
using UniqueBitmap = CUnique<handles::GdiObject<HBITMAP>>;
using UniqueBrush = CUnique<handles::GdiObject<HBRUSH>>;
using UniqueMenu = CUnique<handles::Menu>;
using UniqueIcon = CUnique<handles::Icon>;
// System image lists are borrowed: they never enter this type.
using UniqueImageList = CUnique<handles::ImageList>;
using UniqueWindow = CUnique<handles::Window>;

// Selects a GDI object into a device context and puts the old one back at the end of the scope.
class CSelectObject
{
public:
    CSelectObject(HDC dc, HGDIOBJ object) : m_dc(dc), m_old(SelectObject(dc, object)) {}
    ~CSelectObject() { SelectObject(m_dc, m_old); }
    CSelectObject(const CSelectObject&) = delete;
    CSelectObject& operator=(const CSelectObject&) = delete;

private:
    HDC m_dc;
    HGDIOBJ m_old;
};
