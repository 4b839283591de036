#pragma once

#include "property/IPropertyEditorDelegate.h"
#include "property/PropertyExport.h"

#include <QMultiHash>
#include <QPointer>
#include <QString>
#include <QVariant>
#include <QVector>
#include <QWidget>

namespace Tessark::PropertyUI {

class Property;
class PropertyEditor;
class PropertyEditorContext;
class PropertyLayout;

/**
 * A finished editing panel for an ordered list of properties.
 *
 * The constructor makes one editor for each property whose type has a factory in
 * PropertyEditorRegistry and places its widget as a row: labelled with the property's label and a
 * colon, or over the full width when the editor's "full_width" hint is true. The hints "size"
 * (QSize), "font" (QFont) and "style_sheet" (text) are applied to the widget. Tab markers switch to
 * pages of a tab widget, group markers enclose rows that a check box shows and hides. A property
 * without factory and a null entry are skipped.
 *
 * The panel holds no values: updateUI() shows those of the delegate, and every edit of the user
 * goes to the delegate at once. A right click on the row of a property with a default offers "Set
 * to Default".
 *
 * Like every widget, a panel is made, used and deleted in the GUI thread, that of the QApplication,
 * which must exist before. In debug builds the constructor ends the program with a message otherwise;
 * in others nothing is checked.
 *
 * The properties and the delegate belong to the host and must outlive the panel; the panel owns its
 * editors and widgets. It may be deleted in any callback of the delegate.
 */
class TESSARK_PROPERTY_EXPORT PropertyEditorPanel : public QWidget
{
    Q_OBJECT

public:
    /// Registers the library's editors in PropertyEditorRegistry. The first call does it, later
    /// ones do nothing, so that what a host registers afterwards stays.
    static void InitialiseRegistry();

    /// Builds the panel, without parent. delegate may be null; context is handed to each editor's
    /// widget() and not kept. No value is read. The delegate is told, as of any edit, that the
    /// first page of each tab group became its current one (index 0).
    PropertyEditorPanel(QVector<Property *> properties, IPropertyEditorDelegate *delegate,
                        PropertyEditorContext *context);
    ~PropertyEditorPanel() override;

    /// Passes an edit to the delegate, unless there is none or updateProperty() is running.
    virtual void setValue(Property *property, const QVariant &value,
                          IPropertyEditorDelegate::ChangeFlags flags);

    /// The delegate's value, or an invalid variant without delegate.
    virtual QVariant value(Property *property) const;

    /// Makes the editors of property read its hints and range again. What they change meanwhile
    /// does not reach the delegate; this holds for all panels of the process until it returns.
    void updateProperty(Property *property);

    /// Appends the editors of properties of the given type, in panel order. An empty type appends
    /// all, one for each property that had a factory: null where the factory returned null or the
    /// host deleted the editor.
    void getEditors(QVector<PropertyEditor *> &editors, const QString &type) const;

public Q_SLOTS:
    /// Shows the delegate's values in all editors. Nothing is sent back.
    void updateUI();

protected:
    void contextMenuEvent(QContextMenuEvent *event) override;

    /// Shows or hides the rows of a group that the user opened or closed, after the delegate was
    /// told. This one does it for groups of the panel's own layout, and opens those inside, too.
    virtual void showGroup(PropertyEditor *group, bool open);

private Q_SLOTS: // for a host that connects by name; the panel's own connections know the editor
    void editorValueChanged();
    void startInteractiveChange();
    void endInteractiveChange();

private:
    class Builder;

    void forwardEdit(PropertyEditor *editor);
    void beginRun(PropertyEditor *editor);
    void endRun(PropertyEditor *editor);
    PropertyEditor *editorAt(const QPoint &position) const;

    QVector<Property *> m_properties;              // not owned
    QVector<QPointer<PropertyEditor>> m_editors;   // one for each property with a factory
    QMultiHash<const Property *, int> m_indexesOf; // where in m_editors a property's editors are
    IPropertyEditorDelegate *m_delegate;           // not owned, may be null
    QPointer<PropertyLayout> m_layout;             // receives the next row
    QPointer<PropertyEditor> m_interactiveEditor;  // editor of the running interactive change
    bool m_interactiveChangeSeen = false;          // a change of that run was already forwarded
};

} // namespace Tessark::PropertyUI
