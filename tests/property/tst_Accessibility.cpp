#include "support/EveryTypePanel.h"
#include "support/MarkingTranslator.h"

#include <core/ColorWheel.h>
#include <core/DisclosureButton.h>
#include <core/LogSlider.h>
#include <property/PropertyEditorRegistry.h>

#include <QAccessible>
#include <QApplication>
#include <QCheckBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QSet>
#include <QSlider>
#include <QSpinBox>
#include <QTabWidget>
#include <QTest>

#include <memory>

using namespace Tessark;
using namespace Tessark::PropertyUI;
using TestSupport::EveryTypePanel;

namespace {

QString nameOf(QWidget *control)
{
    return QAccessible::queryAccessibleInterface(control)->text(QAccessible::Name);
}

QString descriptionOf(QWidget *control)
{
    return QAccessible::queryAccessibleInterface(control)->text(QAccessible::Description);
}

QAccessibleValueInterface *numberOf(QWidget *control)
{
    return QAccessible::queryAccessibleInterface(control)->valueInterface();
}

/// All below parent in the accessible tree, itself included.
void collect(QAccessibleInterface *parent, QVector<QAccessibleInterface *> &all)
{
    all.append(parent);
    for (int i = 0; i < parent->childCount(); ++i) {
        if (QAccessibleInterface *const child = parent->child(i))
            collect(child, all);
    }
}

QVector<QAccessibleInterface *> treeOf(QWidget *widget)
{
    QVector<QAccessibleInterface *> all;
    collect(QAccessible::queryAccessibleInterface(widget), all);
    return all;
}

/// The names of the widgets of a row that take the focus, in the order of the tree.
QStringList namesIn(QWidget *row)
{
    QStringList names;
    for (QAccessibleInterface *each : treeOf(row)) {
        // Qt 5 does not say of lists that they take the focus.
        const bool isControl = each->state().focusable || each->role() == QAccessible::List;
        if (isControl && each->object())
            names.append(each->text(QAccessible::Name));
    }
    return names;
}

QLabel *labelOf(const EveryTypePanel &rows, const QString &name)
{
    QWidget *const field = rows.row(name);
    QLayout *const layout = field->parentWidget()->layout();
    return qobject_cast<QLabel *>(layout->itemAt(layout->indexOf(field) - 1)->widget());
}

/// A host's editor: two line edits that it knows nothing to say of.
class PairEditor final : public PropertyEditor
{
public:
    using PropertyEditor::PropertyEditor;

    void setValue(const QVariant &) override {}
    QVariant value() const override { return {}; }

    QWidget *widget(PropertyEditorContext *) override
    {
        if (buildsNow()) {
            m_widget = new QWidget;
            auto *const layout = new QVBoxLayout(m_widget);
            layout->addWidget(new QLineEdit);
            layout->addWidget(new QLineEdit);
        }
        return m_widget;
    }
};

} // namespace

class tst_Accessibility : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void everyControlHasAName();
    void namesOfARow_data();
    void namesOfARow();
    void namesOfARowDiffer();
    void namesOfAHostsEditorDiffer();
    void descriptions_data();
    void descriptions();
    void thePanelItself();
    void pictures();
    void choicesSayWhatTheyShow();
    void texts_data();
    void texts();

    void nothingIsNamedWhileNobodyListens();
    void panelsAreNamedWhenSomebodyBeginsToListen();
    void aHostsNameStays();
    void aHostsDescriptionStays();
    void aHostsNameForAPathStays();
    void labelsAreFollowed();
    void labelsAreSpokenAsShown_data();
    void labelsAreSpokenAsShown();
    void foldsAreFollowed();
    void boundsAreFollowed();
    void languagesAreFollowed();
    void editorsDeletedByAHost();

    void valuesAgree_data();
    void valuesAgree();
    void valuesAreEdits_data();
    void valuesAreEdits();

private:
    void listen();

    std::unique_ptr<EveryTypePanel> m_rows;
};

void tst_Accessibility::init()
{
    m_rows = std::make_unique<EveryTypePanel>();
}

