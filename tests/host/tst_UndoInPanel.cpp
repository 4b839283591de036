// What becomes a step of undo when a user works in a panel, with real input.

#include <host/CommitPolicy.h>
#include <host/PropertyStore.h>
#include <host/UndoDelegate.h>
#include <property/PropertyUI.h>
#include <testing/PanelDriver.h>

#include "support/HeapUse.h"
#include "support/PropertySet.h"
#include "support/RecordingDelegate.h"
#include "support/SliderDrag.h"
#include "support/Wheel.h"

#include <QCheckBox>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QSignalSpy>
#include <QSlider>
#include <QSpinBox>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <QUndoStack>

#include <memory>

using namespace Tessark::PropertyUI;
using Tessark::PropertyHost::CommitMode;
using Tessark::PropertyHost::CommitPolicy;
using Tessark::PropertyHost::PropertyStore;
using Tessark::PropertyHost::UndoDelegate;
using Tessark::PropertyTest::PanelDriver;
using TestSupport::RecordingDelegate;

namespace {

const QString kGain = QStringLiteral("gain");
const QString kCount = QStringLiteral("count");
const QString kPan = QStringLiteral("pan");
const QString kTitle = QStringLiteral("title");
const QString kLoop = QStringLiteral("loop");
const QString kSound = QStringLiteral("sound");
const QString kPages = QStringLiteral("pages");

/// Rows of several kinds, two of them in a group, in a panel that undo is attached to.
struct Subject
{
    Subject()
        : gain(set.add(kGain, QStringLiteral("Gain"), kPropertyTypeFloat))
        , count(set.add(kCount, QStringLiteral("Count"), kPropertyTypeInteger))
        , title(set.add(kTitle, QStringLiteral("Title"), kPropertyTypeString))
        , group(set.add(kSound, QStringLiteral("Sound"), kPropertyTypeBeginGroup))
        , pan(set.add(kPan, QStringLiteral("Pan"), kPropertyTypeFloat))
        , loop(set.add(kLoop, QStringLiteral("Loop"), kPropertyTypeBoolean))
        , undo(std::make_unique<UndoDelegate>(&delegate, &stack))
    {
        set.add(QString(), QString(), kPropertyTypeEndGroup);
        set.add(kPages, QStringLiteral("Pages"), kPropertyTypeBeginTabGroup);
        set.add(QString(), QStringLiteral("One"), kPropertyTypeTab);
        set.add(QString(), QStringLiteral("Two"), kPropertyTypeTab);
        set.add(QString(), QString(), kPropertyTypeEndTabGroup);
        gain.setRange(0.0, 10.0);
        count.setRange(0, 10).setDefaultValue(5);
        pan.setRange(0.0, 10.0);
        delegate.values = {
            {kGain, 1.0}, {kCount, 1}, {kPan, 1.0}, {kTitle, QStringLiteral("a")}, {kLoop, false}};
    }

    Subject(const Subject &) = delete;
    Subject &operator=(const Subject &) = delete;

    /// Shows a panel whose edits reach undo through front, or at once without it.
    void show(IPropertyEditorDelegate *front = nullptr)
    {
        panel =
            std::make_unique<PropertyEditorPanel>(set.list(), front ? front : undo.get(), nullptr);
        undo->attach(panel.get());
        panel->updateUI();
        panel->resize(500, panel->sizeHint().height());
        panel->show();
        panel->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(panel.get()));
        QCOMPARE(stack.count(), 0);
        delegate.changes.clear();
        delegate.reads.clear();
    }

