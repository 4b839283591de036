#include "support/RecordingDelegate.h"
#include "support/ViewBench.h"

#include <host/CommitPolicy.h>
#include <host/SelectionDelegate.h>
#include <host/ValueJson.h>
#include <property/ValueCodecs.h>
#include <property/editors/ImageFormatEditor.h>

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDialog>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QSignalSpy>
#include <QSlider>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTimer>
#include <QToolTip>
#include <QVector3D>
#include <QWhatsThis>
#include <QWindow>

#include <algorithm>
#include <functional>
#include <memory>

using namespace Tessark::PropertyHost;
using namespace Tessark::PropertyUI;
using TestSupport::RecordingDelegate;
using TestSupport::settleEvents;
using TestSupport::ViewBench;

namespace {

QString text(const char *letters)
{
    return QString::fromUtf8(letters);
}

QString clipboard()
{
    return QApplication::clipboard()->text();
}

void setClipboard(const QString &content)
{
    QApplication::clipboard()->setText(content);
}

/// The menu that is open, or null.
QMenu *openMenu()
{
    return qobject_cast<QMenu *>(QApplication::activePopupWidget());
}

QAction *entry(const char *name)
{
    const QString wanted = text(name);
    const auto actions = openMenu() ? openMenu()->actions() : QList<QAction *>();
    for (QAction *action : actions) {
        if (action->text().remove(QLatin1Char('&')) == wanted)
            return action;
    }
    return nullptr;
}

bool isOffered(const char *name)
{
    const QAction *const action = entry(name);
    return action && action->isEnabled();
}

/// Clicks an entry of the menu that is open.
void choose(const char *name)
{
    QMenu *const menu = openMenu();
    QVERIFY(isOffered(name));
    const QPoint middle = menu->actionGeometry(entry(name)).center();
    QTest::mouseMove(menu, middle);
    QTest::mouseClick(menu, Qt::LeftButton, Qt::NoModifier, middle);
}

void askForMenu(QWidget *widget, QContextMenuEvent::Reason reason = QContextMenuEvent::Mouse)
{
    const QPoint middle = widget->rect().center();
    QContextMenuEvent event(reason, middle, widget->mapToGlobal(middle));
    QApplication::sendEvent(widget, &event);
}

QVariant transform(double x)
{
    DoubleMatrix3x3 matrix;
    matrix(2, 0) = x / 10;
    return QVariant::fromValue(matrix);
}

QVariant format(const char *name, int rate)
{
    ImageFormatDesc description;
    description.format = text(name);
    description.compressionRate = rate;
    return QVariant::fromValue(description);
}

/// The parts of a transform are angles, which leave traces in its elements.
bool isAbout(const Property &property, const QVariant &left, const QVariant &right)
{
    if (property.type != kPropertyTypeTransform2D)
        return isSameValue(property, left, right);
    const auto a = left.value<DoubleMatrix3x3>();
    const auto b = right.value<DoubleMatrix3x3>();
    return std::equal(a.constData(), a.constData() + 9, b.constData(),
                      [](double one, double other) { return qAbs(one - other) < 1e-6; });
}

} // namespace

class tst_RowMenu : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void rightButtonOnLabelOpensMenu();
    void entriesOfARow();
    void keysOpenMenuOfFieldWithoutOne_data();
    void keysOpenMenuOfFieldWithoutOne();
    void fieldKeepsItsOwnMenu();
    void panelKeepsItsMenuOfTheMouse();
    void menuCanBeOff();

    void setsToDefault();
    void copiesText_data();
    void copiesText();
    void pastesText_data();
    void pastesText();
    void refusesText_data();
    void refusesText();
    void pasteIsAnEditInTheRange();
    void pasteReachesFocusedField();
    void nothingIsPastedIntoWhatIsNotEdited();
    void picturesKeepTheirPath();
    void copiesName();
    void showsHelp();

    void choiceWithValuesIsPastedByItsText();
    void pictureWithoutPathIsNotCopied();
    void comboBoxLeavesTheMouseToThePanel();

    void groupIsCopiedAsJson();
    void groupIsPastedAsOneStep();
    void groupRefusesWhatDoesNotFit();
    void groupIsSetToDefaultAsOneStep();
    void groupTakesPagesOfItsTabs();

    void objectsAreChangedEachByItsOwnValue_data();
    void objectsAreChangedEachByItsOwnValue();
    void objectWithoutNumberIsTold_data();
    void objectWithoutNumberIsTold();
    void operandIsCheckedWhileTyped();
    void mixedRowIsNotCopied();
    void pasteGoesToAllObjects();
    void waitingEditPassesBeforeDefaults();
    void noRelativeEditWithoutSelection();

    void hostAddsActions();
    void somethingIsDeleted_data();
    void somethingIsDeleted();
    void menuClosesWithThePanel();

