#include <host/PropertyList.h>
#include <host/PropertyListReader.h>
#include <host/PropertyPanelView.h>
#include <property/PropertyUI.h>
#include <tools/property-panel/Input.h>
#include <tools/property-panel/PanelWindow.h>

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QJsonArray>
#include <QJsonObject>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSet>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <QTranslator>

#include <algorithm>
#include <memory>

using namespace Tessark::PropertyPanel;
using Tessark::PropertyHost::Problem;
using Tessark::PropertyHost::PropertyList;
using Tessark::PropertyHost::PropertyPanelView;
using namespace Tessark::PropertyUI;

/// The program's window, with rows of all types, in a language that shows what is not translated and
/// what has no room in another language.
class tst_PseudoLocale : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();

    void allTextsAreTranslated();
    void noTextIsCutOff();
    void findsWhatIsNot();
    void mistakesInRowsAreTranslated();
    void mistakesInRulesAreTranslated_data();
    void mistakesInRulesAreTranslated();
    void mistakesInNestingAreTranslated();
    void mistakesInJsonAreTranslated_data();
    void mistakesInJsonAreTranslated();

private:
    QStringList untranslated() const;
    QStringList cutOff() const;
    bool isOfTheList(const QString &text) const;

    std::unique_ptr<QTranslator> m_translator;
    Input m_input;
    QSet<QString> m_listTexts;
    std::unique_ptr<PanelWindow> m_window;
};

namespace {

const QChar kOurs(0x27e6); // in front of each text of ours
const QChar kOfQt(0x27ea); // in front of each text of Qt
constexpr double kGrowth = 0.4;

/// Longer by two fifths and between brackets.
QString pseudoText(const QString &text, QChar bracket)
{
    const int more = int(kGrowth * double(text.size())) + 1;
    return bracket + text + QString(more, QLatin1Char('~')) + QChar(bracket.unicode() + 1);
}

class PseudoTranslator final : public QTranslator
{
public:
    QString translate(const char *context, const char *sourceText, const char *, int) const override
    {
        const QString text = QString::fromUtf8(sourceText);
        const bool isOurs = QByteArray(context).startsWith("Tessark::");
        // Which layouts and platforms read and nobody sees.
        if (!isOurs && (text.startsWith(QLatin1String("QT_")) || text.isEmpty()))
            return QString();
        return pseudoText(text, isOurs ? kOurs : kOfQt);
    }
};

void collectTexts(const QJsonValue &value, QSet<QString> &texts)
{
    if (value.isString())
        texts.insert(value.toString());
    const QJsonArray array = value.toArray();
    for (const QJsonValue &entry : array)
        collectTexts(entry, texts);
    const QJsonObject object = value.toObject();
    for (auto it = object.begin(); it != object.end(); ++it)
        collectTexts(it.value(), texts);
}

QStringList textsOf(const QWidget &widget)
{
    QStringList texts = {widget.toolTip(), widget.accessibleName(), widget.accessibleDescription()};
    if (const auto *const label = qobject_cast<const QLabel *>(&widget))
        texts.append(label->text());
    if (const auto *const button = qobject_cast<const QAbstractButton *>(&widget))
        texts.append(button->text());
    if (const auto *const line = qobject_cast<const QLineEdit *>(&widget))
        texts.append(line->placeholderText());
    if (const auto *const edit = qobject_cast<const QPlainTextEdit *>(&widget))
        texts.append(edit->placeholderText());
    if (const auto *const box = qobject_cast<const QComboBox *>(&widget)) {
        for (int i = 0; i < box->count(); ++i)
            texts.append(box->itemText(i));
    }
    if (const auto *const tabs = qobject_cast<const QTabBar *>(&widget)) {
        for (int i = 0; i < tabs->count(); ++i)
            texts.append({tabs->tabText(i), tabs->tabToolTip(i)});
    }
    return texts;
}

bool isWord(const QString &text)
{
    return std::any_of(text.cbegin(), text.cend(), [](QChar c) { return c.isLetter(); });
}

bool isTranslated(const QString &text)
{
    return text.contains(kOurs) || text.contains(kOfQt);
}

/// The messages, each translated part in square brackets.
QStringList marked(const QVector<Problem> &problems)
{
    QStringList messages;
    for (const Problem &problem : problems) {
        QString message = problem.message;
        message.replace(kOurs, QLatin1Char('['));
        message.replace(QChar(kOurs.unicode() + 1), QLatin1Char(']'));
        messages.append(message.remove(QLatin1Char('~')));
    }
    return messages;
}

QStringList mistakesIn(const PropertyList &list)
{
    return marked(list.validate());
}

/// Whether it shows a text that has to be seen whole.
bool isText(const QWidget &widget)
{
    const auto *const label = qobject_cast<const QLabel *>(&widget);
    const auto *const button = qobject_cast<const QAbstractButton *>(&widget);
    return (label && !label->wordWrap() && !label->text().isEmpty())
           || (button && !button->text().isEmpty());
}

} // namespace

