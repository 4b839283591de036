#include <host/PanelLook.h>
#include <host/PropertyList.h>
#include <host/PropertyStore.h>
#include <property/PropertyVocabulary.h>
#include <tools/property-panel/PanelRenderer.h>

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using namespace Tessark::PropertyPanel;
using namespace Tessark::PropertyUI;
using Tessark::PropertyHost::PropertyList;
using Tessark::PropertyHost::PropertyStore;

class tst_PanelRenderer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();

    void panelWithoutTabsIsOnePicture();
    void everyTabPageGetsAPicture();
    void innerPagesAreNamedByTheirPath();
    void groupsSideBySideShareNoPicture();
    void pagesOfOneNameGetFilesOfTheirOwn();
    void pageThatIsTurnedToIsTurnedBack();
    void pictureHoldsTheWholePanel();
    void sizeIsTheLeast_data();
    void sizeIsTheLeast();
    void foldersAreNotMade();
    void failureStopsAfterThePicturesWritten();
    void emptyListIsDrawn();
    void rulesHold();

private:
    void add(const QString &type, const char *name);
    RenderedPictures render(const char *file = "panel.png", const QSize &size = QSize())
    {
        m_store.reset(m_list);
        return renderPanel(m_list, m_store, path(file), size);
    }
    QString path(const char *file) const { return m_folder->filePath(QLatin1String(file)); }
    QStringList names(const RenderedPictures &pictures) const;

    std::unique_ptr<QTemporaryDir> m_folder;
    PropertyList m_list;
    PropertyStore m_store;
};

namespace {

int countColors(const QImage &image)
{
    QSet<QRgb> colors;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            colors.insert(image.pixel(x, y));
    }
    return int(colors.size());
}

} // namespace

void tst_PanelRenderer::initTestCase()
{
    Tessark::PropertyHost::applyPanelLook(Tessark::PropertyHost::PanelLook::Light);
}

void tst_PanelRenderer::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_list = PropertyList();
}

void tst_PanelRenderer::add(const QString &type, const char *name)
{
    const QString text = QString::fromUtf8(name);
    m_list.append({text, text, type}).setDefaultValue(text);
}

QStringList tst_PanelRenderer::names(const RenderedPictures &pictures) const
{
    QStringList result;
    for (const QString &file : pictures.files)
        result.append(QFileInfo(file).fileName());
    return result;
}

void tst_PanelRenderer::panelWithoutTabsIsOnePicture()
{
    add(kPropertyTypeString, "title");

    const RenderedPictures pictures = render();

    QCOMPARE(pictures.error, QString());
    QCOMPARE(pictures.files, QStringList{path("panel.png")});
    const QImage image(path("panel.png"));
    QVERIFY(countColors(image) > 10);
    // Nothing is drawn over the edges.
    const QRgb window = QApplication::palette().color(QPalette::Window).rgb();
    for (int x = 0; x < image.width(); ++x) {
        QCOMPARE(image.pixel(x, 0), window);
        QCOMPARE(image.pixel(x, image.height() - 1), window);
    }
}

void tst_PanelRenderer::everyTabPageGetsAPicture()
{
    add(kPropertyTypeBeginTabGroup, "");
    for (const char *name : {"General", "Advanced", "More"}) {
        add(kPropertyTypeTab, name);
        add(kPropertyTypeString, name);
    }
    add(kPropertyTypeEndTabGroup, "");

    const RenderedPictures pictures = render();

    QCOMPARE(names(pictures),
             (QStringList{QStringLiteral("panel.png"), QStringLiteral("panel-advanced.png"),
                          QStringLiteral("panel-more.png")}));
    QVERIFY(QImage(path("panel.png")) != QImage(path("panel-advanced.png")));
    QVERIFY(QImage(path("panel-more.png")) != QImage(path("panel-advanced.png")));
    QCOMPARE(QImage(path("panel-more.png")).size(), QImage(path("panel.png")).size());
}

void tst_PanelRenderer::innerPagesAreNamedByTheirPath()
{
    add(kPropertyTypeBeginTabGroup, "");
    for (const char *outer : {"A", "B"}) {
        add(kPropertyTypeTab, outer);
        add(kPropertyTypeBeginTabGroup, "");
        for (const char *inner : {"X", "Y"}) {
            add(kPropertyTypeTab, inner);
            m_list.append({QString(), QString(), kPropertyTypeStaticText})
                .setDefaultValue(QString::fromLatin1(outer) + QString::fromLatin1(inner));
        }
        add(kPropertyTypeEndTabGroup, "");
    }
    add(kPropertyTypeEndTabGroup, "");

    const RenderedPictures pictures = render();

    QCOMPARE(names(pictures),
             (QStringList{QStringLiteral("panel.png"), QStringLiteral("panel-b.png"),
                          QStringLiteral("panel-a-y.png"), QStringLiteral("panel-b-y.png")}));
    QSet<QByteArray> different;
    for (const QString &file : pictures.files) {
        const QImage image = QImage(file).convertToFormat(QImage::Format_RGB32);
        different.insert(QByteArray(reinterpret_cast<const char *>(image.constBits()),
                                    int(image.sizeInBytes())));
    }
    QCOMPARE(different.size(), 4);
}

