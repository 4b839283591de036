#include "core/Slider.h"

#include "core/ColorLink_p.h"
#include "core/KitAccessibility_p.h"
#include "core/QtCompat_p.h"
#include "core/RealPosition_p.h"

#include <QCursor>
#include <QLinearGradient>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QStyleOptionSlider>
#include <QStylePainter>

#include <algorithm>
#include <cmath>
#include <limits>

namespace Tessark::UI {

namespace {

constexpr int kFreshResolution = 1000;
constexpr int kFreshSingleStep = 10;
constexpr int kFreshPageStep = 100;
constexpr int kBarThickness = 8;
constexpr qreal kBarRadius = 4;
constexpr int kEdgeAlpha = 110;
constexpr qreal kDisabledOpacity = 0.35;

QRect handleRectAt(const QStyleOptionSlider &option, int position, const QWidget *widget)
{
    QStyleOptionSlider moved = option;
    moved.sliderPosition = position;
    return widget->style()->subControlRect(QStyle::CC_Slider, &moved, QStyle::SC_SliderHandle,
                                           widget);
}

QPointF centreOf(const QRect &rect)
{
    return QRectF(rect).center();
}

} // namespace

class Slider::LinearPosition final : public RealPosition
{
public:
    explicit LinearPosition(Slider *slider)
        : RealPosition(slider, LinearScale{0, 1})
        , m_slider(slider)
    {
    }

private:
    void emitValueChanged(double) override
    {
        Slider *const slider = m_slider; // the control's client may delete it, and with it this
        const QPointer<Slider> alive(slider);
        slider->reportEdit();
        if (alive)
            Q_EMIT slider->realValueChanged(slider->realValue());
    }

    void letGo() override { m_slider->endDrag(DragEnd::Cancelled); }

    Slider *const m_slider;
};

/// The way of the handle's centre along the groove, from the lowest to the highest position, in
/// either direction. Only one coordinate changes.
struct Slider::HandleTrack
{
    bool isHorizontal = true;
    QPointF first;
    QPointF last;

    qreal along(const QPointF &point) const { return isHorizontal ? point.x() : point.y(); }
    qreal length() const { return along(last) - along(first); }
    qreal at(double fraction) const { return along(first) + fraction * length(); }

