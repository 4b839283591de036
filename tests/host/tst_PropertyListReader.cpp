#include <host/InputFile.h>
#include <host/PropertyListReader.h>

#include <property/PropertyUI.h>
#include <property/editors/StringPropertyEditor.h>

#include <QFont>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QTabWidget>
#include <QTest>

#include <algorithm>
#include <ctime>

using namespace Tessark::PropertyHost;
using namespace Tessark::PropertyUI;

namespace {

const char *const kSample = R"({
    "version": 1,
    "title": "Bühne",
    "properties": [
        {"name": "on", "label": "Active", "type": "bool", "default": true},
        {"type": "begin_group", "label": "Text"},
        {"name": "note", "type": "string", "default": "a\u00e9\\", "hints": {"enabled": false}},
        {"type": "end_group"},
        {"name": "go", "type": "action"}
    ]
})";

QByteArray documentOf(const QByteArray &rows)
{
    return R"({"version": 1, "properties": [)" + rows + "]}";
}

QStringList texts(const QVector<Problem> &problems)
{
    QStringList result;
    for (const Problem &problem : problems)
        result.append(problem.toString(QStringLiteral("f")));
    return result;
}

/// The one hint of a "bool" row, as read from its JSON text.
QVariant readHint(const QByteArray &key, const QByteArray &json)
{
    const auto result = readPropertyList(
        documentOf(R"({"type": "bool", "name": "a", "hints": {")" + key + R"(": )" + json + "}}"));
    if (result.list.properties().size() != 1 || !result.problems.isEmpty())
        return QStringLiteral("not read: ") + texts(result.problems).join(QLatin1String(", "));
    return result.list.properties().first()->hint(QString::fromLatin1(key));
}

QByteArray listOfSize(int count)
{
    QByteArray rows;
    for (int i = 0; i < count; ++i) {
        const QByteArray number = QByteArray::number(i);
        rows += R"({"name": "p)" + number
                + R"(", "type": "float", "min": 0, "max": 9, "default": 1,)"
                + R"( "hints": {"suffix": " m", "float_decimals": 2}},)";
    }
    rows.chop(1);
    return documentOf(rows);
}

void addProblemRow(const char *name, const char *rows, const char *problem)
{
    QTest::newRow(name) << QByteArray(rows) << QString::fromUtf8(problem);
}

void addRowsOnKeys()
{
    addProblemRow("no type", R"({"name": "a"})", R"(0: "type" is missing)");
    addProblemRow("type that is no text", R"({"name": "a", "type": 1})",
                  "0/type: expected a string, found a number");
    addProblemRow("no name", R"({"type": "bool"})", R"(0: "name" is missing)");
    addProblemRow("empty name", R"({"name": "", "type": "bool"})", "0/name: the name is empty");
    addProblemRow("name that is no text", R"({"name": true, "type": "bool"})",
                  "0/name: expected a string, found a boolean");
    addProblemRow("name used twice",
                  R"({"name": "a", "type": "bool"}, {"name": "a", "type": "text"})",
                  R"(1/name: the name "a" is taken by a row before)");
    addProblemRow("label that is no text", R"({"name": "a", "type": "bool", "label": null})",
                  "0/label: expected a string, found null");
    addProblemRow("unknown key", R"({"name": "a", "type": "bool", "defualt": true})",
                  R"(0/defualt: unknown key (did you mean "default"?))");
    addProblemRow("key in wrong case", R"({"name": "a", "type": "float", "max": 1, "hardmax": 2})",
                  R"(0/hardmax: unknown key (did you mean "hardMax"?))");
    addProblemRow("hints that are no object", R"({"name": "a", "type": "bool", "hints": []})",
                  "0/hints: expected an object, found an array");
}

void addRowsOnNumbersAndTexts()
{
    addProblemRow("bool as number", R"({"name": "a", "type": "bool", "default": 1})",
                  "0/default: expected a boolean, found a number");
    addProblemRow("text as number", R"({"name": "a", "type": "string", "default": 1})",
                  "0/default: expected a string, found a number");
    addProblemRow("default null", R"({"name": "a", "type": "string", "default": null})",
                  "0/default: expected a string, found null");
    addProblemRow("number as text", R"({"name": "a", "type": "float", "max": 1, "default": "1"})",
                  "0/default: expected a number, found a string");
    addProblemRow("bound as text", R"({"name": "a", "type": "float", "min": "0", "max": 1})",
                  "0/min: expected a number, found a string");
    addProblemRow("int with fraction", R"({"name": "a", "type": "int", "max": 9, "default": 1.5})",
                  "0/default: expected a whole number, found 1.5");
    addProblemRow("int too large", R"({"name": "a", "type": "int", "max": 2147483648})",
                  "0/max: a whole number must lie between -2147483648 and 2147483647");
    addProblemRow("int far too large", R"({"name": "a", "type": "int", "max": 1e300})",
                  "0/max: a whole number must lie between -2147483648 and 2147483647");
    addProblemRow("min above max", R"({"name": "a", "type": "int", "min": 10, "max": 5})",
                  R"(0/min: 10 is above "max", which is 5)");
    addProblemRow("max above hard max",
                  R"({"name": "a", "type": "float", "max": 5, "hardMax": 4.5})",
                  R"(0/max: 5 is above "hardMax", which is 4.5)");
    addProblemRow("one component of min above max",
                  R"({"name": "a", "type": "vec3", "min": [0, 9, 0], "max": "1 2 3"})",
                  R"(0/min: (0 9 0) is above "max", which is (1 2 3))");
}

