#include "property/PropertyEditor.h"

#include "support/RecordingEditor.h"
#include "support/SignalLog.h"
#include "support/Wheel.h"

#include <QComboBox>
#include <QDate>
#include <QDateEdit>
#include <QDial>
#include <QDoubleSpinBox>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMetaMethod>
#include <QMetaProperty>
#include <QScrollBar>
#include <QSignalSpy>
#include <QSlider>
#include <QSpinBox>
#include <QTest>

#include <functional>
#include <memory>

using namespace Tessark::PropertyUI;

namespace {

class DerivedSlider : public QSlider
{
public:
    using QSlider::QSlider;
};

/// A window that counts the wheel events that its children leave to it, and has a second field that
/// can take the focus away from the control under test.
class Window : public QWidget
{
public:
    explicit Window(QWidget *newControl)
        : control(newControl)
        , other(new QLineEdit(this))
    {
        control->setParent(this);
        control->setGeometry(10, 10, 200, 40);
        other->setGeometry(10, 60, 200, 40);
        resize(220, 110);
    }

    QWidget *control;
    QLineEdit *other;
    int wheels = 0;

protected:
    void wheelEvent(QWheelEvent *event) override
    {
        ++wheels;
        event->accept();
    }
};

QVariant shownValue(const QWidget *control)
{
    return control->metaObject()->userProperty().read(control);
}

QComboBox *makeComboBox()
{
    auto *const box = new QComboBox;
    box->addItems({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")});
    box->setCurrentIndex(1);
    return box;
}

QScrollBar *makeScrollBar()
{
    auto *const bar = new QScrollBar(Qt::Vertical);
    bar->setValue(50);
    return bar;
}

QDateEdit *makeDateEdit()
{
    return new QDateEdit(QDate(2020, 2, 2));
}

using MakeControl = std::function<QWidget *()>;

template <typename Control>
MakeControl make()
{
    return [] { return new Control; };
}

/// Deletes the editor and never comes to show anything.
class VanishingEditor : public RecordingEditor
{
public:
    using RecordingEditor::RecordingEditor;

    void setValue(const QVariant &) override { delete this; }
};

} // namespace

Q_DECLARE_METATYPE(MakeControl)

class tst_PropertyEditor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsWithPropertyAlone();
    void namesAndSignaturesAreKept();
    void hostsMayConnectByName();
    void setValuesShowsTheFirst_data();
    void setValuesShowsTheFirst();
    void propertyChangedDoesNothing();
    void hintIsThatOfTheProperty();

    void revertFollowsTheDefault_data();
    void revertFollowsTheDefault();
    void revertShowsBeforeItEmits();
    void revertOfNullTextFollowsTheVariant();
    void revertStopsWhenTheEditorDies();
    void editorMayDieWhileItReverts();

    void wheelPassesOver_data();
    void wheelPassesOver();
    void wheelMovesSlider_data();
    void wheelMovesSlider();
    void wheelIsIgnoredForAnyObject();
    void focusBracketsTyping_data();
    void focusBracketsTyping();
    void otherControlsHaveNoRuns_data();
    void otherControlsHaveNoRuns();
    void releasedKey_data();
    void releasedKey();
    void pressedReturnIsNothing();
    void eventsGoOnToTheBox();
    void otherEventsAreNothing();

    void deletionInASlot_data();
    void deletionInASlot();
    void boxMayDieOnReturn();

private:
    Property m_property{QStringLiteral("item"), QStringLiteral("Label"), QStringLiteral("any")};
};

void tst_PropertyEditor::startsWithPropertyAlone()
{
    RecordingEditor editor(&m_property);

    QCOMPARE(editor.editedProperty(), &m_property);
    QCOMPARE(editor.parent(), nullptr);
    QCOMPARE(editor.widget(nullptr), nullptr);
    QVERIFY(editor.shown.isEmpty());
}

void tst_PropertyEditor::namesAndSignaturesAreKept()
{
    const QMetaObject &meta = PropertyEditor::staticMetaObject;

    QCOMPARE(QByteArray(meta.className()),
             QByteArrayLiteral("Tessark::PropertyUI::PropertyEditor"));
    QCOMPARE(meta.superClass(), &QObject::staticMetaObject);
    QVERIFY(meta.indexOfSignal("valueChanged()") >= 0);
    QVERIFY(meta.indexOfSignal("startInteractiveChange()") >= 0);
    QVERIFY(meta.indexOfSignal("endInteractiveChange()") >= 0);
    const int slot = meta.indexOfSlot("revertToDefaultValue()");
    QVERIFY(slot >= 0);
    QCOMPARE(meta.method(slot).access(), QMetaMethod::Public);
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 4);
}

