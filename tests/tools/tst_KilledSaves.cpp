// Kills the program while it saves: what is on the disk must be the old file or the new one, whole.

#include <tools/ProgramRun.h>

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <array>
#include <memory>
#include <random>

namespace {

#if defined(__SANITIZE_ADDRESS__)
constexpr int kKills = 150; // a program under the sanitizers starts slowly
#else
constexpr int kKills = 500;
#endif

constexpr int kKillsOfSettings = 100;

constexpr int kProgramsAhead = 4; // start while others are killed
constexpr int kTrials = 5;
constexpr double kSpread =
    1.4; // of the kills, as part of the usual time until the new file is there

const QByteArray kList = R"({"version": 1, "title": "Test", "properties": [
    {"name": "title", "label": "Title", "type": "string", "default": "Untitled"}]})";

/// Values of another program beside those of the list make the file large and so the save long.
QByteArray valuesWith(const QString &title)
{
    QJsonObject values{{QStringLiteral("title"), title}};
    for (int i = 0; i < 1000; ++i)
        values.insert(QStringLiteral("other%1").arg(i), QString(60, QLatin1Char('x')));
    return QJsonDocument(values).toJson();
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Settings of another program beside those of the list, in the form that they are written in.
QByteArray settingsWith(const QString &title)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("program.ini"));
    {
        QSettings settings(path, QSettings::IniFormat);
        settings.setValue(QStringLiteral("title"), title);
        for (int i = 0; i < 1000; ++i)
            settings.setValue(QStringLiteral("Other/key%1").arg(i), QString(60, QLatin1Char('x')));
    }
    return contentOf(path);
}

void write(const QString &path, const QByteArray &content)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("cannot write a test file");
}

/// A run of the program in a folder of its own, which saves over a file when told to.
class Save
{
public:
    /// Each option names the file.
    Save(const QString &name, const QStringList &options, const QByteArray &before)
        : m_name(name)
        , m_before(before)
    {
        write(m_folder.filePath(QStringLiteral("list.json")), kList);
        QStringList arguments(QStringLiteral("list.json"));
        for (const QString &option : options)
            arguments << option << name;
        m_process.setProgram(QStringLiteral(PROPERTY_PANEL_PROGRAM));
        m_process.setArguments(arguments);
        QProcessEnvironment environment = withDriver(driverSteps("line new, await, press Save"));
        environment.insert(QStringLiteral("TMPDIR"), m_temporary.path());
        m_process.setProcessEnvironment(environment);
        m_process.setWorkingDirectory(m_folder.path());
    }

    QString path() const { return m_folder.filePath(m_name); }

    void start()
    {
        write(path(), m_before);
        m_process.start();
    }

    /// Lets the program, once it is ready, save.
    bool go()
    {
        QByteArray said;
        while (!said.contains("awaiting\n") && m_process.waitForReadyRead(kRunTimeout))
            said += m_process.readAllStandardOutput();
        m_process.write("\n");
        return m_process.waitForBytesWritten(kRunTimeout);
    }

    bool finish() { return m_process.waitForFinished(kRunTimeout) && m_process.exitCode() == 0; }

    bool kill()
    {
        m_process.kill();
        return m_process.waitForFinished(kRunTimeout);
    }

    /// Waits until other files lie beside the file than before, or it is written.
    void awaitWriting(const QStringList &remainsBefore) const
    {
        QElapsedTimer timer;
        timer.start();
        while (remains() == remainsBefore && contentOf(path()) == m_before
               && !timer.hasExpired(kRunTimeout)) {
        }
    }

    /// What lies in the folder beside the list and the file.
    QStringList remains() const
    {
        QStringList names = QDir(m_folder.path()).entryList(QDir::Files | QDir::Hidden);
        names.removeAll(QStringLiteral("list.json"));
        names.removeAll(m_name);
        return names;
    }

private:
    QString m_name;
    QByteArray m_before;
    QTemporaryDir m_folder;
    QTemporaryDir m_temporary; // for the program's working copies
    QProcess m_process;
};

/// The new settings as the program saves them: behind them stands how its panel is arranged. Empty when
/// that fails.
QByteArray savedSettings()
{
    Save save(QStringLiteral("program.ini"), QStringList(QStringLiteral("--settings")),
              settingsWith(QStringLiteral("old")));
    save.start();
    const bool isSaved = save.go() && save.finish();
    const QByteArray content = contentOf(save.path());
    return isSaved && content.startsWith(settingsWith(QStringLiteral("new"))) ? content
                                                                              : QByteArray();
}