void addRowsOnCompositeValues()
{
    addProblemRow("vector of wrong length",
                  R"({"name": "a", "type": "vec2", "max": 1, "default": [1, 2, 3]})",
                  "0/default: expected 2 numbers, found an array of 3");
    addProblemRow("vector with text inside",
                  R"({"name": "a", "type": "vec2", "max": 1, "default": [1, "2"]})",
                  "0/default/1: expected a number, found a string");
    addProblemRow("vector text of wrong length",
                  R"({"name": "a", "type": "vec3", "max": 1, "default": "1 2"})",
                  R"(0/default: expected 3 numbers with single spaces between, found "1 2")");
    addProblemRow("vector text with two spaces",
                  R"({"name": "a", "type": "vec2", "max": 1, "default": "1  2"})",
                  R"(0/default: expected 2 numbers with single spaces between, found "1  2")");
    addProblemRow("vector text with a word",
                  R"({"name": "a", "type": "vec2", "max": 1, "default": "1 x"})",
                  R"(0/default: "x" in "1 x" is not a number)");
    addProblemRow("vector text out of range",
                  R"({"name": "a", "type": "vec2", "max": 1, "default": "1 1e99"})",
                  R"(0/default: "1e99" in "1 1e99" is not a number)");
    addProblemRow("vector number out of range",
                  R"({"name": "a", "type": "vec2", "max": 1, "default": 1e99})",
                  "0/default: a vector component is too large for single precision");
    addProblemRow("vector as object",
                  R"({"name": "a", "type": "vec2", "max": 1, "default": {"x": 1}})",
                  "0/default: expected 2 numbers, found an object");
    addProblemRow("unknown colour", R"({"name": "a", "type": "vec4/color", "default": "rad"})",
                  R"(0/default: "rad" is not a colour)");
    addProblemRow("colour name of three words",
                  R"({"name": "a", "type": "vec4/color", "default": "light sea green"})",
                  R"(0/default: "light" in "light sea green" is not a number)");
    addProblemRow("colour as number", R"({"name": "a", "type": "vec4/color", "default": 1})",
                  "0/default: expected a colour as text or array of fractions, found a number");
    addProblemRow("colour in steps of 255",
                  R"({"name": "a", "type": "vec4/color", "default": [0, 255, 0]})",
                  "0/default/1: a colour component must lie between 0 and 1");
    addProblemRow("colour text in steps of 255",
                  R"({"name": "a", "type": "vec4/color", "default": "0 255 0"})",
                  "0/default: a colour component must lie between 0 and 1");
    addProblemRow("colour of two", R"({"name": "a", "type": "vec4/color", "default": [0, 1]})",
                  "0/default: expected 3 or 4 fractions, found an array of 2");
    addProblemRow("size as number", R"({"name": "a", "type": "ivec2/size", "default": 12})",
                  "0/default: expected [width, height], found a number");
    addProblemRow("size with fraction",
                  R"({"name": "a", "type": "ivec2/size", "default": [1, 2.5]})",
                  "0/default/1: expected a whole number, found 2.5");
    addProblemRow(
        "matrix of eight", R"({"name": "a", "type": "transform2D", "default": "1 0 0 0 1 0 0 0"})",
        R"(0/default: expected 9 numbers with single spaces between, found "1 0 0 0 1 0 0 0")");
    addProblemRow(
        "choice behind the end",
        R"({"name": "a", "type": "int/enum", "hints": {"display_values": ["x"]}, "default": 1})",
        "0/default: there is no choice 1, the list has 1");
    addProblemRow("value of no choice",
                  R"({"name": "a", "type": "int/enum", "default": "1",
            "hints": {"display_values": ["x"], "values": [1]}})",
                  R"(0/default: "1" is not one of the "values")");
    addProblemRow("default of an action", R"({"type": "action", "default": 1})",
                  R"(0/default: a property of type "action" has no value)");
    addProblemRow("default of a texture", R"({"name": "a", "type": "texture", "default": "wood"})",
                  R"(0/default: there is no file "wood")");
    addProblemRow("default of an image", R"({"name": "a", "type": "image", "default": true})",
                  "0/default: expected a path or null, found a boolean");
    addProblemRow("default null of an own type",
                  R"({"name": "a", "type": "host/own", "default": null})",
                  "0/default: expected a value, found null");
}

} // namespace

class tst_PropertyListReader : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void rowsAreReadInOrder();
    void labelDefaultsToName();
    void byteOrderMarkIsAccepted();
    void hardMaximumDefaultsToMaximum();
    void rowsOfOwnTypesAreRead();

    void problemsOfDocument_data();
    void problemsOfDocument();
    void problemsOfRows_data();
    void problemsOfRows();
    void warnings_data();
    void warnings();
    void nesting_data();
    void nesting();
    void nestingDepthIsLimited();
    void everyProblemIsListed();
    void listedProblemsAreLimited();
    void rowsWithBadPartsAreReadWithoutThem();
    void unusableRowsAreLeftOut();
    void structuralRowStaysWithoutItsTakenName();

    void hints_data();
    void hints();
    void fonts_data();
    void fonts();
    void badHints_data();
    void badHints();

    void syntaxErrors_data();
    void syntaxErrors();
    void invalidUtf8_data();
    void invalidUtf8();
    void everyTruncationIsAnError();
    void hostileInputIsSurvived_data();
    void hostileInputIsSurvived();
    void timeGrowsWithLength();
};