void tst_PropertyEditor::hostsMayConnectByName()
{
    Property property = m_property;
    property.setDefaultValue(3);
    RecordingEditor editor(&property);
    QObject host;
    QSignalSpy spy(&editor, SIGNAL(valueChanged()));
    connect(&host, SIGNAL(objectNameChanged(QString)), &editor, SLOT(revertToDefaultValue()));

    host.setObjectName(QStringLiteral("new"));

    QCOMPARE(spy.count(), 1);
}

void tst_PropertyEditor::setValuesShowsTheFirst_data()
{
    QTest::addColumn<QVector<QVariant>>("values");
    QTest::addColumn<QVector<QVariant>>("shown");
    using Values = QVector<QVariant>;
    QTest::newRow("none shows nothing") << Values{} << Values{};
    QTest::newRow("one") << Values{1} << Values{1};
    QTest::newRow("three show the first alone") << Values{1, 2, 3} << Values{1};
    QTest::newRow("an invalid first") << Values{QVariant(), 2} << Values{QVariant()};
}

void tst_PropertyEditor::setValuesShowsTheFirst()
{
    QFETCH(QVector<QVariant>, values);
    QFETCH(QVector<QVariant>, shown);
    RecordingEditor editor(&m_property);
    SignalLog log(&editor);

    editor.setValues(values);

    QCOMPARE(editor.shown, shown);
    QCOMPARE(log.take(), QStringList());
}

void tst_PropertyEditor::propertyChangedDoesNothing()
{
    RecordingEditor editor(&m_property);
    SignalLog log(&editor);

    editor.propertyChanged();

    QVERIFY(editor.shown.isEmpty());
    QCOMPARE(log.take(), QStringList());
}

void tst_PropertyEditor::hintIsThatOfTheProperty()
{
    Property property = m_property;
    RecordingEditor editor(&property);

    QVERIFY(!editor.hint(kPropertyHintFullWidth).isValid());
    QVERIFY(property.hints.isEmpty());
    property.setHint(kPropertyHintFullWidth, 12);
    QCOMPARE(editor.hint(kPropertyHintFullWidth), QVariant(12));
}

void tst_PropertyEditor::revertFollowsTheDefault_data()
{
    QTest::addColumn<QVariant>("defaultValue");
    QTest::addColumn<int>("emissions");
    QTest::newRow("invalid") << QVariant() << 0;
    QTest::newRow("valid but null") << QVariant::fromValue(nullptr) << 0;
    QTest::newRow("zero is a default") << QVariant(0) << 1;
    QTest::newRow("false is a default") << QVariant(false) << 1;
    QTest::newRow("empty text is a default") << QVariant(QStringLiteral("")) << 1;
    QTest::newRow("text") << QVariant(QStringLiteral("abc")) << 1;
}

void tst_PropertyEditor::revertFollowsTheDefault()
{
    QFETCH(QVariant, defaultValue);
    QFETCH(int, emissions);
    Property property = m_property;
    property.setDefaultValue(defaultValue);
    RecordingEditor editor(&property);
    SignalLog log(&editor);

    editor.revertToDefaultValue();

    QCOMPARE(log.take(), emissions ? QStringList{QStringLiteral("value")} : QStringList());
    QCOMPARE(editor.shown, QVector<QVariant>(emissions, defaultValue));
}

void tst_PropertyEditor::revertShowsBeforeItEmits()
{
    Property property = m_property;
    property.setDefaultValue(5);
    RecordingEditor editor(&property);
    editor.setValue(1);
    QVariant seen;
    connect(&editor, &PropertyEditor::valueChanged, this, [&] { seen = editor.value(); });

    editor.revertToDefaultValue();

    QCOMPARE(seen, QVariant(5));
}