void waitMicroseconds(qint64 time)
{
    QElapsedTimer timer;
    timer.start();
    while (timer.nsecsElapsed() < time * 1000) {
    }
}

} // namespace

class tst_KilledSaves : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fileIsOldOrNewAndWhole_data();
    void fileIsOldOrNewAndWhole();

private:
    /// The usual time from go() until the new file is there, in microseconds; -1 when a run fails.
    static qint64 usualTime(Save &save, const QByteArray &after);
};

qint64 tst_KilledSaves::usualTime(Save &save, const QByteArray &after)
{
    std::array<qint64, kTrials> times{};
    for (qint64 &time : times) {
        save.start();
        if (!save.go())
            return -1;
        QElapsedTimer timer;
        timer.start();
        while (contentOf(save.path()) != after && !timer.hasExpired(kRunTimeout)) {
        }
        time = timer.nsecsElapsed() / 1000;
        if (!save.finish() || contentOf(save.path()) != after)
            return -1;
    }
    std::sort(times.begin(), times.end());
    return times[kTrials / 2];
}

void tst_KilledSaves::fileIsOldOrNewAndWhole_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");
    QTest::addColumn<int>("kills");
    QTest::addColumn<bool>("hasLongStart");

    QTest::newRow("values") << QStringLiteral("values.json")
                            << QStringList{QStringLiteral("--values"), QStringLiteral("--output")}
                            << valuesWith(QStringLiteral("old"))
                            << valuesWith(QStringLiteral("new")) << kKills << false;
    QTest::newRow("settings") << QStringLiteral("program.ini")
                              << QStringList(QStringLiteral("--settings"))
                              << settingsWith(QStringLiteral("old")) << savedSettings()
                              << kKillsOfSettings << true;
}

void tst_KilledSaves::fileIsOldOrNewAndWhole()
{
    QFETCH(QString, name);
    QFETCH(QStringList, options);
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, after);
    QFETCH(int, kills);
    QFETCH(bool, hasLongStart);
    QVERIFY(!after.isEmpty());
    const QString hidden = QLatin1Char('.') + name + QLatin1String(".saving-");
    std::array<std::unique_ptr<Save>, kProgramsAhead> saves;
    for (auto &save : saves)
        save = std::make_unique<Save>(name, options, before);
    const qint64 usual = usualTime(*saves.front(), after);
    QVERIFY(usual > 0);
    for (auto &save : saves)
        save->start();

    std::mt19937 random(1);
    std::uniform_int_distribution<qint64> delay(
        0, static_cast<qint64>(kSpread * static_cast<double>(usual)));
    int killedBefore = 0;
    int killedWhileWriting = 0;
    int killedAfter = 0;
    for (int i = 0; i < kills; ++i) {
        Save &save = *saves[static_cast<std::size_t>(i) % saves.size()];
        QVERIFY(save.go());
        const QStringList leftBefore = save.remains();
        // What comes before the writing would take most of the kills.
        if (hasLongStart && i % 2 == 0)
            save.awaitWriting(leftBefore);
        else
            waitMicroseconds(delay(random));
        QVERIFY(save.kill());

        const QByteArray content = contentOf(save.path());
        QVERIFY2(content == before || content == after, content.left(200).constData());
        // Each save removes what the one before has left.
        const QStringList left = save.remains();
        QVERIFY2(left.size() <= 1, qPrintable(left.join(QLatin1Char(' '))));
        for (const QString &file : left)
            QVERIFY2(file.startsWith(hidden), qPrintable(file));
        if (content == after)
            ++killedAfter;
        else
            ++(left.isEmpty() || left == leftBefore ? killedBefore : killedWhileWriting);
        save.start();
    }

    qInfo("%d kills within %lld us: %d before the writing, %d while writing, %d after it", kills,
          static_cast<long long>(delay.max()), killedBefore, killedWhileWriting, killedAfter);
    QVERIFY(killedBefore > 0);
    QVERIFY(killedWhileWriting > 0);
    QVERIFY(killedAfter > 0);
    for (auto &save : saves) {
        QVERIFY(save->go());
        QVERIFY(save->finish());
        QCOMPARE(contentOf(save->path()), after);
        QCOMPARE(save->remains(), QStringList());
    }
}

QTEST_GUILESS_MAIN(tst_KilledSaves)
#include "tst_KilledSaves.moc"
