// Runs the program itself, as a script or a user would.

#include <tools/ProgramRun.h>

#include <QBuffer>
#include <QColor>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

namespace {

const QByteArray kList = R"({
    "version": 1,
    "title": "Test",
    "properties": [
        {"name": "title", "label": "Title", "type": "string", "default": "Untitled"},
        {"name": "loop", "label": "Loop", "type": "bool", "default": false},
        {"name": "notes", "label": "Notes", "type": "text", "default": ""},
        {"name": "go", "label": "Go", "type": "action"}
    ]
})";

const QByteArray kPictureList = R"({
    "version": 1,
    "properties": [
        {"name": "poster", "type": "image", "default": "red.png"},
        {"name": "format", "type": "image_format", "default": {"format": "png"}},
        {"name": "floor", "type": "texture", "default": "Red", "hints": {
            "textures": [{"name": "Red", "file": "red.png"}, "blue.png"]}},
        {"name": "size", "type": "ivec2/size", "default": [8, 6]},
        {"name": "frame", "type": "render_size", "default": [8, 6]},
        {"name": "turn", "type": "transform2D"},
        {"name": "tint", "type": "vec4/color"}
    ]
})";

QByteArray picture(const QColor &color)
{
    QImage image(8, 6, QImage::Format_RGB32);
    image.fill(color);
    QBuffer buffer;
    image.save(&buffer, "PNG");
    return buffer.data();
}

using Result = ProgramResult;

/// The lines of the standard error stream that are the program's own, not the platform's.
QByteArray problemsOf(const QByteArray &error)
{
    QByteArray problems;
    for (const QByteArray &line : error.split('\n')) {
        if (line.contains("error: "))
            problems += line + '\n';
    }
    return problems;
}

/// The words of a command line without quoting.
QStringList words(const char *line)
{
    return QString::fromLatin1(line).split(QLatin1Char(' '));
}

} // namespace

class tst_property_panel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void helpAndVersionNeedNoDisplay_data();
    void helpAndVersionNeedNoDisplay();
    void helpTellsAllOptionsAndStatuses();
    void wrongCommandLine_data();
    void wrongCommandLine();
    void checkOfGoodInputSaysSo_data();
    void checkOfGoodInputSaysSo();
    void checkOfBuiltInListFindsNoProblem();
    void checkOfWarningsOnlySucceeds();
    void checkListsEveryProblem();
    void checkTellsUnreadHintsAndBadRules();
    void checkTellsTheLineOfASyntaxError();
    void checkLooksAtTheValuesToo();
    void badInputStopsEveryTask_data();
    void badInputStopsEveryTask();
    void listFromStandardInput();
    void windowWithoutDisplayIsAnError_data();
    void windowWithoutDisplayIsAnError();
    void renderWithoutDisplay();
    void renderTakesValues();
    void renderFollowsScaleFactor();
    void renderThatCannotWriteFails();
    void saveWritesTheDefaults();
    void saveWritesTypedTextWithoutReturn();
    void saveKeepsValuesOfUnknownNames();
    void picturesSurviveUnchanged_data();
    void picturesSurviveUnchanged();
    void picturesStartAtTheFolderOfTheList();
    void picturesOfStandardInputStartAtTheCurrentFolder();
    void checkTellsOfPictures();
    void droppedPictureCanBeSaved();
    void droppedTextIsTold();
    void liveLinesOfPictures();
    void settingsAreReadAndSaved();
    void settingsNeedNotExist();
    void valuesGoBeforeSettings();
    void liveLinesWithSettings();
    void liveLinesAsCommitted_data();
    void liveLinesAsCommitted();
    void saveWithTheKeyboard();
    void saveReplacesTheValuesFileItStartedFrom();
    void saveToStandardOutput();
    void failedSaveKeepsTheWindow_data();
    void failedSaveKeepsTheWindow();
    void cancelWritesNothing_data();
    void cancelWritesNothing();
    void liveLines();
    void liveOutputWithoutReaderIsNoHarm();
    void closedStandardOutputIsNoHarm();

