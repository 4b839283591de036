#include "property/editors/IntegerPropertyEditor.h"

#include "support/RangedEditor.h"
#include "support/SignalLog.h"
#include "support/SliderDrag.h"
#include "support/Wheel.h"

#include <QHBoxLayout>
#include <QLineEdit>
#include <QPixmap>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTest>

#include <limits>

using namespace Tessark::PropertyUI;

namespace {

constexpr int kLowest = std::numeric_limits<int>::min();
constexpr int kHighest = std::numeric_limits<int>::max();

struct Subject : RangedEditor<IntegerPropertyEditor, QSpinBox>
{
    explicit Subject(const QVariant &minimum = 0, const QVariant &maximum = 1000)
        : RangedEditor(kPropertyTypeInteger, minimum, maximum)
    {
    }
};

} // namespace

class tst_IntegerPropertyEditor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void slotsHaveTheirSignatures();
    void isARowOfSliderAndSpinBox();
    void slidesToMaximumAndTypesToHardMaximum();
    void sliderStepsAreTheToolkits();
    void spinBoxStepIsAHundredth_data();
    void spinBoxStepIsAHundredth();
    void arrowsDoNotMoveNarrowRanges();
    void setValueShowsSilently_data();
    void setValueShowsSilently();
    void setValueReplacesTypedText();
    void valueIsAnInt();
    void isHarmlessBeforeItsWidget();
    void enabledHint_data();
    void enabledHint();
    void propertyChangedReadsAgain();
    void dragIsOneRun();
    void typingIsOneRun();
    void wheelMovesTheSliderAlone();
    void keysOnTheSliderAreChanges();
    void wrongRangesAreBuilt_data();
    void wrongRangesAreBuilt();
    void fullRangePaintsAndTakesClicks();
    void revertsToDefault();
};

void tst_IntegerPropertyEditor::slotsHaveTheirSignatures()
{
    const QMetaObject &meta = IntegerPropertyEditor::staticMetaObject;

    QVERIFY(meta.indexOfSlot("sliderChanged(int)") >= 0);
    QVERIFY(meta.indexOfSlot("spinBoxChanged(int)") >= 0);
    QCOMPARE(meta.className(), "Tessark::PropertyUI::IntegerPropertyEditor");
}

void tst_IntegerPropertyEditor::isARowOfSliderAndSpinBox()
{
    Subject subject;
    subject.build();
    const auto *const layout = qobject_cast<QHBoxLayout *>(subject.widget->layout());

    QVERIFY(layout);
    QCOMPARE(layout->contentsMargins(), QMargins());
    QCOMPARE(layout->count(), 2);
    QCOMPARE(layout->itemAt(0)->widget(), subject.slider);
    QCOMPARE(layout->itemAt(1)->widget(), subject.spinBox);
    QCOMPARE(layout->stretch(0), 0);
    QCOMPARE(layout->stretch(1), 0);
    QCOMPARE(subject.slider->orientation(), Qt::Horizontal);
    QVERIFY(!subject.widget->parent());
    QCOMPARE(subject.editor->widget(nullptr), subject.widget.get());
    QVERIFY(subject.spinBox->minimumWidth() != subject.spinBox->maximumWidth());
}

void tst_IntegerPropertyEditor::slidesToMaximumAndTypesToHardMaximum()
{
    Subject subject(-10, 10);
    subject.property.setHardMaxValue(500);
    subject.build();

    QCOMPARE(subject.slider->minimum(), -10);
    QCOMPARE(subject.slider->maximum(), 10);
    QCOMPARE(subject.spinBox->minimum(), -10);
    QCOMPARE(subject.spinBox->maximum(), 500);
}

void tst_IntegerPropertyEditor::sliderStepsAreTheToolkits()
{
    Subject subject(0, 100000);
    subject.build();
    const QSlider fresh;

    QCOMPARE(subject.slider->singleStep(), fresh.singleStep());
    QCOMPARE(subject.slider->pageStep(), fresh.pageStep());
}

