#include "host/MixedPainter_p.h"

#include "host/NumberFieldAccess_p.h"

#include <core/ColorWheel.h>

#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QSlider>
#include <QStyle>
#include <QStyleOption>
#include <QStylePainter>

#include <algorithm>

namespace Tessark::PropertyHost {

namespace {

constexpr QChar kDash(0x2014);
constexpr int kBarsPerIndicator = 6; // in its height

QColor textColor(const QWidget &widget)
{
    return widget.palette().color(QPalette::PlaceholderText);
}

/// In italics, so that it does not look like a value.
void drawText(QPainter &painter, const QWidget &widget, const QRect &area, const QString &text,
              Qt::Alignment alignment)
{
    QFont font = widget.font();
    font.setItalic(true);
    painter.setFont(font);
    painter.setPen(textColor(widget));
    const bool fits = QFontMetrics(font).horizontalAdvance(text) <= area.width();
    const auto placed = QStyle::visualAlignment(widget.layoutDirection(), alignment);
    painter.drawText(area, int(placed | Qt::AlignVCenter), fits ? text : QString(kDash));
}

bool paintComboBox(QComboBox *box)
{
    QStyleOptionComboBox option;
    option.initFrom(box);
    option.editable = false;
    option.frame = box->hasFrame();
    option.subControls = QStyle::SC_All;
    if (option.state & QStyle::State_MouseOver)
        option.activeSubControls = QStyle::SC_ComboBoxArrow;
    if (box->view()->isVisible())
        option.state |= QStyle::State_On;
    QStylePainter painter(box);
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    const QRect area = box->style()->subControlRect(QStyle::CC_ComboBox, &option,
                                                    QStyle::SC_ComboBoxEditField, box);
    drawText(painter, *box, area.adjusted(2, 0, -2, 0), MixedPainter::tr("Several values"),
             Qt::AlignLeft);
    return true;
}

QStyleOptionButton optionOf(const QAbstractButton &button, QStyle::StateFlag state)
{
    QStyleOptionButton option;
    option.initFrom(&button);
    option.state |= button.isDown() ? QStyle::State_Sunken : QStyle::State_None;
    option.state |= state;
    option.text = button.text();
    option.icon = button.icon();
    option.iconSize = button.iconSize();
    return option;
}

bool paintCheckBox(QCheckBox *box)
{
    QStylePainter(box).drawControl(QStyle::CE_CheckBox, optionOf(*box, QStyle::State_NoChange));
    return true;
}

/// With a bar in the place of the dot, as check boxes have one; styles have no such radio buttons.
bool paintRadioButton(QRadioButton *button)
{
    const QStyleOptionButton option = optionOf(*button, QStyle::State_Off);
    QStylePainter painter(button);
    painter.drawControl(QStyle::CE_RadioButton, option);
    const QRectF indicator =
        button->style()->subElementRect(QStyle::SE_RadioButtonIndicator, &option, button);
    QRectF bar(0, 0, indicator.width() / 2, std::max(indicator.height() / kBarsPerIndicator, 2.0));
    bar.moveCenter(indicator.center());
    painter.fillRect(bar, option.palette.brush(QPalette::Text));
    return true;
}

/// What the style draws of a slider but the handle. A groove that is filled up to the handle is not.
void drawGroove(QSlider *slider)
{
    QStyleOptionSlider option;
    option.initFrom(slider);
    option.orientation = slider->orientation();
    option.maximum = 1;
    // As the slider itself says it, or styles fill the other end.
    option.upsideDown =
        slider->orientation() == Qt::Vertical || slider->layoutDirection() == Qt::RightToLeft;
    option.direction = Qt::LeftToRight;
    option.subControls = QStyle::SC_SliderGroove;
    option.state |=
        slider->orientation() == Qt::Horizontal ? QStyle::State_Horizontal : QStyle::State_None;
    QStylePainter(slider).drawComplexControl(QStyle::CC_Slider, option);
}

/// Says so upon what the widget shows, if there is room.
void drawPlate(QPainter &painter, const QWidget &widget, Qt::Alignment place,
               QPalette::ColorRole ground)
{
    const QString text = MixedPainter::tr("Several values");
    const QSize size =
        widget.fontMetrics().boundingRect(text).adjusted(-6, -3, 6, 3).size(); // italics are wider
    if (size.width() > widget.width() || size.height() > widget.height())
        return;
    const QRect area = QStyle::alignedRect(widget.layoutDirection(), place, size, widget.rect());
    painter.fillRect(area, widget.palette().brush(ground));
    drawText(painter, widget, area, text, Qt::AlignHCenter);
}

/// Hatching tells without colours that what is behind it is no value.
void paintHatching(QWidget &widget)
{
    QPainter painter(&widget);
    painter.fillRect(widget.rect(), QBrush(textColor(widget), Qt::BDiagPattern));
    drawPlate(painter, widget, Qt::AlignCenter, QPalette::Window);
}

bool isBlank(const QLineEdit *line)
{
    const auto *const field =
        line ? qobject_cast<QAbstractSpinBox *>(line->parentWidget()) : nullptr;
    return field && typedText(*field, line->text()).isEmpty();
}

/// Whether the widget shows by itself that it has no value.
bool canBeEmpty(const QWidget *widget)
{
    return qobject_cast<const QLineEdit *>(widget) || qobject_cast<const QPlainTextEdit *>(widget)
           || qobject_cast<const QAbstractItemView *>(widget)
           || qobject_cast<const QAbstractButton *>(widget);
}

/// The list around a viewport, or null.
const QAbstractItemView *listAround(const QWidget *viewport)
{
    const auto *const list = qobject_cast<const QAbstractItemView *>(viewport->parentWidget());
    return list && list->viewport() == viewport ? list : nullptr;
}

} // namespace

MixedPainter::MixedPainter(QWidget *field)
    : m_field(field)
{
    const auto numbers = numberFieldsIn(field);
    for (const QAbstractSpinBox *number : numbers)
        m_numbers.append(number->findChild<QLineEdit *>());
    const auto sliders = field->findChildren<QSlider *>();
    for (QSlider *slider : sliders)
        m_sliders.append(slider);
    watchControls();
    update();
}

MixedPainter::~MixedPainter()
{
    update();
}

void MixedPainter::update()
{
    for (const QPointer<QWidget> &widget : std::as_const(m_watched)) {
        if (widget)
            widget->update();
    }
}

bool MixedPainter::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::Paint || m_isPainting)
        return false;
    auto *const widget = static_cast<QWidget *>(watched);
    if (auto *const slider = qobject_cast<QSlider *>(widget))
        return paintSlider(slider);
    if (auto *const line = qobject_cast<QLineEdit *>(widget))
        return m_numbers.contains(line) ? paintNumber(line, event) : paintText(line, event);
    if (auto *const box = qobject_cast<QComboBox *>(widget))
        return !isBlanked() || isAnyBlank() ? paintComboBox(box) : false;
    if (auto *const box = qobject_cast<QCheckBox *>(widget))
        return !isBlanked() && paintCheckBox(box);
    if (auto *const button = qobject_cast<QRadioButton *>(widget))
        return !(isBlanked() && isAnyChosen()) && paintRadioButton(button);
    return listAround(widget) ? paintList(widget, event) : paintOther(widget, event);
}

