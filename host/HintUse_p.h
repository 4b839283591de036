#pragma once

#include <QString>
#include <QStringList>

namespace Tessark::PropertyHost {

/// All hints that a list may have: those of the vocabulary and those that hosts read.
const QStringList &knownHints();

/// False when the hint is one that the library's editors read, but not the one of this type.
bool isHintRead(const QString &type, const QString &hint);

} // namespace Tessark::PropertyHost
