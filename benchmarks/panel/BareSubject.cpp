#include "BareSubject.h"

#include "Rows.h"

#include <core/ColorWheel.h>
#include <core/Slider.h>

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QSlider>
#include <QSpinBox>

using namespace Tessark::UI;

namespace {

constexpr int kFieldWidth = 70;
constexpr double kSliderUnits = 1000;

QWidget *besides(QSlider *slider, QAbstractSpinBox *field)
{
    field->setFixedSize(kFieldWidth, field->sizeHint().height());
    auto *const row = new QWidget;
    auto *const layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(slider);
    layout->addWidget(field);
    return row;
}

} // namespace

/// A colour wheel with a slider and a field for each channel.
class BareSubject::ColorRow final : public IColorControlClient
{
public:
    ColorRow()
        : m_control(this)
    {
    }

    QWidget *makeWidget()
    {
        auto *const widget = new QWidget;
        auto *const grid = new QGridLayout(widget);
        m_wheel = m_control.createColorWheel();
        m_wheel->setFixedSize(160, 160);
        m_wheel->setDisplayMode(ColorWheel::DiscAndValueRing);
        grid->addWidget(m_wheel, 0, 0, 1, 2, Qt::AlignCenter);
        Slider *const sliders[] = {m_control.createRedSlider(Qt::Horizontal),
                                   m_control.createGreenSlider(Qt::Horizontal),
                                   m_control.createBlueSlider(Qt::Horizontal)};
        for (int channel = 0; channel < 3; ++channel) {
            auto *const field = new QDoubleSpinBox;
            field->setDecimals(4);
            field->setRange(0, 1);
            field->setSingleStep(0.01);
            field->setFixedSize(kFieldWidth, field->sizeHint().height());
            QObject::connect(field, qOverload<double>(&QDoubleSpinBox::valueChanged), widget,
                             [this] { fieldEdited(); });
            grid->addWidget(sliders[channel], channel + 1, 0);
            grid->addWidget(field, channel + 1, 1);
            m_fields[channel] = field;
        }
        return widget;
    }

    void show()
    {
        showInControl();
        const double channels[] = {value.redF(), value.greenF(), value.blueF()};
        for (int channel = 0; channel < 3; ++channel) {
            const QSignalBlocker blocker(m_fields[channel]);
            m_fields[channel]->setValue(channels[channel]);
        }
    }

    void colorChanged(float red, float green, float blue, float alpha) override
    {
        value = QColor::fromRgbF(red, green, blue, alpha);
    }
    void colorCheckPoint() override {}

    QColor value;

private:
    void showInControl()
    {
        const QSignalBlocker blocker(&m_control);
        m_control.setColorRGBA(float(value.redF()), float(value.greenF()), float(value.blueF()),
                               float(value.alphaF()));
    }

    void fieldEdited()
    {
        value = QColor::fromRgbF(float(m_fields[0]->value()), float(m_fields[1]->value()),
                                 float(m_fields[2]->value()), 1.0F);
        showInControl();
    }

    ColorControl m_control;
    ColorWheel *m_wheel = nullptr;
    QDoubleSpinBox *m_fields[3] = {};
};

BareSubject::BareSubject(int rows)
    : m_rows(rows)
{
    const auto share = [rows](int parts) {
        return static_cast<std::size_t>(rows * parts / 20 + 10);
    };
    m_fractions.reserve(share(10));
    m_integers.reserve(share(4));
    m_switches.reserve(share(2));
    m_texts.reserve(share(2));
    m_choices.reserve(share(1));
    m_colors.reserve(share(1));

    m_form = new QWidget;
    m_layout = new QFormLayout(m_form);
    m_header = new QCheckBox(QStringLiteral("Group"));
    m_header->setChecked(true);
    m_layout->addRow(m_header);
    QObject::connect(m_header, &QCheckBox::toggled, m_form, [this](bool on) {
        // The layout would otherwise be activated for each row.
        m_layout->setEnabled(false);
        for (QWidget *widget : m_grouped)
            widget->setVisible(on);
        m_layout->setEnabled(true);
        m_layout->invalidate();
    });
    for (int row = 0; row < rows; ++row) {
        QWidget *const field = makeRow(row);
        auto *const label = new QLabel(labelOf(row) + QLatin1Char(':'));
        m_layout->addRow(label, field);
        if (row < groupedRows(rows)) {
            m_grouped.push_back(label);
            m_grouped.push_back(field);
        }
    }
    store(0);
    showAll();
    m_window.setWidget(m_form);
}

BareSubject::~BareSubject()
{
    delete m_window.takeWidget(); // before the rows that its widgets tell
}

void BareSubject::refresh(int round)
{
    store(round);
    showAll();
}

void BareSubject::setExpanded(bool expanded)
{
    if (m_header->isChecked() != expanded)
        m_header->click();
}

QAbstractSlider *BareSubject::slider()
{
    return m_fractions.front().slider;
}

bool BareSubject::updateRow(int)
{
    return false;
}

QWidget *BareSubject::makeRow(int row)
{
    switch (kindOf(row)) {
    case RowKind::Fraction:
        return makeFraction();
    case RowKind::Integer:
        return makeInteger();
    case RowKind::Switch:
        return makeSwitch();
    case RowKind::Text:
        return makeText();
    case RowKind::Choice:
        return makeChoice();
    case RowKind::Color:
        break;
    }
    return makeColor();
}

