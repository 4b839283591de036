#include "support/EveryTypeRows.h"
#include "support/ViewBench.h"

#include <core/ColorWheel.h>
#include <host/HostHints.h>
#include <host/PanelStyle.h>
#include <host/SelectionDelegate.h>
#include <property/ValueCodecs.h>
#include <property/editors/ImageFormatEditor.h>

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QImage>
#include <QLineEdit>
#include <QListWidget>
#include <QPaintEvent>
#include <QRadioButton>
#include <QScreen>
#include <QScrollBar>
#include <QSlider>
#include <QSpinBox>
#include <QVector3D>

#include <functional>
#include <memory>
#include <utility>
#include <vector>

using namespace Tessark::PropertyHost;
using namespace Tessark::PropertyUI;
using TestSupport::EveryTypeRows;
using TestSupport::settleEvents;
using TestSupport::ViewBench;

namespace {

QString text(const char *letters)
{
    return QString::fromUtf8(letters);
}

QImage pictureOf(QWidget *widget)
{
    return widget->grab().toImage().convertToFormat(QImage::Format_RGB32);
}

/// How many pixels of the two differ, or all where they are of another size.
int difference(const QImage &left, const QImage &right)
{
    if (left.size() != right.size())
        return left.width() * left.height();
    int count = 0;
    for (int y = 0; y < left.height(); ++y) {
        for (int x = 0; x < left.width(); ++x)
            count += left.pixel(x, y) != right.pixel(x, y) ? 1 : 0;
    }
    return count;
}

/// Tells of each event of a type that the object gets.
class EventRecord final : public QObject
{
public:
    EventRecord(QObject *object, QEvent::Type type, std::function<void(QEvent *)> note)
        : m_type(type)
        , m_note(std::move(note))
    {
        object->installEventFilter(this);
    }

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == m_type)
            m_note(event);
        return false;
    }

private:
    QEvent::Type m_type;
    std::function<void(QEvent *)> m_note;
};

QVariant texture(const char *name)
{
    TextureChoice choice;
    choice.name = text(name);
    return QVariant::fromValue(choice);
}

QVariant format(const char *name, int rate)
{
    ImageFormatDesc description;
    description.format = text(name);
    description.compressionRate = rate;
    return QVariant::fromValue(description);
}

QVariant transform(double x, double y)
{
    DoubleMatrix3x3 matrix;
    matrix(2, 0) = x / 10;
    matrix(2, 1) = y / 10;
    return QVariant::fromValue(matrix);
}

} // namespace

/// Whether the panel's marks of a selection are attached, or it just gives the values.
enum class Marks {
    Attached,
    None,
};

Q_DECLARE_METATYPE(Marks)
Q_DECLARE_METATYPE(std::function<void(PropertyList &)>)

class tst_MixedRows : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void pictureTellsNoObjectsValue_data();
    void pictureTellsNoObjectsValue();
    void controlsLookMixed_data();
    void controlsLookMixed();
    void commonPartsLookAsEver();
    void dashIsInTheField();
    void suffixStays();
    void sliderHasNoHandle_data();
    void sliderHasNoHandle();
    void numbersAreOnTheirSideFromRightToLeft();
    void grooveIsWholeInThePanelStyle();
    void listSaysItInItsCorner();
    void listIsWholeWhenItScrolls();
    void chosenButtonOfEveryoneIsShown();
    void cursorIsSeenInBlankField();
    void typingShowsTheNumber();
    void draggingShowsTheSlider();
    void rowsLookAsEverWhenTheyAgree();
    void mixedAgainAfterUndo();
    void newRowsOfASelection();
    void rowsOfTheListBeforeAreNotMixed();
    void descriptionTells();
    void helpFollowsWhileMixed();
    void widgetOfAHostIsHatched();
    void selectionGoesFirst();
    void viewGoesInMixedChanged();

private:
    void make(const std::function<void(PropertyList &)> &makeRows, Marks marks = Marks::Attached);
    void setValues(const char *name, const QVariant &first, const QVariant &second);
    QImage picture(const char *name) const { return pictureOf(m_bench->field(name)); }

    std::unique_ptr<ViewBench> m_bench;
    std::unique_ptr<PropertyList> m_rows;
    std::vector<std::unique_ptr<PropertyStore>> m_objects;
    std::unique_ptr<SelectionDelegate> m_selection;
};

