#pragma once

#include <QPointer>
#include <QString>
#include <QStringList>
#include <QTabWidget>
#include <QVector>

class QAbstractButton;

namespace Tessark::PropertyUI {
class PropertyEditor;
class PropertyEditorPanel;
} // namespace Tessark::PropertyUI

namespace Tessark::PropertyTest {

/// What has to be open for the rows in it to be seen: a group, or a page of a tab widget.
struct Fold
{
    QPointer<QAbstractButton> group; // opens and closes it; null for a page
    QPointer<QTabWidget> tabs;
    QPointer<QWidget> page;

    bool isOpen() const;
};

/// A row of a panel at the moment. Editor and field may go at any time.
struct PanelRow
{
    QPointer<PropertyUI::PropertyEditor> editor;
    QPointer<QWidget> field; // null for what has no widget
    QString name;
    QString label;
    QString type;
    QVector<Fold> folds; // around it, the outermost first
    Fold page;           // of a tab

    /// The first fold around the row that is closed, if the row is hidden by one; else null.
    const Fold *closedFold() const;
};

/// The rows of a panel as it is now.
class PanelMap
{
public:
    explicit PanelMap(const PropertyUI::PropertyEditorPanel &panel);

    /// The first row with this name, what the user edits before groups, tabs and their ends; or null.
    const PanelRow *row(const QString &name) const;

    /// The first row of the type with this name or label; or null.
    const PanelRow *row(const QString &type, const QString &title) const;

    /// The names of all rows that the user can see.
    QStringList names() const;

    /// Labels of the rows of the type, names where there is no label.
    QStringList titles(const QString &type) const;

private:
    QVector<PanelRow> m_rows;
};

} // namespace Tessark::PropertyTest
