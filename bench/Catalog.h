// The peer of the translator: a gettext catalogue of the same texts, made with msgfmt and asked
// through dgettext.
#pragma once

#include "bench/TranslatorSample.h"

#include <string>
#include <vector>

class CCatalog
{
public:
    // Builds and binds the catalogue; Works() tells whether msgfmt and a locale were there.
    explicit CCatalog(const TranslatorSample& sample);
    ~CCatalog();
    CCatalog(const CCatalog&) = delete;
    CCatalog& operator=(const CCatalog&) = delete;

    bool Works() const { return m_works; }
    const std::vector<std::string>& Keys() const { return m_keys; }
    const char* Translate(const std::string& text) const;

private:
    bool Build() const;

    std::string m_folder;
    std::string m_domain;
    std::vector<std::string> m_keys;
    std::vector<std::string> m_values;
    bool m_works = false;
};
