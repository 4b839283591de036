#include "property/editors/VecPropertyEditor.h"

#include "core/DisclosureButton.h"
#include "property/DoubleSpinBox.h"
#include "property/EditorHelpers_p.h"
#include "property/ThousandthsSlider_p.h"
#include "property/VectorConversions_p.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QSlider>

#include <algorithm>

namespace Tessark::PropertyUI {

namespace {

constexpr int kDecimals = 4;

/// In single precision, as the components are.
int positionOf(float value)
{
    return sliderPosition(double(value * float(kSliderUnitsPerUnit)));
}

/// Places controls in columns of a grid when there are sliders, else from left to right.
class ComponentPlacer
{
public:
    ComponentPlacer(QWidget *container, bool inGrid)
    {
        if (inGrid)
            m_grid = new QGridLayout(container);
        else
            m_row = new QHBoxLayout(container);
        container->layout()->setContentsMargins(0, 0, 0, 0);
    }

    void place(QWidget *control, int row, int column)
    {
        if (m_grid)
            m_grid->addWidget(control, row, column);
        else
            m_row->addWidget(control);
    }

private:
    QGridLayout *m_grid = nullptr;
    QHBoxLayout *m_row = nullptr;
};

} // namespace

struct VecPropertyEditor::ComponentRange
{
    float minimum;
    float maximum;
    float hardMaximum;
};

VecPropertyEditor::VecPropertyEditor(Property *property, int count)
    : PropertyEditor(property)
    , m_count(std::clamp(count, 2, kMaximumCount))
{
}

VecPropertyEditor::~VecPropertyEditor() = default;

QWidget *VecPropertyEditor::widget(PropertyEditorContext *)
{
    if (buildsNow()) {
        const bool showSliders = hintOr(*m_property, kPropertyHintShowSliders, false);
        const bool showCheck = hintOr(*m_property, kPropertyHintShowMultipleCheck, false);
        m_widget = makeContainer(showSliders, showCheck);
        setMultiple(!showCheck);
    }
    return m_widget;
}

QString VecPropertyEditor::controlName(const QWidget *control) const
{
    const std::array<QString, kMaximumCount> names = {tr("X"), tr("Y"), tr("Z"), tr("W")};
    for (std::size_t i = isMultiple() ? 0 : 1; i < names.size();
         ++i) { // the first may stand for all
        if (control == m_spinBoxes[i] || control == m_sliders[i])
            return names[i];
    }
    return control == m_multipleCheck ? UI::DisclosureButton::tr("Expand")
                                      : PropertyEditor::controlName(control);
}

QWidget *VecPropertyEditor::makeContainer(bool showSliders, bool showCheck)
{
    const QVector4D minimum = toRangeVector(m_property->minValue);
    const QVector4D maximum = toRangeVector(m_property->maxValue);
    const QVector4D hardMaximum = toRangeVector(m_property->hardMaxValue);
    const int sliderColumn = showCheck ? 1 : 0;
    const int spinBoxColumn = sliderColumn + (showSliders ? 1 : 0);

    auto *const container = new QWidget;
    ComponentPlacer placer(container, showSliders);
    for (int i = 0; i < m_count; ++i) {
        const auto at = static_cast<std::size_t>(i);
        const ComponentRange range{minimum[i], maximum[i], hardMaximum[i]};
        if (showSliders) {
            m_sliders[at] = makeSlider(range);
            placer.place(m_sliders[at], i, sliderColumn);
        }
        m_spinBoxes[at] = makeSpinBox(range, showSliders);
        placer.place(m_spinBoxes[at], i, spinBoxColumn);
    }
    if (showCheck) {
        m_multipleCheck = makeCheck();
        placer.place(m_multipleCheck, 0, 0);
        if (showSliders)
            visitBefore(m_multipleCheck, m_sliders[0]);
    }
    return container;
}

QSlider *VecPropertyEditor::makeSlider(const ComponentRange &range)
{
    auto *const slider = new ThousandthsSlider;
    slider->setRange(positionOf(range.minimum), positionOf(range.maximum));
    watchSlider(slider, this);
    connect(slider, &QSlider::valueChanged, this, &VecPropertyEditor::sliderChanged);
    return slider;
}

DoubleSpinBox *VecPropertyEditor::makeSpinBox(const ComponentRange &range, bool compact)
{
    auto *const spinBox = new DoubleSpinBox;
    spinBox->setDecimals(kDecimals);
    spinBox->setRange(finite(double(range.minimum)), finite(double(range.hardMaximum)));
    // From the slider's range, not from the field's own, on purpose.
    spinBox->setSingleStep(finite(double(range.maximum - range.minimum)) / 100.0);
    if (compact)
        setCompactSize(spinBox);
    spinBox->installEventFilter(this);
    connect(spinBox, qOverload<double>(&DoubleSpinBox::valueChanged), this,
            &PropertyEditor::valueChanged);
    return spinBox;
}

UI::DisclosureButton *VecPropertyEditor::makeCheck()
{
    auto *const check = makeRoundButton();
    connect(check, &UI::DisclosureButton::toggled, this, &VecPropertyEditor::setMultiple);
    return check;
}

void VecPropertyEditor::setMultiple(bool multiple)
{
    // Hiding a field that has the focus ends its interactive run, in which a host may delete this.
    const QPointer<VecPropertyEditor> self(this);
    for (int i = 1; i < m_count; ++i) {
        const auto at = static_cast<std::size_t>(i);
        if (m_sliders[at])
            m_sliders[at]->setVisible(multiple);
        if (self && m_spinBoxes[at])
            m_spinBoxes[at]->setVisible(multiple);
        if (!self)
            return;
        if (!multiple)
            setComponent(i, component(0)); // hidden components always equal the first
    }
    if (m_multipleCheck && m_multipleCheck->isChecked() != multiple)
        setQuietly(m_multipleCheck, &UI::DisclosureButton::setChecked, multiple);
}

void VecPropertyEditor::sliderChanged(int)
{
    for (std::size_t i = 0; i < static_cast<std::size_t>(m_count); ++i) {
        if (m_sliders[i]) {
            showQuietly(m_spinBoxes[i], m_sliders[i]->value() / double(kSliderUnitsPerUnit));
        }
    }
    Q_EMIT valueChanged();
}

void VecPropertyEditor::showComponents(const QVector4D &components)
{
    for (int i = 1; i < m_count; ++i) {
        if (components[i] != components[0]) {
            setMultiple(true);
            break;
        }
    }
    for (int i = 0; i < m_count; ++i)
        setComponent(i, components[i]);
}

QVector4D VecPropertyEditor::components() const
{
    QVector4D result;
    for (int i = 0; i < m_count; ++i)
        result[i] = component(i);
    return result;
}

void VecPropertyEditor::setComponent(int index, float value)
{
    const auto at = static_cast<std::size_t>(index);
    showQuietly(m_spinBoxes[at], finite(double(value)));
    setQuietly(m_sliders[at], &QSlider::setValue, positionOf(value));
}

float VecPropertyEditor::component(int index) const
{
    const auto at = static_cast<std::size_t>(isMultiple() ? index : 0);
    return m_spinBoxes[at] ? static_cast<float>(m_spinBoxes[at]->value()) : 0.0F;
}

bool VecPropertyEditor::isMultiple() const
{
    return !m_multipleCheck || m_multipleCheck->isChecked();
}

PropertyEditor *Vec2PropertyEditor::Factory(Property *property)
{
    return new Vec2PropertyEditor(property);
}

Vec2PropertyEditor::Vec2PropertyEditor(Property *property)
    : VecPropertyEditor(property, 2)
{
}

Vec2PropertyEditor::~Vec2PropertyEditor() = default;

void Vec2PropertyEditor::setValue(const QVariant &value)
{
    showComponents(QVector4D(toVector2D(value)));
}

QVariant Vec2PropertyEditor::value() const
{
    return components().toVector2D();
}

PropertyEditor *Vec3PropertyEditor::Factory(Property *property)
{
    return new Vec3PropertyEditor(property);
}

Vec3PropertyEditor::Vec3PropertyEditor(Property *property)
    : VecPropertyEditor(property, 3)
{
}

Vec3PropertyEditor::~Vec3PropertyEditor() = default;

void Vec3PropertyEditor::setValue(const QVariant &value)
{
    showComponents(QVector4D(toVector3D(value)));
}

QVariant Vec3PropertyEditor::value() const
{
    return components().toVector3D();
}

PropertyEditor *Vec4PropertyEditor::Factory(Property *property)
{
    return new Vec4PropertyEditor(property);
}

Vec4PropertyEditor::Vec4PropertyEditor(Property *property)
    : VecPropertyEditor(property, 4)
{
}

Vec4PropertyEditor::~Vec4PropertyEditor() = default;

void Vec4PropertyEditor::setValue(const QVariant &value)
{
    // Three components, widened with 0, on purpose: the fourth field is set to 0 every time, and
    // (1, 1, 1, 1) counts as components that differ.
    showComponents(QVector4D(toVector3D(value)));
}

QVariant Vec4PropertyEditor::value() const
{
    return components();
}

} // namespace Tessark::PropertyUI
