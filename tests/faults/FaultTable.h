// The functions that the sweeps let fail, each with the answer by which it reports a failure.
#pragma once

#include "platform/Win.h"

#include <cstddef>

enum class FaultKind
{
    Memory,
    Registry,
    System,
};

// What the recorder of registry writes has to do with a call that succeeded.
enum class WriteKind
{
    None,
    CreateKey,
    SetValue,
    DeleteKey,
    DeleteValue,
};

// A function that the module may import.
struct FaultFunction
{
    FaultKind kind;
    const char* dll;
    const char* name;
    // What it returns when it fails, and the last error that it leaves.
    UINT_PTR failure = 0;
    DWORD error = ERROR_NOT_ENOUGH_MEMORY;
    WriteKind write = WriteKind::None;
};

// An answer of all ones: an invalid handle, size or position.
constexpr UINT_PTR kAllOnes = ~UINT_PTR{0};

// Left out: what can't fail with the arguments that it gets or fails unnoticed (closing, releasing,
// painting, moving of windows, messages to the dialog's own controls, which always arrive), the
// locks and threads of the compiler's runtime, and BeginPaint, without which a window asks to be
// painted for ever on any system.
constexpr FaultFunction kFaultFunctions[] = {
    {FaultKind::Memory, "msvcrt.dll", "malloc"},
    {FaultKind::Memory, "msvcrt.dll", "calloc"},
    {FaultKind::Memory, "msvcrt.dll", "realloc"},
    {FaultKind::Memory, "msvcrt.dll", "_strdup"},
    {FaultKind::Memory, "kernel32.dll", "HeapAlloc"},
    {FaultKind::Memory, "kernel32.dll", "LocalAlloc"},
    {FaultKind::Memory, "kernel32.dll", "LocalReAlloc"},
    {FaultKind::Memory, "kernel32.dll", "VirtualAlloc"},

    {FaultKind::Registry, "advapi32.dll", "RegCreateKeyExW", ERROR_ACCESS_DENIED, 0,
     WriteKind::CreateKey},
    {FaultKind::Registry, "advapi32.dll", "RegDeleteKeyW", ERROR_ACCESS_DENIED, 0,
     WriteKind::DeleteKey},
    {FaultKind::Registry, "advapi32.dll", "RegDeleteValueW", ERROR_ACCESS_DENIED, 0,
     WriteKind::DeleteValue},
    {FaultKind::Registry, "advapi32.dll", "RegEnumKeyExW", ERROR_ACCESS_DENIED, 0},
    {FaultKind::Registry, "advapi32.dll", "RegEnumValueW", ERROR_ACCESS_DENIED, 0},
    {FaultKind::Registry, "advapi32.dll", "RegFlushKey", ERROR_DISK_FULL, 0},
    {FaultKind::Registry, "advapi32.dll", "RegOpenKeyExW", ERROR_ACCESS_DENIED, 0},
    {FaultKind::Registry, "advapi32.dll", "RegQueryValueExW", ERROR_ACCESS_DENIED, 0},
    {FaultKind::Registry, "advapi32.dll", "RegSetValueExW", ERROR_DISK_FULL, 0,
     WriteKind::SetValue},

    {FaultKind::System, "aygshell.dll", "SHCreateMenuBar"},
    {FaultKind::System, "aygshell.dll", "SHFindMenuBar"},
    {FaultKind::System, "aygshell.dll", "SHInitDialog"},
    {FaultKind::System, "aygshell.dll", "SHInitExtraControls"},
    {FaultKind::System, "aygshell.dll", "SHSipInfo"},
    {FaultKind::System, "comctl32.dll", "ImageList_Add", kAllOnes},
    {FaultKind::System, "comctl32.dll", "ImageList_Create"},
    {FaultKind::System, "gdi32.dll", "CreateCompatibleBitmap"},
    {FaultKind::System, "gdi32.dll", "CreateCompatibleDC"},
    {FaultKind::System, "gdi32.dll", "CreateDIBSection"},
    {FaultKind::System, "gdi32.dll", "CreateFontIndirectW"},
    {FaultKind::System, "gdi32.dll", "CreateSolidBrush"},
    {FaultKind::System, "gdi32.dll", "GetDeviceCaps"},
    {FaultKind::System, "gdi32.dll", "GetObjectW"},
    {FaultKind::System, "gdi32.dll", "GetStockObject"},
    {FaultKind::System, "gdi32.dll", "SaveDC"},
    {FaultKind::System, "gdi32.dll", "SelectObject"},
    {FaultKind::System, "kernel32.dll", "CreateFileW", kAllOnes, ERROR_ACCESS_DENIED},
    {FaultKind::System, "kernel32.dll", "CreateMutexW", 0, ERROR_INVALID_HANDLE},
    {FaultKind::System, "kernel32.dll", "FindFirstFileW", kAllOnes, ERROR_ACCESS_DENIED},
    {FaultKind::System, "kernel32.dll", "FindNextFileW", 0, ERROR_ACCESS_DENIED},
    {FaultKind::System, "kernel32.dll", "FindResourceW", 0, ERROR_RESOURCE_NAME_NOT_FOUND},
    {FaultKind::System, "kernel32.dll", "GetFileAttributesW", kAllOnes, ERROR_ACCESS_DENIED},
    {FaultKind::System, "kernel32.dll", "GetFileSize", kAllOnes, ERROR_ACCESS_DENIED},
    {FaultKind::System, "kernel32.dll", "GetFileType", 0, ERROR_INVALID_HANDLE},
    {FaultKind::System, "kernel32.dll", "GetFullPathNameW"},
    {FaultKind::System, "kernel32.dll", "GetModuleFileNameW"},
    {FaultKind::System, "kernel32.dll", "GetSystemDirectoryW"},
    {FaultKind::System, "kernel32.dll", "GetWindowsDirectoryW"},
    {FaultKind::System, "kernel32.dll", "LoadResource"},
    {FaultKind::System, "kernel32.dll", "LockResource"},
    {FaultKind::System, "kernel32.dll", "MultiByteToWideChar"},
    {FaultKind::System, "kernel32.dll", "ReadFile", 0, ERROR_CRC},
    {FaultKind::System, "kernel32.dll", "SearchPathW", 0, ERROR_FILE_NOT_FOUND},
    {FaultKind::System, "kernel32.dll", "SetFilePointer", kAllOnes, ERROR_INVALID_FUNCTION},
    {FaultKind::System, "kernel32.dll", "SizeofResource"},
    {FaultKind::System, "kernel32.dll", "WaitForSingleObject", WAIT_FAILED, ERROR_ACCESS_DENIED},
    {FaultKind::System, "kernel32.dll", "WideCharToMultiByte"},
    {FaultKind::System, "msvcrt.dll", "fgetpos", 1},
    {FaultKind::System, "msvcrt.dll", "fopen"},
    {FaultKind::System, "msvcrt.dll", "fread"},
    {FaultKind::System, "msvcrt.dll", "fseek", kAllOnes},
    {FaultKind::System, "msvcrt.dll", "fsetpos", 1},
    {FaultKind::System, "msvcrt.dll", "ftell", kAllOnes},
    {FaultKind::System, "shell32.dll", "SHGetFileInfoW"},
    {FaultKind::System, "shell32.dll", "SHGetSpecialFolderPathW", 0, ERROR_PATH_NOT_FOUND},
    {FaultKind::System, "user32.dll", "CreateDialogIndirectParamW"},
    {FaultKind::System, "user32.dll", "DialogBoxIndirectParamW", kAllOnes},
    {FaultKind::System, "user32.dll", "DrawTextW"},
    {FaultKind::System, "user32.dll", "FindWindowW"},
    {FaultKind::System, "user32.dll", "GetClassNameW"},
    {FaultKind::System, "user32.dll", "GetClientRect"},
    {FaultKind::System, "user32.dll", "GetDC"},
    {FaultKind::System, "user32.dll", "GetDlgItem"},
    {FaultKind::System, "user32.dll", "GetForegroundWindow"},
    {FaultKind::System, "user32.dll", "GetMenuItemInfoW"},
    {FaultKind::System, "user32.dll", "GetSubMenu"},
    {FaultKind::System, "user32.dll", "GetWindowRect"},
    {FaultKind::System, "user32.dll", "GetWindowTextW"},
    {FaultKind::System, "user32.dll", "LoadCursorW"},
    {FaultKind::System, "user32.dll", "LoadMenuW", 0, ERROR_RESOURCE_NAME_NOT_FOUND},
    {FaultKind::System, "user32.dll", "LoadStringW", 0, ERROR_RESOURCE_NAME_NOT_FOUND},
    {FaultKind::System, "user32.dll", "MessageBoxW"},
    {FaultKind::System, "user32.dll", "PostMessageW"},
    {FaultKind::System, "user32.dll", "RegisterWindowMessageW"},
    {FaultKind::System, "user32.dll", "SendMessageTimeoutW", 0, ERROR_TIMEOUT},
    {FaultKind::System, "user32.dll", "SetWindowTextW"},
    {FaultKind::System, "user32.dll", "TrackPopupMenu"},
};
constexpr size_t kFaultFunctionCount = sizeof(kFaultFunctions) / sizeof(kFaultFunctions[0]);
