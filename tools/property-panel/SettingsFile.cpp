#include "SettingsFile.h"

#include "FileReplacement.h"
#include "Texts.h"

#include <host/InputFile.h>
#include <host/PropertyList.h>
#include <host/PropertyStore.h>
#include <property/Property.h>
#include <property/PropertyVocabulary.h>

#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QSettings>
#include <QTemporaryDir>

#include <algorithm>
#include <memory>
#include <optional>

namespace Tessark::PropertyPanel {

using PropertyHost::Problem;

namespace {

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
            m_error = Texts::tr(
                "is not an INI file: each line must be a [group], name=value or a ; comment");
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
            m_error = Texts::tr("a copy cannot be made in %1").arg(m_folder.path());
        return isOpen ? copy.readAll() : QByteArray();
    }

private:
    QTemporaryDir m_folder;
    std::unique_ptr<QSettings> m_settings;
    QString m_error;
};

/// Keys that QSettings takes for the same, somewhere at least, look the same.
QString normalizedKey(QString key)
{
    key.replace(QLatin1Char('\\'), QLatin1Char('/'));
    return key.split(QLatin1Char('/'), Qt::SkipEmptyParts).join(QLatin1Char('/')).toLower();
}

bool isKeyOfARow(const PropertyHost::PropertyList &list, const QString &key)
{
    const auto properties = list.properties();
    return std::any_of(
        properties.cbegin(), properties.cend(), [&key](const PropertyUI::Property *property) {
            const QString own = property->hint(PropertyUI::kPropertyHintPreferencesKey).toString();
            return normalizedKey(own.isEmpty() ? property->name : own) == key;
        });
}

bool isArrangement(const QVariant &setting)
{
    return QJsonDocument::fromJson(setting.toString().toUtf8()).isObject();
}

QString arrangementKey(const QSettings &settings, const PropertyHost::PropertyList &list)
{
    const QString base = QStringLiteral("property-panel/arrangement");
    QString key = base;
    for (int number = 2;
         isKeyOfARow(list, key) || (settings.contains(key) && !isArrangement(settings.value(key)));
         ++number)
        key = base + QString::number(number);
    return key;
}

QByteArray arrangementIn(const QSettings &settings, const PropertyHost::PropertyList &list)
{
    return settings.value(arrangementKey(settings, list)).toString().toUtf8();
}

void setArrangement(QSettings &settings, const PropertyHost::PropertyList &list,
                    const QByteArray &arrangement)
{
    settings.setValue(arrangementKey(settings, list), QString::fromUtf8(arrangement));
}

/// Replaces the file by the copy; gives a sentence that says why it is impossible.
QString replaceByCopy(const QString &path, WorkingCopy &copy)
{
    const QByteArray content = copy.error().isEmpty() ? copy.content() : QByteArray();
    const QString error = copy.error().isEmpty() ? replaceFile(path, content) : copy.error();
    return error.isEmpty() ? QString() : Texts::tr("Cannot write %1: %2").arg(path, error);
}

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
                          const PropertyHost::PropertyList &list, const QByteArray &arrangement)
{
    WorkingCopy copy(path);
    if (copy.error().isEmpty()) {
        store.writeSettings(copy.settings(), list);
        if (!arrangement.isEmpty())
            setArrangement(copy.settings(), list, arrangement);
    }
    return replaceByCopy(path, copy);
}

QByteArray readArrangement(const QString &path, const PropertyHost::PropertyList &list)
{
    if (path.isEmpty())
        return QByteArray();
    WorkingCopy copy(path);
    return copy.error().isEmpty() ? arrangementIn(copy.settings(), list) : QByteArray();
}

QString replaceArrangement(const QString &path, const PropertyHost::PropertyList &list,
                           const QByteArray &arrangement)
{
    WorkingCopy copy(path);
    const QByteArray before =
        copy.error().isEmpty() ? arrangementIn(copy.settings(), list) : QByteArray();
    if (before.isEmpty() || before == arrangement)
        return QString();
    setArrangement(copy.settings(), list, arrangement);
    return replaceByCopy(path, copy);
}

} // namespace Tessark::PropertyPanel
