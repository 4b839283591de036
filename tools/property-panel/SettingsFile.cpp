#include "SettingsFile.h"

#include "FileReplacement.h"

#include <host/InputFile.h>
#include <host/PropertyList.h>
#include <host/PropertyStore.h>

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QTemporaryDir>

#include <memory>
#include <optional>

namespace Tessark::PropertyPanel {

using PropertyHost::Problem;

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("SettingsFile", text);
}

/// Qt 5 takes INI files for Latin-1 unless told otherwise, Qt 6 always for UTF-8.
template <typename Settings>
auto useUtf8(Settings &settings, int) -> decltype(settings.setIniCodec("UTF-8"))
{
    settings.setIniCodec("UTF-8");
}

template <typename Settings>
void useUtf8(Settings &, long)
{
}

/// A copy of an INI file for QSettings to work on. What it writes and locks by itself would stay beside
/// the file when the program is killed.
class WorkingCopy
{
public:
    /// Takes what the file holds now; nothing if there is none.
    explicit WorkingCopy(const QString &path)
    {
        QVector<Problem> problems;
        const auto content = QFileInfo::exists(path) ? PropertyHost::readInputFile(path, problems)
                                                     : std::optional(QByteArray());
        if (!content) {
            m_error = problems.constFirst().message;
            return;
        }
        QFile copy(m_folder.filePath(QStringLiteral("settings.ini")));
        if (!m_folder.isValid())
            m_error = m_folder.errorString();
        else if (!copy.open(QIODevice::WriteOnly) || copy.write(*content) != content->size()
                 || !copy.flush())
            m_error = copy.errorString();
        if (!m_error.isEmpty())
            return;
        m_settings = std::make_unique<QSettings>(copy.fileName(), QSettings::IniFormat);
        useUtf8(*m_settings, 0);
        m_settings->allKeys(); // reads
        if (m_settings->status() != QSettings::NoError)
            m_error =
                tr("is not an INI file: each line must be a [group], name=value or a ; comment");
    }

    /// Why there are no settings, in words that go on after the name of the file; empty if there are.
    QString error() const { return m_error; }

    QSettings &settings() { return *m_settings; }

    /// The file as the settings are now; the reason in error() if it cannot be made.
    QByteArray content()
    {
        m_settings->sync();
        QFile copy(m_settings->fileName());
        const bool isOpen = copy.open(QIODevice::ReadOnly);
        if (m_settings->status() != QSettings::NoError || (!isOpen && copy.exists()))
            m_error = tr("a copy cannot be made in %1").arg(m_folder.path());
        return isOpen ? copy.readAll() : QByteArray();
    }

private:
    QTemporaryDir m_folder;
    std::unique_ptr<QSettings> m_settings;
    QString m_error;
};

} // namespace

QVector<Problem> readSettingsFile(const QString &path, PropertyHost::PropertyStore &store,
                                  const PropertyHost::PropertyList &list)
{
    WorkingCopy copy(path);
    if (copy.error().isEmpty())
        return store.readSettings(copy.settings(), list);
    Problem problem;
    problem.message = copy.error();
    return {problem};
}

QString writeSettingsFile(const QString &path, const PropertyHost::PropertyStore &store,
                          const PropertyHost::PropertyList &list)
{
    WorkingCopy copy(path);
    QByteArray content;
    if (copy.error().isEmpty()) {
        store.writeSettings(copy.settings(), list);
        content = copy.content();
    }
    const QString error = copy.error().isEmpty() ? replaceFile(path, content) : copy.error();
    return error.isEmpty() ? QString() : tr("Cannot write %1: %2").arg(path, error);
}

} // namespace Tessark::PropertyPanel
