#pragma once

#include "host/PropertyHostExport.h"
#include "host/PropertyList.h"
#include "host/PropertyMetaType.h"

#include <property/IPropertyEditorDelegate.h>

#include <QHash>
#include <QObject>
#include <QString>
#include <QVariant>
#include <QVector>

#include <functional>

namespace Tessark::PropertyHost {

/**
 * The property list and delegate of a StructBinding, apart from the type of the struct; what lists
 * and delegates of other bindings share is here too.
 *
 * A value is read from the struct each time that a panel asks for it. A host that changes the struct
 * itself refreshes the panel with PropertyEditorPanel::updateUI().
 */
class TESSARK_PROPERTYHOST_EXPORT StructDelegate : public QObject,
                                                   public PropertyUI::IPropertyEditorDelegate
{
    Q_OBJECT

public:
    /// How a row reads its member, and writes what its editor hands out. read() gives an invalid
    /// variant while there is no struct.
    struct Member
    {
        std::function<QVariant()> read;
        std::function<void(const QVariant &)> write;
    };

    ~StructDelegate() override;

    /// The rows, for what has no function here: a title, rows without member, validate(), toJson().
    PropertyList &list() { return m_list; }
    const PropertyList &list() const { return m_list; }

    /// The rows as PropertyUI::PropertyEditorPanel takes them.
    QVector<PropertyUI::Property *> properties() const { return m_list.properties(); }

    /// Writes the member of the row, or calls what an action row is for, and emits valueChanged().
    /// Whether a group is open is kept here, as is the value of a row without member.
    void setValue(PropertyUI::Property *property, const QVariant &value,
                  ChangeFlags flags) override;

    /// The value of the row's member. Groups are open at first.
    QVariant value(PropertyUI::Property *property) override;

    // Used by StructRows.

    /// Appends a row for a member. An empty name is replaced by one made of the label.
    PropertyRow addMember(const QString &type, const QString &name, const QString &label,
                          const Member &member);
    PropertyRow addAction(const QString &name, const QString &label,
                          std::function<void()> triggered);

    /// A name made of the label: letters, digits and underlines, and none that a row has already.
    QString nameFor(const QString &prefix, const QString &label) const;

Q_SIGNALS:
    /// A panel, or another caller of setValue(), set a value. continued says that it goes on with
    /// the change before it.
    void valueChanged(Tessark::PropertyUI::Property *property, bool continued);

protected:
    explicit StructDelegate(QObject *parent = nullptr);

private:
    PropertyList m_list;
    QHash<const PropertyUI::Property *, Member> m_members;
    QHash<const PropertyUI::Property *, QVariant> m_otherValues;
};

} // namespace Tessark::PropertyHost
