#include "property/editors/ColorPropertyEditor.h"

#include "core/ColorWheel.h"
#include "core/Slider.h"
#include "property/DoubleSpinBox.h"
#include "support/EditorFixture.h"
#include "support/MessageRecorder.h"
#include "support/PaintCounter.h"
#include "support/SignalLog.h"
#include "support/SliderDrag.h"
#include "support/Wheel.h"
#include "support/WheelPointer.h"

#include <QGridLayout>
#include <QPixmap>
#include <QPointer>
#include <QTest>
#include <QVector2D>
#include <QVector3D>
#include <QVector4D>

#include <cmath>
#include <limits>
#include <type_traits>

using namespace Tessark::PropertyUI;
using Tessark::UI::ColorControl;
using Tessark::UI::ColorWheel;
using Tessark::UI::IColorControlClient;
using Tessark::UI::Slider;

// The client's calls are for the control alone.
static_assert(std::is_base_of_v<IColorControlClient, ColorPropertyEditor>);
static_assert(!std::is_convertible_v<ColorPropertyEditor *, IColorControlClient *>);

namespace {

struct Subject : EditorFixture<ColorPropertyEditor, QWidget>
{
    Subject()
        : EditorFixture(kPropertyTypeColor)
    {
    }

    void show()
    {
        build();
        widget->show();
        widget->activateWindow();
    }

    QGridLayout *layout() { return qobject_cast<QGridLayout *>(build()->layout()); }

    template <typename Control>
    Control *at(int row, int column)
    {
        return dynamic_cast<Control *>(layout()->itemAtPosition(row, column)->widget());
    }

    ColorWheel *wheel() { return at<ColorWheel>(0, 0); }
    Slider *slider(int channel) { return at<Slider>(channel + 1, 0); }
    DoubleSpinBox *field(int channel) { return at<DoubleSpinBox>(channel + 1, 1); }

    QString texts()
    {
        QStringList list;
        for (int channel = 0; channel < 3; ++channel)
            list << field(channel)->text();
        return list.join(QLatin1Char(' '));
    }

    QColor color() { return editor->value().value<QColor>(); }
};

QColor rgbaF(double red, double green, double blue, double alpha)
{
    return QColor::fromRgbF(float(red), float(green), float(blue), float(alpha));
}

/// As a host that stores colours in bytes.
QColor inBytes(const QColor &color)
{
    return QColor(color.red(), color.green(), color.blue(), color.alpha());
}

/// Where the wheel of the editor's size shows a hue and a saturation.
QPointF discPoint(double hue, double saturation)
{
    constexpr double kCentre = 80;
    constexpr double kRadius = 59;
    const double angle = 2 * M_PI * hue;
    return {kCentre + saturation * kRadius * std::cos(angle),
            kCentre - saturation * kRadius * std::sin(angle)};
}

/// Where it shows a value on the ring around.
QPointF ringPoint(double value)
{
    constexpr double kCentre = 80;
    constexpr double kRadius = 70;
    const double angle = (240 - 300 * value) * M_PI / 180;
    return {kCentre + kRadius * std::cos(angle), kCentre - kRadius * std::sin(angle)};
}

QStringList words(const char *text)
{
    return QString::fromLatin1(text).split(QLatin1Char(' '));
}

constexpr float kFloatNaN = std::numeric_limits<float>::quiet_NaN();
constexpr float kFloatInfinity = std::numeric_limits<float>::infinity();

} // namespace

class tst_ColorPropertyEditor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void slotHasItsSignature();
    void layoutOfTheWidget();
    void fieldsAsFractions();
    void fieldsAsIntegers();
    void invalidBeforeAnyValue();
    void isHarmlessBeforeItsWidget();
    void readsNoHints();

    void setValueConverts_data();
    void setValueConverts();
    void setValueShowsEverywhere();
    void setValueTakesBadNumbers_data();
    void setValueTakesBadNumbers();
    void setValueRestoresBlocking();

    void inputModeSwitchesSilently();
    void inputModeBackAndForthKeepsTheColour();
    void typingInIntegers();

    void typingAnnouncesTwiceAndMakesOpaque();
    void typingMovesControlBetweenTheAnnouncements();
    void echoWhileTypingDoesNothing();
    void focusedTypingIsARun();
    void filtersItsFieldsOnly();

    void sliderDragIsOneRun();
    void sliderLeavesTheFields();
    void sliderKeepsTheAlpha();
    void huesOfGreyAndBlackAreKept();
    void echoInBytesKeepsTheSlidersPlace();

    void wheelDragIsOneRun();
    void wheelKeysAreRuns();
    void wheelEscapeBringsTheColourBack();
    void wheelFollowsThePointerThroughEchoes_data();
    void wheelFollowsThePointerThroughEchoes();
    void ringKeepsTheHueThroughEchoes();
    void wheelMayDieInItsDrag_data();
    void wheelMayDieInItsDrag();

    void deletionOfTheEditor_data();
    void deletionOfTheEditor();
    void deletionOfTheWidgetWhileTyping();
    void widgetsGoOnWithoutTheEditor();
    void editorGoesOnWithoutItsWidget();
    void widgetsReportToNobodyWhileTheEditorDies();
    void manyRounds();

    void revertsToDefault();
    void paintsOnlyWhatChanged();
};

