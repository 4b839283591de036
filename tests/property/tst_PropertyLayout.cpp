#include "support/FixedHintItem.h"
#include "support/FixedHintWidget.h"

#include <property/PropertyLayout.h>

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QTest>

#include <functional>
#include <limits>
#include <memory>
#include <utility>
#include <vector>

using namespace Tessark::PropertyUI;
using namespace Tessark::Testing;

namespace {

using Options = PropertyLayout::LayoutOptions;
constexpr auto kNewRow = PropertyLayout::NewRow;
constexpr auto kExpandHorizontal = PropertyLayout::ExpandHorizontal;
constexpr auto kExpandVertical = PropertyLayout::ExpandVertical;
constexpr auto kFullWidth = PropertyLayout::FullWidth;
constexpr auto kBeginGroup = PropertyLayout::BeginGroup;
constexpr auto kEndGroup = PropertyLayout::EndGroup;

/// Changes what makes the size hint of a label or a line edit.
using HintChange = std::function<void(QLabel *, QLineEdit *)>;

/// Runs a callback when shown, hidden or resized, as a host's own editor widget might.
class CallbackWidget final : public FixedHintWidget
{
public:
    using FixedHintWidget::FixedHintWidget;

    std::function<void()> onShow;
    std::function<void()> onResize;

protected:
    void showEvent(QShowEvent *) override { call(onShow); }
    void resizeEvent(QResizeEvent *) override { call(onResize); }

private:
    // The callback may delete this widget, and with it the function that runs.
    static void call(const std::function<void()> &callback)
    {
        const std::function<void()> copy = callback;
        if (copy)
            copy();
    }
};

/// Runs a callback when it is deleted.
class DeletionItem final : public FixedHintItem
{
public:
    explicit DeletionItem(std::function<void()> onDelete)
        : FixedHintItem(QSize(10, 10))
        , m_onDelete(std::move(onDelete))
    {
    }
    ~DeletionItem() override { m_onDelete(); }

private:
    std::function<void()> m_onDelete;
};

} // namespace

Q_DECLARE_METATYPE(HintChange)

class tst_PropertyLayout : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init(); // makes a fresh m_host with m_layout, spacing 4

    void optionsKeepTheirValues();
    void addsNoSignalsOrSlotsToQLayout();
    void freshLayoutIsEmpty();
    void contentsMarginsAreFourWhateverMarginIsGiven_data();
    void contentsMarginsAreFourWhateverMarginIsGiven();
    void constructorInstallsLayoutOnParent();
    void constructorSpacingSeparatesRowsAndItems();
    void neverExpandsItself();

    void itemAddedWithoutOptionsContinuesRow();
    void alignmentIsIgnored();
    void newRowClearsExpandHorizontal();
    void fullWidthAloneKeepsExpandHorizontal();
    void fullWidthStartsNewRow();
    void addWidgetAdoptsWidget();
    void addLayoutAdoptsLayoutAndPlacesIt();
    void addRowMakesPlainLabel();
    void addRowLetsFieldTakeSpareWidth();
    void addRowOfOneWidgetSpansBothColumns();
    void labelGetsItsParentWithTheLayout();
    void addingInvalidates();
    void nullIsNotAdded();

    void itemAtOutOfRangeIsNull_data();
    void itemAtOutOfRangeIsNull();
    void takeAtOutOfRangeIsNull_data();
    void takeAtOutOfRangeIsNull();
    void takeAtGivesItemAway();
    void takenNestedLayoutIsTheCallers();
    void takeAtInvalidatesNothing();
    void deletedWidgetLeavesLayout();
    void deletesItemsInOrder();
    void leavesWidgetsToTheirParent();
    void deletesNestedLayouts();
    void itemDeletedByAnotherItemIsNotDeletedTwice();

    void emptyLayoutSize_data();
    void emptyLayoutSize();
    void negativeHeightIsNotKept();
    void sizeIsKept_data();
    void sizeIsKept();
    void addingItemMeasuresAnew();
    void bothSizesAreKeptOnTheirOwn();
    void minimumSizeEqualsSizeHint();
    void sizeTypeMakesNoDifference();
    void widthIsWidestLabelPlusWidestFields();
    void widthLeavesOutSpacing();
    void widthLeavesOutFullWidthItems();
    void widthCountsFieldsBesideFullWidthItem();
    void heightSumsRows();
    void heightUsesTallestItemOfRow();
    void expandingRowIsMeasuredWithin100();
    void measuringMovesNothing();
    void placingReportsGivenWidth();
    void measuresEachItemOnce();
    void silentChangeOfHintIsSeen();
    void labelsAndLineEditsTellTheirHints_data();
    void labelsAndLineEditsTellTheirHints();

    void labelAndFieldSitInTheirColumns();
    void rectangleOriginIsNotAdded();
    void labelsAreFlushRight();
    void rightToLeftMirrorsRows();
    void changeOfDirectionPlacesAnew();
    void labelWithExpandingPolicyKeepsItsWidth();
    void labelKeepsToItsLimits();
    void labelColumnTakesTheWidthSet();
    void labelWiderThanItsColumnIsCut();
    void labelColumnBecomesAutomaticAgain();
    void smallestSizeCountsWhatRowsNeed_data();
    void smallestSizeCountsWhatRowsNeed();
    void smallestSizeIsNotKept();
    void twoFieldsShareOddWidth();
    void threeFieldsShareWhatIsLeft();
    void limitedFieldLeavesRestToLaterOnes();
    void fixedFieldKeepsItsWidth();
    void minimumWidthWinsOverMaximum();
    void spareWidthMayBeNegative();
    void horizontalPolicyExpands_data();
    void horizontalPolicyExpands();
    void verticalPolicyExpands_data();
    void verticalPolicyExpands();
    void itemWithoutWidgetExpandsByOptionOnly();
    void fullWidthItemStartsAtMargin();
    void expandingFullWidthItemSharesWithNeighbours();
    void firstItemWithoutNewRowSitsInLabelColumn();
    void itemsAreCentredInRow();
    void oddRestIsRoundedTowardZero();
    void tallItemIsCentredAtItsHintHeight();
    void minimumHeightWinsOverMaximum();
    void changedMarginsAreUsed();
    void changedSpacingsAreUsed();

    void expandingItemFillsRow();
    void twoExpandingRowsShareHeight();
    void cappedRowLeavesRestToLaterOnes();
    void cappedRowWinsOverItsFloor();
    void expandingRowKeepsToItsFloor_data();
    void expandingRowKeepsToItsFloor();
    void expandingRowIsNeverTallerThan10000();
    void hugeSizesDoNotOverflow();

    void hiddenRowTakesNoSpace();
    void hiddenLastItemLeavesRowOpen();
    void rowAfterOpenRowStartsAfresh();
    void hiddenLabelJoinsFieldToRowBefore();
    void hiddenLabelAtTopLeavesFieldInFieldColumn();
    void hiddenItemTakesItsLastWidth();
    void hiddenItemNeverMeasuredTakesMinusOne();
    void expandingItemOfUsedUpRowGetsAllSpareWidth();
    void sharesOwedByJoinedRowsAddUp();

    void indentation_data();
    void indentation();
    void indentationIsThatOfTheEndOfTheRow();
    void hiddenMarkersCount();
    void indentedRowIsNarrower();
    void markersAreReadWhenAdded();
    void markerPropertyIsReadAsBool_data();
    void markerPropertyIsReadAsBool();
    void beginWinsOverEnd();

    void groupVisibility_data();
    void groupVisibility();
    void groupWidgetItselfStays();
    void groupOfUnknownWidgetDoesNothing_data();
    void groupOfUnknownWidgetDoesNothing();
    void groupToggleInvalidatesAndEnables();
    void layoutIsDisabledWhileGroupShows();
    void groupOfWidgetListedTwiceBeginsAtFirst();
    void itemsWithoutWidgetAreWalkedOver();
    void rowAddedWhileGroupShows();
    void rowsTakenWhileGroupShows();
    void nestedWidgetDeletedWhileGroupShows();
    void layoutDeletedWhileGroupShows();
    void panelDeletedWhileGroupShows();

    void rowAddedWhilePlacing();
    void rowTakenWhilePlacing();
    void widgetDeletedWhilePlacing();
    void layoutDeletedWhilePlacing();
    void twentyThousandItems();

private:
    FixedHintWidget *add(const QSize &hint, Options options);
    FixedHintItem *addItem(FixedHintItem *item, Options options);
    QWidget *addMarker(const char *property);
    std::vector<FixedHintWidget *> addGroupRows(const QByteArray &rows);
    void place(int width, int height) { m_layout->setGeometry(QRect(0, 0, width, height)); }
    QSize measured() const;

    std::unique_ptr<QWidget> m_host;
    QPointer<PropertyLayout> m_layout; // owned by m_host
};

void tst_PropertyLayout::init()
{
    m_host = std::make_unique<QWidget>();
    m_layout = new PropertyLayout(m_host.get(), 0, 4);
}

FixedHintWidget *tst_PropertyLayout::add(const QSize &hint, Options options)
{
    auto *const widget = new FixedHintWidget(hint, m_host.get());
    m_layout->addWidget(widget, options);
    return widget;
}

FixedHintItem *tst_PropertyLayout::addItem(FixedHintItem *item, Options options)
{
    m_layout->addItem(item, options, Qt::AlignCenter);
    return item;
}

/// A full-width row that carries the property.
QWidget *tst_PropertyLayout::addMarker(const char *property)
{
    auto *const widget = new FixedHintWidget(QSize(10, 10), m_host.get());
    widget->setProperty(property, true);
    m_layout->addWidget(widget, kFullWidth);
    return widget;
}

/// One row per character: "(" begins a group, ")" ends one, anything else is a plain row.
std::vector<FixedHintWidget *> tst_PropertyLayout::addGroupRows(const QByteArray &rows)
{
    std::vector<FixedHintWidget *> widgets;
    for (const char row : rows) {
        auto *const widget = new FixedHintWidget(QSize(10, 10), m_host.get());
        if (row == '(')
            widget->setProperty("beginGroup", true);
        else if (row == ')')
            widget->setProperty("endGroup", true);
        m_layout->addWidget(widget, kFullWidth);
        widgets.push_back(widget);
    }
    return widgets;
}

QSize tst_PropertyLayout::measured() const
{
    return m_layout->doLayout(QRect(0, 0, 100, 100), true, PropertyLayout::SizeType::Preferred);
}

// Construction

void tst_PropertyLayout::optionsKeepTheirValues()
{
    QCOMPARE(int(PropertyLayout::NewRow), 1);
    QCOMPARE(int(PropertyLayout::ExpandHorizontal), 2);
    QCOMPARE(int(PropertyLayout::ExpandVertical), 4);
    QCOMPARE(int(PropertyLayout::FullWidth), 8);
    QCOMPARE(int(PropertyLayout::BeginGroup), 16);
    QCOMPARE(int(PropertyLayout::EndGroup), 32);
    QCOMPARE(int(PropertyLayout::GroupCollapsed), 64);
    QCOMPARE(sizeof(Options), sizeof(qint32));
}