void tst_IntegerPropertyEditor::spinBoxStepIsAHundredth_data()
{
    QTest::addColumn<int>("minimum");
    QTest::addColumn<int>("hardMaximum");
    QTest::addColumn<int>("step");

    QTest::newRow("narrow") << 0 << 50 << 0;
    QTest::newRow("just below a hundred") << 0 << 99 << 0;
    QTest::newRow("a hundred") << 0 << 100 << 1;
    QTest::newRow("a thousand") << 0 << 1000 << 10;
    QTest::newRow("across zero") << -5 << 250 << 2;
    QTest::newRow("all") << kLowest << kHighest << 42949672;
}

void tst_IntegerPropertyEditor::spinBoxStepIsAHundredth()
{
    QFETCH(int, minimum);
    QFETCH(int, hardMaximum);
    Subject subject(minimum, minimum);
    subject.property.setHardMaxValue(hardMaximum);
    subject.build();

    QTEST(subject.spinBox->singleStep(), "step");
}

void tst_IntegerPropertyEditor::arrowsDoNotMoveNarrowRanges()
{
    Subject subject(0, 50);
    subject.build();
    subject.editor->setValue(25);
    SignalLog log(subject.editor.get());

    QTest::keyClick(subject.spinBox, Qt::Key_Up);

    QCOMPARE(subject.spinBox->value(), 25);
    QCOMPARE(log.take(), QStringList());
}

void tst_IntegerPropertyEditor::setValueShowsSilently_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<int>("shown");

    QTest::newRow("int") << QVariant(7) << 7;
    QTest::newRow("text") << QVariant(QStringLiteral("12")) << 12;
    QTest::newRow("fraction") << QVariant(2.6) << 3;
    QTest::newRow("bool") << QVariant(true) << 1;
    QTest::newRow("null") << QVariant() << 0;
    QTest::newRow("no number") << QVariant(QStringLiteral("many")) << 0;
    QTest::newRow("above the range") << QVariant(5000) << 1000;
    QTest::newRow("below the range") << QVariant(-5) << 0;
    QTest::newRow("beyond int") << QVariant(qlonglong(1) << 40) << 1000;
    QTest::newRow("far below int") << QVariant(-(qlonglong(1) << 40)) << 0;
    QTest::newRow("unsigned beyond int") << QVariant(std::numeric_limits<uint>::max()) << 1000;
    QTest::newRow("largest unsigned") << QVariant(std::numeric_limits<qulonglong>::max()) << 1000;
    QTest::newRow("huge double") << QVariant(1e300) << 1000;
    QTest::newRow("float") << QVariant(-1e30F) << 0;
    QTest::newRow("infinity") << QVariant(std::numeric_limits<double>::infinity()) << 1000;
    QTest::newRow("not a number") << QVariant(std::numeric_limits<double>::quiet_NaN()) << 0;
}

void tst_IntegerPropertyEditor::setValueShowsSilently()
{
    QFETCH(QVariant, value);
    QFETCH(int, shown);
    Subject subject;
    subject.build();
    subject.editor->setValue(500);
    SignalLog log(subject.editor.get());

    subject.editor->setValue(value);

    QCOMPARE(subject.spinBox->value(), shown);
    QCOMPARE(subject.slider->value(), shown);
    QCOMPARE(log.take(), QStringList());
    QVERIFY(!subject.slider->signalsBlocked());
    QVERIFY(!subject.spinBox->signalsBlocked());
}

void tst_IntegerPropertyEditor::setValueReplacesTypedText()
{
    Subject subject;
    subject.build();
    subject.show();
    subject.spinBox->setFocus();
    QTRY_VERIFY(subject.spinBox->hasFocus());
    subject.spinBox->selectAll();
    QTest::keyClicks(subject.spinBox, QStringLiteral("12"));

    subject.editor->setValue(700);

    QCOMPARE(subject.spinBox->text(), QStringLiteral("700"));
    QCOMPARE(subject.slider->value(), 700);
}

void tst_IntegerPropertyEditor::valueIsAnInt()
{
    Subject subject;
    subject.build();
    subject.editor->setValue(QStringLiteral("42"));

    QCOMPARE(subject.editor->value(), QVariant(42));
    QCOMPARE(int(subject.editor->value().userType()), int(QMetaType::Int));
}

