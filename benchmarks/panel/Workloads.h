#pragma once

#include <QStringList>

#include <map>

/// Cost by name of workload: processor time in seconds of one operation, bytes for "memory".
using Costs = std::map<QString, double>;

/// The workloads in the order of reports.
QStringList workloads();

/// Measures one subject, "bare" or "panel", in this process.
Costs measure(const QString &subject, int rows);

/// Runs one workload some times in this process and measures nothing: to be counted or profiled from
/// outside. False for a name that is none of workloads().
bool repeat(const QString &subject, int rows, const QString &workload, int times);
