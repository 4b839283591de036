#include <property/PropertyUI.h>

#include "support/MenuProbe.h"
#include "support/PropertySet.h"
#include "support/RecordingDelegate.h"
#include "support/TestEditors.h"

#include <QCheckBox>
#include <QContextMenuEvent>
#include <QCursor>
#include <QLabel>
#include <QTabWidget>
#include <QTest>
#include <QWindow>

#include <memory>

using namespace Tessark::PropertyUI;
using namespace TestSupport;

namespace {

const QString kTest = QStringLiteral("test");
const QString kNull = QStringLiteral("test/null");
const QString kWidgetless = QStringLiteral("test/widgetless");

const QString kA = QStringLiteral("A");
const QString kB = QStringLiteral("B");

const QStringList kEntries{QStringLiteral("Set to Default")};

void clickEntry(QMenu *menu)
{
    const QPoint middle = menu->actionGeometry(menu->actions().first()).center();
    QTest::mouseMove(menu, middle);
    QTest::mouseClick(menu, Qt::LeftButton, Qt::NoModifier, middle);
}

void chooseByKeys(QMenu *menu)
{
    QTest::keyClick(menu, Qt::Key_Down);
    QTest::keyClick(menu, Qt::Key_Return);
}

} // namespace

Q_DECLARE_METATYPE(std::function<void()>)
Q_DECLARE_METATYPE(std::function<void(QMenu *)>)

class tst_PanelContextMenu : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void menuHasOneEntry();
    void choiceSendsTheDefault_data();
    void choiceSendsTheDefault();
    void escapeChangesNothing();
    void choiceEndsARunElsewhere();
    void rightButtonOverARow();
    void keyboardEvent();
    void menuOpensAtTheCursor();

    void menuNeedsADefault_data();
    void menuNeedsADefault();
    void firstHitDecides_data();
    void firstHitDecides();
    void borderBelongsToTheRow_data();
    void borderBelongsToTheRow();
    void nothingUnderThePoint();
    void editorsWithoutWidgetArePassedOver();
    void hiddenRowIsNoHit();
    void rowInsideAHiddenWidgetIsNoHit();
    void tabWidgetHidesItsRows();
    void pageIsComparedUnmapped();
    void walkBuildsNoWidget();

    void somethingIsDeletedWhileOpen_data();
    void somethingIsDeletedWhileOpen();

private:
    void build(); // from m_set, and shows it
    void sendEvent(const QPoint &position,
                   QContextMenuEvent::Reason reason = QContextMenuEvent::Mouse);
    QWidget *row(const QString &name) const { return m_panel->findChild<QWidget *>(name); }
    QWidget *widgetOf(const QString &name) const
    {
        return editorOf<PropertyEditor>(*m_panel, name)->widget(nullptr);
    }
    QPoint middleOf(const QString &name) const { return row(name)->geometry().center(); }

    std::unique_ptr<PropertySet> m_set;
    RecordingDelegate m_delegate;
    std::unique_ptr<QWidget> m_window;
    QPointer<PropertyEditorPanel> m_panel; // fills the window
};

void tst_PanelContextMenu::initTestCase()
{
    auto *const registry = PropertyEditorRegistry::Instance();
    registry->registerPropertyEditor(kTest, TestEditor::Factory);
    registry->registerPropertyEditor(kNull, noEditor);
    registry->registerPropertyEditor(kWidgetless, WidgetlessEditor::Factory);
}

void tst_PanelContextMenu::init()
{
    m_set = std::make_unique<PropertySet>();
    m_delegate = RecordingDelegate();
}

void tst_PanelContextMenu::cleanup()
{
    m_window.reset();
}

void tst_PanelContextMenu::build()
{
    m_window = std::make_unique<QWidget>();
    m_window->setGeometry(150, 150, 300, 250);
    m_panel = new PropertyEditorPanel(m_set->list(), &m_delegate, nullptr);
    m_panel->setParent(m_window.get());
    m_panel->setGeometry(m_window->rect());
    m_window->show();
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    m_delegate.changes.clear();
}

void tst_PanelContextMenu::sendEvent(const QPoint &position, QContextMenuEvent::Reason reason)
{
    QContextMenuEvent event(reason, position, m_panel->mapToGlobal(position));
    QApplication::sendEvent(m_panel, &event);
}

void tst_PanelContextMenu::menuHasOneEntry()
{
    m_set->add(kA, kTest).setDefaultValue(7);
    build();

    MenuProbe probe;
    sendEvent(middleOf(kA));

    QCOMPARE(probe.menus, 1);
    QCOMPARE(probe.texts, kEntries);
    QVERIFY(!probe.hadParent);
    QVERIFY(!probe.hadShortcut);
    QVERIFY(m_delegate.changes.isEmpty()); // it was closed without a choice
}

