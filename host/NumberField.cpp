#include "host/NumberField_p.h"

#include "host/NumberFieldAccess_p.h"
#include "host/NumberNames_p.h"
#include "host/NumberPreview_p.h"

#include <QCoreApplication>
#include <QDoubleSpinBox>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QValidator>
#include <QWindow>

#include <algorithm>
#include <utility>

namespace Tessark::PropertyHost {

using namespace PropertyUI;

namespace {

bool isConfirmation(int key)
{
    return key == Qt::Key_Return || key == Qt::Key_Enter;
}

bool isTab(int key)
{
    return key == Qt::Key_Tab || key == Qt::Key_Backtab;
}

bool isStep(int key)
{
    return key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp
           || key == Qt::Key_PageDown;
}

bool isSign(QChar letter)
{
    constexpr QChar kMinus(0x2212);
    return letter == QLatin1Char('+') || letter == QLatin1Char('-') || letter == kMinus;
}

/// Whether a plain number in the field's locale may have the letter somewhere.
bool isOfNumbers(QChar letter, const QLocale &locale)
{
    return letter.isDigit() || letter.isSpace() || letter == QLatin1Char('.')
           || letter == QLatin1Char(',') || QString(locale.decimalPoint()).contains(letter)
           || QString(locale.groupSeparator()).contains(letter);
}

bool isOfExpressions(QChar letter)
{
    // The last four are signs of multiplication and division.
    static const QString s_signs = QStringLiteral("+-*/^()%=;_`.,") + QChar(0x2212) + QChar(0x00D7)
                                   + QChar(0x00B7) + QChar(0x22C5) + QChar(0x00F7);
    return letter.isLetterOrNumber() || letter.isSpace() || s_signs.contains(letter);
}

/// Whether the event may be the first of some typing.
bool mayChangeText(QEvent *event)
{
    switch (event->type()) {
    case QEvent::KeyPress:
        return !static_cast<const QKeyEvent *>(event)->text().isEmpty();
    case QEvent::FocusIn:
    case QEvent::InputMethod:
    case QEvent::MouseButtonPress:
    case QEvent::DragEnter:
        return true;
    default:
        return false;
    }
}

} // namespace

class NumberField::Validator final : public QValidator
{
public:
    Validator(NumberField &field, const QValidator *numbers)
        : m_field(field)
        , m_numbers(numbers)
    {
    }

    /// A text that the field takes on its own gets its verdict, and is changed by it, as ever.
    State validate(QString &input, int &position) const override
    {
        QString text = input;
        int at = position;
        const State state = m_numbers ? m_numbers->validate(text, at) : Acceptable;
        const bool isNumber = isVerdict(state, text, input);
        if (!isNumber && !m_field.takes(input))
            return Invalid;
        m_field.follow(!isNumber);
        if (!isNumber)
            return Intermediate;
        input = text;
        position = at;
        return state;
    }

    void fixup(QString &input) const override
    {
        if (m_numbers)
            m_numbers->fixup(input);
    }

    bool isNumber(const QString &input, int position) const
    {
        QString text = input;
        const State state = m_numbers ? m_numbers->validate(text, position) : Acceptable;
        return isVerdict(state, text, input);
    }

    const QValidator *numbers() const { return m_numbers; }

private:
    /// Whether the other validator's verdict is about what was typed. It cuts decimals off, and so
    /// makes a number of an expression that begins with one.
    bool isVerdict(State state, const QString &text, const QString &input) const
    {
        return state != Invalid && (text == input || !m_field.isNoNumber(input));
    }