void MixedPainter::watchControls()
{
    QList<QWidget *> widgets = m_field->findChildren<QWidget *>();
    widgets.prepend(m_field);
    bool isKnown = false;
    for (QWidget *const widget : std::as_const(widgets)) {
        const bool isPainted =
            qobject_cast<QLineEdit *>(widget) || qobject_cast<QSlider *>(widget)
            || qobject_cast<QComboBox *>(widget) || qobject_cast<QCheckBox *>(widget)
            || qobject_cast<QRadioButton *>(widget) || qobject_cast<UI::ColorWheel *>(widget);
        isKnown = isKnown || isPainted || canBeEmpty(widget);
        if (isPainted)
            watch(widget);
        auto *const list = qobject_cast<QAbstractItemView *>(widget);
        if (list && list->window() == m_field->window())
            watchList(list);
    }
    if (!isKnown)
        watch(m_field);
}

void MixedPainter::watch(QWidget *widget)
{
    m_watched.append(widget);
    widget->installEventFilter(this);
}

/// Scrolling moves what was painted of it.
void MixedPainter::watchList(QAbstractItemView *list)
{
    watch(list->viewport());
    for (QScrollBar *const bar : {list->horizontalScrollBar(), list->verticalScrollBar()})
        connect(bar, &QScrollBar::valueChanged, this, &MixedPainter::update);
}

