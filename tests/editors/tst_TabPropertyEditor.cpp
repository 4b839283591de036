#include "property/editors/TabPropertyEditor.h"

#include "property/PropertyEditorPanel.h"
#include "support/EditorFixture.h"
#include "support/SignalLog.h"

#include <QPointer>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>

using namespace Tessark::PropertyUI;

namespace {

struct TabGroup : EditorFixture<TabPropertyEditor, QTabWidget>
{
    TabGroup()
        : EditorFixture(kPropertyTypeBeginTabGroup)
    {
    }

    QTabWidget *buildWithTwoPages()
    {
        QTabWidget *tabs = build();
        tabs->addTab(new QWidget, QStringLiteral("One"));
        tabs->addTab(new QWidget, QStringLiteral("Two"));
        tabs->show();
        return tabs;
    }

    void click(int page)
    {
        QTabBar *bar = widget->tabBar();
        QTest::mouseClick(bar, Qt::LeftButton, Qt::NoModifier, bar->tabRect(page).center());
    }
};

using Marker = EditorFixture<TabPropertyEditor, QWidget>;

/// A host's editor whose tabs are to stand in the east, or so it tells the panel.
class EastTellingEditor : public TabPropertyEditor
{
public:
    using TabPropertyEditor::TabPropertyEditor;

    QVariant hint(const QString &) override { return int(QTabWidget::East); }
};

} // namespace

class tst_TabPropertyEditor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void beginIsATabWidgetWithoutPages();
    void tabIsAPlainPage();
    void endHasNoWidget_data();
    void endHasNoWidget();
    void endHasAnEditorButNoRow();
    void valueBeforeTheWidgetIsTrue_data();
    void valueBeforeTheWidgetIsTrue();
    void markersStayTrue_data();
    void markersStayTrue();
    void tabPositionHint_data();
    void tabPositionHint();
    void tabPositionIsThatOfTheProperty();
    void tabPositionIsReadOnce();
    void firstPageEmits();
    void clickOnATabEmitsOnce();
    void currentPageBelongsToTheUser();
    void alwaysTakesTheFullWidth_data();
    void alwaysTakesTheFullWidth();
    void otherHintsAreThoseOfTheProperty();
    void revertEmitsButDoesNotSwitch();
    void editorMayDieWhenThePageChanges();
    void tabWidgetMayDieLaterWhenThePageChanges();
};

void tst_TabPropertyEditor::beginIsATabWidgetWithoutPages()
{
    TabGroup group;

    const QTabWidget *tabs = group.build();

    QVERIFY(tabs);
    QCOMPARE(tabs->metaObject(), &QTabWidget::staticMetaObject);
    QCOMPARE(tabs->count(), 0);
    QCOMPARE(group.editor->value().userType(), int(QMetaType::Int));
    QCOMPARE(group.editor->value(), QVariant(-1));
}

void tst_TabPropertyEditor::tabIsAPlainPage()
{
    Marker tab(kPropertyTypeTab);

    const QWidget *page = tab.build();

    QVERIFY(page);
    QCOMPARE(page->metaObject(), &QWidget::staticMetaObject);
    QVERIFY(!page->layout());
    QVERIFY(page->children().isEmpty());
    QCOMPARE(page->windowFlags(), QWidget().windowFlags());
}

void tst_TabPropertyEditor::endHasNoWidget_data()
{
    QTest::addColumn<QString>("type");
    QTest::newRow("end_tab_group") << kPropertyTypeEndTabGroup;
    QTest::newRow("any other type") << QStringLiteral("host/tab");
}

void tst_TabPropertyEditor::endHasNoWidget()
{
    QFETCH(QString, type);
    Marker end(type);

    QVERIFY(!end.editor->widget(nullptr));
    QVERIFY(!end.editor->widget(nullptr));
}