// Qt 5 calls a variant with a null text null, Qt 6 does not; we take what the Qt in use says.
void tst_PropertyEditor::revertOfNullTextFollowsTheVariant()
{
    Property property = m_property;
    property.setDefaultValue(QString());
    RecordingEditor editor(&property);
    QSignalSpy spy(&editor, &PropertyEditor::valueChanged);

    editor.revertToDefaultValue();

    QCOMPARE(spy.isEmpty(), property.defaultValue.isNull());
}

void tst_PropertyEditor::revertStopsWhenTheEditorDies()
{
    Property property = m_property;
    property.setDefaultValue(5);
    QPointer<PropertyEditor> editor = new VanishingEditor(&property);
    int emissions = 0;
    connect(editor, &PropertyEditor::valueChanged, this, [&emissions] { ++emissions; });

    editor->revertToDefaultValue();

    QVERIFY(!editor);
    QCOMPARE(emissions, 0);
}

void tst_PropertyEditor::editorMayDieWhileItReverts()
{
    Property property = m_property;
    property.setDefaultValue(5);
    QPointer<PropertyEditor> editor = new RecordingEditor(&property);
    connect(editor, &PropertyEditor::valueChanged, this, [&editor] { delete editor; });

    editor->revertToDefaultValue();

    QVERIFY(!editor);
}

void tst_PropertyEditor::wheelPassesOver_data()
{
    QTest::addColumn<MakeControl>("makeControl");
    QTest::newRow("spin box") << make<QSpinBox>();
    QTest::newRow("decimal spin box") << make<QDoubleSpinBox>();
    QTest::newRow("date field") << MakeControl(makeDateEdit);
    QTest::newRow("combo box") << MakeControl(makeComboBox);
    QTest::newRow("dial, which is no slider") << make<QDial>();
    QTest::newRow("scroll bar, which is no slider") << MakeControl(makeScrollBar);
}

void tst_PropertyEditor::wheelPassesOver()
{
    QFETCH(MakeControl, makeControl);
    Window window(makeControl());
    window.show();
    const QVariant atFirst = shownValue(window.control);
    turnWheelOver(window.control);
    const QVariant unfiltered = shownValue(window.control);
    QVERIFY2(unfiltered != atFirst, "the control does not answer the wheel by itself");
    QCOMPARE(window.wheels, 0);
    RecordingEditor editor(&m_property);
    QSignalSpy spy(&editor, &PropertyEditor::valueChanged);
    window.control->installEventFilter(&editor);

    turnWheelOver(window.control);

    QCOMPARE(shownValue(window.control), unfiltered);
    QCOMPARE(window.wheels, 1);
    QVERIFY(spy.isEmpty());
}

void tst_PropertyEditor::wheelMovesSlider_data()
{
    QTest::addColumn<MakeControl>("makeControl");
    QTest::newRow("slider") << make<QSlider>();
    QTest::newRow("a class derived from it") << make<DerivedSlider>();
}

void tst_PropertyEditor::wheelMovesSlider()
{
    QFETCH(MakeControl, makeControl);
    Window window(makeControl());
    window.show();
    RecordingEditor editor(&m_property);
    SignalLog log(&editor);
    window.control->installEventFilter(&editor);
    const QVariant atFirst = shownValue(window.control);

    turnWheelOver(window.control);

    QVERIFY(shownValue(window.control) != atFirst);
    QCOMPARE(window.wheels, 0);
    QCOMPARE(log.take(), QStringList());
}

