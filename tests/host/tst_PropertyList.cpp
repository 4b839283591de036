#include <host/HostHints.h>
#include <host/PropertyList.h>
#include <host/PropertyListReader.h>
#include <host/ValueJson.h>

#include <property/PropertyUI.h>
#include <property/editors/ImageFormatEditor.h>
#include <property/editors/StringPropertyEditor.h>

#include <support/PictureFolder.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QGenericMatrix>
#include <QJsonArray>
#include <QJsonDocument>
#include <QTest>

#include <memory>
#include <stdexcept>

using namespace Tessark::PropertyHost;
using namespace Tessark::PropertyUI;

using PropertyPointer = std::shared_ptr<Property>; // a property has no default
Q_DECLARE_METATYPE(PropertyPointer)

namespace {

QStringList texts(const QVector<Problem> &problems)
{
    QStringList result;
    for (const Problem &problem : problems)
        result.append(problem.toString(QStringLiteral("f")).mid(3));
    return result;
}

QStringList typesOf(const PropertyList &list)
{
    QStringList result;
    const auto properties = list.properties();
    for (const Property *property : properties)
        result.append(property->type);
    return result;
}

QByteArray bytesOf(const PropertyList &list)
{
    return QJsonDocument(list.toJson()).toJson();
}

QByteArray documentOf(const QByteArray &rows)
{
    return R"({"version": 1, "properties": [)" + rows + "]}";
}

bool isSameTextures(const QVariant &left, const QVariant &right)
{
    const QVariantList lefts = left.toList();
    const QVariantList rights = right.toList();
    if (lefts.size() != rights.size())
        return false;
    for (int i = 0; i < lefts.size(); ++i) {
        const auto one = lefts.at(i).value<TextureChoice>();
        const auto other = rights.at(i).value<TextureChoice>();
        if (one.name != other.name || one.image != other.image)
            return false;
    }
    return true;
}

bool isSameHint(const QString &key, const QVariant &left, const QVariant &right)
{
    if (left.userType() != right.userType())
        return false;
    if (key == kHostHintTextures)
        return isSameTextures(left, right);
    // Fonts are the same when they say the same whatever font stands behind them.
    const QFont behind(QStringLiteral("Behind"), 31, QFont::Bold, true);
    if (left.userType() == QMetaType::QFont)
        return left.value<QFont>() == right.value<QFont>()
               && left.value<QFont>().resolve(behind) == right.value<QFont>().resolve(behind);
    return left == right;
}

/// What differs between two properties, or nothing.
QString difference(const Property &left, const Property &right)
{
    if (left.name != right.name || left.label != right.label || left.type != right.type)
        return QStringLiteral("name, label or type");
    if (left.minValue != right.minValue || left.maxValue != right.maxValue
        || left.hardMaxValue != right.hardMaxValue)
        return QStringLiteral("range");
    if (left.defaultValue.userType() != right.defaultValue.userType()
        || !isSameValue(left, left.defaultValue, right.defaultValue))
        return QStringLiteral("default");
    if (left.hints.keys() != right.hints.keys())
        return QStringLiteral("keys of hints");
    for (auto hint = left.hints.constBegin(); hint != left.hints.constEnd(); ++hint) {
        if (!isSameHint(hint.key(), hint.value(), right.hint(hint.key())))
            return QStringLiteral("hint ") + hint.key();
    }
    return {};
}

QString difference(const PropertyList &left, const PropertyList &right)
{
    const auto lefts = left.properties();
    const auto rights = right.properties();
    if (left.title() != right.title() || lefts.size() != rights.size())
        return QStringLiteral("title or number of rows");
    for (int i = 0; i < lefts.size(); ++i) {
        const QString found = difference(*lefts.at(i), *rights.at(i));
        if (!found.isEmpty())
            return QStringLiteral("row %1: %2").arg(i).arg(found);
    }
    return {};
}

/// Writes the list, reads it again, and says what became different.
QString lossOnTheWay(const PropertyList &list)
{
    const auto again = readPropertyList(bytesOf(list), list.folder());
    if (!again.problems.isEmpty())
        return texts(again.problems).join(QLatin1Char('\n'));
    return difference(list, again.list);
}

QByteArray contentsOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

class tst_PropertyList : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void buildersMakeTheirTypes();
    void rowSaysEverything();
    void choicesGrowTogether();
    void conditionsAreJoined();
    void groupsAndTabsCloseByThemselves();
    void groupClosesAfterAnException();
    void addressesAreStable();
    void lifetimeEndsWithTheProperties();

