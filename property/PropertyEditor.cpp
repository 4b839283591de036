#include "property/PropertyEditor.h"

#include "property/ControlKeeper_p.h"
#include "property/SpokenText_p.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QKeyEvent>
#include <QPointer>
#include <QSlider>

#include <utility>

namespace Tessark::PropertyUI {

namespace {

/// Whether a watched control may get such an event for the editor to see. Most events are others, and
/// resizing a panel sends them to all controls.
bool isOfInterest(QEvent::Type type)
{
    return type == QEvent::Wheel || type == QEvent::FocusIn || type == QEvent::FocusOut
           || type == QEvent::KeyRelease;
}

bool isConfirmation(const QEvent *event)
{
    const int key = static_cast<const QKeyEvent *>(event)->key();
    return key == Qt::Key_Return || key == Qt::Key_Enter;
}

} // namespace

PropertyEditor::PropertyEditor(Property *property)
    : m_property(property)
{
}

PropertyEditor::~PropertyEditor() = default;

void PropertyEditor::setValues(const QVector<QVariant> &values)
{
    if (!values.isEmpty())
        setValue(values.first());
}

QWidget *PropertyEditor::widget(PropertyEditorContext *)
{
    return nullptr;
}

void PropertyEditor::propertyChanged() {}

QVariant PropertyEditor::hint(const QString &key)
{
    return m_property->hint(key);
}

QString PropertyEditor::controlName(const QWidget *control) const
{
    const auto *const button = qobject_cast<const QAbstractButton *>(control);
    return button ? spokenText(*button) : QString();
}

bool PropertyEditor::eventFilter(QObject *watched, QEvent *event)
{
    if (!isOfInterest(event->type()))
        return false;
    // Sliders keep the wheel, every other control lets it scroll the view: an ignored event goes on
    // to the parent widgets. The asymmetry is deliberate.
    if (event->type() == QEvent::Wheel && !qobject_cast<QSlider *>(watched)) {
        event->ignore();
        return true;
    }
    if (!qobject_cast<QAbstractSpinBox *>(watched))
        return false;

    const QPointer<PropertyEditor> self(this);
    const QPointer<QObject> watchedAlive(watched);
    switch (event->type()) {
    case QEvent::FocusIn:
        Q_EMIT startInteractiveChange();
        break;
    case QEvent::FocusOut:
        Q_EMIT endInteractiveChange();
        break;
    case QEvent::KeyRelease:
        if (isConfirmation(event)) {
            Q_EMIT endInteractiveChange();
            // The box still has the focus, so the next run begins at once.
            if (self)
                Q_EMIT startInteractiveChange();
        }
        break;
    default:
        break;
    }
    // An event must not travel on to a box that a slot has deleted.
    return watchedAlive.isNull();
}

void PropertyEditor::revertToDefaultValue()
{
    if (m_property->defaultValue.isNull())
        return;
    const QPointer<PropertyEditor> self(this);
    setValue(m_property->defaultValue);
    if (self)
        Q_EMIT valueChanged();
}

void PropertyEditor::keepControls()
{
    if (parent())
        ControlKeeper::watch(m_widget);
}

bool PropertyEditor::buildsNow()
{
    return !std::exchange(m_isBuilt, true);
}

} // namespace Tessark::PropertyUI
