#include "core/ColorControl.h"

#include "core/ColorLink_p.h"
#include "core/ColorMath_p.h"
#include "core/ColorWheel.h"
#include "core/Slider.h"

#include <QColor>
#include <QPointer>
#include <QVector>

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

namespace Tessark::UI {

namespace {

enum Channel : std::size_t { Red, Green, Blue, Alpha };

using Fractions = std::array<double, 4>; // by channel

struct ColorState
{
    Fractions fractions{0, 0, 0, 1};
    Hsv hsv;
};

/// A drag that goes on.
struct Interaction
{
    QWidget *source = nullptr; // compared only
    ColorState begin;
    double sourceValue = 0;   // of a slider, at the beginning
    bool isReturnable = true; // nothing but the source's edits came since the beginning
    bool clientTold = false;
};

struct BoundSlider
{
    QPointer<QWidget> widget;
    Channel channel;
};

bool operator==(const ColorState &left, const ColorState &right)
{
    return left.fractions == right.fractions && left.hsv == right.hsv;
}

double boundedFraction(float fraction)
{
    return std::isnan(fraction) ? 0 : std::clamp(double(fraction), 0.0, 1.0);
}

Rgb rgbIn(const Fractions &fractions)
{
    return {fractions[Red], fractions[Green], fractions[Blue]};
}

Fractions fractionsOf(const Rgb &rgb, double alpha)
{
    return {rgb.red, rgb.green, rgb.blue, alpha};
}

bool isEchoOf(const Fractions &reported, const Fractions &given)
{
    return std::equal(given.begin(), given.end(), reported.begin(), isEcho);
}

/// The colour with one channel set, and opaque unless that is the alpha.
QColor colorWith(Fractions fractions, Channel channel, double value)
{
    fractions[Alpha] = 1;
    fractions[channel] = std::clamp(value, 0.0, 1.0);
    return QColor::fromRgbF(float(fractions[Red]), float(fractions[Green]), float(fractions[Blue]),
                            float(fractions[Alpha]));
}

} // namespace

IColorControlClient::~IColorControlClient() = default;

/// The state of a control, and what its widgets report to.
class ColorControl::Link final : public ColorLink
{
public:
    Link(ColorControl *owner, IColorControlClient *firstClient)
        : client(firstClient)
        , m_owner(owner)
    {
    }

    void addWheel(ColorWheel *wheel);
    void addSlider(Slider *slider, Channel channel);

    const ColorState &state() const { return m_state; }
    bool isInteracting() const { return !m_interactions.isEmpty(); }
    void setFractions(const Fractions &fractions);
    void forgetToldClient();

    void interactionBegan(QWidget *source) override;
    void interactionEnded(QWidget *source, bool cancelled) override;
    void hsvEdited(ColorWheel *source, const Hsv &hsv) override;
    void channelEdited(Slider *source, double value) override;
    void showHsv(const Hsv &hsv) override;
    void showRingValue(double value) override;

    IColorControlClient *client;

private:
    bool canCallClient() const { return client && !m_owner->signalsBlocked(); }
    Interaction *interactionOf(const QWidget *source);
    const BoundSlider *boundSliderOf(const QWidget *widget) const;
    void edit(QWidget *source, ColorState wanted);
    void tellClient(const QWidget *source);
    void take(const ColorState &wanted, const QWidget *source);
    void showOn(const BoundSlider &bound, const QWidget *source);
    void closeInteraction(const QObject *source);
    void watch(QWidget *widget);
    void forget(const QObject *widget);

    ColorControl *const m_owner; // the owner of this object
    ColorState m_state;

    // What a slider adds its channel to: the fractions, but for echoes that came during an
    // interaction. If these counted, every step would start from colours rounded anew, and near grey
    // and black the hue would jump.
    Fractions m_base = m_state.fractions;

