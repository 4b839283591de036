#include <host/PropertyList.h>
#include <host/PropertyListReader.h>
#include <host/PropertyStore.h>
#include <host/RuleEngine.h>
#include <host/UndoDelegate.h>

#include <property/PropertyLayout.h>
#include <property/PropertyUI.h>

#include <support/RecordingDelegate.h>

#include <QCheckBox>
#include <QDoubleSpinBox>
#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QSignalSpy>
#include <QSlider>
#include <QSpinBox>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <QUndoStack>

#include <functional>

using namespace Tessark::PropertyHost;
using namespace Tessark::PropertyUI;

namespace {

QString name(const char *text)
{
    return QString::fromUtf8(text);
}

/// A store that counts how often each value is asked for.
class CountingStore final : public PropertyStore
{
public:
    QVariant value(Property *property) override
    {
        ++asked[property->name];
        return PropertyStore::value(property);
    }

    QMap<QString, int> asked;
};

/// Does something whenever the widget that it filters gets an event of the type.
class Watcher final : public QObject
{
public:
    Watcher(QEvent::Type type, std::function<void()> act)
        : m_type(type)
        , m_act(std::move(act))
    {
    }

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == m_type)
            m_act();
        return false;
    }

private:
    QEvent::Type m_type;
    std::function<void()> m_act;
};

} // namespace

class tst_RuleEngine : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void rowHidesWithItsLabel();
    void hiddenRowLeavesNoGap();
    void hiddenRowKeepsItsValue();
    void rowIsDisabledWithItsLabel();
    void hintEnabledStaysInForce();
    void updatePropertyDoesNotEnable();
    void fullWidthRowHidesAlone();

    void groupHidesWithItsRows();
    void rowInFoldedGroupStaysHidden();
    void rulesHoldWhenGroupOpens();
    void nestedGroups();
    void groupOnTabPageFolds();
    void disabledGroupDisablesItsRows();
    void panelFollowsVisibleRowsInSize();

    void tabsHideAndComeBack();
    void hiddenCurrentTabIsNoEdit();
    void tabGroupWithoutTabsHides();
    void disabledTabStaysReadable();

    void rangeFollows_data();
    void rangeFollows();
    void valueOutsideComesBack();
    void followedRangeIsNoEdit();
    void dragStaysOneUndoStep();
    void limitsFollowEachOther();

    void refreshIsNoticed();
    void undoIsNoticed();
    void onlyDependentRulesAreEvaluated();
    void rowsHiddenByOthersStayHidden();
    void rangesBeforeTheFirstPanelAreShown();
    void anotherPanelTakesOver();
    void withoutDelegateNothingIsKnown();

    void partsDieInAnyOrder_data();
    void partsDieInAnyOrder();
    void delegateMayDeleteAnything_data();
    void delegateMayDeleteAnything();
    void rowsMayGoWhileOthersHide();
    void manyRows();
    void manyShownRowsAreLaidOutOnce();

private:
    void show();
    PropertyEditor *editorOf(const QString &property) const;
    QWidget *fieldOf(const QString &property) const;
    QLabel *labelOf(const QString &label) const;
    void set(const QString &property, const QVariant &value);
    void click(const QString &property) const;
    void clickGroup(const QString &label) const;
    bool isShown(const QString &property) const;

    std::unique_ptr<PropertyList> m_list;
    std::unique_ptr<CountingStore> m_store;
    std::unique_ptr<RuleEngine> m_engine;
    std::unique_ptr<PropertyEditorPanel> m_panel;
};

void tst_RuleEngine::init()
{
    m_list = std::make_unique<PropertyList>();
    m_store = std::make_unique<CountingStore>();
}

void tst_RuleEngine::cleanup()
{
    m_panel.reset();
    m_engine.reset();
    m_store.reset();
    m_list.reset();
}

void tst_RuleEngine::show()
{
    m_store->reset(*m_list);
    m_engine = std::make_unique<RuleEngine>(*m_list, m_store.get());
    QVERIFY2(m_engine->problems().isEmpty(), qPrintable(m_engine->problems().value(0).message));
    m_panel =
        std::make_unique<PropertyEditorPanel>(m_list->properties(), m_engine->delegate(), nullptr);
    m_engine->attach(m_panel.get());
    m_panel->updateUI();
    m_panel->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_panel.get()));
}

PropertyEditor *tst_RuleEngine::editorOf(const QString &property) const
{
    QVector<PropertyEditor *> editors;
    m_panel->getEditors(editors, QString());
    for (PropertyEditor *editor : std::as_const(editors)) {
        if (editor->editedProperty()->name == property)
            return editor;
    }
    return nullptr;
}

QWidget *tst_RuleEngine::fieldOf(const QString &property) const
{
    return editorOf(property)->widget(nullptr);
}

