#include "robustness/Hand.h"
#include "robustness/NumberGestures.h"
#include "robustness/Subjects.h"

#include "property/editors/ImageFormatEditor.h"

#include <QComboBox>
#include <QRadioButton>
#include <QSize>

using namespace Tessark::PropertyUI;

namespace {

QVector<Impossible> impossibleForAll()
{
    return impossible(kNoKit, Road::KitSignal) + impossible(kNoClient, Road::KitClient)
           + impossible(kNoDialog, Occasion::Dialog);
}

Subject size(const QString &name, const QString &type)
{
    Subject subject =
        subjectOf(name, type, {QSize(200, 100), QSize(400, 200)}, [](Property &property) {
            property.setHint(kPropertyHintAspectRatio, QSize(2, 1));
        });
    subject.gestures = fieldGestures() + commonGestures();
    subject.impossible = impossibleForAll();
    return subject;
}

Gesture presets()
{
    return {QStringLiteral("presets"), Occasion::User, {kSet, kChanged}, [](Bench &bench) {
                const Hand::Target box = bench.control<QComboBox>().data();
                Hand::focus(box);
                Hand::key(box, Qt::Key_Down);
                Hand::wheel(box);
                Hand::key(box, Qt::Key_Down);
            }};
}

Subject presetSize()
{
    Subject subject = subjectOf(QStringLiteral("render size with presets"), kPropertyTypeRenderSize,
                                {QSize(300, 200), QSize(60, 40)}, [](Property &property) {
                                    property.setHint(kPropertyHintFullSize, QSize(1200, 800))
                                        .setHint(kPropertyHintAspectRatio, QSize(3, 2));
                                });
    subject.gestures = QVector<Gesture>{presets()} + commonGestures();
    return subject;
}

QVariant format(int rate)
{
    ImageFormatDesc desc;
    desc.format = QStringLiteral("jpeg");
    desc.compressionRate = rate;
    return QVariant::fromValue(desc);
}

bool isSameFormat(const QVariant &left, const QVariant &right)
{
    const auto a = left.value<ImageFormatDesc>();
    const auto b = right.value<ImageFormatDesc>();
    return a.format == b.format && a.compressionRate == b.compressionRate;
}

Gesture formatButtons()
{
    return {QStringLiteral("buttons"), Occasion::User, {kSet, kChanged}, [](Bench &bench) {
                const Hand::Target first = bench.control<QRadioButton>(0).data();
                const Hand::Target second = bench.control<QRadioButton>(1).data();
                if (first)
                    Hand::click(first, QPoint(8, first->height() / 2));
                if (second)
                    Hand::click(second, QPoint(8, second->height() / 2));
            }};
}

Subject imageFormat()
{
    Subject subject = subjectOf(QStringLiteral("image format"), kPropertyTypeImageFormat,
                                {format(50), format(80)});
    subject.isSame = isSameFormat;
    subject.gestures = QVector<Gesture>{formatButtons()} + numberGestures() + commonGestures();
    subject.impossible = impossibleForAll();
    return subject;
}

QVector<Subject> subjects()
{
    return {size(QStringLiteral("size"), kPropertyTypeSize),
            size(QStringLiteral("render size"), kPropertyTypeRenderSize), presetSize(),
            imageFormat()};
}

} // namespace

TESSARK_CALLBACK_MATRIX("sizes", subjects(), 1456)
