#include <host/NumberExpression.h>

#include "support/MarkingTranslator.h"

#include <QMap>
#include <QRandomGenerator>
#include <QTest>

#include <algorithm>
#include <cmath>
#include <limits>

using Tessark::PropertyHost::NumberExpression;
using Tessark::PropertyHost::NumberOperation;
using Tessark::PropertyHost::NumberScope;

Q_DECLARE_METATYPE(Tessark::PropertyHost::NumberOperation)

namespace {

constexpr double kPi = 3.14159265358979323846;

/// A field that holds 40 beside a few others.
NumberScope fieldOf(const QString &unit = QString())
{
    NumberScope scope;
    scope.current = 40.0;
    scope.unit = unit;
    scope.isPercentField = unit == QLatin1String("%");
    scope.valueOf = [](const QString &name) -> std::optional<double> {
        static const QMap<QString, double> s_values{
            {QStringLiteral("w"), 6},
            {QStringLiteral("width"), 60},
            {QStringLiteral("size.width"), 600},
            {QStringLiteral("_gain2"), 0.5},
            {QStringLiteral("my row"), 7},
            {QStringLiteral("größe"), 8},
            {QStringLiteral("min"), 9},
            {QStringLiteral("broken"), std::numeric_limits<double>::quiet_NaN()},
        };
        const auto found = s_values.constFind(name);
        return found == s_values.constEnd() ? std::nullopt : std::optional<double>(*found);
    };
    return scope;
}

void addRow(const char *text, double value)
{
    QTest::newRow(text) << QString::fromUtf8(text) << value;
}

/// Writes random expressions and works out what each is while it does. It knows the language's
/// levels, from sums to single values, but reads nothing.
class Writer
{
public:
    struct Part
    {
        QString text;
        double value = 0.0;
    };

    explicit Writer(quint32 seed)
        : m_random(seed)
    {
    }

    /// Whether no step on the way was too large.
    bool isFinite() const { return m_isFinite; }

    Part sum(int depth)
    {
        Part left = product(depth);
        for (int more = below(3); more > 0; --more) {
            const bool isPlus = below(2) == 0;
            if (below(6) == 0) {
                const Part share = literal();
                const double change = left.value * (share.value / 100.0);
                left.value = isPlus ? left.value + change : left.value - change;
                left.text +=
                    blank() + sign(isPlus, "+", "-") + blank() + share.text + QLatin1Char('%');
                continue;
            }
            const Part right = product(depth);
            left.value = isPlus ? left.value + right.value : left.value - right.value;
            left.text += blank() + sign(isPlus, "+", "-") + blank() + right.text;
        }
        return noted(left);
    }

private:
    Part product(int depth)
    {
        Part left = withSign(depth);
        for (int more = below(3); more > 0; --more) {
            const bool isTimes = below(2) == 0;
            Part right = withSign(depth);
            while (!isTimes && right.value == 0.0)
                right = withSign(depth);
            left.value = isTimes ? left.value * right.value : left.value / right.value;
            left.text += blank() + sign(isTimes, "*", "/") + blank() + right.text;
            noted(left);
        }
        return left;
    }

    Part withSign(int depth)
    {
        Part part = power(depth);
        for (int signs = below(6) == 0 ? 1 + below(2) : 0; signs > 0; --signs) {
            const bool isPlus = below(3) == 0;
            part.text = sign(isPlus, "+", "-") + blank() + part.text;
            part.value = isPlus ? part.value : -part.value;
        }
        return part;
    }

    Part power(int depth)
    {
        Part base = value(depth);
        if (below(8) != 0)
            return base;
        const int exponent = 1 + below(3);
        base.text += blank() + QLatin1Char('^') + blank() + QString::number(exponent);
        base.value = std::pow(base.value, exponent);
        return noted(base);
    }

    Part value(int depth)
    {
        if (depth == 0 || below(3) == 0)
            return literal();
        if (below(3) == 0)
            return call(depth - 1);
        const Part inner = sum(depth - 1);
        return {QLatin1Char('(') + blank() + inner.text + blank() + QLatin1Char(')'), inner.value};
    }

