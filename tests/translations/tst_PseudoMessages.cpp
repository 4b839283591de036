#include "support/PseudoLocale.h"

#include <host/HostHints.h>
#include <host/PropertyList.h>
#include <host/PropertyListReader.h>
#include <property/PropertyUI.h>

#include <QTest>

using namespace Tessark::PropertyUI;
using Tessark::PropertyHost::Problem;
using Tessark::PropertyHost::PropertyList;

/// What is said about mistakes in lists and rules, in a language that shows which part of a message is a
/// text of its own.
class tst_PseudoMessages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void mistakesInRowsAreTranslated();
    void mistakesInRulesAreTranslated_data();
    void mistakesInRulesAreTranslated();
    void mistakesInNestingAreTranslated();
    void mistakesInJsonAreTranslated_data();
    void mistakesInJsonAreTranslated();

private:
    TestSupport::PseudoTranslator m_translator;
};

namespace {

/// The messages, each translated part in square brackets.
QStringList marked(const QVector<Problem> &problems)
{
    const QString brackets = TestSupport::pseudoText(QString());
    QStringList messages;
    for (const Problem &problem : problems) {
        QString message = problem.message;
        message.replace(brackets.front(), QLatin1Char('['));
        message.replace(brackets.back(), QLatin1Char(']'));
        messages.append(message.remove(QLatin1Char('~')));
    }
    return messages;
}

QStringList mistakesIn(const PropertyList &list)
{
    return marked(list.validate());
}

} // namespace

void tst_PseudoMessages::mistakesInRowsAreTranslated()
{
    const auto name = [](const char *text) { return QString::fromLatin1(text); };
    const QString none;
    PropertyList list;
    list.boolean(none, none);
    list.boolean(name("a"), none);
    list.boolean(name("a"), none);
    list.add(name("flaot"), name("b"), none);
    list.boolean(name("c"), none).hint(name("enabld"), true);
    list.string(name("d"), none).suffix(name(" m"));
    list.choice(name("e"), none).choices({name("x")}).hint(kPropertyHintValues, QVariantList{1, 2});
    list.add(kPropertyTypeString, name("f"), none).property().setRange(0, QVariant());
    list.number(name("g"), none);
    list.integer(name("h"), none).range(5, 1);
    list.number(name("i"), none).range(name("low"), 5.0);
    list.integer(name("j"), none).range(0, 5).defaultValue(6);
    list.action(name("k"), none).defaultValue(1);
    list.integer(name("l"), none).range(0, 5).defaultValue(name("x"));

    QCOMPARE(mistakesIn(list), (QStringList{
                                   name("[\"name\" is missing]"),
                                   name("[the name \"a\" is taken by a row before]"),
                                   name("[no editor for type \"flaot\", the row is skipped"
                                        "[ (did you mean \"float\"?)]]"),
                                   name("[unknown hint[ (did you mean \"enabled\"?)]]"),
                                   name("[no editor reads this hint for type \"string\"]"),
                                   name("[2 values for 1 \"display_values\"]"),
                                   name("[means nothing for type \"string\", ignored]"),
                                   name("[\"max\" is missing and counts as 0]"),
                                   name("[5 is above \"max\", which is 1]"),
                                   name("[the bound is not [a number]]"),
                                   name("[6 is outside of the range]"),
                                   name("[a property of type \"action\" has no value]"),
                                   name("[the default is not [a whole number]]"),
                               }));
}

void tst_PseudoMessages::mistakesInRulesAreTranslated_data()
{
    QTest::addColumn<QString>("rule");
    QTest::addColumn<QString>("message");
    const auto row = [](const char *rule, const char *message) {
        QTest::newRow(rule) << QString::fromLatin1(rule) << QString::fromLatin1(message);
    };

    row("n", "[character 1: [expected [a truth value], found [a number]]]");
    row("n = 1", "[character 3: [\"=\" is not expected[ (did you mean \"==\"?)]]]");
    row("n > 1 1", "[character 7: [\"1\" is not expected]]");
    row("n >", "[character 4: [the rule ends too early]]");
    row("n > 1.1.1", "[character 5: [\"1.1.1\" is not a number]]");
    row("nn", "[character 1: [there is no property \"nn\"[ (did you mean \"n\"?)]]]");
    row("v", "[character 1: [\"v\" has several parts, name one as in \"v.x\"]]");
    row("s.widht > 1",
        "[character 1: [\"s\" has no component \"widht\"[ (did you mean \"width\"?)]]]");
    row("v.other > 1", "[character 1: [\"v\" has no component \"other\", but x, y]]");
    row("n.x > 1", "[character 1: [\"n\" has no components]]");
    row("i == 1", "[character 1: [rules cannot read \"i\", which is of type \"image\"]]");
    row("'a", "[character 1: [the ' that opens here never closes]]");
    row("c == 'y'", "[character 6: [\"y\" is not one of the values of \"c\"]]");
    row("c == 1", "[character 6: [expected [a text], found [a number]]]");
    row("(n > 1", "[character 7: [\")\" is missing]]");
    row("a", "[these rules go in a circle: \"a\", \"a\"]");
}