void tst_MixedRows::init()
{
    QCursor::setPos(QGuiApplication::primaryScreen()->geometry().bottomRight()); // over no row
    m_bench = std::make_unique<ViewBench>();
    m_rows = std::make_unique<PropertyList>();
}

void tst_MixedRows::cleanup()
{
    m_bench.reset();
    m_selection.reset();
    m_objects.clear();
    m_rows.reset();
}

/// Two objects of the same rows, in the view.
void tst_MixedRows::make(const std::function<void(PropertyList &)> &makeRows, Marks marks)
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
    EveryTypeRows::setTextures(*m_bench->view->panel());
    if (marks == Marks::Attached)
        m_selection->attach(m_bench->view->panel());
    m_bench->show();
    m_bench->view->panel()->setFocus();
}

/// By the host, and shown.
void tst_MixedRows::setValues(const char *name, const QVariant &first, const QVariant &second)
{
    Property *const property = ViewBench::propertyIn(*m_rows, text(name));
    m_objects.at(0)->setValue(property, first, PropertyStore::NewChange);
    m_objects.at(1)->setValue(property, second, PropertyStore::NewChange);
    m_selection->refresh();
    m_bench->view->updateUI();
    settleEvents();
}

void tst_MixedRows::pictureTellsNoObjectsValue_data()
{
    QTest::addColumn<std::function<void(PropertyList &)>>("makeRows");
    QTest::addColumn<QVariantList>("values"); // first and second, then others
    QTest::addColumn<Marks>("marks");
    const auto row = [](const char *name, const std::function<void(PropertyList &)> &makeRows,
                        const QVariantList &values) {
        QTest::newRow(name) << makeRows << values << Marks::Attached;
        QTest::addRow("%s without marks", name) << makeRows << values << Marks::None;
    };
    const QString r = text("row");
    const QString label = text("Row");
    row("truth", [=](PropertyList &rows) { rows.boolean(r, label); }, {true, false, false, true});
    row("whole number", [=](PropertyList &rows) { rows.integer(r, label).range(0, 9); },
        {3, 7, 5, 2});
    row("number", [=](PropertyList &rows) { rows.number(r, label).range(0, 9).suffix(text(" m")); },
        {3.5, 7.0, 5.0, 2.0});
    row("percent", [=](PropertyList &rows) { rows.percent(r, label).range(0, 1); },
        {0.3, 0.5, 0.7, 0.8});
    row("text", [=](PropertyList &rows) { rows.string(r, label); },
        {text("a"), text("b"), text("c"), text("d")});
    row("choice",
        [=](PropertyList &rows) {
            rows.choice(r, label).choices({text("A"), text("B"), text("C")});
        },
        {0, 1, 1, 2});
    row("radio buttons",
        [=](PropertyList &rows) {
            rows.choice(r, label).choices({text("A"), text("B"), text("C")}).radioButtons();
        },
        {0, 1, 1, 2});
    row("texture", [=](PropertyList &rows) { rows.texture(r, label); },
        {texture("Sand"), texture("Wood, polished"), texture("Wood, polished"), texture("Sand")});
    row("format of a picture", [=](PropertyList &rows) { rows.imageFormat(r, label); },
        {format("jpeg", 10), format("png", 80), format("tiff", 30), format("bmp", 5)});
    row("vector",
        [=](PropertyList &rows) {
            rows.vec3(r, label).range(QVector3D(-9, -9, -9), QVector3D(9, 9, 9)).showSliders();
        },
        {QVector3D(1, 2, 3), QVector3D(4, 5, 6), QVector3D(-1, -2, -3), QVector3D(7, 8, 9)});
    row("color", [=](PropertyList &rows) { rows.color(r, label); },
        {QColor(Qt::red), QColor(Qt::blue), QColor(Qt::green), QColor(Qt::white)});
    row("size", [=](PropertyList &rows) { rows.size(r, label); },
        {QSize(10, 20), QSize(30, 40), QSize(50, 60), QSize(70, 80)});
    row("transform", [=](PropertyList &rows) { rows.transform2D(r, label).noRotation().noScale(); },
        {transform(1, 2), transform(3, 4), transform(5, 6), transform(7, 8)});
}

