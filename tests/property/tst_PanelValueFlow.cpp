#include <property/PropertyUI.h>

#include "support/PropertySet.h"
#include "support/RecordingDelegate.h"
#include "support/TestEditors.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QMouseEvent>
#include <QSignalSpy>
#include <QStyleOptionSlider>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>

#include <memory>

using namespace Tessark::PropertyUI;
using namespace TestSupport;

namespace {

const QString kTest = QStringLiteral("test");
const QString kNull = QStringLiteral("test/null");
const QString kWidgetless = QStringLiteral("test/widgetless");
const QString kSliderSpin = QStringLiteral("test/slider_spin");

const QString kA = QStringLiteral("A");
const QString kB = QStringLiteral("B");

/// A host that subclasses the panel: notes the edits, then lets them pass or not, and answers for
/// the delegate.
class HostPanel : public PropertyEditorPanel
{
public:
    using PropertyEditorPanel::PropertyEditorPanel;

    void setValue(Property *property, const QVariant &value,
                  IPropertyEditorDelegate::ChangeFlags flags) override
    {
        edits.append(property->name + QLatin1Char('/') + QString::number(static_cast<int>(flags)));
        if (passOn)
            PropertyEditorPanel::setValue(property, value, flags);
    }

    QVariant value(Property *property) const override
    {
        return QVariant(property->name + QLatin1String(" of the host"));
    }

    void showGroup(PropertyEditor *group, bool open) override
    {
        edits.append(group->editedProperty()->name
                     + (open ? QStringLiteral(" opens") : QStringLiteral(" closes")));
    }

    QStringList edits;
    bool passOn = true;
};

QPoint handleOf(const QSlider *slider)
{
    QStyleOptionSlider option;
    option.initFrom(slider);
    option.orientation = slider->orientation();
    option.minimum = slider->minimum();
    option.maximum = slider->maximum();
    option.sliderPosition = slider->sliderPosition();
    option.sliderValue = slider->value();
    option.subControls = QStyle::SC_SliderHandle;
    return slider->style()
        ->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, slider)
        .center();
}

/// Moves the mouse with the left button held.
void dragTo(QWidget *widget, const QPoint &position)
{
    QMouseEvent event(QEvent::MouseMove, position, widget->mapToGlobal(position), Qt::NoButton,
                      Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(widget, &event);
}

void clickBox(QCheckBox *box)
{
    QTest::mouseClick(box, Qt::LeftButton, Qt::NoModifier, QPoint(8, box->height() / 2));
}

} // namespace

Q_DECLARE_METATYPE(std::function<void(QSlider *)>)

class tst_PanelValueFlow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void runState_data();
    void runState();
    void signalOfAnotherObjectIsNoEdit();
    void changesInsideACallback_data();
    void changesInsideACallback();
    void deletedEditorEndsItsRun();

    void typedTextReachesDelegate();
    void sliderDragIsOneRun();
    void sliderStepsAreAlone_data();
    void sliderStepsAreAlone();
    void wheelLeavesTheSpinBox();
    void typingIsOneRun();
    void enterClosesAndOpensARun_data();
    void enterClosesAndOpensARun();
    void tabKeyStartsTheNextRun();
    void draggingEndsTyping();
    void clickOnACheckBoxIsAlone();
    void actionSendsAnInvalidValue();
    void tabSwitchSendsTheIndex();

    void updateUIShowsAllValues();
    void updateUISendsNothingBack();
    void updateUIWithoutDelegate();
    void updateUIKeepsTheRun();
    void valueWithoutDelegate();
    void setValuePassesItsArguments();
    void editsWithoutDelegate();
    void hostPanelSeesEdits();
    void hostPanelAnswersValues();
    void hostPanelFoldsGroups();

    void updatePropertyTellsItsEditors();
    void updatePropertyComparesPointers();
    void clampingIsNotSent();
    void updatePropertySilencesAllPanels();
    void updatePropertyDropsDirectCalls();
    void droppedChangeCountsAsSeen();
    void nestedUpdatePropertyClearsTheFlag();
    void overrideSeesDroppedEdits();
    void groupFoldsWhileItsEditIsDropped();

    void groupFoldsAndOpens();
    void nestedGroups();
    void openingShowsNestedGroups();
    void groupWithoutEndFoldsTheRest();
    void groupOnAPageDoesNotFold();
    void groupClickEndsARun();
    void valueOfAGroupDecides();

