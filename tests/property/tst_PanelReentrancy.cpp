#include <property/PropertyUI.h>

#include "support/MenuProbe.h"
#include "support/PropertySet.h"
#include "support/RecordingDelegate.h"
#include "support/TestEditors.h"

#include <QCheckBox>
#include <QContextMenuEvent>
#include <QDialog>
#include <QLineEdit>
#include <QMouseEvent>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <QVBoxLayout>

#include <memory>
#include <vector>

using namespace Tessark::PropertyUI;
using namespace TestSupport;

namespace {

const QString kTest = QStringLiteral("test");
const QString kSliderSpin = QStringLiteral("test/slider_spin");

const QString kFirst = QStringLiteral("first");
const QString kFlag = QStringLiteral("flag");
const QString kTitle = QStringLiteral("title");
const QString kAction = QStringLiteral("action");
const QString kGroup = QStringLiteral("group");
const QString kTabs = QStringLiteral("tabs");
const QString kNumber = QStringLiteral("number");
const QString kPreset = QStringLiteral("preset");
const QString kLast = QStringLiteral("last");

/// Where the host's code runs.
enum class Callback { DelegateSetValue, DelegateValue, PropertyChanged, RunStarts, RunEnds };

/// A way from the user or the host into the panel and out to the host's code again.
struct Road
{
    const char *name;
    QString property; // whose editor the road leads through
    Callback callback;
    bool panelMayGo;  // Qt lets the controls on the road be deleted before it ends
    bool windowMayGo; // and their window
    std::function<void()> take;
};

enum class Victim { None, Editor, OtherEditor, Panel, Window, SecondPanel };

/// What the host does there.
struct Deed
{
    const char *name;
    Victim victim;
    bool atOnce; // deletes what may still be at work
    std::function<void()> act;
};

} // namespace

class tst_PanelReentrancy : public QObject
{
    Q_OBJECT

public:
    tst_PanelReentrancy();

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void hostActsInACallback_data();
    void hostActsInACallback();
    void dragGoesOn_data();
    void dragGoesOn();

private:
    void addRoads();
    void addDeeds();
    void addDeletions();
    void describe();
    void buildWindow();
    void buildSecondPanel();
    void await(Callback callback, const QString &property);
    void calledBack(Callback callback);
    bool isAlive(Victim victim) const;
    void checkPanels();

    PropertyEditor *editor(const QString &name) const
    {
        return editorOf<PropertyEditor>(*m_panel, name);
    }
    QWidget *widgetOf(const QString &name) const { return editor(name)->widget(nullptr); }
    SliderSpinEditor *number() const { return editorOf<SliderSpinEditor>(*m_panel, kNumber); }
    Property *property(const QString &name) const;
    void clickBox(const QString &name);
    void dragSlider(int moves);

    std::vector<Road> m_roads;
    std::vector<Deed> m_deeds;

    std::unique_ptr<PropertySet> m_set;
    RecordingDelegate m_delegate;
    RecordingDelegate m_secondDelegate;
    QPointer<QWidget> m_window;
    QPointer<QLineEdit> m_elsewhere; // in the window, not in a panel
    QPointer<PropertyEditorPanel> m_panel;
    QPointer<PropertyEditorPanel> m_secondPanel; // of the same properties, in a window of its own

    QPointer<PropertyEditor> m_editor; // on the road
    Callback m_awaited = Callback::DelegateSetValue;
    std::function<void()> m_act; // once
    int m_callbacks = 0;
};

tst_PanelReentrancy::tst_PanelReentrancy()
{
    addRoads();
    addDeeds();
    addDeletions();
}

void tst_PanelReentrancy::initTestCase()
{
    auto *const registry = PropertyEditorRegistry::Instance();
    registry->registerPropertyEditor(kTest, TestEditor::Factory);
    registry->registerPropertyEditor(kSliderSpin, SliderSpinEditor::Factory);
}

void tst_PanelReentrancy::init()
{
    m_delegate = RecordingDelegate();
    m_secondDelegate = RecordingDelegate();
    describe();
    buildWindow();
    buildSecondPanel();
    m_delegate.onSetValue = [this] { calledBack(Callback::DelegateSetValue); };
    m_delegate.onValue = [this] { calledBack(Callback::DelegateValue); };
    m_delegate.changes.clear();
}

void tst_PanelReentrancy::cleanup()
{
    m_act = nullptr;
    delete m_window;
    delete m_panel; // where it was moved out of the window
    delete m_secondPanel;
}

