#include <host/StructBinding.h>
#include <property/PropertyUI.h>
#include <testing/PanelDriver.h>

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTest>

#include <limits>
#include <memory>

using namespace Tessark::PropertyUI;
using namespace Tessark::PropertyHost;
using Tessark::PropertyTest::PanelDriver;

namespace {

enum class Mode { Fast = 3, Exact = 7 };

struct Filter
{
    double cutoff = 440;
    bool on = true;
};

struct Decibel
{
    double number = 0;
};

struct Params
{
    double gain = 1.5;
    float pan = 0.25F;
    int count = 4;
    quint8 level = 200;
    short offset = -5;
    bool active = true;
    QString name = QStringLiteral("first");
    std::string path = "a/b";
    Mode mode = Mode::Exact;
    QColor tint = Qt::red;
    QVector2D position = {1, 2};
    QVector3D axis = {0, 0, 1};
    QVector4D quaternion = {1, 0, 0, 0};
    QSize size = {64, 32};
    DoubleMatrix3x3 transform;
    ImageFormatDesc format;
    TextureChoice texture;
    Decibel loudness = {-6};
    Filter filter;
    Filter otherFilter = {880, false};
};

struct WithoutDefault
{
    explicit WithoutDefault(int start)
        : count(start)
    {
    }
    int count;
};

QString text(const char *ascii)
{
    return QString::fromLatin1(ascii);
}

/// The first control of a kind in the row of a name.
template <typename Control>
Control *control(const PropertyEditorPanel &panel, const QString &name)
{
    QVector<PropertyEditor *> editors;
    panel.getEditors(editors, QString());
    for (PropertyEditor *editor : editors) {
        QWidget *const widget = editor->widget(nullptr);
        if (editor->editedProperty()->name != name || !widget)
            continue;
        if (auto *const self = qobject_cast<Control *>(widget))
            return self;
        return widget->findChild<Control *>();
    }
    return nullptr;
}

} // namespace

template <>
struct Tessark::PropertyHost::StructField<Decibel>
{
    static QString type() { return kPropertyTypeFloat; }
    static QVariant toVariant(Decibel value) { return value.number; }
    static Decibel fromVariant(const QVariant &value) { return {value.toDouble()}; }
};

class tst_StructBinding : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void membersHaveTheRowsOfTheirTypes();
    void membersKeepTheirValuesThroughARow();
    void integersAreBroughtIntoTheirType_data();
    void integersAreBroughtIntoTheirType();
    void numbersAreBroughtIntoAFloat();
    void enumerationsShowTheirTexts();
    void otherTypesOfRows();
    void typesOfTheHost();
    void newStructGivesTheDefaults();
    void structWithoutDefaultConstructorHasNoDefaults();
    void namesAreMadeOfLabels();
    void namesMayBeGiven();
    void nestedStructsAreGroups();
    void groupsOfOneStructAreOpenAtFirst();
    void editsReachTheStruct();
    void dragIsToldAsOneRun();
    void hostChangesAreShownByARefresh();
    void otherStructIsShown();
    void withoutStructNothingHappens();
    void actionsCallTheHost();
    void callbackMayDeleteTheBinding();
    void listIsValid();
};

void tst_StructBinding::initTestCase()
{
    QLocale::setDefault(QLocale::c());
}

void tst_StructBinding::membersHaveTheRowsOfTheirTypes()
{
    Params params;
    auto list = bindStruct(&params);
    list.bind(&Params::gain, text("gain"));
    list.bind(&Params::pan, text("pan"));
    list.bind(&Params::count, text("count"));
    list.bind(&Params::level, text("level"));
    list.bind(&Params::offset, text("offset"));
    list.bind(&Params::active, text("active"));
    list.bind(&Params::name, text("name"));
    list.bind(&Params::path, text("path"));
    list.bind(&Params::tint, text("tint"));
    list.bind(&Params::position, text("position"));
    list.bind(&Params::axis, text("axis"));
    list.bind(&Params::quaternion, text("quaternion"));
    list.bind(&Params::size, text("size"));
    list.bind(&Params::transform, text("transform"));
    list.bind(&Params::format, text("format"));
    list.bind(&Params::texture, text("texture"));

    QStringList types;
    for (const Property *property : list.properties())
        types.append(property->type);

    QCOMPARE(types.join(QLatin1Char(' ')),
             text("float float int int int bool string string vec4/color vec2 vec3 vec4 ivec2/size "
                  "transform2D image_format texture"));
}

