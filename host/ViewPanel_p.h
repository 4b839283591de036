#pragma once

#include "host/DelegatePointer.h"
#include "host/GroupFolding_p.h"
#include "host/RowVisibility_p.h"

#include <property/PropertyEditorPanel.h>

#include <memory>

namespace Tessark::PropertyHost {

/// The panel of a view. It folds its groups by itself and knows why a row is hidden.
class ViewPanel final : public PropertyUI::PropertyEditorPanel
{
    Q_OBJECT

public:
    ViewPanel(const QVector<PropertyUI::Property *> &properties,
              PropertyUI::IPropertyEditorDelegate *delegate,
              PropertyUI::PropertyEditorContext *context);
    ~ViewPanel() override;

    /// The rows may be kept longer than the panel.
    std::shared_ptr<const PanelRows> rows() const { return m_rows; }
    RowVisibility &visibility() { return *m_visibility; }
    GroupFolding &folding() { return m_folding; }

    /// The delegate of the host, which the panel's own may stand in front of; null at first.
    PropertyUI::IPropertyEditorDelegate *source() const { return m_source.get(); }
    void setSource(PropertyUI::IPropertyEditorDelegate *source);

    void setValue(PropertyUI::Property *property, const QVariant &value,
                  PropertyUI::IPropertyEditorDelegate::ChangeFlags flags) override;

Q_SIGNALS:
    /// The user edited a value, and the delegate was told.
    void edited();

protected:
    void showGroup(PropertyUI::PropertyEditor *group, bool open) override;

private:
    std::shared_ptr<const PanelRows> m_rows;
    std::unique_ptr<RowVisibility> m_visibility;
    GroupFolding m_folding;
    DelegatePointer m_source;
};

/// What decides which rows of the panel are shown; null for a panel outside of a view.
RowVisibility *visibilityOf(PropertyUI::PropertyEditorPanel *panel);

} // namespace Tessark::PropertyHost