    void filesComeBackEqual_data();
    void filesComeBackEqual();
    void hintsComeBackEqual_data();
    void hintsComeBackEqual();
    void valuesComeBackEqual_data();
    void valuesComeBackEqual();
    void builtListComesBackEqual();
    void pathsAndTexturesComeBackEqual();
    void whatHasNoJsonFormIsLeftOut();

    void validListHasNoProblems();
    void problems_data();
    void problems();
    void kindsOfDefaults_data();
    void kindsOfDefaults();
    void positionsAreThoseOfTheDocument();
    void checkingTellsMoreThanReading();
    void problemsComeInOrderOfRows();

private:
    PictureFolder m_pictures;
};

void tst_PropertyList::initTestCase()
{
    PropertyEditorPanel::InitialiseRegistry();
    // Types that are vocabulary for hosts get an editor, so that their rows are read.
    for (const QString &type :
         {kPropertyTypeColorRGB, kPropertyTypePoint, kPropertyTypePointF, kPropertyTypeAngle,
          kPropertyTypeSizeF, kPropertyTypeRect, kPropertyTypeRectF, QStringLiteral("host/own")})
        PropertyEditorRegistry::Instance()->registerPropertyEditor(type,
                                                                   StringPropertyEditor::Factory);
    m_pictures.addPicture(QStringLiteral("dot.png"), Qt::red);
}

void tst_PropertyList::buildersMakeTheirTypes()
{
    PropertyList list;
    using Maker = PropertyRow (PropertyList::*)(const QString &, const QString &);
    const std::pair<Maker, QString> makers[] = {
        {&PropertyList::number, kPropertyTypeFloat},
        {&PropertyList::integer, kPropertyTypeInteger},
        {&PropertyList::percent, kPropertyTypePercent},
        {&PropertyList::boolean, kPropertyTypeBoolean},
        {&PropertyList::string, kPropertyTypeString},
        {&PropertyList::text, kPropertyTypeText},
        {&PropertyList::filename, kPropertyTypeFilename},
        {&PropertyList::staticText, kPropertyTypeStaticText},
        {&PropertyList::choice, kPropertyTypeEnumeration},
        {&PropertyList::vec2, kPropertyTypeVec2},
        {&PropertyList::vec3, kPropertyTypeVec3},
        {&PropertyList::vec4, kPropertyTypeVec4},
        {&PropertyList::color, kPropertyTypeColor},
        {&PropertyList::size, kPropertyTypeSize},
        {&PropertyList::renderSize, kPropertyTypeRenderSize},
        {&PropertyList::transform2D, kPropertyTypeTransform2D},
        {&PropertyList::image, kPropertyTypeImage},
        {&PropertyList::imageFormat, kPropertyTypeImageFormat},
        {&PropertyList::texture, kPropertyTypeTexture},
        {&PropertyList::action, kPropertyTypeAction},
    };
    for (const auto &[maker, type] : makers) {
        const Property &property =
            (list.*maker)(QStringLiteral("n"), QStringLiteral("L")).property();
        QCOMPARE(property.type, type);
        QCOMPARE(property.name, QStringLiteral("n"));
        QCOMPARE(property.label, QStringLiteral("L"));
    }
    QCOMPARE(list.separator().property().type, kPropertyTypeSeparator);
    QCOMPARE(list.properties().size(), int(std::size(makers)) + 1);
}

