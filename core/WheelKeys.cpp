#include "core/WheelKeys_p.h"

#include "core/WheelDrag_p.h"

#include <algorithm>
#include <cmath>

namespace Tessark::UI {

namespace {

enum class Channel { Hue, Saturation, Value };

struct KeyStep
{
    int key;
    Channel channel;
    double step;
    double largeStep; // with Control
    double smallStep; // with Shift
};

constexpr double kDegree = 1.0 / 360;

constexpr KeyStep kKeySteps[] = {
    {Qt::Key_Right, Channel::Hue, kDegree, 10 * kDegree, 0.1 * kDegree},
    {Qt::Key_Left, Channel::Hue, -kDegree, -10 * kDegree, -0.1 * kDegree},
    {Qt::Key_Up, Channel::Saturation, 0.01, 0.1, 0.001},
    {Qt::Key_Down, Channel::Saturation, -0.01, -0.1, -0.001},
    {Qt::Key_PageUp, Channel::Value, 0.05, 0.25, 0.005},
    {Qt::Key_PageDown, Channel::Value, -0.05, -0.25, -0.005},
    {Qt::Key_End, Channel::Value, 1, 1, 1},
    {Qt::Key_Home, Channel::Value, -1, -1, -1},
};

double stepOf(const KeyStep &key, Qt::KeyboardModifiers modifiers)
{
    if (modifiers.testFlag(Qt::ShiftModifier))
        return key.smallStep;
    return modifiers.testFlag(Qt::ControlModifier) ? key.largeStep : key.step;
}

/// Decimal steps do not add up to whole numbers: without this, 100 steps down from 1 end a hair above
/// 0, and one more step would be a change that nobody sees.
double withoutRest(double number)
{
    constexpr double kParts = 1e12;
    return std::round(number * kParts) / kParts;
}

double steppedFraction(double fraction, double step)
{
    return withoutRest(std::clamp(fraction + step, 0.0, 1.0));
}

Hsv stepped(const Hsv &now, Channel channel, double step)
{
    switch (channel) {
    case Channel::Hue:
        return brightenedChoice({wrappedHue(now.hue + step), now.saturation, now.value}, now);
    case Channel::Saturation:
        return brightenedChoice({now.hue, steppedFraction(now.saturation, step), now.value}, now);
    case Channel::Value:
        break;
    }
    return {now.hue, now.saturation, steppedFraction(now.value, step)};
}

} // namespace

std::optional<Hsv> colorAfterKey(int key, Qt::KeyboardModifiers modifiers, const Hsv &now)
{
    if (modifiers & (Qt::AltModifier | Qt::MetaModifier))
        return std::nullopt;
    for (const KeyStep &candidate : kKeySteps) {
        if (candidate.key == key)
            return stepped(now, candidate.channel, stepOf(candidate, modifiers));
    }
    return std::nullopt;
}

} // namespace Tessark::UI