QLabel *tst_RuleEngine::labelOf(const QString &label) const
{
    const auto labels = m_panel->findChildren<QLabel *>();
    const auto found = std::find_if(labels.cbegin(), labels.cend(), [&label](QLabel *candidate) {
        return candidate->text() == label + QLatin1Char(':');
    });
    return found == labels.cend() ? nullptr : *found;
}

/// As a host does it: writes the store and refreshes the panel.
void tst_RuleEngine::set(const QString &property, const QVariant &value)
{
    m_store->setValue(editorOf(property)->editedProperty(), value,
                      IPropertyEditorDelegate::NewChange);
    m_panel->updateUI();
}

void tst_RuleEngine::click(const QString &property) const
{
    auto *const box = qobject_cast<QCheckBox *>(fieldOf(property));
    QVERIFY(box);
    QTest::mouseClick(box, Qt::LeftButton, Qt::NoModifier, QPoint(8, box->height() / 2));
}

void tst_RuleEngine::clickGroup(const QString &label) const
{
    const auto boxes = m_panel->findChildren<QCheckBox *>();
    for (QCheckBox *box : boxes) {
        if (box->text() == label)
            QTest::mouseClick(box, Qt::LeftButton, Qt::NoModifier, QPoint(8, box->height() / 2));
    }
}

bool tst_RuleEngine::isShown(const QString &property) const
{
    return fieldOf(property)->isVisible();
}

void tst_RuleEngine::rowHidesWithItsLabel()
{
    m_list->boolean(name("on"), QString());
    m_list->string(name("a"), name("A")).visibleWhen(name("on"));
    show();
    QVERIFY(!isShown(name("a")));
    QVERIFY(!labelOf(name("A"))->isVisible());

    click(name("on"));

    QVERIFY(isShown(name("a")));
    QVERIFY(labelOf(name("A"))->isVisible());

    click(name("on"));

    QVERIFY(!isShown(name("a")));
    QVERIFY(!labelOf(name("A"))->isVisible());
}

void tst_RuleEngine::hiddenRowLeavesNoGap()
{
    m_list->boolean(name("on"), QString()).defaultValue(true);
    m_list->string(name("a"), name("A")).visibleWhen(name("on"));
    m_list->string(name("b"), name("B"));
    show();
    const int whereA = fieldOf(name("a"))->y();
    QVERIFY(fieldOf(name("b"))->y() > whereA);

    click(name("on"));

    QTRY_COMPARE(fieldOf(name("b"))->y(), whereA);
}

void tst_RuleEngine::hiddenRowKeepsItsValue()
{
    m_list->boolean(name("on"), QString()).defaultValue(true);
    m_list->string(name("a"), QString()).defaultValue(name("kept")).visibleWhen(name("on"));
    show();
    const QSignalSpy changes(m_store.get(), &PropertyStore::valueChanged);

    click(name("on"));
    click(name("on"));

    QCOMPARE(changes.size(), 2); // those of the check box
    QCOMPARE(m_store->value(m_list->properties().last()), QVariant(name("kept")));
    QCOMPARE(qobject_cast<QLineEdit *>(fieldOf(name("a")))->text(), name("kept"));
}

void tst_RuleEngine::rowIsDisabledWithItsLabel()
{
    m_list->boolean(name("on"), QString());
    m_list->number(name("a"), name("A")).range(0, 1).enabledWhen(name("on"));
    show();
    QVERIFY(!fieldOf(name("a"))->isEnabled());
    QVERIFY(!labelOf(name("A"))->isEnabled());

    click(name("on"));

    QVERIFY(fieldOf(name("a"))->isEnabled());
    QVERIFY(labelOf(name("A"))->isEnabled());
}

void tst_RuleEngine::hintEnabledStaysInForce()
{
    m_list->boolean(name("on"), QString());
    m_list->string(name("a"), QString()).enabled(false).enabledWhen(name("on"));
    show();
    click(name("on"));
    QVERIFY(!fieldOf(name("a"))->isEnabled());

    Property *const property = m_list->properties().last();
    property->setHint(kPropertyHintEnabled, true);
    m_panel->updateProperty(property);
    QVERIFY(fieldOf(name("a"))->isEnabled());
    click(name("on"));
    QVERIFY(!fieldOf(name("a"))->isEnabled());
    click(name("on"));
    QVERIFY(fieldOf(name("a"))->isEnabled());
}

void tst_RuleEngine::updatePropertyDoesNotEnable()
{
    m_list->boolean(name("on"), QString());
    m_list->string(name("a"), QString()).enabled(true).enabledWhen(name("on"));
    show();

    m_panel->updateProperty(m_list->properties().last());

    QVERIFY(!fieldOf(name("a"))->isEnabled());
    click(name("on"));
    QVERIFY(fieldOf(name("a"))->isEnabled());
}

