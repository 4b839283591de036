#include "fuzz/HostEditors.h"

#include "support/Registry.h"

#include <property/PropertyUI.h>

#include <QLineEdit>
#include <QSignalBlocker>

namespace Fuzz {

using namespace Tessark::PropertyUI;

namespace {

const QString kNullType = QStringLiteral("host/null");
const QString kHollowType = QStringLiteral("host/no_widget");
const QString kFieldType = QStringLiteral("host/field");
const QString kRegisteringType = QStringLiteral("host/registering");
const QString kReplacingType = QStringLiteral("host/replacing");
const QString kUnknownType = QStringLiteral("host/unknown");

/// An editor that has nothing to show.
class HollowEditor final : public PropertyEditor
{
public:
    using PropertyEditor::PropertyEditor;

    void setValue(const QVariant &) override {}
    QVariant value() const override { return {}; }
};

/// A plain editor of a host, which announces each key.
class FieldEditor final : public PropertyEditor
{
public:
    using PropertyEditor::PropertyEditor;

    void setValue(const QVariant &value) override
    {
        if (!m_field)
            return;
        const QSignalBlocker blocker(m_field);
        m_field->setText(value.toString());
    }

    QVariant value() const override { return m_field ? m_field->text() : QString(); }

    QWidget *widget(PropertyEditorContext *) override
    {
        if (!m_widget) {
            m_field = new QLineEdit;
            m_widget = m_field;
            connect(m_field, &QLineEdit::textChanged, this, &PropertyEditor::valueChanged);
        }
        return m_widget;
    }

private:
    QLineEdit *m_field = nullptr; // same object as m_widget
};

void registerEditor(const QString &type, PropertyEditorRegistry::Factory factory)
{
    PropertyEditorRegistry::Instance()->registerPropertyEditor(type, factory);
}

PropertyEditor *makeNothing(Property *)
{
    return nullptr;
}

template <typename Editor>
PropertyEditor *make(Property *property)
{
    return new Editor(property);
}

/// Registers while the panel is being built: types that the list may still hold, and many others, so
/// that what holds the factories has to move.
PropertyEditor *makeAndRegister(Property *property)
{
    registerEditor(kUnknownType, make<FieldEditor>);
    for (int i = 0; i < 50; ++i)
        registerEditor(QStringLiteral("host/more/%1").arg(i), makeNothing);
    return new FieldEditor(property);
}

/// Takes away or replaces the library's editors, and its own.
PropertyEditor *makeAndReplace(Property *property)
{
    registerEditor(kReplacingType, nullptr);
    registerEditor(kPropertyTypeInteger, make<FieldEditor>);
    registerEditor(kPropertyTypeBeginGroup, makeNothing);
    registerEditor(kPropertyTypeEndGroup, nullptr);
    registerEditor(kPropertyTypeBeginTabGroup, make<FieldEditor>);
    registerEditor(kPropertyTypeTab, make<HollowEditor>);
    return new HollowEditor(property);
}

struct Registration
{
    QString type;
    PropertyEditorRegistry::Factory factory;
};

QVector<Registration> registrations()
{
    QVector<Registration> result{
        {kNullType, makeNothing},         {kHollowType, make<HollowEditor>},
        {kFieldType, make<FieldEditor>},  {kRegisteringType, makeAndRegister},
        {kReplacingType, makeAndReplace}, {kUnknownType, nullptr},
        {kPropertyTypeAngle, nullptr},    {kPropertyTypeNone, nullptr},
    };
    for (const LibraryEditor &editor : libraryEditors())
        result.append({editor.type, factoryOf(editor.type)});
    return result;
}

} // namespace

const QStringList &allTypes()
{
    static const QStringList s_types = [] {
        QStringList types = libraryTypes();
        // These shape the panel, and most wrong lists have them in wrong places.
        types += {kPropertyTypeBeginGroup, kPropertyTypeEndGroup, kPropertyTypeBeginTabGroup,
                  kPropertyTypeTab, kPropertyTypeEndTabGroup};
        types += {kNullType,      kHollowType,  kFieldType,         kRegisteringType,
                  kReplacingType, kUnknownType, kPropertyTypeAngle, QString()};
        return types;
    }();
    return s_types;
}

const QStringList &libraryTypes()
{
    static const QStringList s_types = [] {
        QStringList types;
        for (const LibraryEditor &editor : libraryEditors())
            types.append(editor.type);
        return types;
    }();
    return s_types;
}

void resetRegistry()
{
    static const QVector<Registration> s_registrations = registrations();
    for (const Registration &registration : s_registrations)
        registerEditor(registration.type, registration.factory);
}

} // namespace Fuzz
