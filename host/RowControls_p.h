#pragma once

#include "host/DelegateChain_p.h"

#include <QMenu>
#include <QObject>
#include <QPointer>

namespace Tessark::PropertyUI {
class Property;
}

namespace Tessark::PropertyHost {

class DefaultMarks;
class LabelScrubber;
class MixedRows;
class NumberEntry;
class RowMenu;
class ViewPanel;

/// What the user can do with the rows of a panel besides editing their fields.
struct RowFeatures
{
    bool defaultMarks = true;
    bool menu = true;
    bool labelScrubbing = false;
    bool arithmeticEntry = false;
};

/// Gives the rows of a view's panel these features, and draws those that are mixed.
class RowControls final : public QObject
{
    Q_OBJECT

public:
    /// Belongs to the panel, whose delegate passes on to the first of the chain or is that.
    RowControls(ViewPanel *panel, const DelegateChain &delegates, const RowFeatures &features);

    /// Asks the host for values, if there are marks from now on.
    void setFeatures(const RowFeatures &features);

    /// What the property says was changed by the host, and its help is about to be shown or was.
    void beginUpdate(const PropertyUI::Property *property);
    void endUpdate(PropertyUI::Property *property);

Q_SIGNALS:
    void menuAboutToShow(QMenu *menu, PropertyUI::Property *property);

private:
    bool provideAll(const RowFeatures &features);

    ViewPanel *m_panel;
    DelegateChain m_delegates;
    QPointer<DefaultMarks> m_marks; // belongs to the panel, as all of these
    QPointer<RowMenu> m_menu;
    QPointer<MixedRows> m_mixed;
    QPointer<LabelScrubber> m_scrubber;
    QPointer<NumberEntry> m_entry;
};

} // namespace Tessark::PropertyHost
