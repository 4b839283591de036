#include "SoakHost.h"

#include <core/DisclosureButton.h>

#include <QDoubleSpinBox>
#include <QTabWidget>
#include <QTest>
#include <QVBoxLayout>

#include <memory>

using namespace Tessark::PropertyUI;
using namespace Soak;

namespace {

constexpr int kScaleX = 3; // its place among the fields
constexpr int kScaleY = 4;

/// A window with the soak's panel, at the page of the transforms.
struct Subject
{
    explicit Subject(quint64 seed);

    QDoubleSpinBox *field(int index) const;
    void stepUp(int index);

    /// A click with the host's answers at their own time.
    void click() { QTest::mouseClick(toggle, Qt::LeftButton); }

    Random random;
    Rows rows;
    SoakHost host;
    QWidget window;
    Tessark::UI::DisclosureButton *toggle = nullptr;
};

Subject::Subject(quint64 seed)
    : random(seed)
    , host(rows, random)
{
    auto *const panel = new SoakPanel(rows, &host);
    host.watch(panel);
    auto *const layout = new QVBoxLayout(&window);
    layout->addWidget(panel);
    auto *const tabs = panel->findChild<QTabWidget *>();
    tabs->setCurrentIndex(tabs->count() - 1);
    toggle = tabs->currentWidget()->findChild<Tessark::UI::DisclosureButton *>();
    window.show();
    window.activateWindow();
    host.reset();
    QCoreApplication::processEvents();
}

QDoubleSpinBox *Subject::field(int index) const
{
    return toggle->parentWidget()->findChildren<QDoubleSpinBox *>().at(index);
}

void Subject::stepUp(int index)
{
    field(index)->setFocus();
    QTest::keyClick(field(index), Qt::Key_Up);
}

} // namespace

/// What the soak's host knows of editors that tell it less than they show.
class tst_SoakHost : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void foldedScaleIsAsTheHostGivesIt_data() { addSeeds(); }
    void foldedScaleIsAsTheHostGivesIt();
    void unfoldedScaleYIsAsItWas_data() { addSeeds(); }
    void unfoldedScaleYIsAsItWas();
    void foldedAndUnfoldedAtOnce_data() { addSeeds(); }
    void foldedAndUnfoldedAtOnce();
    void otherNumbersMustStay();

private:
    static void addSeeds();
};

/// With some of them the host answers at once, with others not.
void tst_SoakHost::addSeeds()
{
    QTest::addColumn<quint64>("seed");
    for (quint64 seed = 1; seed <= 8; ++seed)
        QTest::addRow("seed %d", int(seed)) << seed;
}

void tst_SoakHost::foldedScaleIsAsTheHostGivesIt()
{
    QFETCH(quint64, seed);
    Subject subject(seed);
    subject.click();
    subject.stepUp(kScaleX); // to 1.049999, which is more decimals than the field shows
    QCOMPARE(subject.field(kScaleX)->value(), 1.049999);
    const qint64 changes = subject.host.changes();

    subject.click();

    QCOMPARE(subject.host.changes(), changes + 1);
    subject.host.check(true);
    QCOMPARE(subject.host.faults().join(QLatin1Char('\n')), QString());
}

void tst_SoakHost::unfoldedScaleYIsAsItWas()
{
    QFETCH(quint64, seed);
    Subject subject(seed);
    subject.stepUp(kScaleX);
    QCOMPARE(subject.field(kScaleY)->value(), 1.0);
    const qint64 changes = subject.host.changes();

    subject.click();

    QCOMPARE(subject.host.changes(), changes);
    subject.host.check(true);
    QCOMPARE(subject.host.faults().join(QLatin1Char('\n')), QString());
}

void tst_SoakHost::foldedAndUnfoldedAtOnce()
{
    QFETCH(quint64, seed);
    Subject subject(seed);
    subject.click();
    subject.stepUp(kScaleX);

    QTest::mouseDClick(subject.toggle, Qt::LeftButton);

    QVERIFY(subject.toggle->isChecked());
    subject.host.check(true);
    QCOMPARE(subject.host.faults().join(QLatin1Char('\n')), QString());
}

/// What the host does not know of, it does not take from the fields.
void tst_SoakHost::otherNumbersMustStay()
{
    Subject subject(1);
    {
        const QSignalBlocker blocker(subject.field(0));
        subject.field(0)->setValue(0.5);
    }

    subject.click();

    QCOMPARE(subject.host.faults().size(), 1);
    QVERIFY(subject.host.faults().constFirst().contains(QLatin1String("more than scale Y")));
}

QTEST_MAIN(tst_SoakHost)
#include "tst_SoakHost.moc"
