#include <core/LogSlider.h>
#include <host/CommitPolicy.h>
#include <host/LabelScrubber.h>
#include <host/UndoDelegate.h>
#include <property/PropertyUI.h>

#include "support/PropertySet.h"
#include "support/RecordingDelegate.h"

#include <QApplication>
#include <QDialog>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QPointer>
#include <QSignalSpy>
#include <QSlider>
#include <QSpinBox>
#include <QTest>
#include <QTimer>
#include <QUndoStack>

#include <functional>
#include <memory>

using namespace Tessark::PropertyUI;
using Tessark::PropertyHost::CommitMode;
using Tessark::PropertyHost::CommitPolicy;
using Tessark::PropertyHost::LabelScrubber;
using Tessark::PropertyHost::UndoDelegate;
using TestSupport::RecordingDelegate;

namespace {

using Flags = QVector<int>;

constexpr int kPixelsPerStep = 4;

QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

/// Number rows in a shown panel whose labels scrub, undo behind it.
struct Subject
{
    Subject()
    {
        set.add(text("count"), text("Count"), kPropertyTypeInteger).setRange(0, 1000);
        set.add(text("few"), text("Few"), kPropertyTypeInteger).setRange(0, 50);
        set.add(text("gain"), text("Gain"), kPropertyTypeFloat).setRange(0.0, 1.0, 2.0);
        set.add(text("share"), text("Share"), kPropertyTypePercent).setRange(0.0, 1.0);
        set.add(text("speed"), text("Speed"), kPropertyTypeFloat)
            .setRange(0.01, 100.0)
            .setHint(kPropertyHintLogarithmicSlider, true);
        set.add(text("place"), text("Place"), kPropertyTypeVec2).setRange(0.0F, 10.0F);
        set.add(text("name"), text("Name"), kPropertyTypeString);
        set.add(text("wide"), text("Wide"), kPropertyTypeFloat)
            .setRange(0.0, 1.0)
            .setHint(kPropertyHintFullWidth, true);
        store.values = {{text("count"), 400},  {text("few"), 20},    {text("gain"), 0.123456789},
                        {text("share"), 0.25}, {text("speed"), 1.0}, {text("name"), text("N")}};
    }

    Subject(const Subject &) = delete;
    Subject &operator=(const Subject &) = delete;

    void show(IPropertyEditorDelegate *delegate = nullptr)
    {
        panel =
            std::make_unique<PropertyEditorPanel>(set.list(), delegate ? delegate : &undo, nullptr);
        scrubber = std::make_unique<LabelScrubber>(panel.get());
        panel->updateUI();
        panel->resize(500, panel->sizeHint().height());
        panel->show();
        panel->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(panel.get()));
        store.changes.clear();
    }

    PropertyEditor *editor(const char *name) const
    {
        QVector<PropertyEditor *> editors;
        panel->getEditors(editors, QString());
        for (PropertyEditor *editor : std::as_const(editors)) {
            if (editor->editedProperty()->name == QLatin1String(name))
                return editor;
        }
        return nullptr;
    }

    QAbstractSpinBox *field(const char *name) const
    {
        return editor(name)->widget(nullptr)->findChild<QAbstractSpinBox *>();
    }

    double number(const char *name) const
    {
        if (const auto *const integer = qobject_cast<QSpinBox *>(field(name)))
            return integer->value();
        return qobject_cast<QDoubleSpinBox *>(field(name))->value();
    }

    QLabel *label(const char *labelText) const
    {
        const auto labels = panel->findChildren<QLabel *>();
        for (QLabel *label : labels) {
            if (label->text() == QLatin1String(labelText) + QLatin1Char(':'))
                return label;
        }
        return nullptr;
    }

    QString log() const { return store.log().join(QLatin1Char(' ')); }

    TestSupport::PropertySet set;
    RecordingDelegate store;
    QUndoStack stack;
    UndoDelegate undo{&store, &stack};
    std::unique_ptr<PropertyEditorPanel> panel;
    std::unique_ptr<LabelScrubber> scrubber;
};

/// Drags on a label with the mouse, as a user does.
class LabelDrag
{
public:
    explicit LabelDrag(QLabel *label)
        : m_label(label)
        , m_position(label->rect().center())
    {
    }

    void press() { QTest::mousePress(m_label, Qt::LeftButton, Qt::NoModifier, m_position); }

