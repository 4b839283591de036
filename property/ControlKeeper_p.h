#pragma once

#include <QObject>
#include <QPointer>
#include <QVector>
#include <QWidget>

namespace Tessark::PropertyUI {

/**
 * Lets a host delete panel, window or widget of an editor in a callback of that editor.
 *
 * The controls of Qt go on with themselves after their signals. A keeper takes them out of what is
 * being deleted, hidden and without parent, and deletes them when control is back in the event loop
 * that the callback came from; loops that the host runs in the callback do not count.
 */
class ControlKeeper final : public QObject
{
    Q_OBJECT

public:
    /// Called at the beginning of each callback. The widget is the editor's, it may be null; a widget
    /// that is itself a control can be kept from the deletion of its parents only.
    static void watch(QWidget *widget);

    ~ControlKeeper() override;

private:
    explicit ControlKeeper(QWidget *widget);

    void keep(QWidget *control);

    QVector<QPointer<QWidget>> m_kept;
};

} // namespace Tessark::PropertyUI