void tst_ColorPropertyEditor::initTestCase()
{
    QLocale::setDefault(QLocale::c());
}

void tst_ColorPropertyEditor::slotHasItsSignature()
{
    const QMetaObject &meta = ColorPropertyEditor::staticMetaObject;

    QCOMPARE(meta.className(), "Tessark::PropertyUI::ColorPropertyEditor");
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 1);
    QVERIFY(meta.indexOfSlot("spinBoxChanged(double)") >= 0);
}

void tst_ColorPropertyEditor::layoutOfTheWidget()
{
    Subject subject;
    QGridLayout *const layout = subject.layout();
    const QWidget plain;
    const QGridLayout plainLayout;

    QVERIFY(layout);
    QCOMPARE(subject.widget->metaObject(), &QWidget::staticMetaObject);
    QVERIFY(!subject.widget->parent());
    QCOMPARE(subject.editor->widget(nullptr), subject.widget.get());
    QCOMPARE(layout->rowCount(), 4);
    QCOMPARE(layout->columnCount(), 2);
    QCOMPARE(layout->count(), 7);

    ColorWheel *const wheel = subject.wheel();
    int row = -1, column = -1, rowSpan = 0, columnSpan = 0;
    layout->getItemPosition(layout->indexOf(wheel), &row, &column, &rowSpan, &columnSpan);
    QCOMPARE(QRect(column, row, columnSpan, rowSpan), QRect(0, 0, 2, 1));
    QCOMPARE(layout->itemAtPosition(0, 0)->alignment(), Qt::Alignment(Qt::AlignCenter));
    QCOMPARE(wheel->minimumSize(), QSize(160, 160));
    QCOMPARE(wheel->maximumSize(), QSize(160, 160));
    QCOMPARE(int(wheel->displayMode()), 2);
    QCOMPARE(int(wheel->interactionMode()), 0);

    for (int channel = 0; channel < 3; ++channel) {
        QCOMPARE(subject.slider(channel)->orientation(), Qt::Horizontal);
        QCOMPARE(subject.slider(channel)->realMinimum(), 0.0);
        QCOMPARE(subject.slider(channel)->realMaximum(), 1.0);
        QCOMPARE(subject.field(channel)->minimumWidth(), 70);
        QCOMPARE(subject.field(channel)->maximumWidth(), 70);
        QCOMPARE(subject.field(channel)->maximumHeight(),
                 subject.field(channel)->sizeHint().height());
    }
}

void tst_ColorPropertyEditor::fieldsAsFractions()
{
    Subject subject;

    for (int channel = 0; channel < 3; ++channel) {
        QCOMPARE(subject.field(channel)->minimum(), 0.0);
        QCOMPARE(subject.field(channel)->maximum(), 1.0);
        QCOMPARE(subject.field(channel)->singleStep(), 0.01);
        QCOMPARE(subject.field(channel)->decimals(), 4);
    }
    subject.editor->setValue(QVector4D(1, 0, 0, 1));
    QCOMPARE(subject.texts(), QStringLiteral("1 0 0"));
    QCOMPARE(subject.color(), QColor(Qt::red));
}

void tst_ColorPropertyEditor::fieldsAsIntegers()
{
    Subject subject;
    subject.editor->setInputColorAsInteger(true);

    for (int channel = 0; channel < 3; ++channel) {
        QCOMPARE(subject.field(channel)->minimum(), 0.0);
        QCOMPARE(subject.field(channel)->maximum(), 255.0);
        QCOMPARE(subject.field(channel)->singleStep(), 1.0);
        QCOMPARE(subject.field(channel)->decimals(), 0);
    }
    subject.editor->setValue(QVector4D(1, 0, 0, 1));
    QCOMPARE(subject.texts(), QStringLiteral("255 0 0"));
    subject.editor->setValue(QColor(10, 128, 254));
    QCOMPARE(subject.texts(), QStringLiteral("10 128 254"));
}

void tst_ColorPropertyEditor::invalidBeforeAnyValue()
{
    Subject subject;

    QVERIFY(!subject.color().isValid());
    subject.build();
    QCOMPARE(int(subject.editor->value().userType()), int(QMetaType::QColor));
    QVERIFY(!subject.color().isValid());
    QCOMPARE(subject.texts(), QStringLiteral("0 0 0"));
}

