#include <core/DropAcceptingListWidget.h>

#include "support/CountingMimeData.h"
#include "support/FileDrag.h"

#include <QElapsedTimer>
#include <QPointer>
#include <QScreen>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QUrl>
#include <QVBoxLayout>

#include <algorithm>
#include <functional>
#include <memory>

using Tessark::UI::DropAcceptingListWidget;

using ListAction = std::function<void(DropAcceptingListWidget *)>;
Q_DECLARE_METATYPE(ListAction)

namespace {

const QPoint kOverItem(20, 8);
const QPoint kOverNothing(20, 190);

QString name(int number)
{
    return QStringLiteral("item %1").arg(number);
}

QList<QUrl> urlsOf(const QStringList &texts)
{
    QList<QUrl> urls;
    for (const QString &text : texts)
        urls.append(QUrl(text));
    return urls;
}

/// What another list drags when its first item is dragged.
std::unique_ptr<QMimeData> itemOfAnotherList()
{
    QListWidget other;
    other.addItem(QStringLiteral("other"));
    return std::unique_ptr<QMimeData>(other.model()->mimeData({other.model()->index(0, 0)}));
}

/// A widget that takes every drag.
class GreedyParent : public QWidget
{
public:
    GreedyParent() { setAcceptDrops(true); }

    int entered = 0;

protected:
    void dragEnterEvent(QDragEnterEvent *event) override
    {
        ++entered;
        event->accept();
    }
};

} // namespace

class tst_DropAcceptingListWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void flagIsOffAtFirst();
    void flagIsAProperty();
    void modeIsKept_data();
    void modeIsKept();
    void viewportAcceptsDropsForEither();
    void newViewportIsToldToo();

    void takesLocalPaths_data();
    void takesLocalPaths();
    void refusesOtherUrls_data();
    void refusesOtherUrls();
    void answersWithCopyOrLink_data();
    void answersWithCopyOrLink();
    void dropWithoutTheFilesIsRefused();
    void dropChangesNothingElse();
    void manyFilesComeInOneEmission();
    void blockedSignalsAreSilent();

    void flagOffRefuses();
    void switchedOffDuringTheDrag();
    void switchedOnAgainDuringTheDrag();
    void switchedOnAfterARefusal();
    void refusedDragReachesTheParent();
    void disabledRefuses();
    void disabledDuringTheDrag();

    void itemsOfAnotherListFollowTheMode_data();
    void itemsOfAnotherListFollowTheMode();
    void indicatorOfAForeignItemFollowsTheMode();

    void entersLookUpUrlsOnceAndMovesNever();
    void enterStopsAtTheFirstUsableUrl();

    void frameHasTwoPixels_data();
    void frameHasTwoPixels();
    void frameHasTheActiveColour();
    void frameStaysWhenTheListScrolls();
    void frameGoesAway_data();
    void frameGoesAway();
    void frameShowsWhatADropWouldDo();
    void styleSheetSeesActiveDrops();

    void frameIsGoneWhenTheSlotRuns();
    void slotMayDelete_data();
    void slotMayDelete();
    void slotMayClearTheList();

private:
    QWidget *viewport() const { return m_list->viewport(); }
    Qt::DropAction enter(const DragOffer &offer, const QPoint &position = kOverItem);
    Qt::DropAction move(const DragOffer &offer, const QPoint &position = kOverItem);
    Qt::DropAction drop(const DragOffer &offer, const QPoint &position = kOverItem);
    bool isDropActive() const { return m_list->property("dropActive").toBool(); }
    QImage picture(double ratio = 1) const;
    bool hasFrame() const;

    QPointer<DropAcceptingListWidget> m_list; // of three items, shown
    std::unique_ptr<QMimeData> m_files;       // two of them
};

void tst_DropAcceptingListWidget::init()
{
    m_list = new DropAcceptingListWidget;
    for (int i = 0; i < 3; ++i)
        m_list->addItem(name(i));
    m_list->resize(200, 200);
    m_list->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_list));
    m_files = std::make_unique<QMimeData>();
    m_files->setUrls(urlsOf({QStringLiteral("file:///a"), QStringLiteral("file:///b")}));
}