// A check box, a tab bar and a slider go on after their signals; they may be deleted later only.
// Setting the focus ends at the widget that gets it.
void tst_PanelReentrancy::addRoads()
{
    const auto edit = Callback::DelegateSetValue;
    m_roads = {
        {"check box", kFlag, edit, false, false, [this] { clickBox(kFlag); }},
        {"line edit", kTitle, edit, true, true,
         [this] {
             widgetOf(kTitle)->setFocus();
             QTest::keyClicks(widgetOf(kTitle), QStringLiteral("abc"));
             QTest::keyClick(widgetOf(kTitle), Qt::Key_Return);
         }},
        {"action", kAction, edit, true, true,
         [this] { QTest::mouseClick(widgetOf(kAction), Qt::LeftButton); }},
        {"group", kGroup, edit, false, false, [this] { clickBox(kGroup); }},
        {"tab", kTabs, edit, false, false,
         [this] {
             auto *const bar = widgetOf(kTabs)->findChild<QTabBar *>();
             QTest::mouseClick(bar, Qt::LeftButton, Qt::NoModifier, bar->tabRect(1).center());
         }},
        {"slider", kNumber, edit, false, false, [this] { dragSlider(2); }},
        {"Set to Default", kPreset, edit, true, true,
         [this] {
             MenuProbe probe([](QMenu *menu) {
                 QTest::keyClick(menu, Qt::Key_Down);
                 QTest::keyClick(menu, Qt::Key_Return);
             });
             const QPoint place = widgetOf(kPreset)->geometry().center();
             QContextMenuEvent event(QContextMenuEvent::Mouse, place, m_panel->mapToGlobal(place));
             QApplication::sendEvent(m_panel, &event);
         }},
        {"updateUI", kFirst, Callback::DelegateValue, true, true, [this] { m_panel->updateUI(); }},
        {"updateProperty", kFirst, Callback::PropertyChanged, true, true,
         [this] { m_panel->updateProperty(property(kFirst)); }},
        {"focus in", kNumber, Callback::RunStarts, false, false,
         [this] { number()->spinBox->setFocus(); }},
        {"focus out", kNumber, Callback::RunEnds, true, false,
         [this] {
             number()->spinBox->setFocus();
             m_elsewhere->setFocus();
         }},
        {"Return in a spin box", kNumber, Callback::RunEnds, true, true,
         [this] {
             number()->spinBox->setFocus();
             QTest::keyClick(number()->spinBox, Qt::Key_Return);
         }},
    };
}

void tst_PanelReentrancy::addDeeds()
{
    const auto harmless = [this](const char *name, std::function<void()> act) {
        m_deeds.push_back({name, Victim::None, false, std::move(act)});
    };
    harmless("does nothing", [] {});
    harmless("refreshes", [this] { m_panel->updateUI(); });
    harmless("refreshes both", [this] {
        m_panel->updateUI();
        m_secondPanel->updateUI();
    });
    harmless("describes all anew", [this] {
        for (Property *each : m_set->list()) {
            each->setHint(kPropertyHintEnabled, false).setRange(0, 5);
            m_panel->updateProperty(each);
            m_secondPanel->updateProperty(each);
        }
    });
    harmless("takes the defaults away", [this] {
        for (Property *each : m_set->list())
            each->setDefaultValue(QVariant());
    });
    harmless("edits elsewhere", [this] { editorOf<TestEditor>(*m_panel, kLast)->edit(3); });
    harmless("starts another run", [this] { editorOf<TestEditor>(*m_panel, kLast)->start(); });
    harmless("hides the panel", [this] { m_panel->hide(); });
    harmless("hides the window", [this] { m_window->hide(); });
    harmless("closes the window", [this] { m_window->close(); });
    harmless("disables the panel", [this] { m_panel->setEnabled(false); });
    harmless("folds a group", [this] { static_cast<QCheckBox *>(widgetOf(kGroup))->toggle(); });
    harmless("moves the focus", [this] { m_elsewhere->setFocus(); });
    harmless("moves the panel out", [this] { m_panel->setParent(nullptr); });
    harmless("shows a dialog", [] {
        QDialog dialog;
        QTimer::singleShot(0, &dialog, &QDialog::reject);
        dialog.exec();
    });
    harmless("builds a panel", [this] {
        PropertyEditorPanel third(m_set->list(), &m_secondDelegate, nullptr);
        third.updateUI();
    });
    harmless("rebuilds the second panel", [this] {
        delete m_secondPanel;
        buildSecondPanel();
    });
}

