#include <host/PropertyListReader.h>

#include <QTest>

using namespace Tessark::PropertyHost;

/// Lists are read before there is an application object, too; then there is nothing that translates.
class tst_ReadingWithoutApplication : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void mistakesAreToldInEnglish();
};

void tst_ReadingWithoutApplication::mistakesAreToldInEnglish()
{
    QVERIFY(!QCoreApplication::instance());

    const auto result = readPropertyList(R"({"version": 1, "properties": [
        {"name": "a", "type": "vec2", "max": [1, 1], "default": [1, 2, 3]},
        {"name": "b", "type": "bool", "hints": {"visible_when": "a."}}]})");

    QCOMPARE(int(result.problems.size()), 2);
    QCOMPARE(result.problems.first().toString(QStringLiteral("f")),
             QStringLiteral("f: error: /properties/0/default: expected 2 numbers, found an array "
                            "of 3"));
    QCOMPARE(result.problems.last().message, QStringLiteral("character 2: \".\" is not expected"));
}

QTEST_APPLESS_MAIN(tst_ReadingWithoutApplication)
#include "tst_ReadingWithoutApplication.moc"