void tst_PanelContextMenu::choiceSendsTheDefault_data()
{
    using Use = std::function<void(QMenu *)>;
    QTest::addColumn<Use>("use");

    QTest::newRow("mouse") << Use(clickEntry);
    QTest::newRow("keyboard") << Use(chooseByKeys);
}

void tst_PanelContextMenu::choiceSendsTheDefault()
{
    QFETCH(std::function<void(QMenu *)>, use);
    m_set->add(kA, kTest).setDefaultValue(7);
    m_set->add(kB, kPropertyTypeBoolean).setDefaultValue(true);
    build();

    MenuProbe probe(use);
    sendEvent(middleOf(kA));
    sendEvent(widgetOf(kB)->geometry().center());

    QCOMPARE(probe.menus, 2);
    QCOMPARE(m_delegate.log(), QStringList({QStringLiteral("A=7/0"), QStringLiteral("B=true/0")}));
    QCOMPARE(editorOf<TestEditor>(*m_panel, kA)->shown, QVariant(7));
    QVERIFY(qobject_cast<QCheckBox *>(widgetOf(kB))->isChecked());
}

void tst_PanelContextMenu::escapeChangesNothing()
{
    m_set->add(kA, kTest).setDefaultValue(7);
    build();

    MenuProbe probe([](QMenu *menu) { QTest::keyClick(menu, Qt::Key_Escape); });
    sendEvent(middleOf(kA));

    QCOMPARE(probe.menus, 1);
    QVERIFY(m_delegate.changes.isEmpty());
}

void tst_PanelContextMenu::choiceEndsARunElsewhere()
{
    m_set->add(kA, kTest).setDefaultValue(7);
    m_set->add(kB, kTest);
    build();
    TestEditor *const b = editorOf<TestEditor>(*m_panel, kB);
    b->start();
    b->edit(1);

    MenuProbe probe(clickEntry);
    sendEvent(middleOf(kA));
    b->edit(2);

    QCOMPARE(m_delegate.log(), QStringList({QStringLiteral("B=1/0"), QStringLiteral("A=7/0"),
                                            QStringLiteral("B=2/0")}));
}

// The event starts at the row's own widget, which leaves it to the panel.
void tst_PanelContextMenu::rightButtonOverARow()
{
    m_set->add(kA, kTest).setDefaultValue(7);
    m_set->add(kB, kTest).setDefaultValue(8);
    build();

    MenuProbe probe(clickEntry);
    const QPoint place = row(kB)->mapTo(m_window.get(), row(kB)->rect().center());
    QTest::mousePress(m_window->windowHandle(), Qt::RightButton, Qt::NoModifier, place);
    QTest::mouseRelease(m_window->windowHandle(), Qt::RightButton, Qt::NoModifier, place);

    QCOMPARE(probe.menus, 1);
    QCOMPARE(m_delegate.log(), QStringList(QStringLiteral("B=8/0")));
}

void tst_PanelContextMenu::keyboardEvent()
{
    m_set->add(kA, kTest).setDefaultValue(7);
    build();

    MenuProbe probe;
    sendEvent(middleOf(kA), QContextMenuEvent::Keyboard);

    QCOMPARE(probe.texts, kEntries);
}

void tst_PanelContextMenu::menuOpensAtTheCursor()
{
    m_set->add(kA, kTest).setDefaultValue(7);
    build();
    const QPoint place = m_panel->mapToGlobal(QPoint(20, 150)); // not where the event is
    QCursor::setPos(place);
    QTRY_COMPARE(QCursor::pos(), place);

    MenuProbe probe;
    sendEvent(middleOf(kA));

    QCOMPARE(probe.menus, 1);
    QCOMPARE(probe.position, place);
}

void tst_PanelContextMenu::menuNeedsADefault_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<int>("menus");

    QTest::newRow("none") << QVariant() << 0;
    QTest::newRow("false") << QVariant(false) << 1;
    QTest::newRow("zero") << QVariant(0) << 1;
    QTest::newRow("empty text") << QVariant(QStringLiteral("")) << 1;
}

void tst_PanelContextMenu::menuNeedsADefault()
{
    QFETCH(QVariant, value);
    QFETCH(int, menus);
    m_set->add(kA, kTest).setDefaultValue(value);
    build();

    MenuProbe probe(clickEntry);
    sendEvent(middleOf(kA));

    QCOMPARE(probe.menus, menus);
    QCOMPARE(m_delegate.changes.size(), menus);
}

void tst_PanelContextMenu::firstHitDecides_data()
{
    QTest::addColumn<QVariant>("first");
    QTest::addColumn<QStringList>("log");

    QTest::newRow("with default") << QVariant(1) << QStringList(QStringLiteral("A=1/0"));
    QTest::newRow("without") << QVariant() << QStringList();
}

