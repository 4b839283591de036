#include "property/PropertyVocabulary.h"

#include "support/SignalLog.h"
#include "support/SizeSubject.h"
#include "support/Wheel.h"

#include <QPointer>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>
#include <QSizeF>

#include <limits>

using namespace Tessark::PropertyUI;

namespace {

constexpr int kLowest = std::numeric_limits<int>::min();
constexpr int kHighest = std::numeric_limits<int>::max();

} // namespace

/// What both editors of sizes do alike: each test runs once for either.
class tst_SizeFields : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data();

    void slotHasItsSignature();
    void fieldsHoldOneTo4096();
    void isHarmlessBeforeItsWidget();
    void checkBoxUnlessTheRatioIsZeroWide_data();
    void checkBoxUnlessTheRatioIsZeroWide();
    void typingKeepsTheRatio_data();
    void typingKeepsTheRatio();
    void hugeRatiosWrap_data();
    void hugeRatiosWrap();
    void undefinedRatiosLeaveTheOtherNumber_data();
    void undefinedRatiosLeaveTheOtherNumber();
    void withoutRatioHintTheNumbersAreEqual();
    void numbersAreIndependentWithoutCheckBox();
    void uncheckedNumbersAreIndependent();
    void theCheckBoxItselfIsSilent();
    void arrowKeysKeepTheRatio();
    void emissionComesAfterBothNumbers();
    void slotWithoutSenderCountsAsHeight();
    void hintsAreReadOnce();
    void setValueShowsSilently_data();
    void setValueShowsSilently();
    void valueIsASize();
    void wheelScrollsTheViewInstead();
    void typingIsOneRun();
    void hostMayDeleteTheEditorInAnySignal_data();
    void hostMayDeleteTheEditorInAnySignal();
    void revertsToDefault();
};

void tst_SizeFields::initTestCase_data()
{
    QTest::addColumn<QString>("type");
    QTest::newRow("size") << kPropertyTypeSize;
    QTest::newRow("render size") << kPropertyTypeRenderSize;
}

void tst_SizeFields::slotHasItsSignature()
{
    QFETCH_GLOBAL(QString, type);
    const SizeSubject subject(type);
    const QMetaObject *meta = subject.editor->metaObject();

    QVERIFY(meta->indexOfSlot("spinBoxValueChanged(int)") >= 0);
    QCOMPARE(meta->propertyCount(), QObject::staticMetaObject.propertyCount());
}

void tst_SizeFields::fieldsHoldOneTo4096()
{
    QFETCH_GLOBAL(QString, type);
    SizeSubject subject(type);
    subject.build();

    QVERIFY(subject.width && subject.height);
    for (const QSpinBox *spinBox : {subject.width, subject.height}) {
        QCOMPARE(spinBox->minimum(), 1);
        QCOMPARE(spinBox->maximum(), 4096);
        QCOMPARE(spinBox->singleStep(), 1);
        QCOMPARE(spinBox->value(), 1);
        QVERIFY(spinBox->isEnabled());
    }
    const auto labels = subject.widget->findChildren<QLabel *>();
    QCOMPARE(int(labels.size()), 2);
    QCOMPARE(labels.at(0)->text(), QStringLiteral("w:"));
    QCOMPARE(labels.at(1)->text(), QStringLiteral("h:"));
}

void tst_SizeFields::isHarmlessBeforeItsWidget()
{
    QFETCH_GLOBAL(QString, type);
    SizeSubject subject(type);
    SignalLog log(subject.editor.get());

    subject.editor->setValue(QSize(3, 4));
    subject.editor->propertyChanged();
    QCOMPARE(subject.editor->value(), QVariant(QSize()));
    QCOMPARE(log.take(), QStringList());

    // There is nothing to keep in ratio, and the change is announced in every case.
    QMetaObject::invokeMethod(subject.editor.get(), "spinBoxValueChanged", Q_ARG(int, 5));
    QCOMPARE(log.take(), SignalLog::values(1));
    subject.build();
    QCOMPARE(subject.shown(), QSize(1, 1));
}

