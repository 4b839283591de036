#include "core/ColorWheel.h"

#include "core/KitAccessibility_p.h"
#include "core/QtCompat_p.h"
#include "core/WheelDrag_p.h"
#include "core/WheelInteraction_p.h"
#include "core/WheelKeys_p.h"
#include "core/WheelView_p.h"

#include <QBasicTimer>
#include <QColor>
#include <QKeyEvent>
#include <QPainter>
#include <QTimerEvent>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

namespace Tessark::UI {

namespace {

using Kind = WheelInteraction::Kind;

constexpr int kHintSide = 160;
constexpr int kSmallestHintSide = 64;
constexpr double kNotch = 120; // of a mouse wheel, in its own units
constexpr double kValuePerNotch = 0.05;
constexpr int kBurstMilliseconds = 250;

/// The fraction clamped to 0..1; NaN gives the fallback.
double boundedFraction(double fraction, double fallback)
{
    return std::isnan(fraction) ? fallback : std::clamp(fraction, 0.0, 1.0);
}

} // namespace

/// What the pointer, the keys and the mouse wheel are doing.
struct ColorWheel::Input
{
    explicit Input(WheelView *view)
        : interaction(view)
    {
    }

    WheelInteraction interaction;
    std::optional<WheelDrag> drag;
    bool ownsPress = false;    // the left button went down on a part and is not yet up
    bool trackedMouse = false; // before the drag
    int heldKey = 0;
    QBasicTimer burstTimer;
};

ColorWheel::ColorWheel(QWidget *parent)
    : QWidget(parent)
    , m_view(std::make_unique<WheelView>(this))
    , m_input(std::make_unique<Input>(m_view.get()))
{
    installKitAccessibility();
    setFocusPolicy(Qt::StrongFocus);
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

ColorWheel::~ColorWheel() = default;

void ColorWheel::setDisplayMode(DisplayMode mode)
{
    const bool isKnown = mode == HueRingTriangle || mode == DiscAndValueRing;
    const DisplayMode known = isKnown ? mode : HueSaturationDisc;
    if (known == m_view->displayMode)
        return;
    m_view->displayMode = known;
    m_view->images.clear();
    update();
}

ColorWheel::DisplayMode ColorWheel::displayMode() const
{
    return DisplayMode(m_view->displayMode);
}

void ColorWheel::setInteractionMode(InteractionMode mode)
{
    m_view->isRelative = mode == Relative;
}

ColorWheel::InteractionMode ColorWheel::interactionMode() const
{
    return m_view->isRelative ? Relative : Absolute;
}

float ColorWheel::ringValue() const
{
    return float(m_view->hsv.value);
}

double ColorWheel::hue() const
{
    return m_view->hsv.hue;
}

double ColorWheel::saturation() const
{
    return m_view->hsv.saturation;
}

double ColorWheel::value() const
{
    return m_view->hsv.value;
}

QColor ColorWheel::color() const
{
    return colorOf(m_view->hsv);
}

bool ColorWheel::wheelNeedsFocus() const
{
    return m_view->wheelNeedsFocus;
}

void ColorWheel::setWheelNeedsFocus(bool needsFocus)
{
    m_view->wheelNeedsFocus = needsFocus;
}

QSize ColorWheel::sizeHint() const
{
    return QSize(kHintSide, kHintSide);
}

QSize ColorWheel::minimumSizeHint() const
{
    return QSize(kSmallestHintSide, kSmallestHintSide);
}

bool ColorWheel::hasHeightForWidth() const
{
    return true;
}

int ColorWheel::heightForWidth(int width) const
{
    return width;
}

void ColorWheel::setRingValue(float value)
{
    if (std::isnan(value))
        return;
    const Hsv &now = m_view->hsv;
    const double bounded = std::clamp(double(value), 0.0, 1.0);
    if (m_view->link)
        m_view->link->showRingValue(bounded);
    else if (!m_view->isUserChoice || !isEcho(bounded, now.value))
        showFromControl({now.hue, now.saturation, bounded});
}

void ColorWheel::setHsv(double hue, double saturation, double value)
{
    const Hsv &now = m_view->hsv;
    const Hsv wanted{std::isfinite(hue) ? wrappedHue(hue) : now.hue,
                     boundedFraction(saturation, now.saturation),
                     boundedFraction(value, now.value)};
    if (m_view->link)
        m_view->link->showHsv(wanted);
    else
        showFromControl(wanted);
}

bool ColorWheel::event(QEvent *event)
{
    switch (event->type()) {
    case QEvent::ShortcutOverride: // claimed here, Escape closes no dialog
        if (m_input->drag && static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape) {
            event->accept();
            return true;
        }
        break;
    case QEvent::UngrabMouse:
    case QEvent::WindowDeactivate:
        if (!endInteraction())
            return true;
        break;
    default:
        break;
    }
    return QWidget::event(event);
}

void ColorWheel::mousePressEvent(QMouseEvent *event)
{
    const QPointF point = positionOf(*event);
    const PointerKind pointer = isFromFinger(*event) ? PointerKind::Finger : PointerKind::Mouse;
    const WheelPart part = partAt(m_view->geometry(), point, pointer);
    if (event->button() != Qt::LeftButton || part == WheelPart::None) {
        event->ignore();
        return;
    }
    event->accept();
    m_input->ownsPress = true;
    if (endInteraction())
        beginDrag(part, point, event->modifiers());
}

void ColorWheel::mouseMoveEvent(QMouseEvent *event)
{
    if (!m_input->ownsPress) {
        event->ignore();
        return;
    }
    event->accept();
    if (!event->buttons().testFlag(Qt::LeftButton)) { // the release went elsewhere
        m_input->ownsPress = false;
        endInteraction();
    } else if (m_input->drag) {
        m_input->interaction.edit(m_input->drag->moveTo(m_view->geometry(), positionOf(*event),
                                                        m_view->hsv, event->modifiers()));
    }
}

void ColorWheel::mouseReleaseEvent(QMouseEvent *event)
{
    if (!m_input->ownsPress || event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    event->accept();
    m_input->ownsPress = false;
    if (m_input->drag)
        endInteraction();
}

void ColorWheel::wheelEvent(QWheelEvent *event)
{
    const int delta = event->angleDelta().y() * (event->inverted() ? -1 : 1);
    if (delta == 0 || (m_view->wheelNeedsFocus && !hasFocus())) {
        event->ignore();
        return;
    }
    event->accept();
    if (!m_input->drag)
        turnWheel(delta / kNotch);
}

void ColorWheel::keyPressEvent(QKeyEvent *event)
{
    if (m_input->drag && event->key() == Qt::Key_Escape) {
        event->accept();
        cancelDrag();
        return;
    }
    const std::optional<Hsv> wanted = colorAfterKey(event->key(), event->modifiers(), m_view->hsv);
    if (!wanted) {
        QWidget::keyPressEvent(event);
        return;
    }
    event->accept(); // also without a change, so that the focus does not wander
    if (m_input->drag || *wanted == m_view->hsv)
        return;
    if (m_input->interaction.kind() != Kind::Keys
        && (!endInteraction() || !m_input->interaction.begin(Kind::Keys)))
        return;
    m_input->heldKey = event->key();
    m_input->interaction.edit(*wanted);
}

void ColorWheel::keyReleaseEvent(QKeyEvent *event)
{
    const bool isHeld =
        m_input->interaction.kind() == Kind::Keys && event->key() == m_input->heldKey;
    if (!isHeld) {
        QWidget::keyReleaseEvent(event);
        return;
    }
    event->accept();
    if (!event->isAutoRepeat())
        endInteraction();
}

void ColorWheel::focusOutEvent(QFocusEvent *event)
{
    if (m_input->drag || endInteraction())
        QWidget::focusOutEvent(event);
}

void ColorWheel::hideEvent(QHideEvent *event)
{
    if (endInteraction())
        QWidget::hideEvent(event);
}

void ColorWheel::resizeEvent(QResizeEvent *event)
{
    m_view->images.clear();
    QWidget::resizeEvent(event);
}

void ColorWheel::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::EnabledChange && !isEnabled() && !endInteraction())
        return;
    QWidget::changeEvent(event);
}

void ColorWheel::timerEvent(QTimerEvent *event)
{
    if (event->timerId() == m_input->burstTimer.timerId())
        endInteraction();
    else
        QWidget::timerEvent(event);
}

void ColorWheel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    m_view->paint(&painter);
}

