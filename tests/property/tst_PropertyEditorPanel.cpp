#include <property/PropertyLayout.h>
#include <property/PropertyUI.h>
#include <property/editors/TabPropertyEditor.h>

#include "support/MessageRecorder.h"
#include "support/PropertySet.h"
#include "support/RecordingDelegate.h"
#include "support/TestEditors.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QMetaMethod>
#include <QPointer>
#include <QTabWidget>
#include <QTest>

#include <memory>

using namespace Tessark::PropertyUI;
using namespace TestSupport;

namespace Tessark::PropertyUI {

// A host's own context; the library must not care what it is.
class PropertyEditorContext
{
};

} // namespace Tessark::PropertyUI

namespace {

const QString kTest = QStringLiteral("test");
const QString kWidgetless = QStringLiteral("test/widgetless");
const QString kNull = QStringLiteral("test/null");
const QString kOwnHints = QStringLiteral("test/hints");

const QString kEndWithoutBegin =
    QStringLiteral("Bad tab property nesting: End group with no Begin.");
const QString kTabOutside = QStringLiteral("Tab property created outside a tab group");

/// Answers the panel's hints for itself, whatever the property says.
class OwnHintsEditor : public TestEditor
{
public:
    using TestEditor::TestEditor;

    static PropertyEditor *Factory(Property *property) { return new OwnHintsEditor(property); }

    QVariant hint(const QString &key) override
    {
        if (key == kPropertyHintSize)
            return QSize(33, 22);
        if (key == kPropertyHintFont)
            return QFont(QStringLiteral("Monospace"), 17);
        if (key == kPropertyHintStyleSheet)
            return QStringLiteral("color: red");
        return key == kPropertyHintFullWidth ? QVariant(true) : QVariant();
    }
};

/// Makes a tab widget of the property "outer" and a frame of any other.
PropertyEditor *outerTabsOnly(Property *property)
{
    return property->name == QLatin1String("outer") ? TabPropertyEditor::Factory(property)
                                                    : TestEditor::Factory(property);
}

QString outline(const QLayout *layout);

QString outline(const QTabWidget *tabs)
{
    QStringList pages;
    for (int i = 0; i < tabs->count(); ++i) {
        const QString rows = outline(tabs->widget(i)->layout());
        pages.append(tabs->tabText(i) + QLatin1Char(':')
                     + (rows.isEmpty() ? rows : QLatin1Char(' ') + rows));
    }
    return QLatin1String("tabs[") + pages.join(QLatin1String("; ")) + QLatin1Char(']');
}

QString outline(const QWidget *widget)
{
    if (const auto *label = qobject_cast<const QLabel *>(widget))
        return QLatin1Char('"') + label->text() + QLatin1Char('"');
    if (const auto *tabs = qobject_cast<const QTabWidget *>(widget))
        return outline(tabs);
    return widget->objectName().isEmpty() ? QLatin1String(widget->metaObject()->className())
                                          : widget->objectName();
}

/// What a layout holds, in order: labels in quotes, fields by name or class, pages in brackets.
QString outline(const QLayout *layout)
{
    QStringList items;
    for (int i = 0; i < layout->count(); ++i)
        items.append(outline(layout->itemAt(i)->widget()));
    return items.join(QLatin1Char(' '));
}

/// Makes the properties of a text: "[" and "]" begin and end a tab group, "|Name" is a tab, "(" and
/// ")" begin and end a group of rows, anything else a full-width row of that name.
void addFromText(PropertySet &set, const QString &text)
{
    const QStringList tokens = text.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (const QString &token : tokens) {
        if (token == QLatin1String("["))
            set.add(token, kPropertyTypeBeginTabGroup);
        else if (token == QLatin1String("]"))
            set.add(token, kPropertyTypeEndTabGroup);
        else if (token == QLatin1String("("))
            set.add(token, kPropertyTypeBeginGroup);
        else if (token == QLatin1String(")"))
            set.add(token, kPropertyTypeEndGroup);
        else if (token.startsWith(QLatin1Char('|')))
            set.add(token, token.mid(1), kPropertyTypeTab);
        else
            set.add(token, kTest).setHint(kPropertyHintFullWidth, true);
    }
}

} // namespace

Q_DECLARE_METATYPE(Tessark::PropertyUI::PropertyEditorRegistry::Factory)

