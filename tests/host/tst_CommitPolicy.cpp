#include <host/CommitPolicy.h>
#include <property/PropertyUI.h>

#include "support/PropertySet.h"
#include "support/RecordingDelegate.h"
#include "support/SliderDrag.h"

#include <QDoubleSpinBox>
#include <QElapsedTimer>
#include <QSlider>
#include <QTest>

#include <memory>

using namespace Tessark::PropertyUI;
using Tessark::PropertyHost::CommitMode;
using Tessark::PropertyHost::CommitPolicy;
using TestSupport::RecordingDelegate;

namespace {

constexpr auto kNew = IPropertyEditorDelegate::NewChange;
constexpr auto kContinued = IPropertyEditorDelegate::ContinuedChange;
const QString kA = QStringLiteral("a");
const QString kB = QStringLiteral("b");

class ObjectDelegate : public QObject, public RecordingDelegate
{
};

/// Two number rows in a shown panel whose edits go through a policy.
struct Subject
{
    Subject()
        : a(set.add(kA, kPropertyTypeFloat))
        , b(set.add(kB, kPropertyTypeFloat))
        , policy(std::make_unique<CommitPolicy>(&delegate))
    {
        a.setRange(0.0, 1.0);
        b.setRange(0.0, 1.0);
        delegate.values = {{kA, 0.0}, {kB, 0.0}};
    }

    Subject(const Subject &) = delete;
    Subject &operator=(const Subject &) = delete;

    void show()
    {
        panel = std::make_unique<PropertyEditorPanel>(set.list(), policy.get(), nullptr);
        policy->watch(panel.get());
        panel->updateUI();
        panel->resize(500, panel->sizeHint().height());
        panel->show();
        panel->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(panel.get()));
        delegate.changes.clear();
    }

    QSlider *slider(int row) const { return panel->findChildren<QSlider *>().at(row); }
    QDoubleSpinBox *spinBox(int row) const
    {
        return panel->findChildren<QDoubleSpinBox *>().at(row);
    }

    /// What the inner delegate was told, but for its first calls.
    QString log(int skipped = 0) const
    {
        return QStringList(delegate.log().mid(skipped)).join(QLatin1Char(' '));
    }

    TestSupport::PropertySet set;
    Property &a;
    Property &b;
    RecordingDelegate delegate;
    std::unique_ptr<CommitPolicy> policy;
    std::unique_ptr<PropertyEditorPanel> panel;
};

} // namespace

class tst_CommitPolicy : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void modesFromText_data();
    void modesFromText();
    void ratesAreBroughtIntoRange();
    void liveIsTheDefault();
    void ownModeWinsOverTheDefault();
    void limitedEditsPassAtTheirRate();
    void limitedRunsBeginWithANewChange();
    void lastLimitedEditPasses();
    void waitingEditIsTheValue();
    void otherPropertyLetsTheWaitingEditPass();
    void editIsTheValueWhileTheWaitingOnePasses();
    void changeOfModeLetsTheWaitingEditPass();
    void flushPassesOnce();
    void clicksPassAtOnce_data();
    void clicksPassAtOnce();
    void forgottenEditDoesNotPass();
    void propertyForgottenInItsRun();
    void destructionLetsTheWaitingEditPass();
    void dragPassesWhenItEnds();
    void refreshInADragKeepsTheControl();
    void typingPassesOnReturn();
    void typingPassesWhenTheFieldIsLeft();
    void wheelOutsideOfARunPassesAtOnce();
    void unwatchedPanelIsLive();
    void deletedPanelEndsItsRun();
    void goneInnerDelegateIsNotCalled();
    void policyMayBeDeletedInTheCallback();
    void callbackMayEditAnotherProperty();
};

void tst_CommitPolicy::initTestCase()
{
    QLocale::setDefault(QLocale::c());
}

void tst_CommitPolicy::modesFromText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("known");
    QTest::addColumn<int>("interval");
    QTest::addColumn<bool>("atEnd");

    const auto row = [](const char *text, bool known, int interval = 0, bool atEnd = false) {
        QTest::newRow(text) << QString::fromLatin1(text) << known << interval << atEnd;
    };
    row("live", true);
    row("end", true, 0, true);
    row("rate:1", true, 1000);
    row("rate:3", true, 334);
    row("rate:1000", true, 1);
    row("rate:0", false);
    row("rate:-1", false);
    row("rate:1001", false);
    row("rate:", false);
    row("rate:5.5", false);
    row("rate", false);
    row("Live", false);
    row("", false);
}

