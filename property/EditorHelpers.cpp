#include "property/EditorHelpers_p.h"

#include "core/DisclosureButton.h"
#include "property/ControlRow_p.h"
#include "property/PropertyEditor.h"
#include "property/SpokenNumber_p.h"

#include <QAbstractButton>
#include <QAbstractSlider>
#include <QButtonGroup>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QSpinBox>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>

namespace Tessark::PropertyUI {

namespace {

constexpr int kSliderLimit = 1'000'000'000;
constexpr int kCompactWidth = 70; // pixels

template <typename Number>
int clampedToInt(Number number)
{
    constexpr auto lowest = static_cast<Number>(std::numeric_limits<int>::min());
    constexpr auto highest = static_cast<Number>(std::numeric_limits<int>::max());
    return static_cast<int>(std::clamp(number, lowest, highest));
}

QString textOf(const QDoubleSpinBox &spinBox, double value)
{
    return spinBox.textFromValue(value);
}

/// As the field writes whole numbers, unless a host gave it a way of its own.
QString textOf(const QSpinBox &spinBox, int value)
{
    const QLocale locale = spinBox.locale();
    return locale.toString(value).remove(locale.groupSeparator());
}

/// Whether the field holds value and its text says so.
template <typename SpinBox, typename Number>
bool showsExactly(const SpinBox &spinBox, Number value)
{
    return spinBox.value() == value
           && spinBox.text() == spinBox.prefix() + textOf(spinBox, value) + spinBox.suffix();
}

/// Rounded to decimals as a QDoubleSpinBox does it, which takes the way through text.
double rounded(double number, int decimals)
{
    constexpr double kPowers[] = {1e0, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8};
    constexpr double kExactBelow = 1e15;  // whole numbers, with room for the rounding below
    constexpr double kSurelyNoTie = 0.49; // a tie is decided by the digits behind it
    if (decimals >= 0 && decimals < int(std::size(kPowers))) {
        const double power = kPowers[decimals];
        const double scaled = number * power;
        const double whole = std::nearbyint(scaled);
        if (std::fabs(scaled) < kExactBelow && std::fabs(scaled - whole) < kSurelyNoTie)
            return whole / power; // two exact numbers: the double next to the decimal, as from text
    }
    return QString::number(number, 'f', decimals).toDouble();
}

/// The number that the field would hold after setValue(number).
double asHeldBy(const QDoubleSpinBox &spinBox, double number)
{
    // Also what it holds may be unrounded: its arrows add their step as it is.
    number = rounded(number, spinBox.decimals());
    return std::clamp(number, spinBox.minimum(), spinBox.maximum());
}

/// Whether one of the box's arrows is, or would be, the only one that goes on from value.
template <typename SpinBox, typename Number>
bool isAtAnEnd(const SpinBox &spinBox, Number value)
{
    return value <= spinBox.minimum() || value >= spinBox.maximum();
}

/// Sets a value that the box will hold as held, without painting more than changes: with every value
/// a box updates its text and, once more, itself, but only the look of its arrows at the ends of the
/// range depends on the value. An update that is not needed costs a look at every row of the panel.
template <typename SpinBox, typename Number>
void showChanged(SpinBox *spinBox, Number value, Number held)
{
    const bool paintsTextAlone = spinBox->updatesEnabled() && !isAtAnEnd(*spinBox, held)
                                 && !isAtAnEnd(*spinBox, spinBox->value());
    // Not setUpdatesEnabled(), which would update all of it in the end.
    if (paintsTextAlone)
        spinBox->setAttribute(Qt::WA_UpdatesDisabled, true);
    setQuietly(spinBox, &SpinBox::setValue, value);
    if (paintsTextAlone)
        spinBox->setAttribute(Qt::WA_UpdatesDisabled, false);
    tellNumber(spinBox, spinBox->value());
}

} // namespace

void showQuietly(QSpinBox *spinBox, int value)
{
    if (!spinBox)
        return;
    const int held = std::clamp(value, spinBox->minimum(), spinBox->maximum());
    if (!showsExactly(*spinBox, held))
        showChanged(spinBox, value, held);
}

void showQuietly(QDoubleSpinBox *spinBox, double value)
{
    if (!spinBox)
        return;
    const double held = asHeldBy(*spinBox, value);
    if (!showsExactly(*spinBox, held))
        showChanged(spinBox, value, held);
}

void showUnlessTyping(QDoubleSpinBox *spinBox, double value)
{
    if (!spinBox)
        return;
    const double held = asHeldBy(*spinBox, value);
    // The focus is asked for last: Qt looks for the window first.
    if (!showsExactly(*spinBox, held) && !spinBox->hasFocus())
        showChanged(spinBox, value, held);
}

void showText(QLineEdit *lineEdit, const QString &text)
{
    if (!lineEdit)
        return;
    const bool unchanged = lineEdit->text() == text && lineEdit->cursorPosition() == text.size()
                           && !lineEdit->hasSelectedText() && !lineEdit->isModified()
                           && !lineEdit->isUndoAvailable() && !lineEdit->isRedoAvailable();
    if (!unchanged)
        lineEdit->setText(text);
}

int sliderPosition(double number)
{
    if (std::isnan(number))
        return 0;
    return static_cast<int>(std::clamp<double>(number, -kSliderLimit, kSliderLimit));
}

int toSaturatedInt(const QVariant &value)
{
    switch (value.userType()) {
    case QMetaType::Double:
    case QMetaType::Float: {
        const double number = value.toDouble();
        return std::isnan(number) ? 0 : clampedToInt(std::round(number));
    }
    case QMetaType::LongLong:
    case QMetaType::Long:
        return clampedToInt(value.toLongLong());
    case QMetaType::UInt:
    case QMetaType::ULong:
    case QMetaType::ULongLong: {
        const qulonglong limit = std::numeric_limits<int>::max();
        return static_cast<int>(std::min(value.toULongLong(), limit));
    }
    default:
        return value.toInt();
    }
}

QSize toSaturatedSize(const QVariant &value)
{
    if (value.userType() != QMetaType::QSizeF)
        return value.toSize();
    const QSizeF size = value.toSizeF();
    return {toSaturatedInt(size.width()), toSaturatedInt(size.height())};
}

double finite(double number)
{
    if (std::isnan(number))
        return 0.0;
    return std::clamp(number, std::numeric_limits<double>::lowest(),
                      std::numeric_limits<double>::max());
}

int hundredthOf(int minimum, int maximum)
{
    return static_cast<int>((qint64(maximum) - minimum) / 100);
}

QWidget *makeRow()
{
    auto *const row = new QWidget;
    new ControlRow(row);
    return row;
}

void fillRow(QWidget *row, std::initializer_list<QWidget *> controls)
{
    for (QWidget *control : controls)
        row->layout()->addWidget(control);
}

void visitBefore(QWidget *control, QWidget *next)
{
    // Behind it at first: the order is a ring, and Qt leaves it alone where the last control is to
    // come before the first.
    QWidget::setTabOrder(next, control);
    QWidget::setTabOrder(control, next);
}

void applyAlignmentHint(QLabel *label, const Property &property)
{
    const QVariant alignment = property.hint(kPropertyHintAlignment);
    if (alignment.isValid())
        label->setAlignment(Qt::Alignment(QFlag(alignment.toInt())));
}

void announceDrags(QAbstractSlider *slider, PropertyEditor *editor)
{
    QObject::connect(slider, &QAbstractSlider::sliderPressed, editor,
                     &PropertyEditor::startInteractiveChange);
    QObject::connect(slider, &QAbstractSlider::sliderReleased, editor,
                     &PropertyEditor::endInteractiveChange);
}

void watchSlider(QAbstractSlider *slider, PropertyEditor *editor)
{
    slider->installEventFilter(editor);
    announceDrags(slider, editor);
}

UI::DisclosureButton *makeRoundButton()
{
    auto *const button = new UI::DisclosureButton(nullptr, true);
    button->setCheckable(true);
    button->setChecked(false);
    button->setProperty("group", QStringLiteral("round"));
    return button;
}

void checkButton(QButtonGroup &group, int id)
{
    const QSignalBlocker blocker(&group);
    if (QAbstractButton *button = group.button(id))
        button->setChecked(true);
}

void setCompactSize(QAbstractSpinBox *spinBox)
{
    spinBox->setFixedSize(kCompactWidth, spinBox->sizeHint().height());
}

} // namespace Tessark::PropertyUI
