#include "support/MenuProbe.h"
#include "support/RecordingDelegate.h"
#include "support/SliderDrag.h"

#include <core/Slider.h>
#include <host/CommitPolicy.h>
#include <host/PropertyList.h>
#include <host/PropertyStore.h>
#include <host/RuleEngine.h>
#include <host/SelectionDelegate.h>
#include <host/StructBinding.h>
#include <host/UndoDelegate.h>
#include <host/ValueJson.h>
#include <property/PropertyUI.h>
#include <property/ValueCodecs.h>
#include <property/editors/ImageFormatEditor.h>
#include <property/editors/TexturePropertyEditor.h>
#include <property/editors/Transform2DPropertyEditor.h>

#include <QCheckBox>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QListWidget>
#include <QRadioButton>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTest>
#include <QUndoStack>

#include <functional>
#include <memory>
#include <vector>

using namespace Tessark::PropertyHost;
using namespace Tessark::PropertyUI;

namespace {

constexpr auto kNew = IPropertyEditorDelegate::NewChange;
constexpr auto kContinued = IPropertyEditorDelegate::ContinuedChange;

/// One selected object: its rows and what keeps its values.
class Object : public QObject, public TestSupport::RecordingDelegate
{
public:
    SelectionMember member() { return {list, this}; }

    Property *row(const QString &name) const
    {
        const auto rows = list.properties();
        for (Property *row : rows) {
            if (row->name == name)
                return row;
        }
        return nullptr;
    }

    PropertyList list;
};

using MakeRows = std::function<void(PropertyList &)>;

/// The names of the rows, or their types without one, separated by spaces.
QString names(const QVector<Property *> &rows)
{
    QStringList result;
    for (const Property *row : rows)
        result.append(row->name.isEmpty() ? row->type : row->name);
    return result.join(QLatin1Char(' '));
}

QImage blank(Qt::GlobalColor color)
{
    QImage picture(2, 2, QImage::Format_RGB32);
    picture.fill(color);
    return picture;
}

/// A move by x, with something that no field of the editor shows.
QVariant transformOf(double x, double hidden)
{
    DoubleMatrix3x3 matrix;
    matrix(2, 0) = x;
    matrix(0, 2) = hidden;
    return QVariant::fromValue(matrix);
}

QVariant formatNamed(const char *name)
{
    return QVariant::fromValue(ImageFormatDesc{QString::fromLatin1(name), 50});
}

bool isMarked(const QWidget *widget)
{
    return widget->property("mixed").toBool();
}

} // namespace

class tst_SelectionDelegate : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void nothingIsSelectedAtFirst();
    void oneObjectHasAllItsRows();
    void rowsMatchByNameAndType();
    void partialRowsAreDisabledIfWanted();
    void pointlessStructureIsLeftOut();
    void rangeIsWhatAllTake_data();
    void rangeIsWhatAllTake();
    void rangeThatOneObjectLacks();
    void boundsThatFollowAreTakenAsTheyAre();
    void rangesThatDoNotMeetAreNotCommon();
    void rangeOfVectorsIsTakenByComponents();
    void hintsThatMustAgree_data();
    void hintsThatMustAgree();
    void otherHintsAreTheFirsts();
    void objectsMayShareAList();
    void structsAreObjects();

    void mixedRows();
    void mixedRowShowsNoObjectsValue_data();
    void mixedRowShowsNoObjectsValue();
    void changedValuesAreNoticed();

    void editGoesToAllWithItsFlags();
    void runIsOneStepThatRestoresEachObject();
    void runThatEndsWhereAllBeganLeavesNoStep();
    void refusedEditLeavesNoStep();
    void secondRunIsItsOwnStep();
    void undoReachesObjectsOfAnEarlierSelection();
    void undoReachesObjectsWithoutSelection();
    void undoPassesOverObjectsThatAreGone();
    void runDoesNotGoOnInAnotherSelection();
    void actionGoesToAllWithoutStep();
    void foldingGoesToTheFirstWithoutStep();
    void invalidValueChangesNothing();
    void undoDelegateInFrontDoesNoHarm();
    void rowsThatAreNotCommonAreNotEdited();
    void assignWritesWhole();

    void relativeEdits_data();
    void relativeEdits();
    void relativeEditsAreRefused_data();
    void relativeEditsAreRefused();
    void relativeEditIsOneStep();
    void relativeTexts_data();
    void relativeTexts();

    void eachObjectHasItsOwnDefault();
    void sharedDefaultIsTheRows();
    void menuGivesEachObjectItsOwnDefault();
    void menuGivesADefaultThatTheBlanksHold();
    void menuIsAboutItsRowAlone();
    void defaultMayArriveLate();
    void revertWithoutMenuIsRefused();

    void numbersAreBlankWhileMixed();
    void typedNumberGoesToAll();
    void typedNumberThatTheBlankHoldsGoesToAll();
    void halfTypedNumberIsTakenBack();
    void checkBoxIsPartiallyCheckedWhileMixed();
    void refusedCheckBoxIsPartiallyCheckedAgain();
    void nothingIsChosenWhileMixed_data();
    void nothingIsChosenWhileMixed();
    void noTextureIsChosenWhileMixed();
    void textThatIsPassedThroughStays();
    void textThatIsEmptiedGoesToAll();
    void emptyTextWithoutPanelStays();
    void oneComponentGoesToAll();
    void componentThatTheBlankHoldsGoesToAll();
    void draggedComponentGoesToAll();
    void oneSideOfASizeGoesToAll();
    void oneChannelOfAColorGoesToAll();
    void colorFromTheWheelGoesToAll();
    void oneNumberOfATransformGoesToAll();
    void formatLeavesEachRate();
    void dragIsOneStep();
    void policyMayStandInFront();
    void editedPartsMayArriveTogether();
    void rulesMayStandInFront();
    void marksFollowEveryOperation();
    void refreshOfThePanelKeepsTheMarks();
    void marksGoWithThePanel();
    void styleSheetsSeeTheMark();
    void rowsThatAreNotCommonAreDisabled();

    void sameRowsKeepThePanel();
    void sameRowsShowTheNewRange();
    void newRangeWithoutPanelIsANewList();
    void otherRowsAreANewList();
    void rowsOfTheListBeforeAreIgnored();

    void objectMayGoAnyTime();
    void listOfAnObjectMayGo();
    void objectMayGoInItsCallback();
    void otherObjectMayGoInACallback();
    void objectMayGoWhenAsked_data();
    void objectMayGoWhenAsked();
    void selectionMayGoInACallback_data();
    void selectionMayGoInACallback();
    void selectionMayChangeInACallback();
    void panelMayGoInACallback();
    void stackMayGoInACallback();
    void objectMayGoWhileUndoing();
    void selectionMayGoInItsSignals_data();
    void selectionMayGoInItsSignals();
    void panelMayGoInTheMenu();

private:
    /// Makes the selection of one object for each list of values of row "x".
    void select(const MakeRows &makeRows, const QVector<QVariant> &values);
    Object &add(const MakeRows &makeRows);
    void selectAll();
    void showPanel(CommitPolicy *policy = nullptr);
    void pickDefault();
    Property *x() const { return row("x"); }
    Property *row(const char *name) const;
    QVector<QVariant> values() const;
    template <typename Control>
    Control *control(int index = 0) const
    {
        return m_panel->findChildren<Control *>().value(index);
    }

    std::vector<std::unique_ptr<Object>> m_objects;
    std::unique_ptr<QUndoStack> m_stack;
    std::unique_ptr<SelectionDelegate> m_selection;
    std::unique_ptr<PropertyEditorPanel> m_panel;
};

void tst_SelectionDelegate::init()
{
    m_stack = std::make_unique<QUndoStack>();
    m_selection = std::make_unique<SelectionDelegate>(m_stack.get());
}

void tst_SelectionDelegate::cleanup()
{
    m_panel.reset();
    m_selection.reset();
    m_stack.reset();
    m_objects.clear();
}

Object &tst_SelectionDelegate::add(const MakeRows &makeRows)
{
    m_objects.push_back(std::make_unique<Object>());
    makeRows(m_objects.back()->list);
    return *m_objects.back();
}

void tst_SelectionDelegate::selectAll()
{
    QVector<SelectionMember> members;
    for (const auto &object : m_objects)
        members.append(object->member());
    m_selection->setMembers(members);
}

void tst_SelectionDelegate::select(const MakeRows &makeRows, const QVector<QVariant> &values)
{
    for (const QVariant &value : values)
        add(makeRows).values.insert(QStringLiteral("x"), value);
    selectAll();
}

/// "Set to Default" in the menu of the first row.
void tst_SelectionDelegate::pickDefault()
{
    const TestSupport::MenuProbe probe([](QMenu *menu) {
        QTest::mouseClick(menu, Qt::LeftButton, {},
                          menu->actionGeometry(menu->actions().first()).center());
    });
    const QPoint position = control<QAbstractSpinBox>()->parentWidget()->geometry().center();
    QContextMenuEvent event(QContextMenuEvent::Mouse, position, m_panel->mapToGlobal(position));
    QCoreApplication::sendEvent(m_panel.get(), &event);
    QCOMPARE(probe.menus, 1);
    m_panel->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_panel.get()));
}

/// Shows a panel whose edits go through a policy, or at once without it.
void tst_SelectionDelegate::showPanel(CommitPolicy *policy)
{
    IPropertyEditorDelegate *const front = policy;
    m_panel = std::make_unique<PropertyEditorPanel>(m_selection->properties(),
                                                    front ? front : m_selection.get(), nullptr);
    if (policy)
        policy->watch(m_panel.get());
    m_selection->attach(m_panel.get());
    m_panel->show();
    m_panel->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_panel.get()));
}

Property *tst_SelectionDelegate::row(const char *name) const
{
    const auto rows = m_selection->properties();
    for (Property *row : rows) {
        if (row->name == QLatin1String(name))
            return row;
    }
    return nullptr;
}

QVector<QVariant> tst_SelectionDelegate::values() const
{
    QVector<QVariant> result;
    for (const auto &object : m_objects)
        result.append(object->values.value(QStringLiteral("x")));
    return result;
}

void tst_SelectionDelegate::nothingIsSelectedAtFirst()
{
    QVERIFY(m_selection->properties().isEmpty());
    QVERIFY(m_selection->members().isEmpty());
    QCOMPARE(m_selection->mixedCount(), 0);
    QVERIFY(!m_selection->isMixed(nullptr));
    QVERIFY(!m_selection->isCommon(nullptr));
    QVERIFY(!m_selection->hasDefault(nullptr));
    QVERIFY(!m_selection->value(nullptr).isValid());
    QVERIFY(!m_selection->setToDefault(nullptr));
    QVERIFY(!m_selection->assign(nullptr, 1));
    QVERIFY(m_selection->applyRelative(nullptr, RelativeOperation::Add, 1));
    m_selection->setValue(nullptr, 1, kNew);
    m_selection->attach(nullptr);
    m_selection->refresh();
}

void tst_SelectionDelegate::oneObjectHasAllItsRows()
{
    Object &object = add([](PropertyList &list) {
        list.separator();
        list.group(QStringLiteral("Empty"), [] {});
        list.string(QString(), QStringLiteral("No name"));
        list.number(QStringLiteral("x"), QStringLiteral("X")).range(0, 1).defaultValue(0.5);
    });
    object.values[QStringLiteral("x")] = 0.25;
    selectAll();

    QCOMPARE(names(m_selection->properties()), names(object.list.properties()));
    QCOMPARE(m_selection->value(x()), QVariant(0.25));
    QCOMPARE(x()->defaultValue, QVariant(0.5));
    QVERIFY(x() != object.row(QStringLiteral("x")));
    QCOMPARE(m_selection->mixedCount(), 0);
}

void tst_SelectionDelegate::rowsMatchByNameAndType()
{
    add([](PropertyList &list) {
        list.number(QStringLiteral("a"), QStringLiteral("First"));
        list.integer(QStringLiteral("b"), QStringLiteral("B"));
        list.boolean(QStringLiteral("c"), QStringLiteral("C"));
        list.boolean(QString(), QStringLiteral("No name"));
    });
    add([](PropertyList &list) {
        list.boolean(QString(), QStringLiteral("No name"));
        list.boolean(QStringLiteral("c"), QStringLiteral("C"));
        list.number(QStringLiteral("b"), QStringLiteral("B"));
        list.number(QStringLiteral("a"), QStringLiteral("Second"));
    });
    selectAll();

    QCOMPARE(names(m_selection->properties()), QStringLiteral("a c"));
    QCOMPARE(row("a")->label, QStringLiteral("First"));
    QVERIFY(m_selection->isCommon(row("a")));
}

