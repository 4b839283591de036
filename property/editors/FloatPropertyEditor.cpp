#include "property/editors/FloatPropertyEditor.h"

#include "core/LogSlider.h"
#include "property/DoubleSpinBox.h"
#include "property/EditorHelpers_p.h"
#include "property/ThousandthsSlider_p.h"

#include <QSlider>

#include <algorithm>
#include <cmath>

namespace Tessark::PropertyUI {

namespace {

constexpr int kDefaultDecimals = 4;
constexpr int kLogarithmicPositions = 1000;
constexpr double kSmallestLogarithmic = 0.00001;  // in displayed units
constexpr double kLogarithmicReplacement = 0.001; // in stored units

/// Whether a display scale is 0 or no number, so that what is displayed tells nothing about what is
/// stored.
bool isLost(double displayScale)
{
    return displayScale == 0.0 || std::isnan(displayScale);
}

/// A step of at least smallest, and for wide ranges that many slider units per displayed unit.
int linearStep(int smallest, double span)
{
    return std::max(smallest, sliderPosition(smallest * span));
}

/// Not bounded below, unlike the linear step.
int logarithmicStep(int perDecade, int minimumExponent, int maximumExponent)
{
    return sliderPosition(double(perDecade) * (double(maximumExponent) - minimumExponent));
}

} // namespace

PropertyEditor *FloatPropertyEditor::Factory(Property *property)
{
    return new FloatPropertyEditor(property);
}

FloatPropertyEditor::FloatPropertyEditor(Property *property)
    : PropertyEditor(property)
{
}

FloatPropertyEditor::~FloatPropertyEditor() = default;

void FloatPropertyEditor::setValue(const QVariant &value)
{
    if (m_updatingFromSpinBox)
        return;
    const double stored = value.toDouble();
    setSliderQuietly(stored);
    showUnlessTyping(m_spinBox, finite(stored * m_displayScale));
}

QVariant FloatPropertyEditor::value() const
{
    return m_spinBox ? toStored(m_spinBox->value()) : sliderValue();
}

QWidget *FloatPropertyEditor::widget(PropertyEditorContext *)
{
    if (buildsNow()) {
        QWidget *const row = makeRow();
        const QVariant scale = m_property->hint(kPropertyHintDisplayScale);
        if (!scale.isNull())
            m_displayScale = scale.toDouble();
        m_slider = hintOr(*m_property, kPropertyHintLogarithmicSlider, false)
                       ? makeLogarithmicSlider()
                       : makeLinearSlider();
        watchSlider(m_slider, this);
        connect(m_slider, &QAbstractSlider::valueChanged, this,
                &FloatPropertyEditor::sliderChanged);
        m_spinBox = makeSpinBox();
        fillRow(row, {m_slider, m_spinBox});
        m_widget = row;
    }
    return m_widget;
}

double FloatPropertyEditor::sliderValue() const
{
    if (const auto *slider = qobject_cast<const UI::LogSlider *>(m_slider))
        return toStored(slider->realValue());
    if (!m_slider || isLost(m_displayScale))
        return 0.0;
    return m_slider->value() / (m_displayScale * kSliderUnitsPerUnit);
}

void FloatPropertyEditor::setSliderValue(double value)
{
    if (auto *slider = qobject_cast<UI::LogSlider *>(m_slider))
        slider->setRealValue(value * m_displayScale);
    else if (m_slider)
        m_slider->setValue(sliderPosition(value * m_displayScale * kSliderUnitsPerUnit));
}

void FloatPropertyEditor::setSliderQuietly(double value)
{
    const QSignalBlocker blocker(m_slider);
    setSliderValue(value);
}

QAbstractSlider *FloatPropertyEditor::makeLinearSlider() const
{
    const double minimum = m_property->minValue.toDouble();
    const double maximum = m_property->maxValue.toDouble();
    const double unitsPerStored = m_displayScale * kSliderUnitsPerUnit;
    const double span = (maximum - minimum) * m_displayScale;
    auto *const slider = new ThousandthsSlider;
    slider->setRange(sliderPosition(unitsPerStored * minimum),
                     sliderPosition(unitsPerStored * maximum));
    slider->setSingleStep(linearStep(2, span));
    slider->setPageStep(linearStep(20, span));
    return slider;
}

QAbstractSlider *FloatPropertyEditor::makeLogarithmicSlider()
{
    double low = m_property->minValue.toDouble() * m_displayScale;
    const double high = m_property->maxValue.toDouble() * m_displayScale;
    if (low < kSmallestLogarithmic) // a logarithmic scale reaches neither zero nor below
        low = m_displayScale * kLogarithmicReplacement;
    // Truncated, not rounded outwards, on purpose: the ends may lie inside the property's range.
    const int minimumExponent = sliderPosition(std::log10(low));
    const int maximumExponent = sliderPosition(std::log10(high));
    auto *const slider = new UI::LogSlider(Qt::Horizontal);
    // A host's slot of this signal runs before the editor's own are called.
    connect(slider, &UI::LogSlider::realValueChanged, this, [this] { keepControls(); });
    slider->setRealRange(minimumExponent, maximumExponent, kLogarithmicPositions);
    slider->setSingleStep(logarithmicStep(2, minimumExponent, maximumExponent));
    slider->setPageStep(logarithmicStep(20, minimumExponent, maximumExponent));
    return slider;
}

DoubleSpinBox *FloatPropertyEditor::makeSpinBox()
{
    auto *const spinBox = new DoubleSpinBox;
    // The decimals come first, since range and step are rounded to them.
    const QVariant decimals = m_property->hint(kPropertyHintFloatDecimals);
    spinBox->setDecimals(decimals.isValid() ? toSaturatedInt(decimals) : kDefaultDecimals);
    spinBox->setRange(finite(m_property->minValue.toDouble() * m_displayScale),
                      finite(m_property->hardMaxValue.toDouble() * m_displayScale));
    spinBox->setSingleStep((spinBox->maximum() - spinBox->minimum()) / 100.0);
    spinBox->setSuffix(hintOr(*m_property, kPropertyHintSuffix, QString()));
    setCompactSize(spinBox);
    spinBox->installEventFilter(this);
    connect(spinBox, qOverload<double>(&DoubleSpinBox::valueChanged), this,
            &FloatPropertyEditor::spinBoxChanged);
    return spinBox;
}

double FloatPropertyEditor::toStored(double displayed) const
{
    return isLost(m_displayScale) ? 0.0 : displayed / m_displayScale;
}

void FloatPropertyEditor::sliderChanged(int)
{
    showQuietly(m_spinBox, finite(m_displayScale * sliderValue()));
    Q_EMIT valueChanged();
}

void FloatPropertyEditor::spinBoxChanged(double value)
{
    whileFlagged(this, m_updatingFromSpinBox, [this, value] {
        setSliderQuietly(toStored(value));
        Q_EMIT valueChanged();
    });
}

} // namespace Tessark::PropertyUI
