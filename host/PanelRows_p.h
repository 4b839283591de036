#pragma once

#include <QHash>
#include <QLabel>
#include <QMultiHash>
#include <QPointer>
#include <QTabWidget>
#include <QVector>

#include <vector>

class QLayout;

namespace Tessark::PropertyUI {
class Property;
class PropertyEditor;
class PropertyEditorPanel;
} // namespace Tessark::PropertyUI

namespace Tessark::PropertyHost {

/// A row of a panel: an editor with its widgets. These may go at any time.
struct PanelRow
{
    QPointer<PropertyUI::PropertyEditor> editor;
    QPointer<QWidget> field;
    QPointer<QLabel> label;    // none for a row over both columns
    QPointer<QTabWidget> tabs; // of a tab's row: where its page is
    PropertyUI::Property *property = nullptr;
    int group = -1;       // row of the group that it lies in, on the same page
    QVector<int> members; // of a group, rows on the same page; of a tab group, its tabs
};

/// Whether somebody hid the widget itself, and not what is around it.
bool isHiddenByHand(const QWidget &widget);

/// The rows of a panel as it was built, in panel order: those of editors that have a widget.
class PanelRows
{
public:
    explicit PanelRows(PropertyUI::PropertyEditorPanel &panel);

    const std::vector<PanelRow> &all() const { return m_rows; }
    int count() const { return static_cast<int>(m_rows.size()); }
    const PanelRow &at(int row) const { return m_rows[static_cast<std::size_t>(row)]; }

    /// The row whose field or label the widget is, or -1.
    int indexOf(const QObject *widget) const;

    /// The innermost row whose field or label is the widget or has it inside, or -1.
    int indexAround(const QWidget *widget) const;

    /// The rows of the property, as a rule one.
    QVector<int> indexesOf(const PropertyUI::Property *property) const;

    /// The panel and the tab pages that hold rows, inner ones behind those around them.
    QVector<QWidget *> pages() const;

private:
    void walk(const QLayout &layout);
    void findTabs(int row);

    std::vector<PanelRow> m_rows;
    QHash<const QObject *, int> m_indexOf; // by field and by label
    QMultiHash<const PropertyUI::Property *, int> m_indexesOf;
    QVector<QPointer<QWidget>> m_pages;
};

} // namespace Tessark::PropertyHost
