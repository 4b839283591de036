#include <host/PropertyList.h>
#include <host/PropertyStore.h>
#include <property/PropertyVocabulary.h>
#include <tools/property-panel/SettingsFile.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using Tessark::PropertyHost::Problem;
using Tessark::PropertyHost::PropertyList;
using Tessark::PropertyHost::PropertyStore;
using namespace Tessark::PropertyPanel;

class tst_SettingsFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void valuesComeBack();
    void missingFileHoldsNoValues();
    void badFilesAreErrors_data();
    void badFilesAreErrors();
    void badFileIsNotReplaced();
    void otherKeysStay();
    void whatAnotherProgramWroteMeanwhileStays();
    void unwritableFileIsToldAndStays();
    void nothingElseIsLeft();
    void missingRoomForTheCopyIsTold();
    void arrangementComesBack();
    void arrangementsKeyIsNoRows_data();
    void arrangementsKeyIsNoRows();
    void whatSomebodyElseHasUnderTheKeyStays();
    void arrangementAloneIsReplaced();

private:
    QString path() const { return m_folder->filePath(QStringLiteral("program.ini")); }
    QByteArray content() const;
    void write(const QByteArray &content) const;
    QStringList read();
    QVariant value(int row) { return m_store.value(m_list.properties().at(row)); }
    void set(int row, const QVariant &value)
    {
        m_store.setValue(m_list.properties().at(row), value, PropertyStore::NewChange);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    PropertyList m_list;
    PropertyStore m_store;
};

void tst_SettingsFile::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
    m_list = PropertyList();
    m_list.string(QStringLiteral("title"), QString()).defaultValue(QStringLiteral("Untitled"));
    m_list.integer(QStringLiteral("count"), QString()).range(0, 100).defaultValue(3);
    m_store.reset(m_list);
}

QByteArray tst_SettingsFile::content() const
{
    QFile file(path());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void tst_SettingsFile::write(const QByteArray &content) const
{
    QFile file(path());
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("cannot write a test file");
}

/// Reads the file and gives the problems.
QStringList tst_SettingsFile::read()
{
    QStringList result;
    const auto problems = readSettingsFile(path(), m_store, m_list);
    for (const Problem &problem : problems)
        result.append(problem.toString(QStringLiteral("f")));
    return result;
}

void tst_SettingsFile::valuesComeBack()
{
    const QString title = QString::fromUtf8("l\xc3\xa4nger, \xe2\x82\xac = \"1\"; #");
    set(0, title);
    set(1, 7);

    QCOMPARE(writeSettingsFile(path(), m_store, m_list), QString());
    m_store.reset(m_list);

    QCOMPARE(read(), QStringList());
    QCOMPARE(value(0), QVariant(title));
    QCOMPARE(value(1), QVariant(7));
}

void tst_SettingsFile::missingFileHoldsNoValues()
{
    QCOMPARE(read(), QStringList());

    QCOMPARE(value(1), QVariant(3));
    QVERIFY(!QFile::exists(path()));
}

void tst_SettingsFile::badFilesAreErrors_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("problem");
    const QString noIni = QStringLiteral(
        "f: error: is not an INI file: each line must be a [group], name=value or a ; comment");

    QTest::newRow("words") << QByteArray("just some words\n") << noIni;
    QTest::newRow("a group that does not end") << QByteArray("[General\ncount=4\n") << noIni;
    QTest::newRow("a line in a later group")
        << QByteArray("count=4\n[Other]\nkey=1\nwords\n") << noIni;
    QTest::newRow("JSON") << QByteArray("{\n  \"count\": 4\n}\n") << noIni;
    QTest::newRow("a value of another kind")
        << QByteArray("count=many\n")
        << QStringLiteral("f: error: /count: expected a whole number, found a string");
    QTest::newRow("a value outside of the range")
        << QByteArray("count=101\n")
        << QStringLiteral("f: warning: /count: 101 is outside of the range");
}

void tst_SettingsFile::badFilesAreErrors()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, problem);
    write(text);

    QCOMPARE(read(), QStringList(problem));
    QCOMPARE(content(), text);
}

void tst_SettingsFile::badFileIsNotReplaced()
{
    write("no settings\n");

    const QString error = writeSettingsFile(path(), m_store, m_list);

    QVERIFY2(error.startsWith(QStringLiteral("Cannot write %1: is not an INI file").arg(path())),
             qPrintable(error));
    QCOMPARE(content(), QByteArray("no settings\n"));
}

void tst_SettingsFile::otherKeysStay()
{
    write("other=kept\ncount=4\n\n[Window]\nname=l\xc3\xa4nger\nwidth=300\n");

    QCOMPARE(read(), QStringList());
    set(1, 6);
    QCOMPARE(writeSettingsFile(path(), m_store, m_list), QString());

    QCOMPARE(content().trimmed(), QByteArray("[General]\ncount=6\nother=kept\ntitle=Untitled\n\n"
                                             "[Window]\nname=l\xc3\xa4nger\nwidth=300"));
}

void tst_SettingsFile::whatAnotherProgramWroteMeanwhileStays()
{
    write("count=4\n");
    QCOMPARE(read(), QStringList());
    write("count=5\nother=new\n");

    QCOMPARE(writeSettingsFile(path(), m_store, m_list), QString());

    QCOMPARE(content().trimmed(), QByteArray("[General]\ncount=4\nother=new\ntitle=Untitled"));
}

