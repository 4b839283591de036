#pragma once

#include "host/Problem.h"

#include <QByteArray>
#include <QString>
#include <QVector>

#include <optional>

namespace Tessark::PropertyHost {

/// The largest input file that is read, in bytes (16 MiB).
constexpr qint64 kMaximumInputSize = qint64(16) * 1024 * 1024;

/// The content of a file, a pipe or a device, or nothing and one more error in problems: when it is
/// missing or unreadable, is a directory, or is larger than kMaximumInputSize.
TESSARK_PROPERTYHOST_EXPORT std::optional<QByteArray> readInputFile(const QString &path,
                                                                    QVector<Problem> &problems);

} // namespace Tessark::PropertyHost