/// Two pairs of values look the same where nothing of them is shown.
void tst_MixedRows::pictureTellsNoObjectsValue()
{
    QFETCH(std::function<void(PropertyList &)>, makeRows);
    QFETCH(QVariantList, values);
    QFETCH(Marks, marks);
    make(makeRows, marks);
    setValues("row", values.at(0), values.at(1));
    const QImage first = picture("row");

    setValues("row", values.at(2), values.at(3));

    QCOMPARE(difference(picture("row"), first), 0);
}

void tst_MixedRows::controlsLookMixed_data()
{
    pictureTellsNoObjectsValue_data();
}

/// No value that all share looks so, not even the one that the controls hold.
void tst_MixedRows::controlsLookMixed()
{
    QFETCH(std::function<void(PropertyList &)>, makeRows);
    QFETCH(QVariantList, values);
    QFETCH(Marks, marks);
    make(makeRows, marks);
    const QImage atFirst = picture("row");
    setValues("row", values.at(0), values.at(1));
    const QImage mixed = picture("row");
    QVERIFY(difference(mixed, atFirst) > 5);

    for (const QVariant &value : std::as_const(values)) {
        setValues("row", value, value);
        QVERIFY(difference(mixed, picture("row")) > 5);
    }
}

void tst_MixedRows::commonPartsLookAsEver()
{
    make([](PropertyList &rows) {
        rows.vec3(text("row"), text("Row"))
            .range(QVector3D(-9, -9, -9), QVector3D(9, 9, 9))
            .showSliders();
    });
    setValues("row", QVector3D(1, 2, 3), QVector3D(1, 2, 3));
    const auto looks = [this](int part) {
        return QVector<QImage>{pictureOf(m_bench->control<QDoubleSpinBox>("row", part)),
                               pictureOf(m_bench->control<QSlider>("row", part))};
    };
    QVector<QVector<QImage>> before;
    for (int part = 0; part < 3; ++part)
        before.append(looks(part));

    setValues("row", QVector3D(1, 2, 3), QVector3D(1, 5, 3));

    for (int part = 0; part < 3; ++part) {
        for (int i = 0; i < 2; ++i) {
            const int changed = difference(looks(part).at(i), before.at(part).at(i));
            QCOMPARE(changed > 0, part == 1);
        }
    }
}

void tst_MixedRows::dashIsInTheField()
{
    make([](PropertyList &rows) { rows.integer(text("row"), text("Row")).range(0, 9); });
    setValues("row", 3, 4);
    auto *const line = m_bench->control<QLineEdit>("row");

    QImage blank(line->size(), QImage::Format_RGB32);
    blank.fill(line->palette().color(QPalette::Base));

    const int painted = difference(pictureOf(line), blank);
    QVERIFY2(painted > 3 && painted < 200, qPrintable(QString::number(painted)));
    QVERIFY(line->text().isEmpty());
}

void tst_MixedRows::suffixStays()
{
    make([](PropertyList &rows) {
        rows.number(text("row"), text("Row")).range(0, 9).suffix(text(" m"));
        rows.number(text("bare"), text("Bare")).range(0, 9);
    });
    setValues("row", 3.0, 4.0);
    setValues("bare", 3.0, 4.0);
    const auto picture = [this](const char *name) {
        return pictureOf(m_bench->control<QLineEdit>(name)).copy(0, 0, 30, 18);
    };

    QVERIFY(difference(picture("row"), picture("bare")) > 5);
    QCOMPARE(m_bench->control<QLineEdit>("row")->text(), text(" m"));
}

void tst_MixedRows::sliderHasNoHandle_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");

    QTest::newRow("from left to right") << Qt::LeftToRight;
    QTest::newRow("from right to left") << Qt::RightToLeft;
}

void tst_MixedRows::sliderHasNoHandle()
{
    QFETCH(Qt::LayoutDirection, direction);
    m_bench->view->setLayoutDirection(direction);
    make([](PropertyList &rows) { rows.number(text("row"), text("Row")).range(0, 9); });
    auto *const slider = m_bench->control<QSlider>("row");
    setValues("row", 0.0, 0.0);
    const QImage atTheStart = pictureOf(slider);
    setValues("row", 9.0, 9.0);
    const QImage atTheEnd = pictureOf(slider);

    setValues("row", 0.0, 9.0);

    // Each of the two ends of the groove is as it is without handle.
    const QImage mixed = pictureOf(slider);
    QRect start(0, 0, 12, slider->height());
    QRect end(slider->width() - 12, 0, 12, slider->height());
    if (direction == Qt::RightToLeft)
        std::swap(start, end);
    QCOMPARE(difference(mixed.copy(end), atTheStart.copy(end)), 0);
    QVERIFY(difference(mixed.copy(start), atTheStart.copy(start)) > 5);
    QVERIFY(difference(mixed.copy(end), atTheEnd.copy(end)) > 5);
    const QRect middle(40, 0, slider->width() - 80, slider->height());
    QCOMPARE(difference(mixed.copy(middle), atTheStart.copy(middle)), 0);
}

