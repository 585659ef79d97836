// The folder that the shell is installed in, where its data files lie.
#pragma once

#include <string>

// The folder's path, lower-cased and with a backslash behind it, so that a file's name can follow
// directly; empty when no folder is registered. Read on the first use and then kept until the
// process ends.
const std::wstring& InstallFolder();
