#include <host/HostHints.h>
#include <host/PropertyList.h>
#include <host/PropertyPanelView.h>
#include <host/PropertyStore.h>
#include <host/RuleEngine.h>

#include <property/PropertyLayout.h>
#include <property/PropertyUI.h>

#include <support/Events.h>
#include <support/HintCountingEditor.h>
#include <support/RecordingDelegate.h>
#include <support/Wheel.h>

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QSettings>
#include <QSignalSpy>
#include <QSlider>
#include <QSpinBox>
#include <QTabBar>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>

#include <functional>
#include <memory>

using namespace Tessark::PropertyHost;
using namespace Tessark::PropertyUI;
using Tessark::Testing::HintCountingEditor;
using TestSupport::EventWatch;
using TestSupport::settleEvents;

namespace {

const QSize kViewSize(400, 200);
const QString kCounted = QStringLiteral("counted");

QString name(const char *text)
{
    return QString::fromUtf8(text);
}

QString numbered(const char *text, int number)
{
    return name(text) + QString::number(number);
}

/// Counts the events of a type that reach anything in the program.
class EventCount final : public QObject
{
public:
    explicit EventCount(QEvent::Type type)
        : m_type(type)
    {
        qApp->installEventFilter(this);
    }

    int count = 0;

    bool eventFilter(QObject *, QEvent *event) override
    {
        count += event->type() == m_type ? 1 : 0;
        return false;
    }

private:
    QEvent::Type m_type;
};

/// As the window system does it, whatever window the pointer is over.
void movePointer(QWidget *widget, const QPoint &position, Qt::MouseButtons held = Qt::NoButton)
{
    QMouseEvent event(QEvent::MouseMove, position, widget->mapToGlobal(position), Qt::NoButton,
                      held, Qt::NoModifier);
    QSpontaneKeyEvent::setSpontaneous(&event);
    qApp->notify(widget, &event);
}

void movePointer(QWidget *widget)
{
    movePointer(widget, widget->rect().center());
}

} // namespace

class tst_PropertyPanelView : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void isEmptyAtFirst();
    void showsValues();
    void passesEditsOn();
    void clearedViewIsEmpty();
    void plainPropertiesHaveNoRules();
    void hostAttachesRules();
    void rangesOfTheListComeBackWithNewProperties_data();
    void rangesOfTheListComeBackWithNewProperties();

    void heightFollowsGroups();
    void heightFollowsRules();
    void heightFollowsGroupsOnTabPages();
    void noScrollBarsWhereAllFits();
    void horizontalScrollBarOnlyWhenTooNarrow();

    void innerGroupKeepsItsState();
    void innerRowsAreNotShownInBetween();
    void groupOnTabPageFolds();
    void groupWithoutEndFoldsTheRest();
    void togglingIsToldOnce();
    void allGroupsOpenAndClose();
    void oneGroupOpensAndCloses();
    void rulesHoldWhenGroupOpens();
    void groupStaysClosedWhenRulesHold();
    void tabsHideByRules();
    void hiddenByHostStaysHidden();
    void openingCostsAboutAsMuchAsInThePanel();
    void manyRowsComeAtOnce();

    void stateSurvivesOtherProperties();
    void stateSurvivesTheProgram();
    void stateWaitsForProperties();
    void stateTellsEqualNamesApart();
    void stateKeepsUnknownNames();
    void rowsWithoutNameGoByLabel();
    void restoringIsSilent();
    void foreignStatesAreRefused_data();
    void foreignStatesAreRefused();
    void placeIsThatOfTheRow();
    void placeWaitsForTheFirstShow();
    void focusComesBack();
    void focusIsNotTakenAway();

    void splitterIsFixedAtFirst();
    void splitterIsDragged_data();
    void splitterIsDragged();
    void splitterKeepsFieldsInView();
    void splitterShowsItsCursor();
    void doubleClickMakesLabelsAutomatic();
    void labelWidthIsOneForAllPages();
    void labelWidthIsKept();

    void wheelScrollsOverControls();
    void wheelChangesFocusedControl();
    void wheelIsLetThroughOnDemand();

    void helpIsToolTip();
    void helpOfTabsAndTabGroups();
    void ownToolTipIsKept();
    void helpIsReadAgain();
    void descriptionTellsFocusedRow();
    void descriptionTellsRowUnderThePointer();
    void descriptionShowsTextsAsWritten();

    void viewDeletedInCallback_data();
    void viewDeletedInCallback();
    void panelDeletedByHost();
    void otherPropertiesInCallback();
    void otherPropertiesWhileRowsAreShown();
    void laterPropertiesWin();

private:
    void show();
    void show(const QSize &size);
    Property *property(const QString &name) const;
    QWidget *field(const QString &name) const;
    QLabel *label(const QString &text) const;
    QScrollBar *scrollBar() const;
    bool isShown(const QString &name) const { return field(name)->isVisible(); }
    void addRows(const char *prefix, int count);
    void click(const QString &name) const;
    QPoint gapOf(const QString &label, const QString &name) const;
    QLabel *description() const;

    std::unique_ptr<PropertyList> m_list;
    std::unique_ptr<PropertyStore> m_store;
    std::unique_ptr<PropertyPanelView> m_view;
};

void tst_PropertyPanelView::init()
{
    QCursor::setPos(QGuiApplication::primaryScreen()->geometry().bottomRight()); // over no row
    PropertyEditorRegistry::Instance()->registerPropertyEditor(kCounted,
                                                               HintCountingEditor::Factory);
    m_list = std::make_unique<PropertyList>();
    m_store = std::make_unique<PropertyStore>();
    m_view = std::make_unique<PropertyPanelView>();
}

void tst_PropertyPanelView::cleanup()
{
    m_view.reset();
    m_store.reset();
    m_list.reset();
}

void tst_PropertyPanelView::show()
{
    show(kViewSize);
}

/// The view with the list as it is now, laid out.
void tst_PropertyPanelView::show(const QSize &size)
{
    m_store->reset(*m_list);
    m_view->setProperties(*m_list, m_store.get());
    m_view->resize(size);
    m_view->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_view.get()));
    settleEvents();
}

Property *tst_PropertyPanelView::property(const QString &name) const
{
    const auto properties = m_list->properties();
    for (Property *property : properties) {
        if (property->name == name)
            return property;
    }
    return nullptr;
}

QWidget *tst_PropertyPanelView::field(const QString &name) const
{
    QVector<PropertyEditor *> editors;
    m_view->panel()->getEditors(editors, QString());
    for (PropertyEditor *editor : std::as_const(editors)) {
        const Property *const property = editor->editedProperty();
        if (property->name == name || (property->name.isEmpty() && property->label == name))
            return editor->widget(nullptr);
    }
    return nullptr;
}