void tst_SelectionDelegate::partialRowsAreDisabledIfWanted()
{
    m_selection->setPartialRows(PartialRows::Disable);
    QCOMPARE(m_selection->partialRows(), PartialRows::Disable);
    add([](PropertyList &list) {
        list.group(QStringLiteral("Group"), [&] {
            list.boolean(QStringLiteral("a"), QStringLiteral("A")).defaultValue(true);
        });
        list.boolean(QStringLiteral("b"), QStringLiteral("B"));
    }).values[QStringLiteral("a")] = true;
    add([](PropertyList &list) {
        list.group(QStringLiteral("Other"),
                   [&] { list.boolean(QStringLiteral("c"), QStringLiteral("C")); });
        list.boolean(QStringLiteral("b"), QStringLiteral("B"));
    });
    selectAll();

    QCOMPARE(names(m_selection->properties()), QStringLiteral("begin_group a end_group b c"));
    QVERIFY(!m_selection->isCommon(row("a")));
    QVERIFY(m_selection->isCommon(row("b")));
    QVERIFY(!m_selection->isCommon(row("c")));
    QCOMPARE(row("a")->hint(kPropertyHintEnabled), QVariant(false));
    QVERIFY(!row("b")->hint(kPropertyHintEnabled).isValid());
    QVERIFY(row("a")->defaultValue.isNull());
    QCOMPARE(m_selection->value(row("a")), QVariant(true));

    QSignalSpy spy(m_selection.get(), &SelectionDelegate::listChanged);
    m_selection->setPartialRows(PartialRows::LeaveOut);
    QCOMPARE(spy.size(), 1);
    QCOMPARE(names(m_selection->properties()), QStringLiteral("b"));
}

void tst_SelectionDelegate::pointlessStructureIsLeftOut()
{
    add([](PropertyList &list) {
        list.boolean(QStringLiteral("own1"), QString());
        list.separator();
        list.group(QStringLiteral("Gone"), [&] {
            list.boolean(QStringLiteral("own2"), QString());
            list.separator();
            list.group(QStringLiteral("Inner"),
                       [&] { list.boolean(QStringLiteral("own3"), QString()); });
        });
        list.tabs([&] {
            list.tab(QStringLiteral("Gone"),
                     [&] { list.boolean(QStringLiteral("own4"), QString()); });
            list.tab(QStringLiteral("Stays"), [&] {
                list.boolean(QStringLiteral("a"), QString());
                list.separator();
                list.boolean(QStringLiteral("own5"), QString());
            });
            list.tab(QStringLiteral("Gone too"),
                     [&] { list.boolean(QStringLiteral("own6"), QString()); });
        });
        list.tabs([&] {
            list.tab(QStringLiteral("Gone"),
                     [&] { list.boolean(QStringLiteral("own7"), QString()); });
        });
        list.boolean(QStringLiteral("b"), QString());
        list.separator();
        list.boolean(QStringLiteral("c"), QString());
        list.separator();
        list.boolean(QStringLiteral("own8"), QString());
    });
    add([](PropertyList &list) {
        for (const char *name : {"a", "b", "c"})
            list.boolean(QLatin1String(name), QString());
    });
    selectAll();

    QCOMPARE(names(m_selection->properties()),
             QStringLiteral("begin_tab_group tab a end_tab_group b separator c"));
    QVERIFY(m_selection->list().validate().size() <= 1); // of the tab's label alone, if at all
}

void tst_SelectionDelegate::rangeIsWhatAllTake_data()
{
    using Ends = QVector<double>;
    QTest::addColumn<QVector<double>>("first");
    QTest::addColumn<QVector<double>>("second");
    QTest::addColumn<QVector<double>>("expected");

    QTest::newRow("the same") << Ends{0, 5, 9} << Ends{0, 5, 9} << Ends{0, 5, 9};
    QTest::newRow("one in the other") << Ends{0, 9, 9} << Ends{2, 5, 7} << Ends{2, 5, 7};
    QTest::newRow("overlapping") << Ends{0, 5, 5} << Ends{3, 9, 9} << Ends{3, 5, 5};
    QTest::newRow("a single value in common") << Ends{0, 5, 5} << Ends{5, 9, 9} << Ends{5, 5, 5};
    QTest::newRow("sliders that do not meet, fields that do")
        << Ends{0, 5, 20} << Ends{10, 15, 18} << Ends{10, 18, 18};
    QTest::newRow("ends the wrong way round are the minimum")
        << Ends{4, 1, 1} << Ends{0, 9, 9} << Ends{4, 4, 4};
}

void tst_SelectionDelegate::rangeIsWhatAllTake()
{
    QFETCH(QVector<double>, first);
    QFETCH(QVector<double>, second);
    QFETCH(QVector<double>, expected);
    for (const QVector<double> &ends : {first, second}) {
        add([&ends](PropertyList &list) {
            list.number(QStringLiteral("x"), QString()).range(ends[0], ends[1], ends[2]);
            list.integer(QStringLiteral("n"), QString())
                .range(int(ends[0]), int(ends[1]), int(ends[2]));
        });
    }
    selectAll();

    for (const Property *property : {x(), row("n")}) {
        QVERIFY(property);
        QCOMPARE(property->minValue.toDouble(), expected.at(0));
        QCOMPARE(property->maxValue.toDouble(), expected.at(1));
        QCOMPARE(property->hardMaxValue.toDouble(), expected.at(2));
    }
    QCOMPARE(row("n")->minValue.userType(), int(QMetaType::Int));
}

/// Editors that need a range read an absent end as 0; others have none then.
void tst_SelectionDelegate::rangeThatOneObjectLacks()
{
    add([](PropertyList &list) {
        list.number(QStringLiteral("x"), QString());
        list.add(kPropertyTypePoint, QStringLiteral("p"), QString())
            .range(QPoint(1, 2), QPoint(8, 9));
    });
    add([](PropertyList &list) {
        list.number(QStringLiteral("x"), QString()).range(-5, 9);
        list.add(kPropertyTypePoint, QStringLiteral("p"), QString());
    });
    selectAll();

    QCOMPARE(x()->minValue.toDouble(), 0.0);
    QCOMPARE(x()->hardMaxValue.toDouble(), 0.0);
    QVERIFY(isSameValue(*row("p"), row("p")->minValue, QPoint(1, 2)));
    QVERIFY(isSameValue(*row("p"), row("p")->maxValue, QPoint(8, 9)));
}

void tst_SelectionDelegate::boundsThatFollowAreTakenAsTheyAre()
{
    PropertyList list;
    list.integer(QStringLiteral("low"), QString())
        .range(0, 9)
        .maximumFollows(QStringLiteral("high"));
    list.integer(QStringLiteral("high"), QString()).range(0, 99).defaultValue(40);
    PropertyStore store;
    store.reset(list);
    SelectionDelegate selection;
    auto engine = std::make_unique<RuleEngine>(list, &store);

    selection.setMembers({{list, &store}});
    QCOMPARE(selection.properties().at(0)->maxValue, QVariant(40));
    engine.reset();
    QCOMPARE(selection.properties().at(0)->maxValue, QVariant(40));
    selection.setMembers({{list, &store}});
    QCOMPARE(selection.properties().at(0)->maxValue, QVariant(9));
}

void tst_SelectionDelegate::rangesThatDoNotMeetAreNotCommon()
{
    add([](PropertyList &list) { list.number(QStringLiteral("x"), QString()).range(0, 4); });
    add([](PropertyList &list) { list.number(QStringLiteral("x"), QString()).range(5, 9); });
    selectAll();

    QVERIFY(!x());
}

void tst_SelectionDelegate::rangeOfVectorsIsTakenByComponents()
{
    add([](PropertyList &list) {
        list.vec2(QStringLiteral("x"), QString()).range(QVector2D(0, -9), QVector2D(4, 9));
    });
    add([](PropertyList &list) {
        list.vec2(QStringLiteral("x"), QString()).range(QVector2D(1, -1), QStringLiteral("9 1"));
    });
    selectAll();

    QCOMPARE(x()->minValue, QVariant(QVector2D(1, -1)));
    QCOMPARE(x()->hardMaxValue, QVariant(QVector2D(4, 1)));
}

void tst_SelectionDelegate::hintsThatMustAgree_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("hint");
    QTest::addColumn<QVariant>("first");
    QTest::addColumn<QVariant>("second");

    const QVariantList texts{QStringLiteral("A"), QStringLiteral("B")};
    const QVariantList others{QStringLiteral("B"), QStringLiteral("A")};
    QTest::newRow("texts of choices") << kPropertyTypeEnumeration << kPropertyHintDisplayValues
                                      << QVariant(texts) << QVariant(others);
    QTest::newRow("values of choices")
        << kPropertyTypeEnumeration << kPropertyHintValues << QVariant(texts) << QVariant();
    QTest::newRow("suffix") << kPropertyTypeFloat << kPropertyHintSuffix
                            << QVariant(QStringLiteral(" mm")) << QVariant(QStringLiteral(" cm"));
    QTest::newRow("display scale")
        << kPropertyTypeFloat << kPropertyHintDisplayScale << QVariant(10) << QVariant(100);
    QTest::newRow("aspect ratio") << kPropertyTypeSize << kPropertyHintAspectRatio
                                  << QVariant(QSize(4, 3)) << QVariant(QSize(16, 9));
    QTest::newRow("transform without rotation")
        << kPropertyTypeTransform2D << kPropertyHintXfrmNoRotation << QVariant(true) << QVariant();
    const auto textures = [](const QString &name) {
        return QVariantList{QVariant::fromValue(TextureChoice{name, {}, {}})};
    };
    QTest::newRow("textures") << kPropertyTypeTexture << QStringLiteral("textures")
                              << QVariant(textures(QStringLiteral("Wood")))
                              << QVariant(textures(QStringLiteral("Stone")));
}

void tst_SelectionDelegate::hintsThatMustAgree()
{
    QFETCH(QString, type);
    QFETCH(QString, hint);
    QFETCH(QVariant, first);
    QFETCH(QVariant, second);
    const auto makeRow = [&](const QVariant &value) {
        return [&, value](PropertyList &list) {
            list.add(type, QStringLiteral("x"), QString()).hint(hint, value);
        };
    };
    add(makeRow(first));
    add(makeRow(first));
    selectAll();
    QVERIFY(x());

    add(makeRow(second));
    selectAll();
    QVERIFY(!x());
}

void tst_SelectionDelegate::otherHintsAreTheFirsts()
{
    add([](PropertyList &list) {
        list.number(QStringLiteral("x"), QString())
            .decimals(2)
            .visibleWhen(QStringLiteral("y"))
            .enabledWhen(QStringLiteral("y"));
        list.boolean(QStringLiteral("y"), QString());
    });
    add([](PropertyList &list) {
        list.number(QStringLiteral("x"), QString())
            .decimals(3)
            .visibleWhen(QStringLiteral("y"))
            .enabledWhen(QStringLiteral("not y"));
        list.boolean(QStringLiteral("y"), QString()).enabled(false);
    });
    selectAll();

    QCOMPARE(x()->hint(kPropertyHintFloatDecimals), QVariant(2));
    QVERIFY(x()->hint(QStringLiteral("visible_when")).isValid());
    QVERIFY(!x()->hint(QStringLiteral("enabled_when")).isValid());
    QCOMPARE(row("y")->hint(kPropertyHintEnabled), QVariant(false));
}

void tst_SelectionDelegate::objectsMayShareAList()
{
    PropertyList list;
    list.integer(QStringLiteral("x"), QString()).range(0, 9);
    PropertyStore first;
    PropertyStore second;
    first.setValue(list.properties().at(0), 1, kNew);
    second.setValue(list.properties().at(0), 2, kNew);
    m_selection->setMembers({{list, &first}, {list, &second}});
    QVERIFY(m_selection->isMixed(x()));

    m_selection->setValue(x(), 5, kNew);
    m_selection->setValue(x(), 6, kContinued);
    QCOMPARE(first.value(list.properties().at(0)), QVariant(6));
    QCOMPARE(second.value(list.properties().at(0)), QVariant(6));

    QCOMPARE(m_stack->count(), 1);
    m_stack->undo();
    QCOMPARE(first.value(list.properties().at(0)), QVariant(1));
    QCOMPARE(second.value(list.properties().at(0)), QVariant(2));
}

struct Shape
{
    double width = 1;
    bool filled = false;
};

void tst_SelectionDelegate::structsAreObjects()
{
    Shape first;
    Shape second;
    second.width = 2;
    auto firstRows = bindStruct(&first);
    auto secondRows = bindStruct(&second);
    for (auto *rows : {&firstRows, &secondRows}) {
        rows->bind(&Shape::width, QStringLiteral("Width")).range(0, 10);
        rows->bind(&Shape::filled, QStringLiteral("Filled"));
    }
    m_selection->setMembers(
        {{firstRows.properties(), &firstRows}, {secondRows.properties(), &secondRows}});
    QCOMPARE(m_selection->mixedCount(), 1);

    m_selection->setValue(row("width"), 5.0, kNew);
    QCOMPARE(first.width, 5.0);
    QCOMPARE(second.width, 5.0);
    m_stack->undo();
    QCOMPARE(first.width, 1.0);
    QCOMPARE(second.width, 2.0);
}