void tst_ColorPropertyEditor::isHarmlessBeforeItsWidget()
{
    Subject subject;
    SignalLog log(subject.editor.get());

    QMetaObject::invokeMethod(subject.editor.get(), "spinBoxChanged", Q_ARG(double, 0.5));
    QVERIFY(!subject.color().isValid());
    subject.editor->setValue(QColor(Qt::red));
    QCOMPARE(subject.color(), QColor(Qt::red));

    QCOMPARE(subject.texts(), QStringLiteral("0 0 0")); // shown is what comes after building
    QCOMPARE(log.take(), QStringList());
}

void tst_ColorPropertyEditor::readsNoHints()
{
    Subject subject;
    subject.property.setHint(kPropertyHintEnabled, false)
        .setHint(kPropertyHintFloatDecimals, 1)
        .setHint(kPropertyHintDisplayScale, 10.0);
    subject.property.setRange(0.25, 0.5);

    QVERIFY(subject.build()->isEnabled());
    QCOMPARE(subject.field(0)->decimals(), 4);
    QCOMPARE(subject.field(0)->maximum(), 1.0);
}

void tst_ColorPropertyEditor::setValueConverts_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QColor>("color");
    QTest::addColumn<QString>("texts");

    const auto row = [](const char *name, const QVariant &value, const QColor &color,
                        const char *texts) {
        QTest::newRow(name) << value << color << QString::fromLatin1(texts);
    };
    row("colour", QColor(51, 102, 204, 127), QColor(51, 102, 204, 127), "0.2 0.4 0.8");
    row("colour in another model", QColor::fromHsv(120, 255, 255), QColor::fromHsv(120, 255, 255),
        "0 1 0");
    row("four components", QVector4D(0.25F, 0.5F, 0.75F, 0.3F), rgbaF(0.25, 0.5, 0.75, 0.3),
        "0.25 0.5 0.75");
    row("three components are transparent", QVector3D(1, 1, 1), rgbaF(1, 1, 1, 0), "1 1 1");
    row("two components are transparent", QVector2D(0.5F, 1), rgbaF(0.5, 1, 0, 0), "0.5 1 0");
    row("float", 0.25F, rgbaF(0.25, 0.25, 0.25, 0.25), "0.25 0.25 0.25");
    row("double", 0.25, QColor(), "0 0 0");
    row("integer", 7, QColor(), "0 0 0");
    row("text of three numbers", QStringLiteral("1 0.5 0"), rgbaF(1, 0.5, 0, 1), "1 0.5 0");
    row("text of four numbers", QStringLiteral("1 0.5 0 0.25"), rgbaF(1, 0.5, 0, 0.25), "1 0.5 0");
    row("text of one number", QStringLiteral("0.5"), rgbaF(0.5, 0.5, 0.5, 0.5), "0.5 0.5 0.5");
    row("name", QStringLiteral("blue"), QColor(Qt::blue), "0 0 1");
    row("hash", QStringLiteral("#ff8000"), QColor(255, 128, 0), "1 0.502 0");
    row("nothing", QVariant(), QColor(), "0 0 0");
    row("picture", QPixmap(2, 2), QColor(), "0 0 0");
}

void tst_ColorPropertyEditor::setValueConverts()
{
    QFETCH(QVariant, value);
    QFETCH(QColor, color);
    Subject subject;
    subject.build();
    subject.editor->setValue(QColor(1, 2, 3, 4));
    SignalLog log(subject.editor.get());

    subject.editor->setValue(value);

    QCOMPARE(subject.editor->value(), QVariant(color));
    QCOMPARE(subject.color().isValid(), color.isValid());
    QTEST(subject.texts(), "texts");
    QCOMPARE(log.take(), QStringList());
}

void tst_ColorPropertyEditor::setValueShowsEverywhere()
{
    Subject subject;
    subject.build();

    subject.editor->setValue(QVector4D(0.25F, 0.5F, 0.75F, 0.5F));

    QVERIFY(std::abs(subject.slider(0)->realValue() - 0.25) < 1e-4);
    QVERIFY(std::abs(subject.slider(1)->realValue() - 0.5) < 1e-4);
    QVERIFY(std::abs(subject.slider(2)->realValue() - 0.75) < 1e-4);
    QVERIFY(std::abs(subject.wheel()->hue() - 210.0 / 360) < 1e-4);
    QVERIFY(std::abs(subject.wheel()->saturation() - 2.0 / 3) < 1e-4);
    QCOMPARE(subject.wheel()->ringValue(), float(subject.color().valueF()));
}

