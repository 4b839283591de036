// What a property list of unknown origin may not do.

#include <host/HostHints.h>
#include <host/PropertyList.h>
#include <host/PropertyListReader.h>
#include <host/PropertyStore.h>
#include <host/TextsAsWritten.h>

#include <property/PropertyUI.h>
#include <property/TextureChoice.h>

#include <support/OpenWatch.h>
#include <support/PictureFolder.h>

#include <QDir>
#include <QImage>
#include <QScrollArea>
#include <QTest>

using namespace Tessark::PropertyHost;
using namespace Tessark::PropertyUI;

namespace {

QByteArray documentOf(const QByteArray &rows)
{
    return R"({"version": 1, "properties": [)" + rows + "]}";
}

QByteArray repeated(const QByteArray &part, int count)
{
    return (part + ",").repeated(count).chopped(1);
}

QByteArray text(int length)
{
    return '"' + QByteArray(length, 'x') + '"';
}

QStringList texts(const QVector<Problem> &problems)
{
    QStringList result;
    for (const Problem &problem : problems)
        result.append(problem.toString(QStringLiteral("f")));
    return result;
}

} // namespace

class tst_StrangerLists : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void refused_data();
    void refused();
    void allowed_data();
    void allowed();
    void refusedPartsAreLeftOut();
    void titleOfAMegabyteIsLeftOut();
    void trustedListsMayDoEverything();
    void picturesAreCountedTogether();
    void markupIsWarnedOf();
    void markupLoadsNothing_data();
    void markupLoadsNothing();
    void numbersOutOfEveryRange_data();
    void numbersOutOfEveryRange();

private:
    QString list() const { return m_outer.filePath(QStringLiteral("list")); }
    PropertyListResult read(const QByteArray &rows, ListOrigin origin = ListOrigin::Stranger) const
    {
        return readPropertyList(documentOf(rows), list(), origin);
    }

    PictureFolder m_outer;
};

void tst_StrangerLists::initTestCase()
{
    const QDir folder(m_outer.path());
    QVERIFY(folder.mkpath(QStringLiteral("list/sub")));
    QVERIFY(folder.mkpath(QStringLiteral("list-of-others")));
    m_outer.addPicture(QStringLiteral("secret.png"), Qt::red);
    m_outer.addPicture(QStringLiteral("list-of-others/x.png"), Qt::red);
    m_outer.addPicture(QStringLiteral("list/in.png"), Qt::blue);
    m_outer.addPicture(QStringLiteral("list/sub/in.bmp"), Qt::blue);
    m_outer.addPicture(QStringLiteral("list/drawn.xpm"), Qt::blue);
    m_outer.addFile(QStringLiteral("list/huge.pbm"), "P4 30000 30000\n");
    const auto link = [this](const char *target, const char *name) {
        QVERIFY(
            QFile::link(QString::fromLatin1(target), m_outer.filePath(QString::fromLatin1(name))));
    };
    link("../secret.png", "list/link.png");
    link("..", "list/up");
    link("in.png", "list/inner-link.png");
    // Each decodes to 20 megapixels and takes next to nothing on the disk.
    for (int i = 0; i < 4; ++i)
        m_outer.addFile(QStringLiteral("list/bomb%1.pbm").arg(i),
                        "P4 5000 4000\n" + QByteArray(2500000, '\0'));
}