void tst_PropertyList::rowSaysEverything()
{
    PropertyList list;
    const QFont font(QStringLiteral("Some"), 7);
    const QVector<TextureChoice> textures{{QStringLiteral("a"), QImage(), QIcon()}};
    const Property &row =
        list.add(QStringLiteral("host/own"), QStringLiteral("a"), QStringLiteral("A"))
            .range(1, 5, 9)
            .defaultValue(2)
            .fullWidth()
            .font(font)
            .size({1, 2})
            .styleSheet(QStringLiteral("color: red"))
            .minimumFollows(QStringLiteral("low"))
            .maximumFollows(QStringLiteral("high"))
            .enabled(false)
            .hideLabel()
            .alignment(Qt::AlignTop | Qt::AlignRight)
            .nativeDialogs()
            .tabPosition(QTabWidget::West)
            .radioButtons()
            .suffix(QStringLiteral(" m"))
            .help(QStringLiteral("Help."))
            .decimals(3)
            .displayScale(0.5)
            .logarithmicSlider()
            .showSliders()
            .showMultipleCheck()
            .aspectRatio({4, 3})
            .fullSize({640, 480})
            .noPosition()
            .noRotation()
            .noScale()
            .uniformScale()
            .collapsibleScale(false)
            .textures(textures)
            .foreground(Qt::red)
            .background(Qt::blue)
            .orientation(Qt::Vertical)
            .minimumSize({3, 4})
            .maximumSize({5, 6})
            .preferencesKey(QStringLiteral("k"))
            .choices({QStringLiteral("x")})
            .hint(QStringLiteral("own"), 7)
            .property();

    QCOMPARE(row.minValue, QVariant(1));
    QCOMPARE(row.maxValue, QVariant(5));
    QCOMPARE(row.hardMaxValue, QVariant(9));
    QCOMPARE(row.defaultValue, QVariant(2));
    const QMap<QString, QVariant> expected{
        {kPropertyHintFullWidth, true},
        {kPropertyHintFont, font},
        {kPropertyHintSize, QSize(1, 2)},
        {kPropertyHintStyleSheet, QStringLiteral("color: red")},
        {kHostHintMinimumFollows, QStringLiteral("low")},
        {kHostHintMaximumFollows, QStringLiteral("high")},
        {kHostHintHelp, QStringLiteral("Help.")},
        {kPropertyHintEnabled, false},
        {kPropertyHintBoolHideLabel, true},
        {kPropertyHintAlignment, int(Qt::AlignTop | Qt::AlignRight)},
        {kPropertyHintUseNativeDialogs, true},
        {kPropertyHintTabPosition, int(QTabWidget::West)},
        {kPropertyHintWidget, kWidgetTypeRadioButtons},
        {kPropertyHintSuffix, QStringLiteral(" m")},
        {kPropertyHintFloatDecimals, 3},
        {kPropertyHintDisplayScale, 0.5},
        {kPropertyHintLogarithmicSlider, true},
        {kPropertyHintShowSliders, true},
        {kPropertyHintShowMultipleCheck, true},
        {kPropertyHintAspectRatio, QSize(4, 3)},
        {kPropertyHintFullSize, QSize(640, 480)},
        {kPropertyHintXfrmNoPosition, true},
        {kPropertyHintXfrmNoRotation, true},
        {kPropertyHintXfrmNoScale, true},
        {kPropertyHintXfrmUniformScale, true},
        {kPropertyHintXfrmCollapsibleScale, false},
        {kPropertyHintForeground, QColor(Qt::red)},
        {kPropertyHintBackground, QColor(Qt::blue)},
        {kPropertyHintOrientation, int(Qt::Vertical)},
        {kPropertyHintMinimumSize, QSize(3, 4)},
        {kPropertyHintMaximumSize, QSize(5, 6)},
        {kPropertyHintPreferencesKey, QStringLiteral("k")},
        {kPropertyHintDisplayValues, QStringList{QStringLiteral("x")}},
        {QStringLiteral("own"), 7},
    };
    for (auto hint = expected.constBegin(); hint != expected.constEnd(); ++hint)
        QVERIFY2(row.hint(hint.key()) == hint.value(), qPrintable(hint.key()));
    QCOMPARE(row.hint(kHostHintTextures).toList().value(0).value<TextureChoice>().name,
             QStringLiteral("a"));
    QCOMPARE(row.hints.size(), expected.size() + 1);
}

void tst_PropertyList::choicesGrowTogether()
{
    PropertyList list;
    const Property &row = list.choice(QStringLiteral("mode"), QStringLiteral("Mode"))
                              .choice(QStringLiteral("a"), QStringLiteral("A"))
                              .choice(2, QStringLiteral("B"))
                              .defaultValue(2)
                              .property();

    QCOMPARE(row.hint(kPropertyHintValues), QVariant(QVariantList{QStringLiteral("a"), 2}));
    QCOMPARE(row.hint(kPropertyHintDisplayValues),
             QVariant(QStringList{QStringLiteral("A"), QStringLiteral("B")}));
    QCOMPARE(texts(list.validate()), QStringList());
}

void tst_PropertyList::conditionsAreJoined()
{
    PropertyList list;
    list.boolean(QStringLiteral("a"), QString());
    list.boolean(QStringLiteral("b"), QString());
    const Property &one =
        list.boolean(QStringLiteral("c"), QString()).visibleWhen(QStringLiteral("a")).property();
    const Property &two = list.boolean(QStringLiteral("d"), QString())
                              .enabledWhen(QStringLiteral("a"))
                              .enabledWhen(QStringLiteral("b"))
                              .property();

    QCOMPARE(one.hint(kHostHintVisibleWhen), QVariant(QStringLiteral("a")));
    QCOMPARE(two.hint(kHostHintEnabledWhen),
             QVariant(QStringList{QStringLiteral("a"), QStringLiteral("b")}));
    QCOMPARE(lossOnTheWay(list), QString());
}