void tst_Accessibility::cleanup()
{
    QAccessible::setActive(false);
    m_rows.reset();
}

/// As a screen reader does when it starts.
void tst_Accessibility::listen()
{
    QAccessible::setActive(true);
    QCoreApplication::sendPostedEvents();
}

void tst_Accessibility::everyControlHasAName()
{
    listen();

    int controls = 0;
    for (QAccessibleInterface *each : treeOf(m_rows->panel())) {
        if (!each->state().focusable)
            continue;
        ++controls;
        QVERIFY2(!each->text(QAccessible::Name).isEmpty(),
                 each->object() ? each->object()->metaObject()->className() : "no object");
    }

    QVERIFY2(controls > 70, qPrintable(QString::number(controls)));
}

void tst_Accessibility::namesOfARow_data()
{
    QTest::addColumn<QString>("row");
    QTest::addColumn<QStringList>("names");

    const auto add = [](const char *row, const char *names) {
        QTest::newRow(row) << QString::fromLatin1(row)
                           << QString::fromLatin1(names).split(QStringLiteral(" | "));
    };
    add("camera", "Camera");
    add("gain", "Gain, slider | Gain");
    add("rate", "Rate, slider | Rate");
    add("frames", "Frames, slider | Frames");
    add("volume", "Volume, slider | Volume");
    add("title", "Title");
    add("folder", "Folder | Folder, Browse");
    add("notes", "Notes");
    add("run", "Run");
    add("active", "Active");
    add("muted", "Muted");
    add("mode", "Good | Mode, choices");
    add("quality", "Quality, Fast | Quality, Good");
    add("offset", "Offset, X | Offset, Y");
    add("position", "Position, X, slider | Position, X | Position, Y, slider | Position, Y | "
                    "Position, Z, slider | Position, Z");
    add("scale", "Scale, X, slider | Scale, X | Scale, Y, slider | Scale, Y | Scale, Z, slider | "
                 "Scale, Z | Scale, Expand");
    add("stretch", "Stretch | Stretch, Y | Stretch, Expand");
    add("crop", "Crop, X | Crop, Y | Crop, Z | Crop, W");
    add("tint", "Tint, Color wheel | Tint, Red, slider | Tint, Red | Tint, Green, slider | "
                "Tint, Green | Tint, Blue, slider | Tint, Blue");
    add("badge", "Badge, Width | Badge, Height | Badge, Constrain Aspect");
    add("frame", "Full Resolution | Frame, choices | Frame, Width | Frame, Height | Frame, "
                 "Constrain Aspect");
    add("format", "Format, png | Format, jpeg | Format, tiff | Format, bmp | "
                  "Format, JPEG Quality, slider | Format, JPEG Quality");
    add("floor", "Floor");
    add("placement",
        "Placement, Offset X, slider | Placement, Offset X | Placement, Offset Y, slider | "
        "Placement, Offset Y | Placement, Rotation, slider | Placement, Rotation | "
        "Placement, Scale X, slider | Placement, Scale X | Placement, Scale Y, slider | "
        "Placement, Scale Y");
    add("folded", "Folded, Expand | Folded, Offset X, slider | Folded, Offset X | "
                  "Folded, Offset Y, slider | Folded, Offset Y | Folded, Rotation, slider | "
                  "Folded, Rotation | Folded, Scale, slider | Folded, Scale | "
                  "Folded, Scale Y, slider | Folded, Scale Y");
}

void tst_Accessibility::namesOfARow()
{
    QFETCH(QString, row);
    QFETCH(QStringList, names);
    listen();

    QCOMPARE(namesIn(m_rows->row(row)), names);
}

void tst_Accessibility::namesOfARowDiffer()
{
    listen();

    QVector<PropertyEditor *> editors;
    m_rows->panel()->getEditors(editors, QString());
    int rowsWithControls = 0;
    for (PropertyEditor *editor : editors) {
        const QString &type = editor->editedProperty()->type;
        QWidget *const widget = editor->widget(nullptr);
        if (!widget || type == kPropertyTypeBeginTabGroup || type == kPropertyTypeTab)
            continue;
        const QStringList names = namesIn(widget);
        rowsWithControls += names.isEmpty() ? 0 : 1;
        QVERIFY2(names.size() == QSet<QString>(names.begin(), names.end()).size(),
                 qPrintable(names.join(QLatin1Char('|'))));
    }
    QVERIFY(rowsWithControls > 20);
}

