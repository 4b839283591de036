#include "host/PropertyPanelView.h"

#include "host/DescriptionLine_p.h"
#include "host/LabelElider_p.h"
#include "host/LabelSplitter_p.h"
#include "host/NumberFieldWidths_p.h"
#include "host/PanelExtent_p.h"
#include "host/PanelMemory_p.h"
#include "host/PanelState_p.h"
#include "host/PropertyList.h"
#include "host/RowControls_p.h"
#include "host/RowHelp_p.h"
#include "host/RuleEngine.h"
#include "host/SearchOrigin_p.h"
#include "host/SplitterHandle_p.h"
#include "host/TextsAsWritten.h"
#include "host/ViewPanel_p.h"
#include "host/ViewSearch_p.h"
#include "host/WheelGuard.h"

#include <QJsonDocument>
#include <QScrollArea>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace Tessark::PropertyHost {

using namespace PropertyUI;

PropertyPanelView::PropertyPanelView(QWidget *parent)
    : QWidget(parent)
    , m_area(new QScrollArea(this))
    , m_description(new DescriptionLine(this))
    , m_wheelGuard(new WheelGuard(this))
    , m_search(new ViewSearch(this, m_area))
    , m_features(std::make_unique<RowFeatures>())
    , m_state(std::make_unique<PanelState>())
{
    m_area->setFrameShape(QFrame::NoFrame);
    m_area->setWidgetResizable(true);
    m_area->setFocusPolicy(Qt::NoFocus); // what it has inside takes the keys
    m_description->hide();
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_area, 1);
    layout->addWidget(m_description);
}

PropertyPanelView::~PropertyPanelView()
{
    // Before the rules, which its delegate belongs to.
    delete m_panel;
}

void PropertyPanelView::setProperties(const QVector<Property *> &properties,
                                      IPropertyEditorDelegate *delegate,
                                      PropertyEditorContext *context)
{
    const QPointer<PropertyPanelView> self(this);
    const int installation = ++m_installations;
    m_rules.reset(); // the properties have the list's ranges again, which the new panel is to show
    auto panel = std::make_unique<ViewPanel>(properties, delegate, context);
    panel->setSource(delegate);
    if (self && m_installations == installation)
        install(std::move(panel), nullptr, delegate);
}

void PropertyPanelView::setProperties(const PropertyList &list, IPropertyEditorDelegate *delegate,
                                      PropertyEditorContext *context)
{
    const QPointer<PropertyPanelView> self(this);
    const int installation = ++m_installations;
    m_rules.reset(); // the new ones read the ranges, which the old ones may have changed
    auto rules = std::make_unique<RuleEngine>(list, delegate);
    auto panel = std::make_unique<ViewPanel>(list.properties(), rules->delegate(), context);
    panel->setSource(delegate);
    if (self && m_installations == installation)
        install(std::move(panel), std::move(rules), delegate);
}

void PropertyPanelView::clear()
{
    ++m_installations;
    *m_state = currentState();
    delete m_panel;
    m_rules.reset();
}

PropertyEditorPanel *PropertyPanelView::panel() const
{
    return m_panel;
}

RuleEngine *PropertyPanelView::rules() const
{
    return m_rules.get();
}

bool PropertyPanelView::isGroupOpen(const Property *group) const
{
    const QVector<int> rows = m_panel ? m_panel->rows()->indexesOf(group) : QVector<int>();
    if (rows.isEmpty() || !GroupFolding::isGroup(m_panel->rows()->at(rows.first())))
        return true;
    const SearchOrigin *const origin = m_search->origin();
    return origin ? origin->isOpen(rows.first())
                  : GroupFolding::isOpen(m_panel->rows()->at(rows.first()));
}

void PropertyPanelView::setGroupOpen(const Property *group, bool open)
{
    if (!m_panel)
        return;
    const SearchBreak searchBreak(m_search);
    const QVector<int> rows = m_panel->rows()->indexesOf(group);
    for (const int row : rows) {
        if (GroupFolding::isGroup(m_panel->rows()->at(row)))
            m_panel->folding().setOpen(row, open);
    }
    m_panel->folding().update();
}

QSize PropertyPanelView::contentsSize() const
{
    if (m_extent)
        m_extent->settle();
    QSize size = m_extent ? m_extent->wantedSize() : QSize(0, 0);
    for (int i = 0; i < layout()->count(); ++i) {
        QLayoutItem &item = *layout()->itemAt(i);
        if (item.isEmpty() || item.widget() == m_area)
            continue;
        size.setWidth(std::max(size.width(), item.minimumSize().width()));
        size.rheight() += item.sizeHint().height();
    }
    return size;
}

