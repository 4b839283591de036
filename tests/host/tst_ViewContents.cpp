#include <host/PropertyList.h>
#include <host/PropertyPanelView.h>
#include <host/PropertyStore.h>

#include <property/PropertyUI.h>

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabWidget>
#include <QTest>

#include <memory>

using namespace Tessark::PropertyHost;
using namespace Tessark::PropertyUI;

/// How large a view is with all of its rows, and how it shows texts.
class tst_ViewContents : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void emptyViewWantsNothing();
    void nothingScrollsAtTheContentsSize_data();
    void nothingScrollsAtTheContentsSize();
    void fieldsAreAsWideAsTheyLikeToBe();
    void closedGroupsTakeNoRoom();
    void descriptionCounts();
    void textsAreWhatTheyLookLikeAtFirst();
    void textsAreAsWritten();

private:
    void fill();
    QScrollBar *scrollBar(Qt::Orientation orientation) const;

    std::unique_ptr<PropertyList> m_list;
    std::unique_ptr<PropertyStore> m_store;
    std::unique_ptr<PropertyPanelView> m_view;
};

void tst_ViewContents::init()
{
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
    m_list = std::make_unique<PropertyList>();
    m_store = std::make_unique<PropertyStore>();
    m_view = std::make_unique<PropertyPanelView>();
}

void tst_ViewContents::cleanup()
{
    m_view.reset();
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
}

void tst_ViewContents::fill()
{
    m_list->string(QStringLiteral("title"), QStringLiteral("Title"));
    m_list->add(kPropertyTypeAction, QStringLiteral("wide"), QString(60, QLatin1Char('m')))
        .hint(kPropertyHintFullWidth, true);
    m_list->group(QStringLiteral("Group"), [this] {
        m_list->string(QStringLiteral("inner"), QStringLiteral("Inner"));
        m_list->tabs([this] {
            m_list->tab(QStringLiteral("Page"), [this] {
                m_list
                    ->add(kPropertyTypeAction, QStringLiteral("wider"),
                          QString(80, QLatin1Char('m')))
                    .hint(kPropertyHintFullWidth, true);
            });
        });
    });
    m_store->reset(*m_list);
    m_view->setProperties(*m_list, m_store.get());
}

QScrollBar *tst_ViewContents::scrollBar(Qt::Orientation orientation) const
{
    const auto *const area = m_view->findChild<QScrollArea *>();
    return orientation == Qt::Horizontal ? area->horizontalScrollBar() : area->verticalScrollBar();
}

void tst_ViewContents::emptyViewWantsNothing()
{
    QCOMPARE(m_view->contentsSize(), QSize(0, 0));

    fill();
    m_view->clear();
    QCOMPARE(m_view->contentsSize(), QSize(0, 0));
}

void tst_ViewContents::nothingScrollsAtTheContentsSize_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<bool>("isShown");

    QTest::newRow("asked before it is shown") << Qt::LeftToRight << false;
    QTest::newRow("asked afterwards") << Qt::LeftToRight << true;
    QTest::newRow("right to left") << Qt::RightToLeft << false;
    QTest::newRow("right to left, afterwards") << Qt::RightToLeft << true;
}

void tst_ViewContents::nothingScrollsAtTheContentsSize()
{
    QFETCH(Qt::LayoutDirection, direction);
    QFETCH(bool, isShown);
    QGuiApplication::setLayoutDirection(direction);
    fill();
    if (isShown) {
        m_view->resize(300, 100);
        m_view->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_view.get()));
    }

    m_view->resize(m_view->contentsSize());
    m_view->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_view.get()));

    QTRY_COMPARE(scrollBar(Qt::Horizontal)->maximum(), 0);
    QTRY_COMPARE(scrollBar(Qt::Vertical)->maximum(), 0);
    m_view->resize(m_view->width(), m_view->height() - 1);
    QTRY_VERIFY(scrollBar(Qt::Vertical)->maximum() > 0);
}

void tst_ViewContents::fieldsAreAsWideAsTheyLikeToBe()
{
    fill();
    m_view->resize(m_view->contentsSize());
    m_view->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_view.get()));

    const auto buttons = m_view->panel()->findChildren<QPushButton *>();
    QCOMPARE(buttons.size(), 2);
    for (const QPushButton *button : buttons)
        QVERIFY(button->width() >= button->sizeHint().width());
    // The wider one says how wide the view is.
    QCOMPARE(buttons.last()->width(), buttons.last()->sizeHint().width());
}

void tst_ViewContents::closedGroupsTakeNoRoom()
{
    fill();
    const QSize open = m_view->contentsSize();

    m_view->collapseAll();

    QVERIFY(m_view->contentsSize().height() < open.height() - 50);
    QVERIFY(m_view->contentsSize().width() < open.width());
    m_view->expandAll();
    QCOMPARE(m_view->contentsSize(), open);
}

void tst_ViewContents::descriptionCounts()
{
    fill();
    const QSize before = m_view->contentsSize();

    m_view->setDescriptionVisible(true);

    const auto *const line = m_view->findChild<QLabel *>(QString(), Qt::FindDirectChildrenOnly);
    QCOMPARE(m_view->contentsSize(), before + QSize(0, line->sizeHint().height()));
}

void tst_ViewContents::textsAreWhatTheyLookLikeAtFirst()
{
    QVERIFY(!m_view->areTextsAsWritten());
    fill();

    QCOMPARE(m_view->panel()->findChild<QLabel *>()->textFormat(), Qt::AutoText);
}

void tst_ViewContents::textsAreAsWritten()
{
    m_view->setTextsAsWritten(true);
    QVERIFY(m_view->areTextsAsWritten());
    fill();

    const auto labels = m_view->panel()->findChildren<QLabel *>();
    QVERIFY(!labels.isEmpty());
    for (const QLabel *label : labels)
        QCOMPARE(label->textFormat(), Qt::PlainText);
}

QTEST_MAIN(tst_ViewContents)
#include "tst_ViewContents.moc"
