#include "PanelWindow.h"

#include "SettingsFile.h"
#include "StandardStreams.h"
#include "Texts.h"
#include "TextureChoices.h"

#include <core/KitColors.h>
#include <host/HostHints.h>
#include <host/PropertyList.h>
#include <host/PropertyPanelView.h>
#include <host/PropertyStore.h>
#include <host/RuleEngine.h>
#include <host/UndoDelegate.h>
#include <host/UndoKeys.h>
#include <host/ValueJson.h>
#include <property/PropertyUI.h>

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QDialogButtonBox>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QStyle>
#include <QTextDocument>
#include <QToolButton>
#include <QUndoStack>
#include <QVBoxLayout>

#include <algorithm>

namespace Tessark::PropertyPanel {

namespace {

constexpr int kMargin = 12;
constexpr QSize kSmallestUsualSize(460, 240);
constexpr double kLargestShareOfScreen = 0.9;

QToolButton *makeToolButton(QAction *action)
{
    auto *const button = new QToolButton;
    button->setDefaultAction(action);
    button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    button->setAutoRaise(true);
    // A click leaves the field that is being edited its focus.
    button->setFocusPolicy(Qt::TabFocus);
    return button;
}

QLabel *makeErrorBanner()
{
    auto *const banner = new QLabel;
    banner->setObjectName(QStringLiteral("errorBanner"));
    banner->setWordWrap(true);
    banner->setTextFormat(Qt::PlainText);
    banner->setTextInteractionFlags(Qt::TextSelectableByMouse);
    banner->setStyleSheet(
        QStringLiteral("background: %1; color: white; padding: 8px; border-radius: 4px;")
            .arg(QColor(UI::kKitRed).name()));
    banner->hide();
    return banner;
}

} // namespace

PanelWindow::PanelWindow(const PropertyHost::PropertyList &list, PropertyHost::PropertyStore *store,
                         const ValuesWriter &writer)
    : m_list(list)
    , m_store(store)
    , m_writer(writer)
    , m_stack(new QUndoStack(this))
    , m_delegate(new PropertyHost::UndoDelegate(store, m_stack, this))
    , m_view(makeView())
    , m_textures(new TextureChoices(*panel(), m_view->rules()->delegate(), list.folder(), this))
    , m_pending(panel())
{
    setWindowTitle(list.title() + QStringLiteral("[*]"));
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    layout->addLayout(makeToolRow());
    layout->addWidget(m_view, 1);
    m_error = makeErrorBanner();
    layout->addWidget(m_error);
    layout->addWidget(makeButtons());
    followStack();
    auto *const keys = new PropertyHost::UndoKeys(m_stack, this);
    // What is only typed is the field's own, and so are all keys before the first step.
    keys->setFieldKeepsKeys([this] { return !m_pending.isEmpty() || m_stack->count() == 0; });
    panel()->setFocus();
}

PanelWindow::~PanelWindow()
{
    // While the window goes, the focus moves once more and the stack, a child, becomes empty.
    disconnect(qApp, nullptr, this, nullptr);
    disconnect(m_stack, nullptr, this, nullptr);
    // Before the delegate, which the panel may still call.
    delete m_view;
}

bool PanelWindow::hasUnsavedChanges() const
{
    return hasChangedValues() || !m_pending.isEmpty();
}

QSize PanelWindow::sizeHint() const
{
    const QSize contents = m_view->contentsSize();
    const int scrollBar = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
    int height = contents.height() + 2 * kMargin;
    for (int i = 0; i < layout()->count(); ++i) {
        QLayoutItem &item = *layout()->itemAt(i);
        if (!item.isEmpty() && item.widget() != m_view)
            height += item.sizeHint().height() + layout()->spacing();
    }
    return QSize(contents.width() + scrollBar + 2 * kMargin, height)
        .expandedTo(QSize(layout()->minimumSize().width(), 0))
        .expandedTo(kSmallestUsualSize)
        .boundedTo(screen()->availableSize() * kLargestShareOfScreen);
}

void PanelWindow::setSettingsPath(const QString &path)
{
    m_settingsPath = path;
    m_view->restoreState(readArrangement(path, m_list));
}

PropertyUI::PropertyEditorPanel *PanelWindow::panel() const
{
    return m_view->panel();
}

void PanelWindow::save()
{
    m_pending.commit();
    Q_EMIT aboutToSave();
    if (m_writer.hasForeignContent())
        askAboutForeignContent();
    else
        writeValues();
}

void PanelWindow::cancel()
{
    if (hasUnsavedChanges())
        askAboutChanges();
    else
        finish(ExitStatus::Cancelled);
}

void PanelWindow::undo()
{
    m_pending.commit();
    m_stack->undo();
}

void PanelWindow::redo()
{
    m_pending.commit();
    m_stack->redo();
}

void PanelWindow::resetAll()
{
    m_pending.commit();
    PropertyHost::PropertyStore defaults;
    defaults.reset(m_list);
    QVector<PropertyUI::Property *> changed;
    const auto properties = m_list.properties();
    for (PropertyUI::Property *property : properties) {
        if (!PropertyHost::isSameValue(*property, defaults.value(property),
                                       m_store->value(property)))
            changed.append(property);
    }
    if (changed.isEmpty())
        return;
    m_stack->beginMacro(tr("Reset All"));
    for (PropertyUI::Property *property : std::as_const(changed))
        m_delegate->setValue(property, defaults.value(property),
                             PropertyHost::UndoDelegate::NewChange);
    m_stack->endMacro();
    refresh();
}

void PanelWindow::closeEvent(QCloseEvent *event)
{
    event->setAccepted(m_finished);
    if (!m_finished)
        cancel();
}

void PanelWindow::keyPressEvent(QKeyEvent *event)
{
    // As a key, not as a shortcut: what is inside may use Escape for itself first.
    if (event->matches(QKeySequence::Cancel))
        cancel();
    else
        QWidget::keyPressEvent(event);
}

PropertyHost::PropertyPanelView *PanelWindow::makeView()
{
    auto *const view = new PropertyHost::PropertyPanelView;
    view->setTextsAsWritten(true);
    view->setSplitterMovable(true);
    view->setProperties(m_list, m_delegate);
    const auto properties = m_list.properties();
    view->setDescriptionVisible(
        std::any_of(properties.cbegin(), properties.cend(), [](PropertyUI::Property *property) {
            return !property->hint(PropertyHost::kHostHintHelp).toString().isEmpty();
        }));
    return view;
}

QBoxLayout *PanelWindow::makeToolRow()
{
    QAction *const undoAction =
        addUndoAction(m_stack->createUndoAction(this), tr("Undo"), QStringLiteral("edit-undo"));
    undoAction->setShortcuts(QKeySequence::Undo);
    connect(undoAction, &QAction::triggered, this, &PanelWindow::undo);
    QAction *const redoAction =
        addUndoAction(m_stack->createRedoAction(this), tr("Redo"), QStringLiteral("edit-redo"));
    redoAction->setShortcuts(QKeySequence::Redo);
    connect(redoAction, &QAction::triggered, this, &PanelWindow::redo);

    auto *const row = new QHBoxLayout;
    row->addWidget(makeToolButton(undoAction));
    row->addWidget(makeToolButton(redoAction));
    row->addStretch();
    return row;
}

QDialogButtonBox *PanelWindow::makeButtons()
{
    auto *const buttons = new QDialogButtonBox(QDialogButtonBox::Save | QDialogButtonBox::Cancel);
    QPushButton *const reset = buttons->addButton(tr("Reset All"), QDialogButtonBox::ResetRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &PanelWindow::save);
    connect(buttons, &QDialogButtonBox::rejected, this, &PanelWindow::cancel);
    connect(reset, &QPushButton::clicked, this, &PanelWindow::resetAll);

    auto *const saveAction = new QAction(tr("Save"), this);
    saveAction->setShortcuts(QKeySequence::Save);
    connect(saveAction, &QAction::triggered, this, &PanelWindow::save);
    addAction(saveAction);
    return buttons;
}

QAction *PanelWindow::addUndoAction(QAction *action, const QString &shortText, const QString &icon)
{
    // The window commits what is being typed before the stack is asked.
    disconnect(action, &QAction::triggered, m_stack, nullptr);
    action->setIconText(shortText);
    action->setIcon(QIcon::fromTheme(icon));
    const auto setToolTip = [action] {
        // The text holds a label of the list, which a tool tip would take for markup.
        action->setToolTip(Qt::convertFromPlainText(action->text(), Qt::WhiteSpaceNormal));
    };
    setToolTip();
    connect(action, &QAction::changed, action, setToolTip);
    addAction(action);
    return action;
}

/// Folding a group is a step and changes no value.
bool PanelWindow::hasChangedValues() const
{
    for (int i = 0; i < m_stack->index(); ++i) {
        if (!PropertyHost::UndoDelegate::isFolding(m_stack->command(i)))
            return true;
    }
    return false;
}

void PanelWindow::followStack()
{
    m_delegate->attach(panel()); // folds and opens groups; refresh() shows the values
    connect(m_delegate, &PropertyHost::UndoDelegate::valueRestored, this,
            [this] { m_panelIsStale = true; });
    // Once for a step of many values.
    connect(m_stack, &QUndoStack::indexChanged, this, [this] {
        if (m_panelIsStale)
            refresh();
    });
    connect(m_stack, &QUndoStack::indexChanged, this,
            [this] { setWindowModified(hasChangedValues()); });
    connect(m_textures, &TextureChoices::filesDropped, this, &PanelWindow::showProblems);
    connect(m_view->rules(), &PropertyHost::RuleEngine::rangeChanged, this,
            [this](PropertyUI::Property *property) { m_pending.noteShownValue(property); });
    connect(qApp, &QApplication::focusChanged, this, [this] { m_pending.commit(); });
}

void PanelWindow::refresh()
{
    m_panelIsStale = false;
    m_view->updateUI();
    m_textures->refresh();
    m_pending.noteShownValues();
}

/// Tells the problems on the standard error stream and in the window; without any, takes back what
/// the window told before.
void PanelWindow::showProblems(const QStringList &problems)
{
    for (const QString &problem : problems)
        printError(Texts::tr("property-panel: error: %1").arg(problem));
    m_error->setText(problems.join(QLatin1Char('\n')));
    m_error->setVisible(!problems.isEmpty());
}

void PanelWindow::writeValues()
{
    QString error = m_writer.write(m_store->toJson(m_list));
    if (error.isEmpty()) {
        m_writer.noteContent(); // not to be taken for another program's, should the settings fail
        if (!m_settingsPath.isEmpty())
            error = writeSettingsFile(m_settingsPath, *m_store, m_list, m_view->saveState());
    }
    if (error.isEmpty())
        finish(ExitStatus::Saved);
    else
        showProblems({error});
}

void PanelWindow::makeQuestion(const QString &text, const QString &information,
                               QMessageBox::StandardButtons buttons)
{
    m_question = new QMessageBox(QMessageBox::Question, m_list.title(), text, buttons, this);
    m_question->setTextFormat(Qt::PlainText);
    m_question->setInformativeText(information);
    m_question->setEscapeButton(QMessageBox::Cancel);
    m_question->setAttribute(Qt::WA_DeleteOnClose);
}

void PanelWindow::askAboutChanges()
{
    if (m_question)
        return;
    makeQuestion(tr("Save the changed values?"), tr("Changes that are not saved are lost."),
                 QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel);
    m_question->setDefaultButton(QMessageBox::Save);
    connect(m_question, &QMessageBox::finished, this, &PanelWindow::answered);
    m_question->open();
}

void PanelWindow::answered(int button)
{
    m_question = nullptr; // deleted later, and saving may ask the next one
    if (button == QMessageBox::Save)
        save();
    else if (button == QMessageBox::Discard)
        finish(ExitStatus::Cancelled);
}

void PanelWindow::askAboutForeignContent()
{
    if (m_question)
        return;
    const QString file = m_writer.path();
    showProblems({tr("%1 was written by another program meanwhile").arg(file)});
    makeQuestion(tr("Replace what another program has written to %1?").arg(file),
                 tr("It was written while this window was open."),
                 QMessageBox::Yes | QMessageBox::Cancel);
    m_question->button(QMessageBox::Yes)->setText(tr("Replace"));
    m_question->setDefaultButton(QMessageBox::Cancel);
    // The answer is about what the file holds now, and not about what comes later.
    ValuesWriter writer = m_writer;
    writer.noteContent();
    connect(m_question, &QMessageBox::finished, this, [this, writer](int button) {
        m_question = nullptr;
        if (button == QMessageBox::Yes) {
            m_writer = writer;
            save();
        }
    });
    m_question->open();
}

void PanelWindow::finish(ExitStatus status)
{
    if (m_finished)
        return;
    m_finished = true;
    if (status == ExitStatus::Cancelled && !m_settingsPath.isEmpty()) {
        const QString error = replaceArrangement(m_settingsPath, m_list, m_view->saveState());
        if (!error.isEmpty())
            printError(Texts::tr("property-panel: warning: %1").arg(error));
    }
    hide();
    Q_EMIT finished(status);
}

} // namespace Tessark::PropertyPanel
