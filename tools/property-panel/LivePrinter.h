#pragma once

#include <host/CommitPolicy.h>
#include <property/IPropertyEditorDelegate.h>

#include <QHash>
#include <QJsonValue>
#include <QObject>
#include <QVariant>

namespace Tessark::PropertyUI {
class Property;
class PropertyEditorPanel;
} // namespace Tessark::PropertyUI

namespace Tessark::PropertyHost {
class PropertyList;
class PropertyStore;
} // namespace Tessark::PropertyHost

namespace Tessark::PropertyPanel {

/**
 * Prints each change of a store to standard output, on a line of its own, as a JSON object with "name",
 * "value" and "continued": at once, or as the commit mode says.
 *
 * A value that is set once more, as a field may do when it loses the focus, is no change. A click on
 * an action is printed with the value null. Folding a group and turning to another tab
 * are no changes of a value. When nobody reads the output any more, printing ends quietly.
 */
class LivePrinter : public QObject, private PropertyUI::IPropertyEditorDelegate
{
    Q_OBJECT

public:
    /// The store must hold the values of the list already.
    LivePrinter(const PropertyHost::PropertyList &list, PropertyHost::PropertyStore *store,
                QObject *parent = nullptr);
    ~LivePrinter() override;

    /// Prints when mode says so, to which the runs of the panel's editors count. What waits when this
    /// object goes is printed.
    void follow(PropertyUI::PropertyEditorPanel *panel, PropertyHost::CommitMode mode);

public Q_SLOTS:
    /// Prints what waits.
    void flush();

Q_SIGNALS:
    /// A change could not be printed, and none is printed any more. Emitted once.
    void outputLost();

private:
    // What the policy passes on, it passes here.
    void setValue(PropertyUI::Property *property, const QVariant &value,
                  ChangeFlags flags) override;
    QVariant value(PropertyUI::Property *property) override;

    void print(const PropertyUI::Property &property, const QVariant &value, bool continued);

    QHash<QString, QJsonValue> m_known; // the last value of each name, unless it has no JSON form
    bool m_outputFailed = false;
    PropertyHost::CommitPolicy m_policy; // the last member: it may still print when it goes
};

} // namespace Tessark::PropertyPanel
