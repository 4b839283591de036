#pragma once

#include <property/PropertyEditor.h>
#include <property/PropertyEditorPanel.h>

#include <QAbstractSpinBox>
#include <QPointer>

namespace Tessark::PropertyHost {

/// A number field of a panel. Each of the three may go at any time.
class PanelField
{
public:
    PanelField(PropertyUI::PropertyEditorPanel *panel, PropertyUI::PropertyEditor *panelEditor,
               QAbstractSpinBox *panelSpinBox)
        : editor(panelEditor)
        , spinBox(panelSpinBox)
        , m_panel(panel)
    {
    }

    /// Null also while the panel is being deleted, when it is but a widget and its fields lose the
    /// focus.
    PropertyUI::PropertyEditorPanel *panel() const
    {
        return qobject_cast<PropertyUI::PropertyEditorPanel *>(m_panel.data());
    }

    bool isAlive() const { return panel() && editor && spinBox; }

    QPointer<PropertyUI::PropertyEditor> editor;
    QPointer<QAbstractSpinBox> spinBox;

private:
    QPointer<QObject> m_panel;
};

} // namespace Tessark::PropertyHost
