// What assistive technology is told while it listens: on an X server with an accessibility bus, since
// only there does Qt tell anything.

#include "support/EveryTypePanel.h"
#include "support/SessionBus.h"

#include <core/ColorWheel.h>

#include <QAbstractSpinBox>
#include <QAccessible>
#include <QComboBox>
#include <QLineEdit>
#include <QSet>
#include <QSlider>

#include <functional>

using namespace Tessark;
using TestSupport::EveryTypePanel;

namespace {

std::function<void(QAccessibleEvent *)> s_onEvent;

void passOn(QAccessibleEvent *event)
{
    if (s_onEvent)
        s_onEvent(event);
}

/// Notes which widgets told another value, and the last one that each told.
class ValueLog
{
public:
    ValueLog()
    {
        s_onEvent = [this](const QAccessibleEvent *event) {
            if (event->type() == QAccessible::ValueChanged && event->child() < 0)
                m_values[event->object()] =
                    static_cast<const QAccessibleValueChangeEvent *>(event)->value();
        };
    }

    ~ValueLog() { s_onEvent = nullptr; }

    /// Invalid where it told nothing.
    QVariant of(const QWidget *widget) const { return m_values.value(widget); }

private:
    QHash<const QObject *, QVariant> m_values;
};

} // namespace

class tst_AccessibilityEvents : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void panelsAreNamed();
    void panelDeletedByAListener();
    void valueChangesAreTold_data();
    void valueChangesAreTold();
    void editsOfAFieldAreTold();
    void unchangedValuesAreNotTold();
    void wheelTellsItsColor();

private:
    std::unique_ptr<EveryTypePanel> m_rows;
};

void tst_AccessibilityEvents::initTestCase()
{
    QTRY_VERIFY2_WITH_TIMEOUT(QAccessible::isActive(), "Qt has not found the accessibility bus",
                              30000);
    QAccessible::installUpdateHandler(passOn);
}

void tst_AccessibilityEvents::init()
{
    m_rows = std::make_unique<EveryTypePanel>();
}

void tst_AccessibilityEvents::cleanup()
{
    s_onEvent = nullptr;
    m_rows.reset();
}

void tst_AccessibilityEvents::panelsAreNamed()
{
    QCoreApplication::sendPostedEvents();

    auto *const edit = m_rows->control<QLineEdit>(QStringLiteral("title"));
    QCOMPARE(QAccessible::queryAccessibleInterface(edit)->text(QAccessible::Name),
             QStringLiteral("Title"));
}

void tst_AccessibilityEvents::panelDeletedByAListener()
{
    int names = 0;
    s_onEvent = [this, &names](const QAccessibleEvent *event) {
        if (event->type() == QAccessible::NameChanged && ++names == 5)
            delete m_rows->panel();
    };

    QCoreApplication::sendPostedEvents();

    QVERIFY(!m_rows->panel());
    QCOMPARE(names, 5);
}

void tst_AccessibilityEvents::valueChangesAreTold_data()
{
    QTest::addColumn<QString>("row");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<double>("told");

    QTest::newRow("float") << "gain" << QVariant(7.5) << 7.5;
    QTest::newRow("logarithmic float") << "rate" << QVariant(10.0) << 10.0;
    QTest::newRow("int") << "frames" << QVariant(30) << 30.0;
    QTest::newRow("percent") << "volume" << QVariant(0.25) << 25.0;
    QTest::newRow("vector") << "position" << QVariant(QVector3D(3, 2, 1)) << 3.0;
    QTest::newRow("color") << "tint" << QVariant(QColor(Qt::white)) << 1.0;
}

/// A host's refresh is told too, by field and slider.
void tst_AccessibilityEvents::valueChangesAreTold()
{
    QFETCH(QString, row);
    QFETCH(QVariant, value);
    QFETCH(double, told);
    const ValueLog log;

    m_rows->delegate().values[row] = value;
    m_rows->panel()->updateUI();

    QCOMPARE(log.of(m_rows->control<QAbstractSpinBox>(row)).toDouble(), told);
    QCOMPARE(log.of(m_rows->control<QSlider>(row)).toDouble(), told);
}

void tst_AccessibilityEvents::editsOfAFieldAreTold()
{
    QCoreApplication::sendPostedEvents();
    auto *const field = m_rows->control<QAbstractSpinBox>(QStringLiteral("gain"));
    const ValueLog log;

    QTest::keyClick(field, Qt::Key_Up);
    QCOMPARE(log.of(field).toDouble(), 2.6);
    QCOMPARE(log.of(m_rows->control<QSlider>(QStringLiteral("gain"))).toDouble(), 2.6);

    field->selectAll();
    QTest::keyClicks(field, QStringLiteral("7"));
    QCOMPARE(log.of(field).toDouble(), 7.0);
}

void tst_AccessibilityEvents::unchangedValuesAreNotTold()
{
    const ValueLog log;

    m_rows->panel()->updateUI();

    for (const QWidget *widget : m_rows->panel()->findChildren<QWidget *>())
        QVERIFY2(!log.of(widget).isValid(), widget->metaObject()->className());
}

void tst_AccessibilityEvents::wheelTellsItsColor()
{
    const ValueLog log;

    m_rows->delegate().values[QStringLiteral("tint")] = QColor(Qt::red);
    m_rows->panel()->updateUI();

    auto *const wheel = m_rows->control<UI::ColorWheel>(QStringLiteral("tint"));
    QCOMPARE(log.of(wheel).toString(),
             QStringLiteral("Hue 0 degrees, saturation 100 percent, brightness 100 percent"));
}

int main(int argc, char **argv)
{
    qputenv("QT_LINUX_ACCESSIBILITY_ALWAYS_ON", "1");
    return runOnSessionBus([&](const SessionBus &) {
        const QApplication application(argc, argv);
        tst_AccessibilityEvents test;
        return QTest::qExec(&test, argc, argv);
    });
}

#include "tst_AccessibilityEvents.moc"