void tst_StructBinding::membersKeepTheirValuesThroughARow()
{
    Params params;
    params.transform(0, 2) = 12;
    params.format.format = text("jpeg");
    params.texture.name = text("wood");
    Params copy;
    auto from = bindStruct(&params);
    auto to = bindStruct(&copy);
    for (auto *list : {&from, &to}) {
        list->bind(&Params::gain, text("gain"));
        list->bind(&Params::pan, text("pan"));
        list->bind(&Params::count, text("count"));
        list->bind(&Params::level, text("level"));
        list->bind(&Params::offset, text("offset"));
        list->bind(&Params::active, text("active"));
        list->bind(&Params::name, text("name"));
        list->bind(&Params::path, text("path"));
        list->bind(&Params::tint, text("tint"));
        list->bind(&Params::position, text("position"));
        list->bind(&Params::axis, text("axis"));
        list->bind(&Params::quaternion, text("quaternion"));
        list->bind(&Params::size, text("size"));
        list->bind(&Params::transform, text("transform"));
        list->bind(&Params::format, text("format"));
        list->bind(&Params::texture, text("texture"));
    }
    params.gain = -2.5;
    params.pan = 0.75F;
    params.count = -9;
    params.level = 17;
    params.offset = 300;
    params.active = false;
    params.name = text("second");
    params.path = "\xc3\xa4"; // UTF-8
    params.tint = QColor(1, 2, 3, 4);
    params.position = {3, 4};
    params.axis = {5, 6, 7};
    params.quaternion = {8, 9, 10, 11};
    params.size = {100, 200};

    for (int row = 0; row < from.properties().size(); ++row) {
        to.setValue(to.properties().at(row), from.value(from.properties().at(row)),
                    IPropertyEditorDelegate::NewChange);
    }

    QCOMPARE(copy.gain, params.gain);
    QCOMPARE(copy.pan, params.pan);
    QCOMPARE(copy.count, params.count);
    QCOMPARE(copy.level, params.level);
    QCOMPARE(copy.offset, params.offset);
    QCOMPARE(copy.active, params.active);
    QCOMPARE(copy.name, params.name);
    QCOMPARE(copy.path, params.path);
    QCOMPARE(copy.tint, params.tint);
    QCOMPARE(copy.position, params.position);
    QCOMPARE(copy.axis, params.axis);
    QCOMPARE(copy.quaternion, params.quaternion);
    QCOMPARE(copy.size, params.size);
    QVERIFY(copy.transform == params.transform);
    QCOMPARE(copy.format.format, params.format.format);
    QCOMPARE(copy.texture.name, params.texture.name);
}

void tst_StructBinding::integersAreBroughtIntoTheirType_data()
{
    QTest::addColumn<int>("edited");
    QTest::addColumn<int>("level");
    QTest::addColumn<int>("offset");

    QTest::newRow("inside") << 100 << 100 << 100;
    QTest::newRow("negative") << -1 << 0 << -1;
    QTest::newRow("above a byte") << 256 << 255 << 256;
    QTest::newRow("above a short") << 40000 << 255 << 32767;
    QTest::newRow("below a short") << -40000 << 0 << -32768;
}

void tst_StructBinding::integersAreBroughtIntoTheirType()
{
    QFETCH(int, edited);
    QFETCH(int, level);
    QFETCH(int, offset);
    Params params;
    auto list = bindStruct(&params);
    Property &levelRow = list.bind(&Params::level, text("Level")).property();
    Property &offsetRow = list.bind(&Params::offset, text("Offset")).property();

    list.setValue(&levelRow, edited, IPropertyEditorDelegate::NewChange);
    list.setValue(&offsetRow, edited, IPropertyEditorDelegate::NewChange);

    QCOMPARE(int(params.level), level);
    QCOMPARE(int(params.offset), offset);
}