void tst_CommitPolicy::modesFromText()
{
    QFETCH(QString, text);
    QFETCH(bool, known);
    QFETCH(int, interval);
    QFETCH(bool, atEnd);

    const auto mode = CommitMode::fromString(text);

    QCOMPARE(mode.has_value(), known);
    if (!known)
        return;
    QCOMPARE(mode->interval(), interval);
    QCOMPARE(mode->isAtEndOfRun(), atEnd);
    QCOMPARE(mode->isLive(), interval == 0 && !atEnd);
}

void tst_CommitPolicy::ratesAreBroughtIntoRange()
{
    QCOMPARE(CommitMode::atMost(0), CommitMode::atMost(1));
    QCOMPARE(CommitMode::atMost(-7), CommitMode::atMost(1));
    QCOMPARE(CommitMode::atMost(5000), CommitMode::atMost(1000));
    QVERIFY(CommitMode::atMost(2) != CommitMode::live());
}

void tst_CommitPolicy::liveIsTheDefault()
{
    Subject subject;

    subject.policy->setValue(&subject.a, 0.25, kNew);
    subject.policy->setValue(&subject.a, 0.5, kContinued);

    QVERIFY(subject.policy->defaultMode().isLive());
    QVERIFY(subject.policy->mode(&subject.a).isLive());
    QCOMPARE(subject.log(), QStringLiteral("a=0.25/0 a=0.5/1"));
    QVERIFY(!subject.policy->hasPending());
}

void tst_CommitPolicy::ownModeWinsOverTheDefault()
{
    Subject subject;
    subject.policy->setDefaultMode(CommitMode::atMost(1));
    subject.policy->setMode(&subject.b, CommitMode::live());

    for (const double value : {0.25, 0.5, 0.75}) {
        subject.policy->setValue(&subject.b, value, kNew);
        QVERIFY(!subject.policy->hasPending());
    }

    QCOMPARE(subject.policy->mode(&subject.a), CommitMode::atMost(1));
    QCOMPARE(subject.delegate.changes.size(), 3);
}

void tst_CommitPolicy::limitedEditsPassAtTheirRate()
{
    constexpr int kRate = 50;
    Subject subject;
    subject.policy->setMode(&subject.a, CommitMode::atMost(kRate));

    QElapsedTimer clock;
    clock.start();
    int edits = 0;
    while (clock.elapsed() < 300) {
        subject.policy->setValue(&subject.a, edits + 1, edits == 0 ? kNew : kContinued);
        ++edits;
        QTest::qWait(1);
    }
    QTRY_VERIFY(!subject.policy->hasPending());

    const qint64 elapsed = clock.elapsed();
    const auto passed = subject.delegate.changes.size();
    QVERIFY2(passed <= elapsed * kRate / 1000 + 1, qPrintable(QString::number(passed)));
    QVERIFY(passed >= 2);
    QCOMPARE(subject.delegate.changes.last().value.toInt(), edits);
}

void tst_CommitPolicy::limitedRunsBeginWithANewChange()
{
    Subject subject;
    subject.policy->setMode(&subject.a, CommitMode::atMost(20));

    subject.policy->setValue(&subject.a, 1, kNew);
    subject.policy->setValue(&subject.a, 2, kContinued);
    subject.policy->setValue(&subject.a, 3, kContinued);
    QTRY_VERIFY(!subject.policy->hasPending());
    QCOMPARE(subject.log(), QStringLiteral("a=1/0 a=3/1"));

    // Two runs before the next may pass: one new change.
    subject.policy->setValue(&subject.a, 4, kContinued);
    subject.policy->setValue(&subject.a, 5, kNew);
    subject.policy->setValue(&subject.a, 6, kContinued);
    QTRY_VERIFY(!subject.policy->hasPending());
    QCOMPARE(subject.delegate.log().last(), QStringLiteral("a=6/0"));
}