const MakeRows kInteger = [](PropertyList &list) {
    list.integer(QStringLiteral("x"), QStringLiteral("X")).range(0, 100);
};
const MakeRows kNumber = [](PropertyList &list) {
    list.number(QStringLiteral("x"), QStringLiteral("X")).range(0, 100);
};
const MakeRows kBoolean = [](PropertyList &list) {
    list.boolean(QStringLiteral("x"), QStringLiteral("X"));
};
const MakeRows kString = [](PropertyList &list) {
    list.string(QStringLiteral("x"), QStringLiteral("X"));
};
const MakeRows kVector = [](PropertyList &list) {
    list.vec3(QStringLiteral("x"), QStringLiteral("X"))
        .range(QVector3D(-9, -9, -9), QVector3D(9, 9, 9));
};

void tst_SelectionDelegate::mixedRows()
{
    const MakeRows makeRows = [](PropertyList &list) {
        list.integer(QStringLiteral("x"), QString()).range(0, 9);
        list.string(QStringLiteral("s"), QString());
        list.action(QStringLiteral("go"), QString());
    };
    select(makeRows, {1, 1, 1});
    QSignalSpy spy(m_selection.get(), &SelectionDelegate::mixedChanged);
    QVERIFY(!m_selection->isMixed(x()));
    QCOMPARE(m_selection->mixedCount(), 0);

    m_objects[2]->values[QStringLiteral("x")] = 2;
    m_objects[1]->values[QStringLiteral("s")] = QStringLiteral("text");
    m_selection->refresh();
    QVERIFY(m_selection->isMixed(x()));
    QVERIFY(m_selection->isMixed(row("s")));
    QVERIFY(!m_selection->isMixed(row("go")));
    QCOMPARE(m_selection->mixedCount(), 2);
    QCOMPARE(spy.size(), 2);
    QCOMPARE(spy.at(0).at(0).value<Property *>(), x());
    QCOMPARE(spy.at(0).at(1), QVariant(true));

    m_selection->refresh();
    QCOMPARE(spy.size(), 2);
    m_selection->setValue(x(), 3, kNew);
    QCOMPARE(spy.size(), 3);
    QCOMPARE(spy.at(2).at(1), QVariant(false));
    m_stack->undo();
    QCOMPARE(spy.size(), 4);
    QVERIFY(m_selection->isMixed(x()));
}

void tst_SelectionDelegate::mixedRowShowsNoObjectsValue_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QVariant>("first");
    QTest::addColumn<QVariant>("second");
    QTest::addColumn<QVariant>("shown");

    QTest::newRow("int") << kPropertyTypeInteger << QVariant(3) << QVariant(4) << QVariant();
    QTest::newRow("float") << kPropertyTypeFloat << QVariant(3.0) << QVariant(4.0) << QVariant();
    QTest::newRow("bool") << kPropertyTypeBoolean << QVariant(true) << QVariant(false)
                          << QVariant();
    QTest::newRow("string") << kPropertyTypeString << QVariant(QStringLiteral("a"))
                            << QVariant(QStringLiteral("b")) << QVariant();
    QTest::newRow("choice by index")
        << kPropertyTypeEnumeration << QVariant(1) << QVariant(2) << QVariant(-1);
    QTest::newRow("vector without a common component")
        << kPropertyTypeVec2 << QVariant(QVector2D(1, 2)) << QVariant(QVector2D(3, 4))
        << QVariant();
    QTest::newRow("vector with a common component")
        << kPropertyTypeVec3 << QVariant(QVector3D(1, 2, 3)) << QVariant(QVector3D(4, 2, 5))
        << QVariant(QVector3D(0, 2, 0));
    QTest::newRow("size with a common height") << kPropertyTypeSize << QVariant(QSize(10, 20))
                                               << QVariant(QSize(30, 20)) << QVariant(QSize(1, 20));
    QTest::newRow("colour") << kPropertyTypeColor << QVariant(QColor(Qt::red))
                            << QVariant(QColor(Qt::yellow)) << QVariant();
    QTest::newRow("value that one object lacks")
        << kPropertyTypeInteger << QVariant(3) << QVariant() << QVariant();
    QTest::newRow("vector that one object has as text")
        << kPropertyTypeVec4 << QVariant(QStringLiteral("1 2 3 4"))
        << QVariant(QVector4D(5, 2, 3, 6)) << QVariant(QVector4D(0, 2, 3, 0));
    QTest::newRow("picture") << kPropertyTypeImage << QVariant(blank(Qt::red))
                             << QVariant(blank(Qt::blue)) << QVariant(QImage());
    QTest::newRow("transform that is none")
        << kPropertyTypeTransform2D << transformOf(1, 0) << transformOf(qInf(), 0) << QVariant();
    QTest::newRow("transforms that differ in what has no field")
        << kPropertyTypeTransform2D << transformOf(1, 0) << transformOf(1, 0.5) << QVariant();
    QTest::newRow("image format of another program")
        << kPropertyTypeImageFormat << formatNamed("png") << formatNamed("webp") << QVariant();
}

void tst_SelectionDelegate::mixedRowShowsNoObjectsValue()
{
    QFETCH(QString, type);
    QFETCH(QVariant, first);
    QFETCH(QVariant, second);
    const auto makeRow = [&type](PropertyList &list) {
        list.add(type, QStringLiteral("x"), QString());
    };
    select(makeRow, {first, second});

    QVERIFY(m_selection->isMixed(x()));
    QTEST(m_selection->value(x()), "shown");
}

void tst_SelectionDelegate::changedValuesAreNoticed()
{
    select(kInteger, {1, 1});

    m_objects[1]->values[QStringLiteral("x")] = 2;
    QVERIFY(!m_selection->isMixed(x()));
    QVERIFY(!m_selection->value(x()).isValid());
    QVERIFY(m_selection->isMixed(x()));
}

void tst_SelectionDelegate::editGoesToAllWithItsFlags()
{
    select(kInteger, {1, 2, 3});
    QSignalSpy spy(m_selection.get(), &SelectionDelegate::valueWritten);

    m_selection->setValue(x(), 7, kNew);
    m_selection->setValue(x(), 8, kContinued);

    QCOMPARE(values(), QVector<QVariant>({8, 8, 8}));
    for (const auto &object : m_objects)
        QCOMPARE(object->log().join(QLatin1Char(' ')), QStringLiteral("x=7/0 x=8/1"));
    QCOMPARE(m_selection->value(x()), QVariant(8));
    QVERIFY(spy.isEmpty());
}

void tst_SelectionDelegate::runIsOneStepThatRestoresEachObject()
{
    constexpr int kSteps = 1000;
    select(kNumber, {1.0, 2.0, 3.0});
    QSignalSpy spy(m_selection.get(), &SelectionDelegate::valueWritten);

    m_selection->setValue(x(), 2.0, kNew); // the second object has it already
    for (int i = 1; i <= kSteps; ++i)
        m_selection->setValue(x(), 2.0 + i, kContinued);

    QCOMPARE(m_stack->count(), 1);
    QCOMPARE(m_stack->undoText(), QStringLiteral("X"));
    m_stack->undo();
    QCOMPARE(values(), QVector<QVariant>({1.0, 2.0, 3.0}));
    QVERIFY(m_selection->isMixed(x()));
    QCOMPARE(spy.size(), 1);
    QCOMPARE(spy.at(0).at(0).value<Property *>(), x());
    m_stack->redo();
    QCOMPARE(values(), QVector<QVariant>(3, 2.0 + kSteps));
    QVERIFY(!m_selection->isMixed(x()));
    QCOMPARE(spy.size(), 2);
    for (const auto &object : m_objects)
        QCOMPARE(object->changes.last().flags, int(kNew));
}

void tst_SelectionDelegate::runThatEndsWhereAllBeganLeavesNoStep()
{
    select(kNumber, {1.0, 1.0});

    m_selection->setValue(x(), 2.0, kNew);
    m_selection->setValue(x(), 1.0, kContinued);
    QCOMPARE(m_stack->count(), 0);

    m_selection->setValue(x(), 5.0, kContinued);
    QCOMPARE(m_stack->count(), 1);
    m_stack->undo();
    QCOMPARE(values(), QVector<QVariant>({1.0, 1.0}));
}

/// Keeps the value that it has.
class ReadOnlyObject : public Object
{
public:
    void setValue(Property *, const QVariant &, ChangeFlags) override {}
};

void tst_SelectionDelegate::refusedEditLeavesNoStep()
{
    ReadOnlyObject stubborn;
    kInteger(stubborn.list);
    stubborn.values[QStringLiteral("x")] = 1;
    m_selection->setMembers({stubborn.member()});

    m_selection->setValue(x(), 2, kNew);
    QCOMPARE(m_stack->count(), 0);

    Object &willing = add(kInteger);
    willing.values[QStringLiteral("x")] = 5;
    m_selection->setMembers({stubborn.member(), willing.member()});
    m_selection->setValue(x(), 2, kNew);
    QCOMPARE(m_stack->count(), 1);
    QVERIFY(m_selection->isMixed(x()));
    m_stack->undo();
    QCOMPARE(willing.values.value(QStringLiteral("x")), QVariant(5));
}

void tst_SelectionDelegate::secondRunIsItsOwnStep()
{
    select(kNumber, {1.0, 2.0});

    m_selection->setValue(x(), 3.0, kNew);
    m_selection->setValue(x(), 4.0, kContinued);
    m_selection->setValue(x(), 5.0, kNew);
    m_selection->setValue(x(), 6.0, kContinued);

    QCOMPARE(m_stack->count(), 2);
    m_stack->undo();
    QCOMPARE(values(), QVector<QVariant>({4.0, 4.0}));
    m_stack->undo();
    QCOMPARE(values(), QVector<QVariant>({1.0, 2.0}));
}

void tst_SelectionDelegate::undoReachesObjectsOfAnEarlierSelection()
{
    select(kNumber, {1.0, 2.0, 3.0});
    m_selection->setValue(x(), 9.0, kNew);
    m_selection->setMembers({m_objects[2]->member()});
    QSignalSpy spy(m_selection.get(), &SelectionDelegate::valueWritten);

    m_stack->undo();
    QCOMPARE(values(), QVector<QVariant>({1.0, 2.0, 3.0}));
    QCOMPARE(spy.size(), 1); // of the object that is selected still

    m_selection->setMembers({});
    m_stack->redo();
    QCOMPARE(values(), QVector<QVariant>({9.0, 9.0, 9.0}));
    QCOMPARE(spy.size(), 1);
}

void tst_SelectionDelegate::undoReachesObjectsWithoutSelection()
{
    select(kNumber, {1.0, 2.0});
    m_selection->setValue(x(), 9.0, kNew);
    m_selection.reset();

    m_stack->undo();

    QCOMPARE(values(), QVector<QVariant>({1.0, 2.0}));
}

void tst_SelectionDelegate::undoPassesOverObjectsThatAreGone()
{
    select(kNumber, {1.0, 2.0});
    m_selection->setValue(x(), 9.0, kNew);
    m_objects.erase(m_objects.begin());

    m_stack->undo();
    QCOMPARE(values(), QVector<QVariant>{QVariant(2.0)});
    m_objects.clear();
    m_stack->redo();
}

void tst_SelectionDelegate::runDoesNotGoOnInAnotherSelection()
{
    select(kNumber, {1.0, 2.0});
    m_selection->setValue(x(), 9.0, kNew);
    m_selection->setMembers({m_objects[1]->member(), m_objects[0]->member()});

    m_selection->setValue(x(), 10.0, kContinued);

    QCOMPARE(m_stack->count(), 2);
}

void tst_SelectionDelegate::actionGoesToAllWithoutStep()
{
    select([](PropertyList &list) { list.action(QStringLiteral("x"), QStringLiteral("Go")); },
           {QVariant(), QVariant()});

    m_selection->setValue(x(), QVariant(), kNew);

    for (const auto &object : m_objects)
        QCOMPARE(object->log().join(QLatin1Char(' ')), QStringLiteral("x=/0"));
    QCOMPARE(m_stack->count(), 0);
    QVERIFY(!m_selection->assign(x(), 1));
    QVERIFY(!m_selection->setToDefault(x()));
}

