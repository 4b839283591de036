#include <host/PropertyList.h>
#include <host/PropertyStore.h>
#include <property/PropertyUI.h>
#include <testing/EditRecorder.h>
#include <testing/PanelDriver.h>

#include <QTest>

#include <memory>

using Tessark::PropertyHost::PropertyList;
using Tessark::PropertyHost::PropertyStore;
using Tessark::PropertyTest::EditRecorder;
using Tessark::PropertyTest::PanelDriver;
using Tessark::PropertyUI::PropertyEditorPanel;

class SoundPanelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void editsReachTheStore();
    void aScriptDoesTheSame();
};

// What is under test, and a user who sits in front of it.
struct Bench
{
    Bench()
    {
        list.boolean("limited", "Limited");
        list.group("Levels", [this] {
            list.number("gain", "Gain").range(0, 10).defaultValue(1);
            list.size("size", "Size").aspectRatio(QSize(0, 0)).defaultValue(QSize(1, 1));
        });
        store.reset(list);
        panel = std::make_unique<PropertyEditorPanel>(list.properties(), &recorder, nullptr);
        panel->updateUI();
        panel->resize(500, panel->sizeHint().height());
        panel->show();
        user = std::make_unique<PanelDriver>(panel.get());
        user->setRecorder(&recorder);
    }

    PropertyList list;
    PropertyStore store;
    EditRecorder recorder{&store}; // stands before the delegate
    std::unique_ptr<PropertyEditorPanel> panel;
    std::unique_ptr<PanelDriver> user;
};

void SoundPanelTest::editsReachTheStore()
{
    Bench bench;
    PanelDriver &user = *bench.user;

    QVERIFY2(user.check("limited", true), qPrintable(user.error()));
    QVERIFY2(user.dragNear("gain", 7), qPrintable(user.error()));
    QVERIFY2(user.type("size.height", "3"), qPrintable(user.error()));

    QCOMPARE(user.value("size"), QVariant(QSize(1, 3)));
    QVERIFY(qAbs(user.value("gain").toDouble() - 7) < 0.1);
    QCOMPARE(bench.recorder.flags().mid(0, 4), (QVector<int>{0, 0, 1, 1}));

    QVERIFY(!user.type("gian", "1"));
    qInfo() << qPrintable(user.error());
}

void SoundPanelTest::aScriptDoesTheSame()
{
    Bench bench;
    const bool isDone = bench.user->run(R"(
        # A drag is one run: one step of undo.
        drag gain to 10
        expect flags 0,1,1
        forget edits

        check limited
        expect edits of limited = true
        close Levels
        type 3 in size.height      # opens the group first
        expect size = 1 3
        set gain to default
        expect gain = 1
    )");
    QVERIFY2(isDone, qPrintable(bench.user->error()));
}

QTEST_MAIN(SoundPanelTest)
#include "PanelDriver.moc"
