// The sample device's launcher menu as plain tables: what the product brings, what the shared
// component brings, and what a user has made of it. Seed.cpp writes them, the tests count them.
#pragma once

#include <cstddef>
#include <cstdint>

namespace sample
{

// The three places in which a menu item's registry key can live.
enum class Layer
{
    Product,
    Shared,
    Customised
};

// One key of one layer with its values. A value that was not given is not written.
struct MenuKey
{
    static constexpr int64_t kNone = -1;

    Layer Where;
    // The path below the layer's root; empty means the root itself.
    const wchar_t* Path;
    const wchar_t* Text = nullptr;
    const wchar_t* File = nullptr;
    const wchar_t* DrawType = nullptr;
    const wchar_t* Rating = nullptr;
    int64_t Index = kNone;
    int64_t Inactive = kNone;
    int64_t User = kNone;
    int64_t Add = kNone;
    int64_t Image = kNone;
    int64_t RtFlags = kNone;

    constexpr MenuKey(Layer where, const wchar_t* path, const wchar_t* text = nullptr)
        : Where(where), Path(path), Text(text)
    {
    }
    // Each gives the key one more value and is named after it.
    constexpr MenuKey At(int64_t index) const { return With(&MenuKey::Index, index); }
    constexpr MenuKey Hidden() const { return With(&MenuKey::Inactive, 1); }
    constexpr MenuKey Shown() const { return With(&MenuKey::Inactive, 0); }
    constexpr MenuKey OfUser() const { return With(&MenuKey::User, 1); }
    constexpr MenuKey Container() const { return With(&MenuKey::Add, 1); }
    constexpr MenuKey Icon(int64_t number) const { return With(&MenuKey::Image, number); }
    constexpr MenuKey Flags(int64_t flags) const { return With(&MenuKey::RtFlags, flags); }
    constexpr MenuKey Grid() const { return With(&MenuKey::DrawType, L"Grid"); }
    constexpr MenuKey List() const { return With(&MenuKey::DrawType, L"List"); }
    constexpr MenuKey Rated(const wchar_t* list) const { return With(&MenuKey::Rating, list); }
    constexpr MenuKey Target(const wchar_t* file) const { return With(&MenuKey::File, file); }

private:
    template <class Field, class Value>
    constexpr MenuKey With(Field MenuKey::*field, Value value) const
    {
        MenuKey changed = *this;
        changed.*field = value;
        return changed;
    }
};

// A table and its length.
template <class Row>
struct Table
{
    const Row* Rows;
    size_t Count;
    const Row* begin() const { return Rows; }
    const Row* end() const { return Rows + Count; }
};

Table<MenuKey> MenuKeys();

// The highest number that a key of the user's has: the next one becomes this plus one.
constexpr uint32_t kLastKey = 9;

} // namespace sample
