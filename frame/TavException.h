// The module's one exception type and the codes that it carries. Nothing in the module catches it:
// it leaves the export that was called.
#pragma once

#include "platform/HResult.h"

// Thrown by value. Carries one HRESULT-style code.
class CTavException
{
public:
    explicit CTavException(HRESULT code) : m_code(code) {}
    HRESULT Code() const { return m_code; }

private:
    HRESULT m_code;
};

// A bound or precondition is broken: a dead window, a null item, a position out of range.
constexpr HRESULT kTavBroken = static_cast<HRESULT>(0x84000001);
constexpr HRESULT kTavOutOfMemory = static_cast<HRESULT>(0x8007000E);
constexpr HRESULT kTavInvalidArgument = static_cast<HRESULT>(0x80070057);

// Makes the code of a failed system call: the error itself when it is 0 or negative, else the
// error's low word marked as a Win32 error. Takes a GetLastError value.
constexpr HRESULT HResultOfError(DWORD error)
{
    const auto signedError = static_cast<HRESULT>(error);
    return signedError <= 0 ? signedError : static_cast<HRESULT>((error & 0xFFFFu) | 0x80070000u);
}

// Throws 0x84000001.
[[noreturn]] void ThrowBroken();
// Throws 0x8007000E.
[[noreturn]] void ThrowOutOfMemory();
// Throws 0x80070057.
[[noreturn]] void ThrowInvalidArgument();
#ifdef _WIN32
// Throws the code of GetLastError(); call it directly behind the call that failed.
[[noreturn]] void ThrowLastError();
#endif
