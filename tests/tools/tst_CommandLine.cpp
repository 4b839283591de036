#include <tools/property-panel/CommandLine.h>

#include <QTest>

using namespace Tessark::PropertyPanel;
using Tessark::PropertyHost::CommitMode;
using Tessark::PropertyHost::PanelLook;
using Task = Options::Task;

Q_DECLARE_METATYPE(Task)
Q_DECLARE_METATYPE(PanelLook)

class tst_CommandLine : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nothingShowsTheBuiltInList();
    void pathsAndFlags();
    void task_data();
    void task();
    void size_data();
    void size();
    void badSize_data();
    void badSize();
    void theme_data();
    void theme();
    void commitMode_data();
    void commitMode();
    void badCommitMode_data();
    void badCommitMode();
    void settings();
    void contradictions_data();
    void contradictions();
    void helpWinsOverMistakesThatCanBeRead();
    void listAfterTwoDashesMayBeginWithADash();

private:
    static CommandLine parse(const QStringList &arguments)
    {
        return parseCommandLine(QStringList{QStringLiteral("property-panel")} + arguments);
    }
};

void tst_CommandLine::nothingShowsTheBuiltInList()
{
    const CommandLine result = parse({});

    QCOMPARE(result.error, QString());
    QCOMPARE(result.options.task, Task::Edit);
    QVERIFY(result.options.listPath.isEmpty());
    QVERIFY(result.options.valuesPath.isEmpty());
    QVERIFY(result.options.outputPath.isEmpty());
    QVERIFY(result.options.settingsPath.isEmpty());
    QVERIFY(!result.options.live);
    QVERIFY(result.options.commitMode.isLive());
    QVERIFY(!result.options.size.isValid());
    QCOMPARE(result.options.theme, PanelLook::System);
}

void tst_CommandLine::pathsAndFlags()
{
    const CommandLine result =
        parse({QStringLiteral("--live"), QStringLiteral("--values=v.json"),
               QStringLiteral("list.json"), QStringLiteral("--output"), QStringLiteral("o.json")});

    QCOMPARE(result.error, QString());
    QCOMPARE(result.options.listPath, QStringLiteral("list.json"));
    QCOMPARE(result.options.valuesPath, QStringLiteral("v.json"));
    QCOMPARE(result.options.outputPath, QStringLiteral("o.json"));
    QVERIFY(result.options.live);
}

void tst_CommandLine::task_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<Task>("task");

    QTest::newRow("a list") << QStringList{QStringLiteral("list.json")} << Task::Edit;
    QTest::newRow("--check") << QStringList{QStringLiteral("--check")} << Task::Check;
    QTest::newRow("--render") << QStringList{QStringLiteral("--render"), QStringLiteral("a.png")}
                              << Task::Render;
    QTest::newRow("--help") << QStringList{QStringLiteral("--help")} << Task::Help;
    QTest::newRow("--version") << QStringList{QStringLiteral("--version")} << Task::Version;
}

void tst_CommandLine::task()
{
    QFETCH(QStringList, arguments);

    const CommandLine result = parse(arguments);

    QCOMPARE(result.error, QString());
    QTEST(result.options.task, "task");
}

void tst_CommandLine::size_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QSize>("size");

    QTest::newRow("usual") << QStringLiteral("640x480") << QSize(640, 480);
    QTest::newRow("smallest") << QStringLiteral("1x1") << QSize(1, 1);
    QTest::newRow("largest") << QStringLiteral("10000x10000") << QSize(10000, 10000);
}

void tst_CommandLine::size()
{
    QFETCH(QString, text);

    const CommandLine result = parse({QStringLiteral("--size"), text});

    QCOMPARE(result.error, QString());
    QTEST(result.options.size, "size");
}

void tst_CommandLine::badSize_data()
{
    QTest::addColumn<QString>("text");

    for (const char *text :
         {"", "640", "640x", "x480", "640X480", "640 x 480", "640x480x2", "0x1", "1x0", "10001x1",
          "1x10001", "-1x1", "1.5x2", "640x480\n", "99999999999999999999x1"})
        QTest::newRow(text) << QString::fromLatin1(text);
}