void tst_CommitPolicy::lastLimitedEditPasses()
{
    Subject subject;
    subject.policy->setMode(&subject.a, CommitMode::atMost(10));

    subject.policy->setValue(&subject.a, 1, kNew);
    subject.policy->setValue(&subject.a, 2, kContinued);
    QVERIFY(subject.policy->hasPending());
    QCOMPARE(subject.log(), QStringLiteral("a=1/0"));

    QTRY_COMPARE(subject.log(), QStringLiteral("a=1/0 a=2/1"));
    QTest::qWait(250);
    QCOMPARE(subject.delegate.changes.size(), 2);
}

void tst_CommitPolicy::waitingEditIsTheValue()
{
    Subject subject;
    subject.policy->setMode(&subject.a, CommitMode::atMost(1));
    QCOMPARE(subject.policy->value(&subject.a), QVariant(0.0));

    subject.policy->setValue(&subject.a, 1, kNew);
    subject.policy->setValue(&subject.a, 2, kContinued);

    QCOMPARE(subject.policy->value(&subject.a), QVariant(2));
    QCOMPARE(subject.delegate.values.value(kA), QVariant(1));
    QCOMPARE(subject.policy->value(&subject.b), QVariant(0.0));
}

void tst_CommitPolicy::otherPropertyLetsTheWaitingEditPass()
{
    Subject subject;
    subject.policy->setDefaultMode(CommitMode::atMost(1));

    subject.policy->setValue(&subject.a, 1, kNew);
    subject.policy->setValue(&subject.a, 2, kContinued);
    subject.policy->setValue(&subject.b, 3, kNew);

    QCOMPARE(subject.log(), QStringLiteral("a=1/0 a=2/1 b=3/0"));
}

/// The host may refresh the panel for an edit that passes before another one.
void tst_CommitPolicy::editIsTheValueWhileTheWaitingOnePasses()
{
    Subject subject;
    subject.policy->setDefaultMode(CommitMode::atMost(1));
    subject.policy->setValue(&subject.a, 1, kNew);
    subject.policy->setValue(&subject.a, 2, kContinued);
    QVariant seen;
    subject.delegate.onSetValue = [&] {
        subject.delegate.onSetValue = {};
        seen = subject.policy->value(&subject.b);
    };

    subject.policy->setValue(&subject.b, 3, kNew);

    QCOMPARE(subject.log(), QStringLiteral("a=1/0 a=2/1 b=3/0"));
    QCOMPARE(seen, QVariant(3));
}

void tst_CommitPolicy::changeOfModeLetsTheWaitingEditPass()
{
    Subject subject;
    subject.policy->setDefaultMode(CommitMode::atMost(1));
    subject.policy->setValue(&subject.a, 1, kNew);
    subject.policy->setValue(&subject.a, 2, kContinued);

    subject.policy->setMode(&subject.a, CommitMode::live());
    QCOMPARE(subject.log(), QStringLiteral("a=1/0 a=2/1"));

    subject.policy->setValue(&subject.b, 3, kNew);
    subject.policy->setValue(&subject.b, 4, kContinued);
    subject.policy->setDefaultMode(CommitMode::live());
    QCOMPARE(subject.log(2), QStringLiteral("b=3/0 b=4/1"));
}

void tst_CommitPolicy::flushPassesOnce()
{
    Subject subject;
    subject.policy->setDefaultMode(CommitMode::atMost(10));
    subject.policy->setValue(&subject.a, 1, kNew);
    subject.policy->setValue(&subject.a, 2, kContinued);

    subject.policy->flush();
    subject.policy->flush();
    QTest::qWait(250);

    QCOMPARE(subject.log(), QStringLiteral("a=1/0 a=2/1"));
}

void tst_CommitPolicy::clicksPassAtOnce_data()
{
    QTest::addColumn<QString>("type");

    QTest::newRow("on an action") << kPropertyTypeAction;
    QTest::newRow("on a group") << kPropertyTypeBeginGroup;
    QTest::newRow("on a tab") << kPropertyTypeBeginTabGroup;
}

