#include "support/MarkingTranslator.h"

#include <host/PropertyList.h>
#include <host/PropertyPanelView.h>
#include <host/PropertyStore.h>

#include <property/PropertyUI.h>

#include <QAccessible>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPointer>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabWidget>
#include <QTest>

#include <memory>

using namespace Tessark::PropertyHost;
using namespace Tessark::PropertyUI;

/// The line between labels and fields by keys and through assistive technology.
class tst_SplitterHandle : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void isThereOnlyWhileTheLineCanBeMoved();
    void isThereOnlyWhereThereAreLabels();
    void tabReachesItBehindTheRows();
    void arrowsMoveTheLine_data();
    void arrowsMoveTheLine();
    void homeAndEndGoAsFarAsTheDrag();
    void returnMakesTheWidthAutomatic();
    void otherKeysGoOn();
    void standsInTheGap_data();
    void standsInTheGap();
    void letsTheMouseThrough();
    void isSeenWithTheFocusOnly();
    void followsTheNextPanel();
    void takesThePageThatIsShown();
    void screenReadersSeeASplitter();
    void screenReadersMoveIt();
    void nameFollowsTheLanguage();

private:
    void show();
    QWidget *handle() const;
    QLabel *label(const char *text) const;

    std::unique_ptr<PropertyList> m_list;
    std::unique_ptr<PropertyStore> m_store;
    std::unique_ptr<PropertyPanelView> m_view;
};

namespace {

constexpr int kStep = 8;

QRgb colorAt(QWidget *widget, const QPoint &position)
{
    return widget->window()->grab().toImage().pixel(widget->mapTo(widget->window(), position));
}

} // namespace

void tst_SplitterHandle::init()
{
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
    m_list = std::make_unique<PropertyList>();
    m_list->string(QStringLiteral("title"), QStringLiteral("A title that is long"));
    m_list->string(QStringLiteral("name"), QStringLiteral("Name"));
    m_store = std::make_unique<PropertyStore>();
    m_store->reset(*m_list);
    m_view = std::make_unique<PropertyPanelView>();
    m_view->setSplitterMovable(true);
}

void tst_SplitterHandle::cleanup()
{
    m_view.reset();
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
}

void tst_SplitterHandle::show()
{
    m_view->setProperties(*m_list, m_store.get());
    m_view->resize(400, 200);
    m_view->show();
    m_view->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_view.get()));
    QTRY_VERIFY(!m_view->isSplitterMovable() || handle());
}

/// Null while it is hidden.
QWidget *tst_SplitterHandle::handle() const
{
    QWidget *const viewport = m_view->findChild<QScrollArea *>()->viewport();
    const auto children = viewport->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    for (QWidget *child : children) {
        if (child != m_view->panel() && child->isVisible())
            return child;
    }
    return nullptr;
}

QLabel *tst_SplitterHandle::label(const char *text) const
{
    const auto labels = m_view->panel()->findChildren<QLabel *>();
    for (QLabel *label : labels) {
        if (label->text() == QLatin1String(text))
            return label;
    }
    return nullptr;
}

void tst_SplitterHandle::isThereOnlyWhileTheLineCanBeMoved()
{
    m_view->setSplitterMovable(false);
    show();
    QVERIFY(!handle());

    m_view->setSplitterMovable(true);
    QTRY_VERIFY(handle());

    m_view->setSplitterMovable(false);
    QTRY_VERIFY(!handle());
}

void tst_SplitterHandle::isThereOnlyWhereThereAreLabels()
{
    show();
    PropertyList buttons;
    buttons.action(QStringLiteral("go"), QStringLiteral("Go")).hint(kPropertyHintFullWidth, true);

    m_view->setProperties(buttons, m_store.get());
    QTRY_VERIFY(!handle());
    m_view->setProperties(*m_list, m_store.get());
    QTRY_VERIFY(handle());
    m_view->clear();
    QTRY_VERIFY(!handle());
}

void tst_SplitterHandle::tabReachesItBehindTheRows()
{
    show();
    auto *const last = m_view->findChildren<QLineEdit *>().constLast();
    QVERIFY(!handle()->hasFocus()); // the window's first control is another one
    last->setFocus();

    QTest::keyClick(last, Qt::Key_Tab);
    QVERIFY(handle()->hasFocus());
    QTest::keyClick(handle(), Qt::Key_Backtab);
    QVERIFY(last->hasFocus());

    m_view->setProperties(*m_list, m_store.get());
    QTRY_VERIFY(handle());
    QTest::keyClick(m_view->findChildren<QLineEdit *>().constLast(), Qt::Key_Tab);
    QVERIFY(handle()->hasFocus());
}