    QSlider *slider() const { return panel->findChild<QSlider *>(); }
    QSlider *panSlider() const { return panel->findChildren<QSlider *>().at(2); }
    QDoubleSpinBox *spinBox() const { return panel->findChild<QDoubleSpinBox *>(); }
    QSpinBox *countBox() const { return panel->findChild<QSpinBox *>(); }
    QLineEdit *line() const
    {
        const auto lines = panel->findChildren<QLineEdit *>();
        for (QLineEdit *line : lines) {
            if (line->parentWidget() == panel.get())
                return line;
        }
        return nullptr;
    }
    QCheckBox *box(const char *text) const
    {
        const auto boxes = panel->findChildren<QCheckBox *>();
        for (QCheckBox *box : boxes) {
            if (box->text() == QLatin1String(text))
                return box;
        }
        return nullptr;
    }

    static void click(QCheckBox *box)
    {
        // A check box reacts at its left only.
        QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(8, box->height() / 2));
    }

    void drag(const QVector<int> &pixels) const
    {
        SliderDrag drag(slider());
        drag.press();
        for (const int step : pixels)
            drag.moveBy(step);
        drag.release();
    }

    void type(QWidget *field, const char *text) const
    {
        field->setFocus();
        QTRY_VERIFY(field->hasFocus());
        QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(field, QLatin1String(text));
    }

    /// The steps of the stack by their texts.
    QStringList steps() const
    {
        QStringList result;
        for (int i = 0; i < stack.count(); ++i)
            result.append(stack.text(i));
        return result;
    }

    double stored(const QString &name) const { return delegate.values.value(name).toDouble(); }

    TestSupport::PropertySet set;
    Property &gain;
    Property &count;
    Property &title;
    Property &group;
    Property &pan;
    Property &loop;
    RecordingDelegate delegate;
    QUndoStack stack;
    std::unique_ptr<UndoDelegate> undo;
    std::unique_ptr<PropertyEditorPanel> panel;
};

} // namespace

class tst_UndoInPanel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void dragIsOneStep();
    void secondDragIsAnotherStep();
    void dragBackToItsStartIsNoStep();
    void dragAcrossUndoIsAnotherStep();
    void typedNumberIsOneStep();
    void returnSeparatesSteps_data();
    void returnSeparatesSteps();
    void returnWithoutEditIsNoStep();
    void undoneNumberIsShownInTheFocusedField_data();
    void undoneNumberIsShownInTheFocusedField();
    void typingAfterUndoAndRedoIsAnotherStep();
    void typingGoesOnAfterTheWheelElsewhere();
    void lineOfTextIsOneStep_data();
    void lineOfTextIsOneStep();
    void setToDefaultIsOneStep_data();
    void setToDefaultIsOneStep();

    void foldingAGroupIsOneStep();
    void openingItAgainIsAnotherStep();
    void foldingWritesTheDelegateOnce();
    void groupOfAnotherPanelFoldsToo();
    void lateEchoOfAFoldIsNoStep();
    void foldingIsToldFromEdits();
    void turningPagesIsNoStep();

    void undoShowsTheRowAlone();
    void severalPanelsShowWhatIsRestored();
    void attachingTwiceOrNothingIsNoHarm();
    void whatTheHostWritesMeanwhileIsNoStep();
    void panelMayGoBeforeUndo();
    void undoMayGoBeforeThePanel();
    void somethingGoesWhileUndoing_data();
    void somethingGoesWhileUndoing();

    void longDragNeedsNoMemory();
};

void tst_UndoInPanel::initTestCase()
{
    QLocale::setDefault(QLocale::c());
}

void tst_UndoInPanel::dragIsOneStep()
{
    Subject subject;
    subject.show();

    subject.drag({30, 30, 30, -10});
    const double after = subject.stored(kGain);

    QCOMPARE(subject.steps(), QStringList(QStringLiteral("Gain")));
    QCOMPARE(subject.delegate.changes.size(), 4);
    subject.stack.undo();
    QCOMPARE(subject.stored(kGain), 1.0);
    QCOMPARE(subject.spinBox()->value(), 1.0);
    QCOMPARE(subject.slider()->value(), 1000);
    subject.stack.redo();
    QCOMPARE(subject.stored(kGain), after);
    QCOMPARE(subject.spinBox()->value(), after);
}