void tst_SelectionDelegate::foldingGoesToTheFirstWithoutStep()
{
    const MakeRows makeRows = [](PropertyList &list) {
        list.group(QStringLiteral("Group"), [&] { kInteger(list); });
    };
    select(makeRows, {1, 1});
    Property *const group = m_selection->properties().first();

    m_selection->setValue(group, false, kNew);

    QCOMPARE(m_objects[0]->changes.size(), 1);
    QVERIFY(m_objects[1]->changes.isEmpty());
    QCOMPARE(m_selection->value(group), QVariant(false));
    QVERIFY(!m_selection->isMixed(group));
    QCOMPARE(m_stack->count(), 0);
}

void tst_SelectionDelegate::invalidValueChangesNothing()
{
    select(kInteger, {1, 2});

    m_selection->setValue(x(), QVariant(), kNew);

    QCOMPARE(values(), QVector<QVariant>({1, 2}));
    QVERIFY(m_objects[0]->changes.isEmpty());
}

void tst_SelectionDelegate::undoDelegateInFrontDoesNoHarm()
{
    select(kInteger, {1, 2});
    QUndoStack other;
    UndoDelegate undo(m_selection.get(), &other);
    undo.setValue(x(), 5, kNew);
    QCOMPARE(values(), QVector<QVariant>({5, 5}));

    other.undo(); // knows no single value to go back to

    QCOMPARE(values(), QVector<QVariant>({5, 5}));
    m_stack->undo();
    QCOMPARE(values(), QVector<QVariant>({1, 2}));
}

void tst_SelectionDelegate::rowsThatAreNotCommonAreNotEdited()
{
    m_selection->setPartialRows(PartialRows::Disable);
    add(kInteger).values[QStringLiteral("x")] = 1;
    add(kString);
    selectAll();

    m_selection->setValue(x(), 5, kNew);

    QVERIFY(m_objects[0]->changes.isEmpty());
    QVERIFY(!m_selection->assign(x(), 5));
    QVERIFY(!m_selection->setToDefault(x()));
    QVERIFY(m_selection->applyRelative(x(), RelativeOperation::Add, 1));
    QCOMPARE(m_selection->value(x()), QVariant(1));
}

void tst_SelectionDelegate::assignWritesWhole()
{
    select(kVector, {QVector3D(1, 2, 3), QVector3D(4, 5, 6)});
    QSignalSpy spy(m_selection.get(), &SelectionDelegate::valueWritten);

    QVERIFY(m_selection->assign(x(), QVector3D(0, 0, 7)));

    QCOMPARE(values(), QVector<QVariant>(2, QVector3D(0, 0, 7)));
    QCOMPARE(spy.size(), 1);
    m_stack->undo();
    QCOMPARE(values(), QVector<QVariant>({QVector3D(1, 2, 3), QVector3D(4, 5, 6)}));
}

void tst_SelectionDelegate::relativeEdits_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QVariantList>("range");
    QTest::addColumn<QVariantList>("before");
    QTest::addColumn<int>("operation");
    QTest::addColumn<QVariant>("operand");
    QTest::addColumn<QVariantList>("after");

    const auto add = static_cast<int>(RelativeOperation::Add);
    const auto subtract = static_cast<int>(RelativeOperation::Subtract);
    const auto multiply = static_cast<int>(RelativeOperation::Multiply);
    const auto divide = static_cast<int>(RelativeOperation::Divide);
    const QVariantList hundred{0, 100};
    QTest::newRow("int += 2") << kPropertyTypeInteger << hundred << QVariantList{1, 2} << add
                              << QVariant(2) << QVariantList{3, 4};
    QTest::newRow("int -= 2 stops at the minimum")
        << kPropertyTypeInteger << hundred << QVariantList{1, 9} << subtract << QVariant(2)
        << QVariantList{0, 7};
    QTest::newRow("int *= 1.5 is rounded") << kPropertyTypeInteger << hundred << QVariantList{1, 2}
                                           << multiply << QVariant(1.5) << QVariantList{2, 3};
    QTest::newRow("int beyond all ints saturates")
        << kPropertyTypeInteger << QVariantList{QVariant(), QVariant()}
        << QVariantList{2000000000, -2000000000} << multiply << QVariant(1e10)
        << QVariantList{std::numeric_limits<int>::max(), std::numeric_limits<int>::min()};
    QTest::newRow("float /= 4") << kPropertyTypeFloat << hundred << QVariantList{1.0, 2.0} << divide
                                << QVariant(4) << QVariantList{0.25, 0.5};
    QTest::newRow("float *= 100 stops at the maximum")
        << kPropertyTypeFloat << hundred << QVariantList{0.5, 2.0} << multiply << QVariant(100)
        << QVariantList{50.0, 100.0};
    QTest::newRow("percent += half")
        << kPropertyTypePercent << QVariantList{0, 1} << QVariantList{0.25, 0.75} << add
        << QVariant(0.5) << QVariantList{0.75, 1.0};
    QTest::newRow("vec2 *= 2") << kPropertyTypeVec2
                               << QVariantList{QVector2D(0, 0), QVector2D(9, 9)}
                               << QVariantList{QVector2D(1, 2), QVector2D(3, 8)} << multiply
                               << QVariant(2) << QVariantList{QVector2D(2, 4), QVector2D(6, 9)};
    QTest::newRow("vec3 += vector")
        << kPropertyTypeVec3 << QVariantList{QVector3D(0, 0, 0), QVector3D(9, 9, 9)}
        << QVariantList{QVector3D(1, 2, 3), QVector3D(4, 5, 6)} << add
        << QVariant(QVector3D(1, 0, -1)) << QVariantList{QVector3D(2, 2, 2), QVector3D(5, 5, 5)};
    QTest::newRow("vec4 -= vector without range")
        << kPropertyTypeVec4 << QVariantList{QVariant(), QVariant()}
        << QVariantList{QVector4D(1, 2, 3, 4), QVector4D(0, 0, 0, 0)} << subtract
        << QVariant(QVector4D(1, 1, 1, 1))
        << QVariantList{QVector4D(0, 1, 2, 3), QVector4D(-1, -1, -1, -1)};
    QTest::newRow("size /= 4 stays a size")
        << kPropertyTypeSize << QVariantList{QVariant(), QVariant()}
        << QVariantList{QSize(640, 480), QSize(2, 1)} << divide << QVariant(4)
        << QVariantList{QSize(160, 120), QSize(1, 1)};
    QTest::newRow("render_size += size")
        << kPropertyTypeRenderSize << QVariantList{QVariant(), QVariant()}
        << QVariantList{QSize(640, 480), QSize(2, 1)} << add << QVariant(QSize(10, 0))
        << QVariantList{QSize(650, 480), QSize(12, 1)};
}

void tst_SelectionDelegate::relativeEdits()
{
    QFETCH(QString, type);
    QFETCH(QVariantList, range);
    QFETCH(QVariantList, before);
    QFETCH(int, operation);
    QFETCH(QVariant, operand);
    const auto makeRow = [&](PropertyList &list) {
        list.add(type, QStringLiteral("x"), QString()).range(range.at(0), range.at(1));
    };
    select(makeRow, {before.at(0), before.at(1)});

    const auto problem =
        m_selection->applyRelative(x(), static_cast<RelativeOperation>(operation), operand);

    QVERIFY2(!problem, problem ? qPrintable(problem->message) : "");
    QTEST(QVariantList({values().at(0), values().at(1)}), "after");
    m_stack->undo();
    QCOMPARE(QVariantList({values().at(0), values().at(1)}), before);
}

void tst_SelectionDelegate::relativeEditsAreRefused_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<int>("operation");
    QTest::addColumn<QVariant>("operand");
    QTest::addColumn<QString>("message");

    const auto add = static_cast<int>(RelativeOperation::Add);
    const auto multiply = static_cast<int>(RelativeOperation::Multiply);
    const auto divide = static_cast<int>(RelativeOperation::Divide);
    QTest::newRow("division by zero") << kPropertyTypeFloat << QVariant(1.0) << divide
                                      << QVariant(0) << QStringLiteral("division by zero");
    QTest::newRow("division by negative zero")
        << kPropertyTypeFloat << QVariant(1.0) << divide << QVariant(-0.0)
        << QStringLiteral("division by zero");
    QTest::newRow("division of a component by zero")
        << kPropertyTypeVec2 << QVariant(QVector2D(1, 1)) << divide << QVariant(QVector2D(1, 0))
        << QStringLiteral("division by zero");
    QTest::newRow("NaN") << kPropertyTypeFloat << QVariant(1.0) << add << QVariant(qQNaN())
                         << QStringLiteral("the operand is not a finite number");
    QTest::newRow("infinity") << kPropertyTypeInteger << QVariant(1) << multiply << QVariant(qInf())
                              << QStringLiteral("the operand is not a finite number");
    QTest::newRow("a text") << kPropertyTypeFloat << QVariant(1.0) << add
                            << QVariant(QStringLiteral("2"))
                            << QStringLiteral("the operand is not a number");
    QTest::newRow("too few components")
        << kPropertyTypeVec3 << QVariant(QVector3D()) << add << QVariant(QVector2D(1, 1))
        << QStringLiteral("the operand is neither a number nor 3");
    QTest::newRow("a value that is none") << kPropertyTypeFloat << QVariant() << add << QVariant(1)
                                          << QStringLiteral("the value is not a number");
    QTest::newRow("a value that is NaN")
        << kPropertyTypeFloat << QVariant(qQNaN()) << add << QVariant(1)
        << QStringLiteral("the value is not a number");
    QTest::newRow("a result beyond all numbers")
        << kPropertyTypeFloat << QVariant(1e300) << multiply << QVariant(1e300)
        << QStringLiteral("the result is not a number");
    QTest::newRow("a colour") << kPropertyTypeColor << QVariant(QColor(Qt::red)) << add
                              << QVariant(1)
                              << QStringLiteral("type \"vec4/color\" has no arithmetic");
}

void tst_SelectionDelegate::relativeEditsAreRefused()
{
    QFETCH(QString, type);
    QFETCH(QVariant, value);
    QFETCH(int, operation);
    QFETCH(QVariant, operand);
    const auto makeRow = [&type](PropertyList &list) {
        list.add(type, QStringLiteral("x"), QString());
    };
    const QVariant fine = type == kPropertyTypeFloat ? QVariant(1.0) : value;
    select(makeRow, {fine, value});

    const auto problem =
        m_selection->applyRelative(x(), static_cast<RelativeOperation>(operation), operand);

    QVERIFY(problem);
    QTEST(problem->message, "message");
    QCOMPARE(problem->name, QStringLiteral("x"));
    QCOMPARE(problem->row, 0);
    QVERIFY(m_objects[0]->changes.isEmpty()); // all or none
    QCOMPARE(m_stack->count(), 0);
}

void tst_SelectionDelegate::relativeEditIsOneStep()
{
    add([](PropertyList &list) { list.number(QStringLiteral("x"), QString()).range(0, 3); });
    add([](PropertyList &list) { list.number(QStringLiteral("x"), QString()).range(0, 9); });
    m_objects[0]->values[QStringLiteral("x")] = 2.0;
    m_objects[1]->values[QStringLiteral("x")] = 4.0;
    selectAll();
    QSignalSpy spy(m_selection.get(), &SelectionDelegate::valueWritten);

    m_selection->setValue(x(), 2.0, kNew);
    m_stack->undo();
    spy.clear();
    QVERIFY(!m_selection->applyRelative(x(), RelativeOperation::Multiply, 2));

    QCOMPARE(values(), QVector<QVariant>({3.0, 8.0})); // each in its own range
    QCOMPARE(m_stack->count(), 1);
    QCOMPARE(spy.size(), 1);
    m_stack->undo();
    QCOMPARE(values(), QVector<QVariant>({2.0, 4.0}));
}