/// Whether somebody makes the fields of the row blank whose numbers are not everyone's.
bool MixedPainter::isBlanked() const
{
    return m_field && m_field->property("mixed").toBool();
}

/// Whether a number of the row is not everyone's; true for a row without numbers.
bool MixedPainter::isAnyBlank() const
{
    return m_numbers.isEmpty() || std::any_of(m_numbers.cbegin(), m_numbers.cend(), isBlank);
}

/// A choice that is everyone's, though other parts of the row are not.
bool MixedPainter::isAnyChosen() const
{
    const auto buttons =
        m_field ? m_field->findChildren<QRadioButton *>() : QList<QRadioButton *>();
    return std::any_of(buttons.begin(), buttons.end(),
                       [](const QRadioButton *button) { return button->isChecked(); });
}

bool MixedPainter::paintNumber(QLineEdit *line, QEvent *event)
{
    const bool blank = isBlank(line);
    if (!blank && (isBlanked() || line->isModified()))
        return false;
    const bool isTextAway = !blank || !line->text().isEmpty();
    if (isTextAway && line->hasFocus())
        return false; // the user is to see where the cursor is
    paintByItself(line, event);
    QPainter painter(line);
    if (isTextAway)
        painter.fillRect(line->rect(), line->palette().brush(QPalette::Base));
    // A line does not mirror what has no letters of such a language, numbers among it.
    painter.setLayoutDirection(Qt::LeftToRight);
    const QString affixes = blank ? line->text() : QString();
    drawText(painter, *line, line->rect().adjusted(2, 0, -2, 0), kDash + affixes,
             line->alignment() | Qt::AlignAbsolute);
    return true;
}

/// A text that is blanked says itself why it is.
bool MixedPainter::paintText(QLineEdit *line, QEvent *event)
{
    if (isBlanked() || !line->text().isEmpty())
        return false;
    paintByItself(line, event);
    QPainter painter(line);
    drawText(painter, *line, line->rect().adjusted(6, 0, -6, 0), tr("Several values"),
             line->alignment());
    return true;
}

bool MixedPainter::paintSlider(QSlider *slider)
{
    const auto index = m_sliders.indexOf(slider);
    const bool isPaired = m_sliders.size() == m_numbers.size();
    const bool hasValue = isPaired ? !isBlank(m_numbers.value(index)) : !isAnyBlank();
    if (isBlanked() && hasValue)
        return false;
    drawGroove(slider);
    return true;
}

/// Nothing is selected in it, which does not tell why. The list itself paints in its own event filter.
bool MixedPainter::paintList(QWidget *viewport, QEvent *event)
{
    if (isBlanked() && listAround(viewport)->selectionModel()->hasSelection())
        return false;
    {
        const QScopedValueRollback<bool> painting(m_isPainting, true);
        QCoreApplication::sendEvent(viewport, event);
    }
    QPainter painter(viewport);
    drawPlate(painter, *viewport, Qt::AlignBottom | Qt::AlignRight, QPalette::Base);
    return true;
}

bool MixedPainter::paintOther(QWidget *widget, QEvent *event)
{
    if (isBlanked() && !isAnyBlank())
        return false;
    paintByItself(widget, event);
    paintHatching(*widget);
    return true;
}

void MixedPainter::paintByItself(QWidget *widget, QEvent *event)
{
    const QScopedValueRollback<bool> painting(m_isPainting, true);
    static_cast<QObject *>(widget)->event(event);
}

} // namespace Tessark::PropertyHost