QLabel *tst_PropertyPanelView::label(const QString &text) const
{
    const auto labels = m_view->panel()->findChildren<QLabel *>();
    for (QLabel *label : labels) {
        if (label->text() == text + QLatin1Char(':'))
            return label;
    }
    return nullptr;
}

QScrollBar *tst_PropertyPanelView::scrollBar() const
{
    return m_view->findChild<QScrollArea *>()->verticalScrollBar();
}

void tst_PropertyPanelView::addRows(const char *prefix, int count)
{
    for (int i = 0; i < count; ++i)
        m_list->string(numbered(prefix, i), numbered(prefix, i));
}

/// On the check box of a row or group.
void tst_PropertyPanelView::click(const QString &name) const
{
    auto *const box = qobject_cast<QCheckBox *>(field(name));
    QVERIFY(box);
    QTest::mouseClick(box, Qt::LeftButton, Qt::NoModifier, QPoint(8, box->height() / 2));
}

/// The middle of the gap between label and field, in their page.
QPoint tst_PropertyPanelView::gapOf(const QString &labelText, const QString &name) const
{
    const QRect labelRect = label(labelText)->geometry();
    const QRect fieldRect = field(name)->geometry();
    const int x = m_view->isRightToLeft() ? (fieldRect.right() + labelRect.left()) / 2
                                          : (labelRect.right() + fieldRect.left()) / 2;
    return {x, fieldRect.center().y()};
}

QLabel *tst_PropertyPanelView::description() const
{
    return m_view->findChild<QLabel *>(QString(), Qt::FindDirectChildrenOnly);
}

void tst_PropertyPanelView::isEmptyAtFirst()
{
    QVERIFY(!m_view->panel());
    QVERIFY(!m_view->rules());

    m_view->updateUI();
    m_view->expandAll();
    m_view->collapseAll();
    m_view->show();

    QVERIFY(m_view->isGroupOpen(nullptr));
    QCOMPARE(m_view->labelWidth(), -1);
    QVERIFY(m_view->isWheelGuarded());
    QVERIFY(!m_view->isSplitterMovable());
    QVERIFY(!m_view->isDescriptionVisible());
    QVERIFY(m_view->restoreState(m_view->saveState()));
}

void tst_PropertyPanelView::showsValues()
{
    m_list->string(name("a"), name("A")).defaultValue(name("first"));
    show();
    QCOMPARE(qobject_cast<QLineEdit *>(field(name("a")))->text(), name("first"));

    m_store->setValue(property(name("a")), name("second"), IPropertyEditorDelegate::NewChange);
    m_view->updateUI();

    QCOMPARE(qobject_cast<QLineEdit *>(field(name("a")))->text(), name("second"));
}

void tst_PropertyPanelView::passesEditsOn()
{
    m_list->boolean(name("a"), name("A"));
    show();
    const QSignalSpy changes(m_store.get(), &PropertyStore::valueChanged);

    click(name("a"));

    QCOMPARE(changes.size(), 1);
    QCOMPARE(m_store->value(property(name("a"))), QVariant(true));
}

void tst_PropertyPanelView::clearedViewIsEmpty()
{
    m_list->group(name("G"), [&] { addRows("r", 2); });
    show();
    click(name("G"));
    const QPointer<PropertyEditorPanel> panel = m_view->panel();

    m_view->clear();

    QVERIFY(!panel);
    QVERIFY(!m_view->panel());
    QVERIFY(!m_view->rules());
    settleEvents();
    show();
    QVERIFY(!isShown(name("r0"))); // as the user has arranged it
}

void tst_PropertyPanelView::plainPropertiesHaveNoRules()
{
    m_list->string(name("a"), name("A")).visibleWhen(name("false"));

    m_view->setProperties(m_list->properties(), nullptr);
    m_view->show();

    QVERIFY(!m_view->rules());
    QVERIFY(isShown(name("a")));
}

void tst_PropertyPanelView::hostAttachesRules()
{
    m_list->boolean(name("on"), QString());
    m_list->string(name("a"), name("A")).visibleWhen(name("on"));
    RuleEngine rules(*m_list, m_store.get());
    m_view->setProperties(m_list->properties(), rules.delegate());
    m_view->show();
    rules.attach(m_view->panel());
    QVERIFY(!isShown(name("a")));
    QVERIFY(!label(name("A"))->isVisible());

    click(name("on"));

    QVERIFY(isShown(name("a")));
    QVERIFY(label(name("A"))->isVisible());
}

void tst_PropertyPanelView::rangesOfTheListComeBackWithNewProperties_data()
{
    QTest::addColumn<bool>("hasRules");
    QTest::newRow("with rules again") << true;
    QTest::newRow("as plain properties") << false;
}

/// A new panel of the same rows takes what the rules made of a range for nobody's declaration.
void tst_PropertyPanelView::rangesOfTheListComeBackWithNewProperties()
{
    QFETCH(bool, hasRules);
    m_list->integer(name("limit"), QString()).range(0, 100).defaultValue(10);
    m_list->integer(name("n"), QString()).range(0, 50).maximumFollows(name("limit"));
    show();
    QCOMPARE(property(name("n"))->maxValue, QVariant(10));

    if (hasRules)
        m_view->setProperties(*m_list, m_store.get());
    else
        m_view->setProperties(m_list->properties(), m_store.get());

    const auto maximum = [this] { return field(name("n"))->findChild<QSpinBox *>()->maximum(); };
    QCOMPARE(property(name("n"))->maxValue, QVariant(hasRules ? 10 : 50));
    QCOMPARE(maximum(), hasRules ? 10 : 50);
    if (!hasRules)
        return;
    m_store->setValue(property(name("limit")), QVariant(80), PropertyStore::NewChange);
    m_view->updateUI();
    QCOMPARE(maximum(), 80);
    m_view->clear();
    QCOMPARE(property(name("n"))->maxValue, QVariant(50));
}

void tst_PropertyPanelView::heightFollowsGroups()
{
    m_list->group(name("G"), [&] { addRows("r", 40); });
    m_list->string(name("last"), name("Last"));
    show();
    const int whole = scrollBar()->maximum();
    QVERIFY(whole > 500);
    QVERIFY(scrollBar()->isVisible());

    click(name("G"));
    settleEvents();

    QCOMPARE(scrollBar()->maximum(), 0);
    QVERIFY(!scrollBar()->isVisible());
    QVERIFY(field(name("last"))->y() < 60);

    click(name("G"));
    settleEvents();

    QCOMPARE(scrollBar()->maximum(), whole);
    // The last row ends where the panel ends.
    QCOMPARE(field(name("last"))->geometry().bottom(), m_view->panel()->height() - 1 - 4);
}