void tst_SelectionDelegate::relativeTexts_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isOne");
    QTest::addColumn<int>("operation");
    QTest::addColumn<QVariant>("operand");

    const auto one = [](const char *name, const QString &type, const char *text,
                        RelativeOperation operation, const QVariant &operand) {
        QTest::newRow(name) << type << QString::fromLatin1(text) << true
                            << static_cast<int>(operation) << operand;
    };
    one("add", kPropertyTypeFloat, "+=2", RelativeOperation::Add, 2.0);
    one("subtract", kPropertyTypeInteger, " -= 2.5 ", RelativeOperation::Subtract, 2.5);
    one("multiply", kPropertyTypeFloat, "*=-1e2", RelativeOperation::Multiply, -100.0);
    one("divide by zero is read", kPropertyTypeFloat, "/=0", RelativeOperation::Divide, 0.0);
    one("suffix", kPropertyTypeFloat, "+=2 dB", RelativeOperation::Add, 2.0);
    one("percent adds hundredths", kPropertyTypePercent, "+=50%", RelativeOperation::Add, 0.5);
    one("percent multiplies by the number", kPropertyTypePercent, "*=2",
        RelativeOperation::Multiply, 2.0);
    one("vector", kPropertyTypeVec3, "*=1, 2, 3", RelativeOperation::Multiply, QVector3D(1, 2, 3));
    one("number for a vector", kPropertyTypeVec2, "*=3", RelativeOperation::Multiply, 3.0);
    one("size", kPropertyTypeSize, "+=10 20", RelativeOperation::Add, QPointF(10, 20));
    one("four numbers", kPropertyTypeVec4, "-=1 2 3 4", RelativeOperation::Subtract,
        QVector4D(1, 2, 3, 4));

    const auto none = [](const char *text, const QString &type) {
        QTest::addRow("none: '%s'", text)
            << type << QString::fromLatin1(text) << false << 0 << QVariant();
    };
    for (const char *text : {"", "2", "+2", "+=", "+= ", "=2", "%=2", "+=x", "+=nan", "+=inf",
                             "+=1e999", "+=1 2", "+=0x10", "+=2 cm", "+=1,,2"})
        none(text, kPropertyTypeFloat);
    none("+=1 2", kPropertyTypeVec3);
    none("+=a", kPropertyTypeString);
}

void tst_SelectionDelegate::relativeTexts()
{
    QFETCH(QString, type);
    QFETCH(QString, text);
    QFETCH(bool, isOne);
    Property property(QStringLiteral("x"), QString(), type);
    property.setHint(kPropertyHintSuffix, QStringLiteral(" dB"));

    const auto edit = parseRelativeEdit(text, property);

    QCOMPARE(edit.has_value(), isOne);
    if (!isOne)
        return;
    QTEST(static_cast<int>(edit->operation), "operation");
    QTEST(edit->operand, "operand");
}

void tst_SelectionDelegate::eachObjectHasItsOwnDefault()
{
    for (const QVariant &value : {QVariant(1), QVariant(2), QVariant()}) {
        add([&value](PropertyList &list) {
            list.integer(QStringLiteral("x"), QString()).range(0, 9).defaultValue(value);
        }).values[QStringLiteral("x")] = 5;
    }
    selectAll();
    QSignalSpy spy(m_selection.get(), &SelectionDelegate::valueWritten);
    QVERIFY(m_selection->hasDefault(x()));
    QVERIFY(x()->defaultValue.isNull());

    QVERIFY(m_selection->setToDefault(x()));

    QCOMPARE(values(), QVector<QVariant>({1, 2, 5})); // one without default stays
    QVERIFY(m_selection->isMixed(x()));
    QCOMPARE(spy.size(), 1);
    QCOMPARE(m_stack->count(), 1);
    m_stack->undo();
    QCOMPARE(values(), QVector<QVariant>({5, 5, 5}));
}

void tst_SelectionDelegate::sharedDefaultIsTheRows()
{
    select(
        [](PropertyList &list) {
            list.integer(QStringLiteral("x"), QString()).range(0, 9).defaultValue(4);
            list.integer(QStringLiteral("none"), QString()).range(0, 9);
        },
        {1, 2});
    QCOMPARE(x()->defaultValue, QVariant(4));
    QVERIFY(!m_selection->hasDefault(row("none")));
    QVERIFY(!m_selection->setToDefault(row("none")));
    showPanel();

    QVector<PropertyEditor *> editors;
    m_panel->getEditors(editors, kPropertyTypeInteger);
    editors.first()->revertToDefaultValue();

    QCOMPARE(values(), QVector<QVariant>({4, 4}));
    QVERIFY(!m_selection->isMixed(x()));
}

void tst_SelectionDelegate::menuGivesEachObjectItsOwnDefault()
{
    for (const double value : {1.0, 2.0}) {
        add([value](PropertyList &list) {
            list.number(QStringLiteral("x"), QString()).range(0, 9).defaultValue(value);
        }).values[QStringLiteral("x")] = 5.0;
    }
    selectAll();
    showPanel();
    auto *const box = control<QDoubleSpinBox>();
    box->setFocus();
    const TestSupport::MenuProbe probe([](QMenu *menu) {
        QTest::mouseClick(menu, Qt::LeftButton, {},
                          menu->actionGeometry(menu->actions().first()).center());
    });

    const QPoint position = box->parentWidget()->geometry().center();
    QContextMenuEvent event(QContextMenuEvent::Mouse, position, m_panel->mapToGlobal(position));
    QCoreApplication::sendEvent(m_panel.get(), &event);

    QCOMPARE(probe.menus, 1);
    QCOMPARE(probe.texts, QStringList(QStringLiteral("Set to Default")));
    QCOMPARE(values(), QVector<QVariant>({1.0, 2.0}));
    QCOMPARE(m_stack->count(), 1);
    QVERIFY(x()->defaultValue.isNull());
    QVERIFY(m_selection->isMixed(x()));
    QVERIFY(box->cleanText().isEmpty());
    m_stack->undo();
    QCOMPARE(values(), QVector<QVariant>({5.0, 5.0}));

    // The same number typed is the same for all.
    m_selection->assign(x(), 3.0);
    m_selection->setValue(x(), 1.0, kNew);
    QCOMPARE(values(), QVector<QVariant>({1.0, 1.0}));
}

/// The neutral numbers behind the blanks are no edit, but the default is meant.
void tst_SelectionDelegate::menuGivesADefaultThatTheBlanksHold()
{
    select(
        [](PropertyList &list) {
            list.vec2(QStringLiteral("x"), QString())
                .range(QVector2D(-9, -9), QVector2D(9, 9))
                .defaultValue(QVector2D(0, 1)); // all zeros are no default with Qt 5
        },
        {QVector2D(1, 2), QVector2D(3, 4)});
    showPanel();

    pickDefault();

    QCOMPARE(values(), QVector<QVariant>({QVector2D(0, 1), QVector2D(0, 1)}));
    QCOMPARE(m_stack->count(), 1);
    QVERIFY(!m_selection->isMixed(x()));
    QCOMPARE(control<QDoubleSpinBox>()->value(), 0.0);
    m_stack->undo();
    QCOMPARE(values(), QVector<QVariant>({QVector2D(1, 2), QVector2D(3, 4)}));
}

/// An edit of another row that waited until then is what the user made of it.
void tst_SelectionDelegate::menuIsAboutItsRowAlone()
{
    for (const int value : {1, 2}) {
        add([value](PropertyList &list) {
            list.integer(QStringLiteral("x"), QString()).range(0, 9).defaultValue(value);
            list.integer(QStringLiteral("y"), QString()).range(0, 9).defaultValue(value);
        }).values = {{QStringLiteral("x"), 5}, {QStringLiteral("y"), 5}};
    }
    selectAll();
    CommitPolicy policy(m_selection.get());
    policy.setDefaultMode(CommitMode::atMost(1));
    showPanel(&policy);
    Property *const y = m_selection->properties().at(1);
    policy.setValue(y, 6, kNew);
    policy.setValue(y, 7, kNew);
    QVERIFY(policy.hasPending());

    pickDefault();

    QCOMPARE(values(), QVector<QVariant>({1, 2}));
    for (const auto &object : m_objects)
        QCOMPARE(object->values.value(QStringLiteral("y")), QVariant(7));
    m_panel.reset();
}

/// Each object gets its own default also when something in front holds the edit back.
void tst_SelectionDelegate::defaultMayArriveLate()
{
    for (const int value : {1, 2}) {
        add([value](PropertyList &list) {
            list.integer(QStringLiteral("x"), QString()).range(0, 9).defaultValue(value);
        }).values[QStringLiteral("x")] = 5;
    }
    selectAll();
    CommitPolicy policy(m_selection.get());
    policy.setDefaultMode(CommitMode::atMost(1));
    showPanel(&policy);
    policy.setValue(x(), 6, kNew);

    pickDefault();
    QVERIFY(policy.hasPending());
    policy.flush();
    QCOMPARE(values(), QVector<QVariant>({1, 2}));

    // What is edited after it takes its place.
    pickDefault();
    QVERIFY(policy.hasPending());
    auto *const box = control<QSpinBox>();
    box->setFocus();
    QTest::keyClick(box, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(box, QStringLiteral("4"));
    policy.flush();
    QCOMPARE(values(), QVector<QVariant>({4, 4}));
    m_panel.reset();
}

void tst_SelectionDelegate::revertWithoutMenuIsRefused()
{
    for (const int value : {1, 2}) {
        add([value](PropertyList &list) {
            list.integer(QStringLiteral("x"), QString()).range(0, 9).defaultValue(value);
        }).values[QStringLiteral("x")] = 5;
    }
    selectAll();
    showPanel();

    QVector<PropertyEditor *> editors;
    m_panel->getEditors(editors, QString());
    editors.first()->revertToDefaultValue();

    QCOMPARE(values(), QVector<QVariant>({5, 5}));
}

void tst_SelectionDelegate::numbersAreBlankWhileMixed()
{
    const MakeRows makeRows = [](PropertyList &list) {
        list.number(QStringLiteral("x"), QString()).range(0, 9).suffix(QStringLiteral(" dB"));
        list.integer(QStringLiteral("n"), QString()).range(0, 9);
        list.percent(QStringLiteral("p"), QString()).range(0, 1);
    };
    select(makeRows, {1.0, 2.0});
    for (int i = 0; i < 2; ++i) {
        m_objects[std::size_t(i)]->values[QStringLiteral("n")] = i;
        m_objects[std::size_t(i)]->values[QStringLiteral("p")] = 0.5;
    }
    showPanel();

    const auto numbers = m_panel->findChildren<QDoubleSpinBox *>();
    QCOMPARE(numbers.at(0)->text(), QStringLiteral(" dB"));
    QVERIFY(isMarked(numbers.at(0)->parentWidget()));
    QVERIFY(control<QSpinBox>()->cleanText().isEmpty());
    QCOMPARE(numbers.at(1)->value(), 50.0);
    QVERIFY(!isMarked(numbers.at(1)->parentWidget()));

    m_selection->assign(x(), 3.0);
    QCOMPARE(numbers.at(0)->text(), QStringLiteral("3 dB"));
    QVERIFY(!isMarked(numbers.at(0)->parentWidget()));
}

void tst_SelectionDelegate::typedNumberGoesToAll()
{
    select(kNumber, {1.0, 2.0});
    showPanel();
    auto *const box = control<QDoubleSpinBox>();
    box->setFocus();
    QCOMPARE(m_stack->count(), 0);

    QTest::keyClicks(box, QStringLiteral("25"));

    QCOMPARE(values(), QVector<QVariant>({25.0, 25.0}));
    QCOMPARE(m_objects[1]->log().join(QLatin1Char(' ')), QStringLiteral("x=2/0 x=25/1"));
    QCOMPARE(box->cleanText(), QStringLiteral("25"));
    QVERIFY(!isMarked(box->parentWidget()));
    QCOMPARE(m_stack->count(), 1);

    m_stack->undo();
    QCOMPARE(values(), QVector<QVariant>({1.0, 2.0}));
    QVERIFY(isMarked(box->parentWidget()));
    QVERIFY(box->hasFocus());
    QVERIFY(box->cleanText().isEmpty());

    QTest::keyClicks(box, QStringLiteral("8"));
    QCOMPARE(values(), QVector<QVariant>({8.0, 8.0}));
}

void tst_SelectionDelegate::typedNumberThatTheBlankHoldsGoesToAll()
{
    select(kNumber, {1.0, 2.0});
    showPanel();
    auto *const box = control<QDoubleSpinBox>();
    QCOMPARE(box->value(), 0.0);
    box->setFocus();

    QTest::keyClicks(box, QStringLiteral("0"));
    QCOMPARE(values(), QVector<QVariant>({0.0, 0.0}));
    QCOMPARE(m_objects[0]->changes.size(), 1);
    QVERIFY(!m_selection->isMixed(x()));

    QTest::keyClicks(box, QStringLiteral(".5"));
    QCOMPARE(values(), QVector<QVariant>({0.5, 0.5}));
    QCOMPARE(m_stack->count(), 1);
    m_stack->undo();
    QCOMPARE(values(), QVector<QVariant>({1.0, 2.0}));
}

void tst_SelectionDelegate::halfTypedNumberIsTakenBack()
{
    select(
        [](PropertyList &list) {
            list.integer(QStringLiteral("x"), QString()).range(-9, 9);
            list.string(QStringLiteral("s"), QString());
        },
        {1, 2});
    showPanel();
    auto *const box = control<QSpinBox>();
    box->setFocus();

    QTest::keyClicks(box, QStringLiteral("-"));
    QTest::keyClick(box, Qt::Key_Return);
    QVERIFY(box->cleanText().isEmpty());
    m_panel->findChildren<QLineEdit *>().last()->setFocus();

    QCOMPARE(values(), QVector<QVariant>({1, 2}));
    QVERIFY(box->cleanText().isEmpty());
    QVERIFY(m_selection->isMixed(x()));
}

void tst_SelectionDelegate::checkBoxIsPartiallyCheckedWhileMixed()
{
    select(kBoolean, {true, false});
    showPanel();
    auto *const box = control<QCheckBox>();
    QCOMPARE(box->checkState(), Qt::PartiallyChecked);
    QVERIFY(isMarked(box));

    QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(8, box->height() / 2));
    QCOMPARE(values(), QVector<QVariant>({true, true}));
    QCOMPARE(m_objects[0]->changes.size(), 1);
    QCOMPARE(box->checkState(), Qt::Checked);
    QVERIFY(!box->isTristate());
    QVERIFY(!isMarked(box));

    QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(8, box->height() / 2));
    QCOMPARE(values(), QVector<QVariant>({false, false}));
    QCOMPARE(box->checkState(), Qt::Unchecked);
    m_stack->undo();
    QCOMPARE(box->checkState(), Qt::Checked);
    m_stack->undo();
    QCOMPARE(values(), QVector<QVariant>({true, false}));
    QCOMPARE(box->checkState(), Qt::PartiallyChecked);
}

