#pragma once

#include "core/CoreExport.h"

#include <QFileDialog>
#include <QWidget>

#include <memory>

namespace Tessark::UI {

/**
 * A line with a path and a button that opens a file dialog.
 *
 * What the user types stays uncommitted, though filename() returns it, until Return or until the
 * text loses the focus; Escape brings the committed name back. Committing takes away one pair of
 * surrounding double quotes and resolves a file: URL and a leading "~/"; nothing else is changed.
 * A choice in the dialog and a dropped local file or folder are committed at once. filenameSet()
 * comes once for each committed change by the user, after the new name is in place, and never for
 * setFilename(). Whether a name exists is not checked; the file system is looked at only for
 * completions, drops and the dialog. A slot may delete the field, but not a widget outside that a
 * click has just given the focus to, nor with Qt 5 the window in which a drop ended: Qt is not done
 * with it.
 *
 * Parts for style sheets: #filenameEdit, a QLineEdit, and #browseButton, a QToolButton. The line
 * edit takes over the field's accessible name when it is shown or gets the focus. Its tool tip is
 * the text where that is cut off.
 */
class TESSARK_CORE_EXPORT FilenameField : public QWidget
{
    Q_OBJECT

public:
    /// An empty field for names of the kind that mode picks. Several files are treated as one
    /// existing file, an unknown mode as any file, and directory modes list directories only.
    FilenameField(QWidget *parent, QFileDialog::FileMode mode, bool useNativeDialogs);
    ~FilenameField() override;

    /// The text now shown, committed or not; never null.
    QString filename() const;

    /// The mode in effect.
    QFileDialog::FileMode fileMode() const;

    /// Whether the next dialog is the platform's own, where it has one, rather than Qt's.
    bool usesNativeDialogs() const;
    void setUseNativeDialogs(bool use);

    /// The filters that the dialog offers, such as "Images (*.png *.jpg)"; none by default.
    void setNameFilters(const QStringList &filters);

    /// The title of the dialog; empty, the default, leaves it to Qt.
    void setDialogTitle(const QString &title);

    /// Where the dialog opens while the field is empty, and what relative names are relative to.
    /// Empty, the default, means the directory last accepted in this process, else home.
    void setStartDirectory(const QString &directory);

    /// Keeps the user, but not setFilename(), from changing the name; off by default.
    void setReadOnly(bool readOnly);
    bool isReadOnly() const;

    /// The text shown while the field is empty; none by default.
    void setPlaceholderText(const QString &text);

public Q_SLOTS:
    /// Shows filename unchanged, up to 2^20 characters of it, and makes it the committed name.
    /// Emits nothing; a text already shown keeps its cursor and undo steps.
    void setFilename(const QString &filename);

    /// Opens the dialog, window modal, and returns; raises it if it is open already. Does nothing
    /// while the field is read-only or disabled.
    void browse();

Q_SIGNALS:
    void filenameSet();

protected:
    void changeEvent(QEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    struct State;

    bool isEditable() const;
    void translate();
    QString baseDirectory() const;
    QString droppedName(const QDropEvent *event) const;
    void openDialog();
    void startDialog(QFileDialog *dialog) const;
    void dialogAccepted(const QString &filename);
    void dialogFinished();

    const std::unique_ptr<State> m_state;
};

} // namespace Tessark::UI