    NumberField &m_field;
    QPointer<const QValidator> m_numbers;
};

/// Sees presses of the mouse before they move the focus: while it moves, Qt works with the widget
/// that gets it, and the host could delete that in what a result tells it.
class NumberField::PressWatch final : public QObject
{
public:
    explicit PressWatch(NumberField &field)
        : m_field(field)
    {
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        // Other events come while the field is being destroyed, and but a widget.
        if (event->type() != QEvent::MouseButtonPress)
            return false;
        const QWidget *const spinBox = m_field.m_field.spinBox;
        if (!spinBox || watched != spinBox->window()->windowHandle())
            return false;
        const QPoint position = static_cast<const QMouseEvent *>(event)->pos();
        const QPointer<QObject> watchedAlive(watched);
        if (!spinBox->rect().contains(spinBox->mapFrom(spinBox->window(), position)))
            m_field.pressedElsewhere();
        return !watchedAlive;
    }

private:
    NumberField &m_field;
};

NumberField::NumberField(const PanelField &field, const NumberNames &names, QObject *parent)
    : QObject(parent)
    , m_field(field)
    , m_names(names)
    , m_lineEdit(field.spinBox->findChild<QLineEdit *>())
    , m_presses(std::make_unique<PressWatch>(*this))
{
    if (!m_lineEdit)
        return;
    m_validator = std::make_unique<Validator>(*this, m_lineEdit->validator());
    m_lineEdit->setValidator(m_validator.get());
    m_lineEdit->installEventFilter(this);
    field.spinBox->installEventFilter(this);
    // The field follows the text between these two.
    connect(m_lineEdit, &QLineEdit::textEdited, this, [this] { m_isEdited = true; });
    connect(m_lineEdit, &QLineEdit::textChanged, this, &NumberField::textChanged);
    connect(field.spinBox, &QObject::destroyed, this, [this] {
        m_field.spinBox.clear(); // it is but a widget now
        end();
    });
    if (const auto *const integer = qobject_cast<QSpinBox *>(field.spinBox))
        connect(integer, qOverload<int>(&QSpinBox::valueChanged), this,
                &NumberField::numberChanged);
    else if (const auto *const decimal = qobject_cast<QDoubleSpinBox *>(field.spinBox))
        connect(decimal, qOverload<double>(&QDoubleSpinBox::valueChanged), this,
                &NumberField::numberChanged);
}

NumberField::~NumberField()
{
    hidePreview();
    if (m_preview)
        m_preview->deleteLater(); // its owner is the panel
    if (m_isActive) {
        setActive(false);
        showNumber();
    }
    if (m_lineEdit && m_lineEdit->validator() == m_validator.get())
        m_lineEdit->setValidator(m_validator->numbers());
}

bool NumberField::eventFilter(QObject *watched, QEvent *event)
{
    const QPointer<NumberField> self(this);
    const QPointer<QObject> watchedAlive(watched);
    if (mayChangeText(event))
        noteHeld();
    // A field that is being deleted loses the focus when it is but a widget.
    const bool isField = self && watchedAlive && qobject_cast<QAbstractSpinBox *>(watched);
    const bool isHandled = isField && handleEvent(event);
    // An event must not travel on to a field that the host has deleted.
    return isHandled || !watchedAlive;
}

bool NumberField::canExpress(const QString &text) const
{
    const QString unit = suffixOf(*m_field.spinBox);
    return std::all_of(text.cbegin(), text.cend(), [&unit](QChar letter) {
        return isOfExpressions(letter) || unit.contains(letter);
    });
}

/// Whether the text has something that plain numbers of the field cannot have there.
bool NumberField::isNoNumber(const QString &text) const
{
    if (!m_field.spinBox || text == m_field.spinBox->specialValueText())
        return false;
    const QLocale locale = m_field.spinBox->locale();
    const QString typed = typedText(*m_field.spinBox, text);
    for (int i = 0; i < typed.size(); ++i) {
        const QChar letter = typed.at(i);
        if (!isOfNumbers(letter, locale) && !(i == 0 && isSign(letter)))
            return true;
    }
    return false;
}

/// What is left of an expression may be a number that the field refuses.
bool NumberField::takes(const QString &text) const
{
    return m_field.spinBox && (m_isActive || isNoNumber(text))
           && canExpress(typedText(*m_field.spinBox, text));
}

void NumberField::follow(bool isExpression)
{
    QAbstractSpinBox *const spinBox = m_field.spinBox;
    if (!spinBox)
        return;
    if (isExpression && spinBox->keyboardTracking()) {
        m_hasStoppedTracking = true;
        spinBox->setKeyboardTracking(false);
    } else if (!isExpression && std::exchange(m_hasStoppedTracking, false)) {
        spinBox->setKeyboardTracking(true);
    }
    // Unless the user is typing, the host has refreshed the field.
    if (!isExpression && m_isActive)
        QMetaObject::invokeMethod(this, &NumberField::restoreText, Qt::QueuedConnection);
}

void NumberField::textChanged()
{
    if (!std::exchange(m_isEdited, false) || !m_field.spinBox)
        return; // not by the user
    m_isTyping = true;
    m_typedNumber = numberOf(*m_field.spinBox);
    m_wasEdited = m_wasEdited || m_typedNumber != current();
    m_text = m_lineEdit->text();
    m_cursor = m_lineEdit->cursorPosition();
    setActive(!m_validator->isNumber(m_text, m_cursor));
    if (m_isActive)
        showResult();
    else
        hidePreview();
}

void NumberField::setActive(bool isActive)
{
    if (std::exchange(m_isActive, isActive) == isActive)
        return;
    if (isActive)
        QCoreApplication::instance()->installEventFilter(m_presses.get());
    else
        QCoreApplication::instance()->removeEventFilter(m_presses.get());
}

/// By other means than an expression: the arrows, or the host.
void NumberField::numberChanged()
{
    if (m_isActive)
        end();
}

void NumberField::restoreText()
{
    if (!m_isActive || !m_field.spinBox || !m_field.spinBox->hasFocus()
        || m_lineEdit->text() == m_text)
        return;
    if (numberOf(*m_field.spinBox) != m_typedNumber) {
        m_isTyping = false;
        const QPointer<NumberField> self(this);
        noteHeld();
        if (!self || !m_field.spinBox)
            return;
        m_isTyping = true;
        m_typedNumber = numberOf(*m_field.spinBox);
    }
    const int cursor = m_cursor;
    m_lineEdit->setText(m_text);
    m_lineEdit->setCursorPosition(cursor);
    showResult();
}

/// Before the typing begins.
void NumberField::noteHeld()
{
    if (!m_field.isAlive())
        return;
    const bool isKnown = m_isTyping && (m_isActive || numberOf(*m_field.spinBox) == m_typedNumber);
    if (isKnown)
        return;
    const QPointer<NumberField> self(this);
    const HeldValue held(m_field);
    if (!self)
        return;
    m_held = held;
    m_isTyping = false;
    m_wasEdited = false;
}

bool NumberField::handleEvent(QEvent *event)
{
    switch (event->type()) {
    case QEvent::ShortcutOverride:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
        return handleKey(static_cast<QKeyEvent *>(event));
    case QEvent::FocusOut:
        // A menu of the field leaves the user with it.
        if (static_cast<const QFocusEvent *>(event)->reason() != Qt::PopupFocusReason)
            leave();
        return false;
    default:
        return false;
    }
}

/// The field would do with its number what is meant for the expression: a confirmation that fails
/// would close the run, an arrow take the text away.
bool NumberField::handleKey(QKeyEvent *event)
{
    const QPointer<NumberField> self(this);
    const bool confirms = isConfirmation(event->key());
    if (!m_isActive && confirms && event->type() == QEvent::KeyPress)
        m_isTyping = false;
    if (m_isActive && isTab(event->key()) && event->type() == QEvent::KeyPress)
        leave(); // before the focus moves, as with the mouse
    const bool cancels = event->key() == Qt::Key_Escape;
    if (!self || !m_isActive || (!confirms && !cancels && !isStep(event->key())))
        return false;
    event->accept();
    if (event->type() == QEvent::KeyPress && confirms)
        confirm();
    else if (event->type() == QEvent::KeyPress && cancels)
        cancel();
    return true;
}

void NumberField::confirm()
{
    const NumberExpression expression = evaluate();
    const QPointer<QAbstractSpinBox> spinBox = m_field.spinBox;
    if (!expression.isValid()) {
        showPreview(expression.errorText());
        const auto start = m_text.indexOf(typedText(*spinBox, m_text));
        m_lineEdit->setCursorPosition(static_cast<int>(start) + expression.errorPosition());
        return;
    }
    commit(expression.value());
    if (spinBox)
        spinBox->selectAll(); // as Return does with a plain number
}

void NumberField::leave()
{
    m_isTyping = false;
    if (!m_isActive)
        return;
    const NumberExpression expression = evaluate();
    if (expression.isValid())
        commit(expression.value());
    else
        cancel();
}

/// Where the focus goes on with a mistake is not known yet: it may stay.
void NumberField::pressedElsewhere()
{
    const NumberExpression expression = evaluate();
    if (m_isActive && expression.isValid())
        commit(expression.value());
}

void NumberField::cancel()
{
    const std::optional<HeldValue> held = m_held;
    end();
    if (m_wasEdited && held)
        held->giveBack();
    else
        showNumber();
}

/// May be the end of this object.
void NumberField::commit(double number)
{
    end();
    setNumber(*m_field.spinBox, number);
}

void NumberField::end()
{
    setActive(false);
    m_isTyping = false;
    hidePreview();
}

/// Puts the field's number in the place of the text, silently.
void NumberField::showNumber()
{
    if (!m_field.spinBox)
        return;
    const QSignalBlocker blocker(m_field.spinBox);
    setNumber(*m_field.spinBox, numberOf(*m_field.spinBox));
}

NumberExpression NumberField::evaluate() const
{
    if (!m_field.spinBox)
        return NumberExpression(QString());
    NumberScope scope;
    scope.current = current();
    scope.unit = suffixOf(*m_field.spinBox).trimmed();
    scope.isPercentField = scope.unit == QLatin1String("%");
    scope.valueOf = [this](const QString &name) { return valueOf(name); };
    return NumberExpression(typedText(*m_field.spinBox, m_text), scope);
}

/// Of the own row what it held before the typing: its fields may follow one another.
std::optional<double> NumberField::valueOf(const QString &name) const
{
    const QAbstractSpinBox *const field = m_names.find(name, m_field.spinBox);
    if (!field)
        return std::nullopt;
    const std::optional<double> held = heldNumber(field);
    return held ? held : numberOf(*field);
}

std::optional<double> NumberField::heldNumber(const QAbstractSpinBox *spinBox) const
{
    return m_held ? m_held->number(spinBox) : std::nullopt;
}

double NumberField::current() const
{
    return heldNumber(m_field.spinBox).value_or(numberOf(*m_field.spinBox));
}

QString NumberField::resultText(double number) const
{
    const QString text = textOf(*m_field.spinBox, number);
    if (number > maximumOf(*m_field.spinBox))
        return tr("= %1 (largest)").arg(text);
    if (number < minimumOf(*m_field.spinBox))
        return tr("= %1 (smallest)").arg(text);
    return QStringLiteral("= %1").arg(text);
}

/// While the user types, what is only unfinished is no mistake.
void NumberField::showResult()
{
    const NumberExpression expression = evaluate();
    if (expression.isValid())
        showPreview(resultText(expression.value()));
    else
        showPreview(expression.isUnfinished() ? QStringLiteral("\u2026") : expression.errorText());
}

void NumberField::showPreview(const QString &text)
{
    if (!m_field.isAlive())
        return;
    if (!m_preview)
        m_preview = new NumberPreview(m_field.panel());
    if (m_preview->isHidden())
        m_description = m_field.spinBox->accessibleDescription();
    m_preview->showAt(*m_field.spinBox, text);
    m_field.spinBox->setAccessibleDescription(text);
}

void NumberField::hidePreview()
{
    if (!m_preview || m_preview->isHidden())
        return;
    m_preview->hide();
    if (m_field.spinBox)
        m_field.spinBox->setAccessibleDescription(m_description);
}

} // namespace Tessark::PropertyHost