void tst_SizeFields::checkBoxUnlessTheRatioIsZeroWide_data()
{
    QTest::addColumn<QVariant>("ratio");
    QTest::addColumn<bool>("present");

    const double nan = std::numeric_limits<double>::quiet_NaN();
    QTest::newRow("ratio") << QVariant(QSize(16, 9)) << true;
    QTest::newRow("no hint") << QVariant() << true;
    QTest::newRow("invalid size") << QVariant(QSize()) << true;
    QTest::newRow("no size") << QVariant(QStringLiteral("16:9")) << true;
    QTest::newRow("zero high") << QVariant(QSize(16, 0)) << true;
    QTest::newRow("negative") << QVariant(QSize(-16, -9)) << true;
    QTest::newRow("huge") << QVariant(QSize(kLowest, kHighest)) << true;
    QTest::newRow("fractions") << QVariant(QSizeF(15.5, 9)) << true;
    QTest::newRow("huge fractions") << QVariant(QSizeF(1e300, 1e300)) << true;
    QTest::newRow("zero") << QVariant(QSize(0, 0)) << false;
    QTest::newRow("zero wide") << QVariant(QSize(0, 9)) << false;
    QTest::newRow("zero wide, negative high") << QVariant(QSize(0, -9)) << false;
    QTest::newRow("rounded to zero") << QVariant(QSizeF(0.4, 9)) << false;
    QTest::newRow("not a number") << QVariant(QSizeF(nan, nan)) << false;
}

void tst_SizeFields::checkBoxUnlessTheRatioIsZeroWide()
{
    QFETCH_GLOBAL(QString, type);
    QFETCH(QVariant, ratio);
    SizeSubject subject(type);
    subject.setAspectRatio(ratio).build();

    QTEST(subject.check != nullptr, "present");
    if (subject.check) {
        QVERIFY(subject.check->isChecked());
        QVERIFY(subject.check->isEnabled());
        QVERIFY(!subject.check->isTristate());
        QCOMPARE(subject.check->text(), QStringLiteral("Constrain Aspect"));
    }
}

void tst_SizeFields::typingKeepsTheRatio_data()
{
    QTest::addColumn<QSize>("ratio");
    QTest::addColumn<bool>("inWidth");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QSize>("expected");

    const QString hundred = QStringLiteral("100");
    const QString five = QStringLiteral("5");
    QTest::newRow("width") << QSize(16, 9) << true << QStringLiteral("1600") << QSize(1600, 900);
    QTest::newRow("height, truncated") << QSize(16, 9) << false << hundred << QSize(177, 100);
    QTest::newRow("width, truncated") << QSize(3, 2) << true << five << QSize(5, 3);
    QTest::newRow("smaller than one") << QSize(16, 9) << true << QStringLiteral("1") << QSize(1, 1);
    QTest::newRow("larger than 4096") << QSize(1, 90) << true << hundred << QSize(100, 4096);
    QTest::newRow("both negative") << QSize(-16, -9) << true << hundred << QSize(100, 56);
    QTest::newRow("one negative") << QSize(16, -9) << true << hundred << QSize(100, 1);
    QTest::newRow("other negative") << QSize(-16, 9) << false << hundred << QSize(1, 100);
    QTest::newRow("zero high, width") << QSize(16, 0) << true << hundred << QSize(100, 1);
    QTest::newRow("invalid") << QSize() << false << hundred << QSize(100, 100);
}

void tst_SizeFields::typingKeepsTheRatio()
{
    QFETCH_GLOBAL(QString, type);
    QFETCH(QSize, ratio);
    QFETCH(bool, inWidth);
    QFETCH(QString, text);
    SizeSubject subject(type);
    subject.setAspectRatio(ratio).build();
    subject.editor->setValue(QSize(50, 60));
    SignalLog log(subject.editor.get());

    SizeSubject::type(inWidth ? subject.width : subject.height, text);

    QTEST(subject.shown(), "expected");
    QCOMPARE(log.take(), SignalLog::values(int(text.size()))); // each key changes the number once
    QVERIFY(!subject.width->signalsBlocked());
    QVERIFY(!subject.height->signalsBlocked());
}

void tst_SizeFields::hugeRatiosWrap_data()
{
    QTest::addColumn<QSize>("ratio");
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("height");

    QTest::newRow("wraps to -2") << QSize(1, kHighest) << 2 << 1;
    QTest::newRow("wraps beyond 4096") << QSize(1, kHighest) << 3 << 4096;
    QTest::newRow("wraps to the lowest") << QSize(1 << 20, 1 << 20) << 2048 << 1;
    QTest::newRow("wraps to zero") << QSize(1 << 20, 1 << 20) << 4096 << 1;
    QTest::newRow("just fits") << QSize(1 << 20, 1 << 20) << 2047 << 2047;
    QTest::newRow("lowest by lowest") << QSize(kLowest, kLowest) << 3 << 1;
    QTest::newRow("highest by highest") << QSize(kHighest, kHighest) << 4096 << 1;
    QTest::newRow("lowest by highest") << QSize(kHighest, kLowest) << 3 << 1;
}

