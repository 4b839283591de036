#include "property/PropertyEditorPanel.h"
#include "property/PropertyEditorRegistry.h"
#include "support/RecordingEditor.h"
#include "support/Registry.h"

#include <QTest>

#include <thread>
#include <vector>

using namespace Tessark::PropertyUI;

namespace {

void registerForHost(const QString &type)
{
    PropertyEditorRegistry::Instance()->registerPropertyEditor(type, RecordingEditor::Factory);
}

} // namespace

/// What happens around the first panel of a process, which a process sees once: initTestCase()
/// goes through it step by step, the tests look at what it found.
class tst_RegistryInitialisation : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void threadsAgreeOnTheRegistry();
    void registryStartsEmpty();
    void hostsTypeOutlivesTheFirstPanel();
    void firstPanelOverwritesTheHostsChoice();
    void hostsLaterChoiceOutlivesFurtherPanels();

private:
    QVector<PropertyEditorRegistry *> m_instances; // as seen by threads that all ask first
    bool m_startedEmpty = false;
    PropertyEditorRegistry::Factory m_afterFirstPanel = nullptr; // for a type the host had taken
};

void tst_RegistryInitialisation::initTestCase()
{
    constexpr int kThreads = 8;
    m_instances.resize(kThreads);
    std::vector<std::thread> threads;
    for (PropertyEditorRegistry *&instance : m_instances)
        threads.emplace_back([&instance] { instance = PropertyEditorRegistry::Instance(); });
    for (std::thread &thread : threads)
        thread.join();

    m_startedEmpty = !factoryOf(kPropertyTypeBoolean) && !factoryOf(kPropertyTypeTab);
    registerForHost(kPropertyTypeBoolean);
    registerForHost(QStringLiteral("host/type"));

    const PropertyEditorPanel firstPanel({}, nullptr, nullptr);
    m_afterFirstPanel = factoryOf(kPropertyTypeBoolean);
}

void tst_RegistryInitialisation::threadsAgreeOnTheRegistry()
{
    for (const PropertyEditorRegistry *instance : m_instances)
        QCOMPARE(instance, PropertyEditorRegistry::Instance());
}

void tst_RegistryInitialisation::registryStartsEmpty()
{
    QVERIFY(m_startedEmpty);
}

void tst_RegistryInitialisation::hostsTypeOutlivesTheFirstPanel()
{
    QVERIFY(factoryOf(QStringLiteral("host/type")) == &RecordingEditor::Factory);
}

void tst_RegistryInitialisation::firstPanelOverwritesTheHostsChoice()
{
    QVERIFY(m_afterFirstPanel);
    QVERIFY(m_afterFirstPanel != &RecordingEditor::Factory);
}

void tst_RegistryInitialisation::hostsLaterChoiceOutlivesFurtherPanels()
{
    const QVector<LibraryEditor> editors = libraryEditors();
    QVERIFY(!editors.isEmpty());
    for (const LibraryEditor &editor : editors)
        registerForHost(editor.type);

    const PropertyEditorPanel secondPanel({}, nullptr, nullptr);
    PropertyEditorPanel::InitialiseRegistry();

    for (const LibraryEditor &editor : editors)
        QVERIFY(factoryOf(editor.type) == &RecordingEditor::Factory);
}

QTEST_MAIN(tst_RegistryInitialisation)
#include "tst_RegistryInitialisation.moc"
