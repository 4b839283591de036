#pragma once

#include <QSize>
#include <QWidget>

namespace Tessark::Testing {

/// A widget whose size hints are what a test sets, independent of style and font.
class FixedHintWidget : public QWidget
{
public:
    explicit FixedHintWidget(const QSize &hint, QWidget *parent = nullptr)
        : QWidget(parent)
        , m_hint(hint)
    {
    }

    /// Changes the hint without telling the layout.
    void setHint(const QSize &hint) { m_hint = hint; }
    QSize sizeHint() const override { return m_hint; }

    /// The smallest useful size; invalid (no limit) unless set.
    void setMinimumHint(const QSize &hint) { m_minimumHint = hint; }
    QSize minimumSizeHint() const override { return m_minimumHint; }

private:
    QSize m_hint;
    QSize m_minimumHint;
};

} // namespace Tessark::Testing
