#include "fuzz/User.h"

#include "fuzz/FuzzInput.h"

#include <QAccessible>
#include <QApplication>
#include <QContextMenuEvent>
#include <QDialog>
#include <QDrag>
#include <QDropEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QUrl>
#include <QWheelEvent>

#include <qtestspontaneevent.h>

namespace Fuzz {

namespace {

struct Key
{
    int code;
    const char *text;
};

const Key kKeys[] = {
    {Qt::Key_Return, "\r"}, {Qt::Key_Enter, "\r"},   {Qt::Key_Tab, "\t"},   {Qt::Key_Backtab, ""},
    {Qt::Key_Up, ""},       {Qt::Key_Down, ""},      {Qt::Key_Left, ""},    {Qt::Key_Right, ""},
    {Qt::Key_PageUp, ""},   {Qt::Key_PageDown, ""},  {Qt::Key_Home, ""},    {Qt::Key_End, ""},
    {Qt::Key_Escape, ""},   {Qt::Key_Backspace, ""}, {Qt::Key_Delete, ""},  {Qt::Key_Space, " "},
    {Qt::Key_0, "0"},       {Qt::Key_1, "1"},        {Qt::Key_5, "5"},      {Qt::Key_9, "9"},
    {Qt::Key_Minus, "-"},   {Qt::Key_Plus, "+"},     {Qt::Key_Period, "."}, {Qt::Key_Comma, ","},
    {Qt::Key_E, "e"},       {Qt::Key_A, "a"},        {Qt::Key_C, "c"},      {Qt::Key_V, "v"},
    {Qt::Key_X, "x"},       {Qt::Key_Z, "z"},        {Qt::Key_F4, ""},      {Qt::Key_Menu, ""},
};

const Qt::KeyboardModifiers kModifiers[] = {
    Qt::NoModifier,
    Qt::NoModifier,
    Qt::NoModifier,
    Qt::ShiftModifier,
    Qt::ControlModifier,
    Qt::AltModifier,
    Qt::ControlModifier | Qt::ShiftModifier,
};

const Qt::MouseButton kButtons[] = {Qt::LeftButton, Qt::LeftButton, Qt::LeftButton, Qt::RightButton,
                                    Qt::MiddleButton};

/// As the window system sends it: Qt moves the focus on a click, and hands an ignored event on to the
/// parents, only then.
void send(QWidget *widget, QEvent &event)
{
    QSpontaneKeyEvent::setSpontaneous(&event);
    qApp->notify(widget, &event);
}

QPoint pointIn(const QWidget &widget, FuzzInput &input)
{
    // Some lie a little outside.
    const auto at = [&input](int size) { return (size + 8) * input.byte() / 255 - 4; };
    const int x = at(widget.width());
    return {x, at(widget.height())};
}

} // namespace

User::User(QWidget &window)
    : m_window(&window)
{
    QObject::connect(&m_waitsForAnswer, &QTimer::timeout, &m_waitsForAnswer,
                     [this] { closeOpen(); });
}

void User::act(FuzzInput &input)
{
    m_answer = input.byte();
    m_waitsForAnswer.start(0);
    switch (input.below(13)) {
    case 0:
    case 1:
    case 2:
        typeKey(input);
        break;
    case 3:
        pressMouse(input, QEvent::MouseButtonPress);
        break;
    case 4:
        moveMouse(input);
        break;
    case 5:
        releaseMouse();
        break;
    case 6:
        pressMouse(input, QEvent::MouseButtonPress);
        releaseMouse();
        break;
    case 7:
        pressMouse(input, QEvent::MouseButtonDblClick);
        releaseMouse();
        break;
    case 8:
        turnWheel(input);
        break;
    case 9:
        askForMenu(input);
        break;
    case 10:
        dropFile(input);
        break;
    case 11:
        moveFocus(input);
        break;
    default:
        useScreenReader(input);
    }
    m_waitsForAnswer.stop();
}

void User::wait()
{
    m_waitsForAnswer.stop();
    QApplication::processEvents();
    closeOpen();
}

void User::typeKey(FuzzInput &input)
{
    const Key &key = input.pick(kKeys);
    const Qt::KeyboardModifiers modifiers = input.pick(kModifiers);
    const QString text = modifiers & Qt::ControlModifier ? QString() : QString::fromUtf8(key.text);
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        // What was pressed may have moved the focus, and its release goes where that is now.
        if (QWidget *const receiver = keyReceiver()) {
            QKeyEvent event(type, key.code, modifiers, text);
            send(receiver, event);
        }
    }
}

QWidget *User::keyReceiver() const
{
    if (QWidget *const popup = QApplication::activePopupWidget())
        return popup;
    QWidget *const focused = QApplication::focusWidget();
    return focused ? focused : m_window.data();
}

void User::pressMouse(FuzzInput &input, QEvent::Type type)
{
    releaseMouse();
    m_pressed = anyWidget(input);
    if (!m_pressed)
        return;
    m_button = input.pick(kButtons);
    m_position = pointIn(*m_pressed, input);
    QMouseEvent event(type, m_position, m_pressed->mapToGlobal(m_position), m_button, m_button,
                      input.pick(kModifiers));
    send(m_pressed, event);
}