void tst_StructBinding::numbersAreBroughtIntoAFloat()
{
    Params params;
    auto list = bindStruct(&params);
    Property &row = list.bind(&Params::pan, text("Pan")).property();

    list.setValue(&row, 1e300, IPropertyEditorDelegate::NewChange);
    QCOMPARE(params.pan, std::numeric_limits<float>::max());
    list.setValue(&row, -1e300, IPropertyEditorDelegate::NewChange);
    QCOMPARE(params.pan, -std::numeric_limits<float>::max());
    list.setValue(&row, std::numeric_limits<double>::infinity(),
                  IPropertyEditorDelegate::NewChange);
    QCOMPARE(params.pan, std::numeric_limits<float>::infinity());
}

void tst_StructBinding::enumerationsShowTheirTexts()
{
    Params params;
    auto list = bindStruct(&params);
    list.bind(&Params::mode, text("Mode"),
              {{Mode::Fast, text("fast")}, {Mode::Exact, text("exact")}});
    PropertyEditorPanel panel(list.properties(), &list, nullptr);
    panel.updateUI();
    auto *const box = control<QComboBox>(panel, text("mode"));
    QVERIFY(box);
    QCOMPARE(box->currentText(), text("exact"));

    QTest::keyClick(box, Qt::Key_Up);

    QCOMPARE(params.mode, Mode::Fast);
}

void tst_StructBinding::otherTypesOfRows()
{
    Params params;
    auto list = bindStruct(&params);
    const Property &row = list.bindAs(kPropertyTypePercent, &Params::gain, text("Gain")).property();

    QCOMPARE(row.type, kPropertyTypePercent);
    QCOMPARE(list.value(list.properties().first()), QVariant(1.5));
}

void tst_StructBinding::typesOfTheHost()
{
    Params params;
    auto list = bindStruct(&params);
    Property &row = list.bind(&Params::loudness, text("Loudness")).range(-60, 0).property();

    QCOMPARE(row.type, kPropertyTypeFloat);
    QCOMPARE(list.value(&row), QVariant(-6.0));
    list.setValue(&row, -12.5, IPropertyEditorDelegate::NewChange);
    QCOMPARE(params.loudness.number, -12.5);
}

void tst_StructBinding::newStructGivesTheDefaults()
{
    Params params;
    params.gain = 9;
    params.filter.cutoff = 1;
    auto list = bindStruct(&params);
    const Property &gain = list.bind(&Params::gain, text("Gain")).property();
    const Property &pan = list.bind(&Params::pan, text("Pan")).defaultValue(0.5).property();
    const Property *cutoff = nullptr;
    list.group(&Params::filter, text("Filter"), [&cutoff](auto &rows) {
        cutoff = &rows.bind(&Filter::cutoff, text("Cut-off")).property();
    });

    QCOMPARE(gain.defaultValue, QVariant(1.5));
    QCOMPARE(pan.defaultValue, QVariant(0.5));
    QCOMPARE(cutoff->defaultValue, QVariant(440.0));
}

void tst_StructBinding::structWithoutDefaultConstructorHasNoDefaults()
{
    WithoutDefault object(5);
    auto list = bindStruct(&object);
    Property &row = list.bind(&WithoutDefault::count, text("Count")).property();

    QVERIFY(row.defaultValue.isNull());
    QCOMPARE(list.value(&row), QVariant(5));
}