void tst_PanelRenderer::groupsSideBySideShareNoPicture()
{
    for (const char *prefix : {"p", "q"}) {
        add(kPropertyTypeBeginTabGroup, "");
        add(kPropertyTypeTab, QByteArray(prefix).append('1').constData());
        add(kPropertyTypeTab, QByteArray(prefix).append('2').constData());
        add(kPropertyTypeEndTabGroup, "");
    }

    QCOMPARE(names(render()),
             (QStringList{QStringLiteral("panel.png"), QStringLiteral("panel-p2.png"),
                          QStringLiteral("panel-q2.png")}));
}

void tst_PanelRenderer::pagesOfOneNameGetFilesOfTheirOwn()
{
    add(kPropertyTypeBeginTabGroup, "");
    for (const char *name : {"first", "Same", "same!", ""})
        add(kPropertyTypeTab, name);
    add(kPropertyTypeEndTabGroup, "");

    QCOMPARE(names(render()),
             (QStringList{QStringLiteral("panel.png"), QStringLiteral("panel-same.png"),
                          QStringLiteral("panel-same-2.png"), QStringLiteral("panel-page.png")}));
}

void tst_PanelRenderer::pageThatIsTurnedToIsTurnedBack()
{
    // The second group's further page is drawn with the first group as it opens.
    for (const char *text : {"one", "two"}) {
        add(kPropertyTypeBeginTabGroup, "");
        add(kPropertyTypeTab, "same");
        add(kPropertyTypeStaticText, text);
        add(kPropertyTypeTab, text);
        add(kPropertyTypeEndTabGroup, "");
    }
    render();
    const QImage opened(path("panel.png"));
    const QImage second(path("panel-two.png"));
    const QRect upperHalf(0, 0, opened.width(), opened.height() / 2 - 20);

    QCOMPARE(second.copy(upperHalf), opened.copy(upperHalf));
    QVERIFY(second != opened);
}

void tst_PanelRenderer::pictureHoldsTheWholePanel()
{
    for (int i = 0; i < 100; ++i)
        add(kPropertyTypeString, QByteArray("row ").append(QByteArray::number(i)).constData());
    m_list.append({QStringLiteral("wide"), QString(), kPropertyTypeAction})
        .setHint(kPropertyHintFullWidth, true)
        .setHint(kPropertyHintSize, QSize(900, 30));

    render();

    const QSize size = QImage(path("panel.png")).size();
    QVERIFY(size.width() > 900);
    QVERIFY(size.height() > 100 * 20);
}

void tst_PanelRenderer::sizeIsTheLeast_data()
{
    QTest::addColumn<QSize>("wanted");
    QTest::addColumn<bool>("exact");

    QTest::newRow("a large size is taken as it is") << QSize(700, 500) << true;
    QTest::newRow("a small one grows to hold the panel") << QSize(10, 10) << false;
}

void tst_PanelRenderer::sizeIsTheLeast()
{
    QFETCH(QSize, wanted);
    QFETCH(bool, exact);
    add(kPropertyTypeString, "title");

    render("panel.png", wanted);

    const QSize size = QImage(path("panel.png")).size();
    QCOMPARE(size == wanted, exact);
    QCOMPARE(size.expandedTo(wanted), size);
    QVERIFY(size.width() > 100);
}

void tst_PanelRenderer::foldersAreNotMade()
{
    add(kPropertyTypeString, "title");

    const RenderedPictures pictures = render("none/panel.png");

    QVERIFY(pictures.files.isEmpty());
    QVERIFY2(pictures.error.contains(path("none/panel.png")), qPrintable(pictures.error));
    QVERIFY(!QFileInfo::exists(path("none")));
}

void tst_PanelRenderer::failureStopsAfterThePicturesWritten()
{
    add(kPropertyTypeBeginTabGroup, "");
    for (const char *name : {"a", "b", "c", "d"})
        add(kPropertyTypeTab, name);
    add(kPropertyTypeEndTabGroup, "");
    QVERIFY(QDir(m_folder->path()).mkdir(QStringLiteral("panel-c.png")));

    const RenderedPictures pictures = render();

    QCOMPARE(names(pictures),
             (QStringList{QStringLiteral("panel.png"), QStringLiteral("panel-b.png")}));
    QVERIFY2(pictures.error.contains(path("panel-c.png")), qPrintable(pictures.error));
    QVERIFY(!QFileInfo::exists(path("panel-d.png")));
}

void tst_PanelRenderer::emptyListIsDrawn()
{
    const RenderedPictures pictures = render();

    QCOMPARE(pictures.error, QString());
    QVERIFY(!QImage(path("panel.png")).isNull());
}

void tst_PanelRenderer::rulesHold()
{
    m_list.boolean(QStringLiteral("on"), QString());
    m_list.tabs([this] {
        m_list.tab(QStringLiteral("A"), [] {});
        m_list.tab(QStringLiteral("B"), [] {}).visibleWhen(QStringLiteral("on"));
        m_list.tab(QStringLiteral("C"), [] {}).visibleWhen(QStringLiteral("not on"));
    });

    QCOMPARE(names(render()),
             (QStringList{QStringLiteral("panel.png"), QStringLiteral("panel-c.png")}));
}

QTEST_MAIN(tst_PanelRenderer)
#include "tst_PanelRenderer.moc"
