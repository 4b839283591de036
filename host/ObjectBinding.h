#pragma once

#include "host/ObjectField.h"
#include "host/Problem.h"
#include "host/PropertyHostExport.h"
#include "host/PropertyList.h"
#include "host/PropertyMetaType.h"

#include <QObject>
#include <QString>
#include <QVector>

#include <functional>
#include <memory>
#include <optional>

class QMetaProperty;

namespace Tessark::PropertyUI {
class IPropertyEditorDelegate;
class Property;
class PropertyEditorPanel;
} // namespace Tessark::PropertyUI

namespace Tessark::PropertyHost {

class ObjectDelegate;

/// What becomes of properties without WRITE.
enum class ReadOnlyRows {
    Disabled,   // rows of their type that cannot be used
    StaticText, // their value as text; of enumerations the key
    LeftOut,
};

/// Which properties of an object become rows, and how.
struct ObjectBindingOptions
{
    /// Only properties that classes below this one declare; all where it is null or no base.
    const QMetaObject *above = &QObject::staticMetaObject;

    ReadOnlyRows readOnly = ReadOnlyRows::Disabled;

    /// Whether properties with DESIGNABLE false become rows too.
    bool withUndesignable = false;

    /// Stands before the names of the rows, so that those of several objects differ.
    QString prefix;

    /// Asked first for each property, for types of the host or other rows for known types; without
    /// answer the property is shown as usual.
    std::function<std::optional<ObjectField>(const QMetaProperty &property)> fieldOf;
};

/**
 * Makes the meta-properties of objects into the rows of a panel and their delegate:
 *
 *     ObjectBinding binding;
 *     binding.add(&amplifier);
 *     PropertyEditorPanel panel(binding.properties(), binding.delegate(), nullptr);
 *     binding.watch(&panel);
 *     panel.updateUI();
 *
 * Edits are written to the object at once. A property with NOTIFY shows each change in its row
 * before the signal returns, in panels that are watched; others are shown by refresh(). While the
 * user edits a row, the object's answer to that edit does not disturb the control: where it took
 * another value, that is shown when the slider is released or the field is left.
 *
 * What classes say of their properties by Q_CLASSINFO is described in docs/object-binding.md, as are
 * the types. "Set to Default" in a watched panel calls the property's RESET; what that gives is the
 * default from then on.
 *
 * Objects must live in the GUI thread. An object, the binding and the panels that are watched may go
 * in any order and at any time: the rows stay, cannot be used and have no values. A panel that is
 * not watched must go before the binding.
 */
class TESSARK_PROPERTYHOST_EXPORT ObjectBinding : public QObject
{
    Q_OBJECT

public:
    explicit ObjectBinding(QObject *parent = nullptr);
    ~ObjectBinding() override;

    /// Appends rows for the properties of an object, which is not taken over. Null adds nothing.
    /// Panels are made afterwards.
    void add(QObject *object, const ObjectBindingOptions &options = {});

    /// The same for a gadget. It tells of no changes and must live until it is given to forget(), or
    /// as long as binding and panels.
    void add(void *gadget, const QMetaObject &meta, const ObjectBindingOptions &options = {});

    /// Lets go of an object or gadget, whose rows stay without it.
    void forget(const void *objectOrGadget);

    /// The rows, for what has no function here: a title, groups around add(), toJson(). It lives as
    /// long as the binding.
    PropertyList &list();
    const PropertyList &list() const;

    /// The rows as PropertyUI::PropertyEditorPanel takes them.
    QVector<PropertyUI::Property *> properties() const;

    /// The first row of that name, for ranges or hints in code before panels are made; null if there
    /// is none.
    PropertyUI::Property *find(const QString &name) const;

    /// What panels are to have for a delegate, or the delegates in front of it. It lives as long as
    /// this object and the panels that are watched.
    PropertyUI::IPropertyEditorDelegate *delegate() const;

    /// Shows changes in the panel from now on, keeps rows that cannot be used from being used and
    /// lets "Set to Default" reset. Once for each panel; null does nothing.
    void watch(PropertyUI::PropertyEditorPanel *panel);

    /// What is wrong: what PropertyList::validate() tells, mistakes in Q_CLASSINFO, and properties
    /// of types that no row shows.
    QVector<Problem> validate() const;

public Q_SLOTS:
    /// Shows the values of all properties in the panels that are watched.
    void refresh();

Q_SIGNALS:
    /// A panel, or another caller of the delegate's setValue(), set a property. continued says that
    /// it goes on with the change before it. Silent when an object changes by itself.
    void valueChanged(Tessark::PropertyUI::Property *property, bool continued);

private:
    std::shared_ptr<ObjectDelegate> m_delegate;
};

} // namespace Tessark::PropertyHost
