#include <host/UndoDelegate.h>
#include <property/PropertyUI.h>

#include <QCheckBox>
#include <QSignalSpy>
#include <QTest>
#include <QUndoStack>

#include <functional>
#include <memory>

using namespace Tessark::PropertyUI;
using Tessark::PropertyHost::UndoDelegate;

Q_DECLARE_METATYPE(Tessark::PropertyUI::Property *)

namespace {

constexpr auto kNew = IPropertyEditorDelegate::NewChange;
constexpr auto kContinued = IPropertyEditorDelegate::ContinuedChange;

class Store : public IPropertyEditorDelegate
{
public:
    void setValue(Property *property, const QVariant &value, ChangeFlags flags) override
    {
        writes.append({property->name, value, flags});
        if (!readOnly)
            values[property->name] = value;
        if (onWrite)
            onWrite();
    }

    QVariant value(Property *property) override
    {
        const QVariant result = values.value(property->name);
        if (onRead)
            onRead();
        return result;
    }

    struct Write
    {
        QString name;
        QVariant value;
        ChangeFlags flags;
    };
    QVector<Write> writes;
    QMap<QString, QVariant> values;
    bool readOnly = false;
    std::function<void()> onWrite;
    std::function<void()> onRead;
};

class ObjectStore : public QObject, public Store
{
};

} // namespace

class tst_UndoDelegate : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void editIsPassedOnUnchanged();
    void commandIsNamedAfterTheRow_data();
    void commandIsNamedAfterTheRow();
    void undoAndRedoWriteTheInnerDelegate();
    void editIsSilentUndoAndRedoTell();
    void longDragIsOneCommand();
    void runThatEndsWhereItBeganLeavesNoCommand();
    void runGoesOnAfterPassingItsStart();
    void secondRunIsItsOwnCommand();
    void runOfAnotherPropertyIsItsOwnCommand();
    void continuedChangeAfterUndoDoesNotMergeIntoAnOlderRun();
    void changeWithoutEffectLeavesNoCommand();
    void refusedChangeLeavesNoCommand();
    void typesWithoutValueArePassedOnOnly_data();
    void typesWithoutValueArePassedOnOnly();
    void foldingIsAStepWithoutPanelToo();
    void editsWithoutStackArePassedOn();
    void editAndValueWithoutInnerDelegateDoNothing();
    void stackOutlivesUndoDelegate();
    void stackOutlivesInnerDelegate();
    void innerDelegateThatIsNoObjectIsTakenAway();
    void stackMayBeDeletedInTheCallback();
    void undoDelegateMayBeDeletedInTheCallback();
    void undoDelegateMayBeDeletedWhenItAsks_data();
    void undoDelegateMayBeDeletedWhenItAsks();
    void undoDelegateMayBeDeletedWhileUndoing();
    void panelShowsRestoredValues();

private:
    void set(Property &property, const QVariant &value, IPropertyEditorDelegate::ChangeFlag flag)
    {
        m_undo->setValue(&property, value, flag);
    }

    Property m_gain{QStringLiteral("gain"), QStringLiteral("Gain"), kPropertyTypeFloat};
    Property m_loop{QStringLiteral("loop"), QStringLiteral("Loop"), kPropertyTypeBoolean};
    std::unique_ptr<Store> m_store;
    std::unique_ptr<QUndoStack> m_stack;
    std::unique_ptr<UndoDelegate> m_undo;
};

void tst_UndoDelegate::initTestCase()
{
    qRegisterMetaType<Property *>("Tessark::PropertyUI::Property*");
}

void tst_UndoDelegate::init()
{
    m_store = std::make_unique<Store>();
    m_store->values[m_gain.name] = 1.0;
    m_store->values[m_loop.name] = false;
    m_stack = std::make_unique<QUndoStack>();
    m_undo = std::make_unique<UndoDelegate>(m_store.get(), m_stack.get());
}

void tst_UndoDelegate::cleanup()
{
    m_undo.reset();
    m_stack.reset();
    m_store.reset();
}