class tst_PropertyEditorPanel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void metaObjectShowsSlotsOnly();
    void emptyPanel();
    void rowsFollowListOrder();
    void labelText_data();
    void labelText();
    void fullWidth_data();
    void fullWidth();
    void sizeHintFixesSize();
    void unconvertibleSizeIsPassedOn_data();
    void unconvertibleSizeIsPassedOn();
    void font_data();
    void font();
    void styleSheet_data();
    void styleSheet();
    void absentHintsLeaveTheWidgetAlone();
    void hintsAreAskedInOrder();
    void editorAnswersForTheProperty();
    void otherHintsAreNotConsulted();

    void typeWithoutEditorIsSkipped_data();
    void typeWithoutEditorIsSkipped();
    void nullPropertyIsSkipped();
    void nullEditorIsKeptAsEntry();
    void editorWithoutWidgetHasNoRow();
    void replacedFactoryServesTheNextPanel();
    void editorIsAChildBeforeItsWidgetIsAsked();
    void contextGoesToWidgetOnly();
    void signalsAreConnectedOnce();
    void nothingIsReadDuringConstruction();
    void listIsCopied();

    void tabNesting_data();
    void tabNesting();
    void tabTitleIsThePlainLabel();
    void pageLayoutIsLikeThePanels();
    void tabGroupWithoutTabWidget_data();
    void tabGroupWithoutTabWidget();
    void innerTabGroupWithoutTabWidget();
    void nullTabEditorIsNoPage();
    void tabWithoutWidgetIsNoPage();
    void endOfTabGroupWithWidgetIsARow();
    void firstPageIsReported();
    void foldingFollowsTheLastLayout_data();
    void foldingFollowsTheLastLayout();

    void getEditorsByType_data();
    void getEditorsByType();
    void getEditorsAppends();
    void deletedEditorBecomesANullEntry();
    void panelOwnsEditorsAndWidgets();
    void deletionDropsThePendingEdit_data();
    void deletionDropsThePendingEdit();

private:
    PropertyEditorPanel &build(); // from m_set
    QString rows() const { return outline(m_panel->layout()); }
    QFrame *frame(const QString &name) const { return m_panel->findChild<QFrame *>(name); }
    TestEditor *editor(const QString &name) const { return editorOf<TestEditor>(*m_panel, name); }

    PropertySet m_set;
    RecordingDelegate m_delegate;
    std::unique_ptr<PropertyEditorPanel> m_panel;
};

void tst_PropertyEditorPanel::initTestCase()
{
    auto *const registry = PropertyEditorRegistry::Instance();
    registry->registerPropertyEditor(kTest, TestEditor::Factory);
    registry->registerPropertyEditor(kWidgetless, WidgetlessEditor::Factory);
    registry->registerPropertyEditor(kNull, noEditor);
    registry->registerPropertyEditor(kOwnHints, OwnHintsEditor::Factory);
}

void tst_PropertyEditorPanel::init()
{
    m_set = PropertySet();
    m_delegate = RecordingDelegate();
}

void tst_PropertyEditorPanel::cleanup()
{
    m_panel.reset();
}

PropertyEditorPanel &tst_PropertyEditorPanel::build()
{
    m_panel = std::make_unique<PropertyEditorPanel>(m_set.list(), &m_delegate, nullptr);
    return *m_panel;
}

void tst_PropertyEditorPanel::metaObjectShowsSlotsOnly()
{
    const QMetaObject &meta = PropertyEditorPanel::staticMetaObject;
    QStringList methods;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        const QMetaMethod method = meta.method(i);
        QCOMPARE(method.methodType(), QMetaMethod::Slot);
        methods.append(QLatin1String(method.access() == QMetaMethod::Public    ? "public "
                                     : method.access() == QMetaMethod::Private ? "private "
                                                                               : "other ")
                       + QString::fromLatin1(method.methodSignature()));
    }

    QCOMPARE(meta.className(), "Tessark::PropertyUI::PropertyEditorPanel");
    QCOMPARE(meta.superClass(), &QWidget::staticMetaObject);
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
    QCOMPARE(methods, QStringList({QStringLiteral("public updateUI()"),
                                   QStringLiteral("private editorValueChanged()"),
                                   QStringLiteral("private startInteractiveChange()"),
                                   QStringLiteral("private endInteractiveChange()")}));
}

void tst_PropertyEditorPanel::emptyPanel()
{
    const QWidget plain;
    const PropertyEditorPanel &panel = build();

    QVERIFY(!panel.parent());
    QCOMPARE(panel.windowFlags(), plain.windowFlags());
    QVERIFY(panel.isHidden());
    QCOMPARE(panel.focusPolicy(), Qt::StrongFocus);
    QVERIFY(panel.hasMouseTracking());
    QVERIFY(qobject_cast<PropertyLayout *>(panel.layout()));
    QCOMPARE(panel.layout()->count(), 0);
    QCOMPARE(panel.layout()->spacing(), 4);
    QCOMPARE(panel.layout()->contentsMargins(), QMargins(4, 4, 4, 4));
    QVERIFY(allEditors(panel).isEmpty());
    QCOMPARE(panel.children().size(), 1); // the layout
}

void tst_PropertyEditorPanel::rowsFollowListOrder()
{
    m_set.add(QStringLiteral("b"), QStringLiteral("Second letter"), kTest);
    m_set.add(QStringLiteral("a"), QStringLiteral("First letter"), kTest);
    m_set.add(QStringLiteral("wide"), kTest).setHint(kPropertyHintFullWidth, true);
    m_set.add(QStringLiteral("c"), QStringLiteral("Third letter"), kTest);

    build();

    QCOMPARE(rows(), QStringLiteral("\"Second letter:\" b \"First letter:\" a wide "
                                    "\"Third letter:\" c"));
    QStringList order;
    for (const PropertyEditor *each : allEditors(*m_panel))
        order.append(each->editedProperty()->name);
    QCOMPARE(order.join(QLatin1Char(' ')), QStringLiteral("b a wide c"));
}

