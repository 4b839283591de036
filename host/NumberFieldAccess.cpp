#include "host/NumberFieldAccess_p.h"

#include <QDoubleSpinBox>
#include <QSpinBox>

#include <algorithm>
#include <cmath>

namespace Tessark::PropertyHost {

namespace {

/// Calls the action with the field as what it is.
template <typename Action>
auto withField(const QAbstractSpinBox &field, Action action)
{
    if (const auto *const spinBox = qobject_cast<const QSpinBox *>(&field))
        return action(*spinBox);
    return action(static_cast<const QDoubleSpinBox &>(field));
}

double heldNumber(const QAbstractSpinBox &field, double number)
{
    const double inRange = std::max(minimumOf(field), std::min(number, maximumOf(field)));
    return qobject_cast<const QSpinBox *>(&field) ? std::round(inRange) : inRange;
}

} // namespace

QVector<QAbstractSpinBox *> numberFieldsIn(const QWidget *widget)
{
    QVector<QAbstractSpinBox *> fields;
    if (!widget)
        return fields;
    const auto spinBoxes = widget->findChildren<QAbstractSpinBox *>();
    std::copy_if(spinBoxes.cbegin(), spinBoxes.cend(), std::back_inserter(fields),
                 [](const QAbstractSpinBox *spinBox) {
                     return qobject_cast<const QSpinBox *>(spinBox)
                            || qobject_cast<const QDoubleSpinBox *>(spinBox);
                 });
    return fields;
}

double numberOf(const QAbstractSpinBox &field)
{
    return withField(field, [](const auto &spinBox) { return double(spinBox.value()); });
}

double minimumOf(const QAbstractSpinBox &field)
{
    return withField(field, [](const auto &spinBox) { return double(spinBox.minimum()); });
}

double maximumOf(const QAbstractSpinBox &field)
{
    return withField(field, [](const auto &spinBox) { return double(spinBox.maximum()); });
}

double stepOf(const QAbstractSpinBox &field)
{
    const double step =
        withField(field, [](const auto &spinBox) { return double(spinBox.singleStep()); });
    if (step > 0.0)
        return step;
    const auto *const decimal = qobject_cast<const QDoubleSpinBox *>(&field);
    return decimal ? std::pow(10.0, -decimal->decimals()) : 1.0;
}

void setNumber(QAbstractSpinBox &field, double number)
{
    const double held = heldNumber(field, number);
    if (auto *const spinBox = qobject_cast<QSpinBox *>(&field))
        spinBox->setValue(static_cast<int>(held));
    else
        static_cast<QDoubleSpinBox &>(field).setValue(held);
}

QString textOf(const QAbstractSpinBox &field, double number)
{
    const double held = heldNumber(field, number);
    QString text;
    if (const auto *const decimal = qobject_cast<const QDoubleSpinBox *>(&field))
        text = decimal->textFromValue(held);
    else
        text =
            field.locale().toString(static_cast<int>(held)).remove(field.locale().groupSeparator());
    return prefixOf(field) + text + suffixOf(field);
}

QString prefixOf(const QAbstractSpinBox &field)
{
    return withField(field, [](const auto &spinBox) { return spinBox.prefix(); });
}

QString suffixOf(const QAbstractSpinBox &field)
{
    return withField(field, [](const auto &spinBox) { return spinBox.suffix(); });
}

QString typedText(const QAbstractSpinBox &field, const QString &text)
{
    const QString prefix = prefixOf(field);
    const QString suffix = suffixOf(field);
    QString typed = text;
    if (typed.startsWith(prefix))
        typed.remove(0, prefix.size());
    if (typed.endsWith(suffix))
        typed.chop(suffix.size());
    return typed.trimmed();
}

} // namespace Tessark::PropertyHost