    Part call(int depth)
    {
        const Part first = sum(depth);
        const Part second = sum(depth);
        const QString one = QStringLiteral("(") + first.text + QLatin1Char(')');
        const QString two = QStringLiteral("(") + first.text + blank() + QLatin1Char(';') + blank()
                            + second.text + QLatin1Char(')');
        switch (below(8)) {
        case 0:
            return {QStringLiteral("min") + two, std::min(first.value, second.value)};
        case 1:
            return {QStringLiteral("max") + two, std::max(first.value, second.value)};
        case 2:
            return {QStringLiteral("sqrt(abs") + one + QLatin1Char(')'),
                    std::sqrt(std::fabs(first.value))};
        case 3:
            return {QStringLiteral("sin") + one, std::sin(first.value)};
        case 4:
            return {QStringLiteral("cos") + one, std::cos(first.value)};
        case 5:
            return {QStringLiteral("round") + one, std::round(first.value)};
        case 6:
            return {QStringLiteral("floor") + one, std::floor(first.value)};
        default:
            return {QStringLiteral("ceil") + one, std::ceil(first.value)};
        }
    }

    /// A whole number of thousandths, in one of the ways to write it.
    Part literal()
    {
        const int whole = below(4) == 0 ? below(5'000'000) : below(100);
        const int thousandths = below(2) == 0 ? 0 : below(1000);
        const QString decimals = QString::number(thousandths).rightJustified(3, QLatin1Char('0'));
        const double value = (QString::number(whole) + QLatin1Char('.') + decimals).toDouble();
        const bool pointIsDecimal = below(2) == 0;
        QString text = QString::number(whole);
        if (below(2) == 0 && whole >= 1000 && thousandths != 0) {
            for (auto at = text.size() - 3; at > 0; at -= 3)
                text.insert(at, sign(pointIsDecimal, ",", "."));
        }
        if (thousandths != 0)
            text += sign(pointIsDecimal, ".", ",") + decimals;
        return {text, value};
    }

    const Part &noted(const Part &part)
    {
        m_isFinite = m_isFinite && std::isfinite(part.value);
        return part;
    }

    int below(int limit) { return m_random.bounded(limit); }
    QString blank() { return below(4) == 0 ? QStringLiteral(" ") : QString(); }
    static QString sign(bool isFirst, const char *first, const char *second)
    {
        return QLatin1String(isFirst ? first : second);
    }

    QRandomGenerator m_random;
    bool m_isFinite = true;
};

} // namespace

class tst_NumberExpression : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void values_data();
    void values();
    void percentFields_data();
    void percentFields();
    void unitsAreIgnored_data();
    void unitsAreIgnored();
    void relativeTexts_data();
    void relativeTexts();
    void mistakes_data();
    void mistakes();
    void unfinishedTexts_data();
    void unfinishedTexts();
    void lengthIsBounded();
    void nestingIsBounded_data();
    void nestingIsBounded();
    void localeIsNotRead();
    void currentValueThatIsNoNumber();
    void mistakesAreTranslated();
    void randomExpressions();
    void randomTextsGiveNumbersOrMistakes();
};

