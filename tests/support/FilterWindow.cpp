#include "tests/support/FilterWindow.h"

#include <algorithm>

namespace
{

// Behind the question's first word.
constexpr size_t kPathOffset = 4;

} // namespace

CFilterWindow::CFilterWindow() : CFilterWindow([](const std::wstring&) { return 1; }) {}

CFilterWindow::CFilterWindow(Answer answer)
    : m_process([answer](const ImageProcessRequest& question) { return answer(PathIn(question)); })
{
}

std::wstring CFilterWindow::PathIn(const ImageProcessRequest& question)
{
    return question.TextAt(kPathOffset);
}

std::vector<std::wstring> CFilterWindow::Names() const
{
    std::vector<std::wstring> names;
    for (const ImageProcessRequest& question : Questions())
    {
        const std::wstring path = PathIn(question);
        names.push_back(path.substr(path.rfind(L'\\') + 1));
    }
    std::sort(names.begin(), names.end());
    return names;
}