void tst_StrangerLists::refused_data()
{
    QTest::addColumn<QByteArray>("rows");
    QTest::addColumn<QString>("problem");
    const auto row = [](const char *name, const QByteArray &rows, const QString &problem) {
        QTest::newRow(name) << rows << QStringLiteral("f: error: /properties/") + problem;
    };
    const auto image = [](const QByteArray &path) {
        return QByteArray(R"({"name": "i", "type": "image", "default": ")" + path + "\"}");
    };
    const auto outside = [](const QString &path) {
        return QStringLiteral("0/default: \"%1\" lies outside of the folder of the list; only a "
                              "trusted list may name it")
            .arg(path);
    };
    const QString secret = m_outer.filePath(QStringLiteral("secret.png"));

    row("an absolute path", image(secret.toUtf8()), outside(secret));
    row("a path upwards", image("../secret.png"), outside(QStringLiteral("../secret.png")));
    row("a path down and upwards", image("sub/../../secret.png"),
        outside(QStringLiteral("sub/../../secret.png")));
    row("a link to a file outside", image("link.png"), outside(QStringLiteral("link.png")));
    row("a folder that is a link", image("up/secret.png"),
        outside(QStringLiteral("up/secret.png")));
    row("a folder whose name only starts the same", image("../list-of-others/x.png"),
        outside(QStringLiteral("../list-of-others/x.png")));
    row("a missing file outside", image("../none.png"), outside(QStringLiteral("../none.png")));
    row("a device", image("/dev/zero"), outside(QStringLiteral("/dev/zero")));
    row("a resource", image(":/qt-project.org/styles/commonstyle/images/stop-24.png"),
        outside(QStringLiteral(":/qt-project.org/styles/commonstyle/images/stop-24.png")));
    row("a texture", R"({"name": "t", "type": "texture", "default": "../secret.png"})",
        outside(QStringLiteral("../secret.png")));
    row("an offered texture",
        R"({"name": "t", "type": "texture", "hints": {"textures": ["in.png", "../secret.png"]}})",
        QStringLiteral("0/hints/textures/1: \"../secret.png\" lies outside of the folder of the "
                       "list; only a trusted list may name it"));
    row("an offered texture with a name",
        R"({"name": "t", "type": "bool", "hints": {"textures": [
            {"name": "in.png", "file": "up/secret.png"}]}})",
        QStringLiteral("0/hints/textures/0/file: \"up/secret.png\" lies outside of the folder of "
                       "the list; only a trusted list may name it"));
    row("a format that may name files", image("drawn.xpm"),
        QStringLiteral("0/default: \"drawn.xpm\" is of the format \"xpm\"; only a trusted list may "
                       "have pictures of it"));
    row("a picture of enormous size", image("huge.pbm"),
        QStringLiteral("0/default: \"%1\" is too large: it has 30000 x 30000 pixels, at most 32 "
                       "megapixels are read")
            .arg(m_outer.filePath(QStringLiteral("list/huge.pbm"))));
    row("a style sheet",
        R"x({"name": "a", "type": "bool", "hints": {"style_sheet": "image: url(/etc/x.png)"}})x",
        QStringLiteral("0/hints/style_sheet: only a trusted list may have style sheets, which can "
                       "name files"));
    row("a label of a megabyte", R"({"name": "a", "type": "bool", "label": )" + text(1000000) + "}",
        QStringLiteral("0/label: a text may have 10000 characters at most, this one has 1000000"));
    row("a text of a megabyte",
        R"({"name": "a", "type": "text", "default": )" + text(1000000) + "}",
        QStringLiteral("0/default: a text may have 10000 characters at most, this one has "
                       "1000000"));
    row("a choice of a megabyte",
        R"({"name": "a", "type": "int/enum", "hints": {"display_values": ["x", )" + text(1000000)
            + "]}}",
        QStringLiteral("0/hints/display_values/1: a text may have 10000 characters at most, this "
                       "one has 1000000"));
    row("a hint of a megabyte",
        R"({"name": "a", "type": "float", "max": 1, "hints": {"suffix": )" + text(10001) + "}}",
        QStringLiteral("0/hints/suffix: a text may have 10000 characters at most, this one has "
                       "10001"));
    row("a row as large as a field",
        R"({"name": "a", "type": "bool", "hints": {"size": [100, 10001]}})",
        QStringLiteral("0/hints/size: a row may be 10000 pixels wide and high at most"));
    row("many texts", repeated(R"({"type": "separator", "label": )" + text(9000) + "}", 120),
        QStringLiteral("111/label: the texts of a list may have 1000000 characters in all, the "
                       "rest is left out"));
    row("hundreds of thousands of rows", repeated(R"({"type": "separator"})", 300000),
        QStringLiteral("10000: a list may have 10000 rows at most, the rest is left out"));
    row("hundreds of thousands of choices",
        R"({"name": "a", "type": "int/enum", "hints": {"widget": "radio_buttons",
            "display_values": [)"
            + repeated("\"\"", 300000) + "]}}",
        QStringLiteral("0/hints/display_values: the arrays and objects of a list may have 200000 "
                       "entries in all, the rest is left out"));
    row("ten thousand nested groups",
        repeated(R"({"type": "begin_group"})", 5000) + ","
            + repeated(R"({"type": "end_group"})", 5000),
        QStringLiteral("64/type: groups and tab groups may be nested 64 deep at most"));
    row("ten thousand groups that stay open", repeated(R"({"type": "begin_tab_group"})", 10000),
        QStringLiteral("64/type: groups and tab groups may be nested 64 deep at most"));
}

