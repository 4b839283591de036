#pragma once

#include <QPointer>
#include <QWidget>

namespace Tessark::PropertyHost {

/// A frame around the label and field of a row. It lies over them on their page, follows them and lets
/// the mouse through.
class SearchMark final : public QWidget
{
public:
    /// page owns it; label may be null.
    SearchMark(QWidget *page, QWidget *label, QWidget *field);

    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void follow();

    QPointer<QWidget> m_label;
    QPointer<QWidget> m_field;
};

} // namespace Tessark::PropertyHost
