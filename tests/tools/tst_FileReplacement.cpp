#include <tools/property-panel/FileReplacement.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

#include <sys/stat.h>

using Tessark::PropertyPanel::replaceFile;

class tst_FileReplacement : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void makesAFile();
    void replacesContentAndKeepsPermissions();
    void linkStaysALink();
    void remainsOfAKilledProcessAreRemoved();
    void remainsWithTheOwnNumberAreNoObstacle();
    void filesOfOthersStay_data();
    void filesOfOthersStay();
    void impossiblePlaces_data();
    void impossiblePlaces();

private:
    QString path(const QString &name) const { return m_folder->filePath(name); }
    QString file() const { return path(QStringLiteral("values.json")); }
    QStringList names() const
    {
        return QDir(m_folder->path())
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    }
    QByteArray read(const QString &name) const;
    void write(const QString &name, const QByteArray &content) const;

    std::unique_ptr<QTemporaryDir> m_folder;
};

void tst_FileReplacement::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
}

QByteArray tst_FileReplacement::read(const QString &name) const
{
    QFile content(path(name));
    return content.open(QIODevice::ReadOnly) ? content.readAll() : QByteArray();
}

void tst_FileReplacement::write(const QString &name, const QByteArray &content) const
{
    QFile target(path(name));
    QVERIFY(target.open(QIODevice::WriteOnly));
    QCOMPARE(target.write(content), content.size());
}

void tst_FileReplacement::makesAFile()
{
    QCOMPARE(replaceFile(file(), "new"), QString());

    QCOMPARE(read(QStringLiteral("values.json")), QByteArray("new"));
    QCOMPARE(names(), QStringList{QStringLiteral("values.json")});
    // As any other program makes its files.
    const mode_t mask = umask(0);
    umask(mask);
    struct stat status = {};
    QCOMPARE(stat(QFile::encodeName(file()).constData(), &status), 0);
    QCOMPARE(status.st_mode & 0777U, 0666U & ~mask);
}

void tst_FileReplacement::replacesContentAndKeepsPermissions()
{
    write(QStringLiteral("values.json"), QByteArray(10000, 'x'));
    QCOMPARE(chmod(QFile::encodeName(file()).constData(), 0640), 0);

    QCOMPARE(replaceFile(file(), "new"), QString());

    QCOMPARE(read(QStringLiteral("values.json")), QByteArray("new"));
    struct stat status = {};
    QCOMPARE(stat(QFile::encodeName(file()).constData(), &status), 0);
    QCOMPARE(status.st_mode & 0777U, 0640U);
}

void tst_FileReplacement::linkStaysALink()
{
    QVERIFY(QDir(m_folder->path()).mkdir(QStringLiteral("sub")));
    write(QStringLiteral("sub/real.json"), "before");
    QVERIFY(QFile::link(path(QStringLiteral("sub/real.json")), file()));

    QCOMPARE(replaceFile(file(), "new"), QString());

    QVERIFY(QFileInfo(file()).isSymLink());
    QCOMPARE(read(QStringLiteral("sub/real.json")), QByteArray("new"));
}

void tst_FileReplacement::remainsOfAKilledProcessAreRemoved()
{
    QProcess gone;
    gone.start(QStringLiteral("/bin/sh"), {QStringLiteral("-c"), QStringLiteral("echo $$")});
    QVERIFY(gone.waitForFinished());
    const QString number = QString::fromLatin1(gone.readAllStandardOutput().trimmed());
    write(QStringLiteral(".values.json.saving-") + number, "half");

    QCOMPARE(replaceFile(file(), "new"), QString());

    QCOMPARE(names(), QStringList{QStringLiteral("values.json")});
}

void tst_FileReplacement::remainsWithTheOwnNumberAreNoObstacle()
{
    write(QStringLiteral(".values.json.saving-%1").arg(QCoreApplication::applicationPid()), "half");

    QCOMPARE(replaceFile(file(), "new"), QString());

    QCOMPARE(read(QStringLiteral("values.json")), QByteArray("new"));
    QCOMPARE(names(), QStringList{QStringLiteral("values.json")});
}

void tst_FileReplacement::filesOfOthersStay_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("of a process that runs") << QStringLiteral(".values.json.saving-1");
    QTest::newRow("without number") << QStringLiteral(".values.json.saving-copy");
    QTest::newRow("with an impossible number") << QStringLiteral(".values.json.saving--5");
    QTest::newRow("of another file") << QStringLiteral(".other.json.saving-99999999");
    QTest::newRow("a backup") << QStringLiteral("values.json.backup");
}

void tst_FileReplacement::filesOfOthersStay()
{
    QFETCH(QString, name);
    write(name, "theirs");

    QCOMPARE(replaceFile(file(), "new"), QString());

    QCOMPARE(read(name), QByteArray("theirs"));
}

void tst_FileReplacement::impossiblePlaces_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("error");

    QTest::newRow("a folder") << QStringLiteral("folder") << QStringLiteral("it is not a file");
    QTest::newRow("a pipe") << QStringLiteral("pipe") << QStringLiteral("it is not a file");
    QTest::newRow("no folder") << QStringLiteral("none/values.json")
                               << QStringLiteral("No such file or directory");
    QTest::newRow("a file in place of a folder")
        << QStringLiteral("file/values.json") << QStringLiteral("Not a directory");
}

void tst_FileReplacement::impossiblePlaces()
{
    QFETCH(QString, name);
    QFETCH(QString, error);
    QVERIFY(QDir(m_folder->path()).mkdir(QStringLiteral("folder")));
    QCOMPARE(mkfifo(QFile::encodeName(path(QStringLiteral("pipe"))).constData(), 0600), 0);
    write(QStringLiteral("file"), "before");
    const QStringList before = names();

    QCOMPARE(replaceFile(path(name), "new"), error);

    QCOMPARE(names(), before);
    QCOMPARE(read(QStringLiteral("file")), QByteArray("before"));
}

QTEST_GUILESS_MAIN(tst_FileReplacement)
#include "tst_FileReplacement.moc"
