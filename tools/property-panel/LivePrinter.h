#pragma once

#include <QHash>
#include <QJsonValue>
#include <QObject>
#include <QVariant>

namespace Tessark::PropertyUI {
class Property;
}

namespace Tessark::PropertyHost {
class PropertyList;
class PropertyStore;
} // namespace Tessark::PropertyHost

namespace Tessark::PropertyPanel {

/**
 * Prints each change of a store to standard output, at once and on a line of its own, as a JSON
 * object with "name", "value" and "continued".
 *
 * A value that is set once more, as a field may do when it loses the focus, is no change. A click on
 * an action is printed with the value null. Folding a group and turning to another tab
 * are no changes of a value. When nobody reads the output any more, printing ends quietly.
 */
class LivePrinter : public QObject
{
    Q_OBJECT

public:
    /// The store must hold the values of the list already.
    LivePrinter(const PropertyHost::PropertyList &list, PropertyHost::PropertyStore *store,
                QObject *parent = nullptr);

Q_SIGNALS:
    /// A change could not be printed, and none is printed any more. Emitted once.
    void outputLost();

private:
    void print(const PropertyUI::Property &property, const QVariant &value, bool continued);

    QHash<QString, QJsonValue> m_known; // the last value of each name, unless it has no JSON form
    bool m_outputFailed = false;
};

} // namespace Tessark::PropertyPanel
