#include <host/HostHints.h>
#include <host/PropertyList.h>
#include <host/PropertyListReader.h>
#include <host/RuleEngine.h>

#include <property/PropertyUI.h>
#include <property/TextureChoice.h>
#include <property/editors/ImageFormatEditor.h>
#include <property/editors/StringPropertyEditor.h>

#include <support/RecordingDelegate.h>

#include <QElapsedTimer>
#include <QTest>

#include <cmath>
#include <limits>

using namespace Tessark::PropertyHost;
using namespace Tessark::PropertyUI;

namespace {

QString name(const char *text)
{
    return QString::fromUtf8(text);
}

/// One row of every kind that rules may read, and some that they may not.
void fill(PropertyList &list)
{
    list.boolean(name("on"), QString());
    list.integer(name("count"), QString()).range(0, 9);
    list.number(name("gain"), QString()).range(0, 9);
    list.number(name("audio.level"), QString()).range(0, 9);
    list.number(name("size.width"), QString()).range(0, 9); // hides a component of "size"
    list.string(name("title"), QString());
    list.choice(name("mode"), QString())
        .choice(name("auto"), name("Automatic"))
        .choice(name("manual"), name("Manual"));
    list.choice(name("index"), QString()).choices({name("A"), name("B")});
    list.choice(name("mixed"), QString()).choice(1, name("A")).choice(name("b"), name("B"));
    list.vec2(name("v2"), QString()).range(0, 1);
    list.vec4(name("v4"), QString()).range(0, 1);
    list.color(name("tint"), QString());
    list.size(name("size"), QString());
    list.add(kPropertyTypeRect, name("rect"), QString());
    list.imageFormat(name("format"), QString());
    list.texture(name("texture"), QString());
    list.image(name("image"), QString());
    list.transform2D(name("matrix"), QString());
    list.action(name("go"), QString());
    list.add(name("host/own"), name("own"), QString());
    list.number(name("a b"), QString()).range(0, 9);
    list.number(name("not"), QString()).range(0, 9);
    list.string(name("späti"), QString());
}

QMap<QString, QVariant> sampleValues()
{
    ImageFormatDesc jpeg;
    jpeg.format = name("jpeg");
    jpeg.compressionRate = 80;
    return {
        {name("on"), true},
        {name("count"), 3},
        {name("gain"), 0.1F},
        {name("audio.level"), 2.5},
        {name("size.width"), 7.0},
        {name("title"), name("it's \"x\"\\")},
        {name("mode"), name("manual")},
        {name("index"), 1},
        {name("mixed"), name("b")},
        {name("v2"), QVector2D(0.1F, 0.2F)},
        {name("v4"), name("1 2 3 4")},
        {name("tint"), QColor(255, 0, 51, 102)},
        {name("size"), QSize(640, 480)},
        {name("rect"), QRect(1, 2, 3, 4)},
        {name("format"), QVariant::fromValue(jpeg)},
        {name("texture"), QVariant::fromValue(TextureChoice{name("wood"), QImage(), QIcon()})},
        {name("own"), 5},
        {name("a b"), 1.0},
        {name("not"), 1.0},
        {name("späti"), name("offen")},
    };
}

/// What is wrong with the condition, without the place of the hint; empty for a good one.
QString mistakeIn(const QString &condition)
{
    PropertyList list;
    fill(list);
    list.separator().visibleWhen(condition);
    const auto problems = RuleEngine(list, nullptr).problems();
    return problems.isEmpty() ? QString() : problems.first().message;
}

bool holds(const QString &condition, const QMap<QString, QVariant> &values)
{
    PropertyList list;
    fill(list);
    const PropertyRow row = list.separator().visibleWhen(condition);
    TestSupport::RecordingDelegate delegate;
    delegate.values = values;
    const RuleEngine engine(list, &delegate);
    return engine.isVisible(&row.property());
}

} // namespace