void tst_PropertyPanelView::heightFollowsRules()
{
    m_list->boolean(name("on"), name("On")).defaultValue(true);
    for (int i = 0; i < 40; ++i)
        m_list->string(numbered("r", i), QString()).visibleWhen(name("on"));
    show();
    const int whole = scrollBar()->maximum();
    QVERIFY(whole > 500);

    click(name("on"));
    settleEvents();
    QCOMPARE(scrollBar()->maximum(), 0);

    click(name("on"));
    settleEvents();
    QCOMPARE(scrollBar()->maximum(), whole);
}

void tst_PropertyPanelView::heightFollowsGroupsOnTabPages()
{
    m_list->tabs([&] {
        m_list->tab(name("T"), [&] { m_list->group(name("G"), [&] { addRows("r", 40); }); });
    });
    show();
    const int whole = scrollBar()->maximum();
    QVERIFY(whole > 500);

    click(name("G"));
    settleEvents();
    QCOMPARE(scrollBar()->maximum(), 0);

    click(name("G"));
    settleEvents();
    QCOMPARE(scrollBar()->maximum(), whole);
}

void tst_PropertyPanelView::noScrollBarsWhereAllFits()
{
    addRows("r", 3);
    show();

    const auto bars = m_view->findChildren<QScrollBar *>();
    for (const QScrollBar *bar : bars)
        QVERIFY(!bar->isVisible());
    QCOMPARE(m_view->panel()->size(), m_view->size());
}

void tst_PropertyPanelView::horizontalScrollBarOnlyWhenTooNarrow()
{
    m_list->action(name("go"), QString(60, QLatin1Char('w'))).fullWidth();
    m_list->string(name("a"), name("A"));
    show();
    QScrollBar *const bar = m_view->findChild<QScrollArea *>()->horizontalScrollBar();
    const int needed = field(name("go"))->minimumSizeHint().width() + 2 * 4;
    QVERIFY(needed > kViewSize.width());
    QVERIFY(bar->isVisible());
    QCOMPARE(m_view->panel()->width(), needed);

    m_view->resize(needed, kViewSize.height());
    settleEvents();

    QVERIFY(!bar->isVisible());
}

void tst_PropertyPanelView::innerGroupKeepsItsState()
{
    m_list->group(name("Outer"), [&] {
        m_list->string(name("a"), name("A"));
        m_list->group(name("Inner"), [&] { m_list->string(name("b"), name("B")); });
        m_list->group(name("Open"), [&] { m_list->string(name("c"), name("C")); });
    });
    show();
    click(name("Inner"));
    QVERIFY(!isShown(name("b")));

    click(name("Outer"));
    for (const char *row : {"a", "b", "c", "Inner", "Open"})
        QVERIFY(!isShown(name(row)));

    click(name("Outer"));

    for (const char *row : {"a", "c", "Inner", "Open"})
        QVERIFY(isShown(name(row)));
    QVERIFY(!isShown(name("b")));
    QVERIFY(!label(name("B"))->isVisible());
    QVERIFY(!m_view->isGroupOpen(m_list->properties().at(2)));

    click(name("Inner"));
    QVERIFY(isShown(name("b")));
    QVERIFY(label(name("B"))->isVisible());
}

void tst_PropertyPanelView::innerRowsAreNotShownInBetween()
{
    m_list->group(name("Outer"), [&] { m_list->group(name("Inner"), [&] { addRows("r", 20); }); });
    show();
    click(name("Inner"));
    click(name("Outer"));
    settleEvents();

    EventCount shown(QEvent::ShowToParent);
    click(name("Outer"));
    settleEvents();

    QCOMPARE(shown.count, 2); // the check box of the inner group and its end
}

void tst_PropertyPanelView::groupOnTabPageFolds()
{
    m_list->tabs([&] {
        m_list->tab(name("T"), [&] {
            m_list->group(name("Outer"), [&] {
                m_list->string(name("a"), name("A"));
                m_list->group(name("Inner"), [&] { m_list->string(name("b"), name("B")); });
            });
            m_list->string(name("c"), name("C"));
        });
    });
    show();
    const int before = field(name("c"))->y();
    click(name("Inner"));
    click(name("Outer"));
    settleEvents();
    QVERIFY(!isShown(name("a")));
    QVERIFY(isShown(name("c")));
    QVERIFY(field(name("c"))->y() < before);

    click(name("Outer"));

    QVERIFY(isShown(name("a")));
    QVERIFY(!isShown(name("b")));
}

void tst_PropertyPanelView::groupWithoutEndFoldsTheRest()
{
    m_list->string(name("a"), name("A"));
    m_list->add(kPropertyTypeEndGroup, QString(), QString());
    m_list->add(kPropertyTypeBeginGroup, QString(), name("G"));
    m_list->string(name("b"), name("B"));
    m_list->string(name("c"), name("C"));
    show();

    click(name("G"));

    QVERIFY(isShown(name("a")));
    QVERIFY(!isShown(name("b")));
    QVERIFY(!isShown(name("c")));
}

void tst_PropertyPanelView::togglingIsToldOnce()
{
    m_list->group(name("G"), [&] { addRows("r", 2); });
    TestSupport::RecordingDelegate delegate;
    m_view->setProperties(*m_list, &delegate);
    m_view->show();

    click(name("G"));

    QCOMPARE(delegate.log(), QStringList({name("=false/0")}));
}

void tst_PropertyPanelView::allGroupsOpenAndClose()
{
    m_list->group(name("Outer"), [&] {
        m_list->group(name("Inner"), [&] { m_list->string(name("a"), name("A")); });
    });
    m_list->tabs([&] {
        m_list->tab(name("T"), [&] {
            m_list->group(name("Paged"), [&] { m_list->string(name("b"), name("B")); });
        });
    });
    TestSupport::RecordingDelegate delegate;
    m_view->setProperties(*m_list, &delegate);
    m_view->show();
    delegate.changes.clear();

    m_view->collapseAll();

    for (const char *row : {"a", "b", "Inner"})
        QVERIFY(!isShown(name(row)));
    for (const char *group : {"Outer", "Inner", "Paged"})
        QVERIFY(!qobject_cast<QCheckBox *>(field(name(group)))->isChecked());

    m_view->expandAll();

    for (const char *row : {"a", "b", "Inner"})
        QVERIFY(isShown(name(row)));
    QVERIFY(delegate.changes.isEmpty());
}

