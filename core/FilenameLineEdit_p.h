#pragma once

#include "core/FilePaths_p.h"

#include <QLineEdit>
#include <QPointer>

namespace Tessark::UI {

/**
 * The text part of a FilenameField: a line edit that knows which name is committed.
 *
 * What is typed, pasted or picked from the completions stays uncommitted until Return or until the
 * focus leaves; Escape brings the committed name back. nameCommitted() comes once for each
 * committed change of the user, never for showName().
 */
class FilenameLineEdit final : public QLineEdit
{
    Q_OBJECT

public:
    FilenameLineEdit(PathKind kind, QWidget *parent);
    ~FilenameLineEdit() override;

    /// Shows name, which becomes the committed one, and emits nothing.
    void showName(const QString &name);

    /// Takes name as the user's choice and announces it if it is another than the committed one.
    void commitName(const QString &name);

    /// The name that the text now shown stands for: what committing it would make of it.
    QString enteredName() const;

    /// Losing the focus commits nothing while other lives. It is not owned; null ends the hold.
    void holdWhile(const QObject *other);

Q_SIGNALS:
    void nameCommitted();

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    bool focusNextPrevChild(bool next) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    void raiseLimit();
    void commitText();
    bool isCutOff() const;
    bool isCompletionShown() const;
    bool undoneBy(const QKeyEvent *event) const;
    void offerCompletions();
    void takeAccessibleName();

    const PathKind m_kind;
    QString m_committedName;
    QPointer<const QObject> m_holder;
};

} // namespace Tessark::UI
