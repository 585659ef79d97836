// The 16-bit character of the handheld's texts, for code that is also built where wchar_t is wider.
#pragma once

#include <string>
#include <string_view>

#ifdef _WIN32
using Char16 = wchar_t;
#define TEXT16(literal) L##literal
#else
using Char16 = char16_t;
#define TEXT16(literal) u##literal
#endif

using String16 = std::basic_string<Char16>;
using StringView16 = std::basic_string_view<Char16>;

static_assert(sizeof(Char16) == 2, "texts are UTF-16");
