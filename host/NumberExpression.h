#pragma once

#include "host/NumberScope.h"
#include "host/PropertyHostExport.h"

#include <QString>

namespace Tessark::PropertyHost {

/**
 * Arithmetic as users type it into a number field, evaluated.
 *
 * Numbers have either decimal mark, whatever the locale: "1.5" and "1,5" are the same. A single mark
 * is always the decimal mark; of two different ones the last is and the others group digits in
 * threes, so that "1,234.5" and "1.234,5" are the same; one mark more than once groups ("1,234,567").
 * Operators are + - * / ^ and parentheses; a sign binds less than ^, which binds to the right. The
 * functions abs, sqrt, sin, cos (of radians), round (halves away from zero), floor, ceil take a value,
 * min and max two or more with ";" between them. The name pi stands for the number unless the scope
 * has a value of that name. Names are letters, digits and underscores joined by points; others stand
 * in backquotes. An "=" may stand in front.
 *
 * A percentage behind + or - is one of the value before it ("80 + 10%" is 88), behind * or / a
 * fraction ("80 * 10%" is 8), and anywhere else one of the current value. In a percent field it is
 * the number itself but for the fractions.
 *
 * "+=", "-=", "*=" or "/=" in front makes the expression relative to the current value.
 *
 * Texts of more than 500 characters, more than 50 levels of nesting, a division by zero and what gives
 * no finite number are mistakes. Nothing is thrown and the locale is not read.
 */
class TESSARK_PROPERTYHOST_EXPORT NumberExpression
{
public:
    explicit NumberExpression(const QString &text, const NumberScope &scope = {});

    bool isValid() const { return m_errorPosition < 0; }

    /// What the field is to hold; 0 when not valid.
    double value() const { return m_value; }

    /// How value() came from the current value and operand(). For a relative text it lets a host
    /// apply it to other values as well; a percentage, though, was one of this scope's current value.
    NumberOperation operation() const { return m_operation; }
    double operand() const { return m_operand; }

    /// What is wrong, translated, and the character that it is about, counted from 0; an empty text
    /// and -1 when valid.
    QString errorText() const { return m_errorText; }
    int errorPosition() const { return m_errorPosition; }

    /// True for a mistake at the end of the text that more text may cure.
    bool isUnfinished() const { return m_isUnfinished; }

private:
    double m_value = 0.0;
    double m_operand = 0.0;
    NumberOperation m_operation = NumberOperation::Replace;
    QString m_errorText;
    int m_errorPosition = -1;
    bool m_isUnfinished = false;
};

} // namespace Tessark::PropertyHost
