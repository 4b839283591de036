#include <host/ObjectBinding.h>
#include <host/UndoDelegate.h>
#include <property/PropertyUI.h>

#include "support/MenuProbe.h"
#include "support/SliderDrag.h"
#include "support/TestEditors.h"

#include <QCheckBox>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QMetaProperty>
#include <QPushButton>
#include <QSignalSpy>
#include <QSlider>
#include <QSpinBox>
#include <QTest>
#include <QUndoStack>

#include <algorithm>
#include <limits>
#include <memory>

using namespace Tessark::PropertyUI;
using namespace Tessark::PropertyHost;
using TestSupport::MenuProbe;
using TestSupport::TestEditor;

namespace {

constexpr auto kNew = IPropertyEditorDelegate::NewChange;
const QString kTest = QStringLiteral("test");

QString text(const char *ascii)
{
    return QString::fromLatin1(ascii);
}

QStringList messagesOf(const QVector<Problem> &problems)
{
    QStringList messages;
    for (const Problem &problem : problems)
        messages.append(problem.message);
    return messages;
}

PropertyEditor *editorOf(const PropertyEditorPanel &panel, const char *name)
{
    QVector<PropertyEditor *> editors;
    panel.getEditors(editors, QString());
    for (PropertyEditor *editor : editors) {
        if (editor->editedProperty()->name == text(name))
            return editor;
    }
    return nullptr;
}

/// The first control of a kind in the row of a name.
template <typename Control>
Control *control(const PropertyEditorPanel &panel, const char *name)
{
    PropertyEditor *const editor = editorOf(panel, name);
    QWidget *const widget = editor ? editor->widget(nullptr) : nullptr;
    if (!widget)
        return nullptr;
    auto *const self = qobject_cast<Control *>(widget);
    return self ? self : widget->findChild<Control *>();
}

QStringList rowsOf(const ObjectBinding &binding)
{
    QStringList rows;
    for (const Property *property : binding.properties())
        rows.append(property->name + QLatin1Char(':') + property->type);
    return rows;
}

struct Decibel
{
    double number = 0;

    friend bool operator!=(Decibel left, Decibel right) { return left.number != right.number; }
};

} // namespace

Q_DECLARE_METATYPE(Decibel)

template <>
struct Tessark::PropertyHost::StructField<Decibel>
{
    static QString type() { return kPropertyTypeFloat; }
    static QVariant toVariant(Decibel value) { return value.number; }
    static Decibel fromVariant(const QVariant &value) { return {value.toDouble()}; }
};

/// One property of each type.
class Types : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool boolean MEMBER boolean)
    Q_PROPERTY(int integer MEMBER integer)
    Q_PROPERTY(short shortInteger MEMBER shortInteger)
    Q_PROPERTY(ushort unsignedShort MEMBER unsignedShort)
    Q_PROPERTY(signed char signedByte MEMBER signedByte)
    Q_PROPERTY(uchar byte MEMBER byte)
    Q_PROPERTY(uint unsignedInteger MEMBER unsignedInteger)
    Q_PROPERTY(qlonglong wide MEMBER wide)
    Q_PROPERTY(qulonglong unsignedWide MEMBER unsignedWide)
    Q_PROPERTY(double number MEMBER number)
    Q_PROPERTY(float single MEMBER single)
    Q_PROPERTY(QString string MEMBER string)
    Q_PROPERTY(QColor color MEMBER color)
    Q_PROPERTY(QVector2D vector2 MEMBER vector2)
    Q_PROPERTY(QVector3D vector3 MEMBER vector3)
    Q_PROPERTY(QVector4D vector4 MEMBER vector4)
    Q_PROPERTY(QSize size MEMBER size)
    Q_PROPERTY(Mode mode MEMBER mode)

public:
    enum Mode { Fast = 3, Exact = 7, Best = Exact, Broken = -2 };
    Q_ENUM(Mode)

    bool boolean = true;
    int integer = 4;
    short shortInteger = -5;
    ushort unsignedShort = 6;
    signed char signedByte = -7;
    uchar byte = 200;
    uint unsignedInteger = 9;
    qlonglong wide = -10;
    qulonglong unsignedWide = 11;
    double number = 1.5;
    float single = 0.25F;
    QString string = QStringLiteral("first");
    QColor color = Qt::red;
    QVector2D vector2 = {1, 2};
    QVector3D vector3 = {1, 2, 3};
    QVector4D vector4 = {1, 2, 3, 4};
    QSize size = {64, 32};
    Mode mode = Exact;
};

/// A host's object with all that a class can say of its properties.
class Amplifier : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("author", "nobody")
    Q_CLASSINFO("QML.Element", "auto")
    Q_CLASSINFO("gain.label", "Input gain")
    Q_CLASSINFO("gain.range", "0..10..100")
    Q_CLASSINFO("gain.suffix", " dB")
    Q_CLASSINFO("gain.float_decimals", "2")
    Q_CLASSINFO("gain.group", "Levels")
    Q_CLASSINFO("count.range", "-5..20")
    Q_CLASSINFO("mix.type", "percent")
    Q_CLASSINFO("mix.group", "Levels")
    Q_CLASSINFO("mix.default", "0.5")
    Q_CLASSINFO("mode.default", "Slow")
    Q_CLASSINFO("mode.widget", "radio_buttons")
    Q_CLASSINFO("position.range", "0, 0..1, 2")
    Q_PROPERTY(double gain READ gain WRITE setGain RESET resetGain NOTIFY gainChanged)
    Q_PROPERTY(int count READ count WRITE setCount NOTIFY countChanged)
    Q_PROPERTY(float mix MEMBER mix NOTIFY changed)
    Q_PROPERTY(Mode mode MEMBER mode NOTIFY changed)
    Q_PROPERTY(QVector2D position MEMBER position NOTIFY positionChanged)
    Q_PROPERTY(QString name MEMBER name RESET resetName NOTIFY nameChanged)
    Q_PROPERTY(bool silent MEMBER silent)

public:
    enum Mode { Slow = 10, Quick = 20 };
    Q_ENUM(Mode)

    using QObject::QObject;

    double gain() const { return m_gain; }
    void setGain(double gain)
    {
        ++writes;
        gain = std::min(gain, limit);
        if (gain == m_gain)
            return;
        m_gain = gain;
        Q_EMIT gainChanged(gain);
    }
    void resetGain()
    {
        ++resets;
        setGain(2);
    }

    int count() const { return m_count; }
    void setCount(int count)
    {
        m_count = std::max(count, leastCount);
        Q_EMIT countChanged();
    }

    void resetName()
    {
        name = QStringLiteral("plain");
        Q_EMIT nameChanged();
    }

    int writes = 0;
    int resets = 0;
    double limit = 100;
    int leastCount = -5;
    float mix = 0.25F;
    Mode mode = Quick;
    QVector2D position;
    QString name;
    bool silent = false;

Q_SIGNALS:
    void gainChanged(double gain);
    void countChanged();
    void changed();
    void positionChanged();
    void nameChanged();

private:
    double m_gain = 1;
    int m_count = 3;
};

/// Properties that cannot be edited, or are not meant to be.
class Meter : public QObject
{
    Q_OBJECT
    Q_PROPERTY(double peak READ peak NOTIFY peakChanged)
    Q_PROPERTY(QColor color READ color CONSTANT)
    Q_PROPERTY(QString title READ title CONSTANT)
    Q_PROPERTY(bool on READ isOn CONSTANT)
    Q_PROPERTY(QSize size READ size CONSTANT)
    Q_PROPERTY(Unit unit READ unit CONSTANT)
    Q_PROPERTY(int hidden MEMBER hidden DESIGNABLE false)

public:
    enum Unit { Percent = 5, Decibels = 6 };
    Q_ENUM(Unit)

