#include "Themes.h"

#include "PanelStyle.h"

#include <core/KitColors.h>

#include <QApplication>
#include <QStyleFactory>
#include <QToolTip>

namespace Tessark::PropertyPanel {

namespace {

struct RoleColor
{
    QPalette::ColorRole role;
    QRgb normal;
    QRgb disabled;
};

constexpr RoleColor kLightColors[] = {
    {QPalette::Window, 0xfff4f4f5, 0xfff4f4f5},
    {QPalette::WindowText, 0xff1f2328, 0xff9a9da1},
    {QPalette::Base, 0xffffffff, 0xfff0f0f1},
    {QPalette::AlternateBase, 0xfff7f7f8, 0xfff0f0f1},
    {QPalette::ToolTipBase, 0xfffffff0, 0xfffffff0},
    {QPalette::ToolTipText, 0xff1f2328, 0xff1f2328},
    {QPalette::PlaceholderText, 0xff7a7f86, 0xffb4b7bb},
    {QPalette::Text, 0xff1f2328, 0xff9a9da1},
    {QPalette::Button, 0xffececee, 0xfff0f0f1},
    {QPalette::ButtonText, 0xff1f2328, 0xff9a9da1},
    {QPalette::BrightText, 0xffffffff, 0xffffffff},
    {QPalette::Light, 0xffffffff, 0xffffffff},
    {QPalette::Midlight, 0xfff8f8f9, 0xfff8f8f9},
    {QPalette::Mid, 0xffb9bbbf, 0xffc9cbce},
    {QPalette::Dark, 0xff9b9ea3, 0xffb9bbbf},
    {QPalette::Shadow, 0xff6c6f74, 0xff9b9ea3},
    {QPalette::Highlight, Tessark::UI::kKitBlue, 0xffc4c7cb},
    {QPalette::HighlightedText, 0xffffffff, 0xff6c6f74},
    {QPalette::Link, 0xff1f5fae, 0xff9a9da1},
    {QPalette::LinkVisited, 0xff6a4a9c, 0xff9a9da1},
};

constexpr RoleColor kDarkColors[] = {
    {QPalette::Window, 0xff2b2d30, 0xff2b2d30},
    {QPalette::WindowText, 0xffe3e5e8, 0xff7d8187},
    {QPalette::Base, 0xff1f2123, 0xff292b2e},
    {QPalette::AlternateBase, 0xff25272a, 0xff292b2e},
    {QPalette::ToolTipBase, 0xff3c3f43, 0xff3c3f43},
    {QPalette::ToolTipText, 0xffe3e5e8, 0xffe3e5e8},
    {QPalette::PlaceholderText, 0xff8b8f95, 0xff63666b},
    {QPalette::Text, 0xffe3e5e8, 0xff7d8187},
    {QPalette::Button, 0xff303337, 0xff2d2f32},
    {QPalette::ButtonText, 0xffe3e5e8, 0xff7d8187},
    {QPalette::BrightText, 0xffffffff, 0xffffffff},
    {QPalette::Light, 0xff3a3d41, 0xff35383c},
    {QPalette::Midlight, 0xff34373b, 0xff313437},
    {QPalette::Mid, 0xff222427, 0xff25272a},
    {QPalette::Dark, 0xff1a1b1d, 0xff1f2123},
    {QPalette::Shadow, 0xff0f1011, 0xff17181a},
    {QPalette::Highlight, 0xff3f78bf, 0xff4b4e53},
    {QPalette::HighlightedText, 0xffffffff, 0xffa9adb3},
    {QPalette::Link, 0xff7fb2ee, 0xff7d8187},
    {QPalette::LinkVisited, 0xffb79ae0, 0xff7d8187},
};

template <std::size_t size>
QPalette paletteOf(const RoleColor (&colors)[size])
{
    QPalette palette;
    for (const RoleColor &color : colors) {
        palette.setColor(QPalette::Active, color.role, QColor(color.normal));
        palette.setColor(QPalette::Inactive, color.role, QColor(color.normal));
        palette.setColor(QPalette::Disabled, color.role, QColor(color.disabled));
    }
    return palette;
}

} // namespace

QPalette themePalette(Theme theme)
{
    switch (theme) {
    case Theme::Light:
        return paletteOf(kLightColors);
    case Theme::Dark:
        return paletteOf(kDarkColors);
    case Theme::System:
        break;
    }
    return QPalette();
}

void applyTheme(Theme theme)
{
    if (theme == Theme::System) {
        QApplication::setStyle(new PanelStyle(nullptr));
        return;
    }
    const QPalette palette = themePalette(theme);
    QApplication::setStyle(new PanelStyle(QStyleFactory::create(QStringLiteral("Fusion"))));
    QApplication::setPalette(palette);
    QToolTip::setPalette(palette);
}

} // namespace Tessark::PropertyPanel
