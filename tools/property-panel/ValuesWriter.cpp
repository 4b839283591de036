#include "ValuesWriter.h"

#include "FileReplacement.h"
#include "StandardStreams.h"
#include "Texts.h"

#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>

namespace Tessark::PropertyPanel {

namespace {

QString writeToStandardOutput(const QByteArray &data)
{
    QString error;
    if (writeStandardOutput(data, &error))
        return QString();
    return Texts::tr("Cannot write to standard output: %1").arg(error);
}

QString writeToFile(const QString &path, const QByteArray &data)
{
    const QString error = replaceFile(path, data);
    return error.isEmpty() ? QString() : Texts::tr("Cannot write %1: %2").arg(path, error);
}

/// Tells contents of a file apart; empty when there is no file.
QByteArray contentMark(const QString &path)
{
    QFile file(path);
    if (path.isEmpty() || !QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return QByteArray();
    QCryptographicHash hash(QCryptographicHash::Sha256);
    hash.addData(&file);
    return hash.result();
}

} // namespace

ValuesWriter::ValuesWriter(const QString &path, Layout layout)
    : m_path(path)
    , m_layout(layout)
    , m_contentMark(contentMark(path))
{
}

QString ValuesWriter::path() const
{
    return m_path;
}

bool ValuesWriter::hasForeignContent() const
{
    const QByteArray mark = contentMark(m_path);
    return !mark.isEmpty() && mark != m_contentMark;
}

void ValuesWriter::noteContent()
{
    m_contentMark = contentMark(m_path);
}

QString ValuesWriter::write(const QJsonObject &values) const
{
    if (m_layout == Layout::Nothing)
        return QString();
    const QJsonDocument document(values);
    const QByteArray data = m_layout == Layout::OneLine
                                ? document.toJson(QJsonDocument::Compact) + '\n'
                                : document.toJson(QJsonDocument::Indented);
    return m_path.isEmpty() ? writeToStandardOutput(data) : writeToFile(m_path, data);
}

} // namespace Tessark::PropertyPanel