    double peak() const { return m_peak; }
    void setPeak(double peak)
    {
        m_peak = peak;
        Q_EMIT peakChanged();
    }
    QColor color() const { return Qt::blue; }
    QString title() const { return QStringLiteral("Left"); }
    bool isOn() const { return true; }
    QSize size() const { return {3, 4}; }
    Unit unit() const { return Decibels; }

    int hidden = 1;

Q_SIGNALS:
    void peakChanged();

private:
    double m_peak = 0.5;
};

/// What no row shows, and mistakes in what is said.
class Mistaken : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("gian.range", "0..1")
    Q_CLASSINFO("gain.rnage", "0..1")
    Q_CLASSINFO("gain.range", "10..0")
    Q_CLASSINFO("gain.float_decimals", "two")
    Q_CLASSINFO("gain.default", "loud")
    Q_CLASSINFO("gain.type", "vec3")
    Q_CLASSINFO("count.range", "0..1.5")
    Q_CLASSINFO("mode.default", "Neither")
    Q_CLASSINFO("on.range", "0..1")
    Q_CLASSINFO("on.suffix", " dB")
    Q_CLASSINFO("axis.range", "0,0..1,1")
    Q_CLASSINFO("level.range", "0-1")
    Q_PROPERTY(double gain MEMBER number)
    Q_PROPERTY(int count MEMBER count)
    Q_PROPERTY(Mode mode MEMBER mode)
    Q_PROPERTY(bool on MEMBER on)
    Q_PROPERTY(QVector3D axis MEMBER axis)
    Q_PROPERTY(double level MEMBER number)
    Q_PROPERTY(Qt::Alignment alignment MEMBER alignment)
    Q_PROPERTY(QStringList names MEMBER names)

public:
    enum Mode { One, Other };
    Q_ENUM(Mode)

    double number = 0;
    int count = 0;
    Mode mode = One;
    bool on = false;
    QVector3D axis;
    Qt::Alignment alignment;
    QStringList names;
};

class Names : public QObject
{
    Q_OBJECT
    Q_PROPERTY(int highShelfGain MEMBER number)
    Q_PROPERTY(int useHDRMode MEMBER number)
    Q_PROPERTY(int sourceURL MEMBER number)
    Q_PROPERTY(int snake_case MEMBER number)
    Q_PROPERTY(int x2 MEMBER number)
    Q_PROPERTY(int axisY MEMBER number)

public:
    int number = 0;
};

class Base : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("first.label", "From base")
    Q_CLASSINFO("second.label", "From base")
    Q_PROPERTY(int first MEMBER first)
    Q_PROPERTY(int second MEMBER second)

public:
    int first = 1;
    int second = 2;
};

class Derived : public Base
{
    Q_OBJECT
    Q_CLASSINFO("second.label", "From derived")
    Q_PROPERTY(double second MEMBER newSecond)
    Q_PROPERTY(int third MEMBER third)

public:
    double newSecond = 2.5;
    int third = 3;
};

class Knob : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(double angle MEMBER angle)

public:
    double angle = 0;
};

struct Point3
{
    Q_GADGET
    Q_CLASSINFO("x.range", "0..10")
    Q_PROPERTY(double x MEMBER x)
    Q_PROPERTY(int steps READ steps WRITE setSteps RESET resetSteps)

public:
    int steps() const { return m_steps; }
    void setSteps(int steps) { m_steps = steps; }
    void resetSteps() { m_steps = 8; }

    double x = 1;

private:
    int m_steps = 3;
};

class HostTypes : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("loudness.range", "-60..0")
    Q_PROPERTY(Decibel loudness MEMBER loudness)
    Q_PROPERTY(int known MEMBER known)

public:
    Decibel loudness = {-6};
    int known = 1;
};

/// Tells of changes while it is destroyed.
class Farewell : public Amplifier
{
    Q_OBJECT
    Q_PROPERTY(QString extra READ extra NOTIFY changed)

public:
    ~Farewell() override { Q_EMIT changed(); }
    QString extra() const { return m_extra; }

private:
    QString m_extra = QStringLiteral("something long enough to be on the heap");
};

class FarewellOfBase : public Farewell
{
    Q_OBJECT
    Q_PROPERTY(QString more READ more NOTIFY changed)

public:
    QString more() const { return m_more; }

private:
    QString m_more = QStringLiteral("something else that is destroyed before");
};

/// An amplifier in a panel that is shown.
struct Subject
{
    Subject()
    {
        binding->add(amplifier.get());
        panel = std::make_unique<PropertyEditorPanel>(binding->properties(), binding->delegate(),
                                                      nullptr);
        binding->watch(panel.get());
        panel->updateUI();
    }

    Subject(const Subject &) = delete;
    Subject &operator=(const Subject &) = delete;

    void show() const
    {
        panel->resize(500, panel->sizeHint().height());
        panel->show();
        panel->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(panel.get()));
    }

    double shownGain() const { return control<QDoubleSpinBox>(*panel, "gain")->value(); }
    Property *row(const char *name) const { return binding->find(text(name)); }

    std::unique_ptr<Amplifier> amplifier = std::make_unique<Amplifier>();
    std::unique_ptr<ObjectBinding> binding = std::make_unique<ObjectBinding>();
    std::unique_ptr<PropertyEditorPanel> panel;
};

/// An amplifier whose rows have editors that count.
struct Counted
{
    Counted()
    {
        ObjectBindingOptions options;
        options.fieldOf = [](const QMetaProperty &property) -> std::optional<ObjectField> {
            if (property.userType() == QMetaType::Double)
                return ofTestType<double>();
            if (property.userType() == QMetaType::Int)
                return ofTestType<int>();
            if (property.userType() == QMetaType::Float)
                return ofTestType<float>();
            return std::nullopt;
        };
        binding.add(&amplifier, options);
        panel = std::make_unique<PropertyEditorPanel>(binding.properties(), binding.delegate(),
                                                      nullptr);
        binding.watch(panel.get());
        panel->updateUI();
        for (const char *const name : {"gain", "count", "mix"})
            editor(name)->setValueCalls = 0;
    }

    template <typename Value>
    static ObjectField ofTestType()
    {
        ObjectField field = makeObjectField<Value>();
        field.type = kTest;
        return field;
    }

    TestEditor *editor(const char *name) const
    {
        return static_cast<TestEditor *>(editorOf(*panel, name));
    }
    QVector<int> calls() const
    {
        return {editor("gain")->setValueCalls, editor("count")->setValueCalls,
                editor("mix")->setValueCalls};
    }

    Amplifier amplifier;
    ObjectBinding binding;
    std::unique_ptr<PropertyEditorPanel> panel;
};

