// Says of each ratio whether its goal is met, and remembers how many were not.
#pragma once

#include <cstdio>

class CGoals
{
public:
    void Check(const char* what, double ratio, double limit)
    {
        const bool missed = ratio > limit;
        m_missed += missed;
        std::printf("  %-46s %6.2f  (goal <= %.2f)%s\n", what, ratio, limit,
                    missed ? "  MISSED" : "");
    }
    // Prints the sum and returns the program's exit code.
    int Finish() const
    {
        std::printf(m_missed ? "%d goals missed\n" : "all goals met\n", m_missed);
        return m_missed != 0;
    }

private:
    int m_missed = 0;
};