void tst_PropertyList::groupsAndTabsCloseByThemselves()
{
    PropertyList list;
    const PropertyRow group = list.group(QStringLiteral("G"), [&] {
        list.boolean(QStringLiteral("a"), QString());
        list.group(QString(), [&] { list.separator(); });
    });
    const PropertyRow tabs = list.tabs([&] {
        list.tab(QStringLiteral("T"), [&] { list.boolean(QStringLiteral("b"), QString()); });
        list.tab(QStringLiteral("U"), [] {});
    });

    QCOMPARE(group.property().label, QStringLiteral("G"));
    QCOMPARE(tabs.property().type, kPropertyTypeBeginTabGroup);
    QCOMPARE(typesOf(list).join(QLatin1Char(' ')),
             QStringLiteral("begin_group bool begin_group separator end_group end_group "
                            "begin_tab_group tab bool tab end_tab_group"));
    QCOMPARE(texts(list.validate()), QStringList());
}

void tst_PropertyList::groupClosesAfterAnException()
{
    PropertyList list;
    QVERIFY_EXCEPTION_THROWN(list.group(QString(), [] { throw std::runtime_error("no"); }),
                             std::runtime_error);

    QCOMPARE(typesOf(list), (QStringList{kPropertyTypeBeginGroup, kPropertyTypeEndGroup}));
}

void tst_PropertyList::addressesAreStable()
{
    PropertyList list;
    const PropertyRow first = list.boolean(QStringLiteral("first"), QString());
    for (int i = 0; i < 1000; ++i)
        list.separator();
    const PropertyList moved = std::move(list);

    QCOMPARE(moved.properties().first(), &first.property());
    QCOMPARE(first.property().name, QStringLiteral("first"));
}

void tst_PropertyList::lifetimeEndsWithTheProperties()
{
    auto list = std::make_unique<PropertyList>();
    const auto lifetime = list->lifetime();
    {
        const PropertyList moved = std::move(*list);
        list.reset();
        QVERIFY(!lifetime.expired());
    }
    QVERIFY(lifetime.expired());
}

void tst_PropertyList::filesComeBackEqual_data()
{
    QTest::addColumn<QString>("path");
    const QDir gallery(QStringLiteral(TESSARK_SOURCE_DIR "/docs/gallery"));
    const QStringList names = gallery.entryList({QStringLiteral("*.json")});
    QVERIFY(!names.isEmpty());
    for (const QString &name : names)
        QTest::newRow(qPrintable(name)) << gallery.filePath(name);
    QTest::newRow("built-in list")
        << QStringLiteral(TESSARK_SOURCE_DIR "/tools/property-panel/builtin.json");
}

void tst_PropertyList::filesComeBackEqual()
{
    QFETCH(QString, path);

    const auto result = readPropertyList(contentsOf(path), QFileInfo(path).path());
    QCOMPARE(texts(result.problems), QStringList());
    QVERIFY(!result.list.properties().isEmpty());

    QCOMPARE(lossOnTheWay(result.list), QString());
    QCOMPARE(texts(result.list.validate()), QStringList());
}

void tst_PropertyList::hintsComeBackEqual_data()
{
    QTest::addColumn<QByteArray>("hint");
    for (const char *hint : {R"("enabled": false)",
                             R"("full_width": true)",
                             R"("foreground": "#12345678")",
                             R"("background": [0.1, 0.2, 0.3])",
                             R"("font": "Some Font")",
                             R"("font": "Some, 7.5")",
                             R"("font": {"bold": true})",
                             R"("font": {"italic": false, "size": 9})",
                             R"("font": {"family": "F", "size": 9, "bold": false, "italic": true})",
                             R"("font": {})",
                             R"("alignment": "left")",
                             R"("alignment": ["right", "top"])",
                             R"("alignment": "center")",
                             R"("alignment": "justify|bottom|vcenter")",
                             R"("orientation": "horizontal")",
                             R"("orientation": "vertical")",
                             R"("size": [3, 4])",
                             R"("minimum_size": [0, -1])",
                             R"("maximum_size": [2147483647, 1])",
                             R"("widget": "slider")",
                             R"("preferences_key": "a/b")",
                             R"("style_sheet": "")",
                             R"("tab_position": "north")",
                             R"("tab_position": "east")",
                             R"("values": [1, "1", true, 0.1, ""])",
                             R"("values": [])",
                             R"("display_values": ["", "ü"])",
                             R"("display_values": [])",
                             R"("show_multiple_check": true)",
                             R"("show_sliders": false)",
                             R"("logarithmic_slider": true)",
                             R"("display_scale": 0.1)",
                             R"("aspect_ratio": [16, 9])",
                             R"("full_size": [1, 1])",
                             R"("boolean_hide_label": true)",
                             R"("xfrm_no_rotation": true)",
                             R"("xfrm_no_position": true)",
                             R"("xfrm_no_scale": true)",
                             R"("float_decimals": -3)",
                             R"("suffix": " \u00b0")",
                             R"("xfrm_uniform_scale": true)",
                             R"("xfrm_collapsible_scale": true)",
                             R"("use_native_dialogs": false)",
                             R"("textures": [])",
                             R"("textures": ["dot.png", {"name": "Dot", "file": "./dot.png"}])",
                             R"("help": "What it is for.\n<b>")",
                             R"("visible_when": "true")",
                             R"("enabled_when": ["true", "not false"])",
                             R"("visible_when": ["1 < 2"])",
                             R"("my_own": {"a": [1, 2.5, null, "x"]})",
                             R"("my_own": null)",
                             R"("my_own": 9007199254740991)"})
        QTest::newRow(hint) << QByteArray(hint);
}

