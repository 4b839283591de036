#include "host/PanelLook.h"

#include "host/ColorContrast_p.h"
#include "host/PanelStyle.h"

#include <QApplication>
#include <QStyleFactory>
#include <QToolTip>

#include <algorithm>

namespace Tessark::PropertyHost {

namespace {

constexpr double kReadable = 4.5;
constexpr double kReadableHighContrast = 7;
constexpr double kVisible = 3; // what is disabled, and lines

// Where black and white go when a palette is turned round. Neither is reached: the one would leave no
// room for shadows, the other would dazzle.
constexpr double kDarkest = 0.12;
constexpr double kBrightest = 0.92;

constexpr double kFaded = 0.5;       // of the way from a text to its background
constexpr double kPlaceholder = 0.4; // the same

constexpr QPalette::ColorGroup kColorGroups[] = {QPalette::Active, QPalette::Inactive,
                                                 QPalette::Disabled};

struct TextRole
{
    QPalette::ColorRole text;
    QPalette::ColorRole background;
};

constexpr TextRole kTextRoles[] = {
    {QPalette::WindowText, QPalette::Window}, {QPalette::Text, QPalette::Base},
    {QPalette::ButtonText, QPalette::Button}, {QPalette::ToolTipText, QPalette::ToolTipBase},
    {QPalette::Link, QPalette::Window},       {QPalette::LinkVisited, QPalette::Window},
};

bool hasDarkWindow(const QPalette &palette)
{
    return isDark(palette.color(QPalette::Window));
}

/// The same hue, as bright as the other colour is dark.
QColor turnedRound(const QColor &color, bool toDark)
{
    const double brightness = double(color.toHsl().lightnessF());
    const double range = kBrightest - kDarkest;
    const double turned =
        toDark ? kBrightest - brightness * range : (kBrightest - brightness) / range;
    // Not the lightness of the colour in HSL: that would make a faint yellow a loud one.
    const int shift = qRound((turned - brightness) * 255);
    const auto shifted = [shift](int part) { return std::clamp(part + shift, 0, 255); };
    return {shifted(color.red()), shifted(color.green()), shifted(color.blue())};
}

/// Edges are lit from above in bright palettes and in dark ones.
void lightEdges(QPalette &palette, QPalette::ColorGroup group)
{
    const QColor button = palette.color(group, QPalette::Button);
    palette.setColor(group, QPalette::Light, button.lighter(130));
    palette.setColor(group, QPalette::Midlight, button.lighter(115));
    palette.setColor(group, QPalette::Dark, button.darker(150));
    palette.setColor(group, QPalette::Shadow, button.darker(300));
}

bool isTurned(QPalette::ColorRole role)
{
    return role != QPalette::Highlight && role != QPalette::HighlightedText
           && role != QPalette::BrightText;
}

/// All roles in all groups as the palette has them, or turned round.
QPalette surfaces(const QPalette &system, bool dark)
{
    const bool turns = hasDarkWindow(system) != dark;
    QPalette palette = system;
    for (const auto group : kColorGroups) {
        for (int i = 0; i <= QPalette::PlaceholderText; ++i) {
            const auto role = static_cast<QPalette::ColorRole>(i);
            const QColor color = system.color(group, role);
            if (role != QPalette::NoRole)
                palette.setColor(group, role,
                                 turns && isTurned(role) ? turnedRound(color, dark) : color);
        }
        if (turns)
            lightEdges(palette, group);
    }
    return palette;
}

void makeReadable(QPalette &palette, QPalette::ColorGroup group)
{
    const bool isDisabled = group == QPalette::Disabled;
    const double contrast = isDisabled ? kVisible : kReadable;
    for (const auto &[text, background] : kTextRoles) {
        const QColor surface = palette.color(group, background);
        // A disabled text is told from others whatever the system's palette makes of it.
        const QColor color = isDisabled
                                 ? between(palette.color(QPalette::Active, text), surface, kFaded)
                                 : palette.color(group, text);
        palette.setColor(group, text, apartFrom(surface, color, contrast));
    }
}

/// What stands on more than one surface, or is a surface for one text only.
void makeRestReadable(QPalette &palette, QPalette::ColorGroup group)
{
    const double contrast = group == QPalette::Disabled ? kVisible : kReadable;
    const auto color = [&palette, group](QPalette::ColorRole role) {
        return palette.color(group, role);
    };
    palette.setColor(group, QPalette::Text,
                     apartFrom(color(QPalette::AlternateBase), color(QPalette::Text), contrast));
    palette.setColor(group, QPalette::ButtonText,
                     apartFrom(color(QPalette::Window), color(QPalette::ButtonText), contrast));
    const QColor placeholder = between(color(QPalette::Text), color(QPalette::Base), kPlaceholder);
    palette.setColor(group, QPalette::PlaceholderText,
                     apartFrom(color(QPalette::Base), placeholder, contrast));
    palette.setColor(
        group, QPalette::Highlight,
        apartFrom(color(QPalette::HighlightedText), color(QPalette::Highlight), contrast));
    palette.setColor(group, QPalette::Mid,
                     apartFrom(color(QPalette::Window), color(QPalette::Mid), kVisible));
}

QPalette readablePalette(const QPalette &system, bool dark)
{
    QPalette palette = surfaces(system, dark);
    for (const auto group : kColorGroups) {
        makeReadable(palette, group);
        makeRestReadable(palette, group);
    }
    return palette;
}

bool isTextOrLine(QPalette::ColorRole role)
{
    switch (role) {
    case QPalette::Window:
    case QPalette::Base:
    case QPalette::AlternateBase:
    case QPalette::Button:
    case QPalette::ToolTipBase:
    case QPalette::Light:
    case QPalette::Midlight:
    case QPalette::HighlightedText:
        return false;
    default:
        return true;
    }
}

QPalette highContrastPalette(bool dark)
{
    const QColor surface = dark ? Qt::black : Qt::white;
    const QColor text = dark ? Qt::white : Qt::black;
    const QColor disabled = dark ? Qt::gray : Qt::darkGray;
    QPalette palette;
    for (const auto group : kColorGroups) {
        for (int i = 0; i <= QPalette::PlaceholderText; ++i) {
            const auto role = static_cast<QPalette::ColorRole>(i);
            if (role != QPalette::NoRole)
                palette.setColor(group, role,
                                 !isTextOrLine(role)           ? surface
                                 : group == QPalette::Disabled ? disabled
                                                               : text);
        }
        if (group != QPalette::Disabled)
            palette.setColor(
                group, QPalette::PlaceholderText,
                apartFrom(surface, between(text, surface, kPlaceholder), kReadableHighContrast));
    }
    return palette;
}

} // namespace

QPalette panelPalette(PanelLook look, const QPalette &system)
{
    switch (look) {
    case PanelLook::Light:
        return readablePalette(system, false);
    case PanelLook::Dark:
        return readablePalette(system, true);
    case PanelLook::HighContrast:
        return highContrastPalette(hasDarkWindow(system));
    case PanelLook::System:
        break;
    }
    return system;
}

void applyPanelLook(PanelLook look)
{
    const bool isSystem = look == PanelLook::System;
    QApplication::setStyle(
        new PanelStyle(isSystem ? nullptr : QStyleFactory::create(QStringLiteral("Fusion"))));
    QApplication::setPalette(QPalette()); // sets nothing, so the system's shows
    if (!isSystem)
        QApplication::setPalette(panelPalette(look));
    QToolTip::setPalette(QApplication::palette());
}

} // namespace Tessark::PropertyHost