void tst_IntegerPropertyEditor::isHarmlessBeforeItsWidget()
{
    Property property(QStringLiteral("i"), QString(), kPropertyTypeInteger);
    IntegerPropertyEditor editor(&property);
    QSignalSpy spy(&editor, &PropertyEditor::valueChanged);

    editor.setValue(3);
    editor.propertyChanged();
    QMetaObject::invokeMethod(&editor, "sliderChanged", Q_ARG(int, 3));
    QMetaObject::invokeMethod(&editor, "spinBoxChanged", Q_ARG(int, 3));

    QCOMPARE(editor.value(), QVariant(0));
    QCOMPARE(spy.count(), 2);
}

void tst_IntegerPropertyEditor::enabledHint_data()
{
    QTest::addColumn<QVariant>("hint");
    QTest::addColumn<bool>("enabled");

    QTest::newRow("absent") << QVariant() << true;
    QTest::newRow("true") << QVariant(true) << true;
    QTest::newRow("false") << QVariant(false) << false;
    QTest::newRow("text") << QVariant(QStringLiteral("false")) << false;
}

void tst_IntegerPropertyEditor::enabledHint()
{
    QFETCH(QVariant, hint);
    QFETCH(bool, enabled);
    Subject subject;
    if (hint.isValid())
        subject.property.setHint(kPropertyHintEnabled, hint);

    subject.build();

    QCOMPARE(subject.slider->isEnabled(), enabled);
    QCOMPARE(subject.spinBox->isEnabled(), enabled);
}

void tst_IntegerPropertyEditor::propertyChangedReadsAgain()
{
    Subject subject(0, 1000);
    subject.build();
    subject.editor->setValue(50);

    subject.property.setRange(10, 200, 5000).setHint(kPropertyHintEnabled, false);
    subject.editor->propertyChanged();

    QCOMPARE(subject.slider->minimum(), 10);
    QCOMPARE(subject.slider->maximum(), 200);
    QCOMPARE(subject.spinBox->minimum(), 10);
    QCOMPARE(subject.spinBox->maximum(), 5000);
    QCOMPARE(subject.spinBox->singleStep(), 49);
    QCOMPARE(subject.editor->value(), QVariant(50));
    QVERIFY(!subject.slider->isEnabled());
    QVERIFY(!subject.spinBox->isEnabled());
}

void tst_IntegerPropertyEditor::dragIsOneRun()
{
    Subject subject;
    subject.build();
    subject.show();
    SignalLog log(subject.editor.get());
    SliderDrag drag(subject.slider);

    drag.press();
    QCOMPARE(log.take(), QStringList{QStringLiteral("start")});
    drag.moveBy(40);
    const int first = subject.spinBox->value();
    QVERIFY(first > 0);
    QCOMPARE(subject.slider->value(), first);
    drag.moveBy(40);
    QVERIFY(subject.spinBox->value() > first);
    QCOMPARE(log.take(), (QStringList{QStringLiteral("value"), QStringLiteral("value")}));
    drag.release();
    QCOMPARE(log.take(), QStringList{QStringLiteral("end")});
}

void tst_IntegerPropertyEditor::typingIsOneRun()
{
    Subject subject;
    subject.build();
    subject.show();
    SignalLog log(subject.editor.get());
    subject.spinBox->setFocus();
    QTRY_VERIFY(subject.spinBox->hasFocus());
    QCOMPARE(log.take(), QStringList{QStringLiteral("start")});
    subject.spinBox->selectAll();

    QTest::keyClicks(subject.spinBox, QStringLiteral("12"));

    QCOMPARE(log.take(), (QStringList{QStringLiteral("value"), QStringLiteral("value")}));
    QCOMPARE(subject.slider->value(), 12);
    // A spin box announces its number again on Return, changed or not.
    QTest::keyClick(subject.spinBox, Qt::Key_Return);
    QCOMPARE(log.take(), (QStringList{QStringLiteral("value"), QStringLiteral("end"),
                                      QStringLiteral("start")}));
    subject.slider->setFocus();
    QCOMPARE(log.take(), QStringList{QStringLiteral("end")});
}

