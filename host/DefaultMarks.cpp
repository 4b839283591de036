#include "host/DefaultMarks_p.h"

#include "host/DefaultMark_p.h"
#include "host/ViewPanel_p.h"

#include <property/Property.h>
#include <property/PropertyEditor.h>

#include <QEvent>

#include <algorithm>

namespace Tessark::PropertyHost {

using namespace PropertyUI;

namespace {

constexpr int kMarkWidth = 4; // as the margin of the rows

QRect gapBetween(const QRect &label, const QRect &field)
{
    const int left = std::min(label.right(), field.right()) + 1;
    const int right = std::max(label.left(), field.left()) - 1;
    return {QPoint(left, label.top()), QPoint(right, label.bottom())};
}

bool isShown(const PanelRow &row)
{
    return !row.field->isHidden() && (!row.label || !row.label->isHidden());
}

} // namespace

DefaultMarks::DefaultMarks(ViewPanel *panel, const DelegateChain &delegates)
    : QObject(panel)
    , m_panel(panel)
    , m_rows(panel->rows())
    , m_changed(delegates)
    , m_edit(delegates)
{
    connect(panel, &ViewPanel::valueRead, this, &DefaultMarks::valueRead);
    connect(panel, &ViewPanel::valueEdited, this, &DefaultMarks::update);
}

DefaultMarks::~DefaultMarks()
{
    for (const QPointer<DefaultMark> &mark : std::as_const(m_marks)) {
        if (!mark)
            continue;
        mark->hide();
        mark->deleteLater(); // its click may be what this is part of
    }
}

void DefaultMarks::update(Property *property)
{
    if (m_panel && m_changed.hasDefault(*property))
        m_panel->value(property); // which tells this object
    else
        valueRead(property, QVariant());
}

void DefaultMarks::updateAll()
{
    const QPointer<DefaultMarks> self(this);
    const std::shared_ptr<const PanelRows> rows = m_rows;
    for (const PanelRow &row : rows->all()) {
        if (!self || !m_panel)
            return;
        if (m_changed.hasDefault(*row.property))
            m_panel->value(row.property);
    }
}

bool DefaultMarks::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::ShowToParent:
    case QEvent::HideToParent:
    case QEvent::EnabledChange:
        place(m_rows->indexOf(watched));
        break;
    default:
        break;
    }
    return false;
}

void DefaultMarks::valueRead(const Property *property, const QVariant &value)
{
    const QVector<int> rows = m_rows->indexesOf(property);
    for (const int row : rows)
        show(row, m_changed.isChanged(m_rows->at(row), value));
}

void DefaultMarks::show(int row, bool changed)
{
    DefaultMark *mark = m_marks.value(row);
    if (!mark && changed)
        mark = makeMark(row);
    if (!mark || m_changedRows.contains(row) == changed)
        return;
    if (changed)
        m_changedRows.insert(row);
    else
        m_changedRows.remove(row);
    place(row);
}

/// Null where the row has no place for one.
DefaultMark *DefaultMarks::makeMark(int row)
{
    const PanelRow &widgets = m_rows->at(row);
    if (!widgets.field || !widgets.field->parentWidget())
        return nullptr;
    auto *const mark = new DefaultMark(widgets.property->label, widgets.field->parentWidget());
    mark->hide();
    connect(mark, &DefaultMark::clicked, this, [this, row] { restore(row); });
    m_marks.insert(row, mark);
    widgets.field->installEventFilter(this);
    if (widgets.label)
        widgets.label->installEventFilter(this);
    return mark;
}

void DefaultMarks::restore(int row)
{
    // The host may delete this object meanwhile.
    const RowEdit edit = m_edit;
    const PanelRow widgets = m_rows->at(row);
    edit.setToDefault(widgets);
}

void DefaultMarks::place(int row)
{
    DefaultMark *const mark = m_marks.value(row);
    const QWidget *const field = mark ? m_rows->at(row).field.data() : nullptr;
    if (!field)
        return;
    const PanelRow &widgets = m_rows->at(row);
    mark->setVisible(m_changedRows.contains(row) && isShown(widgets));
    mark->setEnabled(field->isEnabled());
    if (widgets.label) {
        QRect gap = gapBetween(widgets.label->geometry(), field->geometry());
        const int height = std::min(gap.height(), mark->sizeHint().height());
        gap.setTop(gap.top() + (gap.height() - height) / 2);
        gap.setHeight(height);
        mark->setGeometry(gap);
        return;
    }
    mark->setShape(DefaultMark::Shape::Bar);
    const QRect place = field->geometry();
    const int left = field->isRightToLeft() ? place.right() + 1 : place.left() - kMarkWidth;
    mark->setGeometry(left, place.top(), kMarkWidth, place.height());
}

} // namespace Tessark::PropertyHost
