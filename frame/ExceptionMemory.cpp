// Defines the functions by which compiled code asks for the memory of an exception, in the place of
// the runtime's. All memory is malloc's, block by block: an exception that leaves the module is
// freed by the host's runtime.
#include "frame/ExceptionMemory.h"

#include <atltls.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <cstdlib>
#include <cstring>
#include <cxxabi.h>
#include <exception>

namespace
{

// More than any exception of the module takes with what the runtime puts in front of it.
constexpr size_t kBlockSize = 512;
constexpr size_t kAlignment = 16;

// Blocks for when there are no others. Those that are done with come back.
class CReserve
{
public:
    CReserve() = default;
    ~CReserve()
    {
        for (std::atomic<void*>& block : m_blocks)
            std::free(block.exchange(nullptr));
    }
    CReserve(const CReserve&) = delete;
    CReserve& operator=(const CReserve&) = delete;

    bool Fill()
    {
        for (std::atomic<void*>& block : m_blocks)
            if (!block && !Put(std::malloc(kBlockSize)))
                return false;
        return true;
    }

    // Null when nothing is left.
    void* Take()
    {
        for (std::atomic<void*>& place : m_blocks)
            if (void* const block = place.exchange(nullptr))
                return block;
        return nullptr;
    }

    // Takes a block of kBlockSize or more bytes over. False for null.
    bool Put(void* block)
    {
        for (std::atomic<void*>& place : m_blocks)
        {
            void* none = nullptr;
            if (block && place.compare_exchange_strong(none, block))
                return true;
        }
        std::free(block);
        return block != nullptr;
    }

private:
    // A failure that leaves through two dialogs, and some to spare.
    std::array<std::atomic<void*>, 16> m_blocks = {};
};

CReserve g_reserve;
ATL::CThreadPointer<ThreadExceptions> g_threads;
// For what happens outside the exports: while the module is loaded, one thread at a time.
ThreadExceptions g_loading;

// Zero-filled; ends the process when even the reserve has run out, as the language demands.
void* AllocateBlock(size_t size)
{
    void* block = std::malloc(std::max(size, kBlockSize));
    if (!block && size <= kBlockSize)
        block = g_reserve.Take();
    if (!block)
        std::terminate();
    return std::memset(block, 0, size);
}

// How far the runtime's own record of an exception reaches in front of it.
size_t HeaderSize()
{
    alignas(kAlignment) char room[2 * kBlockSize];
    char* const object = room + kBlockSize;
    const void* const header = abi::__cxa_init_primary_exception(object, nullptr, nullptr);
    return static_cast<size_t>(object - static_cast<const char*>(header));
}

} // namespace

CExceptionMemory::CExceptionMemory() : m_outer(g_threads.Get()), m_isReady(g_reserve.Fill())
{
    g_threads.Set(&m_thread);
}

CExceptionMemory::~CExceptionMemory()
{
    g_threads.Set(m_outer);
}

namespace __cxxabiv1
{

extern "C"
{
    __cxa_eh_globals* __cxa_get_globals() noexcept
    {
        ThreadExceptions* const thread = g_threads.Get();
        return reinterpret_cast<__cxa_eh_globals*>(thread ? thread : &g_loading);
    }

    __cxa_eh_globals* __cxa_get_globals_fast() noexcept
    {
        return __cxa_get_globals();
    }

    void* __cxa_allocate_exception(size_t size) noexcept
    {
        const size_t header = HeaderSize();
        return static_cast<char*>(AllocateBlock(header + size)) + header;
    }

    void __cxa_free_exception(void* exception) noexcept
    {
        g_reserve.Put(static_cast<char*>(exception) - HeaderSize());
    }

    __cxa_dependent_exception* __cxa_allocate_dependent_exception() noexcept
    {
        return static_cast<__cxa_dependent_exception*>(AllocateBlock(kBlockSize));
    }

    void __cxa_free_dependent_exception(__cxa_dependent_exception* exception) noexcept
    {
        g_reserve.Put(exception);
    }
} // extern "C"

} // namespace __cxxabiv1