class tst_Rules : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void conditions_data();
    void conditions();
    void valuesThatNeverHold_data();
    void valuesThatNeverHold();
    void mistakes_data();
    void mistakes();
    void limits();
    void deepAndLongRulesAreHarmless();

    void boundsFollow_data();
    void boundsFollow();
    void mistakesInBounds_data();
    void mistakesInBounds();

    void rulesThatAreNoText_data();
    void rulesThatAreNoText();
    void conditionsOfAListMustAllHold();
    void rulesStandOnRowsThatOpen();
    void circles_data();
    void circles();
    void longCircleIsNamedInPart();
    void longChainIsNoCircle();
    void manyMistakesAreReadInTime();
    void listsInListsReadTheirValueOnce();
};

void tst_Rules::initTestCase()
{
    PropertyEditorPanel::InitialiseRegistry();
    for (const QString &type : {kPropertyTypeRect, name("host/own")})
        PropertyEditorRegistry::Instance()->registerPropertyEditor(type,
                                                                   StringPropertyEditor::Factory);
}

void tst_Rules::conditions_data()
{
    QTest::addColumn<bool>("result");
    const auto row = [](const char *condition, bool result) { QTest::newRow(condition) << result; };
    row("true", true);
    row("false", false);
    row("on", true);
    row("not on", false);
    row("!on", false);
    row("not not on", true);
    row("on == false", false);
    row("on != false", true);
    row("count == 3", true);
    row("count != 3", false);
    row("count < 3", false);
    row("count <= 3", true);
    row("count > 2.5", true);
    row("count >= 4", false);
    row("3 == count", true);
    row("count == 3e0", true);
    row("count > .5", true);
    row("count > 1E-3", true);
    row("count > -1", true);
    row("count > --4", false);
    row("count - 1 == 2", true);
    row("count*2+1 == 7", true);
    row("1 + count * 2 == 7", true);
    row("(1 + count) * 2 == 8", true);
    row("9 / count / 3 == 1", true);
    row("9 - count - 3 == 3", true);
    row("gain == 0.1", true); // in single precision
    row("audio.level == 2.5", true);
    row("size.width == 7", true); // the name, not the component
    row("`size`.width == 640", true);
    row("size.height == 480", true);
    row("title == 'it\\'s \"x\"\\\\'", true);
    row("title != ''", true);
    row("mode == 'manual'", true);
    row("mode == \"auto\"", false);
    row("mode in ['auto', 'manual']", true);
    row("mode not in ['auto', 'manual']", false);
    row("count in [1, 1 + 2]", true);
    row("count in [4]", false);
    row("index == 1", true);
    row("mixed == 'b'", true);
    row("mixed == 1", false);
    row("v2.x == 0.1", true);
    row("v2.y == 0.2", true);
    row("v4.w == 4", true);
    row("tint.red == 1 and tint.blue == 0.2 and tint.alpha == 0.4", true);
    row("rect.x == 1 && rect.height == 4", true);
    row("format.format == 'jpeg'", true);
    row("format.compressionRate > 79", true);
    row("texture == 'wood'", true);
    row("own == 5", true);
    row("own == 'x'", false);
    row("own > 4", true);
    row("own + 1 == 6", true);
    row("`a b` == 1", true);
    row("`not` == 1", true);
    row("späti == 'offen'", true);
    row("on and count > 5 or gain > 0", true);
    row("on and (count > 5 or gain < 0)", false);
    row("false or false or true", true);
    row("true || false && false", true);
    row("not count == 3", false);
    row("not (on and on)", false);
    row("  on\n\tand\non ", true);
}

void tst_Rules::conditions()
{
    QFETCH(bool, result);
    const QString condition = name(QTest::currentDataTag());

    QCOMPARE(mistakeIn(condition), QString());
    QCOMPARE(holds(condition, sampleValues()), result);
    QCOMPARE(holds(QStringLiteral("not (%1)").arg(condition), sampleValues()), !result);
}

