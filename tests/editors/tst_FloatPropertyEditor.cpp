#include "property/editors/FloatPropertyEditor.h"

#include "core/LogSlider.h"
#include "property/DoubleSpinBox.h"

#include "support/RangedEditor.h"
#include "support/SignalLog.h"
#include "support/SliderDrag.h"
#include "support/Wheel.h"

#include <QHBoxLayout>
#include <QPixmap>
#include <QRandomGenerator>
#include <QTest>

#include <cmath>
#include <cstring>
#include <limits>

using namespace Tessark::PropertyUI;
using Tessark::UI::LogSlider;

namespace {

constexpr int kSliderLimit = 1000000000;
const double kInfinity = std::numeric_limits<double>::infinity();
const double kNan = std::numeric_limits<double>::quiet_NaN();

/// The representation of a number, in which -0 is not 0 and nothing is nearly the same.
quint64 bitsOf(double number)
{
    quint64 bits = 0;
    std::memcpy(&bits, &number, sizeof bits);
    return bits;
}

struct Subject : RangedEditor<FloatPropertyEditor, QDoubleSpinBox>
{
    explicit Subject(const QVariant &minimum = 0.0, const QVariant &maximum = 1.0)
        : RangedEditor(kPropertyTypeFloat, minimum, maximum)
    {
    }

    Subject &with(const QString &key, const QVariant &hint)
    {
        property.setHint(key, hint);
        return *this;
    }

    LogSlider *logSlider() const { return qobject_cast<LogSlider *>(slider); }

    void focusSpinBox()
    {
        show();
        spinBox->setFocus();
        QTRY_VERIFY(spinBox->hasFocus());
    }
};

} // namespace

class tst_FloatPropertyEditor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void slotsHaveTheirSignatures();
    void isARowOfSliderAndSpinBox();
    void controlsOfAPlainProperty();
    void sliderSteps_data();
    void sliderSteps();
    void typesToHardMaximum();
    void displayScaleShowsOtherUnits();
    void decimalsHint_data();
    void decimalsHint();
    void decimalsComeBeforeTheStep();
    void suffixHint();
    void logarithmicSliderHint_data();
    void logarithmicSliderHint();
    void logarithmicEnds_data();
    void logarithmicEnds();
    void logarithmicValues();
    void logarithmicSliderMovesTheSpinBox();
    void setValueShowsSilently_data();
    void setValueShowsSilently();
    void valuesAreRoundedAsTheFieldDoes();
    void sliderPositionIsTruncated_data();
    void sliderPositionIsTruncated();
    void valueIsADouble();
    void isHarmlessBeforeItsWidget();
    void sliderValueInStoredUnits();
    void setSliderValueIsNotBlocked();
    void setSliderValueKeepsBlockedSignals();
    void dragIsOneRun();
    void typingIsOneRun();
    void typingMovesTheSliderByTruncation();
    void typingMovesTheLogarithmicSlider();
    void focusedSpinBoxKeepsItsText();
    void echoWhileTypingDoesNothing();
    void survivesDeletionWhileTyping();
    void survivesDeletionWhileDragging();
    void wheelMovesTheSliderAlone();
    void keysOnTheSpinBoxAreSteps();
    void hintsAreReadWhenBuilt();
    void wrongRangesAreBuilt_data();
    void wrongRangesAreBuilt();
    void wrongScalesAreBuilt_data();
    void wrongScalesAreBuilt();
    void wrongLogarithmicRangesAreBuilt_data();
    void wrongLogarithmicRangesAreBuilt();
    void revertsToDefault();
};

void tst_FloatPropertyEditor::initTestCase()
{
    QLocale::setDefault(QLocale::c());
}

void tst_FloatPropertyEditor::slotsHaveTheirSignatures()
{
    const QMetaObject &meta = FloatPropertyEditor::staticMetaObject;

    QVERIFY(meta.indexOfSlot("sliderChanged(int)") >= 0);
    QVERIFY(meta.indexOfSlot("spinBoxChanged(double)") >= 0);
    QCOMPARE(meta.className(), "Tessark::PropertyUI::FloatPropertyEditor");
}

