#include "robustness/Bench.h"

#include "robustness/WatchingApplication.h"
#include "support/TestEditors.h"

#include <QApplication>
#include <QTest>
#include <QVBoxLayout>

#include <utility>

using namespace Tessark::PropertyUI;
using namespace TestSupport;

namespace {

const QString kNeighbourType = QStringLiteral("test/neighbour");

} // namespace

Bench::Bench(const Description &describe, Preparation prepare)
    : set(std::make_unique<PropertySet>())
    , delegate(std::make_unique<RecordingDelegate>())
    , m_prepare(std::move(prepare))
{
    PropertyEditorRegistry::Instance()->registerPropertyEditor(kNeighbourType, TestEditor::Factory);
    describe(*set);
    for (Property *each : set->list()) {
        if (each->name == kSubjectName)
            m_property = each;
    }
    set->add(kNeighbourName, kNeighbourType);
    m_described = std::make_unique<Property>(*m_property);

    window = new QWidget;
    elsewhere = new QLineEdit;
    auto *const column = new QVBoxLayout(window);
    column->addWidget(elsewhere);
    buildPanel();
    window->resize(420, 360);
    window->show();
    window->activateWindow();
    QCoreApplication::processEvents();
    elsewhere->setFocus();
}

Bench::~Bench()
{
    m_act = nullptr;
    m_actIn = 0;
    delete panel;
    delete window;
}

void Bench::calledBack()
{
    ++callbacks;
    if (WatchingApplication::instance()->widgetTimers > 0)
        ++timerCallbacks;
    if (callbacks != m_actIn)
        return;
    const auto act = std::exchange(m_act, nullptr);
    ++acts;
    act();
    changesAtAct = delegate ? int(delegate->changes.size()) : 0;
}

void Bench::actIn(int callback, std::function<void()> act)
{
    callbacks = 0;
    m_actIn = callback;
    m_act = std::move(act);
}

void Bench::buildPanel()
{
    delete panel;
    panel = new PropertyEditorPanel(set->list(), delegate.get(), nullptr);
    if (m_prepare)
        m_prepare(*this);
    window->layout()->addWidget(panel);
}

void Bench::settle()
{
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
}

void Bench::restore()
{
    *m_property = *m_described;
    panel->updateProperty(m_property);
    panel->setEnabled(true);
    panel->show();
    QCoreApplication::processEvents();
    elsewhere->setFocus();
}

PropertyEditor *Bench::editor() const
{
    return panel ? editorOf<PropertyEditor>(*panel, kSubjectName) : nullptr;
}

QWidget *Bench::widget() const
{
    PropertyEditor *const subject = editor();
    return subject ? subject->widget(nullptr) : nullptr;
}
