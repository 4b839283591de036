#include "host/NumberParser_p.h"

#include "host/NumberFunctions_p.h"
#include "host/Suggestion_p.h"

#include <QtMath>

#include <cmath>

namespace Tessark::PropertyHost {

namespace {

constexpr int kMaximumLength = 500;
constexpr int kMaximumNesting = 50;
constexpr double kPerCent = 100.0;

struct RelativePrefix
{
    char sign;
    NumberOperation operation;
};

constexpr RelativePrefix kRelativePrefixes[] = {
    {'+', NumberOperation::Add},
    {'-', NumberOperation::Subtract},
    {'*', NumberOperation::Multiply},
    {'/', NumberOperation::Divide},
};

double fractionOf(const NumberTerm &term)
{
    return term.isPercentage ? term.number / kPerCent : term.number;
}

} // namespace

NumberParser::NumberParser(const QString &text, const NumberScope &scope)
    : m_scope(scope)
    , m_scanner(text)
{
    if (text.size() > kMaximumLength)
        fail(kMaximumLength,
             tr("The expression is longer than %n characters", nullptr, kMaximumLength));
}

NumberOperation NumberParser::takeOperation()
{
    for (const RelativePrefix &prefix : kRelativePrefixes) {
        NumberScanner ahead = m_scanner;
        if (ahead.take(prefix.sign) && ahead.take('=')) {
            m_scanner = ahead;
            return prefix.operation;
        }
    }
    m_scanner.take('=');
    return NumberOperation::Replace;
}

NumberTerm NumberParser::parse()
{
    if (hasFailed())
        return {};
    const NumberTerm term = parseSum();
    if (!hasFailed() && !m_scanner.isAtEnd())
        failHere();
    return term;
}

double NumberParser::operandOf(const NumberTerm &term, NumberOperation operation) const
{
    const bool isFactor =
        operation == NumberOperation::Multiply || operation == NumberOperation::Divide;
    return isFactor ? fractionOf(term) : numberOf(term);
}

double NumberParser::applied(NumberOperation operation, double operand)
{
    switch (operation) {
    case NumberOperation::Replace:
        return checked(operand, 0);
    case NumberOperation::Add:
        return checked(m_scope.current + operand, 0);
    case NumberOperation::Subtract:
        return checked(m_scope.current - operand, 0);
    case NumberOperation::Multiply:
        return checked(m_scope.current * operand, 0);
    case NumberOperation::Divide:
        return quotient(m_scope.current, operand, 0);
    }
    return 0.0;
}

/// A percentage that stands alone is one of the current value.
double NumberParser::numberOf(const NumberTerm &term) const
{
    const bool isPart = term.isPercentage && !m_scope.isPercentField;
    return isPart ? m_scope.current * fractionOf(term) : term.number;
}

NumberTerm NumberParser::sum(const NumberTerm &left, const NumberTerm &right, int sign,
                             int position)
{
    if (left.isPercentage && right.isPercentage)
        return {checked(left.number + sign * right.number, position), true};
    const double base = numberOf(left);
    const bool isPart = right.isPercentage && !m_scope.isPercentField;
    const double change = isPart ? base * fractionOf(right) : right.number;
    return {checked(base + sign * change, position), false};
}

/// So many per cent, multiplied, are per cent still.
NumberTerm NumberParser::product(const NumberTerm &left, double factor, int position)
{
    return {checked(left.number * factor, position), left.isPercentage};
}

double NumberParser::quotient(double dividend, double divisor, int position)
{
    if (divisor == 0.0)
        fail(position, tr("Division by zero"));
    return hasFailed() ? 0.0 : checked(dividend / divisor, position);
}

NumberTerm NumberParser::parseSum()
{
    NumberTerm left = parseProduct();
    while (!hasFailed()) {
        const int position = m_scanner.position();
        if (m_scanner.take('+'))
            left = sum(left, parseProduct(), 1, position);
        else if (m_scanner.take('-'))
            left = sum(left, parseProduct(), -1, position);
        else
            break;
    }
    return left;
}

NumberTerm NumberParser::parseProduct()
{
    NumberTerm left = parseSigned();
    while (!hasFailed()) {
        const int position = m_scanner.position();
        if (m_scanner.take('*'))
            left = product(left, fractionOf(parseSigned()), position);
        else if (m_scanner.take('/'))
            left.number = quotient(left.number, fractionOf(parseSigned()), position);
        else
            break;
    }
    return left;
}

NumberTerm NumberParser::parseSigned()
{
    const bool isNegative = m_scanner.take('-');
    if (!isNegative && !m_scanner.take('+'))
        return parsePercentage();
    if (!descend())
        return {};
    const NumberTerm term = parseSigned();
    --m_depth;
    return isNegative ? NumberTerm{-term.number, term.isPercentage} : term;
}

NumberTerm NumberParser::parsePercentage()
{
    const double number = parsePower();
    return {number, !hasFailed() && m_scanner.take('%')};
}

double NumberParser::parsePower()
{
    const double base = parseValue();
    const int position = m_scanner.position();
    if (hasFailed() || !m_scanner.take('^'))
        return base;
    const double exponent = parseExponent();
    return checked(std::pow(base, exponent), position);
}

double NumberParser::parseExponent()
{
    if (!descend())
        return 0.0;
    const bool isNegative = m_scanner.take('-');
    const bool isSigned = isNegative || m_scanner.take('+');
    const double exponent = isSigned ? parseExponent() : parsePower();
    --m_depth;
    return isNegative ? -exponent : exponent;
}

double NumberParser::parseValue()
{
    double value = 0.0;
    if (m_scanner.isNumberNext())
        value = parseNumber();
    else if (m_scanner.take('('))
        value = parseParenthesis();
    else
        value = parseNamed();
    if (!hasFailed() && m_scope.unit != QLatin1String("%"))
        m_scanner.takeText(m_scope.unit);
    return value;
}

double NumberParser::parseNumber()
{
    const int position = m_scanner.position();
    const QString text = m_scanner.nextPart();
    const std::optional<double> number = m_scanner.takeNumber();
    if (!number)
        fail(position, tr("%1 is not a number").arg(quoted(text)));
    return number.value_or(0.0);
}

double NumberParser::parseParenthesis()
{
    if (!descend())
        return 0.0;
    const double number = numberOf(parseSum());
    --m_depth;
    expect(')');
    return number;
}

double NumberParser::parseNamed()
{
    const int position = m_scanner.position();
    const QString name = m_scanner.takeName();
    if (name.isEmpty()) {
        failHere();
        return 0.0;
    }
    if (m_scanner.take('('))
        return callFunction(name, position);
    const std::optional<double> value = m_scope.valueOf ? m_scope.valueOf(name) : std::nullopt;
    if (value)
        return checked(*value, position);
    if (name == QLatin1String("pi"))
        return M_PI;
    fail(position, tr("There is no number named %1").arg(quoted(name)));
    m_isUnfinished = m_scanner.isAtEnd();
    return 0.0;
}

double NumberParser::callFunction(const QString &name, int position)
{
    const NumberFunction *const function = numberFunction(name);
    if (!function) {
        fail(position, tr("There is no function named %1").arg(quoted(name)));
        return 0.0;
    }
    if (!descend())
        return 0.0;
    const QVector<double> arguments = parseArguments();
    --m_depth;
    const auto count = static_cast<int>(arguments.size());
    if (count < function->minArguments)
        fail(position, tr("%1 takes two or more numbers, with \";\" between them").arg(name));
    else if (count > function->maxArguments)
        fail(position, tr("%1 takes one number").arg(name));
    return hasFailed() ? 0.0 : checked(function->call(arguments), position);
}

QVector<double> NumberParser::parseArguments()
{
    QVector<double> arguments;
    do {
        arguments.append(numberOf(parseSum()));
    } while (!hasFailed() && m_scanner.take(';'));
    expect(')');
    return arguments;
}

bool NumberParser::descend()
{
    if (++m_depth > kMaximumNesting) {
        fail(m_scanner.position(),
             tr("The expression is nested more than %n levels deep", nullptr, kMaximumNesting));
    }
    return !hasFailed();
}

double NumberParser::checked(double number, int position)
{
    if (std::isnan(number))
        fail(position, tr("The result is no real number"));
    else if (std::isinf(number))
        fail(position, tr("The result is too large"));
    return hasFailed() ? 0.0 : number;
}

void NumberParser::expect(char sign)
{
    if (!hasFailed() && !m_scanner.take(sign))
        failHere();
}

void NumberParser::fail(int position, const QString &text)
{
    if (hasFailed())
        return;
    m_errorText = text;
    m_errorPosition = position;
}

void NumberParser::failHere()
{
    const int position = m_scanner.position();
    m_isUnfinished = !hasFailed() && m_scanner.isAtEnd();
    if (m_scanner.isAtEnd())
        fail(position, tr("Something is missing at the end"));
    else
        fail(position, tr("%1 is not expected here").arg(quoted(m_scanner.nextPart())));
}

} // namespace Tessark::PropertyHost
