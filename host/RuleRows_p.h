#pragma once

#include "host/PanelRows_p.h"

#include <QObject>
#include <QSet>
#include <QVariant>

namespace Tessark::PropertyHost {

class RowVisibility;

/**
 * The rows of a panel as rules see them: shown or not, usable or not.
 *
 * Whether a row is shown has two sides, which both must agree: the rules, and whoever else shows and
 * hides widgets, such as a group that folds. This object remembers what the others want and keeps
 * the rules in force when they act. The same goes for enabling. Where a panel has a RowVisibility,
 * the rules are one of its reasons instead.
 *
 * The panel and any of its widgets may go at any time.
 */
class RuleRows : public QObject
{
public:
    /// ruled are the properties that have rules about being shown or usable.
    RuleRows(PropertyUI::PropertyEditorPanel *panel,
             const QSet<const PropertyUI::Property *> &ruled);

    /// What the rules of the property's own say now; apply() makes it so.
    void setVisible(const PropertyUI::Property *property, bool visible);
    void setEnabled(const PropertyUI::Property *property, bool enabled);
    void apply();

    /// Makes the editors of the property show its range anew, and the value in it.
    void showRange(PropertyUI::Property *property, const QVariant &value);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct Row : PanelRow
    {
        bool isRuled = false; // by a rule of its own, of a group around it or of its tabs
        bool ruleVisible = true;
        bool ruleEnabled = true;
        bool shown = true; // as the rules want it, those of groups included
        bool usable = true;
        bool wantedVisible = true; // by the others
        bool wantedEnabled = true;
    };

    void findRows();
    void markRuled(const QSet<const PropertyUI::Property *> &ruled);
    void watch(Row &row);
    void watchGroups();

    Row &at(int row);
    bool hasVisibleTab(const Row &row);
    bool updateWanted(int row);
    void collect(int row, QVector<int> &changed);
    void show(int row);
    void setShown(QWidget *widget, bool shown);
    void setUsable(QWidget *widget, bool usable);
    void groupToggled(int row);
    void noteMembers(int row, bool open);
    void othersShowed(int row, QWidget *widget);
    void othersHid(int row, const QWidget *widget);
    void othersEnabled(int row, QWidget *widget);

    QPointer<PropertyUI::PropertyEditorPanel> m_panel;
    QPointer<RowVisibility> m_visibility; // none for a plain panel
    std::vector<Row> m_rows;
    QMultiHash<const PropertyUI::Property *, int> m_rowsOf;
    QHash<const QObject *, int> m_rowOfWidget; // fields and labels
    QVector<int> m_dirty;                      // rows whose rules may want something else
    const QObject *m_own = nullptr;            // the widget that is being changed from here
};

} // namespace Tessark::PropertyHost
