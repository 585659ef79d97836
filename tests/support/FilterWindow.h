// The launcher-menu process as the filter of the Start Menu: says which entries are shown, and
// records what it was asked.
#pragma once

#include "tests/support/ImageProcess.h"

#include <functional>
#include <string>
#include <vector>

// Lives from construction to destruction; one at a time, and not beside another CImageProcess.
class CFilterWindow
{
public:
    using Answer = std::function<LRESULT(const std::wstring& path)>;

    // Shows everything.
    CFilterWindow();
    // `answer` is called on the window's thread.
    explicit CFilterWindow(Answer answer);

    // For the questions to come.
    void Behave(ImageProcessManner manner) { m_process.Behave(manner); }

    // What was asked, in order.
    std::vector<ImageProcessRequest> Questions() const { return m_process.Requests(); }
    void ForgetQuestions() { m_process.ForgetRequests(); }
    // The last components of the paths that were asked about, sorted.
    std::vector<std::wstring> Names() const;

    // The path in a question.
    static std::wstring PathIn(const ImageProcessRequest& question);

private:
    CImageProcess m_process;
};