private:
    void askFor(const char *name) const;
    void makeSelection(const std::function<void(PropertyList &)> &makeRows);
    QVariant valueOf(int object, const char *name);

    std::unique_ptr<ViewBench> m_bench;
    std::unique_ptr<PropertyList> m_rows;
    std::vector<std::unique_ptr<PropertyStore>> m_objects;
    std::unique_ptr<SelectionDelegate> m_selection;
};

void tst_RowMenu::init()
{
    m_bench = std::make_unique<ViewBench>();
    m_rows = std::make_unique<PropertyList>();
    setClipboard(QString());
}

void tst_RowMenu::cleanup()
{
    if (QMenu *const menu = openMenu())
        menu->close();
    m_bench.reset();
    m_selection.reset();
    m_objects.clear();
    m_rows.reset();
}

/// On the label, or on the field of a row without one.
void tst_RowMenu::askFor(const char *name) const
{
    QWidget *const label = m_bench->label(name);
    askForMenu(label ? label : m_bench->field(name));
}

/// Two objects of the same rows, in the view.
void tst_RowMenu::makeSelection(const std::function<void(PropertyList &)> &makeRows)
{
    makeRows(*m_rows);
    QVector<SelectionMember> members;
    for (int i = 0; i < 2; ++i) {
        m_objects.push_back(std::make_unique<PropertyStore>());
        m_objects.back()->reset(*m_rows);
        members.append({*m_rows, m_objects.back().get()});
    }
    m_selection = std::make_unique<SelectionDelegate>(&m_bench->stack);
    m_selection->setMembers(members);
    m_bench->view->setProperties(m_selection->properties(), m_selection.get());
    m_selection->attach(m_bench->view->panel());
    m_bench->show();
}

QVariant tst_RowMenu::valueOf(int object, const char *name)
{
    return m_objects.at(std::size_t(object))->value(ViewBench::propertyIn(*m_rows, text(name)));
}

void tst_RowMenu::rightButtonOnLabelOpensMenu()
{
    m_bench->list.number(text("level"), text("Level")).range(0, 9).defaultValue(4);
    m_bench->show();
    QLabel *const label = m_bench->label("level");
    const QPoint place = label->mapTo(m_bench->view.get(), label->rect().center());

    QTest::mouseClick(m_bench->view->windowHandle(), Qt::RightButton, Qt::NoModifier, place);

    QTRY_VERIFY(openMenu());
    QCOMPARE(openMenu()->pos(), m_bench->view->mapToGlobal(place));
}

void tst_RowMenu::entriesOfARow()
{
    m_bench->list.number(text("level"), text("Level")).range(0, 9).defaultValue(4);
    m_bench->show();

    askForMenu(m_bench->label("level"));

    QStringList names;
    for (const QAction *action : openMenu()->actions()) {
        if (!action->isSeparator())
            names.append(action->text().remove(QLatin1Char('&')));
    }
    QCOMPARE(names, QStringList({text("Set to Default"), text("Copy"), text("Paste"),
                                 text("Copy Name"), text("Help")}));
    QVERIFY(!isOffered("Set to Default"));
    QVERIFY(isOffered("Copy"));
    QVERIFY(!isOffered("Paste"));
    QVERIFY(!isOffered("Help"));
}

void tst_RowMenu::keysOpenMenuOfFieldWithoutOne_data()
{
    QTest::addColumn<QString>("row");
    QTest::newRow("check box") << text("on");
    QTest::newRow("slider") << text("level");
    QTest::newRow("combo box") << text("mode");
    QTest::newRow("group") << text("Group");
    QTest::newRow("button on a page") << text("paged");
}

void tst_RowMenu::keysOpenMenuOfFieldWithoutOne()
{
    QFETCH(QString, row);
    m_bench->list.boolean(text("on"), text("On"));
    m_bench->list.number(text("level"), text("Level")).range(0, 9);
    m_bench->list.choice(text("mode"), text("Mode")).choices({text("A"), text("B")});
    m_bench->list.group(text("Group"), [] {});
    m_bench->list.tabs([this] {
        m_bench->list.tab(text("Page"),
                          [this] { m_bench->list.boolean(text("paged"), text("Paged")); });
    });
    m_bench->show();
    QSignalSpy menus(m_bench->view.get(), &PropertyPanelView::rowMenuAboutToShow);
    QWidget *const field = m_bench->field(qPrintable(row));
    QWidget *const slider = m_bench->control<QSlider>(qPrintable(row));
    QWidget *const control = slider ? slider : field;
    control->setFocus();

    askForMenu(control, QContextMenuEvent::Keyboard);

    QVERIFY(openMenu());
    QCOMPARE(menus.size(), 1);
    auto *const property = menus.first().at(1).value<Property *>();
    QCOMPARE(property->name.isEmpty() ? property->label : property->name, row);
}