void tst_NumberExpression::values_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("value");

    // Numbers.
    addRow("7", 7);
    addRow("  7\t", 7);
    addRow("007", 7);
    addRow("1.5", 1.5);
    addRow("1,5", 1.5);
    addRow(".5", 0.5);
    addRow(",5", 0.5);
    addRow("5.", 5);
    addRow("1,234", 1.234);
    addRow("1.234", 1.234);
    addRow("1,234.5", 1234.5);
    addRow("1.234,5", 1234.5);
    addRow("1,234,567", 1234567);
    addRow("1.234.567", 1234567);
    addRow("12.345.678,25", 12345678.25);
    addRow("12,345,678.25", 12345678.25);
    addRow("1e3", 1000);
    addRow("1E+3", 1000);
    addRow("2.5e-3", 0.0025);
    addRow("2,5e-3", 0.0025);
    addRow("٣٫٥", 3.5);
    addRow("१२", 12);
    addRow("١٬٢٣٤٫٥", 1234.5);

    // Operators.
    addRow("1+2*3", 7);
    addRow("(1+2)*3", 9);
    addRow("7-2-1", 4);
    addRow("24/4/2", 3);
    addRow("7/2", 3.5);
    addRow("-3", -3);
    addRow("+3", 3);
    addRow("--3", 3);
    addRow("2*-3", -6);
    addRow("2 - -3", 5);
    addRow("2^3", 8);
    addRow("2^3^2", 512);
    addRow("-2^2", -4);
    addRow("(-2)^2", 4);
    addRow("2^-1", 0.5);
    addRow("2*3^2", 18);
    addRow("6 × 2 ÷ 3 − 1", 3);
    addRow("2·3", 6);
    addRow("((((2))))", 2);
    addRow("= 1 + 1", 2);
    addRow("=3", 3);

    // Functions and constants.
    addRow("pi", kPi);
    addRow("2*pi", 2 * kPi);
    addRow("abs(-3)", 3);
    addRow("sqrt(9)", 3);
    addRow("sin(pi/2)", 1);
    addRow("cos(0)", 1);
    addRow("round(2.5)", 3);
    addRow("round(-2.5)", -3);
    addRow("floor(-0.5)", -1);
    addRow("ceil(0.2)", 1);
    addRow("min(3; 1; 2)", 1);
    addRow("max(3; 1,5; 2)", 3);
    addRow("max(1,5; 1.25)", 1.5);
    addRow("sqrt (16) + 1", 5);

    // Names.
    addRow("w/2", 3);
    addRow("=width/2", 30);
    addRow("size.width", 600);
    addRow("_gain2*4", 2);
    addRow("`my row`+1", 8);
    addRow("größe", 8);
    addRow("min", 9);
    addRow("min(1; 2)", 1);

    // Percentages of the current value, which is 40, or of what is before them.
    addRow("50%", 20);
    addRow("-50%", -20);
    addRow("50 %", 20);
    addRow("200 + 10%", 220);
    addRow("200 - 10%", 180);
    addRow("200 - -10%", 220);
    addRow("100 + 10% + 10%", 121);
    addRow("50% + 10%", 24);
    addRow("50% + 1", 21);
    addRow("200 * 10%", 20);
    addRow("20 / 50%", 40);
    addRow("50% * 2", 40);
    addRow("50% / 2", 10);
    addRow("50% * 50%", 10);
    addRow("100 + 10% * 2", 120);
    addRow("100 + (10%)", 104);
    addRow("max(10%; 3)", 4);
    addRow("(25+25)%", 20);
    addRow("5^2%", 10);
    addRow("w + 50%", 9);
}

void tst_NumberExpression::values()
{
    QFETCH(QString, text);
    QFETCH(double, value);

    const NumberExpression expression(text, fieldOf());

    QVERIFY2(expression.isValid(), qPrintable(expression.errorText()));
    QCOMPARE(expression.value(), value);
    QCOMPARE(expression.operation(), NumberOperation::Replace);
    QCOMPARE(expression.operand(), value);
    QCOMPARE(expression.errorPosition(), -1);
    QVERIFY(!expression.isUnfinished());
}

void tst_NumberExpression::percentFields_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("value");

    addRow("50%", 50);
    addRow("50", 50);
    addRow("50% + 10%", 60);
    addRow("٥٠٪ + ١٠٪", 60);
    addRow("50 + 10%", 60);
    addRow("50% - 10", 40);
    addRow("50% / 2", 25);
    addRow("80 * 50%", 40);
    addRow("50% * 50%", 25);
    addRow("max(10%; 20)", 20);
    addRow("+=10%", 50);
    addRow("*=50%", 20);
}

void tst_NumberExpression::percentFields()
{
    QFETCH(QString, text);
    QFETCH(double, value);

    const NumberExpression expression(text, fieldOf(QStringLiteral("%")));

    QVERIFY2(expression.isValid(), qPrintable(expression.errorText()));
    QCOMPARE(expression.value(), value);
}

