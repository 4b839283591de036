#include "robustness/NumberGestures.h"
#include "robustness/Subjects.h"

#include "core/LogSlider.h"

using namespace Tessark;
using namespace Tessark::PropertyUI;

namespace {

Subject numberOf(const QString &name, const QString &type, const QVector<QVariant> &values,
                 const std::function<void(Property &)> &settings)
{
    Subject subject = subjectOf(name, type, values, settings);
    subject.gestures = numberGestures() + commonGestures();
    subject.impossible =
        impossible(kNoClient, Road::KitClient) + impossible(kNoDialog, Occasion::Dialog);
    return subject;
}

Subject logarithmicFloat()
{
    Subject subject =
        numberOf(QStringLiteral("logarithmic float"), kPropertyTypeFloat, {2.0, 6.0},
                 [](Property &property) {
                     property.setRange(1.0, 1000.0).setHint(kPropertyHintLogarithmicSlider, true);
                 });
    const auto find = [](const Bench &bench) { return bench.control<UI::LogSlider>().data(); };
    const QString tap = QStringLiteral("realValueChanged");
    subject.kitTaps = {kitTap(tap, find, &UI::LogSlider::realValueChanged)};
    const int sliderGestureCount = int(sliderGestures().size());
    for (int i = 0; i < sliderGestureCount; ++i) // the others move it silently
        subject.gestures[i].taps.append(tap);
    return subject;
}

QVector<Subject> subjects()
{
    Subject integer = numberOf(QStringLiteral("int"), kPropertyTypeInteger, {200, 600},
                               [](Property &property) { property.setRange(0, 1000); });
    Subject percent = numberOf(QStringLiteral("percent"), kPropertyTypePercent, {0.25, 0.75},
                               [](Property &property) { property.setRange(0.0, 1.0); });
    integer.impossible += impossible(kNoKit, Road::KitSignal);
    percent.impossible += impossible(kNoKit, Road::KitSignal);
    return {integer,
            numberOf(QStringLiteral("float"), kPropertyTypeFloat, {2.0, 6.0},
                     [](Property &property) { property.setRange(0.0, 10.0); }),
            logarithmicFloat(), percent};
}

} // namespace

TESSARK_CALLBACK_MATRIX("numbers", subjects(), 2496)