void tst_CommitPolicy::clicksPassAtOnce()
{
    QFETCH(QString, type);
    Subject subject;
    Property row(QStringLiteral("go"), QString(), type);
    subject.policy->setDefaultMode(CommitMode::atMost(1));
    QVERIFY(subject.policy->mode(&row).isLive());

    for (int click = 0; click < 3; ++click)
        subject.policy->setValue(&row, click, kNew);
    QCOMPARE(subject.log(), QStringLiteral("go=0/0 go=1/0 go=2/0"));

    subject.policy->setMode(&row, CommitMode::atMost(1));
    subject.policy->setValue(&row, 3, kNew);
    subject.policy->setValue(&row, 4, kNew);
    QCOMPARE(subject.log(3), QStringLiteral("go=3/0"));
}

void tst_CommitPolicy::forgottenEditDoesNotPass()
{
    Subject subject;
    subject.policy->setMode(&subject.a, CommitMode::atMost(10));
    subject.policy->setValue(&subject.a, 1, kNew);
    subject.policy->setValue(&subject.a, 2, kContinued);

    subject.policy->forget(&subject.a);
    QTest::qWait(250);

    QCOMPARE(subject.log(), QStringLiteral("a=1/0"));
    QVERIFY(subject.policy->mode(&subject.a).isLive());
    QCOMPARE(subject.policy->value(&subject.a), QVariant(1));
}

void tst_CommitPolicy::propertyForgottenInItsRun()
{
    Subject subject;
    subject.policy->setDefaultMode(CommitMode::atEndOfRun());
    subject.show();
    SliderDrag drag(subject.slider(0));
    drag.press();
    drag.moveBy(40);
    QVERIFY(subject.policy->hasPending());

    subject.policy->forget(&subject.a);
    subject.policy->setValue(&subject.a, 0.5, kNew); // as outside of a run
    drag.release();

    QCOMPARE(subject.log(), QStringLiteral("a=0.5/0"));
    QVERIFY(!subject.policy->hasPending());
}

void tst_CommitPolicy::destructionLetsTheWaitingEditPass()
{
    Subject subject;
    subject.policy->setDefaultMode(CommitMode::atMost(1));
    subject.policy->setValue(&subject.a, 1, kNew);
    subject.policy->setValue(&subject.a, 2, kContinued);

    subject.policy.reset();

    QCOMPARE(subject.log(), QStringLiteral("a=1/0 a=2/1"));
}

void tst_CommitPolicy::dragPassesWhenItEnds()
{
    Subject subject;
    subject.policy->setDefaultMode(CommitMode::atEndOfRun());
    subject.show();

    SliderDrag drag(subject.slider(0));
    drag.press();
    drag.moveBy(20);
    drag.moveBy(20);
    QVERIFY(subject.policy->hasPending());
    QCOMPARE(subject.delegate.changes.size(), 0);
    drag.release();

    QCOMPARE(subject.delegate.changes.size(), 1);
    QCOMPARE(subject.delegate.changes.first().flags, int(kNew));
    QCOMPARE(subject.delegate.values.value(kA).toDouble(), subject.spinBox(0)->value());
    QVERIFY(subject.spinBox(0)->value() > 0);
}

void tst_CommitPolicy::refreshInADragKeepsTheControl()
{
    Subject subject;
    subject.policy->setDefaultMode(CommitMode::atEndOfRun());
    subject.show();

    SliderDrag drag(subject.slider(0));
    drag.press();
    drag.moveBy(40);
    const double shown = subject.spinBox(0)->value();
    QVERIFY(shown > 0);
    subject.panel->updateUI();
    QCOMPARE(subject.spinBox(0)->value(), shown);
    drag.release();

    QCOMPARE(subject.delegate.values.value(kA).toDouble(), shown);
}

void tst_CommitPolicy::typingPassesOnReturn()
{
    Subject subject;
    subject.policy->setDefaultMode(CommitMode::atEndOfRun());
    subject.show();
    subject.spinBox(0)->setFocus();
    subject.spinBox(0)->selectAll();

    QTest::keyClicks(subject.spinBox(0), QStringLiteral("0.25"));
    QCOMPARE(subject.delegate.changes.size(), 0);
    QTest::keyClick(subject.spinBox(0), Qt::Key_Return);
    QCOMPARE(subject.log(), QStringLiteral("a=0.25/0"));

    // The field keeps the focus: what is typed now is another run.
    subject.spinBox(0)->selectAll();
    QTest::keyClicks(subject.spinBox(0), QStringLiteral("0.5"));
    QTest::keyClick(subject.spinBox(0), Qt::Key_Return);
    QCOMPARE(subject.log(), QStringLiteral("a=0.25/0 a=0.5/0"));
}

