#include "property/editors/PercentPropertyEditor.h"

#include "support/RangedEditor.h"
#include "support/SignalLog.h"
#include "support/SliderDrag.h"
#include "support/Wheel.h"

#include <QDoubleSpinBox>
#include <QHBoxLayout>
#include <QPixmap>
#include <QPointer>
#include <QSignalSpy>
#include <QTest>

#include <limits>

using namespace Tessark::PropertyUI;

namespace {

constexpr int kSliderLimit = 1000000000;

struct Subject : RangedEditor<PercentPropertyEditor, QDoubleSpinBox>
{
    explicit Subject(const QVariant &minimum = 0.0, const QVariant &maximum = 1.0)
        : RangedEditor(kPropertyTypePercent, minimum, maximum)
    {
    }
};

} // namespace

class tst_PercentPropertyEditor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void slotsHaveTheirSignatures();
    void isARowOfSliderAndSpinBox();
    void spinBoxShowsPerCent();
    void rangesInSinglePrecision();
    void sliderSteps_data();
    void sliderSteps();
    void setValueShowsSilently_data();
    void setValueShowsSilently();
    void valueIsADouble();
    void isHarmlessBeforeItsWidget();
    void readsNoHints();
    void dragIsOneRun();
    void sliderShowsThousandthsOfAPerCent();
    void typingMovesTheSlider();
    void echoWhileTypingDoesNothing();
    void setValueReplacesFocusedText();
    void survivesDeletionWhileTyping();
    void wheelMovesTheSliderAlone();
    void wrongRangesAreBuilt_data();
    void wrongRangesAreBuilt();
    void revertsToDefault();
};

void tst_PercentPropertyEditor::initTestCase()
{
    QLocale::setDefault(QLocale::c());
}

void tst_PercentPropertyEditor::slotsHaveTheirSignatures()
{
    const QMetaObject &meta = PercentPropertyEditor::staticMetaObject;

    QVERIFY(meta.indexOfSlot("sliderChanged(int)") >= 0);
    QVERIFY(meta.indexOfSlot("spinBoxChanged(double)") >= 0);
    QCOMPARE(meta.className(), "Tessark::PropertyUI::PercentPropertyEditor");
}

void tst_PercentPropertyEditor::isARowOfSliderAndSpinBox()
{
    Subject subject;
    subject.build();
    const auto *const layout = qobject_cast<QHBoxLayout *>(subject.widget->layout());

    QVERIFY(layout);
    QCOMPARE(layout->contentsMargins(), QMargins());
    QCOMPARE(layout->itemAt(0)->widget(), subject.slider);
    QCOMPARE(layout->itemAt(1)->widget(), subject.spinBox);
    QCOMPARE(subject.slider->orientation(), Qt::Horizontal);
    QCOMPARE(subject.spinBox->minimumWidth(), 70);
    QCOMPARE(subject.spinBox->maximumWidth(), 70);
    QCOMPARE(subject.spinBox->maximumHeight(), subject.spinBox->sizeHint().height());
    QCOMPARE(subject.editor->widget(nullptr), subject.widget.get());
}

void tst_PercentPropertyEditor::spinBoxShowsPerCent()
{
    Subject subject(0.0, 1.0);
    subject.property.setHardMaxValue(2.0);
    subject.build();

    subject.editor->setValue(0.25);

    QCOMPARE(subject.spinBox->text(), QStringLiteral("25.00 %"));
    QCOMPARE(subject.spinBox->suffix(), QStringLiteral(" %"));
    QCOMPARE(subject.spinBox->decimals(), 2);
    QCOMPARE(subject.spinBox->minimum(), 0.0);
    QCOMPARE(subject.spinBox->maximum(), 200.0);
    QCOMPARE(subject.spinBox->singleStep(), 2.0);
    QCOMPARE(subject.slider->value(), 25000);
    QCOMPARE(subject.slider->minimum(), 0);
    QCOMPARE(subject.slider->maximum(), 100000);
}

void tst_PercentPropertyEditor::rangesInSinglePrecision()
{
    Subject subject(0.29, 0.58);
    subject.build();

    // 0.29 * 100000 is 28999.999... in double precision and 29000 in single.
    QCOMPARE(subject.slider->minimum(), int(0.29F * 100000.0F));
    QCOMPARE(subject.slider->minimum(), 29000);
    QCOMPARE(subject.slider->maximum(), int(0.58F * 100000.0F));
    QCOMPARE(subject.spinBox->singleStep(), 0.29); // a hundredth of 29 to 58 per cent
}

