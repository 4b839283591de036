#pragma once

#include <QString>
#include <QStringList>

namespace Tessark::PropertyTest {

/// The text in double quotes.
QString quoted(const QString &text);

/// The one of the words that the word was meant to be, by a slip or two; empty without one.
QString nearest(const QString &word, const QStringList &words);

/// What is possible, for the end of a message: the nearest word first, if one is near, then all.
QString possibilities(const QString &word, const QStringList &words);

} // namespace Tessark::PropertyTest
