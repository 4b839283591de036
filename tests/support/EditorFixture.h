#pragma once

#include "property/PropertyEditor.h"

#include <QWidget>

#include <memory>

/// A property, an editor of it and, once built, the editor's widget: what one test of an editor
/// works on. The test may reset() or release() editor and widget early.
template <typename Editor, typename Widget>
struct EditorFixture
{
    explicit EditorFixture(const QString &type)
        : property(QStringLiteral("item"), QStringLiteral("Label"), type)
        , editor(std::make_unique<Editor>(&property))
    {
    }

    /// The editor's widget, or null when it is not of the class expected.
    Widget *build()
    {
        if (!widget)
            widget.reset(qobject_cast<Widget *>(editor->widget(nullptr)));
        return widget.get();
    }

    /// Deletes editor and widget once control is back in the event loop.
    void deleteLater()
    {
        editor.release()->deleteLater();
        widget.release()->deleteLater();
    }

    Tessark::PropertyUI::Property property;
    std::unique_ptr<Editor> editor;
    std::unique_ptr<Widget> widget;
};