void tst_PseudoLocale::initTestCase()
{
    m_translator = std::make_unique<PseudoTranslator>();
    QCoreApplication::installTranslator(m_translator.get());
    m_input = readInput(Options());
    QVERIFY(!m_input.hasErrors);
    collectTexts(m_input.list.toJson(), m_listTexts);
    m_listTexts +=
        {QStringLiteral("tiff"), QStringLiteral("bmp")}; // formats are called so everywhere
    m_window =
        std::make_unique<PanelWindow>(m_input.list, m_input.store.get(), ValuesWriter(QString()));
    m_window->resize(m_window->sizeHint().expandedTo(QSize(1600, 800)));
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
}

void tst_PseudoLocale::cleanupTestCase()
{
    m_window.reset();
    QCoreApplication::removeTranslator(m_translator.get());
}

bool tst_PseudoLocale::isOfTheList(const QString &text) const
{
    QString plain = text;
    plain.remove(QLatin1Char('&'));
    const bool isLabel = plain.endsWith(QLatin1Char(':')) && m_listTexts.contains(plain.chopped(1));
    return isLabel || m_listTexts.contains(plain);
}

QStringList tst_PseudoLocale::untranslated() const
{
    QStringList found;
    const auto widgets = m_window->findChildren<QWidget *>();
    for (const QWidget *widget : widgets) {
        const QStringList texts = textsOf(*widget);
        for (const QString &text : texts) {
            if (isWord(text) && !isTranslated(text) && !isOfTheList(text))
                found.append(QString::fromLatin1(widget->metaObject()->className())
                             + QLatin1String(": ") + text);
        }
    }
    return found;
}

/// On all tab pages.
QStringList tst_PseudoLocale::cutOff() const
{
    QStringList found;
    const auto groups = m_window->findChildren<QTabWidget *>();
    int pages = 1;
    for (const QTabWidget *group : groups)
        pages = std::max(pages, group->count());
    for (int page = 0; page < pages; ++page) {
        for (QTabWidget *group : groups)
            group->setCurrentIndex(page);
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
        const auto widgets = m_window->findChildren<QWidget *>();
        for (const QWidget *widget : widgets) {
            if (widget->isVisible() && isText(*widget)
                && widget->width() < widget->sizeHint().width())
                found.append(textsOf(*widget).join(QString()));
        }
    }
    return found;
}

void tst_PseudoLocale::allTextsAreTranslated()
{
    const QStringList found = untranslated();

    QVERIFY2(found.isEmpty(), qPrintable(found.join(QLatin1Char('\n'))));
}

void tst_PseudoLocale::noTextIsCutOff()
{
    const QStringList found = cutOff();

    QVERIFY2(found.isEmpty(), qPrintable(found.join(QLatin1Char('\n'))));
}

/// The checks above can fail.
void tst_PseudoLocale::findsWhatIsNot()
{
    auto *const label = new QLabel(QStringLiteral("Not translated"), m_window.get());
    label->resize(10, 10);
    label->show();

    QCOMPARE(untranslated(), QStringList(QStringLiteral("QLabel: Not translated")));
    QVERIFY(cutOff().contains(QStringLiteral("Not translated")));
    label->setText(pseudoText(QStringLiteral("Translated"), kOurs));
    QCOMPARE(untranslated(), QStringList());
    delete label;
}

void tst_PseudoLocale::mistakesInRowsAreTranslated()
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

void tst_PseudoLocale::mistakesInRulesAreTranslated_data()
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

void tst_PseudoLocale::mistakesInRulesAreTranslated()
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

void tst_PseudoLocale::mistakesInNestingAreTranslated()
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

void tst_PseudoLocale::mistakesInJsonAreTranslated_data()
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

void tst_PseudoLocale::mistakesInJsonAreTranslated()
{
    QFETCH(QByteArray, row);
    QFETCH(QString, message);

    const auto result = Tessark::PropertyHost::readPropertyList(
        R"({"version": 1, "properties": [{"name": "a", "type": )" + row + "}]}");

    QCOMPARE(marked(result.problems), QStringList(message));
}

QTEST_MAIN(tst_PseudoLocale)
#include "tst_PseudoLocale.moc"
