#pragma once

#include <property/PropertyUI.h>

#include "support/PropertySet.h"
#include "support/RecordingDelegate.h"

#include <QLineEdit>
#include <QPointer>
#include <QWidget>

#include <functional>
#include <memory>

/// The property that a cell of the matrix is about, and the row below it, which is left alone.
inline const QString kSubjectName = QStringLiteral("subject");
inline const QString kNeighbourName = QStringLiteral("neighbour");

/// A host: a window with a panel in it, a store, and something that it does in a callback.
///
/// Everything but the store may be deleted at any time; what the pointers point to may be gone.
class Bench
{
public:
    using Description = std::function<void(TestSupport::PropertySet &)>;
    using Preparation = std::function<void(Bench &)>;

    /// Builds panel and window and shows them. The description adds the subject; preparation is what
    /// a host does to a new panel's editors, if anything.
    Bench(const Description &describe, Preparation prepare);
    ~Bench();

    Bench(const Bench &) = delete;
    Bench &operator=(const Bench &) = delete;

    /// A callback of the host's. Acts in the one that was asked for by actIn().
    void calledBack();

    /// Lets the host do something in its callback of that number, counted from 1.
    void actIn(int callback, std::function<void()> act);

    /// Deletes the panel and makes another one of the same properties, as the constructor did.
    void buildPanel();

    /// Closes what the host left and lets everything that is due happen.
    void settle();

    /// Undoes what a host did to panel and subject without deleting it.
    void restore();

    Tessark::PropertyUI::Property *property() const { return m_property; }
    Tessark::PropertyUI::PropertyEditor *editor() const;
    QWidget *widget() const;

    /// The editor's control of that class, by its place among these; null if there is none.
    template <typename Control>
    QPointer<Control> control(int index = 0) const
    {
        QWidget *const top = widget();
        if (!top)
            return nullptr;
        if (auto *const itself = qobject_cast<Control *>(top))
            return itself;
        return top->findChildren<Control *>().value(index);
    }

    std::unique_ptr<TestSupport::PropertySet> set;
    std::unique_ptr<TestSupport::RecordingDelegate> delegate;
    std::shared_ptr<void> helper; // of a tap, which lives as long as the bench
    QPointer<QWidget> window;
    QPointer<QLineEdit> elsewhere; // in the window, not in the panel
    QPointer<Tessark::PropertyUI::PropertyEditorPanel> panel;
    int callbacks = 0;
    int timerCallbacks = 0; // of those, from within the event of a widget's timer
    int acts = 0;
    int changesAtAct = 0; // that the store had seen when the host had acted

private:
    Preparation m_prepare;
    Tessark::PropertyUI::Property *m_property = nullptr;
    std::unique_ptr<Tessark::PropertyUI::Property> m_described; // as it was at first
    std::function<void()> m_act;
    int m_actIn = 0;
};