void tst_DropAcceptingListWidget::cleanup()
{
    delete m_list;
}

Qt::DropAction tst_DropAcceptingListWidget::enter(const DragOffer &offer, const QPoint &position)
{
    return sendDragEvent<QDragEnterEvent>(viewport(), position, offer);
}

Qt::DropAction tst_DropAcceptingListWidget::move(const DragOffer &offer, const QPoint &position)
{
    return sendDragEvent<QDragMoveEvent>(viewport(), position, offer);
}

Qt::DropAction tst_DropAcceptingListWidget::drop(const DragOffer &offer, const QPoint &position)
{
    return sendDragEvent<QDropEvent>(viewport(), position, offer);
}

QImage tst_DropAcceptingListWidget::picture(double ratio) const
{
    QImage image(viewport()->size() * ratio, QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio);
    viewport()->render(&image);
    return image;
}

bool tst_DropAcceptingListWidget::hasFrame() const
{
    const QColor color = m_list->palette().color(QPalette::Active, QPalette::Highlight);
    return picture().pixelColor(0, viewport()->height() / 2) == color;
}

void tst_DropAcceptingListWidget::flagIsOffAtFirst()
{
    QVERIFY(!m_list->acceptUrlsDrops());
    QVERIFY(!viewport()->acceptDrops());
    QVERIFY(!m_list->property("dropActive").isValid());
    QCOMPARE(m_list->dragDropMode(), QAbstractItemView::NoDragDrop);
}

void tst_DropAcceptingListWidget::flagIsAProperty()
{
    QVERIFY(m_list->setProperty("acceptUrlsDrops", true));
    QVERIFY(m_list->acceptUrlsDrops());

    m_list->setAcceptUrlsDrops(false);
    QCOMPARE(m_list->property("acceptUrlsDrops"), QVariant(false));
}

void tst_DropAcceptingListWidget::modeIsKept_data()
{
    QTest::addColumn<QAbstractItemView::DragDropMode>("mode");

    QTest::newRow("no drags, no drops") << QAbstractItemView::NoDragDrop;
    QTest::newRow("drags") << QAbstractItemView::DragOnly;
    QTest::newRow("drops") << QAbstractItemView::DropOnly;
    QTest::newRow("both") << QAbstractItemView::DragDrop;
    QTest::newRow("internal moves") << QAbstractItemView::InternalMove;
}

void tst_DropAcceptingListWidget::modeIsKept()
{
    QFETCH(const QAbstractItemView::DragDropMode, mode);
    QListWidget plain;
    plain.setDragDropMode(mode);

    m_list->setDragDropMode(mode);
    for (const bool accept : {true, false, true}) {
        m_list->setAcceptUrlsDrops(accept);
        QCOMPARE(m_list->dragDropMode(), mode);
        QCOMPARE(m_list->acceptDrops(), plain.acceptDrops());
        QCOMPARE(viewport()->acceptDrops(), accept || plain.acceptDrops());
    }

    m_list->setDragDropMode(QAbstractItemView::NoDragDrop);
    m_list->setDragDropMode(mode);
    QCOMPARE(m_list->dragDropMode(), mode);
    QVERIFY(viewport()->acceptDrops());
}

void tst_DropAcceptingListWidget::viewportAcceptsDropsForEither()
{
    m_list->setAcceptUrlsDrops(true);
    m_list->setAcceptDrops(true);
    m_list->setAcceptDrops(false);
    QVERIFY(viewport()->acceptDrops());
    QVERIFY(!m_list->acceptDrops());

    m_list->setAcceptDrops(true);
    m_list->setAcceptUrlsDrops(false);
    QVERIFY(viewport()->acceptDrops());

    m_list->setAcceptDrops(false);
    QVERIFY(!viewport()->acceptDrops());
}

