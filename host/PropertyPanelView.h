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
class PanelExtent;
class PropertyList;
class RowControls;
class RowHelp;
class RuleEngine;
class ViewPanel;
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
 * - The mouse wheel scrolls, and changes only values of controls that have the focus.
 * - The hint kHostHintHelp of a row is the tool tip of its label and field.
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
    Q_PROPERTY(bool descriptionVisible READ isDescriptionVisible WRITE setDescriptionVisible)
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
    /// library's check box, or another button, stays as it is.
    bool isGroupOpen(const PropertyUI::Property *group) const;
    void setGroupOpen(const PropertyUI::Property *group, bool open);

    /// Whether the user can drag the line between labels and fields, in the gap between the two; not
    /// at first. A double click there makes the width automatic again.
    bool isSplitterMovable() const { return m_isSplitterMovable; }
    void setSplitterMovable(bool movable);

    /// The width of the labels in pixels, on all pages; -1, as at first, where it is automatic: that
    /// of the widest label on each page. Labels that are wider are cut off.
    int labelWidth() const;
    void setLabelWidth(int width);

    /// Whether the wheel changes only values of controls with the focus; true at first.
    bool isWheelGuarded() const;
    void setWheelGuarded(bool guarded);

    /// Whether a line below the rows tells label and help of the row under the pointer or, without
    /// one, of the row with the focus; not at first.
    bool isDescriptionVisible() const;
    void setDescriptionVisible(bool visible);

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
    QPointer<ViewPanel> m_panel;    // owned by m_area
    QPointer<PanelExtent> m_extent; // owned by the panel, as are the next
    QPointer<LabelSplitter> m_splitter;
    QPointer<RowControls> m_controls;
    std::unique_ptr<RowHelp> m_help;
    std::unique_ptr<RuleEngine> m_rules;
    std::unique_ptr<RowFeatures> m_features;
    std::unique_ptr<PanelState> m_state; // of the panels so far, or as it was restored
    int m_installations = 0;             // begun so far: the last one wins
    bool m_isSplitterMovable = false;
    bool m_isPlacePending = false; // until the rows are where they belong
};

} // namespace Tessark::PropertyHost
