#include "host/RowControls_p.h"

#include "host/DefaultMarks_p.h"
#include "host/LabelScrubber.h"
#include "host/MixedRows_p.h"
#include "host/NumberEntry.h"
#include "host/RowMenu_p.h"
#include "host/SelectionDelegate.h"
#include "host/ViewPanel_p.h"

namespace Tessark::PropertyHost {

using namespace PropertyUI;

namespace {

/// Makes the feature, or takes it away. Returns whether it is new.
template <typename Feature, typename Make>
bool provide(QPointer<Feature> &feature, bool wanted, Make make)
{
    if (wanted == !feature.isNull())
        return false;
    if (wanted)
        feature = make();
    else
        delete feature;
    return wanted;
}

} // namespace

RowControls::RowControls(ViewPanel *panel, const DelegateChain &delegates,
                         const RowFeatures &features)
    : QObject(panel)
    , m_panel(panel)
    , m_delegates(delegates)
{
    if (SelectionDelegate *const selection = delegates.selection())
        m_mixed = new MixedRows(panel, selection);
    provideAll(features);
}

void RowControls::setFeatures(const RowFeatures &features)
{
    if (provideAll(features))
        m_marks->updateAll();
}

void RowControls::beginUpdate(const Property *property)
{
    if (m_mixed)
        m_mixed->setTold(property, false);
}

void RowControls::endUpdate(Property *property)
{
    if (m_mixed)
        m_mixed->setTold(property, true);
    if (m_marks)
        m_marks->update(property);
}

/// True when there are marks now that have to be told the values.
bool RowControls::provideAll(const RowFeatures &features)
{
    provide(m_scrubber, features.labelScrubbing,
            [this] { return new LabelScrubber(m_panel, m_panel); });
    provide(m_entry, features.arithmeticEntry,
            [this] { return new NumberEntry(m_panel, m_panel); });
    const bool hasNewMenu =
        provide(m_menu, features.menu, [this] { return new RowMenu(m_panel, m_delegates); });
    if (hasNewMenu)
        connect(m_menu, &RowMenu::aboutToShow, this, &RowControls::menuAboutToShow);
    return provide(m_marks, features.defaultMarks,
                   [this] { return new DefaultMarks(m_panel, m_delegates); });
}

} // namespace Tessark::PropertyHost
