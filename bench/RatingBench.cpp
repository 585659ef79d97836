// Measures pinning and unpinning an entry of the global list beside the least work that it can be
// and beside a plain way: registry calls exactly, time in turn in one run. Under Wine pin the
// program and the wineserver to one processor (taskset).
#include <cstdio>
#include <string>
#include <vector>

#include "bench/Goals.h"
#include "bench/Timing.h"
#include "frame/VORegistry.h"
#include "menu/GlobalMruLock.h"
#include "menu/MenuKeys.h"
#include "menu/Rating.h"
#include "platform/os/Registry.h"
#include "tests/support/RegistrySandbox.h"

namespace
{

const std::wstring kListPath = std::wstring(kRatingsRootPath) + L"\\GlobalMRUList";
constexpr const wchar_t* kPinned = L"\\Programs\\Program 5.lnk";

void StoreList(uint16_t entries)
{
    Ratings::CRating list(L"GlobalMRUList");
    for (uint16_t i = 0; i < entries; ++i)
        list.Entries.push_back({L"l:\\Programs\\Program " + std::to_wstring(i) + L".lnk",
                                Ratings::kNoNumber, static_cast<uint16_t>(entries - i)});
    list.Save(false);
}

// Pins and unpins in turn, so that there is always something to change.
void Product()
{
    static bool pin = false;
    pin = !pin;
    Ratings::SetGlobalPinned(pin, kPinned, Ratings::TargetKind::Link, INFINITE);
}

// The calls that can't be left out: the key, the list, each name, the counter, the list again.
void Minimal()
{
    const Ratings::CGlobalMruLock lock(INFINITE);
    HKEY key = nullptr;
    DWORD disposition = 0;
    os::CreateKey(HKEY_LOCAL_MACHINE, kListPath.c_str(), 0, &key, &disposition);
    std::vector<uint8_t> index(65536);
    DWORD size = 65536;
    os::QueryValue(key, L"Index", nullptr, index.data(), &size);
    for (DWORD at = 0; at < size; at += 4)
    {
        wchar_t name[512];
        DWORD bytes = sizeof(name);
        const int number = index[at] | index[at + 1] << 8;
        os::QueryValue(key, std::to_wstring(number).c_str(), nullptr, name, &bytes);
    }
    DWORD timestamp = 0;
    DWORD timestampSize = sizeof(timestamp);
    os::QueryValue(key, L"Timestamp", nullptr, &timestamp, &timestampSize);
    ++timestamp;
    os::SetValue(key, L"Timestamp", REG_DWORD, &timestamp, sizeof(timestamp));
    os::SetValue(key, L"Index", REG_BINARY, index.data(), size);
    os::CloseKey(key);
}

// Reading and writing apart, the root opened for itself, each size asked for first.
void Plain()
{
    const Ratings::CGlobalMruLock lock(INFINITE);
    std::vector<uint8_t> index;
    DWORD size = 0;
    {
        CVORegistry key(HKEY_LOCAL_MACHINE, kListPath.c_str(), FALSE, FALSE, 0);
        key.GetBinary(L"Index", nullptr, &size);
        index.resize(size);
        key.GetBinary(L"Index", index.data(), &size);
        for (DWORD at = 0; at < size; at += 4)
        {
            const std::wstring name = std::to_wstring(index[at] | index[at + 1] << 8);
            DWORD bytes = 0;
            key.GetBinary(name.c_str(), nullptr, &bytes);
            key.GetString(name.c_str(), nullptr);
        }
    }
    CVORegistry root(HKEY_LOCAL_MACHINE, kRatingsRootPath, TRUE, TRUE, 0);
    CVORegistry key(root.Key, L"GlobalMRUList", TRUE, TRUE, 0);
    DWORD timestamp = 0;
    key.GetDWORD(L"Timestamp", timestamp);
    key.SetDWORD(L"Timestamp", timestamp + 1);
    key.SetBinary(L"Index", index.data(), size);
}

void Measure(uint16_t entries, CGoals& goals)
{
    CRegistrySandbox sandbox;
    StoreList(entries);
    std::printf("pin or unpin in a list of %u entries\n", entries);
    const auto nothing = [] {};
    std::vector<Contestant> all = {{"product", nothing, Product, {}},
                                   {"minimal", nothing, Minimal, {}},
                                   {"plain", nothing, Plain, {}}};
    RunInTurn(all, entries > 1000 ? 50 : 1000);
    for (const Contestant& one : all)
    {
        const unsigned before = os::CountedRegistryCalls().Total();
        one.work();
        const unsigned calls = os::CountedRegistryCalls().Total() - before;
        std::printf("  %-46s %8.3f ms  %6u calls\n", one.name.c_str(), one.Best() * 1000, calls);
        if (&one == &all[0])
            goals.Check("calls - entries", static_cast<double>(calls) - entries, 8);
    }
    goals.Check("time / minimal", all[0].Best() / all[1].Best(), 1.1);
}

} // namespace

int main()
{
    CGoals goals;
    Measure(20, goals);
    Measure(200, goals);
    Measure(2000, goals);
    return goals.Finish();
}