void tst_PropertyList::hintsComeBackEqual()
{
    QFETCH(QByteArray, hint);

    const auto result = readPropertyList(
        documentOf(R"({"name": "a", "type": "bool", "hints": {)" + hint + "}}"), m_pictures.path());
    QVERIFY2(!hasErrors(result.problems), qPrintable(texts(result.problems).join(QString())));
    QCOMPARE(result.list.properties().first()->hints.size(), 1);

    const auto again = readPropertyList(bytesOf(result.list), m_pictures.path());

    QCOMPARE(difference(result.list, again.list), QString());
}

void tst_PropertyList::valuesComeBackEqual_data()
{
    QTest::addColumn<QByteArray>("row");
    for (const char *row :
         {R"("type": "bool", "default": false)",
          R"("type": "int", "min": -2147483648, "max": 2147483647, "default": 7)",
          R"("type": "int", "min": 1, "max": 2, "hardMax": 3)",
          R"("type": "float", "min": -0.1, "max": 1e300, "hardMax": 1.5e300, "default": 0.3)",
          R"("type": "percent", "max": 1, "default": 0.125)",
          R"("type": "vec2", "min": -1, "max": [1, 2.1], "default": "0.5 1.5")",
          R"("type": "vec3", "min": "-1", "max": "1 .5 1e2", "hardMax": 200)",
          R"("type": "vec4", "max": [1e-7, 3.3, 1e30, 16777217], "default": 1e-8)",
          R"("type": "int/enum", "default": 1, "hints": {"display_values": ["a", "b"]})",
          R"("type": "int/enum", "default": "1", "hints": {"display_values": ["a", "b"],
             "values": [1, "1"]})",
          R"("type": "vec4/color", "default": "steelblue")",
          R"("type": "vec4/color", "default": [0.123, 0.5, 1, 0.001])",
          R"("type": "vec3/color", "default": "#010203")",
          R"("type": "image", "default": "dot.png")",
          R"("type": "image", "default": "")",
          R"("type": "string", "default": "")",
          R"("type": "static_text", "default": "\u00fc\n")",
          R"("type": "text", "default": "a\nb", "label": "")",
          R"("type": "filename", "default": "/tmp/x", "label": "File")",
          R"("type": "ivec2/point", "min": [0, 0], "max": [9, 9], "default": [1, 2])",
          R"("type": "vec2/point", "min": [0, 0.5], "default": "1 2")",
          R"("type": "angle", "min": -180, "max": 180, "default": 0.1)",
          R"("type": "ivec2/size", "default": [640, 480])",
          R"("type": "vec2/size", "default": [0.1, 4.5])",
          R"("type": "ivec4/rect", "default": [-1, 2, 3, 4])",
          R"("type": "vec4/rect", "default": [0.1, 2, 3, 4])",
          R"("type": "render_size", "default": [1920, 1080])",
          R"("type": "image_format", "default": {"format": "tiff", "compressionRate": 3})",
          R"("type": "image_format", "default": {"format": "bmp"})",
          R"("type": "transform2D", "default": [1, 0.1, 0, 0, 1e-9, 0, 7, 0, 1])",
          R"("type": "transform2D", "default": "1 0 0 0 1 0 0 0 1")",
          R"("type": "texture", "default": "dot.png")",
          R"("type": "texture", "default": null)",
          R"("type": "texture", "default": "Dot", "hints": {"textures": [{"name": "Dot",
             "file": "dot.png"}]})",
          R"("type": "host/own", "min": "x", "max": [1], "default": {"k": [1, null]})",
          R"("type": "separator")",
          R"("type": "action", "label": "Go")"})
        QTest::newRow(row) << QByteArray(row);
}

