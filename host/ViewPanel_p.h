#pragma once

#include "host/GroupFolding_p.h"
#include "host/RowVisibility_p.h"

#include <property/PropertyEditorPanel.h>

#include <memory>

namespace Tessark::PropertyHost {

/// The panel of a view. It folds its groups by itself and knows why a row is hidden.
class ViewPanel final : public PropertyUI::PropertyEditorPanel
{
public:
    ViewPanel(const QVector<PropertyUI::Property *> &properties,
              PropertyUI::IPropertyEditorDelegate *delegate,
              PropertyUI::PropertyEditorContext *context);
    ~ViewPanel() override;

    /// The rows may be kept longer than the panel.
    std::shared_ptr<const PanelRows> rows() const { return m_rows; }
    RowVisibility &visibility() { return *m_visibility; }
    GroupFolding &folding() { return m_folding; }

protected:
    void showGroup(PropertyUI::PropertyEditor *group, bool open) override;

private:
    std::shared_ptr<const PanelRows> m_rows;
    std::unique_ptr<RowVisibility> m_visibility;
    GroupFolding m_folding;
};

/// What decides which rows of the panel are shown; null for a panel outside of a view.
RowVisibility *visibilityOf(PropertyUI::PropertyEditorPanel *panel);

} // namespace Tessark::PropertyHost