void tst_Accessibility::namesOfAHostsEditorDiffer()
{
    Property property(QStringLiteral("pair"), QStringLiteral("Pair"), QStringLiteral("pair"));
    PropertyEditorRegistry::Instance()->registerPropertyEditor(
        property.type, [](Property *p) -> PropertyEditor * { return new PairEditor(p); });
    PropertyEditorPanel panel({&property}, nullptr, nullptr);
    listen();

    QVector<PropertyEditor *> editors;
    panel.getEditors(editors, QString());
    QCOMPARE(namesIn(editors.first()->widget(nullptr)),
             QStringList({QStringLiteral("Pair"), QStringLiteral("Pair, 2")}));
}

void tst_Accessibility::descriptions_data()
{
    QTest::addColumn<QString>("row");
    QTest::addColumn<QString>("text"); // of the row's first spin box and slider

    QTest::newRow("in a group") << "gain"
                                << "0 to 10 dB, Camera";
    QTest::newRow("in two groups") << "rate"
                                   << "0.1 to 1000, Camera, Lens";
    QTest::newRow("whole numbers") << "frames"
                                   << "1 to 120, Camera, Lens";
    QTest::newRow("after a nested group") << "volume"
                                          << "0 to 100 %, Camera";
    QTest::newRow("on a tab") << "position"
                              << "-5 to 5, Vectors";
    QTest::newRow("in a group on a tab") << "tint"
                                         << "0 to 1, Colors, Shade";
    QTest::newRow("around nothing") << "placement"
                                    << "-1 to 1";
}

void tst_Accessibility::descriptions()
{
    QFETCH(QString, row);
    QFETCH(QString, text);
    QLocale::setDefault(QLocale::c());
    m_rows = std::make_unique<EveryTypePanel>();
    listen();

    QCOMPARE(descriptionOf(m_rows->control<QAbstractSpinBox>(row)), text);
    if (row != QLatin1String("rate")) // its slider's bounds are powers of ten
        QCOMPARE(descriptionOf(m_rows->control<QSlider>(row)), text);
}

void tst_Accessibility::thePanelItself()
{
    listen();
    QCOMPARE(nameOf(m_rows->panel()), QStringLiteral("Properties"));

    PropertyEditorPanel alone({}, nullptr, nullptr);
    alone.setWindowTitle(QStringLiteral("Camera"));
    QCoreApplication::sendPostedEvents();
    QCOMPARE(nameOf(&alone), QStringLiteral("Camera"));
}

void tst_Accessibility::pictures()
{
    listen();

    QCOMPARE(nameOf(m_rows->row(QStringLiteral("poster"))), QStringLiteral("Poster"));
    QCOMPARE(nameOf(m_rows->row(QStringLiteral("status"))), QStringLiteral("ready"));
}

/// Qt makes that their name where the system asks for labels elsewhere.
void tst_Accessibility::choicesSayWhatTheyShow()
{
    listen();

    QCOMPARE(m_rows->row(QStringLiteral("mode"))->accessibleName(), QStringLiteral("Mode"));
    QCOMPARE(descriptionOf(m_rows->row(QStringLiteral("mode"))), QStringLiteral("Mode"));
}

void tst_Accessibility::texts_data()
{
    QTest::addColumn<QString>("label");
    QTest::addColumn<QString>("name");

    QTest::newRow("colons") << "Title::"
                            << "Title";
    QTest::newRow("wide colon") << QString(QStringLiteral("Title") + QChar(0xFF1A)) << "Title";
    QTest::newRow("markup") << "<b>Big</b><br>title"
                            << "Big title";
    QTest::newRow("ampersand, which is shown") << "Fish & Chips"
                                               << "Fish & Chips";
    QTest::newRow("ampersand before a letter, which is shown") << "R&D"
                                                               << "R&D";
    QTest::newRow("empty") << ""
                           << "title";
    QTest::newRow("several lines") << " Long\n  title "
                                   << "Long title";
}