void tst_MixedRows::numbersAreOnTheirSideFromRightToLeft()
{
    m_bench->view->setLayoutDirection(Qt::RightToLeft);
    make([](PropertyList &rows) { rows.number(text("row"), text("Row")).range(0, 9); });
    setValues("row", 3.0, 3.0);
    auto *const line = m_bench->control<QLineEdit>("row");
    const QRect side(0, 0, 20, line->height());
    QImage empty(side.size(), QImage::Format_RGB32);
    empty.fill(line->palette().color(QPalette::Base));
    QVERIFY(difference(pictureOf(line).copy(side), empty) > 3); // numbers are not mirrored

    setValues("row", 3.0, 4.0);

    QVERIFY(difference(pictureOf(line).copy(side), empty) > 3);
}

void tst_MixedRows::grooveIsWholeInThePanelStyle()
{
    make([](PropertyList &rows) { rows.number(text("row"), text("Row")).range(0, 9); });
    auto *const slider = m_bench->control<QSlider>("row");
    PanelStyle style;
    slider->setStyle(&style);
    setValues("row", 0.0, 9.0);

    // Where a handle was at either end, the groove looks the same, mirrored.
    const QImage mixed = pictureOf(slider);
    const QRect left(3, 0, 9, slider->height());
    const QRect right(slider->width() - 12, 0, 9, slider->height());
    const int apart = difference(mixed.copy(left), mixed.copy(right).mirrored(true, false));
    QVERIFY2(apart < 6, qPrintable(QString::number(apart)));
    slider->setStyle(nullptr);
}

void tst_MixedRows::listSaysItInItsCorner()
{
    make([](PropertyList &rows) { rows.texture(text("row"), text("Row")); });
    const auto *const list = m_bench->control<QListWidget>("row");
    setValues("row", texture("Sand"), texture("Wood, polished"));
    const QRect whole = list->viewport()->rect();
    const QRect corner(whole.right() - 60, whole.bottom() - 16, 60, 16);
    const QRect rest(0, 0, whole.width(), whole.height() - 40);
    const QImage mixed = pictureOf(list->viewport());

    setValues("row", texture("neither"), texture("neither"));

    const QImage without = pictureOf(list->viewport());
    QVERIFY(difference(mixed.copy(corner), without.copy(corner)) > 20);
    QCOMPARE(difference(mixed.copy(rest), without.copy(rest)), 0);
}

/// What is painted of it by scrolling, and anew.
void tst_MixedRows::listIsWholeWhenItScrolls()
{
    make([](PropertyList &rows) { rows.texture(text("row"), text("Row")); });
    auto *const list = m_bench->control<QListWidget>("row");
    for (int i = 0; i < 40; ++i)
        list->addItem(QString::number(i));
    setValues("row", texture("Sand"), texture("Wood, polished"));
    QRect painted;
    EventRecord paints(list->viewport(), QEvent::Paint, [&painted](QEvent *event) {
        painted |= static_cast<QPaintEvent *>(event)->rect();
    });

    list->verticalScrollBar()->setValue(list->verticalScrollBar()->value() + 1);
    settleEvents();

    QCOMPARE(painted, list->viewport()->rect());
}

void tst_MixedRows::chosenButtonOfEveryoneIsShown()
{
    make([](PropertyList &rows) { rows.imageFormat(text("row"), text("Row")); });
    setValues("row", format("jpeg", 50), format("jpeg", 50));
    const auto *const jpeg = m_bench->control<QRadioButton>("row", 1);
    const QImage chosen = pictureOf(m_bench->control<QRadioButton>("row", 1));
    const QImage other = pictureOf(m_bench->control<QRadioButton>("row", 0));

    setValues("row", format("jpeg", 50), format("jpeg", 80));

    QVERIFY(jpeg->isChecked());
    QCOMPARE(difference(pictureOf(m_bench->control<QRadioButton>("row", 1)), chosen), 0);
    QCOMPARE(difference(pictureOf(m_bench->control<QRadioButton>("row", 0)), other), 0);
}

