// What goes wrong while the program saves: the file on the disk stays whole, the user is told, and the
// edited values stay in the window, from which the next attempt saves them.

#include <tools/ProgramRun.h>

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

#include <unistd.h>

namespace {

const QByteArray kList = R"({"version": 1, "title": "Test", "properties": [
    {"name": "title", "label": "Title", "type": "string", "default": "Untitled"},
    {"name": "loop", "label": "Loop", "type": "bool", "default": false}]})";

/// Larger than what the small disks of the tests have left.
QByteArray largeValues()
{
    return QJsonDocument(QJsonObject{{QStringLiteral("title"), QStringLiteral("old")},
                                     {QStringLiteral("other"), QString(60000, QLatin1Char('x'))}})
        .toJson();
}

/// Words in front of a shell in which it may mount; none when the machine allows it in no way.
QStringList mountingShell()
{
    for (const char *option : {"-Urm", "-m"}) {
        const QStringList words{QStringLiteral("unshare"), QLatin1String(option)};
        const QStringList probe{QLatin1String(option),  QStringLiteral("mount"),
                                QStringLiteral("-t"),   QStringLiteral("tmpfs"),
                                QStringLiteral("none"), QDir::tempPath()};
        if (QProcess::execute(words.first(), probe) == 0)
            return words;
    }
    return {};
}

/// Words in front of a shell that keeps to the permissions of files, as that of root does not.
QStringList shellWithoutPrivileges()
{
    if (geteuid() != 0)
        return {};
    return {QStringLiteral("setpriv"), QStringLiteral("--bounding-set=-all"),
            QStringLiteral("--inh-caps=-all")};
}

} // namespace

class tst_SaveFaults : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();

    void fullOrReadOnlyDisk_data();
    void fullOrReadOnlyDisk();
    void vanishedFolder();
    void foreignContent_data();
    void foreignContent();
    void goneReaderOfLiveEndsTheProgram();

private:
    QString path(const char *name) const { return m_folder->filePath(QLatin1String(name)); }
    void write(const char *name, const QByteArray &content) const;
    QByteArray read(const char *name) const;
    QString savedTitle(const char *name) const;

    /// Runs a script, in which $0 is the program, by the shell that the words before make.
    ProgramResult run(QStringList words, const char *script, const char *steps) const;

    QStringList m_mountingShell;
    std::unique_ptr<QTemporaryDir> m_folder;
};

void tst_SaveFaults::initTestCase()
{
    m_mountingShell = mountingShell();
}

void tst_SaveFaults::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
    QVERIFY(QDir(m_folder->path()).mkdir(QStringLiteral("disk")));
    write("list.json", kList);
}