void ColorWheel::bind(ColorLink *link)
{
    m_view->link = link;
}

void ColorWheel::showFromControl(const Hsv &hsv)
{
    if (hsv == m_view->hsv)
        return;
    m_view->isUserChoice = false;
    m_view->show(hsv);
}

void ColorWheel::editAtOnce(const Hsv &hsv)
{
    if (hsv != m_view->hsv && endInteraction() && m_input->interaction.begin(Kind::Assistance)
        && m_input->interaction.edit(hsv))
        endInteraction();
}

void ColorWheel::beginDrag(WheelPart part, const QPointF &point, Qt::KeyboardModifiers modifiers)
{
    const DragStart start = m_view->isRelative ? DragStart::AtMarker : DragStart::AtPointer;
    m_input->drag.emplace(m_view->geometry(), part, point, m_view->hsv, start);
    m_input->trackedMouse = hasMouseTracking();
    setMouseTracking(true);
    if (m_input->interaction.begin(Kind::Drag) && !m_input->drag->holdsMarker())
        m_input->interaction.edit(
            m_input->drag->colorHere(m_view->geometry(), m_view->hsv, modifiers));
}

void ColorWheel::cancelDrag()
{
    leaveInput();
    m_input->interaction.cancel();
}

void ColorWheel::turnWheel(double notches)
{
    const Hsv &now = m_view->hsv;
    const Hsv wanted{now.hue, now.saturation,
                     std::clamp(now.value + notches * kValuePerNotch, 0.0, 1.0)};
    WheelInteraction &interaction = m_input->interaction;
    if (interaction.kind() != Kind::Burst
        && (wanted == now || !endInteraction() || !interaction.begin(Kind::Burst)))
        return;
    m_input->burstTimer.start(kBurstMilliseconds, this);
    interaction.edit(wanted);
}

/// Ends whatever the user is doing. False if the caller must not go on, as when the wheel is deleted.
bool ColorWheel::endInteraction()
{
    leaveInput();
    return m_input->interaction.end();
}

/// Forgets how the interaction under way goes on.
void ColorWheel::leaveInput()
{
    if (std::exchange(m_input->drag, std::nullopt))
        setMouseTracking(m_input->trackedMouse);
    m_input->heldKey = 0;
    m_input->burstTimer.stop();
}

} // namespace Tessark::UI