void tst_FloatPropertyEditor::isARowOfSliderAndSpinBox()
{
    Subject subject;
    subject.build();
    const auto *const layout = qobject_cast<QHBoxLayout *>(subject.widget->layout());

    QVERIFY(layout);
    QCOMPARE(layout->contentsMargins(), QMargins());
    QCOMPARE(layout->count(), 2);
    QCOMPARE(layout->itemAt(0)->widget(), subject.slider);
    QCOMPARE(layout->itemAt(1)->widget(), subject.spinBox);
    QVERIFY(dynamic_cast<DoubleSpinBox *>(subject.spinBox));
    QCOMPARE(subject.spinBox->minimumSize(), QSize(70, subject.spinBox->sizeHint().height()));
    QCOMPARE(subject.spinBox->maximumSize(), subject.spinBox->minimumSize());
    QVERIFY(!subject.widget->parent());
    QCOMPARE(subject.editor->widget(nullptr), subject.widget.get());
}

void tst_FloatPropertyEditor::controlsOfAPlainProperty()
{
    Subject subject;
    subject.build();
    subject.editor->setValue(0.5);

    QVERIFY(!subject.logSlider());
    QCOMPARE(subject.slider->orientation(), Qt::Horizontal);
    QCOMPARE(subject.slider->minimum(), 0);
    QCOMPARE(subject.slider->maximum(), 1000);
    QCOMPARE(subject.slider->singleStep(), 2);
    QCOMPARE(subject.slider->pageStep(), 20);
    QCOMPARE(subject.spinBox->minimum(), 0.0);
    QCOMPARE(subject.spinBox->maximum(), 1.0);
    QCOMPARE(subject.spinBox->singleStep(), 0.01);
    QCOMPARE(subject.spinBox->decimals(), 4);
    QCOMPARE(subject.spinBox->suffix(), QString());
    QCOMPARE(subject.spinBox->text(), QStringLiteral("0.5"));
}

void tst_FloatPropertyEditor::sliderSteps_data()
{
    QTest::addColumn<double>("maximum");
    QTest::addColumn<double>("scale");
    QTest::addColumn<int>("singleStep");
    QTest::addColumn<int>("pageStep");

    QTest::newRow("narrow") << 0.5 << 1.0 << 2 << 20;
    QTest::newRow("one") << 1.0 << 1.0 << 2 << 20;
    QTest::newRow("a hundred") << 100.0 << 1.0 << 200 << 2000;
    QTest::newRow("truncated") << 1.26 << 1.0 << 2 << 25;
    QTest::newRow("scaled") << 1.0 << 100.0 << 200 << 2000;
    QTest::newRow("saturated") << 1e12 << 1.0 << kSliderLimit << kSliderLimit;
}

void tst_FloatPropertyEditor::sliderSteps()
{
    QFETCH(double, maximum);
    QFETCH(double, scale);
    Subject subject(0.0, maximum);
    subject.with(kPropertyHintDisplayScale, scale).build();

    QTEST(subject.slider->singleStep(), "singleStep");
    QTEST(subject.slider->pageStep(), "pageStep");
}

void tst_FloatPropertyEditor::typesToHardMaximum()
{
    Subject subject(0.0, 1.0);
    subject.property.setHardMaxValue(8.0);
    subject.build();

    QCOMPARE(subject.slider->maximum(), 1000);
    QCOMPARE(subject.spinBox->maximum(), 8.0);
    QCOMPARE(subject.spinBox->singleStep(), 0.08);

    subject.spinBox->setValue(5.0);
    QCOMPARE(subject.editor->value(), QVariant(5.0));
    QCOMPARE(subject.slider->value(), 1000);
}

void tst_FloatPropertyEditor::displayScaleShowsOtherUnits()
{
    Subject subject(0.0, 1.0);
    subject.with(kPropertyHintDisplayScale, 100.0).build();

    subject.editor->setValue(0.25);

    QCOMPARE(subject.spinBox->maximum(), 100.0);
    QCOMPARE(subject.spinBox->value(), 25.0);
    QCOMPARE(subject.slider->maximum(), 100000);
    QCOMPARE(subject.slider->value(), 25000);
    QCOMPARE(subject.editor->value(), QVariant(0.25));

    subject.slider->setValue(50000);
    QCOMPARE(subject.spinBox->value(), 50.0);
    QCOMPARE(subject.editor->value(), QVariant(0.5));
}