void tst_PropertyEditorPanel::labelText_data()
{
    QTest::addColumn<QString>("label");
    QTest::addColumn<QString>("shown");

    QTest::newRow("a colon follows") << QStringLiteral("Gain") << QStringLiteral("Gain:");
    QTest::newRow("an empty one stays empty") << QStringLiteral("") << QString();
    QTest::newRow("a null one is empty") << QString() << QString();
    QTest::newRow("a colon is not counted") << QStringLiteral("To:") << QStringLiteral("To::");
    QTest::newRow("blanks count") << QStringLiteral(" ") << QStringLiteral(" :");
    QTest::newRow("ampersands stay") << QStringLiteral("A && B") << QStringLiteral("A && B:");
}

void tst_PropertyEditorPanel::labelText()
{
    QFETCH(QString, label);
    QFETCH(QString, shown);
    m_set.add(QStringLiteral("row"), label, kTest);

    build();

    QCOMPARE(m_panel->layout()->count(), 2);
    auto *const widget = qobject_cast<QLabel *>(m_panel->layout()->itemAt(0)->widget());
    QVERIFY(widget);
    QCOMPARE(widget->text(), shown);
    QCOMPARE(widget->parentWidget(), m_panel.get());
    QCOMPARE(m_panel->layout()->itemAt(1)->widget(), frame(QStringLiteral("row")));
    QCOMPARE(frame(QStringLiteral("row"))->parentWidget(), m_panel.get());
}

void tst_PropertyEditorPanel::fullWidth_data()
{
    QTest::addColumn<QVariant>("hint");
    QTest::addColumn<bool>("wide");

    QTest::newRow("true") << QVariant(true) << true;
    QTest::newRow("false") << QVariant(false) << false;
    QTest::newRow("number 1") << QVariant(1) << true;
    QTest::newRow("number 0") << QVariant(0) << false;
    QTest::newRow("text true") << QVariant(QStringLiteral("true")) << true;
    QTest::newRow("text false") << QVariant(QStringLiteral("false")) << false;
    QTest::newRow("unconvertible") << QVariant(QSize(1, 1)) << false;
    QTest::newRow("invalid") << QVariant() << false;
}

void tst_PropertyEditorPanel::fullWidth()
{
    QFETCH(QVariant, hint);
    QFETCH(bool, wide);
    m_set.add(QStringLiteral("row"), kTest).setHint(kPropertyHintFullWidth, hint);

    build();

    QCOMPARE(rows(), wide ? QStringLiteral("row") : QStringLiteral("\"row:\" row"));
    m_panel->resize(300, 100);
    m_panel->layout()->activate();
    QCOMPARE(frame(QStringLiteral("row"))->x() == 4, wide);
}

void tst_PropertyEditorPanel::sizeHintFixesSize()
{
    m_set.add(QStringLiteral("row"), kTest).setHint(kPropertyHintSize, QSize(120, 20));

    build();

    QCOMPARE(frame(QStringLiteral("row"))->minimumSize(), QSize(120, 20));
    QCOMPARE(frame(QStringLiteral("row"))->maximumSize(), QSize(120, 20));
}

void tst_PropertyEditorPanel::unconvertibleSizeIsPassedOn_data()
{
    QTest::addColumn<QVariant>("hint");

    QTest::newRow("text") << QVariant(QStringLiteral("120x20"));
    QTest::newRow("number") << QVariant(120);
    QTest::newRow("point") << QVariant(QPoint(120, 20));
}

void tst_PropertyEditorPanel::unconvertibleSizeIsPassedOn()
{
    QFETCH(QVariant, hint);
    m_set.add(QStringLiteral("row"), kTest).setHint(kPropertyHintSize, hint);
    QFrame expected;
    expected.setMinimumSize(80, 20);

    const MessageRecorder recorder;
    expected.setFixedSize(QSize(-1, -1));
    const QStringList complaints = recorder.warnings(); // Qt's own
    build();

    QVERIFY(!complaints.isEmpty());
    QCOMPARE(recorder.warnings().size(), 2 * complaints.size());
    QCOMPARE(frame(QStringLiteral("row"))->minimumSize(), expected.minimumSize());
    QCOMPARE(frame(QStringLiteral("row"))->maximumSize(), expected.maximumSize());
}

void tst_PropertyEditorPanel::font_data()
{
    const QFont font(QStringLiteral("Monospace"), 23);
    QTest::addColumn<QVariant>("hint");
    QTest::addColumn<QFont>("font");

    QTest::newRow("font") << QVariant(font) << font;
    QTest::newRow("text of a font") << QVariant(font.toString()) << font;
    QTest::newRow("unconvertible") << QVariant(7) << QFont();
}

void tst_PropertyEditorPanel::font()
{
    QFETCH(QVariant, hint);
    QFETCH(QFont, font);
    m_set.add(QStringLiteral("row"), kTest).setHint(kPropertyHintFont, hint);

    build();

    const QFrame *const row = frame(QStringLiteral("row"));
    QCOMPARE(row->font().family(), font.family());
    QCOMPARE(row->font().pointSize(), font.pointSize());
    QCOMPARE(row->testAttribute(Qt::WA_SetFont), font.pointSize() == 23);
}