void tst_DropAcceptingListWidget::newViewportIsToldToo()
{
    m_list->setAcceptUrlsDrops(true);
    QSignalSpy spy(m_list, &DropAcceptingListWidget::droppedUrls);

    m_list->setViewport(new QWidget);

    QVERIFY(viewport()->acceptDrops());
    enter({*m_files});
    drop({*m_files});
    QCOMPARE(spy.count(), 1);
}

void tst_DropAcceptingListWidget::takesLocalPaths_data()
{
    QTest::addColumn<QStringList>("urls");
    QTest::addColumn<QStringList>("paths");

    const auto row = [](const char *title, const QStringList &urls, const QStringList &paths) {
        QTest::newRow(title) << urls << paths;
    };
    const QString a = QStringLiteral("file:///a");
    const QString b = QStringLiteral("file:///b");
    const QString remote = QStringLiteral("https://example.com/c.png");
    row("one", {a}, {QStringLiteral("/a")});
    row("in their order", {b, a}, {QStringLiteral("/b"), QStringLiteral("/a")});
    row("duplicates", {a, b, a},
        {QStringLiteral("/a"), QStringLiteral("/b"), QStringLiteral("/a")});
    row("remote ones left out", {remote, a, remote, b},
        {QStringLiteral("/a"), QStringLiteral("/b")});
    row("without path left out", {QStringLiteral("file:"), a}, {QStringLiteral("/a")});
    row("empty one left out", {QString(), a}, {QStringLiteral("/a")});
    row("share", {QStringLiteral("file://host/x")}, {QStringLiteral("//host/x")});
    row("spaces, umlauts and percent signs",
        {QStringLiteral("file:///100%25%20gr%C3%BC%C3%9Fe.png")},
        {QString::fromUtf8("/100% gr\xc3\xbc\xc3\x9f"
                           "e.png")});
    row("folder", {QStringLiteral("file:///tmp/")}, {QStringLiteral("/tmp/")});
    row("missing file", {QStringLiteral("file:///no/such/file")},
        {QStringLiteral("/no/such/file")});
}

void tst_DropAcceptingListWidget::takesLocalPaths()
{
    QFETCH(const QStringList, urls);
    QFETCH(const QStringList, paths);
    m_list->setAcceptUrlsDrops(true);
    QMimeData mime;
    mime.setUrls(urlsOf(urls));
    QSignalSpy spy(m_list, &DropAcceptingListWidget::droppedUrls);

    for (const QPoint &position : {kOverItem, kOverNothing}) {
        QCOMPARE(enter({mime}, position), Qt::CopyAction);
        for (const QPoint &next : {kOverItem, kOverNothing, position})
            QCOMPARE(move({mime}, next), Qt::CopyAction);
        QVERIFY(spy.isEmpty());

        QCOMPARE(drop({mime}, position), Qt::CopyAction);

        QCOMPARE(spy.count(), 1);
        QCOMPARE(spy.takeFirst().constFirst().toStringList(), paths);
    }
}

void tst_DropAcceptingListWidget::refusesOtherUrls_data()
{
    QTest::addColumn<QStringList>("urls");

    QTest::newRow("none") << QStringList();
    QTest::newRow("remote") << QStringList{QStringLiteral("https://example.com/c.png")};
    QTest::newRow("without path") << QStringList{QStringLiteral("file:")};
    QTest::newRow("empty") << QStringList{QString()};
}

void tst_DropAcceptingListWidget::refusesOtherUrls()
{
    QFETCH(const QStringList, urls);
    m_list->setAcceptUrlsDrops(true);
    QMimeData mime;
    mime.setText(QStringLiteral("/a"));
    mime.setUrls(urlsOf(urls));
    QSignalSpy spy(m_list, &DropAcceptingListWidget::droppedUrls);

    QCOMPARE(enter({mime}), Qt::IgnoreAction);
    QCOMPARE(move({mime}), Qt::IgnoreAction);
    QVERIFY(!isDropActive());
    QCOMPARE(drop({mime}), Qt::IgnoreAction);

    QVERIFY(spy.isEmpty());
}

