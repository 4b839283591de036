#pragma once

#include "host/ChangedRows_p.h"
#include "host/PanelRows_p.h"
#include "host/RowEdit_p.h"

#include <QMenu>
#include <QObject>
#include <QPointer>
#include <QVariant>
#include <QVector>

#include <memory>
#include <optional>
#include <vector>

class QContextMenuEvent;

namespace Tessark::PropertyHost {

class ViewPanel;

/// The menu of a row: on its label, on the check box of a group, and for a field that has no menu of its
/// own where the keys ask for it or the row has no label. It is not modal; it closes when the panel goes.
class RowMenu final : public QObject
{
    Q_OBJECT

public:
    /// Belongs to the panel.
    RowMenu(ViewPanel *panel, const DelegateChain &delegates);

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    /// The menu is complete, and about to be shown. What the host adds comes last.
    void aboutToShow(QMenu *menu, PropertyUI::Property *property);

private:
    /// What a row gets of the clipboard.
    struct Assignment
    {
        int row;
        QVariant value;
    };
    using Assignments = std::vector<Assignment>;

    void openUnlessTheirOwn(QContextMenuEvent *request);
    void open(int row, const QPoint &position);
    void fill(QMenu &menu, int row, const QPoint &position);
    void addValueActions(QMenu &menu, int row);
    void addRelativeEdits(QMenu &menu, int row);
    void askForOperand(int row, RelativeOperation operation);
    void changeEach(int row, const QString &text);

    QVector<int> rowsOf(int row) const;
    void collect(int row, QVector<int> &rows) const;
    QVector<int> changedRowsOf(int row) const;
    QString copiedText(int row) const;
    QVariant valueOf(int row) const;
    Assignments pasted(int row, const QString &text) const;
    Assignments pastedIntoGroup(int group, const QString &text) const;
    void setToDefault(const QVector<int> &rows);
    void paste(const Assignments &assignments);

    QPointer<ViewPanel> m_panel;
    std::shared_ptr<const PanelRows> m_rows;
    DelegateChain m_delegates;
    ChangedRows m_changed;
    RowEdit m_edit;
};

} // namespace Tessark::PropertyHost
