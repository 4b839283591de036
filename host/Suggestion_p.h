#pragma once

#include <QString>
#include <QStringList>

namespace Tessark::PropertyHost {

/// The text in double quotes for a message, cut when it is long.
QString quoted(const QString &text);

/// " (did you mean "x"?)" for the end of a message.
QString didYouMean(const QString &text);

/// didYouMean() with the candidate that at most two typing slips turn into text, or
/// nothing when there is none.
QString suggestion(const QString &text, const QStringList &candidates);

} // namespace Tessark::PropertyHost
