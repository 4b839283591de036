#include "core/DisclosureButton.h"

#include "core/StyleSheetProbe_p.h"

#include <QEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionButton>

#include <cmath>
#include <optional>

namespace Tessark::UI {

namespace {

constexpr char kGroupProperty[] = "group";
constexpr int kSmallestSide = 16;
constexpr double kTriangleShare = 0.5; // side of the triangle by side of the button
constexpr double kPlateRadius = 3;

/// Opacities of the plate, which is a veil of the text colour: visible on every background.
constexpr double kPlateAtRest = 0.12;
constexpr double kPlateHovered = 0.20;
constexpr double kPlatePressed = 0.32;

/// An equilateral triangle in the middle of the rectangle. Real numbers keep the middle of an odd
/// number of pixels on half a pixel.
QPolygonF triangleIn(const QRectF &rect, bool open, bool rightToLeft)
{
    const double side = kTriangleShare * qMin(rect.width(), rect.height());
    const double half = side / 2;
    const double depth = side * std::sqrt(3.0) / 4; // half the height
    const QPointF middle = rect.center();
    if (open)
        return {{middle + QPointF(-half, -depth), middle + QPointF(half, -depth),
                 middle + QPointF(0, depth)}};
    const double forward = rightToLeft ? -depth : depth;
    return {{middle + QPointF(-forward, -half), middle + QPointF(forward, 0),
             middle + QPointF(-forward, half)}};
}

bool isFocusedByKey(const QStyleOption &option)
{
    return option.state.testFlag(QStyle::State_HasFocus)
           && option.state.testFlag(QStyle::State_KeyboardFocusChange);
}

QColor faded(QColor color, double opacity)
{
    color.setAlpha(qRound(color.alpha() * opacity));
    return color;
}

double plateOpacity(const QStyleOption &option)
{
    if (option.state.testFlag(QStyle::State_Sunken))
        return kPlatePressed;
    return option.state.testFlag(QStyle::State_MouseOver) ? kPlateHovered : kPlateAtRest;
}

void drawPlate(QPainter *painter, const QStyleOption &option, const QColor &color, bool round)
{
    QRectF rect = option.rect;
    painter->setPen(Qt::NoPen);
    if (isFocusedByKey(option)) {
        painter->setPen(option.palette.color(QPalette::Highlight));
        rect.adjust(0.5, 0.5, -0.5, -0.5);
    }
    painter->setBrush(faded(color, plateOpacity(option)));
    if (round) {
        const double radius = qMin(rect.width(), rect.height()) / 2;
        painter->drawEllipse(rect.center(), radius, radius);
    } else {
        painter->drawRoundedRect(rect, kPlateRadius, kPlateRadius);
    }
}

void drawIcon(QPainter *painter, const QStyleOptionButton &option, const QIcon &icon)
{
    QIcon::Mode mode = QIcon::Normal;
    if (!option.state.testFlag(QStyle::State_Enabled))
        mode = QIcon::Disabled;
    else if (option.state.testFlag(QStyle::State_MouseOver))
        mode = QIcon::Active;
    const QIcon::State state = option.state.testFlag(QStyle::State_On) ? QIcon::On : QIcon::Off;
    QRect rect(QPoint(), option.iconSize.boundedTo(option.rect.size()));
    rect.moveCenter(option.rect.center());
    icon.paint(painter, rect, Qt::AlignCenter, mode, state);
}

/// What the key asks a checkable button to become, if it is one of the button's own keys.
std::optional<bool> stateForKey(const QKeyEvent &event, bool rightToLeft)
{
    if (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier))
        return std::nullopt;
    switch (event.key()) {
    case Qt::Key_Right:
        return !rightToLeft;
    case Qt::Key_Left:
        return rightToLeft;
    case Qt::Key_Plus:
        return true;
    case Qt::Key_Minus:
        return false;
    default:
        return std::nullopt;
    }
}

/// A style sheet draws no triangles, but borders meet at a slant: in a box without content, one
/// coloured border between two invisible ones is a triangle, without an image and in any resolution.
/// The invisible colour is not "transparent", for which no room would be left at the slant. Margins
/// fill the indicator up to the side in every state. The last rules come in two spellings because
/// Qt 5 and Qt 6 turn the property's value into text differently.
constexpr char kDisclosureSheet[] = R"(
QCheckBox[disclosure="true"]::indicator {
    width: 0px;
    height: 0px;
    border-style: solid;
    border-color: rgba(255, 255, 255, 0);
}
QCheckBox[disclosure="true"]::indicator:checked {
    margin: %1px %2px %3px %2px;
    border-width: %4px %2px 0px %2px;
    border-top-color: %5;
}
QCheckBox[disclosure="true"]::indicator:checked:disabled {
    border-top-color: %6;
}
QCheckBox[disclosure="true"]::indicator:unchecked {
    margin: %2px %1px %2px %3px;
    border-width: %2px 0px %2px %4px;
    border-left-color: %5;
}
QCheckBox[disclosure="true"]::indicator:unchecked:disabled {
    border-left-color: %6;
}
QCheckBox[disclosure="true"][layoutDirection="1"]::indicator:unchecked,
QCheckBox[disclosure="true"][layoutDirection="RightToLeft"]::indicator:unchecked {
    margin: %2px %3px %2px %1px;
    border-width: %2px %4px %2px 0px;
    border-right-color: %5;
}
QCheckBox[disclosure="true"][layoutDirection="1"]::indicator:unchecked:disabled,
QCheckBox[disclosure="true"][layoutDirection="RightToLeft"]::indicator:unchecked:disabled {
    border-right-color: %6;
}
)";

