#pragma once

#include "host/PanelState_p.h"

#include <QObject>
#include <QPointer>
#include <QString>

#include <optional>

class QScrollArea;
class QShortcut;

namespace Tessark::PropertyUI {
class Property;
}

namespace Tessark::PropertyHost {

class PanelExtent;
class PanelSearch;
class SearchBar;
class SearchOrigin;
class ViewPanel;

/**
 * The search of a view: its keys, its bar, which is made when it is first opened, and what it does with
 * the panel that the view has. Code of the host, which may delete the view, runs in each function that
 * changes something.
 */
class ViewSearch final : public QObject
{
    Q_OBJECT

public:
    /// view owns it, and has a vertical layout, with the area inside.
    ViewSearch(QWidget *view, QScrollArea *area);

    /// Whether Ctrl+F in the view opens it; true at first.
    bool isEnabled() const;
    void setEnabled(bool enabled);

    bool isOpen() const;

    /// Whether what the user types goes to it.
    bool hasFocus() const;

    void open();
    void close();

    QString text() const;
    void setText(const QString &text);
    bool isOnlyChanged() const;
    void setOnlyChanged(bool onlyChanged);

    /// Goes on in another panel. What the user has arranged, which it has already, is what is given
    /// back at the end.
    void follow(ViewPanel *panel, PanelExtent *extent, const PanelState &state);

    /// What the user has arranged while it is open; null otherwise.
    SearchOrigin *origin() const;

    /// The texts of the property, or values, may be others.
    void update(const PropertyUI::Property *property);
    void valuesChanged();

    /// Groups and tabs as the user has them, until takeAgain(): for what arranges them otherwise.
    void giveBack();
    void takeAgain();

private:
    void show();
    void hide();
    void makeBar();
    void begin();
    void searchIn();
    void walk(int step);
    void showMatches();
    void scrollTo(int row);
    void returnFocus(int row);
    void restorePlace(int row, int top);
    int topOf(int row) const;

    QWidget *m_view;
    QScrollArea *m_area;
    QShortcut *m_openKey;
    QShortcut *m_nextKey;
    QShortcut *m_previousKey;
    SearchBar *m_bar = nullptr; // owned by the view
    QPointer<ViewPanel> m_panel;
    QPointer<PanelExtent> m_extent;
    QPointer<PanelSearch> m_search; // owned by the panel
    QPointer<QWidget> m_focusBefore;
    bool m_isOpen = false;
    QString m_searchedText; // what m_search has been told last
    bool m_isSearchedForChanges = false;
};

/// Lets something else arrange the groups and tabs of a panel that is searched, as long as it lives.
class SearchBreak
{
public:
    explicit SearchBreak(ViewSearch *search);
    ~SearchBreak();

    SearchBreak(const SearchBreak &) = delete;
    SearchBreak &operator=(const SearchBreak &) = delete;

private:
    QPointer<ViewSearch> m_search;
};

} // namespace Tessark::PropertyHost