void PropertyPanelView::setTextsAsWritten(bool asWritten)
{
    m_areTextsAsWritten = asWritten;
}

void PropertyPanelView::setSplitterMovable(bool movable)
{
    m_isSplitterMovable = movable;
    if (m_splitter)
        m_splitter->setMovable(movable);
    if (m_splitterHandle)
        m_splitterHandle->placeLater();
}

int PropertyPanelView::labelWidth() const
{
    return (m_splitter ? m_splitter->labelWidth() : m_state->labelWidth).value_or(-1);
}

void PropertyPanelView::setLabelWidth(int width)
{
    m_state->labelWidth = width < 0 ? std::nullopt : std::optional(width);
    if (m_splitter)
        m_splitter->setLabelWidth(m_state->labelWidth);
}

bool PropertyPanelView::isWheelGuarded() const
{
    return m_wheelGuard->isEnabled();
}

void PropertyPanelView::setWheelGuarded(bool guarded)
{
    m_wheelGuard->setEnabled(guarded);
}

bool PropertyPanelView::isDescriptionVisible() const
{
    return !m_description->isHidden();
}

void PropertyPanelView::setDescriptionVisible(bool visible)
{
    m_description->setVisible(visible);
}

bool PropertyPanelView::isSearchEnabled() const
{
    return m_search->isEnabled();
}

void PropertyPanelView::setSearchEnabled(bool enabled)
{
    m_search->setEnabled(enabled);
}

QString PropertyPanelView::searchText() const
{
    return m_search->text();
}

void PropertyPanelView::setSearchText(const QString &text)
{
    m_search->setText(text);
}

bool PropertyPanelView::isOnlyChanged() const
{
    return m_search->isOnlyChanged();
}

void PropertyPanelView::setOnlyChanged(bool onlyChanged)
{
    m_search->setOnlyChanged(onlyChanged);
}

bool PropertyPanelView::areDefaultMarksVisible() const
{
    return m_features->defaultMarks;
}

void PropertyPanelView::setDefaultMarksVisible(bool visible)
{
    setFeature(&RowFeatures::defaultMarks, visible);
}

bool PropertyPanelView::isRowMenuEnabled() const
{
    return m_features->menu;
}

void PropertyPanelView::setRowMenuEnabled(bool enabled)
{
    setFeature(&RowFeatures::menu, enabled);
}

bool PropertyPanelView::isLabelScrubbing() const
{
    return m_features->labelScrubbing;
}

void PropertyPanelView::setLabelScrubbing(bool scrubbing)
{
    setFeature(&RowFeatures::labelScrubbing, scrubbing);
}

bool PropertyPanelView::isArithmeticEntry() const
{
    return m_features->arithmeticEntry;
}

void PropertyPanelView::setArithmeticEntry(bool arithmetic)
{
    setFeature(&RowFeatures::arithmeticEntry, arithmetic);
}

QByteArray PropertyPanelView::saveState() const
{
    return QJsonDocument(currentState().toJson()).toJson(QJsonDocument::Compact);
}

bool PropertyPanelView::restoreState(const QByteArray &state)
{
    const auto restored = PanelState::fromJson(QJsonDocument::fromJson(state).object());
    if (!restored)
        return false;
    *m_state = currentState();
    m_state->update(*restored);
    if (!m_panel)
        return true;
    const QPointer<ViewPanel> panel = m_panel;
    m_splitter->setLabelWidth(m_state->labelWidth);
    {
        const SearchBreak searchBreak(m_search);
        PanelMemory(*panel, *m_area).restoreGroupsAndTabs(*m_state);
    }
    if (!panel)
        return true;
    restorePlace();
    if (SearchOrigin *const origin = m_search->origin())
        origin->place = m_state->place;
    const QWidget *const focused = window()->focusWidget();
    if (m_state->focus && !m_search->hasFocus() && (!focused || isAncestorOf(focused)))
        PanelMemory(*panel, *m_area).restoreFocus(*m_state->focus);
    return true;
}

void PropertyPanelView::updateUI()
{
    const QPointer<ViewPanel> panel = m_panel;
    if (panel)
        panel->updateUI();
    if (panel)
        m_search->valuesChanged();
}

void PropertyPanelView::updateProperty(Property *property)
{
    const QPointer<ViewPanel> panel = m_panel;
    if (panel)
        panel->updateProperty(property);
    if (!panel || panel != m_panel)
        return;
    m_numberFields->updateLater();
    m_controls->beginUpdate(property);
    m_help->update(property);
    m_description->showHelp();
    m_controls->endUpdate(property);
    if (panel && panel == m_panel)
        m_search->update(property);
}

