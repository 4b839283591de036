#include "host/CommitPolicy.h"

#include "host/ValueKind_p.h"

#include <property/Property.h>
#include <property/PropertyEditor.h>
#include <property/PropertyEditorPanel.h>

#include <algorithm>
#include <utility>

namespace Tessark::PropertyHost {

using namespace PropertyUI;

namespace {

constexpr int kMillisecondsPerSecond = 1000;
constexpr int kMaximumRate = 1000;
constexpr int kEndOfRun = -1;

} // namespace

CommitMode CommitMode::live()
{
    return CommitMode(0);
}

CommitMode CommitMode::atMost(int timesPerSecond)
{
    const int rate = std::clamp(timesPerSecond, 1, kMaximumRate);
    return CommitMode((kMillisecondsPerSecond + rate - 1) / rate); // rounded up: never more often
}

CommitMode CommitMode::atEndOfRun()
{
    return CommitMode(kEndOfRun);
}

std::optional<CommitMode> CommitMode::fromString(const QString &text)
{
    const QString ratePrefix = QStringLiteral("rate:");
    if (text == QLatin1String("live"))
        return live();
    if (text == QLatin1String("end"))
        return atEndOfRun();
    if (!text.startsWith(ratePrefix))
        return std::nullopt;
    bool isNumber = false;
    const int rate = text.mid(ratePrefix.size()).toInt(&isNumber);
    if (!isNumber || rate < 1 || rate > kMaximumRate)
        return std::nullopt;
    return atMost(rate);
}

CommitPolicy::CommitPolicy(IPropertyEditorDelegate *delegate, QObject *parent)
    : QObject(parent)
    , m_delegate(delegate)
{
    m_clock.start();
    m_timer.setSingleShot(true);
    m_timer.setTimerType(Qt::PreciseTimer);
    connect(&m_timer, &QTimer::timeout, this, &CommitPolicy::flush);
}

CommitPolicy::~CommitPolicy()
{
    flush();
}

IPropertyEditorDelegate *CommitPolicy::delegate() const
{
    return m_delegate.get();
}

CommitMode CommitPolicy::defaultMode() const
{
    return m_defaultMode;
}

void CommitPolicy::setDefaultMode(CommitMode mode)
{
    m_defaultMode = mode;
    flush();
}

CommitMode CommitPolicy::mode(const Property *property) const
{
    const auto own = m_modes.constFind(property);
    if (own != m_modes.constEnd())
        return *own;
    // Two clicks on a button are not one.
    return typeTraits(property->type).structural ? CommitMode::live() : m_defaultMode;
}

void CommitPolicy::setMode(const Property *property, CommitMode mode)
{
    m_modes.insert(property, mode);
    flush();
}

void CommitPolicy::watch(PropertyEditorPanel *panel)
{
    QVector<PropertyEditor *> editors;
    panel->getEditors(editors, QString());
    for (PropertyEditor *editor : std::as_const(editors)) {
        if (!editor)
            continue;
        connect(editor, &PropertyEditor::startInteractiveChange, this,
                [this, editor] { beginRun(editor); });
        connect(editor, &PropertyEditor::endInteractiveChange, this, [this, editor] {
            if (m_runningEditor == editor)
                endRun();
        });
    }
    connect(panel, &QObject::destroyed, this, [this](const QObject *deleted) {
        if (m_runningEditor && m_runningEditor->parent() == deleted)
            endRun();
    });
}

bool CommitPolicy::hasPending() const
{
    return m_pending.has_value();
}

void CommitPolicy::flush()
{
    m_timer.stop();
    if (!m_pending)
        return;
    // Taken out first: the host may edit, flush or delete this object meanwhile.
    const Pending edit = *std::exchange(m_pending, std::nullopt);
    if (mode(edit.property).interval() > 0)
        m_passedAt.insert(edit.property, m_clock.elapsed());
    if (m_delegate.get())
        m_delegate.get()->setValue(edit.property, edit.value, edit.flags);
}

void CommitPolicy::forget(const Property *property)
{
    if (isPending(property))
        m_pending.reset();
    if (runningProperty() == property)
        m_runningEditor = nullptr;
    m_modes.remove(property);
    m_passedAt.remove(property);
}

void CommitPolicy::setValue(Property *property, const QVariant &value, ChangeFlags flags)
{
    const QPointer<CommitPolicy> self(this);
    if (!isPending(property)) {
        // What refreshes the panel while the other edit passes must not take this one back.
        const auto outer = std::exchange(m_arriving, Pending{property, value, flags});
        flush();
        if (!self)
            return;
        m_arriving = outer;
    }
    // A NewChange among the edits that become one makes that one a NewChange.
    m_pending = {property, value, isPending(property) ? m_pending->flags & flags : flags};
    if (mode(property).isAtEndOfRun() && runningProperty() == property)
        return;
    const int wait = waitOf(property);
    if (wait == 0)
        flush();
    else if (!m_timer.isActive())
        m_timer.start(wait);
}

QVariant CommitPolicy::value(Property *property)
{
    if (isPending(property))
        return m_pending->value;
    if (m_arriving && m_arriving->property == property)
        return m_arriving->value;
    return m_delegate.get() ? m_delegate.get()->value(property) : QVariant();
}

bool CommitPolicy::isPending(const Property *property) const
{
    return m_pending && m_pending->property == property;
}

const Property *CommitPolicy::runningProperty() const
{
    return m_runningEditor ? m_runningEditor->editedProperty() : nullptr;
}

/// Milliseconds until an edit of property may pass.
int CommitPolicy::waitOf(const Property *property) const
{
    const int interval = mode(property).interval();
    const auto passedAt = m_passedAt.constFind(property);
    if (interval == 0 || passedAt == m_passedAt.constEnd())
        return 0;
    return static_cast<int>(std::max<qint64>(*passedAt + interval - m_clock.elapsed(), 0));
}

void CommitPolicy::beginRun(PropertyEditor *editor)
{
    const QPointer<CommitPolicy> self(this);
    const QPointer<PropertyEditor> begun(editor);
    if (m_runningEditor != editor)
        endRun();
    if (self)
        m_runningEditor = begun;
}

void CommitPolicy::endRun()
{
    const Property *const ended = runningProperty();
    m_runningEditor = nullptr;
    if (ended && isPending(ended) && mode(ended).isAtEndOfRun())
        flush();
}

} // namespace Tessark::PropertyHost
