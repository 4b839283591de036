#include "support/RecordingDelegate.h"
#include "support/ViewBench.h"

#include <host/HostHints.h>
#include <host/SelectionDelegate.h>
#include <property/ValueCodecs.h>
#include <property/editors/ImageFormatEditor.h>

#include <QAccessible>
#include <QCheckBox>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QSignalSpy>
#include <QSlider>
#include <QSpinBox>
#include <QVector3D>

#include <functional>
#include <memory>

using namespace Tessark::PropertyHost;
using namespace Tessark::PropertyUI;
using TestSupport::RecordingDelegate;
using TestSupport::settleEvents;
using TestSupport::ViewBench;

namespace {

/// A row of one type, its default and what differs from it.
struct Sample
{
    QString type;
    QVariant defaultValue;
    QVariant other;
    QVariant sameAsDefault; // in another form
};

QVariant transform(double x)
{
    DoubleMatrix3x3 matrix;
    matrix(2, 0) = x / 10;
    return QVariant::fromValue(matrix);
}

QVariant texture(const char *name)
{
    TextureChoice choice;
    choice.name = QString::fromUtf8(name);
    return QVariant::fromValue(choice);
}

QVariant format(const char *name)
{
    ImageFormatDesc description;
    description.format = QString::fromUtf8(name);
    return QVariant::fromValue(description);
}

QString text(const char *letters)
{
    return QString::fromUtf8(letters);
}

} // namespace

Q_DECLARE_METATYPE(Sample)

class tst_DefaultMarks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void changedRowIsMarked_data();
    void changedRowIsMarked();
    void rowsWithoutMark();
    void invalidValueIsWhatTheRowStartsWith();
    void shearedTransformIsChanged();

    void clickRestoresInOneStep();
    void clickRestoresWhatFieldsCannotHold();
    void clickRestoresFocusedField();
    void clickAfterTypingIsAStepOfItsOwn();
    void markTakesNoFocus();
    void marksFollowEdits();
    void marksFollowTheHost();
    void marksFollowDefaults();
    void marksFollowRulesThatDisable();

    void markLiesInTheGap_data();
    void markLiesInTheGap();
    void markOfRowOverBothColumns_data();
    void markOfRowOverBothColumns();
    void marksFollowFolding();
    void marksFollowTabs();
    void rowsLieAsWithoutMarks();
    void markIsHeard();

    void marksCanBeOff();
    void marksAreMadeLater();
    void hostIsAskedNoMoreWithoutMarks();

    void objectsGetTheirOwnDefaults();
    void mixedRowIsRestoredWhole();
    void rowThatNotAllHaveHasNoMark();

    void viewDeletedInClick();
    void viewDeletedWhenMarksAreMade();
    void otherPropertiesInClick();

private:
    void type(const char *name, const QString &keys) const;

    std::unique_ptr<ViewBench> m_bench;
};

void tst_DefaultMarks::init()
{
    m_bench = std::make_unique<ViewBench>();
}

void tst_DefaultMarks::cleanup()
{
    m_bench.reset();
}

/// Replaces the text of a row's first field, and stays there.
void tst_DefaultMarks::type(const char *name, const QString &keys) const
{
    auto *const line = m_bench->control<QLineEdit>(name);
    line->setFocus();
    line->selectAll();
    QTest::keyClicks(line, keys);
}

