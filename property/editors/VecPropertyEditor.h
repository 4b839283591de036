#pragma once

#include "property/PropertyEditor.h"

#include <QPointer>
#include <QVector4D>

#include <array>

class QSlider;

namespace Tessark::UI {
class DisclosureButton;
}

namespace Tessark::PropertyUI {

class DoubleSpinBox;

/**
 * What the editors of small vectors share: one entry field for each component, on request a slider
 * beside each and a toggle between editing all components alike and separately.
 *
 * Hints read when the widget is built: kPropertyHintShowSliders and kPropertyHintShowMultipleCheck
 * (bool). Minimum, maximum and hard maximum are read component by component: a vector, a colour, a
 * text form of as many numbers, or a float for all. Sliders span minimum to maximum, fields minimum
 * to hard maximum.
 *
 * Each change by the user emits valueChanged() once; a drag of a slider and typing in a focused
 * field are interactive runs. A field does not move its slider: the slider follows when the host
 * sends the value back. setValue() is silent, and components that differ switch to separate editing.
 */
class TESSARK_PROPERTY_EXPORT VecPropertyEditor : public PropertyEditor
{
    Q_OBJECT

public:
    /// count is the number of components, 2 to 4; others are taken as the nearest of these.
    VecPropertyEditor(Property *property, int count);
    ~VecPropertyEditor() override;

    QWidget *widget(PropertyEditorContext *context) override;
    QString controlName(const QWidget *control) const override;

public Q_SLOTS:
    /// Shows all components, or only the first one, which the others then equal. Emits nothing.
    void setMultiple(bool multiple);

private Q_SLOTS:
    void sliderChanged(int value);

protected:
    /// Shows the first count components, after a switch to separate editing if they differ.
    void showComponents(const QVector4D &components);

    /// What the fields hold; in uniform mode every component is the first, beyond count they are 0.
    QVector4D components() const;

private:
    struct ComponentRange;

    void setComponent(int index, float value);
    float component(int index) const;
    bool isMultiple() const;
    QWidget *makeContainer(bool showSliders, bool showCheck);
    QSlider *makeSlider(const ComponentRange &range);
    DoubleSpinBox *makeSpinBox(const ComponentRange &range, bool compact);
    UI::DisclosureButton *makeCheck();

    static constexpr int kMaximumCount = 4;

    const int m_count;
    std::array<QPointer<DoubleSpinBox>, kMaximumCount> m_spinBoxes;
    std::array<QPointer<QSlider>, kMaximumCount> m_sliders; // null unless sliders are shown
    QPointer<UI::DisclosureButton> m_multipleCheck;         // null unless asked for
};

/// Edits a "vec2" property. Value: QVector2D.
class TESSARK_PROPERTY_EXPORT Vec2PropertyEditor : public VecPropertyEditor
{
public:
    static PropertyEditor *Factory(Property *property);

    explicit Vec2PropertyEditor(Property *property);
    ~Vec2PropertyEditor() override;

    void setValue(const QVariant &value) override;
    QVariant value() const override;
};

/// Edits a "vec3" property. Value: QVector3D.
class TESSARK_PROPERTY_EXPORT Vec3PropertyEditor : public VecPropertyEditor
{
public:
    static PropertyEditor *Factory(Property *property);

    explicit Vec3PropertyEditor(Property *property);
    ~Vec3PropertyEditor() override;

    void setValue(const QVariant &value) override;
    QVariant value() const override;
};

/// Edits a "vec4" property. Value: QVector4D. setValue() reads three components and always shows 0
/// as the fourth, on purpose.
class TESSARK_PROPERTY_EXPORT Vec4PropertyEditor : public VecPropertyEditor
{
public:
    static PropertyEditor *Factory(Property *property);

    explicit Vec4PropertyEditor(Property *property);
    ~Vec4PropertyEditor() override;

    void setValue(const QVariant &value) override;
    QVariant value() const override;
};

} // namespace Tessark::PropertyUI
