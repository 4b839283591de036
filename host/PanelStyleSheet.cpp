#include "host/PanelStyleSheet.h"

#include <core/DisclosureButton.h>

#include <QApplication>
#include <QFontMetrics>
#include <QLineEdit>
#include <QPalette>
#include <QPushButton>
#include <QStyle>

#include <algorithm>

namespace Tessark::PropertyHost {

namespace {

struct Surface
{
    const char *selector;
    const char *disabledSelector;
    QPalette::ColorRole text;
    QPalette::ColorRole background;
};

// A widget with a style sheet inherits no palette, so the sheet has its colours.
constexpr Surface kSurfaces[] = {
    {"QWidget", "QWidget:disabled", QPalette::WindowText, QPalette::Window},
    {"QLineEdit, QAbstractSpinBox, QPlainTextEdit, QTextEdit, QAbstractItemView",
     "QLineEdit:disabled, QAbstractSpinBox:disabled, QPlainTextEdit:disabled, QTextEdit:disabled, "
     "QAbstractItemView:disabled",
     QPalette::Text, QPalette::Base},
    {"QPushButton, QToolButton, QComboBox",
     "QPushButton:disabled, QToolButton:disabled, QComboBox:disabled", QPalette::ButtonText,
     QPalette::Button},
    {"QToolTip", "QToolTip:disabled", QPalette::ToolTipText, QPalette::ToolTipBase},
};

constexpr char kSurfaceRule[] = R"(
%1 {
    color: %2;
    background-color: %3;
    selection-color: %4;
    selection-background-color: %5;
}
)";

// What is disabled has no rule where a border would take its arrows or its mark away.
constexpr char kShapes[] = R"(
QCheckBox[disclosure="true"] {
    font-weight: bold;
}
Tessark--UI--DisclosureButton {
    background-color: rgba(0, 0, 0, 0);
}
Tessark--UI--DisclosureButton[group="round"],
QPushButton[group="round"],
QToolButton[group="round"] {
    border: %1px solid %2;
    border-radius: %3px;
}
QPushButton[group="round"],
QToolButton[group="round"] {
    min-width: %4px;
    max-width: %4px;
    min-height: %4px;
    max-height: %4px;
}
Tessark--UI--DisclosureButton[group="round"]:hover,
QPushButton[group="round"]:hover,
QToolButton[group="round"]:hover {
    border-color: %5;
}
Tessark--UI--DisclosureButton[group="round"]:disabled,
QPushButton:disabled,
QToolButton:disabled,
QLineEdit:disabled,
QPlainTextEdit:disabled,
QTextEdit:disabled,
QListView:disabled {
    border: %1px dashed %6;
}
QLineEdit:disabled {
    padding: %7px 0px;
}
QPushButton:disabled {
    padding: %8px 0px;
}
)";

QString surfaceRule(const Surface &surface, const QPalette &palette, QPalette::ColorGroup group)
{
    const auto color = [&palette, group](QPalette::ColorRole role) {
        return palette.color(group, role).name();
    };
    return QLatin1String(kSurfaceRule)
        .arg(QLatin1String(group == QPalette::Disabled ? surface.disabledSelector
                                                       : surface.selector),
             color(surface.text), color(surface.background), color(QPalette::HighlightedText),
             color(QPalette::Highlight));
}

/// The side of the boxes that PanelStyle draws, rounded up to what a triangle can fill.
int indicatorSide()
{
    const int side = std::max(QApplication::style()->pixelMetric(QStyle::PM_IndicatorHeight),
                              QFontMetrics(QApplication::font()).ascent());
    return (side + 3) / 4 * 4;
}

/// What a border of the width takes from the height of a control at its upper and lower side, since
/// it takes the place of what the style would have drawn: rows must not move when they are disabled.
template <typename Control>
int lostPadding(int line)
{
    Control control;
    control.setText(QStringLiteral("x"));
    const int height = control.sizeHint().height();
    control.setStyleSheet(QStringLiteral("border: %1px dashed black").arg(line));
    return std::max(height - control.sizeHint().height(), 0) / 2;
}

} // namespace

QString panelStyleSheet(const QPalette &palette)
{
    const auto color = [&palette](QPalette::ColorRole role) {
        return palette.color(QPalette::Active, role).name();
    };
    const QColor disabled = palette.color(QPalette::Disabled, QPalette::WindowText);
    const int side = indicatorSide();
    const int line = QApplication::style()->pixelMetric(QStyle::PM_DefaultFrameWidth);
    QString sheet;
    for (const Surface &surface : kSurfaces)
        sheet += surfaceRule(surface, palette, QPalette::Active)
                 + surfaceRule(surface, palette, QPalette::Disabled);
    sheet += UI::disclosureStyleSheet(side, palette.color(QPalette::Active, QPalette::WindowText),
                                      disabled);
    return sheet
           + QLatin1String(kShapes).arg(QString::number(line), color(QPalette::Mid),
                                        QString::number(side / 2), QString::number(side - 2 * line),
                                        color(QPalette::Highlight), disabled.name(),
                                        QString::number(lostPadding<QLineEdit>(line)),
                                        QString::number(lostPadding<QPushButton>(line)));
}

} // namespace Tessark::PropertyHost
