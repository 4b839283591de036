#pragma once

#include <QLabel>

namespace Tessark::PropertyHost {

/// A small label below a field, or above it where there is no room below. It takes no input.
class NumberPreview final : public QLabel
{
public:
    explicit NumberPreview(QWidget *parent);

    /// Shows the text at the field, which is in the parent widget.
    void showAt(const QWidget &field, const QString &text);
};

} // namespace Tessark::PropertyHost
