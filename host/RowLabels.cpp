#include "host/RowLabels_p.h"

#include <property/PropertyEditor.h>
#include <property/PropertyEditorPanel.h>
#include <property/PropertyLayout.h>

#include <QLabel>
#include <QSet>

#include <utility>

namespace Tessark::PropertyHost {

using namespace PropertyUI;

namespace {

using EditorsByField = QHash<const QWidget *, PropertyEditor *>;

EditorsByField editorsByField(const PropertyEditorPanel &panel)
{
    QVector<PropertyEditor *> editors;
    panel.getEditors(editors, QString());
    EditorsByField result;
    for (PropertyEditor *editor : std::as_const(editors)) {
        if (QWidget *const field = editor ? editor->widget(nullptr) : nullptr)
            result.insert(field, editor);
    }
    return result;
}

QSet<const QLayout *> layoutsOf(const EditorsByField &editors)
{
    QSet<const QLayout *> layouts;
    for (auto at = editors.cbegin(); at != editors.cend(); ++at) {
        const QWidget *const page = at.key()->parentWidget();
        if (page && qobject_cast<const PropertyLayout *>(page->layout()))
            layouts.insert(page->layout());
    }
    return layouts;
}

} // namespace

QHash<PropertyEditor *, QLabel *> rowLabels(const PropertyEditorPanel &panel)
{
    const EditorsByField editors = editorsByField(panel);
    const QSet<const QLayout *> layouts = layoutsOf(editors);
    QHash<PropertyEditor *, QLabel *> labels;
    for (const QLayout *layout : layouts) {
        QWidget *before = nullptr;
        for (int i = 0; i < layout->count(); ++i) {
            QWidget *const widget = layout->itemAt(i)->widget();
            PropertyEditor *const editor = editors.value(widget);
            auto *const label = qobject_cast<QLabel *>(before);
            // The field of the row before may be a label too.
            if (editor && label && !editors.contains(label)
                && !editor->hint(kPropertyHintFullWidth).toBool())
                labels.insert(editor, label);
            before = widget;
        }
    }
    return labels;
}

} // namespace Tessark::PropertyHost
