#include <QProcess>
#include <QRegularExpression>
#include <QTest>

class tst_PanelTexts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void noTextIsCutOff_data();
    void noTextIsCutOff();
    void textsThatAreCutOffAreFound();
};

namespace {

QByteArray outputOf(const QStringList &arguments, const QString &scale = QStringLiteral("1"))
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_SCALE_FACTOR"), scale);
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(PANEL_TEXTS_PROGRAM), arguments);
    if (!process.waitForFinished(60000) || process.exitCode() != 0)
        return "failed: " + process.readAllStandardError() + process.readAllStandardOutput();
    return process.readAllStandardOutput();
}

} // namespace

void tst_PanelTexts::noTextIsCutOff_data()
{
    QTest::addColumn<QString>("look");
    QTest::addColumn<QString>("scale");
    QTest::addColumn<bool>("rightToLeft");

    for (const char *look : {"system", "light", "dark", "high-contrast"}) {
        for (const char *scale : {"1", "1.5", "2"}) {
            for (const bool rightToLeft : {false, true})
                QTest::addRow("%s at %s, %s", look, scale, rightToLeft ? "mirrored" : "as usual")
                    << QString::fromLatin1(look) << QString::fromLatin1(scale) << rightToLeft;
        }
    }
}

void tst_PanelTexts::noTextIsCutOff()
{
    QFETCH(QString, look);
    QFETCH(QString, scale);
    QFETCH(bool, rightToLeft);
    QStringList arguments = {look};
    if (rightToLeft)
        arguments.append(QStringLiteral("-reverse"));

    const QByteArray output = outputOf(arguments, scale);

    QVERIFY2(!output.contains("clipped"), output.constData());
    const QRegularExpression summary(
        QStringLiteral("^(\\d+) texts at %1 from %2\n$")
            .arg(QRegularExpression::escape(scale),
                 rightToLeft ? QStringLiteral("right to left") : QStringLiteral("left to right")));
    const QRegularExpressionMatch match = summary.match(QString::fromUtf8(output));
    QVERIFY2(match.hasMatch(), output.constData());
    QVERIFY(match.captured(1).toInt() > 100);
}

void tst_PanelTexts::textsThatAreCutOffAreFound()
{
    const QByteArray output = outputOf({QStringLiteral("light"), QStringLiteral("squeezed")});

    QVERIFY2(output.contains("clipped: QPushButton \"Render the Preview\""), output.constData());
}

QTEST_GUILESS_MAIN(tst_PanelTexts)
#include "tst_PanelTexts.moc"