void tst_IntegerPropertyEditor::wheelMovesTheSliderAlone()
{
    Subject subject;
    subject.build();
    subject.show();
    SignalLog log(subject.editor.get());

    turnWheelOver(subject.spinBox);
    QCOMPARE(subject.spinBox->value(), 0);
    QCOMPARE(log.take(), QStringList());

    turnWheelOver(subject.slider);
    QVERIFY(subject.slider->value() > 0);
    QCOMPARE(subject.spinBox->value(), subject.slider->value());
    QCOMPARE(log.take(), QStringList{QStringLiteral("value")});
}

void tst_IntegerPropertyEditor::keysOnTheSliderAreChanges()
{
    Subject subject;
    subject.build();
    SignalLog log(subject.editor.get());

    QTest::keyClick(subject.slider, Qt::Key_PageUp);

    QCOMPARE(subject.editor->value(), QVariant(subject.slider->pageStep()));
    QCOMPARE(log.take(), QStringList{QStringLiteral("value")});
}

void tst_IntegerPropertyEditor::wrongRangesAreBuilt_data()
{
    QTest::addColumn<QVariant>("minimum");
    QTest::addColumn<QVariant>("maximum");
    QTest::addColumn<int>("lowest");
    QTest::addColumn<int>("highest");

    const double infinity = std::numeric_limits<double>::infinity();
    const double nan = std::numeric_limits<double>::quiet_NaN();
    QTest::newRow("null") << QVariant() << QVariant() << 0 << 0;
    QTest::newRow("no numbers") << QVariant(QStringLiteral("low")) << QVariant(QPixmap()) << 0 << 0;
    QTest::newRow("reversed") << QVariant(10) << QVariant(-10) << 10 << 10;
    QTest::newRow("infinite") << QVariant(-infinity) << QVariant(infinity) << kLowest << kHighest;
    QTest::newRow("not numbers") << QVariant(nan) << QVariant(nan) << 0 << 0;
    QTest::newRow("beyond int") << QVariant(-1e12) << QVariant(1e12) << kLowest << kHighest;
}

void tst_IntegerPropertyEditor::wrongRangesAreBuilt()
{
    QFETCH(QVariant, minimum);
    QFETCH(QVariant, maximum);
    Subject subject(minimum, maximum);

    subject.build();
    subject.show();
    subject.editor->setValue(3);

    QTEST(subject.slider->minimum(), "lowest");
    QTEST(subject.slider->maximum(), "highest");
    QTEST(subject.spinBox->minimum(), "lowest");
    QTEST(subject.spinBox->maximum(), "highest");
    QVERIFY(!subject.widget->grab().isNull());
}

// Qt 5 divides by zero when it paints such sliders or looks where one was hit.
void tst_IntegerPropertyEditor::fullRangePaintsAndTakesClicks()
{
    for (const int minimum : {kLowest, kLowest / 2}) {
        Subject subject(minimum, kHighest);
        subject.build();
        subject.show();
        for (const int value : {minimum, 0, kHighest}) {
            subject.editor->setValue(value);
            QVERIFY(!subject.widget->grab().isNull());
        }
        subject.editor->setValue(0);
        const QPoint left(2, subject.slider->height() / 2);
        QTest::mouseClick(subject.slider, Qt::LeftButton, Qt::NoModifier, left);
        QVERIFY(subject.slider->value() < 0);
    }
}

void tst_IntegerPropertyEditor::revertsToDefault()
{
    Subject subject;
    subject.property.setDefaultValue(7);
    subject.build();
    SignalLog log(subject.editor.get());

    subject.editor->revertToDefaultValue();

    QCOMPARE(subject.editor->value(), QVariant(7));
    QCOMPARE(log.take(), QStringList{QStringLiteral("value")});
}

QTEST_MAIN(tst_IntegerPropertyEditor)
#include "tst_IntegerPropertyEditor.moc"
