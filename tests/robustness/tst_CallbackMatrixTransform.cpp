#include "robustness/Hand.h"
#include "robustness/NumberGestures.h"
#include "robustness/Subjects.h"

#include "core/DisclosureButton.h"
#include "property/editors/Transform2DPropertyEditor.h"

#include <QAbstractSpinBox>

using namespace Tessark;
using namespace Tessark::PropertyUI;

namespace {

const QString kToggled = QStringLiteral("toggled");
constexpr int kScaleY = 4; // row

QVariant matrix(double offset, double scaleY)
{
    DoubleMatrix3x3 result;
    Transform2DPropertyEditor::XfrmToMatrix(offset, 0.25, 0, 2, scaleY, result);
    return QVariant::fromValue(result);
}

bool isSameMatrix(const QVariant &left, const QVariant &right)
{
    const auto a = left.value<DoubleMatrix3x3>();
    const auto b = right.value<DoubleMatrix3x3>();
    for (int i = 0; i < 9; ++i) {
        if (qAbs(a.constData()[i] - b.constData()[i]) > 1e-6)
            return false;
    }
    return true;
}

/// Folds the scales, which are unequal, while the field of the second has the focus.
Gesture toggle()
{
    return {QStringLiteral("toggle"),
            Occasion::User,
            {kSet, kChanged, kStarts, kEnds, kToggled},
            [](Bench &bench) {
                const Hand::Target field = bench.control<QAbstractSpinBox>(kScaleY).data();
                const Hand::Target button = bench.control<UI::DisclosureButton>().data();
                Hand::focus(field);
                Hand::key(field, Qt::Key_Up);
                Hand::click(button);
                Hand::click(button);
            }};
}

QVector<Subject> subjects()
{
    Subject subject = subjectOf(
        QStringLiteral("transform"), kPropertyTypeTransform2D, {matrix(0.25, 1), matrix(0.5, 3)},
        [](Property &property) { property.setHint(kPropertyHintXfrmCollapsibleScale, true); });
    const auto find = [](const Bench &bench) {
        return bench.control<UI::DisclosureButton>().data();
    };
    subject.isSame = isSameMatrix;
    subject.kitTaps = {kitTap(kToggled, find, &UI::DisclosureButton::toggled)};
    subject.gestures = numberGestures() + QVector<Gesture>{toggle()} + commonGestures();
    subject.impossible =
        impossible(kNoClient, Road::KitClient) + impossible(kNoDialog, Occasion::Dialog);
    return {subject};
}

} // namespace

TESSARK_CALLBACK_MATRIX("transform", subjects(), 728)