void tst_Rules::valuesThatNeverHold_data()
{
    QTest::addColumn<QString>("row");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QStringList>("conditions");
    const auto row = [](const char *name, const char *property, const QVariant &value,
                        const QStringList &conditions) {
        QTest::newRow(name) << QString::fromLatin1(property) << value << conditions;
    };
    const QStringList numbers{name("gain == 0"),    name("gain != 0"),     name("gain < 1e300"),
                              name("gain >= 0"),    name("-gain != 7"),    name("gain * 0 == 0"),
                              name("gain == gain"), name("1 / gain != 0"), name("gain in [0, 1]")};
    row("no number", "gain", std::nan(""), numbers);
    row("infinity", "gain", std::numeric_limits<double>::infinity(), numbers);
    row("missing number", "gain", QVariant(), numbers);
    row("text that is no number", "gain", name("x"), numbers);
    row("size for a number", "gain", QSize(1, 1), numbers);
    row("missing truth value", "on", QVariant(), {name("on"), name("on == false")});
    row("text for a truth value", "on", name("true"), {name("on"), name("on != true")});
    row("whole number out of range", "count", 1e300, {name("count > 0"), name("count != 0")});
    row("missing text", "title", QVariant(), {name("title == ''"), name("title != 'x'")});
    row("missing size", "size", QVariant(), {name("size.height != 1")});
    row("vector of another size", "v2", QVector3D(1, 2, 3), {name("v2.x == 1")});
    row("text that is no vector", "v4", name("1 2"), {name("v4.x != 7")});
    row("text for a format", "format", name("jpeg"), {name("format.format != 'x'")});
    row("list for a value of the host", "own", QVariantList{1}, {name("own == 1"), name("own")});
    row("missing value of the host", "own", QVariant(), {name("own != 1"), name("own")});
    row("division by zero", "count", 0,
        {name("1 / count > 0"), name("1 / count != 0"), name("count / count == 1")});
    row("sum that overflows", "gain", 1e308, {name("gain * 10 > 0"), name("gain + gain != 0")});
}

void tst_Rules::valuesThatNeverHold()
{
    QFETCH(QString, row);
    QFETCH(QVariant, value);
    QFETCH(QStringList, conditions);
    auto values = sampleValues();
    values.insert(row, value);

    for (const QString &condition : std::as_const(conditions)) {
        QCOMPARE(mistakeIn(condition), QString());
        QVERIFY2(!holds(condition, values), qPrintable(condition));
        QVERIFY(holds(QStringLiteral("not (%1)").arg(condition), values));
    }
}