void tst_PropertyEditorPanel::styleSheet_data()
{
    QTest::addColumn<QVariant>("hint");
    QTest::addColumn<QString>("styleSheet");

    QTest::newRow("text") << QVariant(QStringLiteral("color: red")) << QStringLiteral("color: red");
    QTest::newRow("bytes") << QVariant(QByteArray("color: blue")) << QStringLiteral("color: blue");
    QTest::newRow("unconvertible") << QVariant(QSize(1, 2)) << QString();
}

void tst_PropertyEditorPanel::styleSheet()
{
    QFETCH(QVariant, hint);
    QFETCH(QString, styleSheet);
    m_set.add(QStringLiteral("row"), kTest).setHint(kPropertyHintStyleSheet, hint);

    build();

    QCOMPARE(frame(QStringLiteral("row"))->styleSheet(), styleSheet);
}

void tst_PropertyEditorPanel::absentHintsLeaveTheWidgetAlone()
{
    m_set.add(QStringLiteral("none"), kTest);
    Property &invalid = m_set.add(QStringLiteral("invalid"), kTest);
    for (const QString &key : {kPropertyHintSize, kPropertyHintFont, kPropertyHintStyleSheet})
        invalid.setHint(key, QVariant());

    const MessageRecorder recorder;
    build();

    for (const QString &name : {QStringLiteral("none"), QStringLiteral("invalid")}) {
        QCOMPARE(frame(name)->minimumSize(), QSize(80, 20));
        QCOMPARE(frame(name)->maximumSize(), QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX));
        QVERIFY(!frame(name)->testAttribute(Qt::WA_SetFont));
        QVERIFY(frame(name)->styleSheet().isEmpty());
    }
    QCOMPARE(recorder.warnings(), QStringList());
}

void tst_PropertyEditorPanel::hintsAreAskedInOrder()
{
    m_set.add(QStringLiteral("row"), kTest);
    m_set.add(QStringLiteral("none"), kWidgetless);

    build();

    QCOMPARE(editor(QStringLiteral("row"))->hintsAsked,
             QStringList({kPropertyHintSize, kPropertyHintFont, kPropertyHintStyleSheet,
                          kPropertyHintFullWidth}));
    QCOMPARE(editor(QStringLiteral("none"))->hintsAsked, QStringList());
}

void tst_PropertyEditorPanel::editorAnswersForTheProperty()
{
    m_set.add(QStringLiteral("row"), kOwnHints)
        .setHint(kPropertyHintSize, QSize(90, 91))
        .setHint(kPropertyHintFont, QFont(QStringLiteral("Serif"), 8))
        .setHint(kPropertyHintStyleSheet, QStringLiteral("color: green"))
        .setHint(kPropertyHintFullWidth, false);

    build();

    const QFrame *const row = frame(QStringLiteral("row"));
    QCOMPARE(row->minimumSize(), QSize(33, 22));
    QCOMPARE(row->font().pointSize(), 17);
    QCOMPARE(row->styleSheet(), QStringLiteral("color: red"));
    QCOMPARE(rows(), QStringLiteral("row"));
}

void tst_PropertyEditorPanel::otherHintsAreNotConsulted()
{
    m_set.add(QStringLiteral("row"), kTest)
        .setHint(kPropertyHintEnabled, false)
        .setHint(kPropertyHintMinimumSize, QSize(300, 300))
        .setHint(kPropertyHintMaximumSize, QSize(10, 10))
        .setHint(kPropertyHintBackground, QColor(Qt::red))
        .setHint(kPropertyHintForeground, QColor(Qt::red));

    build();

    const QFrame *const row = frame(QStringLiteral("row"));
    QVERIFY(row->isEnabled());
    QCOMPARE(row->minimumSize(), QSize(80, 20));
    QCOMPARE(row->maximumSize(), QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX));
    QVERIFY(!row->testAttribute(Qt::WA_SetPalette));
}

void tst_PropertyEditorPanel::typeWithoutEditorIsSkipped_data()
{
    QTest::addColumn<QString>("type");

    for (const QString &type :
         {kPropertyTypeNone, kPropertyTypeColorRGB, kPropertyTypePoint, kPropertyTypePointF,
          kPropertyTypeAngle, kPropertyTypeSizeF, kPropertyTypeRect, kPropertyTypeRectF})
        QTest::newRow(qPrintable(type)) << type;
    QTest::newRow("other case") << QStringLiteral("String");
    QTest::newRow("trailing blank") << QStringLiteral("string ");
    QTest::newRow("first half") << QStringLiteral("test/");
    QTest::newRow("empty") << QString();
}

void tst_PropertyEditorPanel::typeWithoutEditorIsSkipped()
{
    QFETCH(QString, type);
    m_set.add(QStringLiteral("a"), kTest);
    m_set.add(QStringLiteral("unknown"), type);
    m_set.add(QStringLiteral("b"), kTest);

    const MessageRecorder recorder;
    build();

    QCOMPARE(rows(), QStringLiteral("\"a:\" a \"b:\" b"));
    QCOMPARE(allEditors(*m_panel).size(), 2);
    QCOMPARE(recorder.warnings(), QStringList());
}

