#include "property/DoubleSpinBox.h"

#include <cmath>

namespace Tessark::PropertyUI {

namespace {

constexpr double kSmallestGroupedNumber = 1000.0;

} // namespace

DoubleSpinBox::DoubleSpinBox(QWidget *parent)
    : QDoubleSpinBox(parent)
{
}

DoubleSpinBox::~DoubleSpinBox() = default;

QValidator::State DoubleSpinBox::validate(QString &input, int &pos) const
{
    // Only at the end: what is typed in the middle is left to the base.
    if (pos == input.size()) {
        const QString point(locale().decimalPoint());
        const auto pointAt = input.indexOf(point);
        if (pointAt >= 0) {
            input.truncate(pointAt + point.size() + decimals());
            pos = static_cast<int>(input.size());
        }
    }
    return QDoubleSpinBox::validate(input, pos);
}

QString DoubleSpinBox::textFromValue(double value) const
{
    const bool isLast = value == m_textValue && std::signbit(value) == std::signbit(m_textValue)
                        && decimals() == m_textDecimals && locale() == m_textLocale;
    if (!isLast) {
        m_text = makeText(value);
        m_textLocale = locale();
        m_textValue = value;
        m_textDecimals = decimals();
    }
    return m_text;
}

QString DoubleSpinBox::makeText(double value) const
{
    // These are a QChar in Qt 5 and a QString in Qt 6, where some scripts need two code units.
    const QString groupSeparator(locale().groupSeparator());
    const QString point(locale().decimalPoint());
    const QString zero(locale().zeroDigit());

    QString text = locale().toString(value, 'f', decimals());
    if (std::fabs(value) >= kSmallestGroupedNumber)
        text.remove(groupSeparator, Qt::CaseSensitive);
    if (text.contains(point)) {
        while (text.endsWith(zero))
            text.chop(zero.size());
        if (text.endsWith(point))
            text.chop(point.size());
    }
    return text;
}

} // namespace Tessark::PropertyUI
