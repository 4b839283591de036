#pragma once

#include <QString>

class QJsonObject;

namespace Tessark::PropertyPanel {

/**
 * Writes the saved values as a JSON object: to a file, whole or not at all, or to standard output.
 */
class ValuesWriter
{
public:
    enum class Layout {
        Indented,
        OneLine, // as after the lines of --live, whose reader takes a line at a time
    };

    /// An empty path stands for standard output.
    explicit ValuesWriter(const QString &path, Layout layout = Layout::Indented);

    /// Writes, or gives a sentence that says why it is impossible. A file that was there before is
    /// untouched then.
    QString write(const QJsonObject &values) const;

private:
    QString m_path;
    Layout m_layout;
};

} // namespace Tessark::PropertyPanel
