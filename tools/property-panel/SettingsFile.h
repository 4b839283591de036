#pragma once

#include <host/Problem.h>

#include <QString>
#include <QVector>

namespace Tessark::PropertyHost {
class PropertyList;
class PropertyStore;
} // namespace Tessark::PropertyHost

namespace Tessark::PropertyPanel {

/// Takes the values of the list from an INI file as PropertyStore::readSettings() does. A file that does
/// not exist yet holds none. One that cannot be read, or is no INI file, is an error.
QVector<PropertyHost::Problem> readSettingsFile(const QString &path,
                                                PropertyHost::PropertyStore &store,
                                                const PropertyHost::PropertyList &list);

/// Puts the values of the list into an INI file, which keeps its other keys, also those that another
/// program has written meanwhile; its comments go. The file is replaced whole or not at all. Gives a
/// sentence that says why it is impossible.
///
/// How the panel is arranged goes there too, under "property-panel/arrangement"; if that key is one of
/// a row's, or holds something else, a number is added to it. One that is empty is not written.
QString writeSettingsFile(const QString &path, const PropertyHost::PropertyStore &store,
                          const PropertyHost::PropertyList &list,
                          const QByteArray &arrangement = QByteArray());

/// How the panel was arranged when the file was written; empty if that is not known.
QByteArray readArrangement(const QString &path, const PropertyHost::PropertyList &list);

/// Writes the arrangement alone, as writeSettingsFile() does, to a file that has another one. Does
/// nothing to a file that has none.
QString replaceArrangement(const QString &path, const PropertyHost::PropertyList &list,
                           const QByteArray &arrangement);

} // namespace Tessark::PropertyPanel
