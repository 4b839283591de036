#include "host/PropertyList.h"

#include <utility>

namespace Tessark::PropertyHost {

PropertyList::PropertyList() = default;
PropertyList::PropertyList(PropertyList &&other) noexcept = default;
PropertyList &PropertyList::operator=(PropertyList &&other) noexcept = default;
PropertyList::~PropertyList() = default;

QString PropertyList::title() const
{
    return m_title;
}

void PropertyList::setTitle(const QString &title)
{
    m_title = title;
}

QString PropertyList::folder() const
{
    return m_folder;
}

void PropertyList::setFolder(const QString &folder)
{
    m_folder = folder;
}

PropertyUI::Property &PropertyList::append(PropertyUI::Property property)
{
    m_properties.push_back(std::make_unique<PropertyUI::Property>(std::move(property)));
    return *m_properties.back();
}

QVector<PropertyUI::Property *> PropertyList::properties() const
{
    QVector<PropertyUI::Property *> result;
    result.reserve(static_cast<int>(m_properties.size()));
    for (const auto &property : m_properties)
        result.append(property.get());
    return result;
}

} // namespace Tessark::PropertyHost
