#include "Input.h"

#include "SettingsFile.h"
#include "Texts.h"

#include <host/InputFile.h>
#include <host/PropertyListReader.h>

#include <QFileInfo>

namespace Tessark::PropertyPanel {

namespace {

const QString kBuiltInList = QStringLiteral(":/property-panel/builtin.json");
const QString kStandardInput = QStringLiteral("-");

QString displayName(const QString &path)
{
    if (path == kBuiltInList)
        return Texts::tr("built-in list");
    return path == kStandardInput ? Texts::tr("standard input") : path;
}

/// Where the relative paths of a list start; that of standard input starts where the program does.
QString folderOf(const QString &path)
{
    return path == kStandardInput ? QString() : QFileInfo(path).path();
}

std::optional<QByteArray> readFile(const QString &path, QVector<PropertyHost::Problem> &problems)
{
    return PropertyHost::readInputFile(path == kStandardInput ? QStringLiteral("/dev/stdin") : path,
                                       problems);
}

void note(const QVector<PropertyHost::Problem> &problems, const QString &path, Input &input)
{
    for (const PropertyHost::Problem &problem : problems)
        input.problems.append(problem.toString(displayName(path)));
    input.hasErrors = input.hasErrors || PropertyHost::hasErrors(problems);
}

void readList(const QString &path, PropertyHost::ListOrigin origin, Options::Task task,
              Input &input)
{
    const auto read = task == Options::Task::Check ? PropertyHost::checkPropertyList
                                                   : PropertyHost::readPropertyList;
    QVector<PropertyHost::Problem> problems;
    if (const auto json = readFile(path, problems)) {
        auto result = read(*json, folderOf(path), origin);
        input.list = std::move(result.list);
        problems += result.problems;
    }
    note(problems, path, input);
    if (input.list.title().isEmpty())
        input.list.setTitle(path == kStandardInput ? Texts::tr("Properties")
                                                   : QFileInfo(path).completeBaseName());
}

void readValues(const QString &path, Input &input)
{
    QVector<PropertyHost::Problem> problems;
    if (const auto json = readFile(path, problems))
        problems += input.store->readValues(*json, input.list);
    note(problems, path, input);
}

} // namespace

Input readInput(const Options &options)
{
    Input input;
    const bool isBuiltIn = options.listPath.isEmpty();
    readList(isBuiltIn ? kBuiltInList : options.listPath,
             isBuiltIn || options.trusted ? PropertyHost::ListOrigin::Trusted
                                          : PropertyHost::ListOrigin::Stranger,
             options.task, input);
    input.store = std::make_unique<PropertyHost::PropertyStore>();
    input.store->reset(input.list);
    if (!options.settingsPath.isEmpty())
        note(readSettingsFile(options.settingsPath, *input.store, input.list), options.settingsPath,
             input);
    if (!options.valuesPath.isEmpty())
        readValues(options.valuesPath, input);
    return input;
}

} // namespace Tessark::PropertyPanel