void tst_PropertyEditor::wheelIsIgnoredForAnyObject()
{
    RecordingEditor editor(&m_property);
    QObject watched;
    QWheelEvent event(QPointF(), QPointF(), QPoint(), QPoint(0, 120), Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    event.accept();

    QVERIFY(editor.eventFilter(&watched, &event));
    QVERIFY(!event.isAccepted());
}

void tst_PropertyEditor::focusBracketsTyping_data()
{
    QTest::addColumn<MakeControl>("makeControl");
    QTest::newRow("spin box") << make<QSpinBox>();
    QTest::newRow("decimal spin box") << make<QDoubleSpinBox>();
    QTest::newRow("date field") << MakeControl(makeDateEdit);
}

void tst_PropertyEditor::focusBracketsTyping()
{
    QFETCH(MakeControl, makeControl);
    Window window(makeControl());
    window.other->setFocus();
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    RecordingEditor editor(&m_property);
    SignalLog log(&editor);
    window.control->installEventFilter(&editor);

    window.control->setFocus();
    QVERIFY(window.control->hasFocus());
    QCOMPARE(log.take(), QStringList{QStringLiteral("start")});

    window.other->setFocus();
    QVERIFY(!window.control->hasFocus());
    QCOMPARE(log.take(), QStringList{QStringLiteral("end")});
}

void tst_PropertyEditor::otherControlsHaveNoRuns_data()
{
    QTest::addColumn<MakeControl>("makeControl");
    QTest::newRow("slider") << make<QSlider>();
    QTest::newRow("line of text") << make<QLineEdit>();
    QTest::newRow("combo box") << MakeControl(makeComboBox);
}

void tst_PropertyEditor::otherControlsHaveNoRuns()
{
    QFETCH(MakeControl, makeControl);
    Window window(makeControl());
    window.control->setFocusPolicy(Qt::StrongFocus);
    window.other->setFocus();
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    RecordingEditor editor(&m_property);
    SignalLog log(&editor);
    window.control->installEventFilter(&editor);

    window.control->setFocus();
    QVERIFY(window.control->hasFocus());
    QTest::keyClick(window.control, Qt::Key_Return);
    window.other->setFocus();

    QVERIFY(!window.control->hasFocus());
    QCOMPARE(log.take(), QStringList());
}

void tst_PropertyEditor::releasedKey_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<QStringList>("expected");
    const QStringList confirmed = {QStringLiteral("end"), QStringLiteral("start")};
    const auto row = [](const char *name, Qt::Key key, Qt::KeyboardModifier modifier,
                        const QStringList &expected) {
        QTest::newRow(name) << int(key) << int(modifier) << expected;
    };
    row("Return", Qt::Key_Return, Qt::NoModifier, confirmed);
    row("Enter of the keypad", Qt::Key_Enter, Qt::KeypadModifier, confirmed);
    row("Enter", Qt::Key_Enter, Qt::NoModifier, confirmed);
    row("Return with Shift", Qt::Key_Return, Qt::ShiftModifier, confirmed);
    row("a digit", Qt::Key_5, Qt::NoModifier, {});
    row("a letter", Qt::Key_A, Qt::NoModifier, {});
    row("Escape", Qt::Key_Escape, Qt::NoModifier, {});
    row("arrow up", Qt::Key_Up, Qt::NoModifier, {});
    row("Space", Qt::Key_Space, Qt::NoModifier, {});
}

void tst_PropertyEditor::releasedKey()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    QFETCH(QStringList, expected);
    QSpinBox box;
    RecordingEditor editor(&m_property);
    SignalLog log(&editor);
    box.installEventFilter(&editor);

    QTest::keyRelease(&box, Qt::Key(key), Qt::KeyboardModifier(modifiers));

    QCOMPARE(log.take(), expected);
}

void tst_PropertyEditor::pressedReturnIsNothing()
{
    QSpinBox box;
    RecordingEditor editor(&m_property);
    SignalLog log(&editor);
    box.installEventFilter(&editor);

    QTest::keyPress(&box, Qt::Key_Return);
    QTest::keyPress(&box, Qt::Key_Enter);

    QCOMPARE(log.take(), QStringList());
}

void tst_PropertyEditor::eventsGoOnToTheBox()
{
    QSpinBox box;
    RecordingEditor editor(&m_property);
    SignalLog log(&editor);
    box.installEventFilter(&editor);
    QSignalSpy finished(&box, &QSpinBox::editingFinished);

    box.selectAll();
    QTest::keyClicks(&box, QStringLiteral("42"));
    QTest::keyClick(&box, Qt::Key_Return);

    QCOMPARE(box.value(), 42);
    QCOMPARE(finished.count(), 1);
    QCOMPARE(log.take(), (QStringList{QStringLiteral("end"), QStringLiteral("start")}));
}

