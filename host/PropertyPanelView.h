#pragma once

#include "host/PropertyHostExport.h"
#include "host/PropertyMetaType.h"

#include <property/IPropertyEditorDelegate.h>
#include <property/Property.h>

#include <QByteArray>
#include <QMenu>
#include <QPointer>
#include <QVector>
#include <QWidget>

#include <memory>

class QScrollArea;

namespace Tessark::PropertyUI {
class PropertyEditorContext;
class PropertyEditorPanel;
} // namespace Tessark::PropertyUI

namespace Tessark::PropertyHost {

class DescriptionLine;
class LabelSplitter;
class NumberFieldWidths;
class PanelExtent;
class PropertyList;
class RowControls;
class RowHelp;
class RuleEngine;
class SplitterHandle;
class ViewPanel;
class ViewSearch;
class WheelGuard;
struct PanelState;
struct RowFeatures;

/**
 * A PropertyEditorPanel that scrolls, with what a panel in a window of its own wants:
 *
 * - It is as high as the rows that are shown, in open groups and by rules; an inner group stays as it
 *   was when the one around it opens, and groups on tab pages fold too.
 * - What the user has arranged, see saveState(), survives a change of the properties and, if the
 *   host keeps it, the program.
 * - Fields of numbers are wide enough for the longest one of their range.
 * - The mouse wheel scrolls, and changes only values of controls that have the focus.
 * - The hint kHostHintHelp of a row is the tool tip of its label and field.
 * - Ctrl+F searches the rows, see openSearch().
 * - Rows that differ from their defaults have a mark, and labels a menu. Rows whose objects have
 *   different values, where the delegate is or passes on to a SelectionDelegate, are drawn so.
 *
 *     PropertyPanelView view;
 *     view.restoreState(settings.value("panel").toByteArray());
 *     view.setProperties(list, &store);
 *     view.show();
 *
 * The view owns the panel; properties, delegate and context belong to the host and must outlive it,
 * or the next setProperties(). It may be deleted in any callback of the delegate, and may be given
 * other properties there. What the host does by calling it is silent: the delegate is told of edits
 * by the user only, those of groups and tabs included.
 */
class TESSARK_PROPERTYHOST_EXPORT PropertyPanelView : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(bool splitterMovable READ isSplitterMovable WRITE setSplitterMovable)
    Q_PROPERTY(bool wheelGuarded READ isWheelGuarded WRITE setWheelGuarded)
    Q_PROPERTY(bool textsAsWritten READ areTextsAsWritten WRITE setTextsAsWritten)
    Q_PROPERTY(bool descriptionVisible READ isDescriptionVisible WRITE setDescriptionVisible)
    Q_PROPERTY(bool searchEnabled READ isSearchEnabled WRITE setSearchEnabled)
    Q_PROPERTY(bool defaultMarksVisible READ areDefaultMarksVisible WRITE setDefaultMarksVisible)
    Q_PROPERTY(bool rowMenuEnabled READ isRowMenuEnabled WRITE setRowMenuEnabled)
    Q_PROPERTY(bool labelScrubbing READ isLabelScrubbing WRITE setLabelScrubbing)
    Q_PROPERTY(bool arithmeticEntry READ isArithmeticEntry WRITE setArithmeticEntry)

public:
    /// A view without rows.
    explicit PropertyPanelView(QWidget *parent = nullptr);
    ~PropertyPanelView() override;

    /// Shows these properties, and the delegate's values, in a new panel instead of the one before.
    /// Rows that are called the same stay as the user has arranged them. delegate and context may be
    /// null, and are used as PropertyEditorPanel does. Hints that are rules have no effect, unless
    /// the host attaches a RuleEngine to panel().
    void setProperties(const QVector<PropertyUI::Property *> &properties,
                       PropertyUI::IPropertyEditorDelegate *delegate,
                       PropertyUI::PropertyEditorContext *context = nullptr);

    /// The same for a list whose rules hold.
    void setProperties(const PropertyList &list, PropertyUI::IPropertyEditorDelegate *delegate,
                       PropertyUI::PropertyEditorContext *context = nullptr);

    /// Shows no rows. What the user has arranged is kept for later ones.
    void clear();

    /// The panel that is shown now; null before the first setProperties().
    PropertyUI::PropertyEditorPanel *panel() const;

    /// What applies the rules of the list; null without one.
    RuleEngine *rules() const;

    /// Whether a group is open; true for what is no group of this panel. A group that has not the
    /// library's check box, or another button, stays as it is. Groups that only a search has open
    /// count as closed.
    bool isGroupOpen(const PropertyUI::Property *group) const;
    void setGroupOpen(const PropertyUI::Property *group, bool open);

    /// The size of the view at which no row has to be scrolled to and fields are as wide as they like
    /// to be: for a window that opens.
    QSize contentsSize() const;

    /// Whether panels show labels and static texts as they are written, see showTextsAsWritten(); not
    /// at first. It is about panels of later setProperties().
    bool areTextsAsWritten() const { return m_areTextsAsWritten; }
    void setTextsAsWritten(bool asWritten);

    /// Whether the user can move the line between labels and fields; not at first. It is dragged in
    /// the gap between the two, where a double click makes the width automatic again. Tab reaches it
    /// behind the rows: Left and Right, Home and End move it, Return makes the width automatic.
    bool isSplitterMovable() const { return m_isSplitterMovable; }
    void setSplitterMovable(bool movable);

