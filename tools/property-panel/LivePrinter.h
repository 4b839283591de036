#pragma once

#include <QObject>
#include <QVariant>

namespace Tessark::PropertyUI {
class Property;
}

namespace Tessark::PropertyHost {
class PropertyStore;
}

namespace Tessark::PropertyPanel {

/**
 * Prints each change of a store to standard output, at once and on a line of its own, as a JSON
 * object with "name", "value" and "continued".
 *
 * A click on an action is printed with the value null. Folding a group and turning to another tab
 * are no changes of a value. When nobody reads the output any more, printing ends quietly.
 */
class LivePrinter : public QObject
{
    Q_OBJECT

public:
    explicit LivePrinter(PropertyHost::PropertyStore *store, QObject *parent = nullptr);

private:
    void print(const PropertyUI::Property &property, const QVariant &value, bool continued);

    bool m_outputFailed = false;
};

} // namespace Tessark::PropertyPanel
