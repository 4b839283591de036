#include "host/ViewPanel_p.h"

#include <property/PropertyEditor.h>

namespace Tessark::PropertyHost {

using namespace PropertyUI;

ViewPanel::ViewPanel(const QVector<Property *> &properties, IPropertyEditorDelegate *delegate,
                     PropertyEditorContext *context)
    : PropertyEditorPanel(properties, delegate, context)
    , m_rows(std::make_shared<const PanelRows>(*this))
    , m_visibility(std::make_unique<RowVisibility>(m_rows, this))
    , m_folding(*m_visibility)
{
}

ViewPanel::~ViewPanel() = default;

void ViewPanel::setSource(IPropertyEditorDelegate *source)
{
    m_source = DelegatePointer(source);
}

void ViewPanel::setValue(Property *property, const QVariant &value,
                         IPropertyEditorDelegate::ChangeFlags flags)
{
    const QPointer<ViewPanel> self(this);
    PropertyEditorPanel::setValue(property, value, flags);
    if (self)
        Q_EMIT edited();
}

// The rows may show or delete anything: nothing is touched afterwards.
void ViewPanel::showGroup(PropertyEditor *group, bool)
{
    m_folding.groupToggled(m_rows->indexOf(group->widget(nullptr)));
}

RowVisibility *visibilityOf(PropertyEditorPanel *panel)
{
    auto *const viewPanel = dynamic_cast<ViewPanel *>(panel);
    return viewPanel ? &viewPanel->visibility() : nullptr;
}

} // namespace Tessark::PropertyHost