void tst_DefaultMarks::changedRowIsMarked_data()
{
    QTest::addColumn<Sample>("sample");
    const auto row = [](const QString &type, const QVariant &value, const QVariant &other,
                        const QVariant &same = QVariant()) {
        QTest::newRow(qPrintable(type)) << Sample{type, value, other, same};
    };
    row(kPropertyTypeBoolean, true, false, 1);
    row(kPropertyTypeInteger, 4, 5, 4.0);
    row(kPropertyTypeFloat, 0.1, 0.2, double(0.1F));
    row(kPropertyTypePercent, 1, 0.25, 1.0F);
    row(kPropertyTypeString, text("a"), text("b"));
    row(kPropertyTypeText, text("a"), text("b"));
    row(kPropertyTypeFilename, text("a"), text("b"));
    row(kPropertyTypeEnumeration, 1, 0, 1LL);
    row(kPropertyTypeVec2, text("1 2"), QVector2D(2, 2), QVector2D(1, 2));
    row(kPropertyTypeVec3, QVector3D(1, 2, 3), QVector3D(1, 2, 4), text("1 2 3"));
    row(kPropertyTypeVec4, QVector4D(1, 2, 3, 4), QVector4D(1, 2, 3, 5));
    row(kPropertyTypeColor, QColor(Qt::red), QColor(0, 0, 255, 128), text("#ff0000"));
    row(kPropertyTypeSize, QSize(2, 3), QSize(3, 3), QSizeF(2, 3));
    row(kPropertyTypeRenderSize, QSize(64, 32), QSize(64, 64));
    row(kPropertyTypeTransform2D, transform(1), transform(2), text("1 0 0 0 1 0 0.1 0 1"));
    row(kPropertyTypeImageFormat, format("png"), format("tiff"));
    row(kPropertyTypeTexture, texture("wood"), texture("stone"), text("wood"));
}

void tst_DefaultMarks::changedRowIsMarked()
{
    QFETCH(Sample, sample);
    m_bench->list.add(sample.type, text("row"), text("Row"))
        .range(-10, 10)
        .defaultValue(sample.defaultValue)
        .hint(kPropertyHintDisplayValues, QVariantList{text("one"), text("two")})
        .hint(kHostHintTextures, QVariantList{texture("wood"), texture("stone")});
    RecordingDelegate values;
    values.values[text("row")] = sample.defaultValue;
    m_bench->view->setProperties(m_bench->list, &values);
    m_bench->show();
    QVERIFY(!m_bench->isMarked("row"));

    values.values[text("row")] = sample.other;
    m_bench->view->updateUI();

    QVERIFY(m_bench->isMarked("row"));
    values.values[text("row")] =
        sample.sameAsDefault.isValid() ? sample.sameAsDefault : sample.defaultValue;
    m_bench->view->updateUI();
    QVERIFY(!m_bench->isMarked("row"));

    values.values[text("row")] = sample.other;
    m_bench->view->updateUI();
    QTest::mouseClick(m_bench->mark("row"), Qt::LeftButton);

    QCOMPARE(values.flags(), QVector<int>{IPropertyEditorDelegate::NewChange});
    QVERIFY(!m_bench->isMarked("row"));
}

void tst_DefaultMarks::rowsWithoutMark()
{
    m_bench->list.number(text("free"), text("Free")).range(0, 9);
    m_bench->list.staticText(text("told"), text("Told")).defaultValue(text("a"));
    m_bench->list.number(text("fixed"), text("Fixed")).range(0, 9).defaultValue(4).enabled(false);
    m_bench->list.action(text("run"), text("Run")).defaultValue(1);
    m_bench->list.group(text("Group"), [] {}).defaultValue(false);
    m_bench->show();
    m_bench->hold("free", 3.0);
    m_bench->hold("told", text("b"));
    m_bench->hold("fixed", 5.0);

    m_bench->view->updateUI();

    for (const char *name : {"free", "told", "fixed", "run", "Group"})
        QVERIFY2(!m_bench->mark(name), name);
}

void tst_DefaultMarks::invalidValueIsWhatTheRowStartsWith()
{
    m_bench->list.number(text("zero"), text("Zero")).range(0, 9).defaultValue(0);
    m_bench->list.number(text("four"), text("Four")).range(0, 9).defaultValue(4);
    RecordingDelegate values; // has none
    m_bench->view->setProperties(m_bench->list, &values);

    m_bench->show();

    QVERIFY(!m_bench->isMarked("zero"));
    QVERIFY(m_bench->isMarked("four"));
}

