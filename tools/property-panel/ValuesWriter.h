#pragma once

#include <QByteArray>
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
        Nothing, // for values that are saved elsewhere
    };

    /// An empty path stands for standard output. Notes what the file holds now.
    explicit ValuesWriter(const QString &path, Layout layout = Layout::Indented);

    QString path() const;

    /// True when another program has written the file, or a new one in its place, since this object
    /// was made or noted the content last. A file that is gone has no foreign content.
    bool hasForeignContent() const;

    /// Takes what the file holds now for known.
    void noteContent();

    /// Writes, or gives a sentence that says why it is impossible. A file that was there before is
    /// untouched then.
    QString write(const QJsonObject &values) const;

private:
    QString m_path;
    Layout m_layout;
    QByteArray m_contentMark; // of the file as it is known
};

} // namespace Tessark::PropertyPanel
