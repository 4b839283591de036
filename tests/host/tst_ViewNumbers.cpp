#include "support/ViewBench.h"

#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QMouseEvent>

#include <memory>

using namespace Tessark::PropertyHost;
using TestSupport::settleEvents;
using TestSupport::ViewBench;

namespace {

QString text(const char *letters)
{
    return QString::fromUtf8(letters);
}

void send(QWidget *widget, QEvent::Type type, const QPoint &position, Qt::MouseButton button,
          Qt::MouseButtons buttons)
{
    QMouseEvent event(type, position, widget->mapToGlobal(position), button, buttons,
                      Qt::NoModifier);
    QApplication::sendEvent(widget, &event);
}

/// By 60 pixels toward the end of the line.
void dragOn(QWidget *label)
{
    const QPoint start = label->rect().center();
    send(label, QEvent::MouseButtonPress, start, Qt::LeftButton, Qt::LeftButton);
    for (int moved = 20; moved <= 60; moved += 20)
        send(label, QEvent::MouseMove, start + QPoint(moved, 0), Qt::NoButton, Qt::LeftButton);
    send(label, QEvent::MouseButtonRelease, start + QPoint(60, 0), Qt::LeftButton, Qt::NoButton);
}

} // namespace

/// Numbers by hand in a view: what LabelScrubber and NumberEntry do is theirs to test.
class tst_ViewNumbers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void bothAreOffAtFirst();
    void labelsAreScrubbedOnDemand();
    void fieldsTakeArithmeticOnDemand();
    void bothStayForOtherProperties();
    void bothCanBeMadeBeforeProperties();

private:
    void typeSum();
    double level() { return m_bench->value("level").toDouble(); }

    std::unique_ptr<ViewBench> m_bench;
};

void tst_ViewNumbers::init()
{
    m_bench = std::make_unique<ViewBench>();
    m_bench->list.number(text("level"), text("Level")).range(0, 100).defaultValue(10);
}

void tst_ViewNumbers::cleanup()
{
    m_bench.reset();
}

/// Into the field, which is left then.
void tst_ViewNumbers::typeSum()
{
    auto *const field = m_bench->control<QDoubleSpinBox>("level");
    field->setFocus();
    field->selectAll();
    QTest::keyClicks(field, text("20*2+2"));
    QTest::keyClick(field, Qt::Key_Return);
    m_bench->view->panel()->setFocus();
}

void tst_ViewNumbers::bothAreOffAtFirst()
{
    m_bench->show();
    QVERIFY(!m_bench->view->isLabelScrubbing());
    QVERIFY(!m_bench->view->isArithmeticEntry());

    dragOn(m_bench->label("level"));
    QCOMPARE(level(), 10.0);

    typeSum();
    QVERIFY(level() != 42.0);
}

void tst_ViewNumbers::labelsAreScrubbedOnDemand()
{
    m_bench->show();

    m_bench->view->setLabelScrubbing(true);
    QVERIFY(m_bench->view->isLabelScrubbing());
    dragOn(m_bench->label("level"));
    const double scrubbed = level();
    QVERIFY(scrubbed > 10);
    QCOMPARE(m_bench->stack.count(), 1);

    m_bench->view->setLabelScrubbing(false);
    dragOn(m_bench->label("level"));
    QCOMPARE(level(), scrubbed);
}

void tst_ViewNumbers::fieldsTakeArithmeticOnDemand()
{
    m_bench->show();

    m_bench->view->setArithmeticEntry(true);
    QVERIFY(m_bench->view->isArithmeticEntry());
    typeSum();
    QCOMPARE(level(), 42.0);

    m_bench->view->setArithmeticEntry(false);
    m_bench->hold("level", 10.0);
    m_bench->view->updateUI();
    typeSum();
    QVERIFY(level() != 42.0);
}

void tst_ViewNumbers::bothStayForOtherProperties()
{
    m_bench->view->setLabelScrubbing(true);
    m_bench->view->setArithmeticEntry(true);
    m_bench->show();

    m_bench->view->setProperties(m_bench->list, &m_bench->undo);
    settleEvents();

    dragOn(m_bench->label("level"));
    QVERIFY(level() > 10);
    typeSum();
    QCOMPARE(level(), 42.0);
}

void tst_ViewNumbers::bothCanBeMadeBeforeProperties()
{
    QVERIFY(m_bench->view->setProperty("labelScrubbing", true));
    QVERIFY(m_bench->view->setProperty("arithmeticEntry", true));

    m_bench->show();

    dragOn(m_bench->label("level"));
    QVERIFY(level() > 10);
    typeSum();
    QCOMPARE(level(), 42.0);
}

QTEST_MAIN(tst_ViewNumbers)
#include "tst_ViewNumbers.moc"