void tst_PanelContextMenu::firstHitDecides()
{
    QFETCH(QVariant, first);
    QFETCH(QStringList, log);
    m_set->add(kA, kTest).setDefaultValue(first);
    m_set->add(kB, kTest).setDefaultValue(2);
    build();
    row(kB)->setGeometry(row(kA)->geometry());

    MenuProbe probe(clickEntry);
    sendEvent(middleOf(kA));

    QCOMPARE(probe.menus, log.size());
    QCOMPARE(m_delegate.log(), log);
}

void tst_PanelContextMenu::borderBelongsToTheRow_data()
{
    QTest::addColumn<QPoint>("place"); // in a widget at (50, 60) of size 100 x 20
    QTest::addColumn<bool>("hit");

    QTest::newRow("top left") << QPoint(50, 60) << true;
    QTest::newRow("top right") << QPoint(149, 60) << true;
    QTest::newRow("bottom left") << QPoint(50, 79) << true;
    QTest::newRow("bottom right") << QPoint(149, 79) << true;
    QTest::newRow("beyond the left") << QPoint(49, 70) << false;
    QTest::newRow("beyond the right") << QPoint(150, 70) << false;
    QTest::newRow("above") << QPoint(100, 59) << false;
    QTest::newRow("below") << QPoint(100, 80) << false;
}

void tst_PanelContextMenu::borderBelongsToTheRow()
{
    QFETCH(QPoint, place);
    QFETCH(bool, hit);
    m_set->add(kA, kTest).setDefaultValue(7);
    build();
    row(kA)->setGeometry(50, 60, 100, 20);

    MenuProbe probe;
    sendEvent(place);

    QCOMPARE(probe.menus == 1, hit);
}

void tst_PanelContextMenu::nothingUnderThePoint()
{
    m_set->add(kA, kTest).setDefaultValue(7);
    build();
    const QRect label = m_panel->findChild<QLabel *>()->geometry();

    MenuProbe probe;
    sendEvent(label.center());
    sendEvent(QPoint(1, 1));
    sendEvent(QPoint(-5, -5));
    sendEvent(QPoint(150, 240));

    QCOMPARE(probe.menus, 0);
}

void tst_PanelContextMenu::editorsWithoutWidgetArePassedOver()
{
    m_set->add(QStringLiteral("null"), kNull);
    m_set->add(QStringLiteral("none"), kWidgetless).setDefaultValue(1);
    m_set->add(QStringLiteral("stray"), kPropertyTypeEndTabGroup).setDefaultValue(2);
    m_set->add(kA, kTest).setDefaultValue(7);
    QTest::ignoreMessage(QtWarningMsg, "Bad tab property nesting: End group with no Begin.");
    build();

    MenuProbe probe(clickEntry);
    sendEvent(middleOf(kA));
    sendEvent(QPoint(1, 1));

    QCOMPARE(probe.menus, 1);
    QCOMPARE(m_delegate.log(), QStringList(QStringLiteral("A=7/0")));
}

// A folded row keeps its place on paper; the row that moves there must answer.
void tst_PanelContextMenu::hiddenRowIsNoHit()
{
    m_set->add(QStringLiteral("group"), kPropertyTypeBeginGroup);
    m_set->add(kA, kTest).setDefaultValue(7);
    m_set->add(QString(), kPropertyTypeEndGroup);
    m_set->add(kB, kTest).setDefaultValue(8);
    build();
    const QPoint place = middleOf(kA);
    qobject_cast<QCheckBox *>(widgetOf(QStringLiteral("group")))->click();
    QVERIFY(row(kA)->geometry().contains(place));
    QTRY_VERIFY(row(kB)->geometry().contains(place));
    m_delegate.changes.clear();

    MenuProbe probe(clickEntry);
    sendEvent(place);

    QCOMPARE(probe.menus, 1);
    QCOMPARE(m_delegate.log(), QStringList(QStringLiteral("B=8/0")));
}

void tst_PanelContextMenu::rowInsideAHiddenWidgetIsNoHit()
{
    m_set->add(kA, kTest).setDefaultValue(7);
    build();
    QWidget *const frame = row(kA);
    const QRect place = frame->geometry();
    QWidget drawer(m_panel);
    drawer.setGeometry(m_panel->rect());
    frame->setParent(&drawer);
    frame->setGeometry(place);
    frame->show(); // as soon as the drawer is
    QVERIFY(!frame->isHidden());

    MenuProbe probe;
    sendEvent(place.center());
    QCOMPARE(probe.menus, 0);
    drawer.show();
    sendEvent(place.center());

    QCOMPARE(probe.menus, 1);
}