void tst_SelectionDelegate::refusedCheckBoxIsPartiallyCheckedAgain()
{
    ReadOnlyObject stubborn;
    kBoolean(stubborn.list);
    stubborn.values[QStringLiteral("x")] = false;
    add(kBoolean).values[QStringLiteral("x")] = true;
    m_selection->setMembers({stubborn.member(), m_objects[0]->member()});
    showPanel();
    auto *const box = control<QCheckBox>();

    QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(8, box->height() / 2));

    QCOMPARE(m_objects[0]->changes.size(), 1);
    QCOMPARE(box->checkState(), Qt::PartiallyChecked);
    m_panel.reset();
    m_selection.reset();
}

void tst_SelectionDelegate::nothingIsChosenWhileMixed_data()
{
    QTest::addColumn<bool>("radioButtons");
    QTest::addColumn<bool>("storedValues");

    QTest::newRow("combo box of indexes") << false << false;
    QTest::newRow("combo box of values") << false << true;
    QTest::newRow("radio buttons of indexes") << true << false;
    QTest::newRow("radio buttons of values") << true << true;
}

void tst_SelectionDelegate::nothingIsChosenWhileMixed()
{
    QFETCH(bool, radioButtons);
    QFETCH(bool, storedValues);
    const auto makeRow = [&](PropertyList &list) {
        PropertyRow row = list.choice(QStringLiteral("x"), QString());
        row.choices({QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C")});
        if (radioButtons)
            row.radioButtons();
        if (storedValues)
            row.hint(kPropertyHintValues, QVariantList{10, 11, 12});
    };
    const int base = storedValues ? 10 : 0;
    select(makeRow, {base + 1, base + 2});
    showPanel();
    const auto chosen = [&]() -> int {
        const auto buttons = m_panel->findChildren<QRadioButton *>();
        for (int i = 0; i < buttons.size(); ++i) {
            if (buttons.at(i)->isChecked())
                return i;
        }
        return radioButtons ? -1 : control<QComboBox>()->currentIndex();
    };
    QCOMPARE(chosen(), -1);

    if (radioButtons)
        QTest::mouseClick(control<QRadioButton>(0), Qt::LeftButton, {}, QPoint(8, 8));
    else
        QTest::keyClick(control<QComboBox>(), Qt::Key_A);
    QCOMPARE(values(), QVector<QVariant>({base, base}));
    QCOMPARE(chosen(), 0);

    m_stack->undo();
    QCOMPARE(values(), QVector<QVariant>({base + 1, base + 2}));
    QCOMPARE(chosen(), -1);
    m_stack->redo();
    QCOMPARE(chosen(), 0);
}

void tst_SelectionDelegate::noTextureIsChosenWhileMixed()
{
    const TextureChoice wood{QStringLiteral("Wood"), {}, {}};
    const TextureChoice stone{QStringLiteral("Stone"), {}, {}};
    select([](PropertyList &list) { list.texture(QStringLiteral("x"), QString()); },
           {QVariant::fromValue(wood), QVariant::fromValue(stone)});
    showPanel();
    QVector<PropertyEditor *> editors;
    m_panel->getEditors(editors, kPropertyTypeTexture);
    qobject_cast<TexturePropertyEditor *>(editors.first())->setTextures({wood, stone});
    m_selection->refresh();
    auto *const textures = control<QListWidget>();
    QCOMPARE(textures->currentRow(), -1);

    QTest::mouseClick(textures->viewport(), Qt::LeftButton, {},
                      textures->visualItemRect(textures->item(1)).center());
    QCOMPARE(values().at(0).value<TextureChoice>().name, QStringLiteral("Stone"));
    QCOMPARE(values().at(1).value<TextureChoice>().name, QStringLiteral("Stone"));

    m_stack->undo();
    QCOMPARE(values().at(0).value<TextureChoice>().name, QStringLiteral("Wood"));
    QCOMPARE(textures->currentRow(), -1);
}

void tst_SelectionDelegate::textThatIsPassedThroughStays()
{
    select(kString, {QStringLiteral("a"), QStringLiteral("b")});
    showPanel();
    auto *const line = control<QLineEdit>();
    QVERIFY(line->text().isEmpty());
    QCOMPARE(line->placeholderText(), QStringLiteral("Several values"));

    line->setFocus();
    QTest::keyClick(line, Qt::Key_Return);
    line->clearFocus();
    QCOMPARE(values(), QVector<QVariant>({QStringLiteral("a"), QStringLiteral("b")}));
    QVERIFY(m_objects[0]->changes.isEmpty());

    line->setFocus();
    QTest::keyClicks(line, QStringLiteral("new"));
    QTest::keyClick(line, Qt::Key_Return);
    QCOMPARE(values(), QVector<QVariant>({QStringLiteral("new"), QStringLiteral("new")}));
    QVERIFY(line->placeholderText().isEmpty());
    QVERIFY(!isMarked(line));
}

void tst_SelectionDelegate::textThatIsEmptiedGoesToAll()
{
    select(kString, {QStringLiteral("a"), QStringLiteral("b")});
    showPanel();
    auto *const line = control<QLineEdit>();
    line->setFocus();

    QTest::keyClicks(line, QStringLiteral("x"));
    QTest::keyClick(line, Qt::Key_Backspace);
    QTest::keyClick(line, Qt::Key_Return);

    QCOMPARE(values(), QVector<QVariant>({QString(), QString()}));
}

void tst_SelectionDelegate::emptyTextWithoutPanelStays()
{
    select(kString, {QStringLiteral("a"), QStringLiteral("b")});

    m_selection->setValue(x(), QString(), kNew);
    QCOMPARE(values(), QVector<QVariant>({QStringLiteral("a"), QStringLiteral("b")}));

    QVERIFY(m_selection->assign(x(), QString()));
    QCOMPARE(values(), QVector<QVariant>({QString(), QString()}));
}

void tst_SelectionDelegate::oneComponentGoesToAll()
{
    select(kVector, {QVector3D(1, 2, 3), QVector3D(4, 2, 6)});
    showPanel();
    const auto boxes = m_panel->findChildren<QDoubleSpinBox *>();
    QVERIFY(boxes.at(0)->cleanText().isEmpty());
    QCOMPARE(boxes.at(1)->value(), 2.0);
    QCOMPARE(boxes.at(1)->cleanText(), QStringLiteral("2"));
    QVERIFY(boxes.at(2)->cleanText().isEmpty());

    boxes.at(0)->setFocus();
    QTest::keyClicks(boxes.at(0), QStringLiteral("7"));
    QCOMPARE(values(), QVector<QVariant>({QVector3D(7, 2, 3), QVector3D(7, 2, 6)}));
    QVERIFY(m_selection->isMixed(x()));
    QVERIFY(boxes.at(2)->cleanText().isEmpty());

    m_stack->undo();
    QCOMPARE(values(), QVector<QVariant>({QVector3D(1, 2, 3), QVector3D(4, 2, 6)}));
}

void tst_SelectionDelegate::componentThatTheBlankHoldsGoesToAll()
{
    select(kVector, {QVector3D(1, 2, 3), QVector3D(4, 5, 6)});
    showPanel();
    const auto boxes = m_panel->findChildren<QDoubleSpinBox *>();
    boxes.at(1)->setFocus();

    QTest::keyClicks(boxes.at(1), QStringLiteral("0"));

    QCOMPARE(values(), QVector<QVariant>({QVector3D(1, 0, 3), QVector3D(4, 0, 6)}));
}

void tst_SelectionDelegate::draggedComponentGoesToAll()
{
    select(
        [](PropertyList &list) {
            list.vec3(QStringLiteral("x"), QString())
                .range(QVector3D(0, 0, 0), QVector3D(1, 1, 1))
                .showSliders();
        },
        {QVector3D(0.1F, 0.2F, 0.3F), QVector3D(0.4F, 0.5F, 0.6F)});
    showPanel();
    auto *const slider = control<QSlider>(1);

    SliderDrag drag(slider);
    drag.press();
    drag.moveBy(10);
    drag.moveBy(10);
    drag.release();

    const auto first = values().at(0).value<QVector3D>();
    const auto second = values().at(1).value<QVector3D>();
    QVERIFY(first.y() > 0);
    QCOMPARE(first, QVector3D(0.1F, first.y(), 0.3F));
    QCOMPARE(second, QVector3D(0.4F, first.y(), 0.6F));
    QCOMPARE(m_stack->count(), 1);
    QVERIFY(control<QDoubleSpinBox>(0)->cleanText().isEmpty());
}

void tst_SelectionDelegate::oneSideOfASizeGoesToAll()
{
    select(
        [](PropertyList &list) {
            list.size(QStringLiteral("x"), QString()).aspectRatio({0, 1});
        },
        {QSize(10, 20), QSize(30, 40)});
    showPanel();
    auto *const width = control<QSpinBox>(0);
    QVERIFY(width->cleanText().isEmpty());
    QVERIFY(control<QSpinBox>(1)->cleanText().isEmpty());

    width->setFocus();
    QTest::keyClicks(width, QStringLiteral("1")); // what the blank holds
    QCOMPARE(values(), QVector<QVariant>({QSize(1, 20), QSize(1, 40)}));
    QTest::keyClicks(width, QStringLiteral("5"));
    QCOMPARE(values(), QVector<QVariant>({QSize(15, 20), QSize(15, 40)}));
    QCOMPARE(m_stack->count(), 1);
}

void tst_SelectionDelegate::oneChannelOfAColorGoesToAll()
{
    select([](PropertyList &list) { list.color(QStringLiteral("x"), QString()); },
           {QColor::fromRgbF(0.25, 0.5, 1), QColor::fromRgbF(1, 0.5, 1)});
    showPanel();
    const auto boxes = m_panel->findChildren<QDoubleSpinBox *>();
    for (const QDoubleSpinBox *box : boxes)
        QVERIFY(box->cleanText().isEmpty());
    boxes.at(0)->setFocus();

    QTest::keyClicks(boxes.at(0), QStringLiteral("0.75"));

    const auto first = values().at(0).value<QColor>();
    QCOMPARE(first, values().at(1).value<QColor>());
    QVERIFY(qAbs(first.redF() - 0.75) < 0.0001);
    QVERIFY(qAbs(first.greenF() - 0.5) < 0.0001);
    QVERIFY(qAbs(first.blueF() - 1) < 0.0001);
    QVERIFY(!m_selection->isMixed(x()));
    QTRY_COMPARE(boxes.at(1)->value(), 0.5);
    QCOMPARE(m_stack->count(), 1);
}

void tst_SelectionDelegate::colorFromTheWheelGoesToAll()
{
    select([](PropertyList &list) { list.color(QStringLiteral("x"), QString()); },
           {QColor(Qt::blue), QColor(Qt::green)});
    showPanel();
    const auto sliders = m_panel->findChildren<Tessark::UI::Slider *>();
    QCOMPARE(sliders.size(), 3);

    QTest::mouseClick(sliders.first(), Qt::LeftButton, {},
                      QPoint(sliders.first()->width() - 3, sliders.first()->height() / 2));

    const auto first = values().at(0).value<QColor>();
    QVERIFY(first.redF() > 0);
    QCOMPARE(first.blue(), 0); // the colour that the control shows
    QCOMPARE(first, values().at(1).value<QColor>());
    QVERIFY(!m_selection->isMixed(x()));
    QTRY_VERIFY(qAbs(control<QDoubleSpinBox>()->value() - first.redF()) < 0.01);
    QVERIFY(!control<QDoubleSpinBox>(2)->cleanText().isEmpty());
}

void tst_SelectionDelegate::oneNumberOfATransformGoesToAll()
{
    const auto transform = [](double offset, double rotation) {
        DoubleMatrix3x3 matrix;
        Transform2DPropertyEditor::XfrmToMatrix(offset, 0, rotation, 2, 2, matrix);
        return QVariant::fromValue(matrix);
    };
    select([](PropertyList &list) { list.transform2D(QStringLiteral("x"), QString()); },
           {transform(0.25, 30), transform(0.5, 60)});
    showPanel();
    const auto boxes = m_panel->findChildren<QDoubleSpinBox *>();
    QVERIFY(boxes.at(0)->cleanText().isEmpty());
    QCOMPARE(boxes.at(1)->cleanText(), QStringLiteral("0.0000"));
    QVERIFY(boxes.at(2)->cleanText().isEmpty());
    QCOMPARE(boxes.at(3)->value(), 2.0);
    boxes.at(2)->setFocus();

    QTest::keyClicks(boxes.at(2), QStringLiteral("9"));

    const QVector<double> offsets{0.25, 0.5};
    for (int i = 0; i < 2; ++i) {
        double offset = 0;
        double rotation = 0;
        Transform2DPropertyEditor::MatrixToXfrm(values().at(i).value<DoubleMatrix3x3>(), &offset,
                                                nullptr, &rotation, nullptr, nullptr);
        QVERIFY(qAbs(rotation - 9) < 1e-6);
        QVERIFY(qAbs(offset - offsets.at(i)) < 1e-6);
    }
}

void tst_SelectionDelegate::formatLeavesEachRate()
{
    const auto format = [](const char *name, int rate) {
        return QVariant::fromValue(ImageFormatDesc{QString::fromLatin1(name), rate});
    };
    select([](PropertyList &list) { list.imageFormat(QStringLiteral("x"), QString()); },
           {format("png", 50), format("tiff", 70)});
    showPanel();
    const auto buttons = m_panel->findChildren<QRadioButton *>();
    for (const QRadioButton *button : buttons)
        QVERIFY(!button->isChecked());

    QTest::mouseClick(buttons.at(1), Qt::LeftButton, {}, QPoint(8, 8));

    QCOMPARE(values().at(0).value<ImageFormatDesc>().format, QStringLiteral("jpeg"));
    QCOMPARE(values().at(0).value<ImageFormatDesc>().compressionRate, 50);
    QCOMPARE(values().at(1).value<ImageFormatDesc>().format, QStringLiteral("jpeg"));
    QCOMPARE(values().at(1).value<ImageFormatDesc>().compressionRate, 70);
    QVERIFY(control<QSpinBox>()->cleanText().isEmpty());
}

void tst_SelectionDelegate::dragIsOneStep()
{
    select(kInteger, {10, 20});
    showPanel();

    SliderDrag drag(control<QSlider>());
    drag.press();
    drag.moveBy(10);
    drag.moveBy(10);
    drag.moveBy(10);
    drag.release();

    QVERIFY(m_objects[0]->flags().size() > 1);
    QCOMPARE(m_objects[0]->flags().mid(0, 2), QVector<int>({0, 1}));
    QCOMPARE(values().at(0), values().at(1));
    QCOMPARE(control<QSpinBox>()->value(), values().at(0).toInt());
    QCOMPARE(m_stack->count(), 1);
    m_stack->undo();
    QCOMPARE(values(), QVector<QVariant>({10, 20}));
    QVERIFY(control<QSpinBox>()->cleanText().isEmpty());
}

void tst_SelectionDelegate::policyMayStandInFront()
{
    select(kInteger, {10, 20});
    CommitPolicy policy(m_selection.get());
    policy.setDefaultMode(CommitMode::atEndOfRun());
    m_panel = std::make_unique<PropertyEditorPanel>(m_selection->properties(), &policy, nullptr);
    policy.watch(m_panel.get());
    m_selection->attach(m_panel.get());
    m_panel->show();
    m_panel->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_panel.get()));
    auto *const box = control<QSpinBox>();
    box->setFocus();

    QTest::keyClicks(box, QStringLiteral("0")); // what the blank holds
    QCOMPARE(values(), QVector<QVariant>({10, 20}));
    QTest::keyClick(box, Qt::Key_Return);

    QCOMPARE(values(), QVector<QVariant>({0, 0}));
    QCOMPARE(m_stack->count(), 1);
    QVERIFY(!m_selection->isMixed(x()));
    QCOMPARE(box->cleanText(), QStringLiteral("0"));
    m_stack->undo();
    QCOMPARE(values(), QVector<QVariant>({10, 20}));
    QVERIFY(box->cleanText().isEmpty());
    m_panel.reset();
}

