#include "device/PaintingRecorder.h"

#include <atomic>
#include <mutex>

namespace painting
{
namespace
{

std::atomic<bool> recording{false};
std::mutex mutex;
std::vector<DrawnText> drawn;

} // namespace

CTextRecorder::CTextRecorder()
{
    Take();
    recording = true;
}

CTextRecorder::~CTextRecorder()
{
    recording = false;
    Take();
}

std::vector<DrawnText> CTextRecorder::Take()
{
    const std::lock_guard<std::mutex> lock(mutex);
    std::vector<DrawnText> taken;
    taken.swap(drawn);
    return taken;
}

void Record(HDC dc, const std::wstring& text, const RECT& area)
{
    if (!recording || text.empty())
        return;
    DrawnText line = {text, area, {}, {}};
    RECT needed = {};
    DrawTextW(dc, text.c_str(), static_cast<int>(text.size()), &needed,
              DT_SINGLELINE | DT_NOPREFIX | DT_CALCRECT);
    line.Needed = {needed.right, needed.bottom};
    GetClipBox(dc, &line.Surface);
    const std::lock_guard<std::mutex> lock(mutex);
    drawn.push_back(line);
}

} // namespace painting