void tst_PseudoMessages::mistakesInRulesAreTranslated()
{
    QFETCH(QString, rule);
    QFETCH(QString, message);
    const QString none;
    const QStringList choices{QStringLiteral("x")};
    PropertyList list;
    list.integer(QStringLiteral("n"), none).range(0, 5);
    list.vec2(QStringLiteral("v"), none).range(QVector2D(), QVector2D(1, 1));
    list.size(QStringLiteral("s"), none);
    list.image(QStringLiteral("i"), none);
    list.choice(QStringLiteral("c"), none).choices(choices).hint(kPropertyHintValues, choices);

    list.boolean(QStringLiteral("a"), none).visibleWhen(rule);

    QCOMPARE(mistakesIn(list), QStringList(message));
}

void tst_PseudoMessages::mistakesInNestingAreTranslated()
{
    const QString none;
    PropertyList list;
    for (const QString &type : {kPropertyTypeTab, kPropertyTypeEndGroup, kPropertyTypeBeginTabGroup,
                                kPropertyTypeBeginGroup, kPropertyTypeTab, kPropertyTypeEndTabGroup,
                                kPropertyTypeBeginGroup, kPropertyTypeBeginTabGroup})
        list.add(type, none, none);

    QCOMPARE(mistakesIn(list),
             (QStringList{
                 QStringLiteral("[a tab outside of a tab group]"),
                 QStringLiteral("[nothing is open that \"end_group\" could close]"),
                 QStringLiteral("[a tab inside of the group /properties/3]"),
                 QStringLiteral("[\"end_tab_group\" here leaves /properties/3 open]"),
                 QStringLiteral("[this group is never closed, \"end_group\" is missing]"),
                 QStringLiteral("[this tab group is never closed, \"end_tab_group\" is missing]"),
             }));
}

void tst_PseudoMessages::mistakesInJsonAreTranslated_data()
{
    QTest::addColumn<QByteArray>("row");
    QTest::addColumn<QString>("message");
    const auto row = [](const char *name, const char *rest, const char *message) {
        QTest::newRow(name) << QByteArray(rest) << QString::fromLatin1(message);
    };

    row("truth value", R"("bool", "default": 1)", "[expected [a boolean], found [a number]]");
    row("whole number", R"("int", "max": 5, "default": true)",
        "[expected [a whole number], found [a boolean]]");
    row("number", R"("float", "max": 5, "default": null)", "[expected [a number], found null]");
    row("text", R"("string", "default": [])", "[expected [a string], found [an array]]");
    row("colour", R"("vec4/color", "default": {})",
        "[expected [a colour as text or array of fractions], found [an object]]");
    row("fractions", R"("vec4/color", "default": [1])",
        "[expected [3 or 4 fractions], found an array of 1]");
    row("vector", R"("vec2", "max": [1, 1], "default": true)",
        "[expected [2 numbers], found [a boolean]]");
    row("size", R"("ivec2/size", "default": "x")",
        "[expected [[width, height]], found [a string]]");
    row("matrix", R"("transform2D", "default": {})", "[expected [9 numbers], found [an object]]");
    row("texture", R"("texture", "default": 1)",
        "[expected [the name of a texture, a path or null], found [a number]]");
    row("picture", R"("image", "default": "/nowhere/p.png")",
        "[there is no file \"/nowhere/p.png\"]");
    row("format", R"("image_format", "default": {"format": "pngg"})",
        "[\"pngg\" is not one of png, jpeg, tiff, bmp[ (did you mean \"png\"?)]]");
    row("font", R"("bool", "hints": {"font": 1})",
        "[expected [a font as text or object], found [a number]]");
    row("alignment", R"("bool", "hints": {"alignment": 4})",
        "[expected [names of alignments], found [a number]]");
    row("unknown key", R"("bool", "lable": "L")", "[unknown key[ (did you mean \"label\"?)]]");
}

void tst_PseudoMessages::mistakesInJsonAreTranslated()
{
    QFETCH(QByteArray, row);
    QFETCH(QString, message);

    const auto result = Tessark::PropertyHost::readPropertyList(
        R"({"version": 1, "properties": [{"name": "a", "type": )" + row + "}]}");

    QCOMPARE(marked(result.problems), QStringList(message));
}

QTEST_MAIN(tst_PseudoMessages)
#include "tst_PseudoMessages.moc"