void tst_Rules::mistakes_data()
{
    QTest::addColumn<QString>("message");
    const auto row = [](const char *condition, const char *message) {
        QTest::newRow(condition) << QString::fromUtf8(message);
    };
    row("", "character 1: the rule ends too early");
    row("on and", "character 7: the rule ends too early");
    row("on on", "character 4: \"on\" is not expected");
    row("(on", "character 4: \")\" is missing");
    row("on)", "character 3: \")\" is not expected");
    row("on = true", "character 4: \"=\" is not expected (did you mean \"==\"?)");
    row("on & on", "character 4: \"&\" is not expected");
    row("(on # on)", "character 5: \"#\" is not expected");
    row("title == 'x", "character 10: the ' that opens here never closes");
    row("`a b == 1", "character 1: the ` that opens here never closes");
    row("count == 1.2.3", "character 10: \"1.2.3\" is not a number");
    row("count == 1x", "character 10: \"1\" is not a number");
    row("count == 1e999", "character 10: \"1e999\" is not a number");
    row("cuont == 1", "character 1: there is no property \"cuont\" (did you mean \"count\"?)");
    row("on and nowhere", "character 8: there is no property \"nowhere\"");
    row("`a  b` == 1", "character 1: there is no property \"a  b\" (did you mean \"a b\"?)");
    row("nowhere.x == 1", "character 1: there is no property \"nowhere.x\"");
    row("size.hieght == 1",
        "character 1: \"size\" has no component \"hieght\" (did you mean \"height\"?)");
    row("`size`.depth == 1", "character 1: \"size\" has no component \"depth\", but width, height");
    row("`size`.1 == 1", "character 7: \".1\" is not expected");
    row("`size`. == 1", "character 9: \"==\" is not expected");
    row("gain.x == 1", "character 1: \"gain\" has no components");
    row("count", "character 1: expected a truth value, found a number");
    row("on and title", "character 8: expected a truth value, found a text");
    row("count or on", "character 1: expected a truth value, found a number");
    row("not count", "character 5: expected a truth value, found a number");
    row("count == 'x'", "character 10: expected a number, found a text");
    row("title == 1", "character 10: expected a text, found a number");
    row("on == 1", "character 7: expected a truth value, found a number");
    row("title < 'x'", "character 1: expected a number, found a text");
    row("1 < on", "character 5: expected a number, found a truth value");
    row("title + 'x' == 'y'", "character 1: expected a number, found a text");
    row("-title == 1", "character 2: expected a number, found a text");
    row("size == size", "character 1: \"size\" has several parts, name one as in \"size.width\"");
    row("v2", "character 1: \"v2\" has several parts, name one as in \"v2.x\"");
    row("1 < tint", "character 5: \"tint\" has several parts, name one as in \"tint.red\"");
    row("v2 + 1 == 2", "character 1: \"v2\" has several parts, name one as in \"v2.x\"");
    row("mode == 'manul'",
        "character 9: \"manul\" is not one of the values of \"mode\" (did you mean \"manual\"?)");
    row("mode in ['auto', 'x']", "character 18: \"x\" is not one of the values of \"mode\"");
    row("mode == 1", "character 9: expected a text, found a number");
    row("mixed == 2", "character 10: this is not one of the values of \"mixed\"");
    row("index == 2", "character 10: \"index\" has no choice 2, the list has 2");
    row("index == 'B'", "character 10: expected a number, found a text");
    row("mode in 'auto'", "character 9: \"[\" is missing");
    row("mode in []", "character 10: \"]\" is not expected");
    row("mode in ['auto'", "character 16: \"]\" is missing");
    row("mode not 'auto'", "character 10: \"auto\" is not expected");
    row("and == 1", "character 1: \"and\" is not expected");
    row("image == 'x'", "character 1: rules cannot read \"image\", which is of type \"image\"");
    row("matrix == 1",
        "character 1: rules cannot read \"matrix\", which is of type \"transform2D\"");
    row("go", "character 1: rules cannot read \"go\", which is of type \"action\"");
    row("a < b < c", "character 1: there is no property \"a\"");
    row("1 < 2 < 3", "character 7: \"<\" is not expected");
    row("on; on", "character 3: \";\" is not expected");
    row("on()", "character 3: \"(\" is not expected");
}

void tst_Rules::mistakes()
{
    QFETCH(QString, message);

    QCOMPARE(mistakeIn(name(QTest::currentDataTag())), message);
}

void tst_Rules::limits()
{
    const QString longest = QStringLiteral("on") + QString(998, QLatin1Char(' '));
    QCOMPARE(mistakeIn(longest), QString());
    QCOMPARE(mistakeIn(longest + QLatin1Char(' ')),
             QStringLiteral("character 1001: a rule may have 1000 characters at most"));
    PropertyList bounded;
    bounded.number(name("x"), QString()).minimumFollows(QString(1001, QLatin1Char('1')));
    const auto problems = RuleEngine(bounded, nullptr).problems();
    QCOMPARE(problems.size(), 1);
    QCOMPARE(problems.first().message,
             QStringLiteral("character 1001: a rule may have 1000 characters at most"));

    const auto nested = [](int depth) {
        return QString(depth, QLatin1Char('(')) + QStringLiteral("on")
               + QString(depth, QLatin1Char(')'));
    };
    QCOMPARE(mistakeIn(nested(32)), QString());
    QCOMPARE(mistakeIn(nested(33)),
             QStringLiteral("character 34: a rule may be nested 32 deep at most"));
    QCOMPARE(mistakeIn(QString(33, QLatin1Char('!')) + QStringLiteral("on")),
             QStringLiteral("character 34: a rule may be nested 32 deep at most"));
    QCOMPARE(mistakeIn(QStringLiteral("1 < ") + QString(33, QLatin1Char('-')) + QLatin1Char('1')),
             QStringLiteral("character 38: a rule may be nested 32 deep at most"));
}

void tst_Rules::deepAndLongRulesAreHarmless()
{
    QString many = QStringLiteral("on");
    while (many.size() < 990)
        many += QStringLiteral(" or on");
    QCOMPARE(mistakeIn(many), QString());
    QVERIFY(!holds(many, {}));
    QVERIFY(!mistakeIn(QString(1000, QLatin1Char('('))).isEmpty());
    QVERIFY(!mistakeIn(QString(1000, QLatin1Char('['))).isEmpty());
    QVERIFY(!mistakeIn(QString(1000, QLatin1Char('`'))).isEmpty());
}

