#include "host/ScrubRun_p.h"

#include "host/NumberFieldAccess_p.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>

namespace Tessark::PropertyHost {

using namespace PropertyUI;

namespace {

constexpr double kPixelsPerStep = 4.0;
constexpr double kFine = 0.1;
constexpr double kCoarse = 10.0;

double pace(Qt::KeyboardModifiers modifiers)
{
    return (modifiers & Qt::ShiftModifier ? kFine : 1.0)
           * (modifiers & Qt::ControlModifier ? kCoarse : 1.0);
}

bool isEscape(const QEvent &event)
{
    return (event.type() == QEvent::KeyPress || event.type() == QEvent::ShortcutOverride)
           && static_cast<const QKeyEvent &>(event).key() == Qt::Key_Escape;
}

/// Whether the button is up although nobody was told.
bool tellsLostRelease(const QEvent &event)
{
    return event.type() == QEvent::MouseMove
           && !(static_cast<const QMouseEvent &>(event).buttons() & Qt::LeftButton);
}

} // namespace

ScrubRun::ScrubRun(const PanelField &field)
    : m_field(field)
    , m_scale(*field.editor, *field.spinBox)
    , m_place(m_scale.placeOf(numberOf(*field.spinBox)))
    , m_held(field)
{
}

ScrubRun::~ScrubRun()
{
    end();
}

void ScrubRun::begin()
{
    QCoreApplication::instance()->installEventFilter(this);
    if (m_field.editor)
        Q_EMIT m_field.editor->startInteractiveChange();
}

void ScrubRun::moveBy(int pixels, Qt::KeyboardModifiers modifiers)
{
    QAbstractSpinBox *const spinBox = m_field.spinBox;
    if (isOver() || !spinBox->isEnabled() || spinBox->isReadOnly())
        return;
    m_place = m_scale.moved(m_place, pixels * pace(modifiers) / kPixelsPerStep);
    const QPointer<ScrubRun> self(this);
    const double before = numberOf(*spinBox);
    setNumber(*spinBox, m_scale.numberAt(m_place));
    if (self && m_field.spinBox)
        m_wasEdited = m_wasEdited || numberOf(*spinBox) != before;
}

void ScrubRun::end()
{
    if (m_isOver)
        return;
    m_isOver = true;
    if (QCoreApplication::instance())
        QCoreApplication::instance()->removeEventFilter(this);
    const PanelField field = m_field;
    if (field.editor)
        Q_EMIT field.editor->endInteractiveChange();
    // A field with the focus goes on with a run of its own.
    if (field.editor && field.spinBox && field.spinBox->hasFocus())
        Q_EMIT field.editor->startInteractiveChange();
}

void ScrubRun::cancel()
{
    const QPointer<ScrubRun> self(this);
    if (m_wasEdited && !isOver())
        m_held.giveBack();
    if (self)
        end();
}

bool ScrubRun::eventFilter(QObject *, QEvent *event)
{
    if (isOver() || tellsLostRelease(*event)) {
        end();
        return false;
    }
    // A dialog that the host opens meanwhile has its own Escape.
    if (!isEscape(*event) || QApplication::activeModalWidget() || QApplication::activePopupWidget())
        return false;
    event->accept();
    if (event->type() == QEvent::KeyPress)
        cancel();
    return true;
}

} // namespace Tessark::PropertyHost
