#pragma once

#include "host/PropertyHostExport.h"

#include <QObject>
#include <QPointer>
#include <QVector>
#include <QWidget>

namespace Tessark::PropertyHost {

/**
 * Keeps the mouse wheel from changing values that the user only scrolls past: sliders, spin boxes
 * and combo boxes take it only while they have the focus. Otherwise the wheel goes on to what is
 * around them, which scrolls, and does not give them the focus either.
 *
 * A PropertyPanelView has one; a PropertyEditorPanel has none of its own:
 *
 *     WheelGuard guard;
 *     guard.watch(&panel);
 */
class TESSARK_PROPERTYHOST_EXPORT WheelGuard : public QObject
{
    Q_OBJECT

public:
    explicit WheelGuard(QObject *parent = nullptr);

    /// The controls become as they were.
    ~WheelGuard() override;

    /// Guards root and all controls that it has inside by now. To be called again for controls that
    /// are made later; those that are guarded already stay so. Null does nothing.
    void watch(QWidget *root);

    /// Whether it guards, true at first. Off, the controls are as they were.
    bool isEnabled() const { return m_isEnabled; }
    void setEnabled(bool enabled);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct Control
    {
        QPointer<QWidget> widget;
        Qt::FocusPolicy focusPolicy = Qt::NoFocus; // its own
    };

    void watchControl(QWidget *control);
    static void takeWheelFocus(QWidget &control);

    QVector<Control> m_controls;
    bool m_isEnabled = true;
};

} // namespace Tessark::PropertyHost