private:
    void build(IPropertyEditorDelegate *delegate);
    void build() { build(&m_delegate); }
    void show(); // and take the focus to the panel itself

    TestEditor *editor(const QString &name) const { return editorOf<TestEditor>(*m_panel, name); }
    SliderSpinEditor *sliderSpin(const QString &name) const
    {
        return editorOf<SliderSpinEditor>(*m_panel, name);
    }
    QWidget *row(const QString &name) const { return m_panel->findChild<QWidget *>(name); }
    QCheckBox *box(const QString &name) const
    {
        return qobject_cast<QCheckBox *>(editorOf<PropertyEditor>(*m_panel, name)->widget(nullptr));
    }
    void addSliderSpin(const QString &name) { m_set.add(name, kSliderSpin).setRange(0, 1000); }

    PropertySet m_set;
    RecordingDelegate m_delegate;
    std::unique_ptr<PropertyEditorPanel> m_panel;
};

void tst_PanelValueFlow::initTestCase()
{
    auto *const registry = PropertyEditorRegistry::Instance();
    registry->registerPropertyEditor(kTest, TestEditor::Factory);
    registry->registerPropertyEditor(kNull, noEditor);
    registry->registerPropertyEditor(kWidgetless, WidgetlessEditor::Factory);
    registry->registerPropertyEditor(kSliderSpin, SliderSpinEditor::Factory);
}

void tst_PanelValueFlow::init()
{
    m_set = PropertySet();
    m_delegate = RecordingDelegate();
}

void tst_PanelValueFlow::cleanup()
{
    m_panel.reset();
}

void tst_PanelValueFlow::build(IPropertyEditorDelegate *delegate)
{
    m_panel = std::make_unique<PropertyEditorPanel>(m_set.list(), delegate, nullptr);
}

void tst_PanelValueFlow::show()
{
    m_panel->resize(400, 300);
    m_panel->show();
    m_panel->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_panel.get()));
    m_panel->setFocus();
    QTRY_VERIFY(m_panel->hasFocus());
    m_delegate.changes.clear();
}

void tst_PanelValueFlow::runState_data()
{
    QTest::addColumn<QString>("steps"); // s, c, e: start, change, end; A, B: the editor; -: nobody
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *name, const char *steps, const char *expected) {
        QTest::newRow(name) << QString::fromLatin1(steps) << QString::fromLatin1(expected);
    };

    row("a change alone", "cA", "A0");
    row("two changes alone", "cA cA", "A0 A0");
    row("two editors alone", "cA cB cA", "A0 B0 A0");
    row("a run", "sA cA cA cA eA", "A0 A1 A1");
    row("change after a run", "sA cA cA eA cA cA", "A0 A1 A0 A0");
    row("two runs", "sA cA cA eA sA cA cA eA", "A0 A1 A0 A1");
    row("run without change", "sA eA cA cA", "A0 A0");
    row("start and end send nothing", "sA eA sB eB", "");
    row("end without start", "eA cA", "A0");
    row("start within a run begins anew", "sA cA cA sA cA cA", "A0 A1 A0 A1");
    row("start of another editor takes over", "sA cA cA sB cB cB cA", "A0 A1 B0 B1 A0");
    row("start of another editor before any change", "sA sB cB cB", "B0 B1");
    row("change elsewhere ends the run", "sA cA cB cA", "A0 B0 A0");
    row("and it stays ended", "sA cA cA cB cA cA", "A0 A1 B0 A0 A0");
    row("change elsewhere first", "sA cB cA cA", "B0 A0 A0");
    row("two changes elsewhere", "sA cA cB cB", "A0 B0 B0");
    row("end from another editor", "sA cA eB cA", "A0 A0");
    row("late end of the first editor", "sA cA sB cB eA cB", "A0 B0 B0");
    row("end sent by nobody", "sA cA cA e- cA", "A0 A1 A0");
    row("start sent by nobody", "sA cA s- cA", "A0 A1");
    row("change sent by nobody", "sA cA c- cA", "A0 A1");
    row("change sent by nobody while idle", "c-", "");
}

void tst_PanelValueFlow::runState()
{
    QFETCH(QString, steps);
    QFETCH(QString, expected);
    m_set.add(kA, kTest);
    m_set.add(kB, kTest);
    build();

    int value = 0;
    QStringList values;
    for (const QString &step : steps.split(QLatin1Char(' '))) {
        TestEditor *const target = editor(step.mid(1));
        const QLatin1String slot(step.startsWith(QLatin1Char('s'))   ? "startInteractiveChange"
                                 : step.startsWith(QLatin1Char('e')) ? "endInteractiveChange"
                                                                     : "editorValueChanged");
        if (!target) {
            QVERIFY(QMetaObject::invokeMethod(m_panel.get(), slot.data(), Qt::DirectConnection));
        } else if (step.startsWith(QLatin1Char('s'))) {
            target->start();
        } else if (step.startsWith(QLatin1Char('e'))) {
            target->end();
        } else {
            target->edit(++value);
            values.append(QString::number(value));
        }
    }

    QStringList changes;
    QStringList sent;
    for (const auto &change : m_delegate.changes) {
        changes.append(change.name + QString::number(change.flags));
        sent.append(change.value.toString());
    }
    QCOMPARE(changes.join(QLatin1Char(' ')), expected);
    QCOMPARE(sent, values);
}