void tst_UndoDelegate::editIsPassedOnUnchanged()
{
    set(m_gain, 2.0, kNew);
    set(m_gain, 3.0, kContinued);

    QCOMPARE(m_store->writes.size(), 2);
    QCOMPARE(m_store->writes.at(0).name, QStringLiteral("gain"));
    QCOMPARE(m_store->writes.at(0).value, QVariant(2.0));
    QCOMPARE(m_store->writes.at(0).flags, IPropertyEditorDelegate::ChangeFlags(kNew));
    QCOMPARE(m_store->writes.at(1).flags, IPropertyEditorDelegate::ChangeFlags(kContinued));
    QCOMPARE(m_undo->value(&m_gain), QVariant(3.0));
}

void tst_UndoDelegate::commandIsNamedAfterTheRow_data()
{
    QTest::addColumn<QString>("label");
    QTest::addColumn<QString>("text");

    QTest::newRow("the label names the step")
        << QStringLiteral("Frame rate") << QStringLiteral("Frame rate");
    QTest::newRow("without label the name does") << QString() << QStringLiteral("fps");
    QTest::newRow("non-ASCII text stays") << QStringLiteral("Größe") << QStringLiteral("Größe");
}

void tst_UndoDelegate::commandIsNamedAfterTheRow()
{
    QFETCH(QString, label);
    Property property(QStringLiteral("fps"), label, kPropertyTypeInteger);

    set(property, 30, kNew);

    QTEST(m_stack->undoText(), "text");
}

void tst_UndoDelegate::undoAndRedoWriteTheInnerDelegate()
{
    set(m_gain, 2.0, kNew);
    set(m_loop, true, kNew);
    m_store->writes.clear();

    m_stack->undo();
    QCOMPARE(m_store->values.value(m_loop.name), QVariant(false));
    m_stack->undo();
    QCOMPARE(m_store->values.value(m_gain.name), QVariant(1.0));
    m_stack->redo();
    QCOMPARE(m_store->values.value(m_gain.name), QVariant(2.0));

    QCOMPARE(m_store->writes.size(), 3);
    for (const Store::Write &write : std::as_const(m_store->writes))
        QCOMPARE(write.flags, IPropertyEditorDelegate::ChangeFlags(kNew));
}

void tst_UndoDelegate::editIsSilentUndoAndRedoTell()
{
    QSignalSpy spy(m_undo.get(), &UndoDelegate::valueRestored);

    set(m_gain, 2.0, kNew);
    set(m_gain, 3.0, kContinued);
    QVERIFY(spy.isEmpty());

    m_stack->undo();
    QCOMPARE(spy.size(), 1);
    QCOMPARE(spy.at(0).at(0).value<Property *>(), &m_gain);
    m_stack->redo();
    QCOMPARE(spy.size(), 2);
}

void tst_UndoDelegate::longDragIsOneCommand()
{
    constexpr int kSteps = 10000;

    set(m_gain, 2.0, kNew);
    for (int i = 1; i < kSteps; ++i)
        set(m_gain, 2.0 + i, kContinued);

    QCOMPARE(m_stack->count(), 1);
    QCOMPARE(m_store->writes.size(), kSteps);
    m_stack->undo();
    QCOMPARE(m_store->values.value(m_gain.name), QVariant(1.0));
    m_stack->redo();
    QCOMPARE(m_store->values.value(m_gain.name), QVariant(1.0 + kSteps));
}

void tst_UndoDelegate::runThatEndsWhereItBeganLeavesNoCommand()
{
    set(m_loop, true, kNew);

    set(m_gain, 2.0, kNew);
    set(m_gain, 3.0, kContinued);
    set(m_gain, 1.0, kContinued);

    QCOMPARE(m_stack->count(), 1);
    QCOMPARE(m_stack->undoText(), QStringLiteral("Loop"));
    QCOMPARE(m_store->values.value(m_gain.name), QVariant(1.0));
}