void tst_NumberExpression::unitsAreIgnored_data()
{
    QTest::addColumn<QString>("unit");
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("value"); // NaN for a mistake

    const double mistake = std::numeric_limits<double>::quiet_NaN();
    const auto row = [](const char *unit, const char *text, double value) {
        QTest::addRow("%s in %s", text, unit)
            << QString::fromUtf8(unit) << QString::fromUtf8(text) << value;
    };
    row("mm", "2mm", 2);
    row("mm", "2 mm + 3 mm", 5);
    row("mm", "(2 + 3) mm", 5);
    row("mm", "2mm * 3", 6);
    row("mm", "width mm", 60);
    row("mm", "2m", mistake);
    row("mm", "2mmm", mistake);
    row("mm", "2mm2", mistake);
    row("mm", "mm", mistake);
    row("m/s", "6m/s / 2", 3);
    row("°", "90° / 2", 45);
    row("px²", "4px²", 4);
    row("w", "2 w", 2);
    row("w", "2 * w", 12);
    row("%", "20%", 20);
    row("", "20 mm", mistake);
}

void tst_NumberExpression::unitsAreIgnored()
{
    QFETCH(QString, unit);
    QFETCH(QString, text);
    QFETCH(double, value);

    const NumberExpression expression(text, fieldOf(unit));

    QCOMPARE(expression.isValid(), !std::isnan(value));
    if (expression.isValid())
        QCOMPARE(expression.value(), value);
}

void tst_NumberExpression::relativeTexts_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<NumberOperation>("operation");
    QTest::addColumn<double>("operand");
    QTest::addColumn<double>("value");

    const auto row = [](const char *text, NumberOperation operation, double operand, double value) {
        QTest::newRow(text) << QString::fromUtf8(text) << operation << operand << value;
    };
    row("+=2", NumberOperation::Add, 2, 42);
    row("-=2", NumberOperation::Subtract, 2, 38);
    row("*=2", NumberOperation::Multiply, 2, 80);
    row("/=2", NumberOperation::Divide, 2, 20);
    row(" + = 2 ", NumberOperation::Add, 2, 42);
    row("+=-2", NumberOperation::Add, -2, 38);
    row("*=1+1", NumberOperation::Multiply, 2, 80);
    row("+=w/2", NumberOperation::Add, 3, 43);
    row("+=10%", NumberOperation::Add, 4, 44);
    row("-=10%", NumberOperation::Subtract, 4, 36);
    row("*=50%", NumberOperation::Multiply, 0.5, 20);
    row("/=50%", NumberOperation::Divide, 0.5, 80);
    row("−=2", NumberOperation::Subtract, 2, 38);
    row("×=2", NumberOperation::Multiply, 2, 80);
    row("+2", NumberOperation::Replace, 2, 2);
    row("-2", NumberOperation::Replace, -2, -2);
}

void tst_NumberExpression::relativeTexts()
{
    QFETCH(QString, text);
    QFETCH(NumberOperation, operation);
    QFETCH(double, operand);
    QFETCH(double, value);

    const NumberExpression expression(text, fieldOf());

    QVERIFY2(expression.isValid(), qPrintable(expression.errorText()));
    QCOMPARE(expression.operation(), operation);
    QCOMPARE(expression.operand(), operand);
    QCOMPARE(expression.value(), value);
}

