#pragma once

#include "host/DelegatePointer.h"
#include "host/PropertyHostExport.h"

#include <property/IPropertyEditorDelegate.h>

#include <QElapsedTimer>
#include <QHash>
#include <QMetaObject>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QTimer>
#include <QVariant>

#include <optional>

namespace Tessark::PropertyUI {
class PropertyEditor;
class PropertyEditorPanel;
} // namespace Tessark::PropertyUI

namespace Tessark::PropertyHost {

/// When an edit reaches the delegate behind a CommitPolicy.
class TESSARK_PROPERTYHOST_EXPORT CommitMode
{
public:
    /// At once.
    static CommitMode live();

    /// At most so many times a second, from 1 to 1000; numbers outside are brought into it. The
    /// first edit passes at once, the last one always passes, runs that follow one another faster
    /// than that pass as one.
    static CommitMode atMost(int timesPerSecond);

    /// When the interactive run ends: the slider is released, the field is left or Return confirms
    /// it. An edit outside of a run passes at once.
    static CommitMode atEndOfRun();

    /// From "live", "rate:N" with N from 1 to 1000, or "end"; nothing for any other text.
    static std::optional<CommitMode> fromString(const QString &text);

    bool isLive() const { return m_interval == 0; }
    bool isAtEndOfRun() const { return m_interval < 0; }

    /// Milliseconds between two edits that pass; 0 unless limited by atMost().
    int interval() const { return m_interval > 0 ? m_interval : 0; }

    friend bool operator==(CommitMode left, CommitMode right)
    {
        return left.m_interval == right.m_interval;
    }
    friend bool operator!=(CommitMode left, CommitMode right) { return !(left == right); }

private:
    explicit CommitMode(int interval)
        : m_interval(interval)
    {
    }

    int m_interval; // milliseconds; 0: live, below: at the end of the run
};

/**
 * Stands in front of another delegate and passes edits on live, at a limited rate or only when the
 * interactive run ends, as chosen for each property.
 *
 * An edit that waits is replaced by the next one of its property, and is what value() gives
 * meanwhile, so that a refresh does not take the control back. The first edit of a run that passes
 * is a NewChange, the others are ContinuedChanges. An edit of another property lets the one that
 * waits pass before it, which keeps the order.
 *
 * The delegate is not told when a run ends, so that watch() has to be called for each panel that
 * uses this object; before, CommitMode::atEndOfRun() is live.
 *
 * The inner delegate, the panels and this object may be deleted in any order; an inner delegate that
 * is no QObject must outlive this object. What waits passes when this object or a watched panel is
 * deleted. The properties must outlive it, or be given to forget().
 */
class TESSARK_PROPERTYHOST_EXPORT CommitPolicy : public QObject,
                                                 public PropertyUI::IPropertyEditorDelegate
{
    Q_OBJECT

public:
    /// delegate is not taken over and may be null.
    explicit CommitPolicy(PropertyUI::IPropertyEditorDelegate *delegate, QObject *parent = nullptr);
    ~CommitPolicy() override;

    /// The inner delegate, or null when there is none or it was deleted.
    PropertyUI::IPropertyEditorDelegate *delegate() const;

    /// The mode of all properties without one of their own. What waits passes before it changes.
    CommitMode defaultMode() const;
    void setDefaultMode(CommitMode mode);

    /// The mode of one property. What waits passes before it changes. A row that has no value (an
    /// action, a group, a tab group) and no mode of its own is live, since each click counts.
    CommitMode mode(const PropertyUI::Property *property) const;
    void setMode(const PropertyUI::Property *property, CommitMode mode);

    /// Learns from the editors of panel when runs begin and end, until the panel is deleted.
    void watch(PropertyUI::PropertyEditorPanel *panel);

    /// True while an edit waits.
    bool hasPending() const;

    /// Lets what waits pass now.
    void flush();

    /// Drops what waits for property, its mode and all else that is known of it.
    void forget(const PropertyUI::Property *property);

    void setValue(PropertyUI::Property *property, const QVariant &value,
                  ChangeFlags flags) override;

    /// The edit that waits, else the inner delegate's value; an invalid variant without one.
    QVariant value(PropertyUI::Property *property) override;

private:
    struct Pending
    {
        PropertyUI::Property *property;
        QVariant value;
        ChangeFlags flags;
    };

    bool isPending(const PropertyUI::Property *property) const;
    const PropertyUI::Property *runningProperty() const;
    int waitOf(const PropertyUI::Property *property) const;
    void beginRun(PropertyUI::PropertyEditor *editor);
    void endRun();

    DelegatePointer m_delegate;
    CommitMode m_defaultMode = CommitMode::live();
    QHash<const PropertyUI::Property *, CommitMode> m_modes;
    QHash<const PropertyUI::Property *, qint64> m_passedAt; // milliseconds, of limited properties
    std::optional<Pending> m_pending;
    std::optional<Pending> m_arriving; // while one of another property passes before it
    QPointer<PropertyUI::PropertyEditor> m_runningEditor;
    QElapsedTimer m_clock;
    QTimer m_timer;
};

} // namespace Tessark::PropertyHost