void tst_FloatPropertyEditor::decimalsHint_data()
{
    QTest::addColumn<QVariant>("hint");
    QTest::addColumn<int>("decimals");

    QTest::newRow("absent") << QVariant() << 4;
    QTest::newRow("none") << QVariant(0) << 0;
    QTest::newRow("two") << QVariant(2) << 2;
    QTest::newRow("text") << QVariant(QStringLiteral("6")) << 6;
    QTest::newRow("no number") << QVariant(QStringLiteral("few")) << 0;
    QTest::newRow("negative") << QVariant(-3) << 0;
}

void tst_FloatPropertyEditor::decimalsHint()
{
    QFETCH(QVariant, hint);
    Subject subject;
    subject.with(kPropertyHintFloatDecimals, hint).build();

    QTEST(subject.spinBox->decimals(), "decimals");
}

void tst_FloatPropertyEditor::decimalsComeBeforeTheStep()
{
    Subject subject(0.0, 0.001);
    subject.with(kPropertyHintFloatDecimals, 6).build();

    QCOMPARE(subject.spinBox->maximum(), 0.001);
    QCOMPARE(subject.spinBox->singleStep(), 0.00001);
}

void tst_FloatPropertyEditor::suffixHint()
{
    Subject subject;
    subject.with(kPropertyHintSuffix, QStringLiteral(" dB")).build();
    subject.editor->setValue(0.5);

    QCOMPARE(subject.spinBox->text(), QStringLiteral("0.5 dB"));
}

void tst_FloatPropertyEditor::logarithmicSliderHint_data()
{
    QTest::addColumn<QVariant>("hint");
    QTest::addColumn<bool>("logarithmic");

    QTest::newRow("absent") << QVariant() << false;
    QTest::newRow("true") << QVariant(true) << true;
    QTest::newRow("false") << QVariant(false) << false;
    QTest::newRow("number") << QVariant(1) << true;
    QTest::newRow("text false") << QVariant(QStringLiteral("false")) << false;
}

void tst_FloatPropertyEditor::logarithmicSliderHint()
{
    QFETCH(QVariant, hint);
    QFETCH(bool, logarithmic);
    Subject subject(1.0, 100.0);
    subject.with(kPropertyHintLogarithmicSlider, hint).build();

    QCOMPARE(subject.logSlider() != nullptr, logarithmic);
}

void tst_FloatPropertyEditor::logarithmicEnds_data()
{
    QTest::addColumn<double>("minimum");
    QTest::addColumn<double>("maximum");
    QTest::addColumn<double>("scale");
    QTest::addColumn<int>("minimumExponent");
    QTest::addColumn<int>("maximumExponent");

    QTest::newRow("zero becomes a thousandth") << 0.0 << 1000.0 << 1.0 << -3 << 3;
    QTest::newRow("negative does so too") << -5.0 << 1000.0 << 1.0 << -3 << 3;
    QTest::newRow("in stored units") << 0.0 << 10.0 << 100.0 << -1 << 3;
    QTest::newRow("truncated, not rounded outwards") << 0.05 << 50.0 << 1.0 << -1 << 1;
    QTest::newRow("powers of ten") << 0.01 << 100.0 << 1.0 << -2 << 2;
    QTest::newRow("just large enough") << 0.00001 << 1.0 << 1.0 << -5 << 0;
}

void tst_FloatPropertyEditor::logarithmicEnds()
{
    QFETCH(double, minimum);
    QFETCH(double, maximum);
    QFETCH(double, scale);
    QFETCH(int, minimumExponent);
    QFETCH(int, maximumExponent);
    Subject subject(minimum, maximum);
    subject.with(kPropertyHintLogarithmicSlider, true).with(kPropertyHintDisplayScale, scale);
    subject.build();
    const LogSlider *const slider = subject.logSlider();
    const int decades = maximumExponent - minimumExponent;

    QCOMPARE(slider->minimumExponent(), minimumExponent);
    QCOMPARE(slider->maximumExponent(), maximumExponent);
    QCOMPARE(slider->maximum() - slider->minimum(), 1000);
    QCOMPARE(slider->singleStep(), 2 * decades);
    QCOMPARE(slider->pageStep(), 20 * decades);
    QCOMPARE(slider->orientation(), Qt::Horizontal);
}