    /// One move; those before the drag begins do not count as steps.
    void moveBy(int pixels, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        m_position.rx() += pixels;
        QMouseEvent event(QEvent::MouseMove, m_position, m_label->mapToGlobal(m_position),
                          Qt::NoButton, Qt::LeftButton, modifiers);
        QCoreApplication::sendEvent(m_label, &event);
    }

    void steps(int count, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        moveBy(count * kPixelsPerStep, modifiers);
    }

    void begin()
    {
        press();
        moveBy(QApplication::startDragDistance());
    }

    void release() { QTest::mouseRelease(m_label, Qt::LeftButton, Qt::NoModifier, m_position); }

private:
    QPointer<QLabel> m_label;
    QPoint m_position;
};

/// Counts the mouse events that reach a widget behind the labels.
class MouseCounter : public QObject
{
public:
    explicit MouseCounter(QWidget *widget) { widget->installEventFilter(this); }

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::MouseButtonPress)
            ++presses;
        if (event->type() == QEvent::MouseButtonRelease)
            ++releases;
        return false;
    }

    int presses = 0;
    int releases = 0;
};

} // namespace

class tst_LabelScrubber : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void dragChangesTheNumber_data();
    void dragChangesTheNumber();
    void dragStaysInTheRange_data();
    void dragStaysInTheRange();
    void dragIsOneRun();
    void flagsAreThoseOfTheSlider_data();
    void flagsAreThoseOfTheSlider();
    void secondDragIsAnotherRun();
    void dragGoesOnThroughEchoes();
    void dragStartsAtTheDistance();
    void clickIsAsWithout();
    void otherButtonsDoNotDrag();
    void modifiersChangeThePace();
    void fineStepsAddUp();
    void reversalActsAtOnceAtTheEnd();
    void rightToLeftIsMirrored();
    void escapeGivesBackTheValue();
    void escapeWithoutAnEditTellsNothing();
    void escapeBeforeTheDragIsForOthers();
    void escapeInADialogIsTheDialogs();
    void movesAfterEscapeDoNothing();
    void focusedFieldFollows();
    void focusedFieldGoesOnWithItsOwnRun();
    void runIsKnownToACommitPolicy();
    void onlyNumberRowsShowTheCursor();
    void disabledRowDoesNotMove();
    void rowDisabledInADragStops();
    void rowHiddenInADragEndsTheRun();
    void lostReleaseEndsTheRun();
    void panelDeletedInADrag_data();
    void panelDeletedInADrag();
    void panelDeletedOnEscape();
    void panelDeletedWhenAskedForTheValue();
    void scrubberDeletedInADrag();
    void deletedScrubberLeavesThePlainPanel();
};

void tst_LabelScrubber::initTestCase()
{
    QLocale::setDefault(QLocale::c());
}

void tst_LabelScrubber::dragChangesTheNumber_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QByteArray>("label");
    QTest::addColumn<int>("steps");
    QTest::addColumn<double>("number");

    const auto row = [](const char *name, const char *label, int steps, double number) {
        QTest::addRow("%s by %d", name, steps)
            << QByteArray(name) << QByteArray(label) << steps << number;
    };
    row("count", "Count", 5, 450);
    row("count", "Count", -5, 350);
    row("few", "Few", 5, 25); // its arrows add nothing
    row("gain", "Gain", 5, 0.2235);
    row("gain", "Gain", -1, 0.1035);
    row("share", "Share", 5, 30);
    row("speed", "Speed", 25, 10);
    row("speed", "Speed", -25, 0.1);
}

void tst_LabelScrubber::dragChangesTheNumber()
{
    QFETCH(QByteArray, name);
    QFETCH(QByteArray, label);
    QFETCH(int, steps);
    QFETCH(double, number);
    Subject subject;
    subject.show();

    LabelDrag drag(subject.label(label.constData()));
    drag.begin();
    QVERIFY(subject.scrubber->isScrubbing());
    QVERIFY(subject.store.changes.isEmpty());
    drag.steps(steps);
    drag.release();

    QVERIFY(!subject.scrubber->isScrubbing());
    QCOMPARE(subject.number(name.constData()), number);
    QCOMPARE(subject.store.flags(), Flags{0});
    const QVariant shown = subject.editor(name.constData())->value();
    QCOMPARE(subject.store.values.value(QString::fromLatin1(name)), shown);
}

