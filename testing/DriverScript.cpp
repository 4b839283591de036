#include "testing/DriverScript_p.h"

#include "testing/EditRecorder.h"
#include "testing/PanelDriver.h"
#include "testing/ScriptLine_p.h"
#include "testing/Spelling_p.h"
#include "testing/ValueText_p.h"

#include <algorithm>
#include <iterator>

namespace Tessark::PropertyTest {

namespace {

const QString kRow = QStringLiteral("the name of a row");
const QString kText = QStringLiteral("a text");

QStringList words(const char *text)
{
    return QString::fromLatin1(text).split(QLatin1Char(' '));
}

/// What the line says is complete, and the driver did it; or why not.
template <typename Act>
QString whenDone(PanelDriver &driver, ScriptLine &line, Act act)
{
    if (!line.isDone())
        return line.error();
    return act() ? QString() : driver.error();
}

QString wheelDragLine(PanelDriver &driver, ScriptLine &line)
{
    line.takeOneOf(words("of"));
    const QString row = line.take(kRow);
    const bool isNear = line.takeOneOf(words("to near")) == QLatin1String("near");
    const double hue = line.takeNumber();
    const double saturation = line.takeNumber();
    return whenDone(driver, line, [&] {
        return isNear ? driver.dragWheelNear(row, hue, saturation)
                      : driver.dragWheel(row, hue, saturation);
    });
}

QString ringDragLine(PanelDriver &driver, ScriptLine &line)
{
    line.takeOneOf(words("of"));
    const QString row = line.take(kRow);
    const bool isNear = line.takeOneOf(words("to near")) == QLatin1String("near");
    const double value = line.takeNumber();
    return whenDone(driver, line, [&] {
        return isNear ? driver.dragRingNear(row, value) : driver.dragRing(row, value);
    });
}

QString drag(PanelDriver &driver, ScriptLine &line)
{
    if (line.isFollowedBy(words("of"))) { // a row may be called so
        if (line.skip(QStringLiteral("wheel")))
            return wheelDragLine(driver, line);
        if (line.skip(QStringLiteral("ring")))
            return ringDragLine(driver, line);
    }
    const QString row = line.take(kRow);
    const bool isNear = line.takeOneOf(words("to near")) == QLatin1String("near");
    const double number = line.takeNumber();
    return whenDone(driver, line, [&] {
        return isNear ? driver.dragNear(row, number) : driver.drag(row, number);
    });
}

QString type(PanelDriver &driver, ScriptLine &line)
{
    const QString text = line.take(kText);
    line.takeOneOf(words("in"));
    const QString row = line.take(kRow);
    const bool isWithout = line.skip(QStringLiteral("without"));
    if (isWithout)
        line.takeOneOf(words("return"));
    return whenDone(driver, line, [&] {
        return driver.type(row, text,
                           isWithout ? PanelDriver::WithoutReturn : PanelDriver::WithReturn);
    });
}

QString step(PanelDriver &driver, ScriptLine &line)
{
    const QString row = line.take(kRow);
    line.takeOneOf(words("by"));
    const int steps = line.takeCount();
    return whenDone(driver, line, [&] { return driver.step(row, steps); });
}

QString wheel(PanelDriver &driver, ScriptLine &line)
{
    const QString row = line.take(kRow);
    line.takeOneOf(words("by"));
    const int notches = line.takeCount();
    return whenDone(driver, line, [&] { return driver.wheel(row, notches); });
}

QString choose(PanelDriver &driver, ScriptLine &line)
{
    const QString text = line.take(kText);
    line.takeOneOf(words("in"));
    const QString row = line.take(kRow);
    return whenDone(driver, line, [&] { return driver.choose(row, text); });
}

QString check(PanelDriver &driver, ScriptLine &line)
{
    const QString row = line.take(kRow);
    return whenDone(driver, line, [&] { return driver.check(row, true); });
}

QString uncheck(PanelDriver &driver, ScriptLine &line)
{
    const QString row = line.take(kRow);
    return whenDone(driver, line, [&] { return driver.check(row, false); });
}

QString press(PanelDriver &driver, ScriptLine &line)
{
    const QString row = line.take(kRow);
    return whenDone(driver, line, [&] { return driver.press(row); });
}

QString open(PanelDriver &driver, ScriptLine &line)
{
    const QString group = line.take(QStringLiteral("the label of a group"));
    return whenDone(driver, line, [&] { return driver.open(group); });
}

QString close(PanelDriver &driver, ScriptLine &line)
{
    const QString group = line.take(QStringLiteral("the label of a group"));
    return whenDone(driver, line, [&] { return driver.close(group); });
}

QString show(PanelDriver &driver, ScriptLine &line)
{
    line.takeOneOf(words("tab"));
    const QString tab = line.take(QStringLiteral("the label of a tab"));
    return whenDone(driver, line, [&] { return driver.showTab(tab); });
}

QString set(PanelDriver &driver, ScriptLine &line)
{
    const QString row = line.take(kRow);
    line.takeOneOf(words("to"));
    line.takeOneOf(words("default"));
    return whenDone(driver, line, [&] { return driver.setToDefault(row); });
}

QString noRecorder()
{
    return QStringLiteral("no recorder was given to the driver");
}

QString forget(PanelDriver &driver, ScriptLine &line)
{
    line.takeOneOf(words("edits"));
    if (!line.isDone())
        return line.error();
    if (!driver.recorder())
        return noRecorder();
    driver.recorder()->clear();
    return QString();
}

QString expectFlags(PanelDriver &driver, ScriptLine &line)
{
    QVector<int> flags;
    const QStringList texts = line.takeList();
    for (const QString &text : texts) {
        bool isNumber = false;
        flags.append(text.toInt(&isNumber));
        if (!isNumber)
            return QStringLiteral("expected flags, 0 or 1, found %1").arg(quoted(text));
    }
    EditRecorder *const recorder = driver.recorder();
    if (!recorder)
        return noRecorder();
    return recorder->expectFlags(flags) ? QString() : recorder->error();
}

QString expectEdits(PanelDriver &driver, ScriptLine &line)
{
    line.takeOneOf(words("of"));
    const QString name = line.take(kRow);
    line.takeOneOf(words("="));
    if (!line.error().isEmpty())
        return line.error();
    QVariantList values;
    const QStringList texts = line.takeList();
    for (const QString &text : texts)
        values.append(text);
    EditRecorder *const recorder = driver.recorder();
    if (!recorder)
        return noRecorder();
    return recorder->expectEdits(name, values) ? QString() : recorder->error();
}

QString expectText(PanelDriver &driver, ScriptLine &line)
{
    line.takeOneOf(words("of"));
    const QString row = line.take(kRow);
    line.takeOneOf(words("="));
    const QString expected = line.takeRest(kText);
    QString found;
    QString problem = whenDone(driver, line, [&] {
        found = driver.text(row);
        return driver.error().isEmpty();
    });
    if (!problem.isEmpty() || found == expected)
        return problem;
    return QStringLiteral("expected the text %1 in %2, found %3")
        .arg(quoted(expected), quoted(row), quoted(found));
}

QString expectValue(PanelDriver &driver, ScriptLine &line, const QString &row)
{
    const QString expected = line.takeRest(QStringLiteral("a value"));
    QVariant found;
    QString problem = whenDone(driver, line, [&] {
        found = driver.value(row);
        return driver.error().isEmpty();
    });
    if (!problem.isEmpty() || isSame(found, expected))
        return problem;
    return QStringLiteral("expected %1 = %2, found %3").arg(row, expected, valueText(found));
}

bool isInState(PanelDriver &driver, const QString &row, const QString &state)
{
    if (state == QLatin1String("visible") || state == QLatin1String("hidden"))
        return driver.isVisible(row) == (state == QLatin1String("visible"));
    if (state == QLatin1String("enabled") || state == QLatin1String("disabled"))
        return driver.isEnabled(row) == (state == QLatin1String("enabled"));
    return driver.isOpen(row) == (state == QLatin1String("open"));
}

QString expectState(PanelDriver &driver, ScriptLine &line, const QString &row, const QString &state)
{
    bool isMet = false;
    QString problem = whenDone(driver, line, [&] {
        isMet = isInState(driver, row, state);
        return driver.error().isEmpty();
    });
    if (!problem.isEmpty() || isMet)
        return problem;
    return QStringLiteral("expected %1 %2, which it is not").arg(quoted(row), state);
}

QString expect(PanelDriver &driver, ScriptLine &line)
{
    const QStringList states = words("= visible hidden enabled disabled open closed");
    if (!line.isFollowedBy(states)) { // a row may be called so
        if (line.skip(QStringLiteral("flags")))
            return expectFlags(driver, line);
        if (line.skip(QStringLiteral("edits")))
            return expectEdits(driver, line);
        if (line.skip(QStringLiteral("text")))
            return expectText(driver, line);
    }
    const QString row = line.take(kRow + QStringLiteral(", or flags, edits, text"));
    const QString state = line.takeOneOf(states);
    if (!line.error().isEmpty())
        return line.error();
    return state == QLatin1String("=") ? expectValue(driver, line, row)
                                       : expectState(driver, line, row, state);
}

struct Verb
{
    const char *word;
    QString (*perform)(PanelDriver &driver, ScriptLine &line);
};

constexpr Verb kVerbs[] = {
    {"check", check},     {"choose", choose}, {"close", close}, {"drag", drag},
    {"expect", expect},   {"forget", forget}, {"open", open},   {"press", press},
    {"set", set},         {"show", show},     {"step", step},   {"type", type},
    {"uncheck", uncheck}, {"wheel", wheel},
};

} // namespace

QString performLine(PanelDriver &driver, const QString &text)
{
    ScriptLine line(text);
    if (line.isBlank())
        return line.error();
    QStringList verbs;
    for (const Verb &verb : kVerbs)
        verbs.append(QString::fromLatin1(verb.word));
    const QString word = line.takeOneOf(verbs);
    if (!line.error().isEmpty())
        return line.error();
    return kVerbs[verbs.indexOf(word)].perform(driver, line);
}

} // namespace Tessark::PropertyTest