void tst_FloatPropertyEditor::logarithmicValues()
{
    Subject subject(0.01, 100.0);
    subject.with(kPropertyHintLogarithmicSlider, true).with(kPropertyHintDisplayScale, 10.0);
    subject.build();

    subject.editor->setValue(2.5);

    QCOMPARE(subject.logSlider()->realValue(), 25.0);
    QCOMPARE(subject.editor->sliderValue(), 2.5);
    QCOMPARE(subject.spinBox->value(), 25.0);
    QCOMPARE(subject.editor->value(), QVariant(2.5));
}

void tst_FloatPropertyEditor::logarithmicSliderMovesTheSpinBox()
{
    Subject subject(0.01, 100.0);
    subject.with(kPropertyHintLogarithmicSlider, true).build();
    SignalLog log(subject.editor.get());

    subject.slider->setValue(750);

    QCOMPARE(subject.spinBox->value(), 10.0);
    QCOMPARE(subject.editor->value(), QVariant(10.0));
    QCOMPARE(log.take(), QStringList{QStringLiteral("value")});
}

void tst_FloatPropertyEditor::setValueShowsSilently_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<int>("position");
    QTest::addColumn<double>("number");

    QTest::newRow("double") << QVariant(0.5) << 500 << 0.5;
    QTest::newRow("int") << QVariant(1) << 1000 << 1.0;
    QTest::newRow("text") << QVariant(QStringLiteral("0.25")) << 250 << 0.25;
    QTest::newRow("null") << QVariant() << 0 << 0.0;
    QTest::newRow("no number") << QVariant(QStringLiteral("half")) << 0 << 0.0;
    QTest::newRow("more digits than shown") << QVariant(0.123456) << 123 << 0.1235;
    QTest::newRow("above") << QVariant(7.0) << 1000 << 1.0;
    QTest::newRow("below") << QVariant(-7.0) << 0 << 0.0;
    QTest::newRow("huge") << QVariant(1e300) << 1000 << 1.0;
    QTest::newRow("infinity") << QVariant(kInfinity) << 1000 << 1.0;
    QTest::newRow("not a number") << QVariant(kNan) << 0 << 0.0;
}

void tst_FloatPropertyEditor::setValueShowsSilently()
{
    QFETCH(QVariant, value);
    Subject subject;
    subject.build();
    subject.editor->setValue(0.75);
    SignalLog log(subject.editor.get());

    subject.editor->setValue(value);

    QTEST(subject.slider->value(), "position");
    QTEST(subject.spinBox->value(), "number");
    QCOMPARE(log.take(), QStringList());
    QVERIFY(!subject.slider->signalsBlocked());
    QVERIFY(!subject.spinBox->signalsBlocked());
}

// A value that the field shows already is not written again, so the editor must know what the field
// would make of it, to the last bit.
void tst_FloatPropertyEditor::valuesAreRoundedAsTheFieldDoes()
{
    constexpr double kLimit = 1e6;
    QRandomGenerator random(7);
    for (const int decimals : {0, 2, 4, 7, 9}) {
        Subject subject(-kLimit, kLimit);
        subject.with(kPropertyHintFloatDecimals, decimals).build();
        QDoubleSpinBox plain;
        plain.setDecimals(decimals);
        plain.setRange(-kLimit, kLimit);
        const double unit = std::pow(10.0, -decimals);
        for (int i = 0; i < 400; ++i) {
            const double somewhere = random.generateDouble() * 2000 - 1000;
            const double tie = (std::floor(somewhere / unit) + 0.5) * unit;
            const double values[] = {
                somewhere, somewhere + unit / 3,        double(float(somewhere)),
                tie,       std::nextafter(tie, kLimit), -unit / 4,
                somewhere};
            for (const double value : values) {
                subject.editor->setValue(value);
                plain.setValue(value);
                QCOMPARE(bitsOf(subject.spinBox->value()), bitsOf(plain.value()));
            }
        }
    }
}

void tst_FloatPropertyEditor::sliderPositionIsTruncated_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("position");

    QTest::newRow("down") << 0.9999 << 999;
    QTest::newRow("toward zero") << -0.9999 << -999;
    QTest::newRow("below one unit") << 0.0009 << 0;
}

void tst_FloatPropertyEditor::sliderPositionIsTruncated()
{
    QFETCH(double, value);
    Subject subject(-1.0, 1.0);
    subject.build();

    subject.editor->setValue(value);

    QTEST(subject.slider->value(), "position");
}