// The tab widget comes before its rows and covers them.
void tst_PanelContextMenu::tabWidgetHidesItsRows()
{
    Property &tabs = m_set->add(QStringLiteral("tabs"), kPropertyTypeBeginTabGroup);
    m_set->add(QStringLiteral("One"), kPropertyTypeTab);
    m_set->add(kA, kTest).setDefaultValue(7);
    m_set->add(QStringLiteral("Two"), kPropertyTypeTab);
    m_set->add(QString(), kPropertyTypeEndTabGroup);
    build();
    m_panel->findChild<QTabWidget *>()->setCurrentIndex(1);
    m_panel->findChild<QTabWidget *>()->setCurrentIndex(0);
    m_delegate.changes.clear();
    const QPoint place = row(kA)->mapTo(m_panel.data(), row(kA)->rect().center());

    MenuProbe probe(clickEntry);
    sendEvent(place);
    QCOMPARE(probe.menus, 0);

    tabs.setDefaultValue(1);
    sendEvent(place);
    QCOMPARE(probe.menus, 1);
    // The page stays the user's; the host is told the one that is shown.
    QCOMPARE(m_delegate.log(), QStringList(QStringLiteral("tabs=0/0")));
}

// A page's geometry counts from its tab widget, not from the panel: it answers in the panel's
// corner, over the label of the first row. That is accepted.
void tst_PanelContextMenu::pageIsComparedUnmapped()
{
    m_set->add(kA, QStringLiteral("A long label"), kTest).setDefaultValue(7);
    m_set->add(QStringLiteral("tabs"), kPropertyTypeBeginTabGroup);
    Property &page = m_set->add(QStringLiteral("One"), kPropertyTypeTab);
    m_set->add(kB, kTest).setHint(kPropertyHintFullWidth, true).setDefaultValue(8);
    m_set->add(QString(), kPropertyTypeEndTabGroup);
    build();
    const QPoint label = m_panel->findChild<QLabel *>()->geometry().center();
    QVERIFY(widgetOf(QStringLiteral("One"))->geometry().contains(label));

    MenuProbe probe(clickEntry);
    sendEvent(label);
    QCOMPARE(probe.menus, 0);
    page.setDefaultValue(3);
    sendEvent(label);

    QCOMPARE(probe.menus, 1);
    QCOMPARE(m_delegate.log(), QStringList(QStringLiteral("One=true/0")));
}

void tst_PanelContextMenu::walkBuildsNoWidget()
{
    m_set->add(kA, kTest).setDefaultValue(7);
    m_set->add(kB, kTest).setDefaultValue(8);
    build();
    QWidget *const before = row(kA);

    MenuProbe probe;
    sendEvent(middleOf(kA));

    QCOMPARE(m_panel->findChildren<QWidget *>(kA), QList<QWidget *>({before}));
    QCOMPARE(editorOf<TestEditor>(*m_panel, kA)->contexts.size(), 2); // built once, asked once
    QCOMPARE(editorOf<TestEditor>(*m_panel, kB)->contexts.size(), 1); // the walk stops at a hit
}

void tst_PanelContextMenu::somethingIsDeletedWhileOpen_data()
{
    using Use = std::function<void()>;
    QTest::addColumn<Use>("use");
    QTest::addColumn<bool>("choose"); // the entry, afterwards

    for (const bool choose : {true, false}) {
        const char *const then = choose ? ", chosen" : ", closed";
        const auto addRow = [choose, then](const char *name, const Use &use) {
            QTest::newRow(qPrintable(QLatin1String(name) + QLatin1String(then))) << use << choose;
        };
        addRow("panel", [this] { delete m_panel; });
        addRow("panel later", [this] { m_panel->deleteLater(); });
        addRow("panel and properties", [this] {
            delete m_panel;
            m_set.reset();
        });
        addRow("editor", [this] { delete editorOf<TestEditor>(*m_panel, kA); });
        addRow("window", [this] { m_window.reset(); });
        addRow("another editor", [this] { delete editorOf<TestEditor>(*m_panel, kB); });
    }
}

void tst_PanelContextMenu::somethingIsDeletedWhileOpen()
{
    QFETCH(std::function<void()>, use);
    QFETCH(bool, choose);
    m_set->add(kA, kTest).setDefaultValue(7);
    m_set->add(kB, kTest);
    build();
    const QPointer<PropertyEditor> editor(editorOf<TestEditor>(*m_panel, kA));
    QPointer<PropertyEditor> stillThere;

    MenuProbe probe([&](QMenu *menu) {
        use();
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        stillThere = editor;
        if (choose)
            chooseByKeys(menu);
    });
    sendEvent(middleOf(kA));

    QCOMPARE(probe.menus, 1);
    QCOMPARE(m_delegate.changes.size(), stillThere && choose ? 1 : 0);
}

QTEST_MAIN(tst_PanelContextMenu)
#include "tst_PanelContextMenu.moc"