void tst_PropertyLayout::addsNoSignalsOrSlotsToQLayout()
{
    const QMetaObject &meta = PropertyLayout::staticMetaObject;

    QCOMPARE(meta.superClass(), &QLayout::staticMetaObject);
    QCOMPARE(meta.methodCount(), meta.methodOffset());
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
}

void tst_PropertyLayout::freshLayoutIsEmpty()
{
    QCOMPARE(m_layout->count(), 0);
    QVERIFY(m_layout->isEmpty());
    QVERIFY(!m_layout->itemAt(0));
    QVERIFY(!m_layout->takeAt(0));
}

void tst_PropertyLayout::contentsMarginsAreFourWhateverMarginIsGiven_data()
{
    QTest::addColumn<int>("margin");

    QTest::newRow("none") << 0;
    QTest::newRow("larger") << 30;
    QTest::newRow("negative, the style's own") << -1;
}

void tst_PropertyLayout::contentsMarginsAreFourWhateverMarginIsGiven()
{
    QFETCH(int, margin);

    QWidget host;
    const PropertyLayout installed(&host, margin, 9);
    const PropertyLayout parentless(9);

    QCOMPARE(installed.contentsMargins(), QMargins(4, 4, 4, 4));
    QCOMPARE(parentless.contentsMargins(), QMargins(4, 4, 4, 4));
}

void tst_PropertyLayout::constructorInstallsLayoutOnParent()
{
    const PropertyLayout parentless(4);

    QCOMPARE(m_host->layout(), m_layout);
    QCOMPARE(m_layout->parentWidget(), m_host.get());
    QVERIFY(!parentless.parent());
}

void tst_PropertyLayout::constructorSpacingSeparatesRowsAndItems()
{
    PropertyLayout layout(7);
    auto *const first = new FixedHintItem(QSize(10, 10));
    auto *const second = new FixedHintItem(QSize(10, 10));
    auto *const below = new FixedHintItem(QSize(10, 10));
    layout.addItem(first, kFullWidth, {});
    layout.addItem(second);
    layout.addItem(below, kFullWidth, {});

    layout.setGeometry(QRect(0, 0, 200, 100));

    QCOMPARE(layout.spacing(), 7);
    QCOMPARE(first->geometry(), QRect(4, 4, 10, 10));
    QCOMPARE(second->geometry(), QRect(4 + 10 + 7, 4, 10, 10));
    QCOMPARE(below->geometry(), QRect(4, 4 + 10 + 7, 10, 10));
}

void tst_PropertyLayout::neverExpandsItself()
{
    add(QSize(10, 10), kFullWidth | kExpandHorizontal | kExpandVertical);

    QCOMPARE(m_layout->expandingDirections(), Qt::Orientations());
}

// Adding

void tst_PropertyLayout::itemAddedWithoutOptionsContinuesRow()
{
    addItem(new FixedHintItem(QSize(30, 10)), kNewRow);
    auto *const field = new FixedHintItem(QSize(20, 10));

    m_layout->addItem(field);
    place(300, 100);

    QCOMPARE(field->geometry(), QRect(4 + 30 + 10, 4, 20, 10));
}

void tst_PropertyLayout::alignmentIsIgnored()
{
    auto *const item = new FixedHintItem(QSize(20, 10));

    m_layout->addItem(item, kFullWidth, Qt::AlignRight | Qt::AlignBottom);
    m_layout->addItem(new FixedHintItem(QSize(20, 30)));
    place(300, 100);

    QCOMPARE(item->geometry(), QRect(4, 14, 20, 10));
}

void tst_PropertyLayout::newRowClearsExpandHorizontal()
{
    const FixedHintWidget *wide = add(QSize(20, 10), kNewRow | kExpandHorizontal | kFullWidth);

    place(300, 100);

    QCOMPARE(wide->geometry(), QRect(4, 4, 20, 10));
}

void tst_PropertyLayout::fullWidthAloneKeepsExpandHorizontal()
{
    const FixedHintWidget *wide = add(QSize(20, 10), kExpandHorizontal | kFullWidth);

    place(300, 100);

    QCOMPARE(wide->geometry(), QRect(4, 4, 292, 10));
}

void tst_PropertyLayout::fullWidthStartsNewRow()
{
    add(QSize(20, 10), kNewRow);
    const FixedHintWidget *wide = add(QSize(20, 10), kFullWidth);

    place(300, 100);

    QCOMPARE(wide->geometry(), QRect(4, 4 + 10 + 4, 20, 10));
}

void tst_PropertyLayout::addWidgetAdoptsWidget()
{
    auto *const widget = new FixedHintWidget(QSize(20, 10));

    m_layout->addWidget(widget, kNewRow);

    QCOMPARE(widget->parentWidget(), m_host.get());
    QCOMPARE(m_layout->count(), 1);
    QCOMPARE(m_layout->itemAt(0)->widget(), widget);
    QCOMPARE(m_layout->itemAt(0)->alignment(), Qt::Alignment());
}

void tst_PropertyLayout::addLayoutAdoptsLayoutAndPlacesIt()
{
    auto *const nested = new QHBoxLayout;
    nested->setContentsMargins(0, 0, 0, 0);
    auto *const widget = new FixedHintWidget(QSize(20, 10));
    nested->addWidget(widget);

    add(QSize(30, 10), kNewRow);
    m_layout->addLayout(nested, kExpandHorizontal);
    place(300, 100);

    QCOMPARE(nested->parent(), m_layout);
    QCOMPARE(widget->parentWidget(), m_host.get());
    QCOMPARE(m_layout->itemAt(1), nested);
    QCOMPARE(nested->geometry(), QRect(44, 4, 300 - 40 - 8, 10));
    QCOMPARE(widget->geometry(), nested->geometry());
}

void tst_PropertyLayout::addRowMakesPlainLabel()
{
    auto *const field = new FixedHintWidget(QSize(20, 10));

    m_layout->addRow(QStringLiteral("Name"), field);

    QCOMPARE(m_layout->count(), 2);
    auto *const label = qobject_cast<QLabel *>(m_layout->itemAt(0)->widget());
    QVERIFY(label);
    QCOMPARE(label->text(), QStringLiteral("Name"));
    QCOMPARE(label->parentWidget(), m_host.get());
    QVERIFY(!label->isWindow());
    QVERIFY(!label->buddy());
    QCOMPARE(m_layout->itemAt(1)->widget(), field);
    QCOMPARE(field->parentWidget(), m_host.get());
}

void tst_PropertyLayout::addRowLetsFieldTakeSpareWidth()
{
    auto *const field = new FixedHintWidget(QSize(20, 20));
    m_layout->addRow(QStringLiteral("Name"), field);
    QWidget *const label = m_layout->itemAt(0)->widget();
    label->setFixedSize(40, 20);

    place(300, 100);

    QCOMPARE(label->geometry(), QRect(4, 4, 40, 20));
    QCOMPARE(field->geometry(), QRect(54, 4, 300 - 50 - 4 - 4, 20));
}

void tst_PropertyLayout::addRowOfOneWidgetSpansBothColumns()
{
    add(QSize(50, 10), kNewRow);
    auto *const wide = new FixedHintWidget(QSize(20, 10));

    m_layout->addRow(wide);
    place(300, 100);

    QCOMPARE(wide->parentWidget(), m_host.get());
    QCOMPARE(wide->geometry(), QRect(4, 18, 292, 10));
}

void tst_PropertyLayout::labelGetsItsParentWithTheLayout()
{
    QWidget host;
    auto *const layout = new PropertyLayout(4);
    layout->addRow(QStringLiteral("Name"), new FixedHintWidget(QSize(20, 10)));
    QVERIFY(!layout->itemAt(0)->widget()->parentWidget());

    host.setLayout(layout);

    QCOMPARE(layout->itemAt(0)->widget()->parentWidget(), &host);
    QCOMPARE(layout->itemAt(1)->widget()->parentWidget(), &host);
}

void tst_PropertyLayout::addingInvalidates()
{
    place(300, 100);
    QCOMPARE(m_layout->geometry(), QRect(0, 0, 300, 100));

    addItem(new FixedHintItem(QSize(10, 10)), kNewRow);

    QCOMPARE(m_layout->geometry(), QRect());
}

void tst_PropertyLayout::nullIsNotAdded()
{
    m_layout->addItem(nullptr);
    m_layout->addWidget(nullptr, kNewRow);
    m_layout->addLayout(nullptr, kNewRow);
    m_layout->addRow(nullptr);
    QCOMPARE(m_layout->count(), 0);

    m_layout->addRow(QStringLiteral("Label alone"), nullptr);
    QCOMPARE(m_layout->count(), 1);
}

// Access and ownership

void tst_PropertyLayout::itemAtOutOfRangeIsNull_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<bool>("inRange");

    QTest::newRow("first") << 0 << true;
    QTest::newRow("last") << 1 << true;
    QTest::newRow("count") << 2 << false;
    QTest::newRow("beyond") << 1000 << false;
    QTest::newRow("negative") << -1 << false;
}

void tst_PropertyLayout::itemAtOutOfRangeIsNull()
{
    QFETCH(int, index);
    QFETCH(bool, inRange);
    addItem(new FixedHintItem(QSize(10, 10)), kNewRow);
    addItem(new FixedHintItem(QSize(10, 10)), kNewRow);

    QCOMPARE(m_layout->itemAt(index) != nullptr, inRange);

    QCOMPARE(m_layout->count(), 2);
}

void tst_PropertyLayout::takeAtOutOfRangeIsNull_data()
{
    itemAtOutOfRangeIsNull_data();
}

void tst_PropertyLayout::takeAtOutOfRangeIsNull()
{
    QFETCH(int, index);
    QFETCH(bool, inRange);
    addItem(new FixedHintItem(QSize(10, 10)), kNewRow);
    addItem(new FixedHintItem(QSize(10, 10)), kNewRow);
    QLayoutItem *const expected = m_layout->itemAt(index);

    const std::unique_ptr<QLayoutItem> taken(m_layout->takeAt(index));

    QCOMPARE(taken.get(), expected);
    QCOMPARE(m_layout->count(), inRange ? 1 : 2);
}

void tst_PropertyLayout::takeAtGivesItemAway()
{
    bool deleted = false;
    const FixedHintItem *first = addItem(new FixedHintItem(QSize(10, 10)), kNewRow);
    addItem(new DeletionItem([&deleted] { deleted = true; }), kNewRow);
    const FixedHintItem *last = addItem(new FixedHintItem(QSize(10, 10)), kNewRow);

    std::unique_ptr<QLayoutItem> taken(m_layout->takeAt(1));

    QCOMPARE(m_layout->itemAt(0), first);
    QCOMPARE(m_layout->itemAt(1), last);
    m_host.reset();
    QVERIFY(!deleted);
    taken.reset();
    QVERIFY(deleted);
}

