#include <host/PropertyList.h>
#include <host/PropertyPanelView.h>
#include <host/PropertyStore.h>
#include <host/RuleEngine.h>
#include <host/UndoDelegate.h>
#include <host/UndoKeys.h>
#include <testing/EditRecorder.h>
#include <testing/PanelDriver.h>

#include <QTest>
#include <QUndoStack>

#include <memory>

using namespace Tessark::PropertyHost;
using Tessark::PropertyTest::EditRecorder;
using Tessark::PropertyTest::PanelDriver;
using Tessark::PropertyUI::Property;

/// A whole host, driven by its user: a list with rules in a view, a store, and undo.
class tst_UndoAndRules : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void aDragIsOneStep();
    void typingIsAStepThatReturnEnds();
    void foldingIsAStepThatUndoTakesBack();
    void rulesHideAndDisableRows();
    void rulesFollowUndo();
    void boundsFollowOtherRows();
    void setToDefaultIsAStep();
    void keysUndoInAField();

private:
    bool run(const char *script) { return m_driver->run(QString::fromLatin1(script)); }

    PropertyList m_list;
    PropertyStore m_store;
    QUndoStack m_stack;
    std::unique_ptr<UndoDelegate> m_undo;
    std::unique_ptr<EditRecorder> m_recorder;
    std::unique_ptr<PropertyPanelView> m_view;
    std::unique_ptr<UndoKeys> m_keys;
    std::unique_ptr<PanelDriver> m_driver;
};

#define RUN(script) QVERIFY2(run(script), qPrintable(m_driver->error()))

void tst_UndoAndRules::init()
{
    m_stack.clear();
    m_list = PropertyList();
    m_list.boolean(QStringLiteral("limited"), QStringLiteral("Limited"));
    m_list.number(QStringLiteral("ceiling"), QStringLiteral("Ceiling"))
        .range(0, 10)
        .defaultValue(8)
        .enabledWhen(QStringLiteral("limited"));
    m_list.group(QStringLiteral("Levels"), [this] {
        m_list.number(QStringLiteral("gain"), QStringLiteral("Gain"))
            .range(0, 10)
            .defaultValue(1)
            .maximumFollows(QStringLiteral("ceiling"));
        m_list.string(QStringLiteral("note"), QStringLiteral("Note"))
            .visibleWhen(QStringLiteral("gain > 5"));
    });
    m_store.reset(m_list);
    m_undo = std::make_unique<UndoDelegate>(&m_store, &m_stack);
    m_recorder = std::make_unique<EditRecorder>(m_undo.get());
    m_view = std::make_unique<PropertyPanelView>();
    m_view->setProperties(m_list, m_recorder.get());
    m_undo->attach(m_view->panel());
    m_keys = std::make_unique<UndoKeys>(&m_stack, m_view.get());
    m_view->resize(500, 300);
    m_view->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_view.get()));
    m_driver = std::make_unique<PanelDriver>(m_view.get());
    m_driver->setRecorder(m_recorder.get());
}

void tst_UndoAndRules::cleanup()
{
    m_driver.reset();
    m_keys.reset();
    m_view.reset();
    m_recorder.reset();
    m_undo.reset();
}

void tst_UndoAndRules::aDragIsOneStep()
{
    RUN("drag gain near 4\n"
        "expect flags 0,1,1\n"
        "drag gain near 2\n"
        "expect flags 0,1,1,0,1,1\n");
    QCOMPARE(m_stack.count(), 2);

    m_stack.undo();
    m_stack.undo();

    RUN("expect gain = 1");
}

void tst_UndoAndRules::typingIsAStepThatReturnEnds()
{
    RUN("type 3 in gain\n"
        "type 4.25 in gain\n"
        "expect gain = 4.25");
    QCOMPARE(m_stack.count(), 2);

    m_stack.undo();

    RUN("expect gain = 3");
}

void tst_UndoAndRules::foldingIsAStepThatUndoTakesBack()
{
    RUN("close Levels\n"
        "expect gain hidden");
    QCOMPARE(m_stack.count(), 1);

    m_stack.undo();

    RUN("expect Levels open\n"
        "expect gain visible");
}

void tst_UndoAndRules::rulesHideAndDisableRows()
{
    RUN("expect ceiling disabled\n"
        "check limited\n"
        "expect ceiling enabled\n"
        "expect note hidden\n"
        "type 6 in gain\n"
        "expect note visible\n"
        "type loud in note\n"
        "expect edits of note = loud\n"
        "step gain by -20\n"
        "expect note hidden");
    QVERIFY(!run("type more in note"));
    QVERIFY2(m_driver->error().contains(QStringLiteral("It is hidden")),
             qPrintable(m_driver->error()));
}

void tst_UndoAndRules::rulesFollowUndo()
{
    RUN("check limited\n"
        "expect ceiling enabled");

    m_stack.undo();

    RUN("expect limited = false\n"
        "expect ceiling disabled");
    QVERIFY(!run("type 3 in ceiling"));
    QVERIFY2(m_driver->error().contains(QStringLiteral("It is disabled")),
             qPrintable(m_driver->error()));
}

void tst_UndoAndRules::boundsFollowOtherRows()
{
    RUN("check limited\n"
        "type 4 in ceiling");
    QVERIFY(!run("drag gain to 5"));
    QVERIFY2(m_driver->error().contains(QStringLiteral("Its slider goes from 0 to 4")),
             qPrintable(m_driver->error()));
    RUN("drag gain to 4\n"
        "expect gain = 4");
}

void tst_UndoAndRules::setToDefaultIsAStep()
{
    RUN("type 3 in gain\n"
        "set gain to default\n"
        "expect gain = 1");
    QCOMPARE(m_stack.count(), 2);
    m_stack.undo();
    RUN("expect gain = 3");
}

void tst_UndoAndRules::keysUndoInAField()
{
    RUN("type 3 in gain\n"
        "type 4 in gain");
    QTest::keyClick(m_view->windowHandle(), Qt::Key_Z, Qt::ControlModifier);
    RUN("expect gain = 3");
}

QTEST_MAIN(tst_UndoAndRules)
#include "tst_UndoAndRules.moc"