void tst_Rules::boundsFollow_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QVariantList>("declared"); // minimum, maximum, hard maximum
    QTest::addColumn<QString>("minimum");
    QTest::addColumn<QString>("maximum");
    QTest::addColumn<QVariantList>("range");
    const auto row = [](const char *name, const QString &type, const QVariantList &declared,
                        const char *minimum, const char *maximum, const QVariantList &range) {
        QTest::newRow(name) << type << declared << QString::fromLatin1(minimum)
                            << QString::fromLatin1(maximum) << range;
    };
    row("maximum", kPropertyTypeFloat, {0.0, 9.0, 20.0}, "", "count", {0.0, 3.0, 3.0});
    row("minimum", kPropertyTypeFloat, {0.0, 9.0, 20.0}, "count", "", {3.0, 9.0, 20.0});
    row("both", kPropertyTypeFloat, {0.0, 9.0, 9.0}, "count", "count + 2", {3.0, 5.0, 5.0});
    row("minimum above a maximum that stays", kPropertyTypeFloat, {0.0, 2.0, 2.0}, "count", "",
        {2.0, 2.0, 2.0});
    row("maximum below the minimum", kPropertyTypeFloat, {5.0, 9.0, 9.0}, "", "count",
        {5.0, 5.0, 5.0});
    row("both crossed", kPropertyTypeFloat, {0.0, 9.0, 9.0}, "5", "count", {5.0, 5.0, 5.0});
    row("whole numbers inwards", kPropertyTypeInteger, {0, 9, 9}, "1.5", "audio.level + 2",
        {2, 4, 4});
    row("whole numbers that saturate", kPropertyTypeInteger, {0, 9, 9}, "-1e99", "1e99",
        {-2147483647 - 1, 2147483647, 2147483647});
    row("number for all parts", kPropertyTypeVec2,
        {QVector2D(0, 0), QVector2D(1, 1), QVector2D(1, 1)}, "", "count",
        {QVector2D(0, 0), QVector2D(3, 3), QVector2D(3, 3)});
    row("part by part", kPropertyTypeVec2, {QVector2D(0, 0), QVector2D(1, 1), QVector2D(1, 1)},
        "v2", "", {QVector2D(0.1F, 0.2F), QVector2D(1, 1), QVector2D(1, 1)});
    row("parts of a text", kPropertyTypeVec4, {{}, QVector4D(1, 1, 1, 1), QVector4D(1, 1, 1, 1)},
        "", "v4", {{}, QVector4D(1, 2, 3, 4), QVector4D(1, 2, 3, 4)});
    row("rectangle", kPropertyTypeRect, {{}, {}, {}}, "", "rect",
        {{}, QRect(1, 2, 3, 4), QRect(1, 2, 3, 4)});
    row("missing number", kPropertyTypeFloat, {0.0, 9.0, 20.0}, "", "1 / (count - 3)",
        {0.0, 9.0, 20.0});
    row("too large for single precision", kPropertyTypeVec2,
        {QVector2D(0, 0), QVector2D(1, 1), QVector2D(1, 1)}, "", "1e99",
        {QVector2D(0, 0), QVector2D(1, 1), QVector2D(1, 1)});
    row("value of the host that is a number", kPropertyTypeFloat, {0.0, 9.0, 9.0}, "", "own",
        {0.0, 5.0, 5.0});
    row("value of the host that is none", kPropertyTypeFloat, {0.0, 9.0, 9.0}, "", "mixed",
        {0.0, 9.0, 9.0});
}