void tst_PropertyLayout::takenNestedLayoutIsTheCallers()
{
    const QPointer<QHBoxLayout> nested = new QHBoxLayout;
    m_layout->addLayout(nested, kNewRow);
    place(300, 100);

    const std::unique_ptr<QLayoutItem> taken(m_layout->takeAt(0));
    QCOMPARE(m_layout->geometry(), QRect(0, 0, 300, 100));
    delete m_layout;

    QVERIFY(nested);
    QCOMPARE(taken.get(), nested.data());
    QVERIFY(!nested->parent());
}

void tst_PropertyLayout::takeAtInvalidatesNothing()
{
    addItem(new FixedHintItem(QSize(10, 10)), kNewRow);
    place(300, 100);

    const std::unique_ptr<QLayoutItem> taken(m_layout->takeAt(0));

    QCOMPARE(m_layout->geometry(), QRect(0, 0, 300, 100));
}

void tst_PropertyLayout::deletedWidgetLeavesLayout()
{
    const FixedHintWidget *first = add(QSize(10, 10), kNewRow);
    FixedHintWidget *const second = add(QSize(10, 10), kNewRow);

    delete first;

    QCOMPARE(m_layout->count(), 1);
    QCOMPARE(m_layout->itemAt(0)->widget(), second);
    QCOMPARE(m_layout->indexOf(second), 0);
}

void tst_PropertyLayout::deletesItemsInOrder()
{
    QByteArray order;
    QList<int> counts;
    auto *const layout = new PropertyLayout(4);
    for (const char name : QByteArray("abc")) {
        layout->addItem(new DeletionItem([&order, &counts, layout, name] {
                            order += name;
                            counts += layout->count();
                        }),
                        kNewRow, {});
    }

    delete layout;

    QCOMPARE(order, QByteArray("abc"));
    QCOMPARE(counts, QList<int>({2, 1, 0})); // each is out of the layout before it goes
}

void tst_PropertyLayout::leavesWidgetsToTheirParent()
{
    const QPointer<QWidget> widget = add(QSize(10, 10), kNewRow);

    delete m_layout;

    QVERIFY(widget);
    QCOMPARE(widget->parentWidget(), m_host.get());
}

void tst_PropertyLayout::deletesNestedLayouts()
{
    const QPointer<QHBoxLayout> nested = new QHBoxLayout;
    m_layout->addLayout(nested, kNewRow);

    delete m_layout;

    QVERIFY(!nested);
}

void tst_PropertyLayout::itemDeletedByAnotherItemIsNotDeletedTwice()
{
    const QPointer<QHBoxLayout> nested = new QHBoxLayout;
    m_layout->addItem(new DeletionItem([nested] { delete nested; }), kNewRow, {});
    m_layout->addLayout(nested, kNewRow);
    bool lastDeleted = false;
    m_layout->addItem(new DeletionItem([&lastDeleted] { lastDeleted = true; }), kNewRow, {});

    delete m_layout;

    QVERIFY(!nested);
    QVERIFY(lastDeleted);
}

// Sizes

void tst_PropertyLayout::emptyLayoutSize_data()
{
    QTest::addColumn<int>("spacing");
    QTest::addColumn<QSize>("size");

    QTest::newRow("the panel's spacing") << 4 << QSize(18, 4);
    QTest::newRow("no spacing") << 0 << QSize(18, 8);
    QTest::newRow("height below zero, not clamped") << 20 << QSize(18, -12);
}

void tst_PropertyLayout::emptyLayoutSize()
{
    QFETCH(int, spacing);
    QFETCH(QSize, size);

    const PropertyLayout layout(spacing);

    QCOMPARE(layout.sizeHint(), size);
    QCOMPARE(layout.minimumSize(), size);
}

void tst_PropertyLayout::negativeHeightIsNotKept()
{
    PropertyLayout layout(20);
    QCOMPARE(layout.sizeHint().height(), -12);
    QCOMPARE(layout.minimumSize().height(), -12);

    layout.setVerticalSpacing(8);

    // A height of zero is kept, one below is not.
    QCOMPARE(layout.sizeHint().height(), 0);
    QCOMPARE(layout.minimumSize().height(), 0);
    layout.setVerticalSpacing(4);
    QCOMPARE(layout.sizeHint().height(), 0);
    QCOMPARE(layout.minimumSize().height(), 0);
}

void tst_PropertyLayout::sizeIsKept_data()
{
    QTest::addColumn<QByteArray>("change");

    QTest::newRow("after takeAt") << QByteArray("take");
    QTest::newRow("with another vertical spacing") << QByteArray("vertical");
    QTest::newRow("with another horizontal spacing") << QByteArray("horizontal");
    QTest::newRow("with other margins") << QByteArray("margins");
    QTest::newRow("after invalidate") << QByteArray("invalidate");
    QTest::newRow("after a widget hides") << QByteArray("hide");
    QTest::newRow("after a widget shows") << QByteArray("show");
    QTest::newRow("after a group hides") << QByteArray("group");
    QTest::newRow("after placing") << QByteArray("place");
}

void tst_PropertyLayout::sizeIsKept()
{
    QFETCH(QByteArray, change);
    FixedHintWidget *const label = add(QSize(30, 10), kNewRow);
    FixedHintWidget *const field = add(QSize(20, 10), Options());
    FixedHintWidget *const hidden = add(QSize(80, 80), kNewRow);
    hidden->hide();
    const QSize hint = m_layout->sizeHint();
    const QSize minimum = m_layout->minimumSize();
    std::unique_ptr<QLayoutItem> taken;

    if (change == "take")
        taken.reset(m_layout->takeAt(0));
    else if (change == "vertical")
        m_layout->setVerticalSpacing(40);
    else if (change == "horizontal")
        m_layout->setHorizontalSpacing(40);
    else if (change == "margins")
        m_layout->setContentsMargins(9, 9, 9, 9);
    else if (change == "invalidate")
        m_layout->invalidate();
    else if (change == "hide")
        label->hide();
    else if (change == "show")
        hidden->show();
    else if (change == "group")
        m_layout->setGroupVisible(label, false);
    else
        place(300, 100);
    field->setHint(QSize(25, 15)); // a change that any new measurement would see

    QVERIFY(measured() != hint);
    QCOMPARE(m_layout->sizeHint(), hint);
    QCOMPARE(m_layout->minimumSize(), minimum);
}

void tst_PropertyLayout::addingItemMeasuresAnew()
{
    add(QSize(30, 10), kNewRow);
    QCOMPARE(m_layout->sizeHint(), QSize(48, 18));
    QCOMPARE(m_layout->minimumSize(), QSize(48, 18));

    add(QSize(50, 10), kNewRow);

    QCOMPARE(m_layout->sizeHint(), QSize(68, 32));
    QCOMPARE(m_layout->minimumSize(), QSize(68, 32));
}

void tst_PropertyLayout::bothSizesAreKeptOnTheirOwn()
{
    FixedHintWidget *const label = add(QSize(30, 10), kNewRow);
    QCOMPARE(m_layout->minimumSize(), QSize(48, 18));

    label->setHint(QSize(60, 20));

    QCOMPARE(m_layout->sizeHint(), QSize(78, 28));
    QCOMPARE(m_layout->minimumSize(), QSize(48, 18));
}

void tst_PropertyLayout::minimumSizeEqualsSizeHint()
{
    FixedHintWidget *const label = add(QSize(30, 10), kNewRow);
    label->setMinimumHint(QSize(5, 5));
    add(QSize(70, 25), kExpandHorizontal | kExpandVertical)->setMinimumHint(QSize(6, 6));

    QCOMPARE(m_layout->minimumSize(), m_layout->sizeHint());
    QCOMPARE(m_layout->minimumSize().width(), 30 + 70 + 18);
}

void tst_PropertyLayout::sizeTypeMakesNoDifference()
{
    add(QSize(30, 10), kNewRow);
    add(QSize(70, 25), kExpandHorizontal);
    const QRect rect(0, 0, 100, 100);

    QCOMPARE(m_layout->doLayout(rect, true, PropertyLayout::SizeType::Minimum),
             m_layout->doLayout(rect, true, PropertyLayout::SizeType::Preferred));
}

void tst_PropertyLayout::widthIsWidestLabelPlusWidestFields()
{
    add(QSize(30, 10), kNewRow);
    add(QSize(80, 10), kExpandHorizontal);
    add(QSize(50, 10), kNewRow);
    add(QSize(20, 10), Options());
    add(QSize(40, 10), kNewRow);
    add(QSize(10, 10), Options());

    QCOMPARE(m_layout->sizeHint().width(), 4 + 50 + 10 + 80 + 4);
}

void tst_PropertyLayout::widthLeavesOutSpacing()
{
    m_layout->setHorizontalSpacing(25);
    add(QSize(30, 10), kNewRow);
    add(QSize(40, 10), Options());
    add(QSize(40, 10), Options());

    QCOMPARE(m_layout->sizeHint().width(), 4 + 30 + 10 + 80 + 4);
}

void tst_PropertyLayout::widthLeavesOutFullWidthItems()
{
    add(QSize(500, 10), kFullWidth);

    QCOMPARE(m_layout->sizeHint().width(), 18);
}

void tst_PropertyLayout::widthCountsFieldsBesideFullWidthItem()
{
    add(QSize(500, 10), kFullWidth);
    add(QSize(60, 10), Options());
    add(QSize(500, 10), kFullWidth);

    QCOMPARE(m_layout->sizeHint().width(), 18 + 60);
}

void tst_PropertyLayout::heightSumsRows()
{
    m_layout->setVerticalSpacing(6);
    add(QSize(30, 10), kNewRow);
    add(QSize(30, 20), kNewRow);
    add(QSize(30, 30), kFullWidth);

    QCOMPARE(m_layout->sizeHint().height(), 4 + 10 + 6 + 20 + 6 + 30 + 4);
}

void tst_PropertyLayout::heightUsesTallestItemOfRow()
{
    add(QSize(30, 10), kNewRow);
    add(QSize(30, 35), Options());
    add(QSize(30, 20), Options());

    QCOMPARE(m_layout->sizeHint().height(), 4 + 35 + 4);
}

void tst_PropertyLayout::expandingRowIsMeasuredWithin100()
{
    add(QSize(30, 10), kNewRow);
    add(QSize(30, 20), kFullWidth | kExpandVertical);

    // 100 without margins, the fixed row with its spacing and the spacing below the last row.
    const int share = 100 - 4 - 4 - (10 + 4) - 4;
    QCOMPARE(m_layout->sizeHint().height(), 4 + 10 + 4 + share + 4);
}

void tst_PropertyLayout::measuringMovesNothing()
{
    FixedHintItem *const item = addItem(new FixedHintItem(QSize(30, 10)), kNewRow);
    place(300, 100);
    const QRect before = item->geometry();
    item->setGeometry(QRect());

    m_layout->doLayout(QRect(0, 0, 90, 90), true, PropertyLayout::SizeType::Preferred);
    m_layout->sizeHint();
    m_layout->minimumSize();

    QVERIFY(before.isValid());
    QCOMPARE(item->geometry(), QRect());
}

