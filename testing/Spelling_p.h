#pragma once

#include <QString>
#include <QStringList>

namespace Tessark::PropertyTest {

/// The text in double quotes.
QString quoted(const QString &text);

/// What is possible, for the end of a message: the nearest word first, if one is near, then all.
QString possibilities(const QString &word, const QStringList &words);

} // namespace Tessark::PropertyTest
