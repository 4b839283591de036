#pragma once

#include "host/ChangedRows_p.h"
#include "host/PanelRows_p.h"
#include "host/RowEdit_p.h"

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QSet>
#include <QVariant>

#include <memory>

namespace Tessark::PropertyHost {

class DefaultMark;
class ViewPanel;

/// Marks the rows of a panel that differ from their defaults. A click on a mark is a "Set to Default".
///
/// A mark lies in the gap between label and field, or in the margin beside a row over both columns, so
/// that no row moves. Marks follow what the panel reads from the host and what users edit.
class DefaultMarks final : public QObject
{
    Q_OBJECT

public:
    /// Belongs to the panel. Nothing is marked until it reads values.
    DefaultMarks(ViewPanel *panel, const DelegateChain &delegates);
    ~DefaultMarks() override;

    /// Asks the panel, and so the host, for the values of the property, or of all that have a default.
    void update(PropertyUI::Property *property);
    void updateAll();

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void valueRead(const PropertyUI::Property *property, const QVariant &value);
    void show(int row, bool changed);
    DefaultMark *makeMark(int row);
    void restore(int row);
    void place(int row);

    QPointer<ViewPanel> m_panel;
    std::shared_ptr<const PanelRows> m_rows;
    ChangedRows m_changed;
    RowEdit m_edit;
    QHash<int, QPointer<DefaultMark>> m_marks; // by row; those of rows that were changed once
    QSet<int> m_changedRows;
};

} // namespace Tessark::PropertyHost
