#include "fuzz/FuzzTarget.h"

#include <host/PropertyListReader.h>
#include <host/PropertyStore.h>
#include <property/PropertyUI.h>

#include <QCoreApplication>
#include <QEvent>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QScrollArea>
#include <QSet>

using namespace Fuzz;
using namespace Tessark::PropertyHost;
using namespace Tessark::PropertyUI;

namespace {

constexpr int kMostProblems = 10001; // the last one counts the rest

/// A part of a JSON pointer as it was before it was written into one.
QString unescaped(QString part)
{
    part.replace(QStringLiteral("~1"), QStringLiteral("/"));
    return part.replace(QStringLiteral("~0"), QStringLiteral("~"));
}

/// Whether the pointer leads to a value of the document, or to a key that an object lacks.
bool pointsInto(QJsonValue value, const QString &pointer)
{
    const QStringList parts = pointer.split(QLatin1Char('/'));
    for (int i = 1; i < parts.size(); ++i) {
        if (value.isArray()) {
            bool isIndex = false;
            const int index = parts.at(i).toInt(&isIndex);
            if (!isIndex || index < 0 || index >= value.toArray().size())
                return false;
            value = value.toArray().at(index);
        } else if (value.isObject()) {
            value = value.toObject().value(unescaped(parts.at(i)));
        } else {
            return false;
        }
    }
    return parts.first().isEmpty();
}

void checkProblems(const QVector<Problem> &problems, const QByteArray &json)
{
    require(problems.size() <= kMostProblems, "the number of problems is bounded");
    const QJsonDocument document = QJsonDocument::fromJson(json);
    const QJsonValue root =
        document.isArray() ? QJsonValue(document.array()) : QJsonValue(document.object());
    for (const Problem &problem : problems) {
        require(!problem.message.isEmpty(), "a problem says what is wrong");
        const QString line = problem.toString(QStringLiteral("list.json"));
        for (const QChar letter : line)
            require(letter.category() != QChar::Other_Control, "a problem fits one line");
        if (!problem.pointer.isEmpty())
            require(pointsInto(root, problem.pointer), "a problem points into the document");
        if (problem.line > 0)
            require(problem.line <= json.count('\n') + json.count('\r') + 1 && problem.column > 0,
                    "a problem of syntax lies in the document");
    }
}

void checkRows(const PropertyList &list, const QVector<Problem> &problems, const QByteArray &json)
{
    QSet<QString> names;
    for (Property *property : list.properties()) {
        require(PropertyEditorRegistry::Instance()->factory(property), "each row has an editor");
        if (property->name.isEmpty())
            continue;
        require(!names.contains(property->name), "names are unique");
        names.insert(property->name);
    }
    const auto rows = QJsonDocument::fromJson(json).object().value(QStringLiteral("properties"));
    require(list.properties().size() <= rows.toArray().size(), "rows come from the document");
    if (problems.isEmpty())
        require(list.properties().size() == rows.toArray().size(), "no row is lost unsaid");
}

/// What a store writes, it reads without error and writes again.
void checkStore(PropertyStore &store, const PropertyList &list)
{
    const QByteArray written = QJsonDocument(store.toJson(list)).toJson();
    require(!hasErrors(store.readValues(written, list)), "values are read as they were written");
    require(QJsonDocument(store.toJson(list)).toJson() == written, "values survive writing");
}

void show(const PropertyList &list, PropertyStore &store)
{
    QScrollArea window;
    auto *const panel = new PropertyEditorPanel(list.properties(), &store, nullptr);
    window.setWidget(panel);
    panel->updateUI();
    window.show();
    QCoreApplication::processEvents();
    for (Property *property : list.properties())
        panel->updateProperty(property);
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray json(reinterpret_cast<const char *>(data), int(size));
    const PropertyListResult result = readPropertyList(json, QStringLiteral(TESSARK_GALLERY));
    checkProblems(result.problems, json);
    checkRows(result.list, result.problems, json);

    PropertyStore store;
    store.reset(result.list);
    checkStore(store, result.list);
    show(result.list, store);
    checkStore(store, result.list);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return 0;
}