void tst_TabPropertyEditor::endHasAnEditorButNoRow()
{
    Property begin(QStringLiteral("b"), QStringLiteral("Begin"), kPropertyTypeBeginTabGroup);
    Property end(QStringLiteral("e"), QStringLiteral("End"), kPropertyTypeEndTabGroup);

    const PropertyEditorPanel panel({&begin, &end}, nullptr, nullptr);

    QVector<PropertyEditor *> editors;
    panel.getEditors(editors, kPropertyTypeEndTabGroup);
    QCOMPARE(editors.size(), 1);
    QVERIFY(qobject_cast<TabPropertyEditor *>(editors.first()));
    const auto rows = panel.findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    QCOMPARE(rows.size(), 1);
    QVERIFY(qobject_cast<QTabWidget *>(rows.first()));
}

void tst_TabPropertyEditor::valueBeforeTheWidgetIsTrue_data()
{
    QTest::addColumn<QString>("type");
    QTest::newRow("begin_tab_group") << kPropertyTypeBeginTabGroup;
    QTest::newRow("tab") << kPropertyTypeTab;
    QTest::newRow("end_tab_group") << kPropertyTypeEndTabGroup;
}

void tst_TabPropertyEditor::valueBeforeTheWidgetIsTrue()
{
    QFETCH(QString, type);
    Marker marker(type);

    marker.editor->setValue(3);

    QCOMPARE(marker.editor->value().userType(), int(QMetaType::Bool));
    QCOMPARE(marker.editor->value(), QVariant(true));
}

void tst_TabPropertyEditor::markersStayTrue_data()
{
    QTest::addColumn<QString>("type");
    QTest::newRow("tab") << kPropertyTypeTab;
    QTest::newRow("end_tab_group") << kPropertyTypeEndTabGroup;
}

void tst_TabPropertyEditor::markersStayTrue()
{
    QFETCH(QString, type);
    Marker marker(type);
    marker.build();
    SignalLog log(marker.editor.get());

    marker.editor->setValue(false);

    QCOMPARE(marker.editor->value(), QVariant(true));
    QCOMPARE(log.take(), QStringList());
}

void tst_TabPropertyEditor::tabPositionHint_data()
{
    QTest::addColumn<QVariant>("hint"); // an invalid one is not set
    QTest::addColumn<int>("position");
    const int north = QTabWidget::North;
    const int east = QTabWidget::East;
    QTest::newRow("absent") << QVariant() << north;
    QTest::newRow("null") << QVariant::fromValue(nullptr) << north;
    QTest::newRow("0 is north") << QVariant(0) << north;
    QTest::newRow("1 is south") << QVariant(1) << int(QTabWidget::South);
    QTest::newRow("2 is west") << QVariant(2) << int(QTabWidget::West);
    QTest::newRow("3 is east") << QVariant(3) << east;
    QTest::newRow("a number as text") << QVariant(QStringLiteral("3")) << east;
    QTest::newRow("no number") << QVariant(QStringLiteral("east")) << north;
    QTest::newRow("4 is no position") << QVariant(4) << north;
    QTest::newRow("nor is -1") << QVariant(-1) << north;
}

void tst_TabPropertyEditor::tabPositionHint()
{
    QFETCH(QVariant, hint);
    QFETCH(int, position);
    TabGroup group;
    if (hint.isValid())
        group.property.setHint(kPropertyHintTabPosition, hint);

    group.buildWithTwoPages();

    QCOMPARE(int(group.widget->tabPosition()), position);
    SignalLog log(group.editor.get());
    group.click(1);
    QCOMPARE(log.take(), QStringList{QStringLiteral("value")});
}

void tst_TabPropertyEditor::tabPositionIsThatOfTheProperty()
{
    EditorFixture<EastTellingEditor, QTabWidget> group(kPropertyTypeBeginTabGroup);

    QCOMPARE(group.build()->tabPosition(), QTabWidget::North);
}

void tst_TabPropertyEditor::tabPositionIsReadOnce()
{
    TabGroup group;
    const QTabWidget *tabs = group.build();

    group.property.setHint(kPropertyHintTabPosition, 3);
    group.editor->propertyChanged();

    QCOMPARE(tabs->tabPosition(), QTabWidget::North);
}

