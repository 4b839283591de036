#pragma once

#include <QCheckBox>
#include <QLabel>
#include <QPointer>
#include <QSize>
#include <QSpinBox>
#include <QString>

#include <array>

class QObject;

namespace Tessark::PropertyUI {

class PropertyEditor;

/// The controls that the editors of sizes share: entry fields of width and height with a label
/// each and, unless the "aspect_ratio" hint has a width of 0, a check box that keeps their ratio.
/// They have no parent at first and belong to the widget they are placed in; null once they are gone.
class SizeFields final
{
public:
    enum Side { Width, Height };

    /// Lets editor filter the events of the fields, which hold 1 to 4096. constrainText is the text
    /// of the check box. Only a ratio that is exactly 0 wide leaves it out: without hint the ratio
    /// is (-1, -1), which keeps the two numbers equal, and that is on purpose.
    SizeFields(PropertyEditor *editor, const QString &constrainText);

    QLabel *label(Side side) const { return m_labels[side]; }
    QSpinBox *spinBox(Side side) const { return m_spinBoxes[side]; }
    QCheckBox *constrainCheck() const { return m_constrainCheck; } // null when left out

    /// "Width" or "Height"; empty for anything else.
    QString nameOf(const QWidget *control) const;

    void show(const QSize &size); // silently
    QSize size() const;           // invalid once the fields are gone

    /// Sets the other number, silently, after changed took value; with the check box only. Any
    /// object but the width's field counts as the height's.
    void keepAspect(const QObject *changed, int value);

    /// Enables or disables fields and check box. Taking the focus from a field ends its interactive
    /// run, in which the host may delete editor and fields.
    void setEnabled(bool enabled);

private:
    std::array<QPointer<QLabel>, 2> m_labels;
    std::array<QPointer<QSpinBox>, 2> m_spinBoxes;
    QSize m_aspectRatio;
    QPointer<QCheckBox> m_constrainCheck;
};

} // namespace Tessark::PropertyUI
