#include <QProcess>
#include <QTest>

class tst_PanelMisuse : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void panelInItsPlaceIsFine();
    void endsWithAMessageInDebugBuilds_data();
    void endsWithAMessageInDebugBuilds();
};

namespace {

/// Runs the helper to its end, whatever that is.
void run(QProcess &process, const char *way)
{
    process.start(QStringLiteral(PANEL_MISUSE_PROGRAM), {QLatin1String(way)});
    QVERIFY(process.waitForFinished());
}

} // namespace

void tst_PanelMisuse::panelInItsPlaceIsFine()
{
    QProcess process;

    run(process, "gui-thread");

    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 0);
    QCOMPARE(process.readAllStandardError(), QByteArray());
}

void tst_PanelMisuse::endsWithAMessageInDebugBuilds_data()
{
    QTest::addColumn<QByteArray>("way");
    QTest::addColumn<QByteArray>("message");

    // Without a QApplication Qt itself ends every build, with a message of its own.
#ifdef QT_NO_DEBUG
    const QByteArray expected = "QApplication";
#else
    const QByteArray expected =
        "PropertyEditorPanel: a panel needs a QApplication; make one first.";
    QTest::newRow("in another thread")
        << QByteArray("other-thread")
        << QByteArray(
               "PropertyEditorPanel: a panel is built and used in the GUI thread only, which "
               "is that of the QApplication; this is another one.");
#endif
    QTest::newRow("without application") << QByteArray("no-application") << expected;
    QTest::newRow("with a core application") << QByteArray("core-application") << expected;
    QTest::newRow("with a GUI application") << QByteArray("gui-application") << expected;
}

void tst_PanelMisuse::endsWithAMessageInDebugBuilds()
{
    QFETCH(QByteArray, way);
    QFETCH(QByteArray, message);
    QProcess process;

    run(process, way.constData());

    const QByteArray error = process.readAllStandardError();
    QVERIFY2(process.exitStatus() == QProcess::CrashExit || process.exitCode() != 0,
             error.constData());
    QVERIFY2(error.contains(message), error.constData());
}

QTEST_GUILESS_MAIN(tst_PanelMisuse)
#include "tst_PanelMisuse.moc"