void tst_ColorPropertyEditor::setValueTakesBadNumbers_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<bool>("isValid");
    QTest::addColumn<QString>("texts");

    const auto row = [](const char *name, const QVariant &value, bool isValid, const char *texts) {
        QTest::newRow(name) << value << isValid << QString::fromLatin1(texts);
    };
    row("NaN is 0", QVector4D(kFloatNaN, kFloatNaN, 0.5F, kFloatNaN), true, "0 0 0.5");
    row("a NaN", kFloatNaN, true, "0 0 0");
    row("beyond 1", QVector4D(2, 1.5F, 0.5F, 1), true, "1 1 0.5");
    row("below 0", QVector4D(-2, -0.5F, 0.5F, 1), true, "0 0 0.5");
    row("infinite", QVector4D(kFloatInfinity, -kFloatInfinity, 0.5F, 1), true, "1 0 0.5");
    row("huge", QVector4D(1e30F, -1e30F, 0.5F, 1), true, "1 0 0.5");
    row("alpha beyond 1", QVector4D(1, 1, 1, 2), false, "0 0 0");
    row("alpha below 0", QVector4D(1, 1, 1, -0.5F), false, "0 0 0");
    row("alpha infinite", QVector4D(1, 1, 1, kFloatInfinity), false, "0 0 0");
    row("float beyond 1", 2.0F, false, "0 0 0");
    row("text beyond 1", QStringLiteral("2 0 0 1"), true, "1 0 0");
    row("text with alpha beyond 1", QStringLiteral("1 0 0 2"), false, "0 0 0");
}

void tst_ColorPropertyEditor::setValueTakesBadNumbers()
{
    QFETCH(QVariant, value);
    QFETCH(bool, isValid);
    Subject subject;
    subject.build();
    subject.editor->setValue(QColor(1, 2, 3, 4));
    const TestSupport::MessageRecorder recorder;

    subject.editor->setValue(value);

    const QStringList warnings = recorder.warnings();
    QCOMPARE(warnings, QStringList());
    QCOMPARE(subject.color().isValid(), isValid);
    QTEST(subject.texts(), "texts");
    QVERIFY(qIsFinite(subject.color().redF()));
    for (int channel = 0; channel < 3; ++channel) {
        QVERIFY(std::abs(subject.slider(channel)->realValue() - subject.field(channel)->value())
                < 1e-4);
    }
}

void tst_ColorPropertyEditor::setValueRestoresBlocking()
{
    Subject subject;
    subject.build();
    auto *const control = subject.editor->findChild<ColorControl *>();
    QVERIFY(control);
    QCOMPARE(control->parent(), subject.editor.get());

    subject.editor->setValue(QColor(Qt::red));
    QVERIFY(!control->signalsBlocked());
    control->blockSignals(true);
    subject.editor->setValue(QColor(Qt::green));
    QVERIFY(control->signalsBlocked());
}

void tst_ColorPropertyEditor::inputModeSwitchesSilently()
{
    Subject subject;
    subject.build();
    subject.editor->setValue(QColor(255, 51, 128, 77));
    SignalLog log(subject.editor.get());

    subject.editor->setInputColorAsInteger(true);
    QCOMPARE(subject.texts(), QStringLiteral("255 51 128"));
    QCOMPARE(subject.field(0)->maximum(), 255.0);
    QCOMPARE(subject.field(0)->singleStep(), 1.0);
    QCOMPARE(subject.field(0)->decimals(), 0);

    subject.editor->setInputColorAsInteger(false);
    QCOMPARE(subject.texts(), QStringLiteral("1 0.2 0.502"));
    QCOMPARE(subject.field(0)->maximum(), 1.0);
    QCOMPARE(subject.field(0)->singleStep(), 0.01);
    QCOMPARE(subject.field(0)->decimals(), 4);

    QCOMPARE(log.take(), QStringList());
    QCOMPARE(subject.color(), QColor(255, 51, 128, 77));
}

void tst_ColorPropertyEditor::inputModeBackAndForthKeepsTheColour()
{
    Subject subject;
    subject.build();
    subject.editor->setInputColorAsInteger(true); // without any colour
    QCOMPARE(subject.texts(), QStringLiteral("0 0 0"));
    subject.editor->setValue(QVector4D(0.1234F, 0.5F, 0.9999F, 1));
    const QColor color = subject.color();

    subject.editor->setInputColorAsInteger(false);
    subject.editor->setInputColorAsInteger(true);
    subject.editor->setInputColorAsInteger(false);

    QCOMPARE(subject.texts(), QStringLiteral("0.1234 0.5 0.9999"));
    QCOMPARE(subject.color(), color);
}

void tst_ColorPropertyEditor::typingInIntegers()
{
    Subject subject;
    subject.editor->setInputColorAsInteger(true);
    subject.build();
    SignalLog log(subject.editor.get());

    subject.field(1)->setValue(51);

    QCOMPARE(subject.color(), QColor(0, 51, 0));
    QVERIFY(std::abs(subject.slider(1)->realValue() - 0.2) < 1e-4);
    QCOMPARE(log.take(), words("value value"));
}

