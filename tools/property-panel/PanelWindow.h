#pragma once

#include "ExitStatus.h"
#include "PendingEdits.h"
#include "ValuesWriter.h"

#include <QMessageBox>
#include <QPointer>
#include <QWidget>

#include <optional>

class QAction;
class QBoxLayout;
class QDialogButtonBox;
class QLabel;
class QUndoStack;

namespace Tessark::PropertyUI {
class PropertyEditorPanel;
}

namespace Tessark::PropertyHost {
class PropertyList;
class PropertyPanelView;
class PropertyStore;
class UndoDelegate;
} // namespace Tessark::PropertyHost

namespace Tessark::PropertyPanel {

class TextureChoices;

/**
 * The program's window: a PropertyPanelView, undo and redo, and the buttons Save, Cancel and
 * "Reset All". A list with help texts has the line that tells them.
 *
 * Save writes the values and finishes; when that fails, the window stays and tells why. When another
 * program has written the file meanwhile, it asks before it replaces that. Cancel,
 * Escape and closing the window are the same; they ask first when there are unsaved changes. Text
 * that was typed but not committed counts as a change everywhere. Pictures dropped on a texture row
 * are added to it; the window tells which could not be. The list's rules hold. The list and the store
 * must outlive the window.
 */
class PanelWindow : public QWidget
{
    Q_OBJECT

public:
    PanelWindow(const PropertyHost::PropertyList &list, PropertyHost::PropertyStore *store,
                const ValuesWriter &writer);
    ~PanelWindow() override;

    /// True when values were changed since the window started, and not changed back by undo.
    bool hasUnsavedChanges() const;

    /// Save writes the values to this INI file as well, none of them by default, and how the user has
    /// arranged the panel. That is taken from the file now, and written when the user cancels, too,
    /// where the file had it before.
    void setSettingsPath(const QString &path);

    /// The panel in the window, which owns it.
    PropertyUI::PropertyEditorPanel *panel() const;

    /// Large enough for the whole panel, if the screen is.
    QSize sizeHint() const override;

public Q_SLOTS:
    void save();
    void cancel();
    void undo();
    void redo();

    /// Sets all values to their defaults, as one undo step.
    void resetAll();

Q_SIGNALS:
    /// All edits are in the store, and are written next.
    void aboutToSave();

    /// The values were written (ExitStatus::Saved) or given up (Cancelled). Emitted once; the
    /// window is hidden by then.
    void finished(Tessark::PropertyPanel::ExitStatus status);

protected:
    void closeEvent(QCloseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    PropertyHost::PropertyPanelView *makeView();
    QBoxLayout *makeToolRow();
    QDialogButtonBox *makeButtons();
    QAction *addUndoAction(QAction *action, const QString &shortText, const QString &icon);

    bool hasChangedValues() const;
    void followStack();
    void refresh();
    void showProblems(const QStringList &problems);
    void writeValues();
    void makeQuestion(const QString &text, const QString &information,
                      QMessageBox::StandardButtons buttons);
    void askAboutChanges();
    void answered(int button);
    void askAboutForeignContent();
    void finish(ExitStatus status);

    const PropertyHost::PropertyList &m_list;
    PropertyHost::PropertyStore *m_store;
    ValuesWriter m_writer;
    QString m_settingsPath;
    QUndoStack *m_stack;
    PropertyHost::UndoDelegate *m_delegate;
    PropertyHost::PropertyPanelView *m_view;
    TextureChoices *m_textures;
    QLabel *m_error = nullptr;
    QPointer<QMessageBox> m_question;
    PendingEdits m_pending;
    bool m_panelIsStale = false; // undo or redo wrote values that the panel does not show yet
    bool m_finished = false;
};

} // namespace Tessark::PropertyPanel