QString disclosureSheet(int side, const QString &color, const QString &disabledColor)
{
    const int half = qMax(side, 4) / 4; // of the triangle's side, which is half of the indicator's
    const int height = 2 * half - 1;    // near enough
    const int rest = 4 * half - height;
    return QLatin1String(kDisclosureSheet)
        .arg(QString::number((rest + 1) / 2), QString::number(half), QString::number(rest / 2),
             QString::number(height), color, disabledColor);
}

} // namespace

DisclosureButton::DisclosureButton(QWidget *parent, bool flat)
    : QAbstractButton(parent)
    , m_flat(flat)
{
    setCheckable(true);
    setFocusPolicy(Qt::StrongFocus); // Tab and click
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setAttribute(Qt::WA_Hover);
    setAccessibleName(tr("Expand"));
}

DisclosureButton::~DisclosureButton() = default;

bool DisclosureButton::isFlat() const
{
    return m_flat;
}

void DisclosureButton::setFlat(bool flat)
{
    m_flat = flat;
    update();
}

QIcon DisclosureButton::openIcon() const
{
    return m_openIcon;
}

void DisclosureButton::setOpenIcon(const QIcon &icon)
{
    m_openIcon = icon;
    update();
}

QIcon DisclosureButton::closedIcon() const
{
    return m_closedIcon;
}

void DisclosureButton::setClosedIcon(const QIcon &icon)
{
    m_closedIcon = icon;
    update();
}

QSize DisclosureButton::sizeHint() const
{
    ensurePolished();
    const int indicator = style()->pixelMetric(QStyle::PM_IndicatorHeight, nullptr, this);
    const int side = qMax(kSmallestSide, indicator);
    return QSize(side, side);
}

QSize DisclosureButton::minimumSizeHint() const
{
    return sizeHint();
}

bool DisclosureButton::event(QEvent *event)
{
    if (event->type() == QEvent::DynamicPropertyChange
        && static_cast<QDynamicPropertyChangeEvent *>(event)->propertyName() == kGroupProperty) {
        repolish(this); // for rules with [group="round"]
        update();
    }
    return QAbstractButton::event(event);
}

void DisclosureButton::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LayoutDirectionChange)
        update();
    QAbstractButton::changeEvent(event);
}

void DisclosureButton::keyPressEvent(QKeyEvent *event)
{
    const std::optional<bool> wanted =
        isCheckable() ? stateForKey(*event, isRightToLeft()) : std::nullopt;
    if (!wanted) {
        QAbstractButton::keyPressEvent(event);
        return;
    }
    // The event stays accepted also without a change; Qt would move the focus with the arrow keys.
    if (isChecked() != *wanted)
        click();
}

void DisclosureButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QStyleOptionButton option;
    initStyleOption(&option);
    StyleSheetLook look{false, option.palette.color(QPalette::ButtonText)};
    if (testAttribute(Qt::WA_StyleSheet))
        look = styleSheetLook(this, option);

    style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, this);
    if (!look.drawsBackground && hasPlate(option))
        drawPlate(&painter, option, look.color, isRound());
    const QIcon &icon = isChecked() ? m_openIcon : m_closedIcon;
    if (!icon.isNull()) {
        drawIcon(&painter, option, icon);
    } else {
        drawDisclosureTriangle(&painter, option.rect, isChecked(), layoutDirection(), look.color);
    }
}

void DisclosureButton::initStyleOption(QStyleOptionButton *option) const
{
    option->initFrom(this);
    option->state |= isChecked() ? QStyle::State_On : QStyle::State_Off;
    option->state |= isDown() ? QStyle::State_Sunken : QStyle::State_Raised;
    option->features = m_flat ? QStyleOptionButton::Flat : QStyleOptionButton::None;
    option->iconSize = iconSize();
}

bool DisclosureButton::hasPlate(const QStyleOptionButton &option) const
{
    return !m_flat || isFocusedByKey(option)
           || (option.state & (QStyle::State_MouseOver | QStyle::State_Sunken));
}

bool DisclosureButton::isRound() const
{
    return property(kGroupProperty).toString() == QLatin1String("round");
}

void drawDisclosureTriangle(QPainter *painter, const QRectF &rect, bool open,
                            Qt::LayoutDirection direction, const QColor &color)
{
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->setBrush(color);
    painter->drawPolygon(triangleIn(rect, open, direction == Qt::RightToLeft));
    painter->restore();
}

QString disclosureStyleSheet()
{
    return disclosureSheet(16, QStringLiteral("palette(button-text)"),
                           QStringLiteral("palette(mid)"));
}

QString disclosureStyleSheet(int side, const QColor &color, const QColor &disabledColor)
{
    return disclosureSheet(side, color.name(), disabledColor.name());
}

} // namespace Tessark::UI
