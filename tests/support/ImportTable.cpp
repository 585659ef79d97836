#include "tests/support/ImportTable.h"

namespace
{

// A loaded module seen through its headers.
class CImage
{
public:
    explicit CImage(HMODULE module) : m_base(reinterpret_cast<char*>(module)) {}

    // What lies at an offset from the module's start.
    template <class T>
    T* At(DWORD offset) const
    {
        return reinterpret_cast<T*>(m_base + offset);
    }

    // The directory of the given number; null when the module has none.
    template <class T>
    T* Directory(unsigned index) const
    {
        const auto* dos = At<IMAGE_DOS_HEADER>(0);
        const auto* headers = At<IMAGE_NT_HEADERS>(static_cast<DWORD>(dos->e_lfanew));
        const DWORD offset = headers->OptionalHeader.DataDirectory[index].VirtualAddress;
        return offset ? At<T>(offset) : nullptr;
    }

private:
    char* m_base;
};

void AddImportsOfDll(const CImage& image, const IMAGE_IMPORT_DESCRIPTOR& descriptor,
                     std::vector<ImportedFunction>& functions)
{
    const auto* names = image.At<IMAGE_THUNK_DATA>(descriptor.OriginalFirstThunk);
    auto* slots = image.At<IMAGE_THUNK_DATA>(descriptor.FirstThunk);
    for (; names->u1.AddressOfData; ++names, ++slots)
    {
        if (IMAGE_SNAP_BY_ORDINAL(names->u1.Ordinal))
            continue;
        const auto* entry =
            image.At<IMAGE_IMPORT_BY_NAME>(static_cast<DWORD>(names->u1.AddressOfData));
        functions.push_back({image.At<char>(descriptor.Name), entry->Name,
                             reinterpret_cast<void**>(&slots->u1.Function)});
    }
}

} // namespace

std::vector<ImportedFunction> ImportsOf(HMODULE module)
{
    const CImage image(module);
    std::vector<ImportedFunction> functions;
    const auto* descriptor = image.Directory<IMAGE_IMPORT_DESCRIPTOR>(IMAGE_DIRECTORY_ENTRY_IMPORT);
    for (; descriptor && descriptor->Name; ++descriptor)
        AddImportsOfDll(image, *descriptor, functions);
    return functions;
}

std::vector<std::string> ExportsOf(HMODULE module)
{
    const CImage image(module);
    std::vector<std::string> names;
    const auto* table = image.Directory<IMAGE_EXPORT_DIRECTORY>(IMAGE_DIRECTORY_ENTRY_EXPORT);
    for (DWORD i = 0; table && i < table->NumberOfNames; ++i)
        names.emplace_back(image.At<char>(image.At<DWORD>(table->AddressOfNames)[i]));
    return names;
}