void tst_RowMenu::fieldKeepsItsOwnMenu()
{
    m_bench->list.string(text("name"), text("Name"));
    m_bench->show();
    QSignalSpy menus(m_bench->view.get(), &PropertyPanelView::rowMenuAboutToShow);
    auto *const line = m_bench->control<QLineEdit>("name");
    line->setFocus();

    askForMenu(line, QContextMenuEvent::Keyboard);

    QVERIFY(openMenu()); // to cut, copy and paste in the text
    QVERIFY(menus.isEmpty());
}

void tst_RowMenu::panelKeepsItsMenuOfTheMouse()
{
    m_bench->list.boolean(text("on"), text("On")).defaultValue(true);
    m_bench->show();
    QSignalSpy menus(m_bench->view.get(), &PropertyPanelView::rowMenuAboutToShow);
    QStringList entries;
    QTimer::singleShot(0, this, [&entries] {
        for (const QAction *action : openMenu()->actions())
            entries.append(action->text());
        openMenu()->close();
    });

    QWidget *const panel = m_bench->view->panel();
    const QPoint place = m_bench->field("on")->geometry().center();
    QContextMenuEvent event(QContextMenuEvent::Mouse, place, panel->mapToGlobal(place));
    QApplication::sendEvent(panel, &event);

    QCOMPARE(entries, QStringList{text("Set to Default")});
    QVERIFY(menus.isEmpty());
}

void tst_RowMenu::menuCanBeOff()
{
    QVERIFY(m_bench->view->isRowMenuEnabled());
    m_bench->view->setRowMenuEnabled(false);
    m_bench->list.boolean(text("on"), text("On"));
    m_bench->show();

    askForMenu(m_bench->label("on"));
    QVERIFY(!openMenu());

    m_bench->view->setRowMenuEnabled(true);
    askForMenu(m_bench->label("on"));
    QVERIFY(openMenu());
}

void tst_RowMenu::setsToDefault()
{
    m_bench->list.color(text("tint"), text("Tint")).defaultValue(QColor(Qt::red));
    m_bench->show();
    m_bench->hold("tint", QColor(Qt::blue));
    m_bench->view->updateUI();
    askForMenu(m_bench->label("tint"));

    choose("Set to Default");

    QCOMPARE(m_bench->value("tint").value<QColor>(), QColor(Qt::red));
    QCOMPARE(m_bench->stack.count(), 1);
    QVERIFY(!m_bench->isMarked("tint"));
    m_bench->stack.undo();
    QCOMPARE(m_bench->value("tint").value<QColor>(), QColor(Qt::blue));
}

void tst_RowMenu::copiesText_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("copied");
    const auto row = [](const QString &type, const QVariant &value, const char *copied) {
        QTest::newRow(qPrintable(type)) << type << value << text(copied);
    };
    row(kPropertyTypeBoolean, true, "true");
    row(kPropertyTypeInteger, -4, "-4");
    row(kPropertyTypeFloat, 0.123456789, "0.123456789");
    row(kPropertyTypePercent, 0.5, "0.5");
    row(kPropertyTypeString, text(" a b "), " a b ");
    row(kPropertyTypeStaticText, text("a"), "a");
    row(kPropertyTypeEnumeration, 1, "1");
    row(kPropertyTypeVec2, QVector2D(1, 2.5F), "1 2.5");
    row(kPropertyTypeVec3, QVector3D(0.1F, 1234567, -3), "0.1 1234567 -3");
    row(kPropertyTypeVec4, QVector4D(1, 2, 3, 4), "1 2 3 4");
    row(kPropertyTypeColor, QColor(255, 0, 0, 0), "1 0 0 0");
    row(kPropertyTypeSize, QSize(640, 480), "640 480");
    row(kPropertyTypeTransform2D, transform(2), "1 0 0 0 1 0 0.2 0 1");
    row(kPropertyTypeImageFormat, format("jpeg", 80), R"({"compressionRate":80,"format":"jpeg"})");
}

void tst_RowMenu::copiesText()
{
    QFETCH(QString, type);
    QFETCH(QVariant, value);
    QFETCH(QString, copied);
    m_bench->list.add(type, text("row"), text("Row"))
        .hint(kPropertyHintDisplayValues, QVariantList{text("one"), text("two")});
    RecordingDelegate values;
    values.values[text("row")] = value;
    m_bench->view->setProperties(m_bench->list, &values);
    m_bench->show();
    askFor("row");

    choose("Copy");

    QCOMPARE(clipboard(), copied);
    QVERIFY(values.changes.isEmpty());
}