void tst_PropertyEditorPanel::nullPropertyIsSkipped()
{
    Property &only = m_set.add(QStringLiteral("a"), kTest);

    const MessageRecorder recorder;
    m_panel = std::make_unique<PropertyEditorPanel>(QVector<Property *>{nullptr, &only, nullptr},
                                                    &m_delegate, nullptr);

    QCOMPARE(rows(), QStringLiteral("\"a:\" a"));
    QCOMPARE(allEditors(*m_panel).size(), 1);
    QCOMPARE(recorder.warnings(), QStringList());
}

void tst_PropertyEditorPanel::nullEditorIsKeptAsEntry()
{
    m_set.add(QStringLiteral("null"), kNull);
    m_set.add(QStringLiteral("a"), kTest);
    m_set.add(QStringLiteral("null2"), kNull);

    const MessageRecorder recorder;
    build();

    QCOMPARE(rows(), QStringLiteral("\"a:\" a"));
    QCOMPARE(allEditors(*m_panel), QVector<PropertyEditor *>({
                                       nullptr,
                                       editor(QStringLiteral("a")),
                                       nullptr,
                                   }));
    QCOMPARE(recorder.warnings(), QStringList());
}

void tst_PropertyEditorPanel::editorWithoutWidgetHasNoRow()
{
    m_set.add(QStringLiteral("none"), kWidgetless);
    m_set.add(QStringLiteral("a"), kTest);

    build();

    QCOMPARE(rows(), QStringLiteral("\"a:\" a"));
    TestEditor *const none = editor(QStringLiteral("none"));
    QVERIFY(none);
    QCOMPARE(none->parent(), m_panel.get());
    none->edit(3); // connected all the same
    QCOMPARE(m_delegate.log(), QStringList(QStringLiteral("none=3/0")));
}

void tst_PropertyEditorPanel::replacedFactoryServesTheNextPanel()
{
    m_set.add(QStringLiteral("a"), kPropertyTypeString);
    const PropertyEditorPanel before(m_set.list(), nullptr, nullptr);

    const ScopedFactory replaced(kPropertyTypeString, TestEditor::Factory);
    build();

    QVERIFY(before.findChild<QLineEdit *>());
    QVERIFY(!m_panel->findChild<QLineEdit *>());
    QVERIFY(editor(QStringLiteral("a")));
}

void tst_PropertyEditorPanel::editorIsAChildBeforeItsWidgetIsAsked()
{
    m_set.add(QStringLiteral("a"), kTest);

    build();

    QCOMPARE(editor(QStringLiteral("a"))->parentWhenBuilt, m_panel.get());
}

void tst_PropertyEditorPanel::contextGoesToWidgetOnly()
{
    PropertyEditorContext context;
    m_set.add(QStringLiteral("a"), kTest);
    m_set.add(QStringLiteral("b"), kWidgetless);

    m_panel = std::make_unique<PropertyEditorPanel>(m_set.list(), &m_delegate, &context);
    m_panel->updateUI();
    m_panel->updateProperty(m_set.list().first());
    editor(QStringLiteral("a"))->edit(1);

    const QVector<PropertyEditorContext *> once{&context};
    QCOMPARE(editor(QStringLiteral("a"))->contexts, once);
    QCOMPARE(editor(QStringLiteral("b"))->contexts, once);
}

void tst_PropertyEditorPanel::signalsAreConnectedOnce()
{
    m_set.add(QStringLiteral("a"), kTest);
    build();

    editor(QStringLiteral("a"))->edit(1);

    QCOMPARE(m_delegate.log(), QStringList(QStringLiteral("a=1/0")));
}

void tst_PropertyEditorPanel::nothingIsReadDuringConstruction()
{
    m_set.add(QStringLiteral("a"), kTest);
    m_set.add(QStringLiteral("text"), kPropertyTypeString);
    m_delegate.values[QStringLiteral("text")] = QStringLiteral("stored");

    build();

    QCOMPARE(m_delegate.reads, QStringList());
    QCOMPARE(m_delegate.log(), QStringList());
    QCOMPARE(editor(QStringLiteral("a"))->setValueCalls, 0);
    QCOMPARE(editor(QStringLiteral("a"))->valueCalls, 0);
    QVERIFY(m_panel->findChild<QLineEdit *>()->text().isEmpty());
}

void tst_PropertyEditorPanel::listIsCopied()
{
    m_set.add(QStringLiteral("a"), kTest);
    QVector<Property *> list = m_set.list();
    m_panel = std::make_unique<PropertyEditorPanel>(list, &m_delegate, nullptr);

    list.clear();
    m_panel->updateUI();

    QCOMPARE(m_delegate.reads, QStringList(QStringLiteral("a")));
}