void PropertyPanelView::expandAll()
{
    if (!m_panel)
        return;
    const SearchBreak searchBreak(m_search);
    m_panel->folding().setAllOpen(true);
    m_panel->folding().update();
}

void PropertyPanelView::collapseAll()
{
    if (!m_panel)
        return;
    const SearchBreak searchBreak(m_search);
    m_panel->folding().setAllOpen(false);
    m_panel->folding().update();
}

void PropertyPanelView::openSearch()
{
    m_search->open();
}

void PropertyPanelView::closeSearch()
{
    m_search->close();
}

void PropertyPanelView::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    if (m_isPlacePending)
        restorePlace();
}

/// Brings a new panel into the state that the old one has and puts it in its place. Whatever host
/// code this runs may delete the view or begin another installation, which then is the one that
/// counts.
void PropertyPanelView::install(std::unique_ptr<ViewPanel> panel, std::unique_ptr<RuleEngine> rules,
                                IPropertyEditorDelegate *delegate)
{
    const QPointer<PropertyPanelView> self(this);
    const int installation = m_installations;
    if (m_areTextsAsWritten)
        showTextsAsWritten(*panel);
    // Before values are shown, so that it sees them.
    const QPointer<RowControls> controls =
        new RowControls(panel.get(), DelegateChain(delegate), *m_features);
    panel->updateUI();
    if (self && m_installations == installation && rules)
        rules->attach(panel.get());
    if (!self || m_installations != installation)
        return;
    *m_state = currentState();
    const bool hadPanel = m_panel;
    PanelMemory(*panel, *m_area).restoreGroupsAndTabs(*m_state);
    if (!self || m_installations != installation)
        return;
    std::swap(m_rules, rules); // the old ones go with the old panel
    m_controls = controls;
    connect(controls, &RowControls::menuAboutToShow, this, &PropertyPanelView::rowMenuAboutToShow);
    replacePanel(panel.release());
    restorePlace();
    m_search->follow(m_panel, m_extent, *m_state);
    if (!self || m_installations != installation || !m_panel)
        return;
    // Where there was no panel, the focus may be elsewhere; otherwise it was in the old one.
    const QWidget *const focused = window()->focusWidget();
    if (m_state->focus && !m_search->hasFocus() && (hadPanel || !focused || isAncestorOf(focused)))
        PanelMemory(*m_panel, *m_area).restoreFocus(*m_state->focus);
    if (m_controls)
        m_controls->setFeatures(*m_features); // as a callback may have set them
}

void PropertyPanelView::setFeature(bool RowFeatures::*feature, bool on)
{
    (*m_features).*feature = on;
    if (m_controls)
        m_controls->setFeatures(*m_features);
}

void PropertyPanelView::replacePanel(ViewPanel *panel)
{
    delete m_panel;
    m_panel = panel;
    m_numberFields = new NumberFieldWidths(panel);
    connect(panel, &ViewPanel::rangeShown, m_numberFields, &NumberFieldWidths::growLater);
    m_extent = new PanelExtent(panel->rows(), panel);
    connect(&panel->visibility(), &RowVisibility::pageChanges, m_extent, &PanelExtent::pageChanges);
    m_splitter = new LabelSplitter(panel->rows(), panel);
    m_splitter->setLabelWidth(m_state->labelWidth);
    m_splitter->setMovable(m_isSplitterMovable);
    new LabelElider(*panel->rows(), panel);
    m_help = std::make_unique<RowHelp>(panel->rows());
    m_wheelGuard->watch(panel);
    m_area->setWidget(panel);
    delete m_splitterHandle; // so that Tab reaches the new one behind the rows
    m_splitterHandle = new SplitterHandle(m_splitter, m_extent, panel, m_area->viewport());
    m_description->follow(panel->rows(), panel);
}

void PropertyPanelView::restorePlace()
{
    m_isPlacePending = !isVisible();
    if (m_isPlacePending || !m_panel)
        return;
    m_extent->settle();
    PanelMemory(*m_panel, *m_area).restorePlace(m_state->place);
}

/// What the user has arranged by now, and what m_state knows of other rows.
PanelState PropertyPanelView::currentState() const
{
    PanelState state = *m_state;
    if (!m_panel)
        return state;
    PanelState current = PanelMemory(*m_panel, *m_area, m_search->origin()).state();
    current.labelWidth = m_splitter->labelWidth();
    if (m_isPlacePending)
        current.place = state.place;
    state.update(current);
    return state;
}

} // namespace Tessark::PropertyHost
