#pragma once

#include <property/Property.h>

#include <QString>
#include <QVector>

#include <memory>
#include <vector>

namespace TestSupport {

/// The properties of a test, in order, at addresses that stay.
class PropertySet
{
public:
    /// Appends a property without range; further settings go through the reference.
    Tessark::PropertyUI::Property &add(const QString &name, const QString &label,
                                       const QString &type)
    {
        m_properties.push_back(std::make_unique<Tessark::PropertyUI::Property>(name, label, type));
        return *m_properties.back();
    }

    /// Appends a property whose label is its name.
    Tessark::PropertyUI::Property &add(const QString &name, const QString &type)
    {
        return add(name, name, type);
    }

    QVector<Tessark::PropertyUI::Property *> list() const
    {
        QVector<Tessark::PropertyUI::Property *> result;
        for (const auto &property : m_properties)
            result.append(property.get());
        return result;
    }

private:
    std::vector<std::unique_ptr<Tessark::PropertyUI::Property>> m_properties;
};

} // namespace TestSupport