// The slots are private, but a host can reach them by name.
void tst_PanelValueFlow::signalOfAnotherObjectIsNoEdit()
{
    m_set.add(kA, kTest);
    build();
    QObject other;
    connect(&other, SIGNAL(objectNameChanged(QString)), m_panel.get(), SLOT(editorValueChanged()));
    connect(&other, SIGNAL(objectNameChanged(QString)), m_panel.get(),
            SLOT(startInteractiveChange()));
    editor(kA)->start();
    editor(kA)->edit(1);

    other.setObjectName(QStringLiteral("renamed"));
    editor(kA)->edit(2);

    QCOMPARE(m_delegate.flags(), QVector<int>({0, 1}));
}

void tst_PanelValueFlow::changesInsideACallback_data()
{
    QTest::addColumn<QString>("step");
    QTest::addColumn<QString>("expected");

    // A changes twice within a run; the step happens while the host is told of the first.
    QTest::newRow("the same editor changes")
        << QStringLiteral("cA") << QStringLiteral("A=1/0 A=9/0 A=2/1");
    QTest::newRow("another changes") << QStringLiteral("cB") << QStringLiteral("A=1/0 B=9/0 A=2/0");
    QTest::newRow("the run ends") << QStringLiteral("eA") << QStringLiteral("A=1/0 A=2/0");
    QTest::newRow("the run begins anew") << QStringLiteral("sA") << QStringLiteral("A=1/0 A=2/1");
    QTest::newRow("another run begins") << QStringLiteral("sB") << QStringLiteral("A=1/0 A=2/0");
}

void tst_PanelValueFlow::changesInsideACallback()
{
    QFETCH(QString, step);
    QFETCH(QString, expected);
    m_set.add(kA, kTest);
    m_set.add(kB, kTest);
    build();
    TestEditor *const target = editor(step.mid(1));
    m_delegate.onSetValue = [this, step, target] {
        m_delegate.onSetValue = nullptr;
        if (step.startsWith(QLatin1Char('c')))
            target->edit(9);
        else if (step.startsWith(QLatin1Char('s')))
            target->start();
        else
            target->end();
    };

    editor(kA)->start();
    editor(kA)->edit(1);
    editor(kA)->edit(2);

    QCOMPARE(m_delegate.log().join(QLatin1Char(' ')), expected);
}

void tst_PanelValueFlow::deletedEditorEndsItsRun()
{
    m_set.add(kA, kTest);
    m_set.add(kB, kTest);
    build();
    editor(kA)->start();
    editor(kA)->edit(1);

    delete editor(kA);
    editor(kB)->edit(2);
    editor(kB)->start();
    editor(kB)->edit(3);
    editor(kB)->edit(4);

    QCOMPARE(m_delegate.flags(), QVector<int>({0, 0, 0, 1}));
}

void tst_PanelValueFlow::typedTextReachesDelegate()
{
    m_set.add(kA, kPropertyTypeString);
    build();
    auto *const field = m_panel->findChild<QLineEdit *>();

    QTest::keyClicks(field, QStringLiteral("abc"));
    QVERIFY(m_delegate.changes.isEmpty());
    QTest::keyClick(field, Qt::Key_Return);

    QCOMPARE(m_delegate.log(), QStringList(QStringLiteral("A=abc/0")));
}

void tst_PanelValueFlow::sliderDragIsOneRun()
{
    addSliderSpin(kA);
    build();
    show();
    QSlider *const slider = sliderSpin(kA)->slider;
    QSignalSpy moved(slider, &QSlider::valueChanged);

    for (int drag = 0; drag < 2; ++drag) {
        const QPoint grip = handleOf(slider);
        QTest::mousePress(slider, Qt::LeftButton, Qt::NoModifier, grip);
        for (int step = 1; step <= 3; ++step)
            dragTo(slider, grip + QPoint(20 * step, 0));
        QTest::mouseRelease(slider, Qt::LeftButton, Qt::NoModifier, grip + QPoint(60, 0));
    }

    QCOMPARE(moved.count(), 6);
    QCOMPARE(m_delegate.flags(), QVector<int>({0, 1, 1, 0, 1, 1}));
    QCOMPARE(m_delegate.changes.last().value, QVariant(slider->value()));
}

void tst_PanelValueFlow::sliderStepsAreAlone_data()
{
    using Step = std::function<void(QSlider *)>;
    QTest::addColumn<Step>("step");

    QTest::newRow("key") << Step([](QSlider *slider) { QTest::keyClick(slider, Qt::Key_Right); });
    QTest::newRow("wheel") << Step([](QSlider *slider) { turnWheel(slider); });
    QTest::newRow("page key") << Step(
        [](QSlider *slider) { QTest::keyClick(slider, Qt::Key_PageUp); });
}

