#include "testing/PanelUser_p.h"

#include "testing/Hand_p.h"
#include "testing/Reach_p.h"
#include "testing/SliderTrack_p.h"
#include "testing/Spelling_p.h"
#include "testing/ValueText_p.h"

#include <property/Property.h>

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QSlider>
#include <QTabBar>

#include <algorithm>
#include <cmath>

namespace Tessark::PropertyTest {

using namespace PropertyUI;

namespace {

QString noRow(const QString &name, const QStringList &rows)
{
    // Either the name has a dot, or what stands behind the dot is a part.
    const QString stem = name.left(name.lastIndexOf(QLatin1Char('.')));
    const bool isWhole = stem.isEmpty() || !nearest(name, rows).isEmpty();
    return QStringLiteral("There is no such row") + possibilities(isWhole ? name : stem, rows);
}

QString noPart(const DriverTarget &target, const QString &kind)
{
    const QStringList names = target.parts().names();
    return names.isEmpty() ? QStringLiteral("It has no %1").arg(kind)
                           : QStringLiteral("It has no %1 of that name").arg(kind)
                                 + possibilities(target.part, names);
}

QString clickOn(QAbstractButton *button)
{
    QString obstacle = reach(button);
    if (obstacle.isEmpty())
        click(button, clickPoint(button));
    return obstacle;
}

QString clickTab(QTabWidget *tabs, const QWidget *page)
{
    const QPoint at = tabs->tabBar()->tabRect(tabs->indexOf(const_cast<QWidget *>(page))).center();
    QString obstacle = reach(tabs->tabBar(), at);
    if (obstacle.isEmpty())
        click(tabs->tabBar(), at);
    return obstacle;
}

QString unfold(const Fold &fold)
{
    return fold.group ? clickOn(fold.group) : clickTab(fold.tabs, fold.page);
}

/// What of the field takes a click for writing.
QWidget *writtenPart(QWidget *field)
{
    if (auto *const text = qobject_cast<QPlainTextEdit *>(field))
        return text->viewport();
    auto *const line = field->findChild<QLineEdit *>(); // not the arrows beside it
    return line ? line : field;
}

/// Whether keys of the window go to field, be the window the active one or not.
bool isFocused(const QPointer<QWidget> &field)
{
    const QWidget *const focus = field ? field->window()->focusWidget() : nullptr;
    return focus && (focus == field || field->isAncestorOf(focus));
}

/// Which key goes on to the next number or choice.
int keyFor(const QWidget *control, int steps)
{
    if (qobject_cast<const QRadioButton *>(control)) {
        const bool isLeftToRight = control->layoutDirection() == Qt::LeftToRight;
        return isLeftToRight == (steps > 0) ? Qt::Key_Right : Qt::Key_Left;
    }
    const bool isNumber = qobject_cast<const QAbstractSpinBox *>(control)
                          || qobject_cast<const QAbstractSlider *>(control);
    return isNumber == (steps > 0) ? Qt::Key_Up : Qt::Key_Down; // lists are read downwards
}

} // namespace

PropertyEditorPanel *PanelUser::panel() const
{
    if (auto *const whole = qobject_cast<PropertyEditorPanel *>(m_widget))
        return whole;
    if (!m_widget)
        return nullptr;
    const auto panels = m_widget->findChildren<PropertyEditorPanel *>();
    const auto shown =
        std::find_if(panels.begin(), panels.end(),
                     [](const PropertyEditorPanel *panel) { return panel->isVisible(); });
    return shown == panels.end() ? panels.value(0) : *shown;
}

QString PanelUser::noPanel() const
{
    return m_widget ? QStringLiteral("There is no panel") : QStringLiteral("The window is gone");
}

QString PanelUser::find(const QString &name, DriverTarget *target) const
{
    target->panel = panel();
    if (!target->panel)
        return noPanel();
    const PanelMap map(*target->panel);
    if (const PanelRow *const row = map.row(name)) {
        target->row = *row;
        target->part.clear();
        return QString();
    }
    const int dot = int(name.lastIndexOf(QLatin1Char('.')));
    const PanelRow *const row = dot < 0 ? nullptr : map.row(name.left(dot));
    if (!row)
        return noRow(name, map.names());
    target->row = *row;
    target->part = name.mid(dot + 1);
    const RowParts parts = target->parts();
    const bool isThere = parts.control(target->part) || parts.value(target->part).isValid();
    return isThere ? QString() : noPart(*target, QStringLiteral("part"));
}

QString PanelUser::findMarker(const QString &type, const QString &title, DriverTarget *target) const
{
    target->panel = panel();
    if (!target->panel)
        return noPanel();
    const PanelMap map(*target->panel);
    const PanelRow *const row = map.row(type, title);
    if (!row) {
        const bool isTab = type == kPropertyTypeTab;
        return QStringLiteral("There is no such %1").arg(QLatin1String(isTab ? "tab" : "group"))
               + possibilities(title, map.titles(type));
    }
    target->row = *row;
    return QString();
}

/// Finds something and brings it into view. What the host does meanwhile may give it another panel.
template <typename Find>
QString PanelUser::reveal(Find find, DriverTarget *target) const
{
    for (int clicks = 0;; ++clicks) {
        settle();
        QString problem = find();
        if (!problem.isEmpty())
            return problem;
        const Fold *const closed = target->row.closedFold();
        if (!closed || !isRevealing || clicks > target->row.folds.size())
            return QString();
        QString obstacle = unfold(Fold(*closed));
        if (!obstacle.isEmpty())
            return QStringLiteral("What it lies in cannot be opened: %1").arg(obstacle);
    }
}

QString PanelUser::takeRow(const QString &name, DriverTarget *target) const
{
    return reveal([&] { return find(name, target); }, target);
}

QString PanelUser::takeMarker(const QString &type, const QString &title, DriverTarget *target) const
{
    return reveal([&] { return findMarker(type, title, target); }, target);
}

QString PanelUser::inRow(const QString &name, const std::function<QString(QWidget *)> &act) const
{
    DriverTarget target;
    QString problem = takeRow(name, &target);
    if (!problem.isEmpty())
        return problem;
    const QString failure = act(target.row.field);
    QString loss = lost(target);
    return loss.isEmpty() ? failure : loss;
}

/// What has gone by what the user did.
QString PanelUser::lost(const DriverTarget &target) const
{
    settle();
    if (!m_widget)
        return QStringLiteral("The window was deleted meanwhile");
    if (!target.panel)
        return QStringLiteral("The panel was deleted meanwhile");
    return target.row.field ? QString() : QStringLiteral("The row was deleted meanwhile");
}

QString PanelUser::drag(const QString &name, double number, Aim aim) const
{
    DriverTarget target;
    QString problem = takeRow(name, &target);
    if (!problem.isEmpty())
        return problem;
    const RowParts parts = target.parts();
    const NumberPart *const part = parts.number(target.part);
    if (!part || !part->slider)
        return noPart(target, QStringLiteral("slider"));
    const QSlider &slider = *part->slider;
    const SliderTrack track(slider);
    problem = reach(part->slider, track.handle());
    if (!problem.isEmpty())
        return problem;
    if (!track.isUsable())
        return QStringLiteral("Its slider has no room to move");
    const double wanted = part->positionOf(number);
    if (!(wanted >= slider.minimum() - 0.5 && wanted <= slider.maximum() + 0.5)) {
        return QStringLiteral("Its slider goes from %1 to %2")
            .arg(valueText(part->numberAt(slider.minimum())),
                 valueText(part->numberAt(slider.maximum())));
    }
    const int pixels = track.pixelsTo(int(std::lround(wanted)));
    const int position = track.positionAfter(pixels);
    if (aim == Aim::Exact && !part->isShownAs(position, number)) {
        return QStringLiteral("No pixel of its slider means %1; the nearest is %2")
            .arg(valueText(number), valueText(part->numberAt(position)));
    }
    return moveHandle(target, *part, position);
}

QString PanelUser::moveHandle(const DriverTarget &target, const NumberPart &part,
                              int position) const
{
    const SliderTrack track(*part.slider);
    const int pixels = track.pixelsTo(position);
    Pointer pointer(part.slider, track.handle());
    const QPoint start = pointer.position();
    pointer.moveTo(start);
    pointer.press();
    for (int i = 1; i <= dragSteps && pixels != 0; ++i) {
        const int moved = int(std::lround(double(pixels) * i / dragSteps));
        pointer.moveTo(start + track.handleAfter(moved) - track.handle());
    }
    pointer.release();
    QString problem = lost(target);
    if (!problem.isEmpty() || !part.slider || part.slider->value() == position)
        return problem;
    return QStringLiteral("It is %1 afterwards")
        .arg(valueText(part.numberAt(part.slider->value())));
}

QString PanelUser::type(const QString &name, const QString &text, bool withReturn) const
{
    DriverTarget target;
    QString problem = takeRow(name, &target);
    if (!problem.isEmpty())
        return problem;
    const QPointer<QWidget> field = target.parts().textField(target.part);
    if (!field)
        return noPart(target, QStringLiteral("field"));
    QWidget *const written = writtenPart(field);
    const QPoint at = written->visibleRegion().boundingRect().center();
    QString obstacle = reach(written, at);
    if (!obstacle.isEmpty())
        return obstacle;
    const bool hasLines = qobject_cast<QPlainTextEdit *>(field);
    const QPointer<QWindow> window = field->window()->windowHandle();
    click(written, at);
    if (!isFocused(field)) {
        QString loss = lost(target);
        return loss.isEmpty() ? QStringLiteral("It does not take the focus") : loss;
    }
    selectAllByKey(window);
    if (text.isEmpty())
        pressKey(window, Qt::Key_Delete);
    typeText(window, text);
    if (withReturn && !hasLines)
        typeText(window, QStringLiteral("\n"));
    return lost(target);
}

QString PanelUser::step(const QString &name, int steps) const
{
    DriverTarget target;
    QString problem = takeRow(name, &target);
    if (!problem.isEmpty())
        return problem;
    const QPointer<QWidget> control = target.parts().control(target.part);
    if (!control)
        return noPart(target, QStringLiteral("control"));
    QString obstacle = reach(control);
    if (!obstacle.isEmpty())
        return obstacle;
    // As Tab does it: a click would be an edit in some controls.
    const QPointer<QWindow> window = control->window()->windowHandle();
    control->setFocus(Qt::TabFocusReason);
    for (int i = 0; control && i < std::abs(steps); ++i)
        pressKey(window, keyFor(control, steps));
    return lost(target);
}

QString PanelUser::wheel(const QString &name, int notches) const
{
    DriverTarget target;
    QString problem = takeRow(name, &target);
    if (!problem.isEmpty())
        return problem;
    const RowParts parts = target.parts();
    const NumberPart *const part = parts.number(target.part);
    const QPointer<QWidget> control =
        part && part->slider ? part->slider.data() : parts.control(target.part);
    if (!control)
        return noPart(target, QStringLiteral("control"));
    QString obstacle = reach(control);
    if (!obstacle.isEmpty())
        return obstacle;
    for (int i = 0; control && i < std::abs(notches); ++i)
        turnWheel(control, control->rect().center(), notches > 0);
    return lost(target);
}

QString PanelUser::check(const QString &name, bool checked) const
{
    DriverTarget target;
    QString problem = takeRow(name, &target);
    if (!problem.isEmpty())
        return problem;
    const QPointer<QAbstractButton> box = target.parts().button(target.part);
    if (!box || !box->isCheckable())
        return noPart(target, QStringLiteral("box"));
    const auto isDone = [&] { return !box || box->isChecked() == checked; };
    if (isDone())
        return QString();
    QString obstacle = clickOn(box);
    if (!obstacle.isEmpty())
        return obstacle;
    QString loss = lost(target);
    if (!loss.isEmpty() || isDone())
        return loss;
    return QStringLiteral("It has gone back afterwards");
}

QString PanelUser::press(const QString &name) const
{
    DriverTarget target;
    QString problem = takeRow(name, &target);
    if (!problem.isEmpty())
        return problem;
    QAbstractButton *const button = target.parts().button(target.part);
    if (!button)
        return noPart(target, QStringLiteral("button"));
    QString obstacle = clickOn(button);
    return obstacle.isEmpty() ? lost(target) : obstacle;
}

QString PanelUser::fold(const QString &title, bool open) const
{
    DriverTarget target;
    QString problem = takeMarker(kPropertyTypeBeginGroup, title, &target);
    if (!problem.isEmpty())
        return problem;
    auto *const box = qobject_cast<QAbstractButton *>(target.row.field);
    if (!box || box->isChecked() == open)
        return box ? QString() : QStringLiteral("It has no button");
    QString obstacle = clickOn(box);
    return obstacle.isEmpty() ? lost(target) : obstacle;
}

QString PanelUser::showTab(const QString &title) const
{
    DriverTarget target;
    QString problem = takeMarker(kPropertyTypeTab, title, &target);
    if (!problem.isEmpty())
        return problem;
    const Fold page = target.row.page;
    if (!page.tabs || page.isOpen())
        return page.tabs ? QString() : QStringLiteral("It lies in no tabs");
    QString obstacle = clickTab(page.tabs, page.page);
    return obstacle.isEmpty() ? lost(target) : obstacle;
}

} // namespace Tessark::PropertyTest
