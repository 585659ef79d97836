// The rules of the file tree: which files it lists and how paths are joined. Values only; the tree
// itself is FileTreeCtrl.h.
#pragma once

#include "platform/Char16.h"

namespace filetree
{

// Gives the lower-case form of a code unit.
using FoldFunction = Char16 (*)(Char16);

// The path of `name` in a folder; the name alone when the folder is empty.
String16 JoinPath(StringView16 folder, StringView16 name);

// What comes before and behind a path's last backslash. False, with nothing set, without any.
bool SplitPath(StringView16 path, StringView16& folder, StringView16& name);

// True for what can be launched: programs, shortcuts, files without any dot, and libraries unless
// they are hidden or belong to the system.
bool IsListedFile(StringView16 name, bool isHidden, FoldFunction fold);

} // namespace filetree