void tst_NumberExpression::mistakes_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("position");
    QTest::addColumn<QString>("message");

    const auto row = [](const char *text, int position, const char *message) {
        QTest::newRow(text) << QString::fromUtf8(text) << position << QString::fromUtf8(message);
    };
    row("1 2", 2, "\"2\" is not expected here");
    row("2(3)", 1, "\"(\" is not expected here");
    row("2 w", 2, "\"w\" is not expected here");
    row("1 + * 2", 4, "\"*\" is not expected here");
    row("1 + 2)", 5, "\")\" is not expected here");
    row("(1 ; 2)", 3, "\";\" is not expected here");
    row("()", 1, "\")\" is not expected here");
    row("5%%", 2, "\"%\" is not expected here");
    row("50%^2", 3, "\"^\" is not expected here");
    row("=+=2", 2, "\"=\" is not expected here");
    row("==2", 1, "\"=\" is not expected here");
    row("1 # 2", 2, "\"#\" is not expected here");
    row("`open", 0, "\"`\" is not expected here");
    row("1e", 1, "\"e\" is not expected here");
    row(".", 0, "\".\" is not expected here");
    row("1.2.3", 0, "\"1.2.3\" is not a number");
    row("1,23,456", 0, "\"1,23,456\" is not a number");
    row("1234,567.8", 0, "\"1234,567.8\" is not a number");
    row("1,234.567,8", 0, "\"1,234.567,8\" is not a number");
    row("1..2", 0, "\"1..2\" is not a number");
    row("1 + 1e999", 4, "\"1e999\" is not a number");
    row("2 * depth", 4, "There is no number named \"depth\"");
    row("nan", 0, "There is no number named \"nan\"");
    row("inf", 0, "There is no number named \"inf\"");
    row("1 + log(2)", 4, "There is no function named \"log\"");
    row("w(2)", 0, "There is no function named \"w\"");
    row("min(2)", 0, "min takes two or more numbers, with \";\" between them");
    row("min(1,2)", 0, "min takes two or more numbers, with \";\" between them");
    row("sin(1; 2)", 0, "sin takes one number");
    row("sin()", 4, "\")\" is not expected here");
    row("4 / 0", 2, "Division by zero");
    row("4 / (2 - 2)", 2, "Division by zero");
    row("4 / 0%", 2, "Division by zero");
    row("/=0", 0, "Division by zero");
    row("sqrt(-1)", 0, "The result is no real number");
    row("(-8)^0.5", 4, "The result is no real number");
    row("1e308 * 10", 6, "The result is too large");
    row("1 / (1e308 * 10)", 11, "The result is too large");
    row("10^400", 2, "The result is too large");
    row("0^-1", 1, "The result is too large");
    row("*=1e308", 0, "The result is too large");
    row("broken", 0, "The result is no real number");
}

void tst_NumberExpression::mistakes()
{
    QFETCH(QString, text);
    QFETCH(int, position);
    QFETCH(QString, message);

    const NumberExpression expression(text, fieldOf());

    QVERIFY(!expression.isValid());
    QCOMPARE(expression.errorText(), message);
    QCOMPARE(expression.errorPosition(), position);
    QCOMPARE(expression.value(), 0.0);
    QCOMPARE(expression.operand(), 0.0);
}

void tst_NumberExpression::unfinishedTexts_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("unfinished");

    const auto row = [](const char *text, bool unfinished) {
        QTest::newRow(text) << QString::fromUtf8(text) << unfinished;
    };
    row("", true);
    row("=", true);
    row("1 +", true);
    row("1 + ", true);
    row("-", true);
    row("*=", true);
    row("(1 + 2", true);
    row("min(1;", true);
    row("2 * dep", true);
    row("2 * dep + 1", false);
    row("1 + )", false);
    row("4 / 0", false);
    row("1 2", false);
}

void tst_NumberExpression::unfinishedTexts()
{
    QFETCH(QString, text);
    QFETCH(bool, unfinished);

    const NumberExpression expression(text, fieldOf());

    QVERIFY(!expression.isValid());
    QCOMPARE(expression.isUnfinished(), unfinished);
    QVERIFY(!expression.errorText().isEmpty());
}

void tst_NumberExpression::lengthIsBounded()
{
    const QString longest = QStringLiteral("1+").repeated(249) + QStringLiteral("11");
    QCOMPARE(longest.size(), 500);
    QCOMPARE(NumberExpression(longest).value(), 260.0);

    const NumberExpression tooLong(longest + QLatin1Char(' '));
    QVERIFY(!tooLong.isValid());
    QCOMPARE(tooLong.errorPosition(), 500);
    QVERIFY(!tooLong.isUnfinished());
    QVERIFY(!NumberExpression(QString(1'000'000, QLatin1Char('('))).isValid());
}