void tst_RowMenu::pastesText_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("pasted");
    QTest::addColumn<QVariant>("value");
    const auto row = [](const char *name, const QString &type, const char *pasted,
                        const QVariant &value) {
        QTest::newRow(name) << type << text(pasted) << value;
    };
    row("truth", kPropertyTypeBoolean, "true", true);
    row("whole number", kPropertyTypeInteger, " 7 ", 7);
    row("number", kPropertyTypeFloat, "2.5", 2.5);
    row("number with exponent", kPropertyTypeFloat, "2.5e0", 2.5);
    row("text with spaces", kPropertyTypeString, " a b ", text(" a b "));
    row("text of many lines", kPropertyTypeText, "a\nb", text("a\nb"));
    row("index of a choice", kPropertyTypeEnumeration, "1", 1);
    row("text of a choice", kPropertyTypeEnumeration, "two", 1);
    row("vector as its text", kPropertyTypeVec3, "1 2 3", QVector3D(1, 2, 3));
    row("vector as JSON", kPropertyTypeVec3, "[1, 2, 3]", QVector3D(1, 2, 3));
    row("vector with commas", kPropertyTypeVec3, "1, 2, 3", QVector3D(1, 2, 3));
    row("one number for a vector", kPropertyTypeVec3, "4", QVector3D(4, 4, 4));
    row("colour by name", kPropertyTypeColor, "red", QColor(Qt::red));
    row("colour by digits", kPropertyTypeColor, "#00ff00", QColor(Qt::green));
    row("colour as fractions", kPropertyTypeColor, "1 0 0 1", QColor(Qt::red));
    row("size", kPropertyTypeSize, "640 480", QSize(640, 480));
    row("size as JSON", kPropertyTypeSize, "[640, 480]", QSize(640, 480));
    row("transform", kPropertyTypeTransform2D, "1 0 0 0 1 0 0.2 0 1", transform(2));
    row("image format", kPropertyTypeImageFormat, R"({"format":"jpeg","compressionRate":80})",
        format("jpeg", 80));
}

void tst_RowMenu::pastesText()
{
    QFETCH(QString, type);
    QFETCH(QString, pasted);
    QFETCH(QVariant, value);
    const bool isVector = type == kPropertyTypeVec3;
    const QVariant low = isVector ? QVariant(QVector3D(-10, -10, -10)) : QVariant(-10);
    const QVariant high = isVector ? QVariant(QVector3D(10, 10, 10)) : QVariant(10);
    Property &property =
        m_bench->list.add(type, text("row"), text("Row"))
            .range(low, high)
            .hint(kPropertyHintDisplayValues, QVariantList{text("one"), text("two")})
            .property();
    m_bench->show();
    setClipboard(pasted);
    askFor("row");

    choose("Paste");

    QVERIFY(isAbout(property, m_bench->value("row"), value));
    QVERIFY(isAbout(property, m_bench->editor("row")->value(), value));
    QCOMPARE(m_bench->stack.count(), 1);
    m_bench->stack.undo();
    QVERIFY(!isAbout(property, m_bench->value("row"), value));
}

void tst_RowMenu::refusesText_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("pasted");
    QTest::newRow("nothing") << kPropertyTypeFloat << QString();
    QTest::newRow("a word for a number") << kPropertyTypeFloat << text("many");
    QTest::newRow("a fraction for a whole number") << kPropertyTypeInteger << text("1.5");
    QTest::newRow("no number") << kPropertyTypeFloat << text("nan");
    QTest::newRow("two parts for three") << kPropertyTypeVec3 << text("1 2");
    QTest::newRow("no colour") << kPropertyTypeColor << text("reddish");
    QTest::newRow("no choice") << kPropertyTypeEnumeration << text("three");
    QTest::newRow("choice out of range") << kPropertyTypeEnumeration << text("2");
    QTest::newRow("number for truth") << kPropertyTypeBoolean << text("7");
    QTest::newRow("broken JSON") << kPropertyTypeSize << text("[640, 480");
    QTest::newRow("eight of nine") << kPropertyTypeTransform2D << text("1 0 0 0 1 0 0.2 0");
    QTest::newRow("text for a button") << kPropertyTypeAction << text("1");
}

void tst_RowMenu::refusesText()
{
    QFETCH(QString, type);
    QFETCH(QString, pasted);
    m_bench->list.add(type, text("row"), text("Row"))
        .hint(kPropertyHintDisplayValues, QVariantList{text("one"), text("two")});
    m_bench->show();
    setClipboard(pasted);

    askFor("row");

    QVERIFY(entry("Paste"));
    QVERIFY(!isOffered("Paste"));
}

void tst_RowMenu::pasteIsAnEditInTheRange()
{
    m_bench->list.number(text("level"), text("Level")).range(0, 9);
    RecordingDelegate values;
    m_bench->view->setProperties(m_bench->list, &values);
    m_bench->show();
    setClipboard(text("12"));
    askForMenu(m_bench->label("level"));

    choose("Paste");

    QCOMPARE(values.log(), QStringList{text("level=9/0")});
}