    std::optional<Fractions> m_reported; // by the user's last edit
    QVector<QPointer<QWidget>> m_wheels;
    QVector<BoundSlider> m_sliders;
    QVector<Interaction> m_interactions;
};

void ColorControl::Link::addWheel(ColorWheel *wheel)
{
    wheel->bind(this);
    wheel->showFromControl(m_state.hsv);
    m_wheels.append(wheel);
    watch(wheel);
}

void ColorControl::Link::addSlider(Slider *slider, Channel channel)
{
    slider->bind(this);
    m_sliders.append({slider, channel});
    showOn(m_sliders.last(), nullptr);
    watch(slider);
}

void ColorControl::Link::setFractions(const Fractions &fractions)
{
    const ColorState before = m_state;
    if (m_reported && isEchoOf(*m_reported, fractions)) {
        m_state.fractions = fractions;
        if (!isInteracting())
            m_base = fractions;
    } else {
        m_reported.reset();
        const ColorState wanted{fractions, hsvOf(rgbIn(fractions), before.hsv)};
        if (!(wanted == before))
            take(wanted, nullptr);
    }
    if (!(m_state == before))
        Q_EMIT m_owner->changed();
}

/// Another client was not told of the changes so far.
void ColorControl::Link::forgetToldClient()
{
    for (Interaction &interaction : m_interactions)
        interaction.clientTold = false;
}

void ColorControl::Link::interactionBegan(QWidget *source)
{
    if (interactionOf(source))
        return;
    Interaction interaction;
    interaction.source = source;
    interaction.begin = m_state;
    if (const auto *const slider = qobject_cast<Slider *>(source))
        interaction.sourceValue = slider->realValue();
    m_interactions.append(interaction);
    Q_EMIT m_owner->interactionStarted();
}

void ColorControl::Link::interactionEnded(QWidget *source, bool cancelled)
{
    const Interaction *const interaction = interactionOf(source);
    const QPointer<ColorControl> alive(m_owner);
    if (interaction && interaction->clientTold && !cancelled && canCallClient())
        client->colorCheckPoint();
    if (alive)
        closeInteraction(source);
}

void ColorControl::Link::hsvEdited(ColorWheel *source, const Hsv &hsv)
{
    const Interaction *const interaction = interactionOf(source);
    if (interaction && interaction->isReturnable && hsv == interaction->begin.hsv) {
        edit(source, interaction->begin);
        return;
    }
    ColorState wanted{m_state.fractions, hsv};
    if (rgbOf(hsv) != rgbOf(m_state.hsv)) // the hue of a grey, say, is no matter of the client's
        wanted.fractions = fractionsOf(rgbOf(hsv), m_base[Alpha]);
    edit(source, wanted);
}

void ColorControl::Link::channelEdited(Slider *source, double value)
{
    const BoundSlider *const bound = boundSliderOf(source);
    if (!bound)
        return;
    const Interaction *const interaction = interactionOf(source);
    if (interaction && interaction->isReturnable && value == interaction->sourceValue) {
        edit(source, interaction->begin); // with a hue that red, green and blue no longer tell
        return;
    }
    ColorState wanted{m_base, m_state.hsv};
    wanted.fractions[bound->channel] = std::clamp(value, 0.0, 1.0);
    if (bound->channel != Alpha)
        wanted.hsv = hsvOf(rgbIn(wanted.fractions), m_state.hsv);
    edit(source, wanted);
}

void ColorControl::Link::showHsv(const Hsv &hsv)
{
    if (hsv == m_state.hsv)
        return;
    m_reported.reset();
    take({fractionsOf(rgbOf(hsv), m_state.fractions[Alpha]), hsv}, nullptr);
    Q_EMIT m_owner->changed();
}

void ColorControl::Link::showRingValue(double value)
{
    if (m_reported && isEcho(value, m_state.hsv.value))
        return;
    showHsv({m_state.hsv.hue, m_state.hsv.saturation, value});
}

Interaction *ColorControl::Link::interactionOf(const QWidget *source)
{
    const auto found = std::find_if(m_interactions.begin(), m_interactions.end(),
                                    [source](const Interaction &i) { return i.source == source; });
    return found == m_interactions.end() ? nullptr : &*found;
}

const BoundSlider *ColorControl::Link::boundSliderOf(const QWidget *widget) const
{
    const auto found = std::find_if(m_sliders.begin(), m_sliders.end(),
                                    [widget](const BoundSlider &b) { return b.widget == widget; });
    return found == m_sliders.end() ? nullptr : &*found;
}

// cppcheck-suppress passedByValue ; a callback may end the interaction that holds it
void ColorControl::Link::edit(QWidget *source, const ColorState wanted)
{
    const ColorState before = m_state;
    take(wanted, source);
    m_reported = wanted.fractions;
    if (wanted == before)
        return;
    const QPointer<ColorControl> alive(m_owner);
    Q_EMIT m_owner->changed();
    if (alive && wanted.fractions != before.fractions)
        tellClient(source);
}

/// Tells of the colour of now: a slot of changed() may have set another one.
void ColorControl::Link::tellClient(const QWidget *source)
{
    if (!canCallClient())
        return;
    Interaction *const interaction = interactionOf(source);
    if (interaction)
        interaction->clientTold = true;
    const QPointer<ColorControl> alive(m_owner);
    IColorControlClient *const told = client;
    const Fractions &now = m_state.fractions;
    told->colorChanged(float(now[Red]), float(now[Green]), float(now[Blue]), float(now[Alpha]));
    if (!interaction && alive && client == told && canCallClient())
        told->colorCheckPoint();
}

/// Takes a state over and shows it. The source, null for none of the widgets, shows it already.
void ColorControl::Link::take(const ColorState &wanted, const QWidget *source)
{
    m_state = wanted;
    m_base = wanted.fractions;
    for (Interaction &interaction : m_interactions)
        interaction.isReturnable &= interaction.source == source;
    for (const BoundSlider &bound : std::as_const(m_sliders))
        showOn(bound, source);
    for (const QPointer<QWidget> &widget : std::as_const(m_wheels)) {
        auto *const wheel = qobject_cast<ColorWheel *>(widget);
        if (wheel && wheel != source)
            wheel->showFromControl(m_state.hsv);
    }
}

/// The gradient has the colours that a move of this slider gives.
void ColorControl::Link::showOn(const BoundSlider &bound, const QWidget *source)
{
    auto *const slider = qobject_cast<Slider *>(bound.widget); // null while it is being destroyed
    if (!slider)
        return;
    if (slider != source)
        slider->showFromControl(m_state.fractions[bound.channel]);
    slider->setGradient(colorWith(m_state.fractions, bound.channel, slider->realMinimum()),
                        colorWith(m_state.fractions, bound.channel, slider->realMaximum()));
}

void ColorControl::Link::closeInteraction(const QObject *source)
{
    const auto isOfSource = [source](const Interaction &i) { return i.source == source; };
    const auto end = std::remove_if(m_interactions.begin(), m_interactions.end(), isOfSource);
    if (end == m_interactions.end())
        return;
    m_interactions.erase(end, m_interactions.end());
    if (!isInteracting())
        m_base = m_state.fractions;
    Q_EMIT m_owner->interactionFinished();
}

void ColorControl::Link::watch(QWidget *widget)
{
    connect(widget, &QObject::destroyed, this, &Link::forget);
}

void ColorControl::Link::forget(const QObject *widget)
{
    const auto isGone = [widget](const auto &entry) { return entry.isNull() || entry == widget; };
    m_wheels.erase(std::remove_if(m_wheels.begin(), m_wheels.end(), isGone), m_wheels.end());
    m_sliders.erase(std::remove_if(m_sliders.begin(), m_sliders.end(),
                                   [&](const BoundSlider &bound) { return isGone(bound.widget); }),
                    m_sliders.end());
    closeInteraction(widget);
}

ColorControl::ColorControl(IColorControlClient *client, QObject *parent)
    : QObject(parent)
    , m_link(std::make_unique<Link>(this, client))
{
}

ColorControl::~ColorControl() = default;

ColorWheel *ColorControl::createColorWheel()
{
    auto *const wheel = new ColorWheel;
    m_link->addWheel(wheel);
    return wheel;
}

Slider *ColorControl::createRedSlider(Qt::Orientation orientation)
{
    auto *const slider = new Slider(orientation);
    slider->setAccessibleName(tr("Red"));
    m_link->addSlider(slider, Red);
    return slider;
}

Slider *ColorControl::createGreenSlider(Qt::Orientation orientation)
{
    auto *const slider = new Slider(orientation);
    slider->setAccessibleName(tr("Green"));
    m_link->addSlider(slider, Green);
    return slider;
}

Slider *ColorControl::createBlueSlider(Qt::Orientation orientation)
{
    auto *const slider = new Slider(orientation);
    slider->setAccessibleName(tr("Blue"));
    m_link->addSlider(slider, Blue);
    return slider;
}

Slider *ColorControl::createAlphaSlider(Qt::Orientation orientation)
{
    auto *const slider = new Slider(orientation);
    slider->setAccessibleName(tr("Alpha"));
    m_link->addSlider(slider, Alpha);
    return slider;
}

float ColorControl::red() const
{
    return float(m_link->state().fractions[Red]);
}

float ColorControl::green() const
{
    return float(m_link->state().fractions[Green]);
}

float ColorControl::blue() const
{
    return float(m_link->state().fractions[Blue]);
}

float ColorControl::alpha() const
{
    return float(m_link->state().fractions[Alpha]);
}

double ColorControl::hue() const
{
    return m_link->state().hsv.hue;
}

double ColorControl::saturation() const
{
    return m_link->state().hsv.saturation;
}

double ColorControl::value() const
{
    return m_link->state().hsv.value;
}

bool ColorControl::isInteracting() const
{
    return m_link->isInteracting();
}

IColorControlClient *ColorControl::client() const
{
    return m_link->client;
}

void ColorControl::setClient(IColorControlClient *client)
{
    if (client == m_link->client)
        return;
    m_link->client = client;
    m_link->forgetToldClient();
}

void ColorControl::setColorRGBA(float red, float green, float blue, float alpha)
{
    m_link->setFractions({boundedFraction(red), boundedFraction(green), boundedFraction(blue),
                          boundedFraction(alpha)});
}

} // namespace Tessark::UI