void tst_PanelReentrancy::addDeletions()
{
    m_deeds.push_back({"deletes the editor", Victim::Editor, false, [this] { delete m_editor; }});
    m_deeds.push_back(
        {"deletes another editor", Victim::OtherEditor, false, [this] { delete editor(kLast); }});
    m_deeds.push_back({"deletes all editors", Victim::Editor, false, [this] {
                           for (PropertyEditor *each : allEditors(*m_panel))
                               delete each;
                       }});
    m_deeds.push_back(
        {"deletes the second panel", Victim::SecondPanel, false, [this] { delete m_secondPanel; }});
    m_deeds.push_back(
        {"deletes the panel later", Victim::Panel, false, [this] { m_panel->deleteLater(); }});
    m_deeds.push_back(
        {"deletes the window later", Victim::Window, false, [this] { m_window->deleteLater(); }});
    m_deeds.push_back({"deletes the panel", Victim::Panel, true, [this] { delete m_panel; }});
    m_deeds.push_back({"deletes the window", Victim::Window, true, [this] { delete m_window; }});
}

void tst_PanelReentrancy::describe()
{
    m_set = std::make_unique<PropertySet>();
    m_set->add(kFirst, kTest);
    m_set->add(kFlag, kPropertyTypeBoolean);
    m_set->add(kTitle, kPropertyTypeString);
    m_set->add(kAction, kPropertyTypeAction);
    m_set->add(kGroup, kPropertyTypeBeginGroup);
    m_set->add(QStringLiteral("inside"), kTest);
    m_set->add(QString(), kPropertyTypeEndGroup);
    m_set->add(kNumber, kSliderSpin).setRange(0, 1000);
    m_set->add(kPreset, kTest).setDefaultValue(7);
    m_set->add(kTabs, kPropertyTypeBeginTabGroup);
    m_set->add(QStringLiteral("One"), kPropertyTypeTab);
    m_set->add(QStringLiteral("Two"), kPropertyTypeTab);
    m_set->add(QString(), kPropertyTypeEndTabGroup);
    m_set->add(kLast, kTest);
}

void tst_PanelReentrancy::buildWindow()
{
    m_window = new QWidget;
    m_elsewhere = new QLineEdit;
    m_panel = new PropertyEditorPanel(m_set->list(), &m_delegate, nullptr);
    auto *const column = new QVBoxLayout(m_window);
    column->addWidget(m_elsewhere);
    column->addWidget(m_panel);
    m_window->resize(400, 500);
    m_window->show();
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window));
    m_elsewhere->setFocus();
    QTRY_VERIFY(m_elsewhere->hasFocus());
}

void tst_PanelReentrancy::buildSecondPanel()
{
    m_secondPanel = new PropertyEditorPanel(m_set->list(), &m_secondDelegate, nullptr);
}

/// Lets the host act the next time that its code of this kind runs for the property.
void tst_PanelReentrancy::await(Callback callback, const QString &name)
{
    m_editor = editor(name);
    m_awaited = callback;
    m_callbacks = 0;
    if (auto *const test = dynamic_cast<TestEditor *>(m_editor.data()))
        test->onPropertyChanged = [this] { calledBack(Callback::PropertyChanged); };
    connect(m_editor, &PropertyEditor::startInteractiveChange, this,
            [this] { calledBack(Callback::RunStarts); });
    connect(m_editor, &PropertyEditor::endInteractiveChange, this,
            [this] { calledBack(Callback::RunEnds); });
}

void tst_PanelReentrancy::calledBack(Callback callback)
{
    if (callback != m_awaited || !m_act)
        return;
    ++m_callbacks;
    const auto act = std::exchange(m_act, nullptr);
    act();
}

bool tst_PanelReentrancy::isAlive(Victim victim) const
{
    switch (victim) {
    case Victim::Editor:
        return m_editor;
    case Victim::OtherEditor:
        return editor(kLast);
    case Victim::Panel:
        return m_panel;
    case Victim::Window:
        return m_window;
    case Victim::SecondPanel:
        return m_secondPanel;
    case Victim::None:
        break;
    }
    return true;
}

/// Whatever is left must still refresh and pass an edit on, alone and once.
void tst_PanelReentrancy::checkPanels()
{
    const std::pair<PropertyEditorPanel *, RecordingDelegate *> panels[] = {
        {m_panel, &m_delegate}, {m_secondPanel, &m_secondDelegate}};
    for (const auto &[panel, delegate] : panels) {
        if (!panel)
            continue;
        QCOMPARE(allEditors(*panel).size(), m_set->list().size());
        auto *const last = editorOf<TestEditor>(*panel, kLast);
        delegate->values[kLast] = 41;
        delegate->changes.clear();
        panel->updateUI();
        if (!last)
            continue;
        QCOMPARE(last->shown, QVariant(41));
        last->edit(42);
        QCOMPARE(delegate->log(), QStringList(QStringLiteral("last=42/0")));
    }
}