void tst_RowMenu::pasteReachesFocusedField()
{
    m_bench->list.number(text("level"), text("Level")).range(0, 9);
    m_bench->show();
    auto *const line = m_bench->control<QLineEdit>("level");
    line->setFocus();
    line->selectAll();
    QTest::keyClicks(line, text("3"));
    setClipboard(text("7"));
    askForMenu(m_bench->label("level"));

    choose("Paste");

    QCOMPARE(m_bench->value("level").toDouble(), 7.0);
    QCOMPARE(m_bench->control<QDoubleSpinBox>("level")->value(), 7.0);
    QCOMPARE(m_bench->stack.count(), 2);
    m_bench->stack.undo();
    QCOMPARE(m_bench->value("level").toDouble(), 3.0);
}

void tst_RowMenu::nothingIsPastedIntoWhatIsNotEdited()
{
    m_bench->list.staticText(text("told"), text("Told"));
    m_bench->list.number(text("fixed"), text("Fixed"));
    m_bench->list.number(text("ruled"), text("Ruled")).enabledWhen(text("fixed > 3"));
    m_bench->show();
    m_bench->field("fixed")->setEnabled(false);
    setClipboard(text("2"));

    for (const char *name : {"told", "fixed", "ruled"}) {
        askForMenu(m_bench->label(name));
        QVERIFY2(!isOffered("Paste"), name);
        openMenu()->close();
    }
}

void tst_RowMenu::picturesKeepTheirPath()
{
    QTemporaryDir folder;
    const QString path = folder.filePath(text("dot.png"));
    QImage picture(4, 4, QImage::Format_RGB32);
    picture.fill(Qt::red);
    QVERIFY(picture.save(path));
    m_bench->list.image(text("poster"), text("Poster"));
    m_bench->show();
    askFor("poster");
    QVERIFY(!isOffered("Copy") || openMenu());
    openMenu()->close();
    setClipboard(path);
    askFor("poster");

    choose("Paste");

    QCOMPARE(m_bench->stack.count(), 1);
    QVERIFY(!m_bench->control<QLabel>("poster")->pixmap().isNull());
    setClipboard(QString());
    askFor("poster");
    choose("Copy");
    QCOMPARE(clipboard(), path);
}

/// The second text has no value.
void tst_RowMenu::choiceWithValuesIsPastedByItsText()
{
    m_bench->list.add(kPropertyTypeEnumeration, text("row"), text("Row"))
        .hint(kPropertyHintDisplayValues, QVariantList{text("one"), text("two")})
        .hint(kPropertyHintValues, QVariantList{text("1st")});
    m_bench->show();
    setClipboard(text("two"));
    askFor("row");
    QVERIFY(!isOffered("Paste"));
    openMenu()->close();
    setClipboard(text("one"));
    askFor("row");

    choose("Paste");

    QCOMPARE(m_bench->value("row"), QVariant(text("1st")));
}

void tst_RowMenu::pictureWithoutPathIsNotCopied()
{
    QImage picture(4, 4, QImage::Format_RGB32);
    picture.fill(Qt::red);
    m_bench->list.image(text("poster"), text("Poster"));
    m_bench->show();
    m_bench->hold("poster", picture);

    askFor("poster");

    QVERIFY(entry("Copy"));
    QVERIFY(!isOffered("Copy"));
}

/// Whose menu is that of the panel.
void tst_RowMenu::comboBoxLeavesTheMouseToThePanel()
{
    m_bench->list.choice(text("mode"), text("Mode")).choices({text("A"), text("B")});
    m_bench->show();
    QSignalSpy menus(m_bench->view.get(), &PropertyPanelView::rowMenuAboutToShow);

    askForMenu(m_bench->field("mode"));

    QVERIFY(!openMenu());
    QVERIFY(menus.isEmpty());
}

void tst_RowMenu::copiesName()
{
    m_bench->list.number(text("lens.level"), text("Level"));
    m_bench->list.group(text("Group"), [] {});
    m_bench->show();
    askForMenu(m_bench->label("lens.level"));

    choose("Copy Name");

    QCOMPARE(clipboard(), text("lens.level"));
    askForMenu(m_bench->field("Group"));
    QVERIFY(!isOffered("Copy Name")); // it has none
}

void tst_RowMenu::showsHelp()
{
    m_bench->list.number(text("level"), text("Level")).help(text("How <loud> it is."));
    m_bench->show();
    askForMenu(m_bench->label("level"));

    choose("Help");

    const auto isHelp = [] {
        const auto widgets = QApplication::topLevelWidgets();
        return std::any_of(widgets.cbegin(), widgets.cend(), [](const QWidget *widget) {
            return widget->isVisible() && widget->inherits("QWhatsThat");
        });
    };
    QTRY_VERIFY(isHelp());
    QWhatsThis::hideText();
}

