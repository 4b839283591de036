#include "fuzz/FuzzInput.h"
#include "fuzz/FuzzTarget.h"
#include "fuzz/HostileProperty.h"
#include "fuzz/RuleBench.h"

#include <host/PropertyListReader.h>
#include <property/PropertyUI.h>

#include <QCoreApplication>
#include <QEvent>
#include <QJsonDocument>

#include <memory>
#include <optional>

using namespace Fuzz;
using namespace Tessark::PropertyHost;
using namespace Tessark::PropertyUI;

namespace {

constexpr int kMostJudgedConditions = 4;
constexpr int kMostChanges = 32;

void requireSame(const QVector<Problem> &problems, const QVector<Problem> &expected,
                 const char *claim)
{
    const auto lines = [](const QVector<Problem> &all) {
        QStringList result;
        for (const Problem &problem : all)
            result.append(problem.toString(problem.name));
        return result;
    };
    if (lines(problems) != lines(expected)) {
        fail(QStringLiteral("%1:\n%2\nand\n%3")
                 .arg(QString::fromUtf8(claim), lines(expected).join(QLatin1Char('\n')),
                      lines(problems).join(QLatin1Char('\n'))));
    }
}

void checkProblems(const RuleEngine &engine, const QVector<Problem> &expected)
{
    requireSame(engine.problems(), expected, "engine and list say the same of the rules");
    for (const Problem &problem : expected) {
        require(problem.severity == Problem::Severity::Error,
                "a rule with a mistake is passed over");
        require(problem.row >= 0 && problem.pointer.contains(QStringLiteral("/hints/")),
                "a mistake is at a hint of a row");
    }
}

/// Whether the condition holds, or nothing if it has a mistake.
std::optional<bool> holds(const QString &condition, RuleValues &values, QString *mistake = nullptr)
{
    PropertyList list = ruleRows();
    const PropertyRow row = list.separator().visibleWhen(condition);
    values.reads = 0;
    const RuleEngine engine(list, &values);
    require(values.reads <= condition.size() + list.properties().size(),
            "a rule reads what it names, and what it read before");
    const auto problems = engine.problems();
    if (problems.isEmpty())
        return engine.isVisible(&row.property());
    if (mistake)
        *mistake = problems.first().message;
    return std::nullopt;
}

/// What must hold of a condition made of this one, unless it is too long or nested too deep then.
void checkMade(const QString &condition, bool expected, RuleValues &values)
{
    QString mistake;
    const std::optional<bool> result = holds(condition, values, &mistake);
    if (result ? *result != expected : !mistake.contains(QLatin1String("at most")))
        fail(QStringLiteral("wrong or refused (%1): %2").arg(mistake, condition));
}

void checkLaws(const QString &condition, RuleValues &values)
{
    const std::optional<bool> result = holds(condition, values);
    if (!result)
        return;
    const QString inner = QStringLiteral("(%1)").arg(condition);
    checkMade(QStringLiteral(" \t%1\n").arg(condition), *result, values);
    checkMade(QStringLiteral("not ") + inner, !*result, values);
    checkMade(QStringLiteral("%1 and %1").arg(inner), *result, values);
    checkMade(QStringLiteral("%1 and not %1").arg(inner), false, values);
    checkMade(QStringLiteral("%1 or !%1").arg(inner), true, values);
    checkMade(QStringLiteral("(not not %1) in [true]").arg(inner), *result, values);
}

/// A list that was written and read has the same rules, with the same mistakes, and they do the same.
void checkJson(const PropertyList &list, RuleValues &values)
{
    const QByteArray json = QJsonDocument(list.toJson()).toJson();
    const PropertyListResult read = readPropertyList(json);
    requireSame(read.problems, list.validate(),
                "a list that is read has the mistakes it was made with");
    require(read.list.toJson() == list.toJson(), "rules survive writing");
    const RuleEngine engine(list, &values);
    const RuleEngine second(read.list, &values);
    requireSameStates(statesOf(read.list, second), statesOf(list, engine),
                      "rules that are read do what they did");
}

/// Changes values behind the engine's delegate, as a panel does.
void changeValues(FuzzInput &script, const PropertyList &list, const RuleEngine &engine)
{
    const auto properties = list.properties();
    for (int i = 0; i < kMostChanges && !script.isEmpty(); ++i) {
        Property *const property = script.pickFrom(properties);
        const QVariant value = script.flip() ? ruleValueFor(script) : anyVariant(script);
        if (!property->name.isEmpty())
            engine.delegate()->setValue(property, value, IPropertyEditorDelegate::NewChange);
    }
}

/// Only the rules that read a changed value were evaluated: that must be enough.
void checkEvaluation(const QByteArray &rules, const PropertyList &list, const RuleEngine &engine,
                     RuleValues &values)
{
    const PropertyList other = listWithRules(rules);
    const RuleEngine fresh(other, &values);
    requireSameStates(statesOf(list, engine), statesOf(other, fresh),
                      "changed values are seen as values from the start are");
}

void checkPanel(const PropertyEditorPanel &panel, const PropertyList &list,
                const RuleEngine &engine)
{
    QVector<PropertyEditor *> editors;
    panel.getEditors(editors, QString());
    for (const PropertyEditor *editor : editors) {
        const std::optional<bool> shown = isShownByRules(editor->editedProperty(), list, engine);
        QWidget *const field = const_cast<PropertyEditor *>(editor)->widget(nullptr);
        if (shown && field)
            require(field->isHidden() != *shown, "a row is shown exactly when the rules say so");
    }
}

} // namespace

/// Rules, one a line, see listWithRules(); behind a zero byte, changes of values.
int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), int(size));
    const QByteArray rules = bytes.left(int(qstrnlen(bytes.constData(), size_t(bytes.size()))));
    FuzzInput script(data, size);
    script.take(std::size_t(rules.size()) + 1);

    RuleValues values;
    const PropertyList list = listWithRules(rules);
    const auto declared = statesOf(list);
    const QVector<Problem> problems = list.validate(); // before bounds leave a default behind
    auto engine = std::make_unique<RuleEngine>(list, &values);
    checkProblems(*engine, problems);
    std::unique_ptr<PropertyEditorPanel> panel;
    if (script.oneIn(4)) {
        panel =
            std::make_unique<PropertyEditorPanel>(list.properties(), engine->delegate(), nullptr);
        engine->attach(panel.get());
        panel->updateUI();
    }
    changeValues(script, list, *engine);
    if (panel)
        checkPanel(*panel, list, *engine);
    checkEvaluation(rules, list, *engine, values);
    engine->update();
    checkEvaluation(rules, list, *engine, values);

    engine.reset();
    requireSameStates(statesOf(list), declared,
                      "an engine that goes leaves the ranges of the list");
    checkJson(list, values);
    const QStringList conditions = conditionsIn(rules).mid(0, kMostJudgedConditions);
    for (const QString &condition : conditions)
        checkLaws(condition, values);
    panel.reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return 0;
}
