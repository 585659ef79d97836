#include "atlmodal.h"

#include "atlexcept.h"
#include "atltls.h"

#include <new>
#include <utility>

namespace ATL
{
namespace
{

CThreadPointer<CModalScope> g_innermost;

} // namespace

CModalScope::CModalScope() : m_outer(g_innermost.Get())
{
    g_innermost.Set(this);
}

CModalScope::~CModalScope()
{
    g_innermost.Set(m_outer);
}

void CModalScope::BindWindow(HWND window)
{
    CModalScope* const scope = g_innermost.Get();
    if (scope && !scope->m_window)
        scope->m_window = window;
}

bool CModalScope::HasFailed(HWND window)
{
    for (const CModalScope* scope = g_innermost.Get(); scope; scope = scope->m_outer)
        if (scope->m_window == window)
            return scope->m_failure != nullptr;
    return false;
}

void CModalScope::KeepCurrentException()
{
    CModalScope* const scope = g_innermost.Get();
    if (!scope)
        throw;
    // The first failure is the cause; what fails while the dialog goes away is not.
    if (scope->m_failure)
        return;
    scope->m_failure = std::current_exception();
    // A pop-up menu that is open runs a loop of its own, which has to end as well.
    EndMenu();
    EndDialog(scope->m_window, -1);
}

void CModalScope::Rethrow()
{
    if (!m_failure)
        return;
    try
    {
        std::rethrow_exception(std::exchange(m_failure, nullptr));
    }
    catch (const std::bad_alloc&)
    {
        AtlThrow(E_OUTOFMEMORY);
    }
}

} // namespace ATL