void tst_DefaultMarks::shearedTransformIsChanged()
{
    DoubleMatrix3x3 matrix;
    m_bench->list.transform2D(text("place"), text("Place"))
        .defaultValue(QVariant::fromValue(matrix));
    m_bench->show();
    matrix(0, 1) = 0.5;
    m_bench->hold("place", QVariant::fromValue(matrix));

    m_bench->view->updateUI();

    QVERIFY(m_bench->isMarked("place"));
}

void tst_DefaultMarks::clickRestoresInOneStep()
{
    m_bench->list.vec3(text("offset"), text("Offset"))
        .range(QVector3D(-9, -9, -9), QVector3D(9, 9, 9))
        .defaultValue(QVector3D(1, 2, 3));
    m_bench->show();
    m_bench->hold("offset", QVector3D(4, 5, 6));
    m_bench->view->updateUI();

    QTest::mouseClick(m_bench->mark("offset"), Qt::LeftButton);

    QCOMPARE(m_bench->stack.count(), 1);
    QCOMPARE(m_bench->value("offset").value<QVector3D>(), QVector3D(1, 2, 3));
    QCOMPARE(m_bench->control<QDoubleSpinBox>("offset", 2)->value(), 3.0);
    QVERIFY(!m_bench->isMarked("offset"));

    m_bench->stack.undo();

    QCOMPARE(m_bench->value("offset").value<QVector3D>(), QVector3D(4, 5, 6));
    QVERIFY(m_bench->isMarked("offset"));

    m_bench->stack.redo();

    QVERIFY(!m_bench->isMarked("offset"));
}

void tst_DefaultMarks::clickRestoresWhatFieldsCannotHold()
{
    m_bench->list.number(text("level"), text("Level"))
        .range(0, 9)
        .defaultValue(1.23456)
        .decimals(2);
    m_bench->show();
    QVERIFY(!m_bench->isMarked("level"));
    type("level", text("3"));

    QTest::mouseClick(m_bench->mark("level"), Qt::LeftButton);

    QCOMPARE(m_bench->value("level").toDouble(), 1.23456);
    QCOMPARE(m_bench->control<QDoubleSpinBox>("level")->value(), 1.23);
    QVERIFY(!m_bench->isMarked("level"));
}

void tst_DefaultMarks::clickRestoresFocusedField()
{
    m_bench->list.number(text("level"), text("Level"))
        .range(0, 1)
        .defaultValue(0.4)
        .displayScale(10);
    m_bench->show();
    type("level", text("7"));
    QCOMPARE(m_bench->value("level").toDouble(), 0.7);

    QTest::mouseClick(m_bench->mark("level"), Qt::LeftButton);

    QCOMPARE(m_bench->value("level").toDouble(), 0.4);
    QCOMPARE(m_bench->control<QDoubleSpinBox>("level")->value(), 4.0);
    QVERIFY(!m_bench->isMarked("level"));
}

void tst_DefaultMarks::clickAfterTypingIsAStepOfItsOwn()
{
    m_bench->list.number(text("level"), text("Level")).range(0, 10).defaultValue(4);
    m_bench->show();
    type("level", text("7"));
    QCOMPARE(m_bench->stack.count(), 1);

    QTest::mouseClick(m_bench->mark("level"), Qt::LeftButton);

    QCOMPARE(m_bench->stack.count(), 2);
    m_bench->stack.undo();
    QCOMPARE(m_bench->value("level").toDouble(), 7.0);

    m_bench->stack.redo();
    type("level", text("8")); // a run of its own again
    QCOMPARE(m_bench->stack.count(), 3);
}

void tst_DefaultMarks::markTakesNoFocus()
{
    m_bench->list.string(text("first"), text("First")).defaultValue(text("a"));
    m_bench->list.string(text("second"), text("Second")).defaultValue(text("b"));
    m_bench->show();
    m_bench->hold("first", text("x"));
    m_bench->view->updateUI();

    m_bench->control<QLineEdit>("first")->setFocus();
    QTest::keyClick(m_bench->control<QLineEdit>("first"), Qt::Key_Tab);
    QVERIFY(m_bench->control<QLineEdit>("second")->hasFocus());

    QTest::mouseClick(m_bench->mark("first"), Qt::LeftButton);
    QVERIFY(!m_bench->mark("first")->hasFocus());
}

