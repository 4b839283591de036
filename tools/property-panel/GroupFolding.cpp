#include "GroupFolding.h"

#include <property/PropertyEditor.h>
#include <property/PropertyEditorPanel.h>
#include <property/PropertyLayout.h>
#include <property/PropertyVocabulary.h>

#include <QWidget>

namespace Tessark::PropertyPanel {

using PropertyUI::PropertyEditor;
using PropertyUI::PropertyLayout;

namespace {

void foldGroup(PropertyEditor &editor)
{
    QWidget *const box = editor.widget(nullptr);
    QWidget *const page = box ? box->parentWidget() : nullptr;
    auto *const layout = page ? qobject_cast<PropertyLayout *>(page->layout()) : nullptr;
    if (layout)
        layout->setGroupVisible(box, editor.value().toBool());
}

} // namespace

void foldGroupsOnTabPages(PropertyUI::PropertyEditorPanel &panel)
{
    QVector<PropertyEditor *> groups;
    panel.getEditors(groups, PropertyUI::kPropertyTypeBeginGroup);
    for (PropertyEditor *editor : std::as_const(groups)) {
        QWidget *const box = editor->widget(nullptr);
        if (box && box->parentWidget() != &panel)
            QObject::connect(editor, &PropertyEditor::valueChanged, box,
                             [editor] { foldGroup(*editor); });
    }
}

} // namespace Tessark::PropertyPanel