void tst_Accessibility::texts()
{
    QFETCH(QString, label);
    QFETCH(QString, name);
    Property property(QStringLiteral("title"), label, kPropertyTypeString);
    PropertyEditorPanel panel({&property}, nullptr, nullptr);
    listen();

    QCOMPARE(nameOf(panel.findChild<QLineEdit *>()), name);
}

void tst_Accessibility::nothingIsNamedWhileNobodyListens()
{
    m_rows->window()->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_rows->window()));
    QCoreApplication::processEvents();

    const QSet<QString> kitNames = {QStringLiteral("Browse"), QStringLiteral("Expand"),
                                    QStringLiteral("Red"), QStringLiteral("Green"),
                                    QStringLiteral("Blue")};
    for (const QWidget *widget : m_rows->panel()->findChildren<QWidget *>()) {
        QVERIFY2(widget->accessibleDescription().isEmpty(),
                 qPrintable(widget->accessibleDescription()));
        if (widget->parentWidget()->inherits("QTabBar"))
            continue; // Qt's own arrows
        const QString name = widget->accessibleName();
        QVERIFY2(name.isEmpty() || kitNames.contains(name), qPrintable(name));
    }
}

void tst_Accessibility::panelsAreNamedWhenSomebodyBeginsToListen()
{
    QLineEdit *const edit = m_rows->control<QLineEdit>(QStringLiteral("title"));
    QCOMPARE(nameOf(edit), QString());
    listen();
    QCOMPARE(nameOf(edit), QStringLiteral("Title"));

    EveryTypePanel later;
    QCoreApplication::sendPostedEvents();
    QCOMPARE(nameOf(later.control<QLineEdit>(QStringLiteral("title"))), QStringLiteral("Title"));
}

void tst_Accessibility::aHostsNameStays()
{
    QLineEdit *const before = m_rows->control<QLineEdit>(QStringLiteral("title"));
    QSlider *const after = m_rows->control<QSlider>(QStringLiteral("gain"));
    const QString hosts = QStringLiteral("Name of the host");
    before->setAccessibleName(hosts);
    listen();
    after->setAccessibleName(hosts);

    m_rows->panel()->updateProperty(m_rows->property(QStringLiteral("gain")));
    QCoreApplication::sendPostedEvents();

    QCOMPARE(nameOf(before), hosts);
    QCOMPARE(nameOf(after), hosts);
    QCOMPARE(nameOf(m_rows->control<QAbstractSpinBox>(QStringLiteral("gain"))),
             QStringLiteral("Gain"));
}

void tst_Accessibility::aHostsDescriptionStays()
{
    QWidget *const described = m_rows->control<QSlider>(QStringLiteral("gain"));
    QWidget *const tipped = m_rows->control<QAbstractSpinBox>(QStringLiteral("gain"));
    described->setAccessibleDescription(QStringLiteral("Loudness"));
    tipped->setToolTip(QStringLiteral("<i>Careful</i>"));

    listen();

    QCOMPARE(descriptionOf(described), QStringLiteral("Loudness"));
    QCOMPARE(descriptionOf(tipped), QStringLiteral("0 to 10 dB, Camera, Careful"));
}

void tst_Accessibility::aHostsNameForAPathStays()
{
    QWidget *const field = m_rows->row(QStringLiteral("folder"));
    field->setAccessibleName(QStringLiteral("Target"));

    listen();

    QCOMPARE(nameOf(field), QStringLiteral("Target"));
    QCOMPARE(nameOf(m_rows->control<QLineEdit>(QStringLiteral("folder"))),
             QStringLiteral("Target"));
}

