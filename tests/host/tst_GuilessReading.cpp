#include <host/PropertyListReader.h>

#include <property/TextureChoice.h>

#include <support/PictureFolder.h>

#include <QColor>
#include <QTest>

using namespace Tessark::PropertyHost;
using namespace Tessark::PropertyUI;

/// A service may check lists where there is nothing to show them on.
class tst_GuilessReading : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void picturesAreReadWithoutIcons();
};

void tst_GuilessReading::picturesAreReadWithoutIcons()
{
    const PictureFolder pictures;
    pictures.addPicture(QStringLiteral("red.png"), Qt::red);

    const auto result = readPropertyList(R"({"version": 1, "properties": [
        {"name": "i", "type": "image", "default": "red.png"},
        {"name": "t", "type": "texture", "default": "red.png"}]})",
                                         pictures.path());

    QVERIFY(result.problems.isEmpty());
    const auto properties = result.list.properties();
    QCOMPARE(properties.size(), 2);
    QCOMPARE(properties.at(0)->defaultValue.value<QImage>().size(), QSize(8, 6));
    const auto texture = properties.at(1)->defaultValue.value<TextureChoice>();
    QCOMPARE(texture.image.size(), QSize(8, 6));
    QVERIFY(texture.icon.isNull());
}

QTEST_GUILESS_MAIN(tst_GuilessReading)
#include "tst_GuilessReading.moc"