void tst_SplitterHandle::arrowsMoveTheLine_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<Qt::Key>("narrower");
    QTest::addColumn<Qt::Key>("wider");

    QTest::newRow("left to right") << Qt::LeftToRight << Qt::Key_Left << Qt::Key_Right;
    QTest::newRow("right to left") << Qt::RightToLeft << Qt::Key_Right << Qt::Key_Left;
}

void tst_SplitterHandle::arrowsMoveTheLine()
{
    QFETCH(Qt::LayoutDirection, direction);
    QFETCH(Qt::Key, narrower);
    QFETCH(Qt::Key, wider);
    QGuiApplication::setLayoutDirection(direction);
    show();
    const int widest = label("A title that is long:")->width();
    handle()->setFocus();

    QTest::keyClick(handle(), narrower);
    QCOMPARE(m_view->labelWidth(), widest - kStep);
    QTRY_COMPARE(label("A title that is long:")->width(), widest - kStep);
    QTest::keyClick(handle(), narrower);
    QTest::keyClick(handle(), wider);
    QCOMPARE(m_view->labelWidth(), widest - kStep);
}

void tst_SplitterHandle::homeAndEndGoAsFarAsTheDrag()
{
    show();
    handle()->setFocus();

    QTest::keyClick(handle(), Qt::Key_Home);
    QCOMPARE(m_view->labelWidth(), 24);
    QTest::keyClick(handle(), Qt::Key_Left);
    QCOMPARE(m_view->labelWidth(), 24);

    QTest::keyClick(handle(), Qt::Key_End);
    const int widest = m_view->labelWidth();
    QVERIFY(widest > 100);
    QTRY_COMPARE(m_view->panel()->width(), m_view->panel()->parentWidget()->width());
    QTest::keyClick(handle(), Qt::Key_Right);
    QCOMPARE(m_view->labelWidth(), widest);
    QTRY_VERIFY(!m_view->findChild<QScrollArea *>()->horizontalScrollBar()->isVisible());
}

void tst_SplitterHandle::returnMakesTheWidthAutomatic()
{
    show();
    m_view->setLabelWidth(50);
    handle()->setFocus();

    QTest::keyClick(handle(), Qt::Key_Return);

    QCOMPARE(m_view->labelWidth(), -1);
}

void tst_SplitterHandle::otherKeysGoOn()
{
    class Window final : public QWidget
    {
    public:
        int keys = 0;

    protected:
        void keyPressEvent(QKeyEvent *) override { ++keys; }
    } window;
    m_view->setParent(&window);
    m_view->setProperties(*m_list, m_store.get());
    window.resize(400, 200);
    window.show();
    QTRY_VERIFY(handle());

    QTest::keyClick(handle(), Qt::Key_Escape);
    QCOMPARE(window.keys, 1);
    QTest::keyClick(handle(), Qt::Key_Left);
    QCOMPARE(window.keys, 1);
    m_view->setParent(nullptr);
}

void tst_SplitterHandle::standsInTheGap_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");

    QTest::newRow("left to right") << Qt::LeftToRight;
    QTest::newRow("right to left") << Qt::RightToLeft;
}

void tst_SplitterHandle::standsInTheGap()
{
    QFETCH(Qt::LayoutDirection, direction);
    QGuiApplication::setLayoutDirection(direction);
    show();
    const auto isInGap = [this] {
        const QWidget *const text = label("Name:");
        const QWidget *const field = m_view->findChildren<QLineEdit *>().constLast();
        const QRect line(handle()->mapTo(m_view.get(), QPoint()), handle()->size());
        const QRect labelRect(text->mapTo(m_view.get(), QPoint()), text->size());
        const QRect fieldRect(field->mapTo(m_view.get(), QPoint()), field->size());
        return m_view->isRightToLeft()
                   ? line.left() > fieldRect.right() && line.right() < labelRect.left()
                   : line.left() > labelRect.right() && line.right() < fieldRect.left();
    };
    QTRY_VERIFY(isInGap());

    m_view->setLabelWidth(60);
    QTRY_VERIFY(isInGap());
    m_view->resize(300, 100);
    QTRY_VERIFY(isInGap());
}