void tst_ColorPropertyEditor::typingAnnouncesTwiceAndMakesOpaque()
{
    Subject subject;
    subject.show();
    subject.editor->setValue(QVector4D(0.25F, 0.5F, 0.75F, 0.3F));
    subject.field(0)->setFocus();
    QTRY_VERIFY(subject.field(0)->hasFocus());
    subject.field(0)->selectAll();
    SignalLog log(subject.editor.get());

    QTest::keyClicks(subject.field(0), QStringLiteral("0.5")); // "0", "0." and "0.5"

    QCOMPARE(log.take(), words("value value value value"));
    QCOMPARE(subject.color().alphaF(), decltype(QColor().alphaF())(1));
    QVERIFY(std::abs(double(subject.color().redF()) - 0.5) < 1e-4);
    QVERIFY(std::abs(double(subject.color().greenF()) - 0.5) < 1e-4);
    QVERIFY(std::abs(double(subject.color().blueF()) - 0.75) < 1e-4);
}

void tst_ColorPropertyEditor::typingMovesControlBetweenTheAnnouncements()
{
    Subject subject;
    subject.build();
    QVector<double> shown;
    QVector<float> ring;
    connect(subject.editor.get(), &PropertyEditor::valueChanged, this, [&] {
        shown << std::round(subject.slider(2)->realValue() * 1000);
        ring << subject.wheel()->ringValue();
    });

    subject.field(2)->setValue(0.75);

    QCOMPARE(shown, (QVector<double>{0, 750}));
    QCOMPARE(ring, (QVector<float>{0, float(subject.color().valueF())}));
    QCOMPARE(subject.wheel()->saturation(), 1.0);
}

void tst_ColorPropertyEditor::echoWhileTypingDoesNothing()
{
    Subject subject;
    subject.build();
    connect(subject.editor.get(), &PropertyEditor::valueChanged, this,
            [&] { subject.editor->setValue(QColor(Qt::green)); });

    subject.field(0)->setValue(0.25);

    QCOMPARE(subject.texts(), QStringLiteral("0.25 0 0"));
    QVERIFY(std::abs(double(subject.color().redF()) - 0.25) < 1e-4);
    subject.editor->setValue(QColor(Qt::blue)); // the guard is down again
    QCOMPARE(subject.texts(), QStringLiteral("0 0 1"));
}

void tst_ColorPropertyEditor::focusedTypingIsARun()
{
    Subject subject;
    subject.show();
    subject.wheel()->setFocus();
    SignalLog log(subject.editor.get());

    subject.field(0)->setFocus();
    QTRY_VERIFY(subject.field(0)->hasFocus());
    QCOMPARE(log.take(), words("start"));
    QTest::keyClick(subject.field(0), Qt::Key_Up);
    QCOMPARE(log.take(), words("value value"));
    QTest::keyClick(subject.field(0), Qt::Key_Return); // a spin box announces its value again
    QCOMPARE(log.take(), words("value value end start"));
    subject.slider(0)->setFocus();
    QCOMPARE(log.take(), words("end"));
}

void tst_ColorPropertyEditor::filtersItsFieldsOnly()
{
    Subject subject;
    subject.show();
    SignalLog log(subject.editor.get());

    turnWheelOver(subject.field(0));
    QCOMPARE(subject.texts(), QStringLiteral("0 0 0"));
    QCOMPARE(log.take(), QStringList());

    turnWheelOver(subject.slider(0));
    QVERIFY(subject.slider(0)->realValue() > 0);
    QCOMPARE(log.take(), words("value"));
}

void tst_ColorPropertyEditor::sliderDragIsOneRun()
{
    Subject subject;
    subject.show();
    SignalLog log(subject.editor.get());
    SliderDrag drag(subject.slider(1));

    drag.press();
    drag.moveBy(20);
    drag.moveBy(20);
    drag.release();

    QCOMPARE(log.take(), words("start value value end"));
    QVERIFY(subject.color().greenF() > 0);
    QCOMPARE(double(subject.color().redF()), 0.0);
}

void tst_ColorPropertyEditor::sliderLeavesTheFields()
{
    Subject subject;
    subject.build();
    SignalLog log(subject.editor.get());

    subject.slider(0)->setRealValue(0.5);
    QCOMPARE(subject.texts(), QStringLiteral("0 0 0"));
    QCOMPARE(log.take(), words("value"));
    QVERIFY(std::abs(double(subject.color().redF()) - 0.5) < 1e-4);

    subject.editor->setValue(subject.color()); // the host's echo
    QCOMPARE(subject.texts(), QStringLiteral("0.5 0 0"));
}

void tst_ColorPropertyEditor::sliderKeepsTheAlpha()
{
    Subject subject;
    subject.build();
    subject.editor->setValue(QVector4D(0.5F, 0.5F, 0.5F, 0.25F));

    subject.slider(0)->setRealValue(0.75);

    QVERIFY(std::abs(double(subject.color().alphaF()) - 0.25) < 1e-4);
}