void tst_DropAcceptingListWidget::answersWithCopyOrLink_data()
{
    QTest::addColumn<Qt::DropActions>("offered");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers"); // make Qt propose an action
    QTest::addColumn<Qt::DropAction>("answer");

    const auto row = [](const char *title, Qt::DropActions offered, Qt::KeyboardModifiers modifiers,
                        Qt::DropAction answer) {
        QTest::newRow(title) << offered << modifiers << answer;
    };
    const Qt::KeyboardModifiers none = Qt::NoModifier;
    row("copy proposed", kAllDropActions, Qt::ControlModifier, Qt::CopyAction);
    row("move proposed", kAllDropActions, Qt::ShiftModifier, Qt::CopyAction);
    row("link proposed", kAllDropActions, Qt::ControlModifier | Qt::ShiftModifier, Qt::CopyAction);
    row("copy offered", Qt::CopyAction, none, Qt::CopyAction);
    row("copy and move offered", Qt::CopyAction | Qt::MoveAction, none, Qt::CopyAction);
    row("link offered", Qt::LinkAction, none, Qt::LinkAction);
    row("move and link offered", Qt::MoveAction | Qt::LinkAction, none, Qt::LinkAction);
    row("move offered", Qt::MoveAction, none, Qt::IgnoreAction);
    row("nothing offered", Qt::IgnoreAction, none, Qt::IgnoreAction);
}

void tst_DropAcceptingListWidget::answersWithCopyOrLink()
{
    QFETCH(const Qt::DropActions, offered);
    QFETCH(const Qt::KeyboardModifiers, modifiers);
    QFETCH(const Qt::DropAction, answer);
    m_list->setAcceptUrlsDrops(true);
    QSignalSpy spy(m_list, &DropAcceptingListWidget::droppedUrls);
    const DragOffer offer{*m_files, offered, modifiers};

    QCOMPARE(enter(offer), answer);
    QCOMPARE(isDropActive(), answer != Qt::IgnoreAction);
    QCOMPARE(move(offer), answer);
    QCOMPARE(drop(offer), answer);

    QCOMPARE(spy.count(), answer == Qt::IgnoreAction ? 0 : 1);
}

// The source may offer something else by the time of the drop.
void tst_DropAcceptingListWidget::dropWithoutTheFilesIsRefused()
{
    m_list->setAcceptUrlsDrops(true);
    QSignalSpy spy(m_list, &DropAcceptingListWidget::droppedUrls);
    QCOMPARE(enter({*m_files}), Qt::CopyAction);

    m_files->setUrls({});

    QCOMPARE(drop({*m_files}), Qt::IgnoreAction);
    QVERIFY(spy.isEmpty());
    QVERIFY(!hasFrame());
}

void tst_DropAcceptingListWidget::dropChangesNothingElse()
{
    m_list->setAcceptUrlsDrops(true);
    m_list->setDragDropMode(QAbstractItemView::DragDrop);
    m_list->setCurrentRow(1);
    QSignalSpy current(m_list, &QListWidget::currentRowChanged);
    QSignalSpy selection(m_list, &QListWidget::itemSelectionChanged);
    QSignalSpy dropped(m_list, &DropAcceptingListWidget::droppedUrls);

    enter({*m_files});
    move({*m_files}, kOverNothing);
    drop({*m_files}, kOverNothing);

    QCOMPARE(dropped.count(), 1);
    QVERIFY(current.isEmpty());
    QVERIFY(selection.isEmpty());
    QCOMPARE(m_list->count(), 3);
    QCOMPARE(m_list->currentRow(), 1);
    QCOMPARE(m_list->dragDropMode(), QAbstractItemView::DragDrop);
}

void tst_DropAcceptingListWidget::manyFilesComeInOneEmission()
{
    constexpr int kFiles = 10000;
    QList<QUrl> urls;
    QStringList paths;
    for (int i = 0; i < kFiles; ++i) {
        paths.append(QStringLiteral("/folder/%1.png").arg(i));
        urls.append(QUrl::fromLocalFile(paths.constLast()));
    }
    QMimeData mime;
    mime.setUrls(urls);
    m_list->setAcceptUrlsDrops(true);
    QSignalSpy spy(m_list, &DropAcceptingListWidget::droppedUrls);

    enter({mime});
    drop({mime});

    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.constFirst().constFirst().toStringList(), paths);
}