void tst_Rules::boundsFollow()
{
    QFETCH(QString, type);
    QFETCH(QVariantList, declared);
    QFETCH(QString, minimum);
    QFETCH(QString, maximum);
    QFETCH(QVariantList, range);
    PropertyList list;
    fill(list);
    PropertyRow row = list.add(type, name("target"), QString());
    row.range(declared.at(0), declared.at(1), declared.at(2));
    if (!minimum.isEmpty())
        row.minimumFollows(minimum);
    if (!maximum.isEmpty())
        row.maximumFollows(maximum);
    TestSupport::RecordingDelegate delegate;
    delegate.values = sampleValues();
    const Property &property = row.property();
    const auto rangeNow = [&property] {
        return QVariantList{property.minValue, property.maxValue, property.hardMaxValue};
    };
    {
        const RuleEngine engine(list, &delegate);
        QCOMPARE(engine.problems().size(), 0);
        QCOMPARE(rangeNow(), range);
    }
    QCOMPARE(rangeNow(), declared);
}

void tst_Rules::mistakesInBounds_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("message");
    const auto row = [](const char *expression, const QString &type, const char *message) {
        QTest::addRow("%s: %s", qPrintable(type), expression)
            << type << QString::fromLatin1(message);
    };
    row("", kPropertyTypeFloat, "character 1: the rule ends too early");
    row("on", kPropertyTypeFloat, "character 1: expected a number, found a truth value");
    row("'x'", kPropertyTypeInteger, "character 1: expected a number, found a text");
    row("v2", kPropertyTypeFloat, "character 1: \"v2\" has several parts, name one as in \"v2.x\"");
    row("v2", kPropertyTypeVec3, "character 1: expected 3 numbers, found 2");
    row("v2 * 2", kPropertyTypeVec2,
        "character 1: \"v2\" has several parts, name one as in \"v2.x\"");
    row("count", kPropertyTypeString, "rows of type \"string\" have no range");
    row("count", kPropertyTypeSize, "rows of type \"ivec2/size\" have no range");
    row("1 < 2", kPropertyTypeFloat, "character 1: expected a number, found a truth value");
}

void tst_Rules::mistakesInBounds()
{
    QFETCH(QString, type);
    QFETCH(QString, message);
    const QString tag = name(QTest::currentDataTag());
    PropertyList list;
    fill(list);
    list.add(type, name("target"), QString())
        .minimumFollows(tag.mid(tag.indexOf(QLatin1String(": ")) + 2));

    const auto problems = RuleEngine(list, nullptr).problems();

    QCOMPARE(problems.size(), 1);
    QCOMPARE(problems.first().message, message);
    QVERIFY(problems.first().pointer.endsWith(QLatin1String("/hints/minimum_follows")));
    QCOMPARE(problems.first().name, name("target"));
}

void tst_Rules::rulesThatAreNoText_data()
{
    QTest::addColumn<QString>("hint");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("message");
    const QString conditions = name("expected a condition as text, or several");
    const QString bound = name("expected an expression as text");
    QTest::newRow("number") << QString(kHostHintVisibleWhen) << QVariant(1) << conditions;
    QTest::newRow("no texts") << QString(kHostHintEnabledWhen) << QVariant(QStringList())
                              << conditions;
    QTest::newRow("number for a bound") << QString(kHostHintMaximumFollows) << QVariant(1) << bound;
    QTest::newRow("texts for a bound")
        << QString(kHostHintMaximumFollows) << QVariant(QStringList{name("1")}) << bound;
    QStringList many;
    for (int i = 0; i < 33; ++i)
        many.append(name("true"));
    QTest::newRow("too many") << QString(kHostHintVisibleWhen) << QVariant(many)
                              << name("a rule may have 32 conditions at most");
}

void tst_Rules::rulesThatAreNoText()
{
    QFETCH(QString, hint);
    QFETCH(QVariant, value);
    QFETCH(QString, message);
    PropertyList list;
    list.number(name("a"), QString()).range(0, 1).hint(hint, value);

    const auto problems = RuleEngine(list, nullptr).problems();

    QCOMPARE(problems.size(), 1);
    QCOMPARE(problems.first().message, message);
}

