#include "property/editors/PercentPropertyEditor.h"

#include "property/EditorHelpers_p.h"
#include "property/ThousandthsSlider_p.h"

#include <QDoubleSpinBox>
#include <QSlider>

#include <algorithm>

namespace Tessark::PropertyUI {

namespace {

constexpr float kPerCent = 100.0F;
constexpr float kSliderUnits = 100000.0F; // slider positions per stored unit
constexpr double kSliderUnitsPerPercent = 1000.0;
constexpr int kDecimals = 2;

/// A step of at least smallest, and for wide ranges that many slider units per per cent of it.
int sliderStep(int smallest, float percentSpan)
{
    return std::max(smallest, sliderPosition(double(float(smallest) * percentSpan)));
}

} // namespace

PropertyEditor *PercentPropertyEditor::Factory(Property *property)
{
    return new PercentPropertyEditor(property);
}

PercentPropertyEditor::PercentPropertyEditor(Property *property)
    : PropertyEditor(property)
{
}

PercentPropertyEditor::~PercentPropertyEditor() = default;

void PercentPropertyEditor::setValue(const QVariant &value)
{
    if (m_updatingFromSpinBox)
        return;
    const float fraction = value.toFloat();
    setQuietly(m_slider, &QSlider::setValue, sliderPosition(double(fraction * kSliderUnits)));
    showQuietly(m_spinBox, finite(double(fraction * kPerCent)));
}

QVariant PercentPropertyEditor::value() const
{
    if (m_spinBox)
        return m_spinBox->value() / 100.0;
    return 0.0F; // a float: only the entry field gives doubles
}

QWidget *PercentPropertyEditor::widget(PropertyEditorContext *)
{
    if (buildsNow()) {
        QWidget *const row = makeRow();
        makeSlider();
        makeSpinBox();
        fillRow(row, {m_slider, m_spinBox});
        m_widget = row;
    }
    return m_widget;
}

void PercentPropertyEditor::makeSlider()
{
    const float minimum = m_property->minValue.toFloat();
    const float maximum = m_property->maxValue.toFloat();
    const float percentSpan = (maximum - minimum) * kPerCent;
    m_slider = new ThousandthsSlider; // of a per cent
    m_slider->setRange(sliderPosition(double(minimum * kSliderUnits)),
                       sliderPosition(double(maximum * kSliderUnits)));
    m_slider->setSingleStep(sliderStep(2, percentSpan));
    m_slider->setPageStep(sliderStep(20, percentSpan));
    watchSlider(m_slider, this);
    connect(m_slider, &QSlider::valueChanged, this, &PercentPropertyEditor::sliderChanged);
}

void PercentPropertyEditor::makeSpinBox()
{
    m_spinBox = new QDoubleSpinBox;
    m_spinBox->setDecimals(kDecimals); // first, so that range and step are not rounded to others
    m_spinBox->setRange(finite(double(m_property->minValue.toFloat() * kPerCent)),
                        finite(double(m_property->hardMaxValue.toFloat() * kPerCent)));
    m_spinBox->setSingleStep((m_spinBox->maximum() - m_spinBox->minimum()) / 100.0);
    m_spinBox->setSuffix(QStringLiteral(" %"));
    setCompactSize(m_spinBox);
    m_spinBox->installEventFilter(this);
    connect(m_spinBox, qOverload<double>(&QDoubleSpinBox::valueChanged), this,
            &PercentPropertyEditor::spinBoxChanged);
}

void PercentPropertyEditor::sliderChanged(int value)
{
    showQuietly(m_spinBox, value / kSliderUnitsPerPercent);
    Q_EMIT valueChanged();
}

void PercentPropertyEditor::spinBoxChanged(double value)
{
    whileFlagged(this, m_updatingFromSpinBox, [this, value] {
        setQuietly(m_slider, &QSlider::setValue, sliderPosition(value * kSliderUnitsPerPercent));
        Q_EMIT valueChanged();
    });
}

} // namespace Tessark::PropertyUI