void tst_StrangerLists::refused()
{
    QFETCH(QByteArray, rows);
    QFETCH(QString, problem);

    const auto result = read(rows);

    const QStringList problems = texts(result.problems);
    QVERIFY2(problems.contains(problem), qPrintable(problems.mid(0, 3).join(QLatin1Char('\n'))));
    QVERIFY(hasErrors(result.problems));
}

void tst_StrangerLists::allowed_data()
{
    QTest::addColumn<QByteArray>("rows");

    QTest::newRow("a picture beside the list")
        << QByteArray(R"({"name": "i", "type": "image", "default": "in.png"})");
    QTest::newRow("a picture below")
        << QByteArray(R"({"name": "i", "type": "image", "default": "./sub/in.bmp"})");
    QTest::newRow("up and down again")
        << QByteArray(R"({"name": "i", "type": "image", "default": "sub/../in.png"})");
    QTest::newRow("an absolute path to the folder") << QByteArray(
        R"({"name": "i", "type": "image", "default": ")" + list().toUtf8() + "/in.png\"}");
    QTest::newRow("a link within the folder")
        << QByteArray(R"({"name": "i", "type": "image", "default": "inner-link.png"})");
    QTest::newRow("no picture") << QByteArray(
        R"({"name": "i", "type": "image", "default": ""}, {"name": "t",
            "type": "texture", "default": null})");
    QTest::newRow("the name of a texture that looks like a path")
        << QByteArray(R"({"name": "t", "type": "texture", "default": "../secret.png", "hints": {
            "textures": [{"name": "../secret.png", "file": "in.png"}]}})");
    QTest::newRow("texts that look like paths")
        << QByteArray(R"({"name": "a", "type": "string", "default": "/etc/passwd"},
            {"name": "b", "type": "filename", "default": "/etc/passwd", "label": "../x"})");
    QTest::newRow("ten thousand rows") << repeated(R"({"type": "separator"})", 10000);
    QTest::newRow("a long text") << QByteArray(R"({"name": "a", "type": "text", "default": )"
                                               + text(10000) + "}");
}

void tst_StrangerLists::allowed()
{
    QFETCH(QByteArray, rows);

    QCOMPARE(texts(read(rows).problems), QStringList());
}

void tst_StrangerLists::refusedPartsAreLeftOut()
{
    const auto result = read(R"(
        {"name": "a", "type": "string", "label": )"
                             + text(20000) + R"(, "hints": {
            "enabled": false, "style_sheet": "color: red"}},
        {"name": "i", "type": "image", "label": "I", "default": "../secret.png"},
        {"name": "t", "type": "texture", "hints": {"textures": ["../secret.png", "in.png"]}})");

    QCOMPARE(int(result.problems.size()), 4);
    const auto properties = result.list.properties();
    QCOMPARE(int(properties.size()), 3);
    QCOMPARE(properties.at(0)->label, QStringLiteral("a"));
    QCOMPARE(properties.at(0)->hints.keys(), QStringList{kPropertyHintEnabled});
    QVERIFY(!properties.at(1)->defaultValue.isValid());
    const QVariantList textures = properties.at(2)->hint(kHostHintTextures).toList();
    QCOMPARE(int(textures.size()), 1);
    QCOMPARE(textures.first().value<TextureChoice>().name, QStringLiteral("in.png"));
}

