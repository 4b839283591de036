#pragma once

#include <QPointer>
#include <QStringList>
#include <QVector>

#include <vector>

class QAbstractSpinBox;

namespace Tessark::PropertyUI {
class Property;
class PropertyEditor;
class PropertyEditorPanel;
} // namespace Tessark::PropertyUI

namespace Tessark::PropertyHost {

/// What expressions call the number fields of a panel. The fields may go at any time.
class NumberNames
{
public:
    explicit NumberNames(const PropertyUI::PropertyEditorPanel &panel);

    /// The field of that name, as seen from another: a component of its own row ("x", "width" or
    /// "w"), a row of one number by its name or label, or a component of a row ("size.width"). Null if
    /// there is none.
    QAbstractSpinBox *find(const QString &name, const QAbstractSpinBox *from) const;

private:
    struct Row
    {
        const PropertyUI::Property *property = nullptr;
        QStringList components; // empty for a single number
        QVector<QPointer<QAbstractSpinBox>> fields;
    };

    static QStringList componentsOf(const PropertyUI::Property &property);
    static QAbstractSpinBox *component(const Row &row, const QString &name);
    const Row *rowNamed(const QString &name) const;
    const Row *rowWith(const QAbstractSpinBox *field) const;

    std::vector<Row> m_rows;
};

} // namespace Tessark::PropertyHost
