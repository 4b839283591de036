#include "PendingEdits.h"

#include <host/ValueJson.h>
#include <property/PropertyUI.h>

#include <algorithm>

namespace Tessark::PropertyPanel {

using PropertyUI::PropertyEditor;

namespace {

/// Compared as JSON, since a variant can only compare contents whose type can. What has no JSON
/// form counts as the same: its editors announce every change.
bool differ(const PropertyUI::Property &property, const QVariant &left, const QVariant &right)
{
    const QJsonValue json = PropertyHost::valueToJson(property, left);
    return !json.isUndefined() && json != PropertyHost::valueToJson(property, right);
}

bool isMarker(const PropertyUI::Property &property)
{
    return property.type == PropertyUI::kPropertyTypeBeginGroup
           || property.type == PropertyUI::kPropertyTypeEndGroup;
}

} // namespace

PendingEdits::PendingEdits(PropertyUI::PropertyEditorPanel *panel)
    : m_panel(panel)
{
    QVector<PropertyEditor *> editors;
    panel->getEditors(editors, QString());
    for (PropertyEditor *editor : std::as_const(editors)) {
        if (editor && !isMarker(*editor->editedProperty()))
            m_shown.append({editor, editor->value()});
    }
}

void PendingEdits::noteShownValues()
{
    for (Shown &shown : m_shown) {
        if (shown.editor)
            shown.value = shown.editor->value();
    }
}

void PendingEdits::noteShownValue(const PropertyUI::Property *property)
{
    for (Shown &shown : m_shown) {
        if (shown.editor && shown.editor->editedProperty() == property)
            shown.value = shown.editor->value();
    }
}

bool PendingEdits::isEmpty() const
{
    return std::none_of(m_shown.begin(), m_shown.end(),
                        [this](const Shown &shown) { return isPending(shown); });
}

void PendingEdits::commit()
{
    for (int i = 0; i < m_shown.size(); ++i) {
        if (!isPending(m_shown.at(i)))
            continue;
        const QPointer<PropertyEditor> editor = m_shown.at(i).editor;
        m_shown[i].value = editor->value();
        m_panel->setValue(editor->editedProperty(), m_shown.at(i).value,
                          PropertyUI::IPropertyEditorDelegate::NewChange);
    }
}

bool PendingEdits::isPending(const Shown &shown) const
{
    if (!m_panel || !shown.editor)
        return false;
    PropertyUI::Property *const property = shown.editor->editedProperty();
    const QVariant value = shown.editor->value();
    return differ(*property, value, shown.value)
           && differ(*property, value, m_panel->value(property));
}

} // namespace Tessark::PropertyPanel