void tst_PanelValueFlow::sliderStepsAreAlone()
{
    QFETCH(std::function<void(QSlider *)>, step);
    addSliderSpin(kA);
    build();
    show();
    QSlider *const slider = sliderSpin(kA)->slider;
    slider->setFocus();

    step(slider);
    step(slider);

    QVERIFY(slider->value() > 1);
    QCOMPARE(m_delegate.flags(), QVector<int>({0, 0}));
}

void tst_PanelValueFlow::wheelLeavesTheSpinBox()
{
    addSliderSpin(kA);
    build();
    show();
    QSpinBox *const spinBox = sliderSpin(kA)->spinBox;
    spinBox->setFocus();

    turnWheel(spinBox);

    QCOMPARE(spinBox->value(), 0);
    QVERIFY(m_delegate.changes.isEmpty());
}

void tst_PanelValueFlow::typingIsOneRun()
{
    addSliderSpin(kA);
    build();
    show();
    QSpinBox *const spinBox = sliderSpin(kA)->spinBox;

    for (int visit = 0; visit < 2; ++visit) {
        spinBox->setFocus();
        QTRY_VERIFY(spinBox->hasFocus());
        spinBox->selectAll();
        QTest::keyClicks(spinBox, visit == 0 ? QStringLiteral("123") : QStringLiteral("45"));
        m_panel->setFocus();
        QTRY_VERIFY(m_panel->hasFocus());
    }

    QCOMPARE(m_delegate.log(), QStringList({QStringLiteral("A=1/0"), QStringLiteral("A=12/1"),
                                            QStringLiteral("A=123/1"), QStringLiteral("A=4/0"),
                                            QStringLiteral("A=45/1")}));
}

void tst_PanelValueFlow::enterClosesAndOpensARun_data()
{
    QTest::addColumn<Qt::Key>("key");

    QTest::newRow("Return") << Qt::Key_Return;
    QTest::newRow("Enter of the keypad") << Qt::Key_Enter;
}

void tst_PanelValueFlow::enterClosesAndOpensARun()
{
    QFETCH(Qt::Key, key);
    addSliderSpin(kA);
    build();
    show();
    QSpinBox *const spinBox = sliderSpin(kA)->spinBox;
    spinBox->setFocus();
    QTRY_VERIFY(spinBox->hasFocus());
    spinBox->selectAll();

    QTest::keyClicks(spinBox, QStringLiteral("12"));
    QTest::keyClick(spinBox, key);
    QTest::keyClick(spinBox, Qt::Key_Up);
    QTest::keyClick(spinBox, Qt::Key_Up);

    // Qt announces the number again when the key is pressed, the run closes when it is released.
    QCOMPARE(m_delegate.log(), QStringList({QStringLiteral("A=1/0"), QStringLiteral("A=12/1"),
                                            QStringLiteral("A=12/1"), QStringLiteral("A=13/0"),
                                            QStringLiteral("A=14/1")}));
}

void tst_PanelValueFlow::tabKeyStartsTheNextRun()
{
    addSliderSpin(kA);
    addSliderSpin(kB);
    build();
    show();
    QSpinBox *const first = sliderSpin(kA)->spinBox;
    QSpinBox *const second = sliderSpin(kB)->spinBox;
    first->setFocus();
    QTRY_VERIFY(first->hasFocus());
    first->selectAll();

    QTest::keyClicks(first, QStringLiteral("12"));
    QTest::keyClick(first, Qt::Key_Tab); // to the second slider
    QTRY_VERIFY(sliderSpin(kB)->slider->hasFocus());
    QTest::keyClick(sliderSpin(kB)->slider, Qt::Key_Tab);
    QTRY_VERIFY(second->hasFocus());
    QTest::keyClicks(second, QStringLiteral("34"));

    QCOMPARE(m_delegate.log(), QStringList({QStringLiteral("A=1/0"), QStringLiteral("A=12/1"),
                                            QStringLiteral("B=3/0"), QStringLiteral("B=34/1")}));
}

void tst_PanelValueFlow::draggingEndsTyping()
{
    addSliderSpin(kA);
    build();
    show();
    SliderSpinEditor *const both = sliderSpin(kA);
    both->spinBox->setFocus();
    QTRY_VERIFY(both->spinBox->hasFocus());
    QTest::keyClick(both->spinBox, Qt::Key_Up);
    QTest::keyClick(both->spinBox, Qt::Key_Up);

    const QPoint grip = handleOf(both->slider);
    QTest::mousePress(both->slider, Qt::LeftButton, Qt::NoModifier, grip);
    dragTo(both->slider, grip + QPoint(20, 0));
    dragTo(both->slider, grip + QPoint(40, 0));
    QTest::mouseRelease(both->slider, Qt::LeftButton, Qt::NoModifier, grip + QPoint(40, 0));
    QTest::keyClick(both->slider, Qt::Key_Right);

    QCOMPARE(m_delegate.flags(), QVector<int>({0, 1, 0, 1, 0}));
}