void tst_CommandLine::badSize()
{
    QFETCH(QString, text);

    const CommandLine result = parse({QStringLiteral("--size=") + text});

    QVERIFY2(result.error.contains(text), qPrintable(result.error));
    QVERIFY(!result.error.isEmpty());
}

void tst_CommandLine::theme_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<PanelLook>("theme");

    QTest::newRow("system") << QStringLiteral("system") << PanelLook::System;
    QTest::newRow("light") << QStringLiteral("light") << PanelLook::Light;
    QTest::newRow("dark") << QStringLiteral("dark") << PanelLook::Dark;
    QTest::newRow("high contrast") << QStringLiteral("high-contrast") << PanelLook::HighContrast;
}

void tst_CommandLine::theme()
{
    QFETCH(QString, text);

    const CommandLine result = parse({QStringLiteral("--theme"), text});

    QCOMPARE(result.error, QString());
    QTEST(result.options.theme, "theme");
}

void tst_CommandLine::commitMode_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("interval");
    QTest::addColumn<bool>("isAtEnd");

    QTest::newRow("live") << QStringLiteral("live") << 0 << false;
    QTest::newRow("at a rate") << QStringLiteral("rate:20") << 50 << false;
    QTest::newRow("at the end") << QStringLiteral("end") << 0 << true;
}

void tst_CommandLine::commitMode()
{
    QFETCH(QString, text);

    const CommandLine result = parse({QStringLiteral("--live"), QStringLiteral("--commit"), text});

    QCOMPARE(result.error, QString());
    QTEST(result.options.commitMode.interval(), "interval");
    QTEST(result.options.commitMode.isAtEndOfRun(), "isAtEnd");
}

void tst_CommandLine::badCommitMode_data()
{
    QTest::addColumn<QString>("text");

    for (const char *text : {"", "Live", "rate", "rate:", "rate:0", "rate:1001", "rate:x", "ends"})
        QTest::newRow(text) << QString::fromLatin1(text);
}

void tst_CommandLine::badCommitMode()
{
    QFETCH(QString, text);

    const CommandLine result =
        parse({QStringLiteral("--live"), QStringLiteral("--commit=") + text});

    QCOMPARE(
        result.error,
        QStringLiteral("\"%1\" is no time for --commit; choose live, end, or rate:N with N from "
                       "1 to 1000.")
            .arg(text));
}

void tst_CommandLine::settings()
{
    const CommandLine result = parse({QStringLiteral("--settings"), QStringLiteral("program.ini"),
                                      QStringLiteral("--output"), QStringLiteral("o.json")});

    QCOMPARE(result.error, QString());
    QCOMPARE(result.options.settingsPath, QStringLiteral("program.ini"));
}

void tst_CommandLine::contradictions_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("error");

    QTest::newRow("--commit without --live")
        << QStringList{QStringLiteral("--commit"), QStringLiteral("end")}
        << QStringLiteral("--commit is of use only with --live.");
    QTest::newRow("settings without name")
        << QStringList{QStringLiteral("--settings=")}
        << QStringLiteral("--settings needs the name of a file.");
    QTest::newRow("one file for two forms")
        << QStringList{QStringLiteral("--settings=f"), QStringLiteral("--output=f")}
        << QStringLiteral("--settings and --output cannot name the same file.");
}

void tst_CommandLine::contradictions()
{
    QFETCH(QStringList, arguments);

    QTEST(parse(arguments).error, "error");
}

void tst_CommandLine::helpWinsOverMistakesThatCanBeRead()
{
    const CommandLine result =
        parse({QStringLiteral("--size"), QStringLiteral("3"), QStringLiteral("--help")});

    QCOMPARE(result.error, QString());
    QCOMPARE(result.options.task, Task::Help);
}

void tst_CommandLine::listAfterTwoDashesMayBeginWithADash()
{
    const CommandLine result = parse({QStringLiteral("--"), QStringLiteral("--odd.json")});

    QCOMPARE(result.error, QString());
    QCOMPARE(result.options.listPath, QStringLiteral("--odd.json"));
}

QTEST_GUILESS_MAIN(tst_CommandLine)
#include "tst_CommandLine.moc"