class tst_ObjectBinding : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void propertiesHaveTheRowsOfTheirTypes();
    void valuesGoBothWays_data();
    void valuesGoBothWays();
    void integersAreBroughtIntoTheirType_data();
    void integersAreBroughtIntoTheirType();
    void numbersHaveTheRangesOfTheirTypes_data();
    void numbersHaveTheRangesOfTheirTypes();
    void enumerationsKeepTheirValues();
    void keysOfOneValueAreOneChoice();
    void labelsAreMadeOfNames_data();
    void labelsAreMadeOfNames();
    void classSaysWhatRowsLookLike();
    void groupsAreWhereTheirFirstRowIs();
    void listOfAGoodClassIsValid();
    void otherTypesHaveNoRow();
    void mistakesAreTold_data();
    void mistakesAreTold();
    void mistakesTellTheirRow();
    void informationOfDerivedClassesWins();
    void inheritedPropertiesAreChosen();
    void widgetsOwnPropertiesCanBeLeftOut();
    void undesignablePropertiesAreLeftOut();
    void typesOfTheHost();
    void emptyWaysHandVariantsOn();
    void prefixesTellObjectsApart();
    void doubledNamesAreTold();

    void readOnlyRowsAreDisabled();
    void readOnlyRowsAreText();
    void readOnlyRowsAreLeftOut();
    void readOnlyRowsTakeNoEdit();

    void notificationIsShownAtOnce();
    void notificationShowsOneEditor();
    void sharedNotificationShowsItsRows();
    void withoutNotificationRefreshShows();
    void ownEditIsNotShownAgain();
    void otherResultOfAnEditIsShown();
    void refusedEditIsTakenBack();
    void dragIsNotDisturbed();
    void dragInSinglePrecisionIsNotDisturbed();
    void typingIsNotDisturbed();
    void changeByOthersDuringARunIsShown();
    void hostCorrectsAnEdit();
    void editsOfOtherRowsFollow();
    void panelsShowEachOthersEdits();
    void panelIsWatchedOnce();
    void undoIsShown();
    void editsAreTold();

    void menuResets();
    void resetValueIsTheDefaultAfterwards();
    void enteredDefaultIsNoReset();
    void withoutResetTheDefaultIsWritten();
    void emptyTextCanBeReset();

    void gadgets();
    void forgottenGadgetIsNotTouched();
    void forgottenObjectIsNotTouched();

    void anyOrderOfDeath_data();
    void anyOrderOfDeath();
    void objectDiesUnderAFocusedField();
    void panelDiesWithAFocusedField();
    void notificationsOfADestructor();
    void panelDiesInANotification();
    void bindingDiesInANotification();
    void allDieInAnEdit_data();
    void allDieInAnEdit();
    void panelDiesInItsMenu();
};

void tst_ObjectBinding::initTestCase()
{
    QLocale::setDefault(QLocale::c());
    PropertyEditorRegistry::Instance()->registerPropertyEditor(kTest, TestEditor::Factory);
}

void tst_ObjectBinding::propertiesHaveTheRowsOfTheirTypes()
{
    Types object;
    ObjectBinding binding;
    binding.add(&object);

    QCOMPARE(rowsOf(binding).join(QLatin1Char(' ')),
             text("boolean:bool integer:int shortInteger:int unsignedShort:int signedByte:int "
                  "byte:int unsignedInteger:int wide:int unsignedWide:int number:float "
                  "single:float string:string color:vec4/color vector2:vec2 vector3:vec3 "
                  "vector4:vec4 size:ivec2/size mode:int/enum"));
    QCOMPARE(messagesOf(binding.validate()), QStringList());
}

void tst_ObjectBinding::valuesGoBothWays_data()
{
    QTest::addColumn<QVariant>("before");
    QTest::addColumn<QVariant>("edited");
    QTest::addColumn<QVariant>("stored");

    const auto row = [](const char *name, const QVariant &before, const QVariant &edited,
                        const QVariant &stored = QVariant()) {
        QTest::newRow(name) << before << edited << (stored.isValid() ? stored : edited);
    };
    row("boolean", true, false);
    row("integer", 4, -40);
    row("shortInteger", -5, 50, QVariant::fromValue<short>(50));
    row("unsignedShort", 6, 60, QVariant::fromValue<ushort>(60));
    row("signedByte", -7, 70, QVariant::fromValue<signed char>(70));
    row("byte", 200, 8, QVariant::fromValue<uchar>(8));
    row("unsignedInteger", 9, 90, 90U);
    row("wide", -10, -100, QVariant::fromValue<qlonglong>(-100));
    row("unsignedWide", 11, 110, QVariant::fromValue<qulonglong>(110));
    row("number", 1.5, -2.25);
    row("single", 0.25, 0.75, 0.75F);
    row("string", text("first"), text("second"));
    row("color", QColor(Qt::red), QColor(1, 2, 3, 4));
    row("vector2", QVector2D(1, 2), QVector2D(5, 6));
    row("vector3", QVector3D(1, 2, 3), QVector3D(5, 6, 7));
    row("vector4", QVector4D(1, 2, 3, 4), QVector4D(5, 6, 7, 8));
    row("size", QSize(64, 32), QSize(100, 200));
    row("mode", 7, -2, QVariant::fromValue(Types::Broken));
}

void tst_ObjectBinding::valuesGoBothWays()
{
    QFETCH(QVariant, before);
    QFETCH(QVariant, edited);
    QFETCH(QVariant, stored);
    const char *const name = QTest::currentDataTag();
    Types object;
    ObjectBinding binding;
    binding.add(&object);
    Property *const row = binding.find(text(name));
    const QVariant shown = binding.delegate()->value(row);
    QCOMPARE(shown, before);
    QCOMPARE(shown.userType(), before.userType()); // a list of choices looks for exactly this

    binding.delegate()->setValue(row, edited, kNew);

    QCOMPARE(object.property(name), stored);
    QCOMPARE(binding.delegate()->value(row), edited);
}

void tst_ObjectBinding::integersAreBroughtIntoTheirType_data()
{
    QTest::addColumn<QVariant>("held");
    QTest::addColumn<int>("shown");
    QTest::addColumn<int>("edited");
    QTest::addColumn<QVariant>("stored");

    constexpr int kMost = std::numeric_limits<int>::max();
    constexpr int kLeast = std::numeric_limits<int>::min();
    constexpr auto kFar = std::numeric_limits<qlonglong>::max();
    QTest::newRow("byte") << QVariant(1) << 1 << 256 << QVariant(255);
    QTest::newRow("signedByte") << QVariant(1) << 1 << -129 << QVariant(-128);
    QTest::newRow("shortInteger") << QVariant(1) << 1 << 40000 << QVariant(32767);
    QTest::newRow("unsignedInteger")
        << QVariant(std::numeric_limits<uint>::max()) << kMost << -1 << QVariant(0);
    QTest::newRow("wide") << QVariant(kFar) << kMost << kLeast << QVariant(kLeast);
    QTest::newRow("unsignedWide") << QVariant(std::numeric_limits<qulonglong>::max()) << kMost << -1
                                  << QVariant(0);
}

void tst_ObjectBinding::integersAreBroughtIntoTheirType()
{
    QFETCH(QVariant, held);
    QFETCH(int, shown);
    QFETCH(int, edited);
    QFETCH(QVariant, stored);
    const char *const name = QTest::currentDataTag();
    Types object;
    object.setProperty(name, held);
    ObjectBinding binding;
    binding.add(&object);
    Property *const row = binding.find(text(name));
    QCOMPARE(binding.delegate()->value(row), QVariant(shown));

    binding.delegate()->setValue(row, edited, kNew);

    QCOMPARE(object.property(name).toLongLong(), stored.toLongLong());
}