void tst_StrangerLists::titleOfAMegabyteIsLeftOut()
{
    const QByteArray document =
        R"({"version": 1, "properties": [{"name": "a", "type": "bool"}], "title": )" + text(1000000)
        + "}";

    const auto result = readPropertyList(document, list(), ListOrigin::Stranger);

    QCOMPARE(texts(result.problems),
             QStringList{QStringLiteral("f: error: /title: a text may have 10000 characters at "
                                        "most, this one has 1000000")});
    QCOMPARE(result.list.title(), QString());
    QCOMPARE(int(result.list.properties().size()), 1);
}

void tst_StrangerLists::trustedListsMayDoEverything()
{
    const QByteArray rows = R"({"name": "i", "type": "image", "label": "<b>I</b>",
        "default": "link.png", "hints": {"style_sheet": "color: red"}},
        {"name": "x", "type": "image", "default": "drawn.xpm"},
        {"name": "t", "type": "text", "default": )"
                            + text(1000000) + "}";

    const auto result = read(rows, ListOrigin::Trusted);

    QCOMPARE(texts(result.problems), QStringList());
    const auto properties = result.list.properties();
    QVERIFY(!properties.at(0)->defaultValue.value<QImage>().isNull());
    QCOMPARE(properties.at(0)->hint(kPropertyHintStyleSheet),
             QVariant(QStringLiteral("color: red")));
    QCOMPARE(int(read(rows).problems.size()), 5);
}

void tst_StrangerLists::picturesAreCountedTogether()
{
    const auto result = read(R"(
        {"name": "a", "type": "image", "default": "bomb0.pbm"},
        {"name": "b", "type": "image", "default": "bomb1.pbm"},
        {"name": "c", "type": "texture", "hints": {"textures": ["bomb2.pbm", "bomb3.pbm",
            "bomb0.pbm", "bomb1.pbm"]}},
        {"name": "d", "type": "image", "default": "bomb3.pbm"})");

    QCOMPARE(texts(result.problems),
             QStringList{QStringLiteral("f: error: /properties/2/hints/textures/1: the pictures of "
                                        "a list may have 64 megapixels in all, the rest is left "
                                        "out")});
    const auto properties = result.list.properties();
    QCOMPARE(int(properties.at(2)->hint(kHostHintTextures).toList().size()), 1);
    QVERIFY(!properties.at(3)->defaultValue.isValid());
}

void tst_StrangerLists::markupIsWarnedOf()
{
    const auto result = read(R"(
        {"name": "a", "type": "bool", "label": "<b>A</b>"},
        {"name": "b", "type": "bool", "label": "1 < 2 & 3 > 2"},
        {"name": "c", "type": "static_text", "default": "<img src='x.png'>"},
        {"name": "d", "type": "string", "default": "<b>no label</b>"})");

    QCOMPARE(
        texts(result.problems),
        (QStringList{
            QStringLiteral("f: warning: /properties/0/label: markup is shown as it is written"),
            QStringLiteral("f: warning: /properties/2/default: markup is shown as it is "
                           "written")}));
}

void tst_StrangerLists::markupLoadsNothing_data()
{
    QTest::addColumn<bool>("asWritten");

    QTest::newRow("as written") << true;
    QTest::newRow("as markup, to show that the test would see it") << false;
}

void tst_StrangerLists::markupLoadsNothing()
{
    QFETCH(bool, asWritten);
    const QByteArray image =
        "<img src='" + m_outer.filePath(QStringLiteral("secret.png")).toUtf8() + "'>";
    const auto result = read(R"({"name": "a", "type": "bool", "label": ")" + image + R"("},
        {"name": "g", "type": "begin_group", "label": ")"
                             + image + R"("},
        {"name": "b", "type": "static_text", "default": ")"
                             + image + R"("},
        {"type": "end_group"},
        {"name": "c", "type": "action", "label": ")"
                             + image + R"("},
        {"name": "e", "type": "int/enum", "hints": {"display_values": [")"
                             + image + R"("]}},
        {"type": "begin_tab_group", "label": ")"
                             + image + R"("},
        {"type": "tab", "label": ")"
                             + image + R"("},
        {"name": "s", "type": "string", "label": ")"
                             + image + R"("},
        {"type": "end_tab_group"})");
    PropertyStore store;
    store.reset(result.list);
    OpenWatch watch(m_outer.filePath(QStringLiteral("secret.png")));

    PropertyEditorPanel panel(result.list.properties(), &store, nullptr);
    QVERIFY(!watch.takeOpened());
    if (asWritten)
        showTextsAsWritten(panel);
    panel.updateUI();
    panel.show();
    QVERIFY(QTest::qWaitForWindowExposed(&panel));
    const QImage shown = panel.grab().toImage();
    panel.updateUI();

    QVERIFY(!shown.isNull());
    QCOMPARE(watch.takeOpened(), !asWritten);
}

