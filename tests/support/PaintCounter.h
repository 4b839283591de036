#pragma once

#include <QCoreApplication>
#include <QEvent>
#include <QWidget>

#include <utility>

/// Counts how often a widget is painted.
class PaintCounter : public QObject
{
public:
    explicit PaintCounter(QWidget *widget) { widget->installEventFilter(this); }

    /// The paint events since the last call, all posted ones included.
    int take()
    {
        QCoreApplication::processEvents();
        return std::exchange(m_count, 0);
    }

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            ++m_count;
        return false;
    }

private:
    int m_count = 0;
};
