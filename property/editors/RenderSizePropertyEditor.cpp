#include "property/editors/RenderSizePropertyEditor.h"

#include "property/EditorHelpers_p.h"
#include "property/SizeFields_p.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QSpinBox>

namespace Tessark::PropertyUI {

namespace {

/// What the full size is divided by, by the index of the choice.
constexpr int kPresetDivisors[] = {1, 2, 4};
constexpr int kPresetCount = 3;
constexpr int kCustomChoice = 3;

constexpr int kCheckColumn = 4;

} // namespace

PropertyEditor *RenderSizePropertyEditor::Factory(Property *property)
{
    return new RenderSizePropertyEditor(property);
}

RenderSizePropertyEditor::RenderSizePropertyEditor(Property *property)
    : PropertyEditor(property)
{
}

RenderSizePropertyEditor::~RenderSizePropertyEditor() = default;

void RenderSizePropertyEditor::setValue(const QVariant &value)
{
    if (m_fields)
        m_fields->show(toSaturatedSize(value));
}

QVariant RenderSizePropertyEditor::value() const
{
    return m_fields ? m_fields->size() : QSize();
}

QWidget *RenderSizePropertyEditor::widget(PropertyEditorContext *)
{
    if (buildsNow())
        m_widget = makeWidget();
    if (m_widget)
        m_widget->ensurePolished();
    return m_widget;
}

QString RenderSizePropertyEditor::controlName(const QWidget *control) const
{
    const QString name = m_fields ? m_fields->nameOf(control) : QString();
    return name.isEmpty() ? PropertyEditor::controlName(control) : name;
}

QWidget *RenderSizePropertyEditor::makeWidget()
{
    m_fields = std::make_unique<SizeFields>(this, tr("Constrain Aspect"));
    m_fullSize = toSaturatedSize(hint(kPropertyHintFullSize));

    auto *const container = new QWidget;
    auto *const grid = new QGridLayout(container);
    grid->setContentsMargins(0, 0, 0, 0);
    int row = 0;
    if (m_fullSize.width() >= 0) {
        m_comboBox = makeComboBox();
        grid->addWidget(m_comboBox, row++, 0, 1, -1);
    }
    for (const SizeFields::Side side : {SizeFields::Width, SizeFields::Height}) {
        QSpinBox *const spinBox = m_fields->spinBox(side);
        spinBox->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
        grid->addWidget(m_fields->label(side), row, 2 * side);
        grid->addWidget(spinBox, row, 2 * side + 1);
        connect(spinBox, qOverload<int>(&QSpinBox::valueChanged), this,
                &RenderSizePropertyEditor::spinBoxValueChanged);
    }
    if (m_fields->constrainCheck())
        grid->addWidget(m_fields->constrainCheck(), row, kCheckColumn);
    m_fields->setEnabled(!m_comboBox);
    return container;
}

QComboBox *RenderSizePropertyEditor::makeComboBox()
{
    auto *const comboBox = new QComboBox;
    comboBox->addItems(
        {tr("Full Resolution"), tr("Half Resolution"), tr("Quarter Resolution"), tr("Custom...")});
    connect(comboBox, qOverload<int>(&QComboBox::currentIndexChanged), this,
            &RenderSizePropertyEditor::comboBoxValueChanged);
    return comboBox;
}

void RenderSizePropertyEditor::spinBoxValueChanged(int value)
{
    if (m_fields)
        m_fields->keepAspect(sender(), value); // one slot, seen by signature, for both fields
    Q_EMIT valueChanged();
}

void RenderSizePropertyEditor::comboBoxValueChanged(int choice)
{
    if (!m_comboBox)
        return;
    if (choice == kCustomChoice)
        m_fields->setEnabled(true);
    else if (choice >= 0 && choice < kPresetCount && !applyPreset(kPresetDivisors[choice]))
        return;
    Q_EMIT valueChanged();
}

/// Whether editor and widget are still there: the numbers announce their changes themselves, on
/// purpose, and may set one another by the ratio.
bool RenderSizePropertyEditor::applyPreset(int divisor)
{
    const QPointer<QObject> editorAlive(this);
    const QPointer<QWidget> widgetAlive(m_widget);
    m_fields->spinBox(SizeFields::Width)->setValue(m_fullSize.width() / divisor);
    if (!editorAlive || !widgetAlive)
        return false;
    m_fields->spinBox(SizeFields::Height)->setValue(m_fullSize.height() / divisor);
    if (!editorAlive || !widgetAlive)
        return false;
    m_fields->setEnabled(false);
    return editorAlive && widgetAlive;
}

} // namespace Tessark::PropertyUI