void tst_PropertyLayout::placingReportsGivenWidth()
{
    add(QSize(30, 10), kNewRow);
    add(QSize(500, 20), Options());
    const QRect rect(0, 0, 333, 444);

    QCOMPARE(m_layout->doLayout(rect, false, PropertyLayout::SizeType::Preferred), QSize(333, 28));
}

void tst_PropertyLayout::measuresEachItemOnce()
{
    const FixedHintItem *label = addItem(new FixedHintItem(QSize(30, 10)), kNewRow);
    const FixedHintItem *field = addItem(new FixedHintItem(QSize(30, 10)), kExpandVertical);

    place(300, 100);

    QCOMPARE(label->measurements(), 1);
    QCOMPARE(field->measurements(), 1);
}

void tst_PropertyLayout::silentChangeOfHintIsSeen()
{
    FixedHintWidget *label = add(QSize(40, 20), kNewRow);
    const FixedHintWidget *field = add(QSize(20, 20), kExpandHorizontal);
    place(300, 100);

    label->setHint(QSize(60, 20));
    place(300, 100);

    QCOMPARE(field->geometry(), QRect(74, 4, 222, 20));
}

void tst_PropertyLayout::labelsAndLineEditsTellTheirHints_data()
{
    QTest::addColumn<HintChange>("change");

    QTest::newRow("text") << HintChange(
        [](QLabel *label, QLineEdit *) { label->setText(QStringLiteral("a much longer label")); });
    QTest::newRow("margin of the label")
        << HintChange([](QLabel *label, QLineEdit *) { label->setMargin(30); });
    QTest::newRow("margins of the text")
        << HintChange([](QLabel *, QLineEdit *field) { field->setTextMargins(20, 30, 20, 30); });
    QTest::newRow("frame") << HintChange(
        [](QLabel *, QLineEdit *field) { field->setFrame(false); });
    QTest::newRow("fonts") << HintChange([](QLabel *label, QLineEdit *field) {
        QFont font = label->font();
        font.setPixelSize(60);
        label->setFont(font);
        field->setFont(font);
    });
    QTest::newRow("font of the panel") << HintChange([](QLabel *label, QLineEdit *) {
        QFont font = label->font();
        font.setPixelSize(60);
        label->parentWidget()->setFont(font);
    });
    QTest::newRow("style sheet of the panel") << HintChange([](QLabel *label, QLineEdit *) {
        label->parentWidget()->setStyleSheet(QStringLiteral("QLabel, QLineEdit { padding: 30px }"));
    });
    QTest::newRow("least size") << HintChange(
        [](QLabel *, QLineEdit *field) { field->setMinimumSize(400, 90); });
    QTest::newRow("greatest size")
        << HintChange([](QLabel *, QLineEdit *field) { field->setMaximumSize(50, 5); });
    QTest::newRow("policy") << HintChange([](QLabel *, QLineEdit *field) {
        field->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    });
}

/// Their hints are kept between the passes.
void tst_PropertyLayout::labelsAndLineEditsTellTheirHints()
{
    QFETCH(HintChange, change);
    m_layout->addRow(QStringLiteral("Label:"), new QLineEdit);
    auto *const label = m_host->findChild<QLabel *>();
    auto *const field = m_host->findChild<QLineEdit *>();
    m_host->resize(300, 100);
    m_host->show();
    place(300, 100);
    const QRect before[] = {label->geometry(), field->geometry()};

    change(label, field);
    place(300, 100);

    const QRect after[] = {label->geometry(), field->geometry()};
    QVERIFY(after[0] != before[0] || after[1] != before[1]);
    PropertyLayout fresh(4); // items of its own, which have kept nothing
    fresh.addItem(new QWidgetItem(label), kNewRow, Qt::AlignCenter);
    fresh.addItem(new QWidgetItem(field), kExpandHorizontal, Qt::AlignCenter);
    fresh.setGeometry(QRect(0, 0, 300, 100));
    QCOMPARE(after[0], label->geometry());
    QCOMPARE(after[1], field->geometry());
}

// Placing across

void tst_PropertyLayout::labelAndFieldSitInTheirColumns()
{
    const FixedHintWidget *label = add(QSize(40, 20), kNewRow);
    const FixedHintWidget *field = add(QSize(20, 20), kExpandHorizontal);

    place(300, 100);

    QCOMPARE(label->geometry(), QRect(4, 4, 40, 20));
    QCOMPARE(field->geometry(), QRect(54, 4, 242, 20));
}

void tst_PropertyLayout::rectangleOriginIsNotAdded()
{
    const FixedHintWidget *label = add(QSize(40, 20), kNewRow);
    const FixedHintWidget *field = add(QSize(20, 20), kExpandHorizontal);

    m_layout->setGeometry(QRect(70, 80, 300, 100));

    QCOMPARE(m_layout->geometry(), QRect(70, 80, 300, 100));
    QCOMPARE(label->geometry(), QRect(4, 4, 40, 20));
    QCOMPARE(field->geometry(), QRect(54, 4, 242, 20));
}

void tst_PropertyLayout::labelsAreFlushRight()
{
    const FixedHintWidget *narrow = add(QSize(30, 10), kNewRow);
    const FixedHintWidget *field = add(QSize(20, 10), Options());
    const FixedHintWidget *wide = add(QSize(50, 10), kNewRow);

    place(300, 100);

    QCOMPARE(narrow->geometry(), QRect(4 + 20, 4, 30, 10));
    QCOMPARE(field->x(), 4 + 50 + 10);
    QCOMPARE(wide->geometry(), QRect(4, 18, 50, 10));
}

void tst_PropertyLayout::rightToLeftMirrorsRows()
{
    const FixedHintWidget *label = add(QSize(40, 20), kNewRow);
    const FixedHintWidget *first = add(QSize(20, 20), Options());
    const FixedHintWidget *second = add(QSize(20, 20), kExpandHorizontal);
    const FixedHintWidget *whole = add(QSize(30, 20), kFullWidth);
    m_host->setLayoutDirection(Qt::RightToLeft);

    place(300, 100);

    // From the right: margin, label, gap, fields.
    QCOMPARE(label->geometry(), QRect(300 - 4 - 40, 4, 40, 20));
    QCOMPARE(first->geometry(), QRect(300 - 54 - 20, 4, 20, 20));
    QCOMPARE(second->geometry(), QRect(4, 4, 300 - 54 - 20 - 4 - 4, 20));
    QCOMPARE(whole->geometry(), QRect(300 - 4 - 30, 28, 30, 20));
}

void tst_PropertyLayout::changeOfDirectionPlacesAnew()
{
    const FixedHintWidget *label = add(QSize(40, 20), kNewRow);
    add(QSize(20, 20), kExpandHorizontal);
    m_host->resize(300, 100);
    m_host->show();
    QCOMPARE(label->x(), 4);

    m_host->setLayoutDirection(Qt::RightToLeft);
    QTRY_COMPARE(label->x(), 300 - 4 - 40);

    m_host->setLayoutDirection(Qt::LeftToRight);
    QTRY_COMPARE(label->x(), 4);
}

void tst_PropertyLayout::labelWithExpandingPolicyKeepsItsWidth()
{
    FixedHintWidget *const label = add(QSize(40, 20), kNewRow);
    label->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    const FixedHintWidget *field = add(QSize(20, 20), kExpandHorizontal);

    place(300, 100);

    QCOMPARE(label->geometry(), QRect(4, 4, 40, 20));
    QCOMPARE(field->geometry(), QRect(54, 4, 242, 20));
}

void tst_PropertyLayout::labelKeepsToItsLimits()
{
    // The column is as wide as the hint, the label right-aligned in it with what it may have.
    const FixedHintItem *capped =
        addItem(new FixedHintItem(QSize(40, 10), QSize(0, 0), QSize(25, 99)), kNewRow);
    const FixedHintItem *field = addItem(new FixedHintItem(QSize(20, 10)), Options());
    const FixedHintItem *raised =
        addItem(new FixedHintItem(QSize(30, 10), QSize(60, 0), QSize(99, 99)), kNewRow);

    place(300, 100);

    QCOMPARE(capped->geometry(), QRect(4 + 40 - 25, 4, 25, 10));
    QCOMPARE(field->geometry(), QRect(4 + 40 + 10, 4, 20, 10));
    QCOMPARE(raised->geometry(), QRect(4 + 40 - 60, 18, 60, 10));
}

void tst_PropertyLayout::twoFieldsShareOddWidth()
{
    add(QSize(30, 10), kNewRow);
    const FixedHintWidget *first = add(QSize(20, 10), kExpandHorizontal);
    const FixedHintWidget *second = add(QSize(20, 10), kExpandHorizontal);

    place(4 + 30 + 10 + 101 + 4, 100);

    QCOMPARE(first->geometry(), QRect(44, 4, 50, 10));
    QCOMPARE(second->geometry(), QRect(44 + 54, 4, 101 - 54, 10));
}

void tst_PropertyLayout::threeFieldsShareWhatIsLeft()
{
    const FixedHintWidget *first = add(QSize(20, 10), kFullWidth | kExpandHorizontal);
    const FixedHintWidget *second = add(QSize(20, 10), kExpandHorizontal);
    const FixedHintWidget *third = add(QSize(20, 10), kExpandHorizontal);

    place(108, 100);

    QCOMPARE(first->geometry(), QRect(4, 4, 33, 10));
    QCOMPARE(second->geometry(), QRect(4 + 37, 4, (100 - 37) / 2, 10));
    QCOMPARE(third->geometry(), QRect(4 + 37 + 35, 4, 100 - 37 - 35, 10));
}

void tst_PropertyLayout::limitedFieldLeavesRestToLaterOnes()
{
    add(QSize(30, 10), kNewRow);
    FixedHintWidget *const capped = add(QSize(20, 10), kExpandHorizontal);
    capped->setMaximumWidth(10);
    const FixedHintWidget *rest = add(QSize(20, 10), kExpandHorizontal);

    place(4 + 30 + 10 + 100 + 4, 100);

    QCOMPARE(capped->geometry(), QRect(44, 4, 10, 10));
    QCOMPARE(rest->geometry(), QRect(58, 4, 86, 10));
}

void tst_PropertyLayout::fixedFieldKeepsItsWidth()
{
    add(QSize(30, 10), kNewRow);
    const FixedHintWidget *fixed = add(QSize(20, 10), Options());
    const FixedHintWidget *expanding = add(QSize(20, 10), kExpandHorizontal);

    place(4 + 30 + 10 + 100 + 4, 100);

    QCOMPARE(fixed->geometry(), QRect(44, 4, 20, 10));
    QCOMPARE(expanding->geometry(), QRect(68, 4, 100 - 24, 10));
}

