#include "fuzz/CheckedPanel.h"

#include "fuzz/FuzzTarget.h"

#include <property/Property.h>

namespace Fuzz {

using namespace Tessark::PropertyUI;

namespace {

/// The type of what an editor of the library reports, or an invalid one where that depends on hints
/// and on what was shown.
int valueTypeOf(const PropertyEditor &editor)
{
    static const QHash<QString, int> s_types{
        {kPropertyTypeInteger, QMetaType::Int},       {kPropertyTypeFloat, QMetaType::Double},
        {kPropertyTypePercent, QMetaType::Double},    {kPropertyTypeBoolean, QMetaType::Bool},
        {kPropertyTypeBeginGroup, QMetaType::Bool},   {kPropertyTypeString, QMetaType::QString},
        {kPropertyTypeText, QMetaType::QString},      {kPropertyTypeFilename, QMetaType::QString},
        {kPropertyTypeColor, QMetaType::QColor},      {kPropertyTypeVec2, QMetaType::QVector2D},
        {kPropertyTypeVec3, QMetaType::QVector3D},    {kPropertyTypeVec4, QMetaType::QVector4D},
        {kPropertyTypeSize, QMetaType::QSize},        {kPropertyTypeRenderSize, QMetaType::QSize},
        {kPropertyTypeBeginTabGroup, QMetaType::Int},
    };
    // The host's editors, which may stand in for the library's, have no meta-object of their own.
    const bool isHosts = editor.metaObject() == &PropertyEditor::staticMetaObject;
    return isHosts ? 0 : s_types.value(editor.editedProperty()->type, 0);
}

} // namespace

CheckedPanel::CheckedPanel(const QVector<Property *> &properties, IPropertyEditorDelegate *delegate)
    : PropertyEditorPanel(properties, delegate, nullptr)
{
    QVector<PropertyEditor *> all;
    getEditors(all, QString());
    require(all.size() <= properties.size(), "a property has one editor at most");
    for (PropertyEditor *editor : editors()) {
        require(properties.contains(editor->editedProperty()), "an editor edits one of the list");
        require(editor->widget(nullptr) == editor->widget(nullptr), "an editor has one widget");
        follow(editor);
    }
}

void CheckedPanel::setValue(Property *property, const QVariant &value,
                            IPropertyEditorDelegate::ChangeFlags flags)
{
    auto *const editor = qobject_cast<PropertyEditor *>(sender());
    require(editor && editor->editedProperty() == property,
            "a change is told of the property that was edited");
    const int type = valueTypeOf(*editor);
    if (type != 0) {
        require(value.userType() == type, "an editor reports values of its own type");
        require(value == editor->value(), "the host is told what the editor shows");
    }
    const bool continued = flags.testFlag(IPropertyEditorDelegate::ContinuedChange);
    require(continued == m_run.continues(editor),
            "a change continues a run exactly when the run had one before");
    PropertyEditorPanel::setValue(property, value, flags);
}

QVector<PropertyEditor *> CheckedPanel::editors() const
{
    QVector<PropertyEditor *> result;
    getEditors(result, QString());
    result.removeAll(nullptr);
    return result;
}

/// Connected after the panel, so that each slot runs when the panel has dealt with the signal.
void CheckedPanel::follow(PropertyEditor *editor)
{
    connect(editor, &PropertyEditor::startInteractiveChange, this, [this, editor] {
        ++m_open[editor];
        m_run.start(editor);
    });
    connect(editor, &PropertyEditor::endInteractiveChange, this, [this, editor] {
        require(--m_open[editor] >= 0, "only a run that began can end");
        m_run.end();
    });
    connect(editor, &PropertyEditor::valueChanged, this, [this, editor] { m_run.changed(editor); });
}

} // namespace Fuzz
