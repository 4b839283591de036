#pragma once

#include <QObject>

#include <functional>

namespace Tessark::PropertyPanel {

/**
 * Lets the undo and redo keys reach the window's actions while a field has the focus.
 *
 * A field keeps the keys to itself as long as it holds text that is not committed; afterwards its
 * own history would bring back texts that the undo stack knows better.
 */
class UndoKeys : public QObject
{
    Q_OBJECT

public:
    /// Watches the fields inside window, which becomes the parent. fieldKeepsKeys says whether
    /// there is uncommitted text.
    UndoKeys(QWidget *window, std::function<bool()> fieldKeepsKeys);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QWidget *m_window;
    std::function<bool()> m_fieldKeepsKeys;
};

} // namespace Tessark::PropertyPanel
