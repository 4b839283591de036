#include "support/EveryTypePanel.h"

#include <QAbstractButton>
#include <QApplication>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>

#include <algorithm>

using namespace Tessark::PropertyUI;
using TestSupport::EveryTypePanel;

namespace {

QRect placeOf(const QWidget *control, const QWidget *window)
{
    return {control->mapTo(const_cast<QWidget *>(window), QPoint()), control->size()};
}

bool isOnOneLine(const QRect &one, const QRect &other)
{
    const int middle = one.center().y();
    const int otherMiddle = other.center().y();
    return (middle >= other.top() && middle <= other.bottom())
           || (otherMiddle >= one.top() && otherMiddle <= one.bottom());
}

/// Whether a reader comes to next after one: further along the line, or below.
bool isReadAfter(const QRect &next, const QRect &one, bool rightToLeft)
{
    if (!isOnOneLine(one, next))
        return next.top() > one.top();
    return rightToLeft ? next.right() < one.left() : next.left() > one.right();
}

QString nameOf(const QWidget *widget)
{
    return QLatin1String(widget->metaObject()->className()) + QLatin1Char(' ')
           + widget->objectName();
}

} // namespace

class tst_TabOrder : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void tabFollowsTheEye_data();
    void tabFollowsTheEye();

private:
    QVector<QWidget *> walk(Qt::Key key);
    QVector<QWidget *> stops() const;

    std::unique_ptr<EveryTypePanel> m_rows;
};

void tst_TabOrder::init()
{
    m_rows = std::make_unique<EveryTypePanel>();
    // Tab is a character there, deliberately; the walk is to get out all the same.
    m_rows->control<QPlainTextEdit>(QStringLiteral("notes"))->setTabChangesFocus(true);
}

/// Presses the key until the focus is where it was, and tells where it has been.
QVector<QWidget *> tst_TabOrder::walk(Qt::Key key)
{
    QVector<QWidget *> visited;
    QWidget *control = QApplication::focusWidget();
    while (control && !visited.contains(control)) {
        visited.append(control);
        QTest::keyClick(control, key);
        control = QApplication::focusWidget();
    }
    return visited;
}

/// What can be seen and used, and takes the focus by Tab.
QVector<QWidget *> tst_TabOrder::stops() const
{
    QVector<QWidget *> result;
    for (QWidget *widget : m_rows->panel()->findChildren<QWidget *>()) {
        const QWidget *const proxy = widget->focusProxy();
        if (widget->isVisible() && widget->isEnabled() && (widget->focusPolicy() & Qt::TabFocus)
            && !proxy)
            result.append(widget);
    }
    return result;
}

void tst_TabOrder::tabFollowsTheEye_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<int>("page");
    QTest::addColumn<bool>("unfolded");

    for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        for (const int page : {0, 1}) {
            for (const bool unfolded : {false, true}) {
                QTest::addRow("%s, page %d, scale %s",
                              direction == Qt::LeftToRight ? "left to right" : "right to left",
                              page, unfolded ? "unfolded" : "folded")
                    << direction << page << unfolded;
            }
        }
    }
}

void tst_TabOrder::tabFollowsTheEye()
{
    QFETCH(Qt::LayoutDirection, direction);
    QFETCH(int, page);
    QFETCH(bool, unfolded);
    QWidget *const window = m_rows->window();
    window->setLayoutDirection(direction);
    m_rows->control<QTabWidget>(QStringLiteral("views"))->setCurrentIndex(page);
    m_rows->row(QStringLiteral("folded"))->findChild<QAbstractButton *>()->setChecked(unfolded);
    window->resize(700, 3000);
    window->show();
    QVERIFY(QTest::qWaitForWindowActive(window));
    m_rows->panel()->setFocus();

    QVector<QWidget *> forward = walk(Qt::Key_Tab);
    QVector<QWidget *> backward = walk(Qt::Key_Backtab);

    QCOMPARE(forward.first(), m_rows->panel());
    QVector<QWidget *> controls = forward.mid(1);
    const bool rightToLeft = direction == Qt::RightToLeft;
    for (int i = 1; i < controls.size(); ++i) {
        const QRect one = placeOf(controls.at(i - 1), window);
        const QRect next = placeOf(controls.at(i), window);
        QVERIFY2(isReadAfter(next, one, rightToLeft),
                 qPrintable(nameOf(controls.at(i)) + QStringLiteral(" after ")
                            + nameOf(controls.at(i - 1))));
    }

    std::reverse(backward.begin() + 1, backward.end());
    QCOMPARE(backward, forward);

    for (QWidget *stop : stops())
        QVERIFY2(controls.contains(stop), qPrintable(nameOf(stop)));
}

QTEST_MAIN(tst_TabOrder)
#include "tst_TabOrder.moc"