void tst_PropertyLayout::minimumWidthWinsOverMaximum()
{
    const FixedHintItem *item =
        addItem(new FixedHintItem(QSize(40, 10), QSize(60, 0), QSize(20, 99)), kFullWidth);

    place(300, 100);

    QCOMPARE(item->geometry(), QRect(4, 4, 60, 10));
}

void tst_PropertyLayout::spareWidthMayBeNegative()
{
    const FixedHintItem *fixed = addItem(new FixedHintItem(QSize(80, 10)), kFullWidth);
    const FixedHintItem *expanding =
        addItem(new FixedHintItem(QSize(20, 10), QSize(-500, 0)), kExpandHorizontal);
    const FixedHintItem *last =
        addItem(new FixedHintItem(QSize(20, 10), QSize(-500, 0)), kExpandHorizontal);

    place(50, 100);

    const int spare = 50 - 84 - 8;
    QCOMPARE(fixed->geometry(), QRect(4, 4, 80, 10));
    QCOMPARE(expanding->geometry(), QRect(88, 4, spare / 2, 10));
    QCOMPARE(last->geometry(), QRect(88 + spare / 2 + 4, 4, spare - (spare / 2 + 4), 10));
}

void tst_PropertyLayout::horizontalPolicyExpands_data()
{
    QTest::addColumn<QSizePolicy::Policy>("policy");
    QTest::addColumn<bool>("expands");

    QTest::newRow("Fixed") << QSizePolicy::Fixed << false;
    QTest::newRow("Minimum") << QSizePolicy::Minimum << false;
    QTest::newRow("Maximum") << QSizePolicy::Maximum << false;
    QTest::newRow("Preferred") << QSizePolicy::Preferred << false;
    QTest::newRow("MinimumExpanding does not count") << QSizePolicy::MinimumExpanding << false;
    QTest::newRow("Expanding") << QSizePolicy::Expanding << true;
}

void tst_PropertyLayout::horizontalPolicyExpands()
{
    QFETCH(QSizePolicy::Policy, policy);
    QFETCH(bool, expands);
    FixedHintWidget *const first = add(QSize(20, 10), kFullWidth);
    FixedHintWidget *const second = add(QSize(20, 10), Options());
    second->setSizePolicy(policy, QSizePolicy::Preferred);

    place(300, 100);
    QCOMPARE(second->width(), expands ? 300 - 8 - 24 : 20);

    first->setSizePolicy(policy, QSizePolicy::Preferred);
    second->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
    place(300, 100);
    QCOMPARE(first->width(), expands ? 300 - 8 - 24 : 20);
}

void tst_PropertyLayout::verticalPolicyExpands_data()
{
    horizontalPolicyExpands_data();
}

void tst_PropertyLayout::verticalPolicyExpands()
{
    QFETCH(QSizePolicy::Policy, policy);
    QFETCH(bool, expands);
    FixedHintWidget *const widget = add(QSize(20, 10), kFullWidth);
    widget->setSizePolicy(QSizePolicy::Preferred, policy);

    place(300, 100);

    QCOMPARE(widget->height(), expands ? 100 - 8 - 4 : 10);
}

void tst_PropertyLayout::itemWithoutWidgetExpandsByOptionOnly()
{
    const FixedHintItem *plain = addItem(new FixedHintItem(QSize(20, 10)), kFullWidth);
    const FixedHintItem *expanding =
        addItem(new FixedHintItem(QSize(20, 10)), kFullWidth | kExpandHorizontal | kExpandVertical);
    QCOMPARE(plain->expandingDirections(), Qt::Horizontal | Qt::Vertical);

    place(300, 100);

    QCOMPARE(plain->geometry(), QRect(4, 4, 20, 10));
    QCOMPARE(expanding->geometry(), QRect(4, 18, 292, 100 - 8 - 14 - 4));
}

void tst_PropertyLayout::fullWidthItemStartsAtMargin()
{
    add(QSize(70, 10), kNewRow);
    const FixedHintWidget *wide = add(QSize(20, 10), kFullWidth);
    const FixedHintWidget *next = add(QSize(30, 10), Options());

    place(300, 100);

    QCOMPARE(wide->geometry(), QRect(4, 18, 20, 10));
    QCOMPARE(next->geometry(), QRect(28, 18, 30, 10));
}

void tst_PropertyLayout::expandingFullWidthItemSharesWithNeighbours()
{
    const FixedHintWidget *wide = add(QSize(20, 10), kFullWidth | kExpandHorizontal);
    const FixedHintWidget *fixed = add(QSize(30, 10), Options());
    const FixedHintWidget *last = add(QSize(20, 10), kExpandHorizontal);

    place(4 + 34 + 100 + 4, 100);

    QCOMPARE(wide->geometry(), QRect(4, 4, 50, 10));
    QCOMPARE(fixed->geometry(), QRect(58, 4, 30, 10));
    QCOMPARE(last->geometry(), QRect(92, 4, 46, 10));
}

void tst_PropertyLayout::firstItemWithoutNewRowSitsInLabelColumn()
{
    const FixedHintItem *first = addItem(new FixedHintItem(QSize(20, 10)), Options());
    const FixedHintItem *second = addItem(new FixedHintItem(QSize(20, 10)), kExpandHorizontal);
    addItem(new FixedHintItem(QSize(50, 10)), kNewRow);

    place(300, 100);

    // It is aligned as a label, but counts as a field in width.
    QCOMPARE(first->geometry(), QRect(4 + 30, 4, 20, 10));
    QCOMPARE(second->geometry(), QRect(4 + 50 + 10, 4, 300 - 8 - 24, 10));
    QCOMPARE(measured().width(), 4 + 50 + 10 + 40 + 4);
}

void tst_PropertyLayout::itemsAreCentredInRow()
{
    const FixedHintWidget *label = add(QSize(20, 10), kNewRow);
    const FixedHintWidget *field = add(QSize(20, 40), Options());

    place(300, 100);

    QCOMPARE(label->geometry(), QRect(4, 4 + 15, 20, 10));
    QCOMPARE(field->geometry(), QRect(34, 4, 20, 40));
}

void tst_PropertyLayout::oddRestIsRoundedTowardZero()
{
    const FixedHintItem *low = addItem(new FixedHintItem(QSize(20, 10)), kFullWidth);
    addItem(new FixedHintItem(QSize(20, 25)), Options());
    const FixedHintItem *tall =
        addItem(new FixedHintItem(QSize(20, 25), QSize(0, 0), QSize(99, 10)), kFullWidth);

    place(300, 100);

    QCOMPARE(low->geometry(), QRect(4, 4 + 7, 20, 10));
    QCOMPARE(tall->geometry(), QRect(4, 33 - 7, 20, 25)); // -15 / 2
}

void tst_PropertyLayout::tallItemIsCentredAtItsHintHeight()
{
    const FixedHintItem *tall =
        addItem(new FixedHintItem(QSize(20, 40), QSize(0, 0), QSize(99, 30)), kFullWidth);
    const FixedHintItem *below = addItem(new FixedHintItem(QSize(20, 10)), kFullWidth);

    place(300, 100);

    QCOMPARE(tall->geometry(), QRect(4, 4 - 5, 20, 40));
    QCOMPARE(below->geometry(), QRect(4, 4 + 30 + 4, 20, 10));
}

void tst_PropertyLayout::minimumHeightWinsOverMaximum()
{
    const FixedHintItem *item =
        addItem(new FixedHintItem(QSize(20, 10), QSize(0, 50), QSize(99, 30)), kFullWidth);
    const FixedHintItem *below = addItem(new FixedHintItem(QSize(20, 10)), kFullWidth);

    place(300, 100);

    QCOMPARE(item->geometry(), QRect(4, 4 + 20, 20, 10));
    QCOMPARE(below->geometry(), QRect(4, 4 + 50 + 4, 20, 10));
}

void tst_PropertyLayout::changedMarginsAreUsed()
{
    m_layout->setContentsMargins(1, 20, 3, 40);
    const FixedHintWidget *label = add(QSize(30, 10), kNewRow);
    const FixedHintWidget *field =
        add(QSize(20, 10), PropertyLayout::ExpandHorizontal | PropertyLayout::ExpandVertical);

    place(300, 200);

    const int height = 200 - 20 - 40 - 4;
    QCOMPARE(label->geometry(), QRect(1, 20 + (height - 10) / 2, 30, 10));
    QCOMPARE(field->geometry(), QRect(41, 20, 300 - 40 - 1 - 3, height));
    QCOMPARE(measured().width(), 1 + 30 + 10 + 20 + 3);
}

void tst_PropertyLayout::changedSpacingsAreUsed()
{
    const FixedHintWidget *first = add(QSize(30, 10), kFullWidth);
    const FixedHintWidget *second = add(QSize(20, 10), Options());
    const FixedHintWidget *below = add(QSize(20, 10), kFullWidth);
    place(300, 200);

    m_layout->setHorizontalSpacing(11);
    m_layout->setVerticalSpacing(13);
    QCOMPARE(m_layout->geometry(), QRect(0, 0, 300, 200)); // nothing is invalidated
    QCOMPARE(m_layout->spacing(), 4);
    place(300, 200);

    QCOMPARE(first->pos(), QPoint(4, 4));
    QCOMPARE(second->pos(), QPoint(4 + 30 + 11, 4));
    QCOMPARE(below->pos(), QPoint(4, 4 + 10 + 13));
}

// Placing down

void tst_PropertyLayout::expandingItemFillsRow()
{
    const FixedHintWidget *above = add(QSize(30, 10), kFullWidth);
    const FixedHintWidget *label = add(QSize(30, 10), kNewRow);
    const FixedHintWidget *field = add(QSize(30, 20), kExpandVertical);
    const FixedHintWidget *below = add(QSize(30, 10), kFullWidth);

    place(300, 200);

    const int height = 200 - 8 - 14 - 14 - 4;
    QCOMPARE(above->geometry(), QRect(4, 4, 30, 10));
    QCOMPARE(label->geometry(), QRect(4, 18 + (height - 10) / 2, 30, 10));
    QCOMPARE(field->geometry(), QRect(44, 18, 30, height));
    QCOMPARE(below->geometry(), QRect(4, 18 + height + 4, 30, 10));
}

void tst_PropertyLayout::twoExpandingRowsShareHeight()
{
    const FixedHintWidget *first = add(QSize(30, 10), kFullWidth | kExpandVertical);
    const FixedHintWidget *second = add(QSize(30, 10), kFullWidth | kExpandVertical);

    place(300, 213);

    // The gap between them is not set aside, so the last row ends lower.
    const int spare = 213 - 8 - 4;
    QCOMPARE(first->geometry(), QRect(4, 4, 30, spare / 2));
    QCOMPARE(second->geometry(), QRect(4, 4 + spare / 2 + 4, 30, spare - spare / 2));
}

void tst_PropertyLayout::cappedRowLeavesRestToLaterOnes()
{
    FixedHintWidget *const capped = add(QSize(30, 10), kFullWidth | kExpandVertical);
    capped->setMaximumHeight(30);
    const FixedHintWidget *rest = add(QSize(30, 10), kFullWidth | kExpandVertical);

    place(300, 212);

    QCOMPARE(capped->geometry(), QRect(4, 4, 30, 30));
    QCOMPARE(rest->geometry(), QRect(4, 38, 30, 200 - 30));
}

