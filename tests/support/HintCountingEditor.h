#pragma once

#include <property/PropertyEditor.h>

#include "support/FixedHintWidget.h"

namespace Tessark::Testing {

/// An editor of a widget that counts how often its size hint is asked for.
class HintCountingEditor final : public PropertyUI::PropertyEditor
{
public:
    static PropertyEditor *Factory(PropertyUI::Property *property)
    {
        return new HintCountingEditor(property);
    }

    /// Since this was set to 0, of the widgets of all these editors.
    inline static int s_hintCalls = 0;

    using PropertyEditor::PropertyEditor;

    void setValue(const QVariant &) override {}
    QVariant value() const override { return {}; }
    QWidget *widget(PropertyUI::PropertyEditorContext *) override
    {
        if (!m_widget)
            m_widget = new CountingWidget;
        return m_widget;
    }

private:
    class CountingWidget final : public FixedHintWidget
    {
    public:
        CountingWidget()
            : FixedHintWidget(QSize(80, 20))
        {
        }

        QSize sizeHint() const override
        {
            ++s_hintCalls;
            return FixedHintWidget::sizeHint();
        }
    };
};

} // namespace Tessark::Testing