void tst_LabelScrubber::dragStaysInTheRange_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QByteArray>("label");
    QTest::addColumn<int>("steps");
    QTest::addColumn<double>("number");

    const auto row = [](const char *name, const char *label, int steps, double number) {
        QTest::addRow("%s by %d", name, steps)
            << QByteArray(name) << QByteArray(label) << steps << number;
    };
    row("count", "Count", 900, 1000);
    row("count", "Count", -900, 0);
    row("gain", "Gain", 900, 2); // the hard maximum, as in the field
    row("speed", "Speed", 900, 100);
    row("speed", "Speed", -900, 0.01);
}

void tst_LabelScrubber::dragStaysInTheRange()
{
    dragChangesTheNumber();
}

void tst_LabelScrubber::dragIsOneRun()
{
    Subject subject;
    subject.show();

    LabelDrag drag(subject.label("Count"));
    drag.begin();
    for (int i = 0; i < 3; ++i)
        drag.steps(1);
    drag.steps(0);
    drag.release();

    QCOMPARE(subject.log(), text("count=410/0 count=420/1 count=430/1"));
    QCOMPARE(subject.stack.count(), 1);
    subject.stack.undo();
    QCOMPARE(subject.store.values.value(text("count")), QVariant(400));
}

void tst_LabelScrubber::flagsAreThoseOfTheSlider_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QByteArray>("label");

    QTest::newRow("int") << QByteArray("count") << QByteArray("Count");
    QTest::newRow("float") << QByteArray("gain") << QByteArray("Gain");
    QTest::newRow("percent") << QByteArray("share") << QByteArray("Share");
    QTest::newRow("logarithmic") << QByteArray("speed") << QByteArray("Speed");
}

void tst_LabelScrubber::flagsAreThoseOfTheSlider()
{
    QFETCH(QByteArray, name);
    QFETCH(QByteArray, label);
    Subject subject;
    subject.show();
    PropertyEditor *const editor = subject.editor(name.constData());
    const QSignalSpy started(editor, &PropertyEditor::startInteractiveChange);
    const QSignalSpy changed(editor, &PropertyEditor::valueChanged);
    const QSignalSpy ended(editor, &PropertyEditor::endInteractiveChange);

    LabelDrag drag(subject.label(label.constData()));
    drag.begin();
    QCOMPARE(started.size(), 1);
    drag.steps(2);
    drag.steps(2);
    QCOMPARE(ended.size(), 0);
    drag.release();

    QCOMPARE(subject.store.flags(), (Flags{0, 1}));
    QCOMPARE(started.size(), 1);
    QCOMPARE(changed.size(), 2);
    QCOMPARE(ended.size(), 1);
    // The slider keeps up.
    const auto *const slider = editor->widget(nullptr)->findChild<QSlider *>();
    const int position = slider->value();
    editor->setValue(editor->value());
    QCOMPARE(slider->value(), position);
}

void tst_LabelScrubber::secondDragIsAnotherRun()
{
    Subject subject;
    subject.show();

    for (int i = 0; i < 2; ++i) {
        LabelDrag drag(subject.label("Count"));
        drag.begin();
        drag.steps(1);
        drag.steps(1);
        drag.release();
    }

    QCOMPARE(subject.store.flags(), (Flags{0, 1, 0, 1}));
    QCOMPARE(subject.stack.count(), 2);
}

void tst_LabelScrubber::dragGoesOnThroughEchoes()
{
    Subject subject;
    subject.show();
    subject.store.onSetValue = [&subject] { subject.panel->updateUI(); };

    LabelDrag drag(subject.label("Gain"));
    drag.begin();
    for (int i = 0; i < 10; ++i)
        drag.steps(1);
    drag.release();

    QCOMPARE(subject.number("gain"), 0.3235);
    QCOMPARE(subject.stack.count(), 1);
}

void tst_LabelScrubber::dragStartsAtTheDistance()
{
    Subject subject;
    subject.show();

    LabelDrag drag(subject.label("Count"));
    drag.press();
    drag.moveBy(QApplication::startDragDistance() - 1);
    QVERIFY(!subject.scrubber->isScrubbing());
    drag.moveBy(1);
    QVERIFY(subject.scrubber->isScrubbing());
    drag.release();

    QVERIFY(subject.store.changes.isEmpty());
}

void tst_LabelScrubber::clickIsAsWithout()
{
    Subject subject;
    subject.show();
    MouseCounter counter(subject.panel.get());
    const QSignalSpy started(subject.editor("count"), &PropertyEditor::startInteractiveChange);

    LabelDrag drag(subject.label("Count"));
    drag.press();
    drag.moveBy(2);
    drag.release();

    QCOMPARE(counter.presses, 1);
    QCOMPARE(counter.releases, 1);
    QCOMPARE(started.size(), 0);
    QVERIFY(subject.store.changes.isEmpty());
}