void tst_UndoInPanel::secondDragIsAnotherStep()
{
    Subject subject;
    subject.show();

    subject.drag({30, 30});
    const double between = subject.stored(kGain);
    subject.drag({30, 30});

    QCOMPARE(subject.stack.count(), 2);
    subject.stack.undo();
    QCOMPARE(subject.stored(kGain), between);
}

void tst_UndoInPanel::dragBackToItsStartIsNoStep()
{
    Subject subject;
    subject.delegate.values[kGain] = 0.0;
    subject.show();

    subject.drag({30, 30, -100});

    QCOMPARE(subject.delegate.changes.size(), 3);
    QCOMPARE(subject.stored(kGain), 0.0);
    QCOMPARE(subject.steps(), QStringList());
}

void tst_UndoInPanel::dragAcrossUndoIsAnotherStep()
{
    Subject subject;
    subject.show();
    SliderDrag drag(subject.slider());
    drag.press();
    drag.moveBy(30);
    const double between = subject.stored(kGain);

    subject.stack.undo();
    subject.stack.redo();
    drag.moveBy(30);
    drag.moveBy(30);
    drag.release();

    QCOMPARE(subject.stack.count(), 2);
    subject.stack.undo();
    QCOMPARE(subject.stored(kGain), between);
}

void tst_UndoInPanel::typedNumberIsOneStep()
{
    Subject subject;
    subject.show();

    subject.type(subject.spinBox(), "7.25");
    subject.line()->setFocus();

    QVERIFY(subject.delegate.changes.size() > 1);
    QCOMPARE(subject.steps(), QStringList(QStringLiteral("Gain")));
    subject.stack.undo();
    QCOMPARE(subject.stored(kGain), 1.0);
    QCOMPARE(subject.spinBox()->value(), 1.0);
}

void tst_UndoInPanel::returnSeparatesSteps_data()
{
    QTest::addColumn<int>("key");

    QTest::newRow("Return") << int(Qt::Key_Return);
    QTest::newRow("Enter on the number pad") << int(Qt::Key_Enter);
}

void tst_UndoInPanel::returnSeparatesSteps()
{
    QFETCH(int, key);
    Subject subject;
    subject.show();

    subject.type(subject.spinBox(), "2.5");
    QTest::keyClick(subject.spinBox(), Qt::Key(key));
    subject.type(subject.spinBox(), "3.5");
    QTest::keyClick(subject.spinBox(), Qt::Key(key));

    QCOMPARE(subject.steps(), (QStringList{QStringLiteral("Gain"), QStringLiteral("Gain")}));
    subject.stack.undo();
    QCOMPARE(subject.stored(kGain), 2.5);
    QVERIFY(subject.spinBox()->hasFocus());
    QCOMPARE(subject.spinBox()->value(), 2.5);
    subject.stack.undo();
    QCOMPARE(subject.stored(kGain), 1.0);
}

void tst_UndoInPanel::returnWithoutEditIsNoStep()
{
    Subject subject;
    subject.show();
    subject.spinBox()->setFocus();

    QTest::keyClick(subject.spinBox(), Qt::Key_Return);
    QTest::keyClick(subject.spinBox(), Qt::Key_Return);

    QCOMPARE(subject.stack.count(), 0);
}

void tst_UndoInPanel::undoneNumberIsShownInTheFocusedField_data()
{
    QTest::addColumn<QVariant>("displayScale");

    QTest::newRow("as stored") << QVariant();
    QTest::newRow("in another unit") << QVariant(100.0);
}

