// The intrusive reference count of the model's objects and the pointer that keeps it.
#pragma once

#include "platform/Win.h"

#include <cstddef>
#include <utility>

#include "frame/TavException.h"

// Base of every counted object. Lives on the heap, is held through CRefPtr and deletes itself when
// the last one lets go. The count is safe to change from several threads.
class CBaseRefCount
{
public:
    CBaseRefCount() = default;
    CBaseRefCount(const CBaseRefCount&) = delete;
    CBaseRefCount& operator=(const CBaseRefCount&) = delete;

    void AddRef() noexcept { InterlockedIncrement(&m_references); }
    void Release() noexcept
    {
        if (InterlockedDecrement(&m_references) == 0)
            delete this;
    }
    // For tests and assertions: another thread may change it at any time.
    LONG References() const noexcept { return m_references; }

protected:
    virtual ~CBaseRefCount() = default;

private:
    LONG m_references = 0;
};

// Owns one reference to a counted object, or is null.
template <class Object>
class CRefPtr
{
public:
    CRefPtr() = default;
    CRefPtr(std::nullptr_t) {}
    explicit CRefPtr(Object* object) : m_object(object)
    {
        if (m_object)
            m_object->AddRef();
    }
    CRefPtr(const CRefPtr& other) : CRefPtr(other.m_object) {}
    CRefPtr(CRefPtr&& other) noexcept : m_object(std::exchange(other.m_object, nullptr)) {}
    CRefPtr& operator=(CRefPtr other) noexcept
    {
        std::swap(m_object, other.m_object);
        return *this;
    }
    ~CRefPtr()
    {
        if (m_object)
            m_object->Release();
    }

    Object* get() const { return m_object; }
    explicit operator bool() const { return m_object != nullptr; }

    // Throw 0x84000001 when null.
    Object* operator->() const { return &**this; }
    Object& operator*() const
    {
        if (!m_object)
            ThrowBroken();
        return *m_object;
    }

    friend bool operator==(const CRefPtr& left, const CRefPtr& right)
    {
        return left.m_object == right.m_object;
    }
    friend bool operator!=(const CRefPtr& left, const CRefPtr& right) { return !(left == right); }

private:
    Object* m_object = nullptr;
};
