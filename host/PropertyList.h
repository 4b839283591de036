#pragma once

#include "host/PropertyHostExport.h"

#include <property/Property.h>

#include <QString>
#include <QVector>

#include <memory>
#include <vector>

namespace Tessark::PropertyHost {

/**
 * Owns the properties of one panel, in order, the panel's title, and the folder of its pictures.
 *
 * It must outlive every panel made from properties().
 */
class TESSARK_PROPERTYHOST_EXPORT PropertyList
{
public:
    PropertyList();
    PropertyList(PropertyList &&other) noexcept;
    PropertyList &operator=(PropertyList &&other) noexcept;
    ~PropertyList();

    QString title() const;
    void setTitle(const QString &title);

    /// Where relative paths of pictures start, in the list and in its values. The current folder if
    /// empty, as at first.
    QString folder() const;
    void setFolder(const QString &folder);

    /// Appends a property and returns it, so that setters can be chained; the list owns it.
    PropertyUI::Property &append(PropertyUI::Property property);

    /// The properties in order, as PropertyUI::PropertyEditorPanel takes them.
    QVector<PropertyUI::Property *> properties() const;

private:
    QString m_title;
    QString m_folder;
    std::vector<std::unique_ptr<PropertyUI::Property>> m_properties;
};

} // namespace Tessark::PropertyHost