private:
    QString path(const char *name) const { return m_folder->filePath(QLatin1String(name)); }
    void write(const char *name, const QByteArray &content) const;
    QByteArray read(const char *name) const;
    QJsonObject readObject(const char *name) const;

    Result run(const QStringList &arguments, const QProcessEnvironment &environment,
               const QByteArray &input = QByteArray()) const;
    Result runPlain(const char *arguments, const QByteArray &input = QByteArray()) const;
    Result play(const QByteArray &arguments, const QByteArray &steps) const;

    /// Runs a shell command line in which $0 is the program.
    Result playInShell(const char *command, const char *steps) const;

    std::unique_ptr<QTemporaryDir> m_folder;
};

void tst_property_panel::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
    write("list.json", kList);
    write("pictures.json", kPictureList);
    write("red.png", picture(Qt::red));
    write("blue.png", picture(Qt::blue));
}

void tst_property_panel::write(const char *name, const QByteArray &content) const
{
    QFile file(path(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("cannot write a test file");
}

QByteArray tst_property_panel::read(const char *name) const
{
    QFile file(path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QJsonObject tst_property_panel::readObject(const char *name) const
{
    return QJsonDocument::fromJson(read(name)).object();
}

Result tst_property_panel::run(const QStringList &arguments, const QProcessEnvironment &environment,
                               const QByteArray &input) const
{
    QProcess process;
    process.setProgram(QStringLiteral(PROPERTY_PANEL_PROGRAM));
    process.setArguments(arguments);
    process.setProcessEnvironment(environment);
    return finishRun(process, m_folder->path(), input);
}

Result tst_property_panel::runPlain(const char *arguments, const QByteArray &input) const
{
    return run(words(arguments), withoutDisplay(), input);
}

Result tst_property_panel::play(const QByteArray &arguments, const QByteArray &steps) const
{
    return run(words(arguments.trimmed().constData()), withDriver(driverSteps(steps.constData())));
}

Result tst_property_panel::playInShell(const char *command, const char *steps) const
{
    QProcess process;
    prepareShell(process, QString::fromLatin1(command));
    process.setProcessEnvironment(withDriver(driverSteps(steps)));
    return finishRun(process, m_folder->path());
}

void tst_property_panel::helpAndVersionNeedNoDisplay_data()
{
    QTest::addColumn<QByteArray>("option");
    QTest::addColumn<QByteArray>("start");
    const QByteArray version = "property-panel " PROJECT_VERSION "\n";

    QTest::newRow("--help") << QByteArray("--help") << QByteArray("Usage: ");
    QTest::newRow("-h") << QByteArray("-h") << QByteArray("Usage: ");
    QTest::newRow("--version") << QByteArray("--version") << version;
    QTest::newRow("-v") << QByteArray("-v") << version;
}

void tst_property_panel::helpAndVersionNeedNoDisplay()
{
    QFETCH(QByteArray, option);
    QFETCH(QByteArray, start);

    const Result result = runPlain(option.constData());

    QCOMPARE(result.status, 0);
    QVERIFY2(result.output.startsWith(start), result.output.constData());
}

void tst_property_panel::helpTellsAllOptionsAndStatuses()
{
    const Result result = runPlain("--help");

    for (const char *text :
         {"LIST.json", "--values <FILE>", "--settings <FILE>", "--output <FILE>", "--live",
          "--commit <WHEN>", "--check", "--render <PNG>", "--size <WxH>", "--theme <THEME>",
          "--trusted", "--version", "--help", "Exit status:", "\n  0  ", "\n  1  ", "\n  2  "})
        QVERIFY2(result.output.contains(text), text);
}

void tst_property_panel::wrongCommandLine_data()
{
    QTest::addColumn<QByteArray>("arguments");
    QTest::addColumn<QByteArray>("message");
    const auto row = [](const char *name, const char *arguments, const char *message) {
        QTest::newRow(name) << QByteArray(arguments) << QByteArray(message);
    };

    row("an unknown option", "--frobnicate", "frobnicate");
    row("two lists", "list.json other.json", "other.json");
    row("an unknown theme", "--theme pink", "\"pink\"");
    row("a size without height", "--size 640", "\"640\"");
    row("a size of nothing", "--size 0x480", "\"0x480\"");
    row("a negative size", "--size -1x480", "\"-1x480\"");
    row("a size beyond all screens", "--size 100000x10", "\"100000x10\"");
    row("a size that overflows", "--size 99999999999x10", "\"99999999999x10\"");
    row("--output without file", "--output", "output");
    row("--check with --render", "--check --render x.png", "--render");
    row("standard input twice", "- --values -", "standard input");
    row("an empty file name", "--values=", "--values");
    row("an unknown commit mode", "--live --commit never", "\"never\"");
    row("--commit without --live", "--commit end", "--live");
    row("settings in the place of the output", "--settings x --output x", "the same file");
}

void tst_property_panel::wrongCommandLine()
{
    QFETCH(QByteArray, arguments);
    QFETCH(QByteArray, message);

    const Result result = runPlain(arguments.constData());

    QCOMPARE(result.status, 2);
    QVERIFY2(result.error.contains("property-panel: error: "), result.error.constData());
    QVERIFY2(result.error.contains(message), result.error.constData());
    QVERIFY(result.output.isEmpty());
}

void tst_property_panel::checkOfGoodInputSaysSo_data()
{
    QTest::addColumn<QByteArray>("arguments");

    QTest::newRow("a list") << QByteArray("--check list.json");
    QTest::newRow("a list and values") << QByteArray("--check list.json --values values.json");
}

void tst_property_panel::checkOfGoodInputSaysSo()
{
    QFETCH(QByteArray, arguments);
    write("values.json", R"({"title": "A", "other": [1, 2]})");

    const Result result = runPlain(arguments.constData());

    QCOMPARE(result.status, 0);
    QCOMPARE(result.output, QByteArray("no problems found\n"));
    QVERIFY2(!result.error.contains(".json"), result.error.constData());
}

void tst_property_panel::checkOfBuiltInListFindsNoProblem()
{
    const Result result = runPlain("--check");

    QCOMPARE(result.status, 0);
    QCOMPARE(result.output, QByteArray("no problems found\n"));
}

void tst_property_panel::checkOfWarningsOnlySucceeds()
{
    write("list.json",
          R"({"version": 1, "properties": [{"name": "x", "label": "X", "type": "hologram"}]})");

    const Result result = runPlain("--check list.json");

    QCOMPARE(result.status, 0);
    QVERIFY2(result.error.contains("list.json: warning: /properties/0"), result.error.constData());
    QVERIFY(result.output.isEmpty());
}

void tst_property_panel::checkListsEveryProblem()
{
    write("list.json", R"({"version": 1, "properties": [
        {"name": "a", "type": "bool", "default": "yes"},
        17,
        {"name": "a", "type": "string", "default": 3}
    ]})");

    const Result result = runPlain("list.json --check");

    QCOMPARE(result.status, 2);
    for (const char *place : {"list.json: error: /properties/0/default: ",
                              "list.json: error: /properties/1: ", "error: /properties/2/"})
        QVERIFY2(result.error.contains(place), result.error.constData());
    QVERIFY(result.output.isEmpty());
}

void tst_property_panel::checkTellsUnreadHintsAndBadRules()
{
    write("list.json", R"({"version": 1, "properties": [
        {"name": "a", "type": "bool", "hints": {"suffix": " m"}},
        {"name": "b", "type": "string", "hints": {"visible_when": "aa"}}
    ]})");

    const Result result = runPlain("list.json --check");

    QCOMPARE(result.status, 2);
    for (const char *problem :
         {"list.json: warning: /properties/0/hints/suffix: no editor reads this hint",
          "list.json: error: /properties/1/hints/visible_when: character 1: there is no property "
          "\"aa\" (did you mean \"a\"?)"})
        QVERIFY2(result.error.contains(problem), result.error.constData());
}

