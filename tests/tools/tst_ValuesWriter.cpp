#include <tools/property-panel/ValuesWriter.h>

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <memory>
#include <sys/resource.h>

using Tessark::PropertyPanel::ValuesWriter;

namespace {

/// While it lives, no file of this process grows beyond size, as on a disk that is full.
class FileSizeLimit
{
public:
    explicit FileSizeLimit(rlim_t size)
        : m_handler(std::signal(SIGXFSZ, SIG_IGN))
    {
        getrlimit(RLIMIT_FSIZE, &m_before);
        rlimit limit = m_before;
        limit.rlim_cur = size;
        setrlimit(RLIMIT_FSIZE, &limit);
    }

    ~FileSizeLimit()
    {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_handler);
    }

    FileSizeLimit(const FileSizeLimit &) = delete;
    FileSizeLimit &operator=(const FileSizeLimit &) = delete;

private:
    void (*m_handler)(int);
    rlimit m_before{};
};

} // namespace

class tst_ValuesWriter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void writesAnIndentedObject();
    void writesOneLine();
    void replacesAFile();
    void fileBehindALinkIsReplacedNotTheLink();
    void fullDiskLeavesTheOldFile();
    void impossiblePlaces_data();
    void impossiblePlaces();

private:
    QString path(const char *name) const { return m_folder->filePath(QLatin1String(name)); }
    QByteArray read(const char *name) const;
    void write(const char *name, const QByteArray &content) const;

    const QJsonObject m_values{{QStringLiteral("a"), 1},
                               {QStringLiteral("b"), QStringLiteral("ü")}};
    std::unique_ptr<QTemporaryDir> m_folder;
};

void tst_ValuesWriter::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
}

QByteArray tst_ValuesWriter::read(const char *name) const
{
    QFile file(path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void tst_ValuesWriter::write(const char *name, const QByteArray &content) const
{
    QFile file(path(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), content.size());
}

void tst_ValuesWriter::writesAnIndentedObject()
{
    QCOMPARE(ValuesWriter(path("out.json")).write(m_values), QString());

    QCOMPARE(read("out.json"), QByteArray("{\n    \"a\": 1,\n    \"b\": \"ü\"\n}\n"));
}

void tst_ValuesWriter::writesOneLine()
{
    const ValuesWriter writer(path("out.json"), ValuesWriter::Layout::OneLine);

    QCOMPARE(writer.write(m_values), QString());

    QCOMPARE(read("out.json"), QByteArray("{\"a\":1,\"b\":\"ü\"}\n"));
}

void tst_ValuesWriter::replacesAFile()
{
    write("out.json", QByteArray(10000, 'x'));

    QCOMPARE(ValuesWriter(path("out.json")).write(m_values), QString());

    QCOMPARE(QJsonDocument::fromJson(read("out.json")).object(), m_values);
}

void tst_ValuesWriter::fileBehindALinkIsReplacedNotTheLink()
{
    write("real.json", "before");
    QVERIFY(QFile::link(path("real.json"), path("link.json")));

    QCOMPARE(ValuesWriter(path("link.json")).write(m_values), QString());

    QVERIFY(QFileInfo(path("link.json")).isSymLink());
    QCOMPARE(QJsonDocument::fromJson(read("real.json")).object(), m_values);
}

void tst_ValuesWriter::fullDiskLeavesTheOldFile()
{
    write("out.json", "before");
    const QJsonObject large{{QStringLiteral("text"), QString(100000, QLatin1Char('x'))}};
    QString error;
    {
        const FileSizeLimit limit(1000);
        error = ValuesWriter(path("out.json")).write(large);
    }

    QVERIFY2(error.contains(path("out.json")), qPrintable(error));
    QCOMPARE(read("out.json"), QByteArray("before"));
    QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files),
             QStringList{QStringLiteral("out.json")}); // and nothing half written beside it
}

void tst_ValuesWriter::impossiblePlaces_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("a folder that does not exist") << QStringLiteral("none/out.json");
    QTest::newRow("a folder") << QStringLiteral("folder");
    QTest::newRow("a file in place of a folder") << QStringLiteral("file/out.json");
}

void tst_ValuesWriter::impossiblePlaces()
{
    QFETCH(QString, name);
    QVERIFY(QDir(m_folder->path()).mkdir(QStringLiteral("folder")));
    write("file", "before");
    const QString place = m_folder->filePath(name);

    const QString error = ValuesWriter(place).write(m_values);

    QVERIFY2(error.startsWith(QStringLiteral("Cannot write ") + place), qPrintable(error));
    QCOMPARE(read("file"), QByteArray("before"));
}

QTEST_GUILESS_MAIN(tst_ValuesWriter)
#include "tst_ValuesWriter.moc"