void tst_RuleEngine::fullWidthRowHidesAlone()
{
    m_list->boolean(name("on"), QString()).defaultValue(true);
    m_list->staticText(name("text"), QString()).fullWidth();
    m_list->string(name("a"), QString()).fullWidth().visibleWhen(name("on"));
    show();

    click(name("on"));

    QVERIFY(!isShown(name("a")));
    QVERIFY(isShown(name("text"))); // a label before a row that has none
}

void tst_RuleEngine::groupHidesWithItsRows()
{
    m_list->boolean(name("on"), QString()).defaultValue(true);
    m_list
        ->group(name("G"),
                [&] {
                    m_list->string(name("a"), name("A"));
                    m_list->group(name("H"), [&] { m_list->string(name("b"), name("B")); });
                })
        .visibleWhen(name("on"));
    m_list->string(name("c"), name("C"));
    show();

    click(name("on"));

    for (const QString &label : {name("A"), name("B")})
        QVERIFY(!labelOf(label)->isVisible());
    QVERIFY(!isShown(name("a")));
    QVERIFY(!isShown(name("b")));
    QVERIFY(isShown(name("c")));
    const auto boxes = m_panel->findChildren<QCheckBox *>();
    for (const QCheckBox *box : boxes)
        QCOMPARE(box->isVisible(), box->text() != name("G") && box->text() != name("H"));

    click(name("on"));

    QVERIFY(isShown(name("a")));
    QVERIFY(isShown(name("b")));
}

void tst_RuleEngine::rowInFoldedGroupStaysHidden()
{
    m_list->boolean(name("on"), QString());
    m_list->group(name("G"), [&] {
        m_list->string(name("a"), name("A")).visibleWhen(name("on"));
        m_list->string(name("b"), name("B"));
    });
    show();

    clickGroup(name("G"));
    click(name("on"));

    QVERIFY(!isShown(name("a")));
    QVERIFY(!labelOf(name("A"))->isVisible());
    clickGroup(name("G"));
    QVERIFY(isShown(name("a")));
    QVERIFY(isShown(name("b")));
}

void tst_RuleEngine::rulesHoldWhenGroupOpens()
{
    m_list->boolean(name("on"), QString()).defaultValue(true);
    m_list->group(name("G"), [&] {
        m_list->string(name("a"), name("A")).visibleWhen(name("on"));
        m_list->string(name("b"), name("B"));
    });
    show();

    clickGroup(name("G"));
    click(name("on"));
    clickGroup(name("G"));

    QVERIFY(!isShown(name("a")));
    QVERIFY(!labelOf(name("A"))->isVisible());
    QVERIFY(isShown(name("b")));
    click(name("on"));
    QVERIFY(isShown(name("a")));
}

void tst_RuleEngine::nestedGroups()
{
    m_list->boolean(name("on"), QString());
    m_list->boolean(name("inner"), QString());
    m_list->group(name("G"), [&] {
        m_list
            ->group(name("H"),
                    [&] { m_list->string(name("a"), QString()).visibleWhen(name("inner")); })
            .visibleWhen(name("on"));
    });
    show();
    clickGroup(name("G"));
    click(name("on"));
    click(name("inner"));
    QVERIFY(!isShown(name("a")));

    clickGroup(name("G"));

    QVERIFY(isShown(name("a")));
    click(name("on"));
    QVERIFY(!isShown(name("a")));
    click(name("inner"));
    click(name("on"));
    QVERIFY(!isShown(name("a")));
    click(name("inner"));
    QVERIFY(isShown(name("a")));
}

/// The panel does not fold groups on tab pages; a host may.
void tst_RuleEngine::groupOnTabPageFolds()
{
    m_list->boolean(name("on"), QString());
    m_list->tabs([&] {
        m_list->tab(name("T"), [&] {
            m_list->group(name("G"), [&] {
                m_list->string(name("a"), name("A")).visibleWhen(name("on"));
                m_list->string(name("b"), name("B"));
            });
        });
    });
    show();
    QVERIFY(!isShown(name("a")));
    QVector<PropertyEditor *> groups;
    m_panel->getEditors(groups, kPropertyTypeBeginGroup);
    PropertyEditor *const group = groups.first();
    connect(group, &PropertyEditor::valueChanged, m_panel.get(), [group] {
        QWidget *const box = group->widget(nullptr);
        qobject_cast<PropertyLayout *>(box->parentWidget()->layout())
            ->setGroupVisible(box, group->value().toBool());
    });

    clickGroup(name("G"));
    click(name("on"));
    QVERIFY(!isShown(name("a")));
    QVERIFY(!isShown(name("b")));
    clickGroup(name("G"));
    QVERIFY(isShown(name("a")));
    QVERIFY(isShown(name("b")));
    click(name("on"));
    QVERIFY(!isShown(name("a")));
}