void tst_PropertyList::valuesComeBackEqual()
{
    QFETCH(QByteArray, row);

    const auto result =
        readPropertyList(documentOf(R"({"name": "a",)" + row + "}"), m_pictures.path());
    QCOMPARE(texts(result.problems), QStringList());
    QCOMPARE(result.list.properties().size(), 1);

    QCOMPARE(lossOnTheWay(result.list), QString());
}

void tst_PropertyList::builtListComesBackEqual()
{
    PropertyList list;
    list.setTitle(QStringLiteral("Built"));
    list.boolean(QStringLiteral("on"), QStringLiteral("Active")).defaultValue(true);
    list.group(QStringLiteral("Sound"),
               [&] {
                   list.number(QStringLiteral("gain"), QStringLiteral("Gain"))
                       .range(0.0, 10.0)
                       .suffix(QStringLiteral(" dB"))
                       .defaultValue(1.0)
                       .maximumFollows(QStringLiteral("limit * 2"));
                   list.number(QStringLiteral("limit"), QStringLiteral("limit")).range(0.0, 10.0);
               })
        .visibleWhen(QStringLiteral("on"));
    list.image(QStringLiteral("none"), QString());

    QCOMPARE(texts(list.validate()), QStringList());
    QCOMPARE(lossOnTheWay(list), QString());
}

void tst_PropertyList::pathsAndTexturesComeBackEqual()
{
    const auto result =
        readPropertyList(documentOf(R"({"name": "a", "type": "texture", "default": "./dot.png",
            "hints": {"textures": ["dot.png", {"name": "D", "file": "dot.png"}]}})"),
                         m_pictures.path());
    QCOMPARE(texts(result.problems), QStringList());

    const QJsonObject row =
        result.list.toJson().value(QLatin1String("properties")).toArray().first().toObject();

    QCOMPARE(row.value(QLatin1String("default")), QJsonValue(QStringLiteral("./dot.png")));
    const QJsonArray textures =
        row.value(QLatin1String("hints")).toObject().value(QLatin1String("textures")).toArray();
    QCOMPARE(textures.first(), QJsonValue(QStringLiteral("dot.png")));
    QCOMPARE(textures.last().toObject().value(QLatin1String("name")),
             QJsonValue(QStringLiteral("D")));
}

void tst_PropertyList::whatHasNoJsonFormIsLeftOut()
{
    PropertyList list;
    QImage drawn(2, 2, QImage::Format_ARGB32);
    drawn.fill(Qt::red);
    list.image(QStringLiteral("a"), QString()).defaultValue(drawn);
    list.texture(QStringLiteral("b"), QString())
        .textures({{QStringLiteral("drawn"), drawn, QIcon()}});
    list.staticText(QStringLiteral("c"), QString())
        .hint(kPropertyHintAlignment, int(Qt::AlignAbsolute));
    list.staticText(QStringLiteral("d"), QString()).hint(kPropertyHintOrientation, 7);

    const QJsonArray rows = list.toJson().value(QLatin1String("properties")).toArray();

    QVERIFY(!rows.at(0).toObject().contains(QLatin1String("default")));
    for (int i = 1; i < 4; ++i)
        QVERIFY(!rows.at(i).toObject().contains(QLatin1String("hints")));
}

void tst_PropertyList::validListHasNoProblems()
{
    PropertyList list;
    list.choice(QStringLiteral("mode"), QStringLiteral("Mode"))
        .choices({QStringLiteral("A"), QStringLiteral("B")})
        .defaultValue(1);
    list.vec3(QStringLiteral("v"), QString())
        .range(QVector3D(), QVector3D(1, 2, 3))
        .defaultValue(QStringLiteral("0 1 2"))
        .showSliders();
    list.add(QStringLiteral("host/own"), QStringLiteral("own"), QString())
        .suffix(QStringLiteral("x"));

    QCOMPARE(texts(list.validate()), QStringList());
}