void tst_RowMenu::groupIsCopiedAsJson()
{
    m_bench->list.group(text("Group"), [this] {
        m_bench->list.number(text("level"), text("Level")).range(0, 9).defaultValue(4);
        m_bench->list.group(text("Inner"), [this] {
            m_bench->list.vec2(text("offset"), text("Offset")).defaultValue(QVector2D(1, 2));
        });
        m_bench->list.action(text("run"), text("Run"));
    });
    m_bench->list.boolean(text("outside"), text("Outside"));
    m_bench->show();
    askForMenu(m_bench->field("Group"));

    choose("Copy");

    const QJsonObject expected{{text("level"), 4.0}, {text("offset"), QJsonArray{1.0, 2.0}}};
    QCOMPARE(QJsonDocument::fromJson(clipboard().toUtf8()).object(), expected);
}

void tst_RowMenu::groupIsPastedAsOneStep()
{
    m_bench->list.group(text("Group"), [this] {
        m_bench->list.number(text("level"), text("Level")).range(0, 9).defaultValue(4);
        m_bench->list.string(text("name"), text("Name")).defaultValue(text("a"));
        m_bench->list.boolean(text("kept"), text("Kept")).defaultValue(true);
    });
    m_bench->show();
    setClipboard(text(R"({"level": 7, "name": "b", "unknown": 1})"));
    askForMenu(m_bench->field("Group"));

    choose("Paste");

    QCOMPARE(m_bench->value("level").toDouble(), 7.0);
    QCOMPARE(m_bench->value("name").toString(), text("b"));
    QCOMPARE(m_bench->stack.count(), 1);
    QCOMPARE(m_bench->stack.undoText(), text("Paste"));
    m_bench->stack.undo();
    QCOMPARE(m_bench->value("level").toDouble(), 4.0);
    QCOMPARE(m_bench->value("name").toString(), text("a"));
    QCOMPARE(m_bench->control<QLineEdit>("name")->text(), text("a"));
}

void tst_RowMenu::groupRefusesWhatDoesNotFit()
{
    m_bench->list.group(text("Group"), [this] {
        m_bench->list.number(text("level"), text("Level")).range(0, 9).defaultValue(4);
        m_bench->list.string(text("name"), text("Name"));
    });
    m_bench->show();

    for (const char *json : {"", "[1]", R"({"other": 1})", R"({"name": "b", "level": "loud"})"}) {
        setClipboard(text(json));
        askForMenu(m_bench->field("Group"));
        QVERIFY2(!isOffered("Paste"), json);
        openMenu()->close();
    }
}

void tst_RowMenu::groupIsSetToDefaultAsOneStep()
{
    m_bench->list.group(text("Group"), [this] {
        m_bench->list.number(text("level"), text("Level")).range(0, 9).defaultValue(4);
        m_bench->list.string(text("name"), text("Name")).defaultValue(text("a"));
    });
    m_bench->show();
    askForMenu(m_bench->field("Group"));
    QVERIFY(!isOffered("Set to Default"));
    openMenu()->close();
    m_bench->hold("level", 5.0);
    m_bench->hold("name", text("b"));
    m_bench->view->updateUI();
    askForMenu(m_bench->field("Group"));

    choose("Set to Default");

    QCOMPARE(m_bench->stack.count(), 1);
    QVERIFY(!m_bench->isMarked("level"));
    QVERIFY(!m_bench->isMarked("name"));
    m_bench->stack.undo();
    QCOMPARE(m_bench->value("level").toDouble(), 5.0);
    QVERIFY(m_bench->isMarked("name"));
}

void tst_RowMenu::groupTakesPagesOfItsTabs()
{
    m_bench->list.group(text("Group"), [this] {
        m_bench->list.tabs([this] {
            m_bench->list.tab(text("Page"), [this] {
                m_bench->list.integer(text("plain"), text("Plain")).range(0, 9);
                m_bench->list.group(text("Inner"), [this] {
                    m_bench->list.integer(text("inner"), text("In")).range(0, 9);
                });
            });
        });
    });
    m_bench->show();
    askForMenu(m_bench->field("Group"));

    choose("Copy");

    const QJsonObject expected{{text("plain"), 0}, {text("inner"), 0}};
    QCOMPARE(QJsonDocument::fromJson(clipboard().toUtf8()).object(), expected);
}

void tst_RowMenu::objectsAreChangedEachByItsOwnValue_data()
{
    QTest::addColumn<QString>("entryName");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QVector<double>>("results");
    QTest::newRow("sum") << text("Add to Each...") << text("2") << QVector<double>{3, 6};
    QTest::newRow("difference") << text("Add to Each...") << text("-1") << QVector<double>{0, 3};
    QTest::newRow("product") << text("Multiply Each...") << text("2") << QVector<double>{2, 8};
}