void tst_PropertyListReader::initTestCase()
{
    // The rows under test are about reading, not about which editors exist.
    PropertyEditorPanel::InitialiseRegistry();
    const QString types[] = {
        kPropertyTypeInteger,       kPropertyTypeFloat,   kPropertyTypePercent,
        kPropertyTypeVec2,          kPropertyTypeVec3,    kPropertyTypeVec4,
        kPropertyTypeColor,         kPropertyTypeSize,    kPropertyTypeEnumeration,
        kPropertyTypeImage,         kPropertyTypeTexture, kPropertyTypeTransform2D,
        QStringLiteral("host/own"),
    };
    for (const QString &type : types) {
        PropertyEditorRegistry::Instance()->registerPropertyEditor(type,
                                                                   StringPropertyEditor::Factory);
    }
}

void tst_PropertyListReader::rowsAreReadInOrder()
{
    const auto result = readPropertyList(kSample);

    QCOMPARE(texts(result.problems), QStringList());
    QCOMPARE(result.list.title(), QString::fromUtf8("Bühne"));
    const auto properties = result.list.properties();
    QCOMPARE(properties.size(), 5);
    QCOMPARE(properties.at(0)->name, QStringLiteral("on"));
    QCOMPARE(properties.at(0)->label, QStringLiteral("Active"));
    QCOMPARE(properties.at(0)->type, kPropertyTypeBoolean);
    QCOMPARE(properties.at(0)->defaultValue, QVariant(true));
    QVERIFY(properties.at(0)->hints.isEmpty());
    QCOMPARE(properties.at(1)->type, kPropertyTypeBeginGroup);
    QCOMPARE(properties.at(2)->defaultValue, QVariant(QString::fromUtf8("aé\\")));
    QCOMPARE(properties.at(2)->hint(kPropertyHintEnabled), QVariant(false));
    QCOMPARE(properties.at(3)->type, kPropertyTypeEndGroup);
    QVERIFY(!properties.at(4)->defaultValue.isValid());
}