void tst_PanelValueFlow::clickOnACheckBoxIsAlone()
{
    m_set.add(kA, kPropertyTypeBoolean);
    build();
    show();

    clickBox(box(kA));
    clickBox(box(kA));

    QCOMPARE(m_delegate.log(),
             QStringList({QStringLiteral("A=true/0"), QStringLiteral("A=false/0")}));
}

void tst_PanelValueFlow::actionSendsAnInvalidValue()
{
    m_set.add(kA, kPropertyTypeAction);
    build();
    show();

    QTest::mouseClick(editorOf<PropertyEditor>(*m_panel, kA)->widget(nullptr), Qt::LeftButton);

    QCOMPARE(m_delegate.flags(), QVector<int>({0}));
    QVERIFY(!m_delegate.changes.first().value.isValid());
}

void tst_PanelValueFlow::tabSwitchSendsTheIndex()
{
    m_set.add(kA, kPropertyTypeBeginTabGroup);
    m_set.add(QStringLiteral("One"), kPropertyTypeTab);
    m_set.add(QStringLiteral("Two"), kPropertyTypeTab);
    m_set.add(QString(), kPropertyTypeEndTabGroup);
    build();
    show();
    QTabBar *const bar = m_panel->findChild<QTabBar *>();

    QTest::mouseClick(bar, Qt::LeftButton, Qt::NoModifier, bar->tabRect(1).center());
    QTest::mouseClick(bar, Qt::LeftButton, Qt::NoModifier, bar->tabRect(0).center());

    QCOMPARE(m_delegate.log(), QStringList({QStringLiteral("A=1/0"), QStringLiteral("A=0/0")}));
}

void tst_PanelValueFlow::updateUIShowsAllValues()
{
    m_set.add(kA, kTest);
    m_set.add(QStringLiteral("null"), kNull);
    m_set.add(QStringLiteral("unknown"), kPropertyTypeAngle);
    m_set.add(QStringLiteral("none"), kWidgetless);
    m_set.add(QStringLiteral("group"), kPropertyTypeBeginGroup);
    m_set.add(kB, kTest);
    m_set.add(QStringLiteral("end"), kPropertyTypeEndGroup);
    m_delegate.values = {{kA, 5}, {QStringLiteral("none"), 6}, {QStringLiteral("group"), false}};
    build();

    m_panel->updateUI();

    QCOMPARE(m_delegate.reads, QStringList({kA, QStringLiteral("none"), QStringLiteral("group"), kB,
                                            QStringLiteral("end")}));
    QCOMPARE(editor(kA)->shown, QVariant(5));
    QCOMPARE(editor(QStringLiteral("none"))->shown, QVariant(6));
    QVERIFY(!editor(kB)->shown.isValid());
    for (const QString &name : {kA, kB, QStringLiteral("none")})
        QCOMPARE(editor(name)->setValueCalls, 1);
    QVERIFY(box(QStringLiteral("group"))->isChecked()); // open or closed is the user's business
}

void tst_PanelValueFlow::updateUISendsNothingBack()
{
    m_set.add(QStringLiteral("on"), kPropertyTypeBoolean);
    m_set.add(QStringLiteral("title"), kPropertyTypeString);
    addSliderSpin(kA);
    m_delegate.values = {
        {QStringLiteral("on"), true}, {QStringLiteral("title"), QStringLiteral("T")}, {kA, 7}};
    build();

    m_panel->updateUI();

    QVERIFY(box(QStringLiteral("on"))->isChecked());
    QCOMPARE(m_panel->findChild<QLineEdit *>(QString(), Qt::FindDirectChildrenOnly)->text(),
             QStringLiteral("T"));
    QCOMPARE(sliderSpin(kA)->slider->value(), 7);
    QVERIFY(m_delegate.changes.isEmpty());
}

void tst_PanelValueFlow::updateUIWithoutDelegate()
{
    m_set.add(kA, kTest);
    HostPanel panel(m_set.list(), nullptr, nullptr);

    panel.updateUI();

    QCOMPARE(editorOf<TestEditor>(panel, kA)->setValueCalls, 0);
}

void tst_PanelValueFlow::updateUIKeepsTheRun()
{
    m_set.add(kA, kTest);
    build();
    editor(kA)->start();
    editor(kA)->edit(1);

    m_panel->updateUI();
    editor(kA)->edit(2);

    QCOMPARE(m_delegate.flags(), QVector<int>({0, 1}));
}

void tst_PanelValueFlow::valueWithoutDelegate()
{
    Property &property = m_set.add(kA, kTest);
    m_delegate.values[kA] = 3;

    build(nullptr);
    QVERIFY(!m_panel->value(&property).isValid());
    build();
    QCOMPARE(m_panel->value(&property), QVariant(3));
    QCOMPARE(m_delegate.reads, QStringList(kA));
}

