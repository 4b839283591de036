#pragma once

#include "host/Problem.h"

#include <QByteArray>
#include <QJsonDocument>
#include <QVector>

#include <optional>

namespace Tessark::PropertyHost {

/// Parses a JSON document in UTF-8, with or without byte order mark. When it is empty, is not valid
/// UTF-8 or has a syntax error, gives nothing and one more error, with line and column.
std::optional<QJsonDocument> parseJson(const QByteArray &json, QVector<Problem> &problems);

} // namespace Tessark::PropertyHost
