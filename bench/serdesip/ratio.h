#pragma once

#include <algorithm>
#include <cstdio>
#include <limits>

#include <time.h>

namespace Bench {

/// The processor time of this thread, seconds: other programs' turns do not count.
inline double processorSeconds()
{
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return double(now.tv_sec) + double(now.tv_nsec) * 1e-9;
}

/// The processor time of one run of `work`, seconds.
template <typename Work>
double seconds(const Work& work)
{
    const double start = processorSeconds();
    work();
    return processorSeconds() - start;
}

/// Compares two pieces of work that take turns, each by its best round: what else the machine does
/// meets both alike, and the best round meets the least of it.
class Ratio {
public:
    void round(double measured, double baseline)
    {
        m_measured = std::min(m_measured, measured);
        m_baseline = std::min(m_baseline, baseline);
    }

    /// Prints the ratio beside its goal; 0 when the goal is met, as an exit status.
    int print(const char* what, double goal) const
    {
        const double ratio = m_measured / m_baseline;
        std::printf("%s: %.2f (goal: at most %.2f)\n", what, ratio, goal);
        return ratio <= goal ? 0 : 1;
    }

private:
    double m_measured = std::numeric_limits<double>::max();
    double m_baseline = std::numeric_limits<double>::max();
};

} // namespace Bench
