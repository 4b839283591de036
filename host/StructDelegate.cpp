#include "host/StructDelegate.h"

#include <QPointer>

#include <algorithm>
#include <utility>

namespace Tessark::PropertyHost {

using namespace PropertyUI;

StructDelegate::StructDelegate(QObject *parent)
    : QObject(parent)
{
    // Signal spies and queued connections look the parameter of valueChanged() up by this name.
    qRegisterMetaType<Property *>("Tessark::PropertyUI::Property*");
}

StructDelegate::~StructDelegate() = default;

void StructDelegate::setValue(Property *property, const QVariant &value, ChangeFlags flags)
{
    const auto member = m_members.constFind(property);
    if (member == m_members.constEnd()) {
        m_otherValues.insert(property, value);
    } else {
        const auto write = member->write; // a copy: an action may do anything
        const QPointer<StructDelegate> self(this);
        write(value);
        if (!self)
            return;
    }
    Q_EMIT valueChanged(property, flags.testFlag(ContinuedChange));
}

QVariant StructDelegate::value(Property *property)
{
    const auto member = m_members.constFind(property);
    if (member != m_members.constEnd())
        return member->read();
    const bool isGroup = property->type == kPropertyTypeBeginGroup;
    return m_otherValues.value(property, isGroup ? QVariant(true) : property->defaultValue);
}

PropertyRow StructDelegate::addMember(const QString &type, const QString &name,
                                      const QString &label, const Member &member)
{
    const PropertyRow row = m_list.add(type, name, label);
    m_members.insert(&row.property(), member);
    return row;
}

PropertyRow StructDelegate::addAction(const QString &name, const QString &label,
                                      std::function<void()> triggered)
{
    const auto trigger = [triggered = std::move(triggered)](const QVariant &) { triggered(); };
    return addMember(kPropertyTypeAction, name, label, {[] { return QVariant(); }, trigger});
}

QString StructDelegate::nameFor(const QString &prefix, const QString &label) const
{
    QString stem = prefix;
    for (const QChar letter : label.toLower())
        stem += letter.isLetterOrNumber() ? letter : QLatin1Char('_');
    const QVector<Property *> rows = m_list.properties();
    const auto isTaken = [&rows](const QString &name) {
        return name.isEmpty()
               || std::any_of(rows.begin(), rows.end(),
                              [&name](const Property *row) { return row->name == name; });
    };
    QString name = stem;
    for (int number = 2; isTaken(name); ++number)
        name = stem + QLatin1Char('_') + QString::number(number);
    return name;
}

} // namespace Tessark::PropertyHost