void tst_MixedRows::cursorIsSeenInBlankField()
{
    make([](PropertyList &rows) {
        rows.number(text("row"), text("Row")).range(0, 9).suffix(text(" m"));
    });
    setValues("row", 3.0, 4.0);
    auto *const line = m_bench->control<QLineEdit>("row");
    const QImage before = pictureOf(line);

    m_bench->control<QDoubleSpinBox>("row")->setFocus();
    settleEvents();

    QVERIFY(line->hasFocus() || line->parentWidget()->hasFocus());
    QVERIFY(difference(pictureOf(line), before) > 0);
}

void tst_MixedRows::typingShowsTheNumber()
{
    make([](PropertyList &rows) {
        rows.vec2(text("row"), text("Row")).range(QVector2D(0, 0), QVector2D(9, 9));
        rows.vec2(text("like"), text("Like")).range(QVector2D(0, 0), QVector2D(9, 9));
    });
    setValues("row", QVector2D(1, 2), QVector2D(3, 4));
    setValues("like", QVector2D(5, 5), QVector2D(5, 5));
    auto *const field = m_bench->control<QDoubleSpinBox>("row");
    field->setFocus();

    QTest::keyClicks(m_bench->control<QLineEdit>("row"), text("5"));
    m_bench->view->panel()->setFocus();
    settleEvents();

    QVERIFY(m_selection->isMixed(m_selection->properties().first())); // in the other

    QCOMPARE(difference(pictureOf(field), pictureOf(m_bench->control<QDoubleSpinBox>("like"))), 0);
}

void tst_MixedRows::draggingShowsTheSlider()
{
    make([](PropertyList &rows) {
        rows.integer(text("row"), text("Row")).range(0, 9);
        rows.integer(text("like"), text("Like")).range(0, 9);
    });
    setValues("row", 3, 4);
    setValues("like", 7, 7);
    auto *const slider = m_bench->control<QSlider>("row");

    slider->setSliderDown(true);
    slider->setSliderPosition(7);
    slider->setSliderDown(false);
    settleEvents();

    QCOMPARE(difference(pictureOf(slider), pictureOf(m_bench->control<QSlider>("like"))), 0);
    QCOMPARE(m_bench->control<QSpinBox>("row")->value(), 7);
}

void tst_MixedRows::rowsLookAsEverWhenTheyAgree()
{
    make([](PropertyList &rows) {
        rows.integer(text("row"), text("Row")).range(0, 9);
        rows.choice(text("mode"), text("Mode")).choices({text("A"), text("B")});
    });
    setValues("row", 3, 3);
    setValues("mode", 1, 1);
    const QImage row = picture("row");
    const QImage mode = picture("mode");
    setValues("row", 3, 4);
    setValues("mode", 1, 0);
    QVERIFY(difference(picture("row"), row) > 0);
    QVERIFY(difference(picture("mode"), mode) > 0);

    setValues("row", 3, 3);
    setValues("mode", 1, 1);

    QCOMPARE(difference(picture("row"), row), 0);
    QCOMPARE(difference(picture("mode"), mode), 0);
}

void tst_MixedRows::mixedAgainAfterUndo()
{
    make([](PropertyList &rows) { rows.integer(text("row"), text("Row")).range(0, 9); });
    setValues("row", 3, 4);
    const QImage mixed = picture("row");
    auto *const slider = m_bench->control<QSlider>("row");
    slider->setSliderDown(true);
    slider->setSliderPosition(7);
    slider->setSliderDown(false);
    settleEvents();
    QVERIFY(difference(picture("row"), mixed) > 0);

    m_bench->stack.undo();
    settleEvents();

    QCOMPARE(difference(picture("row"), mixed), 0);
}

void tst_MixedRows::newRowsOfASelection()
{
    make([](PropertyList &rows) { rows.integer(text("row"), text("Row")).range(0, 9); });
    setValues("row", 3, 4);
    const QImage mixed = picture("row");

    m_selection->setMembers({{*m_rows, m_objects.at(0).get()}});
    settleEvents();
    QVERIFY(difference(picture("row"), mixed) > 0);

    m_selection->setMembers({{*m_rows, m_objects.at(0).get()}, {*m_rows, m_objects.at(1).get()}});
    settleEvents();
    QCOMPARE(difference(picture("row"), mixed), 0);
}

