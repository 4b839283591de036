#include "robustness/Hand.h"
#include "robustness/NumberGestures.h"
#include "robustness/Subjects.h"

#include "core/ColorControl.h"
#include "core/ColorWheel.h"
#include "core/Slider.h"

#include <QColor>

using namespace Tessark;
using namespace Tessark::PropertyUI;

namespace {

const QString kWheelStarts = QStringLiteral("startDragSignal");
const QString kWheelStops = QStringLiteral("stopDragSignal");
const QString kHsvEdited = QStringLiteral("hsvEdited");
const QString kControlChanged = QStringLiteral("changed");
const QString kControlStarts = QStringLiteral("interactionStarted");
const QString kControlFinishes = QStringLiteral("interactionFinished");
const QString kRealValue = QStringLiteral("realValueChanged");
const QString kClientColor = QStringLiteral("colorChanged");
const QString kClientCheckPoint = QStringLiteral("colorCheckPoint");

/// A client of the host's between the control and the editor.
class HostClient final : public UI::IColorControlClient
{
public:
    HostClient(UI::IColorControlClient *editor, std::function<void()> onColor,
               std::function<void()> onCheckPoint)
        : m_editor(editor)
        , m_onColor(std::move(onColor))
        , m_onCheckPoint(std::move(onCheckPoint))
    {
    }

    void colorChanged(float red, float green, float blue, float alpha) override
    {
        m_editor->colorChanged(red, green, blue, alpha);
        if (m_onColor)
            m_onColor();
    }

    void colorCheckPoint() override
    {
        m_editor->colorCheckPoint();
        if (m_onCheckPoint)
            m_onCheckPoint();
    }

private:
    UI::IColorControlClient *const m_editor;
    const std::function<void()> m_onColor;
    const std::function<void()> m_onCheckPoint;
};

UI::ColorControl *controlOf(const Bench &bench)
{
    return bench.editor()->findChild<UI::ColorControl *>();
}

UI::ColorWheel *wheelOf(const Bench &bench)
{
    return bench.control<UI::ColorWheel>();
}

Tap clientTap(const QString &name, bool atCheckPoint)
{
    return {Road::KitClient, name, [atCheckPoint](Bench &bench) {
                UI::ColorControl *const control = controlOf(bench);
                const auto callBack = [&bench] { bench.calledBack(); };
                const std::function<void()> never;
                const auto client =
                    atCheckPoint ? std::make_shared<HostClient>(control->client(), never, callBack)
                                 : std::make_shared<HostClient>(control->client(), callBack, never);
                bench.helper = client;
                control->setClient(client.get());
            }};
}

QVector<Tap> taps()
{
    const auto slider = [](const Bench &bench) { return bench.control<UI::Slider>().data(); };
    return {
        kitTap(kWheelStarts, wheelOf, &UI::ColorWheel::startDragSignal),
        kitTap(kWheelStops, wheelOf, &UI::ColorWheel::stopDragSignal),
        kitTap(kHsvEdited, wheelOf, &UI::ColorWheel::hsvEdited),
        kitTap(kControlChanged, controlOf, &UI::ColorControl::changed),
        kitTap(kControlStarts, controlOf, &UI::ColorControl::interactionStarted),
        kitTap(kControlFinishes, controlOf, &UI::ColorControl::interactionFinished),
        kitTap(kRealValue, slider, &UI::Slider::realValueChanged),
        clientTap(kClientColor, false),
        clientTap(kClientCheckPoint, true),
    };
}

const QStringList kWheelTaps{kSet,           kChanged,         kStarts,      kEnds,
                             kWheelStarts,   kWheelStops,      kHsvEdited,   kControlChanged,
                             kControlStarts, kControlFinishes, kClientColor, kClientCheckPoint};

const QStringList kSliderTaps{kSet,       kChanged,     kControlChanged,
                              kRealValue, kClientColor, kClientCheckPoint};

/// A drag that is over before the button is up, since the host switches the row off and on.
Gesture interruptedDrag(const QString &name, void (QWidget::*switchRow)(bool))
{
    return {name,
            Occasion::User,
            kWheelTaps,
            [switchRow](Bench &bench) {
                const Hand::Target wheel = wheelOf(bench);
                if (!wheel)
                    return;
                const QPoint at = wheel->rect().center() + QPoint(10, 5);
                Hand::press(wheel, at);
                Hand::move(wheel, at + QPoint(20, 20));
                for (const bool on : {false, true}) {
                    if (QWidget *const row = bench.widget())
                        (row->*switchRow)(on);
                }
                Hand::release(wheel, at);
            },
            {{QStringLiteral("deletes the widget"),
              QStringLiteral("Qt goes on with the row that was to be switched off")}}};
}

QVector<Gesture> wheelGestures()
{
    return {
        {QStringLiteral("drag on the wheel"), Occasion::User, kWheelTaps,
         [](Bench &bench) {
             const Hand::Target wheel = wheelOf(bench);
             if (!wheel)
                 return;
             QPoint at = wheel->rect().center() + QPoint(10, 5);
             Hand::press(wheel, at);
             for (const QPoint &step : {QPoint(9, 12), QPoint(5, -30), QPoint(-30, 0)}) {
                 at += step;
                 Hand::move(wheel, at);
             }
             Hand::release(wheel, at);
         }},
        {QStringLiteral("keys on the wheel"), Occasion::User, kWheelTaps,
         [](Bench &bench) {
             const Hand::Target wheel = wheelOf(bench);
             Hand::focus(wheel);
             Hand::key(wheel, Qt::Key_Left);
             Hand::keyDown(wheel, Qt::Key_PageDown);
             Hand::leave(wheel);
             Hand::keyUp(wheel, Qt::Key_PageDown);
         }},
        {QStringLiteral("burst of the mouse wheel"), Occasion::Timer, kWheelTaps,
         [](Bench &bench) {
             const Hand::Target wheel = wheelOf(bench);
             Hand::focus(wheel);
             Hand::wheel(wheel);
             Hand::wheel(wheel);
             Hand::wait(wheel);
             Hand::leave(wheel);
         }},
        interruptedDrag(QStringLiteral("the row is hidden in a drag"), &QWidget::setVisible),
        interruptedDrag(QStringLiteral("the row is disabled in a drag"), &QWidget::setEnabled),
    };
}

QVector<Gesture> channelGestures()
{
    QVector<Gesture> gestures = sliderGestures();
    gestures.removeLast(); // a press on the groove takes the handle there
    for (Gesture &gesture : gestures)
        gesture.taps = kSliderTaps;
    gestures.first().taps += QStringList{kStarts, kEnds, kControlStarts, kControlFinishes};
    return gestures;
}

QVector<Subject> subjects()
{
    Subject subject = subjectOf(QStringLiteral("color"), kPropertyTypeColor,
                                {QColor(200, 100, 50), QColor(50, 100, 200)});
    subject.kitTaps = taps();
    subject.gestures = wheelGestures() + channelGestures() + fieldGestures() + commonGestures();
    subject.impossible = impossible(kNoDialog, Occasion::Dialog);
    return {subject};
}

} // namespace

TESSARK_CALLBACK_MATRIX("color", subjects(), 2470)