void tst_property_panel::checkTellsTheLineOfASyntaxError()
{
    write("list.json", "{\n  \"version\": 1,\n  \"properties\" []\n}\n");

    const Result result = runPlain("list.json --check");

    QCOMPARE(result.status, 2);
    QVERIFY2(result.error.contains("list.json:3:16: error: "), result.error.constData());
}

void tst_property_panel::checkLooksAtTheValuesToo()
{
    write("values.json", R"({"loop": "maybe", "title": 4})");

    const Result result = runPlain("list.json --check --values values.json");

    QCOMPARE(result.status, 2);
    QVERIFY2(result.error.contains("values.json: error: /loop: "), result.error.constData());
    QVERIFY2(result.error.contains("values.json: error: /title: "), result.error.constData());
}

void tst_property_panel::badInputStopsEveryTask_data()
{
    QTest::addColumn<QByteArray>("arguments");
    QTest::addColumn<QByteArray>("message");
    const auto row = [](const char *name, const char *arguments, const char *message) {
        QTest::newRow(name) << QByteArray(arguments) << QByteArray(message);
    };

    row("a missing list", "none.json", "none.json: error: ");
    row("a missing values file", "list.json --values none.json", "none.json: error: ");
    row("a folder for a list", ".", ".: error: ");
    row("a bad list", "bad.json", "bad.json: error: /properties/0");
    row("a bad list to render", "bad.json --render x.png", "bad.json: error: /properties/0");
    row("an empty file", "empty.json", "empty.json:");
    row("a folder for settings", "list.json --settings .", ".: error: cannot be read: ");
    row("settings that are no INI file", "list.json --settings list.json",
        "list.json: error: is not an INI file: ");
    row("a bad setting", "list.json --settings bad.ini --render x.png", "bad.ini: error: /loop: ");
    row("a bad setting to check", "list.json --settings bad.ini --check",
        "bad.ini: error: /loop: ");
}