void tst_ColorPropertyEditor::huesOfGreyAndBlackAreKept()
{
    Subject subject;
    subject.build();
    connect(subject.editor.get(), &PropertyEditor::valueChanged, this,
            [&] { subject.editor->setValue(inBytes(subject.color())); });
    subject.editor->setValue(QColor(0, 0, 128));
    const double hue = subject.wheel()->hue();
    QCOMPARE(hue, 2.0 / 3);

    subject.slider(2)->setRealValue(0); // black
    QCOMPARE(subject.wheel()->hue(), hue);
    QCOMPARE(subject.wheel()->saturation(), 1.0);
    subject.slider(2)->setRealValue(0.5);
    QCOMPARE(subject.wheel()->hue(), hue);
    subject.slider(0)->setRealValue(0.2);
    subject.slider(1)->setRealValue(0.2);
    QVERIFY(std::abs(subject.wheel()->hue() - hue) < 1e-6);
    subject.slider(2)->setRealValue(0.2); // grey
    QVERIFY(subject.wheel()->saturation() < 1e-6);
    subject.slider(2)->setRealValue(0.4);
    QVERIFY(std::abs(subject.wheel()->hue() - hue) < 1e-6);
}

void tst_ColorPropertyEditor::echoInBytesKeepsTheSlidersPlace()
{
    Subject subject;
    subject.show();
    connect(subject.editor.get(), &PropertyEditor::valueChanged, this,
            [&] { subject.editor->setValue(inBytes(subject.color())); });

    subject.slider(0)->setRealValue(0.0123);
    const double hue = subject.wheel()->hue();
    subject.editor->setValue(QColor(3, 0, 0));

    QVERIFY(subject.slider(0)->realValue() == 0.0123);
    QCOMPARE(subject.wheel()->hue(), hue);
    QCOMPARE(subject.color(), QColor(3, 0, 0));
    subject.editor->setValue(QColor(90, 0, 0)); // no echo
    QVERIFY(std::abs(subject.slider(0)->realValue() - 90.0 / 255) < 1e-4);
}

void tst_ColorPropertyEditor::wheelDragIsOneRun()
{
    Subject subject;
    subject.show();
    subject.editor->setValue(QVector4D(0.5F, 0.25F, 0.25F, 0.5F));
    SignalLog log(subject.editor.get());
    WheelPointer pointer(subject.wheel());

    pointer.press(discPoint(0.25, 0.75));
    QCOMPARE(log.take(), words("start value"));
    pointer.move(discPoint(0.5, 0.75));
    pointer.move(discPoint(0.75, 0.5));
    QCOMPARE(log.take(), words("value value"));
    pointer.release();
    QCOMPARE(log.take(), words("end"));

    QVERIFY(std::abs(double(subject.color().hsvHueF()) - 0.75) < 1e-3);
    QVERIFY(std::abs(double(subject.color().hsvSaturationF()) - 0.5) < 1e-3);
    QVERIFY(std::abs(double(subject.color().valueF()) - 0.5) < 1e-3);
    QVERIFY(std::abs(double(subject.color().alphaF()) - 0.5) < 1e-3);
    QVERIFY(std::abs(subject.slider(2)->realValue() - 0.5) < 1e-3);
    QCOMPARE(subject.texts(), QStringLiteral("0.5 0.25 0.25")); // the host has not echoed yet
}

void tst_ColorPropertyEditor::wheelKeysAreRuns()
{
    Subject subject;
    subject.show();
    subject.editor->setValue(QColor(128, 64, 64));
    subject.wheel()->setFocus();
    QTRY_VERIFY(subject.wheel()->hasFocus());
    SignalLog log(subject.editor.get());

    QTest::keyClick(subject.wheel(), Qt::Key_Right);
    QCOMPARE(log.take(), words("start value end"));
    QTest::keyClick(subject.wheel(), Qt::Key_PageDown);
    QCOMPARE(log.take(), words("start value end"));

    QVERIFY(std::abs(subject.wheel()->hue() - 1.0 / 360) < 1e-4);
    subject.editor->setValue(QColor(128, 128, 128));
    QTest::keyClick(subject.wheel(), Qt::Key_Right); // turns a hue that the host cannot see
    QCOMPARE(log.take(), words("start end"));
}

void tst_ColorPropertyEditor::wheelEscapeBringsTheColourBack()
{
    Subject subject;
    subject.show();
    subject.editor->setValue(QVector4D(0.1234F, 0.2345F, 0.3456F, 0.4567F));
    const QColor before = subject.color();
    SignalLog log(subject.editor.get());
    WheelPointer pointer(subject.wheel());

    pointer.press(discPoint(0.1, 0.9));
    QTest::keyClick(subject.wheel(), Qt::Key_Escape);
    pointer.move(discPoint(0.3, 0.3));
    pointer.release();

    QCOMPARE(log.take(), words("start value value end"));
    QCOMPARE(subject.color(), before);
}

void tst_ColorPropertyEditor::wheelFollowsThePointerThroughEchoes_data()
{
    QTest::addColumn<QColor>("color");
    QTest::addColumn<double>("saturation");

    QTest::newRow("bright") << QColor(200, 100, 100) << 0.8;
    QTest::newRow("near grey") << QColor(128, 128, 129) << 0.03;
    QTest::newRow("near black") << QColor(2, 2, 3) << 0.5;
}