void tst_FloatPropertyEditor::valueIsADouble()
{
    Subject subject(0, 10);
    subject.build();
    subject.editor->setValue(3);

    QCOMPARE(subject.editor->value(), QVariant(3.0));
    QCOMPARE(int(subject.editor->value().userType()), int(QMetaType::Double));
}

void tst_FloatPropertyEditor::isHarmlessBeforeItsWidget()
{
    Property property(QStringLiteral("f"), QString(), kPropertyTypeFloat);
    FloatPropertyEditor editor(&property);

    editor.setValue(0.5);
    editor.setSliderValue(0.5);
    editor.propertyChanged();
    QMetaObject::invokeMethod(&editor, "sliderChanged", Q_ARG(int, 3));
    QMetaObject::invokeMethod(&editor, "spinBoxChanged", Q_ARG(double, 3.0));

    QCOMPARE(editor.value(), QVariant(0.0));
    QCOMPARE(editor.sliderValue(), 0.0);
}

void tst_FloatPropertyEditor::sliderValueInStoredUnits()
{
    Subject subject(0.0, 1.0);
    subject.with(kPropertyHintDisplayScale, 4.0).build();

    subject.slider->setValue(1000);

    QCOMPARE(subject.editor->sliderValue(), 0.25);
}

void tst_FloatPropertyEditor::setSliderValueIsNotBlocked()
{
    Subject subject;
    subject.build();
    SignalLog log(subject.editor.get());

    subject.editor->setSliderValue(0.4);

    QCOMPARE(subject.slider->value(), 400);
    QCOMPARE(subject.spinBox->value(), 0.4);
    QCOMPARE(log.take(), QStringList{QStringLiteral("value")});
}

void tst_FloatPropertyEditor::setSliderValueKeepsBlockedSignals()
{
    Subject subject;
    subject.build();
    subject.slider->blockSignals(true);

    subject.editor->setValue(0.4);

    QVERIFY(subject.slider->signalsBlocked());
    QCOMPARE(subject.slider->value(), 400);
}

void tst_FloatPropertyEditor::dragIsOneRun()
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
    QCOMPARE(subject.spinBox->value(), subject.slider->value() / 1000.0);
}

void tst_FloatPropertyEditor::typingIsOneRun()
{
    Subject subject(0.0, 100.0);
    subject.build();
    SignalLog log(subject.editor.get());
    subject.focusSpinBox();
    QCOMPARE(log.take(), QStringList{QStringLiteral("start")});
    subject.spinBox->selectAll();

    QTest::keyClicks(subject.spinBox, QStringLiteral("12"));
    QCOMPARE(log.take(), (QStringList{QStringLiteral("value"), QStringLiteral("value")}));
    QCOMPARE(subject.editor->value(), QVariant(12.0));

    // A spin box announces its number again on Return, changed or not.
    QTest::keyClick(subject.spinBox, Qt::Key_Return);
    QCOMPARE(log.take(), (QStringList{QStringLiteral("value"), QStringLiteral("end"),
                                      QStringLiteral("start")}));
    subject.slider->setFocus();
    QCOMPARE(log.take(), QStringList{QStringLiteral("end")});
}

void tst_FloatPropertyEditor::typingMovesTheSliderByTruncation()
{
    Subject subject;
    subject.build();

    subject.spinBox->setValue(0.1239);

    QCOMPARE(subject.slider->value(), 123);
    QCOMPARE(subject.spinBox->value(), 0.1239);
    QCOMPARE(subject.editor->value(), QVariant(0.1239));
}

void tst_FloatPropertyEditor::typingMovesTheLogarithmicSlider()
{
    Subject subject(0.01, 100.0);
    subject.with(kPropertyHintLogarithmicSlider, true).build();
    SignalLog log(subject.editor.get());

    subject.spinBox->setValue(10.0);

    QCOMPARE(subject.slider->value(), 750);
    QCOMPARE(subject.logSlider()->realValue(), 10.0);
    QCOMPARE(log.take(), QStringList{QStringLiteral("value")});
}