void tst_DefaultMarks::marksFollowEdits()
{
    m_bench->list.integer(text("count"), text("Count")).range(0, 9).defaultValue(4);
    m_bench->list.boolean(text("on"), text("On")).defaultValue(true);
    m_bench->show();

    type("count", text("5"));
    QTest::mouseClick(m_bench->control<QCheckBox>("on"), Qt::LeftButton, {}, QPoint(8, 8));
    QVERIFY(m_bench->isMarked("count"));
    QVERIFY(m_bench->isMarked("on"));

    type("count", text("4"));
    QVERIFY(!m_bench->isMarked("count"));
    QVERIFY(m_bench->isMarked("on"));
}

void tst_DefaultMarks::marksFollowTheHost()
{
    m_bench->list.integer(text("count"), text("Count")).range(0, 9).defaultValue(4);
    m_bench->show();
    m_bench->hold("count", 6);
    QVERIFY(!m_bench->isMarked("count"));

    m_bench->view->panel()->updateUI(); // not that of the view
    QVERIFY(m_bench->isMarked("count"));

    m_bench->hold("count", 4);
    m_bench->view->updateUI();
    QVERIFY(!m_bench->isMarked("count"));
}

void tst_DefaultMarks::marksFollowDefaults()
{
    m_bench->list.integer(text("count"), text("Count")).range(0, 9).defaultValue(4);
    m_bench->show();

    m_bench->property("count")->setDefaultValue(5);
    m_bench->view->updateProperty(m_bench->property("count"));
    QVERIFY(m_bench->isMarked("count"));

    m_bench->property("count")->setDefaultValue(QVariant());
    m_bench->view->updateProperty(m_bench->property("count"));
    QVERIFY(!m_bench->isMarked("count"));
}

void tst_DefaultMarks::marksFollowRulesThatDisable()
{
    m_bench->list.boolean(text("on"), text("On")).defaultValue(true);
    m_bench->list.integer(text("count"), text("Count"))
        .range(0, 9)
        .defaultValue(4)
        .enabledWhen(text("on"));
    m_bench->show();
    m_bench->hold("count", 6);
    m_bench->view->updateUI();
    QVERIFY(m_bench->mark("count")->isEnabled());

    QTest::mouseClick(m_bench->control<QCheckBox>("on"), Qt::LeftButton, {}, QPoint(8, 8));

    QVERIFY(m_bench->isMarked("count"));
    QVERIFY(!m_bench->mark("count")->isEnabled());
    QTest::mouseClick(m_bench->mark("count"), Qt::LeftButton);
    QCOMPARE(m_bench->value("count").toInt(), 6);
}

void tst_DefaultMarks::markLiesInTheGap_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::newRow("from the left") << Qt::LeftToRight;
    QTest::newRow("from the right") << Qt::RightToLeft;
}

void tst_DefaultMarks::markLiesInTheGap()
{
    QFETCH(Qt::LayoutDirection, direction);
    m_bench->view->setLayoutDirection(direction);
    m_bench->list.integer(text("count"), text("Count")).range(0, 9).defaultValue(4);
    m_bench->list.string(text("name"), text("A much longer name"));
    m_bench->show();
    type("count", text("5"));
    const auto isBetween = [this, direction] {
        const QRect mark = m_bench->mark("count")->geometry();
        const QRect label = m_bench->label("count")->geometry();
        const QRect field = m_bench->field("count")->geometry();
        const bool isMirrored = direction == Qt::RightToLeft;
        const QRect before = isMirrored ? field : label;
        const QRect behind = isMirrored ? label : field;
        return mark.width() >= 8 && mark.left() > before.right() && mark.right() < behind.left()
               && qAbs(mark.center().y() - label.center().y()) <= 1;
    };
    QVERIFY(isBetween());

    m_bench->view->setLabelWidth(180);
    settleEvents();
    QVERIFY(isBetween());

    m_bench->view->resize(600, 300);
    settleEvents();
    QVERIFY(isBetween());
}

