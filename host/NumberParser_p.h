#pragma once

#include "host/NumberScanner_p.h"
#include "host/NumberScope.h"

#include <QCoreApplication>
#include <QVector>

namespace Tessark::PropertyHost {

/// A number, or so many per cent of what is not known yet.
struct NumberTerm
{
    double number = 0.0;
    bool isPercentage = false;
};

/// Descends through the levels of an expression and evaluates it on the way. After a mistake every
/// function returns at once; the first mistake is the one that is told.
class NumberParser
{
    Q_DECLARE_TR_FUNCTIONS(Tessark::PropertyHost::NumberExpression)

public:
    NumberParser(const QString &text, const NumberScope &scope);

    NumberOperation takeOperation();

    /// All of the rest.
    NumberTerm parse();

    /// The second number of a relative operation: a percentage added or taken away is one of the
    /// current value, any other a fraction.
    double operandOf(const NumberTerm &term, NumberOperation operation) const;

    /// The current value after the operation.
    double applied(NumberOperation operation, double operand);

    bool hasFailed() const { return m_errorPosition >= 0; }
    QString errorText() const { return m_errorText; }
    int errorPosition() const { return m_errorPosition; }
    bool isUnfinished() const { return m_isUnfinished; }

private:
    double numberOf(const NumberTerm &term) const;
    NumberTerm sum(const NumberTerm &left, const NumberTerm &right, int sign, int position);
    NumberTerm product(const NumberTerm &left, double factor, int position);
    double quotient(double dividend, double divisor, int position);

    NumberTerm parseSum();
    NumberTerm parseProduct();
    NumberTerm parseSigned();
    NumberTerm parsePercentage();
    double parsePower();
    double parseExponent();
    double parseValue();
    double parseNumber();
    double parseParenthesis();
    double parseNamed();
    double callFunction(const QString &name, int position);
    QVector<double> parseArguments();

    bool descend();
    double checked(double number, int position);
    void expect(char sign);
    void fail(int position, const QString &text);
    void failHere();

    const NumberScope &m_scope;
    NumberScanner m_scanner;
    int m_depth = 0;
    QString m_errorText;
    int m_errorPosition = -1;
    bool m_isUnfinished = false;
};

} // namespace Tessark::PropertyHost
