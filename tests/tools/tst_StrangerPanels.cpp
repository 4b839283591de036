// Lists of unknown origin, shown by the program.

#include <tools/ProgramRun.h>
#include <tools/property-panel/PanelWindow.h>

#include <support/OpenWatch.h>
#include <support/PictureFolder.h>

#include <host/PropertyList.h>
#include <host/PropertyListReader.h>
#include <host/PropertyStore.h>

#include <QDir>
#include <QHelpEvent>
#include <QLineEdit>
#include <QTest>
#include <QToolButton>
#include <QToolTip>

#include <sys/resource.h>

using namespace Tessark::PropertyHost;
using namespace Tessark::PropertyPanel;

namespace {

#if defined(__SANITIZE_ADDRESS__)
constexpr qint64 kMaximumMemory = 4096; // the sanitizer keeps a multiple
#else
constexpr qint64 kMaximumMemory = 1024; // MiB
#endif

QByteArray repeated(const QByteArray &part, int count)
{
    return (part + ",").repeated(count).chopped(1);
}

/// Rows that differ by their name.
QByteArray namedRows(const QByteArray &rest, int count)
{
    QByteArray rows;
    for (int i = 0; i < count; ++i)
        rows += R"({"name": "r)" + QByteArray::number(i) + "\", " + rest + "},";
    return rows.chopped(1);
}

/// The most memory that a process started by this one has had, in MiB.
qint64 childrensMemory()
{
    rusage usage{};
    getrusage(RUSAGE_CHILDREN, &usage);
    return usage.ru_maxrss / 1024;
}

} // namespace

class tst_StrangerPanels : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void refusedUnlessTrusted_data();
    void refusedUnlessTrusted();
    void markupOpensNothing_data();
    void markupOpensNothing();
    void markupInTheToolTipOfUndoOpensNothing();
    void valuesMayNamePicturesAnywhere();
    void tooLargeToDrawIsTold_data();
    void tooLargeToDrawIsTold();
    void memoryIsBounded_data();
    void memoryIsBounded();

private:
    QString secret() const { return m_outer.filePath(QStringLiteral("secret.png")); }
    void writeList(const QByteArray &rows) const
    {
        m_outer.addFile(QStringLiteral("list/list.json"),
                        R"({"version": 1, "properties": [)" + rows + "]}");
    }
    ProgramResult run(const char *arguments, const char *steps = "") const;

    PictureFolder m_outer;
};

void tst_StrangerPanels::initTestCase()
{
    QVERIFY(QDir(m_outer.path()).mkdir(QStringLiteral("list")));
    m_outer.addPicture(QStringLiteral("secret.png"), Qt::red);
}

ProgramResult tst_StrangerPanels::run(const char *arguments, const char *steps) const
{
    QProcess process;
    process.setProgram(QStringLiteral(PROPERTY_PANEL_PROGRAM));
    process.setArguments(QString::fromLatin1(arguments).split(QLatin1Char(' ')));
    process.setProcessEnvironment(withDriver(driverSteps(steps)));
    return finishRun(process, m_outer.filePath(QStringLiteral("list")));
}

void tst_StrangerPanels::refusedUnlessTrusted_data()
{
    QTest::addColumn<QByteArray>("rows");
    QTest::addColumn<QByteArray>("place");

    QTest::newRow("a picture outside of the folder")
        << QByteArray(R"({"name": "i", "type": "image", "default": "../secret.png"})")
        << QByteArray("/properties/0/default: \"../secret.png\" lies outside");
    QTest::newRow("a style sheet")
        << QByteArray(R"x({"name": "a", "type": "bool", "hints": {
            "style_sheet": "background-image: url(../secret.png)"}})x")
        << QByteArray("/properties/0/hints/style_sheet: only a trusted list");
    QTest::newRow("a label of a megabyte")
        << QByteArray(R"({"name": "a", "type": "bool", "label": ")" + QByteArray(1000000, 'x')
                      + "\"}")
        << QByteArray("/properties/0/label: a text may have 10000 characters");
}

void tst_StrangerPanels::refusedUnlessTrusted()
{
    QFETCH(QByteArray, rows);
    QFETCH(QByteArray, place);
    writeList(rows);
    OpenWatch watch(secret());

    const ProgramResult check = run("list.json --check");
    const ProgramResult shown = run("list.json --output out.json", "press Save");

    QCOMPARE(check.status, 2);
    QCOMPARE(shown.status, 2);
    QVERIFY2(check.error.contains("list.json: error: " + place), check.error.constData());
    QVERIFY2(shown.error.contains("list.json: error: " + place), shown.error.constData());
    QVERIFY(!watch.takeOpened());
    const ProgramResult trusted = run("--trusted list.json --check");
    QCOMPARE(trusted.status, 0);
    QCOMPARE(trusted.output, QByteArray("no problems found\n"));
}

void tst_StrangerPanels::markupOpensNothing_data()
{
    QTest::addColumn<QByteArray>("arguments");

    QTest::newRow("window") << QByteArray("list.json --values values.json --output out.json");
    QTest::newRow("picture") << QByteArray("list.json --values values.json --render out.png");
    QTest::newRow("trusted") << QByteArray("list.json --values values.json --render out.png "
                                           "--trusted");
}