    /// The width of the labels in pixels, on all pages; -1, as at first, where it is automatic: that
    /// of the widest label on each page. Labels that are wider end in an ellipsis, and their tool tips
    /// tell the whole text.
    int labelWidth() const;
    void setLabelWidth(int width);

    /// Whether the wheel changes only values of controls with the focus; true at first.
    bool isWheelGuarded() const;
    void setWheelGuarded(bool guarded);

    /// Whether a line below the rows tells label and help of the row under the pointer or, without
    /// one, of the row with the focus; not at first.
    bool isDescriptionVisible() const;
    void setDescriptionVisible(bool visible);

    /// Whether Ctrl+F (QKeySequence::Find) in the view opens the search; true at first. What is open
    /// stays, and openSearch() works in any case.
    bool isSearchEnabled() const;
    void setSearchEnabled(bool enabled);

    /// What is searched for: rows that have all of its words, in part or whole, in their label, name,
    /// choices or help; an empty text finds all. Cases and accents make no difference. Setting it
    /// opens the search without giving it the focus. Empty while the search is closed.
    QString searchText() const;
    void setSearchText(const QString &text);

    /// Whether only rows are found that have another value than their default; not at first, and not
    /// while the search is closed. Setting it opens the search, too.
    bool isOnlyChanged() const;
    void setOnlyChanged(bool onlyChanged);

    /// Whether rows that differ from their defaults have a mark beside the label; true at first. A
    /// click on it sets the row to its default, as the user's edit. The default is that of the property
    /// or, of a selection, each object's own. Rows without default, static texts and rows that their
    /// property disables have none. To show them, the host is asked for the values of rows that have a
    /// default.
    bool areDefaultMarksVisible() const;
    void setDefaultMarksVisible(bool visible);

    /// Whether labels, and the headers of groups, have a menu; true at first. Keys open it for a field
    /// that has no menu of its own. What it sets and pastes are edits by the user; of a group, one undo
    /// step.
    bool isRowMenuEnabled() const;
    void setRowMenuEnabled(bool enabled);

    /// Whether dragging on the label of a number changes it, see LabelScrubber; not at first.
    bool isLabelScrubbing() const;
    void setLabelScrubbing(bool scrubbing);

    /// Whether fields of numbers take arithmetic, see NumberEntry; not at first.
    bool isArithmeticEntry() const;
    void setArithmeticEntry(bool arithmetic);

    /**
     * What the user has arranged: open groups, current tabs, how far it is scrolled, which control
     * has the focus, and the width of the labels.
     *
     * Rows are told apart by the names of their properties, by labels where there is no name; those
     * that are called the same are counted. Groups and tabs that an earlier list or state had are
     * kept. The content is no one else's concern; it is text, and fits into QSettings.
     */
    QByteArray saveState() const;

    /// Arranges everything so again, at once and for properties that come later; what it says of
    /// rows that there are not has no effect. The focus stays where it is if that is outside of the
    /// view. False, and no effect, for what saveState() has not made.
    bool restoreState(const QByteArray &state);

public Q_SLOTS:
    /// Shows the delegate's values, as PropertyEditorPanel::updateUI() does.
    void updateUI();

    /// Reads hints and range of the property again, the help included.
    void updateProperty(Tessark::PropertyUI::Property *property);

    void expandAll();
    void collapseAll();

    /**
     * Shows a bar above the rows, and gives it the focus, where the user says what to search for. Rows
     * that do not match are hidden, groups around those that do are open, tabs say how many are on
     * their pages. The arrow keys, Return and F3 go from match to match. Silent for the delegate.
     *
     * closeSearch(), and Escape, give back what was open before, the place that was scrolled to and the
     * focus; what the user has walked to stays in view, and gets the focus.
     */
    void openSearch();
    void closeSearch();

Q_SIGNALS:
    /// The menu of the property's row is about to be shown, for actions of the host. It deletes itself
    /// when it is closed, and is closed when the row goes.
    void rowMenuAboutToShow(QMenu *menu, Tessark::PropertyUI::Property *property);

protected:
    void showEvent(QShowEvent *event) override;

private:
    void install(std::unique_ptr<ViewPanel> panel, std::unique_ptr<RuleEngine> rules,
                 PropertyUI::IPropertyEditorDelegate *delegate);
    void setFeature(bool RowFeatures::*feature, bool on);
    void replacePanel(ViewPanel *panel);
    void restorePlace();
    PanelState currentState() const;

    QScrollArea *m_area;
    DescriptionLine *m_description;
    WheelGuard *m_wheelGuard;
    ViewSearch *m_search;
    QPointer<ViewPanel> m_panel;                // owned by m_area
    QPointer<NumberFieldWidths> m_numberFields; // owned by the panel, as are the next three
    QPointer<PanelExtent> m_extent;
    QPointer<LabelSplitter> m_splitter;
    QPointer<RowControls> m_controls;
    QPointer<SplitterHandle> m_splitterHandle; // owned by m_area
    std::unique_ptr<RowHelp> m_help;
    std::unique_ptr<RuleEngine> m_rules;
    std::unique_ptr<RowFeatures> m_features;
    std::unique_ptr<PanelState> m_state; // of the panels so far, or as it was restored
    int m_installations = 0;             // begun so far: the last one wins
    bool m_isSplitterMovable = false;
    bool m_areTextsAsWritten = false;
    bool m_isPlacePending = false; // until the rows are where they belong
};

} // namespace Tessark::PropertyHost