/// The row would leave it alone, and hand out what it shows when Return goes down.
void tst_UndoInPanel::undoneNumberIsShownInTheFocusedField()
{
    QFETCH(QVariant, displayScale);
    Subject subject;
    subject.gain.setHint(kPropertyHintDisplayScale, displayScale);
    subject.show();
    const double scale = displayScale.isNull() ? 1.0 : displayScale.toDouble();
    subject.type(subject.spinBox(), "2.5");

    subject.stack.undo();
    QVERIFY(subject.spinBox()->hasFocus());
    QCOMPARE(subject.spinBox()->value(), 1.0 * scale);
    QTest::keyClick(subject.spinBox(), Qt::Key_Return);
    QCOMPARE(subject.stored(kGain), 1.0);

    QVERIFY(subject.stack.canRedo());
    subject.stack.redo();
    QCOMPARE(subject.spinBox()->value(), 2.5);
    subject.line()->setFocus();
    QCOMPARE(subject.stored(kGain), 2.5 / scale);
    QCOMPARE(subject.stack.count(), 1);
}

void tst_UndoInPanel::typingAfterUndoAndRedoIsAnotherStep()
{
    Subject subject;
    subject.show();
    subject.type(subject.spinBox(), "2");

    subject.stack.undo();
    subject.stack.redo();
    subject.type(subject.spinBox(),
                 "3.5"); // the field has kept the focus: the same run to the panel

    QCOMPARE(subject.stack.count(), 2);
    subject.stack.undo();
    QCOMPARE(subject.stored(kGain), 2.0);
}

void tst_UndoInPanel::typingGoesOnAfterTheWheelElsewhere()
{
    Subject subject;
    subject.show();
    subject.type(subject.spinBox(), "2");

    turnWheelOver(subject.panSlider()); // which takes no focus
    subject.type(subject.spinBox(), "3.25");
    QVERIFY(subject.delegate.changes.size() > 4);

    QCOMPARE(subject.steps(),
             (QStringList{QStringLiteral("Gain"), QStringLiteral("Pan"), QStringLiteral("Gain")}));
    subject.stack.undo();
    QCOMPARE(subject.stored(kGain), 2.0);
    subject.type(subject.spinBox(), "4.75");
    QCOMPARE(subject.stack.count(), 3);
    QTest::keyClick(subject.spinBox(), Qt::Key_Return);
    subject.type(subject.spinBox(), "5.25");
    QCOMPARE(subject.stack.count(), 4);
    subject.stack.undo();
    QCOMPARE(subject.stored(kGain), 4.75);
}

void tst_UndoInPanel::lineOfTextIsOneStep_data()
{
    QTest::addColumn<bool>("byReturn");

    QTest::newRow("finished with Return, then left") << true;
    QTest::newRow("left") << false;
}

void tst_UndoInPanel::lineOfTextIsOneStep()
{
    QFETCH(bool, byReturn);
    Subject subject;
    subject.show();

    subject.type(subject.line(), "some words");
    if (byReturn)
        QTest::keyClick(subject.line(), Qt::Key_Return);
    subject.spinBox()->setFocus();

    QCOMPARE(subject.steps(), QStringList(QStringLiteral("Title")));
    subject.stack.undo();
    QCOMPARE(subject.line()->text(), QStringLiteral("a"));
    QCOMPARE(subject.delegate.values.value(kTitle), QVariant(QStringLiteral("a")));
}

void tst_UndoInPanel::setToDefaultIsOneStep_data()
{
    QTest::addColumn<bool>("whileTyping");

    QTest::newRow("on its own") << false;
    QTest::newRow("in the middle of typing into the row") << true;
}

void tst_UndoInPanel::setToDefaultIsOneStep()
{
    QFETCH(bool, whileTyping);
    Subject subject;
    subject.show();
    PanelDriver user(subject.panel.get());
    if (whileTyping)
        QVERIFY2(user.type(kCount, QStringLiteral("2"), PanelDriver::WithoutReturn),
                 qPrintable(user.error()));

    QVERIFY2(user.setToDefault(kCount), qPrintable(user.error()));

    QCOMPARE(subject.stored(kCount), 5.0);
    QCOMPARE(subject.stack.count(), whileTyping ? 2 : 1);
    QCOMPARE(subject.stack.undoText(), QStringLiteral("Count"));
    subject.stack.undo();
    QCOMPARE(subject.stored(kCount), whileTyping ? 2.0 : 1.0);
    QCOMPARE(subject.countBox()->value(), whileTyping ? 2 : 1);
}