/// A host that stores bytes cannot tell most of these hues apart, and the marker stays put.
void tst_ColorPropertyEditor::wheelFollowsThePointerThroughEchoes()
{
    QFETCH(QColor, color);
    QFETCH(double, saturation);
    Subject subject;
    subject.show();
    subject.editor->setValue(color);
    connect(subject.editor.get(), &PropertyEditor::valueChanged, this,
            [&] { subject.editor->setValue(inBytes(subject.color())); });
    WheelPointer pointer(subject.wheel());
    const double value = subject.wheel()->value();

    pointer.press(discPoint(0.37, 0.97));
    for (int step = 0; step < 90; ++step) {
        const double hue = step / 90.0;
        pointer.move(discPoint(hue, saturation));
        QVERIFY(std::abs(subject.wheel()->hue() - hue) < 1e-9);
        QVERIFY(std::abs(subject.wheel()->saturation() - saturation) < 1e-9);
        QCOMPARE(subject.wheel()->value(), value);
    }
    pointer.release();

    QCOMPARE(subject.color(), inBytes(subject.color()));
    QCOMPARE(subject.field(0)->value(), std::round(subject.color().red() / 255.0 * 1e4) / 1e4);
}

void tst_ColorPropertyEditor::ringKeepsTheHueThroughEchoes()
{
    Subject subject;
    subject.show();
    subject.editor->setValue(QColor(169, 103, 51));
    connect(subject.editor.get(), &PropertyEditor::valueChanged, this,
            [&] { subject.editor->setValue(inBytes(subject.color())); });
    const double hue = subject.wheel()->hue();
    const double saturation = subject.wheel()->saturation();
    WheelPointer pointer(subject.wheel());

    pointer.press(ringPoint(0.6));
    for (int step = 60; step >= -20; --step) { // into the gap, where the value stays at 0
        pointer.move(ringPoint(step / 100.0));
        QCOMPARE(subject.wheel()->hue(), hue);
        QCOMPARE(subject.wheel()->saturation(), saturation);
    }
    QCOMPARE(subject.wheel()->value(), 0.0);
    QCOMPARE(subject.color(), QColor(Qt::black));
    for (int step = -20; step <= 80; ++step)
        pointer.move(ringPoint(step / 100.0));
    pointer.release();

    QCOMPARE(subject.wheel()->hue(), hue);
    QCOMPARE(subject.wheel()->saturation(), saturation);
    QVERIFY(std::abs(subject.wheel()->value() - 0.8) < 1e-9);
}

void tst_ColorPropertyEditor::wheelMayDieInItsDrag_data()
{
    QTest::addColumn<QString>("signal");
    QTest::addColumn<bool>("withWidget");

    for (const char *signal : {"start", "value", "end"}) {
        for (const bool withWidget : {false, true}) {
            QTest::newRow(qPrintable(QLatin1String(signal)
                                     + QLatin1String(withWidget ? ", widget and all" : "")))
                << QString::fromLatin1(signal) << withWidget;
        }
    }
}

void tst_ColorPropertyEditor::wheelMayDieInItsDrag()
{
    QFETCH(QString, signal);
    QFETCH(bool, withWidget);
    Subject subject;
    subject.show();
    const QPointer<ColorWheel> wheel = subject.wheel();
    const auto destroy = [&] {
        subject.editor.reset();
        if (withWidget)
            subject.widget.reset();
    };
    auto *const editor = subject.editor.get();
    if (signal == QStringLiteral("start"))
        connect(editor, &PropertyEditor::startInteractiveChange, this, destroy);
    else if (signal == QStringLiteral("value"))
        connect(editor, &PropertyEditor::valueChanged, this, destroy);
    else
        connect(editor, &PropertyEditor::endInteractiveChange, this, destroy);

    {
        WheelPointer pointer(wheel);
        pointer.press(discPoint(0.1, 0.5));
        if (wheel)
            pointer.move(discPoint(0.2, 0.5));
        if (wheel)
            pointer.release();
    }

    QVERIFY(!subject.editor);
    QCOMPARE(wheel.isNull(), withWidget);
    if (wheel)
        QVERIFY(std::abs(wheel->hue() - 0.2) < 1e-9); // goes on alone
}

void tst_ColorPropertyEditor::deletionOfTheEditor_data()
{
    QTest::addColumn<int>("emission"); // the count of valueChanged() in which it happens
    QTest::addColumn<bool>("withWidget");

    QTest::newRow("between the two of a field") << 1 << false;
    QTest::newRow("between the two, widget and all") << 1 << true;
    QTest::newRow("in the second") << 2 << false;
    QTest::newRow("in the second, widget and all") << 2 << true;
}