void tst_property_panel::badInputStopsEveryTask()
{
    QFETCH(QByteArray, arguments);
    QFETCH(QByteArray, message);
    write("bad.json",
          R"({"version": 1, "properties": [{"name": "a", "type": "bool", "default": "yes"}]})");
    write("empty.json", QByteArray());
    write("bad.ini", "loop=maybe\n");

    const Result result = play(arguments, "press Save");

    QCOMPARE(result.status, 2);
    QVERIFY2(result.error.contains(message), result.error.constData());
    QVERIFY(!QFile::exists(path("x.png")));
}

void tst_property_panel::listFromStandardInput()
{
    const QByteArray bad = R"({"version": 1, "properties": [{"type": "bool", "name": 3}]})";

    QCOMPARE(runPlain("- --check", kList).status, 0);
    const Result result = runPlain("- --check", bad);

    QCOMPARE(result.status, 2);
    QVERIFY2(result.error.contains("standard input: error: /properties/0"),
             result.error.constData());
}

void tst_property_panel::windowWithoutDisplayIsAnError_data()
{
    QTest::addColumn<QString>("display");

    QTest::newRow("no display") << QString();
    QTest::newRow("a display that does not answer") << QStringLiteral("localhost:59999");
}

void tst_property_panel::windowWithoutDisplayIsAnError()
{
    QFETCH(QString, display);
    QProcessEnvironment environment = withoutDisplay();
    if (!display.isEmpty())
        environment.insert(QStringLiteral("DISPLAY"), display);

    const Result result = run(words("list.json"), environment);

    QCOMPARE(result.status, 2);
    QVERIFY2(result.error.contains("no display"), result.error.constData());
}

void tst_property_panel::renderWithoutDisplay()
{
    const Result result = runPlain("--render panel.png");

    QCOMPARE(result.status, 0);
    const QList<QByteArray> files = result.outputLines();
    QVERIFY(files.size() > 1);
    QCOMPARE(files.first(), QByteArray("panel.png"));
    for (const QByteArray &file : files)
        QVERIFY2(!QImage(path(file.constData())).isNull(), file.constData());
}

void tst_property_panel::renderTakesValues()
{
    write("values.json", R"({"title": "Another title", "loop": true})");

    QCOMPARE(runPlain("list.json --theme light --render a.png").status, 0);
    QCOMPARE(runPlain("list.json --theme light --render b.png --values values.json").status, 0);

    const QImage defaults(path("a.png"));
    const QImage values(path("b.png"));
    QCOMPARE(defaults.size(), values.size());
    QVERIFY(defaults != values);
}