void tst_PropertyPanelView::oneGroupOpensAndCloses()
{
    m_list->group(name("G"), [&] { addRows("r", 2); });
    show();
    const Property *const group = m_list->properties().first();
    const QSignalSpy changes(m_store.get(), &PropertyStore::valueChanged);

    m_view->setGroupOpen(group, false);

    QVERIFY(!m_view->isGroupOpen(group));
    QVERIFY(!isShown(name("r0")));

    m_view->setGroupOpen(group, true);
    m_view->setGroupOpen(property(name("r0")), false); // no group
    m_view->setGroupOpen(nullptr, false);

    QVERIFY(m_view->isGroupOpen(group));
    QVERIFY(m_view->isGroupOpen(property(name("r0"))));
    QVERIFY(isShown(name("r0")));
    QVERIFY(changes.isEmpty());
}

void tst_PropertyPanelView::rulesHoldWhenGroupOpens()
{
    m_list->boolean(name("on"), name("On"));
    m_list->group(name("G"), [&] {
        m_list->string(name("a"), name("A")).visibleWhen(name("on"));
        m_list->string(name("b"), name("B"));
    });
    show();
    click(name("G"));

    EventCount shown(QEvent::ShowToParent);
    click(name("G"));

    QVERIFY(!isShown(name("a")));
    QVERIFY(isShown(name("b")));
    QCOMPARE(shown.count, 2); // the label of b and its field

    click(name("on"));
    QVERIFY(isShown(name("a")));
    QVERIFY(label(name("A"))->isVisible());
}

void tst_PropertyPanelView::groupStaysClosedWhenRulesHold()
{
    m_list->boolean(name("on"), name("On"));
    m_list
        ->group(name("G"),
                [&] {
                    m_list->string(name("a"), name("A"));
                    m_list->group(name("Inner"), [&] { m_list->string(name("b"), name("B")); });
                })
        .visibleWhen(name("on"));
    show();
    QVERIFY(!isShown(name("G")));
    click(name("on"));
    QVERIFY(isShown(name("b")));
    click(name("Inner"));
    click(name("on"));
    for (const char *row : {"G", "a", "Inner", "b"})
        QVERIFY(!isShown(name(row)));

    click(name("on"));

    for (const char *row : {"G", "a", "Inner"})
        QVERIFY(isShown(name(row)));
    QVERIFY(!isShown(name("b")));
}

void tst_PropertyPanelView::tabsHideByRules()
{
    m_list->boolean(name("on"), name("On")).defaultValue(true);
    m_list->tabs([&] {
        m_list->tab(name("T"), [&] { m_list->string(name("a"), name("A")); });
        m_list->tab(name("U"), [&] { m_list->string(name("b"), name("B")); })
            .visibleWhen(name("on"));
    });
    show();
    auto *const tabs = m_view->panel()->findChild<QTabWidget *>();
    QVERIFY(tabs->isTabVisible(1));
    tabs->setCurrentIndex(1);
    const QSignalSpy changes(m_store.get(), &PropertyStore::valueChanged);

    click(name("on"));

    QVERIFY(!tabs->isTabVisible(1));
    QCOMPARE(tabs->currentIndex(), 0);
    QCOMPARE(changes.size(), 1); // that of the check box
    QVERIFY(isShown(name("a")));

    click(name("on"));
    QVERIFY(tabs->isTabVisible(1));
}

void tst_PropertyPanelView::hiddenByHostStaysHidden()
{
    m_list->group(name("G"), [&] { addRows("r", 2); });
    show();
    field(name("r0"))->hide();

    click(name("G"));
    click(name("G"));
    QVERIFY(!isShown(name("r0")));
    QVERIFY(isShown(name("r1")));

    field(name("r0"))->show();
    click(name("G"));
    click(name("G"));
    QVERIFY(isShown(name("r0")));
}

/// What stands in the way of the time that opening takes: passes over the rows, and rows shown.
void tst_PropertyPanelView::openingCostsAboutAsMuchAsInThePanel()
{
    constexpr int kRows = 500;
    m_list->group(name("G"), [&] {
        for (int i = 0; i < kRows; ++i)
            m_list->add(kCounted, numbered("r", i), numbered("r", i));
    });
    show();
    click(name("G"));
    settleEvents();

    EventCount shown(QEvent::ShowToParent);
    EventCount moved(QEvent::Move);
    HintCountingEditor::s_hintCalls = 0;
    click(name("G"));
    settleEvents();

    QVERIFY(shown.count >= 2 * kRows); // labels and fields
    QVERIFY2(shown.count <= 2 * kRows + 2, qPrintable(QString::number(shown.count)));
    QVERIFY2(HintCountingEditor::s_hintCalls <= 6 * kRows,
             qPrintable(QString::number(HintCountingEditor::s_hintCalls)));
    QVERIFY2(moved.count <= 2 * kRows + 20, qPrintable(QString::number(moved.count)));

    EventCount hidden(QEvent::HideToParent);
    HintCountingEditor::s_hintCalls = 0;
    click(name("G"));
    settleEvents();

    QVERIFY(hidden.count >= 2 * kRows);
    QVERIFY2(hidden.count <= 2 * kRows + 2, qPrintable(QString::number(hidden.count)));
    QCOMPARE(HintCountingEditor::s_hintCalls, 0);
}

void tst_PropertyPanelView::manyRowsComeAtOnce()
{
    constexpr int kRows = 5000;
    m_list->boolean(name("on"), name("On"));
    for (int i = 0; i < kRows; ++i)
        m_list->add(kCounted, numbered("r", i), QString()).visibleWhen(name("on"));
    m_list->string(name("last"), QString());
    show();
    QVERIFY(!isShown(name("r0")));

    EventCount requests(QEvent::LayoutRequest);
    HintCountingEditor::s_hintCalls = 0;
    click(name("on"));
    QVERIFY(isShown(numbered("r", kRows - 1)));
    settleEvents();

    QVERIFY2(HintCountingEditor::s_hintCalls <= 6 * kRows,
             qPrintable(QString::number(HintCountingEditor::s_hintCalls)));
    QVERIFY2(requests.count <= 20, qPrintable(QString::number(requests.count)));
    QVERIFY(field(name("last"))->y() > kRows * 20);
    QCOMPARE(field(name("last"))->geometry().bottom(), m_view->panel()->height() - 1 - 4);
}