Property *tst_PanelReentrancy::property(const QString &name) const
{
    for (Property *each : m_set->list()) {
        if (each->name == name)
            return each;
    }
    return nullptr;
}

void tst_PanelReentrancy::clickBox(const QString &name)
{
    QWidget *const box = widgetOf(name);
    QTest::mouseClick(box, Qt::LeftButton, Qt::NoModifier, QPoint(8, box->height() / 2));
}

void tst_PanelReentrancy::dragSlider(int moves)
{
    QSlider *const slider = number()->slider;
    const QPoint grip(3, slider->height() / 2); // the handle is at the left end
    QTest::mousePress(slider, Qt::LeftButton, Qt::NoModifier, grip);
    for (int i = 1; i <= moves; ++i) {
        const QPoint place = grip + QPoint(15 * i, 0);
        QMouseEvent move(QEvent::MouseMove, place, slider->mapToGlobal(place), Qt::NoButton,
                         Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(slider, &move);
    }
    QTest::mouseRelease(slider, Qt::LeftButton, Qt::NoModifier, grip + QPoint(15 * moves, 0));
}

void tst_PanelReentrancy::hostActsInACallback_data()
{
    QTest::addColumn<int>("road");
    QTest::addColumn<int>("deed");

    for (std::size_t road = 0; road < m_roads.size(); ++road) {
        for (std::size_t deed = 0; deed < m_deeds.size(); ++deed) {
            const bool mayGo = m_deeds[deed].victim == Victim::Window ? m_roads[road].windowMayGo
                                                                      : m_roads[road].panelMayGo;
            if (m_deeds[deed].atOnce && !mayGo)
                continue;
            const QString name = QLatin1String(m_roads[road].name) + QLatin1String(": host ")
                                 + QLatin1String(m_deeds[deed].name);
            QTest::newRow(qPrintable(name)) << static_cast<int>(road) << static_cast<int>(deed);
        }
    }
}

void tst_PanelReentrancy::hostActsInACallback()
{
    QFETCH(int, road);
    QFETCH(int, deed);
    const Road &way = m_roads[static_cast<std::size_t>(road)];
    const Deed &what = m_deeds[static_cast<std::size_t>(deed)];
    await(way.callback, way.property);
    m_act = what.act;

    way.take();
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);

    QCOMPARE(m_callbacks, 1);
    if (way.callback == Callback::DelegateSetValue) {
        QCOMPARE(m_delegate.changes.first().name, way.property);
        QCOMPARE(m_delegate.changes.first().flags, 0);
    }
    QCOMPARE(isAlive(what.victim), what.victim == Victim::None);
    QCOMPARE(!m_panel, what.victim == Victim::Panel || what.victim == Victim::Window);
    checkPanels();
}

void tst_PanelReentrancy::dragGoesOn_data()
{
    QTest::addColumn<int>("deed");

    const QStringList names{
        QStringLiteral("does nothing"),   QStringLiteral("refreshes"),
        QStringLiteral("refreshes both"), QStringLiteral("takes the defaults away"),
        QStringLiteral("builds a panel"), QStringLiteral("rebuilds the second panel")};
    for (std::size_t deed = 0; deed < m_deeds.size(); ++deed) {
        if (names.contains(QLatin1String(m_deeds[deed].name)))
            QTest::newRow(m_deeds[deed].name) << static_cast<int>(deed);
    }
}

// What does not concern the slider leaves its run alone.
void tst_PanelReentrancy::dragGoesOn()
{
    QFETCH(int, deed);
    m_delegate.onSetValue = m_deeds[static_cast<std::size_t>(deed)].act; // at every change

    dragSlider(3);

    QCOMPARE(m_delegate.flags(), QVector<int>({0, 1, 1}));
    QCOMPARE(m_delegate.changes.last().value, QVariant(number()->slider->value()));
    m_delegate.onSetValue = nullptr;
    QTest::keyClick(number()->slider, Qt::Key_Right);
    QCOMPARE(m_delegate.flags(), QVector<int>({0, 1, 1, 0}));
}

QTEST_MAIN(tst_PanelReentrancy)
#include "tst_PanelReentrancy.moc"