void tst_PropertyLayout::cappedRowWinsOverItsFloor()
{
    add(QSize(30, 80), kNewRow);
    const FixedHintItem *capped =
        addItem(new FixedHintItem(QSize(30, 10), QSize(0, 0), QSize(99, 50)), kExpandVertical);
    const FixedHintWidget *below = add(QSize(30, 10), kFullWidth);

    place(300, 20);

    QCOMPARE(capped->geometry(), QRect(44, 4, 30, 50));
    QCOMPARE(below->y(), 4 + 50 + 4);
}

void tst_PropertyLayout::expandingRowKeepsToItsFloor_data()
{
    QTest::addColumn<int>("fieldMinimum");
    QTest::addColumn<int>("labelHint");
    QTest::addColumn<int>("height");

    QTest::newRow("minimum of the expanding item") << 60 << 10 << 60;
    QTest::newRow("height of a fixed neighbour") << 0 << 70 << 70;
    QTest::newRow("hint of the expanding item does not count") << 0 << 10 << 18;
}

void tst_PropertyLayout::expandingRowKeepsToItsFloor()
{
    QFETCH(int, fieldMinimum);
    QFETCH(int, labelHint);
    QFETCH(int, height);
    addItem(new FixedHintItem(QSize(30, labelHint)), kNewRow);
    const FixedHintItem *field =
        addItem(new FixedHintItem(QSize(30, 40), QSize(0, fieldMinimum)), kExpandVertical);

    place(300, 8 + 4 + 18);

    QCOMPARE(field->geometry(), QRect(44, 4, 30, height));
}

void tst_PropertyLayout::expandingRowIsNeverTallerThan10000()
{
    const FixedHintItem *item =
        addItem(new FixedHintItem(QSize(30, 40)), kFullWidth | kExpandVertical);

    place(300, 50000);

    QCOMPARE(item->geometry(), QRect(4, 4, 30, 10000));
}

void tst_PropertyLayout::hugeSizesDoNotOverflow()
{
    const int huge = std::numeric_limits<int>::max();
    const QSize size(huge, huge);
    for (int row = 0; row < 3; ++row) {
        addItem(new FixedHintItem(size, size, size), kNewRow);
        addItem(new FixedHintItem(size, size, size), kExpandHorizontal);
        addItem(new FixedHintItem(size, size, size), Options());
    }
    const QLayoutItem *beyond = m_layout->itemAt(m_layout->count() - 1);
    const FixedHintItem *last = addItem(new FixedHintItem(QSize(30, 10)), kFullWidth);

    place(300, 100);

    QCOMPARE(measured(), size);
    QCOMPARE(beyond->geometry(), QRect(QPoint(huge, huge), QPoint(huge, huge)));
    QCOMPARE(last->geometry(), QRect(QPoint(4, huge), QPoint(4 + 30 - 1, huge)));
}

// Hidden items

void tst_PropertyLayout::hiddenRowTakesNoSpace()
{
    add(QSize(30, 10), kFullWidth);
    add(QSize(99, 99), kNewRow)->hide();
    add(QSize(99, 99), Options())->hide();
    const FixedHintWidget *below = add(QSize(30, 10), kFullWidth);

    place(300, 100);

    QCOMPARE(below->geometry(), QRect(4, 18, 30, 10));
    QCOMPARE(measured(), QSize(18, 4 + 10 + 4 + 10 + 4));
}

void tst_PropertyLayout::hiddenLastItemLeavesRowOpen()
{
    FixedHintItem *const label = addItem(new FixedHintItem(QSize(30, 10)), kNewRow);
    FixedHintItem *const field = addItem(new FixedHintItem(QSize(30, 10)), kExpandVertical);
    const FixedHintItem *below = addItem(new FixedHintItem(QSize(30, 10)), kFullWidth);
    const QRect before(1, 2, 3, 4);
    label->setGeometry(before);
    field->setEmpty(true);

    place(300, 100);

    QCOMPARE(label->geometry(), before);
    QCOMPARE(below->geometry(), QRect(4, 4, 30, 10));
    QCOMPARE(measured(), QSize(4 + 30 + 10 + 4, 18)); // the label's width counts all the same
}

void tst_PropertyLayout::rowAfterOpenRowStartsAfresh()
{
    addItem(new FixedHintItem(QSize(30, 10)), kNewRow);
    addItem(new FixedHintItem(QSize(30, 50)), kExpandHorizontal | kExpandVertical);
    addItem(new FixedHintItem(QSize(30, 50)), Options())->setEmpty(true);
    const FixedHintItem *wide =
        addItem(new FixedHintItem(QSize(30, 10)), kFullWidth | kExpandHorizontal);
    addItem(new FixedHintItem(QSize(30, 10)), kNewRow);
    const FixedHintItem *field = addItem(new FixedHintItem(QSize(30, 10)), kExpandHorizontal);

    place(300, 100);

    QCOMPARE(wide->geometry(), QRect(4, 4, 292, 10));
    QCOMPARE(field->geometry(), QRect(44, 18, 252, 10));
}

void tst_PropertyLayout::hiddenLabelJoinsFieldToRowBefore()
{
    const FixedHintItem *label = addItem(new FixedHintItem(QSize(30, 10)), kNewRow);
    const FixedHintItem *field = addItem(new FixedHintItem(QSize(20, 30)), Options());
    FixedHintItem *const hidden = addItem(new FixedHintItem(QSize(50, 10)), kNewRow);
    const FixedHintItem *joined = addItem(new FixedHintItem(QSize(20, 16)), kExpandHorizontal);
    hidden->setEmpty(true);

    place(300, 200);

    // The row before is laid out once more, below itself, with the joined field at its end.
    const int top = 4 + 30 + 4;
    QCOMPARE(label->geometry(), QRect(4, top + 10, 30, 10));
    QCOMPARE(field->geometry(), QRect(44, top, 20, 30));
    QCOMPARE(joined->geometry(), QRect(44 + 24 + 3, top + 7, 300 - 40 - 24 - 8, 16));
    QCOMPARE(measured(), QSize(4 + 30 + 10 + 40 + 4, 4 + 30 + 4 + 30 + 4));
}

void tst_PropertyLayout::hiddenLabelAtTopLeavesFieldInFieldColumn()
{
    addItem(new FixedHintItem(QSize(50, 10)), kNewRow)->setEmpty(true);
    const FixedHintItem *field = addItem(new FixedHintItem(QSize(20, 10)), kExpandHorizontal);

    place(300, 100);

    // No label is measured, and no width set aside for the label column.
    QCOMPARE(field->geometry(), QRect(4 + 10, 4, 300 - 8, 10));
}

void tst_PropertyLayout::hiddenItemTakesItsLastWidth()
{
    addItem(new FixedHintItem(QSize(30, 10)), kFullWidth);
    FixedHintItem *const hidden = addItem(new FixedHintItem(QSize(20, 10)), kExpandHorizontal);
    const FixedHintItem *last = addItem(new FixedHintItem(QSize(20, 10)), Options());
    place(300, 100);
    const int given = 300 - 8 - 34 - 24;
    QCOMPARE(hidden->geometry(), QRect(38, 4, given, 10));

    hidden->setEmpty(true);
    place(200, 100);

    QCOMPARE(last->geometry(), QRect(38 + given + 4, 4, 20, 10));
}

void tst_PropertyLayout::hiddenItemNeverMeasuredTakesMinusOne()
{
    addItem(new FixedHintItem(QSize(30, 10)), kFullWidth);
    addItem(new FixedHintItem(QSize(20, 10)), Options())->setEmpty(true);
    const FixedHintItem *last = addItem(new FixedHintItem(QSize(20, 10)), Options());

    place(300, 100);

    QCOMPARE(last->geometry(), QRect(38 - 1 + 4, 4, 20, 10));
}

void tst_PropertyLayout::expandingItemOfUsedUpRowGetsAllSpareWidth()
{
    addItem(new FixedHintItem(QSize(30, 10)), kNewRow);
    const FixedHintItem *field =
        addItem(new FixedHintItem(QSize(20, 10), QSize(0, 0), QSize(100, 99)), kExpandHorizontal);
    addItem(new FixedHintItem(QSize(30, 10)), kNewRow)->setEmpty(true);
    const FixedHintItem *joined = addItem(new FixedHintItem(QSize(20, 10)), kExpandHorizontal);

    place(300, 200);

    QCOMPARE(field->geometry(), QRect(44, 18, 100, 10));
    QCOMPARE(joined->geometry(), QRect(44 + 104 + 3, 18, 300 - 48 - 104, 10));
}

void tst_PropertyLayout::sharesOwedByJoinedRowsAddUp()
{
    addItem(new FixedHintItem(QSize(30, 10)), kNewRow);
    const FixedHintItem *first = addItem(new FixedHintItem(QSize(20, 10)), kExpandHorizontal);
    addItem(new FixedHintItem(QSize(30, 10)), kNewRow)->setEmpty(true);
    addItem(new FixedHintItem(QSize(20, 10)), kExpandHorizontal);
    addItem(new FixedHintItem(QSize(30, 10)), kNewRow)->setEmpty(true);
    addItem(new FixedHintItem(QSize(20, 10)), kExpandHorizontal);
    const FixedHintItem *last = addItem(new FixedHintItem(QSize(20, 10)), kExpandHorizontal);

    place(300, 200);

    // The second row took a share too many, which the third has less: one instead of two.
    QCOMPARE(first->geometry(), QRect(44, 4 + 28, 252, 10));
    QCOMPARE(last->geometry().width(), 0);
}

// Groups

void tst_PropertyLayout::indentation_data()
{
    QTest::addColumn<QByteArray>("rows");
    QTest::addColumn<QList<int>>("indents");

    QTest::newRow("no group") << QByteArray("..") << QList<int>({0, 0});
    QTest::newRow("top level") << QByteArray("(.).") << QList<int>({0, 0, 0, 0});
    QTest::newRow("two deep") << QByteArray("((.).).") << QList<int>({0, 16, 16, 0, 0, 0, 0});
    QTest::newRow("three deep") << QByteArray("(((.)))") << QList<int>({0, 16, 32, 32, 16, 0, 0});
    QTest::newRow("end without begin") << QByteArray(").((.") << QList<int>({0, 0, 0, 0, 0});
    QTest::newRow("begin without end") << QByteArray("((.(.") << QList<int>({0, 16, 16, 32, 32});
}

void tst_PropertyLayout::indentation()
{
    QFETCH(QByteArray, rows);
    QFETCH(QList<int>, indents);
    const std::vector<FixedHintWidget *> widgets = addGroupRows(rows);

    place(300, 300);

    QList<int> actual;
    for (const FixedHintWidget *widget : widgets)
        actual += widget->x() - 4;
    QCOMPARE(actual, indents);
}

