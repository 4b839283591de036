#include "property/editors/EnumerationPropertyEditor.h"

#include "property/EditorHelpers_p.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QHBoxLayout>
#include <QRadioButton>

namespace Tessark::PropertyUI {

namespace {

/// The entries of a list hint. A text or byte array is not a list, although Qt 6 would take it for
/// one of characters.
QVariantList entriesOf(const QVariant &hint)
{
    const int type = hint.userType();
    if (type == QMetaType::QString || type == QMetaType::QByteArray)
        return {};
    return hint.toList();
}

} // namespace

PropertyEditor *EnumerationPropertyEditor::Factory(Property *property)
{
    return new EnumerationPropertyEditor(property);
}

EnumerationPropertyEditor::EnumerationPropertyEditor(Property *property)
    : PropertyEditor(property)
{
}

EnumerationPropertyEditor::~EnumerationPropertyEditor() = default;

void EnumerationPropertyEditor::setValue(const QVariant &value)
{
    const QVariant stored = m_property->hint(kPropertyHintValues);
    int index = toSaturatedInt(value);
    if (!stored.isNull()) {
        index = static_cast<int>(entriesOf(stored).indexOf(value));
        if (index < 0)
            return; // a value that no choice has leaves the choice as it is
    }
    setQuietly(m_comboBox, &QComboBox::setCurrentIndex, index);
    if (m_buttonGroup)
        checkButton(*m_buttonGroup, index);
}

QVariant EnumerationPropertyEditor::value() const
{
    const QVariant stored = m_property->hint(kPropertyHintValues);
    if (stored.isNull())
        return currentIndex();
    return entriesOf(stored).value(currentIndex());
}

QWidget *EnumerationPropertyEditor::widget(PropertyEditorContext *)
{
    if (buildsNow()) {
        const QString kind = m_property->hint(kPropertyHintWidget).toString();
        m_widget = kind == kWidgetTypeRadioButtons ? makeRadioButtons() : makeComboBox();
    }
    if (m_widget)
        m_widget->ensurePolished();
    return m_widget;
}

QWidget *EnumerationPropertyEditor::makeComboBox()
{
    m_comboBox = new QComboBox;
    for (const QVariant &text : entriesOf(m_property->hint(kPropertyHintDisplayValues)))
        m_comboBox->addItem(text.toString());
    connect(m_comboBox, qOverload<int>(&QComboBox::currentIndexChanged), this,
            &PropertyEditor::valueChanged);
    return m_comboBox;
}

QWidget *EnumerationPropertyEditor::makeRadioButtons()
{
    auto *const row = new QWidget;
    auto *const layout = new QHBoxLayout(row); // with the style's margins, unlike number rows
    m_buttonGroup = new QButtonGroup(this);
    int id = 0;
    for (const QVariant &text : entriesOf(m_property->hint(kPropertyHintDisplayValues))) {
        auto *const button = new QRadioButton(text.toString());
        layout->addWidget(button);
        m_buttonGroup->addButton(button, id++);
    }
    layout->addStretch();
    connect(m_buttonGroup, &QButtonGroup::idClicked, this, &PropertyEditor::valueChanged);
    return row;
}

int EnumerationPropertyEditor::currentIndex() const
{
    if (m_buttonGroup)
        return m_buttonGroup->checkedId();
    return m_comboBox ? m_comboBox->currentIndex() : -1;
}

} // namespace Tessark::PropertyUI