void tst_PropertyList::problems_data()
{
    QTest::addColumn<PropertyPointer>("property");
    QTest::addColumn<QStringList>("problems"); // behind "/properties/0"
    const auto make = [](const QString &type) {
        return Property(QStringLiteral("a"), QString(), type);
    };
    const auto row = [](const char *name, const Property &property, const QString &problem) {
        QTest::newRow(name) << std::make_shared<Property>(property) << QStringList{problem};
    };
    row("no name", Property(QString(), QString(), kPropertyTypeBoolean),
        QStringLiteral("error: : \"name\" is missing"));
    row("unknown type", make(QStringLiteral("flaot")),
        QStringLiteral("warning: /type: no editor for type \"flaot\", the row is skipped (did you "
                       "mean \"float\"?)"));
    row("group left open", make(kPropertyTypeBeginGroup),
        QStringLiteral("error: /type: this group is never closed, \"end_group\" is missing"));
    row("reversed range", make(kPropertyTypeInteger).setRange(5, 1),
        QStringLiteral("error: /min: 5 is above \"max\", which is 1"));
    row("hard maximum below the maximum", make(kPropertyTypeFloat).setRange(0.0, 5.0, 4.0),
        QStringLiteral("error: /max: 5 is above \"hardMax\", which is 4"));
    row("no maximum", make(kPropertyTypeFloat),
        QStringLiteral("warning: : \"max\" is missing and counts as 0"));
    row("bound that is no number", make(kPropertyTypeFloat).setRange(QStringLiteral("low"), 5.0),
        QStringLiteral("error: /min: the bound is not a number"));
    row("range of a text", make(kPropertyTypeString).setRange(0, QVariant()),
        QStringLiteral("warning: /min: means nothing for type \"string\", ignored"));
    row("default above the range", make(kPropertyTypeInteger).setRange(0, 5).setDefaultValue(6),
        QStringLiteral("warning: /default: 6 is outside of the range"));
    row("default of an action", make(kPropertyTypeAction).setDefaultValue(1),
        QStringLiteral("error: /default: a property of type \"action\" has no value"));
    row("unknown hint", make(kPropertyTypeBoolean).setHint(QStringLiteral("enabld"), 1),
        QStringLiteral("warning: /hints/enabld: unknown hint (did you mean \"enabled\"?)"));
    row("hint that no editor reads",
        make(kPropertyTypeString).setHint(kPropertyHintSuffix, QStringLiteral(" m")),
        QStringLiteral("warning: /hints/suffix: no editor reads this hint for type \"string\""));
    row("textures of a text", make(kPropertyTypeString).setHint(kHostHintTextures, QVariantList()),
        QStringLiteral("warning: /hints/textures: no editor reads this hint for type \"string\""));
    row("fewer values than texts",
        make(kPropertyTypeEnumeration)
            .setHint(kPropertyHintValues, QVariantList{1, 2})
            .setHint(kPropertyHintDisplayValues, QStringList{QStringLiteral("x")}),
        QStringLiteral("warning: /hints/values: 2 values for 1 \"display_values\""));
    row("rule with a mistake",
        make(kPropertyTypeBoolean).setHint(kHostHintVisibleWhen, QStringLiteral("b")),
        QStringLiteral("error: /hints/visible_when: character 1: there is no property \"b\""));
}

void tst_PropertyList::problems()
{
    QFETCH(PropertyPointer, property);
    QFETCH(QStringList, problems);
    PropertyList list;
    list.append(*property);

    const auto found = list.validate();

    QStringList expected;
    for (const QString &problem : std::as_const(problems)) {
        const bool isOfRow = problem.contains(QLatin1String(": : "));
        expected.append(QString(problem).replace(
            isOfRow ? QStringLiteral(": : ") : QStringLiteral(": /"),
            isOfRow ? QStringLiteral(": /properties/0: ") : QStringLiteral(": /properties/0/")));
    }
    QCOMPARE(texts(found), expected);
    QCOMPARE(found.first().row, 0);
    QCOMPARE(found.first().name, property->name);
}

