#include <tools/property-panel/PictureNames.h>

#include <QFileInfo>
#include <QTest>

using Tessark::PropertyPanel::PictureNames;

class tst_PictureNames : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nameOfAPage_data();
    void nameOfAPage();
    void namesAreUnique();
    void longTitlesStayWithinTheLimitOfFileSystems();
    void cutPathsAreUnique();
};

void tst_PictureNames::nameOfAPage_data()
{
    QTest::addColumn<QString>("first");
    QTest::addColumn<QStringList>("titles");
    QTest::addColumn<QString>("name");
    const auto row = [](const char *description, const char *first, const QStringList &titles,
                        const char *name) {
        QTest::newRow(description) << QString::fromUtf8(first) << titles << QString::fromUtf8(name);
    };

    row("the title in small letters", "panel.png", {QStringLiteral("Advanced")},
        "panel-advanced.png");
    row("the titles of the way to it", "panel.png",
        {QStringLiteral("Output"), QStringLiteral("Video")}, "panel-output-video.png");
    row("the folder stays", "/tmp/a.b/panel.png", {QStringLiteral("X")}, "/tmp/a.b/panel-x.png");
    row("a folder with a point, a file without", "a.b/panel", {QStringLiteral("X")}, "a.b/panel-x");
    row("only the last suffix counts", "panel.v2.png", {QStringLiteral("X")}, "panel.v2-x.png");
    row("other characters become one dash", "p.png", {QStringLiteral("Size & / position...")},
        "p-size-position.png");
    row("no way out of the folder", "p.png", {QStringLiteral("../../etc/passwd")},
        "p-etc-passwd.png");
    row("letters of all scripts stay", "p.png", {QStringLiteral("Größe")}, "p-größe.png");
    row("no title", "p.png", {QString()}, "p-page.png");
    row("a title of signs only", "p.png", {QStringLiteral("***")}, "p-page.png");
}

void tst_PictureNames::nameOfAPage()
{
    QFETCH(QString, first);
    QFETCH(QStringList, titles);

    PictureNames names(first);

    QTEST(names.forPage(titles), "name");
}

void tst_PictureNames::namesAreUnique()
{
    PictureNames names(QStringLiteral("p.png"));

    QCOMPARE(names.forPage({QStringLiteral("Same")}), QStringLiteral("p-same.png"));
    QCOMPARE(names.forPage({QStringLiteral("same")}), QStringLiteral("p-same-2.png"));
    QCOMPARE(names.forPage({QStringLiteral("same 2")}), QStringLiteral("p-same-2-2.png"));
    QCOMPARE(names.forPage({QStringLiteral("SAME")}), QStringLiteral("p-same-3.png"));
}

void tst_PictureNames::longTitlesStayWithinTheLimitOfFileSystems()
{
    PictureNames names(QStringLiteral("panel.png"));

    const QString name = names.forPage({QString(500, QChar(0x4e2d)), QString(500, QChar(0x6587))});

    QVERIFY2(name.toUtf8().size() <= 200, qPrintable(name));
}

void tst_PictureNames::cutPathsAreUnique()
{
    PictureNames names(QStringLiteral("p.png"));
    const QString longTitle(200, QLatin1Char('x'));

    QVERIFY(names.forPage({longTitle, QStringLiteral("a")})
            != names.forPage({longTitle, QStringLiteral("b")}));
}

QTEST_APPLESS_MAIN(tst_PictureNames)
#include "tst_PictureNames.moc"
