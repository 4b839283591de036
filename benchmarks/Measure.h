#pragma once

#include <QCoreApplication>
#include <QEvent>

#include <algorithm>
#include <ctime>
#include <functional>
#include <vector>

// What the benchmarks share. Times are processor time of this process in seconds.

inline double processorSeconds()
{
    timespec now{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return double(now.tv_sec) + double(now.tv_nsec) * 1e-9;
}

inline double secondsOf(const std::function<void()> &work)
{
    const double begin = processorSeconds();
    work();
    return processorSeconds() - begin;
}

inline double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

/// Runs until all posted events, layout and painting included, are done.
inline void settle()
{
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}
