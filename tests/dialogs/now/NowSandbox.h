// Registrations of Now screen plug-ins, in a registry of the test's own.
#pragma once

#include "tests/support/RegistrySandbox.h"

#include <string>

// Where they are; written by hand, so that a wrong path in the code is noticed.
constexpr const wchar_t* kNowKey = L"SOFTWARE\\Orvane\\Shared\\Tav Menu\\Now";

// Kinds, as "Kind" stores them.
constexpr DWORD kCalendar = 0;
constexpr DWORD kEmail = 1;
constexpr DWORD kWeather = 2;
constexpr DWORD kProfile = 3;

// Stands for HKEY_LOCAL_MACHINE. Names of plug-ins are those of their keys.
class CNowSandbox : public CRegistrySandbox
{
public:
    // A registration with a text and a kind.
    void Add(const std::wstring& plugin, const std::wstring& text, DWORD kind);
    // The same with "Inactive" stored.
    void Add(const std::wstring& plugin, const std::wstring& text, DWORD kind, DWORD inactive);
    // Plug-ins named "P00000" and so on, with texts that begin with the given one.
    void AddMany(int count, const std::wstring& text);

    // One value of a registration.
    void Set(const std::wstring& plugin, const wchar_t* name, DWORD value);
    void Set(const std::wstring& plugin, const wchar_t* name, const std::wstring& text);
    void SetBytes(const std::wstring& plugin, const wchar_t* name, DWORD type,
                  const std::string& data);

    // A registration that is a link to a key, `target` below HKEY_LOCAL_MACHINE.
    void AddLink(const std::wstring& plugin, const std::wstring& target);

    bool Exists(const std::wstring& plugin) const;
    bool HasInactive(const std::wstring& plugin) const;
    DWORD Inactive(const std::wstring& plugin) const;
    // Everything below the Now key.
    std::wstring DumpNow() const { return Dump(kNowKey); }
};
