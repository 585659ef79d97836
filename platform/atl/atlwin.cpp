#include "atlwin.h"

#include "atltls.h"

namespace ATL
{
namespace
{

// The newest of the objects that wait on this thread.
CThreadPointer<_AtlCreateWndData> g_waiting;

// The template resource; null when there is none.
const DLGTEMPLATE* FindTemplate(HINSTANCE instance, UINT id)
{
    const HRSRC resource = ::FindResourceW(instance, MAKEINTRESOURCEW(id), RT_DIALOG);
    const HGLOBAL memory = resource ? ::LoadResource(instance, resource) : nullptr;
    return static_cast<const DLGTEMPLATE*>(memory ? ::LockResource(memory) : nullptr);
}

} // namespace

CAtlBaseModule _AtlBaseModule;

void AddCreateWndData(_AtlCreateWndData& data, void* object)
{
    data.m_pThis = object;
    data.m_pNext = g_waiting.Get();
    g_waiting.Set(&data);
}

void* ExtractCreateWndData()
{
    const _AtlCreateWndData* const data = g_waiting.Get();
    if (!data)
        return nullptr;
    g_waiting.Set(data->m_pNext);
    return data->m_pThis;
}

INT_PTR RunModalDialog(HWND owner, UINT id, DLGPROC procedure, LPARAM parameter,
                       const _AtlCreateWndData& data)
{
    const HINSTANCE instance = _AtlBaseModule.GetResourceInstance();
    const DLGTEMPLATE* const dialog = FindTemplate(instance, id);
    CModalScope scope;
    const INT_PTR code =
        dialog ? ::DialogBoxIndirectParamW(instance, dialog, owner, procedure, parameter) : -1;
    // A dialog that was never created has not taken its object.
    if (g_waiting.Get() == &data)
        ExtractCreateWndData();
    scope.Rethrow();
    return code;
}

} // namespace ATL