void tst_StructBinding::namesAreMadeOfLabels()
{
    Params params;
    auto list = bindStruct(&params);
    list.bind(&Params::gain, text("Gain (dB)"));
    list.bind(&Params::pan, text("Gain (dB)"));
    list.bind(&Params::count, QString());
    list.group(&Params::filter, text("Low pass"),
               [](auto &rows) { rows.bind(&Filter::cutoff, text("Cut-off")); });
    list.group(&Params::otherFilter, text("High pass"),
               [](auto &rows) { rows.bind(&Filter::cutoff, text("Cut-off")); });

    QStringList names;
    for (const Property *property : list.properties()) {
        if (!property->name.isEmpty() && property->type != kPropertyTypeBeginGroup)
            names.append(property->name);
    }

    QCOMPARE(names.join(QLatin1Char(' ')),
             text("gain__db_ gain__db__2 _2 low_pass_cut_off high_pass_cut_off"));
}

void tst_StructBinding::namesMayBeGiven()
{
    Params params;
    auto list = bindStruct(&params);

    QCOMPARE(list.bind(&Params::gain, text("Gain"), text("g")).property().name, text("g"));
    QCOMPARE(list.bind(&Params::mode, text("Mode"), {{Mode::Fast, text("fast")}}, text("m"))
                 .property()
                 .name,
             text("m"));
    QCOMPARE(list.action(
                     text("Reset"), [] {}, text("r"))
                 .property()
                 .name,
             text("r"));
}

void tst_StructBinding::nestedStructsAreGroups()
{
    Params params;
    auto list = bindStruct(&params);
    list.group(&Params::filter, text("Filter"), [](auto &rows) {
        rows.bind(&Filter::cutoff, text("Cut-off")).range(0, 1000);
        rows.bind(&Filter::on, text("On"));
    });
    PropertyEditorPanel panel(list.properties(), &list, nullptr);
    panel.updateUI();
    QCOMPARE(control<QDoubleSpinBox>(panel, text("filter_cut_off"))->value(), 440.0);

    control<QCheckBox>(panel, text("filter_on"))->click();

    QVERIFY(!params.filter.on);
    QVERIFY(!params.otherFilter.on);
    QCOMPARE(list.properties().size(), 4);
    QCOMPARE(list.properties().first()->type, kPropertyTypeBeginGroup);
    QCOMPARE(list.properties().last()->type, kPropertyTypeEndGroup);
}

void tst_StructBinding::groupsOfOneStructAreOpenAtFirst()
{
    Params params;
    auto list = bindStruct(&params);
    list.group(text("Sound"), [&list] { list.bind(&Params::gain, text("Gain")); });
    PropertyEditorPanel panel(list.properties(), &list, nullptr);
    panel.updateUI();
    panel.show();
    auto *const header = panel.findChild<QCheckBox *>();

    QVERIFY(header->isChecked());
    QVERIFY(control<QDoubleSpinBox>(panel, text("gain"))->isVisible());
    header->click();
    panel.updateUI();

    QVERIFY(!header->isChecked());
    QVERIFY(!control<QDoubleSpinBox>(panel, text("gain"))->isVisible());
}

void tst_StructBinding::editsReachTheStruct()
{
    Params params;
    auto list = bindStruct(&params);
    list.bind(&Params::name, text("Name"));
    list.bind(&Params::count, text("Count")).range(0, 10);
    PropertyEditorPanel panel(list.properties(), &list, nullptr);
    panel.updateUI();
    QSignalSpy changes(&list, &StructDelegate::valueChanged);

    auto *const name = control<QLineEdit>(panel, text("name"));
    name->selectAll();
    QTest::keyClicks(name, text("other"));
    QTest::keyClick(name, Qt::Key_Return);
    auto *const count = control<QSpinBox>(panel, text("count"));
    count->selectAll();
    QTest::keyClicks(count, text("7"));

    QCOMPARE(params.name, text("other"));
    QCOMPARE(params.count, 7);
    QVERIFY(changes.size() >= 2);
    QCOMPARE(changes.last().at(0).value<Property *>(), list.properties().at(1));
}