void tst_ObjectBinding::numbersHaveTheRangesOfTheirTypes_data()
{
    QTest::addColumn<QVariant>("minimum");
    QTest::addColumn<QVariant>("maximum");

    constexpr int kMost = std::numeric_limits<int>::max();
    QTest::newRow("integer") << QVariant(std::numeric_limits<int>::min()) << QVariant(kMost);
    QTest::newRow("byte") << QVariant(0) << QVariant(255);
    QTest::newRow("unsignedWide") << QVariant(0) << QVariant(kMost);
    QTest::newRow("number") << QVariant(-1e6) << QVariant(1e6);
    QTest::newRow("vector2") << QVariant(QVector2D(-1e6F, -1e6F))
                             << QVariant(QVector2D(1e6F, 1e6F));
    QTest::newRow("string") << QVariant() << QVariant();
}

void tst_ObjectBinding::numbersHaveTheRangesOfTheirTypes()
{
    QFETCH(QVariant, minimum);
    QFETCH(QVariant, maximum);
    Types object;
    ObjectBinding binding;
    binding.add(&object);

    const Property *const row = binding.find(text(QTest::currentDataTag()));

    QCOMPARE(row->minValue, minimum);
    QCOMPARE(row->maxValue, maximum);
    QCOMPARE(row->hardMaxValue, maximum);
}

void tst_ObjectBinding::enumerationsKeepTheirValues()
{
    Types object;
    ObjectBinding binding;
    binding.add(&object);
    PropertyEditorPanel panel(binding.properties(), binding.delegate(), nullptr);
    binding.watch(&panel);
    panel.updateUI();
    auto *const box = control<QComboBox>(panel, "mode");
    QCOMPARE(box->currentText(), text("Exact"));

    QTest::keyClick(box, Qt::Key_Down);

    QCOMPARE(object.mode, Types::Broken);
    QCOMPARE(box->currentText(), text("Broken"));
}

void tst_ObjectBinding::keysOfOneValueAreOneChoice()
{
    Types object;
    ObjectBinding binding;
    binding.add(&object);

    const Property *const row = binding.find(text("mode"));

    QCOMPARE(row->hint(kPropertyHintDisplayValues).toStringList(),
             QStringList({text("Fast"), text("Exact"), text("Broken")}));
    QCOMPARE(row->hint(kPropertyHintValues).toList(), QVariantList({3, 7, -2}));
}

void tst_ObjectBinding::labelsAreMadeOfNames_data()
{
    QTest::addColumn<QString>("label");

    QTest::newRow("highShelfGain") << text("High shelf gain");
    QTest::newRow("useHDRMode") << text("Use HDR mode");
    QTest::newRow("sourceURL") << text("Source URL");
    QTest::newRow("snake_case") << text("Snake case");
    QTest::newRow("x2") << text("X2");
    QTest::newRow("axisY") << text("Axis y");
}

void tst_ObjectBinding::labelsAreMadeOfNames()
{
    QFETCH(QString, label);
    Names object;
    ObjectBinding binding;
    binding.add(&object);

    QCOMPARE(binding.find(text(QTest::currentDataTag()))->label, label);
}

void tst_ObjectBinding::classSaysWhatRowsLookLike()
{
    Amplifier amplifier;
    ObjectBinding binding;
    binding.add(&amplifier);
    const Property *const gain = binding.find(text("gain"));
    const Property *const count = binding.find(text("count"));
    const Property *const mix = binding.find(text("mix"));
    const Property *const mode = binding.find(text("mode"));
    const Property *const position = binding.find(text("position"));

    QCOMPARE(gain->label, text("Input gain"));
    QCOMPARE(gain->minValue, QVariant(0.0));
    QCOMPARE(gain->maxValue, QVariant(10.0));
    QCOMPARE(gain->hardMaxValue, QVariant(100.0));
    QCOMPARE(gain->hint(kPropertyHintSuffix), QVariant(text(" dB")));
    QCOMPARE(gain->hint(kPropertyHintFloatDecimals), QVariant(2));
    QCOMPARE(count->minValue, QVariant(-5));
    QCOMPARE(count->hardMaxValue, QVariant(20));
    QCOMPARE(mix->type, kPropertyTypePercent);
    QCOMPARE(mix->maxValue, QVariant(1.0));
    QCOMPARE(mix->defaultValue, QVariant(0.5));
    QCOMPARE(mode->defaultValue, QVariant(10));
    QCOMPARE(mode->hint(kPropertyHintWidget), QVariant(kWidgetTypeRadioButtons));
    QCOMPARE(position->minValue, QVariant(QVector2D(0, 0)));
    QCOMPARE(position->maxValue, QVariant(QVector2D(1, 2)));
}

void tst_ObjectBinding::groupsAreWhereTheirFirstRowIs()
{
    Amplifier amplifier;
    ObjectBinding binding;
    binding.add(&amplifier);

    QCOMPARE(rowsOf(binding).join(QLatin1Char(' ')),
             text(":begin_group gain:float mix:percent :end_group count:int mode:int/enum "
                  "position:vec2 name:string silent:bool"));
    QCOMPARE(binding.properties().first()->label, text("Levels"));
    QCOMPARE(binding.delegate()->value(binding.properties().first()), QVariant(true));
    binding.delegate()->setValue(binding.properties().first(), false, kNew);
    QCOMPARE(binding.delegate()->value(binding.properties().first()), QVariant(false));
}

void tst_ObjectBinding::listOfAGoodClassIsValid()
{
    Amplifier amplifier;
    Meter meter;
    ObjectBinding binding;
    ObjectBindingOptions options;
    options.readOnly = ReadOnlyRows::StaticText;
    options.prefix = text("meter_");
    binding.add(&amplifier);
    binding.add(&meter, options);

    QCOMPARE(messagesOf(binding.validate()), QStringList());
}

void tst_ObjectBinding::otherTypesHaveNoRow()
{
    Mistaken object;
    ObjectBinding binding;
    binding.add(&object);

    QCOMPARE(rowsOf(binding).join(QLatin1Char(' ')),
             text("gain:float count:int mode:int/enum on:bool axis:vec3 level:float"));
}

void tst_ObjectBinding::mistakesAreTold_data()
{
    QTest::addColumn<QString>("message");
    QTest::addColumn<QString>("pointer");
    QTest::addColumn<bool>("isError");

    const auto row = [](const char *message, const char *pointer, bool isError) {
        QTest::newRow(message) << text(message) << text(pointer) << isError;
    };
    row("class information \"gian.range\" of Mistaken: there is no property \"gian\" (did you mean "
        "\"gain\"?)",
        "", true);
    row("Mistaken: no row shows the property \"names\", of type QStringList", "", false);
    row("class information \"gain.rnage\" of Mistaken: unknown hint (did you mean \"range\"?)",
        "/properties/0", false);
    row("class information \"gain.type\" of Mistaken: a row of type \"vec3\" does not show values "
        "of double",
        "/properties/0/type", true);
    row("class information \"gain.range\" of Mistaken: the bounds of \"10..0\" do not ascend",
        "/properties/0/min", true);
    row("class information \"gain.float_decimals\" of Mistaken: expected a whole number, found a "
        "string",
        "/properties/0/hints/float_decimals", true);
    row("class information \"gain.default\" of Mistaken: expected a number, found a string",
        "/properties/0/default", true);
    row("class information \"count.range\" of Mistaken: \"1.5\": expected a whole number, found "
        "1.5",
        "/properties/1/max", true);
    row("class information \"mode.default\" of Mistaken: Mode has no key \"Neither\"",
        "/properties/2/default", true);
    row("class information \"on.range\" of Mistaken: means nothing for type \"bool\"",
        "/properties/3/min", true);
    row("no editor reads this hint for type \"bool\"", "/properties/3/hints/suffix", false);
    row("class information \"axis.range\" of Mistaken: \"0,0\": expected 3 numbers, found an array "
        "of 2",
        "/properties/4/min", true);
    row("class information \"level.range\" of Mistaken: \"0-1\" is not of the form \"0..10\" or "
        "\"0..10..100\"",
        "/properties/5/min", true);
}

