#include "bench/Catalog.h"

#include <libintl.h>
#include <unistd.h>

#include <clocale>
#include <cstdlib>
#include <fstream>

namespace
{

std::string Narrow(const String16& text)
{
    return std::string(text.begin(), text.end());
}

std::vector<std::string> Narrow(const std::vector<String16>& texts)
{
    std::vector<std::string> narrow;
    for (const String16& text : texts)
        narrow.push_back(Narrow(text));
    return narrow;
}

bool Run(const std::string& command)
{
    return std::system(command.c_str()) == 0;
}

} // namespace

CCatalog::CCatalog(const TranslatorSample& sample)
    : m_domain("bench" + std::to_string(sample.keys.size())), m_keys(Narrow(sample.keys)),
      m_values(Narrow(sample.values))
{
    char folder[] = "/tmp/translator-bench-XXXXXX";
    if (!mkdtemp(folder))
        return;
    m_folder = folder;
    // Any locale but "C" makes gettext look; the language is a made-up one.
    if (!Build() || !setlocale(LC_ALL, "C.UTF-8"))
        return;
    setenv("LANGUAGE", "xx", 1);
    bindtextdomain(m_domain.c_str(), m_folder.c_str());
    m_works = Translate(m_keys.front()) != m_keys.front();
}

CCatalog::~CCatalog()
{
    if (!m_folder.empty())
        Run("rm -r " + m_folder);
}

bool CCatalog::Build() const
{
    const std::string messages = m_folder + "/xx/LC_MESSAGES";
    const std::string source = m_folder + "/source.po";
    {
        std::ofstream file(source);
        file << "msgid \"\"\nmsgstr \"Content-Type: text/plain; charset=UTF-8\\n\"\n";
        for (size_t i = 0; i < m_keys.size(); ++i)
            file << "msgid \"" << m_keys[i] << "\"\nmsgstr \"" << m_values[i] << "\"\n";
    }
    return Run("mkdir -p " + messages) &&
           Run("msgfmt -o " + messages + "/" + m_domain + ".mo " + source);
}

const char* CCatalog::Translate(const std::string& text) const
{
    return dgettext(m_domain.c_str(), text.c_str());
}
