#include "tools/citydb/Progress.h"

#include <algorithm>

#include <sys/ioctl.h>
#include <unistd.h>

namespace citydb
{

namespace
{

constexpr std::chrono::milliseconds kBetweenDrawings(100);
constexpr size_t kUsualColumns = 80;

size_t ColumnsOf(int file)
{
    winsize size{};
    if (ioctl(file, TIOCGWINSZ, &size) != 0 || size.ws_col == 0)
        return kUsualColumns;
    return size.ws_col;
}

void Put(int file, const std::string& text)
{
    // A bar that can't be drawn is no reason to stop.
    [[maybe_unused]] const ssize_t written = write(file, text.data(), text.size());
}

} // namespace

CProgress::CProgress(int file) : m_file(file), m_isTerminal(isatty(file) == 1) {}

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
        Put(m_file, "\r\x1B[K");
    m_isDrawn = false;
}

void CProgress::Draw(size_t done)
{
    Put(m_file, "\r" + ProgressLine(m_task, done, m_total, ColumnsOf(m_file) - 1) + "\x1B[K");
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
