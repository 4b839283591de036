#include "host/NumberNames_p.h"

#include "host/NumberFieldAccess_p.h"
#include "host/ValueCheck_p.h"
#include "host/ValueKind_p.h"

#include <property/Property.h>
#include <property/PropertyEditor.h>
#include <property/PropertyEditorPanel.h>

#include <QAbstractSpinBox>

#include <algorithm>
#include <utility>

namespace Tessark::PropertyHost {

using namespace PropertyUI;

NumberNames::NumberNames(const PropertyEditorPanel &panel)
{
    QVector<PropertyEditor *> editors;
    panel.getEditors(editors, QString());
    for (PropertyEditor *editor : std::as_const(editors)) {
        if (!editor)
            continue;
        Row row;
        row.property = editor->editedProperty();
        const auto fields = numberFieldsIn(editor->widget(nullptr));
        for (QAbstractSpinBox *field : fields)
            row.fields.append(field);
        row.components = componentsOf(*row.property);
        if (!row.fields.isEmpty())
            m_rows.push_back(row);
    }
}

QAbstractSpinBox *NumberNames::find(const QString &name, const QAbstractSpinBox *from) const
{
    const Row *const own = rowWith(from);
    if (QAbstractSpinBox *const field = own ? component(*own, name) : nullptr)
        return field;
    const Row *const row = rowNamed(name);
    if (row && row->components.isEmpty() && row->fields.size() == 1)
        return row->fields.first();
    // Names may have points of their own, so only what is behind the last one can be a component.
    const auto point = name.lastIndexOf(QLatin1Char('.'));
    const Row *const composite = point > 0 ? rowNamed(name.left(point)) : nullptr;
    return composite ? component(*composite, name.mid(point + 1)) : nullptr;
}

/// Of the editors whose fields are exactly the components, in their order.
QStringList NumberNames::componentsOf(const Property &property)
{
    const ValueKind kind = typeTraits(property.type).kind;
    switch (kind) {
    case ValueKind::Vector2:
    case ValueKind::Vector3:
    case ValueKind::Vector4:
    case ValueKind::Size:
        return componentNames(kind);
    default:
        return {};
    }
}

QAbstractSpinBox *NumberNames::component(const Row &row, const QString &name)
{
    for (int i = 0; i < row.components.size() && i < row.fields.size(); ++i) {
        if (name == row.components.at(i) || name == row.components.at(i).left(1))
            return row.fields.at(i);
    }
    return nullptr;
}

/// By the name, which the host gave, else by the label, which the user sees.
const NumberNames::Row *NumberNames::rowNamed(const QString &name) const
{
    auto found = std::find_if(m_rows.cbegin(), m_rows.cend(),
                              [&name](const Row &row) { return row.property->name == name; });
    if (found == m_rows.cend()) {
        found = std::find_if(m_rows.cbegin(), m_rows.cend(), [&name](const Row &row) {
            return row.property->label.compare(name, Qt::CaseInsensitive) == 0;
        });
    }
    return found == m_rows.cend() ? nullptr : &*found;
}

const NumberNames::Row *NumberNames::rowWith(const QAbstractSpinBox *field) const
{
    const auto found = std::find_if(m_rows.cbegin(), m_rows.cend(), [field](const Row &row) {
        return std::find(row.fields.cbegin(), row.fields.cend(), field) != row.fields.cend();
    });
    return found == m_rows.cend() ? nullptr : &*found;
}

} // namespace Tessark::PropertyHost