void tst_RowMenu::objectsAreChangedEachByItsOwnValue()
{
    QFETCH(QString, entryName);
    QFETCH(QString, typed);
    QFETCH(QVector<double>, results);
    makeSelection([](PropertyList &rows) {
        rows.number(text("level"), text("Level")).range(0, 9).defaultValue(1);
    });
    m_objects.at(1)->setValue(m_rows->properties().first(), 4.0, PropertyStore::NewChange);
    m_selection->refresh();
    askForMenu(m_bench->label("level"));
    choose(qPrintable(entryName));
    auto *const dialog = m_bench->view->findChild<QDialog *>();
    QVERIFY(dialog);

    QTest::keyClicks(dialog->findChild<QLineEdit *>(), typed);
    QTest::keyClick(dialog, Qt::Key_Return);

    QTRY_COMPARE(m_bench->stack.count(), 1);
    QCOMPARE(valueOf(0, "level").toDouble(), results.at(0));
    QCOMPARE(valueOf(1, "level").toDouble(), results.at(1));
    m_bench->stack.undo();
    QCOMPARE(valueOf(1, "level").toDouble(), 4.0);
}

void tst_RowMenu::objectWithoutNumberIsTold_data()
{
    QTest::addColumn<bool>("inAnotherWindow");
    QTest::newRow("at once") << false;
    QTest::newRow("when the user comes back from another window") << true;
}

/// Nothing is changed then, and a tool tip says why.
void tst_RowMenu::objectWithoutNumberIsTold()
{
    QFETCH(bool, inAnotherWindow);
    makeSelection([](PropertyList &rows) {
        rows.number(text("level"), text("Level")).range(0, 9).defaultValue(1);
    });
    m_objects.at(1)->setValue(m_rows->properties().first(), text("loud"), PropertyStore::NewChange);
    m_selection->refresh();
    askForMenu(m_bench->label("level"));
    choose("Add to Each...");
    auto *const dialog = m_bench->view->findChild<QDialog *>();

    QWidget other;
    QTest::keyClicks(dialog->findChild<QLineEdit *>(), text("2"));
    if (inAnotherWindow) {
        other.show();
        other.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&other));
    }
    QTest::keyClick(dialog, Qt::Key_Return);
    if (inAnotherWindow) {
        settleEvents();
        QVERIFY(!QToolTip::isVisible());
        m_bench->view->activateWindow();
    }

    QTRY_COMPARE(QToolTip::text(), text("the value is not a number"));
    QCOMPARE(valueOf(0, "level").toDouble(), 1.0);
    QCOMPARE(m_bench->stack.count(), 0);
    QToolTip::hideText();
}

void tst_RowMenu::operandIsCheckedWhileTyped()
{
    makeSelection([](PropertyList &rows) {
        rows.vec2(text("offset"), text("Offset")).range(QVector2D(-9, -9), QVector2D(9, 9));
        rows.string(text("name"), text("Name"));
    });
    askForMenu(m_bench->label("name"));
    QVERIFY(!entry("Add to Each..."));
    openMenu()->close();
    askForMenu(m_bench->label("offset"));
    choose("Add to Each...");
    auto *const dialog = m_bench->view->findChild<QDialog *>();
    auto *const line = dialog->findChild<QLineEdit *>();
    const auto isAccepted = [dialog] {
        return dialog->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok)->isEnabled();
    };
    QVERIFY(!isAccepted());

    QTest::keyClicks(line, text("1 "));
    QVERIFY(isAccepted());
    QTest::keyClicks(line, text("x"));
    QVERIFY(!isAccepted());
    QTest::keyClick(line, Qt::Key_Backspace);
    QTest::keyClicks(line, text("2"));
    QVERIFY(isAccepted());

    QTest::keyClick(dialog, Qt::Key_Escape);
    QTRY_VERIFY(!m_bench->view->findChild<QDialog *>());
    QCOMPARE(m_bench->stack.count(), 0);
}

void tst_RowMenu::mixedRowIsNotCopied()
{
    makeSelection([](PropertyList &rows) {
        rows.group(text("Group"), [&rows] {
            rows.number(text("level"), text("Level")).range(0, 9).defaultValue(1);
            rows.number(text("same"), text("Same")).range(0, 9).defaultValue(1);
        });
    });
    m_objects.at(1)->setValue(m_rows->properties().at(1), 4.0, PropertyStore::NewChange);
    m_selection->refresh();

    askForMenu(m_bench->label("level"));
    QVERIFY(!isOffered("Copy"));
    openMenu()->close();

    askForMenu(m_bench->field("Group"));
    choose("Copy");
    QCOMPARE(QJsonDocument::fromJson(clipboard().toUtf8()).object().keys(),
             QStringList{text("same")});
}