void User::moveMouse(FuzzInput &input)
{
    const bool isDrag = !m_pressed.isNull();
    const QPointer<QWidget> receiver = isDrag ? m_pressed.data() : anyWidget(input);
    if (!receiver)
        return;
    m_position = pointIn(*receiver, input);
    QMouseEvent event(QEvent::MouseMove, m_position, receiver->mapToGlobal(m_position),
                      Qt::NoButton, isDrag ? m_button : Qt::NoButton, input.pick(kModifiers));
    send(receiver, event);
}

void User::releaseMouse()
{
    const QPointer<QWidget> receiver = m_pressed;
    m_pressed = nullptr;
    if (!receiver)
        return;
    QMouseEvent event(QEvent::MouseButtonRelease, m_position, receiver->mapToGlobal(m_position),
                      m_button, Qt::NoButton, Qt::NoModifier);
    send(receiver, event);
}

void User::turnWheel(FuzzInput &input)
{
    QWidget *const widget = anyWidget(input);
    if (!widget)
        return;
    const QPoint position = pointIn(*widget, input);
    const QPoint angle{input.oneIn(4) ? 120 : 0, (input.below(9) - 4) * 60};
    QWheelEvent event(position, widget->mapToGlobal(position), QPoint(), angle, Qt::NoButton,
                      input.pick(kModifiers), Qt::NoScrollPhase, false);
    send(widget, event);
}

void User::askForMenu(FuzzInput &input)
{
    QWidget *const widget = anyWidget(input);
    if (!widget)
        return;
    const QPoint position = pointIn(*widget, input);
    const auto reason = input.flip() ? QContextMenuEvent::Keyboard : QContextMenuEvent::Mouse;
    QContextMenuEvent event(reason, position, widget->mapToGlobal(position));
    send(widget, event);
}

void User::dropFile(FuzzInput &input)
{
    const QPointer<QWidget> widget = anyWidget(input);
    if (!widget)
        return;
    const QPoint position = pointIn(*widget, input);
    QMimeData mime;
    mime.setUrls({QUrl(QStringLiteral("file:///tmp/a b.png")), QUrl(input.text())});
    mime.setText(input.text());
    QDragEnterEvent enter(position, Qt::CopyAction | Qt::MoveAction, &mime, Qt::LeftButton,
                          Qt::NoModifier);
    send(widget, enter);
    if (!widget)
        return;
    if (input.oneIn(4)) {
        QDragLeaveEvent leave;
        send(widget, leave);
        return;
    }
    QDropEvent drop(position, Qt::CopyAction | Qt::MoveAction, &mime, Qt::LeftButton,
                    Qt::NoModifier);
    send(widget, drop);
}

void User::moveFocus(FuzzInput &input)
{
    static const Qt::FocusReason s_reasons[] = {Qt::TabFocusReason, Qt::MouseFocusReason,
                                                Qt::OtherFocusReason, Qt::ShortcutFocusReason};
    QWidget *const widget = anyWidget(input);
    if (!widget)
        return;
    const Qt::FocusReason reason = input.pick(s_reasons);
    if (input.oneIn(6))
        widget->clearFocus();
    else
        widget->setFocus(reason);
}

/// Asks what a screen reader asks, and sets a value as it may.
void User::useScreenReader(FuzzInput &input)
{
    QAccessibleInterface *const item = QAccessible::queryAccessibleInterface(anyWidget(input));
    if (!item)
        return;
    item->role();
    item->state();
    item->text(QAccessible::Name);
    item->text(QAccessible::Description);
    item->text(QAccessible::Value);
    item->childAt(item->rect().center().x(), item->rect().center().y());
    const int count = item->childCount();
    QAccessibleInterface *const child = count > 0 ? item->child(input.byte() % count) : nullptr;
    QAccessibleInterface *const asked = child ? child : item;
    asked->text(QAccessible::Name);
    QAccessibleValueInterface *const value = asked->valueInterface();
    if (value && value->minimumValue().toDouble() <= value->maximumValue().toDouble())
        value->setCurrentValue(input.number());
}

/// Answers a menu by one of its entries or by none, and everything else by closing it.
void User::closeOpen()
{
    QDrag::cancel();
    if (QWidget *const popup = QApplication::activePopupWidget()) {
        auto *const menu = qobject_cast<QMenu *>(popup);
        const bool answers = menu && !menu->actions().isEmpty() && m_answer % 2 == 1;
        const QPointer<QAction> action =
            answers ? menu->actions().at(m_answer / 2 % menu->actions().size()) : nullptr;
        popup->close();
        if (action)
            action->trigger();
    }
    if (QWidget *const dialog = QApplication::activeModalWidget())
        dialog->close();
}

QWidget *User::anyWidget(FuzzInput &input) const
{
    QWidget *const popup = QApplication::activePopupWidget();
    QWidget *const top = popup ? popup : m_window.data();
    if (!top)
        return nullptr;
    QVector<QWidget *> widgets{top};
    const auto children = top->findChildren<QWidget *>();
    for (QWidget *child : children) {
        if (child->isVisible())
            widgets.append(child);
    }
    return input.pickFrom(widgets);
}

} // namespace Fuzz