void tst_StrangerLists::numbersOutOfEveryRange_data()
{
    QTest::addColumn<QByteArray>("number");
    for (const char *number : {"1e308",
                               "-1e308",
                               "1.7976931348623157e308",
                               "1e400",
                               "-1e400",
                               "5e-324",
                               "1e39",
                               "-1e39",
                               "2147483647",
                               "2147483648",
                               "-2147483648",
                               "-2147483649",
                               "4294967296",
                               "1e19",
                               "-1e19",
                               "9007199254740993",
                               "0",
                               "-0",
                               "-1",
                               "0.5",
                               "1e15",
                               "1000000",
                               "16777216"})
        QTest::newRow(number) << QByteArray(number);
}

void tst_StrangerLists::numbersOutOfEveryRange()
{
    QFETCH(QByteArray, number);
    QByteArray rows = R"(
        {"name": "i1", "type": "int", "min": N, "max": 5, "default": 3},
        {"name": "i2", "type": "int", "min": 0, "max": N, "hardMax": N, "default": N},
        {"name": "f1", "type": "float", "min": N, "max": 1, "default": N},
        {"name": "f2", "type": "float", "min": 0, "max": N, "default": N, "hints": {
            "float_decimals": N, "display_scale": N}},
        {"name": "f3", "type": "float", "min": 0.001, "max": N, "default": N, "hints": {
            "logarithmic_slider": true, "display_scale": N}},
        {"name": "p", "type": "percent", "min": 0, "max": N, "default": N},
        {"name": "v2", "type": "vec2", "min": N, "max": [N, N], "default": N, "hints": {
            "show_sliders": true}},
        {"name": "v4", "type": "vec4", "min": 0, "max": N, "default": [N, N, N, N], "hints": {
            "show_sliders": true, "show_multiple_check": true}},
        {"name": "c", "type": "vec4/color", "default": [N, N, N, N]},
        {"name": "s", "type": "ivec2/size", "default": [N, N], "hints": {"aspect_ratio": [N, 3]}},
        {"name": "r", "type": "render_size", "default": [N, 1], "hints": {"full_size": [N, N]}},
        {"name": "x", "type": "transform2D", "default": [N, N, N, N, N, N, N, N, N]},
        {"name": "m", "type": "image_format", "default": {"format": "jpeg", "compressionRate": N}},
        {"name": "e", "type": "int/enum", "default": N, "hints": {"display_values": ["x"],
            "values": [N]}},
        {"name": "h", "type": "string", "hints": {"size": [N, N], "font": {"size": N},
            "minimum_size": [N, N], "maximum_size": [N, N]}})";
    rows.replace('N', number);

    const auto result = read(rows);
    PropertyStore store;
    store.reset(result.list);
    QScrollArea area;
    auto *const panel = new PropertyEditorPanel(result.list.properties(), &store, nullptr);
    area.setWidget(panel);
    panel->updateUI();
    area.resize(500, 800);
    area.show();
    const QImage shown = area.grab().toImage();
    QVector<PropertyEditor *> editors;
    panel->getEditors(editors, QString());
    for (PropertyEditor *editor : std::as_const(editors))
        editor->revertToDefaultValue();

    QVERIFY(!shown.isNull());
    QVERIFY(!editors.isEmpty() || hasErrors(result.problems));
    for (const Problem &problem : result.problems)
        QVERIFY2(!problem.pointer.isEmpty() || problem.line > 0, qPrintable(problem.message));
}

QTEST_MAIN(tst_StrangerLists)
#include "tst_StrangerLists.moc"
