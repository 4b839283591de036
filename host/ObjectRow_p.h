#pragma once

#include "host/MetaFields_p.h"

#include <QMetaProperty>
#include <QObject>
#include <QPointer>
#include <QVarLengthArray>
#include <QVariant>

namespace Tessark::PropertyUI {
class Property;
class PropertyEditor;
class PropertyEditorPanel;
} // namespace Tessark::PropertyUI

namespace Tessark::PropertyHost {

class ObjectRow;

/// The object or gadget that a row belongs to; neither once it is gone.
struct ObjectTarget
{
    QPointer<QObject> object;
    void *gadget = nullptr;

    /// True while there is an object of the class that declares the property: what is left of one
    /// in a destructor may be less.
    bool has(const QMetaProperty &property) const;
    QVariant read(const QMetaProperty &property) const;
    bool write(const QMetaProperty &property, const QVariant &value) const;
    bool reset(const QMetaProperty &property) const;
};

/// The row that was shown last, so that its delegate need not look for it among very many.
struct ShownRow
{
    const ObjectRow *row = nullptr;
};

/**
 * A row of an ObjectBinding: a meta-property of one object, and the editors that show it.
 *
 * A notification of the property is shown at once, by its editors alone. What the object makes of an
 * edit is shown when the write is over, or when the interactive run ends that the edit is part of;
 * an editor that already shows it is left alone.
 */
class ObjectRow : public QObject
{
    Q_OBJECT

public:
    /// shown, which is told when this is shown, must live as long.
    ObjectRow(ObjectTarget target, const QMetaProperty &meta, SharedField field, bool isReadOnly,
              ShownRow *shown);

    /// The description, which is made after this and lives as long.
    void setEditedProperty(PropertyUI::Property *property) { m_property = property; }
    PropertyUI::Property *editedProperty() const { return m_property; }

    bool isWritable() const;
    bool isResettable() const;

    /// As the editor of the row takes it; invalid without object.
    QVariant value() const;

    /// Writes what an editor hands out, or resets the property, and shows what came of it. False when
    /// the row cannot, or was deleted meanwhile.
    bool write(const QVariant &edited);
    bool reset();

    /// Shows the value in the editors.
    void show();

    void connectNotification();
    void addEditor(PropertyUI::PropertyEditorPanel *panel, PropertyUI::PropertyEditor *editor);
    bool isShown(const PropertyUI::PropertyEditorPanel *panel, const QVariant &value) const;

    /// Makes the editors ones that cannot be used.
    void disable();

    /// Lets go of the object or gadget as well.
    void release();

private Q_SLOTS:
    void notified();

private:
    struct View
    {
        QPointer<QObject> panelObject;
        QPointer<PropertyUI::PropertyEditor> editor;
        const void *editorMemory = nullptr; // only to be fetched: the editor may be gone
        bool isInRun = false;

        /// Null also when only the widget is left of a panel that is being destroyed.
        PropertyUI::PropertyEditorPanel *panel() const;
    };

    template <typename Change>
    bool change(Change makeChange);
    void showIn(const View &view);
    void showResult();
    void setInRun(const PropertyUI::PropertyEditor *editor, bool isInRun);
    void showUnlessShown(const View &view);
    QVariant asKept(const QVariant &value) const;
    void disable(const View &view);

    // Close together: a notification among very many rows waits for memory more than for all else.
    QVarLengthArray<View, 1> m_views;
    ObjectTarget m_target;
    SharedField m_field;
    PropertyUI::Property *m_property = nullptr;
    ShownRow *m_shown;
    QMetaProperty m_meta;
    bool m_isReadOnly;
    bool m_isWriting = false;
};

} // namespace Tessark::PropertyHost
