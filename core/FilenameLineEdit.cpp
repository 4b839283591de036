#include "core/FilenameLineEdit_p.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCompleter>
#include <QDir>
#include <QDragEnterEvent>
#include <QFileSystemModel>
#include <QHelpEvent>
#include <QMimeData>
#include <QSharedPointer>
#include <QStyleOptionFrame>
#include <QTextDocument>
#include <QToolTip>

namespace Tessark::UI {

namespace {

constexpr int kMaximumLength = 1 << 20;

// Tool tips beyond the first length wrap; nobody reads beyond the second, and no screen shows it.
constexpr int kOneLineToolTip = 120;
constexpr int kLongestToolTip = 4096;

// The blank that a line edit leaves on either side of its text.
constexpr int kTextMargin = 2;

QSharedPointer<QFileSystemModel> sharedModel(PathKind kind)
{
    static QWeakPointer<QFileSystemModel> directories;
    static QWeakPointer<QFileSystemModel> entries;
    const bool onlyDirectories = kind == PathKind::Directory;
    QWeakPointer<QFileSystemModel> &handle = onlyDirectories ? directories : entries;
    QSharedPointer<QFileSystemModel> model = handle.toStrongRef();
    if (!model) {
        model = QSharedPointer<QFileSystemModel>::create();
        const QDir::Filters directoriesAlone = QDir::AllDirs | QDir::NoDotAndDotDot;
        model->setFilter(onlyDirectories ? directoriesAlone : directoriesAlone | QDir::Files);
        model->setRootPath(QDir::rootPath());
        handle = model;
    }
    return model;
}

/// Completes the path in edit from the model of kind, which lives as long as any completer uses it.
class PathCompleter final : public QCompleter
{
public:
    PathCompleter(PathKind kind, QLineEdit *edit)
        : QCompleter(edit)
        , m_model(sharedModel(kind))
    {
        setModel(m_model.get());
        connect(edit, &QLineEdit::textEdited, this, &PathCompleter::loadDirectoryOf);
        loadDirectoryOf(edit->text());
    }

private:
    // The base takes what the model has and waits for more, but asks for nothing itself.
    void loadDirectoryOf(const QString &path)
    {
        const QModelIndex directory = m_model->index(directoryPart(path));
        if (m_model->canFetchMore(directory))
            m_model->fetchMore(directory);
    }

    QSharedPointer<QFileSystemModel> m_model;
};

bool isReturn(const QKeyEvent *event)
{
    return event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
}

// A path is shown as it stands even if it looks like markup.
QString toolTipFor(const QString &path)
{
    QString text = path;
    if (text.size() > kLongestToolTip) {
        const int half = kLongestToolTip / 2;
        text = text.left(half) + QChar(0x2026) + text.right(half);
    }
    if (text.size() <= kOneLineToolTip && !Qt::mightBeRichText(text))
        return text;
    return QStringLiteral("<p style=\"white-space:pre-wrap\">%1</p>").arg(text.toHtmlEscaped());
}

} // namespace

FilenameLineEdit::FilenameLineEdit(PathKind kind, QWidget *parent)
    : QLineEdit(parent)
    , m_kind(kind)
{
    connect(this, &QLineEdit::textEdited, this, &FilenameLineEdit::offerCompletions);
}

FilenameLineEdit::~FilenameLineEdit() = default;

void FilenameLineEdit::showName(const QString &name)
{
    if (text() != name) {
        if (name.size() > maxLength())
            raiseLimit();
        setText(name);
    }
    m_committedName = text();
}

void FilenameLineEdit::commitName(const QString &name)
{
    const QString previousName = m_committedName;
    showName(name);
    if (m_committedName != previousName)
        Q_EMIT nameCommitted();
}

QString FilenameLineEdit::enteredName() const
{
    return text() == m_committedName ? m_committedName : cleanedPath(text());
}

void FilenameLineEdit::holdWhile(const QObject *other)
{
    m_holder = other;
}

bool FilenameLineEdit::event(QEvent *event)
{
    switch (event->type()) {
    case QEvent::ShortcutOverride:
        if (undoneBy(static_cast<QKeyEvent *>(event))) {
            event->accept();
            return true;
        }
        break;
    case QEvent::ToolTip:
        if (isCutOff()) {
            QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(), toolTipFor(text()),
                               this);
            return true;
        }
        break;
    case QEvent::Polish:
        raiseLimit();
        break;
    case QEvent::Show:
    case QEvent::FocusIn:
        takeAccessibleName();
        break;
    default:
        break;
    }
    return QLineEdit::event(event);
}

