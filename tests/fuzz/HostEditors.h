#pragma once

#include <QStringList>

namespace Fuzz {

/// The type strings that a list may have: the vocabulary's, those of the host's own factories, and one
/// that nobody knows.
const QStringList &allTypes();

/// The types whose editor is the library's own, as long as no factory of the host replaced it.
const QStringList &libraryTypes();

/// Puts every factory back to what it was before the host's factories registered others.
void resetRegistry();

} // namespace Fuzz
