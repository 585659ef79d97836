#include "ui/DialogInit.h"

#include "frame/Module.h"
#include "platform/Bytes.h"

#include <string>

namespace
{

constexpr WORD kDialogInitType = 240;
constexpr size_t kHeaderSize = 8;

// Resource compilers write the two add messages with their numbers of 16-bit systems.
constexpr uint16_t kAddToListBox16 = 0x0401;
constexpr uint16_t kAddToComboBox16 = 0x0403;

// The add message of this system; 0 for an entry that adds nothing.
UINT AddMessage(uint16_t message)
{
    if (message == kAddToListBox16 || message == LB_ADDSTRING)
        return LB_ADDSTRING;
    if (message == kAddToComboBox16 || message == CB_ADDSTRING)
        return CB_ADDSTRING;
    return 0;
}

std::wstring Widen(const char* text, size_t length)
{
    const int size = static_cast<int>(length);
    std::wstring wide(length, L'\0');
    const int used = MultiByteToWideChar(CP_ACP, 0, text, size, wide.data(), size);
    wide.resize(static_cast<size_t>(used));
    return wide.substr(0, wide.find(L'\0'));
}

bool AddEntry(HWND dialog, const DialogInitEntry& entry)
{
    const UINT message = AddMessage(entry.message);
    if (message == 0)
        return true;
    const std::wstring text = Widen(entry.text, entry.length);
    const LRESULT index = SendDlgItemMessageW(dialog, entry.control, message, 0,
                                              reinterpret_cast<LPARAM>(text.c_str()));
    return index != LB_ERR && index != LB_ERRSPACE;
}

} // namespace

void ForEachDialogInitEntry(const uint8_t* data, size_t size,
                            const std::function<bool(const DialogInitEntry&)>& take)
{
    while (size >= kHeaderSize)
    {
        const uint16_t control = bytes::GetU16LE(data);
        const uint16_t message = bytes::GetU16LE(data + 2);
        const size_t length = bytes::GetU32LE(data + 4);
        data += kHeaderSize;
        size -= kHeaderSize;
        if (control == 0 || length > size)
            return;
        if (!take({control, message, reinterpret_cast<const char*>(data), length}))
            return;
        data += length;
        size -= length;
    }
}

void RunDialogInit(HWND dialog, UINT id)
{
    const HINSTANCE instance = ResourceInstance();
    const HRSRC resource =
        FindResourceW(instance, MAKEINTRESOURCEW(id), MAKEINTRESOURCEW(kDialogInitType));
    const HGLOBAL memory = resource ? LoadResource(instance, resource) : nullptr;
    const auto* const data = static_cast<const uint8_t*>(memory ? LockResource(memory) : nullptr);
    if (!data)
        return;
    ForEachDialogInitEntry(data, SizeofResource(instance, resource),
                           [dialog](const DialogInitEntry& entry)
                           { return AddEntry(dialog, entry); });
}