void tst_Accessibility::labelsAreFollowed()
{
    m_rows->window()->show();
    listen();
    QWidget *const title = m_rows->control<QLineEdit>(QStringLiteral("title"));
    QWidget *const frames = m_rows->control<QSpinBox>(QStringLiteral("frames"));
    QWidget *const position = m_rows->control<QDoubleSpinBox>(QStringLiteral("position"));

    labelOf(*m_rows, QStringLiteral("title"))->setText(QStringLiteral("Heading:"));
    QTRY_COMPARE(nameOf(title), QStringLiteral("Heading"));

    m_rows->control<QCheckBox>(QStringLiteral("lens"))->setText(QStringLiteral("&Optics"));
    QTRY_COMPARE(descriptionOf(frames), QStringLiteral("1 to 120, Camera, Optics"));

    m_rows->control<QTabWidget>(QStringLiteral("views"))->setTabText(0, QStringLiteral("&Arrows"));
    QTRY_COMPARE(descriptionOf(position), QStringLiteral("-5 to 5, Arrows"));
}

void tst_Accessibility::labelsAreSpokenAsShown_data()
{
    QTest::addColumn<Qt::TextFormat>("format");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("name");

    QTest::newRow("as it stands") << Qt::PlainText << QStringLiteral("<b>bold</b>:")
                                  << QStringLiteral("<b>bold</b>");
    QTest::newRow("HTML") << Qt::RichText << QStringLiteral("<b>bold</b> title:")
                          << QStringLiteral("bold title");
    QTest::newRow("Markdown") << Qt::MarkdownText << QStringLiteral("**bold** title:")
                              << QStringLiteral("bold title");
    QTest::newRow("found out") << Qt::AutoText << QStringLiteral("<b>bold</b> title:")
                               << QStringLiteral("bold title");
}

void tst_Accessibility::labelsAreSpokenAsShown()
{
    QFETCH(const Qt::TextFormat, format);
    QFETCH(const QString, text);
    QFETCH(const QString, name);
    m_rows->window()->show();
    listen();
    QLabel *const label = labelOf(*m_rows, QStringLiteral("title"));

    label->setTextFormat(format);
    label->setText(text);

    QTRY_COMPARE(nameOf(m_rows->control<QLineEdit>(QStringLiteral("title"))), name);
}

void tst_Accessibility::foldsAreFollowed()
{
    m_rows->window()->show();
    listen();
    QWidget *const scaleX = m_rows->control<QDoubleSpinBox>(QStringLiteral("folded"), 3);
    QWidget *const first = m_rows->control<QDoubleSpinBox>(QStringLiteral("stretch"));
    QCOMPARE(nameOf(scaleX), QStringLiteral("Folded, Scale"));
    QCOMPARE(nameOf(first), QStringLiteral("Stretch"));

    m_rows->control<UI::DisclosureButton>(QStringLiteral("folded"))->click();
    m_rows->control<UI::DisclosureButton>(QStringLiteral("stretch"))->click();

    QTRY_COMPARE(nameOf(scaleX), QStringLiteral("Folded, Scale X"));
    QTRY_COMPARE(nameOf(first), QStringLiteral("Stretch, X"));
}

void tst_Accessibility::boundsAreFollowed()
{
    listen();
    auto *const frames = m_rows->control<QSpinBox>(QStringLiteral("frames"));

    Property *const property = m_rows->property(QStringLiteral("frames"));
    property->setRange(2, 60);
    m_rows->panel()->updateProperty(property);
    QCoreApplication::sendPostedEvents();
    QCOMPARE(descriptionOf(frames), QStringLiteral("2 to 60, Camera, Lens"));

    m_rows->window()->show();
    QVERIFY(QTest::qWaitForWindowActive(m_rows->window()));
    frames->setSuffix(QStringLiteral(" fps"));
    frames->setMaximum(50);
    frames->setFocus();
    QCOMPARE(descriptionOf(frames), QStringLiteral("2 to 50 fps, Camera, Lens"));
}