void tst_PropertyListReader::labelDefaultsToName()
{
    const auto result = readPropertyList(documentOf(R"(
        {"name": "a", "type": "bool"}, {"name": "b", "type": "bool", "label": ""},
        {"name": "c", "type": "separator"})"));

    QCOMPARE(texts(result.problems), QStringList());
    QCOMPARE(result.list.properties().at(0)->label, QStringLiteral("a"));
    QCOMPARE(result.list.properties().at(1)->label, QString());
    QCOMPARE(result.list.properties().at(2)->label, QString());
}

void tst_PropertyListReader::byteOrderMarkIsAccepted()
{
    const auto result = readPropertyList(QByteArray("\xEF\xBB\xBF") + kSample);

    QCOMPARE(texts(result.problems), QStringList());
    QCOMPARE(result.list.properties().size(), 5);
}

void tst_PropertyListReader::hardMaximumDefaultsToMaximum()
{
    const auto result = readPropertyList(documentOf(R"(
        {"name": "a", "type": "int", "min": -1, "max": 5},
        {"name": "b", "type": "int", "min": -1, "max": 5, "hardMax": 50})"));

    QCOMPARE(texts(result.problems), QStringList());
    const auto properties = result.list.properties();
    QCOMPARE(properties.at(0)->minValue, QVariant(-1));
    QCOMPARE(properties.at(0)->hardMaxValue, QVariant(5));
    QCOMPARE(properties.at(1)->maxValue, QVariant(5));
    QCOMPARE(properties.at(1)->hardMaxValue, QVariant(50));
}

void tst_PropertyListReader::rowsOfOwnTypesAreRead()
{
    const auto result = readPropertyList(documentOf(
        R"({"name": "a", "type": "host/own", "min": "x", "default": {"k": [1, null]}})"));

    QCOMPARE(texts(result.problems), QStringList());
    const Property *const property = result.list.properties().value(0);
    QVERIFY(property);
    QCOMPARE(property->minValue, QVariant(QStringLiteral("x")));
    QCOMPARE(QJsonDocument::fromVariant(property->defaultValue).toJson(QJsonDocument::Compact),
             QByteArray(R"({"k":[1,null]})"));
}

void tst_PropertyListReader::problemsOfDocument_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QStringList>("problems");
    const auto row = [](const char *name, const char *json, const QStringList &problems) {
        QTest::newRow(name) << QByteArray(json) << problems;
    };
    row("array", "[]", {QStringLiteral("f: error: expected an object, found an array")});
    row("empty object", "{}",
        {QStringLiteral("f: error: \"version\" is missing"),
         QStringLiteral("f: error: \"properties\" is missing")});
    row("version as text", R"({"version": "1", "properties": []})",
        {QStringLiteral("f: error: /version: expected a number, found a string")});
    row("version to come", R"({"version": 2, "properties": []})",
        {QStringLiteral("f: error: /version: expected version 1, found 2")});
    row("title that is no text", R"({"version": 1, "title": 3, "properties": []})",
        {QStringLiteral("f: error: /title: expected a string, found a number")});
    row("schema that is no text", R"({"$schema": [], "version": 1, "properties": []})",
        {QStringLiteral("f: error: /$schema: expected a string, found an array")});
    row("properties as object", R"({"version": 1, "properties": {}})",
        {QStringLiteral("f: error: /properties: expected an array, found an object")});
    row("unknown key", R"({"version": 1, "properties": [], "colour": 1})",
        {QStringLiteral("f: error: /colour: unknown key")});
    row("mistyped key", R"({"version": 1, "properties": [], "tilte": "x"})",
        {QStringLiteral("f: error: /tilte: unknown key (did you mean \"title\"?)")});
    row("key that a pointer escapes", R"({"version": 1, "properties": [], "a/b~c": 1})",
        {QStringLiteral("f: error: /a~1b~0c: unknown key")});
    row("row that is no object", R"({"version": 1, "properties": [3, null]})",
        {QStringLiteral("f: error: /properties/0: expected an object, found a number"),
         QStringLiteral("f: error: /properties/1: expected an object, found null")});
}

void tst_PropertyListReader::problemsOfDocument()
{
    QFETCH(QByteArray, json);
    QFETCH(QStringList, problems);

    const auto result = readPropertyList(json);

    QCOMPARE(texts(result.problems), problems);
    QVERIFY(hasErrors(result.problems));
}

void tst_PropertyListReader::problemsOfRows_data()
{
    QTest::addColumn<QByteArray>("rows");
    QTest::addColumn<QString>("problem"); // behind "f: error: /properties/"
    addRowsOnKeys();
    addRowsOnNumbersAndTexts();
    addRowsOnCompositeValues();
}

void tst_PropertyListReader::problemsOfRows()
{
    QFETCH(QByteArray, rows);
    QFETCH(QString, problem);

    const auto result = readPropertyList(documentOf(rows));

    QCOMPARE(texts(result.problems),
             QStringList{QLatin1String("f: error: /properties/") + problem});
}

void tst_PropertyListReader::warnings_data()
{
    QTest::addColumn<QByteArray>("rows");
    QTest::addColumn<QString>("problem"); // behind "f: warning: /properties/"
    QTest::addColumn<int>("rowsRead");
    const auto row = [](const char *name, const char *rows, const char *problem, int rowsRead) {
        QTest::newRow(name) << QByteArray(rows) << QString::fromUtf8(problem) << rowsRead;
    };
    row("type of the vocabulary without editor", R"({"name": "a", "type": "vec3/color"})",
        R"(0/type: no editor for type "vec3/color", the row is skipped)", 0);
    row("mistyped type", R"({"name": "a", "type": "flaot"}, {"type": "separator"})",
        R"(0/type: no editor for type "flaot", the row is skipped (did you mean "float"?))", 1);
    row("type in wrong case", R"({"name": "a", "type": "Bool"})",
        R"(0/type: no editor for type "Bool", the row is skipped (did you mean "bool"?))", 0);
    row("type like no other", R"({"name": "a", "type": "quaternion"})",
        R"(0/type: no editor for type "quaternion", the row is skipped)", 0);
    row("unknown hint", R"({"name": "a", "type": "bool", "hints": {"my_own": 1}})",
        "0/hints/my_own: unknown hint", 1);
    row("mistyped hint", R"({"name": "a", "type": "bool", "hints": {"enabld": 1}})",
        R"(0/hints/enabld: unknown hint (did you mean "enabled"?))", 1);
    row("default above the range", R"({"name": "a", "type": "int", "max": 5, "default": 6})",
        "0/default: 6 is outside of the range", 1);
    row("default below the range",
        R"({"name": "a", "type": "vec2", "min": 0, "max": 5, "default": [1, -1]})",
        "0/default: (1 -1) is outside of the range", 1);
    row("range of a text", R"({"name": "a", "type": "string", "min": 0})",
        R"(0/min: means nothing for type "string", ignored)", 1);
    row("no maximum", R"({"name": "a", "type": "float", "min": -1})",
        R"(0: "max" is missing and counts as 0)", 1);
    row("fewer values than texts",
        R"({"name": "a", "type": "int/enum", "hints": {"display_values": ["x", "y", "z"],
            "values": [1, 2]}})",
        R"(0/hints/values: 2 values for 3 "display_values")", 1);
}

void tst_PropertyListReader::warnings()
{
    QFETCH(QByteArray, rows);
    QFETCH(QString, problem);
    QFETCH(int, rowsRead);

    const auto result = readPropertyList(documentOf(rows));

    QCOMPARE(texts(result.problems),
             QStringList{QLatin1String("f: warning: /properties/") + problem});
    QVERIFY(!hasErrors(result.problems));
    QCOMPARE(int(result.list.properties().size()), rowsRead);
}

void tst_PropertyListReader::nesting_data()
{
    QTest::addColumn<QString>("types"); // of the rows, by their first letters below
    QTest::addColumn<QStringList>("problems");
    const auto row = [](const char *name, const char *types, const QStringList &problems) {
        QTest::newRow(name) << QString::fromLatin1(types) << problems;
    };
    row("groups and tabs in each other", "( T t ( ) t T t t X ( ) X )", {});
    row("end of no group", ")",
        {QStringLiteral("0/type: nothing is open that \"end_group\" could close")});
    row("end of no tab group", "X",
        {QStringLiteral("0/type: nothing is open that \"end_tab_group\" could close")});
    row("group left open", "( ( )",
        {QStringLiteral("0/type: this group is never closed, \"end_group\" is missing")});
    row("tab group left open", "T t",
        {QStringLiteral("0/type: this tab group is never closed, \"end_tab_group\" is missing")});
    row("two left open", "( T",
        {QStringLiteral("0/type: this group is never closed, \"end_group\" is missing"),
         QStringLiteral("1/type: this tab group is never closed, \"end_tab_group\" is missing")});
    row("group ends around a tab group", "( T ) X",
        {QStringLiteral("2/type: \"end_group\" here leaves /properties/1 open"),
         QStringLiteral("3/type: nothing is open that \"end_tab_group\" could close")});
    row("tab group ends around a group", "T ( X",
        {QStringLiteral("2/type: \"end_tab_group\" here leaves /properties/1 open")});
    row("tab outside", "( t )", {QStringLiteral("1/type: a tab outside of a tab group")});
    row("tab in an open group", "T t ( t ) X",
        {QStringLiteral("3/type: a tab inside of the group /properties/2")});
}

