#include "tools/translations/PoFile.h"

#include "tools/citydb/Errors.h"

#include <cerrno>
#include <csetjmp>
#include <cstring>

namespace translations
{

namespace
{

// What the library reports while it works on one file. It expects not to be returned to after a
// fatal error, and an exception must not pass through it.
struct Report
{
    std::string Errors;
    std::jmp_buf Fatal;
};

Report g_report;

void Append(const char* file, size_t line, const char* text)
{
    std::string& errors = g_report.Errors;
    if (!errors.empty())
        errors += '\n';
    if (file)
        errors += file;
    if (file && line != static_cast<size_t>(-1))
        errors += ":" + std::to_string(line);
    if (file)
        errors += ": ";
    errors += text;
    while (!errors.empty() && errors.back() == '\n')
        errors.pop_back();
}

void OnError(int severity, po_message_t, const char* file, size_t line, size_t, int,
             const char* text)
{
    if (severity != PO_SEVERITY_WARNING)
        Append(file, line, text);
    if (severity == PO_SEVERITY_FATAL_ERROR)
        std::longjmp(g_report.Fatal, 1);
}

// An entry that is there twice: of the first one no place is given.
void OnErrorTwice(int severity, po_message_t message, const char* file, size_t line, size_t column,
                  int isMultiline, const char* text, po_message_t, const char*, size_t, size_t, int,
                  const char*)
{
    OnError(severity, message, file, line, column, isMultiline, text);
}

constexpr po_xerror_handler kHandler = {OnError, OnErrorTwice};

// Apart from everything with a destructor: it may be left by a jump.
po_file_t ReadOrJump(const char* path)
{
    if (setjmp(g_report.Fatal) != 0)
        return nullptr;
    errno = 0;
    return po_file_read(path, &kHandler);
}

bool WriteOrJump(po_file_t file, const char* path)
{
    if (setjmp(g_report.Fatal) != 0)
        return false;
    errno = 0;
    return po_file_write(file, path, &kHandler) != nullptr;
}

[[noreturn]] void Fail(const std::string& path, const char* what)
{
    const std::string& errors = g_report.Errors;
    const std::string reason = errno == 0 ? "" : std::string(": ") + std::strerror(errno);
    throw citydb::CInputError(errors.empty() ? path + ": " + what + reason : errors);
}

} // namespace

UniquePoFile ReadPo(const std::filesystem::path& path)
{
    g_report.Errors.clear();
    const std::string name = path.string();
    if (std::filesystem::is_directory(path))
        throw citydb::CInputError(name + ": is a folder");
    UniquePoFile file(ReadOrJump(name.c_str()));
    if (!file || !g_report.Errors.empty())
        Fail(name, "can't be read");
    return file;
}

void WritePo(const UniquePoFile& file, const std::filesystem::path& path)
{
    g_report.Errors.clear();
    const std::string name = path.string();
    if (!WriteOrJump(file.get(), name.c_str()) || !g_report.Errors.empty())
        Fail(name, "can't be written");
}

std::string HeaderField(const char* header, const char* field)
{
    const UniqueCString value(header ? po_header_field(header, field) : nullptr);
    return value ? value.get() : "";
}

} // namespace translations