void tst_StrangerPanels::markupOpensNothing()
{
    QFETCH(QByteArray, arguments);
    const QByteArray markup = "<img src='" + secret().toUtf8() + "'>";
    writeList(R"({"name": "a", "type": "string", "label": ")" + markup + R"("},
        {"name": "b", "type": "static_text", "default": ")"
              + markup + R"("},
        {"name": "c", "type": "static_text"})");
    m_outer.addFile(QStringLiteral("list/values.json"), R"({"c": ")" + markup + "\"}");
    OpenWatch watch(secret());

    const ProgramResult result = run(arguments.constData(), "line x, key Ctrl+Z, press Save");

    QVERIFY2(result.status == 0, result.error.constData());
    QCOMPARE(result.error.contains("list.json: warning: /properties/0/label: markup is shown as it "
                                   "is written\n"),
             !arguments.contains("trusted"));
    QVERIFY(!watch.takeOpened());
}

void tst_StrangerPanels::markupInTheToolTipOfUndoOpensNothing()
{
    const QString markup = QStringLiteral("<img src='%1'>").arg(secret());
    const auto result =
        readPropertyList(R"({"version": 1, "properties": [{"name": "a", "type": "string",
            "label": ")" + markup.toUtf8()
                             + R"("}]})",
                         m_outer.path(), ListOrigin::Stranger);
    PropertyStore store;
    store.reset(result.list);
    PanelWindow window(result.list, &store, ValuesWriter(QString()));
    window.show();
    QTest::keyClicks(window.findChild<QLineEdit *>(), QStringLiteral("typed"));
    QTest::keyClick(window.findChild<QLineEdit *>(), Qt::Key_Return);
    auto *const undo = window.findChild<QToolButton *>();
    OpenWatch watch(secret());

    QHelpEvent help(QEvent::ToolTip, QPoint(2, 2), undo->mapToGlobal(QPoint(2, 2)));
    QCoreApplication::sendEvent(undo, &help);
    QTRY_VERIFY(QToolTip::isVisible());

    QCOMPARE(QToolTip::text(), QStringLiteral("<p>Undo %1</p>").arg(markup.toHtmlEscaped()));
    QVERIFY(!watch.takeOpened());
    QToolTip::hideText();
}

void tst_StrangerPanels::valuesMayNamePicturesAnywhere()
{
    // They are the user's own, who may have dropped a picture on the panel.
    writeList(R"({"name": "t", "type": "texture"})");
    m_outer.addFile(QStringLiteral("list/values.json"), R"({"t": "../secret.png"})");

    QCOMPARE(run("list.json --values values.json --check").status, 0);
}

void tst_StrangerPanels::tooLargeToDrawIsTold_data()
{
    QTest::addColumn<QByteArray>("rows");

    QTest::newRow("many rows") << namedRows(R"("type": "string")", 10000);
    QTest::newRow("large rows") << repeated(
        R"({"type": "separator", "hints": {"size": [10000, 10000]}})", 2);
}

void tst_StrangerPanels::tooLargeToDrawIsTold()
{
    QFETCH(QByteArray, rows);
    writeList(rows);

    const ProgramResult result = run("list.json --render large.png");

    QCOMPARE(result.status, 2);
    QVERIFY2(
        result.error.contains("property-panel: error: Cannot write large.png: the panel takes "),
        result.error.constData());
    QVERIFY(!QFile::exists(m_outer.filePath(QStringLiteral("list/large.png"))));
}

void tst_StrangerPanels::memoryIsBounded_data()
{
    QTest::addColumn<QByteArray>("rows");
    QTest::addColumn<int>("status");

    QTest::newRow("arrays in place of rows") << repeated("[0]", 3900000) << 2;
    QTest::newRow("as many rows as allowed") << namedRows(R"("type": "string")", 10000) << 0;
    QTest::newRow("as many radio buttons as allowed")
        << QByteArray(R"({"name": "e", "type": "int/enum", "hints": {"widget": "radio_buttons",
            "display_values": [)"
                      + repeated("\"\"", 190000) + "]}}")
        << 0;
    QTest::newRow("as many lines as allowed") << namedRows(
        R"("type": "text", "default": ")" + QByteArray("\\n").repeated(9000) + '"', 100)
                                              << 0;
    QTest::newRow("as long lines as allowed")
        << namedRows(R"("type": "text", "default": ")" + QByteArray(9000, 'M') + '"', 100) << 0;
}

void tst_StrangerPanels::memoryIsBounded()
{
    QFETCH(QByteArray, rows);
    QFETCH(int, status);
    writeList(rows);

    const ProgramResult result = run("list.json --output out.json", "key Ctrl+S");

    QVERIFY2(result.status == status, result.error.left(500).constData());
    const qint64 memory = childrensMemory();
    qInfo("at most %lld MiB so far", static_cast<long long>(memory));
    QVERIFY(memory < kMaximumMemory);
}

QTEST_MAIN(tst_StrangerPanels)
#include "tst_StrangerPanels.moc"
