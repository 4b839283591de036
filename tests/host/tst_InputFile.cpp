#include <host/InputFile.h>

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <unistd.h>

using namespace Tessark::PropertyHost;

class tst_InputFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void contentIsRead_data();
    void contentIsRead();
    void largestSizeIsRead();
    void oneByteMoreIsTooLarge();
    void endlessDeviceIsTooLarge();
    void missingFileIsTold();
    void directoryIsTold();
    void forbiddenFileIsTold();

private:
    QString path(const char *name) const { return m_directory.filePath(QLatin1String(name)); }
    void write(const QString &path, const QByteArray &content) const;

    QTemporaryDir m_directory;
};

void tst_InputFile::write(const QString &path, const QByteArray &content) const
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), content.size());
}

void tst_InputFile::initTestCase()
{
    QVERIFY(m_directory.isValid());
}

void tst_InputFile::contentIsRead_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("empty") << QByteArray("");
    QTest::newRow("text with every kind of line end") << QByteArray("a\r\nb\nc\rd");
    QTest::newRow("bytes that are no text") << QByteArray("\0\xff\x1a\xc0", 4);
}

void tst_InputFile::contentIsRead()
{
    QFETCH(QByteArray, content);
    const QString file = path("content");
    write(file, content);
    QVector<Problem> problems;

    const auto read = readInputFile(file, problems);

    QVERIFY(read.has_value());
    QCOMPARE(*read, content);
    QVERIFY(problems.isEmpty());
}

void tst_InputFile::largestSizeIsRead()
{
    const QString file = path("largest");
    write(file, QByteArray(int(kMaximumInputSize), ' '));
    QVector<Problem> problems;

    const auto read = readInputFile(file, problems);

    QVERIFY(read.has_value());
    QCOMPARE(qint64(read->size()), kMaximumInputSize);
    QVERIFY(problems.isEmpty());
}

void tst_InputFile::oneByteMoreIsTooLarge()
{
    const QString file = path("too-large");
    write(file, QByteArray(int(kMaximumInputSize) + 1, ' '));
    QVector<Problem> problems;

    QVERIFY(!readInputFile(file, problems).has_value());

    QCOMPARE(problems.size(), 1);
    QCOMPARE(problems.first().toString(QStringLiteral("f")),
             QStringLiteral("f: error: is too large: at most 16 MiB (16777216 bytes) are read"));
}

void tst_InputFile::endlessDeviceIsTooLarge()
{
    QVector<Problem> problems;

    QVERIFY(!readInputFile(QStringLiteral("/dev/zero"), problems).has_value());

    QCOMPARE(problems.size(), 1);
    QVERIFY(problems.first().message.startsWith(QLatin1String("is too large")));
}

void tst_InputFile::missingFileIsTold()
{
    QVector<Problem> problems;

    QVERIFY(!readInputFile(path("missing"), problems).has_value());

    QCOMPARE(problems.size(), 1);
    QCOMPARE(problems.first().toString(QStringLiteral("f")),
             QStringLiteral("f: error: cannot be opened: No such file or directory"));
}

void tst_InputFile::directoryIsTold()
{
    QVector<Problem> problems;

    QVERIFY(!readInputFile(m_directory.path(), problems).has_value());

    QCOMPARE(problems.size(), 1);
    QCOMPARE(problems.first().message, QStringLiteral("cannot be read: it is a directory"));
}

void tst_InputFile::forbiddenFileIsTold()
{
    // Reading the memory of the process at address 0 fails for everyone, for root too, who may
    // open any file.
    const QString file = geteuid() == 0 ? QStringLiteral("/proc/self/mem") : path("forbidden");
    if (geteuid() != 0) {
        write(file, "x");
        QVERIFY(QFile::setPermissions(file, QFileDevice::WriteOwner));
    }
    QVector<Problem> problems;

    QVERIFY(!readInputFile(file, problems).has_value());

    QCOMPARE(problems.size(), 1);
    const QString expected = geteuid() == 0 ? QStringLiteral("cannot be read: Input/output error")
                                            : QStringLiteral("cannot be opened: Permission denied");
    QCOMPARE(problems.first().message, expected);
}

QTEST_MAIN(tst_InputFile)
#include "tst_InputFile.moc"
