#include "host/SearchHighlight_p.h"

#include "host/LabelPlaces_p.h"

#include <QCheckBox>
#include <QEvent>
#include <QPainter>

#include <utility>

namespace Tessark::PropertyHost {

namespace {

constexpr int kFillAlpha = 96;   // the text keeps its colour, and its contrast
constexpr qreal kLineHeight = 2; // for those who do not tell the colours apart

void paint(QWidget &widget, const QVector<QRectF> &places)
{
    const QColor line = widget.palette().color(QPalette::Highlight);
    QColor fill = line;
    fill.setAlpha(kFillAlpha);
    QPainter painter(&widget);
    for (const QRectF &place : places) {
        painter.fillRect(place, fill);
        painter.fillRect(
            QRectF(place.left(), place.bottom() - kLineHeight, place.width(), kLineHeight), line);
    }
}

} // namespace

SearchHighlight::SearchHighlight(std::shared_ptr<const PanelRows> rows, QWidget *panel)
    : m_rows(std::move(rows))
    , m_panel(panel)
    , m_isWatched(m_rows->all().size())
    , m_isMatch(m_rows->all().size())
{
}

SearchHighlight::~SearchHighlight()
{
    update();
}

void SearchHighlight::show(const QStringList &words, const QVector<int> &rows)
{
    const QVector<int> before = std::exchange(m_matches, rows);
    m_words = words;
    for (const int row : before)
        m_isMatch[static_cast<std::size_t>(row)] = false;
    for (const int row : rows) {
        m_isMatch[static_cast<std::size_t>(row)] = true;
        watch(row);
    }
    if (!before.isEmpty() || !rows.isEmpty())
        update();
}

bool SearchHighlight::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::Paint || m_words.isEmpty())
        return false;
    const int row = m_rows->indexOf(watched);
    if (row < 0 || !m_isMatch[static_cast<std::size_t>(row)])
        return false;
    if (auto *const label = qobject_cast<QLabel *>(watched))
        paint(*label, placesInLabel(*label, m_words));
    else if (auto *const box = qobject_cast<QCheckBox *>(watched))
        paint(*box, placesInCheckBox(*box, m_words));
    return false;
}

/// Once for good: to let go of thousands of labels with each key would take longer.
void SearchHighlight::watch(int row)
{
    if (m_isWatched[static_cast<std::size_t>(row)])
        return;
    m_isWatched[static_cast<std::size_t>(row)] = true;
    const PanelRow &widgets = m_rows->at(row);
    if (widgets.label)
        widgets.label->installEventFilter(this);
    if (qobject_cast<QCheckBox *>(widgets.field))
        widgets.field->installEventFilter(this);
}

/// All at once: of thousands of widgets, most of them out of view, Qt would compare each with all
/// others.
void SearchHighlight::update() const
{
    if (m_panel)
        m_panel->update();
}

} // namespace Tessark::PropertyHost