void tst_UndoDelegate::runGoesOnAfterPassingItsStart()
{
    set(m_gain, 5.0, kNew); // an earlier run, which must stay as it is
    set(m_gain, 2.0, kNew);
    set(m_gain, 5.0, kContinued);
    set(m_gain, 7.0, kContinued);
    set(m_gain, 8.0, kContinued);

    QCOMPARE(m_stack->count(), 2);
    m_stack->undo();
    QCOMPARE(m_store->values.value(m_gain.name), QVariant(5.0));
    m_stack->undo();
    QCOMPARE(m_store->values.value(m_gain.name), QVariant(1.0));
}

void tst_UndoDelegate::secondRunIsItsOwnCommand()
{
    set(m_gain, 2.0, kNew);
    set(m_gain, 3.0, kContinued);
    set(m_gain, 4.0, kNew);
    set(m_gain, 5.0, kContinued);

    QCOMPARE(m_stack->count(), 2);
    m_stack->undo();
    QCOMPARE(m_store->values.value(m_gain.name), QVariant(3.0));
}

void tst_UndoDelegate::runOfAnotherPropertyIsItsOwnCommand()
{
    Property other(QStringLiteral("pan"), QStringLiteral("Pan"), kPropertyTypeFloat);

    set(m_gain, 2.0, kNew);
    set(other, 3.0, kContinued);
    set(m_gain, 4.0, kContinued);

    QCOMPARE(m_stack->count(), 3);
}

void tst_UndoDelegate::continuedChangeAfterUndoDoesNotMergeIntoAnOlderRun()
{
    set(m_gain, 2.0, kNew);
    set(m_gain, 3.0, kNew);
    m_stack->undo();

    set(m_gain, 4.0, kContinued);

    QCOMPARE(m_stack->count(), 2);
    m_stack->undo();
    QCOMPARE(m_store->values.value(m_gain.name), QVariant(2.0));
}

void tst_UndoDelegate::changeWithoutEffectLeavesNoCommand()
{
    set(m_gain, 1.0, kNew);

    QCOMPARE(m_store->writes.size(), 1);
    QCOMPARE(m_stack->count(), 0);
}

void tst_UndoDelegate::refusedChangeLeavesNoCommand()
{
    m_store->readOnly = true;

    set(m_gain, 2.0, kNew);

    QCOMPARE(m_store->writes.size(), 1);
    QCOMPARE(m_stack->count(), 0);
}

void tst_UndoDelegate::typesWithoutValueArePassedOnOnly_data()
{
    QTest::addColumn<QString>("type");

    QTest::newRow("a click on an action") << kPropertyTypeAction;
    QTest::newRow("a separator") << kPropertyTypeSeparator;
    QTest::newRow("the end of a group") << kPropertyTypeEndGroup;
    QTest::newRow("turning to another tab") << kPropertyTypeBeginTabGroup;
    QTest::newRow("a tab") << kPropertyTypeTab;
    QTest::newRow("the end of a tab group") << kPropertyTypeEndTabGroup;
}

void tst_UndoDelegate::typesWithoutValueArePassedOnOnly()
{
    QFETCH(QString, type);
    Property property(QStringLiteral("marker"), QStringLiteral("Marker"), type);

    set(property, 1, kNew);

    QCOMPARE(m_store->writes.size(), 1);
    QCOMPARE(m_stack->count(), 0);
}

void tst_UndoDelegate::foldingIsAStepWithoutPanelToo()
{
    Property group(QStringLiteral("room"), QStringLiteral("Room"), kPropertyTypeBeginGroup);

    set(group, false, kNew); // the store knew nothing of it before

    QCOMPARE(m_stack->undoText(), QStringLiteral("Room"));
    m_stack->undo();
    QCOMPARE(m_store->values.value(group.name), QVariant(true));
    m_stack->redo();
    QCOMPARE(m_store->values.value(group.name), QVariant(false));
    QCOMPARE(m_store->writes.size(), 3);
}

void tst_UndoDelegate::editsWithoutStackArePassedOn()
{
    m_stack.reset();

    set(m_gain, 2.0, kNew);

    QCOMPARE(m_store->values.value(m_gain.name), QVariant(2.0));
}

