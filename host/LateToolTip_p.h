#pragma once

#include <QObject>
#include <QString>

class QWidget;

namespace Tessark::PropertyHost {

/**
 * Says something in a tool tip at the pointer as soon as a widget's window is active, and goes.
 *
 * A tool tip goes when a window becomes active, which happens some time after a dialog has closed.
 */
class LateToolTip final : public QObject
{
public:
    /// A child of the widget.
    LateToolTip(QWidget *widget, const QString &text);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void showSoon();

    QString m_text;
};

} // namespace Tessark::PropertyHost
