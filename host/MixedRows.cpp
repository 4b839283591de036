#include "host/MixedRows_p.h"

#include "host/MixedPainter_p.h"
#include "host/SelectionDelegate.h"
#include "host/ViewPanel_p.h"

namespace Tessark::PropertyHost {

using namespace PropertyUI;

MixedRows::MixedRows(ViewPanel *panel, SelectionDelegate *selection)
    : QObject(panel)
    , m_rows(panel->rows())
    , m_selection(selection)
{
    connect(selection, &SelectionDelegate::mixedChanged, this, &MixedRows::mixedChanged);
    connect(selection, &SelectionDelegate::listChanged, this, [this] {
        for (int row = 0; row < m_rows->count(); ++row)
            setMixed(row, false); // they are of the list before
    });
    connect(panel, &ViewPanel::valueEdited, this, [this](Property *property) {
        const QVector<int> rows = m_rows->indexesOf(property);
        for (const int row : rows) {
            if (const auto painter = m_painters.value(row))
                painter->update();
        }
    });
    for (int row = 0; row < m_rows->count(); ++row)
        setMixed(row, selection->isMixed(m_rows->at(row).property));
}

MixedRows::~MixedRows() = default;

void MixedRows::setTold(const Property *property, bool told)
{
    const QVector<int> rows = m_rows->indexesOf(property);
    for (const int row : rows) {
        if (!told)
            untell(row);
        else if (m_painters.contains(row))
            tell(row);
    }
}

void MixedRows::mixedChanged(const Property *property, bool mixed)
{
    const QVector<int> rows = m_rows->indexesOf(property);
    for (const int row : rows)
        setMixed(row, mixed);
}

void MixedRows::setMixed(int row, bool mixed)
{
    QWidget *const field = m_rows->at(row).field;
    if (!field || m_painters.contains(row) == mixed)
        return;
    if (mixed) {
        m_painters.insert(row, std::make_shared<MixedPainter>(field));
        tell(row);
    } else {
        m_painters.remove(row);
        untell(row);
    }
}

void MixedRows::tell(int row)
{
    QWidget *const field = m_rows->at(row).field;
    if (!field || m_descriptions.contains(row))
        return;
    QVector<Description> descriptions;
    QList<QWidget *> controls = field->findChildren<QWidget *>();
    controls.prepend(field);
    for (QWidget *const control : std::as_const(controls)) {
        const bool isHeard = control == field || control->focusPolicy() != Qt::NoFocus;
        if (!isHeard || control->isWindow())
            continue;
        const QString before = control->accessibleDescription();
        const QString news = tr("The selected objects have different values.");
        const QString told = before.isEmpty() ? news : news + QLatin1Char(' ') + before;
        control->setAccessibleDescription(told);
        descriptions.append({control, before, told});
    }
    m_descriptions.insert(row, descriptions);
}

/// Leaves alone what somebody else has said meanwhile.
void MixedRows::untell(int row)
{
    const QVector<Description> descriptions = m_descriptions.take(row);
    for (const Description &description : descriptions) {
        if (description.control && description.control->accessibleDescription() == description.told)
            description.control->setAccessibleDescription(description.before);
    }
}

} // namespace Tessark::PropertyHost
