#include "property/editors/ColorPropertyEditor.h"

#include "core/ColorWheel.h"
#include "core/Slider.h"
#include "property/ColorFractions_p.h"
#include "property/DoubleSpinBox.h"
#include "property/EditorHelpers_p.h"
#include "property/ValueCodecs.h"

#include <QGridLayout>
#include <QVector2D>
#include <QVector3D>
#include <QVector4D>

#include <algorithm>

namespace Tessark::PropertyUI {

namespace {

constexpr int kWheelSide = 160; // pixels
constexpr int kIntegerMaximum = 255;
constexpr double kFractionStep = 0.01;
constexpr int kFractionDecimals = 4;

QColor toColor(const QVariant &value)
{
    switch (value.userType()) {
    case QMetaType::QString:
        return QColor_fromString(value.toString());
    case QMetaType::Float: {
        const float number = value.toFloat();
        return colorOfFractions(number, number, number, number);
    }
    case QMetaType::QVector4D: {
        const auto vector = value.value<QVector4D>();
        return colorOfFractions(vector.x(), vector.y(), vector.z(), vector.w());
    }
    // The shorter vectors give fully transparent colours, deliberately.
    case QMetaType::QVector3D: {
        const auto vector = value.value<QVector3D>();
        return colorOfFractions(vector.x(), vector.y(), vector.z(), 0);
    }
    case QMetaType::QVector2D: {
        const auto vector = value.value<QVector2D>();
        return colorOfFractions(vector.x(), vector.y(), 0, 0);
    }
    default:
        return value.value<QColor>();
    }
}

} // namespace

PropertyEditor *ColorPropertyEditor::Factory(Property *property)
{
    return new ColorPropertyEditor(property);
}

ColorPropertyEditor::ColorPropertyEditor(Property *property)
    : PropertyEditor(property)
{
}

/// The control dies a moment later, and the widgets still report to it until then.
ColorPropertyEditor::~ColorPropertyEditor()
{
    if (!m_colorControl)
        return;
    m_colorControl->setClient(nullptr);
    m_colorControl->disconnect(this);
}

void ColorPropertyEditor::setValue(const QVariant &value)
{
    if (m_updatingFromSpinBox)
        return;
    m_color = toColor(value);
    showInControl();
    showInSpinBoxes();
}

QVariant ColorPropertyEditor::value() const
{
    return m_color;
}

QWidget *ColorPropertyEditor::widget(PropertyEditorContext *)
{
    if (buildsNow()) {
        m_colorControl = new UI::ColorControl(this, this);
        // A host's slot of this signal runs before the client, which is the editor, is called.
        connect(m_colorControl, &UI::ColorControl::changed, this, [this] { keepControls(); });
        m_widget = new QWidget;
        auto *const layout = new QGridLayout(m_widget);
        makeWheel(layout);
        makeChannel(layout, 0, m_colorControl->createRedSlider(Qt::Horizontal));
        makeChannel(layout, 1, m_colorControl->createGreenSlider(Qt::Horizontal));
        makeChannel(layout, 2, m_colorControl->createBlueSlider(Qt::Horizontal));
    }
    return m_widget;
}

QString ColorPropertyEditor::controlName(const QWidget *control) const
{
    const std::array<QString, kChannelCount> names = {
        UI::ColorControl::tr("Red"), UI::ColorControl::tr("Green"), UI::ColorControl::tr("Blue")};
    for (std::size_t i = 0; i < names.size(); ++i) {
        if (control == m_spinBoxes[i] || control == m_channelSliders[i])
            return names[i];
    }
    return control == m_colorWheel ? UI::ColorWheel::tr("Color wheel")
                                   : PropertyEditor::controlName(control);
}

void ColorPropertyEditor::setInputColorAsInteger(bool asInteger)
{
    m_inputAsInteger = asInteger;
    for (const QPointer<DoubleSpinBox> &spinBox : m_spinBoxes) {
        if (!spinBox)
            continue;
        const QSignalBlocker blocker(spinBox.data());
        applyInputMode(spinBox);
    }
    showInSpinBoxes();
}

void ColorPropertyEditor::spinBoxChanged(double)
{
    if (std::any_of(m_spinBoxes.begin(), m_spinBoxes.end(), std::logical_not<>()))
        return;
    const auto fraction = [this](std::size_t channel) {
        return static_cast<float>(m_spinBoxes[channel]->value() / inputScale());
    };
    whileFlagged(this, m_updatingFromSpinBox, [this, fraction] {
        const QPointer<ColorPropertyEditor> alive(this);
        // Two announcements for each change of a field, and always an opaque colour: deliberate.
        colorChanged(fraction(0), fraction(1), fraction(2), 1.0F);
        if (!alive)
            return;
        showInControl();
        Q_EMIT valueChanged();
    });
}

void ColorPropertyEditor::colorChanged(float red, float green, float blue, float alpha)
{
    m_color = colorOfFractions(red, green, blue, alpha);
    Q_EMIT valueChanged();
}

/// The wheel and the sliders announce their runs by themselves.
void ColorPropertyEditor::colorCheckPoint() {}

void ColorPropertyEditor::makeWheel(QGridLayout *layout)
{
    m_colorWheel = m_colorControl->createColorWheel();
    m_colorWheel->setFixedSize(kWheelSide, kWheelSide);
    m_colorWheel->setDisplayMode(UI::ColorWheel::DiscAndValueRing);
    m_colorWheel->setInteractionMode(UI::ColorWheel::Absolute);
    connect(m_colorWheel, &UI::ColorWheel::startDragSignal, this,
            &PropertyEditor::startInteractiveChange);
    connect(m_colorWheel, &UI::ColorWheel::stopDragSignal, this,
            &PropertyEditor::endInteractiveChange);
    layout->addWidget(m_colorWheel, 0, 0, 1, 2, Qt::AlignCenter);
}

void ColorPropertyEditor::makeChannel(QGridLayout *layout, int channel, UI::Slider *slider)
{
    slider->setMaximum(1.0);
    announceDrags(slider, this);
    DoubleSpinBox *const spinBox = makeSpinBox();
    layout->addWidget(slider, channel + 1, 0);
    layout->addWidget(spinBox, channel + 1, 1);
    const auto index = static_cast<std::size_t>(channel);
    m_channelSliders[index] = slider;
    m_spinBoxes[index] = spinBox;
}

DoubleSpinBox *ColorPropertyEditor::makeSpinBox()
{
    auto *const spinBox = new DoubleSpinBox;
    applyInputMode(spinBox);
    setCompactSize(spinBox);
    spinBox->installEventFilter(this);
    connect(spinBox, qOverload<double>(&QDoubleSpinBox::valueChanged), this,
            &ColorPropertyEditor::spinBoxChanged);
    return spinBox;
}

void ColorPropertyEditor::applyInputMode(DoubleSpinBox *spinBox) const
{
    spinBox->setDecimals(m_inputAsInteger ? 0 : kFractionDecimals); // first: it rounds the others
    spinBox->setMaximum(inputScale());
    spinBox->setSingleStep(m_inputAsInteger ? 1.0 : kFractionStep);
}

/// What a field shows for a fraction of 1, which is also its maximum.
double ColorPropertyEditor::inputScale() const
{
    return m_inputAsInteger ? kIntegerMaximum : 1.0;
}

void ColorPropertyEditor::showInControl()
{
    setQuietly(m_colorControl, &UI::ColorControl::setColorRGBA, float(m_color.redF()),
               float(m_color.greenF()), float(m_color.blueF()), float(m_color.alphaF()));
    if (!m_colorWheel)
        return;
    const QSignalBlocker blocker(m_colorControl); // the wheel sets the colour of the control
    m_colorWheel->setRingValue(float(m_color.valueF()));
}

void ColorPropertyEditor::showInSpinBoxes()
{
    const std::array<double, kChannelCount> fractions = {m_color.redF(), m_color.greenF(),
                                                         m_color.blueF()};
    for (std::size_t i = 0; i < fractions.size(); ++i)
        showQuietly(m_spinBoxes[i].data(), fractions[i] * inputScale());
}

} // namespace Tessark::PropertyUI