void tst_property_panel::renderFollowsScaleFactor()
{
    QProcessEnvironment environment = withoutDisplay();

    run(words("list.json --render 1.png --size 600x700"), environment);
    environment.insert(QStringLiteral("QT_SCALE_FACTOR"), QStringLiteral("2"));
    run(words("list.json --render 2.png --size 600x700"), environment);

    QCOMPARE(QImage(path("1.png")).size(), QSize(600, 700));
    QCOMPARE(QImage(path("2.png")).size(), QSize(1200, 1400));
}

void tst_property_panel::renderThatCannotWriteFails()
{
    const Result result = runPlain("list.json --render none/x.png");

    QCOMPARE(result.status, 2);
    QVERIFY2(result.error.contains("Cannot write none/x.png: "), result.error.constData());
    QVERIFY(result.output.isEmpty());
}

void tst_property_panel::saveWritesTheDefaults()
{
    const Result result = play("list.json --output out.json", "press Save");

    QCOMPARE(result.status, 0);
    QVERIFY(result.output.isEmpty());
    QCOMPARE(readObject("out.json"),
             (QJsonObject{{QStringLiteral("title"), QStringLiteral("Untitled")},
                          {QStringLiteral("loop"), false},
                          {QStringLiteral("notes"), QString()}}));
}

void tst_property_panel::saveWritesTypedTextWithoutReturn()
{
    const Result result =
        play("list.json --output out.json", "press Loop, text noted, line typed, press Save");

    QCOMPARE(result.status, 0);
    QCOMPARE(readObject("out.json"),
             (QJsonObject{{QStringLiteral("title"), QStringLiteral("typed")},
                          {QStringLiteral("loop"), true},
                          {QStringLiteral("notes"), QStringLiteral("noted")}}));
}

void tst_property_panel::saveKeepsValuesOfUnknownNames()
{
    write("values.json",
          R"({"zoom": 1.25, "title": "From file", "nested": {"a": [1, null, "x"]}})");

    const Result result = play("list.json --values values.json --output out.json", "press Save");

    QCOMPARE(result.status, 0);
    const QJsonObject nested{
        {QStringLiteral("a"), QJsonArray{1, QJsonValue::Null, QStringLiteral("x")}}};
    const QJsonObject saved = readObject("out.json");
    QCOMPARE(saved.value(QStringLiteral("zoom")), QJsonValue(1.25));
    QCOMPARE(saved.value(QStringLiteral("nested")), QJsonValue(nested));
    QCOMPARE(saved.value(QStringLiteral("title")), QJsonValue(QStringLiteral("From file")));
}

void tst_property_panel::picturesSurviveUnchanged_data()
{
    QTest::addColumn<QByteArray>("values");

    QTest::newRow("others than the defaults") << QByteArray(R"({
        "floor": "blue.png", "format": {"compressionRate": 33, "format": "jpeg"},
        "frame": [1920, 1080], "poster": "./blue.png", "size": [640, 480],
        "turn": [0.433013, 0.125, 0, -0.25, 0.216506, 0, 0.415192, 0.273446, 1],
        "tint": [0.12345, 0.5, 1, 0.25]})");
    QTest::newRow("none") << QByteArray(R"({
        "floor": "", "format": {"format": "tiff"},
        "frame": [5000, 0], "poster": "", "size": [-1, 9999],
        "turn": [0, 0, 0, 0, 0, 0, 0, 0, 0],
        "tint": [0, 0, 0, 0]})");
    QTest::newRow("a path for a texture") << QByteArray(R"({
        "floor": "./red.png", "format": {"format": "bmp"},
        "frame": [1, 1], "poster": "red.png", "size": [1, 1],
        "turn": [1, 0, 0, 0, 1, 0, 0, 0, 1],
        "tint": [1, 1, 1, 1]})");
}

void tst_property_panel::picturesSurviveUnchanged()
{
    QFETCH(QByteArray, values);
    write("values.json", values);

    const Result result =
        play("pictures.json --values values.json --output out.json", "press Save");

    QCOMPARE(result.status, 0);
    QCOMPARE(readObject("out.json"), readObject("values.json"));
}

