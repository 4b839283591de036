#pragma once

#include <QObject>
#include <QPointer>
#include <QVector>
#include <QWidget>

namespace Tessark::PropertyHost {

/**
 * Lets the layouts of pages rest while many of their rows come and go, as long as it lives: each row
 * would place all of them anew. Layouts forget the widgets that go meanwhile.
 */
class LayoutPause final : public QObject
{
public:
    LayoutPause();
    ~LayoutPause() override;

    /// Does nothing for a page whose layout rests already.
    void add(QWidget *page);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QVector<QPointer<QWidget>> m_pages;
};

/// A layout of rows keeps its size hints until an item is added. Makes those of page and of what is
/// around it, up to panel, follow the rows that are shown.
void renewSizeHintsAround(const QWidget *page, const QWidget *panel);

} // namespace Tessark::PropertyHost