/// The host shows the new rows when it likes to.
void tst_MixedRows::rowsOfTheListBeforeAreNotMixed()
{
    make([](PropertyList &rows) { rows.integer(text("row"), text("Row")).range(0, 9); });
    setValues("row", 3, 4);
    QVERIFY(!m_bench->field("row")->accessibleDescription().isEmpty());
    PropertyList others;
    others.string(text("name"), text("Name"));
    PropertyStore other;
    other.reset(others);

    m_selection->setMembers({{others, &other}});

    QVERIFY(m_bench->field("row")->accessibleDescription().isEmpty());
}

void tst_MixedRows::descriptionTells()
{
    make([](PropertyList &rows) {
        rows.integer(text("row"), text("Row")).range(0, 9).help(text("How many."));
    });
    const QString news = text("The selected objects have different values.");
    setValues("row", 3, 4);
    QCOMPARE(m_bench->field("row")->accessibleDescription(), news + text(" How many."));
    QVERIFY(m_bench->control<QSpinBox>("row")->accessibleDescription().startsWith(news));
    QVERIFY(m_bench->control<QSlider>("row")->accessibleDescription().startsWith(news));

    setValues("row", 4, 4);

    QCOMPARE(m_bench->field("row")->accessibleDescription(), text("How many."));
    QVERIFY(!m_bench->control<QSpinBox>("row")->accessibleDescription().contains(news));
}

void tst_MixedRows::helpFollowsWhileMixed()
{
    make([](PropertyList &rows) {
        rows.integer(text("row"), text("Row")).range(0, 9).help(text("How many."));
    });
    setValues("row", 3, 4);
    Property *const property = m_selection->properties().first();

    property->setHint(kHostHintHelp, text("How often."));
    m_bench->view->updateProperty(property);

    QCOMPARE(m_bench->field("row")->accessibleDescription(),
             text("The selected objects have different values. How often."));
    setValues("row", 4, 4);
    QCOMPARE(m_bench->field("row")->accessibleDescription(), text("How often."));
}

/// An editor of a host whose widget the library knows nothing of.
class PlateEditor final : public PropertyEditor
{
public:
    static PropertyEditor *Factory(Property *property) { return new PlateEditor(property); }

    using PropertyEditor::PropertyEditor;

    void setValue(const QVariant &value) override
    {
        m_shown = value;
        if (m_widget)
            m_widget->update();
    }

    QVariant value() const override { return m_shown; }

    QWidget *widget(PropertyEditorContext *) override
    {
        if (buildsNow()) {
            m_widget = new QWidget;
            m_widget->setMinimumSize(150, 40);
        }
        return m_widget;
    }

private:
    QVariant m_shown;
};

void tst_MixedRows::widgetOfAHostIsHatched()
{
    const QString type = text("plate");
    PropertyEditorRegistry::Instance()->registerPropertyEditor(type, PlateEditor::Factory);
    make([&type](PropertyList &rows) { rows.add(type, text("row"), text("Row")); });
    setValues("row", 3, 3);
    const QImage before = picture("row");

    setValues("row", 3, 4);

    QVERIFY(difference(picture("row"), before) > 100);
    setValues("row", 3, 3);
    QCOMPARE(difference(picture("row"), before), 0);
}

void tst_MixedRows::selectionGoesFirst()
{
    make([](PropertyList &rows) { rows.integer(text("row"), text("Row")).range(0, 9); });
    setValues("row", 3, 4);
    m_selection->attach(nullptr);

    m_selection.reset();

    QVERIFY(!m_bench->view->grab().isNull());
}

void tst_MixedRows::viewGoesInMixedChanged()
{
    make([](PropertyList &rows) { rows.integer(text("row"), text("Row")).range(0, 9); });
    connect(m_selection.get(), &SelectionDelegate::mixedChanged, this,
            [this] { m_bench->view.reset(); });
    m_objects.at(0)->setValue(m_rows->properties().first(), 5, PropertyStore::NewChange);

    m_selection->refresh();

    QVERIFY(!m_bench->view);
}

QTEST_MAIN(tst_MixedRows)
#include "tst_MixedRows.moc"