void tst_PanelValueFlow::setValuePassesItsArguments()
{
    m_set.add(kA, kTest);
    Property stranger(kB, kB, kTest); // the panel does not look whose property it is
    build();

    m_panel->setValue(&stranger, QStringLiteral("x"), IPropertyEditorDelegate::ContinuedChange);
    m_panel->setValue(&stranger, QVariant(), IPropertyEditorDelegate::NewChange);

    QCOMPARE(m_delegate.log(), QStringList({QStringLiteral("B=x/1"), QStringLiteral("B=/0")}));
    QVERIFY(!m_delegate.changes.last().value.isValid());
}

void tst_PanelValueFlow::editsWithoutDelegate()
{
    m_set.add(QStringLiteral("group"), kPropertyTypeBeginGroup);
    m_set.add(kA, kTest);
    build(nullptr);

    editor(kA)->start();
    editor(kA)->edit(1);
    editor(kA)->end();
    clickBox(box(QStringLiteral("group")));

    QVERIFY(row(kA)->isHidden()); // groups fold all the same
}

void tst_PanelValueFlow::hostPanelSeesEdits()
{
    m_set.add(kA, kTest);
    HostPanel panel(m_set.list(), &m_delegate, nullptr);
    TestEditor *const a = editorOf<TestEditor>(panel, kA);

    a->start();
    a->edit(1);
    panel.passOn = false;
    a->edit(2);
    panel.passOn = true;
    a->edit(3);

    QCOMPARE(panel.edits,
             QStringList({QStringLiteral("A/0"), QStringLiteral("A/1"), QStringLiteral("A/1")}));
    QCOMPARE(m_delegate.log(), QStringList({QStringLiteral("A=1/0"), QStringLiteral("A=3/1")}));
}

void tst_PanelValueFlow::hostPanelFoldsGroups()
{
    m_set.add(kA, kPropertyTypeBeginGroup);
    m_set.add(kB, kTest);
    m_set.add(QString(), kPropertyTypeEndGroup);
    HostPanel panel(m_set.list(), &m_delegate, nullptr);

    panel.findChild<QCheckBox *>()->click();
    panel.findChild<QCheckBox *>()->click();

    QCOMPARE(panel.edits, QStringList({QStringLiteral("A/0"), QStringLiteral("A closes"),
                                       QStringLiteral("A/0"), QStringLiteral("A opens")}));
    QVERIFY(!editorOf<TestEditor>(panel, kB)->widget(nullptr)->isHidden());
}

void tst_PanelValueFlow::hostPanelAnswersValues()
{
    m_set.add(kA, kTest);
    HostPanel panel(m_set.list(), &m_delegate, nullptr);

    panel.updateUI();

    QCOMPARE(editorOf<TestEditor>(panel, kA)->shown, QVariant(QStringLiteral("A of the host")));
    QVERIFY(m_delegate.reads.isEmpty());
}

void tst_PanelValueFlow::updatePropertyTellsItsEditors()
{
    Property &a = m_set.add(kA, kTest);
    m_set.add(QStringLiteral("null"), kNull);
    m_set.add(kB, kTest);
    QVector<Property *> twice = m_set.list();
    twice.append(&a);
    m_panel = std::make_unique<PropertyEditorPanel>(twice, &m_delegate, nullptr);

    m_panel->updateProperty(&a);

    const auto editors = allEditors(*m_panel);
    QCOMPARE(editors.size(), 4);
    QCOMPARE(dynamic_cast<TestEditor *>(editors.first())->propertyChangedCalls, 1);
    QCOMPARE(dynamic_cast<TestEditor *>(editors.last())->propertyChangedCalls, 1);
    QCOMPARE(editor(kB)->propertyChangedCalls, 0);
    QVERIFY(m_delegate.reads.isEmpty());
    QCOMPARE(editor(kA)->setValueCalls, 0);
}

void tst_PanelValueFlow::updatePropertyComparesPointers()
{
    Property &a = m_set.add(kA, kTest);
    Property twin = a;
    build();

    m_panel->updateProperty(&twin);
    m_panel->updateProperty(nullptr);

    QCOMPARE(editor(kA)->propertyChangedCalls, 0);
    editor(kA)->edit(1); // the flag is clear again
    QCOMPARE(m_delegate.flags(), QVector<int>({0}));
}

void tst_PanelValueFlow::clampingIsNotSent()
{
    addSliderSpin(kA);
    build();
    sliderSpin(kA)->setValue(500);
    QSignalSpy announced(sliderSpin(kA), &PropertyEditor::valueChanged);

    m_set.list().first()->setRange(0, 100);
    m_panel->updateProperty(m_set.list().first());

    QCOMPARE(sliderSpin(kA)->spinBox->value(), 100);
    QVERIFY(!announced.isEmpty());
    QVERIFY(m_delegate.changes.isEmpty());
    sliderSpin(kA)->slider->setValue(50);
    QCOMPARE(m_delegate.log(), QStringList(QStringLiteral("A=50/0")));
}