void tst_PropertyLayout::indentationIsThatOfTheEndOfTheRow()
{
    addMarker("beginGroup");
    const FixedHintWidget *label = add(QSize(30, 10), kNewRow);
    const FixedHintItem *field = addItem(new FixedHintItem(QSize(30, 10)), kBeginGroup);
    const FixedHintWidget *wide = add(QSize(30, 10), kFullWidth);
    addItem(new FixedHintItem(QSize(30, 10)), kEndGroup);

    place(300, 200);

    QCOMPARE(label->x(), 4 + 16);
    QCOMPARE(field->geometry().x(), 4 + 16 + 40);
    QCOMPARE(wide->x(), 4);
}

void tst_PropertyLayout::hiddenMarkersCount()
{
    const std::vector<FixedHintWidget *> widgets = addGroupRows("((.)).");
    for (const std::size_t marker : {0U, 1U, 3U, 4U})
        widgets[marker]->hide();

    place(300, 200);

    QCOMPARE(widgets[2]->pos(), QPoint(4 + 16, 4));
    QCOMPARE(widgets[5]->pos(), QPoint(4, 18));
}

void tst_PropertyLayout::indentedRowIsNarrower()
{
    addMarker("beginGroup");
    addMarker("beginGroup");
    const FixedHintWidget *label = add(QSize(30, 10), kNewRow);
    const FixedHintWidget *field = add(QSize(30, 10), kExpandHorizontal);

    place(300, 200);

    QCOMPARE(label->x(), 4 + 16);
    QCOMPARE(field->x(), 4 + 16 + 40);
    QCOMPARE(field->width(), 300 - 8 - 16 - 40);
}

void tst_PropertyLayout::markersAreReadWhenAdded()
{
    const std::vector<FixedHintWidget *> widgets = addGroupRows("...(.");
    widgets[0]->setProperty("beginGroup", true);
    widgets[1]->setProperty("beginGroup", true);
    widgets[3]->setProperty("beginGroup", false);

    place(300, 200);

    QCOMPARE(widgets[2]->x(), 4);
    m_layout->setGroupVisible(widgets[3], false);
    QVERIFY(widgets[4]->isHidden());
}

void tst_PropertyLayout::markerPropertyIsReadAsBool_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<bool>("counts");

    QTest::newRow("true") << QVariant(true) << true;
    QTest::newRow("number") << QVariant(1) << true;
    QTest::newRow("text") << QVariant(QStringLiteral("yes")) << true;
    QTest::newRow("false") << QVariant(false) << false;
    QTest::newRow("zero") << QVariant(0) << false;
    QTest::newRow("text false") << QVariant(QStringLiteral("false")) << false;
    QTest::newRow("a point") << QVariant(QPoint(1, 1)) << false;
}

void tst_PropertyLayout::markerPropertyIsReadAsBool()
{
    QFETCH(QVariant, value);
    QFETCH(bool, counts);
    addMarker("beginGroup");
    auto *const begin = new FixedHintWidget(QSize(10, 10));
    begin->setProperty("beginGroup", value);
    m_layout->addWidget(begin, kFullWidth);
    auto *const end = new FixedHintWidget(QSize(10, 10));
    end->setProperty("endGroup", value);
    m_layout->addWidget(end, kFullWidth);

    place(300, 200);

    QCOMPARE(begin->x(), counts ? 20 : 4);
    QCOMPARE(end->x(), 4);
    const FixedHintWidget *inside = add(QSize(10, 10), kFullWidth);
    addMarker("beginGroup");
    const FixedHintWidget *deeper = add(QSize(10, 10), kFullWidth);
    place(300, 200);
    QCOMPARE(inside->x(), 4);
    QCOMPARE(deeper->x(), 20);
}

void tst_PropertyLayout::beginWinsOverEnd()
{
    addMarker("beginGroup");
    auto *const both = new FixedHintWidget(QSize(10, 10));
    both->setProperty("beginGroup", true);
    both->setProperty("endGroup", true);
    m_layout->addWidget(both, kFullWidth);
    const FixedHintWidget *inside = add(QSize(10, 10), kFullWidth);

    place(300, 200);

    QCOMPARE(inside->x(), 20);
}

void tst_PropertyLayout::groupVisibility_data()
{
    QTest::addColumn<QByteArray>("rows");
    QTest::addColumn<int>("begin");
    QTest::addColumn<QByteArray>("hidden"); // "x" where a row is hidden

    QTest::newRow("up to the end, which stays")
        << QByteArray(".(..).") << 1 << QByteArray("  xx  ");
    QTest::newRow("empty group") << QByteArray("().") << 0 << QByteArray("   ");
    QTest::newRow("nested groups with their markers")
        << QByteArray("(.(.).).") << 0 << QByteArray(" xxxxx  ");
    QTest::newRow("inner group") << QByteArray("(.(.).).") << 2 << QByteArray("   x    ");
    QTest::newRow("two nested groups side by side")
        << QByteArray("(()(.)).") << 0 << QByteArray(" xxxxx  ");
    QTest::newRow("missing end") << QByteArray("(.(.).") << 0 << QByteArray(" xxxxx");
    QTest::newRow("from an ordinary row") << QByteArray("..).") << 0 << QByteArray(" x  ");
    QTest::newRow("last row") << QByteArray("..(") << 2 << QByteArray("   ");
}

void tst_PropertyLayout::groupVisibility()
{
    QFETCH(QByteArray, rows);
    QFETCH(int, begin);
    QFETCH(QByteArray, hidden);
    const std::vector<FixedHintWidget *> widgets = addGroupRows(rows);
    const auto hiddenRows = [&widgets] {
        QByteArray result;
        for (const FixedHintWidget *widget : widgets)
            result += widget->isHidden() ? 'x' : ' ';
        return result;
    };

    m_layout->setGroupVisible(widgets[static_cast<std::size_t>(begin)], false);
    QCOMPARE(hiddenRows(), hidden);

    m_layout->setGroupVisible(widgets[static_cast<std::size_t>(begin)], true);
    QCOMPARE(hiddenRows(), QByteArray(rows.size(), ' '));
}

void tst_PropertyLayout::groupWidgetItselfStays()
{
    const std::vector<FixedHintWidget *> widgets = addGroupRows("(.(.))");
    m_layout->setGroupVisible(widgets[2], false);
    m_layout->setGroupVisible(widgets[0], false);
    QVERIFY(!widgets[0]->isHidden());
    place(300, 300);
    QCOMPARE(widgets[0]->geometry(), QRect(4, 4, 10, 10));

    // A collapsed inner group opens with the outer one.
    m_layout->setGroupVisible(widgets[0], true);

    QVERIFY(!widgets[3]->isHidden());
}

void tst_PropertyLayout::groupOfUnknownWidgetDoesNothing_data()
{
    QTest::addColumn<bool>("isNull");

    QTest::newRow("another widget") << false;
    QTest::newRow("null, beside an item without widget") << true;
}

void tst_PropertyLayout::groupOfUnknownWidgetDoesNothing()
{
    QFETCH(bool, isNull);
    QWidget other;
    addItem(new FixedHintItem(QSize(10, 10)), kFullWidth);
    const std::vector<FixedHintWidget *> widgets = addGroupRows("(.)");
    m_layout->setEnabled(false);
    place(300, 100);

    m_layout->setGroupVisible(isNull ? nullptr : &other, false);

    QVERIFY(!widgets[1]->isHidden());
    QVERIFY(!m_layout->isEnabled());
    QCOMPARE(m_layout->geometry(), QRect(0, 0, 300, 100)); // not invalidated
}

void tst_PropertyLayout::groupToggleInvalidatesAndEnables()
{
    const std::vector<FixedHintWidget *> widgets = addGroupRows("(.)");
    m_layout->setEnabled(false);
    place(300, 100);

    m_layout->setGroupVisible(widgets[0], true);

    QVERIFY(m_layout->isEnabled());
    QCOMPARE(m_layout->geometry(), QRect());
}

void tst_PropertyLayout::layoutIsDisabledWhileGroupShows()
{
    FixedHintWidget *const begin = addGroupRows("(").front();
    auto *const inside = new CallbackWidget(QSize(10, 10));
    m_layout->addWidget(inside, kFullWidth);
    const FixedHintWidget *below = addGroupRows(").").back();
    m_host->show();
    m_layout->setGroupVisible(begin, false);
    QTRY_COMPARE(below->y(), 4 + 14 + 14);
    QVERIFY(!inside->isVisible());
    bool enabled = true;
    inside->onShow = [this, &enabled] { enabled = m_layout->isEnabled(); };

    m_layout->setGroupVisible(begin, true);

    QVERIFY(!enabled);
    QVERIFY(inside->isVisible());
    QTRY_COMPARE(below->y(), 4 + 14 + 14 + 14);
}

void tst_PropertyLayout::groupOfWidgetListedTwiceBeginsAtFirst()
{
    const std::vector<FixedHintWidget *> widgets = addGroupRows("(.).");
    m_layout->addItem(new QWidgetItem(widgets[0]), kFullWidth, {});
    const FixedHintWidget *last = add(QSize(10, 10), kFullWidth);

    m_layout->setGroupVisible(widgets[0], false);

    QVERIFY(widgets[1]->isHidden());
    QVERIFY(!last->isHidden());
}

void tst_PropertyLayout::itemsWithoutWidgetAreWalkedOver()
{
    QWidget *const begin = addMarker("beginGroup");
    addItem(new FixedHintItem(QSize(10, 10)), kFullWidth | kBeginGroup);
    addItem(new FixedHintItem(QSize(10, 10)), kFullWidth | kEndGroup);
    auto *const nested = new QHBoxLayout;
    auto *const button = new FixedHintWidget(QSize(10, 10));
    nested->addWidget(button);
    m_layout->addLayout(nested, kFullWidth);
    const FixedHintWidget *inside = add(QSize(10, 10), kFullWidth);

    m_layout->setGroupVisible(begin, false);

    QVERIFY(inside->isHidden());
    QVERIFY(!button->isHidden());
}

void tst_PropertyLayout::rowAddedWhileGroupShows()
{
    QWidget *const begin = addMarker("beginGroup");
    auto *const inside = new CallbackWidget(QSize(10, 10));
    m_layout->addWidget(inside, kFullWidth);
    m_host->show();
    m_layout->setGroupVisible(begin, false);
    QPointer<QWidget> added;
    inside->onShow = [this, &added] {
        // Many, so that the list has to move.
        for (int i = 0; i < 100; ++i)
            added = add(QSize(10, 10), kFullWidth);
    };

    m_layout->setGroupVisible(begin, true);

    // Without an end marker the new rows belong to the group.
    QCOMPARE(m_layout->count(), 102);
    QVERIFY(added->isVisible());
    QTRY_COMPARE(added->y(), 4 + 101 * 14);
}

