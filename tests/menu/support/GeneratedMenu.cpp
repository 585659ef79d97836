#include "tests/menu/support/GeneratedMenu.h"

#include <random>
#include <set>
#include <string>
#include <vector>

#include "frame/VORegistry.h"
#include "menu/MenuKeys.h"

namespace
{

// Opening and closing a key, and the answer that there is no further subkey.
constexpr uint32_t kCallsPerOpenKey = 2;
constexpr uint32_t kEndOfEnumeration = 1;
// A key's name, from the enumeration of its parent.
constexpr uint32_t kName = 1;

// A built-in item: text, position and visibility.
constexpr uint32_t kBuiltInKey = kName + kCallsPerOpenKey + 3 + kEndOfEnumeration;
// Its customisation: position and visibility, present or not.
constexpr uint32_t kCustomisedKey = kName + kCallsPerOpenKey + 2 + kEndOfEnumeration;
// The shared component's key of an item that the product has, too: only its subkeys count.
constexpr uint32_t kSharedTwin = kName + kCallsPerOpenKey + kEndOfEnumeration;

class CGenerator
{
public:
    explicit CGenerator(uint32_t items) : m_left(items)
    {
        // The roots of the three layers; the customisation's exists once something is below it.
        m_menu.MinimalCalls = 3 * kCallsPerOpenKey;
        for (const wchar_t* const root : {kMenuRootPath, kSharedRootPath, kCustomizeRootPath})
            Create(root);
        m_menu.MinimalCalls += 3 * kEndOfEnumeration;
    }

    // Breadth first, so that all menus are well filled.
    GeneratedMenu Nested()
    {
        std::vector<Level> level = {{L"", false}};
        for (int depth = 0; depth < 4; ++depth)
        {
            std::vector<Level> next;
            for (const Level& menu : level)
                for (uint32_t i = 12 + m_random() % 13; i > 0 && m_left > 0; --i)
                    next.push_back(AddItem(menu));
            level = std::move(next);
        }
        return m_menu;
    }

    GeneratedMenu Flat()
    {
        while (m_left > 0)
            AddItem({L"", false});
        return m_menu;
    }

private:
    struct Level
    {
        std::wstring Below;
        // The menu, and so everything below it, is in the shared layer.
        bool IsShared;
    };

    static void Create(const std::wstring& path)
    {
        const CVORegistry key(HKEY_LOCAL_MACHINE, path.c_str(), TRUE, FALSE, 0);
    }

    static void WriteItem(const std::wstring& path, const std::wstring& text, DWORD index)
    {
        CVORegistry key(HKEY_LOCAL_MACHINE, path.c_str(), TRUE, FALSE, 0);
        key.SetString(kTextValue, text.c_str());
        key.SetDWORD(kIndexValue, index);
        key.SetDWORD(kInactiveValue, index % 7 == 0);
    }

    // The keys on the way to `below`, unless counted before: they come to be with it.
    void CountKeysAbove(const std::wstring& below, std::set<std::wstring>& known, uint32_t calls)
    {
        for (size_t end = below.rfind(L'\\'); end != 0; end = below.rfind(L'\\', end - 1))
        {
            if (!known.insert(below.substr(0, end)).second)
                break;
            m_menu.MinimalCalls += calls;
        }
    }

    // A customised value makes the built-in one superfluous.
    void Customise(const std::wstring& below, bool index)
    {
        CVORegistry key(HKEY_LOCAL_MACHINE, (kCustomizeRootPath + below).c_str(), TRUE, FALSE, 0);
        key.SetDWORD(kInactiveValue, 1);
        if (index)
            key.SetDWORD(kIndexValue, 3);
        m_customised.insert(below);
        m_menu.MinimalCalls += kCustomisedKey - (index ? 2u : 1u);
        CountKeysAbove(below, m_customised, kCustomisedKey);
    }

    Level AddItem(const Level& menu)
    {
        --m_left;
        const uint32_t number = m_menu.Items++;
        Level item = {menu.Below + L"\\Key " + std::to_wstring(number),
                      menu.IsShared || number % 10 == 9};
        WriteItem((item.IsShared ? kSharedRootPath : kMenuRootPath) + item.Below,
                  L"Menu item " + std::to_wstring(number), number % 20);
        m_menu.MinimalCalls += kBuiltInKey;
        if (item.IsShared)
        {
            m_shared.insert(item.Below);
            CountKeysAbove(item.Below, m_shared, kSharedTwin);
        }
        if (number % 5 == 0)
            Customise(item.Below, number % 2 == 0);
        return item;
    }

    uint32_t m_left;
    GeneratedMenu m_menu;
    std::set<std::wstring> m_customised;
    std::set<std::wstring> m_shared;
    std::mt19937 m_random{42};
};

} // namespace

GeneratedMenu GenerateMenu(uint32_t items)
{
    return CGenerator(items).Nested();
}

GeneratedMenu GenerateFlatMenu(uint32_t items)
{
    return CGenerator(items).Flat();
}
