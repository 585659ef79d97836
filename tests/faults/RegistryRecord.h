// Puts writes to the registry into words, so that two runs can be compared.
#pragma once

#include "tests/faults/FaultTable.h"

#include <string>

// The call of a registry function with these arguments that has just succeeded; empty when it
// changed nothing: a key that was there is opened, not created.
std::wstring DescribeWrite(WriteKind kind, const UINT_PTR* arguments);