void tst_RowMenu::pasteGoesToAllObjects()
{
    makeSelection([](PropertyList &rows) {
        rows.vec3(text("offset"), text("Offset")).range(QVector3D(-9, -9, -9), QVector3D(9, 9, 9));
    });
    m_objects.at(0)->setValue(m_rows->properties().first(), QVector3D(5, 6, 7),
                              PropertyStore::NewChange);
    m_selection->refresh();
    setClipboard(text("0 0 0"));
    askForMenu(m_bench->label("offset"));

    choose("Paste");

    QCOMPARE(valueOf(0, "offset").value<QVector3D>(), QVector3D());
    QCOMPARE(valueOf(1, "offset").value<QVector3D>(), QVector3D());
    QVERIFY(!m_selection->isMixed(m_selection->properties().first()));
    QCOMPARE(m_bench->stack.count(), 1);
}

void tst_RowMenu::waitingEditPassesBeforeDefaults()
{
    m_rows->number(text("level"), text("Level")).range(0, 9).defaultValue(1);
    m_objects.push_back(std::make_unique<PropertyStore>());
    m_objects.back()->reset(*m_rows);
    m_selection = std::make_unique<SelectionDelegate>(&m_bench->stack);
    m_selection->setMembers({{*m_rows, m_objects.back().get()}});
    CommitPolicy policy(m_selection.get());
    policy.setDefaultMode(CommitMode::atEndOfRun());
    m_bench->view->setProperties(m_selection->properties(), &policy);
    m_selection->attach(m_bench->view->panel());
    policy.watch(m_bench->view->panel());
    m_bench->show();
    auto *const line = m_bench->control<QLineEdit>("level");
    line->setFocus();
    line->selectAll();
    QTest::keyClicks(line, text("7"));
    QVERIFY(policy.hasPending());
    askForMenu(m_bench->label("level"));

    choose("Set to Default");

    QVERIFY(!policy.hasPending());
    QCOMPARE(valueOf(0, "level").toDouble(), 1.0);
    QCOMPARE(m_bench->control<QDoubleSpinBox>("level")->value(), 1.0);
    m_bench->view.reset();
}

void tst_RowMenu::noRelativeEditWithoutSelection()
{
    m_bench->list.number(text("level"), text("Level")).range(0, 9);
    m_bench->show();

    askForMenu(m_bench->label("level"));

    QVERIFY(openMenu());
    QVERIFY(!entry("Add to Each..."));
}

void tst_RowMenu::hostAddsActions()
{
    m_bench->list.number(text("level"), text("Level")).range(0, 9);
    m_bench->show();
    int calls = 0;
    connect(m_bench->view.get(), &PropertyPanelView::rowMenuAboutToShow, this,
            [&calls](QMenu *menu, Property *property) {
                menu->addAction(text("Animate ") + property->name, menu, [&calls] { ++calls; });
            });
    askForMenu(m_bench->label("level"));

    choose("Animate level");

    QCOMPARE(calls, 1);
    QVERIFY(!openMenu());
}

void tst_RowMenu::somethingIsDeleted_data()
{
    QTest::addColumn<QString>("when");
    QTest::addColumn<bool>("isView");
    for (const char *when : {"asked for a value", "about to show", "edited"}) {
        QTest::addRow("the view when %s", when) << text(when) << true;
        QTest::addRow("the panel when %s", when) << text(when) << false;
    }
}

void tst_RowMenu::somethingIsDeleted()
{
    QFETCH(QString, when);
    QFETCH(bool, isView);
    m_bench->list.group(text("Group"), [this] {
        m_bench->list.number(text("level"), text("Level")).range(0, 9).defaultValue(4);
        m_bench->list.number(text("other"), text("Other")).range(0, 9).defaultValue(4);
    });
    RecordingDelegate values;
    m_bench->view->setProperties(m_bench->list, &values);
    m_bench->show();
    const QPointer<QWidget> panel = m_bench->view->panel();
    const auto deleteIt = [&] {
        if (isView)
            m_bench->view.reset();
        else
            delete panel;
    };
    if (when == text("asked for a value"))
        values.onValue = deleteIt;
    else if (when == text("edited"))
        values.onSetValue = deleteIt;
    else
        connect(m_bench->view.get(), &PropertyPanelView::rowMenuAboutToShow, this, deleteIt);

    askForMenu(m_bench->field("Group"));
    if (when == text("edited"))
        choose("Set to Default");

    QVERIFY(!panel);
    QVERIFY(!openMenu());
    settleEvents();
}

void tst_RowMenu::menuClosesWithThePanel()
{
    m_bench->list.number(text("level"), text("Level")).range(0, 9);
    m_bench->show();
    askForMenu(m_bench->label("level"));
    const QPointer<QMenu> menu = openMenu();
    QVERIFY(menu);

    m_bench->view->setProperties(m_bench->list, &m_bench->undo);

    QVERIFY(!openMenu());
    QTRY_VERIFY(!menu);
}

QTEST_MAIN(tst_RowMenu)
#include "tst_RowMenu.moc"
