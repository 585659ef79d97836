// The progress bar of a long command. It is drawn on a terminal only, so that logs stay clean.
#pragma once

#include <chrono>
#include <cstddef>
#include <string>

namespace citydb
{

class CProgress
{
public:
    // `file` is the descriptor to draw on; nothing is drawn when it is no terminal.
    explicit CProgress(int file);
    // Takes away a bar that still stands.
    ~CProgress() { End(); }
    CProgress(const CProgress&) = delete;
    CProgress& operator=(const CProgress&) = delete;

    // A new task of `total` equal pieces.
    void Begin(const std::string& task, size_t total);
    // So many pieces are done. Draws a few times a second at most.
    void Show(size_t done);
    // The task is done: its bar disappears.
    void End();

private:
    void Draw(size_t done);

    int m_file;
    bool m_isTerminal;
    bool m_isDrawn = false;
    std::string m_task;
    size_t m_total = 0;
    std::chrono::steady_clock::time_point m_nextDrawing;
};

// The bar's text: the task's end, a bar and per cent, `columns` wide at most.
std::string ProgressLine(const std::string& task, size_t done, size_t total, size_t columns);

} // namespace citydb