void tst_LabelScrubber::otherButtonsDoNotDrag()
{
    Subject subject;
    subject.show();
    QLabel *const label = subject.label("Count");

    QTest::mousePress(label, Qt::RightButton);
    QMouseEvent move(QEvent::MouseMove, QPoint(200, 5), label->mapToGlobal(QPoint(200, 5)),
                     Qt::NoButton, Qt::RightButton, Qt::NoModifier);
    QCoreApplication::sendEvent(label, &move);
    QTest::mouseRelease(label, Qt::RightButton);

    QVERIFY(!subject.scrubber->isScrubbing());
    QVERIFY(subject.store.changes.isEmpty());
}

void tst_LabelScrubber::modifiersChangeThePace()
{
    Subject subject;
    subject.show();

    LabelDrag drag(subject.label("Count"));
    drag.begin();
    drag.steps(1, Qt::ShiftModifier);
    QCOMPARE(subject.number("count"), 401.0);
    drag.steps(1, Qt::ControlModifier);
    QCOMPARE(subject.number("count"), 501.0);
    drag.steps(1, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(subject.number("count"), 511.0);
    drag.steps(1);
    QCOMPARE(subject.number("count"), 521.0);
    drag.release();
}

void tst_LabelScrubber::fineStepsAddUp()
{
    Subject subject;
    subject.show();

    LabelDrag drag(subject.label("Few"));
    drag.begin();
    for (int i = 0; i < 40; ++i)
        drag.moveBy(1, Qt::ShiftModifier);
    drag.release();

    QCOMPARE(subject.number("few"), 21.0);
    QCOMPARE(subject.store.changes.size(), 1);
}

void tst_LabelScrubber::reversalActsAtOnceAtTheEnd()
{
    Subject subject;
    subject.show();

    LabelDrag drag(subject.label("Count"));
    drag.begin();
    drag.steps(500);
    drag.steps(-1);
    drag.release();

    QCOMPARE(subject.number("count"), 990.0);
}

void tst_LabelScrubber::rightToLeftIsMirrored()
{
    Subject subject;
    subject.show();
    subject.panel->setLayoutDirection(Qt::RightToLeft);

    LabelDrag drag(subject.label("Count"));
    drag.begin();
    drag.steps(-5);
    drag.release();

    QCOMPARE(subject.number("count"), 450.0);
}

void tst_LabelScrubber::escapeGivesBackTheValue()
{
    Subject subject;
    subject.show();

    LabelDrag drag(subject.label("Gain"));
    drag.begin();
    drag.steps(5);
    drag.steps(5);
    QTest::keyClick(subject.panel.get(), Qt::Key_Escape);

    QVERIFY(!subject.scrubber->isScrubbing());
    QCOMPARE(subject.number("gain"), 0.1235);
    QCOMPARE(subject.editor("gain")->widget(nullptr)->findChild<QSlider *>()->value(), 123);
    QCOMPARE(subject.store.flags(), (Flags{0, 1, 1}));
    // As it was, not as the field rounds it.
    QCOMPARE(subject.store.values.value(text("gain")), QVariant(0.123456789));
    QCOMPARE(subject.stack.count(), 0);
    drag.release();
    QCOMPARE(subject.store.changes.size(), 3);
}

void tst_LabelScrubber::escapeWithoutAnEditTellsNothing()
{
    Subject subject;
    subject.show();
    const QSignalSpy ended(subject.editor("gain"), &PropertyEditor::endInteractiveChange);

    LabelDrag drag(subject.label("Gain"));
    drag.begin();
    QTest::keyClick(subject.panel.get(), Qt::Key_Escape);
    drag.release();

    QVERIFY(subject.store.changes.isEmpty());
    QCOMPARE(ended.size(), 1);
}

void tst_LabelScrubber::escapeBeforeTheDragIsForOthers()
{
    Subject subject;
    subject.show();
    LabelDrag drag(subject.label("Gain"));
    drag.press();
    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    escape.ignore();

    QCoreApplication::sendEvent(subject.panel.get(), &escape);
    drag.moveBy(QApplication::startDragDistance());

    QVERIFY(!escape.isAccepted());
    QVERIFY(subject.scrubber->isScrubbing());
    drag.release();
    QCoreApplication::sendEvent(subject.panel.get(), &escape);
    QVERIFY(!escape.isAccepted());
}

void tst_LabelScrubber::escapeInADialogIsTheDialogs()
{
    Subject subject;
    subject.show();
    int results = 0;
    subject.store.onSetValue = [&] {
        subject.store.onSetValue = nullptr;
        QDialog dialog;
        QTimer::singleShot(0, &dialog, [&dialog] { QTest::keyClick(&dialog, Qt::Key_Escape); });
        results += dialog.exec() == QDialog::Rejected ? 1 : 100;
    };

    LabelDrag drag(subject.label("Count"));
    drag.begin();
    drag.steps(1);
    QCOMPARE(results, 1);
    QVERIFY(subject.scrubber->isScrubbing());
    drag.release();

    QCOMPARE(subject.log(), text("count=410/0"));
}

void tst_LabelScrubber::movesAfterEscapeDoNothing()
{
    Subject subject;
    subject.show();

    LabelDrag drag(subject.label("Count"));
    drag.begin();
    drag.steps(1);
    QTest::keyClick(subject.panel.get(), Qt::Key_Escape);
    drag.steps(10);
    drag.release();
    QCOMPARE(subject.log(), text("count=410/0 count=400/1"));

    LabelDrag next(subject.label("Count"));
    next.begin();
    next.steps(1);
    next.release();
    QCOMPARE(subject.log(), text("count=410/0 count=400/1 count=410/0"));
}

void tst_LabelScrubber::focusedFieldFollows()
{
    Subject subject;
    subject.show();
    subject.panel->setFocusPolicy(Qt::NoFocus); // else the press takes the focus
    subject.field("gain")->setFocus();
    subject.field("gain")->selectAll();
    QTest::keyClicks(subject.field("gain"), text("1"));

    LabelDrag drag(subject.label("Gain"));
    drag.begin();
    drag.steps(5);
    drag.release();

    QCOMPARE(subject.field("gain")->text(), text("1.1"));
    QCOMPARE(subject.store.flags(), (Flags{0, 0}));
    QCOMPARE(subject.stack.count(), 2);
}

void tst_LabelScrubber::focusedFieldGoesOnWithItsOwnRun()
{
    Subject subject;
    subject.show();
    subject.panel->setFocusPolicy(Qt::NoFocus); // else the press takes the focus
    subject.field("count")->setFocus();

    LabelDrag drag(subject.label("Count"));
    drag.begin();
    drag.steps(1);
    drag.release();
    subject.field("count")->selectAll();
    QTest::keyClicks(subject.field("count"), text("12"));

    QCOMPARE(subject.log(), text("count=410/0 count=1/0 count=12/1"));
}

void tst_LabelScrubber::runIsKnownToACommitPolicy()
{
    Subject subject;
    CommitPolicy policy(&subject.undo);
    policy.setDefaultMode(CommitMode::atEndOfRun());
    subject.show(&policy);
    policy.watch(subject.panel.get());

    LabelDrag drag(subject.label("Count"));
    drag.begin();
    drag.steps(1);
    drag.steps(1);
    QVERIFY(subject.store.changes.isEmpty());
    drag.release();

    QCOMPARE(subject.log(), text("count=420/0"));
    subject.panel.reset();
}

void tst_LabelScrubber::onlyNumberRowsShowTheCursor()
{
    Subject subject;
    subject.show();

    for (const char *const name : {"Count", "Few", "Gain", "Share", "Speed"})
        QCOMPARE(subject.label(name)->cursor().shape(), Qt::SizeHorCursor);
    for (const char *const name : {"Place", "Name"})
        QCOMPARE(subject.label(name)->cursor().shape(), Qt::ArrowCursor);
    QVERIFY(!subject.label("Wide"));
}

void tst_LabelScrubber::disabledRowDoesNotMove()
{
    Subject subject;
    subject.set.list().at(0)->setHint(kPropertyHintEnabled, false);
    subject.show();
    QLabel *const label = subject.label("Count");
    QCOMPARE(label->cursor().shape(), Qt::ArrowCursor);

    LabelDrag drag(label);
    drag.begin();
    drag.steps(5);
    drag.release();
    QVERIFY(subject.store.changes.isEmpty());

    subject.field("count")->setEnabled(true);
    QEvent enter(QEvent::Enter);
    QCoreApplication::sendEvent(label, &enter);
    QCOMPARE(label->cursor().shape(), Qt::SizeHorCursor);
}

void tst_LabelScrubber::rowDisabledInADragStops()
{
    Subject subject;
    subject.show();
    subject.store.onSetValue = [&subject] { subject.field("count")->setEnabled(false); };

    LabelDrag drag(subject.label("Count"));
    drag.begin();
    drag.steps(1);
    drag.steps(1);
    drag.release();

    QCOMPARE(subject.log(), text("count=410/0"));
}

void tst_LabelScrubber::rowHiddenInADragEndsTheRun()
{
    Subject subject;
    subject.show();
    const QSignalSpy ended(subject.editor("count"), &PropertyEditor::endInteractiveChange);
    subject.store.onSetValue = [&subject] { subject.label("Count")->hide(); };

    LabelDrag drag(subject.label("Count"));
    drag.begin();
    drag.steps(1);

    QVERIFY(!subject.scrubber->isScrubbing());
    QCOMPARE(ended.size(), 1);
}

void tst_LabelScrubber::lostReleaseEndsTheRun()
{
    Subject subject;
    subject.show();
    QLabel *const label = subject.label("Count");

    LabelDrag drag(label);
    drag.begin();
    QMouseEvent move(QEvent::MouseMove, QPoint(9, 5), label->mapToGlobal(QPoint(9, 5)),
                     Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(label, &move);

    QVERIFY(!subject.scrubber->isScrubbing());
    QVERIFY(subject.store.changes.isEmpty());
    LabelDrag next(label);
    next.begin();
    next.steps(1);
    next.release();
    QCOMPARE(subject.log(), text("count=410/0"));
}

void tst_LabelScrubber::panelDeletedInADrag_data()
{
    QTest::addColumn<bool>("scrubberIsThePanels");

    QTest::newRow("the host's") << false;
    QTest::newRow("the panel's") << true;
}

void tst_LabelScrubber::panelDeletedInADrag()
{
    QFETCH(bool, scrubberIsThePanels);
    Subject subject;
    subject.show();
    if (scrubberIsThePanels)
        subject.scrubber.release()->setParent(subject.panel.get());
    subject.store.onSetValue = [&subject] { subject.panel.reset(); };
    QWidget other;

    LabelDrag drag(subject.label("Count"));
    drag.begin();
    drag.steps(1);
    QVERIFY(!subject.panel);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);

    QCOMPARE(subject.log(), text("count=410/0"));
    QVERIFY(!subject.scrubber || !subject.scrubber->isScrubbing());
    // Escape is free again.
    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    escape.ignore();
    QCoreApplication::sendEvent(&other, &escape);
    QVERIFY(!escape.isAccepted());
}

void tst_LabelScrubber::panelDeletedOnEscape()
{
    Subject subject;
    subject.show();
    LabelDrag drag(subject.label("Count"));
    drag.begin();
    drag.steps(1);
    subject.store.onSetValue = [&subject] { subject.panel.reset(); };

    QTest::keyPress(subject.panel.get(), Qt::Key_Escape);

    QVERIFY(!subject.panel);
    QVERIFY(!subject.scrubber->isScrubbing());
    QCOMPARE(subject.log(), text("count=410/0 count=400/1"));
}

void tst_LabelScrubber::panelDeletedWhenAskedForTheValue()
{
    Subject subject;
    subject.show();
    subject.store.onValue = [&subject] {
        subject.store.onValue = nullptr;
        subject.panel.reset();
    };

    LabelDrag drag(subject.label("Count"));
    drag.begin();

    QVERIFY(!subject.panel);
    QVERIFY(!subject.scrubber->isScrubbing());
}

void tst_LabelScrubber::scrubberDeletedInADrag()
{
    Subject subject;
    subject.show();
    const QSignalSpy ended(subject.editor("count"), &PropertyEditor::endInteractiveChange);
    subject.store.onSetValue = [&subject] { subject.scrubber.reset(); };

    LabelDrag drag(subject.label("Count"));
    drag.begin();
    drag.steps(1);
    drag.steps(1);
    drag.release();

    QCOMPARE(subject.log(), text("count=410/0"));
    QCOMPARE(ended.size(), 1);
}

void tst_LabelScrubber::deletedScrubberLeavesThePlainPanel()
{
    Subject subject;
    subject.show();

    subject.scrubber.reset();
    LabelDrag drag(subject.label("Count"));
    drag.begin();
    drag.steps(5);
    drag.release();

    QVERIFY(subject.store.changes.isEmpty());
    QCOMPARE(subject.label("Count")->cursor().shape(), Qt::ArrowCursor);
}

QTEST_MAIN(tst_LabelScrubber)
#include "tst_LabelScrubber.moc"