void tst_FloatPropertyEditor::focusedSpinBoxKeepsItsText()
{
    Subject subject;
    subject.build();
    subject.editor->setValue(0.1);
    subject.focusSpinBox();

    subject.editor->setValue(0.5);

    QCOMPARE(subject.spinBox->value(), 0.1);
    QCOMPARE(subject.slider->value(), 500);

    subject.slider->setFocus();
    subject.editor->setValue(0.6);
    QCOMPARE(subject.spinBox->value(), 0.6);
}

void tst_FloatPropertyEditor::echoWhileTypingDoesNothing()
{
    Subject subject;
    subject.build();
    QVector<double> shown;
    connect(subject.editor.get(), &PropertyEditor::valueChanged, subject.editor.get(), [&] {
        subject.editor->setValue(0.9);
        shown.append(subject.spinBox->value());
    });

    subject.spinBox->setValue(0.1);
    QCOMPARE(shown, QVector<double>{0.1});
    QCOMPARE(subject.slider->value(), 100);

    // The guard is down again afterwards, and never up for the slider.
    subject.slider->setValue(200);
    QCOMPARE(subject.spinBox->value(), 0.9);
    QCOMPARE(subject.slider->value(), 900);
}

void tst_FloatPropertyEditor::survivesDeletionWhileTyping()
{
    Subject subject;
    subject.build();
    connect(subject.editor.get(), &PropertyEditor::valueChanged, qApp,
            [&] { subject.editor.reset(); });

    subject.spinBox->setValue(0.1);

    QVERIFY(!subject.editor);
    QCOMPARE(subject.spinBox->value(), 0.1);
}

void tst_FloatPropertyEditor::survivesDeletionWhileDragging()
{
    Subject subject;
    subject.build();
    subject.show();
    connect(subject.editor.get(), &PropertyEditor::valueChanged, qApp,
            [&] { subject.editor.reset(); });
    SliderDrag drag(subject.slider);

    drag.press();
    drag.moveBy(50);
    drag.moveBy(50);
    drag.release();

    QVERIFY(!subject.editor);
    QVERIFY(subject.slider->value() > 0);
}

void tst_FloatPropertyEditor::wheelMovesTheSliderAlone()
{
    for (const bool logarithmic : {false, true}) {
        Subject subject(0.0, 10.0);
        subject.with(kPropertyHintLogarithmicSlider, logarithmic).build();
        subject.show();
        const int before = subject.slider->value();
        const double shown = subject.spinBox->value();

        turnWheelOver(subject.spinBox);
        QCOMPARE(subject.spinBox->value(), shown);

        turnWheelOver(subject.slider);
        QVERIFY(subject.slider->value() > before);
    }
}

void tst_FloatPropertyEditor::keysOnTheSpinBoxAreSteps()
{
    Subject subject(0.0, 100.0);
    subject.build();
    SignalLog log(subject.editor.get());

    QTest::keyClick(subject.spinBox, Qt::Key_Up);

    QCOMPARE(subject.editor->value(), QVariant(1.0));
    QCOMPARE(log.take(), QStringList{QStringLiteral("value")});
}

void tst_FloatPropertyEditor::hintsAreReadWhenBuilt()
{
    Subject subject;
    subject.build();

    subject.with(kPropertyHintDisplayScale, 100.0).with(kPropertyHintSuffix, QStringLiteral("x"));
    subject.property.setRange(0.0, 50.0);
    subject.editor->propertyChanged();
    subject.editor->setValue(0.5);

    QCOMPARE(subject.spinBox->text(), QStringLiteral("0.5"));
    QCOMPARE(subject.slider->maximum(), 1000);
}

void tst_FloatPropertyEditor::wrongRangesAreBuilt_data()
{
    QTest::addColumn<QVariant>("minimum");
    QTest::addColumn<QVariant>("maximum");
    QTest::addColumn<int>("lowest");
    QTest::addColumn<int>("highest");

    QTest::newRow("null") << QVariant() << QVariant() << 0 << 0;
    QTest::newRow("no numbers") << QVariant(QStringLiteral("low")) << QVariant(QPixmap()) << 0 << 0;
    QTest::newRow("reversed") << QVariant(1.0) << QVariant(-1.0) << 1000 << 1000;
    QTest::newRow("infinite") << QVariant(-kInfinity) << QVariant(kInfinity) << -kSliderLimit
                              << kSliderLimit;
    QTest::newRow("not numbers") << QVariant(kNan) << QVariant(kNan) << 0 << 0;
    QTest::newRow("beyond int") << QVariant(-1e12) << QVariant(1e12) << -kSliderLimit
                                << kSliderLimit;
    QTest::newRow("largest") << QVariant(-std::numeric_limits<double>::max())
                             << QVariant(std::numeric_limits<double>::max()) << -kSliderLimit
                             << kSliderLimit;
}