void tst_SaveFaults::write(const char *name, const QByteArray &content) const
{
    QFile file(path(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("cannot write a test file");
}

QByteArray tst_SaveFaults::read(const char *name) const
{
    QFile file(path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QString tst_SaveFaults::savedTitle(const char *name) const
{
    return QJsonDocument::fromJson(read(name)).object().value(QStringLiteral("title")).toString();
}

ProgramResult tst_SaveFaults::run(QStringList words, const char *script, const char *steps) const
{
    QProcess process;
    prepareShell(process, QString::fromLatin1(script));
    if (!words.isEmpty()) {
        process.setArguments(words.mid(1) + QStringList{process.program()} + process.arguments());
        process.setProgram(words.first());
    }
    process.setProcessEnvironment(withDriver(driverSteps(steps)));
    return finishRun(process, m_folder->path());
}

void tst_SaveFaults::fullOrReadOnlyDisk_data()
{
    QTest::addColumn<QStringList>("shell");
    QTest::addColumn<QByteArray>("prepare");
    QTest::addColumn<QByteArray>("limit"); // of the program alone
    QTest::addColumn<QByteArray>("repair");
    QTest::addColumn<QByteArray>("reason");
    const auto row = [](const char *name, const QStringList &shell, const char *prepare,
                        const char *repair, const char *reason, const char *limit = "") {
        QTest::newRow(name) << shell << QByteArray(prepare) << QByteArray(limit)
                            << QByteArray(repair) << QByteArray(reason);
    };

    if (!m_mountingShell.isEmpty()) {
        row("a small disk that is full", m_mountingShell,
            "mount -t tmpfs -o size=160k none disk && cp values.json disk && "
            "{ head -c 1M /dev/zero >disk/filler 2>errors; test -s errors; }",
            "rm disk/filler", "No space left on device");
        row("a disk without room for a name", m_mountingShell,
            "mount -t tmpfs -o nr_inodes=2 none disk && cp values.json disk",
            "mount -o remount,nr_inodes=10 disk", "No space left on device");
        row("a read-only disk", m_mountingShell,
            "mount -t tmpfs none disk && cp values.json disk && mount -o remount,ro disk",
            "mount -o remount,rw disk", "it is write-protected");
    }
    row("a limit of file sizes", {}, "cp values.json disk",
        "prlimit --pid $PPID --fsize=unlimited:", "File too large", "ulimit -S -f 40");
    row("a folder without permission", shellWithoutPrivileges(),
        "cp values.json disk && chmod 555 disk", "chmod 755 disk", "Permission denied");
    row("a file without permission", shellWithoutPrivileges(),
        "cp values.json disk && chmod 444 disk/values.json", "chmod 644 disk/values.json",
        "it is write-protected");
}

void tst_SaveFaults::fullOrReadOnlyDisk()
{
    QFETCH(QStringList, shell);
    QFETCH(QByteArray, prepare);
    QFETCH(QByteArray, limit);
    QFETCH(QByteArray, repair);
    QFETCH(QByteArray, reason);
    write("values.json", largeValues());
    const QByteArray script = prepare + R"( || exit 99
        ls -A disk >names-before
        ( )" + limit + R"(
        exec "$0" list.json --values disk/values.json --output disk/values.json )
        echo $? >status
        cp disk/values.json saved.json)";
    const QByteArray steps =
        "line typed, press Save, shell cmp disk/values.json values.json, shell ls -A disk | cmp - "
        "names-before, shell "
        + repair + ", press Save";

    const ProgramResult result = run(shell, script.constData(), steps.constData());

    QVERIFY2(result.status == 0, result.error.constData());
    QCOMPARE(read("status"), QByteArray("0\n"));
    QCOMPARE(result.error.count("error: "), 1);
    QVERIFY2(result.error.contains("property-panel: error: Cannot write disk/values.json: " + reason
                                   + "\n"),
             result.error.constData());
    QCOMPARE(savedTitle("saved.json"), QStringLiteral("typed"));
}

void tst_SaveFaults::vanishedFolder()
{
    write("disk/values.json", largeValues());

    const ProgramResult result =
        run({}, "\"$0\" list.json --values disk/values.json --output disk/values.json",
            "line typed, shell mv disk away, press Save, shell test ! -e disk, "
            "shell mv away disk, press Save");

    QCOMPARE(result.status, 0);
    QCOMPARE(result.error.count("property-panel: error: Cannot write disk/values.json: No such "
                                "file or directory\n"),
             1);
    QCOMPARE(savedTitle("disk/values.json"), QStringLiteral("typed"));
}

void tst_SaveFaults::foreignContent_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("steps");
    QTest::addColumn<int>("told");
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("title");
    const auto row = [](const char *name, const char *before, const char *steps, int told,
                        int status, const char *title) {
        QTest::newRow(name) << QByteArray(before) << QByteArray(steps) << told << status
                            << QString::fromLatin1(title);
    };
    const char *const old = R"({"title":"old"})";

    row("that is to stay", old,
        "line typed, shell cp theirs.json values.json, press Save, press Cancel, close, "
        "press Discard",
        1, 1, "theirs");
    row("that is to be replaced", old,
        "line typed, shell cp theirs.json values.json, press Save, press Replace", 1, 0, "typed");
    row("in a new file of the same name", old,
        "line typed, shell mv theirs.json values.json, press Save, press Replace", 1, 0, "typed");
    row("in a file that was not there", "",
        "line typed, shell cp theirs.json values.json, press Save, press Cancel, close, "
        "press Discard",
        1, 1, "theirs");
    row("that comes once more while the question stands", old,
        "line typed, shell cp theirs.json values.json, press Save, "
        "shell cp later.json values.json, press Replace, press Cancel, close, press Discard",
        2, 1, "later");
    row("that is asked about at each attempt", old,
        "line typed, shell cp theirs.json values.json, press Save, press Cancel, key Ctrl+S, "
        "press Replace",
        2, 0, "typed");
    row("when saving is the answer on closing", old,
        "line typed, shell cp theirs.json values.json, close, press Save, press Replace", 1, 0,
        "typed");
    row("that says the same", old, "line typed, shell touch values.json, press Save", 0, 0,
        "typed");
    row("that is gone", old, "line typed, shell rm values.json, press Save", 0, 0, "typed");
}

void tst_SaveFaults::foreignContent()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, steps);
    QFETCH(int, told);
    QFETCH(int, status);
    QFETCH(QString, title);
    if (!before.isEmpty())
        write("values.json", before);
    write("theirs.json", R"({"title":"theirs"})");
    write("later.json", R"({"title":"later"})");

    const ProgramResult result =
        run({}, "\"$0\" list.json --output values.json", steps.constData());

    QVERIFY2(result.status == status, result.error.constData());
    QCOMPARE(result.error.count("error: "), told);
    QCOMPARE(result.error.count("property-panel: error: values.json was written by another program "
                                "meanwhile\n"),
             told);
    QCOMPARE(savedTitle("values.json"), title);
}

void tst_SaveFaults::goneReaderOfLiveEndsTheProgram()
{
    // The reader may take a moment to go, so there are more changes than it needs.
    const QByteArray steps = QByteArray("press Loop, ").repeated(100) + "close, press Discard";

    const ProgramResult result =
        run({}, "{ \"$0\" list.json --live; echo $? >status; } | head -1", steps.constData());

    QCOMPARE(result.status, 0);
    QCOMPARE(read("status"), QByteArray("1\n"));
    QCOMPARE(result.output, QByteArray("{\"continued\":false,\"name\":\"loop\",\"value\":true}\n"));
    QVERIFY2(!result.error.contains("error") && !result.error.contains("roken pipe"),
             result.error.constData());
}

QTEST_GUILESS_MAIN(tst_SaveFaults)
#include "tst_SaveFaults.moc"
