#pragma once

#include "host/Problem.h"
#include "host/PropertyHostExport.h"
#include "host/PropertyRow.h"

#include <property/Property.h>

#include <QJsonObject>
#include <QString>
#include <QVector>

#include <memory>
#include <vector>

namespace Tessark::PropertyHost {

/**
 * Owns the properties of one panel, in order, the panel's title, and the folder of its pictures.
 *
 * Properties are made in code, row by row, or read by readPropertyList():
 *
 *     PropertyList list;
 *     list.boolean("on", "Active").defaultValue(true);
 *     list.group("Sound", [&] {
 *         list.number("gain", "Gain").range(0, 10).suffix(" dB").defaultValue(1);
 *     }).visibleWhen("on");
 *
 * Their addresses stay the same until the list is gone, however many follow. It must outlive every
 * panel made from properties().
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
    /// position is the index of the row in the document that it comes from, for problems;
    /// negative for its index in the list.
    PropertyUI::Property &append(PropertyUI::Property property, int position = -1);

    // Each appends a row of the type it is named after.

    /// A row of any type, the host's own included.
    PropertyRow add(const QString &type, const QString &name, const QString &label);

    PropertyRow number(const QString &name, const QString &label); // "float"
    PropertyRow integer(const QString &name, const QString &label);
    PropertyRow percent(const QString &name, const QString &label);
    PropertyRow boolean(const QString &name, const QString &label);
    PropertyRow string(const QString &name, const QString &label); // one line
    PropertyRow text(const QString &name, const QString &label);   // several lines
    PropertyRow filename(const QString &name, const QString &label);
    PropertyRow staticText(const QString &name, const QString &label);
    PropertyRow choice(const QString &name, const QString &label); // "int/enum"
    PropertyRow vec2(const QString &name, const QString &label);
    PropertyRow vec3(const QString &name, const QString &label);
    PropertyRow vec4(const QString &name, const QString &label);
    PropertyRow color(const QString &name, const QString &label);
    PropertyRow size(const QString &name, const QString &label);
    PropertyRow renderSize(const QString &name, const QString &label);
    PropertyRow transform2D(const QString &name, const QString &label);
    PropertyRow image(const QString &name, const QString &label);
    PropertyRow imageFormat(const QString &name, const QString &label);
    PropertyRow texture(const QString &name, const QString &label);
    PropertyRow action(const QString &name, const QString &label);
    PropertyRow separator();

    /// A group of the rows that makeRows() appends, which folds; the result is the row that begins
    /// it. The group ends with makeRows(), also by an exception.
    template <typename MakeRows>
    PropertyRow group(const QString &label, MakeRows makeRows);

    /// A group of tab pages, which makeTabs() appends with tab(); the result is the row that begins
    /// it.
    template <typename MakeTabs>
    PropertyRow tabs(MakeTabs makeTabs);

    /// A page of the tab group around it with the rows that makeRows() appends.
    template <typename MakeRows>
    PropertyRow tab(const QString &label, MakeRows makeRows);

    /// The properties in order, as PropertyUI::PropertyEditorPanel takes them.
    QVector<PropertyUI::Property *> properties() const;

    /**
     * Everything that is wrong with the rows, in order: unknown types and hints, hints that no
     * editor of the type reads, bad nesting, missing and doubled names, bounds and defaults of the
     * wrong kind, reversed ranges, defaults outside of them, and mistakes in rules.
     *
     * A problem tells the row's index and name; its pointer is where the mistake stands in toJson()
     * or, for a row that was read, in the document. Editors of the host's own types should be
     * registered before.
     */
    QVector<Problem> validate() const;

    /// The JSON form of the list, from which readPropertyList() makes an equal one with the same
    /// folder. What has no JSON form is left out: pictures that were not read from a file, and
    /// variants of the host that JSON cannot hold.
    QJsonObject toJson() const;

    /// Expires with the properties; for objects that may outlive the list.
    std::weak_ptr<const void> lifetime() const;

private:
    /// Appends a closing row when it goes.
    class Closing;

    struct Row
    {
        std::unique_ptr<PropertyUI::Property> property;
        int position;
    };

    PropertyRow begin(const QString &type, const QString &label);

    QString m_title;
    QString m_folder;
    std::vector<Row> m_rows;
    std::shared_ptr<const void> m_lifetime;
};

class TESSARK_PROPERTYHOST_EXPORT PropertyList::Closing
{
public:
    Closing(PropertyList &list, const QString &type);
    ~Closing();
    Q_DISABLE_COPY(Closing)

private:
    PropertyList &m_list;
    QString m_type;
};

template <typename MakeRows>
PropertyRow PropertyList::group(const QString &label, MakeRows makeRows)
{
    const PropertyRow row = begin(PropertyUI::kPropertyTypeBeginGroup, label);
    const Closing closing(*this, PropertyUI::kPropertyTypeEndGroup);
    makeRows();
    return row;
}

template <typename MakeTabs>
PropertyRow PropertyList::tabs(MakeTabs makeTabs)
{
    const PropertyRow row = begin(PropertyUI::kPropertyTypeBeginTabGroup, QString());
    const Closing closing(*this, PropertyUI::kPropertyTypeEndTabGroup);
    makeTabs();
    return row;
}

template <typename MakeRows>
PropertyRow PropertyList::tab(const QString &label, MakeRows makeRows)
{
    const PropertyRow row = begin(PropertyUI::kPropertyTypeTab, label);
    makeRows();
    return row;
}

} // namespace Tessark::PropertyHost