void tst_PropertyPanelView::stateSurvivesOtherProperties()
{
    const auto fill = [this](PropertyList &list, bool withExtra) {
        if (withExtra)
            list.string(name("extra"), name("Extra"));
        list.group(name("G"), [&] { list.string(name("a"), name("A")); }).property().name =
            name("g");
        list.group(name("H"), [&] { list.string(name("b"), name("B")); }).property().name =
            name("h");
        list.tabs([&] {
                if (withExtra)
                    list.tab(name("New"), [] {});
                list.tab(name("T"), [&] { list.string(name("c"), name("C")); });
                list.tab(name("U"), [&] { list.string(name("d"), name("D")); });
            })
            .property()
            .name = name("tabs");
    };
    fill(*m_list, false);
    show();
    click(name("h"));
    auto *tabs = m_view->panel()->findChild<QTabWidget *>();
    QTest::mouseClick(tabs->tabBar(), Qt::LeftButton, Qt::NoModifier,
                      tabs->tabBar()->tabRect(1).center());
    QCOMPARE(tabs->currentIndex(), 1);

    auto other = std::make_unique<PropertyList>();
    fill(*other, true);
    m_view->setProperties(*other, m_store.get());
    m_list = std::move(other);

    QVERIFY(isShown(name("a")));
    QVERIFY(!isShown(name("b")));
    QVERIFY(!qobject_cast<QCheckBox *>(field(name("h")))->isChecked());
    tabs = m_view->panel()->findChild<QTabWidget *>();
    QCOMPARE(tabs->tabText(tabs->currentIndex()), name("U"));
}

void tst_PropertyPanelView::stateSurvivesTheProgram()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(name("settings.ini"));
    m_list->group(name("G"), [&] { addRows("r", 2); });
    addRows("s", 40);
    show();
    click(name("G"));
    settleEvents();
    m_view->setLabelWidth(77);
    settleEvents();
    scrollBar()->setValue(100);
    {
        QSettings settings(file, QSettings::IniFormat);
        settings.setValue(name("panel"), m_view->saveState());
    }

    m_view = std::make_unique<PropertyPanelView>();
    const QSettings settings(file, QSettings::IniFormat);
    QVERIFY(m_view->restoreState(settings.value(name("panel")).toByteArray()));
    show();

    QVERIFY(!isShown(name("r0")));
    QVERIFY(isShown(name("s0")));
    QCOMPARE(scrollBar()->value(), 100);
    QCOMPARE(m_view->labelWidth(), 77);
}

void tst_PropertyPanelView::stateWaitsForProperties()
{
    m_list->group(name("G"), [&] { addRows("r", 2); });
    show();
    click(name("G"));
    const QByteArray closed = m_view->saveState();

    PropertyPanelView other;
    QVERIFY(other.restoreState(closed));
    QCOMPARE(other.saveState(), closed);
    other.setProperties(*m_list, m_store.get());

    QVERIFY(!other.isGroupOpen(m_list->properties().first()));
}

void tst_PropertyPanelView::stateTellsEqualNamesApart()
{
    for (int i = 0; i < 3; ++i)
        m_list->group(name("G"), [&] { m_list->string(numbered("r", i), QString()); });
    show();
    auto boxes = m_view->panel()->findChildren<QCheckBox *>();
    boxes.at(1)->click();
    QVERIFY(!isShown(name("r1")));
    const QByteArray state = m_view->saveState();
    m_view->expandAll();

    QVERIFY(m_view->restoreState(state));

    QVERIFY(isShown(name("r0")));
    QVERIFY(!isShown(name("r1")));
    QVERIFY(isShown(name("r2")));
}

void tst_PropertyPanelView::stateKeepsUnknownNames()
{
    m_list->group(name("G"), [&] { addRows("r", 1); });
    PropertyList other;
    other.group(name("Other"), [&] { other.string(name("o"), QString()); });
    show();
    click(name("G"));
    const QByteArray closed = m_view->saveState();

    m_view->setProperties(other, m_store.get());
    m_view->collapseAll();
    QVERIFY(m_view->restoreState(closed)); // which knows nothing of the other group
    QVERIFY(!m_view->isGroupOpen(other.properties().first()));

    PropertyPanelView later;
    QVERIFY(later.restoreState(m_view->saveState()));
    later.setProperties(*m_list, m_store.get());
    QVERIFY(!later.isGroupOpen(m_list->properties().first()));
    later.setProperties(other, m_store.get());
    QVERIFY(!later.isGroupOpen(other.properties().first()));
    m_view->clear();
}

void tst_PropertyPanelView::rowsWithoutNameGoByLabel()
{
    m_list->group(name("G"), [&] { addRows("g", 1); });
    m_list->group(name("H"), [&] { addRows("h", 1); });
    show();
    click(name("H"));
    const QByteArray state = m_view->saveState();

    PropertyList swapped;
    swapped.group(name("H"), [&] { swapped.string(name("h"), QString()); });
    swapped.group(name("G"), [&] { swapped.string(name("g"), QString()); });
    PropertyPanelView other;
    other.restoreState(state);
    other.setProperties(swapped, nullptr);

    QVERIFY(!other.isGroupOpen(swapped.properties().first()));
    QVERIFY(other.isGroupOpen(swapped.properties().at(3)));
}

void tst_PropertyPanelView::restoringIsSilent()
{
    m_list->group(name("G"), [&] { addRows("r", 1); });
    m_list->tabs([&] {
        m_list->tab(name("T"), [] {});
        m_list->tab(name("U"), [] {});
    });
    TestSupport::RecordingDelegate delegate;
    m_view->setProperties(*m_list, &delegate);
    m_view->show();
    const QByteArray before = m_view->saveState();
    click(name("G"));
    m_view->panel()->findChild<QTabWidget *>()->setCurrentIndex(1);
    const QByteArray after = m_view->saveState();
    delegate.changes.clear();

    QVERIFY(m_view->restoreState(before));
    QVERIFY(isShown(name("r0")));
    QCOMPARE(m_view->panel()->findChild<QTabWidget *>()->currentIndex(), 0);
    QVERIFY(m_view->restoreState(after));
    QVERIFY(!isShown(name("r0")));
    QCOMPARE(m_view->panel()->findChild<QTabWidget *>()->currentIndex(), 1);

    QVERIFY(delegate.changes.isEmpty());
}

void tst_PropertyPanelView::foreignStatesAreRefused_data()
{
    QTest::addColumn<QByteArray>("state");
    QTest::addColumn<bool>("isTaken");

    QTest::newRow("nothing") << QByteArray() << false;
    QTest::newRow("no text") << QByteArray("\0\xff\x01", 3) << false;
    QTest::newRow("another document") << QByteArray("[1]") << false;
    QTest::newRow("without version") << QByteArray("{}") << false;
    QTest::newRow("later version") << QByteArray(R"({"version":2})") << false;
    QTest::newRow("only a version") << QByteArray(R"({"version":1})") << true;
    QTest::newRow("other kinds") << QByteArray(
        R"({"version":1,"groups":{"G":[[],3,{}],"H":1},"tabs":{"":["x",{"tab":[]}]},)"
        R"("place":{"row":1,"offset":"x"},"focus":{"index":-4,"control":-1},)"
        R"("labelWidth":1e300})") << true;
    QTest::newRow("not lists") << QByteArray(R"({"version":1,"groups":3,"tabs":[],"place":[],)"
                                             R"("focus":0,"labelWidth":"x"})")
                               << true;
}

