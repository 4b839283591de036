#pragma once

#include "host/PropertyHostExport.h"

#include <property/Property.h>
#include <property/TextureChoice.h>

#include <QColor>
#include <QFont>
#include <QSize>
#include <QString>
#include <QStringList>
#include <QTabWidget>
#include <QVariant>
#include <QVector>

namespace Tessark::PropertyHost {

/**
 * A row of a PropertyList in the making: each call says one thing about it and can be chained.
 *
 *     list.number("gain", "Gain").range(0, 10).suffix(" dB").defaultValue(1);
 *
 * It is a plain handle to the property, which belongs to the list; copies speak of the same row,
 * and it must not be used longer than the list. Which types read a hint stands beside it;
 * PropertyList::validate() tells what was said to the wrong row.
 */
class TESSARK_PROPERTYHOST_EXPORT PropertyRow
{
public:
    explicit PropertyRow(PropertyUI::Property &property);

    PropertyUI::Property &property() const;

    /// The range of sliders and fields; typed in values may go up to hardMax, which is max if it is
    /// not given. Numbers, or vectors for vector rows.
    PropertyRow &range(const QVariant &min, const QVariant &max);
    PropertyRow &range(const QVariant &min, const QVariant &max, const QVariant &hardMax);

    /// The value to start with, which "Set to Default" restores.
    PropertyRow &defaultValue(const QVariant &value);

    /// Any hint, also one of the host's own.
    PropertyRow &hint(const QString &key, const QVariant &value);

    // Any row.
    PropertyRow &fullWidth(bool fullWidth = true);
    PropertyRow &font(const QFont &font);
    PropertyRow &size(const QSize &size);
    PropertyRow &styleSheet(const QString &styleSheet);

    /// What the row is for, in plain text; PropertyPanelView shows it. Any row.
    PropertyRow &help(const QString &text);

    // Any row; RuleEngine applies them. Conditions of several calls must all hold. What the
    // language of rules can say stands in docs/rules.md.
    PropertyRow &visibleWhen(const QString &condition);
    PropertyRow &enabledWhen(const QString &condition);

    // Rows with a range; RuleEngine applies them.
    PropertyRow &minimumFollows(const QString &expression);
    PropertyRow &maximumFollows(const QString &expression);

    // "bool", "string" and "int".
    PropertyRow &enabled(bool enabled);

    // "bool".
    PropertyRow &hideLabel(bool hide = true);

    // "static_text" and "image".
    PropertyRow &alignment(Qt::Alignment alignment);

    // "filename".
    PropertyRow &nativeDialogs(bool native = true);

    // The row that begins a tab group.
    PropertyRow &tabPosition(QTabWidget::TabPosition position);

    // "int/enum": the choices one by one, each with the value that stands for it, or all texts at
    // once, whose indexes are the values then.
    PropertyRow &choice(const QVariant &value, const QString &text);
    PropertyRow &choices(const QStringList &texts);
    PropertyRow &radioButtons();

    // "float".
    PropertyRow &suffix(const QString &suffix);
    PropertyRow &decimals(int decimals);
    PropertyRow &displayScale(double shownPerStored);
    PropertyRow &logarithmicSlider(bool logarithmic = true);

    // Vectors.
    PropertyRow &showSliders(bool show = true);
    PropertyRow &showMultipleCheck(bool show = true);

    // Sizes; fullSize() for "render_size" alone.
    PropertyRow &aspectRatio(const QSize &ratio);
    PropertyRow &fullSize(const QSize &size);

    // "transform2D".
    PropertyRow &noPosition(bool no = true);
    PropertyRow &noRotation(bool no = true);
    PropertyRow &noScale(bool no = true);
    PropertyRow &uniformScale(bool uniform = true);
    PropertyRow &collapsibleScale(bool collapsible = true);

    // "texture".
    PropertyRow &textures(const QVector<PropertyUI::TextureChoice> &textures);

    // For hosts and their editors; the library's own do not read them.
    PropertyRow &widget(const QString &widgetType);
    PropertyRow &foreground(const QColor &color);
    PropertyRow &background(const QColor &color);
    PropertyRow &orientation(Qt::Orientation orientation);
    PropertyRow &minimumSize(const QSize &size);
    PropertyRow &maximumSize(const QSize &size);
    PropertyRow &preferencesKey(const QString &key);

private:
    PropertyRow &addCondition(const QString &key, const QString &condition);

    PropertyUI::Property *m_property;
};

} // namespace Tessark::PropertyHost