void tst_SizeFields::hugeRatiosWrap()
{
    QFETCH_GLOBAL(QString, type);
    QFETCH(QSize, ratio);
    QFETCH(int, width);
    SizeSubject subject(type);
    subject.setAspectRatio(ratio).build();
    subject.editor->setValue(QSize(50, 60));
    SignalLog log(subject.editor.get());

    subject.width->setValue(width);

    QTEST(subject.height->value(), "height");
    QCOMPARE(subject.width->value(), width);
    QCOMPARE(log.take(), SignalLog::values(1));
}

void tst_SizeFields::undefinedRatiosLeaveTheOtherNumber_data()
{
    QTest::addColumn<QSize>("ratio");
    QTest::addColumn<bool>("inWidth");
    QTest::addColumn<int>("number");

    QTest::newRow("zero high") << QSize(16, 0) << false << 7;
    QTest::newRow("zero high, negative") << QSize(-1, 0) << false << 7;
    QTest::newRow("zero high, lowest") << QSize(kLowest, 0) << false << 7;
    QTest::newRow("lowest by -1") << QSize(kLowest, -1) << false << 7;
    QTest::newRow("-1 by lowest") << QSize(-1, kLowest) << true << 7;
    QTest::newRow("wrapped to lowest by -1") << QSize(1 << 30, -1) << false << 2;
}

void tst_SizeFields::undefinedRatiosLeaveTheOtherNumber()
{
    QFETCH_GLOBAL(QString, type);
    QFETCH(QSize, ratio);
    QFETCH(bool, inWidth);
    QFETCH(int, number);
    SizeSubject subject(type);
    subject.setAspectRatio(ratio).build();
    subject.editor->setValue(QSize(50, 60));
    SignalLog log(subject.editor.get());

    SizeSubject::type(inWidth ? subject.width : subject.height, QString::number(number));

    QCOMPARE(subject.shown(), inWidth ? QSize(number, 60) : QSize(50, number));
    QCOMPARE(log.take(), SignalLog::values(1));
}

void tst_SizeFields::withoutRatioHintTheNumbersAreEqual()
{
    QFETCH_GLOBAL(QString, type);
    SizeSubject subject(type);
    subject.build();

    QVERIFY(subject.check && subject.check->isChecked());
    SizeSubject::type(subject.width, QStringLiteral("640"));
    QCOMPARE(subject.shown(), QSize(640, 640));
    SizeSubject::type(subject.height, QStringLiteral("48"));
    QCOMPARE(subject.shown(), QSize(48, 48));
}

void tst_SizeFields::numbersAreIndependentWithoutCheckBox()
{
    QFETCH_GLOBAL(QString, type);
    SizeSubject subject(type);
    subject.setAspectRatio(QSize(0, 0)).build();
    SignalLog log(subject.editor.get());

    SizeSubject::type(subject.width, QStringLiteral("6"));
    SizeSubject::type(subject.height, QStringLiteral("4"));

    QCOMPARE(subject.shown(), QSize(6, 4));
    QCOMPARE(log.take(), SignalLog::values(2));
}

void tst_SizeFields::uncheckedNumbersAreIndependent()
{
    QFETCH_GLOBAL(QString, type);
    SizeSubject subject(type);
    subject.setAspectRatio(QSize(16, 9)).build();
    subject.check->click();
    SignalLog log(subject.editor.get());

    SizeSubject::type(subject.width, QStringLiteral("6"));
    SizeSubject::type(subject.height, QStringLiteral("4"));
    QCOMPARE(subject.shown(), QSize(6, 4));
    QCOMPARE(log.take(), SignalLog::values(2));

    subject.check->click();
    QCOMPARE(subject.shown(), QSize(6, 4)); // the rule waits for the next change
    SizeSubject::type(subject.width, QStringLiteral("32"));
    QCOMPARE(subject.shown(), QSize(32, 18));
}

void tst_SizeFields::theCheckBoxItselfIsSilent()
{
    QFETCH_GLOBAL(QString, type);
    SizeSubject subject(type);
    subject.build();
    SignalLog log(subject.editor.get());

    subject.check->click();
    subject.check->click();

    QCOMPARE(log.take(), QStringList());
}

