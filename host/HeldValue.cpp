#include "host/HeldValue_p.h"

#include "host/NumberFieldAccess_p.h"

#include <QSignalBlocker>

namespace Tessark::PropertyHost {

using namespace PropertyUI;

HeldValue::HeldValue(const PanelField &field)
    : m_field(field)
{
    const auto spinBoxes = numberFieldsIn(field.editor->widget(nullptr));
    for (QAbstractSpinBox *spinBox : spinBoxes)
        m_fields.append({spinBox, numberOf(*spinBox)});
    m_value = field.panel()->value(field.editor->editedProperty());
}

std::optional<double> HeldValue::number(const QAbstractSpinBox *field) const
{
    for (const Field &held : m_fields) {
        if (held.spinBox == field)
            return held.number;
    }
    return std::nullopt;
}

void HeldValue::show() const
{
    // First the editor, for its sliders; it may leave a field alone or show it in a way of its own.
    if (m_field.editor && m_value.isValid())
        m_field.editor->setValue(m_value);
    for (const Field &held : m_fields) {
        if (!held.spinBox)
            continue;
        const QSignalBlocker blocker(held.spinBox);
        setNumber(*held.spinBox, held.number);
    }
}

void HeldValue::giveBack() const
{
    show();
    if (!m_field.editor)
        return;
    // Not by valueChanged(), which would tell the number as the field rounds it.
    if (m_field.panel() && m_value.isValid()) {
        m_field.panel()->setValue(m_field.editor->editedProperty(), m_value,
                                  IPropertyEditorDelegate::ContinuedChange);
    } else {
        Q_EMIT m_field.editor->valueChanged();
    }
}

} // namespace Tessark::PropertyHost
