#include "property/DoubleSpinBox.h"

#include <QLineEdit>
#include <QLocale>
#include <QMetaObject>
#include <QTest>

#include <limits>

using namespace Tessark::PropertyUI;

namespace {

constexpr double kLimit = 1e9;

/// A box with a wide range, in the C locale unless another is set.
struct Box : DoubleSpinBox
{
    explicit Box(int decimals, const QLocale &locale = QLocale::c())
    {
        setLocale(locale);
        setDecimals(decimals);
        setRange(-kLimit, kLimit);
    }

    QLineEdit *edit() const { return lineEdit(); }
};

QLocale frenchLocale()
{
    return QLocale(QLocale::French, QLocale::France); // groups are separated by a narrow space
}

QLocale arabicLocale()
{
    return QLocale(QLocale::Arabic, QLocale::Egypt);
}

/// The number as the locale writes it without groups and trailing zeros.
QString written(const QLocale &locale, double number, int decimals)
{
    QLocale plain = locale;
    plain.setNumberOptions(QLocale::OmitGroupSeparator);
    return plain.toString(number, 'f', decimals);
}

} // namespace

class tst_DoubleSpinBox : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void hasNoMetaObjectOfItsOwn();
    void showsNoTrailingZeros_data();
    void showsNoTrailingZeros();
    void followsItsLocale_data();
    void followsItsLocale();
    void readsBackWhatItShows_data();
    void readsBackWhatItShows();
    void readsNegativeNumbersAsTheBaseDoes_data() { readsBackWhatItShows_data(); }
    void readsNegativeNumbersAsTheBaseDoes();
    void typingAtTheEndDropsFurtherDigits_data();
    void typingAtTheEndDropsFurtherDigits();
    void insertingAtTheEndDropsFurtherDigits();
    void typingInTheMiddleIsLeftToTheBase();
    void validateKeepsThePositionInsideTheText();
    void suffixIsPartOfTheText();
    void showsNumbersThatAreNone_data();
    void showsNumbersThatAreNone();
};

void tst_DoubleSpinBox::hasNoMetaObjectOfItsOwn()
{
    const DoubleSpinBox box;

    QCOMPARE(box.metaObject()->className(), "QDoubleSpinBox");
}

void tst_DoubleSpinBox::showsNoTrailingZeros_data()
{
    QTest::addColumn<int>("decimals");
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("text");

    QTest::newRow("one digit") << 4 << 1.5 << QStringLiteral("1.5");
    QTest::newRow("whole number") << 4 << 2.0 << QStringLiteral("2");
    QTest::newRow("three digits") << 4 << 0.125 << QStringLiteral("0.125");
    QTest::newRow("all digits") << 4 << 0.1234 << QStringLiteral("0.1234");
    QTest::newRow("inner zeros stay") << 4 << 1.0203 << QStringLiteral("1.0203");
    QTest::newRow("zero") << 4 << 0.0 << QStringLiteral("0");
    QTest::newRow("negative") << 4 << -2.50 << QStringLiteral("-2.5");
    QTest::newRow("thousands without separator") << 4 << 1234.5 << QStringLiteral("1234.5");
    QTest::newRow("exactly a thousand") << 2 << 1000.0 << QStringLiteral("1000");
    QTest::newRow("negative thousands") << 2 << -1500.25 << QStringLiteral("-1500.25");
    QTest::newRow("millions") << 2 << 1234567.0 << QStringLiteral("1234567");
    QTest::newRow("no decimals keep zeros") << 0 << 100.0 << QStringLiteral("100");
    QTest::newRow("no decimals, thousands") << 0 << 12000.0 << QStringLiteral("12000");
    QTest::newRow("rounded to its decimals") << 2 << 0.999 << QStringLiteral("1");
}

void tst_DoubleSpinBox::showsNoTrailingZeros()
{
    QFETCH(int, decimals);
    QFETCH(double, value);
    QFETCH(QString, text);
    Box box(decimals, QLocale(QLocale::English, QLocale::UnitedStates));

    box.setValue(value);

    QCOMPARE(box.textFromValue(value), text);
    QCOMPARE(box.text(), text);
}

void tst_DoubleSpinBox::followsItsLocale_data()
{
    QTest::addColumn<QLocale>("locale");
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("text");

    const QLocale german(QLocale::German, QLocale::Germany);
    QTest::newRow("decimal comma") << german << 1.5 << QStringLiteral("1,5");
    QTest::newRow("full stops between groups") << german << 1234.5 << QStringLiteral("1234,5");
    QTest::newRow("spaces between groups")
        << frenchLocale() << 1234567.25 << QStringLiteral("1234567,25");
    QTest::newRow("other digits") << arabicLocale() << 2.5 << written(arabicLocale(), 2.5, 1);
    QTest::newRow("other zeros") << arabicLocale() << 20.0 << written(arabicLocale(), 20.0, 0);
    QTest::newRow("other groups") << arabicLocale() << 1230.5 << written(arabicLocale(), 1230.5, 1);
}

void tst_DoubleSpinBox::followsItsLocale()
{
    QFETCH(QLocale, locale);
    QFETCH(double, value);
    QFETCH(QString, text);
    const Box box(4, locale);

    QCOMPARE(box.textFromValue(value), text);
}