void tst_SizeFields::arrowKeysKeepTheRatio()
{
    QFETCH_GLOBAL(QString, type);
    SizeSubject subject(type);
    subject.setAspectRatio(QSize(1, 2)).build();
    subject.editor->setValue(QSize(10, 20));
    SignalLog log(subject.editor.get());

    QTest::keyClick(subject.width, Qt::Key_Up);
    QCOMPARE(subject.shown(), QSize(11, 22));
    QTest::keyClick(subject.height, Qt::Key_Down);
    QCOMPARE(subject.shown(), QSize(10, 21));
    QCOMPARE(log.take(), SignalLog::values(2));
}

void tst_SizeFields::emissionComesAfterBothNumbers()
{
    QFETCH_GLOBAL(QString, type);
    SizeSubject subject(type);
    subject.setAspectRatio(QSize(16, 9)).build();
    QVector<QVariant> seen;
    connect(subject.editor.get(), &PropertyEditor::valueChanged, this,
            [&] { seen.append(subject.editor->value()); });

    subject.width->setValue(160);
    subject.height->setValue(45);

    QCOMPARE(seen, (QVector<QVariant>{QSize(160, 90), QSize(80, 45)}));
}

void tst_SizeFields::slotWithoutSenderCountsAsHeight()
{
    QFETCH_GLOBAL(QString, type);
    SizeSubject subject(type);
    subject.setAspectRatio(QSize(16, 9)).build();
    SignalLog log(subject.editor.get());

    QMetaObject::invokeMethod(subject.editor.get(), "spinBoxValueChanged", Q_ARG(int, 90));

    QCOMPARE(subject.shown(), QSize(160, 1));
    QCOMPARE(log.take(), SignalLog::values(1));
}

void tst_SizeFields::hintsAreReadOnce()
{
    QFETCH_GLOBAL(QString, type);
    SizeSubject subject(type);
    subject.setAspectRatio(QSize(16, 9)).build();

    subject.setAspectRatio(QSize(1, 1)).setFullSize(QSize(4, 4));
    subject.property.setRange(QSize(5, 5), QSize(6, 6)).setHint(kPropertyHintEnabled, false);
    subject.editor->propertyChanged();
    subject.width->setValue(160);

    QCOMPARE(subject.shown(), QSize(160, 90));
    QVERIFY(subject.width->isEnabled());
    QVERIFY(!subject.widget->findChild<QComboBox *>());
}

void tst_SizeFields::setValueShowsSilently_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QSize>("expected");

    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double infinity = std::numeric_limits<double>::infinity();
    QTest::newRow("size, whatever the ratio") << QVariant(QSize(7, 100)) << QSize(7, 100);
    QTest::newRow("above the range") << QVariant(QSize(5000, kHighest)) << QSize(4096, 4096);
    QTest::newRow("below the range") << QVariant(QSize(0, kLowest)) << QSize(1, 1);
    QTest::newRow("fractions") << QVariant(QSizeF(7.6, 9.2)) << QSize(8, 9);
    QTest::newRow("infinite") << QVariant(QSizeF(infinity, -infinity)) << QSize(4096, 1);
    QTest::newRow("huge fractions") << QVariant(QSizeF(1e300, 1e10)) << QSize(4096, 4096);
    QTest::newRow("not a number") << QVariant(QSizeF(nan, 8)) << QSize(1, 8);
    QTest::newRow("invalid size") << QVariant(QSize()) << QSize(1, 1);
    QTest::newRow("null") << QVariant() << QSize(1, 1);
    QTest::newRow("number") << QVariant(640) << QSize(1, 1);
    QTest::newRow("text") << QVariant(QStringLiteral("640x480")) << QSize(1, 1);
}

void tst_SizeFields::setValueShowsSilently()
{
    QFETCH_GLOBAL(QString, type);
    QFETCH(QVariant, value);
    SizeSubject subject(type);
    subject.setAspectRatio(QSize(16, 9)).build();
    subject.editor->setValue(QSize(50, 60));
    SignalLog log(subject.editor.get());
    QSignalSpy widthSpy(subject.width, qOverload<int>(&QSpinBox::valueChanged));
    QSignalSpy heightSpy(subject.height, qOverload<int>(&QSpinBox::valueChanged));

    subject.editor->setValue(value);

    QTEST(subject.shown(), "expected");
    QCOMPARE(subject.editor->value(), QVariant(subject.shown()));
    QCOMPARE(log.take(), QStringList());
    QVERIFY(widthSpy.isEmpty() && heightSpy.isEmpty());
    QVERIFY(subject.check->isChecked());
}

