#include "fuzz/FuzzInput.h"
#include "fuzz/FuzzTarget.h"

#include <host/NumberExpression.h>

#include <QLocale>

#include <cmath>

using namespace Fuzz;
using namespace Tessark::PropertyHost;

namespace {

constexpr int kMostCharacters = 500;
constexpr int kMostNames = kMostCharacters; // each has a character of its own
constexpr std::size_t kBytesOfField = 24;

const char *const kUnits[] = {"", "", "", "mm", "%", "\xc2\xb0", "pi", "e3"};

/// A field that shows any number in any unit, beside rows whose numbers may be none.
NumberScope anyScope(FuzzInput &input, int &asked)
{
    NumberScope scope;
    scope.current = input.number();
    scope.isPercentField = input.oneIn(3);
    scope.unit = QString::fromUtf8(input.pick(kUnits));
    const double width = input.number();
    scope.valueOf = [width, &asked](const QString &name) -> std::optional<double> {
        ++asked;
        if (name == QLatin1String("width"))
            return width;
        if (name == QLatin1String("my row"))
            return -0.5;
        return std::nullopt;
    };
    return scope;
}

bool isSame(const NumberExpression &left, const NumberExpression &right)
{
    return left.isValid() == right.isValid() && left.value() == right.value()
           && left.operand() == right.operand() && left.operation() == right.operation()
           && left.errorText() == right.errorText()
           && left.errorPosition() == right.errorPosition();
}

void checkMistake(const NumberExpression &expression, const QString &text)
{
    require(!expression.errorText().isEmpty(), "a mistake is told");
    require(expression.errorPosition() <= text.size(), "a mistake lies in the text, or behind it");
    require(expression.value() == 0.0 && expression.operand() == 0.0, "a mistake has no value");
}

double applied(const NumberExpression &expression, double current)
{
    switch (expression.operation()) {
    case NumberOperation::Add:
        return current + expression.operand();
    case NumberOperation::Subtract:
        return current - expression.operand();
    case NumberOperation::Multiply:
        return current * expression.operand();
    case NumberOperation::Divide:
        return current / expression.operand();
    case NumberOperation::Replace:
        break;
    }
    return expression.operand();
}

void checkValue(const NumberExpression &expression, const NumberScope &scope)
{
    require(std::isfinite(expression.value()), "a value is a finite number");
    require(expression.value() == applied(expression, scope.current),
            "a value is the operand, applied to what the field holds");
    require(expression.errorText().isEmpty() && !expression.isUnfinished(),
            "nothing is wrong then");
}

/// Texts made of one without a mistake, unless they are too long or nested too deep.
void checkMade(const QString &text, double expected, const NumberScope &scope)
{
    const NumberExpression made(text, scope);
    if (made.isValid() ? made.value() != expected
                       : !made.errorText().contains(QLatin1String("than")))
        fail(QStringLiteral("wrong or refused (%1): %2").arg(made.errorText(), text));
}

void checkLaws(const NumberExpression &expression, const QString &text, const NumberScope &scope)
{
    if (expression.operation() != NumberOperation::Replace
        || text.trimmed().startsWith(QLatin1Char('=')))
        return;
    checkMade(QStringLiteral(" = %1\t").arg(text), expression.value(), scope);
    checkMade(QStringLiteral("(%1)").arg(text), expression.value(), scope);
    checkMade(QStringLiteral("-(-(%1))").arg(text), expression.value(), scope);
    checkMade(QStringLiteral("max((%1); (%1))").arg(text), expression.value(), scope);
}

} // namespace

/// The first bytes decide about the field, the others are the text.
int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    // The first has a decimal comma, the other one a point. Mistakes are told in the same language.
    static const QLocale s_german(QLocale::German, QLocale::Germany);
    static const QLocale s_swiss(QLocale::German, QLocale::Switzerland);
    QLocale::setDefault(s_german);
    FuzzInput input(data, size);
    FuzzInput field = input.take(kBytesOfField);
    int asked = 0;
    const NumberScope scope = anyScope(field, asked);
    const QString text = input.remainingText();

    const NumberExpression expression(text, scope);
    require(asked <= kMostNames, "a name is asked for once where it stands");
    if (expression.isValid())
        checkValue(expression, scope);
    else
        checkMistake(expression, text);
    QLocale::setDefault(s_swiss);
    require(isSame(expression, NumberExpression(text, scope)), "the locale is not read");
    QLocale::setDefault(QLocale::c()); // mistakes are told in English
    require(text.size() <= kMostCharacters || !expression.isValid(), "a text has a limit");
    if (expression.isValid())
        checkLaws(expression, text, scope);
    return 0;
}
