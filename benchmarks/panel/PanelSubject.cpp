#include "PanelSubject.h"

#include "Rows.h"

#include <QCheckBox>
#include <QSlider>

using namespace Tessark::PropertyUI;

namespace {

const QString &typeOf(RowKind kind)
{
    switch (kind) {
    case RowKind::Fraction:
        return kPropertyTypeFloat;
    case RowKind::Integer:
        return kPropertyTypeInteger;
    case RowKind::Switch:
        return kPropertyTypeBoolean;
    case RowKind::Text:
        return kPropertyTypeString;
    case RowKind::Choice:
        return kPropertyTypeEnumeration;
    case RowKind::Color:
        break;
    }
    return kPropertyTypeColor;
}

Property propertyOf(int row)
{
    const RowKind kind = kindOf(row);
    Property property(QString::number(row), labelOf(row), typeOf(kind));
    if (kind == RowKind::Fraction)
        property.setRange(0.0, kFractionLimit);
    else if (kind == RowKind::Integer)
        property.setRange(0, kIntegerLimit);
    else if (kind == RowKind::Choice)
        property.setHint(kPropertyHintDisplayValues, choiceTexts());
    return property;
}

QVariant valueOf(int row, int round)
{
    switch (kindOf(row)) {
    case RowKind::Fraction:
        return fractionOf(row, round);
    case RowKind::Integer:
        return integerOf(row, round);
    case RowKind::Switch:
        return switchOf(row, round);
    case RowKind::Text:
        return textOf(row, round);
    case RowKind::Choice:
        return choiceOf(row, round);
    case RowKind::Color:
        break;
    }
    return colorOf(row, round);
}

} // namespace

PanelSubject::PanelSubject(int rows)
{
    m_properties.reserve(static_cast<std::size_t>(rows));
    m_values.reserve(rows + 2);
    for (int row = 0; row < rows; ++row) {
        m_properties.push_back(propertyOf(row));
        m_values.insert(&m_properties.back(), valueOf(row, 0));
    }
    m_markers.emplace_back(QStringLiteral("begin"), QStringLiteral("Group"),
                           kPropertyTypeBeginGroup);
    m_markers.emplace_back(QStringLiteral("end"), QString(), kPropertyTypeEndGroup);
    m_values.insert(&m_markers[0], true);

    QVector<Property *> list;
    list.reserve(rows + 2);
    list.append(&m_markers[0]);
    for (int row = 0; row < rows; ++row) {
        if (row == groupedRows(rows))
            list.append(&m_markers[1]);
        list.append(&m_properties[static_cast<std::size_t>(row)]);
    }
    m_panel = new PropertyEditorPanel(list, this, nullptr);
    m_panel->updateUI();
    m_window.setWidget(m_panel);
}

PanelSubject::~PanelSubject()
{
    delete m_window.takeWidget(); // as the other subject: closing a window tells all that is in it
}

void PanelSubject::refresh(int round)
{
    for (std::size_t row = 0; row < m_properties.size(); ++row)
        m_values[&m_properties[row]] = valueOf(int(row), round);
    m_panel->updateUI();
}

void PanelSubject::setExpanded(bool expanded)
{
    QVector<PropertyEditor *> editors;
    m_panel->getEditors(editors, kPropertyTypeBeginGroup);
    auto *const header = editors.first()->widget(nullptr)->findChild<QCheckBox *>();
    auto *const box = header ? header : qobject_cast<QCheckBox *>(editors.first()->widget(nullptr));
    if (box->isChecked() != expanded)
        box->click();
}

QAbstractSlider *PanelSubject::slider()
{
    if (!m_draggedEditor) {
        QVector<PropertyEditor *> editors;
        m_panel->getEditors(editors, kPropertyTypeFloat);
        m_draggedEditor = editors.first();
    }
    return m_draggedEditor->widget(nullptr)->findChild<QSlider *>();
}

bool PanelSubject::updateRow(int row)
{
    m_panel->updateProperty(&m_properties[static_cast<std::size_t>(row)]);
    return true;
}

void PanelSubject::setValue(Property *property, const QVariant &value, ChangeFlags)
{
    ++m_delegateCalls;
    m_values[property] = value;
    if (m_echo == Echo::All)
        m_panel->updateUI();
    else if (m_echo == Echo::One)
        m_draggedEditor->setValue(value);
}

QVariant PanelSubject::value(Property *property)
{
    ++m_delegateCalls;
    return m_values.value(property);
}