void tst_property_panel::picturesStartAtTheFolderOfTheList()
{
    QVERIFY(QDir(m_folder->path()).mkdir(QStringLiteral("sub")));
    write("sub/list.json", kPictureList);
    write("sub/red.png", picture(Qt::red));
    write("sub/blue.png", picture(Qt::blue));
    write("sub/only here.png", picture(Qt::green));
    write("values.json", R"({"poster": "only here.png"})");

    QCOMPARE(runPlain("sub/list.json --check --values values.json").status, 0);
    const Result result = runPlain("pictures.json --check --values values.json");

    QCOMPARE(result.status, 2);
    QCOMPARE(problemsOf(result.error),
             QByteArray("values.json: error: /poster: there is no file \"only here.png\"\n"));
}

void tst_property_panel::picturesOfStandardInputStartAtTheCurrentFolder()
{
    QCOMPARE(runPlain("- --check", kPictureList).status, 0);
}

void tst_property_panel::checkTellsOfPictures()
{
    QVERIFY(QFile::remove(path("red.png")));
    write("blue.png", "no picture");

    const Result result = runPlain("pictures.json --check");

    QCOMPARE(result.status, 2);
    const QByteArray start = "pictures.json: error: /properties/";
    QCOMPARE(problemsOf(result.error),
             start + "0/default: there is no file \"red.png\"\n" + start
                 + "2/hints/textures/0/file: there is no file \"red.png\"\n" + start
                 + "2/hints/textures/1: \"blue.png\" cannot be read as a picture: Unsupported "
                   "image format\n"
                 + start + "2/default: there is no file \"Red\"\n");
}

void tst_property_panel::droppedPictureCanBeSaved()
{
    write("green.png", picture(Qt::green));
    const QByteArray steps = "drop " + path("green.png").toUtf8() + ", item green.png, press Save";

    const Result result = play("pictures.json --output out.json", steps);

    QCOMPARE(result.status, 0);
    QCOMPARE(readObject("out.json").value(QStringLiteral("floor")),
             QJsonValue(QStringLiteral("green.png")));
    QCOMPARE(problemsOf(result.error), QByteArray());
}

void tst_property_panel::droppedTextIsTold()
{
    const QByteArray file = path("list.json").toUtf8();
    const QByteArray steps = "drop " + file + ", press Save";

    const Result result = play("pictures.json --output out.json", steps);

    QCOMPARE(result.status, 0);
    QCOMPARE(problemsOf(result.error),
             QByteArray("property-panel: error: \"list.json\" cannot be read as a picture: "
                        "Unsupported image format\n"));
    QCOMPARE(readObject("out.json").value(QStringLiteral("floor")),
             QJsonValue(QStringLiteral("Red")));
}

void tst_property_panel::liveLinesOfPictures()
{
    write("values.json", R"({"format": {"format": "png", "compressionRate": 50}})");

    const Result result =
        play("pictures.json --values values.json --live",
             "item blue.png, item blue.png, press jpeg, press Undo, press Reset All, press Save");

    QCOMPARE(result.status, 0);
    QCOMPARE(
        result.outputLines(),
        (QList<QByteArray>{
            R"({"continued":false,"name":"floor","value":"blue.png"})",
            R"({"continued":false,"name":"format","value":{"compressionRate":50,"format":"jpeg"}})",
            R"({"continued":false,"name":"format","value":{"compressionRate":50,"format":"png"}})",
            R"({"continued":false,"name":"format","value":{"format":"png"}})",
            R"({"continued":false,"name":"floor","value":"Red"})",
            R"({"floor":"Red","format":{"format":"png"},"frame":[8,6],"poster":"red.png","size":[8,6],"tint":[0,0,0,1],"turn":[1,0,0,0,1,0,0,0,1]})"}));
}