void tst_SettingsFile::unwritableFileIsToldAndStays()
{
    const QString inNoFolder = m_folder->filePath(QStringLiteral("none/program.ini"));
    const QString error = writeSettingsFile(inNoFolder, m_store, m_list);
    QCOMPARE(error, QStringLiteral("Cannot write %1: No such file or directory").arg(inNoFolder));
    QVERIFY(!QDir(m_folder->filePath(QStringLiteral("none"))).exists());

    QCOMPARE(
        writeSettingsFile(m_folder->path(), m_store, m_list),
        QStringLiteral("Cannot write %1: cannot be read: it is a directory").arg(m_folder->path()));
}

void tst_SettingsFile::nothingElseIsLeft()
{
    QTemporaryDir temporary;
    const QByteArray before = qgetenv("TMPDIR");
    qputenv("TMPDIR", QFile::encodeName(temporary.path()));

    QCOMPARE(writeSettingsFile(path(), m_store, m_list), QString());
    QCOMPARE(read(), QStringList());

    before.isEmpty() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", before);
    constexpr auto kAll = QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot;
    QCOMPARE(QDir(m_folder->path()).entryList(kAll), QStringList(QStringLiteral("program.ini")));
    QCOMPARE(QDir(temporary.path()).entryList(kAll), QStringList());
}

/// The working copy is written first.
void tst_SettingsFile::missingRoomForTheCopyIsTold()
{
    write("count=4\n");
    const QByteArray before = qgetenv("TMPDIR");
    qputenv("TMPDIR", "/dev/null");

    const QString error = writeSettingsFile(path(), m_store, m_list);
    const QStringList problems = read();

    before.isEmpty() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", before);
    QVERIFY2(error.startsWith(QStringLiteral("Cannot write %1: ").arg(path())), qPrintable(error));
    QCOMPARE(problems.size(), 1);
    QCOMPARE(content(), QByteArray("count=4\n"));
}

void tst_SettingsFile::arrangementComesBack()
{
    QCOMPARE(readArrangement(path(), m_list), QByteArray());
    QCOMPARE(readArrangement(QString(), m_list), QByteArray());
    const QByteArray arrangement = R"({"groups":{"l\u00e4nger; \"1\", 2":[false]},"version":1})";

    QCOMPARE(writeSettingsFile(path(), m_store, m_list, arrangement), QString());

    QCOMPARE(readArrangement(path(), m_list), arrangement);
    QCOMPARE(read(), QStringList());
    QCOMPARE(value(1), QVariant(3));
    // Who does not know the arrangement keeps it.
    QCOMPARE(writeSettingsFile(path(), m_store, m_list), QString());
    QCOMPARE(readArrangement(path(), m_list), arrangement);
}

void tst_SettingsFile::arrangementsKeyIsNoRows_data()
{
    QTest::addColumn<QStringList>("keys");

    QTest::newRow("of a row") << QStringList{QStringLiteral("property-panel/arrangement")};
    QTest::newRow("of two rows") << QStringList{QStringLiteral("property-panel/arrangement2"),
                                                QStringLiteral("property-panel/arrangement")};
    QTest::newRow("written in other ways")
        << QStringList{QStringLiteral("/property-panel//arrangement/"),
                       QStringLiteral("Property-Panel/Arrangement2")};
}

void tst_SettingsFile::arrangementsKeyIsNoRows()
{
    QFETCH(QStringList, keys);
    const QByteArray value = R"({"version":1})";
    for (const QString &key : std::as_const(keys)) {
        m_list.string(key.toLower(), QString())
            .hint(Tessark::PropertyUI::kPropertyHintPreferencesKey, key)
            .defaultValue(QString::fromUtf8(value)); // as if it were an arrangement
    }
    m_store.reset(m_list);

    const QByteArray arrangement = R"({"tabs":{},"version":1})";
    QCOMPARE(writeSettingsFile(path(), m_store, m_list, arrangement), QString());

    QCOMPARE(readArrangement(path(), m_list), arrangement);
    QCOMPARE(read(), QStringList());
    for (int row = 2; row < m_list.properties().size(); ++row)
        QCOMPARE(this->value(row), QVariant(QString::fromUtf8(value)));
}

void tst_SettingsFile::whatSomebodyElseHasUnderTheKeyStays()
{
    write("[property-panel]\narrangement=flowers\n");
    const QByteArray arrangement = R"({"version":1})";

    QCOMPARE(readArrangement(path(), m_list), QByteArray());
    QCOMPARE(writeSettingsFile(path(), m_store, m_list, arrangement), QString());

    QCOMPARE(readArrangement(path(), m_list), arrangement);
    QVERIFY2(content().contains("arrangement=flowers\n"), content().constData());
}

void tst_SettingsFile::arrangementAloneIsReplaced()
{
    const QByteArray before = R"({"version":1})";
    const QByteArray after = R"({"tabs":{},"version":1})";
    QCOMPARE(replaceArrangement(path(), m_list, after), QString());
    QVERIFY(!QFile::exists(path()));
    write("; a comment\ncount=4\n");
    QCOMPARE(replaceArrangement(path(), m_list, after), QString());
    QCOMPARE(content(), QByteArray("; a comment\ncount=4\n"));

    QCOMPARE(writeSettingsFile(path(), m_store, m_list, before), QString());
    set(1, 5); // which is not saved
    QCOMPARE(replaceArrangement(path(), m_list, after), QString());

    QCOMPARE(readArrangement(path(), m_list), after);
    QCOMPARE(read(), QStringList());
    QCOMPARE(value(1), QVariant(3));
}

QTEST_GUILESS_MAIN(tst_SettingsFile)
#include "tst_SettingsFile.moc"
