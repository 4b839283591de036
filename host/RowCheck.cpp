#include "host/RowCheck_p.h"

#include "host/HintUse_p.h"
#include "host/ListKeys_p.h"
#include "host/Messages_p.h"
#include "host/ProblemCollector_p.h"
#include "host/Suggestion_p.h"
#include "host/ValueCheck_p.h"
#include "host/ValueJson_p.h"
#include "host/ValueKind_p.h"

#include <property/Property.h>
#include <property/PropertyEditorRegistry.h>

namespace Tessark::PropertyHost {

using namespace PropertyUI;

RowCheck::RowCheck(ProblemCollector &problems)
    : m_problems(problems)
    , m_nesting(problems)
{
}

void RowCheck::checkRow(Property &property, const QString &pointer)
{
    checkName(property, pointer);
    addType(property.type, pointer);
    checkEditor(property, pointer);
    const QString hintsPointer = childPointer(pointer, kKeyHints);
    for (auto hint = property.hints.constBegin(); hint != property.hints.constEnd(); ++hint)
        checkHintKey(hint.key(), childPointer(hintsPointer, hint.key()));
    checkChoices(property, pointer);
    checkHintUse(property, pointer);
    checkRange(property, pointer);
    checkDefault(property, pointer);
}

void RowCheck::finish()
{
    m_nesting.finish();
}

void RowCheck::addType(const QString &type, const QString &pointer)
{
    m_nesting.addRow(type, pointer);
}

void RowCheck::tellMissingName(const QString &pointer)
{
    m_problems.error(pointer, Messages::tr("\"%1\" is missing").arg(kKeyName));
}

/// True when the name can be the row's. A row that could not be found by its name is told.
bool RowCheck::takeName(const QString &name, const QString &pointer)
{
    const QString namePointer = childPointer(pointer, kKeyName);
    if (name.isEmpty()) {
        m_problems.error(namePointer, Messages::tr("the name is empty"));
        return false;
    }
    if (m_names.contains(name)) {
        m_problems.error(namePointer,
                         Messages::tr("the name %1 is taken by a row before").arg(quoted(name)));
        return false;
    }
    m_names.insert(name);
    return true;
}

bool RowCheck::checkEditor(Property &property, const QString &pointer)
{
    if (PropertyEditorRegistry::Instance()->factory(&property))
        return true;
    m_problems.warning(
        childPointer(pointer, kKeyType),
        Messages::tr("no editor for type %1, the row is skipped%2")
            .arg(quoted(property.type), vocabularyTypes().contains(property.type)
                                            ? QString()
                                            : suggestion(property.type, vocabularyTypes())));
    return false;
}

void RowCheck::checkHintKey(const QString &key, const QString &hintPointer)
{
    if (!knownHints().contains(key))
        m_problems.warning(hintPointer,
                           Messages::tr("unknown hint%1").arg(suggest(key, knownHints())));
}

void RowCheck::checkHintUse(const Property &property, const QString &pointer)
{
    for (auto hint = property.hints.constBegin(); hint != property.hints.constEnd(); ++hint) {
        if (!isHintRead(property.type, hint.key())) {
            m_problems.warning(
                childPointer(childPointer(pointer, kKeyHints), hint.key()),
                Messages::tr("no editor reads this hint for type %1").arg(quoted(property.type)));
        }
    }
}

void RowCheck::checkChoices(const Property &property, const QString &pointer)
{
    const auto values = property.hint(kPropertyHintValues).toList().size();
    const auto texts = property.hint(kPropertyHintDisplayValues).toList().size();
    if (property.hints.contains(kPropertyHintValues) && values != texts) {
        m_problems.warning(
            childPointer(childPointer(pointer, kKeyHints), kPropertyHintValues),
            Messages::tr("%n values for %1 \"display_values\"", nullptr, static_cast<int>(values))
                .arg(texts));
    }
}

void RowCheck::tellUselessBound(const QString &type, const QString &boundPointer)
{
    m_problems.warning(boundPointer,
                       Messages::tr("means nothing for type %1, ignored").arg(quoted(type)));
}

void RowCheck::tellMissingMaximum(const QString &pointer)
{
    m_problems.warning(pointer, Messages::tr("\"max\" is missing and counts as 0"));
}

void RowCheck::checkBounds(const Property &property, const QString &pointer)
{
    checkBoundPair(pointer, property.minValue, kKeyMin, property.maxValue, kKeyMax);
    checkBoundPair(pointer, property.maxValue, kKeyMax, property.hardMaxValue, kKeyHardMax);
}

void RowCheck::checkDefaultRange(const Property &property, const QString &pointer)
{
    if (isOutsideRange(property, property.defaultValue)) {
        m_problems.warning(
            childPointer(pointer, kKeyDefault),
            Messages::tr("%1 is outside of the range").arg(componentsText(property.defaultValue)));
    }
}

QString RowCheck::suggest(const QString &text, const QStringList &candidates) const
{
    return m_problems.isFull() ? QString() : suggestion(text, candidates);
}

void RowCheck::checkName(const Property &property, const QString &pointer)
{
    if (!property.name.isEmpty())
        takeName(property.name, pointer);
    else if (!typeTraits(property.type).structural)
        tellMissingName(pointer);
}

void RowCheck::checkRange(const Property &property, const QString &pointer)
{
    const RangeUse use = typeTraits(property.type).range;
    const std::pair<QLatin1String, QVariant> bounds[] = {
        {kKeyMin, property.minValue},
        {kKeyMax, property.maxValue},
        {kKeyHardMax, property.hardMaxValue},
    };
    for (const auto &[key, bound] : bounds) {
        if (use == RangeUse::None && bound.isValid())
            tellUselessBound(property.type, childPointer(pointer, key));
        else
            checkBoundKind(property, bound, childPointer(pointer, key));
    }
    if (use == RangeUse::None)
        return;
    if (use == RangeUse::NeedsRange && !property.maxValue.isValid())
        tellMissingMaximum(pointer);
    checkBounds(property, pointer);
}

void RowCheck::checkBoundKind(const Property &property, const QVariant &bound,
                              const QString &boundPointer)
{
    if (bound.isValid() && !isOfKind(property, bound)) {
        m_problems.error(
            boundPointer,
            Messages::tr("the bound is not %1").arg(kindName(typeTraits(property.type).kind)));
    }
}

void RowCheck::checkBoundPair(const QString &pointer, const QVariant &lower,
                              const QString &lowerKey, const QVariant &upper,
                              const QString &upperKey)
{
    if (isAbove(lower, upper)) {
        m_problems.error(childPointer(pointer, lowerKey),
                         Messages::tr("%1 is above \"%2\", which is %3")
                             .arg(componentsText(lower), upperKey, componentsText(upper)));
    }
}

void RowCheck::checkDefault(const Property &property, const QString &pointer)
{
    if (!property.defaultValue.isValid())
        return;
    const ValueKind kind = typeTraits(property.type).kind;
    const QString defaultPointer = childPointer(pointer, kKeyDefault);
    if (kind == ValueKind::None) {
        m_problems.error(
            defaultPointer,
            Messages::tr("a property of type %1 has no value").arg(quoted(property.type)));
    } else if (!isOfKind(property, property.defaultValue)) {
        m_problems.error(defaultPointer, Messages::tr("the default is not %1").arg(kindName(kind)));
    } else {
        checkDefaultRange(property, pointer);
    }
}

} // namespace Tessark::PropertyHost
