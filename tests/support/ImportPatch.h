// Replaces a function that a module imports, so that a test can make a system call fail or count
// it.
#pragma once

#include "platform/Win.h"

// Puts `replacement` in the place of the function that `module` imports from `dll` under the name
// `function`; brings the original back at the end of the scope. Fails the running test when the
// module has no such import. Only calls of that one module are affected.
class CImportPatch
{
public:
    CImportPatch(HMODULE module, const char* dll, const char* function, void* replacement);
    template <class Result, class... Arguments>
    CImportPatch(HMODULE module, const char* dll, const char* function,
                 Result(WINAPI* replacement)(Arguments...))
        : CImportPatch(module, dll, function, reinterpret_cast<void*>(replacement))
    {
    }
    // The same for the test program itself: `slot` is the address of its import __imp_Function.
    template <class Function>
    CImportPatch(void** slot, Function* replacement)
        : CImportPatch(slot, reinterpret_cast<void*>(replacement))
    {
    }
    CImportPatch(void** slot, void* replacement);
    ~CImportPatch();
    CImportPatch(const CImportPatch&) = delete;
    CImportPatch& operator=(const CImportPatch&) = delete;

private:
    void** m_slot;
    void* m_original = nullptr;
};

// The place in `module`'s import table that holds the address of a function; null when the module
// does not import it. Names of DLLs are compared without regard to case.
void** FindImport(HMODULE module, const char* dll, const char* function);