void tst_UndoInPanel::foldingAGroupIsOneStep()
{
    Subject subject;
    subject.show();
    QSignalSpy restored(subject.undo.get(), &UndoDelegate::valueRestored);

    Subject::click(subject.box("Sound"));
    QCOMPARE(subject.steps(), QStringList(QStringLiteral("Sound")));
    QVERIFY(!subject.panSlider()->isVisible());

    subject.stack.undo();
    QVERIFY(subject.box("Sound")->isChecked());
    QVERIFY(subject.panSlider()->isVisible());
    subject.stack.redo();
    QVERIFY(!subject.box("Sound")->isChecked());
    QVERIFY(!subject.panSlider()->isVisible());
    subject.stack.undo();
    QVERIFY(subject.panSlider()->isVisible());

    QCOMPARE(restored.size(), 3);
    QCOMPARE(subject.steps(), QStringList(QStringLiteral("Sound")));
}

void tst_UndoInPanel::openingItAgainIsAnotherStep()
{
    Subject subject;
    subject.show();

    Subject::click(subject.box("Sound"));
    Subject::click(subject.box("Sound"));
    QVERIFY(subject.panSlider()->isVisible());

    QCOMPARE(subject.steps(), (QStringList{QStringLiteral("Sound"), QStringLiteral("Sound")}));
    subject.stack.undo();
    QVERIFY(!subject.panSlider()->isVisible());
    subject.stack.undo();
    QVERIFY(subject.panSlider()->isVisible());
}

void tst_UndoInPanel::foldingWritesTheDelegateOnce()
{
    Subject subject;
    subject.show();

    Subject::click(subject.box("Sound"));
    subject.stack.undo();
    subject.stack.redo();

    QCOMPARE(subject.delegate.log(),
             (QStringList{QStringLiteral("sound=false/0"), QStringLiteral("sound=true/0"),
                          QStringLiteral("sound=false/0")}));
    Subject::click(subject.box("Sound")); // the user's own, not taken for an echo
    QCOMPARE(subject.delegate.log().last(), QStringLiteral("sound=true/0"));
    QCOMPARE(subject.stack.count(), 2);
}

void tst_UndoInPanel::groupOfAnotherPanelFoldsToo()
{
    Subject subject;
    subject.show();
    PropertyEditorPanel other(subject.set.list(), subject.undo.get(), nullptr);
    subject.undo->attach(&other);
    auto *const otherBox = other.findChild<QCheckBox *>();

    Subject::click(subject.box("Sound"));
    QVERIFY(otherBox->isChecked()); // each user's panel is as the user left it
    subject.stack.undo();
    subject.stack.redo();
    QVERIFY(!otherBox->isChecked());
    subject.stack.undo();

    QVERIFY(otherBox->isChecked());
    QVERIFY(subject.box("Sound")->isChecked());
    QCOMPARE(subject.stack.count(), 1);
}

void tst_UndoInPanel::lateEchoOfAFoldIsNoStep()
{
    Subject subject;
    CommitPolicy policy(subject.undo.get());
    policy.setMode(&subject.group, CommitMode::atMost(1));
    subject.show(&policy);
    Subject::click(subject.box("Sound"));
    QCOMPARE(subject.stack.count(), 1);

    subject.stack.undo();
    QVERIFY(policy.hasPending()); // what the panel says of the box that undo has checked
    policy.flush();

    QVERIFY(subject.stack.canRedo());
    QCOMPARE(subject.stack.index(), 0);
    QVERIFY(subject.box("Sound")->isChecked());
}