void tst_property_panel::settingsAreReadAndSaved()
{
    write("program.ini", "loop=true\n[Window]\nwidth=300\n");

    const Result result = play("list.json --settings program.ini", "line typed, press Save");

    QCOMPARE(result.status, 0);
    QCOMPARE(result.output, QByteArray());
    QCOMPARE(problemsOf(result.error), QByteArray());
    const QByteArray saved = read("program.ini");
    QVERIFY2(saved.startsWith("[General]\nloop=true\nnotes=\ntitle=typed\n\n[Window]\nwidth=300\n\n"
                              "[property-panel]\narrangement="),
             saved.constData());
}

void tst_property_panel::settingsNeedNotExist()
{
    QCOMPARE(play("list.json --settings new.ini", "press Loop, close, press Discard").status, 1);
    QVERIFY(!QFile::exists(path("new.ini")));

    QCOMPARE(play("list.json --settings new.ini", "press Loop, press Save").status, 0);

    QVERIFY2(read("new.ini").startsWith("[General]\nloop=true\nnotes=\ntitle=Untitled\n\n"),
             read("new.ini").constData());
}

void tst_property_panel::valuesGoBeforeSettings()
{
    write("program.ini", "loop=true\ntitle=Of the settings\n");
    write("values.json", R"({"title": "Of the values", "zoom": 2})");

    const Result result = play(
        "list.json --values values.json --settings program.ini --output out.json", "press Save");

    QCOMPARE(result.status, 0);
    QCOMPARE(readObject("out.json"),
             (QJsonObject{{QStringLiteral("title"), QStringLiteral("Of the values")},
                          {QStringLiteral("loop"), true},
                          {QStringLiteral("notes"), QString()},
                          {QStringLiteral("zoom"), 2}}));
    QVERIFY2(
        read("program.ini").startsWith("[General]\nloop=true\nnotes=\ntitle=Of the values\n\n"),
        read("program.ini").constData());
}

void tst_property_panel::liveLinesWithSettings()
{
    const Result result = play("list.json --live --settings new.ini", "press Loop, press Save");

    QCOMPARE(result.status, 0);
    QCOMPARE(result.output, QByteArray("{\"continued\":false,\"name\":\"loop\",\"value\":true}\n"));
    QVERIFY(read("new.ini").contains("loop=true"));
}

void tst_property_panel::liveLinesAsCommitted_data()
{
    QTest::addColumn<QByteArray>("arguments");
    QTest::addColumn<QByteArray>("end");
    QTest::addColumn<QList<QByteArray>>("lines");
    const QByteArray saved = R"({"count":42})";
    const QByteArray whole = R"({"continued":false,"name":"count","value":42})";
    const QList<QByteArray> both = {R"({"continued":false,"name":"count","value":4})",
                                    R"({"continued":true,"name":"count","value":42})", saved};

    QTest::newRow("at once") << QByteArray() << QByteArray("press Save") << both;
    QTest::newRow("live") << QByteArray("--commit live") << QByteArray("press Save") << both;
    QTest::newRow("at a rate, the last before the save")
        << QByteArray("--commit rate:1") << QByteArray("key Ctrl+S") << both;
    QTest::newRow("when Return confirms it")
        << QByteArray("--commit end") << QByteArray("key Return, key Ctrl+S")
        << QList<QByteArray>{whole, saved};
    QTest::newRow("when the field is left")
        << QByteArray("--commit end") << QByteArray("key Tab, press Save")
        << QList<QByteArray>{whole, saved};
    QTest::newRow("before the save at the latest")
        << QByteArray("--commit end") << QByteArray("key Ctrl+S")
        << QList<QByteArray>{whole, saved};
}

void tst_property_panel::liveLinesAsCommitted()
{
    QFETCH(QByteArray, arguments);
    QFETCH(QByteArray, end);
    write("numbers.json", R"({"version": 1, "properties": [
        {"name": "count", "type": "int", "min": 0, "max": 100, "default": 7}]})");

    // From the panel over the slider into the field.
    const Result result =
        play("numbers.json --live " + arguments, "key Tab, key Tab, key 4, key 2, " + end);

    QCOMPARE(result.status, 0);
    QTEST(result.outputLines(), "lines");
}