void tst_PropertyListReader::nesting()
{
    QFETCH(QString, types);
    QFETCH(QStringList, problems);
    const QMap<QString, QByteArray> names{
        {QStringLiteral("("), "begin_group"},
        {QStringLiteral(")"), "end_group"},
        {QStringLiteral("T"), "begin_tab_group"},
        {QStringLiteral("X"), "end_tab_group"},
        {QStringLiteral("t"), "tab"},
    };
    QByteArrayList rows;
    for (const QString &type : types.split(QLatin1Char(' ')))
        rows.append(R"({"type": ")" + names.value(type) + R"("})");

    const auto result = readPropertyList(documentOf(rows.join(", ")));

    problems.replaceInStrings(QRegularExpression(QStringLiteral("^")),
                              QStringLiteral("f: error: /properties/"));
    QCOMPARE(texts(result.problems), problems);
    QCOMPARE(result.list.properties().size(), rows.size());
}

void tst_PropertyListReader::nestingDepthIsLimited()
{
    const auto nested = [](int depth) {
        const QByteArray rows = QByteArray(R"({"type": "begin_group"},)").repeated(depth)
                                + QByteArray(R"({"type": "end_group"},)").repeated(depth);
        return documentOf(rows.chopped(1));
    };

    QCOMPARE(texts(readPropertyList(nested(64)).problems), QStringList());
    QCOMPARE(texts(readPropertyList(nested(70)).problems),
             QStringList{QStringLiteral("f: error: /properties/64/type: groups and tab groups may "
                                        "be nested 64 deep at most")});
}

void tst_PropertyListReader::everyProblemIsListed()
{
    const auto result = readPropertyList(R"({"version": 7, "extra": 1, "properties": [
        {"name": "a", "type": "int", "min": true, "max": "x", "default": [], "hints": {"size": 1}},
        {"name": "a", "type": "bool", "default": "yes", "odd": 0},
        {"type": "tab"}]})");

    QCOMPARE(texts(result.problems),
             (QStringList{
                 QStringLiteral("f: error: /extra: unknown key"),
                 QStringLiteral("f: error: /version: expected version 1, found 7"),
                 QStringLiteral("f: error: /properties/0/hints/size: expected [width, height], "
                                "found a number"),
                 QStringLiteral("f: error: /properties/0/min: expected a whole number, found a "
                                "boolean"),
                 QStringLiteral("f: error: /properties/0/max: expected a whole number, found a "
                                "string"),
                 QStringLiteral("f: error: /properties/0/default: expected a whole number, found "
                                "an array"),
                 QStringLiteral("f: error: /properties/1/odd: unknown key"),
                 QStringLiteral("f: error: /properties/1/name: the name \"a\" is taken by a row "
                                "before"),
                 QStringLiteral("f: error: /properties/1/default: expected a boolean, found a "
                                "string"),
                 QStringLiteral("f: error: /properties/2/type: a tab outside of a tab group"),
             }));
}

void tst_PropertyListReader::listedProblemsAreLimited()
{
    const QByteArray rows =
        QByteArray("0,").repeated(10002) + R"({"name": "a", "type": "nothing like it"},
                                {"name": "b", "type": "nothing like it"}, {"type": "separator"})";

    const auto result = readPropertyList(documentOf(rows));

    QCOMPARE(int(result.problems.size()), 10001);
    QCOMPARE(result.problems.at(9999).pointer, QStringLiteral("/properties/9999"));
    QCOMPARE(result.problems.last().toString(QStringLiteral("f")),
             QStringLiteral("f: error: 2 more errors and 2 more warnings are not listed"));
    QCOMPARE(int(result.list.properties().size()), 1);
}

void tst_PropertyListReader::rowsWithBadPartsAreReadWithoutThem()
{
    const auto result = readPropertyList(documentOf(
        R"({"name": "a", "type": "int", "min": "x", "max": 5, "default": "y", "label": 3,
            "hints": {"enabled": 1, "suffix": " m"}})"));

    QCOMPARE(int(result.problems.size()), 4);
    const Property *const property = result.list.properties().value(0);
    QVERIFY(property);
    QVERIFY(!property->minValue.isValid());
    QCOMPARE(property->maxValue, QVariant(5));
    QVERIFY(!property->defaultValue.isValid());
    QCOMPARE(property->label, QStringLiteral("a"));
    QCOMPARE(property->hints.keys(), QStringList{kPropertyHintSuffix});
}

