#include <host/Problem.h>

#include <QTest>

Q_DECLARE_METATYPE(Tessark::PropertyHost::Problem)

using namespace Tessark::PropertyHost;

class tst_Problem : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void textNamesFileAndPlace_data();
    void textNamesFileAndPlace();
    void warningsAreNoErrors();
};

namespace {

Problem makeProblem(Problem::Severity severity, const QString &pointer, int line, int column)
{
    Problem problem;
    problem.severity = severity;
    problem.message = QStringLiteral("bad");
    problem.pointer = pointer;
    problem.line = line;
    problem.column = column;
    return problem;
}

} // namespace

void tst_Problem::textNamesFileAndPlace_data()
{
    using Severity = Problem::Severity;
    QTest::addColumn<Problem>("problem");
    QTest::addColumn<QString>("text");
    QTest::newRow("syntax has line and column")
        << makeProblem(Severity::Error, {}, 3, 17) << QStringLiteral("list.json:3:17: error: bad");
    QTest::newRow("meaning has a pointer")
        << makeProblem(Severity::Error, QStringLiteral("/properties/3/min"), 0, 0)
        << QStringLiteral("list.json: error: /properties/3/min: bad");
    QTest::newRow("the whole file has neither")
        << makeProblem(Severity::Error, {}, 0, 0) << QStringLiteral("list.json: error: bad");
    QTest::newRow("a warning says so") << makeProblem(Severity::Warning, QStringLiteral("/a"), 0, 0)
                                       << QStringLiteral("list.json: warning: /a: bad");
    QTest::newRow("control characters are spelled out")
        << makeProblem(Severity::Error, QStringLiteral("/a\n\x1b[1m"), 0, 0)
        << QStringLiteral("list.json: error: /a\\u000a\\u001b[1m: bad");
}

void tst_Problem::textNamesFileAndPlace()
{
    QFETCH(Problem, problem);
    QFETCH(QString, text);

    QCOMPARE(problem.toString(QStringLiteral("list.json")), text);
}

void tst_Problem::warningsAreNoErrors()
{
    const Problem warning = makeProblem(Problem::Severity::Warning, {}, 0, 0);
    const Problem error = makeProblem(Problem::Severity::Error, {}, 0, 0);

    QVERIFY(!hasErrors({}));
    QVERIFY(!hasErrors({warning, warning}));
    QVERIFY(hasErrors({warning, error}));
}

QTEST_MAIN(tst_Problem)
#include "tst_Problem.moc"
