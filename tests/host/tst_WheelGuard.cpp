#include <host/WheelGuard.h>

#include <support/Wheel.h>

#include <QComboBox>
#include <QDial>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QSlider>
#include <QSpinBox>
#include <QTest>
#include <QVBoxLayout>

#include <functional>
#include <memory>

using Tessark::PropertyHost::WheelGuard;

namespace {

/// Notes the wheel events that its children pass on.
class WheelPad final : public QWidget
{
public:
    int turns = 0;

protected:
    void wheelEvent(QWheelEvent *event) override
    {
        ++turns;
        event->accept();
    }
};

using MakeControl = std::function<QWidget *()>;
using ReadValue = std::function<int(QWidget *)>;

} // namespace

Q_DECLARE_METATYPE(MakeControl)
Q_DECLARE_METATYPE(ReadValue)

class tst_WheelGuard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void wheelPassesByControl_data();
    void wheelPassesByControl();
    void focusedControlTakesTheWheel_data() { wheelPassesByControl_data(); }
    void focusedControlTakesTheWheel();
    void isSwitchedOffAndOn_data() { wheelPassesByControl_data(); }
    void isSwitchedOffAndOn();
    void leavesWithControlsAsTheyWere_data() { wheelPassesByControl_data(); }
    void leavesWithControlsAsTheyWere();
    void watchesControlsThatComeLater();
    void watchingTwiceIsOnce();
    void controlsMayGo();
    void otherScrollingStays();
    void nullIsNothing();

private:
    QWidget *add();

    std::unique_ptr<WheelPad> m_pad;
    QWidget *m_control = nullptr;
    QLineEdit *m_other = nullptr;
};

void tst_WheelGuard::init()
{
    m_pad = std::make_unique<WheelPad>();
    auto *const layout = new QVBoxLayout(m_pad.get());
    m_other = new QLineEdit;
    layout->addWidget(m_other);
}

void tst_WheelGuard::cleanup()
{
    m_pad.reset();
}

/// The control of the row, shown in an active window, without the focus.
QWidget *tst_WheelGuard::add()
{
    QFETCH(MakeControl, make);
    m_control = make();
    m_pad->layout()->addWidget(m_control);
    m_pad->show();
    m_pad->activateWindow();
    [&] { QVERIFY(QTest::qWaitForWindowActive(m_pad.get())); }();
    m_other->setFocus();
    return m_control;
}

void tst_WheelGuard::wheelPassesByControl_data()
{
    QTest::addColumn<MakeControl>("make");
    QTest::addColumn<ReadValue>("read");

    const ReadValue ofSlider = [](QWidget *control) {
        return qobject_cast<QAbstractSlider *>(control)->value();
    };
    const ReadValue ofBox = [](QWidget *control) {
        return qobject_cast<QSpinBox *>(control)->value();
    };
    const ReadValue ofCombo = [](QWidget *control) {
        return qobject_cast<QComboBox *>(control)->currentIndex();
    };
    QTest::newRow("slider") << MakeControl([] { return new QSlider(Qt::Horizontal); }) << ofSlider;
    QTest::newRow("dial") << MakeControl([] { return new QDial; }) << ofSlider;
    QTest::newRow("spin box") << MakeControl([] { return new QSpinBox; }) << ofBox;
    const auto makeCombo = [](bool editable) {
        return MakeControl([editable] {
            auto *const combo = new QComboBox;
            combo->addItems({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")});
            combo->setCurrentIndex(2);
            combo->setEditable(editable);
            return combo;
        });
    };
    QTest::newRow("combo box") << makeCombo(false) << ofCombo;
    QTest::newRow("editable combo box") << makeCombo(true) << ofCombo;
}

void tst_WheelGuard::wheelPassesByControl()
{
    QFETCH(ReadValue, read);
    WheelGuard guard;
    QWidget *const control = add();
    guard.watch(m_pad.get());
    const int before = read(control);

    turnWheelOver(control);

    QCOMPARE(read(control), before);
    QCOMPARE(m_pad->turns, 1);
    QVERIFY(!control->hasFocus());
    QVERIFY(m_other->hasFocus());
}

void tst_WheelGuard::focusedControlTakesTheWheel()
{
    QFETCH(ReadValue, read);
    WheelGuard guard;
    QWidget *const control = add();
    guard.watch(m_pad.get());
    const int before = read(control);
    control->setFocus();
    QTRY_VERIFY(control->hasFocus());

    turnWheelOver(control);

    QVERIFY(read(control) != before);
    QCOMPARE(m_pad->turns, 0);
}

void tst_WheelGuard::isSwitchedOffAndOn()
{
    QFETCH(ReadValue, read);
    WheelGuard guard;
    QVERIFY(guard.isEnabled());
    QWidget *const control = add();
    guard.setEnabled(false);
    guard.watch(m_pad.get());
    const int before = read(control);

    turnWheelOver(control);
    const int turned = read(control);
    QVERIFY(turned != before);

    guard.setEnabled(true);
    m_other->setFocus();
    turnWheelOver(control);
    QCOMPARE(read(control), turned);
    QVERIFY(!control->hasFocus());
}

void tst_WheelGuard::leavesWithControlsAsTheyWere()
{
    QFETCH(ReadValue, read);
    QWidget *const control = add();
    const Qt::FocusPolicy policy = control->focusPolicy();
    {
        WheelGuard guard;
        guard.watch(m_pad.get());
    }
    const int before = read(control);

    turnWheelOver(control);

    QCOMPARE(control->focusPolicy(), policy);
    QVERIFY(read(control) != before);
}

void tst_WheelGuard::watchesControlsThatComeLater()
{
    WheelGuard guard;
    guard.watch(m_pad.get());
    auto *const box = new QSpinBox;
    m_pad->layout()->addWidget(box);
    guard.watch(m_pad.get());
    m_pad->show();

    turnWheelOver(box);

    QCOMPARE(box->value(), 0);
}

void tst_WheelGuard::watchingTwiceIsOnce()
{
    auto *const box = new QSpinBox(m_pad.get());
    {
        WheelGuard guard;
        guard.watch(box);
        guard.watch(m_pad.get());
    }

    QCOMPARE(box->focusPolicy(), Qt::WheelFocus);
}

void tst_WheelGuard::controlsMayGo()
{
    WheelGuard guard;
    auto *const box = new QSpinBox(m_pad.get());
    guard.watch(m_pad.get());

    delete box;

    guard.setEnabled(false);
    guard.setEnabled(true);
    guard.watch(m_pad.get());
    m_pad.reset();
    guard.setEnabled(false);
    QVERIFY(!guard.isEnabled());
}

void tst_WheelGuard::otherScrollingStays()
{
    WheelGuard guard;
    auto *const text = new QPlainTextEdit;
    text->setPlainText(QStringLiteral("line\n").repeated(200));
    m_pad->layout()->addWidget(text);
    m_pad->resize(200, 150);
    m_pad->show();
    guard.watch(m_pad.get());

    turnWheelAt(text->viewport(), text->viewport()->rect().center(), -120);

    QVERIFY(text->verticalScrollBar()->value() > 0);
    QCOMPARE(m_pad->turns, 0);
}

void tst_WheelGuard::nullIsNothing()
{
    WheelGuard guard;

    guard.watch(nullptr);

    QVERIFY(guard.isEnabled());
}

QTEST_MAIN(tst_WheelGuard)
#include "tst_WheelGuard.moc"
