#pragma once

#include <QString>
#include <QVector>

class QAbstractSpinBox;
class QWidget;

namespace Tessark::PropertyHost {

// A QSpinBox and a QDoubleSpinBox alike: a number field is either of them.

/// The number fields in a widget, in the order in which they were added; none without widget.
QVector<QAbstractSpinBox *> numberFieldsIn(const QWidget *widget);

double numberOf(const QAbstractSpinBox &field);
double minimumOf(const QAbstractSpinBox &field);
double maximumOf(const QAbstractSpinBox &field);

/// What its arrows add; the smallest step that shows where they add nothing.
double stepOf(const QAbstractSpinBox &field);

/// As if the user had entered it: brought into the range, rounded to what the field can hold, and
/// announced by the field if that is new.
void setNumber(QAbstractSpinBox &field, double number);

/// The text that the field would show after setNumber().
QString textOf(const QAbstractSpinBox &field, double number);

QString prefixOf(const QAbstractSpinBox &field);
QString suffixOf(const QAbstractSpinBox &field);

/// What the user typed, without prefix and suffix.
QString typedText(const QAbstractSpinBox &field, const QString &text);

} // namespace Tessark::PropertyHost