void tst_SelectionDelegate::editedPartsMayArriveTogether()
{
    select(kVector, {QVector3D(1, 2, 3), QVector3D(4, 5, 6)});
    CommitPolicy policy(m_selection.get());
    policy.setDefaultMode(CommitMode::atMost(1));
    showPanel(&policy);
    const auto type = [this](int part, const char *number) {
        auto *const box = control<QDoubleSpinBox>(part);
        box->setFocus();
        QTest::keyClick(box, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(box, QLatin1String(number));
        QTest::keyClick(box, Qt::Key_Return);
    };

    type(2, "7"); // passes at once
    type(0, "8");
    type(1, "9");
    QVERIFY(policy.hasPending());
    QCOMPARE(values(), QVector<QVariant>({QVector3D(1, 2, 7), QVector3D(4, 5, 7)}));
    policy.flush();

    QCOMPARE(values(), QVector<QVariant>({QVector3D(8, 9, 7), QVector3D(8, 9, 7)}));
    m_panel.reset();
}

void tst_SelectionDelegate::rulesMayStandInFront()
{
    select(
        [](PropertyList &list) {
            list.boolean(QStringLiteral("x"), QStringLiteral("X"));
            list.string(QStringLiteral("s"), QString()).enabledWhen(QStringLiteral("x"));
        },
        {true, false});
    RuleEngine rules(m_selection->list(), m_selection.get());
    m_panel =
        std::make_unique<PropertyEditorPanel>(m_selection->properties(), rules.delegate(), nullptr);
    rules.attach(m_panel.get());
    m_selection->attach(m_panel.get());
    m_panel->show();
    QVERIFY(!control<QLineEdit>()->isEnabled()); // of a mixed row no condition holds

    auto *const box = control<QCheckBox>();
    QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(8, box->height() / 2));
    QCOMPARE(values(), QVector<QVariant>({true, true}));
    QVERIFY(control<QLineEdit>()->isEnabled());
    m_stack->undo();
    QVERIFY(!control<QLineEdit>()->isEnabled());
    QCOMPARE(box->checkState(), Qt::PartiallyChecked);
    m_panel.reset();
}

void tst_SelectionDelegate::marksFollowEveryOperation()
{
    for (const int value : {1, 2}) {
        add([value](PropertyList &list) {
            list.integer(QStringLiteral("x"), QString()).range(0, 99).defaultValue(value);
        }).values[QStringLiteral("x")] = 5;
    }
    selectAll();
    showPanel();
    auto *const box = control<QSpinBox>();
    const auto text = [this, box] {
        // The mark, the field and the answer say the same at all times.
        const bool mixed = m_selection->isMixed(x());
        const bool agree = isMarked(box->parentWidget()) == mixed
                           && box->cleanText().isEmpty() == mixed
                           && m_selection->value(x()).isValid() != mixed
                           && m_selection->mixedCount() == (mixed ? 1 : 0);
        return agree ? box->cleanText() : QStringLiteral("they differ");
    };
    QCOMPARE(text(), QStringLiteral("5"));

    m_selection->setToDefault(x());
    QCOMPARE(text(), QString());
    QVERIFY(!m_selection->applyRelative(x(), RelativeOperation::Add, 3));
    QCOMPARE(text(), QString());
    m_selection->assign(x(), 7);
    QCOMPARE(text(), QStringLiteral("7"));
    m_stack->undo();
    QCOMPARE(text(), QString());
    m_stack->undo();
    QCOMPARE(text(), QString());
    m_stack->undo();
    QCOMPARE(text(), QStringLiteral("5"));
    m_stack->redo();
    QCOMPARE(text(), QString());
    m_selection->setMembers({m_objects[1]->member()});
    QVERIFY(!m_selection->isMixed(x()));
}

void tst_SelectionDelegate::refreshOfThePanelKeepsTheMarks()
{
    select(
        [](PropertyList &list) {
            kInteger(list);
            list.boolean(QStringLiteral("on"), QString());
        },
        {1, 2});
    m_objects[0]->values[QStringLiteral("on")] = true;
    showPanel();

    m_panel->updateUI();

    QTRY_VERIFY(control<QSpinBox>()->cleanText().isEmpty());
    QTRY_COMPARE(control<QCheckBox>()->checkState(), Qt::PartiallyChecked);
    m_objects[1]->values[QStringLiteral("x")] = 1;
    m_selection->refresh();
    QCOMPARE(control<QSpinBox>()->cleanText(), QStringLiteral("1"));
}

void tst_SelectionDelegate::marksGoWithThePanel()
{
    select(
        [](PropertyList &list) {
            list.boolean(QStringLiteral("x"), QString());
            list.string(QStringLiteral("s"), QString());
        },
        {true, false});
    m_objects[0]->values[QStringLiteral("s")] = QStringLiteral("a");
    showPanel();
    auto *const box = control<QCheckBox>();
    auto *const line = control<QLineEdit>();

    m_selection->attach(nullptr);
    QVERIFY(!isMarked(box));
    QVERIFY(!box->isTristate());
    QVERIFY(line->placeholderText().isEmpty());

    m_selection->attach(m_panel.get());
    QVERIFY(isMarked(box));
    m_panel.reset();
    m_selection->setValue(x(), true, kNew);
    QVERIFY(!m_selection->isMixed(x()));
    m_stack->undo();
    QVERIFY(m_selection->isMixed(x()));
}

void tst_SelectionDelegate::styleSheetsSeeTheMark()
{
    select(kString, {QStringLiteral("a"), QStringLiteral("b")});
    showPanel();
    m_panel->setStyleSheet(
        QStringLiteral("QLineEdit { color: #112233 } *[mixed=\"true\"] { color: #445566 }"));
    auto *const line = control<QLineEdit>();
    QCOMPARE(line->palette().color(QPalette::Text), QColor(0x44, 0x55, 0x66));

    m_selection->assign(x(), QStringLiteral("c"));
    QCOMPARE(line->palette().color(QPalette::Text), QColor(0x11, 0x22, 0x33));
    m_stack->undo();
    QCOMPARE(line->palette().color(QPalette::Text), QColor(0x44, 0x55, 0x66));
}

void tst_SelectionDelegate::rowsThatAreNotCommonAreDisabled()
{
    m_selection->setPartialRows(PartialRows::Disable);
    add([](PropertyList &list) {
        kNumber(list);
        list.integer(QStringLiteral("n"), QString()).range(0, 9);
    });
    add(kNumber);
    selectAll();
    showPanel();

    QVERIFY(control<QDoubleSpinBox>()->isEnabled());
    QVERIFY(!control<QSpinBox>()->isEnabled());
}

void tst_SelectionDelegate::sameRowsKeepThePanel()
{
    select(kInteger, {1, 2, 3, 3});
    const auto properties = m_selection->properties();
    showPanel();
    QSignalSpy lists(m_selection.get(), &SelectionDelegate::listChanged);
    QSignalSpy marks(m_selection.get(), &SelectionDelegate::mixedChanged);

    m_selection->setMembers({m_objects[2]->member(), m_objects[3]->member()});

    QVERIFY(lists.isEmpty());
    QCOMPARE(m_selection->properties(), properties);
    QCOMPARE(m_selection->members().size(), 2);
    QCOMPARE(control<QSpinBox>()->cleanText(), QStringLiteral("3"));
    QCOMPARE(marks.size(), 1);
    m_selection->setValue(x(), 9, kNew);
    QCOMPARE(values(), QVector<QVariant>({1, 2, 9, 9}));
}

void tst_SelectionDelegate::sameRowsShowTheNewRange()
{
    add([](PropertyList &list) { list.number(QStringLiteral("x"), QString()).range(0, 100); });
    add([](PropertyList &list) { list.number(QStringLiteral("x"), QString()).range(0, 7); });
    m_selection->setMembers({m_objects[0]->member()});
    showPanel();
    QSignalSpy lists(m_selection.get(), &SelectionDelegate::listChanged);

    selectAll();

    QVERIFY(lists.isEmpty());
    QCOMPARE(control<QDoubleSpinBox>()->maximum(), 7.0);
    QCOMPARE(control<QSlider>()->maximum(), 7000);
}