void tst_DropAcceptingListWidget::blockedSignalsAreSilent()
{
    m_list->setAcceptUrlsDrops(true);
    QSignalSpy spy(m_list, &DropAcceptingListWidget::droppedUrls);
    m_list->blockSignals(true);

    enter({*m_files});
    QVERIFY(hasFrame());
    drop({*m_files});
    m_list->blockSignals(false);

    QVERIFY(spy.isEmpty());
    QVERIFY(!hasFrame());
}

void tst_DropAcceptingListWidget::flagOffRefuses()
{
    QSignalSpy spy(m_list, &DropAcceptingListWidget::droppedUrls);

    QCOMPARE(enter({*m_files}), Qt::IgnoreAction);
    m_list->setDragDropMode(QAbstractItemView::DragDrop);
    QCOMPARE(enter({*m_files}), Qt::IgnoreAction);
    QCOMPARE(move({*m_files}), Qt::IgnoreAction);
    QCOMPARE(drop({*m_files}), Qt::IgnoreAction);

    QVERIFY(spy.isEmpty());
}

void tst_DropAcceptingListWidget::switchedOffDuringTheDrag()
{
    m_list->setAcceptUrlsDrops(true);
    QSignalSpy spy(m_list, &DropAcceptingListWidget::droppedUrls);
    QCOMPARE(enter({*m_files}), Qt::CopyAction);

    m_list->setAcceptUrlsDrops(false);

    QVERIFY(!isDropActive());
    QCOMPARE(move({*m_files}), Qt::IgnoreAction);
    QCOMPARE(drop({*m_files}), Qt::IgnoreAction);
    QVERIFY(spy.isEmpty());
}

void tst_DropAcceptingListWidget::switchedOnAgainDuringTheDrag()
{
    m_list->setAcceptUrlsDrops(true);
    QSignalSpy spy(m_list, &DropAcceptingListWidget::droppedUrls);
    enter({*m_files});
    m_list->setAcceptUrlsDrops(false);
    move({*m_files});

    m_list->setAcceptUrlsDrops(true);

    QCOMPARE(move({*m_files}), Qt::CopyAction);
    QVERIFY(isDropActive());
    QCOMPARE(drop({*m_files}), Qt::CopyAction);
    QCOMPARE(spy.count(), 1);
}

// A window system lets a drag enter again where it was refused and now is not.
void tst_DropAcceptingListWidget::switchedOnAfterARefusal()
{
    QSignalSpy spy(m_list, &DropAcceptingListWidget::droppedUrls);
    QCOMPARE(enter({*m_files}), Qt::IgnoreAction);

    m_list->setAcceptUrlsDrops(true);

    QCOMPARE(enter({*m_files}), Qt::CopyAction);
    QCOMPARE(drop({*m_files}), Qt::CopyAction);
    QCOMPARE(spy.count(), 1);
}

void tst_DropAcceptingListWidget::refusedDragReachesTheParent()
{
    GreedyParent parent;
    m_list->setParent(&parent);
    m_list->setAcceptUrlsDrops(true);
    QMimeData text;
    text.setText(QStringLiteral("text"));
    parent.show();

    enter({*m_files});
    QCOMPARE(parent.entered, 0);
    sendDragLeave(viewport());
    enter({text});
    QCOMPARE(parent.entered, 1);

    m_list->setParent(nullptr);
}

void tst_DropAcceptingListWidget::disabledRefuses()
{
    m_list->setAcceptUrlsDrops(true);
    m_list->setEnabled(false);

    QCOMPARE(enter({*m_files}), Qt::IgnoreAction);
    QVERIFY(!isDropActive());

    m_list->setEnabled(true);
    QCOMPARE(enter({*m_files}), Qt::CopyAction);
}