void tst_PropertyEditorPanel::tabNesting_data()
{
    QTest::addColumn<QString>("list");
    QTest::addColumn<QString>("expected");
    QTest::addColumn<int>("endsWithoutBegin");
    QTest::addColumn<int>("tabsOutside");
    const auto row = [](const char *name, const char *list, const char *expected, int ends = 0,
                        int tabs = 0) {
        QTest::newRow(name) << QString::fromLatin1(list) << QString::fromLatin1(expected) << ends
                            << tabs;
    };

    row("one page", "[ |One a b ] c", "tabs[One: a b] c");
    row("two pages", "a [ |One b |Two c ] d", "a tabs[One: b; Two: c] d");
    row("empty pages", "[ |One |Two ]", "tabs[One:; Two:]");
    row("no page", "[ ] a", "tabs[] a");
    row("row before the first page", "[ a |One b ]", "tabs[One: b] a");
    row("two groups", "[ |One a ] [ |Two b ]", "tabs[One: a] tabs[Two: b]");
    row("group on a page", "[ |One [ |In a ] b |Two c ] d", "tabs[One: tabs[In: a] b; Two: c] d");
    row("tab right after an inner group", "[ |One [ |In ] |Two ]", "tabs[One: tabs[In:]; Two:]");
    row("three deep", "[ |A [ |B [ |C x ] y ] z ]", "tabs[A: tabs[B: tabs[C: x] y] z]");
    row("inner group before the first page", "[ [ |In a ] b |Out c ] d",
        "tabs[Out: c] tabs[In: a] b d");
    row("same titles", "[ |One a |One b ]", "tabs[One: a; One: b]");
    row("group of rows on a page", "[ |One ( a ) ] b", "tabs[One: QCheckBox a QFrame] b");
    row("left open", "a [ |One b", "a tabs[One: b]");
    row("inner left open", "[ |One [ |In a ] |Two [ |Deep b",
        "tabs[One: tabs[In: a]; Two: tabs[Deep: b]]");
    row("left open without page", "[ a", "tabs[] a");
    row("end first", "] a", "a", 1);
    row("end too many", "[ |One a ] ] b", "tabs[One: a] b", 1);
    row("two ends too many", "] a ] b", "a b", 2);
    row("group after a stray end", "] [ |One a ] b", "tabs[One: a] b", 1);
    row("tab outside", "a |Lost b", "a QWidget b", 0, 1);
    row("tab after the group", "[ |One a ] |Lost b", "tabs[One: a] QWidget b", 0, 1);
    row("two tabs outside", "|A |B a", "QWidget QWidget a", 0, 2);
    row("both", "] |Lost ] a", "QWidget a", 2, 1);
    row("tab in a group of rows", "( |Lost a )", "QCheckBox QWidget a QFrame", 0, 1);
    row("group of rows closed on a page", "( [ |One a ) ] b", "QCheckBox tabs[One: a QFrame] b");
}

void tst_PropertyEditorPanel::tabNesting()
{
    QFETCH(QString, list);
    QFETCH(QString, expected);
    QFETCH(int, endsWithoutBegin);
    QFETCH(int, tabsOutside);
    addFromText(m_set, list);

    const MessageRecorder recorder;
    build();

    QCOMPARE(rows(), expected);
    QCOMPARE(allEditors(*m_panel).size(), m_set.list().size());
    QCOMPARE(recorder.warnings().count(kEndWithoutBegin), endsWithoutBegin);
    QCOMPARE(recorder.warnings().count(kTabOutside), tabsOutside);
    QCOMPARE(recorder.warnings().size(), endsWithoutBegin + tabsOutside);
}

void tst_PropertyEditorPanel::tabTitleIsThePlainLabel()
{
    m_set.add(QStringLiteral("group"), QStringLiteral("Never shown"), kPropertyTypeBeginTabGroup);
    m_set.add(QStringLiteral("page"), QStringLiteral("Size & place"), kPropertyTypeTab);
    m_set.add(QStringLiteral("blank"), QString(), kPropertyTypeTab);

    build();

    const auto *const tabs = m_panel->findChild<QTabWidget *>();
    QCOMPARE(tabs->tabText(0), QStringLiteral("Size & place"));
    QCOMPARE(tabs->tabText(1), QString());
    QVERIFY(m_panel->findChildren<QLabel *>().isEmpty());
}

void tst_PropertyEditorPanel::pageLayoutIsLikeThePanels()
{
    addFromText(m_set, QStringLiteral("[ |One a ]"));

    build();

    const QWidget *const page = m_panel->findChild<QTabWidget *>()->widget(0);
    QVERIFY(qobject_cast<PropertyLayout *>(page->layout()));
    QCOMPARE(page->layout()->spacing(), 4);
    QCOMPARE(page->layout()->contentsMargins(), QMargins(4, 4, 4, 4));
    QCOMPARE(frame(QStringLiteral("a"))->parentWidget(), page);
}

void tst_PropertyEditorPanel::tabGroupWithoutTabWidget_data()
{
    QTest::addColumn<PropertyEditorRegistry::Factory>("factory");
    QTest::addColumn<QString>("expected");
    QTest::addColumn<QStringList>("warnings");

    // The group counts, whatever its widget is; its tabs have nowhere to go.
    QTest::newRow("other widget") << &TestEditor::Factory << QStringLiteral("\"[:\" [ QWidget a b")
                                  << QStringList(kTabOutside);
    QTest::newRow("no widget") << &WidgetlessEditor::Factory << QStringLiteral("QWidget a b")
                               << QStringList(kTabOutside);
    // Without editor the begin marker is as if it were not there.
    QTest::newRow("no editor") << &noEditor << QStringLiteral("QWidget a b")
                               << QStringList({kTabOutside, kEndWithoutBegin});
}

