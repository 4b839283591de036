#include "fuzz/RuleBench.h"

#include "fuzz/FuzzInput.h"
#include "fuzz/FuzzTarget.h"

#include <property/PropertyVocabulary.h>
#include <property/editors/ImageFormatEditor.h>

#include <QColor>
#include <QSize>
#include <QVector2D>
#include <QVector3D>
#include <QVector4D>

#include <algorithm>
#include <limits>

namespace Fuzz {

using namespace Tessark::PropertyHost;
using namespace Tessark::PropertyUI;

namespace {

QString name(const char *text)
{
    return QString::fromUtf8(text);
}

void addNumbers(PropertyList &list)
{
    list.boolean(name("on"), name("On"));
    list.integer(name("count"), name("Count")).range(0, 9).defaultValue(3);
    list.number(name("level"), name("Level")).range(-1, 1, 2).defaultValue(0.5);
    list.number(name("my row"), name("Blank")).range(0, 9);
    list.number(name("extent.width"), name("Hides a part")).range(0, 9);
    list.percent(name("share"), name("Share")).range(0, 1).defaultValue(0.25);
}

void addOthers(PropertyList &list)
{
    list.choice(name("mode"), name("Mode"))
        .choice(name("auto"), name("Automatic"))
        .choice(name("manual"), name("By hand"))
        .choice(3, name("Three"));
    list.choice(name("pick"), name("Pick")).choices({name("A"), name("B")});
    list.string(name("title"), name("Title"));
    list.color(name("tint"), name("Tint"));
    list.vec2(name("spot"), name("Spot"))
        .range(QVector2D(0, 0), QVector2D(1, 2))
        .defaultValue(QVector2D(0.5F, 1));
    list.vec4(name("area"), name("Area")).range(QVector4D(0, 0, 0, 0), QVector4D(1, 1, 1, 1));
    list.size(name("extent"), name("Extent"));
    list.imageFormat(name("format"), name("Format"));
    list.transform2D(name("matrix"), name("Matrix"));
    list.texture(name("wood"), name("Wood"));
}

/// Calls take(letters, rule) for each line that has both letters.
template <typename Take>
void forEachRule(const QByteArray &rules, Take take)
{
    const QList<QByteArray> lines = rules.split('\n');
    for (const QByteArray &line : lines) {
        if (line.size() > 2)
            take(line.left(2), QString::fromUtf8(line.mid(2)).trimmed());
    }
}

QVector<double> partsOf(const QVariant &bound)
{
    switch (bound.userType()) {
    case QMetaType::QVector2D: {
        const auto vector = bound.value<QVector2D>();
        return {vector.x(), vector.y()};
    }
    case QMetaType::QVector4D: {
        const auto vector = bound.value<QVector4D>();
        return {vector.x(), vector.y(), vector.z(), vector.w()};
    }
    default:
        return {bound.toDouble()};
    }
}

bool isOrdered(const QVector<double> &low, const QVector<double> &high)
{
    return low.size() == high.size()
           && std::equal(low.cbegin(), low.cend(), high.cbegin(), std::less_equal<>());
}

RuleState rangeOf(const Property &property)
{
    RuleState state;
    state.minimum = partsOf(property.minValue);
    state.maximum = partsOf(property.maxValue);
    state.hardMaximum = partsOf(property.hardMaxValue);
    require(isOrdered(state.minimum, state.maximum) && isOrdered(state.maximum, state.hardMaximum),
            "a range has its ends in order");
    return state;
}

QVariant formatValue()
{
    ImageFormatDesc png;
    png.format = name("png");
    return QVariant::fromValue(png);
}

/// What a row has before somebody sets it.
QVariant ownValue(const Property &property)
{
    if (property.type == kPropertyTypeBeginGroup)
        return true; // open
    if (property.defaultValue.isValid())
        return property.defaultValue;
    return property.type == kPropertyTypeBoolean ? QVariant(false) : QVariant();
}

} // namespace

PropertyList ruleRows()
{
    PropertyList list;
    addNumbers(list);
    addOthers(list);
    list.group(name("Group"), [&list] {
        list.integer(name("inner"), name("Inner")).range(0, 100, 200).defaultValue(50);
        list.group(name("Inner group"), [&list] { list.string(name("core"), name("Core")); });
    });
    list.tabs([&list] {
        list.tab(name("Page"),
                 [&list] { list.number(name("leaf"), name("Leaf")).range(0, 1).defaultValue(1); });
        list.tab(name("Other page"), [] {});
    });
    return list;
}

PropertyList listWithRules(const QByteArray &rules)
{
    PropertyList list = ruleRows();
    const auto properties = list.properties();
    forEachRule(rules, [&properties](const QByteArray &letters, const QString &rule) {
        const auto letter = static_cast<unsigned char>(letters.at(0));
        const int index = letter < 'a' ? letter : letter - 'a';
        PropertyRow row(*properties.at(index % properties.size()));
        switch (letters.at(1)) {
        case 'e':
            row.enabledWhen(rule);
            break;
        case 'm':
            row.minimumFollows(rule);
            break;
        case 'M':
            row.maximumFollows(rule);
            break;
        default:
            row.visibleWhen(rule);
        }
    });
    return list;
}

QStringList conditionsIn(const QByteArray &rules)
{
    QStringList result;
    forEachRule(rules, [&result](const QByteArray &, const QString &rule) { result.append(rule); });
    return result;
}

QVariant ruleValueFor(FuzzInput &input)
{
    const QVariant values[] = {
        QVariant(),
        false,
        true,
        0,
        1,
        3,
        -7,
        0.5,
        -0.0,
        1e300,
        std::numeric_limits<double>::infinity(),
        std::numeric_limits<double>::quiet_NaN(),
        name("auto"),
        name("manual"),
        name("0.25 0.75"),
        name(""),
        QColor(Qt::red),
        QVector2D(0.25F, 5),
        QVector4D(0.1F, 0.2F, 3, -4),
        QSize(640, -480),
        formatValue(),
    };
    return input.pick(values);
}

void RuleValues::setValue(Property *property, const QVariant &value, ChangeFlags)
{
    m_values[property->name] = value;
}

QVariant RuleValues::value(Property *property)
{
    ++reads;
    const auto found = m_values.constFind(property->name);
    return found == m_values.constEnd() ? ownValue(*property) : *found;
}

bool RuleState::operator==(const RuleState &other) const
{
    return visible == other.visible && enabled == other.enabled && minimum == other.minimum
           && maximum == other.maximum && hardMaximum == other.hardMaximum;
}

QVector<RuleState> statesOf(const PropertyList &list)
{
    QVector<RuleState> states;
    for (const Property *property : list.properties())
        states.append(rangeOf(*property));
    return states;
}

QVector<RuleState> statesOf(const PropertyList &list, const RuleEngine &engine)
{
    QVector<RuleState> states = statesOf(list);
    const auto properties = list.properties();
    for (int i = 0; i < states.size(); ++i) {
        states[i].visible = engine.isVisible(properties.at(i));
        states[i].enabled = engine.isEnabled(properties.at(i));
    }
    return states;
}

void requireSameStates(const QVector<RuleState> &states, const QVector<RuleState> &expected,
                       const char *claim)
{
    require(states.size() == expected.size(), "two lists have the same rows");
    for (int i = 0; i < states.size(); ++i) {
        if (!(states.at(i) == expected.at(i)))
            fail(QStringLiteral("%1: row %2").arg(QString::fromUtf8(claim)).arg(i));
    }
}

std::optional<bool> isShownByRules(const Property *property, const PropertyList &list,
                                   const RuleEngine &engine)
{
    QVector<bool> open; // of the groups around the row, and these shown
    bool isInTabs = false;
    for (const Property *row : list.properties()) {
        const bool shown = engine.isVisible(row) && !open.contains(false);
        isInTabs |= row->type == kPropertyTypeBeginTabGroup;
        if (row->type == kPropertyTypeEndGroup)
            open.removeLast();
        if (row == property)
            return isInTabs || row->type == kPropertyTypeEndGroup ? std::nullopt
                                                                  : std::optional<bool>(shown);
        if (row->type == kPropertyTypeBeginGroup)
            open.append(shown);
        isInTabs &= row->type != kPropertyTypeEndTabGroup;
    }
    return std::nullopt;
}

} // namespace Fuzz
