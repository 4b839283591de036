#include "property/editors/SizePropertyEditor.h"

#include "property/EditorHelpers_p.h"
#include "property/SizeFields_p.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QSpinBox>

namespace Tessark::PropertyUI {

PropertyEditor *SizePropertyEditor::Factory(Property *property)
{
    return new SizePropertyEditor(property);
}

SizePropertyEditor::SizePropertyEditor(Property *property)
    : PropertyEditor(property)
{
}

SizePropertyEditor::~SizePropertyEditor() = default;

void SizePropertyEditor::setValue(const QVariant &value)
{
    if (m_fields)
        m_fields->show(toSaturatedSize(value));
}

QVariant SizePropertyEditor::value() const
{
    return m_fields ? m_fields->size() : QSize();
}

QWidget *SizePropertyEditor::widget(PropertyEditorContext *)
{
    if (buildsNow()) {
        m_fields = std::make_unique<SizeFields>(this, tr("Constrain Aspect"));
        m_widget = new QWidget;
        auto *const layout = new QHBoxLayout(m_widget);
        layout->setContentsMargins(0, 0, 0, 0);
        for (const SizeFields::Side side : {SizeFields::Width, SizeFields::Height}) {
            layout->addWidget(m_fields->label(side));
            layout->addWidget(m_fields->spinBox(side));
            connect(m_fields->spinBox(side), qOverload<int>(&QSpinBox::valueChanged), this,
                    &SizePropertyEditor::spinBoxValueChanged);
        }
        if (m_fields->constrainCheck())
            layout->addWidget(m_fields->constrainCheck());
        layout->addStretch();
    }
    return m_widget;
}

QString SizePropertyEditor::controlName(const QWidget *control) const
{
    const QString name = m_fields ? m_fields->nameOf(control) : QString();
    return name.isEmpty() ? PropertyEditor::controlName(control) : name;
}

void SizePropertyEditor::spinBoxValueChanged(int value)
{
    if (m_fields)
        m_fields->keepAspect(sender(), value); // one slot, seen by signature, for both fields
    Q_EMIT valueChanged();
}

} // namespace Tessark::PropertyUI