void tst_SplitterHandle::letsTheMouseThrough()
{
    show();
    const int before = label("A title that is long:")->width();
    const QPoint inGap =
        m_view->panel()->mapFrom(m_view.get(), handle()->mapTo(m_view.get(), QPoint(1, 0)));
    const QPoint position(inGap.x(), label("Name:")->geometry().center().y());

    QCOMPARE(m_view->childAt(m_view->panel()->mapTo(m_view.get(), position)), m_view->panel());
    QTest::mousePress(m_view->panel(), Qt::LeftButton, {}, position);
    const QPoint further = position - QPoint(20, 0);
    QMouseEvent move(QEvent::MouseMove, further, m_view->panel()->mapToGlobal(further),
                     Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(m_view->panel(), &move);
    QTest::mouseRelease(m_view->panel(), Qt::LeftButton, {}, further);

    QCOMPARE(m_view->labelWidth(), before - 20);
}

void tst_SplitterHandle::isSeenWithTheFocusOnly()
{
    show();
    const QPoint middle = handle()->rect().center();
    const QRgb highlight = m_view->palette().color(QPalette::Highlight).rgb();
    QVERIFY(colorAt(handle(), middle) != highlight);

    handle()->setFocus();

    QCOMPARE(colorAt(handle(), middle), highlight);
}

void tst_SplitterHandle::followsTheNextPanel()
{
    show();
    m_view->setLabelWidth(60);
    m_view->setProperties(*m_list, m_store.get());
    QTRY_VERIFY(handle());
    handle()->setFocus();

    QTest::keyClick(handle(), Qt::Key_Right);

    QCOMPARE(m_view->labelWidth(), 60 + kStep);
}

void tst_SplitterHandle::takesThePageThatIsShown()
{
    m_list = std::make_unique<PropertyList>();
    m_list->tabs([this] {
        m_list->tab(QStringLiteral("A"), [this] {
            m_list->string(QStringLiteral("a"), QStringLiteral("Of the first page"));
        });
        m_list->tab(QStringLiteral("B"),
                    [this] { m_list->string(QStringLiteral("b"), QStringLiteral("Second")); });
    });
    m_store->reset(*m_list);
    show();
    m_view->findChild<QTabWidget *>()->setCurrentIndex(1);
    const int shown = label("Second:")->width();
    QVERIFY(shown < label("Of the first page:")->width());
    handle()->setFocus();

    QTest::keyClick(handle(), Qt::Key_Right);

    QCOMPARE(m_view->labelWidth(), shown + kStep);
}

void tst_SplitterHandle::screenReadersSeeASplitter()
{
    show();
    QAccessibleInterface *const seen = QAccessible::queryAccessibleInterface(handle());

    QCOMPARE(seen->role(), QAccessible::Splitter);
    QCOMPARE(seen->text(QAccessible::Name), QStringLiteral("Width of labels"));
    QVERIFY(seen->state().focusable);
    QAccessibleValueInterface *const value = seen->valueInterface();
    QVERIFY(value);
    const int width = label("A title that is long:")->width();
    QCOMPARE(value->currentValue().toInt(), width);
    QCOMPARE(seen->text(QAccessible::Value), QString::number(width));
    QCOMPARE(value->minimumValue().toInt(), 24);
    QVERIFY(value->maximumValue().toInt() > width);
    QCOMPARE(value->minimumStepSize().toInt(), 1);
}

void tst_SplitterHandle::screenReadersMoveIt()
{
    show();
    QAccessibleValueInterface *const value =
        QAccessible::queryAccessibleInterface(handle())->valueInterface();

    value->setCurrentValue(70);
    QCOMPARE(m_view->labelWidth(), 70);
    value->setCurrentValue(-5);
    QCOMPARE(m_view->labelWidth(), 24);

    QWidget *const before = handle();
    m_view->clear();
    value->setCurrentValue(70); // nothing to move
    QCOMPARE(value->currentValue().toInt(), 0);
    QTRY_VERIFY(!before->isVisible());
}

void tst_SplitterHandle::nameFollowsTheLanguage()
{
    show();
    const QPointer<QWidget> named = handle();
    {
        const MarkingTranslator translator("Tessark::PropertyHost::SplitterHandle");
        QTRY_COMPARE(named->accessibleName(), QStringLiteral("[Width of labels]"));
    }

    QTRY_COMPARE(named->accessibleName(), QStringLiteral("Width of labels"));
}

QTEST_MAIN(tst_SplitterHandle)
#include "tst_SplitterHandle.moc"
