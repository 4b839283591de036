#include "host/LabelScrubber.h"

#include "host/NumberFieldAccess_p.h"
#include "host/PanelRows_p.h"
#include "host/ScrubRun_p.h"

#include <property/Property.h>

#include <QApplication>
#include <QLabel>
#include <QMouseEvent>

#include <cstdlib>
#include <utility>

namespace Tessark::PropertyHost {

using namespace PropertyUI;

namespace {

bool isNumberRow(const Property &property)
{
    return property.type == kPropertyTypeInteger || property.type == kPropertyTypeFloat
           || property.type == kPropertyTypePercent;
}

/// In pixels of the screen, since a label may move meanwhile; more toward the end of the line.
int placeAlongLine(const QLabel &label, const QMouseEvent &event)
{
    const int x = label.mapToGlobal(event.pos()).x();
    return label.layoutDirection() == Qt::RightToLeft ? -x : x;
}

} // namespace

LabelScrubber::LabelScrubber(PropertyEditorPanel *panel, QObject *parent)
    : QObject(parent)
    , m_panel(panel)
{
    const PanelRows rows(*panel);
    for (const PanelRow &row : rows.all()) {
        QLabel *const label = row.label;
        if (!label || !isNumberRow(*row.property))
            continue;
        const auto fields = numberFieldsIn(row.field);
        if (fields.size() != 1)
            continue;
        m_rows.insert(label, {label, row.editor, fields.first()});
        label->installEventFilter(this);
        showCursor(label);
    }
}

LabelScrubber::~LabelScrubber()
{
    for (auto at = m_rows.cbegin(); at != m_rows.cend(); ++at) {
        if (at->label)
            at->label->unsetCursor();
    }
}

bool LabelScrubber::isScrubbing() const
{
    return m_run && !m_run->isOver();
}

bool LabelScrubber::eventFilter(QObject *watched, QEvent *event)
{
    auto *const label = qobject_cast<QLabel *>(watched);
    if (!label || !m_rows.contains(label))
        return false;
    switch (event->type()) {
    case QEvent::Enter:
        showCursor(label);
        return false;
    case QEvent::Hide:
        release();
        return false;
    case QEvent::MouseButtonPress:
    case QEvent::MouseMove:
    case QEvent::MouseButtonRelease: {
        const QPointer<QLabel> labelAlive(label);
        const bool isHandled = handleMouse(label, static_cast<QMouseEvent *>(event));
        // An event must not travel on to a label that the host has deleted.
        return isHandled || !labelAlive;
    }
    default:
        return false;
    }
}

bool LabelScrubber::canMove(const Row &row)
{
    return row.editor && row.field && row.field->isEnabled() && !row.field->isReadOnly();
}

void LabelScrubber::showCursor(QLabel *label)
{
    if (canMove(m_rows.value(label)))
        label->setCursor(Qt::SizeHorCursor);
    else
        label->unsetCursor();
}

/// True for what belongs to a drag: all else is the label's.
bool LabelScrubber::handleMouse(QLabel *label, QMouseEvent *event)
{
    if (event->type() == QEvent::MouseButtonPress) {
        if (event->button() != Qt::LeftButton)
            return isScrubbing();
        release(); // of a drag that was cut off
        press(label, *event);
        return false;
    }
    if (event->type() == QEvent::MouseButtonRelease)
        return event->button() == Qt::LeftButton ? release() : isScrubbing();
    return label == m_pressed && (event->buttons() & Qt::LeftButton) && move(*label, *event);
}

void LabelScrubber::press(QLabel *label, const QMouseEvent &event)
{
    m_pressed = canMove(m_rows.value(label)) ? label : nullptr;
    m_pressedAt = placeAlongLine(*label, event);
}

bool LabelScrubber::move(const QLabel &label, const QMouseEvent &event)
{
    const int place = placeAlongLine(label, event);
    const int pixels = place - m_pressedAt;
    if (!m_run && std::abs(pixels) < QApplication::startDragDistance())
        return false;
    m_pressedAt = place;
    if (m_run)
        m_run->moveBy(pixels, event.modifiers());
    else
        beginRun(label); // without a jump
    return true;
}

bool LabelScrubber::release()
{
    m_pressed = nullptr;
    const std::unique_ptr<ScrubRun> run = std::move(m_run);
    if (run)
        run->end();
    return run != nullptr;
}

void LabelScrubber::beginRun(const QLabel &label)
{
    const Row row = m_rows.value(&label);
    const PanelField field(qobject_cast<PropertyEditorPanel *>(m_panel.data()), row.editor,
                           row.field);
    if (!field.isAlive())
        return;
    const QPointer<LabelScrubber> self(this);
    auto run = std::make_unique<ScrubRun>(field); // asks the host, who may delete anything
    // cppcheck-suppress identicalConditionAfterEarlyExit
    if (!self || !field.isAlive())
        return;
    m_run = std::move(run);
    m_run->begin();
}

} // namespace Tessark::PropertyHost
