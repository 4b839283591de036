#pragma once

#include <QStringList>

#include <map>

/// The workloads in the order of reports.
QStringList workloads();

/// What measuring one subject in this process gave.
struct Measurement
{
    std::map<QString, double> costs; // by workload: seconds of processor time of one operation,
                                     // bytes a row for "memory"
    int operations = 0;              // how many were timed, of all workloads together
};

/// Measures the given workloads of a subject, "bare" or "panel". Workloads that the subject has
/// nothing like are left out of the costs.
Measurement measure(const QString &subject, int rows, const QStringList &wanted);
