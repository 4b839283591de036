#pragma once

#include <QJsonObject>
#include <QString>

namespace Tessark::PropertyHost {

class ProblemCollector;

/**
 * The document of a property list without what only a trusted list may have; tells what it refuses.
 *
 * Refused are style sheets, pictures outside of folder and in formats that can refer to other files,
 * and what is too large or too much to be shown. It also warns of texts that look like markup.
 */
QJsonObject withoutRefusedParts(const QJsonObject &document, const QString &folder,
                                ProblemCollector &problems);

} // namespace Tessark::PropertyHost
