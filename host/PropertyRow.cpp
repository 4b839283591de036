#include "host/PropertyRow.h"

#include "host/HostHints.h"

namespace Tessark::PropertyHost {

using namespace PropertyUI;

PropertyRow::PropertyRow(Property &property)
    : m_property(&property)
{
}

Property &PropertyRow::property() const
{
    return *m_property;
}

PropertyRow &PropertyRow::range(const QVariant &min, const QVariant &max)
{
    m_property->setRange(min, max);
    return *this;
}

PropertyRow &PropertyRow::range(const QVariant &min, const QVariant &max, const QVariant &hardMax)
{
    m_property->setRange(min, max, hardMax);
    return *this;
}

PropertyRow &PropertyRow::defaultValue(const QVariant &value)
{
    m_property->setDefaultValue(value);
    return *this;
}

PropertyRow &PropertyRow::hint(const QString &key, const QVariant &value)
{
    m_property->setHint(key, value);
    return *this;
}

PropertyRow &PropertyRow::fullWidth(bool fullWidth)
{
    return hint(kPropertyHintFullWidth, fullWidth);
}

PropertyRow &PropertyRow::font(const QFont &font)
{
    return hint(kPropertyHintFont, font);
}

PropertyRow &PropertyRow::size(const QSize &size)
{
    return hint(kPropertyHintSize, size);
}

PropertyRow &PropertyRow::styleSheet(const QString &styleSheet)
{
    return hint(kPropertyHintStyleSheet, styleSheet);
}

PropertyRow &PropertyRow::help(const QString &text)
{
    return hint(kHostHintHelp, text);
}

PropertyRow &PropertyRow::visibleWhen(const QString &condition)
{
    return addCondition(kHostHintVisibleWhen, condition);
}

PropertyRow &PropertyRow::enabledWhen(const QString &condition)
{
    return addCondition(kHostHintEnabledWhen, condition);
}

PropertyRow &PropertyRow::minimumFollows(const QString &expression)
{
    return hint(kHostHintMinimumFollows, expression);
}

PropertyRow &PropertyRow::maximumFollows(const QString &expression)
{
    return hint(kHostHintMaximumFollows, expression);
}

PropertyRow &PropertyRow::enabled(bool enabled)
{
    return hint(kPropertyHintEnabled, enabled);
}

PropertyRow &PropertyRow::hideLabel(bool hide)
{
    return hint(kPropertyHintBoolHideLabel, hide);
}

PropertyRow &PropertyRow::alignment(Qt::Alignment alignment)
{
    return hint(kPropertyHintAlignment, static_cast<int>(alignment));
}

PropertyRow &PropertyRow::nativeDialogs(bool native)
{
    return hint(kPropertyHintUseNativeDialogs, native);
}

PropertyRow &PropertyRow::tabPosition(QTabWidget::TabPosition position)
{
    return hint(kPropertyHintTabPosition, static_cast<int>(position));
}

PropertyRow &PropertyRow::choice(const QVariant &value, const QString &text)
{
    // The lists grow as lists of variants and of texts, as the reader makes them.
    QVariantList values = m_property->hint(kPropertyHintValues).toList();
    values.append(value);
    QStringList texts = m_property->hint(kPropertyHintDisplayValues).toStringList();
    texts.append(text);
    return hint(kPropertyHintValues, values).hint(kPropertyHintDisplayValues, texts);
}

PropertyRow &PropertyRow::choices(const QStringList &texts)
{
    return hint(kPropertyHintDisplayValues, texts);
}

PropertyRow &PropertyRow::radioButtons()
{
    return widget(kWidgetTypeRadioButtons);
}

PropertyRow &PropertyRow::suffix(const QString &suffix)
{
    return hint(kPropertyHintSuffix, suffix);
}

PropertyRow &PropertyRow::decimals(int decimals)
{
    return hint(kPropertyHintFloatDecimals, decimals);
}

PropertyRow &PropertyRow::displayScale(double shownPerStored)
{
    return hint(kPropertyHintDisplayScale, shownPerStored);
}

PropertyRow &PropertyRow::logarithmicSlider(bool logarithmic)
{
    return hint(kPropertyHintLogarithmicSlider, logarithmic);
}

PropertyRow &PropertyRow::showSliders(bool show)
{
    return hint(kPropertyHintShowSliders, show);
}

PropertyRow &PropertyRow::showMultipleCheck(bool show)
{
    return hint(kPropertyHintShowMultipleCheck, show);
}

PropertyRow &PropertyRow::aspectRatio(const QSize &ratio)
{
    return hint(kPropertyHintAspectRatio, ratio);
}

PropertyRow &PropertyRow::fullSize(const QSize &size)
{
    return hint(kPropertyHintFullSize, size);
}

PropertyRow &PropertyRow::noPosition(bool no)
{
    return hint(kPropertyHintXfrmNoPosition, no);
}

PropertyRow &PropertyRow::noRotation(bool no)
{
    return hint(kPropertyHintXfrmNoRotation, no);
}

PropertyRow &PropertyRow::noScale(bool no)
{
    return hint(kPropertyHintXfrmNoScale, no);
}

PropertyRow &PropertyRow::uniformScale(bool uniform)
{
    return hint(kPropertyHintXfrmUniformScale, uniform);
}

PropertyRow &PropertyRow::collapsibleScale(bool collapsible)
{
    return hint(kPropertyHintXfrmCollapsibleScale, collapsible);
}

PropertyRow &PropertyRow::textures(const QVector<TextureChoice> &textures)
{
    QVariantList list;
    for (const TextureChoice &texture : textures)
        list.append(QVariant::fromValue(texture));
    return hint(kHostHintTextures, list);
}

PropertyRow &PropertyRow::widget(const QString &widgetType)
{
    return hint(kPropertyHintWidget, widgetType);
}

PropertyRow &PropertyRow::foreground(const QColor &color)
{
    return hint(kPropertyHintForeground, color);
}

PropertyRow &PropertyRow::background(const QColor &color)
{
    return hint(kPropertyHintBackground, color);
}

PropertyRow &PropertyRow::orientation(Qt::Orientation orientation)
{
    return hint(kPropertyHintOrientation, static_cast<int>(orientation));
}

PropertyRow &PropertyRow::minimumSize(const QSize &size)
{
    return hint(kPropertyHintMinimumSize, size);
}

PropertyRow &PropertyRow::maximumSize(const QSize &size)
{
    return hint(kPropertyHintMaximumSize, size);
}

PropertyRow &PropertyRow::preferencesKey(const QString &key)
{
    return hint(kPropertyHintPreferencesKey, key);
}

PropertyRow &PropertyRow::addCondition(const QString &key, const QString &condition)
{
    const QStringList before = m_property->hint(key).toStringList();
    const QStringList all = before + QStringList{condition};
    return hint(key, before.isEmpty() ? QVariant(condition) : QVariant(all));
}

} // namespace Tessark::PropertyHost