void tst_ObjectBinding::mistakesAreTold()
{
    QFETCH(QString, message);
    QFETCH(QString, pointer);
    QFETCH(bool, isError);
    Mistaken object;
    ObjectBinding binding;
    binding.add(&object);

    const QVector<Problem> problems = binding.validate();

    const auto problem =
        std::find_if(problems.begin(), problems.end(),
                     [&message](const Problem &other) { return other.message == message; });
    QVERIFY2(problem != problems.end(), qPrintable(messagesOf(problems).join(QLatin1Char('\n'))));
    QCOMPARE(problem->pointer, pointer);
    QCOMPARE(problem->severity == Problem::Severity::Error, isError);
}

void tst_ObjectBinding::mistakesTellTheirRow()
{
    Mistaken object;
    ObjectBinding binding;
    binding.add(&object);

    QStringList places;
    for (const Problem &problem : binding.validate())
        places.append(QString::number(problem.row) + problem.name);

    QCOMPARE(places.join(QLatin1Char(' ')),
             text("-1 -1 -1 0gain 0gain 0gain 0gain 0gain 1count 2mode 3on 3on 4axis 4axis "
                  "5level"));
}

void tst_ObjectBinding::informationOfDerivedClassesWins()
{
    Derived object;
    ObjectBinding binding;
    binding.add(&object);

    QCOMPARE(binding.find(text("first"))->label, text("From base"));
    QCOMPARE(binding.find(text("second"))->label, text("From derived"));
}

void tst_ObjectBinding::inheritedPropertiesAreChosen()
{
    const auto rows = [](const QMetaObject *above) {
        Derived object;
        ObjectBinding binding;
        ObjectBindingOptions options;
        options.above = above;
        binding.add(&object, options);
        return rowsOf(binding).join(QLatin1Char(' '));
    };

    QCOMPARE(rows(&QObject::staticMetaObject), text("first:int second:float third:int"));
    QCOMPARE(rows(&Base::staticMetaObject), text("second:float third:int"));
    QCOMPARE(rows(nullptr), text("objectName:string first:int second:float third:int"));
    QCOMPARE(rows(&QWidget::staticMetaObject), rows(nullptr));
}

void tst_ObjectBinding::widgetsOwnPropertiesCanBeLeftOut()
{
    Knob knob;
    ObjectBinding all;
    all.add(&knob);
    ObjectBinding own;
    ObjectBindingOptions options;
    options.above = &QWidget::staticMetaObject;
    own.add(&knob, options);

    QVERIFY(all.find(text("toolTip")));
    QCOMPARE(rowsOf(own).join(QLatin1Char(' ')), text("angle:float"));
}

void tst_ObjectBinding::undesignablePropertiesAreLeftOut()
{
    Meter meter;
    ObjectBinding usual;
    usual.add(&meter);
    ObjectBinding all;
    ObjectBindingOptions options;
    options.withUndesignable = true;
    all.add(&meter, options);

    QVERIFY(!usual.find(text("hidden")));
    QVERIFY(all.find(text("hidden")));
}

void tst_ObjectBinding::typesOfTheHost()
{
    HostTypes object;
    ObjectBinding binding;
    ObjectBindingOptions options;
    options.fieldOf = [](const QMetaProperty &property) -> std::optional<ObjectField> {
        if (property.userType() != qMetaTypeId<Decibel>())
            return std::nullopt;
        ObjectField field = makeObjectField<Decibel>();
        field.prepare = [](PropertyRow row) { row.range(-100, 0).suffix(text(" dB")); };
        return field;
    };
    binding.add(&object, options);
    Property *const row = binding.find(text("loudness"));

    QCOMPARE(rowsOf(binding).join(QLatin1Char(' ')), text("loudness:float known:int"));
    QCOMPARE(row->hint(kPropertyHintSuffix), QVariant(text(" dB")));
    QCOMPARE(row->minValue, QVariant(-60.0)); // what the class says is closer
    QCOMPARE(binding.delegate()->value(row), QVariant(-6.0));
    binding.delegate()->setValue(row, -12.5, kNew);
    QCOMPARE(object.loudness.number, -12.5);
}

void tst_ObjectBinding::emptyWaysHandVariantsOn()
{
    Amplifier amplifier;
    ObjectBinding binding;
    ObjectBindingOptions options;
    options.fieldOf = [](const QMetaProperty &property) -> std::optional<ObjectField> {
        if (property.userType() != QMetaType::Double)
            return std::nullopt;
        return ObjectField{kPropertyTypeFloat, {}, {}, {}};
    };
    binding.add(&amplifier, options);
    Property *const row = binding.find(text("gain"));

    QCOMPARE(binding.delegate()->value(row), QVariant(1.0));
    binding.delegate()->setValue(row, 4.5, kNew);
    QCOMPARE(amplifier.gain(), 4.5);
    QCOMPARE(binding.delegate()->value(row), QVariant(4.5));
}

void tst_ObjectBinding::prefixesTellObjectsApart()
{
    Amplifier left, right;
    ObjectBinding binding;
    ObjectBindingOptions options;
    options.prefix = text("left_");
    binding.add(&left, options);
    options.prefix = text("right_");
    binding.list().group(text("Right"), [&] { binding.add(&right, options); });

    binding.delegate()->setValue(binding.find(text("right_gain")), 4.0, kNew);

    QCOMPARE(left.gain(), 1.0);
    QCOMPARE(right.gain(), 4.0);
    QCOMPARE(messagesOf(binding.validate()), QStringList());
}

void tst_ObjectBinding::doubledNamesAreTold()
{
    Base first, second;
    ObjectBinding binding;
    binding.add(&first);
    binding.add(&second);
    binding.add(static_cast<QObject *>(nullptr));

    QCOMPARE(messagesOf(binding.validate()),
             QStringList({text("the name \"first\" is taken by a row before"),
                          text("the name \"second\" is taken by a row before")}));
    binding.delegate()->setValue(binding.properties().at(2), 9, kNew);
    QCOMPARE(first.first, 1);
    QCOMPARE(second.first, 9);
}

void tst_ObjectBinding::readOnlyRowsAreDisabled()
{
    Meter meter;
    ObjectBinding binding;
    binding.add(&meter);
    PropertyEditorPanel panel(binding.properties(), binding.delegate(), nullptr);
    binding.watch(&panel);
    panel.updateUI();

    for (Property *property : binding.properties()) {
        panel.updateProperty(property);
        const QByteArray name = property->name.toLatin1();
        QVERIFY2(!editorOf(panel, name)->widget(nullptr)->isEnabled(), name);
    }
    QCOMPARE(control<QDoubleSpinBox>(panel, "peak")->value(), 0.5);
    meter.setPeak(0.75);
    QCOMPARE(control<QDoubleSpinBox>(panel, "peak")->value(), 0.75);
}