void tst_Rules::conditionsOfAListMustAllHold()
{
    const auto result = readPropertyList(R"({"version": 1, "properties": [
        {"name": "a", "type": "bool"}, {"name": "b", "type": "bool"},
        {"name": "c", "type": "bool", "hints": {"visible_when": ["a", "b"]}},
        {"name": "d", "type": "bool", "hints": {"visible_when": ["a", "x", "y"]}}]})");
    QCOMPARE(result.problems.size(), 2);
    QCOMPARE(result.problems.first().pointer, name("/properties/3/hints/visible_when/1"));
    QCOMPARE(result.problems.last().pointer, name("/properties/3/hints/visible_when/2"));
    TestSupport::RecordingDelegate delegate;
    RuleEngine engine(result.list, &delegate);
    const auto properties = result.list.properties();

    delegate.values = {{name("a"), true}, {name("b"), false}};
    engine.update();
    QVERIFY(!engine.isVisible(properties.at(2)));
    delegate.values = {{name("a"), true}, {name("b"), true}};
    engine.update();
    QVERIFY(engine.isVisible(properties.at(2)));
    // A rule with a mistake is passed over as a whole.
    delegate.values = {};
    engine.update();
    QVERIFY(engine.isVisible(properties.at(3)));
    QVERIFY(engine.isVisible(nullptr));
    QVERIFY(engine.isEnabled(properties.at(2)));
}

void tst_Rules::rulesStandOnRowsThatOpen()
{
    PropertyList list;
    list.group(QString(), [] {});
    list.properties().last()->setHint(kHostHintVisibleWhen, name("true"));
    list.tabs([] {});
    list.properties().last()->setHint(kHostHintEnabledWhen, name("true"));

    const auto problems = list.validate();

    QCOMPARE(problems.size(), 2);
    QCOMPARE(problems.first().message,
             name("the rule belongs to the row that opens what \"end_group\" closes"));
    QCOMPARE(problems.last().message,
             name("the rule belongs to the row that opens what \"end_tab_group\" closes"));
}

void tst_Rules::circles_data()
{
    QTest::addColumn<QByteArray>("rows");
    QTest::addColumn<QString>("message"); // with the pointer before it; empty for no circle
    const auto row = [](const char *name, const char *rows, const char *message) {
        QTest::newRow(name) << QByteArray(rows) << QString::fromLatin1(message);
    };
    row("row that needs itself", R"({"name": "a", "type": "bool", "hints": {"visible_when": "a"}})",
        "/properties/0/hints/visible_when: these rules go in a circle: \"a\", \"a\"");
    row("two rows",
        R"({"name": "a", "type": "bool", "hints": {"visible_when": "b"}},
           {"name": "b", "type": "bool", "hints": {"enabled_when": "a"}})",
        "/properties/1/hints/enabled_when: these rules go in a circle: \"a\", \"b\", \"a\"");
    row("group that needs a row inside of it",
        R"({"type": "begin_group", "label": "G", "hints": {"visible_when": "a"}},
           {"name": "a", "type": "bool"}, {"type": "end_group"})",
        "/properties/0/hints/visible_when: these rules go in a circle: \"G\", \"a\", \"G\"");
    row("tab that needs a row on another tab, which needs one on the first",
        R"({"type": "begin_tab_group"},
           {"type": "tab", "name": "t", "hints": {"visible_when": "b"}}, {"name": "a", "type": "bool"},
           {"type": "tab", "name": "u", "hints": {"visible_when": "a"}}, {"name": "b", "type": "bool"},
           {"type": "end_tab_group"})",
        "/properties/1/hints/visible_when: these rules go in a circle: \"t\", \"b\", \"u\", \"a\", "
        "\"t\"");
    row("tab that needs a row on another tab",
        R"({"type": "begin_tab_group"},
           {"type": "tab", "hints": {"visible_when": "b"}}, {"name": "a", "type": "bool"},
           {"type": "tab"}, {"name": "b", "type": "bool"}, {"type": "end_tab_group"})",
        "");
    row("rows that need the same row",
        R"({"name": "a", "type": "bool"},
           {"name": "b", "type": "bool", "hints": {"visible_when": "a"}},
           {"name": "c", "type": "bool", "hints": {"visible_when": "a and b"}})",
        "");
    row("limits of each other",
        R"({"name": "a", "type": "float", "max": 9, "hints": {"maximum_follows": "b"}},
           {"name": "b", "type": "float", "max": 9, "hints": {"minimum_follows": "a"}})",
        "");
    row("minima that follow each other",
        R"({"name": "a", "type": "float", "max": 9, "hints": {"minimum_follows": "b"}},
           {"name": "b", "type": "float", "max": 9, "hints": {"minimum_follows": "a"}})",
        "/properties/1/hints/minimum_follows: these minima go in a circle: \"a\", \"b\", \"a\"");
    row("maximum that follows itself",
        R"({"name": "a", "type": "float", "max": 9, "hints": {"maximum_follows": "a + 1"}})",
        "/properties/0/hints/maximum_follows: these maxima go in a circle: \"a\", \"a\"");
    row("end that opens nothing", R"({"type": "end_group"}, {"name": "a", "type": "bool"},
           {"name": "b", "type": "bool", "hints": {"visible_when": "a"}})",
        "");
}