void tst_UndoDelegate::editAndValueWithoutInnerDelegateDoNothing()
{
    UndoDelegate undo(nullptr, m_stack.get());

    undo.setValue(&m_gain, 2.0, kNew);

    QVERIFY(!undo.value(&m_gain).isValid());
    QCOMPARE(m_stack->count(), 0);
}

void tst_UndoDelegate::stackOutlivesUndoDelegate()
{
    set(m_gain, 2.0, kNew);
    m_undo.reset();

    m_stack->undo();

    QCOMPARE(m_store->values.value(m_gain.name), QVariant(2.0));
    QCOMPARE(m_store->writes.size(), 1);
}

void tst_UndoDelegate::stackOutlivesInnerDelegate()
{
    auto inner = std::make_unique<ObjectStore>();
    m_undo->setDelegate(inner.get());
    set(m_gain, 2.0, kNew);
    QSignalSpy spy(m_undo.get(), &UndoDelegate::valueRestored);
    inner.reset();

    m_stack->undo();
    set(m_gain, 3.0, kNew);

    QVERIFY(!m_undo->delegate());
    QVERIFY(!m_undo->value(&m_gain).isValid());
    QVERIFY(spy.isEmpty());
    QVERIFY(m_store->writes.isEmpty());
}

void tst_UndoDelegate::innerDelegateThatIsNoObjectIsTakenAway()
{
    set(m_gain, 2.0, kNew);
    m_undo->setDelegate(nullptr);
    m_store.reset();

    m_stack->undo();

    QVERIFY(!m_undo->value(&m_gain).isValid());
}

void tst_UndoDelegate::stackMayBeDeletedInTheCallback()
{
    m_store->onWrite = [this] { m_stack.reset(); };

    set(m_gain, 2.0, kNew);

    QCOMPARE(m_store->values.value(m_gain.name), QVariant(2.0));
}

void tst_UndoDelegate::undoDelegateMayBeDeletedInTheCallback()
{
    m_store->onWrite = [this] { m_undo.reset(); };

    set(m_gain, 2.0, kNew);

    QCOMPARE(m_stack->count(), 0);
}

void tst_UndoDelegate::undoDelegateMayBeDeletedWhenItAsks_data()
{
    QTest::addColumn<int>("question");
    QTest::addColumn<int>("writes");

    QTest::newRow("before the edit") << 1 << 0;
    QTest::newRow("after the edit") << 2 << 1;
}

void tst_UndoDelegate::undoDelegateMayBeDeletedWhenItAsks()
{
    QFETCH(int, question);
    QFETCH(int, writes);
    int asked = 0;
    m_store->onRead = [this, &asked, question] {
        if (++asked == question)
            m_undo.reset();
    };

    set(m_gain, 2.0, kNew);
    m_store->onRead = nullptr;

    QVERIFY(!m_undo);
    QCOMPARE(m_store->writes.size(), writes);
    QCOMPARE(m_stack->count(), 0);
}

void tst_UndoDelegate::undoDelegateMayBeDeletedWhileUndoing()
{
    set(m_gain, 2.0, kNew);
    m_store->onWrite = [this] { m_undo.reset(); };

    m_stack->undo();
    m_store->onWrite = nullptr;
    m_stack->redo();

    QCOMPARE(m_store->values.value(m_gain.name), QVariant(1.0));
}

void tst_UndoDelegate::panelShowsRestoredValues()
{
    auto panel =
        std::make_unique<PropertyEditorPanel>(QVector<Property *>{&m_loop}, m_undo.get(), nullptr);
    connect(m_undo.get(), &UndoDelegate::valueRestored, panel.get(),
            &PropertyEditorPanel::updateUI);
    panel->updateUI();
    panel->show();
    auto *const box = panel->findChild<QCheckBox *>();

    QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(8, box->height() / 2));
    QVERIFY(box->isChecked());
    QCOMPARE(m_store->values.value(m_loop.name), QVariant(true));

    m_stack->undo();
    QVERIFY(!box->isChecked());

    panel.reset();
    m_stack->redo();
    QCOMPARE(m_store->values.value(m_loop.name), QVariant(true));
}

QTEST_MAIN(tst_UndoDelegate)
#include "tst_UndoDelegate.moc"