void tst_RuleEngine::disabledGroupDisablesItsRows()
{
    m_list->boolean(name("on"), QString());
    m_list->boolean(name("other"), QString()).defaultValue(true);
    m_list
        ->group(name("G"),
                [&] {
                    m_list->string(name("a"), name("A")).enabledWhen(name("other"));
                    m_list->number(name("b"), name("B")).range(0, 1);
                })
        .enabledWhen(name("on"));
    show();
    QVERIFY(!fieldOf(name("a"))->isEnabled());
    QVERIFY(!fieldOf(name("b"))->isEnabled());
    QVERIFY(!labelOf(name("B"))->isEnabled());

    click(name("on"));
    QVERIFY(fieldOf(name("a"))->isEnabled());
    QVERIFY(fieldOf(name("b"))->isEnabled());
    click(name("other"));
    QVERIFY(!fieldOf(name("a"))->isEnabled());
    QVERIFY(fieldOf(name("b"))->isEnabled());
}

void tst_RuleEngine::panelFollowsVisibleRowsInSize()
{
    m_list->boolean(name("on"), QString());
    m_list->group(name("G"), [&] {
        for (int i = 0; i < 10; ++i)
            m_list->string(QStringLiteral("a%1").arg(i), QString()).visibleWhen(name("on"));
    });
    show();
    QScrollArea area;
    area.setWidgetResizable(true);
    area.setWidget(m_panel.release());
    m_panel.reset(static_cast<PropertyEditorPanel *>(area.widget()));
    area.resize(300, 60);
    area.show();
    const int small = m_panel->sizeHint().height();
    QWidget *const last = fieldOf(name("a9"));

    click(name("on"));
    QVERIFY(m_panel->sizeHint().height() > small);
    QTRY_VERIFY(last->isVisible() && last->geometry().bottom() < m_panel->height());
    clickGroup(name("G"));
    QTRY_VERIFY(m_panel->height() < last->geometry().bottom());
    clickGroup(name("G"));
    QTRY_VERIFY(last->isVisible() && last->geometry().bottom() < m_panel->height());
    click(name("on"));
    QCOMPARE(m_panel->sizeHint().height(), small);
    area.takeWidget();
}

void tst_RuleEngine::tabsHideAndComeBack()
{
    m_list->boolean(name("on"), QString());
    m_list->tabs([&] {
        m_list->tab(name("T"), [&] { m_list->string(name("a"), QString()); });
        m_list->tab(name("U"), [&] { m_list->string(name("b"), QString()); })
            .visibleWhen(name("on"));
    });
    show();
    auto *const tabs = m_panel->findChild<QTabWidget *>();
    QVERIFY(tabs->isTabVisible(0));
    QVERIFY(!tabs->isTabVisible(1));

    click(name("on"));

    QVERIFY(tabs->isTabVisible(1));
    tabs->setCurrentIndex(1);
    QVERIFY(isShown(name("b")));
}

void tst_RuleEngine::hiddenCurrentTabIsNoEdit()
{
    m_list->boolean(name("on"), QString()).defaultValue(true);
    m_list->tabs([&] {
        m_list->tab(name("T"), [&] { m_list->string(name("a"), QString()); })
            .visibleWhen(name("on"));
        m_list->tab(name("U"), [&] { m_list->string(name("b"), QString()); });
    });
    show();
    const QSignalSpy changes(m_store.get(), &PropertyStore::valueChanged);

    click(name("on"));

    QCOMPARE(changes.size(), 1);
    QVERIFY(isShown(name("b")));
    QCOMPARE(m_panel->findChild<QTabWidget *>()->currentIndex(), 1);
}

void tst_RuleEngine::tabGroupWithoutTabsHides()
{
    m_list->boolean(name("on"), QString());
    m_list->tabs([&] {
        m_list->tab(name("T"), [&] { m_list->string(name("a"), QString()); })
            .visibleWhen(name("on"));
        m_list->tab(name("U"), [&] { m_list->string(name("b"), QString()); })
            .visibleWhen(name("on"));
    });
    show();
    QVERIFY(!m_panel->findChild<QTabWidget *>()->isVisible());

    click(name("on"));

    QVERIFY(m_panel->findChild<QTabWidget *>()->isVisible());
    QVERIFY(isShown(name("a")) != isShown(name("b")));
}

void tst_RuleEngine::disabledTabStaysReadable()
{
    m_list->boolean(name("on"), QString());
    m_list->tabs([&] {
        m_list->tab(name("T"), [&] { m_list->string(name("a"), QString()); })
            .enabledWhen(name("on"));
    });
    show();
    QVERIFY(isShown(name("a")));
    QVERIFY(!fieldOf(name("a"))->isEnabled());

    click(name("on"));

    QVERIFY(fieldOf(name("a"))->isEnabled());
}

