#pragma once

#include "property/Property.h"

#include <QObject>
#include <QPointer>
#include <QVariant>
#include <QVector>

class QWidget;

namespace Tessark::PropertyUI {

/**
 * A type of the host's own, passed through to PropertyEditor::widget() and never looked into. Hosts
 * define it to give their own editors access to services.
 */
class PropertyEditorContext;

/**
 * Base of every editor: builds the widget that edits one Property, moves values in and out of it
 * and announces what the user does.
 *
 * Signal protocol: startInteractiveChange() before a run of continuous changes (slider pressed,
 * spin box focused), valueChanged() for each change made by the user, endInteractiveChange() when
 * the run ends (slider released, focus lost, Return). Programmatic changes are silent.
 *
 * The editor belongs to its QObject parent (the panel), its widget to the widget tree; neither
 * deletes the other, and a host may delete either. An editor whose widget was deleted is as one that
 * has none: it shows nothing and value() is the type's default.
 */
class TESSARK_PROPERTY_EXPORT PropertyEditor : public QObject
{
    Q_OBJECT

public:
    /// Makes an editor without parent for property, which must outlive it.
    explicit PropertyEditor(Property *property);
    ~PropertyEditor() override;

    /// Shows value in the widget without emitting anything. A value that does not convert shows the
    /// type's default; before widget() was called there is nothing to show.
    virtual void setValue(const QVariant &value) = 0;

    /// The value that the widget now shows.
    virtual QVariant value() const = 0;

    /// Shows the values of several selected objects, one element for each. This one shows the
    /// first; an empty list does nothing. The panel never calls it, a host may.
    virtual void setValues(const QVector<QVariant> &values);

    /// Builds the widget on the first call, without parent, and returns the same one afterwards,
    /// whatever the context. The caller places it. Null means an editor without widget, or that the
    /// widget was deleted; it is not built again.
    virtual QWidget *widget(PropertyEditorContext *context);

    /// The host changed hints or range of the property: reads again what can be changed late.
    virtual void propertyChanged();

    /// The hint as the panel is to see it: the property's own unless an editor decides otherwise.
    virtual QVariant hint(const QString &key);

    /// What tells control, a part of the widget, from the others of the row, for those who hear its name
    /// and do not see it: "Y", "Red". It is said after the row's label. Empty where the label is all
    /// there is to say. This one gives the text of a button without its mnemonic, and nothing for any
    /// other. Called only while assistive technology listens.
    virtual QString controlName(const QWidget *control) const;

    /// The property being edited, as given to the constructor.
    Property *editedProperty() const { return m_property; }

    /// Keeps the mouse wheel from changing watched controls other than sliders, and brackets
    /// focused typing in spin boxes as an interactive run that Return closes and opens again.
    /// Concrete editors install themselves on their spin boxes and sliders.
    bool eventFilter(QObject *watched, QEvent *event) override;

public Q_SLOTS:
    /// Shows the property's default and emits valueChanged(). Does nothing when there is none.
    void revertToDefaultValue();

Q_SIGNALS:
    void valueChanged();
    void startInteractiveChange();
    void endInteractiveChange();

protected:
    /// Lets a host delete panel, window or widget in what it is told next: the controls stay until
    /// control is back in the event loop. The panel does it for the three signals.
    void keepControls();

    /// Whether widget() is to build the widget now: true the first time, never again.
    bool buildsNow();

    Property *const m_property; // not owned
    QPointer<QWidget> m_widget; // set by the subclass when built; owned by the widget tree

private:
    friend class PropertyEditorPanel;

    bool m_isBuilt = false;
};

} // namespace Tessark::PropertyUI