// The base announces its own signals first, so that a slot of ours may delete the field: nothing of
// it is touched afterwards.
void FilenameLineEdit::keyPressEvent(QKeyEvent *event)
{
    if (undoneBy(event)) {
        setText(m_committedName);
        event->accept();
        return;
    }
    const bool completing = isCompletionShown();
    const bool picksCompletion = completing && completer()->popup()->currentIndex().isValid();
    const QPointer<FilenameLineEdit> self(this);
    QLineEdit::keyPressEvent(event);
    if (!self || !isReturn(event) || picksCompletion)
        return;
    // A completer that hands a key on still needs the line edit when the key has been dealt with.
    if (completing)
        QMetaObject::invokeMethod(this, &FilenameLineEdit::commitText, Qt::QueuedConnection);
    else
        commitText();
}

void FilenameLineEdit::focusOutEvent(QFocusEvent *event)
{
    const QPointer<FilenameLineEdit> self(this);
    QLineEdit::focusOutEvent(event);
    if (!self || m_holder)
        return;
    const QWidget *popup = QApplication::activePopupWidget();
    const bool ownMenu =
        event->reason() == Qt::PopupFocusReason && popup && popup->parentWidget() == this;
    if (!ownMenu)
        commitText();
}

// Tab commits before the focus moves: Qt goes on with the widget that gets it, which a slot may
// delete together with the field.
bool FilenameLineEdit::focusNextPrevChild(bool next)
{
    const QPointer<FilenameLineEdit> self(this);
    commitText();
    return !self || QLineEdit::focusNextPrevChild(next);
}

void FilenameLineEdit::dragEnterEvent(QDragEnterEvent *event)
{
    // Ignored, a drag goes on to the field, which knows what to do with URLs.
    if (event->mimeData()->hasUrls())
        event->ignore();
    else
        QLineEdit::dragEnterEvent(event);
}

void FilenameLineEdit::dropEvent(QDropEvent *event)
{
    QLineEdit::dropEvent(event);
    // Without the focus the new text could not be committed by leaving.
    if (event->isAccepted())
        setFocus(Qt::OtherFocusReason);
}

// Raising the limit costs as much as setting a text, so it waits until somebody can type or a name
// needs it.
void FilenameLineEdit::raiseLimit()
{
    if (maxLength() < kMaximumLength)
        setMaxLength(kMaximumLength);
}

void FilenameLineEdit::commitText()
{
    if (text() != m_committedName)
        commitName(enteredName());
}

bool FilenameLineEdit::isCutOff() const
{
    if (text().size() > kLongestToolTip)
        return true;
    QStyleOptionFrame option;
    initStyleOption(&option);
    const QRect contents = style()->subElementRect(QStyle::SE_LineEditContents, &option, this);
    const QMargins margins = textMargins();
    const int room = contents.width() - margins.left() - margins.right() - 2 * kTextMargin;
    return fontMetrics().horizontalAdvance(displayText()) > room;
}

bool FilenameLineEdit::isCompletionShown() const
{
    return completer() && completer()->popup()->isVisible();
}

/// Whether event is the Escape that brings the committed name back.
bool FilenameLineEdit::undoneBy(const QKeyEvent *event) const
{
    return event->key() == Qt::Key_Escape && event->modifiers() == Qt::NoModifier
           && text() != m_committedName && !isCompletionShown();
}

void FilenameLineEdit::offerCompletions()
{
    if (!completer())
        setCompleter(new PathCompleter(m_kind, this));
}

// Nothing tells when an accessible name is set, so it is fetched when somebody may want to read it.
void FilenameLineEdit::takeAccessibleName()
{
    const QString name = parentWidget()->accessibleName();
    if (!name.isEmpty() && name != accessibleName())
        setAccessibleName(name);
}

} // namespace Tessark::UI
