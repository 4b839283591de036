#include "testing/PanelDriver.h"

#include "testing/Choosing_p.h"
#include "testing/DriverScript_p.h"
#include "testing/EditRecorder.h"
#include "testing/PanelUser_p.h"
#include "testing/Spelling_p.h"
#include "testing/WheelDragging_p.h"

#include <property/PropertyVocabulary.h>

#include <QAbstractButton>

#include <algorithm>

namespace Tessark::PropertyTest {

using namespace PropertyUI;

namespace {

std::function<QString(QWidget *)> discDrag(double hue, double saturation, PanelUser::Aim aim,
                                           int movements)
{
    return [=](QWidget *field) {
        const UI::Hsv color{hue, saturation, 0};
        return dragWheel(field, {UI::WheelPart::Disc, color, aim}, movements);
    };
}

std::function<QString(QWidget *)> ringDrag(double value, PanelUser::Aim aim, int movements)
{
    return [=](QWidget *field) {
        const UI::Hsv color{0, 0, value};
        return dragWheel(field, {UI::WheelPart::ValueRing, color, aim}, movements);
    };
}

} // namespace

PanelDriver::PanelDriver(QWidget *widget)
    : m_user(std::make_unique<PanelUser>(widget))
{
}

PanelDriver::~PanelDriver() = default;

bool PanelDriver::isRevealing() const
{
    return m_user->isRevealing;
}

void PanelDriver::setRevealing(bool revealing)
{
    m_user->isRevealing = revealing;
}

int PanelDriver::dragSteps() const
{
    return m_user->dragSteps;
}

void PanelDriver::setDragSteps(int steps)
{
    m_user->dragSteps = std::max(1, steps);
}

EditRecorder *PanelDriver::recorder() const
{
    return qobject_cast<EditRecorder *>(m_recorder);
}

void PanelDriver::setRecorder(EditRecorder *recorder)
{
    m_recorder = recorder;
}

QStringList PanelDriver::rows()
{
    m_error.clear();
    const PropertyEditorPanel *const current = m_user->panel();
    if (!current)
        return {};
    const PanelMap map(*current);
    QStringList names;
    const QStringList rowNames = map.names();
    for (const QString &name : rowNames) {
        const QStringList parts = RowParts(*map.row(name)).names();
        if (parts.isEmpty())
            names.append(name);
        for (const QString &part : parts)
            names.append(name + QLatin1Char('.') + part);
    }
    return names;
}

bool PanelDriver::drag(const QString &row, double number)
{
    return finish("drag", row, m_user->drag(row, number, PanelUser::Aim::Exact));
}

bool PanelDriver::dragNear(const QString &row, double number)
{
    return finish("drag", row, m_user->drag(row, number, PanelUser::Aim::Nearest));
}

bool PanelDriver::dragWheel(const QString &row, double hue, double saturation)
{
    const auto act = discDrag(hue, saturation, PanelUser::Aim::Exact, dragSteps());
    return finish("drag wheel of", row, m_user->inRow(row, act));
}

bool PanelDriver::dragWheelNear(const QString &row, double hue, double saturation)
{
    const auto act = discDrag(hue, saturation, PanelUser::Aim::Nearest, dragSteps());
    return finish("drag wheel of", row, m_user->inRow(row, act));
}

bool PanelDriver::dragRing(const QString &row, double value)
{
    const auto act = ringDrag(value, PanelUser::Aim::Exact, dragSteps());
    return finish("drag ring of", row, m_user->inRow(row, act));
}

bool PanelDriver::dragRingNear(const QString &row, double value)
{
    const auto act = ringDrag(value, PanelUser::Aim::Nearest, dragSteps());
    return finish("drag ring of", row, m_user->inRow(row, act));
}

bool PanelDriver::type(const QString &row, const QString &text, Ending ending)
{
    return finish("type in", row, m_user->type(row, text, ending == WithReturn));
}

bool PanelDriver::step(const QString &row, int steps)
{
    return finish("step", row, m_user->step(row, steps));
}

bool PanelDriver::wheel(const QString &row, int notches)
{
    return finish("wheel", row, m_user->wheel(row, notches));
}

bool PanelDriver::choose(const QString &row, const QString &text)
{
    return finish("choose in", row, m_user->inRow(row, [&text](QWidget *field) {
        return PropertyTest::choose(field, text);
    }));
}

bool PanelDriver::check(const QString &row, bool checked)
{
    return finish(checked ? "check" : "uncheck", row, m_user->check(row, checked));
}

bool PanelDriver::press(const QString &row)
{
    return finish("press", row, m_user->press(row));
}

bool PanelDriver::setToDefault(const QString &row)
{
    return finish("default", row, m_user->inRow(row, [](QWidget *field) {
        return pickFromMenu(field, PropertyEditorPanel::tr("Set to Default"));
    }));
}

bool PanelDriver::open(const QString &group)
{
    return finish("open", group, m_user->fold(group, true));
}

bool PanelDriver::close(const QString &group)
{
    return finish("close", group, m_user->fold(group, false));
}

bool PanelDriver::showTab(const QString &tab)
{
    return finish("show tab", tab, m_user->showTab(tab));
}

QString PanelDriver::text(const QString &row)
{
    DriverTarget target;
    return finish("text of", row, m_user->find(row, &target)) ? target.parts().text(target.part)
                                                              : QString();
}

QVariant PanelDriver::value(const QString &row)
{
    DriverTarget target;
    return finish("value of", row, m_user->find(row, &target)) ? target.parts().value(target.part)
                                                               : QVariant();
}

bool PanelDriver::isVisible(const QString &row)
{
    DriverTarget target;
    if (!finish("visibility of", row, m_user->find(row, &target)))
        return false;
    const QWidget *const control = target.parts().control(target.part);
    return control && control->isVisible();
}

bool PanelDriver::isEnabled(const QString &row)
{
    DriverTarget target;
    if (!finish("state of", row, m_user->find(row, &target)))
        return false;
    const QWidget *const control = target.parts().control(target.part);
    return control && control->isEnabled();
}

bool PanelDriver::isOpen(const QString &group)
{
    DriverTarget target;
    if (!finish("state of", group, m_user->findMarker(kPropertyTypeBeginGroup, group, &target)))
        return false;
    const auto *const box = qobject_cast<QAbstractButton *>(target.row.field);
    return box && box->isChecked();
}

bool PanelDriver::perform(const QString &line)
{
    m_error = performLine(*this, line);
    return m_error.isEmpty();
}

bool PanelDriver::run(const QString &script)
{
    const QStringList lines = script.split(QLatin1Char('\n'));
    for (int i = 0; i < lines.size(); ++i) {
        if (!perform(lines.at(i))) {
            m_error = QStringLiteral("line %1: %2").arg(QString::number(i + 1), m_error);
            return false;
        }
    }
    return true;
}

bool PanelDriver::finish(const char *action, const QString &row, const QString &problem)
{
    m_error.clear();
    if (!problem.isEmpty())
        m_error =
            QStringLiteral("%1 %2: %3").arg(QString::fromLatin1(action), quoted(row), problem);
    return problem.isEmpty();
}

} // namespace Tessark::PropertyTest
