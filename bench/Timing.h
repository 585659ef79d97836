// Timing that survives a busy machine: contestants in turn, the best of many rounds.
#pragma once

#include <algorithm>
#include <chrono>
#include <functional>
#include <string>
#include <vector>

// One thing to measure: `prepare` is not timed, `work` is.
struct Contestant
{
    std::string name;
    std::function<void()> prepare;
    std::function<void()> work;
    std::vector<double> seconds;

    // The least disturbed round.
    double Best() const { return *std::min_element(seconds.begin(), seconds.end()); }
};

// Runs every contestant once per round, one after the other, so that all meet the same conditions.
inline void RunInTurn(std::vector<Contestant>& contestants, int rounds)
{
    using Clock = std::chrono::steady_clock;
    for (int round = -1; round < rounds; ++round)
        for (Contestant& contestant : contestants)
        {
            contestant.prepare();
            const auto begin = Clock::now();
            contestant.work();
            const std::chrono::duration<double> spent = Clock::now() - begin;
            // The first round only warms up.
            if (round >= 0)
                contestant.seconds.push_back(spent.count());
        }
}

// Keeps the compiler from leaving out a computation whose result nobody looks at.
template <class Value>
void Keep(const Value& value)
{
    asm volatile("" : : "r,m"(value) : "memory");
}
