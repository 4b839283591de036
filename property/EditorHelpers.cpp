#include "property/EditorHelpers_p.h"

#include "property/PropertyEditor.h"

#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QHBoxLayout>

#include <algorithm>
#include <cmath>
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

} // namespace

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

QWidget *makeRow(std::initializer_list<QWidget *> controls)
{
    auto *const row = new QWidget;
    auto *const layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    for (QWidget *control : controls)
        layout->addWidget(control);
    return row;
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

void setCompactSize(QAbstractSpinBox *spinBox)
{
    spinBox->setFixedSize(kCompactWidth, spinBox->sizeHint().height());
}

} // namespace Tessark::PropertyUI
