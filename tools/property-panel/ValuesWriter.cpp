#include "ValuesWriter.h"

#include "StandardStreams.h"

#include <QCoreApplication>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>

namespace Tessark::PropertyPanel {

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("ValuesWriter", text);
}

QString writeToStandardOutput(const QByteArray &data)
{
    QString error;
    if (writeStandardOutput(data, &error))
        return QString();
    return tr("Cannot write to standard output: %1").arg(error);
}

QString writeToFile(const QString &path, const QByteArray &data)
{
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly) && file.write(data) == data.size() && file.commit())
        return QString();
    return tr("Cannot write %1: %2").arg(path, file.errorString());
}

} // namespace

ValuesWriter::ValuesWriter(const QString &path, Layout layout)
    : m_path(path)
    , m_layout(layout)
{
}

QString ValuesWriter::write(const QJsonObject &values) const
{
    const QJsonDocument document(values);
    const QByteArray data = m_layout == Layout::OneLine
                                ? document.toJson(QJsonDocument::Compact) + '\n'
                                : document.toJson(QJsonDocument::Indented);
    return m_path.isEmpty() ? writeToStandardOutput(data) : writeToFile(m_path, data);
}

} // namespace Tessark::PropertyPanel
