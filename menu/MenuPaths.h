// Arithmetic on item key paths: which layer a path belongs to and where its counterparts are.
#pragma once

#include <string>
#include <string_view>

// True for paths in the customisation layer, where the user's own items live.
bool IsCustomizePath(std::wstring_view keyPath);
// True for paths in the product's layer.
bool IsProductPath(std::wstring_view keyPath);

// The customisation key of the item at `keyPath`; a path that is in neither built-in layer is its
// own.
std::wstring MirrorPath(std::wstring_view keyPath);
// The shared component's counterpart of a path in the product's layer.
std::wstring SharedPath(std::wstring_view keyPath);

// `keyPath`, a backslash and `name`.
std::wstring ChildPath(std::wstring_view keyPath, std::wstring_view name);
// The last component. A path without a backslash, or with none behind it, throws 0x84000001.
std::wstring KeyNameOf(const std::wstring& keyPath);
// The display text of a link: the file name up to its first dot.
std::wstring LinkText(const std::wstring& path);