void tst_DefaultMarks::markOfRowOverBothColumns_data()
{
    markLiesInTheGap_data();
}

void tst_DefaultMarks::markOfRowOverBothColumns()
{
    QFETCH(Qt::LayoutDirection, direction);
    m_bench->view->setLayoutDirection(direction);
    m_bench->list.text(text("notes"), text("Notes")).defaultValue(text("a")).fullWidth();
    m_bench->show();
    m_bench->hold("notes", text("b"));
    m_bench->view->updateUI();

    QVERIFY(m_bench->isMarked("notes"));
    const QRect mark = m_bench->mark("notes")->geometry();
    const QRect field = m_bench->field("notes")->geometry();
    QVERIFY(!mark.intersects(field));
    QVERIFY(m_bench->mark("notes")->parentWidget()->rect().contains(mark));
    QCOMPARE(mark.left() > field.right(), direction == Qt::RightToLeft);
    QCOMPARE(mark.height(), field.height());
}

void tst_DefaultMarks::marksFollowFolding()
{
    m_bench->list.group(text("Group"), [this] {
        m_bench->list.integer(text("count"), text("Count")).range(0, 9).defaultValue(4);
    });
    m_bench->show();
    type("count", text("5"));

    m_bench->view->collapseAll();
    QVERIFY(!m_bench->mark("count")->isVisible());
    m_bench->hold("count", 4);
    m_bench->view->updateUI();
    m_bench->view->expandAll();
    QVERIFY(!m_bench->mark("count")->isVisible());

    m_bench->view->collapseAll();
    m_bench->hold("count", 6);
    m_bench->view->updateUI();
    QVERIFY(!m_bench->mark("count")->isVisible());
    m_bench->view->expandAll();
    QVERIFY(m_bench->mark("count")->isVisible());
}

void tst_DefaultMarks::marksFollowTabs()
{
    m_bench->list.tabs([this] {
        m_bench->list.tab(text("One"), [this] {
            m_bench->list.integer(text("first"), text("First")).range(0, 9).defaultValue(4);
        });
        m_bench->list.tab(text("Two"), [this] {
            m_bench->list.integer(text("second"), text("Second")).range(0, 9).defaultValue(4);
        });
    });
    m_bench->show();
    m_bench->hold("first", 5);
    m_bench->hold("second", 5);

    m_bench->view->updateUI();

    QVERIFY(m_bench->mark("first")->isVisible());
    QVERIFY(m_bench->isMarked("second"));
    QVERIFY(!m_bench->mark("second")->isVisible());
    m_bench->view->findChild<QTabWidget *>()->setCurrentIndex(1);
    settleEvents();
    QVERIFY(m_bench->mark("second")->isVisible());
    QVERIFY(m_bench->mark("second")->x() > m_bench->label("second")->geometry().right());
}

void tst_DefaultMarks::rowsLieAsWithoutMarks()
{
    m_bench->list.integer(text("count"), text("Count")).range(0, 9).defaultValue(4);
    m_bench->list.text(text("notes"), text("Notes")).defaultValue(text("a")).fullWidth();
    m_bench->show();
    const auto places = [this] {
        return QVector<QRect>{
            m_bench->label("count")->geometry(), m_bench->field("count")->geometry(),
            m_bench->field("notes")->geometry(), m_bench->view->panel()->geometry()};
    };
    const QVector<QRect> before = places();

    m_bench->hold("count", 5);
    m_bench->hold("notes", text("b"));
    m_bench->view->updateUI();
    settleEvents();

    QCOMPARE(places(), before);
}

