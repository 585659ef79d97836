// A page of ready-made stubs stands in front of a page with their data: stub i loads its object
// and jumps to its procedure, both read from slot i of the data page. The code never changes after
// it was made executable.
#include "atlthunk.h"

#include <array>
#include <bitset>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace ATL
{
namespace
{

constexpr size_t kPageSize = 4096;

struct Slot
{
    void* self;
    void* procedure;
};

// Both pages are cut alike, so that stub and data are always one page apart.
constexpr size_t kStubSize = 16;
constexpr size_t kSlots = kPageSize / kStubSize;
static_assert(sizeof(Slot) <= kStubSize);

uint8_t* Put32(uint8_t* code, uint32_t value)
{
    memcpy(code, &value, sizeof(value));
    return code + sizeof(value);
}

#if defined(__x86_64__)

// mov rcx, [rip + to self]; jmp [rip + to procedure]
void WriteStub(uint8_t* code, const Slot* slot)
{
    const auto* data = reinterpret_cast<const uint8_t*>(slot);
    const uint8_t load[] = {0x48, 0x8B, 0x0D};
    memcpy(code, load, sizeof(load));
    code += sizeof(load);
    code = Put32(code, static_cast<uint32_t>(data + offsetof(Slot, self) - (code + 4)));
    *code++ = 0xFF;
    *code++ = 0x25;
    Put32(code, static_cast<uint32_t>(data + offsetof(Slot, procedure) - (code + 4)));
}

#elif defined(__i386__)

// mov eax, [self]; mov [esp + 4], eax; jmp [procedure]
void WriteStub(uint8_t* code, const Slot* slot)
{
    *code++ = 0xA1;
    code = Put32(code, reinterpret_cast<uint32_t>(&slot->self));
    const uint8_t store[] = {0x89, 0x44, 0x24, 0x04};
    memcpy(code, store, sizeof(store));
    code += sizeof(store);
    *code++ = 0xFF;
    *code++ = 0x25;
    Put32(code, reinterpret_cast<uint32_t>(&slot->procedure));
}

#else
#error "no window procedure thunk for this processor"
#endif

// Two neighbouring pages: stubs, then their slots.
class CThunkPage
{
public:
    CThunkPage() = default;
    ~CThunkPage()
    {
        if (m_code)
            VirtualFree(m_code, 0, MEM_RELEASE);
    }
    CThunkPage(const CThunkPage&) = delete;
    CThunkPage& operator=(const CThunkPage&) = delete;

    bool Create()
    {
        m_code = static_cast<uint8_t*>(
            VirtualAlloc(nullptr, 2 * kPageSize, MEM_RESERVE | MEM_COMMIT, PAGE_READWRITE));
        if (!m_code)
            return false;
        for (size_t i = 0; i < kSlots; ++i)
            WriteStub(m_code + i * kStubSize, SlotAt(i));
        DWORD oldProtection = 0;
        if (!VirtualProtect(m_code, kPageSize, PAGE_EXECUTE_READ, &oldProtection))
        {
            VirtualFree(m_code, 0, MEM_RELEASE);
            m_code = nullptr;
            return false;
        }
        FlushInstructionCache(GetCurrentProcess(), m_code, kPageSize);
        return true;
    }

    bool IsCreated() const { return m_code != nullptr; }
    bool Owns(const void* code) const
    {
        return m_code && code >= m_code && code < m_code + kPageSize;
    }
    uint8_t* CodeAt(size_t index) const { return m_code + index * kStubSize; }
    Slot* SlotAt(size_t index) const
    {
        return reinterpret_cast<Slot*>(m_code + kPageSize + index * kStubSize);
    }
    Slot* SlotOf(const void* code) const { return SlotAt(IndexOf(code)); }

    // Takes a stub that is not in use; null when the page is full.
    uint8_t* Take()
    {
        for (size_t i = 0; i < kSlots; ++i)
            if (!m_used[i])
            {
                m_used[i] = true;
                return CodeAt(i);
            }
        return nullptr;
    }
    void GiveBack(const void* code) { m_used[IndexOf(code)] = false; }

private:
    size_t IndexOf(const void* code) const
    {
        return static_cast<size_t>(static_cast<const uint8_t*>(code) - m_code) / kStubSize;
    }

    uint8_t* m_code = nullptr;
    std::bitset<kSlots> m_used;
};

class CLock
{
public:
    explicit CLock(SRWLOCK& lock) : m_lock(lock) { AcquireSRWLockExclusive(&m_lock); }
    ~CLock() { ReleaseSRWLockExclusive(&m_lock); }
    CLock(const CLock&) = delete;
    CLock& operator=(const CLock&) = delete;

private:
    SRWLOCK& m_lock;
};

class CPageAllocator : public CThunkAllocator
{
public:
    void* Allocate(void* procedure, void* self) override
    {
        const CLock lock(m_lock);
        for (CThunkPage& page : m_pages)
        {
            if (!page.IsCreated() && !page.Create())
                return nullptr;
            if (uint8_t* const code = page.Take())
            {
                *page.SlotOf(code) = Slot{self, procedure};
                return code;
            }
        }
        return nullptr;
    }

    void Redirect(void* code, void* procedure, void* self) override
    {
        const CLock lock(m_lock);
        *PageOf(code).SlotOf(code) = Slot{self, procedure};
    }

    void Free(void* code) override
    {
        const CLock lock(m_lock);
        PageOf(code).GiveBack(code);
    }

private:
    CThunkPage& PageOf(const void* code)
    {
        size_t page = 0;
        while (!m_pages[page].Owns(code))
            ++page;
        return m_pages[page];
    }

    SRWLOCK m_lock = SRWLOCK_INIT;
    // More windows than a process can have.
    std::array<CThunkPage, 256> m_pages;
};

CPageAllocator g_pageAllocator;
CThunkAllocator* g_replacement = nullptr;

} // namespace

CThunkAllocator& ThunkAllocator()
{
    return g_replacement ? *g_replacement : g_pageAllocator;
}

CThunkAllocator* SetThunkAllocator(CThunkAllocator* allocator)
{
    CThunkAllocator* const old = g_replacement;
    g_replacement = allocator;
    return old;
}

CWndProcThunk::~CWndProcThunk()
{
    if (m_code)
        ThunkAllocator().Free(m_code);
}

BOOL CWndProcThunk::Init(WNDPROC procedure, void* self)
{
    void* const address = reinterpret_cast<void*>(procedure);
    if (m_code)
        ThunkAllocator().Redirect(m_code, address, self);
    else
        m_code = ThunkAllocator().Allocate(address, self);
    return m_code != nullptr;
}

} // namespace ATL