void tst_ObjectBinding::readOnlyRowsAreText()
{
    Meter meter;
    ObjectBinding binding;
    ObjectBindingOptions options;
    options.readOnly = ReadOnlyRows::StaticText;
    binding.add(&meter, options);
    PropertyEditorPanel panel(binding.properties(), binding.delegate(), nullptr);
    binding.watch(&panel);
    panel.updateUI();

    QCOMPARE(control<QLabel>(panel, "peak")->text(), text("0.5"));
    QCOMPARE(control<QLabel>(panel, "color")->text(), text("#0000ff"));
    QCOMPARE(control<QLabel>(panel, "title")->text(), text("Left"));
    QCOMPARE(control<QLabel>(panel, "on")->text(), text("true"));
    QCOMPARE(control<QLabel>(panel, "size")->text(), text("(3 4)"));
    QCOMPARE(control<QLabel>(panel, "unit")->text(), text("Decibels"));
    meter.setPeak(0.75);
    QCOMPARE(control<QLabel>(panel, "peak")->text(), text("0.75"));
}

void tst_ObjectBinding::readOnlyRowsAreLeftOut()
{
    Meter meter;
    ObjectBinding binding;
    ObjectBindingOptions options;
    options.readOnly = ReadOnlyRows::LeftOut;
    options.withUndesignable = true;
    binding.add(&meter, options);

    QCOMPARE(rowsOf(binding).join(QLatin1Char(' ')), text("hidden:int"));
}

void tst_ObjectBinding::readOnlyRowsTakeNoEdit()
{
    Meter meter;
    ObjectBinding binding;
    binding.add(&meter);
    QSignalSpy changes(&binding, &ObjectBinding::valueChanged);

    binding.delegate()->setValue(binding.find(text("peak")), 0.9, kNew);

    QCOMPARE(meter.peak(), 0.5);
    QCOMPARE(changes.size(), 0);
}

void tst_ObjectBinding::notificationIsShownAtOnce()
{
    Subject subject;

    subject.amplifier->setGain(7.25);
    QCOMPARE(subject.shownGain(), 7.25);
    subject.amplifier->setProperty("name", text("other"));
    QCOMPARE(control<QLineEdit>(*subject.panel, "name")->text(), text("other"));
    subject.amplifier->setProperty("position", QVector2D(0.5F, 1.5F));
    QCOMPARE(editorOf(*subject.panel, "position")->value(), QVariant(QVector2D(0.5F, 1.5F)));
}

void tst_ObjectBinding::notificationShowsOneEditor()
{
    Counted subject;

    subject.amplifier.setGain(7);

    QCOMPARE(subject.calls(), QVector<int>({1, 0, 0}));
    QCOMPARE(subject.editor("gain")->shown, QVariant(7.0));
    QCOMPARE(subject.editor("gain")->valueCalls, 0);
}

void tst_ObjectBinding::sharedNotificationShowsItsRows()
{
    Counted subject;
    subject.amplifier.mix = 0.5F;

    Q_EMIT subject.amplifier.changed();

    QCOMPARE(subject.calls(), QVector<int>({0, 0, 1}));
    QCOMPARE(subject.editor("mix")->shown, QVariant(0.5));
}

void tst_ObjectBinding::withoutNotificationRefreshShows()
{
    Subject subject;

    subject.amplifier->setProperty("silent", true);
    QVERIFY(!control<QCheckBox>(*subject.panel, "silent")->isChecked());
    subject.binding->refresh();

    QVERIFY(control<QCheckBox>(*subject.panel, "silent")->isChecked());
}

void tst_ObjectBinding::ownEditIsNotShownAgain()
{
    Counted subject;

    subject.editor("gain")->edit(5.0);
    subject.editor("gain")->start();
    subject.editor("gain")->edit(6.0);
    subject.editor("gain")->edit(7.0);
    subject.editor("gain")->end();

    QCOMPARE(subject.amplifier.gain(), 7.0);
    QCOMPARE(subject.amplifier.writes, 3);
    QCOMPARE(subject.calls(), QVector<int>({0, 0, 0}));
}

void tst_ObjectBinding::otherResultOfAnEditIsShown()
{
    Counted subject;
    subject.amplifier.limit = 8;

    subject.editor("gain")->edit(9.0);
    QCOMPARE(subject.calls(), QVector<int>({1, 0, 0}));
    QCOMPARE(subject.editor("gain")->shown, QVariant(8.0));

    subject.editor("gain")->start();
    subject.editor("gain")->edit(9.5);
    subject.editor("gain")->edit(10.0);
    QCOMPARE(subject.calls(), QVector<int>({1, 0, 0}));
    subject.editor("gain")->end();
    QCOMPARE(subject.calls(), QVector<int>({2, 0, 0}));
    QCOMPARE(subject.editor("gain")->shown, QVariant(8.0));
}

void tst_ObjectBinding::refusedEditIsTakenBack()
{
    Counted subject;
    subject.amplifier.limit = 1; // so that nothing changes, and nothing is told

    subject.editor("gain")->edit(9.0);

    QCOMPARE(subject.editor("gain")->shown, QVariant(1.0));
}

void tst_ObjectBinding::dragIsNotDisturbed()
{
    Subject subject;
    subject.amplifier->limit = 3;
    subject.show();
    auto *const slider = control<QSlider>(*subject.panel, "gain");
    SliderDrag drag(slider);

    drag.press();
    drag.moveBy(30);
    const int first = slider->value();
    drag.moveBy(60);
    const int second = slider->value();
    QVERIFY(first < second);
    QVERIFY(second > 3000);
    QCOMPARE(subject.amplifier->gain(), 3.0);
    drag.release();

    QCOMPARE(slider->value(), 3000);
    QCOMPARE(subject.shownGain(), 3.0);
}

void tst_ObjectBinding::dragInSinglePrecisionIsNotDisturbed()
{
    Counted subject;

    subject.editor("mix")->edit(0.7); // which a float does not hold
    Q_EMIT subject.amplifier.changed();
    QCOMPARE(subject.calls().at(2), 1); // not in a run: a notification is shown whatever it says
    subject.editor("mix")->start();
    subject.editor("mix")->edit(0.3);
    Q_EMIT subject.amplifier.changed(); // as of an object that tells later
    subject.editor("mix")->end();

    QCOMPARE(subject.calls().at(2), 1);
}

void tst_ObjectBinding::typingIsNotDisturbed()
{
    Subject subject;
    subject.amplifier->leastCount = 5;
    subject.show();
    auto *const box = control<QSpinBox>(*subject.panel, "count");
    box->setFocus();
    box->selectAll();

    QTest::keyClicks(box, text("1"));
    QCOMPARE(box->text(), text("1"));
    QCOMPARE(subject.amplifier->count(), 5);
    QTest::keyClicks(box, text("2"));
    QCOMPARE(box->text(), text("12"));
    QCOMPARE(subject.amplifier->count(), 12);
    box->selectAll();
    QTest::keyClicks(box, text("3"));
    QCOMPARE(box->text(), text("3"));
    control<QLineEdit>(*subject.panel, "name")->setFocus();

    QCOMPARE(box->text(), text("5"));
}

void tst_ObjectBinding::changeByOthersDuringARunIsShown()
{
    Counted subject;
    subject.editor("gain")->start();
    subject.editor("gain")->edit(5.0);

    subject.amplifier.setGain(6);

    QCOMPARE(subject.editor("gain")->shown, QVariant(6.0));
    QCOMPARE(subject.calls(), QVector<int>({1, 0, 0}));
}

