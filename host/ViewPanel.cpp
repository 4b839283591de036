#include "host/ViewPanel_p.h"

#include <property/PropertyEditor.h>

#include <QContextMenuEvent>

#include <utility>

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

void ViewPanel::announce(PropertyEditor &editor, const QVariant &value)
{
    const QPointer<ViewPanel> self(this);
    m_announced = value;
    Q_EMIT editor.valueChanged();
    if (self)
        m_announced = QVariant();
}

void ViewPanel::setValue(Property *property, const QVariant &value,
                         IPropertyEditorDelegate::ChangeFlags flags)
{
    const QPointer<ViewPanel> self(this);
    const QVariant announced = std::exchange(m_announced, QVariant());
    PropertyEditorPanel::setValue(property, announced.isValid() ? announced : value, flags);
    if (self)
        Q_EMIT valueEdited(property);
}

QVariant ViewPanel::value(Property *property) const
{
    const QPointer<const ViewPanel> self(this);
    QVariant value = PropertyEditorPanel::value(property);
    if (self)
        Q_EMIT valueRead(property, value);
    return value;
}

void ViewPanel::contextMenuEvent(QContextMenuEvent *event)
{
    const QPointer<ViewPanel> self(this);
    event->ignore();
    Q_EMIT menuRequested(event);
    if (!self || event->isAccepted())
        return;
    event->accept();
    PropertyEditorPanel::contextMenuEvent(event);
}

// The rows may show or delete anything: nothing is touched afterwards.
void ViewPanel::showGroup(PropertyEditor *group, bool)
{
    m_folding.groupToggled(m_rows->indexOf(group->widget(nullptr)));
}

void tellRange(PropertyEditorPanel *panel)
{
    if (auto *const viewPanel = dynamic_cast<ViewPanel *>(panel))
        Q_EMIT viewPanel->rangeShown();
}

RowVisibility *visibilityOf(PropertyEditorPanel *panel)
{
    auto *const viewPanel = dynamic_cast<ViewPanel *>(panel);
    return viewPanel ? &viewPanel->visibility() : nullptr;
}

} // namespace Tessark::PropertyHost
