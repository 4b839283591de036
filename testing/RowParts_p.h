#pragma once

#include <QPointer>
#include <QString>
#include <QStringList>
#include <QVariant>

class QAbstractButton;
class QAbstractSpinBox;
class QSlider;
class QWidget;

namespace Tessark::PropertyTest {

struct PanelRow;

/// A number of a row: a field, a slider or both.
struct NumberPart
{
    QString name; // empty where the row has one number
    QPointer<QAbstractSpinBox> field;
    QPointer<QSlider> slider;
    double unitsPerNumber = 1; // of the slider, which counts in whole units

    /// The slider's position for a number of the value, unrounded.
    double positionOf(double number) const;

    /// The number of the value that a position of the slider stands for.
    double numberAt(int position) const;

    /// Whether the row shows number where the slider stands at position.
    bool isShownAs(int position, double number) const;
};

/// What the row has for the user, under the names that come after the dot; an empty name where there
/// is but one thing.
class RowParts
{
public:
    explicit RowParts(const PanelRow &row);

    /// What can be written behind the row's name and a dot.
    QStringList names() const;

    /// The number called name, an empty name for a row that is one number; or null.
    const NumberPart *number(const QString &name) const;

    /// A field to write into, or null.
    QWidget *textField(const QString &name) const;

    /// A button or a box to check, or null.
    QAbstractButton *button(const QString &name) const;

    /// What shows the part or, for an empty name, the row: its first control.
    QWidget *control(const QString &name) const;

    /// What the user reads there.
    QString text(const QString &name) const;

    /// The row's value or, with a name, that part of it; invalid when there is none.
    QVariant value(const QString &name) const;

private:
    QWidget *named(const QString &name) const;

    const PanelRow &m_row;
    QVector<NumberPart> m_numbers;
};

} // namespace Tessark::PropertyTest