void tst_DefaultMarks::markIsHeard()
{
    m_bench->list.integer(text("count"), text("Count")).range(0, 9).defaultValue(4);
    m_bench->show();
    type("count", text("5"));

    QAccessibleInterface *const heard =
        QAccessible::queryAccessibleInterface(m_bench->mark("count"));

    QVERIFY(heard);
    QCOMPARE(heard->role(), QAccessible::Button);
    QCOMPARE(heard->text(QAccessible::Name), text("Set Count to Default"));
    QCOMPARE(m_bench->mark("count")->toolTip(), text("Set to Default"));
}

void tst_DefaultMarks::marksCanBeOff()
{
    QVERIFY(m_bench->view->areDefaultMarksVisible());
    m_bench->list.integer(text("count"), text("Count")).range(0, 9).defaultValue(4);
    m_bench->show();
    type("count", text("5"));

    m_bench->view->setDefaultMarksVisible(false);
    QVERIFY(!m_bench->isMarked("count"));
    QTRY_VERIFY(!m_bench->mark("count"));

    m_bench->view->setProperties(m_bench->list, &m_bench->undo);
    type("count", text("6"));
    QVERIFY(!m_bench->mark("count"));
}

void tst_DefaultMarks::marksAreMadeLater()
{
    m_bench->view->setDefaultMarksVisible(false);
    m_bench->list.integer(text("count"), text("Count")).range(0, 9).defaultValue(4);
    m_bench->show();
    type("count", text("5"));

    m_bench->view->setDefaultMarksVisible(true);

    QVERIFY(m_bench->mark("count")->isVisible());
}

void tst_DefaultMarks::hostIsAskedNoMoreWithoutMarks()
{
    m_bench->list.integer(text("count"), text("Count")).range(0, 9).defaultValue(4);
    m_bench->list.integer(text("free"), text("Free")).range(0, 9);
    RecordingDelegate values;
    m_bench->view->setProperties(m_bench->list, &values);
    m_bench->show();
    QCOMPARE(values.reads.size(), 2); // as the panel shows them

    values.reads.clear();
    m_bench->view->updateUI();
    QCOMPARE(values.reads.size(), 2);

    m_bench->view->setDefaultMarksVisible(false);
    values.reads.clear();
    type("count", text("5"));
    type("free", text("5"));
    QVERIFY(values.reads.isEmpty());

    m_bench->view->setDefaultMarksVisible(true);
    QCOMPARE(values.reads, QStringList{text("count")});
    values.reads.clear();
    type("count", text("6"));
    type("free", text("6"));
    QCOMPARE(values.reads, QStringList{text("count")});
}

void tst_DefaultMarks::objectsGetTheirOwnDefaults()
{
    PropertyList one;
    one.number(text("level"), text("Level")).range(0, 9).defaultValue(1);
    PropertyList two;
    two.number(text("level"), text("Level")).range(0, 9).defaultValue(2);
    PropertyStore first;
    first.reset(one);
    PropertyStore second;
    second.reset(two);
    QUndoStack stack;
    SelectionDelegate selection(&stack);
    selection.setMembers({{one, &first}, {two, &second}});
    m_bench->view->setProperties(selection.properties(), &selection);
    selection.attach(m_bench->view->panel());
    m_bench->show();
    QVERIFY(!m_bench->isMarked("level")); // mixed, but each has its own

    type("level", text("5"));
    QVERIFY(m_bench->isMarked("level"));
    QTest::mouseClick(m_bench->mark("level"), Qt::LeftButton);

    QCOMPARE(first.value(one.properties().first()).toDouble(), 1.0);
    QCOMPARE(second.value(two.properties().first()).toDouble(), 2.0);
    QVERIFY(!m_bench->isMarked("level"));
    QCOMPARE(stack.count(), 2);
    stack.undo();
    QCOMPARE(first.value(one.properties().first()).toDouble(), 5.0);
    QVERIFY(m_bench->isMarked("level"));
}