void tst_DropAcceptingListWidget::disabledDuringTheDrag()
{
    m_list->setAcceptUrlsDrops(true);
    QSignalSpy spy(m_list, &DropAcceptingListWidget::droppedUrls);
    enter({*m_files});

    m_list->setEnabled(false);

    QVERIFY(!isDropActive());
    QCOMPARE(move({*m_files}), Qt::IgnoreAction);
    QVERIFY(!isDropActive());
    QCOMPARE(drop({*m_files}), Qt::IgnoreAction);
    QVERIFY(spy.isEmpty());
}

void tst_DropAcceptingListWidget::itemsOfAnotherListFollowTheMode_data()
{
    QTest::addColumn<QAbstractItemView::DragDropMode>("mode");
    QTest::addColumn<bool>("flag");
    QTest::addColumn<bool>("dropped");

    QTest::newRow("neither") << QAbstractItemView::NoDragDrop << false << false;
    QTest::newRow("files only") << QAbstractItemView::NoDragDrop << true << false;
    QTest::newRow("drags and files") << QAbstractItemView::DragOnly << true << false;
    QTest::newRow("items only") << QAbstractItemView::DropOnly << false << true;
    QTest::newRow("items and files") << QAbstractItemView::DropOnly << true << true;
    QTest::newRow("own items and files") << QAbstractItemView::InternalMove << true << false;
}

void tst_DropAcceptingListWidget::itemsOfAnotherListFollowTheMode()
{
    QFETCH(const QAbstractItemView::DragDropMode, mode);
    QFETCH(const bool, flag);
    QFETCH(const bool, dropped);
    m_list->setDragDropMode(mode);
    m_list->setAcceptUrlsDrops(flag);
    const std::unique_ptr<QMimeData> item = itemOfAnotherList();
    const Qt::DropAction answer = dropped ? Qt::CopyAction : Qt::IgnoreAction;
    const DragOffer offer{*item, Qt::CopyAction};

    QCOMPARE(enter(offer), answer);
    QCOMPARE(move(offer, kOverNothing), answer);
    QVERIFY(!isDropActive());
    QCOMPARE(drop(offer, kOverNothing), answer);

    QCOMPARE(m_list->count(), dropped ? 4 : 3);
}

void tst_DropAcceptingListWidget::indicatorOfAForeignItemFollowsTheMode()
{
    m_list->setDragDropMode(QAbstractItemView::DropOnly);
    m_list->setAcceptUrlsDrops(true);
    const std::unique_ptr<QMimeData> item = itemOfAnotherList();
    const QImage before = picture();

    enter({*item, Qt::CopyAction});
    move({*item, Qt::CopyAction});
    QVERIFY(picture() != before);
    QVERIFY(!hasFrame());

    sendDragLeave(viewport());
    QCOMPARE(picture(), before);
}

void tst_DropAcceptingListWidget::entersLookUpUrlsOnceAndMovesNever()
{
    m_list->setAcceptUrlsDrops(true);
    CountingMimeData mime;
    mime.setUrls(m_files->urls());
    mime.readings = 0;

    enter({mime});
    QCOMPARE(mime.readings, 1);
    for (int i = 0; i < 100; ++i)
        move({mime}, QPoint(10, 10 + i));
    QCOMPARE(mime.readings, 1);
    drop({mime});
    QCOMPARE(mime.readings, 2);

    m_list->setAcceptUrlsDrops(false);
    m_list->setAcceptDrops(true);
    mime.readings = 0;
    enter({mime});
    QCOMPARE(mime.readings, 0);
}