void tst_PropertyListReader::unusableRowsAreLeftOut()
{
    const auto result = readPropertyList(documentOf(R"(
        7, {"type": "bool"}, {"name": "a"}, {"name": "b", "type": "bool"},
        {"name": "b", "type": "string"}, {"name": "c", "type": "nothing like it"})"));

    QCOMPARE(int(result.problems.size()), 5);
    QCOMPARE(int(result.list.properties().size()), 1);
    QCOMPARE(result.list.properties().first()->type, kPropertyTypeBoolean);
}

void tst_PropertyListReader::structuralRowStaysWithoutItsTakenName()
{
    const auto result = readPropertyList(documentOf(R"(
        {"name": "a", "type": "begin_group"}, {"name": "a", "type": "end_group"})"));

    QCOMPARE(texts(result.problems),
             QStringList{QStringLiteral(
                 "f: error: /properties/1/name: the name \"a\" is taken by a row before")});
    QCOMPARE(int(result.list.properties().size()), 2);
    QCOMPARE(result.list.properties().at(1)->name, QString());
}

void tst_PropertyListReader::hints_data()
{
    QTest::addColumn<QByteArray>("key");
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QVariant>("value");
    const auto row = [](const char *key, const char *json, const QVariant &value) {
        QTest::addRow("%s %s", key, json) << QByteArray(key) << QByteArray(json) << value;
    };
    for (const char *key :
         {"enabled", "full_width", "show_multiple_check", "show_sliders", "logarithmic_slider",
          "boolean_hide_label", "xfrm_no_rotation", "xfrm_no_position", "xfrm_no_scale",
          "xfrm_uniform_scale", "xfrm_collapsible_scale", "use_native_dialogs"})
        row(key, "true", true);
    for (const char *key : {"size", "minimum_size", "maximum_size", "aspect_ratio", "full_size"})
        row(key, "[16, 9]", QSize(16, 9));
    for (const char *key : {"widget", "preferences_key", "style_sheet", "suffix"})
        row(key, R"(" x")", QStringLiteral(" x"));
    for (const char *key : {"foreground", "background"}) {
        row(key, R"("#00ff00")", QColor(0, 255, 0));
        row(key, "[1, 0, 0]", QColor(255, 0, 0));
        row(key, "[0, 0, 1, 0]", QColor(0, 0, 255, 0));
    }
    row("float_decimals", "2", 2);
    row("display_scale", "0.5", 0.5);
    row("display_scale", "100", 100.0);
    row("orientation", R"("horizontal")", int(Qt::Horizontal));
    row("orientation", R"("vertical")", int(Qt::Vertical));
    row("tab_position", R"("north")", int(QTabWidget::North));
    row("tab_position", R"("south")", int(QTabWidget::South));
    row("tab_position", R"("west")", int(QTabWidget::West));
    row("tab_position", R"("east")", int(QTabWidget::East));
    row("alignment", R"("left")", int(Qt::AlignLeft));
    row("alignment", R"("justify")", int(Qt::AlignJustify));
    row("alignment", R"("center")", int(Qt::AlignCenter));
    row("alignment", R"("right | vcenter")", int(Qt::AlignRight | Qt::AlignVCenter));
    row("alignment", R"("hcenter|top")", int(Qt::AlignHCenter | Qt::AlignTop));
    row("alignment", R"(["right", "bottom"])", int(Qt::AlignRight | Qt::AlignBottom));
    row("display_values", R"(["A", "B"])", QStringList{QStringLiteral("A"), QStringLiteral("B")});
    row("display_values", "[]", QStringList());
}

void tst_PropertyListReader::hints()
{
    QFETCH(QByteArray, key);
    QFETCH(QByteArray, json);
    QFETCH(QVariant, value);

    const QVariant hint = readHint(key, json);

    QCOMPARE(hint, value);
    QCOMPARE(hint.userType(), value.userType());
}

void tst_PropertyListReader::fonts_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("family");
    QTest::addColumn<qreal>("size"); // 0: the default
    QTest::addColumn<bool>("bold");
    QTest::addColumn<bool>("italic");
    const QString family = QStringLiteral("DejaVu Sans");
    QTest::newRow("family") << QByteArray(R"("DejaVu Sans")") << family << 0.0 << false << false;
    QTest::newRow("family and size")
        << QByteArray(R"("DejaVu Sans, 12")") << family << 12.0 << false << false;
    QTest::newRow("size with fraction")
        << QByteArray(R"("DejaVu Sans,7.5 ")") << family << 7.5 << false << false;
    QTest::newRow("object") << QByteArray(
        R"({"family": "DejaVu Sans", "size": 20, "bold": true, "italic": true})")
                            << family << 20.0 << true << true;
    QTest::newRow("object without family")
        << QByteArray(R"({"bold": true})") << QFont().family() << 0.0 << true << false;
}

void tst_PropertyListReader::fonts()
{
    QFETCH(QByteArray, json);
    QFETCH(QString, family);
    QFETCH(qreal, size);
    QFETCH(bool, bold);
    QFETCH(bool, italic);

    const QVariant hint = readHint("font", json);

    QCOMPARE(hint.userType(), int(QMetaType::QFont));
    const auto font = hint.value<QFont>();
    QCOMPARE(font.family(), family);
    QCOMPARE(font.pointSizeF(), size > 0 ? size : QFont().pointSizeF());
    QCOMPARE(font.bold(), bold);
    QCOMPARE(font.italic(), italic);
}

void tst_PropertyListReader::badHints_data()
{
    QTest::addColumn<QByteArray>("hint");
    QTest::addColumn<QString>("problem"); // behind "f: error: /properties/0/hints/"
    const auto row = [](const char *hint, const char *problem) {
        QTest::newRow(hint) << QByteArray(hint) << QString::fromUtf8(problem);
    };
    row(R"("enabled": "yes")", "enabled: expected a boolean, found a string");
    row(R"("enabled": null)", "enabled: expected a boolean, found null");
    row(R"("size": [1])", "size: expected [width, height], found an array of 1");
    row(R"("size": {"width": 1})", "size: expected [width, height], found an object");
    row(R"("float_decimals": 1.5)", "float_decimals: expected a whole number, found 1.5");
    row(R"("display_scale": "2")", "display_scale: expected a number, found a string");
    row(R"("suffix": 1)", "suffix: expected a string, found a number");
    row(R"("foreground": "no colour")", R"(foreground: "no colour" is not a colour)");
    row(R"("tab_position": 1)", "tab_position: expected a string, found a number");
    row(R"("tab_position": "up")", R"(tab_position: "up" is not one of north, south, west, east)");
    row(R"("orientation": "Vertical")",
        R"(orientation: "Vertical" is not one of horizontal, vertical)");
    row(R"("alignment": "middle")",
        R"(alignment: "middle" is not one of left, right, hcenter, justify, top, bottom, vcenter, )"
        "center");
    row(R"("alignment": "left||top")",
        R"(alignment: "" is not one of left, right, hcenter, justify, top, bottom, vcenter, center)");
    row(R"("alignment": ["left", 4])", "alignment/1: expected a string, found a number");
    row(R"("alignment": [])", "alignment: expected names of alignments, found an empty array");
    row(R"("alignment": 4)", "alignment: expected names of alignments, found a number");
    row(R"("values": "A")", "values: expected an array, found a string");
    row(R"("display_values": "A")", "display_values: expected an array, found a string");
    row(R"("display_values": ["A", 1])", "display_values/1: expected a string, found a number");
    row(R"("display_values": ["A", "B"], "values": ["A", []])",
        "values/1: expected a string, a number or a boolean, found an array");
    row(R"("font": 12)", "font: expected a font as text or object, found a number");
    row(R"("font": "A, B")", R"(font: "A, B" is not of the form "Family" or "Family, 12")");
    row(R"("font": "A, 0")", R"(font: "A, 0" is not of the form "Family" or "Family, 12")");
    row(R"("font": " ")", R"(font: " " is not of the form "Family" or "Family, 12")");
    row(R"("font": {"size": 0})", "font/size: a font size must be at least 1 and below 1000");
    row(R"("font": {"size": "1"})", "font/size: expected a number, found a string");
    row(R"("font": {"family": 1})", "font/family: expected a string, found a number");
    row(R"("font": {"bold": 1})", "font/bold: expected a boolean, found a number");
    row(R"("font": {"italic": 1})", "font/italic: expected a boolean, found a number");
    row(R"("font": {"famly": "A"})", R"(font/famly: unknown key (did you mean "family"?))");
}

void tst_PropertyListReader::badHints()
{
    QFETCH(QByteArray, hint);
    QFETCH(QString, problem);

    const auto result = readPropertyList(
        documentOf(R"({"name": "a", "type": "int/enum", "hints": {)" + hint + "}}"));

    QCOMPARE(texts(result.problems),
             QStringList{QLatin1String("f: error: /properties/0/hints/") + problem});
}

void tst_PropertyListReader::syntaxErrors_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("problem"); // behind "f:"
    const auto row = [](const char *name, const QByteArray &json, const char *problem) {
        QTest::newRow(name) << json << QString::fromUtf8(problem);
    };
    row("nothing", "", "1:1: error: the document is empty");
    row("blanks", " \n\t\n", "1:1: error: the document is empty");
    row("missing colon", R"({"a" 1})", "1:6: error: missing name separator");
    row("missing comma", "[1,\n 2\n  3]", "3:3: error: missing value separator");
    row("missing value", "{\n  \"a\":\n}", "3:1: error: object is missing after a comma");
    row("bad word", "\r\n[\r\n  nul]", "3:3: error: illegal value");
    row("word behind a blank", "[1, x]", "1:5: error: illegal value");
    row("bad number", "[1, -]", "1:5: error: illegal number");
    row("number beyond all", "[1e999]", "1:6: error: illegal number");
    row("columns count characters", "{\"\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80\" 1}",
        "1:8: error: missing name separator");
    row("first place of a broken character", "[\n\xC3\xA4]", "2:1: error: illegal value");
    row("behind the document", "{}\n x", "2:2: error: garbage at the end of the document");
    row("embedded zero byte", QByteArray("{\0}", 3), "1:2: error: unterminated object");
    row("behind a byte order mark", "\xEF\xBB\xBF{x", "1:2: error: unterminated object");
    row("too deep", QByteArray(2000, '['), "1:1025: error: too deeply nested document");
}

void tst_PropertyListReader::syntaxErrors()
{
    QFETCH(QByteArray, json);
    QFETCH(QString, problem);

    const auto result = readPropertyList(json);

    QCOMPARE(texts(result.problems), QStringList{QLatin1String("f:") + problem});
    QVERIFY(result.list.properties().isEmpty());
}

void tst_PropertyListReader::invalidUtf8_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("problem"); // behind "f:"
    const auto row = [](const char *name, const QByteArray &json, const char *problem) {
        QTest::newRow(name) << json << QString::fromUtf8(problem);
    };
    row("Latin-1 letter", "{\n\"\xE4\": 1}", "2:2: error: invalid UTF-8: byte 0xe4");
    row("lone continuation", "\"\xC3\xA4\x80", "1:3: error: invalid UTF-8: byte 0x80");
    row("continuation first in line", "\"a\n\x80", "2:1: error: invalid UTF-8: byte 0x80");
    row("cut off at the end", "\"\xE2\x82", "1:2: error: invalid UTF-8: byte 0xe2");
    row("overlong slash", "\"\xC0\xAF\"", "1:2: error: invalid UTF-8: byte 0xc0");
    row("overlong of three", "\"\xE0\x80\xAF\"", "1:2: error: invalid UTF-8: byte 0xe0");
    row("overlong of four", "\"\xF0\x80\x80\xAF\"", "1:2: error: invalid UTF-8: byte 0xf0");
    row("surrogate", "\"\xED\xA0\x80\"", "1:2: error: invalid UTF-8: byte 0xed");
    row("beyond the last character", "\"\xF4\x90\x80\x80\"",
        "1:2: error: invalid UTF-8: byte 0xf4");
    row("byte that never occurs", "\xFF\xFE", "1:1: error: invalid UTF-8: byte 0xff");
    row("after characters of all lengths",
        "\"a\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80\xF4\x8F\xBF\xBF\xFF",
        "1:7: error: invalid UTF-8: byte 0xff");
}