void tst_PropertyEditor::otherEventsAreNothing()
{
    QSpinBox box;
    RecordingEditor editor(&m_property);
    SignalLog log(&editor);

    for (const QEvent::Type type : {QEvent::Enter, QEvent::Leave, QEvent::Show, QEvent::Polish}) {
        QEvent event(type);
        QVERIFY(!editor.eventFilter(&box, &event));
    }
    QFocusEvent focusIn(QEvent::FocusIn);
    QVERIFY(!editor.eventFilter(&box, &focusIn));
    QFocusEvent focusOut(QEvent::FocusOut);
    QVERIFY(!editor.eventFilter(&box, &focusOut));
    QCOMPARE(log.take(), (QStringList{QStringLiteral("start"), QStringLiteral("end")}));
}

void tst_PropertyEditor::deletionInASlot_data()
{
    QTest::addColumn<int>("event");
    QTest::addColumn<QString>("when"); // the signal in whose slot the deletion happens
    QTest::addColumn<bool>("boxDies");
    QTest::addColumn<bool>("editorDies");
    QTest::addColumn<QStringList>("signalsSeen");
    const QString start = QStringLiteral("start");
    const QString end = QStringLiteral("end");
    const int focusIn = QEvent::FocusIn;
    const int focusOut = QEvent::FocusOut;
    const int released = QEvent::KeyRelease;
    const QStringList both = {end, start};
    QTest::newRow("focus in, box") << focusIn << start << true << false << QStringList(start);
    QTest::newRow("focus in, editor") << focusIn << start << false << true << QStringList(start);
    QTest::newRow("focus in, both") << focusIn << start << true << true << QStringList(start);
    QTest::newRow("focus out, box") << focusOut << end << true << false << QStringList(end);
    QTest::newRow("focus out, editor") << focusOut << end << false << true << QStringList(end);
    QTest::newRow("focus out, both") << focusOut << end << true << true << QStringList(end);
    QTest::newRow("Return, box at the end") << released << end << true << false << both;
    QTest::newRow("Return, box at the start") << released << start << true << false << both;
    QTest::newRow("Return, editor at the end")
        << released << end << false << true << QStringList(end);
    QTest::newRow("Return, editor at the start") << released << start << false << true << both;
    QTest::newRow("Return, both at the end") << released << end << true << true << QStringList(end);
    QTest::newRow("Return, both at the start") << released << start << true << true << both;
}

void tst_PropertyEditor::deletionInASlot()
{
    QFETCH(int, event);
    QFETCH(QString, when);
    QFETCH(bool, boxDies);
    QFETCH(bool, editorDies);
    QFETCH(QStringList, signalsSeen);
    auto box = std::make_unique<QSpinBox>();
    auto editor = std::make_unique<RecordingEditor>(&m_property);
    SignalLog log(editor.get());
    const auto signal = when == QLatin1String("start") ? &PropertyEditor::startInteractiveChange
                                                       : &PropertyEditor::endInteractiveChange;
    connect(editor.get(), signal, this, [&] {
        if (boxDies)
            box.reset();
        if (editorDies)
            editor.reset();
    });
    std::unique_ptr<QEvent> sent;
    if (event == QEvent::KeyRelease)
        sent = std::make_unique<QKeyEvent>(QEvent::KeyRelease, Qt::Key_Return, Qt::NoModifier);
    else
        sent = std::make_unique<QFocusEvent>(QEvent::Type(event));

    const bool swallowed = editor->eventFilter(box.get(), sent.get());

    QCOMPARE(log.take(), signalsSeen);
    QCOMPARE(swallowed, boxDies); // what is left of a dead box must not get the event
    QCOMPARE(!box, boxDies);
    QCOMPARE(!editor, editorDies);
}

void tst_PropertyEditor::boxMayDieOnReturn()
{
    QPointer<QSpinBox> box = new QSpinBox;
    RecordingEditor editor(&m_property);
    box->installEventFilter(&editor);
    connect(&editor, &PropertyEditor::endInteractiveChange, this, [&box] { delete box; });

    QTest::keyRelease(box.data(), Qt::Key_Return);

    QVERIFY(!box);
}

QTEST_MAIN(tst_PropertyEditor)
#include "tst_PropertyEditor.moc"