void tst_PropertyPanelView::foreignStatesAreRefused()
{
    QFETCH(QByteArray, state);
    QFETCH(bool, isTaken);
    m_list->group(name("G"), [&] { addRows("r", 2); });
    m_list->tabs([&] { m_list->tab(name("T"), [] {}); });
    show();
    const QByteArray before = m_view->saveState();

    QCOMPARE(m_view->restoreState(state), isTaken);

    QVERIFY(isShown(name("r0")));
    if (!isTaken)
        QCOMPARE(m_view->saveState(), before);
}

void tst_PropertyPanelView::placeIsThatOfTheRow()
{
    addRows("r", 60);
    show();
    scrollBar()->setValue(field(name("r30"))->y() + 3);

    PropertyList other;
    for (int i = 20; i < 80; ++i)
        other.string(numbered("r", i), numbered("r", i));
    m_view->setProperties(other, m_store.get());

    QCOMPARE(scrollBar()->value(), field(name("r30"))->y() + 3);
    QVERIFY(scrollBar()->value() < 400);
    m_view->clear();
}

void tst_PropertyPanelView::placeWaitsForTheFirstShow()
{
    addRows("r", 60);
    show();
    scrollBar()->setValue(500);
    const QByteArray state = m_view->saveState();

    m_view = std::make_unique<PropertyPanelView>();
    m_view->restoreState(state);
    m_view->setProperties(*m_list, m_store.get());
    QCOMPARE(m_view->saveState(), state); // not shown yet
    m_view->resize(kViewSize);
    m_view->show();

    QCOMPARE(scrollBar()->value(), 500);
}

void tst_PropertyPanelView::focusComesBack()
{
    m_list->vec2(name("v"), name("V")).range(0, 10);
    m_list->string(name("a"), name("A"));
    show();
    m_view->activateWindow();
    const auto boxes = field(name("v"))->findChildren<QAbstractSpinBox *>();
    QCOMPARE(boxes.size(), 2);
    boxes.at(1)->setFocus();
    QTRY_VERIFY(boxes.at(1)->hasFocus());

    m_view->setProperties(*m_list, m_store.get());

    QVERIFY(field(name("v"))->findChildren<QAbstractSpinBox *>().at(1)->hasFocus());
}

void tst_PropertyPanelView::focusIsNotTakenAway()
{
    m_list->string(name("a"), name("A"));
    QWidget window;
    auto *const line = new QLineEdit(&window);
    auto *const view = new PropertyPanelView(&window);
    view->setGeometry(0, 50, 300, 200);
    view->setProperties(*m_list, m_store.get());
    window.resize(300, 300);
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    auto *const inside = view->panel()->findChild<QLineEdit *>();
    inside->setFocus();
    const QByteArray state = view->saveState();
    line->setFocus();

    QVERIFY(view->restoreState(state));
    QVERIFY(line->hasFocus());
    view->setProperties(*m_list, m_store.get());
    QVERIFY(line->hasFocus());
    line->clearFocus();
    QVERIFY(view->restoreState(state));
    QVERIFY(view->panel()->findChild<QLineEdit *>()->hasFocus());
}

void tst_PropertyPanelView::splitterIsFixedAtFirst()
{
    m_list->string(name("a"), name("A"));
    show();
    const int x = field(name("a"))->x();
    const QPoint gap = gapOf(name("A"), name("a"));

    QTest::mousePress(m_view->panel(), Qt::LeftButton, Qt::NoModifier, gap);
    movePointer(m_view->panel(), gap + QPoint(50, 0), Qt::LeftButton);
    QTest::mouseRelease(m_view->panel(), Qt::LeftButton, Qt::NoModifier, gap + QPoint(50, 0));
    settleEvents();

    QCOMPARE(field(name("a"))->x(), x);
    QCOMPARE(m_view->labelWidth(), -1);
}

void tst_PropertyPanelView::splitterIsDragged_data()
{
    QTest::addColumn<bool>("mirrored");

    QTest::newRow("left to right") << false;
    QTest::newRow("right to left") << true;
}

void tst_PropertyPanelView::splitterIsDragged()
{
    QFETCH(bool, mirrored);
    m_list->string(name("a"), name("Label"));
    m_list->string(name("b"), name("Another label"));
    m_view->setLayoutDirection(mirrored ? Qt::RightToLeft : Qt::LeftToRight);
    m_view->setSplitterMovable(true);
    show();
    const int labelWidth = label(name("Another label"))->width();
    const int fieldWidth = field(name("a"))->width();
    const QPoint gap = gapOf(name("Label"), name("a"));
    const QPoint step(mirrored ? -30 : 30, 0);

    QTest::mousePress(m_view->panel(), Qt::LeftButton, Qt::NoModifier, gap);
    movePointer(m_view->panel(), gap + step, Qt::LeftButton);
    settleEvents();
    QCOMPARE(m_view->labelWidth(), labelWidth + 30);
    QCOMPARE(field(name("a"))->width(), fieldWidth - 30);
    movePointer(m_view->panel(), gap - 100 * step, Qt::LeftButton);
    settleEvents();
    QTest::mouseRelease(m_view->panel(), Qt::LeftButton, Qt::NoModifier, gap - 100 * step);

    QCOMPARE(m_view->labelWidth(), 24); // the smallest
    QCOMPARE(label(name("Another label"))->width(), 24);
    movePointer(m_view->panel(), gap);
    QCOMPARE(m_view->labelWidth(), 24);
}

void tst_PropertyPanelView::splitterKeepsFieldsInView()
{
    m_list->string(name("a"), name("Label"));
    m_view->setSplitterMovable(true);
    show();
    const QPoint gap = gapOf(name("Label"), name("a"));

    QTest::mousePress(m_view->panel(), Qt::LeftButton, Qt::NoModifier, gap);
    movePointer(m_view->panel(), gap + QPoint(5000, 0), Qt::LeftButton);
    QTest::mouseRelease(m_view->panel(), Qt::LeftButton, Qt::NoModifier, gap + QPoint(5000, 0));
    settleEvents();

    QVERIFY(m_view->labelWidth() > 100);
    QVERIFY(field(name("a"))->width() > 0);
    QCOMPARE(m_view->panel()->width(), m_view->width()); // nothing to scroll
}

void tst_PropertyPanelView::splitterShowsItsCursor()
{
    m_list->string(name("a"), name("Label"));
    m_view->setSplitterMovable(true);
    show();
    QWidget *const panel = m_view->panel();
    QTest::mouseMove(panel, gapOf(name("Label"), name("a")));
    QTRY_COMPARE(panel->cursor().shape(), Qt::SplitHCursor);

    QTest::mouseMove(field(name("a")));
    QTRY_COMPARE(panel->cursor().shape(), Qt::ArrowCursor);

    QTest::mouseMove(panel, gapOf(name("Label"), name("a")));
    QTRY_COMPARE(panel->cursor().shape(), Qt::SplitHCursor);
    m_view->setSplitterMovable(false);
    QCOMPARE(panel->cursor().shape(), Qt::ArrowCursor);
}

