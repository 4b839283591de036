#include "host/ViewSearch_p.h"

#include "host/PanelExtent_p.h"
#include "host/PanelMemory_p.h"
#include "host/PanelSearch_p.h"
#include "host/SearchBar_p.h"
#include "host/ViewPanel_p.h"

#include <QBoxLayout>
#include <QScrollArea>
#include <QScrollBar>
#include <QShortcut>
#include <QTabBar>

#include <utility>

namespace Tessark::PropertyHost {

namespace {

constexpr int kScrollMargin = 8; // between the current match and the edge of the view

QShortcut *makeKey(const QKeySequence &key, QWidget *view)
{
    auto *const shortcut = new QShortcut(key, view);
    shortcut->setContext(Qt::WidgetWithChildrenShortcut);
    return shortcut;
}

/// The first control of a field that takes the focus, or null.
QWidget *firstControl(QWidget *field)
{
    QWidget *control = field;
    do {
        if ((control->focusPolicy() & Qt::TabFocus) && control->isEnabled() && control->isVisible()
            && (control == field || field->isAncestorOf(control)))
            return control;
        control = control->nextInFocusChain();
    } while (control != field);
    return nullptr;
}

} // namespace

ViewSearch::ViewSearch(QWidget *view, QScrollArea *area)
    : QObject(view)
    , m_view(view)
    , m_area(area)
    , m_openKey(makeKey(QKeySequence::Find, view))
    , m_nextKey(makeKey(Qt::Key_F3, view))
    , m_previousKey(makeKey(int(Qt::SHIFT) | int(Qt::Key_F3), view))
{
    m_nextKey->setEnabled(false);
    m_previousKey->setEnabled(false);
    connect(m_openKey, &QShortcut::activated, this, &ViewSearch::open);
    connect(m_nextKey, &QShortcut::activated, this, [this] { walk(1); });
    connect(m_previousKey, &QShortcut::activated, this, [this] { walk(-1); });
}

bool ViewSearch::isEnabled() const
{
    return m_openKey->isEnabled();
}

void ViewSearch::setEnabled(bool enabled)
{
    m_openKey->setEnabled(enabled);
}

bool ViewSearch::isOpen() const
{
    return m_isOpen;
}

bool ViewSearch::hasFocus() const
{
    const QWidget *const focused = m_view->window()->focusWidget();
    return m_bar && focused && m_bar->isAncestorOf(focused);
}

void ViewSearch::open()
{
    show();
    m_bar->takeFocus();
}

void ViewSearch::close()
{
    if (!isOpen())
        return;
    m_isOpen = false; // other properties that come meanwhile are not searched
    const QPointer<ViewSearch> self(this);
    const QPointer<PanelSearch> search = m_search;
    const int walkedTo =
        search && search->current() >= 0 ? search->matches().at(search->current()) : -1;
    const int top = topOf(walkedTo);
    if (search)
        search->end();
    if (self)
        returnFocus(search ? walkedTo : -1);
    if (!self)
        return;
    hide();
    if (search)
        restorePlace(walkedTo, top);
    delete search;
}

QString ViewSearch::text() const
{
    return isOpen() ? m_bar->text() : QString();
}

void ViewSearch::setText(const QString &text)
{
    if (text == this->text())
        return;
    show();
    m_bar->setText(text);
    searchIn();
}

bool ViewSearch::isOnlyChanged() const
{
    return isOpen() && m_bar->isOnlyChanged();
}

void ViewSearch::setOnlyChanged(bool onlyChanged)
{
    if (onlyChanged == isOnlyChanged())
        return;
    show();
    m_bar->setOnlyChanged(onlyChanged);
    searchIn();
}

void ViewSearch::follow(ViewPanel *panel, PanelExtent *extent, const PanelState &state)
{
    m_panel = panel;
    m_extent = extent;
    if (!isOpen())
        return;
    begin();
    m_search->origin().place = state.place;
    m_search->origin().focus = state.focus;
    searchIn();
}

SearchOrigin *ViewSearch::origin() const
{
    return m_search ? &m_search->origin() : nullptr;
}

void ViewSearch::update(const PropertyUI::Property *property)
{
    if (m_search)
        m_search->update(property);
}

void ViewSearch::valuesChanged()
{
    if (m_search)
        m_search->valuesChanged();
}

void ViewSearch::giveBack()
{
    if (m_search)
        m_search->origin().giveBack();
}

void ViewSearch::takeAgain()
{
    if (m_search)
        m_search->takeAgain();
}

/// Without the focus.
void ViewSearch::show()
{
    if (isOpen())
        return;
    if (!m_bar)
        makeBar();
    m_focusBefore = m_view->window()->focusWidget();
    if (m_panel) {
        begin();
        const PanelState state = PanelMemory(*m_panel, *m_area).state();
        m_search->origin().place = state.place;
        m_search->origin().focus = state.focus;
    }
    m_isOpen = true;
    m_nextKey->setEnabled(true);
    m_previousKey->setEnabled(true);
    m_bar->show();
}

void ViewSearch::hide()
{
    m_nextKey->setEnabled(false);
    m_previousKey->setEnabled(false);
    m_bar->hide();
    m_bar->setText(QString());
    m_bar->setOnlyChanged(false);
    m_view->layout()->activate();
}

/// What the bar tells, the user's keys among it, waits until Qt is done with them: the view may go.
void ViewSearch::makeBar()
{
    m_bar = new SearchBar(m_view);
    m_bar->hide();
    static_cast<QBoxLayout *>(m_view->layout())->insertWidget(0, m_bar);
    connect(m_bar, &SearchBar::searchChanged, this, &ViewSearch::searchIn, Qt::QueuedConnection);
    connect(m_bar, &SearchBar::closeWanted, this, &ViewSearch::close, Qt::QueuedConnection);
    connect(
        m_bar, &SearchBar::nextWanted, this, [this] { walk(1); }, Qt::QueuedConnection);
    connect(
        m_bar, &SearchBar::previousWanted, this, [this] { walk(-1); }, Qt::QueuedConnection);
}

void ViewSearch::begin()
{
    m_search = new PanelSearch(*m_panel);
    m_searchedText.clear();
    m_isSearchedForChanges = false;
    connect(m_search, &PanelSearch::matchesChanged, this, &ViewSearch::showMatches);
    connect(m_search, &QObject::destroyed, this, &ViewSearch::showMatches);
    showMatches();
}

/// Searches for what the bar says, unless that has been done.
void ViewSearch::searchIn()
{
    const bool isNew = text() != m_searchedText || isOnlyChanged() != m_isSearchedForChanges;
    if (!m_search || !isOpen() || !isNew)
        return;
    m_searchedText = text();
    m_isSearchedForChanges = isOnlyChanged();
    m_area->verticalScrollBar()->setValue(0);
    m_search->search(m_searchedText, m_isSearchedForChanges);
}

/// To the next match, or, with -1, the one before; behind the last is the first.
void ViewSearch::walk(int step)
{
    const QPointer<ViewSearch> self(this);
    searchIn();
    if (!self || !m_search || m_search->matches().isEmpty())
        return;
    const auto count = static_cast<int>(m_search->matches().size());
    const int current = m_search->current();
    const int before = current < 0 && step < 0 ? 0 : current;
    m_search->setCurrent((before + step + count) % count);
    if (self && m_search && m_search->current() >= 0)
        scrollTo(m_search->matches().at(m_search->current()));
}

void ViewSearch::showMatches()
{
    if (m_search && m_search->isSearching())
        m_bar->showMatches(static_cast<int>(m_search->matches().size()), m_search->current());
    else
        m_bar->showNoSearch();
}

void ViewSearch::scrollTo(int row)
{
    const PanelRow &widgets = m_panel->rows()->at(row);
    QWidget *const field = widgets.tabs ? widgets.tabs->tabBar() : widgets.field.data();
    if (!field)
        return;
    m_extent->settle();
    m_area->ensureWidgetVisible(field, 0, kScrollMargin);
}

/// To the row that the user has walked to, or to where it was before.
void ViewSearch::returnFocus(int row)
{
    if (!hasFocus())
        return;
    QWidget *const field = row < 0 ? nullptr : m_panel->rows()->at(row).field.data();
    QWidget *const control = field ? firstControl(field) : nullptr;
    if (control)
        control->setFocus(Qt::OtherFocusReason);
    else if (m_search && m_search->origin().focus)
        PanelMemory(*m_panel, *m_area).restoreFocus(*m_search->origin().focus);
    else if (m_focusBefore)
        m_focusBefore->setFocus(Qt::OtherFocusReason);
}

/// The row where it is seen now, or everything where it was before.
void ViewSearch::restorePlace(int row, int top)
{
    m_extent->settle();
    if (row < 0) {
        PanelMemory(*m_panel, *m_area).restorePlace(m_search->origin().place);
        return;
    }
    QScrollBar *const scrollBar = m_area->verticalScrollBar();
    scrollBar->setValue(scrollBar->value() + topOf(row) - top);
    scrollTo(row);
}

/// In pixels of what is seen of the panel.
int ViewSearch::topOf(int row) const
{
    const QWidget *const field = row < 0 ? nullptr : m_panel->rows()->at(row).field.data();
    return field ? field->mapTo(m_area->viewport(), QPoint()).y() : 0;
}

SearchBreak::SearchBreak(ViewSearch *search)
    : m_search(search)
{
    search->giveBack();
}

SearchBreak::~SearchBreak()
{
    if (m_search)
        m_search->takeAgain();
}

} // namespace Tessark::PropertyHost
