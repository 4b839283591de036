#pragma once

#include "host/PanelRows_p.h"

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QVector>

#include <memory>

namespace Tessark::PropertyHost {

class MixedPainter;
class SelectionDelegate;
class ViewPanel;

/// Draws the rows of a panel whose objects have different values as what they are, and tells those who
/// hear them. The controls stay as they are for the user's hands; what an edit gives a value is drawn as
/// ever from then on.
class MixedRows final : public QObject
{
    Q_OBJECT

public:
    /// Belongs to the panel.
    MixedRows(ViewPanel *panel, SelectionDelegate *selection);
    ~MixedRows() override;

    /// The descriptions of the row's controls are about to be changed by others, or were.
    void setTold(const PropertyUI::Property *property, bool told);

private:
    struct Description
    {
        QPointer<QWidget> control;
        QString before;
        QString told;
    };

    void mixedChanged(const PropertyUI::Property *property, bool mixed);
    void setMixed(int row, bool mixed);
    void tell(int row);
    void untell(int row);

    std::shared_ptr<const PanelRows> m_rows;
    QPointer<SelectionDelegate> m_selection;
    QHash<int, std::shared_ptr<MixedPainter>> m_painters; // by row; of mixed rows
    QHash<int, QVector<Description>> m_descriptions;
};

} // namespace Tessark::PropertyHost
