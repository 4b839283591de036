#include <property/PropertyUI.h>

#include "support/RecordingDelegate.h"
#include "support/SliderDrag.h"
#include "support/Wheel.h"

#include <QAbstractSpinBox>
#include <QLineEdit>
#include <QSlider>
#include <QTest>

using namespace Tessark::PropertyUI;
using TestSupport::RecordingDelegate;

namespace {

using Flags = QVector<int>;

/// One property in a shown panel whose host stores and, on request, echoes every edit.
struct Subject
{
    explicit Subject(const QString &type)
        : property(QStringLiteral("number"), QStringLiteral("Number"), type)
    {
        if (type == kPropertyTypeInteger)
            property.setRange(0, 1000);
        else if (type == kPropertyTypeFloat || type == kPropertyTypePercent)
            property.setRange(0.0, 10.0);
        else
            property.setRange(0.0F, 10.0F);
        property.setHint(kPropertyHintShowSliders, true);
    }

    Subject(const Subject &) = delete;
    Subject &operator=(const Subject &) = delete;

    void show()
    {
        panel = std::make_unique<PropertyEditorPanel>(QVector<Property *>{&property}, &delegate,
                                                      nullptr);
        panel->updateUI();
        panel->resize(500, panel->sizeHint().height());
        panel->show();
        panel->activateWindow();
        slider = panel->findChild<QSlider *>();
        spinBox = panel->findChild<QAbstractSpinBox *>();
        slider->setFocus();
        QVERIFY(QTest::qWaitForWindowActive(panel.get()));
        QTRY_VERIFY(slider->hasFocus());
    }

    void echoEverything()
    {
        delegate.onSetValue = [this] { panel->updateUI(); };
    }

    void drag(int steps)
    {
        SliderDrag drag(slider);
        drag.press();
        for (int i = 0; i < steps; ++i)
            drag.moveBy(30);
        drag.release();
    }

    void type(const QString &text)
    {
        spinBox->setFocus();
        QTRY_VERIFY(spinBox->hasFocus());
        spinBox->selectAll();
        QTest::keyClicks(spinBox, text);
    }

    Flags takeFlags()
    {
        const Flags flags = delegate.flags();
        delegate.changes.clear();
        return flags;
    }

    Property property;
    RecordingDelegate delegate;
    std::unique_ptr<PropertyEditorPanel> panel;
    QSlider *slider = nullptr;
    QAbstractSpinBox *spinBox = nullptr;
};

} // namespace

/// What a host is told of real input on the number editors, flags included.
class tst_NumericRuns : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void dragIsOneRun_data();
    void dragIsOneRun();
    void secondDragIsAnotherRun_data() { dragIsOneRun_data(); }
    void secondDragIsAnotherRun();
    void dragGoesOnThroughEchoes_data() { dragIsOneRun_data(); }
    void dragGoesOnThroughEchoes();
    void clickOnTheHandleTellsNothing_data() { dragIsOneRun_data(); }
    void clickOnTheHandleTellsNothing();
    void typingIsOneRun_data() { dragIsOneRun_data(); }
    void typingIsOneRun();
    void typingGoesOnThroughEchoes_data() { dragIsOneRun_data(); }
    void typingGoesOnThroughEchoes();
    void returnBeginsAnotherRun_data() { dragIsOneRun_data(); }
    void returnBeginsAnotherRun();
    void leavingEndsTheRun_data() { dragIsOneRun_data(); }
    void leavingEndsTheRun();
    void keysAndWheelAreLoneChanges_data() { dragIsOneRun_data(); }
    void keysAndWheelAreLoneChanges();
    void panelDeletedInADrag_data() { dragIsOneRun_data(); }
    void panelDeletedInADrag();
};

void tst_NumericRuns::initTestCase()
{
    QLocale::setDefault(QLocale::c());
}

void tst_NumericRuns::dragIsOneRun_data()
{
    QTest::addColumn<QString>("type");
    for (const QString &type : {kPropertyTypeInteger, kPropertyTypeFloat, kPropertyTypePercent,
                                kPropertyTypeVec2, kPropertyTypeVec3, kPropertyTypeVec4})
        QTest::newRow(qPrintable(type)) << type;
}

