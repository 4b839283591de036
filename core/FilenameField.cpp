#include "core/FilenameField.h"

#include "core/FilenameLineEdit_p.h"
#include "core/QtCompat_p.h"

#include <QDropEvent>
#include <QHBoxLayout>
#include <QMimeData>
#include <QPointer>
#include <QToolButton>

namespace Tessark::UI {

namespace {

constexpr int kSpacing = 2;

QFileDialog::FileMode effectiveMode(QFileDialog::FileMode mode)
{
    if (picksDirectory(mode))
        return mode;
    // The field holds one name.
    const bool existing = mode == QFileDialog::ExistingFile || mode == QFileDialog::ExistingFiles;
    return existing ? QFileDialog::ExistingFile : QFileDialog::AnyFile;
}

PathKind kindOf(QFileDialog::FileMode mode)
{
    if (picksDirectory(mode))
        return PathKind::Directory;
    return mode == QFileDialog::ExistingFile ? PathKind::ExistingFile : PathKind::AnyFile;
}

QString &lastAcceptedDirectory()
{
    static QString directory;
    return directory;
}

} // namespace

struct FilenameField::State
{
    State(QWidget *field, QFileDialog::FileMode fileMode, bool useNativeDialogs);

    const QFileDialog::FileMode mode;
    const PathKind kind;
    bool nativeDialogs;
    FilenameLineEdit *const edit;
    QToolButton *const button;
    QPointer<QFileDialog> dialog; // while it is open
    QString dialogTitle;
    QString startDirectory;
    QStringList nameFilters;
};

FilenameField::State::State(QWidget *field, QFileDialog::FileMode fileMode, bool useNativeDialogs)
    : mode(effectiveMode(fileMode))
    , kind(kindOf(mode))
    , nativeDialogs(useNativeDialogs)
    , edit(new FilenameLineEdit(kind, field))
    , button(new QToolButton(field))
{
    edit->setObjectName(QStringLiteral("filenameEdit"));
    button->setObjectName(QStringLiteral("browseButton"));
    button->setText(QStringLiteral("..."));
    // A click on the button must not end the edit, so it takes no click focus.
    button->setFocusPolicy(Qt::TabFocus);
    // The line edit alone decides the height.
    button->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Ignored);
}

FilenameField::FilenameField(QWidget *parent, QFileDialog::FileMode mode, bool useNativeDialogs)
    : QWidget(parent)
    , m_state(std::make_unique<State>(this, mode, useNativeDialogs))
{
    auto *const row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(kSpacing);
    row->addWidget(m_state->edit, 1);
    row->addWidget(m_state->button);
    setFocusProxy(m_state->edit);
    setSizePolicy(m_state->edit->sizePolicy());
    setAcceptDrops(true);
    translate();
    connect(m_state->edit, &FilenameLineEdit::nameCommitted, this, &FilenameField::filenameSet);
    connect(m_state->button, &QToolButton::clicked, this, &FilenameField::browse);
}

FilenameField::~FilenameField()
{
    // Otherwise the base would take the focus from the line edit, which would commit once more.
    setFocusProxy(nullptr);
}

QString FilenameField::filename() const
{
    return m_state->edit->text();
}

QFileDialog::FileMode FilenameField::fileMode() const
{
    return m_state->mode;
}

bool FilenameField::usesNativeDialogs() const
{
    return m_state->nativeDialogs;
}

void FilenameField::setUseNativeDialogs(bool use)
{
    m_state->nativeDialogs = use;
}

void FilenameField::setNameFilters(const QStringList &filters)
{
    m_state->nameFilters = filters;
}

void FilenameField::setDialogTitle(const QString &title)
{
    m_state->dialogTitle = title;
}

void FilenameField::setStartDirectory(const QString &directory)
{
    m_state->startDirectory = directory;
}

void FilenameField::setReadOnly(bool readOnly)
{
    m_state->edit->setReadOnly(readOnly);
    m_state->button->setEnabled(!readOnly);
}

bool FilenameField::isReadOnly() const
{
    return m_state->edit->isReadOnly();
}

void FilenameField::setPlaceholderText(const QString &text)
{
    m_state->edit->setPlaceholderText(text);
}

