#include "host/SplitterHandle_p.h"

#include "host/LabelSplitter_p.h"
#include "host/PanelExtent_p.h"
#include "host/SplitterHandleInterface_p.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QPainter>

#include <utility>

namespace Tessark::PropertyHost {

namespace {

constexpr int kWidth = 3;
constexpr int kStep = 8; // pixels for each press of an arrow

const auto kPlace = static_cast<QEvent::Type>(QEvent::registerEventType());

} // namespace

SplitterHandle::SplitterHandle(LabelSplitter *splitter, PanelExtent *extent, QWidget *panel,
                               QWidget *viewport)
    : QWidget(viewport)
    , m_splitter(splitter)
    , m_extent(extent)
    , m_panel(panel)
{
    installSplitterHandleAccessibility();
    setFocusPolicy(Qt::TabFocus);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAccessibleName(tr("Width of labels"));
    hide();
    viewport->installEventFilter(this);
    panel->installEventFilter(this);
    connect(splitter, &LabelSplitter::moved, this, &SplitterHandle::placeLater);
    connect(splitter, &QObject::destroyed, this, &SplitterHandle::placeLater);
    placeLater();
}

void SplitterHandle::placeLater()
{
    if (!std::exchange(m_isPlacePending, true))
        QCoreApplication::postEvent(this, new QEvent(kPlace), Qt::LowEventPriority);
}

LabelSplitter *SplitterHandle::splitter() const
{
    if (m_extent)
        m_extent->settle();
    return m_splitter;
}

bool SplitterHandle::event(QEvent *event)
{
    if (event->type() == kPlace) {
        place();
        return true;
    }
    if (event->type() == QEvent::LanguageChange)
        setAccessibleName(tr("Width of labels"));
    return QWidget::event(event);
}

bool SplitterHandle::eventFilter(QObject *, QEvent *event)
{
    switch (event->type()) {
    case QEvent::LayoutRequest:
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::Show:
        placeLater();
        return false;
    default:
        return false;
    }
}

void SplitterHandle::keyPressEvent(QKeyEvent *event)
{
    const QPointer<SplitterHandle> self(this);
    LabelSplitter *const line = splitter();
    if (!self || !line) {
        event->ignore();
        return;
    }
    const int step = isRightToLeft() ? -kStep : kStep;
    switch (event->key()) {
    case Qt::Key_Left:
        line->moveTo(line->shownWidth() - step);
        return;
    case Qt::Key_Right:
        line->moveTo(line->shownWidth() + step);
        return;
    case Qt::Key_Home:
        line->moveTo(line->smallestWidth());
        return;
    case Qt::Key_End:
        line->moveTo(line->widestWidth());
        return;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        line->setLabelWidth(std::nullopt);
        return;
    default:
        QWidget::keyPressEvent(event);
    }
}

void SplitterHandle::paintEvent(QPaintEvent *)
{
    if (!hasFocus())
        return;
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(QPalette::Highlight));
}

void SplitterHandle::place()
{
    m_isPlacePending = false;
    const bool isMovable = m_splitter && m_panel && m_splitter->isMovable();
    const QRect gap = isMovable ? m_splitter->shownGap() : QRect();
    if (gap.isEmpty()) {
        hide();
        return;
    }
    const int middle = m_panel->mapTo(parentWidget(), gap.center()).x();
    setGeometry(middle - kWidth / 2, 0, kWidth, parentWidget()->height());
    show();
    const int width = m_splitter->shownWidth();
    if (std::exchange(m_width, width) != width)
        tellWidth(*this, width);
}

} // namespace Tessark::PropertyHost