QWidget *BareSubject::makeFraction()
{
    auto *const slider = new QSlider(Qt::Horizontal);
    slider->setRange(0, int(kFractionLimit * kSliderUnits));
    slider->setSingleStep(2);
    slider->setPageStep(20);
    auto *const field = new QDoubleSpinBox;
    field->setDecimals(4);
    field->setRange(0, kFractionLimit);
    field->setSingleStep(kFractionLimit / 100);
    const std::size_t index = m_fractions.size();
    m_fractions.push_back({slider, field, 0});
    QObject::connect(slider, &QSlider::valueChanged, field, [this, index](int position) {
        FractionRow &row = m_fractions[index];
        row.value = position / kSliderUnits;
        {
            const QSignalBlocker blocker(row.field);
            row.field->setValue(row.value);
        }
        edited(row);
    });
    QObject::connect(field, qOverload<double>(&QDoubleSpinBox::valueChanged), slider,
                     [this, index](double value) {
                         FractionRow &row = m_fractions[index];
                         row.value = value;
                         {
                             const QSignalBlocker blocker(row.slider);
                             row.slider->setValue(int(value * kSliderUnits));
                         }
                         edited(row);
                     });
    return besides(slider, field);
}

QWidget *BareSubject::makeInteger()
{
    auto *const slider = new QSlider(Qt::Horizontal);
    slider->setRange(0, kIntegerLimit);
    auto *const field = new QSpinBox;
    field->setRange(0, kIntegerLimit);
    field->setSingleStep(kIntegerLimit / 100);
    const std::size_t index = m_integers.size();
    m_integers.push_back({slider, field, 0});
    QObject::connect(slider, &QSlider::valueChanged, field, [this, index](int value) {
        IntegerRow &row = m_integers[index];
        row.value = value;
        const QSignalBlocker blocker(row.field);
        row.field->setValue(value);
    });
    QObject::connect(field, qOverload<int>(&QSpinBox::valueChanged), slider,
                     [this, index](int value) {
                         IntegerRow &row = m_integers[index];
                         row.value = value;
                         const QSignalBlocker blocker(row.slider);
                         row.slider->setValue(value);
                     });
    auto *const row = new QWidget;
    auto *const layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(slider);
    layout->addWidget(field);
    return row;
}

QWidget *BareSubject::makeSwitch()
{
    auto *const box = new QCheckBox;
    const std::size_t index = m_switches.size();
    m_switches.push_back({box, false});
    QObject::connect(box, &QCheckBox::toggled, box,
                     [this, index](bool on) { m_switches[index].value = on; });
    return box;
}

QWidget *BareSubject::makeText()
{
    auto *const edit = new QLineEdit;
    const std::size_t index = m_texts.size();
    m_texts.push_back({edit, QString()});
    QObject::connect(edit, &QLineEdit::editingFinished, edit,
                     [this, index] { m_texts[index].value = m_texts[index].edit->text(); });
    return edit;
}

QWidget *BareSubject::makeChoice()
{
    auto *const box = new QComboBox;
    box->addItems(choiceTexts());
    const std::size_t index = m_choices.size();
    m_choices.push_back({box, 0});
    QObject::connect(box, qOverload<int>(&QComboBox::currentIndexChanged), box,
                     [this, index](int choice) { m_choices[index].value = choice; });
    return box;
}

QWidget *BareSubject::makeColor()
{
    m_colors.push_back(std::make_unique<ColorRow>());
    return m_colors.back()->makeWidget();
}

void BareSubject::store(int round)
{
    std::size_t fraction = 0, integer = 0, onOff = 0, text = 0, choice = 0, color = 0;
    for (int row = 0; row < m_rows; ++row) {
        switch (kindOf(row)) {
        case RowKind::Fraction:
            m_fractions[fraction++].value = fractionOf(row, round);
            break;
        case RowKind::Integer:
            m_integers[integer++].value = integerOf(row, round);
            break;
        case RowKind::Switch:
            m_switches[onOff++].value = switchOf(row, round);
            break;
        case RowKind::Text:
            m_texts[text++].value = textOf(row, round);
            break;
        case RowKind::Choice:
            m_choices[choice++].value = choiceOf(row, round);
            break;
        case RowKind::Color:
            m_colors[color++]->value = colorOf(row, round);
            break;
        }
    }
}

void BareSubject::showAll()
{
    for (const FractionRow &row : m_fractions)
        showFraction(row);
    for (const IntegerRow &row : m_integers) {
        const QSignalBlocker sliderBlocker(row.slider);
        const QSignalBlocker fieldBlocker(row.field);
        row.slider->setValue(row.value);
        row.field->setValue(row.value);
    }
    for (const SwitchRow &row : m_switches) {
        const QSignalBlocker blocker(row.box);
        row.box->setChecked(row.value);
    }
    for (const TextRow &row : m_texts)
        row.edit->setText(row.value);
    for (const ChoiceRow &row : m_choices) {
        const QSignalBlocker blocker(row.box);
        row.box->setCurrentIndex(row.value);
    }
    for (const auto &row : m_colors)
        row->show();
}

void BareSubject::showFraction(const FractionRow &row)
{
    const QSignalBlocker sliderBlocker(row.slider);
    const QSignalBlocker fieldBlocker(row.field);
    row.slider->setValue(int(row.value * kSliderUnits));
    row.field->setValue(row.value);
}

void BareSubject::edited(const FractionRow &row)
{
    if (m_echo == Echo::All)
        showAll();
    else if (m_echo == Echo::One)
        showFraction(row);
}