void tst_PercentPropertyEditor::sliderSteps_data()
{
    QTest::addColumn<double>("maximum");
    QTest::addColumn<int>("singleStep");
    QTest::addColumn<int>("pageStep");

    QTest::newRow("one per cent") << 0.01 << 2 << 20;
    QTest::newRow("half a per cent") << 0.005 << 2 << 20;
    QTest::newRow("a hundred per cent") << 1.0 << 200 << 2000;
    QTest::newRow("truncated") << 0.0125 << 2 << 25;
}

void tst_PercentPropertyEditor::sliderSteps()
{
    QFETCH(double, maximum);
    Subject subject(0.0, maximum);
    subject.build();

    QTEST(subject.slider->singleStep(), "singleStep");
    QTEST(subject.slider->pageStep(), "pageStep");
}

void tst_PercentPropertyEditor::setValueShowsSilently_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<int>("position");
    QTest::addColumn<double>("percent");

    QTest::newRow("double") << QVariant(0.5) << 50000 << 50.0;
    QTest::newRow("text") << QVariant(QStringLiteral("0.125")) << 12500 << 12.5;
    QTest::newRow("null") << QVariant() << 0 << 0.0;
    QTest::newRow("no number") << QVariant(QStringLiteral("half")) << 0 << 0.0;
    QTest::newRow("truncated position") << QVariant(0.123456789) << 12345 << 12.35;
    QTest::newRow("above the range") << QVariant(7.0) << 100000 << 100.0;
    QTest::newRow("huge") << QVariant(1e300) << 100000 << 100.0;
    QTest::newRow("not a number") << QVariant(std::numeric_limits<double>::quiet_NaN()) << 0 << 0.0;
}

void tst_PercentPropertyEditor::setValueShowsSilently()
{
    QFETCH(QVariant, value);
    Subject subject;
    subject.build();
    subject.editor->setValue(0.75);
    SignalLog log(subject.editor.get());

    subject.editor->setValue(value);

    QTEST(subject.slider->value(), "position");
    QTEST(subject.spinBox->value(), "percent");
    QCOMPARE(log.take(), QStringList());
}

void tst_PercentPropertyEditor::valueIsADouble()
{
    Subject subject;
    subject.build();
    subject.editor->setValue(0.25);

    QCOMPARE(subject.editor->value(), QVariant(0.25));
    QCOMPARE(int(subject.editor->value().userType()), int(QMetaType::Double));
}

void tst_PercentPropertyEditor::isHarmlessBeforeItsWidget()
{
    Property property(QStringLiteral("p"), QString(), kPropertyTypePercent);
    PercentPropertyEditor editor(&property);

    editor.setValue(0.5);
    QMetaObject::invokeMethod(&editor, "sliderChanged", Q_ARG(int, 3));
    QMetaObject::invokeMethod(&editor, "spinBoxChanged", Q_ARG(double, 3.0));

    // Without entry field the value is a float.
    QCOMPARE(editor.value(), QVariant(0.0F));
    QCOMPARE(int(editor.value().userType()), int(QMetaType::Float));
}

void tst_PercentPropertyEditor::readsNoHints()
{
    Subject subject;
    subject.property.setHint(kPropertyHintEnabled, false)
        .setHint(kPropertyHintSuffix, QStringLiteral(" parts"))
        .setHint(kPropertyHintFloatDecimals, 5)
        .setHint(kPropertyHintDisplayScale, 10.0);
    subject.build();

    QVERIFY(subject.spinBox->isEnabled());
    QCOMPARE(subject.spinBox->suffix(), QStringLiteral(" %"));
    QCOMPARE(subject.spinBox->decimals(), 2);
    QCOMPARE(subject.spinBox->maximum(), 100.0);
}

void tst_PercentPropertyEditor::dragIsOneRun()
{
    Subject subject;
    subject.build();
    subject.show();
    SignalLog log(subject.editor.get());
    SliderDrag drag(subject.slider);

    drag.press();
    drag.moveBy(50);
    drag.moveBy(50);
    drag.release();

    QCOMPARE(log.take(), (QStringList{QStringLiteral("start"), QStringLiteral("value"),
                                      QStringLiteral("value"), QStringLiteral("end")}));
    QVERIFY(subject.spinBox->value() > 0);
}

void tst_PercentPropertyEditor::sliderShowsThousandthsOfAPerCent()
{
    Subject subject;
    subject.build();
    SignalLog log(subject.editor.get());

    subject.slider->setValue(12340);

    QCOMPARE(subject.spinBox->value(), 12.34);
    QCOMPARE(log.take(), QStringList{QStringLiteral("value")});
}