void tst_PropertyPanelView::doubleClickMakesLabelsAutomatic()
{
    m_list->string(name("a"), name("Label"));
    m_view->setSplitterMovable(true);
    show();
    const int x = field(name("a"))->x();
    m_view->setLabelWidth(150);
    settleEvents();
    QVERIFY(field(name("a"))->x() > x);

    QTest::mouseDClick(m_view->panel(), Qt::LeftButton, Qt::NoModifier,
                       gapOf(name("Label"), name("a")));
    settleEvents();

    QCOMPARE(m_view->labelWidth(), -1);
    QCOMPARE(field(name("a"))->x(), x);
}

void tst_PropertyPanelView::labelWidthIsOneForAllPages()
{
    m_list->string(name("a"), name("Label"));
    m_list->tabs([&] {
        m_list->tab(name("T"), [&] { m_list->string(name("b"), name("B")); });
        m_list->tab(name("U"), [&] { m_list->string(name("c"), name("C")); });
    });
    show({600, 300});

    m_view->setLabelWidth(120);
    settleEvents();

    QCOMPARE(field(name("a"))->x(), 4 + 120 + 10);
    QCOMPARE(field(name("b"))->x(), 4 + 120 + 10);
    m_view->panel()->findChild<QTabWidget *>()->setCurrentIndex(1);
    settleEvents();
    QCOMPARE(field(name("c"))->x(), 4 + 120 + 10);
}

void tst_PropertyPanelView::labelWidthIsKept()
{
    m_list->string(name("a"), name("Label"));
    m_view->setLabelWidth(90);
    show();
    QCOMPARE(field(name("a"))->x(), 4 + 90 + 10);

    m_view->setProperties(*m_list, m_store.get());
    settleEvents();

    QCOMPARE(m_view->labelWidth(), 90);
    QCOMPARE(field(name("a"))->x(), 4 + 90 + 10);
    const QByteArray state = m_view->saveState();
    m_view->setLabelWidth(-5);
    QCOMPARE(m_view->labelWidth(), -1);
    m_view->restoreState(state);
    QCOMPARE(m_view->labelWidth(), 90);
}

void tst_PropertyPanelView::wheelScrollsOverControls()
{
    m_list->integer(name("i"), name("I")).range(0, 100).defaultValue(50);
    m_list->choice(name("c"), name("C")).choices({name("x"), name("y"), name("z")});
    addRows("r", 40);
    show();
    auto *const slider = field(name("i"))->findChild<QSlider *>();
    auto *const box = field(name("i"))->findChild<QSpinBox *>();
    auto *const combo = m_view->panel()->findChild<QComboBox *>();
    constexpr int kNotchDown = -120;
    int place = 0;
    const QVector<QWidget *> controls{slider, box, combo};
    for (QWidget *control : controls) {
        scrollBar()->setValue(0);

        turnWheelAt(control, control->rect().center(), kNotchDown);

        QVERIFY(scrollBar()->value() > 0);
        QVERIFY(!control->hasFocus());
        place = scrollBar()->value();
    }
    QVERIFY(place > 0);
    QCOMPARE(slider->value(), 50);
    QCOMPARE(box->value(), 50);
    QCOMPARE(combo->currentIndex(), 0);
}

void tst_PropertyPanelView::wheelChangesFocusedControl()
{
    m_list->integer(name("i"), name("I")).range(0, 100).defaultValue(50);
    addRows("r", 40);
    show();
    auto *const slider = field(name("i"))->findChild<QSlider *>();
    m_view->activateWindow();
    slider->setFocus();
    QTRY_VERIFY(slider->hasFocus());

    turnWheelAt(slider, slider->rect().center(), 120);

    QVERIFY(slider->value() > 50);
    QCOMPARE(scrollBar()->value(), 0);
}

void tst_PropertyPanelView::wheelIsLetThroughOnDemand()
{
    m_list->integer(name("i"), name("I")).range(0, 100).defaultValue(50);
    m_view->setWheelGuarded(false);
    show();
    QVERIFY(!m_view->isWheelGuarded());
    auto *const slider = field(name("i"))->findChild<QSlider *>();

    turnWheelAt(slider, slider->rect().center(), 120);

    QVERIFY(slider->value() > 50);
}

void tst_PropertyPanelView::helpIsToolTip()
{
    m_list->string(name("a"), name("A")).help(name("What <b>a</b> is for.\nAnd more."));
    m_list->string(name("b"), name("B"));
    m_list->group(name("G"), [] {}).help(name("A group."));
    show();

    const QString toolTip = field(name("a"))->toolTip();
    QVERIFY(toolTip.contains(name("&lt;b&gt;a&lt;/b&gt;"))); // not taken for markup
    QCOMPARE(label(name("A"))->toolTip(), toolTip);
    QCOMPARE(field(name("a"))->accessibleDescription(), name("What <b>a</b> is for.\nAnd more."));
    QCOMPARE(field(name("b"))->toolTip(), QString());
    QVERIFY(field(name("G"))->toolTip().contains(name("A group.")));
}

void tst_PropertyPanelView::helpOfTabsAndTabGroups()
{
    m_list
        ->tabs([&] {
            m_list->tab(name("T"), [&] { m_list->string(name("a"), name("A")); })
                .help(name("One page."));
        })
        .help(name("All pages."));
    show();

    auto *const tabs = m_view->panel()->findChild<QTabWidget *>();
    QVERIFY(tabs->tabToolTip(0).contains(name("One page.")));
    QVERIFY(tabs->tabBar()->toolTip().contains(name("All pages.")));
    QCOMPARE(tabs->toolTip(), QString()); // it would be one of all rows inside
    QCOMPARE(tabs->widget(0)->toolTip(), QString());
}

void tst_PropertyPanelView::ownToolTipIsKept()
{
    class OwnToolTip final
    {
    public:
        static PropertyEditor *Factory(Property *property)
        {
            PropertyEditor *const editor = HintCountingEditor::Factory(property);
            editor->widget(nullptr)->setToolTip(name("its own"));
            return editor;
        }
    };
    const QString type = name("with tool tip");
    PropertyEditorRegistry::Instance()->registerPropertyEditor(type, OwnToolTip::Factory);
    m_list->add(type, name("a"), name("A")).help(name("Help."));
    show();

    QCOMPARE(field(name("a"))->toolTip(), name("its own"));
    QVERIFY(label(name("A"))->toolTip().contains(name("Help.")));
}