void tst_DropAcceptingListWidget::enterStopsAtTheFirstUsableUrl()
{
    m_list->setAcceptUrlsDrops(true);
    const QUrl shortUrl = QUrl::fromLocalFile(QStringLiteral("/a"));
    // Its path alone takes milliseconds to read.
    const QUrl longUrl = QUrl::fromLocalFile(QLatin1Char('/') + QString(1 << 22, QLatin1Char('a')));
    const auto timeOf = [this](const QList<QUrl> &urls) {
        QMimeData mime;
        mime.setUrls(urls);
        QVector<qint64> times;
        for (int i = 0; i < 5; ++i) {
            QElapsedTimer timer;
            timer.start();
            enter({mime});
            times.append(timer.nsecsElapsed());
            sendDragLeave(viewport());
        }
        return *std::min_element(times.cbegin(), times.cend());
    };

    const qint64 usableFirst = timeOf({shortUrl, longUrl});
    const qint64 usableLast = timeOf({longUrl, shortUrl});

    QVERIFY2(usableFirst * 4 < usableLast,
             qPrintable(QStringLiteral("%1 ns against %2 ns").arg(usableFirst).arg(usableLast)));
}

void tst_DropAcceptingListWidget::frameHasTwoPixels_data()
{
    QTest::addColumn<int>("ratio");

    QTest::newRow("plain") << 1;
    QTest::newRow("two device pixels each") << 2;
    QTest::newRow("three device pixels each") << 3;
}

void tst_DropAcceptingListWidget::frameHasTwoPixels()
{
    QFETCH(const int, ratio);
    m_list->clear();
    m_list->setAcceptUrlsDrops(true);
    const QColor frame = m_list->palette().color(QPalette::Active, QPalette::Highlight);
    const QImage before = picture(ratio);

    enter({*m_files});

    const QImage after = picture(ratio);
    const QRect inner = after.rect().adjusted(2 * ratio, 2 * ratio, -2 * ratio, -2 * ratio);
    for (int y = 0; y < after.height(); ++y) {
        for (int x = 0; x < after.width(); ++x) {
            const QColor expected = inner.contains(x, y) ? before.pixelColor(x, y) : frame;
            if (after.pixelColor(x, y) != expected)
                QFAIL(qPrintable(QStringLiteral("pixel %1, %2").arg(x).arg(y)));
        }
    }
}

void tst_DropAcceptingListWidget::frameHasTheActiveColour()
{
    QPalette palette = m_list->palette();
    palette.setColor(QPalette::Active, QPalette::Highlight, Qt::red);
    palette.setColor(QPalette::Inactive, QPalette::Highlight, Qt::gray);
    m_list->setPalette(palette);
    m_list->setAcceptUrlsDrops(true);
    QWidget other;
    other.show();
    other.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&other));
    QVERIFY(!m_list->isActiveWindow());

    enter({*m_files});

    QCOMPARE(picture().pixelColor(0, 0), QColor(Qt::red));
}

void tst_DropAcceptingListWidget::frameStaysWhenTheListScrolls()
{
    for (int i = 3; i < 100; ++i)
        m_list->addItem(name(i));
    m_list->setAcceptUrlsDrops(true);
    m_list->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    QCoreApplication::processEvents();
    enter({*m_files});
    QCoreApplication::processEvents();

    m_list->verticalScrollBar()->setValue(40);
    QCoreApplication::processEvents();

    // What is on the screen, which scrolling moves without painting.
    const QImage shown = m_list->screen()->grabWindow(m_list->winId()).toImage();
    const QRect rect(viewport()->mapTo(m_list.data(), QPoint()), viewport()->size());
    const QColor frame = m_list->palette().color(QPalette::Active, QPalette::Highlight);
    const int middle = rect.center().x();
    QCOMPARE(shown.pixelColor(middle, rect.top()), frame);
    QCOMPARE(shown.pixelColor(middle, rect.bottom()), frame);
    QVERIFY(shown.pixelColor(middle, rect.bottom() - 40) != frame);
    QCOMPARE(shown.copy(rect), picture().convertToFormat(shown.format()));
}

void tst_DropAcceptingListWidget::frameGoesAway_data()
{
    QTest::addColumn<ListAction>("action");

    const auto row = [](const char *title, const ListAction &action) {
        QTest::newRow(title) << action;
    };
    row("on leaving", [](DropAcceptingListWidget *list) { sendDragLeave(list->viewport()); });
    row("on hiding", [](DropAcceptingListWidget *list) {
        list->hide();
        list->show();
    });
    row("with the flag", [](DropAcceptingListWidget *list) { list->setAcceptUrlsDrops(false); });
    row("on disabling", [](DropAcceptingListWidget *list) {
        list->setEnabled(false);
        list->setEnabled(true);
    });
    row("on dropping", [](DropAcceptingListWidget *list) {
        QMimeData mime;
        mime.setUrls({QUrl(QStringLiteral("file:///a"))});
        sendDragEvent<QDropEvent>(list->viewport(), kOverItem, {mime});
    });
}