void tst_SelectionDelegate::newRangeWithoutPanelIsANewList()
{
    add([](PropertyList &list) { list.number(QStringLiteral("x"), QString()).range(0, 100); });
    add([](PropertyList &list) { list.number(QStringLiteral("x"), QString()).range(0, 7); });
    m_selection->setMembers({m_objects[0]->member()});
    QSignalSpy lists(m_selection.get(), &SelectionDelegate::listChanged);

    selectAll();

    QCOMPARE(lists.size(), 1);
}

void tst_SelectionDelegate::otherRowsAreANewList()
{
    add(kInteger);
    add(kBoolean);
    m_selection->setMembers({m_objects[0]->member()});
    showPanel();
    QSignalSpy lists(m_selection.get(), &SelectionDelegate::listChanged);
    connect(m_selection.get(), &SelectionDelegate::listChanged, this, [this] { showPanel(); });

    m_selection->setMembers({m_objects[1]->member()});

    QCOMPARE(lists.size(), 1);
    QVERIFY(control<QCheckBox>());
    QVERIFY(!control<QSpinBox>());
}

void tst_SelectionDelegate::rowsOfTheListBeforeAreIgnored()
{
    add(kInteger).values[QStringLiteral("x")] = 1;
    add(kBoolean).values[QStringLiteral("x")] = true;
    m_selection->setMembers({m_objects[0]->member()});
    Property *const before = x();
    showPanel();
    m_selection->setMembers({m_objects[1]->member()});

    // The panel lives on, and its rows with it.
    m_selection->setMembers({m_objects[0]->member()});
    m_selection->setMembers({m_objects[1]->member()});
    control<QSpinBox>()->setValue(5);
    m_panel->updateUI();

    QCOMPARE(before->type, kPropertyTypeInteger);
    QVERIFY(m_objects[0]->changes.isEmpty());
    QVERIFY(m_objects[1]->changes.isEmpty());
    QVERIFY(!m_selection->value(before).isValid());
}

void tst_SelectionDelegate::objectMayGoAnyTime()
{
    select(kInteger, {1, 2, 2});
    showPanel();
    QVERIFY(m_selection->isMixed(x()));

    m_objects.erase(m_objects.begin());

    QTRY_VERIFY(!m_selection->isMixed(x()));
    QCOMPARE(control<QSpinBox>()->cleanText(), QStringLiteral("2"));
    QCOMPARE(m_selection->members().size(), 2);
    m_selection->setValue(x(), 5, kNew);
    QCOMPARE(values(), QVector<QVariant>({5, 5}));
    m_objects.clear();
    QVERIFY(!m_selection->value(x()).isValid());
    m_selection->setValue(x(), 6, kNew);
    QVERIFY(m_selection->applyRelative(x(), RelativeOperation::Add, 1));
}

void tst_SelectionDelegate::listOfAnObjectMayGo()
{
    auto list = std::make_unique<PropertyList>();
    kInteger(*list);
    PropertyStore store;
    store.setValue(list->properties().first(), 1, kNew);
    m_selection->setMembers({{*list, &store}});
    m_selection->setValue(x(), 2, kNew);
    QSignalSpy spy(&store, &PropertyStore::valueChanged);

    list.reset();
    m_selection->setValue(x(), 3, kNew);
    m_stack->undo();

    QVERIFY(spy.isEmpty());
    QVERIFY(m_selection->members().isEmpty());
}

void tst_SelectionDelegate::objectMayGoInItsCallback()
{
    select(kInteger, {1, 2, 3});
    showPanel();
    m_objects[1]->onSetValue = [this] { m_objects[1].reset(); };

    m_selection->setValue(x(), 9, kNew);

    QCOMPARE(m_objects[0]->values.value(QStringLiteral("x")), QVariant(9));
    QCOMPARE(m_objects[2]->values.value(QStringLiteral("x")), QVariant(9));
    QVERIFY(!m_selection->isMixed(x()));
    m_stack->undo();
    QCOMPARE(m_objects[0]->values.value(QStringLiteral("x")), QVariant(1));
    QCOMPARE(m_objects[2]->values.value(QStringLiteral("x")), QVariant(3));
}

void tst_SelectionDelegate::otherObjectMayGoInACallback()
{
    select(kInteger, {1, 2, 3});
    m_objects[0]->onSetValue = [this] { m_objects[2].reset(); };

    QVERIFY(!m_selection->applyRelative(x(), RelativeOperation::Add, 5));

    QCOMPARE(m_objects[0]->values.value(QStringLiteral("x")), QVariant(6));
    QCOMPARE(m_objects[1]->values.value(QStringLiteral("x")), QVariant(7));
}

void tst_SelectionDelegate::objectMayGoWhenAsked_data()
{
    QTest::addColumn<QString>("operation");

    for (const char *operation : {"edit", "assign", "relative", "default", "value", "refresh"})
        QTest::newRow(operation) << QString::fromLatin1(operation);
}

void tst_SelectionDelegate::objectMayGoWhenAsked()
{
    QFETCH(QString, operation);
    for (const int value : {1, 2, 3}) {
        add([value](PropertyList &list) {
            list.integer(QStringLiteral("x"), QString()).range(0, 99).defaultValue(value);
        }).values[QStringLiteral("x")] = value;
    }
    selectAll();
    m_objects[0]->onValue = [this] { m_objects[1].reset(); };

    if (operation == QLatin1String("edit"))
        m_selection->setValue(x(), 9, kNew);
    else if (operation == QLatin1String("assign"))
        QVERIFY(m_selection->assign(x(), 9));
    else if (operation == QLatin1String("relative"))
        QVERIFY(!m_selection->applyRelative(x(), RelativeOperation::Add, 6));
    else if (operation == QLatin1String("default"))
        QVERIFY(m_selection->setToDefault(x()));
    else if (operation == QLatin1String("value"))
        QVERIFY(!m_selection->value(x()).isValid());
    else
        m_selection->refresh();

    QVERIFY(!m_objects[1]);
    QCOMPARE(m_selection->members().size(), 2);
    const QVariant last = m_objects[2]->values.value(QStringLiteral("x"));
    const bool writes = operation == QLatin1String("edit") || operation == QLatin1String("assign")
                        || operation == QLatin1String("relative");
    QCOMPARE(last, QVariant(writes ? 9 : 3));
}

void tst_SelectionDelegate::selectionMayGoInACallback_data()
{
    QTest::addColumn<QString>("operation");
    QTest::addColumn<bool>("whenAsked");

    for (const char *operation :
         {"edit", "assign", "relative", "default", "value", "refresh", "undo", "members"}) {
        QTest::addRow("%s, when asked", operation) << QString::fromLatin1(operation) << true;
        QTest::addRow("%s, when written", operation) << QString::fromLatin1(operation) << false;
    }
}

void tst_SelectionDelegate::selectionMayGoInACallback()
{
    QFETCH(QString, operation);
    QFETCH(bool, whenAsked);
    for (const int value : {1, 2}) {
        add([value](PropertyList &list) {
            list.integer(QStringLiteral("x"), QString()).range(0, 99).defaultValue(value);
        }).values[QStringLiteral("x")] = 5;
    }
    selectAll();
    m_selection->setValue(x(), 6, kNew);
    m_panel = std::make_unique<PropertyEditorPanel>(m_selection->properties(), nullptr, nullptr);
    m_selection->attach(m_panel.get());
    const auto remove = [this] {
        m_panel.reset();
        m_selection.reset();
    };
    (whenAsked ? m_objects[0]->onValue : m_objects[0]->onSetValue) = remove;

    Property *const row = x();
    if (operation == QLatin1String("edit"))
        m_selection->setValue(row, 9, kNew);
    else if (operation == QLatin1String("assign"))
        m_selection->assign(row, 9);
    else if (operation == QLatin1String("relative"))
        m_selection->applyRelative(row, RelativeOperation::Add, 3);
    else if (operation == QLatin1String("default"))
        m_selection->setToDefault(row);
    else if (operation == QLatin1String("value"))
        m_selection->value(row);
    else if (operation == QLatin1String("refresh"))
        m_selection->refresh();
    else if (operation == QLatin1String("undo"))
        m_stack->undo();
    else
        m_selection->setMembers({m_objects[0]->member()});

    const bool onlyReads = operation == QLatin1String("value")
                           || operation == QLatin1String("refresh")
                           || operation == QLatin1String("members");
    QCOMPARE(m_selection == nullptr, whenAsked || !onlyReads);
    if (!whenAsked && !onlyReads) // the edit reaches all the same
        QVERIFY(m_objects[1]->changes.size() > 1);
}

void tst_SelectionDelegate::selectionMayChangeInACallback()
{
    select(kInteger, {1, 2});
    showPanel();
    Object &other = add(kBoolean);
    m_objects[0]->onSetValue = [this, &other] {
        m_objects[0]->onSetValue = nullptr;
        m_selection->setMembers({other.member()});
        m_selection->setMembers({m_objects[0]->member()});
        m_selection->setMembers({other.member()});
    };

    m_selection->setValue(x(), 9, kNew);

    QCOMPARE(m_objects[1]->values.value(QStringLiteral("x")), QVariant(9));
    QCOMPARE(m_stack->count(), 1);
    m_stack->undo();
    QCOMPARE(m_objects[0]->values.value(QStringLiteral("x")), QVariant(1));
    QCOMPARE(m_objects[1]->values.value(QStringLiteral("x")), QVariant(2));
    QVERIFY(other.changes.isEmpty());
}

void tst_SelectionDelegate::panelMayGoInACallback()
{
    select(kBoolean, {true, false});
    showPanel();
    m_objects[0]->onSetValue = [this] { m_panel.reset(); };
    auto *const box = control<QCheckBox>();

    QTest::keyClick(box, Qt::Key_Space);

    QVERIFY(!m_panel);
    QCOMPARE(values(), QVector<QVariant>({true, true}));
    QVERIFY(!m_selection->isMixed(x()));
}

void tst_SelectionDelegate::stackMayGoInACallback()
{
    select(kInteger, {1, 2});
    m_objects[0]->onSetValue = [this] { m_stack.reset(); };

    m_selection->setValue(x(), 9, kNew);
    m_selection->setValue(x(), 10, kContinued);

    QCOMPARE(values(), QVector<QVariant>({10, 10}));
}

void tst_SelectionDelegate::objectMayGoWhileUndoing()
{
    select(kInteger, {1, 2, 3});
    showPanel();
    m_selection->setValue(x(), 9, kNew);
    m_objects[0]->onSetValue = [this] {
        m_objects[1].reset();
        m_panel.reset();
    };

    m_stack->undo();

    QCOMPARE(m_objects[2]->values.value(QStringLiteral("x")), QVariant(3));
    m_stack->redo();
    QCOMPARE(m_objects[2]->values.value(QStringLiteral("x")), QVariant(9));
}

void tst_SelectionDelegate::selectionMayGoInItsSignals_data()
{
    QTest::addColumn<int>("signal");

    QTest::newRow("mixedChanged") << 0;
    QTest::newRow("valueWritten") << 1;
    QTest::newRow("listChanged") << 2;
}

void tst_SelectionDelegate::selectionMayGoInItsSignals()
{
    QFETCH(int, signal);
    select(kInteger, {1, 2});
    showPanel();
    const auto remove = [this] {
        m_panel.reset();
        m_selection.reset();
    };
    if (signal == 0)
        connect(m_selection.get(), &SelectionDelegate::mixedChanged, this, remove);
    else if (signal == 1)
        connect(m_selection.get(), &SelectionDelegate::valueWritten, this, remove);
    else
        connect(m_selection.get(), &SelectionDelegate::listChanged, this, remove);

    if (signal == 0)
        m_selection->setValue(x(), 9, kNew);
    else if (signal == 1)
        m_selection->assign(x(), 9);
    else
        m_selection->setMembers({});

    QVERIFY(!m_selection);
}

void tst_SelectionDelegate::panelMayGoInTheMenu()
{
    for (const int value : {1, 2}) {
        add([value](PropertyList &list) {
            list.integer(QStringLiteral("x"), QString()).range(0, 9).defaultValue(value);
        }).values[QStringLiteral("x")] = 5;
    }
    selectAll();
    showPanel();
    const TestSupport::MenuProbe probe([this](QMenu *) {
        m_panel.reset();
        m_selection.reset();
    });

    const QPoint position = control<QSpinBox>()->parentWidget()->geometry().center();
    QContextMenuEvent event(QContextMenuEvent::Mouse, position, m_panel->mapToGlobal(position));
    QCoreApplication::sendEvent(m_panel.get(), &event);

    QCOMPARE(probe.menus, 1);
    QCOMPARE(values(), QVector<QVariant>({5, 5}));
}

QTEST_MAIN(tst_SelectionDelegate)
#include "tst_SelectionDelegate.moc"