void tst_ColorPropertyEditor::deletionOfTheEditor()
{
    QFETCH(int, emission);
    QFETCH(bool, withWidget);
    Subject subject;
    subject.build();
    QPointer<DoubleSpinBox> field = subject.field(0);
    int emissions = 0;
    connect(subject.editor.get(), &PropertyEditor::valueChanged, qApp, [&] {
        if (++emissions != emission)
            return;
        subject.editor.reset();
        if (withWidget)
            subject.widget.release()->deleteLater(); // the field's own step goes on after the slot
    });

    field->setValue(0.5);

    QVERIFY(!subject.editor);
    QCOMPARE(emissions, emission);
    QCOMPARE(field->value(), 0.5);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(field.isNull(), withWidget);
}

void tst_ColorPropertyEditor::deletionOfTheWidgetWhileTyping()
{
    Subject subject;
    subject.build();
    const QPointer<ColorWheel> wheel = subject.wheel();
    const QPointer<Slider> slider = subject.slider(0);
    DoubleSpinBox *const field = subject.field(0);
    connect(subject.editor.get(), &PropertyEditor::valueChanged, qApp, [&] {
        delete wheel.data();
        delete slider.data();
    });

    field->setValue(0.5);

    QVERIFY(!wheel && !slider);
    QVERIFY(std::abs(double(subject.color().redF()) - 0.5) < 1e-4);
    delete field; // a lone field does not make a colour
    QMetaObject::invokeMethod(subject.editor.get(), "spinBoxChanged", Q_ARG(double, 0.0));
    QVERIFY(std::abs(double(subject.color().redF()) - 0.5) < 1e-4);
}

void tst_ColorPropertyEditor::widgetsGoOnWithoutTheEditor()
{
    Subject subject;
    subject.show();
    subject.editor->setValue(QColor(51, 102, 153));

    subject.editor.reset();
    subject.slider(0)->setRealValue(1);
    subject.field(1)->setValue(0.75);
    subject.wheel()->setRingValue(0.25F);
    QTest::mouseClick(subject.slider(2), Qt::LeftButton, {}, QPoint(5, 5));

    QVERIFY(std::abs(subject.slider(1)->realValue() - 0.4) < 1e-4);
    QCOMPARE(subject.field(1)->value(), 0.75);
    QCOMPARE(subject.wheel()->ringValue(), 0.25F);
    QVERIFY(!subject.widget->grab().isNull());
}

void tst_ColorPropertyEditor::editorGoesOnWithoutItsWidget()
{
    Subject subject;
    subject.build();
    SignalLog log(subject.editor.get());

    subject.widget.reset();
    subject.editor->setValue(QColor(Qt::red));
    subject.editor->setInputColorAsInteger(true);
    QMetaObject::invokeMethod(subject.editor.get(), "spinBoxChanged", Q_ARG(double, 0.5));

    QCOMPARE(subject.color(), QColor(Qt::red));
    QCOMPARE(log.take(), QStringList());
}

void tst_ColorPropertyEditor::widgetsReportToNobodyWhileTheEditorDies()
{
    Subject subject;
    subject.build();
    Slider *const slider = subject.slider(0);
    connect(subject.editor.get(), &QObject::destroyed, this, [slider] { slider->setRealValue(1); });

    subject.editor.reset();

    QCOMPARE(slider->realValue(), 1.0);
}

void tst_ColorPropertyEditor::manyRounds()
{
    for (int round = 0; round < 1000; ++round) {
        Subject subject;
        subject.build();
        subject.editor->setValue(QColor(round % 256, 1, 2));
        subject.slider(round % 3)->setRealValue(0.5);
        if (round % 2 == 0)
            subject.editor.reset();
        else
            subject.widget.reset();
    }
}

void tst_ColorPropertyEditor::revertsToDefault()
{
    Subject subject;
    subject.property.setDefaultValue(QColor(Qt::yellow));
    subject.build();
    SignalLog log(subject.editor.get());

    subject.editor->revertToDefaultValue();

    QCOMPARE(subject.color(), QColor(Qt::yellow));
    QCOMPARE(subject.texts(), QStringLiteral("1 1 0"));
    QCOMPARE(log.take(), words("value"));
}

void tst_ColorPropertyEditor::paintsOnlyWhatChanged()
{
    Subject subject;
    subject.show();
    QVERIFY(QTest::qWaitForWindowExposed(subject.widget.get()));
    subject.editor->setValue(QColor(100, 100, 100));
    PaintCounter wheel(subject.wheel());
    PaintCounter slider(subject.slider(0));
    wheel.take();
    slider.take();

    subject.editor->setValue(QColor(100, 100, 100));
    subject.editor->setValue(QColor(100, 100, 100, 50)); // the alpha is not seen
    QCOMPARE(wheel.take(), 0);
    QCOMPARE(slider.take(), 0);
    subject.editor->setValue(QColor(90, 100, 100));
    QCOMPARE(wheel.take(), 1);
    QCOMPARE(slider.take(), 1);
}

QTEST_MAIN(tst_ColorPropertyEditor)
#include "tst_ColorPropertyEditor.moc"
