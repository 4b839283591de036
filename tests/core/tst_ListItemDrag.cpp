#include <core/DropAcceptingListWidget.h>

#include "support/XServer.h"

#include <QDrag>
#include <QDropEvent>
#include <QMimeData>
#include <QSignalSpy>
#include <QTimer>
#include <QUrl>
#include <QWindow>

using Tessark::UI::DropAcceptingListWidget;

namespace {

constexpr int kTimeout = 20000; // milliseconds; what is waited for takes a few

/// A list of three items that tells whether one of them is being dragged.
class List : public DropAcceptingListWidget
{
public:
    enum class Offer { Items, Files };

    explicit List(const QPoint &position)
    {
        addItems({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")});
        setDragEnabled(true);
        setGeometry(QRect(position, QSize(200, 200)));
        show();
    }

    QStringList texts() const
    {
        QStringList texts;
        for (int row = 0; row < count(); ++row)
            texts.append(item(row)->text());
        return texts;
    }

    /// Where the pointer is to take up a row, and where to drop below all rows.
    QPoint middleOf(int row) const
    {
        return viewport()->mapToGlobal(visualItemRect(item(row)).center());
    }
    QPoint belowAll() const { return viewport()->mapToGlobal(QPoint(20, 150)); }

    Offer offer = Offer::Items;
    bool isDragging = false;
    bool hasDragged = false;
    Qt::DropAction result = Qt::IgnoreAction; // of a drag of files

protected:
    void startDrag(Qt::DropActions actions) override
    {
        isDragging = true;
        if (offer == Offer::Items)
            DropAcceptingListWidget::startDrag(actions);
        else
            dragFiles();
        isDragging = false;
        hasDragged = true;
    }

private:
    void dragFiles()
    {
        auto *const drag = new QDrag(this);
        auto *const mime = new QMimeData;
        mime->setUrls({QUrl(QStringLiteral("file:///a"))});
        drag->setMimeData(mime);
        result = drag->exec(Qt::CopyAction | Qt::MoveAction, Qt::MoveAction);
    }
};

/// Plays the hand while the program is busy with the drag itself: small moves where the drag starts,
/// then over the target until that has seen some, then the button goes up.
class Hand : public QObject
{
public:
    Hand(XPointer &pointer, const List &source, const QPoint &from, const QPoint &to)
        : m_pointer(pointer)
        , m_source(source)
        , m_from(from)
        , m_to(to)
    {
        connect(&m_timer, &QTimer::timeout, this, &Hand::step);
    }

    /// Drags to the end; target is the window of m_to.
    bool drag(QWidget *target)
    {
        target->windowHandle()->installEventFilter(this);
        m_pointer.moveTo(m_from);
        m_pointer.press();
        m_timer.start(10);
        return QTest::qWaitFor([this] { return m_source.hasDragged; }, kTimeout);
    }

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::DragMove && m_isAtTarget)
            ++m_movesSeen;
        return false;
    }

private:
    void step()
    {
        const QPoint aside(++m_steps % 2, 0);
        if (!m_source.isDragging) {
            m_pointer.moveTo(m_from + QPoint(30, 0) + aside);
        } else if (m_movesSeen < 5) {
            m_isAtTarget = true;
            m_pointer.moveTo(m_to + aside);
        } else {
            m_timer.stop();
            m_pointer.release();
        }
    }

    XPointer &m_pointer;
    const List &m_source;
    const QPoint m_from;
    const QPoint m_to;
    QTimer m_timer;
    int m_steps = 0;
    int m_movesSeen = 0;
    bool m_isAtTarget = false;
};

} // namespace

/// Drags with a real pointer that start in a list of the program itself: only then does a drag have
/// a source widget.
class tst_ListItemDrag : public QObject
{
    Q_OBJECT

public:
    explicit tst_ListItemDrag(XPointer &pointer)
        : m_pointer(pointer)
    {
    }

private Q_SLOTS:
    void cleanup() { m_pointer.release(); }

    void itemsMoveWithinTheList_data();
    void itemsMoveWithinTheList();
    void filesOfTheListItselfAreNotTaken();
    void filesOfAnotherListAreTaken();

private:
    XPointer &m_pointer;
};

void tst_ListItemDrag::itemsMoveWithinTheList_data()
{
    QTest::addColumn<bool>("flag");

    QTest::newRow("flag off") << false;
    QTest::newRow("flag on") << true;
}

void tst_ListItemDrag::itemsMoveWithinTheList()
{
    QFETCH(const bool, flag);
    List list(QPoint(20, 20));
    list.setDragDropMode(QAbstractItemView::InternalMove);
    list.setAcceptUrlsDrops(flag);
    QVERIFY(QTest::qWaitForWindowExposed(&list));
    QSignalSpy spy(&list, &DropAcceptingListWidget::droppedUrls);

    QVERIFY(Hand(m_pointer, list, list.middleOf(0), list.belowAll()).drag(&list));

    const QStringList moved = {QStringLiteral("b"), QStringLiteral("c"), QStringLiteral("a")};
    QTRY_COMPARE(list.texts(), moved);
    QCOMPARE(list.dragDropMode(), QAbstractItemView::InternalMove);
    QVERIFY(spy.isEmpty());
}

void tst_ListItemDrag::filesOfTheListItselfAreNotTaken()
{
    List list(QPoint(20, 20));
    list.offer = List::Offer::Files;
    list.setAcceptUrlsDrops(true);
    QVERIFY(QTest::qWaitForWindowExposed(&list));
    QSignalSpy spy(&list, &DropAcceptingListWidget::droppedUrls);

    QVERIFY(Hand(m_pointer, list, list.middleOf(0), list.belowAll()).drag(&list));

    QCOMPARE(list.result, Qt::IgnoreAction);
    QVERIFY(spy.isEmpty());
    QVERIFY(!list.property("dropActive").isValid());
}

void tst_ListItemDrag::filesOfAnotherListAreTaken()
{
    List source(QPoint(20, 20));
    source.offer = List::Offer::Files;
    List list(QPoint(400, 20));
    list.setAcceptUrlsDrops(true);
    QVERIFY(QTest::qWaitForWindowExposed(&source) && QTest::qWaitForWindowExposed(&list));
    QSignalSpy spy(&list, &DropAcceptingListWidget::droppedUrls);

    QVERIFY(Hand(m_pointer, source, source.middleOf(0), list.belowAll()).drag(&list));

    QTRY_COMPARE(spy.count(), 1);
    QCOMPARE(spy.constFirst().constFirst().toStringList(), QStringList{QStringLiteral("/a")});
    QCOMPARE(source.result, Qt::CopyAction);
}

int main(int argc, char **argv)
{
    return runOnXServer<tst_ListItemDrag>(argc, argv);
}

#include "tst_ListItemDrag.moc"