void tst_CommitPolicy::typingPassesWhenTheFieldIsLeft()
{
    Subject subject;
    subject.policy->setDefaultMode(CommitMode::atEndOfRun());
    subject.show();
    subject.spinBox(0)->setFocus();
    subject.spinBox(0)->selectAll();

    QTest::keyClicks(subject.spinBox(0), QStringLiteral("0.75"));
    QCOMPARE(subject.delegate.changes.size(), 0);
    subject.spinBox(1)->setFocus();

    QCOMPARE(subject.log(), QStringLiteral("a=0.75/0"));
}

void tst_CommitPolicy::wheelOutsideOfARunPassesAtOnce()
{
    Subject subject;
    subject.policy->setDefaultMode(CommitMode::atEndOfRun());
    subject.show();

    QTest::keyClick(subject.slider(0), Qt::Key_Right);

    QCOMPARE(subject.delegate.changes.size(), 1);
    QVERIFY(!subject.policy->hasPending());
}

void tst_CommitPolicy::unwatchedPanelIsLive()
{
    Subject subject;
    subject.policy->setDefaultMode(CommitMode::atEndOfRun());

    subject.policy->setValue(&subject.a, 1, kNew);
    subject.policy->setValue(&subject.a, 2, kContinued);

    QCOMPARE(subject.log(), QStringLiteral("a=1/0 a=2/1"));
}

void tst_CommitPolicy::deletedPanelEndsItsRun()
{
    Subject subject;
    subject.policy->setDefaultMode(CommitMode::atEndOfRun());
    subject.show();

    SliderDrag drag(subject.slider(0));
    drag.press();
    drag.moveBy(40);
    const double shown = subject.spinBox(0)->value();
    subject.panel.reset();

    QCOMPARE(subject.delegate.changes.size(), 1);
    QCOMPARE(subject.delegate.values.value(kA).toDouble(), shown);
    QVERIFY(!subject.policy->hasPending());
}

void tst_CommitPolicy::goneInnerDelegateIsNotCalled()
{
    Subject subject;
    auto inner = std::make_unique<ObjectDelegate>();
    CommitPolicy policy(inner.get());
    policy.setDefaultMode(CommitMode::atMost(1));
    policy.setValue(&subject.a, 1, kNew);
    policy.setValue(&subject.a, 2, kContinued);
    inner.reset();

    policy.flush();
    policy.setValue(&subject.b, 3, kNew);

    QCOMPARE(policy.value(&subject.a), QVariant());
    CommitPolicy none(nullptr);
    none.setValue(&subject.a, 1, kNew);
    QCOMPARE(none.value(&subject.a), QVariant());
}

void tst_CommitPolicy::policyMayBeDeletedInTheCallback()
{
    Subject subject;
    subject.policy->setDefaultMode(CommitMode::atEndOfRun());
    subject.show();
    subject.delegate.onSetValue = [&subject] { subject.policy.reset(); };

    SliderDrag drag(subject.slider(0));
    drag.press();
    drag.moveBy(40);
    subject.delegate.onSetValue = [&subject] {
        subject.panel.release()->deleteLater(); // it asks the delegate no more
        subject.policy.reset();
    };
    drag.release();

    QVERIFY(!subject.policy);
    QCOMPARE(subject.delegate.changes.size(), 1);
}

void tst_CommitPolicy::callbackMayEditAnotherProperty()
{
    Subject subject;
    subject.policy->setDefaultMode(CommitMode::atMost(1));
    subject.delegate.onSetValue = [&subject] {
        subject.delegate.onSetValue = nullptr;
        subject.policy->setValue(&subject.b, 7, kNew);
    };

    subject.policy->setValue(&subject.a, 1, kNew);

    QCOMPARE(subject.log(), QStringLiteral("a=1/0 b=7/0"));
}

QTEST_MAIN(tst_CommitPolicy)
#include "tst_CommitPolicy.moc"