void tst_NumberExpression::nestingIsBounded_data()
{
    QTest::addColumn<QString>("open");
    QTest::addColumn<QString>("close");

    QTest::newRow("parentheses") << QStringLiteral("(") << QStringLiteral(")");
    QTest::newRow("signs") << QStringLiteral("-") << QString();
    QTest::newRow("powers") << QStringLiteral("1^") << QString();
    QTest::newRow("functions") << QStringLiteral("abs(") << QStringLiteral(")");
}

void tst_NumberExpression::nestingIsBounded()
{
    QFETCH(QString, open);
    QFETCH(QString, close);

    const auto nested = [&](int depth) {
        return NumberExpression(open.repeated(depth) + QLatin1Char('1') + close.repeated(depth));
    };

    QVERIFY(nested(50).isValid());
    QCOMPARE(nested(50).value(), 1.0);
    QVERIFY(!nested(51).isValid());
    QCOMPARE(nested(51).errorText(),
             QStringLiteral("The expression is nested more than 50 levels deep"));
}

void tst_NumberExpression::localeIsNotRead()
{
    const QLocale before;
    for (const char *const name : {"C", "de_DE", "fr_CH", "ar_EG", "hi_IN"}) {
        QLocale::setDefault(QLocale(QString::fromLatin1(name)));
        QCOMPARE(NumberExpression(QStringLiteral("1,234.5 + 1.5")).value(), 1236.0);
        QCOMPARE(NumberExpression(QStringLiteral("1.234,5 + 1,5")).value(), 1236.0);
    }
    QLocale::setDefault(before);
}

void tst_NumberExpression::currentValueThatIsNoNumber()
{
    NumberScope scope;
    scope.current = std::numeric_limits<double>::infinity();

    QVERIFY(!NumberExpression(QStringLiteral("50%"), scope).isValid());
    QVERIFY(!NumberExpression(QStringLiteral("+=1"), scope).isValid());
    QCOMPARE(NumberExpression(QStringLiteral("1+1"), scope).value(), 2.0);
}

void tst_NumberExpression::mistakesAreTranslated()
{
    const MarkingTranslator translator("Tessark::PropertyHost::NumberExpression");

    QCOMPARE(NumberExpression(QStringLiteral("1/0")).errorText(),
             QStringLiteral("[Division by zero]"));
    QCOMPARE(NumberExpression(QStringLiteral("a")).errorText(),
             QStringLiteral("[There is no number named \"a\"]"));
}

void tst_NumberExpression::randomExpressions()
{
    int evaluated = 0;
    for (quint32 seed = 0; evaluated < 10'000; ++seed) {
        Writer writer(seed);
        const Writer::Part written = writer.sum(int(seed % 3));
        if (written.text.size() > 500 || !writer.isFinite())
            continue;
        ++evaluated;
        const NumberExpression expression(written.text);
        if (!expression.isValid() || expression.value() != written.value) {
            QFAIL(qPrintable(QStringLiteral("%1 gives %2 (%3), not %4")
                                 .arg(written.text)
                                 .arg(expression.value(), 0, 'g', 17)
                                 .arg(expression.errorText())
                                 .arg(written.value, 0, 'g', 17)));
        }
    }
}

void tst_NumberExpression::randomTextsGiveNumbersOrMistakes()
{
    const QString letters = QStringLiteral("0123456789.,+-*/^()%;= `ewpi_mnax\u2212\u0663#");
    QRandomGenerator random(1);
    for (int i = 0; i < 20'000; ++i) {
        QString text;
        for (int length = random.bounded(24); length > 0; --length)
            text += letters.at(random.bounded(int(letters.size())));

        const NumberExpression expression(text, fieldOf());

        QVERIFY2(std::isfinite(expression.value()), qPrintable(text));
        QCOMPARE(expression.isValid(), expression.errorText().isEmpty());
        QVERIFY(expression.errorPosition() <= text.size());
    }
}

QTEST_MAIN(tst_NumberExpression)
#include "tst_NumberExpression.moc"