void tst_UndoInPanel::foldingIsToldFromEdits()
{
    Subject subject;
    subject.show();
    Subject::click(subject.box("Sound"));
    Subject::click(subject.box("Sound"));
    Subject::click(subject.box("Loop"));
    subject.stack.push(new QUndoCommand);

    QVERIFY(UndoDelegate::isFolding(subject.stack.command(0)));
    QVERIFY(UndoDelegate::isFolding(subject.stack.command(1)));
    QVERIFY(!UndoDelegate::isFolding(subject.stack.command(2)));
    QVERIFY(!UndoDelegate::isFolding(subject.stack.command(3)));
    QVERIFY(!UndoDelegate::isFolding(nullptr));
}

void tst_UndoInPanel::turningPagesIsNoStep()
{
    Subject subject;
    subject.show();
    auto *const pages = subject.panel->findChild<QTabWidget *>();

    QTest::mouseClick(pages->tabBar(), Qt::LeftButton, {}, pages->tabBar()->tabRect(1).center());

    QCOMPARE(pages->currentIndex(), 1);
    QCOMPARE(subject.delegate.log(), QStringList(QStringLiteral("pages=1/0")));
    QCOMPARE(subject.stack.count(), 0);
}

void tst_UndoInPanel::undoShowsTheRowAlone()
{
    Subject subject;
    subject.show();
    Subject::click(subject.box("Loop"));
    subject.delegate.reads.clear();

    subject.stack.undo();

    QCOMPARE(subject.delegate.reads, QStringList(kLoop));
    QVERIFY(!subject.box("Loop")->isChecked());
}

void tst_UndoInPanel::severalPanelsShowWhatIsRestored()
{
    Subject subject;
    subject.show();
    PropertyEditorPanel other(subject.set.list(), subject.undo.get(), nullptr);
    auto gone =
        std::make_unique<PropertyEditorPanel>(subject.set.list(), subject.undo.get(), nullptr);
    subject.undo->attach(gone.get());
    gone.reset();
    subject.undo->attach(&other);
    other.updateUI();

    subject.drag({30});
    subject.stack.undo();
    subject.stack.redo();

    auto *const shown = other.findChild<QDoubleSpinBox *>();
    QCOMPARE(shown->value(), subject.stored(kGain));
    subject.stack.undo();
    QCOMPARE(shown->value(), 1.0);
}

void tst_UndoInPanel::attachingTwiceOrNothingIsNoHarm()
{
    Subject subject;
    subject.show();
    subject.undo->attach(subject.panel.get());
    subject.undo->attach(nullptr);
    Subject::click(subject.box("Loop"));
    subject.delegate.reads.clear();

    subject.stack.undo();

    QCOMPARE(subject.delegate.reads.size(), 1);
}

void tst_UndoInPanel::whatTheHostWritesMeanwhileIsNoStep()
{
    Subject subject;
    subject.show();
    Subject::click(subject.box("Loop"));
    subject.delegate.onSetValue = [&] {
        subject.delegate.onSetValue = nullptr;
        subject.undo->setValue(&subject.pan, 9.0, IPropertyEditorDelegate::NewChange);
        Subject::click(subject.box("Sound"));
    };

    subject.stack.undo();

    QCOMPARE(subject.stored(kPan), 9.0);
    QCOMPARE(subject.delegate.values.value(kSound), QVariant(false));
    QCOMPARE(subject.steps(), QStringList(QStringLiteral("Loop")));
    QCOMPARE(subject.stack.index(), 0);
}

void tst_UndoInPanel::panelMayGoBeforeUndo()
{
    Subject subject;
    subject.show();
    Subject::click(subject.box("Sound"));
    subject.drag({30});
    subject.spinBox()->setFocus(); // a run that never ends
    subject.panel.reset();

    subject.stack.undo();
    subject.stack.undo();

    QCOMPARE(subject.stored(kGain), 1.0);
    QCOMPARE(subject.delegate.values.value(kSound), QVariant(true));
}

