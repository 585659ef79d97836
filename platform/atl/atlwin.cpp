#include "atlwin.h"

#include <vector>

namespace ATL
{
namespace
{

// The objects that wait for their windows on this thread, the newest last.
thread_local std::vector<void*> t_waiting;

} // namespace

CAtlBaseModule _AtlBaseModule;

void AddCreateWndData(void* object)
{
    t_waiting.push_back(object);
}

void* ExtractCreateWndData()
{
    if (t_waiting.empty())
        return nullptr;
    void* const object = t_waiting.back();
    t_waiting.pop_back();
    return object;
}

INT_PTR RunModalDialog(HWND owner, UINT id, DLGPROC procedure, LPARAM parameter)
{
    // The caller has just registered its object, so there is at least one.
    const size_t waiting = t_waiting.size();
    const HINSTANCE instance = _AtlBaseModule.GetResourceInstance();
    const HRSRC resource = ::FindResourceW(instance, MAKEINTRESOURCEW(id), RT_DIALOG);
    const HGLOBAL memory = resource ? ::LoadResource(instance, resource) : nullptr;
    const auto* const dialog =
        static_cast<const DLGTEMPLATE*>(memory ? ::LockResource(memory) : nullptr);
    CModalScope scope;
    const INT_PTR code =
        dialog ? ::DialogBoxIndirectParamW(instance, dialog, owner, procedure, parameter) : -1;
    // A dialog that was never created has not taken its object.
    if (t_waiting.size() == waiting)
        t_waiting.pop_back();
    scope.Rethrow();
    return code;
}

} // namespace ATL
