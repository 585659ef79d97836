#include "tools/translations/Placeholders.h"

namespace translations
{

std::string Placeholders(std::string_view text)
{
    std::string found;
    for (size_t i = text.find('%'); i != std::string_view::npos; i = text.find('%', i + 2))
        if (text.substr(i, 2) != "%%")
            found += (found.empty() ? "" : " ") + std::string(text.substr(i, 2));
    return found;
}

} // namespace translations
