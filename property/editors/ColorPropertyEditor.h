#pragma once

#include "core/ColorControl.h"
#include "property/PropertyEditor.h"

#include <QColor>
#include <QPointer>

#include <array>

class QGridLayout;

namespace Tessark::UI {
class ColorWheel;
class Slider;
} // namespace Tessark::UI

namespace Tessark::PropertyUI {

class DoubleSpinBox;

/**
 * Edits a "vec4/color" property with a colour wheel, and a slider and an entry field each for red,
 * green and blue. There is nothing to edit the alpha with.
 *
 * Value: QColor, invalid until the first setValue() or edit. setValue() takes a colour, a text as
 * QColor_fromString() reads it, a QVector4D of red, green, blue and alpha, a QVector3D or QVector2D
 * of the first components, whose alpha is deliberately 0, or a float (not a double) for all four;
 * anything else is the variant's own conversion or an invalid colour. Fractions outside 0..1 are
 * kept as QColor keeps them, an alpha outside gives an invalid colour; the widgets show the nearest
 * they can. No hints are read.
 *
 * Signals: a change of the wheel or a slider emits valueChanged() once and leaves the entry fields,
 * which follow when the host sends the value back. A change of a field makes the colour opaque and
 * emits twice, both deliberately. A drag, and typing in the focused field, are interactive runs.
 * setValue() is silent; while a change of a field is being announced it does nothing, so that the
 * host's echo does not disturb typing. A drag goes on undisturbed by the echo of a host that stores
 * colours in 8 bits.
 */
class TESSARK_PROPERTY_EXPORT ColorPropertyEditor : public PropertyEditor,
                                                    private UI::IColorControlClient
{
    Q_OBJECT

public:
    static PropertyEditor *Factory(Property *property);

    explicit ColorPropertyEditor(Property *property);
    ~ColorPropertyEditor() override;

    void setValue(const QVariant &value) override;
    QVariant value() const override;
    QWidget *widget(PropertyEditorContext *context) override;
    QString controlName(const QWidget *control) const override;

    /// Whether the entry fields show integers 0..255 instead of fractions 0..1 with 4 decimals
    /// (default). Before and after the widget is built; emits nothing.
    void setInputColorAsInteger(bool asInteger);

private Q_SLOTS:
    void spinBoxChanged(double value);

private:
    static constexpr int kChannelCount = 3; // red, green, blue

    void colorChanged(float red, float green, float blue, float alpha) override;
    void colorCheckPoint() override;

    void makeWheel(QGridLayout *layout);
    void makeChannel(QGridLayout *layout, int channel, UI::Slider *slider);
    DoubleSpinBox *makeSpinBox();
    void applyInputMode(DoubleSpinBox *spinBox) const;
    double inputScale() const;
    void showInControl();
    void showInSpinBoxes();

    // The control is this editor's child; the widget tree, which owns the others, may die before.
    QPointer<UI::ColorControl> m_colorControl;
    QPointer<UI::ColorWheel> m_colorWheel;
    std::array<QPointer<UI::Slider>, kChannelCount> m_channelSliders;
    std::array<QPointer<DoubleSpinBox>, kChannelCount> m_spinBoxes;
    QColor m_color;
    bool m_updatingFromSpinBox = false; // while spinBoxChanged() runs
    bool m_inputAsInteger = false;
};

} // namespace Tessark::PropertyUI