void tst_FloatPropertyEditor::wrongRangesAreBuilt()
{
    QFETCH(QVariant, minimum);
    QFETCH(QVariant, maximum);
    Subject subject(minimum, maximum);

    subject.build();
    subject.show();
    subject.editor->setValue(0.5);
    QTest::keyClick(subject.spinBox, Qt::Key_Up);
    QTest::keyClick(subject.slider, Qt::Key_PageUp);

    QTEST(subject.slider->minimum(), "lowest");
    QTEST(subject.slider->maximum(), "highest");
    QVERIFY(qIsFinite(subject.editor->value().toDouble()));
    QVERIFY(!subject.widget->grab().isNull());
}

void tst_FloatPropertyEditor::wrongScalesAreBuilt_data()
{
    QTest::addColumn<QVariant>("scale");

    QTest::newRow("zero") << QVariant(0.0);
    QTest::newRow("no number") << QVariant(QStringLiteral("large"));
    QTest::newRow("negative") << QVariant(-2.0);
    QTest::newRow("tiny") << QVariant(1e-300);
    QTest::newRow("huge") << QVariant(1e300);
    QTest::newRow("infinite") << QVariant(kInfinity);
    QTest::newRow("not a number") << QVariant(kNan);
}

void tst_FloatPropertyEditor::wrongScalesAreBuilt()
{
    QFETCH(QVariant, scale);
    for (const bool logarithmic : {false, true}) {
        Subject subject(0.0, 10.0);
        subject.with(kPropertyHintDisplayScale, scale)
            .with(kPropertyHintLogarithmicSlider, logarithmic);
        subject.build();
        subject.show();

        subject.editor->setValue(0.5);
        QTest::keyClick(subject.spinBox, Qt::Key_Up);
        QTest::keyClick(subject.slider, Qt::Key_PageUp);
        subject.editor->setValue(-0.5);

        QVERIFY(!qIsNaN(subject.editor->value().toDouble()));
        QVERIFY(!qIsNaN(subject.editor->sliderValue()));
        QVERIFY(!subject.widget->grab().isNull());
    }
}

void tst_FloatPropertyEditor::wrongLogarithmicRangesAreBuilt_data()
{
    QTest::addColumn<QVariant>("minimum");
    QTest::addColumn<QVariant>("maximum");

    QTest::newRow("null") << QVariant() << QVariant();
    QTest::newRow("negative") << QVariant(-10.0) << QVariant(-1.0);
    QTest::newRow("reversed") << QVariant(100.0) << QVariant(0.1);
    QTest::newRow("within one decade") << QVariant(2.0) << QVariant(3.0);
    QTest::newRow("infinite") << QVariant(-kInfinity) << QVariant(kInfinity);
    QTest::newRow("not numbers") << QVariant(kNan) << QVariant(kNan);
}

void tst_FloatPropertyEditor::wrongLogarithmicRangesAreBuilt()
{
    QFETCH(QVariant, minimum);
    QFETCH(QVariant, maximum);
    Subject subject(minimum, maximum);
    subject.with(kPropertyHintLogarithmicSlider, true).build();
    subject.show();

    subject.editor->setValue(0.5);
    QTest::keyClick(subject.slider, Qt::Key_PageUp);
    QTest::keyClick(subject.spinBox, Qt::Key_Down);

    QVERIFY(qIsFinite(subject.editor->value().toDouble()));
    QVERIFY(!subject.widget->grab().isNull());
}

void tst_FloatPropertyEditor::revertsToDefault()
{
    Subject subject;
    subject.property.setDefaultValue(0.5);
    subject.build();
    SignalLog log(subject.editor.get());

    subject.editor->revertToDefaultValue();

    QCOMPARE(subject.editor->value(), QVariant(0.5));
    QCOMPARE(log.take(), QStringList{QStringLiteral("value")});
}

QTEST_MAIN(tst_FloatPropertyEditor)
#include "tst_FloatPropertyEditor.moc"