void tst_PropertyList::kindsOfDefaults_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QVariantList>("good");
    QTest::addColumn<QVariantList>("bad");
    QTest::addColumn<QString>("kind");
    const auto row = [](const QString &type, const QVariantList &good, const QVariantList &bad,
                        const char *kind) {
        QTest::newRow(qPrintable(type)) << type << good << bad << QString::fromLatin1(kind);
    };
    const QString text = QStringLiteral("x");
    const QVariant matrix = QVariant::fromValue(QGenericMatrix<3, 3, double>());
    row(kPropertyTypeBoolean, {true, 1}, {text, QSize()}, "a truth value");
    row(kPropertyTypeInteger, {1, 1.0, QStringLiteral("5")}, {text, 1e300, QSize(), true},
        "a whole number");
    row(kPropertyTypeFloat, {1, 1.5F, QStringLiteral("1.5")}, {text, QSize()}, "a number");
    row(kPropertyTypeString, {text, 1}, {QSize(1, 1)}, "a text");
    row(kPropertyTypeEnumeration, {0, 1}, {2, -1, text}, "one of the choices");
    row(kPropertyTypeVec2, {QVector2D(), QStringLiteral("1 2")}, {QVector3D(), 1.0},
        "a vector of 2");
    row(kPropertyTypeVec3, {QVector3D(), QStringLiteral("1 2 3")}, {QVector2D(), text},
        "a vector of 3");
    row(kPropertyTypeVec4, {QVector4D(), QStringLiteral("1")}, {QColor(Qt::red)}, "a vector of 4");
    row(kPropertyTypeColor, {QColor(Qt::red), QStringLiteral("red")}, {QStringLiteral("rad"), 1},
        "a colour");
    row(kPropertyTypeColorRGB, {QColor(Qt::red)}, {1}, "a colour");
    row(kPropertyTypePoint, {QPoint()}, {1}, "a point");
    row(kPropertyTypePointF, {QPointF(), QStringLiteral("1 2")}, {text}, "a point");
    row(kPropertyTypeSize, {QSize(1, 1)}, {QStringLiteral("1 1")}, "a size");
    row(kPropertyTypeSizeF, {QSizeF(1, 1)}, {1}, "a size");
    row(kPropertyTypeRect, {QRect()}, {QSize()}, "a rectangle");
    row(kPropertyTypeRectF, {QRectF()}, {QSize()}, "a rectangle");
    row(kPropertyTypeTransform2D, {matrix, QStringLiteral("1 0 0 0 1 0 0 0 1")}, {text},
        "a matrix");
    row(kPropertyTypeImage, {QImage()}, {text}, "a picture");
    row(kPropertyTypeImageFormat, {QVariant::fromValue(ImageFormatDesc())}, {text},
        "an image format");
    row(kPropertyTypeTexture, {QVariant::fromValue(TextureChoice()), text}, {1}, "a texture");
    row(QStringLiteral("host/own"), {text, 1}, {}, "a value");
}

void tst_PropertyList::kindsOfDefaults()
{
    QFETCH(QString, type);
    QFETCH(QVariantList, good);
    QFETCH(QVariantList, bad);
    QFETCH(QString, kind);
    const auto problemsOf = [&type](const QVariant &value) {
        PropertyList list;
        Property &property = list.append(Property(QStringLiteral("a"), QString(), type));
        property.setDefaultValue(value);
        property.setRange(QVariant(), QVariant());
        if (type == kPropertyTypeEnumeration)
            property.setHint(kPropertyHintDisplayValues,
                             QStringList{QStringLiteral("0"), QStringLiteral("1")});
        QStringList found = texts(list.validate());
        return found.filter(QStringLiteral("/default"));
    };

    for (const QVariant &value : std::as_const(good))
        QCOMPARE(problemsOf(value), QStringList());
    for (const QVariant &value : std::as_const(bad)) {
        QCOMPARE(problemsOf(value),
                 QStringList{QStringLiteral("error: /properties/0/default: the default is not ")
                             + kind});
    }
}

void tst_PropertyList::positionsAreThoseOfTheDocument()
{
    const auto result = readPropertyList(documentOf(R"(7, {"name": "x", "type": "none such"},
        {"name": "a", "type": "int", "min": 5, "max": 1})"));
    QCOMPARE(result.list.properties().size(), 1);
    QCOMPARE(result.problems.last().row, 2);
    QCOMPARE(result.problems.last().name, QStringLiteral("a"));
    QCOMPARE(result.problems.at(1).name, QStringLiteral("x"));

    const auto problems = result.list.validate();

    QCOMPARE(problems.size(), 1);
    QCOMPARE(problems.first().pointer, QStringLiteral("/properties/2/min"));
    QCOMPARE(problems.first().row, 2);
    QCOMPARE(problems.first().name, QStringLiteral("a"));
}

void tst_PropertyList::checkingTellsMoreThanReading()
{
    const QByteArray json =
        documentOf(R"({"name": "a", "type": "bool", "hints": {"suffix": "x"}, "default": 1})");

    QCOMPARE(texts(readPropertyList(json).problems),
             QStringList{QStringLiteral(
                 "error: /properties/0/default: expected a boolean, found a number")});
    QCOMPARE(texts(checkPropertyList(json).problems),
             (QStringList{
                 QStringLiteral("error: /properties/0/default: expected a boolean, found a number"),
                 QStringLiteral("warning: /properties/0/hints/suffix: no editor reads this hint "
                                "for type \"bool\"")}));
}

void tst_PropertyList::problemsComeInOrderOfRows()
{
    const auto result = readPropertyList(documentOf(R"(
        {"name": "a", "type": "bool", "hints": {"visible_when": "nowhere"}},
        {"name": "b", "type": "bool", "default": 1})"));

    QCOMPARE(result.problems.size(), 2);
    QCOMPARE(result.problems.first().pointer, QStringLiteral("/properties/0/hints/visible_when"));
    QCOMPARE(result.problems.last().pointer, QStringLiteral("/properties/1/default"));
}

QTEST_MAIN(tst_PropertyList)
#include "tst_PropertyList.moc"
