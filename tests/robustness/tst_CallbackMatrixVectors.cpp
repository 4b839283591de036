#include "robustness/Hand.h"
#include "robustness/NumberGestures.h"
#include "robustness/Subjects.h"

#include "core/DisclosureButton.h"

#include <QAbstractSpinBox>
#include <QVector2D>
#include <QVector3D>
#include <QVector4D>

using namespace Tessark;
using namespace Tessark::PropertyUI;

namespace {

/// Folds the components while the second field has the focus, and unfolds them.
Gesture toggle()
{
    return {QStringLiteral("toggle"),
            Occasion::User,
            {kStarts, kEnds, QStringLiteral("toggled")},
            [](Bench &bench) {
                Hand::focus(bench.control<QAbstractSpinBox>(1).data());
                const Hand::Target button = bench.control<UI::DisclosureButton>().data();
                Hand::click(button);
                Hand::click(button);
            }};
}

Subject vector(const QString &type, const QVariant &first, const QVariant &second)
{
    Subject subject = subjectOf(type, type, {first, second}, [](Property &property) {
        property.setRange(0.0F, 1.0F)
            .setHint(kPropertyHintShowSliders, true)
            .setHint(kPropertyHintShowMultipleCheck, true);
    });
    const auto find = [](const Bench &bench) {
        return bench.control<UI::DisclosureButton>().data();
    };
    subject.kitTaps = {kitTap(QStringLiteral("toggled"), find, &UI::DisclosureButton::toggled)};
    subject.gestures = numberGestures() + QVector<Gesture>{toggle()} + commonGestures();
    subject.impossible =
        impossible(kNoClient, Road::KitClient) + impossible(kNoDialog, Occasion::Dialog);
    return subject;
}

QVector<Subject> subjects()
{
    return {vector(kPropertyTypeVec2, QVector2D(0.25F, 0.5F), QVector2D(0.75F, 0.5F)),
            vector(kPropertyTypeVec3, QVector3D(0.25F, 0.5F, 0.5F), QVector3D(0.75F, 0.5F, 0.25F)),
            vector(kPropertyTypeVec4, QVector4D(0.25F, 0.5F, 0.5F, 0),
                   QVector4D(0.75F, 0.5F, 0.25F, 0))};
}

} // namespace

TESSARK_CALLBACK_MATRIX("vectors", subjects(), 2028)