void tst_PropertyLayout::rowsTakenWhileGroupShows()
{
    auto *const before = add(QSize(10, 10), kFullWidth);
    QWidget *const begin = addMarker("beginGroup");
    auto *const first = new CallbackWidget(QSize(10, 10));
    m_layout->addWidget(first, kFullWidth);
    auto *const second = new CallbackWidget(QSize(10, 10));
    m_layout->addWidget(second, kFullWidth);
    const FixedHintWidget *third = add(QSize(10, 10), kFullWidth);
    const FixedHintWidget *fourth = add(QSize(10, 10), kFullWidth);
    const FixedHintWidget *below = addGroupRows(").").back();
    m_host->show();
    m_layout->setGroupVisible(begin, false);
    first->onShow = [before] { delete before; }; // moves every row up
    second->onShow = [this, second] { m_layout->removeWidget(second); };

    m_layout->setGroupVisible(begin, true);

    QCOMPARE(m_layout->indexOf(second), -1);
    QVERIFY(second->isVisible());
    QVERIFY(third->isVisible());
    QVERIFY(fourth->isVisible());
    QVERIFY(m_layout->isEnabled());
    QTRY_COMPARE(below->y(), 4 + 5 * 14);
}

void tst_PropertyLayout::nestedWidgetDeletedWhileGroupShows()
{
    auto *const nested = new QHBoxLayout;
    const QPointer<QWidget> inner = new FixedHintWidget(QSize(10, 10));
    nested->addWidget(new FixedHintWidget(QSize(10, 10)));
    nested->addWidget(inner);
    m_layout->addLayout(nested, kFullWidth);
    QWidget *const begin = addMarker("beginGroup");
    auto *const inside = new CallbackWidget(QSize(10, 10));
    m_layout->addWidget(inside, kFullWidth);
    m_host->show();
    m_layout->setGroupVisible(begin, false);
    const QPointer<QWidget> unlisted = new QWidget(m_host.get());
    inside->onShow = [inner, unlisted] {
        delete inner;
        delete unlisted;
    };

    m_layout->setGroupVisible(begin, true);

    QVERIFY(!inner);
    QVERIFY(!unlisted);
    QCOMPARE(nested->count(), 1);
    QCOMPARE(m_layout->count(), 3);
}

void tst_PropertyLayout::layoutDeletedWhileGroupShows()
{
    QWidget *const begin = addMarker("beginGroup");
    auto *const first = new CallbackWidget(QSize(10, 10));
    m_layout->addWidget(first, kFullWidth);
    const FixedHintWidget *second = add(QSize(10, 10), kFullWidth);
    m_host->show();
    m_layout->setGroupVisible(begin, false);
    first->onShow = [this] { delete m_layout; };

    m_layout->setGroupVisible(begin, true);

    QVERIFY(!m_layout);
    QVERIFY(first->isVisible());
    QVERIFY(!second->isVisible());
}

void tst_PropertyLayout::panelDeletedWhileGroupShows()
{
    // A show event cannot delete its own widget, so the one that deletes the panel lives elsewhere.
    QWidget window;
    auto *const elsewhere = new CallbackWidget(QSize(10, 10), &window);
    window.show();
    QWidget *const begin = addMarker("beginGroup");
    m_layout->addItem(new QWidgetItem(elsewhere), kFullWidth, {});
    add(QSize(10, 10), kFullWidth);
    m_host->show();
    m_layout->setGroupVisible(begin, false);
    elsewhere->onShow = [this] { m_host.reset(); };

    m_layout->setGroupVisible(begin, true);

    QVERIFY(!m_layout);
    QVERIFY(elsewhere->isVisible());
}

// Host code that runs while items are placed

void tst_PropertyLayout::rowAddedWhilePlacing()
{
    auto *const first = new CallbackWidget(QSize(10, 10));
    m_layout->addWidget(first, kNewRow);
    add(QSize(10, 10), kExpandHorizontal);
    m_host->show();
    QPointer<QWidget> added;
    first->onResize = [this, &added] {
        for (int i = 0; i < 100 && m_layout->count() < 100; ++i)
            added = add(QSize(10, 10), kFullWidth);
        added->show();
    };
    first->setHint(QSize(20, 20));

    place(300, 100);

    QCOMPARE(m_layout->count(), 100);
    QTRY_COMPARE(added->y(), 4 + 24 + 97 * 14);
}

void tst_PropertyLayout::rowTakenWhilePlacing()
{
    auto *const first = new CallbackWidget(QSize(10, 10));
    m_layout->addWidget(first, kFullWidth);
    add(QSize(10, 10), Options());
    const FixedHintWidget *last = add(QSize(10, 10), kFullWidth);
    m_host->show();
    std::unique_ptr<QLayoutItem> taken;
    first->onResize = [this, &taken] {
        if (!taken)
            taken.reset(m_layout->takeAt(1));
    };
    first->setHint(QSize(20, 20));

    place(300, 100);

    // What was placed half is placed anew.
    QCOMPARE(m_layout->count(), 2);
    QTRY_COMPARE(last->y(), 4 + 24);
}

void tst_PropertyLayout::widgetDeletedWhilePlacing()
{
    auto *const first = new CallbackWidget(QSize(10, 10));
    m_layout->addWidget(first, kFullWidth);
    const QPointer<QWidget> second = add(QSize(10, 10), Options());
    const FixedHintWidget *last = add(QSize(10, 10), kFullWidth);
    m_host->show();
    first->onResize = [second] { delete second; };
    first->setHint(QSize(20, 20));

    place(300, 100);

    QVERIFY(!second);
    QTRY_COMPARE(last->y(), 4 + 24);
}

void tst_PropertyLayout::layoutDeletedWhilePlacing()
{
    auto *const first = new CallbackWidget(QSize(10, 10));
    m_layout->addWidget(first, kFullWidth);
    add(QSize(10, 10), Options());
    m_host->show();
    first->onResize = [this] { delete m_layout; };
    first->setHint(QSize(20, 20));

    place(300, 100);

    QVERIFY(!m_layout);
}

void tst_PropertyLayout::labelColumnTakesTheWidthSet()
{
    const FixedHintWidget *label = add(QSize(30, 10), kNewRow);
    const FixedHintWidget *field = add(QSize(20, 10), kExpandHorizontal);
    QCOMPARE(m_layout->labelWidth(), -1);
    QCOMPARE(m_layout->sizeHint().width(), 68);

    m_layout->setLabelWidth(80);
    place(300, 100);

    QCOMPARE(m_layout->labelWidth(), 80);
    QCOMPARE(m_layout->sizeHint().width(), 118);
    QCOMPARE(label->geometry(), QRect(54, 4, 30, 10));
    QCOMPARE(field->geometry(), QRect(94, 4, 202, 10));
}

void tst_PropertyLayout::labelWiderThanItsColumnIsCut()
{
    const FixedHintWidget *label = add(QSize(90, 10), kNewRow);
    const FixedHintWidget *field = add(QSize(20, 10), kExpandHorizontal);
    FixedHintWidget *const limited = add(QSize(90, 10), kNewRow);
    add(QSize(20, 10), kExpandHorizontal);
    limited->setMinimumWidth(70);

    m_layout->setLabelWidth(50);
    place(300, 100);

    QCOMPARE(label->geometry(), QRect(4, 4, 50, 10));
    QCOMPARE(field->geometry(), QRect(64, 4, 232, 10));
    QCOMPARE(m_layout->itemAt(2)->geometry().left(), 4); // flush with its column all the same
}

void tst_PropertyLayout::labelColumnBecomesAutomaticAgain()
{
    add(QSize(30, 10), kNewRow);
    const FixedHintWidget *field = add(QSize(20, 10), kExpandHorizontal);
    m_layout->setLabelWidth(80);
    place(300, 100);

    m_layout->setLabelWidth(-7);
    place(300, 100);

    QCOMPARE(m_layout->labelWidth(), -1);
    QCOMPARE(field->x(), 44);
    QCOMPARE(m_layout->sizeHint().width(), 68);
}

void tst_PropertyLayout::smallestSizeCountsWhatRowsNeed_data()
{
    QTest::addColumn<QVector<QPair<int, QSize>>>(
        "items"); // options and hint; minimum is half of it
    QTest::addColumn<QSize>("smallest");

    using Items = QVector<QPair<int, QSize>>;
    const int field = kExpandHorizontal;
    const int whole = kFullWidth | kExpandHorizontal;
    QTest::newRow("nothing") << Items() << QSize(4, 4);
    QTest::newRow("label and field")
        << Items{{kNewRow, {30, 10}}, {field, {80, 12}}} << QSize(4 + 30 + 10 + 40 + 4, 20);
    QTest::newRow("row over both columns") << Items{{whole, {400, 10}}} << QSize(4 + 200 + 4, 18);
    QTest::newRow("items side by side")
        << Items{{kNewRow, {30, 10}}, {field, {80, 10}}, {0, {20, 10}}}
        << QSize(4 + 30 + 10 + 40 + 4 + 20 + 4, 18);
    QTest::newRow("two groups deep") << Items{{kFullWidth | kBeginGroup, {10, 10}},
                                              {kFullWidth | kBeginGroup, {10, 10}},
                                              {whole, {400, 10}}}
                                     << QSize(4 + 16 + 200 + 4, 4 + 3 * 14);
}

void tst_PropertyLayout::smallestSizeCountsWhatRowsNeed()
{
    using Items = QVector<QPair<int, QSize>>;
    QFETCH(Items, items);
    QFETCH(QSize, smallest);
    for (const auto &[options, hint] : std::as_const(items))
        add(hint, Options(options))->setMinimumHint(QSize(hint.width() / 2, hint.height()));

    QCOMPARE(m_layout->smallestSize(), smallest);

    m_host->setLayoutDirection(Qt::RightToLeft);
    QCOMPARE(m_layout->smallestSize(), smallest);
}

void tst_PropertyLayout::smallestSizeIsNotKept()
{
    add(QSize(50, 10), kFullWidth);
    FixedHintWidget *const second = add(QSize(70, 10), kFullWidth);
    QCOMPARE(m_layout->smallestSize(), QSize(78, 32));

    second->hide();

    QCOMPARE(m_layout->smallestSize(), QSize(58, 18));
}

void tst_PropertyLayout::twentyThousandItems()
{
    constexpr int kRows = 10000;
    std::vector<const FixedHintItem *> fields;
    for (int row = 0; row < kRows; ++row) {
        addItem(new FixedHintItem(QSize(30, 10)), kNewRow);
        fields.push_back(addItem(new FixedHintItem(QSize(20, 10)), kExpandHorizontal));
    }

    place(300, 100);

    QCOMPARE(m_layout->count(), 2 * kRows);
    QCOMPARE(fields.back()->geometry(), QRect(44, 4 + (kRows - 1) * 14, 252, 10));
    QCOMPARE(fields.back()->measurements(), 1);
    QCOMPARE(m_layout->sizeHint(), QSize(68, 4 + kRows * 14));
    delete m_layout;
}

QTEST_MAIN(tst_PropertyLayout)
#include "tst_PropertyLayout.moc"