void tst_StructBinding::dragIsToldAsOneRun()
{
    Params params;
    auto list = bindStruct(&params);
    list.bind(&Params::gain, text("Gain")).range(0, 10);
    PropertyEditorPanel panel(list.properties(), &list, nullptr);
    panel.updateUI();
    panel.resize(500, panel.sizeHint().height());
    panel.show();
    QSignalSpy changes(&list, &StructDelegate::valueChanged);

    PanelDriver user(&panel);
    user.setDragSteps(2);
    QVERIFY2(user.dragNear(text("gain"), 5), qPrintable(user.error()));

    QCOMPARE(changes.size(), 2);
    QCOMPARE(changes.at(0).at(1).toBool(), false);
    QCOMPARE(changes.at(1).at(1).toBool(), true);
    QCOMPARE(QVariant(params.gain), user.value(text("gain")));
}

void tst_StructBinding::hostChangesAreShownByARefresh()
{
    Params params;
    auto list = bindStruct(&params);
    list.bind(&Params::gain, text("Gain")).range(0, 10);
    PropertyEditorPanel panel(list.properties(), &list, nullptr);
    panel.updateUI();

    params.gain = 7.25;
    panel.updateUI();

    QCOMPARE(control<QDoubleSpinBox>(panel, text("gain"))->value(), 7.25);
}

void tst_StructBinding::otherStructIsShown()
{
    Params first, second;
    second.filter.cutoff = 100;
    auto list = bindStruct(&first);
    list.group(&Params::filter, text("Filter"),
               [](auto &rows) { rows.bind(&Filter::cutoff, text("Cut-off")).range(0, 1000); });
    PropertyEditorPanel panel(list.properties(), &list, nullptr);

    list.setObject(&second);
    panel.updateUI();
    auto *const field = control<QDoubleSpinBox>(panel, text("filter_cut_off"));
    QCOMPARE(field->value(), 100.0);
    field->selectAll();
    QTest::keyClicks(field, text("5"));

    QCOMPARE(list.object(), &second);
    QCOMPARE(second.filter.cutoff, 5.0);
    QCOMPARE(first.filter.cutoff, 440.0);
}

void tst_StructBinding::withoutStructNothingHappens()
{
    StructBinding<Params> list(nullptr);
    Property &row = list.bind(&Params::gain, text("Gain")).property();
    list.group(&Params::filter, text("Filter"),
               [](auto &rows) { rows.bind(&Filter::on, text("On")); });

    list.setValue(&row, 3, IPropertyEditorDelegate::NewChange);
    list.setValue(list.properties().at(2), true, IPropertyEditorDelegate::NewChange);

    QVERIFY(!list.value(&row).isValid());
    QVERIFY(!list.value(list.properties().at(2)).isValid());
    QCOMPARE(row.defaultValue, QVariant(1.5));
}

void tst_StructBinding::actionsCallTheHost()
{
    Params params;
    auto list = bindStruct(&params);
    list.action(text("Reset"), [&params] { params = Params(); });
    PropertyEditorPanel panel(list.properties(), &list, nullptr);
    params.gain = 9;

    panel.findChild<QPushButton *>()->click();

    QCOMPARE(params.gain, 1.5);
}

void tst_StructBinding::callbackMayDeleteTheBinding()
{
    Params params;
    auto list = std::make_unique<StructBinding<Params>>(&params);
    list->bind(&Params::count, text("Count"));
    list->action(text("Close"), [&list] { list.reset(); });
    Property *const row = list->properties().at(1);

    list->setValue(row, QVariant(), IPropertyEditorDelegate::NewChange);

    QVERIFY(!list);
}

void tst_StructBinding::listIsValid()
{
    Params params;
    auto list = bindStruct(&params);
    list.bind(&Params::gain, text("Gain")).range(0, 10).suffix(text(" dB"));
    list.bind(&Params::mode, text("Mode"),
              {{Mode::Fast, text("fast")}, {Mode::Exact, text("exact")}});
    list.group(&Params::filter, text("Filter"),
               [](auto &rows) { rows.bind(&Filter::cutoff, text("Cut-off")).range(0, 1000); });

    QStringList problems;
    for (const Problem &problem : list.list().validate())
        problems.append(problem.message);
    QCOMPARE(problems.join(QLatin1Char('\n')), QString());
}

QTEST_MAIN(tst_StructBinding)
#include "tst_StructBinding.moc"
