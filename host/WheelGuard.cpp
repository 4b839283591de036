#include "host/WheelGuard.h"

#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QEvent>
#include <QScrollBar>
#include <QSet>

#include <algorithm>

namespace Tessark::PropertyHost {

namespace {

bool isGuarded(const QWidget *widget)
{
    if (qobject_cast<const QAbstractSlider *>(widget))
        return !qobject_cast<const QScrollBar *>(widget);
    return qobject_cast<const QAbstractSpinBox *>(widget)
           || qobject_cast<const QComboBox *>(widget);
}

bool hasFocusInside(const QWidget &widget)
{
    const QWidget *const focused = QApplication::focusWidget();
    return focused && (focused == &widget || widget.isAncestorOf(focused));
}

} // namespace

WheelGuard::WheelGuard(QObject *parent)
    : QObject(parent)
{
}

WheelGuard::~WheelGuard()
{
    setEnabled(false);
}

void WheelGuard::watch(QWidget *root)
{
    if (!root)
        return;
    // Those that have gone.
    m_controls.erase(std::remove_if(m_controls.begin(), m_controls.end(),
                                    [](const Control &control) { return !control.widget; }),
                     m_controls.end());
    QSet<const QWidget *> known;
    for (const Control &control : std::as_const(m_controls))
        known.insert(control.widget);
    QList<QWidget *> candidates = root->findChildren<QWidget *>();
    candidates.append(root);
    for (QWidget *candidate : std::as_const(candidates)) {
        if (isGuarded(candidate) && !known.contains(candidate))
            watchControl(candidate);
    }
}

void WheelGuard::setEnabled(bool enabled)
{
    m_isEnabled = enabled;
    for (const Control &control : std::as_const(m_controls)) {
        if (!control.widget)
            continue;
        if (enabled)
            takeWheelFocus(*control.widget);
        else
            control.widget->setFocusPolicy(control.focusPolicy);
    }
}

bool WheelGuard::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::Wheel || !m_isEnabled
        || hasFocusInside(*static_cast<QWidget *>(watched)))
        return false;
    // An ignored event goes on to the parent widgets.
    event->ignore();
    return true;
}

void WheelGuard::watchControl(QWidget *control)
{
    m_controls.append({control, control->focusPolicy()});
    control->installEventFilter(this);
    if (m_isEnabled)
        takeWheelFocus(*control);
}

/// The wheel would give the focus first, and then be that of a control with the focus.
void WheelGuard::takeWheelFocus(QWidget &control)
{
    if (control.focusPolicy() == Qt::WheelFocus)
        control.setFocusPolicy(Qt::StrongFocus);
}

} // namespace Tessark::PropertyHost
