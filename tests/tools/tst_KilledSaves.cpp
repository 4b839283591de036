// Kills the program while it saves: what is on the disk must be the old file or the new one, whole.

#include <tools/ProgramRun.h>

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
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

void write(const QString &path, const QByteArray &content)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("cannot write a test file");
}

/// A run of the program in a folder of its own, which saves over its values file when told to.
class Save
{
public:
    explicit Save(const QByteArray &before)
        : m_before(before)
    {
        write(m_folder.filePath(QStringLiteral("list.json")), kList);
    }

    QString path() const { return m_folder.filePath(QStringLiteral("values.json")); }

    void start()
    {
        write(path(), m_before);
        m_process.setProgram(QStringLiteral(PROPERTY_PANEL_PROGRAM));
        m_process.setArguments({QStringLiteral("list.json"), QStringLiteral("--values"),
                                QStringLiteral("values.json"), QStringLiteral("--output"),
                                QStringLiteral("values.json")});
        m_process.setProcessEnvironment(withDriver(driverSteps("line new, await, press Save")));
        m_process.setWorkingDirectory(m_folder.path());
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

    /// What lies in the folder beside the list and the values.
    QStringList remains() const
    {
        QStringList names = QDir(m_folder.path()).entryList(QDir::Files | QDir::Hidden);
        names.removeAll(QStringLiteral("list.json"));
        names.removeAll(QStringLiteral("values.json"));
        return names;
    }

private:
    QByteArray m_before;
    QTemporaryDir m_folder;
    QProcess m_process;
};

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

void tst_KilledSaves::fileIsOldOrNewAndWhole()
{
    const QByteArray before = valuesWith(QStringLiteral("old"));
    const QByteArray after = valuesWith(QStringLiteral("new"));
    std::array<std::unique_ptr<Save>, kProgramsAhead> saves;
    for (auto &save : saves)
        save = std::make_unique<Save>(before);
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
    for (int i = 0; i < kKills; ++i) {
        Save &save = *saves[static_cast<std::size_t>(i) % saves.size()];
        QVERIFY(save.go());
        const QStringList leftBefore = save.remains();
        waitMicroseconds(delay(random));
        QVERIFY(save.kill());

        const QByteArray content = contentOf(save.path());
        QVERIFY2(content == before || content == after, content.left(200).constData());
        // Each save removes what the one before has left.
        const QStringList left = save.remains();
        QVERIFY2(left.size() <= 1, qPrintable(left.join(QLatin1Char(' '))));
        for (const QString &name : left)
            QVERIFY2(name.startsWith(QStringLiteral(".values.json.saving-")), qPrintable(name));
        if (content == after)
            ++killedAfter;
        else
            ++(left.isEmpty() || left == leftBefore ? killedBefore : killedWhileWriting);
        save.start();
    }

    qInfo("%d kills within %lld us: %d before the writing, %d while writing, %d after it", kKills,
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