void tst_Accessibility::languagesAreFollowed()
{
    m_rows->window()->show();
    listen();
    QWidget *const slider = m_rows->control<QSlider>(QStringLiteral("gain"));
    QCOMPARE(nameOf(slider), QStringLiteral("Gain, slider"));

    const MarkingTranslator translator("Tessark::PropertyUI::PropertyEditorPanel");

    QTRY_COMPARE(nameOf(slider), QStringLiteral("Gain, [slider]"));
}

void tst_Accessibility::editorsDeletedByAHost()
{
    delete m_rows->editor(QStringLiteral("gain"));
    delete m_rows->row(QStringLiteral("title"));
    delete m_rows->editor(QStringLiteral("lensEnd"));
    delete m_rows->editor(QStringLiteral("views"));

    listen();

    QCOMPARE(nameOf(m_rows->control<QSpinBox>(QStringLiteral("frames"))), QStringLiteral("Frames"));
    QCOMPARE(nameOf(m_rows->control<QSlider>(QStringLiteral("tint"))),
             QStringLiteral("Tint, Red, slider"));
}

void tst_Accessibility::valuesAgree_data()
{
    QTest::addColumn<QString>("row");
    QTest::addColumn<int>("index");
    QTest::addColumn<double>("value");

    QTest::newRow("float") << "gain" << 0 << 2.5;
    QTest::newRow("logarithmic float") << "rate" << 0 << 50.0;
    QTest::newRow("int") << "frames" << 0 << 25.0;
    QTest::newRow("percent") << "volume" << 0 << 85.0;
    QTest::newRow("vector, X") << "position" << 0 << 1.0;
    QTest::newRow("vector, Z") << "position" << 2 << 3.0;
    QTest::newRow("color, green") << "tint" << 1 << 0.502;
    QTest::newRow("quality") << "format" << 0 << 80.0;
    QTest::newRow("transform, scale") << "placement" << 3 << 1.0;
}

void tst_Accessibility::valuesAgree()
{
    QFETCH(QString, row);
    QFETCH(int, index);
    QFETCH(double, value);
    listen();
    auto *const spinBox = m_rows->control<QAbstractSpinBox>(row, index);
    auto *const slider = m_rows->control<QSlider>(row, index);

    QCOMPARE(QAccessible::queryAccessibleInterface(spinBox)->role(), QAccessible::SpinBox);
    QCOMPARE(QAccessible::queryAccessibleInterface(slider)->role(), QAccessible::Slider);
    const double shown = spinBox->property("value").toDouble();
    QVERIFY2(qAbs(shown - value) < 0.0005, qPrintable(QString::number(shown)));
    QCOMPARE(numberOf(spinBox)->currentValue().toDouble(), shown);
    QCOMPARE(numberOf(spinBox)->maximumValue().toDouble(), spinBox->property("maximum").toDouble());
    QVERIFY(qAbs(numberOf(slider)->currentValue().toDouble() - shown) < 0.002);
    if (row != QLatin1String("rate"))
        QCOMPARE(numberOf(slider)->maximumValue(), numberOf(spinBox)->maximumValue());
}

void tst_Accessibility::valuesAreEdits_data()
{
    QTest::addColumn<QString>("row");
    QTest::addColumn<double>("value");
    QTest::addColumn<double>("stored");

    QTest::newRow("float") << "gain" << 7.25 << 7.25;
    QTest::newRow("logarithmic float") << "rate" << 100.0 << 100.0;
    QTest::newRow("int") << "frames" << 30.0 << 30.0;
    QTest::newRow("percent") << "volume" << 50.0 << 0.5;
}

void tst_Accessibility::valuesAreEdits()
{
    QFETCH(QString, row);
    QFETCH(double, value);
    QFETCH(double, stored);
    listen();
    m_rows->delegate().changes.clear();

    numberOf(m_rows->control<QSlider>(row))->setCurrentValue(value);

    QCOMPARE(m_rows->delegate().changes.size(), 1);
    QCOMPARE(m_rows->delegate().changes.first().value.toDouble(), stored);
    QCOMPARE(m_rows->control<QAbstractSpinBox>(row)->property("value").toDouble(), value);
}

QTEST_MAIN(tst_Accessibility)
#include "tst_Accessibility.moc"
