#include "platform/os/FileKind.h"

namespace os
{

bool IsDiskFile(HANDLE file)
{
    return GetFileType(file) == FILE_TYPE_DISK;
}

} // namespace os