void tst_ObjectBinding::hostCorrectsAnEdit()
{
    Counted subject;
    connect(&subject.amplifier, &Amplifier::gainChanged, &subject.amplifier,
            [&subject](double gain) { subject.amplifier.setGain(int(gain)); });

    subject.editor("gain")->edit(4.75);

    QCOMPARE(subject.amplifier.gain(), 4.0);
    QCOMPARE(subject.editor("gain")->shown, QVariant(4.0));
    QCOMPARE(subject.calls(), QVector<int>({1, 0, 0}));
}

void tst_ObjectBinding::editsOfOtherRowsFollow()
{
    Counted subject;
    connect(&subject.amplifier, &Amplifier::gainChanged, &subject.amplifier,
            [&subject](double gain) { subject.amplifier.setCount(int(gain)); });

    subject.editor("gain")->edit(4.0);

    QCOMPARE(subject.editor("count")->shown, QVariant(4));
    QCOMPARE(subject.calls(), QVector<int>({0, 1, 0}));
}

void tst_ObjectBinding::panelsShowEachOthersEdits()
{
    Subject subject;
    PropertyEditorPanel other(subject.binding->properties(), subject.binding->delegate(), nullptr);
    subject.binding->watch(&other);
    other.updateUI();

    control<QSpinBox>(*subject.panel, "count")->setValue(9);
    control<QCheckBox>(*subject.panel, "silent")->click();

    QCOMPARE(control<QSpinBox>(other, "count")->value(), 9);
    QVERIFY(control<QCheckBox>(other, "silent")->isChecked()); // told of by nobody
}

void tst_ObjectBinding::panelIsWatchedOnce()
{
    Counted subject;
    subject.binding.watch(subject.panel.get());
    subject.binding.watch(nullptr);

    subject.amplifier.setGain(7);

    QCOMPARE(subject.calls(), QVector<int>({1, 0, 0}));
}

void tst_ObjectBinding::undoIsShown()
{
    Amplifier amplifier;
    ObjectBinding binding;
    binding.add(&amplifier);
    QUndoStack stack;
    UndoDelegate undo(binding.delegate(), &stack);
    PropertyEditorPanel panel(binding.properties(), &undo, nullptr);
    binding.watch(&panel);
    panel.updateUI();
    control<QSlider>(panel, "gain")->setValue(6000);
    QCOMPARE(amplifier.gain(), 6.0);

    stack.undo();
    QCOMPARE(amplifier.gain(), 1.0);
    QCOMPARE(control<QDoubleSpinBox>(panel, "gain")->value(), 1.0);
    stack.redo();
    QCOMPARE(control<QDoubleSpinBox>(panel, "gain")->value(), 6.0);
}

void tst_ObjectBinding::editsAreTold()
{
    Subject subject;
    QSignalSpy changes(subject.binding.get(), &ObjectBinding::valueChanged);

    subject.binding->delegate()->setValue(subject.row("gain"), 5.0,
                                          IPropertyEditorDelegate::ContinuedChange);
    subject.amplifier->setGain(6);

    QCOMPARE(changes.size(), 1);
    QCOMPARE(changes.first().at(0).value<Property *>(), subject.row("gain"));
    QCOMPARE(changes.first().at(1).toBool(), true);
}

namespace {

void chooseSetToDefault(PropertyEditorPanel &panel, const char *name)
{
    MenuProbe probe([](QMenu *menu) {
        QTest::keyClick(menu, Qt::Key_Down);
        QTest::keyClick(menu, Qt::Key_Return);
    });
    const QPoint position = editorOf(panel, name)->widget(nullptr)->geometry().center();
    QContextMenuEvent event(QContextMenuEvent::Mouse, position, panel.mapToGlobal(position));
    QCoreApplication::sendEvent(&panel, &event);
    QCOMPARE(probe.menus, 1);
    QVERIFY(event.isAccepted());
}

} // namespace

void tst_ObjectBinding::menuResets()
{
    Subject subject;
    subject.show();
    subject.amplifier->setGain(9);
    subject.amplifier->writes = 0;
    QSignalSpy changes(subject.binding.get(), &ObjectBinding::valueChanged);

    chooseSetToDefault(*subject.panel, "gain");

    QCOMPARE(subject.amplifier->resets, 1);
    QCOMPARE(subject.amplifier->writes, 1); // by the reset
    QCOMPARE(subject.amplifier->gain(), 2.0);
    QCOMPARE(subject.shownGain(), 2.0);
    QCOMPARE(changes.size(), 1);
}

void tst_ObjectBinding::resetValueIsTheDefaultAfterwards()
{
    Subject subject;
    subject.show();
    QCOMPARE(subject.row("gain")->defaultValue, QVariant(1.0)); // what it was bound with

    chooseSetToDefault(*subject.panel, "gain");
    QCOMPARE(subject.row("gain")->defaultValue, QVariant(2.0));
    subject.amplifier->setGain(5);
    editorOf(*subject.panel, "gain")->revertToDefaultValue();

    QCOMPARE(subject.amplifier->gain(), 2.0);
}

void tst_ObjectBinding::enteredDefaultIsNoReset()
{
    Subject subject;
    subject.amplifier->setGain(5);

    control<QSlider>(*subject.panel, "gain")->setValue(1000);

    QCOMPARE(subject.amplifier->gain(), 1.0);
    QCOMPARE(subject.amplifier->resets, 0);
}

void tst_ObjectBinding::withoutResetTheDefaultIsWritten()
{
    Subject subject;
    subject.show();

    chooseSetToDefault(*subject.panel, "mode");

    QCOMPARE(subject.amplifier->mode, Amplifier::Slow);
    QVERIFY(subject.row("count")->defaultValue.isNull());
}

void tst_ObjectBinding::emptyTextCanBeReset()
{
    Subject subject;
    subject.show();
    QVERIFY(!subject.row("name")->defaultValue.isNull());

    chooseSetToDefault(*subject.panel, "name");

    QCOMPARE(subject.amplifier->name, text("plain"));
    QCOMPARE(control<QLineEdit>(*subject.panel, "name")->text(), text("plain"));
}

void tst_ObjectBinding::gadgets()
{
    Point3 point;
    ObjectBinding binding;
    binding.add(&point, Point3::staticMetaObject);
    PropertyEditorPanel panel(binding.properties(), binding.delegate(), nullptr);
    binding.watch(&panel);
    panel.updateUI();
    panel.show();
    QCOMPARE(rowsOf(binding).join(QLatin1Char(' ')), text("x:float steps:int"));
    QCOMPARE(control<QDoubleSpinBox>(panel, "x")->maximum(), 10.0);
    QCOMPARE(control<QDoubleSpinBox>(panel, "x")->value(), 1.0);

    control<QSlider>(panel, "x")->setValue(2500);
    QCOMPARE(point.x, 2.5);
    point.x = 4;
    QCOMPARE(control<QDoubleSpinBox>(panel, "x")->value(), 2.5);
    binding.refresh();
    QCOMPARE(control<QDoubleSpinBox>(panel, "x")->value(), 4.0);
    chooseSetToDefault(panel, "steps");
    QCOMPARE(point.steps(), 8);
}

void tst_ObjectBinding::forgottenGadgetIsNotTouched()
{
    auto point = std::make_unique<Point3>();
    ObjectBinding binding;
    binding.add(point.get(), Point3::staticMetaObject);
    PropertyEditorPanel panel(binding.properties(), binding.delegate(), nullptr);
    binding.watch(&panel);
    panel.updateUI();

    binding.forget(point.get());
    point.reset();
    binding.delegate()->setValue(binding.find(text("x")), 3.0, kNew);
    panel.updateUI();

    QVERIFY(!binding.delegate()->value(binding.find(text("x"))).isValid());
    QVERIFY(!editorOf(panel, "x")->widget(nullptr)->isEnabled());
}

