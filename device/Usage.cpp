#include "device/Usage.h"

#include "device/UsageData.h"
#include "menu/GlobalMruLock.h"
#include "menu/MemoryFailure.h"
#include "menu/MenuKeys.h"
#include "menu/Rating.h"
#include "platform/os/Text.h"

namespace usage
{
namespace
{

void CountIn(const std::wstring& list, const std::wstring& name)
{
    WithMemoryFailure(
        [&]
        {
            Ratings::CRating rating(list);
            Raise(rating.Entries, name, os::FoldCase);
            rating.Save(false);
        });
}

} // namespace

bool CountLaunch(const std::wstring& name, DWORD patience)
{
    const Ratings::CGlobalMruLock lock(patience);
    if (!lock.IsHeld())
        return false;
    CountIn(kGlobalList, name);
    return true;
}

void CountInMenu(const CMenuItem& menu, const std::wstring& name)
{
    const std::wstring list = menu.GetRating();
    if ((menu.GetRtFlags() & kRtMostUsedFirst) && !list.empty())
        CountIn(list, name);
}

} // namespace usage