    /// Which part of the way lies before a place, 0..1.
    double fractionAt(qreal place) const
    {
        return length() == 0 ? 0 : std::clamp((place - along(first)) / length(), 0.0, 1.0);
    }
};

Slider::Slider(Qt::Orientation orientation, QWidget *parent)
    : QSlider(orientation, parent)
    , m_position(std::make_unique<LinearPosition>(this))
    , m_resolution(kFreshResolution)
{
    installKitAccessibility();
    setRange(0, kFreshResolution);
    setSingleStep(kFreshSingleStep);
    setPageStep(kFreshPageStep);
}

Slider::~Slider() = default;

void Slider::setMinimum(double minimum)
{
    if (std::isfinite(minimum))
        setRealRange(minimum, std::max(minimum, realMaximum()));
}

void Slider::setMaximum(double maximum)
{
    if (std::isfinite(maximum))
        setRealRange(std::min(maximum, realMinimum()), maximum);
}

void Slider::setRealRange(double minimum, double maximum)
{
    if (!std::isfinite(minimum)) {
        setMaximum(maximum);
        return;
    }
    if (!std::isfinite(maximum)) {
        setMinimum(minimum);
        return;
    }
    const auto [low, high] = std::minmax(minimum, maximum);
    const LinearScale scale{low, high};
    m_resolution = resolution();
    reporting([this, scale] { m_position->setScale(scale, m_resolution); });
}

double Slider::realMinimum() const
{
    return m_position->minimum();
}

double Slider::realMaximum() const
{
    return m_position->maximum();
}

double Slider::realValue() const
{
    return m_position->value();
}

double Slider::realValueAt(int position) const
{
    return m_position->at(position);
}

int Slider::positionOf(double value) const
{
    return m_position->positionOf(value);
}

void Slider::setResolution(int positions)
{
    m_resolution = std::clamp(positions, 1, kMostPositions);
    m_position->setScale(m_position->scale(), m_resolution);
}

int Slider::resolution() const
{
    if (realMinimum() == realMaximum())
        return m_resolution; // one position, whatever it is
    const qint64 intervals = qint64(maximum()) - minimum();
    return int(std::min<qint64>(intervals, std::numeric_limits<int>::max()));
}

void Slider::setGradient(const QColor &first, const QColor &last)
{
    const bool same = first.isValid() == m_first.isValid() && first.rgba() == m_first.rgba()
                      && last.rgba() == m_last.rgba();
    if (same)
        return; // what a finer comparison would tell apart looks alike
    m_first = first;
    m_last = last;
    update();
}

void Slider::clearGradient()
{
    setGradient(QColor(), QColor());
}

bool Slider::isGradientVisible() const
{
    return m_gradientVisible;
}

void Slider::setGradientVisible(bool visible)
{
    m_gradientVisible = visible;
    update();
}

bool Slider::wheelNeedsFocus() const
{
    return m_position->wheelNeedsFocus();
}

void Slider::setWheelNeedsFocus(bool needsFocus)
{
    m_position->setWheelNeedsFocus(needsFocus);
}

bool Slider::event(QEvent *event)
{
    bool handled = false;
    reporting([&] { handled = m_position->takesEvent(event) || QSlider::event(event); });
    return handled;
}

void Slider::setRealValue(double value)
{
    reporting([&] { m_position->setValue(value); });
}

void Slider::sliderChange(SliderChange change)
{
    if (change == SliderRangeChange)
        m_position->noteRangeChange();
    else if (change == SliderValueChange)
        m_position->noteValueChange();
    QSlider::sliderChange(change);
    // Nobody else tells the control of an inherited setter under blocked signals.
    if (signalsBlocked() && m_reportingDepth == 0)
        reportEdit();
}

void Slider::changeEvent(QEvent *event)
{
    const QPointer<Slider> alive(this);
    if (event->type() == QEvent::EnabledChange && m_dragging && !isEnabled())
        endDrag(DragEnd::Kept);
    if (alive)
        QSlider::changeEvent(event);
}

void Slider::hideEvent(QHideEvent *event)
{
    const QPointer<Slider> alive(this);
    if (m_dragging)
        endDrag(DragEnd::Kept);
    if (alive)
        QSlider::hideEvent(event);
}

// The pointer is handled here from press to release: QSlider pages on a press beside the handle, and
// which buttons do else is the style's choice.

void Slider::mousePressEvent(QMouseEvent *event)
{
    const bool isLeftAlone =
        event->button() == Qt::LeftButton && event->buttons() == Qt::MouseButtons(Qt::LeftButton);
    event->setAccepted(isLeftAlone && minimum() != maximum());
    if (event->isAccepted())
        startDrag(UI::positionOf(*event));
}

void Slider::mouseMoveEvent(QMouseEvent *event)
{
    event->setAccepted(m_dragging);
    if (m_dragging)
        moveHandle(UI::positionOf(*event));
}

void Slider::mouseReleaseEvent(QMouseEvent *event)
{
    event->setAccepted(m_dragging && event->button() == Qt::LeftButton);
    if (event->isAccepted())
        endDrag(DragEnd::Kept);
}

void Slider::paintEvent(QPaintEvent *)
{
    QStylePainter painter(this);
    QStyleOptionSlider option = styleOption();
    const QRect handle = handleRectAt(option, option.sliderPosition, this);
    if (isSliderDown()) {
        option.activeSubControls = QStyle::SC_SliderHandle;
        option.state |= QStyle::State_Sunken;
    } else if (underMouse() && handle.contains(mapFromGlobal(QCursor::pos()))) {
        option.activeSubControls = QStyle::SC_SliderHandle;
    }
    if (!m_gradientVisible || !m_first.isValid()) {
        painter.drawComplexControl(QStyle::CC_Slider, option);
        return;
    }
    option.subControls &= ~(QStyle::SC_SliderGroove | QStyle::SC_SliderHandle);
    if (option.subControls != QStyle::SC_None || testAttribute(Qt::WA_StyleSheet))
        painter.drawComplexControl(QStyle::CC_Slider, option); // ticks, and a sheet's background
    paintGradient(&painter, option);
    option.subControls = QStyle::SC_SliderHandle;
    painter.setClipRect(handle); // that background again, not over the gradient
    painter.drawComplexControl(QStyle::CC_Slider, option);
}

void Slider::bind(ColorLink *link)
{
    m_link = link;
    m_reported = realValue();
}

void Slider::showFromControl(double value)
{
    if (value != realValue()) {
        const QSignalBlocker blocker(this);
        const QScopedValueRollback<int> depth(m_reportingDepth, m_reportingDepth + 1);
        m_position->setValue(value);
    }
    m_reported = realValue();
}

/// Runs a change and tells the control of it at the latest afterwards. The change may delete the
/// slider.
template <typename Change>
void Slider::reporting(Change change)
{
    if (!m_link) {
        change();
        return;
    }
    const QPointer<Slider> alive(this);
    ++m_reportingDepth;
    change();
    if (!alive)
        return;
    --m_reportingDepth;
    reportEdit();
}

void Slider::reportEdit()
{
    if (!m_link || m_reported == realValue())
        return;
    m_reported = realValue();
    m_link->channelEdited(this, m_reported);
}

void Slider::startDrag(const QPointF &pointer)
{
    const QPointer<Slider> alive(this);
    if (m_dragging) // the release went elsewhere
        endDrag(DragEnd::Kept);
    if (!alive)
        return;
    const QStyleOptionSlider option = styleOption();
    const HandleTrack track = handleTrack(option);
    const QRectF handle = handleRectAt(option, option.sliderPosition, this);
    const bool onHandle = handle.contains(pointer);
    const double fraction =
        (double(sliderPosition()) - minimum()) / (double(maximum()) - minimum());
    m_dragging = true;
    m_grabOffset = onHandle ? track.along(pointer) - track.at(fraction) : 0;
    setSliderDown(true);
    if (alive && m_dragging && m_link)
        m_link->interactionBegan(this);
    if (alive && m_dragging && !onHandle)
        moveHandle(pointer);
}

void Slider::moveHandle(const QPointF &pointer)
{
    const HandleTrack track = handleTrack(styleOption());
    const double fraction = track.fractionAt(track.along(pointer) - m_grabOffset);
    const double intervals = double(maximum()) - minimum();
    setSliderPosition(int(minimum() + std::round(fraction * intervals)));
}

/// The control hears of the last edit and of the end before sliderReleased().
void Slider::endDrag(DragEnd end)
{
    const QPointer<Slider> alive(this);
    const bool wasDragging = m_dragging;
    m_dragging = false;
    if (wasDragging && end == DragEnd::Kept)
        setValue(sliderPosition()); // they differ without tracking
    if (alive)
        reportEdit();
    if (alive && wasDragging && m_link)
        m_link->interactionEnded(this, end == DragEnd::Cancelled);
    if (alive)
        setSliderDown(false);
}

Slider::HandleTrack Slider::handleTrack(const QStyleOptionSlider &option) const
{
    return {option.orientation == Qt::Horizontal,
            centreOf(handleRectAt(option, option.minimum, this)),
            centreOf(handleRectAt(option, option.maximum, this))};
}

/// As QSlider paints itself at rest.
QStyleOptionSlider Slider::styleOption() const
{
    QStyleOptionSlider option;
    initStyleOption(&option);
    option.subControls = QStyle::SC_SliderGroove | QStyle::SC_SliderHandle;
    if (tickPosition() != NoTicks)
        option.subControls |= QStyle::SC_SliderTickmarks;
    option.activeSubControls = QStyle::SC_None;
    return option;
}

void Slider::paintGradient(QPainter *painter, const QStyleOptionSlider &option) const
{
    const HandleTrack track = handleTrack(option);
    const QRect groove =
        style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderGroove, this);
    const QPoint corner = (track.first - QPointF(kBarThickness, kBarThickness) / 2).toPoint();
    const QRect bar = track.isHorizontal
                          ? QRect(groove.left() + 1, corner.y(), groove.width() - 2, kBarThickness)
                          : QRect(corner.x(), groove.top() + 1, kBarThickness, groove.height() - 2);
    QLinearGradient gradient(track.first, track.last);
    gradient.setColorAt(0, m_first);
    gradient.setColorAt(1, m_last);
    QColor edge = option.palette.color(QPalette::WindowText);
    edge.setAlpha(kEdgeAlpha);

    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    if (isEnabled()) { // through a faded bar it would show
        // The edge is filled: stroking it costs more than all else here.
        painter->setBrush(edge);
        painter->drawRoundedRect(bar, kBarRadius, kBarRadius);
    }
    painter->setOpacity(isEnabled() ? 1 : kDisabledOpacity);
    painter->setBrush(gradient);
    painter->drawRoundedRect(bar.adjusted(1, 1, -1, -1), kBarRadius - 1, kBarRadius - 1);
    painter->setOpacity(1);
    painter->setRenderHint(QPainter::Antialiasing, false);
}

} // namespace Tessark::UI