void tst_UndoInPanel::undoMayGoBeforeThePanel()
{
    Subject subject;
    CommitPolicy front(subject.undo.get()); // which passes nothing on once undo is gone
    subject.show(&front);
    subject.spinBox()->setFocus();

    subject.undo.reset();
    subject.type(subject.spinBox(), "2");
    Subject::click(subject.box("Sound"));

    QCOMPARE(subject.stack.count(), 0);
    QVERIFY(!subject.panSlider()->isVisible());
}

void tst_UndoInPanel::somethingGoesWhileUndoing_data()
{
    QTest::addColumn<QString>("victim");
    QTest::addColumn<bool>("isFolding");

    for (const char *victim : {"panel", "undo", "panel and undo"}) {
        const QString name = QString::fromLatin1(victim);
        QTest::newRow(qPrintable(name + QStringLiteral(", a value"))) << name << false;
        QTest::newRow(qPrintable(name + QStringLiteral(", a group"))) << name << true;
    }
}

void tst_UndoInPanel::somethingGoesWhileUndoing()
{
    QFETCH(QString, victim);
    QFETCH(bool, isFolding);
    for (const bool whenAsked : {false, true}) {
        Subject subject;
        CommitPolicy front(subject.undo.get());
        subject.show(&front);
        Subject::click(subject.box(isFolding ? "Sound" : "Loop"));
        const auto destroy = [&] {
            if (victim.contains(QLatin1String("panel")))
                subject.panel.reset();
            if (victim.contains(QLatin1String("undo")))
                subject.undo.reset();
        };
        (whenAsked ? subject.delegate.onValue : subject.delegate.onSetValue) = destroy;

        subject.stack.undo();

        const QString name = isFolding ? kSound : kLoop;
        QCOMPARE(subject.delegate.values.value(name), QVariant(isFolding));
        subject.delegate.onValue = nullptr;
        subject.delegate.onSetValue = nullptr;
        subject.stack.redo();
        const bool isRedone = subject.undo != nullptr;
        QCOMPARE(subject.delegate.values.value(name), QVariant(isFolding != isRedone));
    }
}

void tst_UndoInPanel::longDragNeedsNoMemory()
{
    constexpr int kSteps = 10000;
    constexpr int kWarmUp = 100;
    Property count(QStringLiteral("count"), QStringLiteral("Count"), kPropertyTypeInteger);
    count.setRange(0, 2 * kSteps);
    PropertyStore store;
    store.setValue(&count, 0, IPropertyEditorDelegate::NewChange);
    QUndoStack stack;
    UndoDelegate undo(&store, &stack);
    PropertyEditorPanel panel({&count}, &undo, nullptr);
    undo.attach(&panel);
    auto *const slider = panel.findChild<QSlider *>();
    slider->setSliderDown(true);
    const auto moveTo = [slider](int position) {
        slider->setSliderPosition(position);
        // As the event loop does between two steps.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::sendPostedEvents();
    };
    for (int i = 1; i <= kWarmUp; ++i)
        moveTo(i);
    const qint64 before = heapInUse();

    for (int i = 1; i <= kSteps; ++i)
        moveTo(kWarmUp + i);
    const qint64 growth = heapInUse() - before;
    slider->setSliderDown(false);

    QCOMPARE(stack.count(), 1);
    QCOMPARE(store.value(&count), QVariant(kWarmUp + kSteps));
    // A byte for each step would show.
    QVERIFY2(growth < kSteps, qPrintable(QStringLiteral("%1 bytes").arg(growth)));
    stack.undo();
    QCOMPARE(store.value(&count), QVariant(0));
    QCOMPARE(slider->value(), 0);
}

QTEST_MAIN(tst_UndoInPanel)
#include "tst_UndoInPanel.moc"
