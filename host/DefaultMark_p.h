#pragma once

#include <QAbstractButton>

namespace Tessark::PropertyHost {

/// A small button beside a row that differs from its default. It takes no focus: on the keyboard, the
/// row's menu does what it does.
class DefaultMark final : public QAbstractButton
{
    Q_OBJECT

public:
    enum class Shape {
        Diamond, // in the gap between label and field
        Bar,     // along a row over both columns
    };

    /// label is the row's, for those who hear it.
    DefaultMark(const QString &label, QWidget *parent);

    void setShape(Shape shape);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QColor color() const;

    Shape m_shape = Shape::Diamond;
};

} // namespace Tessark::PropertyHost