void tst_RuleEngine::rangeFollows_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QByteArray>("hint");
    const auto row = [](const char *name, const QString &type, const QVariant &value,
                        const QString &hint) {
        QTest::newRow(name) << type << value << hint.toLatin1();
    };
    row("int", kPropertyTypeInteger, 1, QString());
    row("float", kPropertyTypeFloat, 1.0, QString());
    row("float that is scaled", kPropertyTypeFloat, 1.0, kPropertyHintDisplayScale);
    row("logarithmic float", kPropertyTypeFloat, 1.0, kPropertyHintLogarithmicSlider);
    row("percent", kPropertyTypePercent, 1.0, QString());
    row("vec2", kPropertyTypeVec2, QVector2D(1, 1), QString());
    row("vec3 with sliders", kPropertyTypeVec3, QVector3D(1, 1, 1), kPropertyHintShowSliders);
    row("vec4", kPropertyTypeVec4, QVector4D(1, 1, 1, 1), kPropertyHintShowMultipleCheck);
}

/// An editor whose range followed must be like one that was built with the range.
void tst_RuleEngine::rangeFollows()
{
    QFETCH(QString, type);
    QFETCH(QVariant, value);
    QFETCH(QByteArray, hint);
    m_list->number(name("low"), QString()).range(0, 100).defaultValue(0.01);
    m_list->number(name("high"), QString()).range(0, 1000).defaultValue(5.0);
    PropertyRow row = m_list->add(type, name("a"), QString())
                          .range(value, value)
                          .defaultValue(value)
                          .minimumFollows(name("low"))
                          .maximumFollows(name("high"));
    if (!hint.isEmpty())
        row.hint(name(hint), hint == "display_scale" ? QVariant(100.0) : QVariant(true));
    show();
    const QSignalSpy ranges(m_engine.get(), &RuleEngine::rangeChanged);

    set(name("high"), 500.0);
    set(name("low"), 0.5);

    QCOMPARE(ranges.size(), type == kPropertyTypeInteger ? 1 : 2); // 0.01 and 0.5 round up to 1
    PropertyEditor *const editor = editorOf(name("a"));
    const auto factory = PropertyEditorRegistry::Instance()->factory(&row.property());
    const std::unique_ptr<PropertyEditor> fresh(factory(&row.property()));
    const std::unique_ptr<QWidget> freshWidget(fresh->widget(nullptr));
    fresh->setValue(value);
    const auto sliders = editor->widget(nullptr)->findChildren<QSlider *>();
    const auto freshSliders = freshWidget->findChildren<QSlider *>();
    QCOMPARE(sliders.size(), freshSliders.size());
    for (int i = 0; i < sliders.size(); ++i) {
        QCOMPARE(sliders.at(i)->minimum(), freshSliders.at(i)->minimum());
        QCOMPARE(sliders.at(i)->maximum(), freshSliders.at(i)->maximum());
        QCOMPARE(sliders.at(i)->value(), freshSliders.at(i)->value());
        QCOMPARE(sliders.at(i)->pageStep(), freshSliders.at(i)->pageStep());
    }
    const auto boxes = editor->widget(nullptr)->findChildren<QDoubleSpinBox *>();
    const auto freshBoxes = freshWidget->findChildren<QDoubleSpinBox *>();
    QCOMPARE(boxes.size(), freshBoxes.size());
    for (int i = 0; i < boxes.size(); ++i) {
        QCOMPARE(boxes.at(i)->minimum(), freshBoxes.at(i)->minimum());
        QCOMPARE(boxes.at(i)->maximum(), freshBoxes.at(i)->maximum());
        QCOMPARE(boxes.at(i)->value(), freshBoxes.at(i)->value());
        QCOMPARE(boxes.at(i)->singleStep(), freshBoxes.at(i)->singleStep());
    }
    QVERIFY(!sliders.isEmpty() || !boxes.isEmpty());
    QCOMPARE(editor->value(), fresh->value());
}

void tst_RuleEngine::valueOutsideComesBack()
{
    m_list->integer(name("high"), QString()).range(0, 100).defaultValue(50);
    m_list->integer(name("a"), QString())
        .range(0, 100)
        .defaultValue(40)
        .maximumFollows(name("high"));
    show();
    auto *const box = fieldOf(name("a"))->findChild<QSpinBox *>();

    set(name("high"), 30);
    QCOMPARE(box->value(), 30);
    QCOMPARE(m_store->value(m_list->properties().last()), QVariant(40));
    set(name("high"), 50);
    QCOMPARE(box->value(), 40);
}

