#include "host/PropertyList.h"

#include "host/ListKeys_p.h"
#include "host/ProblemCollector_p.h"
#include "host/PropertyListWriter_p.h"
#include "host/RowCheck_p.h"
#include "host/RuleSet_p.h"

#include <property/PropertyEditorPanel.h>

#include <QJsonArray>

#include <utility>

namespace Tessark::PropertyHost {

using namespace PropertyUI;

PropertyList::PropertyList()
    : m_lifetime(std::make_shared<int>())
{
}

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

Property &PropertyList::append(Property property, int position)
{
    const int index = position < 0 ? static_cast<int>(m_rows.size()) : position;
    m_rows.push_back({std::make_unique<Property>(std::move(property)), index});
    return *m_rows.back().property;
}

PropertyRow PropertyList::add(const QString &type, const QString &name, const QString &label)
{
    return PropertyRow(append(Property(name, label, type)));
}

PropertyRow PropertyList::number(const QString &name, const QString &label)
{
    return add(kPropertyTypeFloat, name, label);
}

PropertyRow PropertyList::integer(const QString &name, const QString &label)
{
    return add(kPropertyTypeInteger, name, label);
}

PropertyRow PropertyList::percent(const QString &name, const QString &label)
{
    return add(kPropertyTypePercent, name, label);
}

PropertyRow PropertyList::boolean(const QString &name, const QString &label)
{
    return add(kPropertyTypeBoolean, name, label);
}

PropertyRow PropertyList::string(const QString &name, const QString &label)
{
    return add(kPropertyTypeString, name, label);
}

PropertyRow PropertyList::text(const QString &name, const QString &label)
{
    return add(kPropertyTypeText, name, label);
}

PropertyRow PropertyList::filename(const QString &name, const QString &label)
{
    return add(kPropertyTypeFilename, name, label);
}

PropertyRow PropertyList::staticText(const QString &name, const QString &label)
{
    return add(kPropertyTypeStaticText, name, label);
}

PropertyRow PropertyList::choice(const QString &name, const QString &label)
{
    return add(kPropertyTypeEnumeration, name, label);
}

PropertyRow PropertyList::vec2(const QString &name, const QString &label)
{
    return add(kPropertyTypeVec2, name, label);
}

PropertyRow PropertyList::vec3(const QString &name, const QString &label)
{
    return add(kPropertyTypeVec3, name, label);
}

PropertyRow PropertyList::vec4(const QString &name, const QString &label)
{
    return add(kPropertyTypeVec4, name, label);
}

PropertyRow PropertyList::color(const QString &name, const QString &label)
{
    return add(kPropertyTypeColor, name, label);
}

PropertyRow PropertyList::size(const QString &name, const QString &label)
{
    return add(kPropertyTypeSize, name, label);
}

PropertyRow PropertyList::renderSize(const QString &name, const QString &label)
{
    return add(kPropertyTypeRenderSize, name, label);
}

PropertyRow PropertyList::transform2D(const QString &name, const QString &label)
{
    return add(kPropertyTypeTransform2D, name, label);
}

PropertyRow PropertyList::image(const QString &name, const QString &label)
{
    return add(kPropertyTypeImage, name, label);
}

PropertyRow PropertyList::imageFormat(const QString &name, const QString &label)
{
    return add(kPropertyTypeImageFormat, name, label);
}

PropertyRow PropertyList::texture(const QString &name, const QString &label)
{
    return add(kPropertyTypeTexture, name, label);
}

PropertyRow PropertyList::action(const QString &name, const QString &label)
{
    return add(kPropertyTypeAction, name, label);
}

PropertyRow PropertyList::separator()
{
    return begin(kPropertyTypeSeparator, QString());
}

QVector<Property *> PropertyList::properties() const
{
    QVector<Property *> result;
    result.reserve(static_cast<int>(m_rows.size()));
    for (const Row &row : m_rows)
        result.append(row.property.get());
    return result;
}

QVector<Problem> PropertyList::validate() const
{
    PropertyEditorPanel::InitialiseRegistry();
    ProblemCollector problems;
    RowCheck check(problems);
    QVector<CheckedRow> rows;
    QHash<int, QString> names;
    for (const Row &row : m_rows) {
        rows.append({row.property.get(), rowPointer(row.position)});
        check.checkRow(*row.property, rows.last().pointer);
        names.insert(row.position, row.property->name);
    }
    check.finish();
    readRules(rows, problems);
    return problems.take([&names](int position) { return names.value(position); });
}

QJsonObject PropertyList::toJson() const
{
    QJsonArray rows;
    for (const Row &row : m_rows)
        rows.append(rowToJson(*row.property));
    QJsonObject result{{kKeyVersion, kListVersion}, {kKeyProperties, rows}};
    if (!m_title.isEmpty())
        result.insert(kKeyTitle, m_title);
    return result;
}

std::weak_ptr<const void> PropertyList::lifetime() const
{
    return m_lifetime;
}

PropertyRow PropertyList::begin(const QString &type, const QString &label)
{
    return add(type, QString(), label);
}

PropertyList::Closing::Closing(PropertyList &list, const QString &type)
    : m_list(list)
    , m_type(type)
{
}

PropertyList::Closing::~Closing()
{
    m_list.begin(m_type, QString());
}

} // namespace Tessark::PropertyHost