void tst_PropertyPanelView::helpIsReadAgain()
{
    m_list->string(name("a"), name("A")).help(name("Before."));
    show();

    property(name("a"))->setHint(kHostHintHelp, name("After."));
    m_view->updateProperty(property(name("a")));
    QVERIFY(field(name("a"))->toolTip().contains(name("After.")));
    QVERIFY(label(name("A"))->toolTip().contains(name("After.")));

    property(name("a"))->setHint(kHostHintHelp, QVariant());
    m_view->updateProperty(property(name("a")));
    QCOMPARE(field(name("a"))->toolTip(), QString());
    QCOMPARE(label(name("A"))->toolTip(), QString());
}

void tst_PropertyPanelView::descriptionTellsFocusedRow()
{
    m_list->string(name("a"), name("First")).help(name("The first."));
    m_list->string(name("b"), name("Second"));
    show();
    m_view->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_view.get()));
    field(name("a"))->setFocus();
    QVERIFY(!description()->isVisible());

    m_view->setDescriptionVisible(true);
    QVERIFY(m_view->isDescriptionVisible());
    QVERIFY(description()->isVisible());
    QVERIFY(description()->text().contains(name("First")));
    QVERIFY(description()->text().contains(name("The first.")));
    const int height = description()->height();

    QTest::keyClick(field(name("a")), Qt::Key_Tab);
    QVERIFY(description()->text().contains(name("Second")));
    QVERIFY(!description()->text().contains(name("The first.")));
    QCOMPARE(description()->height(), height);

    m_view->clear();
    settleEvents();
    QCOMPARE(description()->text(), QString());
}

void tst_PropertyPanelView::descriptionTellsRowUnderThePointer()
{
    m_list->string(name("a"), name("First"));
    m_list->integer(name("b"), name("Second")).range(0, 5).help(name("Whole."));
    m_view->setDescriptionVisible(true);
    show();
    m_view->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_view.get()));
    field(name("a"))->setFocus();
    QTRY_VERIFY(description()->text().contains(name("First")));

    movePointer(field(name("b"))->findChild<QSpinBox *>());
    QVERIFY(description()->text().contains(name("Second")));
    QVERIFY(description()->text().contains(name("Whole.")));

    movePointer(label(name("First")));
    QTRY_VERIFY(description()->text().contains(name("First")));
    movePointer(label(name("Second")));
    QVERIFY(description()->text().contains(name("Second")));

    QWidget *const panel = m_view->panel();
    movePointer(panel, QPoint(panel->width() / 2, panel->height() - 2));
    QTRY_VERIFY(description()->text().contains(name("First"))); // that of the focus again
}

void tst_PropertyPanelView::descriptionShowsTextsAsWritten()
{
    m_list->string(name("a"), name("<i>A</i>")).help(name("<img src=x>\n& more"));
    m_view->setDescriptionVisible(true);
    show();
    m_view->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_view.get()));

    field(name("a"))->setFocus();

    QVERIFY(description()->text().contains(name("&lt;i&gt;A&lt;/i&gt;")));
    QVERIFY(description()->text().contains(name("&lt;img src=x&gt;<br>&amp; more")));
}

void tst_PropertyPanelView::viewDeletedInCallback_data()
{
    QTest::addColumn<QString>("row");

    QTest::newRow("edit") << name("on");
    QTest::newRow("group") << name("G");
}

void tst_PropertyPanelView::viewDeletedInCallback()
{
    QFETCH(QString, row);
    m_list->boolean(name("on"), name("On"));
    m_list->group(name("G"), [&] { addRows("r", 3); });
    TestSupport::RecordingDelegate delegate;
    m_view->setProperties(*m_list, &delegate);
    m_view->show();
    delegate.onSetValue = [this] { m_view.reset(); };

    click(row);

    QVERIFY(!m_view);

    m_view = std::make_unique<PropertyPanelView>();
    delegate.onSetValue = nullptr;
    delegate.onValue = [this] { m_view.reset(); };
    m_view->setProperties(*m_list, &delegate);
    QVERIFY(!m_view);
}

void tst_PropertyPanelView::panelDeletedByHost()
{
    m_list->group(name("G"), [&] { addRows("r", 3); });
    show();

    delete m_view->panel();

    QVERIFY(!m_view->panel());
    m_view->expandAll();
    m_view->updateUI();
    m_view->setLabelWidth(40);
    m_view->setSplitterMovable(true);
    QVERIFY(m_view->restoreState(m_view->saveState()));
    settleEvents();
    show();
    QVERIFY(isShown(name("r0")));
    QCOMPARE(m_view->labelWidth(), 40);
}

void tst_PropertyPanelView::otherPropertiesInCallback()
{
    m_list->boolean(name("on"), name("On"));
    m_list->group(name("G"), [&] { addRows("r", 3); });
    PropertyList other;
    other.string(name("o"), name("O"));
    TestSupport::RecordingDelegate delegate;
    for (const char *row : {"on", "G"}) {
        m_view->setProperties(*m_list, &delegate);
        m_view->show();
        delegate.onSetValue = [&] {
            delegate.onSetValue = nullptr;
            m_view->setProperties(other, &delegate);
        };

        click(name(row));

        QVERIFY(field(name("o")));
        QVERIFY(!field(name("on")));
    }
    m_view->clear();
}

/// A widget of the host that comes with its group asks for other properties.
void tst_PropertyPanelView::otherPropertiesWhileRowsAreShown()
{
    m_list->group(name("G"), [&] { addRows("r", 5); });
    PropertyList other;
    other.string(name("o"), name("O"));
    for (const QEvent::Type type : {QEvent::ShowToParent, QEvent::HideToParent}) {
        for (const bool deletes : {false, true}) {
            show();
            if (type == QEvent::ShowToParent)
                click(name("G"));
            const EventWatch watcher(field(name("r2")), type, [&] {
                if (deletes)
                    m_view.reset();
                else
                    m_view->setProperties(other, nullptr);
            });

            click(name("G"));

            QCOMPARE(m_view == nullptr, deletes);
            QVERIFY(deletes || field(name("o")));
            m_view = std::make_unique<PropertyPanelView>();
        }
    }
}

void tst_PropertyPanelView::laterPropertiesWin()
{
    m_list->string(name("a"), name("A"));
    PropertyList other;
    other.string(name("o"), name("O"));
    TestSupport::RecordingDelegate delegate;
    delegate.onValue = [&] {
        delegate.onValue = nullptr;
        m_view->setProperties(other, nullptr);
    };

    m_view->setProperties(*m_list, &delegate);

    QVERIFY(field(name("o")));
    QVERIFY(!field(name("a")));
    m_view->clear();
}

QTEST_MAIN(tst_PropertyPanelView)
#include "tst_PropertyPanelView.moc"
