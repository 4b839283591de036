#pragma once

#include <QRectF>
#include <QStringList>
#include <QVector>

class QCheckBox;
class QLabel;

namespace Tessark::PropertyHost {

/// Whether the label takes its text as it stands, neither as rich text nor as Markdown.
bool showsPlainText(const QLabel &label);

/// Where a label shows the words of searchWords(), in its pixels: in plain or rich text, over lines
/// and in either direction.
QVector<QRectF> placesInLabel(const QLabel &label, const QStringList &words);

/// The same for the text of a check box.
QVector<QRectF> placesInCheckBox(const QCheckBox &box, const QStringList &words);

} // namespace Tessark::PropertyHost