void tst_TabPropertyEditor::firstPageEmits()
{
    TabGroup group;
    QTabWidget *tabs = group.build();
    SignalLog log(group.editor.get());

    tabs->addTab(new QWidget, QStringLiteral("One"));
    QCOMPARE(log.take(), QStringList{QStringLiteral("value")});
    QCOMPARE(group.editor->value(), QVariant(0));

    tabs->addTab(new QWidget, QStringLiteral("Two"));
    QCOMPARE(log.take(), QStringList());
}

void tst_TabPropertyEditor::clickOnATabEmitsOnce()
{
    TabGroup group;
    group.buildWithTwoPages();
    SignalLog log(group.editor.get());

    group.click(1);
    QCOMPARE(log.take(), QStringList{QStringLiteral("value")});
    QCOMPARE(group.editor->value(), QVariant(1));

    group.click(1);
    QCOMPARE(log.take(), QStringList());
}

void tst_TabPropertyEditor::currentPageBelongsToTheUser()
{
    TabGroup group;
    const QTabWidget *tabs = group.buildWithTwoPages();
    SignalLog log(group.editor.get());

    group.editor->setValue(1);

    QCOMPARE(tabs->currentIndex(), 0);
    QCOMPARE(group.editor->value(), QVariant(0));
    QCOMPARE(log.take(), QStringList());
}

void tst_TabPropertyEditor::alwaysTakesTheFullWidth_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QVariant>("hint");
    for (const QString &type :
         {kPropertyTypeBeginTabGroup, kPropertyTypeTab, kPropertyTypeEndTabGroup}) {
        QTest::addRow("%s", qPrintable(type)) << type << QVariant();
        QTest::addRow("%s, against the host", qPrintable(type)) << type << QVariant(false);
    }
}

void tst_TabPropertyEditor::alwaysTakesTheFullWidth()
{
    QFETCH(QString, type);
    QFETCH(QVariant, hint);
    Marker marker(type);
    if (hint.isValid())
        marker.property.setHint(kPropertyHintFullWidth, hint);

    QCOMPARE(marker.editor->hint(kPropertyHintFullWidth), QVariant(true));
}

void tst_TabPropertyEditor::otherHintsAreThoseOfTheProperty()
{
    TabGroup group;
    group.property.setHint(kPropertyHintStyleSheet, QStringLiteral("style"));

    QCOMPARE(group.editor->hint(kPropertyHintStyleSheet), QVariant(QStringLiteral("style")));
    QVERIFY(!group.editor->hint(kPropertyHintSize).isValid());
}

void tst_TabPropertyEditor::revertEmitsButDoesNotSwitch()
{
    TabGroup group;
    group.property.setDefaultValue(1);
    const QTabWidget *tabs = group.buildWithTwoPages();
    SignalLog log(group.editor.get());

    group.editor->revertToDefaultValue();

    QCOMPARE(tabs->currentIndex(), 0);
    QCOMPARE(log.take(), QStringList{QStringLiteral("value")});
}

void tst_TabPropertyEditor::editorMayDieWhenThePageChanges()
{
    TabGroup group;
    const QTabWidget *tabs = group.buildWithTwoPages();
    connect(group.editor.get(), &PropertyEditor::valueChanged, this,
            [&group] { group.editor.reset(); });

    group.click(1);
    QVERIFY(!group.editor);
    group.click(0);

    QCOMPARE(tabs->currentIndex(), 0);
}

void tst_TabPropertyEditor::tabWidgetMayDieLaterWhenThePageChanges()
{
    TabGroup group;
    const QPointer<QTabWidget> tabs = group.buildWithTwoPages();
    connect(group.editor.get(), &PropertyEditor::valueChanged, this,
            [&group] { group.deleteLater(); });

    group.click(1);

    QTRY_VERIFY(!tabs);
}

QTEST_MAIN(tst_TabPropertyEditor)
#include "tst_TabPropertyEditor.moc"