void tst_property_panel::saveWithTheKeyboard()
{
    const Result result = play("list.json --output out.json", "line typed, key Ctrl+S");

    QCOMPARE(result.status, 0);
    QVERIFY(read("out.json").contains("\"typed\""));
}

void tst_property_panel::saveReplacesTheValuesFileItStartedFrom()
{
    write("values.json", R"({"title": "Before"})");

    const Result result =
        play("list.json --values values.json --output values.json", "line After, press Save");

    QCOMPARE(result.status, 0);
    QVERIFY(read("values.json").contains("\"After\""));
}

void tst_property_panel::saveToStandardOutput()
{
    const Result result = play("list.json", "press Save");

    QCOMPARE(result.status, 0);
    QCOMPARE(QJsonDocument::fromJson(result.output).object().value(QStringLiteral("title")),
             QJsonValue(QStringLiteral("Untitled")));
}

void tst_property_panel::failedSaveKeepsTheWindow_data()
{
    QTest::addColumn<QByteArray>("output");

    QTest::newRow("a folder that does not exist") << QByteArray("none/out.json");
    QTest::newRow("a folder in place of the file") << QByteArray(".");
}

void tst_property_panel::failedSaveKeepsTheWindow()
{
    QFETCH(QByteArray, output);
    const QByteArray arguments = "list.json --output " + output;

    // The window must still be there to be cancelled, and still know of the change.
    const Result result =
        play(arguments, "line typed, press Save, key Ctrl+S, press Cancel, press Cancel, "
                        "close, press Discard");

    QCOMPARE(result.status, 1);
    QCOMPARE(result.error.count("property-panel: error: Cannot write " + output), 2);
}

void tst_property_panel::cancelWritesNothing_data()
{
    QTest::addColumn<QByteArray>("steps");

    QTest::newRow("the button") << QByteArray("press Cancel");
    QTest::newRow("Escape") << QByteArray("key Esc");
    QTest::newRow("closing the window") << QByteArray("close");
    QTest::newRow("a change that is not wanted") << QByteArray("press Loop, close, press Discard");
    QTest::newRow("typed text that is not wanted")
        << QByteArray("line typed, key Esc, press Discard");
    QTest::newRow("a change that was undone") << QByteArray("press Loop, key Ctrl+Z, press Cancel");
}

void tst_property_panel::cancelWritesNothing()
{
    QFETCH(QByteArray, steps);
    write("out.json", "before");

    const Result result = play("list.json --output out.json", steps);

    QCOMPARE(result.status, 1);
    QVERIFY(result.output.isEmpty());
    QCOMPARE(read("out.json"), QByteArray("before"));
}

void tst_property_panel::liveLines()
{
    const Result result =
        play("list.json --live", "press Loop, line new, key Return, press Go, press Undo, "
                                 "press Reset All, press Save");

    QCOMPARE(result.status, 0);
    QCOMPARE(result.outputLines(),
             (QList<QByteArray>{R"({"continued":false,"name":"loop","value":true})",
                                R"({"continued":false,"name":"title","value":"new"})",
                                R"({"continued":false,"name":"go","value":null})",
                                R"({"continued":false,"name":"title","value":"Untitled"})",
                                R"({"continued":false,"name":"loop","value":false})",
                                R"({"loop":false,"notes":"","title":"Untitled"})"}));
}

void tst_property_panel::liveOutputWithoutReaderIsNoHarm()
{
    const Result result =
        playInShell("{ \"$0\" list.json --live --output out.json; echo $? >status; } | true",
                    "press Loop, press Loop, press Loop, press Save");

    QCOMPARE(result.status, 0);
    QCOMPARE(read("status"), QByteArray("0\n"));
    QVERIFY(read("out.json").contains("\"loop\": true"));
}

void tst_property_panel::closedStandardOutputIsNoHarm()
{
    const Result result =
        playInShell("\"$0\" list.json --live --output out.json >&-", "press Loop, press Save");

    QCOMPARE(result.status, 0);
    const QByteArray saved = read("out.json");
    QVERIFY2(saved.startsWith("{\n") && saved.contains("\"loop\": true"), saved.constData());
}

QTEST_GUILESS_MAIN(tst_property_panel)
#include "tst_property_panel.moc"