void tst_NumericRuns::dragIsOneRun()
{
    QFETCH(QString, type);
    Subject subject(type);
    subject.show();

    subject.drag(4);

    QCOMPARE(subject.takeFlags(), (Flags{0, 1, 1, 1}));
}

void tst_NumericRuns::secondDragIsAnotherRun()
{
    QFETCH(QString, type);
    Subject subject(type);
    subject.show();

    subject.drag(2);
    subject.drag(2);

    QCOMPARE(subject.takeFlags(), (Flags{0, 1, 0, 1}));
}

void tst_NumericRuns::dragGoesOnThroughEchoes()
{
    QFETCH(QString, type);
    Subject subject(type);
    subject.show();
    subject.echoEverything();

    subject.drag(4);

    QCOMPARE(subject.takeFlags(), (Flags{0, 1, 1, 1}));
    QVERIFY(subject.slider->value() > subject.slider->minimum());
}

void tst_NumericRuns::clickOnTheHandleTellsNothing()
{
    QFETCH(QString, type);
    Subject subject(type);
    subject.show();

    subject.drag(0);

    QCOMPARE(subject.takeFlags(), Flags());
}

void tst_NumericRuns::typingIsOneRun()
{
    QFETCH(QString, type);
    Subject subject(type);
    subject.show();

    subject.type(QStringLiteral("7.5").left(type == kPropertyTypeInteger ? 1 : 3));

    // Not every key changes the number: "7." is still 7.
    QCOMPARE(subject.takeFlags(), type == kPropertyTypeInteger ? (Flags{0}) : (Flags{0, 1}));
}

void tst_NumericRuns::typingGoesOnThroughEchoes()
{
    QFETCH(QString, type);
    Subject subject(type);
    subject.show();
    subject.echoEverything();

    subject.type(QStringLiteral("98"));

    if (type == kPropertyTypeInteger || type == kPropertyTypePercent)
        QCOMPARE(subject.takeFlags(), (Flags{0, 1}));
    else // 98 is beyond the range, so its second digit is refused
        QCOMPARE(subject.takeFlags(), (Flags{0}));
}

void tst_NumericRuns::returnBeginsAnotherRun()
{
    QFETCH(QString, type);
    Subject subject(type);
    subject.show();
    subject.type(QStringLiteral("7"));
    subject.takeFlags();

    // The box announces its number again when Return goes down; the run closes when it comes up.
    QTest::keyClick(subject.spinBox, Qt::Key_Return);
    QCOMPARE(subject.takeFlags(), (Flags{1}));
    QTest::keyClick(subject.spinBox, Qt::Key_Backspace);
    QTest::keyClicks(subject.spinBox, QStringLiteral("5"));

    QCOMPARE(subject.takeFlags(), (Flags{0}));
}

void tst_NumericRuns::leavingEndsTheRun()
{
    QFETCH(QString, type);
    Subject subject(type);
    subject.show();
    subject.type(QStringLiteral("7"));

    subject.slider->setFocus();
    subject.type(QStringLiteral("5"));

    QCOMPARE(subject.takeFlags(), (Flags{0, 0}));
}

void tst_NumericRuns::keysAndWheelAreLoneChanges()
{
    QFETCH(QString, type);
    Subject subject(type);
    subject.show();

    QTest::keyClick(subject.slider, Qt::Key_PageUp);
    QTest::keyClick(subject.slider, Qt::Key_PageUp);
    turnWheelOver(subject.slider);
    turnWheelOver(subject.spinBox); // scrolls the view

    QCOMPARE(subject.takeFlags(), (Flags{0, 0, 0}));
}

// A panel goes once the slider is back in the event loop: Qt goes on with the slider after its
// signal.
void tst_NumericRuns::panelDeletedInADrag()
{
    QFETCH(QString, type);
    Subject subject(type);
    subject.show();
    const QPointer<PropertyEditorPanel> panel(subject.panel.get());
    subject.delegate.onSetValue = [&] {
        if (subject.panel)
            subject.panel.release()->deleteLater();
    };

    subject.drag(3);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);

    QVERIFY(!panel);
    QCOMPARE(subject.takeFlags(), (Flags{0, 1, 1}));
}

QTEST_MAIN(tst_NumericRuns)
#include "tst_NumericRuns.moc"