void tst_DefaultMarks::mixedRowIsRestoredWhole()
{
    PropertyList rows;
    rows.vec3(text("offset"), text("Offset"))
        .range(QVector3D(-9, -9, -9), QVector3D(9, 9, 9))
        .defaultValue(QVector3D(0, 0, 1)); // all zeros are no default with Qt 5
    PropertyStore first;
    PropertyStore second;
    first.reset(rows);
    second.reset(rows);
    Property *const offset = rows.properties().first();
    first.setValue(offset, QVector3D(5, 6, 7), PropertyStore::NewChange);
    second.setValue(offset, QVector3D(4, 6, 7), PropertyStore::NewChange);
    SelectionDelegate selection;
    selection.setMembers({{rows, &first}, {rows, &second}});
    m_bench->view->setProperties(selection.properties(), &selection);
    selection.attach(m_bench->view->panel());
    m_bench->show();

    QTest::mouseClick(m_bench->mark("offset"), Qt::LeftButton);

    QCOMPARE(first.value(offset).value<QVector3D>(), QVector3D(0, 0, 1));
    QCOMPARE(second.value(offset).value<QVector3D>(), QVector3D(0, 0, 1));
    QVERIFY(!m_bench->isMarked("offset"));
}

void tst_DefaultMarks::rowThatNotAllHaveHasNoMark()
{
    PropertyList one;
    one.number(text("level"), text("Level")).range(0, 9).defaultValue(1);
    one.number(text("own"), text("Own")).range(0, 9).defaultValue(1);
    PropertyList two;
    two.number(text("level"), text("Level")).range(0, 9).defaultValue(1);
    PropertyStore first;
    PropertyStore second;
    SelectionDelegate selection;
    selection.setPartialRows(PartialRows::Disable);
    selection.setMembers({{one, &first}, {two, &second}});

    m_bench->view->setProperties(selection.properties(), &selection);
    m_bench->show();

    QVERIFY(m_bench->isMarked("level"));
    QVERIFY(!m_bench->mark("own"));
}

void tst_DefaultMarks::viewDeletedInClick()
{
    m_bench->list.number(text("level"), text("Level")).range(0, 9).defaultValue(1);
    RecordingDelegate values;
    m_bench->view->setProperties(m_bench->list, &values);
    m_bench->show();
    values.onSetValue = [this] { m_bench->view.reset(); };

    QTest::mouseClick(m_bench->mark("level"), Qt::LeftButton);

    QVERIFY(!m_bench->view);
    QCOMPARE(values.changes.size(), 1);
}

void tst_DefaultMarks::viewDeletedWhenMarksAreMade()
{
    m_bench->list.number(text("level"), text("Level")).range(0, 9).defaultValue(1);
    m_bench->list.number(text("other"), text("Other")).range(0, 9).defaultValue(1);
    m_bench->view->setDefaultMarksVisible(false);
    RecordingDelegate values;
    m_bench->view->setProperties(m_bench->list, &values);
    m_bench->show();
    values.reads.clear();
    values.onValue = [this] { m_bench->view.reset(); };

    m_bench->view->setDefaultMarksVisible(true);

    QVERIFY(!m_bench->view);
    QCOMPARE(values.reads.size(), 1);
}

void tst_DefaultMarks::otherPropertiesInClick()
{
    m_bench->list.number(text("level"), text("Level")).range(0, 9).defaultValue(1);
    RecordingDelegate values;
    m_bench->view->setProperties(m_bench->list, &values);
    m_bench->show();
    RecordingDelegate others;
    others.values[text("level")] = 1.0;
    values.onSetValue = [&] { m_bench->view->setProperties(m_bench->list, &others); };

    QTest::mouseClick(m_bench->mark("level"), Qt::LeftButton);

    QCOMPARE(values.changes.size(), 1);
    QVERIFY(!m_bench->isMarked("level"));
}

QTEST_MAIN(tst_DefaultMarks)
#include "tst_DefaultMarks.moc"