void tst_ObjectBinding::forgottenObjectIsNotTouched()
{
    Subject subject;

    subject.binding->forget(subject.amplifier.get());
    subject.amplifier->setGain(5);
    subject.binding->delegate()->setValue(subject.row("gain"), 7.0, kNew);

    QCOMPARE(subject.amplifier->gain(), 5.0);
    QCOMPARE(subject.shownGain(), 1.0);
    QVERIFY(!editorOf(*subject.panel, "gain")->widget(nullptr)->isEnabled());
    QVERIFY(!subject.binding->delegate()->value(subject.row("gain")).isValid());
}

void tst_ObjectBinding::anyOrderOfDeath_data()
{
    QTest::addColumn<QString>("order");

    QString order = text("bop"); // binding, object, panel
    do {
        QTest::newRow(qPrintable(order)) << order;
    } while (std::next_permutation(order.begin(), order.end()));
}

void tst_ObjectBinding::anyOrderOfDeath()
{
    QFETCH(QString, order);
    Subject subject;
    subject.show();
    IPropertyEditorDelegate *const delegate = subject.binding->delegate();
    Property *const gain = subject.row("gain");

    for (const QChar dying : order) {
        if (dying == QLatin1Char('b'))
            subject.binding.reset();
        else if (dying == QLatin1Char('o'))
            subject.amplifier.reset();
        else
            subject.panel.reset();

        if (subject.amplifier)
            subject.amplifier->setGain(subject.amplifier->gain() + 1);
        if (subject.binding)
            subject.binding->refresh();
        if (!subject.panel)
            continue;
        // Only a row with both can be used.
        QVERIFY(!editorOf(*subject.panel, "gain")->widget(nullptr)->isEnabled());
        QVERIFY(!editorOf(*subject.panel, "position")->widget(nullptr)->isEnabled());
        subject.panel->updateProperty(gain);
        subject.panel->updateUI();
        QVERIFY(!editorOf(*subject.panel, "silent")->widget(nullptr)->isEnabled());
        QVERIFY(!delegate->value(gain).isValid());
        delegate->setValue(gain, 3.0, kNew);
        control<QSlider>(*subject.panel, "gain")->setValue(5000);
        QVERIFY(!subject.amplifier || subject.amplifier->gain() < 5);
    }
}

void tst_ObjectBinding::objectDiesUnderAFocusedField()
{
    Subject subject;
    subject.show();
    auto *const box = control<QSpinBox>(*subject.panel, "count");
    box->setFocus();
    QTest::keyClicks(box, text("1"));
    QVERIFY(box->hasFocus());

    subject.amplifier.reset();

    QVERIFY(!box->isEnabled());
    QVERIFY(!box->hasFocus());
}

void tst_ObjectBinding::panelDiesWithAFocusedField()
{
    Subject subject;
    subject.amplifier->leastCount = 5;
    subject.show();
    auto *const box = control<QSpinBox>(*subject.panel, "count");
    box->setFocus();
    box->selectAll();
    QTest::keyClicks(box, text("1")); // so that its run would show another value in the end

    subject.panel.reset();

    QCOMPARE(subject.amplifier->count(), 5);
}

void tst_ObjectBinding::notificationsOfADestructor()
{
    auto object = std::make_unique<FarewellOfBase>();
    ObjectBinding binding;
    binding.add(object.get());
    PropertyEditorPanel panel(binding.properties(), binding.delegate(), nullptr);
    binding.watch(&panel);
    panel.updateUI();
    auto *const more = control<QLineEdit>(panel, "more");
    const QString shown = more->text();
    QVERIFY(shown.startsWith(text("something else")));

    object.reset();

    QCOMPARE(more->text(), shown); // nothing was read of the part that was gone
    QVERIFY(!more->isEnabled());
}

void tst_ObjectBinding::panelDiesInANotification()
{
    Subject subject;
    connect(subject.amplifier.get(), &Amplifier::gainChanged, subject.amplifier.get(),
            [&subject] { subject.panel.reset(); });

    subject.amplifier->setGain(4);
    subject.amplifier->setGain(5);

    QVERIFY(!subject.panel);
}

void tst_ObjectBinding::bindingDiesInANotification()
{
    Subject subject;
    connect(subject.amplifier.get(), &Amplifier::gainChanged, subject.amplifier.get(),
            [&subject] { subject.binding.reset(); });

    subject.amplifier->setGain(4);
    subject.amplifier->setGain(5);

    QVERIFY(!editorOf(*subject.panel, "gain")->widget(nullptr)->isEnabled());
}

void tst_ObjectBinding::allDieInAnEdit_data()
{
    QTest::addColumn<QString>("dying");
    QTest::addColumn<bool>("inNotification");

    for (const char *const dying : {"b", "p", "bp", "pb", "o", "bo", "ob", "op", "bpo", "pbo"}) {
        QTest::addRow("%s when told of the edit", dying) << text(dying) << false;
        // An object that dies in its own setter is a host's mistake.
        if (!text(dying).contains(QLatin1Char('o')))
            QTest::addRow("%s in a notification", dying) << text(dying) << true;
    }
}

void tst_ObjectBinding::allDieInAnEdit()
{
    QFETCH(QString, dying);
    QFETCH(bool, inNotification);
    Subject subject;
    subject.amplifier->limit = 3;
    subject.show();
    const auto die = [&subject, &dying] {
        for (const QChar one : std::as_const(dying)) {
            if (one == QLatin1Char('b'))
                subject.binding.reset();
            else if (one == QLatin1Char('o'))
                subject.amplifier.reset();
            else
                subject.panel.reset();
        }
    };
    if (inNotification)
        connect(subject.amplifier.get(), &Amplifier::gainChanged, subject.amplifier.get(), die);
    else
        connect(subject.binding.get(), &ObjectBinding::valueChanged, subject.binding.get(), die);
    QSlider *const slider = control<QSlider>(*subject.panel, "gain");

    QTest::keyClick(slider, Qt::Key_PageUp);

    QCOMPARE(!subject.binding, dying.contains(QLatin1Char('b')));
    QCOMPARE(!subject.panel, dying.contains(QLatin1Char('p')));
    QCOMPARE(!subject.amplifier, dying.contains(QLatin1Char('o')));
}

void tst_ObjectBinding::panelDiesInItsMenu()
{
    for (const bool withBinding : {false, true}) {
        Subject subject;
        subject.show();
        PropertyEditorPanel *const panel = subject.panel.get();
        const QPoint position = editorOf(*panel, "gain")->widget(nullptr)->geometry().center();
        connect(subject.binding.get(), &ObjectBinding::valueChanged, this, [&] {
            subject.panel.reset();
            if (withBinding)
                subject.binding.reset();
        });
        MenuProbe probe([](QMenu *menu) {
            QTest::keyClick(menu, Qt::Key_Down);
            QTest::keyClick(menu, Qt::Key_Return);
        });
        QContextMenuEvent event(QContextMenuEvent::Mouse, position, panel->mapToGlobal(position));

        QCoreApplication::sendEvent(panel, &event);

        QVERIFY(!subject.panel);
        QCOMPARE(subject.amplifier->resets, 1);
        QCOMPARE(!subject.binding, withBinding);
    }
}

QTEST_MAIN(tst_ObjectBinding)
#include "tst_ObjectBinding.moc"