void tst_Rules::circles()
{
    QFETCH(QByteArray, rows);
    QFETCH(QString, message);

    const auto result = readPropertyList(R"({"version": 1, "properties": [)" + rows + "]}");

    QStringList found;
    for (const Problem &problem : result.problems) {
        if (problem.message.contains(name("circle")))
            found.append(problem.pointer + name(": ") + problem.message);
    }
    QCOMPARE(found, message.isEmpty() ? QStringList() : QStringList{message});
    // Without one rule of each circle, the others hold again.
    TestSupport::RecordingDelegate delegate;
    RuleEngine engine(result.list, &delegate);
    if (!message.isEmpty() && message.contains(name("rules")))
        QVERIFY(engine.isVisible(result.list.properties().last())
                && engine.isEnabled(result.list.properties().last()));
}

void tst_Rules::longCircleIsNamedInPart()
{
    PropertyList list;
    const auto named = [](int i) { return QStringLiteral("r%1").arg(i); };
    for (int i = 0; i < 5000; ++i) {
        list.boolean(named(i), QString()).visibleWhen(named((i + 1) % 5000));
    }

    const auto problems = RuleEngine(list, nullptr).problems();

    QCOMPARE(problems.size(), 1);
    QCOMPARE(problems.first().message,
             name("these rules go in a circle: \"r0\", \"r1\", \"r2\", \"r3\", \"r4\", \"r5\", "
                  "\"r6\", \"r7\", ..., \"r0\""));
}

void tst_Rules::longChainIsNoCircle()
{
    PropertyList list;
    const auto named = [](int i) { return QStringLiteral("r%1").arg(i); };
    list.boolean(named(0), QString());
    for (int i = 1; i < 20000; ++i)
        list.boolean(named(i), QString()).visibleWhen(named(i - 1));

    QVERIFY(RuleEngine(list, nullptr).problems().isEmpty());
}

void tst_Rules::manyMistakesAreReadInTime()
{
    PropertyList list;
    const QString stem(60, QLatin1Char('x'));
    for (int i = 0; i < 5000; ++i) {
        list.boolean(stem + QString::number(10000 + i), QString())
            .visibleWhen(stem + QString::number(20000 + i));
    }
    QElapsedTimer timer;
    timer.start();

    const auto problems = RuleEngine(list, nullptr).problems();

    QCOMPARE(problems.size(), 5000);
    // Suggestions for all would take 25 million comparisons of names, several minutes.
    QVERIFY2(timer.elapsed() < 30000, qPrintable(QString::number(timer.elapsed())));
}

// Else each list around another one would double the time.
void tst_Rules::listsInListsReadTheirValueOnce()
{
    QString condition = name("(on) in [false, false]");
    for (int i = 0; i < 12; ++i)
        condition = QStringLiteral("(%1) in [true, true]").arg(condition);
    PropertyList list;
    fill(list);
    const PropertyRow row = list.separator().visibleWhen(condition);
    TestSupport::RecordingDelegate delegate;
    delegate.values = sampleValues();

    const RuleEngine engine(list, &delegate);

    QVERIFY(engine.problems().isEmpty());
    QVERIFY(!engine.isVisible(&row.property()));
    QCOMPARE(delegate.reads.size(), 2); // to remember the value, and to evaluate the rule
}

QTEST_MAIN(tst_Rules)
#include "tst_Rules.moc"