void tst_PercentPropertyEditor::typingMovesTheSlider()
{
    Subject subject;
    subject.build();
    subject.show();
    subject.spinBox->setFocus();
    QTRY_VERIFY(subject.spinBox->hasFocus());
    SignalLog log(subject.editor.get());
    subject.spinBox->selectAll();

    QTest::keyClicks(subject.spinBox, QStringLiteral("42"));

    QCOMPARE(subject.slider->value(), 42000);
    QCOMPARE(log.take(), (QStringList{QStringLiteral("value"), QStringLiteral("value")}));
}

void tst_PercentPropertyEditor::echoWhileTypingDoesNothing()
{
    Subject subject;
    subject.build();
    QVector<double> shown;
    connect(subject.editor.get(), &PropertyEditor::valueChanged, subject.editor.get(), [&] {
        subject.editor->setValue(0.9);
        shown.append(subject.spinBox->value());
    });

    subject.spinBox->setValue(10.0);
    QCOMPARE(shown, QVector<double>{10.0});
    QCOMPARE(subject.slider->value(), 10000);

    // The guard is down again afterwards, and never up for the slider.
    subject.slider->setValue(20000);
    QCOMPARE(subject.spinBox->value(), 90.0);
    QCOMPARE(subject.slider->value(), 90000);
}

void tst_PercentPropertyEditor::setValueReplacesFocusedText()
{
    Subject subject;
    subject.build();
    subject.show();
    subject.spinBox->setFocus();
    QTRY_VERIFY(subject.spinBox->hasFocus());

    subject.editor->setValue(0.5);

    QCOMPARE(subject.spinBox->value(), 50.0);
}

void tst_PercentPropertyEditor::survivesDeletionWhileTyping()
{
    Subject subject;
    subject.build();
    connect(subject.editor.get(), &PropertyEditor::valueChanged, qApp,
            [&] { subject.editor.reset(); });

    subject.spinBox->setValue(10.0);

    QVERIFY(!subject.editor);
    QCOMPARE(subject.spinBox->value(), 10.0);
}

void tst_PercentPropertyEditor::wheelMovesTheSliderAlone()
{
    Subject subject;
    subject.build();
    subject.show();

    turnWheelOver(subject.spinBox);
    QCOMPARE(subject.spinBox->value(), 0.0);

    turnWheelOver(subject.slider);
    QVERIFY(subject.slider->value() > 0);
    QCOMPARE(subject.spinBox->value(), subject.slider->value() / 1000.0);
}

void tst_PercentPropertyEditor::wrongRangesAreBuilt_data()
{
    QTest::addColumn<QVariant>("minimum");
    QTest::addColumn<QVariant>("maximum");
    QTest::addColumn<int>("lowest");
    QTest::addColumn<int>("highest");

    const double infinity = std::numeric_limits<double>::infinity();
    const double nan = std::numeric_limits<double>::quiet_NaN();
    QTest::newRow("null") << QVariant() << QVariant() << 0 << 0;
    QTest::newRow("no numbers") << QVariant(QStringLiteral("low")) << QVariant(QPixmap()) << 0 << 0;
    QTest::newRow("reversed") << QVariant(1.0) << QVariant(-1.0) << 100000 << 100000;
    QTest::newRow("infinite") << QVariant(-infinity) << QVariant(infinity) << -kSliderLimit
                              << kSliderLimit;
    QTest::newRow("not numbers") << QVariant(nan) << QVariant(nan) << 0 << 0;
    QTest::newRow("beyond int") << QVariant(-1e12) << QVariant(1e12) << -kSliderLimit
                                << kSliderLimit;
}

void tst_PercentPropertyEditor::wrongRangesAreBuilt()
{
    QFETCH(QVariant, minimum);
    QFETCH(QVariant, maximum);
    Subject subject(minimum, maximum);

    subject.build();
    subject.show();
    subject.editor->setValue(0.5);

    QTEST(subject.slider->minimum(), "lowest");
    QTEST(subject.slider->maximum(), "highest");
    QVERIFY(qIsFinite(subject.editor->value().toDouble()));
    QVERIFY(!subject.widget->grab().isNull());
}

void tst_PercentPropertyEditor::revertsToDefault()
{
    Subject subject;
    subject.property.setDefaultValue(0.5);
    subject.build();
    SignalLog log(subject.editor.get());

    subject.editor->revertToDefaultValue();

    QCOMPARE(subject.editor->value(), QVariant(0.5));
    QCOMPARE(log.take(), QStringList{QStringLiteral("value")});
}

QTEST_MAIN(tst_PercentPropertyEditor)
#include "tst_PercentPropertyEditor.moc"