void tst_PropertyEditorPanel::tabGroupWithoutTabWidget()
{
    QFETCH(PropertyEditorRegistry::Factory, factory);
    QFETCH(QString, expected);
    QFETCH(QStringList, warnings);
    const ScopedFactory replaced(kPropertyTypeBeginTabGroup, factory);
    addFromText(m_set, QStringLiteral("[ |One a ] b"));

    const MessageRecorder recorder;
    build();

    QCOMPARE(rows(), expected);
    QCOMPARE(recorder.warnings(), warnings);
}

// Its tabs do not go to the group around it, which takes the next ones again after its end.
void tst_PropertyEditorPanel::innerTabGroupWithoutTabWidget()
{
    const ScopedFactory replaced(kPropertyTypeBeginTabGroup, outerTabsOnly);
    m_set.add(QStringLiteral("outer"), kPropertyTypeBeginTabGroup);
    addFromText(m_set, QStringLiteral("|One [ |Lost a ] |Two b ]"));

    const MessageRecorder recorder;
    build();

    QCOMPARE(rows(), QStringLiteral("tabs[One: \"[:\" [ QWidget a; Two: b]"));
    QCOMPARE(recorder.warnings(), QStringList(kTabOutside));
}

void tst_PropertyEditorPanel::nullTabEditorIsNoPage()
{
    const ScopedFactory replaced(kPropertyTypeTab, noEditor);
    addFromText(m_set, QStringLiteral("[ |One a ] |Lost b"));

    const MessageRecorder recorder;
    build();

    QCOMPARE(rows(), QStringLiteral("tabs[] a b"));
    QCOMPARE(recorder.warnings(), QStringList());
}

void tst_PropertyEditorPanel::tabWithoutWidgetIsNoPage()
{
    const ScopedFactory replaced(kPropertyTypeTab, WidgetlessEditor::Factory);
    addFromText(m_set, QStringLiteral("[ |One a ] |Lost b"));

    const MessageRecorder recorder;
    build();

    QCOMPARE(rows(), QStringLiteral("tabs[] a b"));
    QCOMPARE(recorder.warnings(), QStringList(kTabOutside));
}

void tst_PropertyEditorPanel::endOfTabGroupWithWidgetIsARow()
{
    const ScopedFactory replaced(kPropertyTypeEndTabGroup, TestEditor::Factory);
    addFromText(m_set, QStringLiteral("[ |One a ] b"));

    build();

    QCOMPARE(rows(), QStringLiteral("tabs[One: a \"]:\" ]] b"));
}

void tst_PropertyEditorPanel::firstPageIsReported()
{
    m_set.add(QStringLiteral("outer"), kPropertyTypeBeginTabGroup);
    m_set.add(QStringLiteral("one"), kPropertyTypeTab);
    m_set.add(QStringLiteral("inner"), kPropertyTypeBeginTabGroup);
    m_set.add(QStringLiteral("in"), kPropertyTypeTab);
    m_set.add(QStringLiteral("in2"), kPropertyTypeTab);
    m_set.add(QString(), kPropertyTypeEndTabGroup);
    m_set.add(QStringLiteral("two"), kPropertyTypeTab);
    m_set.add(QString(), kPropertyTypeEndTabGroup);
    m_set.add(QStringLiteral("empty"), kPropertyTypeBeginTabGroup);
    m_set.add(QString(), kPropertyTypeEndTabGroup);

    build();

    QCOMPARE(m_delegate.log(),
             QStringList({QStringLiteral("outer=0/0"), QStringLiteral("inner=0/0")}));
    QCOMPARE(m_delegate.changes.first().value, QVariant(0));
}

void tst_PropertyEditorPanel::foldingFollowsTheLastLayout_data()
{
    QTest::addColumn<QString>("list");
    QTest::addColumn<bool>("folds");

    // The panel asks the layout that it ended with, and no other.
    QTest::newRow("top level") << QStringLiteral("( a ) b") << true;
    QTest::newRow("before a closed tab group") << QStringLiteral("( a ) [ |One b ]") << true;
    QTest::newRow("after a closed tab group") << QStringLiteral("[ |One b ] ( a )") << true;
    QTest::newRow("on a page") << QStringLiteral("[ |One ( a ) ] b") << false;
    QTest::newRow("before a tab group left open") << QStringLiteral("( a ) [ |One b") << false;
    QTest::newRow("on the page left open") << QStringLiteral("[ |One ( a ) b") << true;
    QTest::newRow("on an earlier page left open") << QStringLiteral("[ |One ( a ) |Two b") << false;
    QTest::newRow("tab group without page left open") << QStringLiteral("( a ) [ b") << true;
    QTest::newRow("tab outside") << QStringLiteral("( a ) |Lost b") << true;
}