void tst_PanelValueFlow::updatePropertySilencesAllPanels()
{
    Property &a = m_set.add(kA, kTest);
    m_set.add(kB, kTest);
    build();
    RecordingDelegate otherDelegate;
    PropertyEditorPanel other(m_set.list(), &otherDelegate, nullptr);
    TestEditor *const otherB = editorOf<TestEditor>(other, kB);
    editor(kA)->onPropertyChanged = [this, otherB] {
        editor(kA)->edit(1);
        editor(kB)->edit(2);
        otherB->edit(3);
    };

    m_panel->updateProperty(&a);
    QVERIFY(m_delegate.changes.isEmpty());
    QVERIFY(otherDelegate.changes.isEmpty());

    otherB->edit(4);
    editor(kB)->edit(5);
    QCOMPARE(otherDelegate.log(), QStringList(QStringLiteral("B=4/0")));
    QCOMPARE(m_delegate.log(), QStringList(QStringLiteral("B=5/0")));
}

void tst_PanelValueFlow::updatePropertyDropsDirectCalls()
{
    Property &a = m_set.add(kA, kTest);
    build();
    editor(kA)->onPropertyChanged = [this, &a] {
        m_panel->setValue(&a, 1, IPropertyEditorDelegate::NewChange);
        m_panel->value(&a);
    };

    m_panel->updateProperty(&a);

    QVERIFY(m_delegate.changes.isEmpty());
    QCOMPARE(m_delegate.reads, QStringList(kA)); // reading is not silenced
}

void tst_PanelValueFlow::droppedChangeCountsAsSeen()
{
    Property &a = m_set.add(kA, kTest);
    build();
    editor(kA)->onPropertyChanged = [this] { editor(kA)->edit(1); };
    editor(kA)->start();

    m_panel->updateProperty(&a);
    editor(kA)->edit(2);

    QCOMPARE(m_delegate.log(), QStringList(QStringLiteral("A=2/1")));
}

void tst_PanelValueFlow::nestedUpdatePropertyClearsTheFlag()
{
    Property &a = m_set.add(kA, kTest);
    Property &b = m_set.add(kB, kTest);
    build();
    editor(kB)->onPropertyChanged = [this] { editor(kB)->edit(2); };
    editor(kA)->onPropertyChanged = [this, &b] {
        editor(kA)->edit(1);
        m_panel->updateProperty(&b);
        editor(kA)->edit(3);
    };

    m_panel->updateProperty(&a);

    QCOMPARE(m_delegate.log(), QStringList(QStringLiteral("A=3/0")));
}

void tst_PanelValueFlow::overrideSeesDroppedEdits()
{
    Property &a = m_set.add(kA, kTest);
    HostPanel panel(m_set.list(), &m_delegate, nullptr);
    TestEditor *const editorA = editorOf<TestEditor>(panel, kA);
    editorA->onPropertyChanged = [editorA] { editorA->edit(1); };

    panel.updateProperty(&a);

    QCOMPARE(panel.edits, QStringList(QStringLiteral("A/0")));
    QVERIFY(m_delegate.changes.isEmpty());
}

void tst_PanelValueFlow::groupFoldsWhileItsEditIsDropped()
{
    m_set.add(QStringLiteral("group"), kPropertyTypeBeginGroup);
    Property &a = m_set.add(kA, kTest);
    build();
    editor(kA)->onPropertyChanged = [this] { box(QStringLiteral("group"))->click(); };

    m_panel->updateProperty(&a);

    QVERIFY(row(kA)->isHidden());
    QVERIFY(m_delegate.changes.isEmpty());
}

void tst_PanelValueFlow::groupFoldsAndOpens()
{
    m_set.add(QStringLiteral("before"), kTest);
    m_set.add(QStringLiteral("group"), kPropertyTypeBeginGroup);
    m_set.add(kA, kTest);
    m_set.add(QStringLiteral("end"), kPropertyTypeEndGroup);
    m_set.add(QStringLiteral("after"), kTest);
    build();
    show();
    const int top = row(kA)->y();

    clickBox(box(QStringLiteral("group")));
    QVERIFY(row(kA)->isHidden());
    QVERIFY(row(QStringLiteral("before"))->isVisible());
    QVERIFY(row(QStringLiteral("after"))->isVisible());
    QVERIFY(box(QStringLiteral("group"))->isVisible());
    QVERIFY(
        editorOf<PropertyEditor>(*m_panel, QStringLiteral("end"))->widget(nullptr)->isVisible());
    QTRY_VERIFY(row(QStringLiteral("after"))->y() < top + row(kA)->height());

    clickBox(box(QStringLiteral("group")));
    QVERIFY(row(kA)->isVisible());
    QCOMPARE(m_delegate.log(),
             QStringList({QStringLiteral("group=false/0"), QStringLiteral("group=true/0")}));
}

