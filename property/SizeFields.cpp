#include "property/SizeFields_p.h"

#include "property/EditorHelpers_p.h"
#include "property/PropertyEditor.h"

#include <limits>

namespace Tessark::PropertyUI {

namespace {

constexpr int kSmallestSide = 1;
constexpr int kLargestSide = 4096;

QSpinBox *makeSpinBox(PropertyEditor *editor)
{
    auto *const spinBox = new QSpinBox;
    spinBox->setRange(kSmallestSide, kLargestSide);
    spinBox->installEventFilter(editor);
    return spinBox;
}

/// value * multiplier / divisor in 32 bits: the product wraps, the quotient is truncated toward
/// zero. Where the division is undefined the result is fallback.
int scaledSide(int value, int multiplier, int divisor, int fallback)
{
    const auto product =
        static_cast<int>(static_cast<unsigned>(value) * static_cast<unsigned>(multiplier));
    const bool overflows = product == std::numeric_limits<int>::min() && divisor == -1;
    return divisor == 0 || overflows ? fallback : product / divisor;
}

} // namespace

SizeFields::SizeFields(PropertyEditor *editor, const QString &constrainText)
    : m_labels{new QLabel(PropertyEditor::tr("w:")), new QLabel(PropertyEditor::tr("h:"))}
    , m_spinBoxes{makeSpinBox(editor), makeSpinBox(editor)}
    , m_aspectRatio(toSaturatedSize(editor->hint(kPropertyHintAspectRatio)))
{
    if (m_aspectRatio.width() != 0) {
        m_constrainCheck = new QCheckBox(constrainText);
        m_constrainCheck->setChecked(true);
    }
}

QString SizeFields::nameOf(const QWidget *control) const
{
    if (control == m_spinBoxes[Width])
        return PropertyEditor::tr("Width");
    return control == m_spinBoxes[Height] ? PropertyEditor::tr("Height") : QString();
}

void SizeFields::show(const QSize &size)
{
    showQuietly(m_spinBoxes[Width], size.width());
    showQuietly(m_spinBoxes[Height], size.height());
}

QSize SizeFields::size() const
{
    if (!m_spinBoxes[Width] || !m_spinBoxes[Height])
        return {};
    return {m_spinBoxes[Width]->value(), m_spinBoxes[Height]->value()};
}

void SizeFields::keepAspect(const QObject *changed, int value)
{
    if (!m_constrainCheck || !m_constrainCheck->isChecked())
        return;
    const int width = m_aspectRatio.width();
    const int height = m_aspectRatio.height();
    QSpinBox *const other = m_spinBoxes[changed == m_spinBoxes[Width] ? Height : Width];
    if (!other)
        return;
    const int side = other == m_spinBoxes[Height]
                         ? scaledSide(value, height, width, other->value())
                         : scaledSide(value, width, height, other->value());
    showQuietly(other, side);
}

void SizeFields::setEnabled(bool enabled)
{
    const QPointer<QWidget> controls[] = {m_constrainCheck.data(), m_spinBoxes[Width].data(),
                                          m_spinBoxes[Height].data()};
    for (const QPointer<QWidget> &control : controls) {
        if (control)
            control->setEnabled(enabled);
    }
}

} // namespace Tessark::PropertyUI