void tst_PropertyEditorPanel::foldingFollowsTheLastLayout()
{
    QFETCH(QString, list);
    QFETCH(bool, folds);
    addFromText(m_set, list);
    const MessageRecorder recorder;
    build();
    m_delegate.changes.clear();

    m_panel->findChild<QCheckBox *>()->click();

    QCOMPARE(frame(QStringLiteral("a"))->isHidden(), folds);
    QVERIFY(!frame(QStringLiteral("b"))->isHidden());
    QCOMPARE(m_delegate.log(), QStringList(QStringLiteral("(=false/0")));
}

void tst_PropertyEditorPanel::getEditorsByType_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("names");

    QTest::newRow("one") << kPropertyTypeString << QStringLiteral("text");
    QTest::newRow("several, in order") << kTest << QStringLiteral("b a");
    QTest::newRow("without widget") << kWidgetless << QStringLiteral("none");
    QTest::newRow("null entries are passed over") << kNull << QString();
    QTest::newRow("other case") << QStringLiteral("Test") << QString();
    QTest::newRow("beginning of a type") << QStringLiteral("tes") << QString();
    QTest::newRow("all") << QString() << QStringLiteral("b text null none a");
    QTest::newRow("all, not null") << QStringLiteral("") << QStringLiteral("b text null none a");
}

void tst_PropertyEditorPanel::getEditorsByType()
{
    QFETCH(QString, type);
    QFETCH(QString, names);
    m_set.add(QStringLiteral("b"), kTest);
    m_set.add(QStringLiteral("text"), kPropertyTypeString);
    m_set.add(QStringLiteral("unknown"), kPropertyTypeAngle);
    m_set.add(QStringLiteral("null"), kNull);
    m_set.add(QStringLiteral("none"), kWidgetless);
    m_set.add(QStringLiteral("a"), kTest);
    build();

    QVector<PropertyEditor *> editors;
    m_panel->getEditors(editors, type);

    QStringList found;
    for (const PropertyEditor *each : std::as_const(editors))
        found.append(each ? each->editedProperty()->name : QStringLiteral("null"));
    QCOMPARE(found.join(QLatin1Char(' ')), names);
}

void tst_PropertyEditorPanel::getEditorsAppends()
{
    m_set.add(QStringLiteral("a"), kTest);
    build();
    PropertyEditor *const a = editor(QStringLiteral("a"));

    QVector<PropertyEditor *> editors{nullptr};
    m_panel->getEditors(editors, kTest);
    m_panel->getEditors(editors, QString());

    QCOMPARE(editors, QVector<PropertyEditor *>({nullptr, a, a}));
}

void tst_PropertyEditorPanel::deletedEditorBecomesANullEntry()
{
    m_set.add(QStringLiteral("a"), kTest);
    m_set.add(QStringLiteral("b"), kTest);
    build();

    delete editor(QStringLiteral("a"));
    m_panel->updateUI();
    m_panel->updateProperty(m_set.list().first());

    QCOMPARE(allEditors(*m_panel),
             QVector<PropertyEditor *>({nullptr, editor(QStringLiteral("b"))}));
    QCOMPARE(m_delegate.reads, QStringList(QStringLiteral("b")));
}

void tst_PropertyEditorPanel::panelOwnsEditorsAndWidgets()
{
    addFromText(m_set, QStringLiteral("a [ |One b ]"));
    build();
    const QPointer<QObject> editorA = editor(QStringLiteral("a"));
    const QPointer<QObject> editorB = editor(QStringLiteral("b"));
    const QPointer<QWidget> frameA = frame(QStringLiteral("a"));
    const QPointer<QWidget> frameB = frame(QStringLiteral("b"));
    m_delegate.changes.clear();

    m_panel.reset();

    QVERIFY(!editorA && !editorB && !frameA && !frameB);
    QCOMPARE(m_delegate.log(), QStringList());
    QCOMPARE(m_set.list().first()->name, QStringLiteral("a"));
}

void tst_PropertyEditorPanel::deletionDropsThePendingEdit_data()
{
    QTest::addColumn<QString>("list");

    QTest::newRow("top level") << QStringLiteral("text");
    QTest::newRow("on a page") << QStringLiteral("[ |One text ]");
    QTest::newRow("on an inner page") << QStringLiteral("[ |One [ |In text ] ]");
}

// Closing the window takes the focus from the field, which finishes the edit in it. By then the
// panel is half gone and must not be told any more.
void tst_PropertyEditorPanel::deletionDropsThePendingEdit()
{
    QFETCH(QString, list);
    addFromText(m_set, list);
    for (Property *property : m_set.list()) {
        if (property->type == kTest)
            property->type = kPropertyTypeString;
    }
    build().show();
    m_panel->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_panel.get()));
    auto *const field = m_panel->findChild<QLineEdit *>();
    field->setFocus();
    QTRY_VERIFY(field->hasFocus());
    QTest::keyClicks(field, QStringLiteral("abc"));
    m_delegate.changes.clear();

    m_panel.reset();

    QCOMPARE(m_delegate.log(), QStringList());
}

QTEST_MAIN(tst_PropertyEditorPanel)
#include "tst_PropertyEditorPanel.moc"