void tst_PropertyListReader::invalidUtf8()
{
    QFETCH(QByteArray, json);
    QFETCH(QString, problem);

    QCOMPARE(texts(readPropertyList(json).problems), QStringList{QLatin1String("f:") + problem});
}

void tst_PropertyListReader::everyTruncationIsAnError()
{
    const QByteArray whole(kSample);
    for (int size = 0; size < whole.size(); ++size) {
        const auto result = readPropertyList(whole.left(size));

        QCOMPARE(int(result.problems.size()), 1);
        const Problem &problem = result.problems.first();
        QVERIFY2(hasErrors(result.problems) && problem.line >= 1 && problem.column >= 1,
                 qPrintable(problem.toString(QString::number(size))));
        QVERIFY(problem.line <= whole.left(size).count('\n') + 1);
        QVERIFY(result.list.properties().isEmpty());
    }
}

void tst_PropertyListReader::hostileInputIsSurvived_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<bool>("isGood");
    QTest::newRow("million brackets") << QByteArray(1000000, '[') << false;
    QTest::newRow("million objects") << QByteArray(R"({"a":)").repeated(1000000) << false;
    QTest::newRow("number of a million digits")
        << documentOf(R"({"name": "a", "type": "float", "max": )" + QByteArray(1000000, '9') + "}")
        << false;
    QTest::newRow("name of a million letters")
        << documentOf(R"({"name": ")" + QByteArray(1000000, 'x') + R"(", "type": "bool"})") << true;
    QTest::newRow("key of a million letters")
        << documentOf(R"({"name": "a", "type": "bool", ")" + QByteArray(1000000, 'x') + R"(": 1})")
        << false;
    QTest::newRow("type of a million letters")
        << documentOf(R"({"name": "a", "type": ")" + QByteArray(1000000, 'x') + R"("})") << true;
    QTest::newRow("text of the largest file")
        << documentOf(R"({"name": "a", "type": "text", "default": ")"
                      + QByteArray(int(kMaximumInputSize) - 100, 'x') + R"("})")
        << true;
    QTest::newRow("tens of thousands of mistakes")
        << documentOf(QByteArray(R"({"name": "a", "type": "bol", "x": 1},)").repeated(20000) + "0")
        << false;
    QTest::newRow("lone surrogates")
        << documentOf(R"({"name": "\ud800", "type": "string", "default": "\udc00x"})") << true;
    QTest::newRow("embedded zero characters")
        << documentOf(R"({"name": "a\u0000b", "type": "string", "default": "\u0000"})") << true;
    QTest::newRow("numbers at the ends of double")
        << documentOf(R"({"name": "a", "type": "float", "min": -1.7976931348623157e308,
                          "max": 1.7976931348623157e308, "default": 5e-324})")
        << true;
    QTest::newRow("hints nested as deep as the parser goes")
        << documentOf(R"({"name": "a", "type": "bool", "hints": {"own": )" + QByteArray(1000, '[')
                      + QByteArray(1000, ']') + "}}")
        << true;
    QTest::newRow("same key again and again")
        << documentOf("{" + QByteArray(R"("name": "a", )").repeated(50000) + R"("type": "bool"})")
        << true;
}