void FilenameField::setFilename(const QString &filename)
{
    m_state->edit->showName(filename);
}

void FilenameField::browse()
{
    if (m_state->dialog) {
        m_state->dialog->raise();
        m_state->dialog->activateWindow();
    } else if (isEditable()) {
        openDialog();
    }
}

void FilenameField::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        translate();
}

void FilenameField::dragEnterEvent(QDragEnterEvent *event)
{
    event->setDropAction(Qt::CopyAction);
    event->setAccepted(!droppedName(event).isEmpty());
}

// Moves arrive only after the drag was accepted on entering; nothing is looked up again for them.
void FilenameField::dragMoveEvent(QDragMoveEvent *event)
{
    event->setDropAction(Qt::CopyAction);
    event->setAccepted(isEditable());
}

void FilenameField::dropEvent(QDropEvent *event)
{
    const QString name = droppedName(event);
    event->setDropAction(Qt::CopyAction);
    event->setAccepted(!name.isEmpty());
    if (!name.isEmpty())
        m_state->edit->commitName(name);
}

bool FilenameField::isEditable() const
{
    return isEnabled() && !isReadOnly();
}

void FilenameField::translate()
{
    m_state->button->setAccessibleName(tr("Browse"));
}

QString FilenameField::baseDirectory() const
{
    if (!m_state->startDirectory.isEmpty())
        return m_state->startDirectory;
    const QString &lastAccepted = lastAcceptedDirectory();
    return lastAccepted.isEmpty() ? QDir::homePath() : lastAccepted;
}

/// The name that a drop of event would set; empty if the field refuses it. A source that offers no
/// copy is refused: a move would let it delete the file.
QString FilenameField::droppedName(const QDropEvent *event) const
{
    if (!isEditable() || !event->possibleActions().testFlag(Qt::CopyAction))
        return QString();
    return firstUsablePath(event->mimeData()->urls(), m_state->kind);
}

void FilenameField::openDialog()
{
    auto *const dialog = new QFileDialog(this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setOption(QFileDialog::DontUseNativeDialog, !m_state->nativeDialogs);
    const bool forDirectory = m_state->kind == PathKind::Directory;
    dialog->setFileMode(forDirectory ? QFileDialog::Directory : m_state->mode);
    // After the mode, since Qt 5 sets this option along with it.
    dialog->setOption(QFileDialog::ShowDirsOnly, forDirectory);
    if (!m_state->nameFilters.isEmpty())
        dialog->setNameFilters(m_state->nameFilters);
    if (!m_state->dialogTitle.isEmpty())
        dialog->setWindowTitle(m_state->dialogTitle);
    startDialog(dialog);
    connect(dialog, &QDialog::finished, this, &FilenameField::dialogFinished);
    // Queued: the dialog goes on with itself after the signal, while a slot may delete the field.
    connect(dialog, &QFileDialog::fileSelected, this, &FilenameField::dialogAccepted,
            Qt::QueuedConnection);
    // Qt 5 takes what is found while "/a/12" is typed, "/a/1", for chosen as well, and then tells of
    // no single one. The last is what was typed.
    connect(
        dialog, &QFileDialog::filesSelected, this,
        [this](const QStringList &names) {
            if (names.size() > 1)
                dialogAccepted(names.constLast());
        },
        Qt::QueuedConnection);
    m_state->dialog = dialog;
    // The dialog takes the focus away from half-typed text, which it is not to commit.
    m_state->edit->holdWhile(dialog);
    dialog->open();
}

void FilenameField::startDialog(QFileDialog *dialog) const
{
    const DialogStart start = dialogStart(m_state->edit->enteredName(), baseDirectory());
    dialog->setDirectory(start.directory);
    if (!start.file.isEmpty() && m_state->kind != PathKind::Directory)
        dialog->selectFile(start.file);
}

void FilenameField::dialogAccepted(const QString &filename)
{
    if (!isEditable())
        return;
    lastAcceptedDirectory() =
        m_state->kind == PathKind::Directory ? filename : QFileInfo(filename).path();
    m_state->edit->commitName(filename);
}

void FilenameField::dialogFinished()
{
    m_state->dialog.clear();
    m_state->edit->holdWhile(nullptr);
}

} // namespace Tessark::UI