void tst_PanelValueFlow::nestedGroups()
{
    m_set.add(QStringLiteral("outer"), kPropertyTypeBeginGroup);
    m_set.add(kA, kTest);
    m_set.add(QStringLiteral("inner"), kPropertyTypeBeginGroup);
    m_set.add(kB, kTest);
    m_set.add(QString(), kPropertyTypeEndGroup);
    m_set.add(QStringLiteral("C"), kTest);
    m_set.add(QString(), kPropertyTypeEndGroup);
    m_set.add(QStringLiteral("D"), kTest);
    build();
    show();

    clickBox(box(QStringLiteral("inner")));
    QVERIFY(row(kB)->isHidden());
    QVERIFY(row(kA)->isVisible() && row(QStringLiteral("C"))->isVisible());

    clickBox(box(QStringLiteral("outer")));
    QVERIFY(row(kA)->isHidden() && row(QStringLiteral("C"))->isHidden());
    QVERIFY(box(QStringLiteral("inner"))->isHidden());
    QVERIFY(row(QStringLiteral("D"))->isVisible());
    QCOMPARE(m_delegate.log(),
             QStringList({QStringLiteral("inner=false/0"), QStringLiteral("outer=false/0")}));
}

// Restoring what was folded inside is left to the host, on purpose.
void tst_PanelValueFlow::openingShowsNestedGroups()
{
    m_set.add(QStringLiteral("outer"), kPropertyTypeBeginGroup);
    m_set.add(QStringLiteral("inner"), kPropertyTypeBeginGroup);
    m_set.add(kB, kTest);
    m_set.add(QString(), kPropertyTypeEndGroup);
    m_set.add(QString(), kPropertyTypeEndGroup);
    build();
    show();
    clickBox(box(QStringLiteral("inner")));
    clickBox(box(QStringLiteral("outer")));

    clickBox(box(QStringLiteral("outer")));

    QVERIFY(row(kB)->isVisible());
    QVERIFY(!box(QStringLiteral("inner"))->isChecked());
}

void tst_PanelValueFlow::groupWithoutEndFoldsTheRest()
{
    m_set.add(kA, kTest);
    m_set.add(QStringLiteral("group"), kPropertyTypeBeginGroup);
    m_set.add(kB, kTest);
    build();
    show();

    clickBox(box(QStringLiteral("group")));

    QVERIFY(row(kA)->isVisible());
    QVERIFY(row(kB)->isHidden());
}

void tst_PanelValueFlow::groupOnAPageDoesNotFold()
{
    m_set.add(QStringLiteral("tabs"), kPropertyTypeBeginTabGroup);
    m_set.add(QStringLiteral("One"), kPropertyTypeTab);
    m_set.add(QStringLiteral("group"), kPropertyTypeBeginGroup);
    m_set.add(kA, kTest);
    m_set.add(QString(), kPropertyTypeEndGroup);
    m_set.add(QString(), kPropertyTypeEndTabGroup);
    build();
    show();

    clickBox(box(QStringLiteral("group")));

    // The panel asks its own layout, which does not know the box. The host is told.
    QVERIFY(!box(QStringLiteral("group"))->isChecked());
    QVERIFY(row(kA)->isVisible());
    QCOMPARE(m_delegate.log(), QStringList(QStringLiteral("group=false/0")));
}

void tst_PanelValueFlow::groupClickEndsARun()
{
    m_set.add(QStringLiteral("group"), kPropertyTypeBeginGroup);
    m_set.add(QString(), kPropertyTypeEndGroup);
    m_set.add(kA, kTest);
    build();
    show();
    editor(kA)->start();
    editor(kA)->edit(1);

    clickBox(box(QStringLiteral("group")));
    editor(kA)->edit(2);

    QCOMPARE(m_delegate.flags(), QVector<int>({0, 0, 0}));
}

// A host's own begin marker folds by what its editor's value says.
void tst_PanelValueFlow::valueOfAGroupDecides()
{
    const ScopedFactory replaced(kPropertyTypeBeginGroup, TestEditor::Factory);
    m_set.add(QStringLiteral("group"), kPropertyTypeBeginGroup);
    m_set.add(kA, kTest);
    build();

    editor(QStringLiteral("group"))->edit(0);
    QVERIFY(row(kA)->isHidden());
    editor(QStringLiteral("group"))->edit(QStringLiteral("true"));
    QVERIFY(!row(kA)->isHidden());
    editor(QStringLiteral("group"))->edit(QVariant());
    QVERIFY(row(kA)->isHidden());
}

QTEST_MAIN(tst_PanelValueFlow)
#include "tst_PanelValueFlow.moc"