void tst_PropertyListReader::hostileInputIsSurvived()
{
    QFETCH(QByteArray, json);
    QFETCH(bool, isGood);

    const auto result = readPropertyList(json);

    QCOMPARE(hasErrors(result.problems), !isGood);
    for (const Problem &problem : result.problems)
        QVERIFY(problem.message.size() < 400);
}

void tst_PropertyListReader::timeGrowsWithLength()
{
    // Processor time, since the machine may be busy with other tests.
    const auto measure = [](const QByteArray &json, int count) {
        double best = -1.0;
        for (int run = 0; run < 3; ++run) {
            const std::clock_t start = std::clock();
            const auto result = readPropertyList(json);
            const double ms = 1000.0 * double(std::clock() - start) / CLOCKS_PER_SEC;
            if (result.list.properties().size() != count)
                return -1.0;
            best = best < 0.0 ? ms : std::min(best, ms);
        }
        return best;
    };

    const double small = measure(listOfSize(1000), 1000);
    const double large = measure(listOfSize(10000), 10000);

    qInfo("1000 rows: %.2f ms, 10000 rows: %.2f ms", small, large);
    QVERIFY(small > 0.0 && large > 0.0);
    QVERIFY2(large < 40 * small, "ten times the rows take more than forty times as long");
}

QTEST_MAIN(tst_PropertyListReader)
#include "tst_PropertyListReader.moc"
