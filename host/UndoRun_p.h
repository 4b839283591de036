#pragma once

#include <QObject>
#include <QPointer>
#include <QUndoCommand>

namespace Tessark::PropertyUI {
class Property;
}

namespace Tessark::PropertyHost {

/**
 * One step of an undo stack: a lone change of a row or a whole interactive run, which grows by what is
 * pushed after it.
 *
 * A delegate derives its commands from it, and counts its runs; only commands of one delegate, row and
 * run become one. Such a command takes the later one's outcome over and keeps its own origin, so a run
 * needs the memory of two values however long it is.
 */
class UndoRun : public QUndoCommand
{
public:
    /// Of what owner has done already: the first redo(), which pushing calls, does nothing. The text is
    /// the row's label, or its name without one.
    UndoRun(const QObject *owner, const PropertyUI::Property *property, quint64 run);

    int id() const final;
    void undo() final;
    void redo() final;
    bool mergeWith(const QUndoCommand *other) final;

protected:
    virtual void restoreOrigin() = 0;
    virtual void restoreOutcome() = 0;

    /// Takes the outcome of a later command of the same kind over. False when that is the origin, so
    /// that nothing is left to undo.
    virtual bool takeOutcome(const UndoRun &later) = 0;

private:
    QPointer<const QObject> m_owner;
    const PropertyUI::Property *m_property; // not owned
    quint64 m_run;
    bool m_isPushed = false;
};

} // namespace Tessark::PropertyHost
