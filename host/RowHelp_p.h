#pragma once

#include "host/PanelRows_p.h"

#include <QHash>
#include <QString>

#include <memory>

namespace Tessark::PropertyHost {

/// What the host says about the property: kHostHintHelp.
QString helpOf(const PropertyUI::Property &property);

/// The same for a tool tip, which would take what looks like markup for markup.
QString toolTipOf(const QString &help);

/**
 * The help texts of a panel's rows as tool tips of their labels and fields, of a tab's row on its
 * tab. Screen readers get them as descriptions. A field that has one of its own keeps it.
 */
class RowHelp
{
public:
    explicit RowHelp(std::shared_ptr<const PanelRows> rows);

    /// Shows the help of one property, or of all, as it is now.
    void update(const PropertyUI::Property *property);
    void updateAll();

private:
    void show(int row);

    std::shared_ptr<const PanelRows> m_rows;
    QHash<int, QString> m_shown; // by row, as the widgets have it from here
};

} // namespace Tessark::PropertyHost
