#include "tools/citydb/Progress.h"

#include "tools/citydb/Terminal.h"

#include <algorithm>

namespace citydb
{

namespace
{

constexpr std::chrono::milliseconds kBetweenDrawings(100);

} // namespace

CProgress::CProgress(int file) : m_file(file), m_isTerminal(IsTerminal(file)) {}

void CProgress::Begin(const std::string& task, size_t total)
{
    m_task = task;
    m_total = total;
    m_nextDrawing = std::chrono::steady_clock::now();
    Show(0);
}

void CProgress::Show(size_t done)
{
    if (!m_isTerminal)
        return;
    const auto now = std::chrono::steady_clock::now();
    if (now < m_nextDrawing)
        return;
    m_nextDrawing = now + kBetweenDrawings;
    Draw(done);
}

void CProgress::End()
{
    if (m_isDrawn)
        WriteTerminal(m_file, "\r\x1B[K");
    m_isDrawn = false;
}

void CProgress::Draw(size_t done)
{
    WriteTerminal(m_file, "\r" + ProgressLine(m_task, done, m_total, TerminalColumns(m_file) - 1) +
                              "\x1B[K");
    m_isDrawn = true;
}

std::string ProgressLine(const std::string& task, size_t done, size_t total, size_t columns)
{
    constexpr size_t kBar = 24;
    const size_t part = total == 0 ? 0 : std::min(done, total);
    const size_t filled = total == 0 ? 0 : part * kBar / total;
    const size_t percent = total == 0 ? 0 : part * 100 / total;
    const std::string number = std::to_string(percent);
    const std::string bar = " [" + std::string(filled, '#') + std::string(kBar - filled, '.') +
                            "] " + std::string(3 - number.size(), ' ') + number + " %";
    if (columns <= bar.size())
        return number.size() + 2 <= columns ? number + " %" : std::string();
    const size_t room = columns - bar.size();
    return (task.size() > room ? task.substr(task.size() - room) : task) + bar;
}

} // namespace citydb