void tst_DoubleSpinBox::readsBackWhatItShows_data()
{
    QTest::addColumn<QLocale>("locale");

    QTest::newRow("C") << QLocale::c();
    QTest::newRow("German") << QLocale(QLocale::German);
    QTest::newRow("French") << frenchLocale();
    QTest::newRow("Swiss") << QLocale(QLocale::German, QLocale::Switzerland);
    QTest::newRow("Arabic") << arabicLocale();
    QTest::newRow("Persian") << QLocale(QLocale::Persian, QLocale::Iran);
    QTest::newRow("Hindi") << QLocale(QLocale::Hindi);
}

void tst_DoubleSpinBox::readsBackWhatItShows()
{
    QFETCH(QLocale, locale);
    const Box box(4, locale);

    for (const double value : {0.0, 0.5, 1000.0, 1234.5, 98765432.125}) {
        QString text = box.textFromValue(value);
        int position = int(text.size());
        QCOMPARE(box.validate(text, position), QValidator::Acceptable);
        QCOMPARE(box.valueFromText(text), value);
    }
}

// Qt 6.4 does not read its own minus signs of some scripts; the box is no better and no worse.
void tst_DoubleSpinBox::readsNegativeNumbersAsTheBaseDoes()
{
    QFETCH(QLocale, locale);
    const Box box(4, locale);
    const QString number = written(locale, -0.25, 2);
    QString text = number;
    QString baseText = number;
    int position = int(text.size());
    int basePosition = position;

    QCOMPARE(box.textFromValue(-0.25), number);
    QCOMPARE(box.validate(text, position), box.QDoubleSpinBox::validate(baseText, basePosition));
    QCOMPARE(text, baseText);
}

void tst_DoubleSpinBox::typingAtTheEndDropsFurtherDigits_data()
{
    QTest::addColumn<int>("decimals");
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("kept");

    const QString c = QStringLiteral("C");
    const QString german = QStringLiteral("de_DE");
    QTest::newRow("two decimals") << 2 << c << QStringLiteral("3.14159") << QStringLiteral("3.14");
    QTest::newRow("comma") << 2 << german << QStringLiteral("3,14159") << QStringLiteral("3,14");
    QTest::newRow("fewer digits") << 4 << c << QStringLiteral("2.5") << QStringLiteral("2.5");
    QTest::newRow("no point") << 2 << c << QStringLiteral("314159") << QStringLiteral("314159");
    QTest::newRow("a second point is dropped too")
        << 2 << c << QStringLiteral("1.25.7") << QStringLiteral("1.25");
}

void tst_DoubleSpinBox::typingAtTheEndDropsFurtherDigits()
{
    QFETCH(int, decimals);
    QFETCH(QString, locale);
    QFETCH(QString, typed);
    QFETCH(QString, kept);
    Box box(decimals, QLocale(locale));
    box.edit()->clear();

    QTest::keyClicks(&box, typed);

    QCOMPARE(box.text(), kept);
}

void tst_DoubleSpinBox::typingInTheMiddleIsLeftToTheBase()
{
    Box box(2);
    QString tooLong = QStringLiteral("3.1415");
    int middle = 4;

    QCOMPARE(box.validate(tooLong, middle), QValidator::Invalid);
    QCOMPARE(tooLong, QStringLiteral("3.1415"));
    QCOMPARE(middle, 4);
}

// Typed digit by digit, it is the base that refuses them.
void tst_DoubleSpinBox::insertingAtTheEndDropsFurtherDigits()
{
    Box box(2);
    box.edit()->clear();

    box.edit()->insert(QStringLiteral(".5678"));

    QCOMPARE(box.text(), QStringLiteral(".56"));
}

void tst_DoubleSpinBox::validateKeepsThePositionInsideTheText()
{
    Box box(2);
    QString text = QStringLiteral("3.14159");
    int position = int(text.size());

    QCOMPARE(box.validate(text, position), QValidator::Acceptable);

    QCOMPARE(text, QStringLiteral("3.14"));
    QCOMPARE(position, 4);
}

void tst_DoubleSpinBox::suffixIsPartOfTheText()
{
    Box box(2);
    box.setSuffix(QStringLiteral(" dB"));

    box.setValue(2.5);

    QCOMPARE(box.text(), QStringLiteral("2.5 dB"));
    QCOMPARE(box.cleanText(), QStringLiteral("2.5"));
}

void tst_DoubleSpinBox::showsNumbersThatAreNone_data()
{
    QTest::addColumn<double>("value");

    QTest::newRow("not a number") << std::numeric_limits<double>::quiet_NaN();
    QTest::newRow("infinity") << std::numeric_limits<double>::infinity();
    QTest::newRow("largest") << std::numeric_limits<double>::max();
}

void tst_DoubleSpinBox::showsNumbersThatAreNone()
{
    QFETCH(double, value);
    const Box box(4);

    QVERIFY(!box.textFromValue(value).isEmpty());
}

QTEST_MAIN(tst_DoubleSpinBox)
#include "tst_DoubleSpinBox.moc"