void tst_SizeFields::valueIsASize()
{
    QFETCH_GLOBAL(QString, type);
    SizeSubject subject(type);
    subject.build();

    QCOMPARE(subject.editor->value(), QVariant(QSize(1, 1)));
    QCOMPARE(int(subject.editor->value().userType()), int(QMetaType::QSize));
}

void tst_SizeFields::wheelScrollsTheViewInstead()
{
    QFETCH_GLOBAL(QString, type);
    SizeSubject subject(type);
    subject.build();
    QScrollArea view;
    view.resize(500, 60);
    auto *const page = new QWidget;
    page->setFixedSize(400, 400);
    subject.widget->setParent(page);
    subject.widget->setGeometry(0, 100, 400, subject.widget->sizeHint().height());
    view.setWidget(page);
    view.show();
    view.verticalScrollBar()->setValue(100);
    SignalLog log(subject.editor.get());

    turnWheelOver(subject.width);
    QVERIFY(view.verticalScrollBar()->value() < 100);
    view.verticalScrollBar()->setValue(100);
    turnWheelOver(subject.height);
    QVERIFY(view.verticalScrollBar()->value() < 100);

    QCOMPARE(subject.shown(), QSize(1, 1));
    QCOMPARE(log.take(), QStringList());
    subject.widget->setParent(nullptr);
}

void tst_SizeFields::typingIsOneRun()
{
    QFETCH_GLOBAL(QString, type);
    SizeSubject subject(type);
    subject.setAspectRatio(QSize(0, 0)).build();
    subject.show();
    subject.widget->setFocus();
    subject.width->clearFocus();
    SignalLog log(subject.editor.get());

    subject.width->setFocus();
    SizeSubject::type(subject.width, QStringLiteral("64"));
    QCOMPARE(log.take(), (QStringList{QStringLiteral("start"), QStringLiteral("value"),
                                      QStringLiteral("value")}));
    QTest::keyClick(subject.width, Qt::Key_Return); // the toolkit announces the number again
    QCOMPARE(log.take(), (QStringList{QStringLiteral("value"), QStringLiteral("end"),
                                      QStringLiteral("start")}));
    QTest::keyClick(subject.width, Qt::Key_Tab);
    QVERIFY(subject.height->hasFocus()); // one run ends, the next begins
    QCOMPARE(log.take(), (QStringList{QStringLiteral("end"), QStringLiteral("start")}));
    QTest::keyClick(subject.height, Qt::Key_Enter);
    QCOMPARE(log.take(), (QStringList{QStringLiteral("value"), QStringLiteral("end"),
                                      QStringLiteral("start")}));
    subject.height->clearFocus();
    QCOMPARE(log.take(), QStringList{QStringLiteral("end")});
}

void tst_SizeFields::hostMayDeleteTheEditorInAnySignal_data()
{
    QTest::addColumn<QString>("signal");
    for (const char *name : {"start", "value", "end"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

void tst_SizeFields::hostMayDeleteTheEditorInAnySignal()
{
    QFETCH_GLOBAL(QString, type);
    QFETCH(QString, signal);
    SizeSubject subject(type);
    subject.build();
    subject.show();
    subject.width->clearFocus();
    onSignal(subject.editor.get(), signal, [&] { subject.editor.reset(); });

    subject.width->setFocus();
    SizeSubject::type(subject.width, QStringLiteral("6"));
    QTest::keyClick(subject.width, Qt::Key_Return);

    QVERIFY(!subject.editor);
    QCOMPARE(subject.width->value(), 6); // the field works on without its editor
    QCOMPARE(subject.height->value(), signal == QLatin1String("start") ? 1 : 6);
}

void tst_SizeFields::revertsToDefault()
{
    QFETCH_GLOBAL(QString, type);
    SizeSubject subject(type);
    subject.property.setDefaultValue(QSize(320, 240));
    subject.build();
    SignalLog log(subject.editor.get());

    subject.editor->revertToDefaultValue();

    QCOMPARE(subject.editor->value(), QVariant(QSize(320, 240)));
    QCOMPARE(log.take(), SignalLog::values(1));
}

QTEST_MAIN(tst_SizeFields)
#include "tst_SizeFields.moc"