void tst_DropAcceptingListWidget::frameGoesAway()
{
    QFETCH(const ListAction, action);
    m_list->setAcceptUrlsDrops(true);
    enter({*m_files});
    QVERIFY(isDropActive());
    QVERIFY(hasFrame());

    action(m_list);

    QVERIFY(!m_list->property("dropActive").isValid());
    QVERIFY(!hasFrame());
}

void tst_DropAcceptingListWidget::frameShowsWhatADropWouldDo()
{
    m_list->setAcceptUrlsDrops(true);
    enter({*m_files});

    move({*m_files, Qt::MoveAction});
    QVERIFY(!hasFrame());

    move({*m_files, Qt::MoveAction | Qt::CopyAction});
    QVERIFY(hasFrame());
}

void tst_DropAcceptingListWidget::styleSheetSeesActiveDrops()
{
    m_list->setStyleSheet(QStringLiteral(
        "Tessark--UI--DropAcceptingListWidget { background: #ffffff }"
        "Tessark--UI--DropAcceptingListWidget[dropActive=\"true\"] { background: #00ff00 }"));
    m_list->setAcceptUrlsDrops(true);
    const QPoint middle = viewport()->rect().center();
    QCOMPARE(picture().pixelColor(middle), QColor(Qt::white));

    enter({*m_files});
    QCOMPARE(picture().pixelColor(middle), QColor(Qt::green));

    sendDragLeave(viewport());
    QCOMPARE(picture().pixelColor(middle), QColor(Qt::white));
}

void tst_DropAcceptingListWidget::frameIsGoneWhenTheSlotRuns()
{
    m_list->setAcceptUrlsDrops(true);
    bool active = true;
    bool framed = true;
    connect(m_list, &DropAcceptingListWidget::droppedUrls, this, [&] {
        active = isDropActive();
        framed = hasFrame();
    });

    enter({*m_files});
    drop({*m_files});

    QVERIFY(!active);
    QVERIFY(!framed);
}

void tst_DropAcceptingListWidget::slotMayDelete_data()
{
    QTest::addColumn<ListAction>("action");

    const auto row = [](const char *title, const ListAction &action) {
        QTest::newRow(title) << action;
    };
    row("the list", [](DropAcceptingListWidget *list) { delete list; });
    row("its window", [](DropAcceptingListWidget *list) { delete list->window(); });
}

void tst_DropAcceptingListWidget::slotMayDelete()
{
    QFETCH(const ListAction, action);
    QPointer<QWidget> window(new QWidget);
    auto *const column = new QVBoxLayout(window);
    column->addWidget(m_list);
    window->show();
    m_list->setAcceptUrlsDrops(true);
    connect(m_list, &DropAcceptingListWidget::droppedUrls, this, [&] { action(m_list); });

    enter({*m_files});
    QCOMPARE(drop({*m_files}), Qt::CopyAction);

    QVERIFY(!m_list);
    delete window;
}

void tst_DropAcceptingListWidget::slotMayClearTheList()
{
    m_list->setAcceptUrlsDrops(true);
    connect(m_list, &DropAcceptingListWidget::droppedUrls, m_list,
            [this](const QStringList &paths) {
                m_list->clear();
                m_list->addItems(paths);
                m_list->setAcceptUrlsDrops(false);
            });

    enter({*m_files});
    drop({*m_files});

    QCOMPARE(m_list->count(), 2);
    QCOMPARE(m_list->item(0)->text(), QStringLiteral("/a"));
}

QTEST_MAIN(tst_DropAcceptingListWidget)
#include "tst_DropAcceptingListWidget.moc"
