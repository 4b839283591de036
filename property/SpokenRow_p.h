#pragma once

#include <QPointer>
#include <QSet>
#include <QString>
#include <QVector>
#include <QWidget>

namespace Tessark::PropertyUI {

class PropertyEditor;
class PropertyEditorPanel;

/// What assistive technology is to say of a control.
struct SpokenControl
{
    QPointer<QWidget> control;
    QString name;        // empty where the control's own text says it
    QString description; // bounds with unit, groups and tabs around, tool tip
    QString ownName;     // that the kit may have given it
};

/// A row of a panel to assistive technology.
struct SpokenRow
{
    PropertyEditor *editor = nullptr;
    QWidget *widget = nullptr; // null for a marker that shows nothing
    QString label;             // as it is shown now, or the property's where none is shown
    QString position;          // titles of the groups and tabs around, outermost first
};

/// The rows of all editors, in the panel's order.
QVector<SpokenRow> spokenRows(const PropertyEditorPanel &panel);

/// The widgets of rows: those on the pages of a tab widget are no part of its row.
using RowWidgets = QSet<const QWidget *>;
RowWidgets widgetsOf(const QVector<SpokenRow> &rows);

/// The controls of a row that take the focus, and its pictures. No two have the same name.
QVector<SpokenControl> spokenControls(const SpokenRow &row, const RowWidgets &rowWidgets);

} // namespace Tessark::PropertyUI