void tst_RuleEngine::followedRangeIsNoEdit()
{
    for (const QString &type : {kPropertyTypeInteger, kPropertyTypeFloat, kPropertyTypePercent}) {
        m_list->add(type, type, QString())
            .range(0, 100)
            .defaultValue(40)
            .maximumFollows(name("high"));
    }
    m_list->integer(name("high"), QString()).range(0, 100).defaultValue(50);
    show();
    const QSignalSpy changes(m_store.get(), &PropertyStore::valueChanged);
    auto *const box = fieldOf(name("high"))->findChild<QSpinBox *>();

    box->setFocus();
    QTest::keyClick(box, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(box, QStringLiteral("7"));

    QCOMPARE(changes.size(), 1);
    QCOMPARE(fieldOf(kPropertyTypeInteger)->findChild<QSpinBox *>()->value(), 7);
    QCOMPARE(fieldOf(kPropertyTypeFloat)->findChild<QDoubleSpinBox *>()->value(), 7.0);
}

/// To the panel, an edit of another row ends a drag; a range that follows must be none.
void tst_RuleEngine::dragStaysOneUndoStep()
{
    m_list->integer(name("high"), QString()).range(0, 100).defaultValue(50);
    m_list->integer(name("a"), QString())
        .range(0, 100)
        .defaultValue(50)
        .maximumFollows(name("high"));
    m_store->reset(*m_list);
    QUndoStack stack;
    UndoDelegate undo(m_store.get(), &stack);
    m_engine = std::make_unique<RuleEngine>(*m_list, &undo);
    m_panel =
        std::make_unique<PropertyEditorPanel>(m_list->properties(), m_engine->delegate(), nullptr);
    m_engine->attach(m_panel.get());
    m_panel->updateUI();
    m_panel->show();
    auto *const slider = fieldOf(name("high"))->findChild<QSlider *>();

    slider->setSliderDown(true);
    for (int value = 49; value > 20; --value)
        slider->setSliderPosition(value);
    slider->setSliderDown(false);

    QCOMPARE(stack.count(), 1);
    QCOMPARE(m_list->properties().last()->maxValue, QVariant(21));
    QCOMPARE(m_store->value(m_list->properties().last()), QVariant(50));
}

void tst_RuleEngine::limitsFollowEachOther()
{
    m_list->number(name("low"), QString())
        .range(0.0, 10.0)
        .defaultValue(2.0)
        .maximumFollows(name("high"));
    m_list->number(name("high"), QString())
        .range(0.0, 10.0)
        .defaultValue(8.0)
        .minimumFollows(name("low"));
    show();
    const auto properties = m_list->properties();
    QCOMPARE(properties.first()->maxValue, QVariant(8.0));
    QCOMPARE(properties.last()->minValue, QVariant(2.0));

    set(name("low"), 5.0);

    QCOMPARE(properties.first()->maxValue, QVariant(8.0));
    QCOMPARE(properties.last()->minValue, QVariant(5.0));
}

void tst_RuleEngine::refreshIsNoticed()
{
    m_list->boolean(name("on"), QString());
    m_list->string(name("a"), QString()).visibleWhen(name("on"));
    show();

    set(name("on"), true);
    QVERIFY(isShown(name("a")));

    m_store->setValue(m_list->properties().first(), false, IPropertyEditorDelegate::NewChange);
    QVERIFY(isShown(name("a"))); // nobody told
    m_engine->update();
    QVERIFY(!isShown(name("a")));
}

void tst_RuleEngine::undoIsNoticed()
{
    m_list->boolean(name("on"), QString());
    m_list->string(name("a"), QString()).visibleWhen(name("on"));
    m_store->reset(*m_list);
    QUndoStack stack;
    UndoDelegate undo(m_store.get(), &stack);
    m_engine = std::make_unique<RuleEngine>(*m_list, &undo);
    m_panel =
        std::make_unique<PropertyEditorPanel>(m_list->properties(), m_engine->delegate(), nullptr);
    m_engine->attach(m_panel.get());
    connect(&undo, &UndoDelegate::valueRestored, m_panel.get(), &PropertyEditorPanel::updateUI);
    m_panel->updateUI();
    m_panel->show();

    click(name("on"));
    QVERIFY(isShown(name("a")));
    stack.undo();
    QVERIFY(!isShown(name("a")));
    stack.redo();
    QVERIFY(isShown(name("a")));
}

void tst_RuleEngine::onlyDependentRulesAreEvaluated()
{
    for (int i = 0; i < 100; ++i) {
        m_list->boolean(QStringLiteral("on%1").arg(i), QString());
        m_list->string(QStringLiteral("a%1").arg(i), QString())
            .visibleWhen(QStringLiteral("on%1").arg(i));
    }
    m_list->string(name("both"), QString()).visibleWhen(name("on7 or on8"));
    show();
    m_store->asked.clear();

    click(name("on7"));

    // Once by the edit itself, and once by each of the two rules that read it.
    const QMap<QString, int> expected{{name("on7"), 3}};
    QCOMPARE(m_store->asked, expected);
    QVERIFY(isShown(name("a7")));
    QVERIFY(!isShown(name("a8")));

    m_store->asked.clear();
    m_panel->updateUI();
    for (int i = 0; i < 100; ++i)
        QCOMPARE(m_store->asked.value(QStringLiteral("on%1").arg(i)), 1);
}

void tst_RuleEngine::rowsHiddenByOthersStayHidden()
{
    m_list->boolean(name("on"), QString()).defaultValue(true);
    m_list->string(name("a"), QString()).visibleWhen(name("on"));
    show();

    fieldOf(name("a"))->hide();
    click(name("on"));
    click(name("on"));
    QVERIFY(!isShown(name("a")));
    fieldOf(name("a"))->show();
    QVERIFY(isShown(name("a")));

    fieldOf(name("a"))->setEnabled(false);
    click(name("on"));
    click(name("on"));
    QVERIFY(!fieldOf(name("a"))->isEnabled());
}

void tst_RuleEngine::rangesBeforeTheFirstPanelAreShown()
{
    m_list->integer(name("high"), QString()).range(0, 100).defaultValue(50);
    m_list->integer(name("a"), QString()).range(0, 100).maximumFollows(name("high"));
    m_store->reset(*m_list);
    RuleEngine engine(*m_list, m_store.get());
    PropertyEditorPanel panel(m_list->properties(), engine.delegate(), nullptr);
    engine.delegate()->setValue(m_list->properties().first(), 30,
                                IPropertyEditorDelegate::NewChange);

    engine.attach(&panel);

    QVector<PropertyEditor *> editors;
    panel.getEditors(editors, QString());
    QCOMPARE(editors.last()->widget(nullptr)->findChild<QSpinBox *>()->maximum(), 30);
}

void tst_RuleEngine::anotherPanelTakesOver()
{
    m_list->boolean(name("on"), QString());
    m_list->string(name("a"), QString()).visibleWhen(name("on"));
    show();
    const QPointer<QWidget> before = fieldOf(name("a"));
    PropertyEditorPanel other(m_list->properties(), m_engine->delegate(), nullptr);

    m_engine->attach(&other);
    m_engine->delegate()->setValue(m_list->properties().first(), true,
                                   IPropertyEditorDelegate::NewChange);

    QVERIFY(before->isHidden());
    QVERIFY(!other.findChild<QLineEdit *>()->isHidden());
    m_engine->attach(nullptr);
    m_engine->delegate()->setValue(m_list->properties().first(), false,
                                   IPropertyEditorDelegate::NewChange);
    QVERIFY(!other.findChild<QLineEdit *>()->isHidden());
}

void tst_RuleEngine::withoutDelegateNothingIsKnown()
{
    m_list->boolean(name("on"), QString());
    m_list->string(name("a"), QString()).visibleWhen(name("on"));
    RuleEngine engine(*m_list, nullptr);
    PropertyEditorPanel panel(m_list->properties(), engine.delegate(), nullptr);
    engine.attach(&panel);
    panel.updateUI();
    panel.findChild<QCheckBox *>()->click();

    QVERIFY(!engine.isVisible(m_list->properties().last()));
    QVERIFY(panel.findChild<QLineEdit *>()->isHidden());
}

void tst_RuleEngine::partsDieInAnyOrder_data()
{
    QTest::addColumn<QString>("order"); // e engine, l list, p panel, s store
    for (const char *order : {"elps", "lpse", "psel", "sepl", "eslp", "lesp", "pesl", "spel",
                              "lsep", "plse", "epsl", "slpe"})
        QTest::newRow(order) << QString::fromLatin1(order);
}

void tst_RuleEngine::partsDieInAnyOrder()
{
    QFETCH(QString, order);
    m_list->boolean(name("on"), QString());
    m_list->group(name("G"), [&] {
        m_list->integer(name("a"), QString())
            .range(0, 9)
            .visibleWhen(name("on"))
            .enabledWhen(name("on"))
            .maximumFollows(name("count"));
    });
    m_list->integer(name("count"), QString()).range(0, 9).defaultValue(4);
    show();
    // Only what is still there may be used: no panel without its list.
    for (const QChar part : order) {
        if (part == QLatin1Char('e'))
            m_engine.reset();
        else if (part == QLatin1Char('l'))
            m_list.reset();
        else if (part == QLatin1Char('p'))
            m_panel.reset();
        else
            m_store.reset();
        if (m_engine)
            m_engine->update();
        if (m_panel && m_list) {
            click(name("on"));
            clickGroup(name("G"));
            m_panel->updateUI();
        }
        if (m_panel) {
            m_panel->hide();
            m_panel->show();
        }
    }
}

void tst_RuleEngine::delegateMayDeleteAnything_data()
{
    QTest::addColumn<QString>("victims"); // e engine, p panel
    QTest::newRow("engine") << QStringLiteral("e");
    QTest::newRow("panel") << QStringLiteral("p");
    QTest::newRow("engine, panel") << QStringLiteral("ep");
    QTest::newRow("panel, engine") << QStringLiteral("pe");
}

void tst_RuleEngine::delegateMayDeleteAnything()
{
    QFETCH(QString, victims);
    m_list->string(name("title"), QString());
    m_list->string(name("a"), QString()).visibleWhen(name("title == 'x'"));
    TestSupport::RecordingDelegate delegate;
    m_engine = std::make_unique<RuleEngine>(*m_list, &delegate);
    m_panel =
        std::make_unique<PropertyEditorPanel>(m_list->properties(), m_engine->delegate(), nullptr);
    m_engine->attach(m_panel.get());
    m_panel->show();
    delegate.onSetValue = [&] {
        for (const QChar victim : victims) {
            if (victim == QLatin1Char('e'))
                m_engine.reset();
            else
                m_panel.reset();
        }
    };

    auto *const line = qobject_cast<QLineEdit *>(fieldOf(name("title")));
    QTest::keyClicks(line, name("x"));
    QTest::keyClick(line, Qt::Key_Return);

    QCOMPARE(m_engine == nullptr, victims.contains(QLatin1Char('e')));
    QCOMPARE(m_panel == nullptr, victims.contains(QLatin1Char('p')));
}

void tst_RuleEngine::rowsMayGoWhileOthersHide()
{
    for (int round = 0; round < 2; ++round) {
        init();
        m_list->boolean(name("on"), QString()).defaultValue(true);
        m_list->string(name("a"), name("A")).visibleWhen(name("on"));
        m_list->string(name("b"), name("B")).visibleWhen(name("on"));
        m_list->string(name("c"), name("C"));
        show();
        Watcher watcher(QEvent::HideToParent, [&] {
            if (round == 0)
                delete fieldOf(name("b"));
            else
                m_engine.reset();
        });
        QWidget *const first = fieldOf(name("a"));
        first->installEventFilter(&watcher);

        m_store->setValue(m_list->properties().first(), false, IPropertyEditorDelegate::NewChange);
        m_engine->update();

        QVERIFY(first->isHidden());
        QVERIFY(!m_panel->grab().isNull());
        cleanup();
    }
}

void tst_RuleEngine::manyRows()
{
    constexpr int kRows = 10000;
    m_list->boolean(name("on"), QString());
    for (int i = 0; i < kRows; ++i) {
        m_list->string(QStringLiteral("a%1").arg(i), QStringLiteral("A"))
            .visibleWhen(i % 2 == 0 ? name("on") : name("a0 != 'x'"));
    }
    m_store->reset(*m_list);
    QElapsedTimer timer;
    timer.start();
    m_engine = std::make_unique<RuleEngine>(*m_list, m_store.get());
    const qint64 read = timer.restart();
    m_panel =
        std::make_unique<PropertyEditorPanel>(m_list->properties(), m_engine->delegate(), nullptr);
    const qint64 built = timer.restart();
    m_engine->attach(m_panel.get());
    const qint64 attached = timer.restart();
    QVERIFY(fieldOf(name("a9998"))->isHidden());
    QVERIFY(!fieldOf(name("a9999"))->isHidden());
    m_store->asked.clear();
    timer.restart();

    m_engine->delegate()->setValue(m_list->properties().first(), true,
                                   IPropertyEditorDelegate::NewChange);

    // Rules that read every other row, or placed all rows anew, would take minutes for each step.
    const QString times = QStringLiteral("read %1 ms, panel %2 ms, attached %3 ms, 5000 rows %4 ms")
                              .arg(read)
                              .arg(built)
                              .arg(attached)
                              .arg(timer.elapsed());
    QVERIFY2(read + attached + timer.elapsed() < 20000, qPrintable(times));
    QVERIFY(!fieldOf(name("a9998"))->isHidden());
    QCOMPARE(m_store->asked.value(name("on")), kRows / 2 + 1);
    QCOMPARE(m_store->asked.size(), 1);
}

/// While rows of a shown panel come and go, its layout must place them once, not once for each.
void tst_RuleEngine::manyShownRowsAreLaidOutOnce()
{
    constexpr int kRows = 300;
    m_list->boolean(name("on"), QString());
    for (int i = 0; i < kRows; ++i) {
        m_list->string(QStringLiteral("a%1").arg(i), QStringLiteral("A")).visibleWhen(name("on"));
    }
    m_list->string(name("last"), QString());
    show();
    int moves = 0;
    Watcher watcher(QEvent::Move, [&moves] { ++moves; });
    fieldOf(name("last"))->installEventFilter(&watcher);

    set(name("on"), true);
    QVERIFY(isShown(name("a299")));
    QTRY_VERIFY(fieldOf(name("last"))->y() > fieldOf(name("a299"))->y());

    QVERIFY2(moves < 5, qPrintable(QString::number(moves)));
}

QTEST_MAIN(tst_RuleEngine)
#include "tst_RuleEngine.moc"
