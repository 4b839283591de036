#pragma once

#include "host/StructDelegate.h"
#include "host/StructField.h"

#include <functional>
#include <initializer_list>
#include <memory>
#include <type_traits>
#include <utility>

namespace Tessark::PropertyHost {

/// A value of an enumeration and the text that stands for it in its row.
template <typename Enumeration>
using StructChoice = std::pair<Enumeration, QString>;

/**
 * Appends rows for the members of a struct: those of a StructBinding, or of a struct nested in it.
 *
 * Each row is named after its label, or as said; "Set to Default" restores the value that the member
 * has in a new struct, where the struct can be made without arguments.
 */
template <typename Struct>
class StructRows
{
public:
    /// A row of the type that fits the member. Rows of numbers need a range to have a slider.
    template <typename Value>
    PropertyRow bind(Value Struct::*member, const QString &label, const QString &name = QString())
    {
        static_assert(!std::is_enum_v<Value>,
                      "bindStruct: give the texts of the enumeration's values: "
                      "bind(&Struct::member, \"Label\", {{First, \"first\"}, ...}).");
        return bindAs(StructField<std::remove_cv_t<Value>>::type(), member, label, name);
    }

    /// A row of choices.
    template <typename Value>
    PropertyRow bind(Value Struct::*member, const QString &label,
                     std::initializer_list<StructChoice<Value>> choices,
                     const QString &name = QString())
    {
        static_assert(std::is_enum_v<Value>, "bindStruct: only enumerations have choices.");
        PropertyRow row = bindAs(StructField<Value>::type(), member, label, name);
        for (const StructChoice<Value> &choice : choices)
            row.choice(StructField<Value>::toVariant(choice.first), choice.second);
        return row;
    }

    /// A row of another type for the same values: kPropertyTypePercent for a double,
    /// kPropertyTypeFilename or kPropertyTypeText for a text, kPropertyTypeColorRGB for a colour,
    /// kPropertyTypeRenderSize for a size.
    template <typename Value>
    PropertyRow bindAs(const QString &type, Value Struct::*member, const QString &label,
                       const QString &name = QString())
    {
        static_assert(!std::is_const_v<Value>, "bindStruct: a row cannot edit a const member.");
        using Field = StructField<std::remove_cv_t<Value>>;
        const auto object = m_object;
        const auto read = [object, member] {
            const Struct *const owner = object();
            return owner ? Field::toVariant(owner->*member) : QVariant();
        };
        const auto write = [object, member](const QVariant &value) {
            if (Struct *const owner = object())
                owner->*member = Field::fromVariant(value);
        };
        PropertyRow row = m_delegate->addMember(type, nameOr(name, label), label, {read, write});
        if (m_defaults)
            row.defaultValue(Field::toVariant(m_defaults.get()->*member));
        return row;
    }

    /// A button that calls triggered().
    PropertyRow action(const QString &label, std::function<void()> triggered,
                       const QString &name = QString())
    {
        return m_delegate->addAction(nameOr(name, label), label, std::move(triggered));
    }

    /// A group of rows of the same struct, which makeRows() appends.
    template <typename MakeRows>
    PropertyRow group(const QString &label, MakeRows makeRows)
    {
        return m_delegate->list().group(label, makeRows);
    }

    /// A group of the rows of a nested struct. makeRows() gets a StructRows of it.
    template <typename Nested, typename MakeRows>
    PropertyRow group(Nested Struct::*member, const QString &label, MakeRows makeRows)
    {
        static_assert(std::is_class_v<Nested>, "bindStruct: only a nested struct makes a group.");
        const auto object = m_object;
        const auto nestedObject = [object, member]() -> Nested * {
            Struct *const owner = object();
            return owner ? &(owner->*member) : nullptr;
        };
        std::shared_ptr<const Nested> nestedDefaults;
        if (m_defaults)
            nestedDefaults = {m_defaults, &(m_defaults.get()->*member)};
        const QString prefix = m_delegate->nameFor(m_prefix, label) + QLatin1Char('_');
        StructRows<Nested> rows(m_delegate, nestedObject, nestedDefaults, prefix);
        return m_delegate->list().group(label, [&] { makeRows(rows); });
    }

protected:
    StructRows(StructDelegate *delegate, std::function<Struct *()> object,
               std::shared_ptr<const Struct> defaults, QString prefix)
        : m_delegate(delegate)
        , m_object(std::move(object))
        , m_defaults(std::move(defaults))
        , m_prefix(std::move(prefix))
    {
    }

private:
    template <typename>
    friend class StructRows;

    QString nameOr(const QString &name, const QString &label) const
    {
        return name.isEmpty() ? m_delegate->nameFor(m_prefix, label) : name;
    }

    StructDelegate *m_delegate;
    std::function<Struct *()> m_object;
    std::shared_ptr<const Struct> m_defaults; // null if there is no default constructor
    QString m_prefix;
};

/**
 * Makes a plain C++ struct into the rows of a panel and their delegate, one line a row:
 *
 *     Params params;
 *     auto list = bindStruct(&params);
 *     list.bind(&Params::gain, "Gain").range(0, 10).suffix(" dB");
 *     list.bind(&Params::mode, "Mode", {{Mode::Fast, "Fast"}, {Mode::Exact, "Exact"}});
 *     list.group(&Params::filter, "Filter", [](auto &rows) {
 *         rows.bind(&Filter::cutoff, "Cut-off").range(20, 20000);
 *     });
 *     PropertyEditorPanel panel(list.properties(), &list, nullptr);
 *     panel.updateUI();
 *
 * Edits are written to the struct at once. A member whose type no row can show is refused when the
 * program is compiled; StructField tells which can, and how to add a type.
 *
 * The struct belongs to the host. It and the binding must outlive the panel; setObject(nullptr)
 * lets the struct go earlier.
 */
template <typename Struct>
class StructBinding : public StructDelegate, public StructRows<Struct>
{
public:
    /// object may be null: rows then show their types' defaults, and edits are dropped.
    explicit StructBinding(Struct *object, QObject *parent = nullptr)
        : StructDelegate(parent)
        , StructRows<Struct>(
              this, [this] { return m_object; }, makeDefaults(), QString())
        , m_object(object)
    {
    }

    Struct *object() const { return m_object; }

    /// Makes all rows those of another struct. The panel shows it after its next updateUI().
    void setObject(Struct *object) { m_object = object; }

private:
    static std::shared_ptr<const Struct> makeDefaults()
    {
        if constexpr (std::is_default_constructible_v<Struct>)
            return std::make_shared<const Struct>();
        else
            return nullptr;
    }

    Struct *m_object;
};

/// A binding without rows of the struct at object, which is not taken over and may be null.
template <typename Struct>
StructBinding<Struct> bindStruct(Struct *object)
{
    return StructBinding<Struct>(object);
}

} // namespace Tessark::PropertyHost
