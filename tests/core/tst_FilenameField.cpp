#include <core/FilenameField.h>

#include "property/QtCompat_p.h"
#include "support/FileDialogs.h"
#include "support/FileDrag.h"
#include "support/FileTree.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCompleter>
#include <QContextMenuEvent>
#include <QDialog>
#include <QFileSystemModel>
#include <QHBoxLayout>
#include <QHelpEvent>
#include <QLineEdit>
#include <QMenu>
#include <QPointer>
#include <QScrollArea>
#include <QShortcut>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>
#include <QToolTip>
#include <QTranslator>
#include <QVBoxLayout>

#include <functional>

using Tessark::PropertyUI::kDirectoryOnlyMode;
using Tessark::UI::FilenameField;

namespace {

/// A field above another line edit, in a window.
class Form : public QWidget
{
public:
    explicit Form(QFileDialog::FileMode mode = QFileDialog::AnyFile)
        : field(new FilenameField(nullptr, mode, false))
        , other(new QLineEdit)
    {
        auto *const column = new QVBoxLayout(this);
        column->addWidget(field);
        column->addWidget(other);
        resize(400, 100);
    }

    QPointer<FilenameField> field;
    QLineEdit *other;
};

QLineEdit *editOf(const QWidget *field)
{
    return field->findChild<QLineEdit *>(QStringLiteral("filenameEdit"),
                                         Qt::FindDirectChildrenOnly);
}

QToolButton *buttonOf(const QWidget *field)
{
    return field->findChild<QToolButton *>(QStringLiteral("browseButton"),
                                           Qt::FindDirectChildrenOnly);
}

QFileDialog *dialogOf(const QWidget *field)
{
    return field->findChild<QFileDialog *>();
}

/// Shows the form with the focus in the field's text.
bool showFocused(Form &form)
{
    form.show();
    form.activateWindow();
    if (!QTest::qWaitForWindowActive(&form))
        return false;
    form.field->setFocus();
    return editOf(form.field)->hasFocus();
}

void retype(QLineEdit *edit, const QString &text)
{
    edit->selectAll();
    QTest::keyClicks(edit, text);
}

QFileDialog *openDialogByClick(FilenameField *field)
{
    QTest::mouseClick(buttonOf(field), Qt::LeftButton);
    QFileDialog *const dialog = dialogOf(field);
    return dialog && QTest::qWaitForWindowExposed(dialog) ? dialog : nullptr;
}

/// What the widgets under the pointer answered to one drag.
struct DragAnswer
{
    bool entered = false;
    bool moved = false;
    bool dropped = false;
    Qt::DropAction enterAction = Qt::IgnoreAction;
    Qt::DropAction moveAction = Qt::IgnoreAction;
    Qt::DropAction dropAction = Qt::IgnoreAction;
};

/// Drags mime over widget and lets go there; as a window system does, drops only what was accepted.
DragAnswer drag(QWidget *widget, const QMimeData &mime, Qt::DropActions actions = kAllDropActions)
{
    DragAnswer answer;
    const DragOffer offer{mime, actions};
    const QPoint position = widget->rect().center();
    answer.enterAction = sendDragEvent<QDragEnterEvent>(widget, position, offer);
    answer.entered = answer.enterAction != Qt::IgnoreAction;
    answer.moveAction = sendDragEvent<QDragMoveEvent>(widget, position, offer);
    answer.moved = answer.moveAction != Qt::IgnoreAction;
    if (!answer.moved) {
        sendDragLeave(widget);
        return answer;
    }
    answer.dropAction = sendDragEvent<QDropEvent>(widget, position, offer);
    answer.dropped = answer.dropAction != Qt::IgnoreAction;
    return answer;
}

DragAnswer dragUrls(QWidget *widget, const QList<QUrl> &urls)
{
    QMimeData mime;
    mime.setUrls(urls);
    return drag(widget, mime);
}

int threadCount()
{
    return int(QDir(QStringLiteral("/proc/self/task"))
                   .entryList(QDir::Dirs | QDir::NoDotAndDotDot)
                   .size());
}

QString lengthyText()
{
    return QString(1 << 20, QLatin1Char('a'));
}

using FormAction = std::function<void(Form &)>;
using FieldAction = std::function<void(FilenameField *)>;

} // namespace

Q_DECLARE_METATYPE(FormAction)
Q_DECLARE_METATYPE(FieldAction)

class tst_FilenameField : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void hasLineEditAndButtonSideBySide();
    void heightIsTheLineEdits();
    void mirrorsRightToLeft();
    void tabVisitsTextThenButton();
    void styleSheetSelectsTheParts();
    void lineEditTakesAccessibleName();
    void buttonNameFollowsTheLanguage();
    void toolTipIsTheTextWhenCutOff_data();
    void toolTipIsTheTextWhenCutOff();
    void toolTipOfTheFieldShowsWhenTheTextFits();
    void disablingReachesBothParts();
    void readOnlyDisablesTheButton();
    void placeholderTextIsShown();

    void modeInEffect_data();
    void modeInEffect();

    void anyStringRoundTrips_data();
    void anyStringRoundTrips();
    void longerTextIsCutOnce();
    void setFilenameIsSilent();
    void setFilenameAgainKeepsCursorAndUndo();
    void setFilenameBecomesTheCommittedName();

    void typingAloneFiresNothing();
    void committingFiresOnce_data();
    void committingFiresOnce();
    void returnThenLeavingFiresOnce();
    void unchangedNameNeverFires();
    void clearingFiresOnLeaving();
    void ownMenuDoesNotCommit();
    void foreignMenuCommits();
    void blockedCommitStaysCommitted();
    void committedTextIsCleaned_data();
    void committedTextIsCleaned();
    void namesFromTheHostAreNotCleaned();
    void cleaningBackToTheCommittedNameFiresNothing();

    void escapeBringsTheCommittedNameBack();
    void escapeGoesToTheParentOtherwise();
    void escapeIsNotTakenByAShortcut();
    void escapeWithModifierIsNotOurs();

    void slotMaySetAnotherName();
    void slotMayDeleteTheField_data();
    void slotMayDeleteTheField();
    void lineEditSlotMayDeleteTheField_data();
    void lineEditSlotMayDeleteTheField();
    void destructionEmitsNothing_data();
    void destructionEmitsNothing();

    void browseOpensOneWindowModalDialog();
    void dialogIsDeletedOnClose();
    void dialogDiesWithTheField();
    void dialogFollowsTheSettings();
    void dialogModes_data();
    void dialogModes();
    void clickOnTheButtonKeepsHalfTypedText();
    void cancelKeepsHalfTypedText_data();
    void cancelKeepsHalfTypedText();
    void dialogDeletedByTheHostKeepsNoHold();
    void choiceByTyping();
    void lastOfSeveralNamesIsTheChoice();
    void choiceByClickingTheList();
    void choosingTheShownNameFiresNothing();
    void choiceReplacesHalfTypedText();
    void choiceIsRefusedWhenReadOnlyMeanwhile();
    void browseDoesNothingWithoutAccess();
    void dialogStartsAt_data();
    void dialogStartsAt();
    void dialogSelectsTheFile();
    void emptyFieldStartsAtHomeThenAtTheLastChoice();

    void dropSetsTheName_data();
    void dropSetsTheName();
    void dropIsRefused_data();
    void dropIsRefused();
    void dropIsAnsweredWithCopy();
    void dropWithoutCopyIsRefused();
    void dropOfTheShownNameFiresNothing();
    void dropReplacesHalfTypedText();
    void dropIsRefusedWithoutAccess();
    void accessLostDuringTheDragRefusesIt();
    void droppedTextGoesToTheLineEdit();
    void droppedTextElsewhereIsRefused();

    void completionStartsWithTyping();
    void completionListsDirectoriesOnlyInDirectoryMode_data();
    void completionListsDirectoriesOnlyInDirectoryMode();
    void pickingACompletionDoesNotCommit_data();
    void pickingACompletionDoesNotCommit();
    void returnOverTheCompletionsCommits();
    void slotMayDeleteTheFieldOverTheCompletions();
    void escapeOverTheCompletionsClosesThemFirst();
    void fieldsShareOneModel();
    void ownCompleterIsKept();
    void thousandFieldsMakeNoModelAndNoThread();

private:
    FileTree m_tree;
    QTemporaryDir m_home;
};

void tst_FilenameField::initTestCase()
{
    QVERIFY(m_tree.isComplete());
    QVERIFY(m_home.isValid());
    // Dialogs start at home and keep their settings there.
    qputenv("HOME", m_home.path().toUtf8());
    qputenv("XDG_CONFIG_HOME", m_home.path().toUtf8());
}

void tst_FilenameField::hasLineEditAndButtonSideBySide()
{
    Form form;
    form.show();
    const QLineEdit *const edit = editOf(form.field);
    const QToolButton *const button = buttonOf(form.field);
    const QMargins margins = form.field->layout()->contentsMargins();

    QVERIFY(edit && button);
    QCOMPARE(form.field->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly).size(), 2);
    QCOMPARE(margins, QMargins());
    QCOMPARE(edit->geometry().topLeft(), QPoint(0, 0));
    QCOMPARE(button->geometry().left() - edit->geometry().right() - 1, 2);
    QCOMPARE(button->geometry().right(), form.field->rect().right());
    QCOMPARE(button->text(), QStringLiteral("..."));
    QCOMPARE(button->accessibleName(), QStringLiteral("Browse"));
    QCOMPARE(button->focusPolicy(), Qt::TabFocus);
    QCOMPARE(form.field->focusProxy(), edit);
}

void tst_FilenameField::heightIsTheLineEdits()
{
    Form form;
    QFont tall = form.font();
    tall.setPointSize(40);
    buttonOf(form.field)->setFont(tall);
    form.show();
    const int small = form.field->height();

    QCOMPARE(small, editOf(form.field)->sizeHint().height());
    QCOMPARE(buttonOf(form.field)->height(), small);

    editOf(form.field)->setFont(tall);

    QTRY_VERIFY(form.field->height() > small);
    QCOMPARE(form.field->height(), editOf(form.field)->sizeHint().height());
}

void tst_FilenameField::mirrorsRightToLeft()
{
    Form form;
    form.setLayoutDirection(Qt::RightToLeft);
    form.show();

    QCOMPARE(buttonOf(form.field)->geometry().left(), 0);
    QCOMPARE(editOf(form.field)->geometry().right(), form.field->rect().right());
}

void tst_FilenameField::tabVisitsTextThenButton()
{
    Form form;
    QVERIFY(showFocused(form));

    QTest::keyClick(qApp->focusWidget(), Qt::Key_Tab);
    QCOMPARE(qApp->focusWidget(), buttonOf(form.field));
    QTest::keyClick(qApp->focusWidget(), Qt::Key_Tab);
    QCOMPARE(qApp->focusWidget(), form.other);
    QTest::keyClick(qApp->focusWidget(), Qt::Key_Backtab);
    QCOMPARE(qApp->focusWidget(), buttonOf(form.field));
    QTest::keyClick(qApp->focusWidget(), Qt::Key_Backtab);
    QCOMPARE(qApp->focusWidget(), editOf(form.field));
}

void tst_FilenameField::styleSheetSelectsTheParts()
{
    Form form;

    form.setStyleSheet(QStringLiteral(
        "Tessark--UI--FilenameField QLineEdit { qproperty-placeholderText: \"path\" }"
        "Tessark--UI--FilenameField #browseButton { qproperty-toolTip: \"pick\" }"));
    form.show();

    QCOMPARE(editOf(form.field)->placeholderText(), QStringLiteral("path"));
    QCOMPARE(buttonOf(form.field)->toolTip(), QStringLiteral("pick"));
}

void tst_FilenameField::lineEditTakesAccessibleName()
{
    Form form;
    form.field->setAccessibleName(QStringLiteral("Folder"));

    QVERIFY(showFocused(form));
    QCOMPARE(editOf(form.field)->accessibleName(), QStringLiteral("Folder"));

    form.other->setFocus();
    form.field->setAccessibleName(QStringLiteral("Target"));
    form.field->setFocus();
    QCOMPARE(editOf(form.field)->accessibleName(), QStringLiteral("Target"));
}

void tst_FilenameField::buttonNameFollowsTheLanguage()
{
    class Translator : public QTranslator
    {
    public:
        QString translate(const char *context, const char *text, const char *, int) const override
        {
            const bool ours = qstrcmp(context, "Tessark::UI::FilenameField") == 0;
            return ours && qstrcmp(text, "Browse") == 0 ? QStringLiteral("Suchen") : QString();
        }
        bool isEmpty() const override { return false; }
    };
    Form form;
    Translator translator;

    QCoreApplication::installTranslator(&translator);
    QTRY_COMPARE(buttonOf(form.field)->accessibleName(), QStringLiteral("Suchen"));

    QCoreApplication::removeTranslator(&translator);
    QTRY_COMPARE(buttonOf(form.field)->accessibleName(), QStringLiteral("Browse"));
}

void tst_FilenameField::toolTipIsTheTextWhenCutOff_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("toolTip");

    const QString folders = QStringLiteral("/somewhere").repeated(6);
    const QString wrapped = QStringLiteral("<p style=\"white-space:pre-wrap\">%1</p>");
    const QString longName = QStringLiteral("/somewhere").repeated(30);
    const QString half = QString(2048, QLatin1Char('a'));
    QTest::newRow("nothing when it fits") << QStringLiteral("/x") << QString();
    QTest::newRow("the text when it is cut off") << folders << folders;
    QTest::newRow("long text wraps") << longName << wrapped.arg(longName);
    QTest::newRow("markup is shown as it stands")
        << folders + QStringLiteral("/<b>x</b>")
        << wrapped.arg(folders + QStringLiteral("/&lt;b&gt;x&lt;/b&gt;"));
    QTest::newRow("the longest is whole") << half + half << wrapped.arg(half + half);
    QTest::newRow("a longer one loses its middle")
        << half + QLatin1Char('b') + half << wrapped.arg(half + QChar(0x2026) + half);
    QTest::newRow("a giant loses its middle")
        << lengthyText() << wrapped.arg(half + QChar(0x2026) + half);
}

void tst_FilenameField::toolTipIsTheTextWhenCutOff()
{
    QFETCH(const QString, name);
    QFETCH(const QString, toolTip);
    Form form;
    form.resize(200, 100);
    form.field->setFilename(name);
    QVERIFY(showFocused(form));
    QLineEdit *const edit = editOf(form.field);

    QHelpEvent help(QEvent::ToolTip, edit->rect().center(), edit->mapToGlobal(QPoint(5, 5)));
    QCoreApplication::sendEvent(edit, &help);

    QCOMPARE(QToolTip::text(), toolTip);
    QToolTip::hideText();
    QTRY_VERIFY(!QToolTip::isVisible());
}

void tst_FilenameField::toolTipOfTheFieldShowsWhenTheTextFits()
{
    Form form;
    form.field->setToolTip(QStringLiteral("where to write"));
    form.field->setFilename(QStringLiteral("/x"));
    QVERIFY(showFocused(form));
    QLineEdit *const edit = editOf(form.field);

    QHelpEvent help(QEvent::ToolTip, edit->rect().center(), edit->mapToGlobal(QPoint(5, 5)));
    QCoreApplication::sendEvent(edit, &help);

    QCOMPARE(QToolTip::text(), QStringLiteral("where to write"));
    QToolTip::hideText();
    QTRY_VERIFY(!QToolTip::isVisible());
}

void tst_FilenameField::disablingReachesBothParts()
{
    Form form;

    form.field->setEnabled(false);

    QVERIFY(!editOf(form.field)->isEnabled());
    QVERIFY(!buttonOf(form.field)->isEnabled());
}

void tst_FilenameField::readOnlyDisablesTheButton()
{
    Form form;
    QVERIFY(!form.field->isReadOnly());

    form.field->setReadOnly(true);

    QVERIFY(form.field->isReadOnly());
    QVERIFY(editOf(form.field)->isReadOnly());
    QVERIFY(editOf(form.field)->isEnabled());
    QVERIFY(!buttonOf(form.field)->isEnabled());

    form.field->setReadOnly(false);
    QVERIFY(!editOf(form.field)->isReadOnly());
    QVERIFY(buttonOf(form.field)->isEnabled());
}

void tst_FilenameField::placeholderTextIsShown()
{
    Form form;

    form.field->setPlaceholderText(QStringLiteral("no folder"));

    QCOMPARE(editOf(form.field)->placeholderText(), QStringLiteral("no folder"));
    QCOMPARE(form.field->filename(), QString());
}

void tst_FilenameField::modeInEffect_data()
{
    QTest::addColumn<QFileDialog::FileMode>("asked");
    QTest::addColumn<QFileDialog::FileMode>("inEffect");

    QTest::newRow("any file") << QFileDialog::AnyFile << QFileDialog::AnyFile;
    QTest::newRow("existing file") << QFileDialog::ExistingFile << QFileDialog::ExistingFile;
    QTest::newRow("several files") << QFileDialog::ExistingFiles << QFileDialog::ExistingFile;
    QTest::newRow("directory") << QFileDialog::Directory << QFileDialog::Directory;
    QTest::newRow("directory only") << kDirectoryOnlyMode << kDirectoryOnlyMode;
    // Where the enum ends with the number 3, each number that it can hold has a name.
    const int unknownModes = kDirectoryOnlyMode == QFileDialog::Directory ? 0 : 3;
    for (int i = 1; i <= unknownModes; ++i) {
        QTest::addRow("unknown mode %d", kDirectoryOnlyMode + i)
            << static_cast<QFileDialog::FileMode>(kDirectoryOnlyMode + i) << QFileDialog::AnyFile;
    }
}

void tst_FilenameField::modeInEffect()
{
    QFETCH(const QFileDialog::FileMode, asked);
    QFETCH(const QFileDialog::FileMode, inEffect);

    const FilenameField field(nullptr, asked, false);

    QCOMPARE(field.fileMode(), inEffect);
}

void tst_FilenameField::anyStringRoundTrips_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("empty") << QString();
    QTest::newRow("blanks") << QStringLiteral("  /a b\t ");
    QTest::newRow("line breaks") << QStringLiteral("a\nb\r\nc\u2028d\u2029e");
    QTest::newRow("null character") << QString(QStringLiteral("a") + QChar() + QStringLiteral("b"));
    QTest::newRow("control characters") << QStringLiteral("\u0001\u001b[31m\u007f");
    QTest::newRow("quotes and URL") << QStringLiteral("\"file:///a%20b\"");
    QTest::newRow("home") << QStringLiteral("~/x");
    QTest::newRow("combining and right to left")
        << QStringLiteral("e\u0301/\u05d0\u05d1/\u202eabc\u202c");
    QTest::newRow("beyond the first plane")
        << QString::fromUtf8("/\xf0\x9f\x98\x80/\xf0\x9f\x91\xa9");
    QTest::newRow("lone surrogates")
        << QString(QString(QChar(0xd800)) + QChar(0xdc00) + QChar(0xdfff));
    QTest::newRow("markup") << QStringLiteral("<img src=\"/x\"/>&amp;%1%%s{}");
    QTest::newRow("2^20 characters") << lengthyText();
    QTest::newRow("2^20 separators") << QString(1 << 20, QLatin1Char('/'));
}

void tst_FilenameField::anyStringRoundTrips()
{
    QFETCH(const QString, name);
    Form form;
    form.field->setFilename(QStringLiteral("before"));
    QVERIFY(showFocused(form));
    QSignalSpy spy(form.field, &FilenameField::filenameSet);

    form.field->setFilename(name);
    form.grab();
    QTest::keyClick(editOf(form.field), Qt::Key_Return);
    form.other->setFocus();

    QCOMPARE(form.field->filename(), name);
    QCOMPARE(spy.count(), 0);
}

void tst_FilenameField::longerTextIsCutOnce()
{
    Form form;
    QVERIFY(showFocused(form));
    QSignalSpy spy(form.field, &FilenameField::filenameSet);

    form.field->setFilename(lengthyText() + QStringLiteral("bc"));
    QTest::keyClick(editOf(form.field), Qt::Key_Return);

    QCOMPARE(form.field->filename(), lengthyText());
    QCOMPARE(spy.count(), 0);
}

void tst_FilenameField::setFilenameIsSilent()
{
    Form form;
    QSignalSpy spy(form.field, &FilenameField::filenameSet);

    form.field->setFilename(QStringLiteral("/nowhere/at/all"));

    QCOMPARE(form.field->filename(), QStringLiteral("/nowhere/at/all"));
    QCOMPARE(spy.count(), 0);
}

void tst_FilenameField::setFilenameAgainKeepsCursorAndUndo()
{
    Form form;
    QVERIFY(showFocused(form));
    QLineEdit *const edit = editOf(form.field);
    QTest::keyClicks(edit, QStringLiteral("abc"));
    edit->setCursorPosition(1);

    form.field->setFilename(QStringLiteral("abc"));

    QCOMPARE(edit->cursorPosition(), 1);
    QVERIFY(edit->isUndoAvailable());
}

void tst_FilenameField::setFilenameBecomesTheCommittedName()
{
    Form form;
    QVERIFY(showFocused(form));
    QSignalSpy spy(form.field, &FilenameField::filenameSet);
    QTest::keyClicks(editOf(form.field), QStringLiteral("typed"));

    form.field->setFilename(QStringLiteral("typed"));
    form.other->setFocus();

    QCOMPARE(spy.count(), 0);
}

void tst_FilenameField::typingAloneFiresNothing()
{
    Form form;
    QVERIFY(showFocused(form));
    QSignalSpy spy(form.field, &FilenameField::filenameSet);

    QTest::keyClicks(editOf(form.field), QStringLiteral("abc"));

    QCOMPARE(form.field->filename(), QStringLiteral("abc"));
    QCOMPARE(spy.count(), 0);
}

void tst_FilenameField::committingFiresOnce_data()
{
    QTest::addColumn<FormAction>("commit");

    QTest::newRow("Return") << FormAction(
        [](Form &form) { QTest::keyClick(editOf(form.field), Qt::Key_Return); });
    QTest::newRow("Enter") << FormAction(
        [](Form &form) { QTest::keyClick(editOf(form.field), Qt::Key_Enter); });
    QTest::newRow("Tab") << FormAction(
        [](Form &form) { QTest::keyClick(editOf(form.field), Qt::Key_Tab); });
    QTest::newRow("click elsewhere")
        << FormAction([](Form &form) { QTest::mouseClick(form.other, Qt::LeftButton); });
    QTest::newRow("focus moved by the program")
        << FormAction([](Form &form) { form.other->setFocus(); });
    QTest::newRow("disabling") << FormAction([](Form &form) { form.field->setEnabled(false); });
    QTest::newRow("hiding") << FormAction([](Form &form) { form.field->hide(); });
    QTest::newRow("another window") << FormAction([](Form &) {
        QDialog other;
        other.show();
        other.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&other));
    });
}

void tst_FilenameField::committingFiresOnce()
{
    QFETCH(const FormAction, commit);
    Form form;
    QVERIFY(showFocused(form));
    QTest::keyClicks(editOf(form.field), QStringLiteral("abc"));
    QStringList names;
    connect(form.field, &FilenameField::filenameSet, this,
            [&] { names.append(form.field->filename()); });

    commit(form);
    QCOMPARE(names, QStringList(QStringLiteral("abc")));

    commit(form);
    form.other->setFocus();
    QCOMPARE(names.size(), 1);
}

void tst_FilenameField::returnThenLeavingFiresOnce()
{
    Form form;
    QVERIFY(showFocused(form));
    QSignalSpy spy(form.field, &FilenameField::filenameSet);

    QTest::keyClicks(editOf(form.field), QStringLiteral("abc"));
    QTest::keyClick(editOf(form.field), Qt::Key_Return);
    form.other->setFocus();
    QCOMPARE(spy.count(), 1);

    form.field->setFocus();
    QTest::keyClicks(editOf(form.field), QStringLiteral("d"));
    form.other->setFocus();
    QCOMPARE(spy.count(), 2);
}

void tst_FilenameField::unchangedNameNeverFires()
{
    Form form;
    form.field->setFilename(QStringLiteral("abc"));
    QVERIFY(showFocused(form));
    QSignalSpy spy(form.field, &FilenameField::filenameSet);

    QTest::keyClicks(editOf(form.field), QStringLiteral("d"));
    QTest::keyClick(editOf(form.field), Qt::Key_Backspace);
    QTest::keyClick(editOf(form.field), Qt::Key_Return);
    form.other->setFocus();

    QCOMPARE(form.field->filename(), QStringLiteral("abc"));
    QCOMPARE(spy.count(), 0);
}

void tst_FilenameField::clearingFiresOnLeaving()
{
    Form form;
    form.field->setFilename(QStringLiteral("abc"));
    QVERIFY(showFocused(form));
    QSignalSpy spy(form.field, &FilenameField::filenameSet);

    editOf(form.field)->clear();
    QCOMPARE(spy.count(), 0);
    form.other->setFocus();

    QCOMPARE(form.field->filename(), QString());
    QCOMPARE(spy.count(), 1);
}

void tst_FilenameField::ownMenuDoesNotCommit()
{
    Form form;
    QVERIFY(showFocused(form));
    QSignalSpy spy(form.field, &FilenameField::filenameSet);
    QLineEdit *const edit = editOf(form.field);
    QTest::keyClicks(edit, QStringLiteral("abc"));

    QContextMenuEvent menuEvent(QContextMenuEvent::Mouse, QPoint(5, 5),
                                edit->mapToGlobal(QPoint(5, 5)));
    QCoreApplication::sendEvent(edit, &menuEvent);
    QTRY_VERIFY(QApplication::activePopupWidget());
    QCOMPARE(spy.count(), 0);
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
    QTRY_VERIFY(!QApplication::activePopupWidget());

    QCOMPARE(spy.count(), 0);
    QCOMPARE(form.field->filename(), QStringLiteral("abc"));
    QTest::keyClick(edit, Qt::Key_Return);
    QCOMPARE(spy.count(), 1);
}

void tst_FilenameField::foreignMenuCommits()
{
    Form form;
    QVERIFY(showFocused(form));
    QSignalSpy spy(form.field, &FilenameField::filenameSet);
    QTest::keyClicks(editOf(form.field), QStringLiteral("abc"));

    QMenu menu(&form);
    menu.addAction(QStringLiteral("Something"));
    menu.popup(form.mapToGlobal(QPoint(0, 0)));
    QVERIFY(QTest::qWaitForWindowExposed(&menu));

    QCOMPARE(spy.count(), 1);
}

void tst_FilenameField::blockedCommitStaysCommitted()
{
    Form form;
    QVERIFY(showFocused(form));
    QSignalSpy spy(form.field, &FilenameField::filenameSet);
    QTest::keyClicks(editOf(form.field), QStringLiteral("\"abc\""));

    form.field->blockSignals(true);
    QTest::keyClick(editOf(form.field), Qt::Key_Return);
    form.field->blockSignals(false);
    form.other->setFocus();

    QCOMPARE(form.field->filename(), QStringLiteral("abc"));
    QCOMPARE(spy.count(), 0);
}

void tst_FilenameField::committedTextIsCleaned_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("committed");

    const QString home = m_home.path();
    const auto row = [](const char *title, const QString &typed, const QString &committed) {
        QTest::newRow(title) << typed << committed;
    };
    row("plain", QStringLiteral("/a/b"), QStringLiteral("/a/b"));
    row("relative", QStringLiteral("a/../b/"), QStringLiteral("a/../b/"));
    row("blanks stay", QStringLiteral(" /a "), QStringLiteral(" /a "));
    row("quotes", QStringLiteral("\"/a b\""), QStringLiteral("/a b"));
    row("one pair of quotes", QStringLiteral("\"\"a\"\""), QStringLiteral("\"a\""));
    row("quotes around nothing", QStringLiteral("\"\""), QString());
    row("a lone quote", QStringLiteral("\""), QStringLiteral("\""));
    row("an opening quote", QStringLiteral("\"a"), QStringLiteral("\"a"));
    row("single quotes stay", QStringLiteral("'a'"), QStringLiteral("'a'"));
    row("URL", QStringLiteral("file:///a/b"), QStringLiteral("/a/b"));
    row("URL in capitals", QStringLiteral("FILE:///a/B"), QStringLiteral("/a/B"));
    row("percent signs", QStringLiteral("file:///a%20b%C3%A9"), QStringLiteral("/a b\u00e9"));
    row("URL of a share", QStringLiteral("file://host/share/x"), QStringLiteral("//host/share/x"));
    row("URL in quotes", QStringLiteral("\"file:///a\""), QStringLiteral("/a"));
    row("quotes in a URL", QStringLiteral("file:///%22a%22"), QStringLiteral("/\"a\""));
    row("URL without path", QStringLiteral("file:"), QStringLiteral("file:"));
    row("remote URL", QStringLiteral("http://host/a%20b"), QStringLiteral("http://host/a%20b"));
    row("home folder", QStringLiteral("~/a"), home + QStringLiteral("/a"));
    row("home itself", QStringLiteral("~/"), home + QStringLiteral("/"));
    row("a lone tilde", QStringLiteral("~"), QStringLiteral("~"));
    row("somebody's home", QStringLiteral("~root/a"), QStringLiteral("~root/a"));
    row("home in quotes", QStringLiteral("\"~/a\""), home + QStringLiteral("/a"));
    row("home in a URL", QStringLiteral("file:~/a"), home + QStringLiteral("/a"));
    row("a tilde further on", QStringLiteral("/a/~/b"), QStringLiteral("/a/~/b"));
}

void tst_FilenameField::committedTextIsCleaned()
{
    QFETCH(const QString, typed);
    QFETCH(const QString, committed);
    Form form;
    form.field->setFilename(QStringLiteral("before"));
    QVERIFY(showFocused(form));
    QSignalSpy spy(form.field, &FilenameField::filenameSet);

    editOf(form.field)->selectAll();
    editOf(form.field)->insert(typed);
    form.other->setFocus();

    QCOMPARE(form.field->filename(), committed);
    QCOMPARE(spy.count(), 1);
}

void tst_FilenameField::namesFromTheHostAreNotCleaned()
{
    Form form;
    form.field->setFilename(QStringLiteral("\"~/x\""));
    QVERIFY(showFocused(form));
    QSignalSpy spy(form.field, &FilenameField::filenameSet);

    QTest::keyClick(editOf(form.field), Qt::Key_Return);
    form.other->setFocus();

    QCOMPARE(form.field->filename(), QStringLiteral("\"~/x\""));
    QCOMPARE(spy.count(), 0);
}

void tst_FilenameField::cleaningBackToTheCommittedNameFiresNothing()
{
    Form form;
    form.field->setFilename(QStringLiteral("/a"));
    QVERIFY(showFocused(form));
    QSignalSpy spy(form.field, &FilenameField::filenameSet);

    retype(editOf(form.field), QStringLiteral("\"/a\""));
    QTest::keyClick(editOf(form.field), Qt::Key_Return);

    QCOMPARE(form.field->filename(), QStringLiteral("/a"));
    QCOMPARE(spy.count(), 0);
}

void tst_FilenameField::escapeBringsTheCommittedNameBack()
{
    Form form;
    form.field->setFilename(QStringLiteral("/a"));
    QVERIFY(showFocused(form));
    QSignalSpy spy(form.field, &FilenameField::filenameSet);
    retype(editOf(form.field), QStringLiteral("b"));

    QTest::keyClick(editOf(form.field), Qt::Key_Escape);

    QCOMPARE(form.field->filename(), QStringLiteral("/a"));
    form.other->setFocus();
    QCOMPARE(spy.count(), 0);
}

void tst_FilenameField::escapeGoesToTheParentOtherwise()
{
    QDialog dialog;
    auto *const row = new QHBoxLayout(&dialog);
    auto *const field = new FilenameField(nullptr, QFileDialog::AnyFile, false);
    row->addWidget(field);
    dialog.show();
    dialog.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    field->setFocus();
    QTest::keyClicks(editOf(field), QStringLiteral("b"));

    QTest::keyClick(editOf(field), Qt::Key_Escape);
    QVERIFY(dialog.isVisible());
    QCOMPARE(field->filename(), QString());

    QTest::keyClick(editOf(field), Qt::Key_Escape);
    QVERIFY(!dialog.isVisible());
}

void tst_FilenameField::escapeIsNotTakenByAShortcut()
{
    Form form;
    QShortcut shortcut(QKeySequence(Qt::Key_Escape), &form);
    QSignalSpy activated(&shortcut, &QShortcut::activated);
    QVERIFY(showFocused(form));
    QTest::keyClicks(editOf(form.field), QStringLiteral("b"));

    // Sent through the window, where shortcuts are looked up first.
    QTest::keyClick(form.windowHandle(), Qt::Key_Escape);
    QCOMPARE(form.field->filename(), QString());
    QCOMPARE(activated.count(), 0);

    QTest::keyClick(form.windowHandle(), Qt::Key_Escape);
    QCOMPARE(activated.count(), 1);
}

void tst_FilenameField::escapeWithModifierIsNotOurs()
{
    Form form;
    QVERIFY(showFocused(form));
    QTest::keyClicks(editOf(form.field), QStringLiteral("b"));

    QTest::keyClick(editOf(form.field), Qt::Key_Escape, Qt::ShiftModifier);

    QCOMPARE(form.field->filename(), QStringLiteral("b"));
}

void tst_FilenameField::slotMaySetAnotherName()
{
    Form form;
    QVERIFY(showFocused(form));
    QSignalSpy spy(form.field, &FilenameField::filenameSet);
    connect(form.field, &FilenameField::filenameSet, form.field,
            [&] { form.field->setFilename(QStringLiteral("/legal")); });
    QTest::keyClicks(editOf(form.field), QStringLiteral("/illegal"));

    QTest::keyClick(editOf(form.field), Qt::Key_Return);
    form.other->setFocus();

    QCOMPARE(form.field->filename(), QStringLiteral("/legal"));
    QCOMPARE(spy.count(), 1);
}

void tst_FilenameField::slotMayDeleteTheField_data()
{
    QTest::addColumn<FieldAction>("act");
    QTest::addColumn<bool>("withParent");

    const QString folder = m_tree.path("alpha");
    const QPair<const char *, FieldAction> roads[] = {
        {"Return", [](FilenameField *field) { QTest::keyClick(editOf(field), Qt::Key_Return); }},
        {"Tab", [](FilenameField *field) { QTest::keyClick(editOf(field), Qt::Key_Tab); }},
        {"moving the focus",
         [](FilenameField *field) {
             field->window()->findChild<QLineEdit *>(QStringLiteral("elsewhere"))->setFocus();
         }},
        {"a drop",
         [folder](FilenameField *field) { dragUrls(field, {QUrl::fromLocalFile(folder)}); }},
        {"a drop on the text",
         [folder](FilenameField *field) {
             dragUrls(editOf(field), {QUrl::fromLocalFile(folder)});
         }},
        {"the dialog",
         [folder](FilenameField *field) {
             QFileDialog *const dialog = openDialogByClick(field);
             QVERIFY(dialog);
             acceptByTyping(dialog, folder);
         }},
    };
    for (const auto &road : roads) {
        QTest::addRow("%s, the field", road.first) << road.second << false;
        QTest::addRow("%s, its parent", road.first) << road.second << true;
    }
}

void tst_FilenameField::slotMayDeleteTheField()
{
    QFETCH(const FieldAction, act);
    QFETCH(const bool, withParent);
    QWidget window;
    auto *const column = new QVBoxLayout(&window);
    auto *const panel = new QWidget;
    auto *const elsewhere = new QLineEdit;
    elsewhere->setObjectName(QStringLiteral("elsewhere"));
    column->addWidget(panel);
    column->addWidget(elsewhere);
    auto *const row = new QHBoxLayout(panel);
    const QPointer<FilenameField> field = new FilenameField(nullptr, QFileDialog::Directory, false);
    row->addWidget(field);
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    field->setFocus();
    QTest::keyClicks(editOf(field), QStringLiteral("typed"));
    int count = 0;
    connect(field, &FilenameField::filenameSet, &window, [&] {
        ++count;
        delete (withParent ? panel : field.data());
    });

    act(field);

    QTRY_VERIFY(!field);
    QCOMPARE(count, 1);
}

void tst_FilenameField::lineEditSlotMayDeleteTheField_data()
{
    QTest::addColumn<bool>("byReturn");

    QTest::newRow("Return") << true;
    QTest::newRow("leaving") << false;
}

void tst_FilenameField::lineEditSlotMayDeleteTheField()
{
    QFETCH(const bool, byReturn);
    Form form;
    QVERIFY(showFocused(form));
    QLineEdit *const edit = editOf(form.field);
    QTest::keyClicks(edit, QStringLiteral("typed"));
    // Qt itself goes on with the line edit when it has lost the focus, but not after Return.
    connect(edit, &QLineEdit::editingFinished, &form, [&] {
        if (byReturn)
            delete form.field.data();
        else
            form.field->deleteLater();
    });

    if (byReturn)
        QTest::keyClick(edit, Qt::Key_Return);
    else
        form.other->setFocus();

    QTRY_VERIFY(!form.field);
}

void tst_FilenameField::destructionEmitsNothing_data()
{
    QTest::addColumn<bool>("withParent");

    QTest::newRow("of the field") << false;
    QTest::newRow("of its parent") << true;
}

void tst_FilenameField::destructionEmitsNothing()
{
    QFETCH(const bool, withParent);
    QWidget window;
    auto *const row = new QHBoxLayout(&window);
    auto *const form = new Form;
    row->addWidget(form);
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    form->field->setFocus();
    QTest::keyClicks(editOf(form->field), QStringLiteral("typed"));
    QVERIFY(editOf(form->field)->hasFocus());
    QSignalSpy spy(form->field, &FilenameField::filenameSet);

    delete (withParent ? static_cast<QWidget *>(form) : form->field.data());

    QCOMPARE(spy.count(), 0);
}

void tst_FilenameField::browseOpensOneWindowModalDialog()
{
    Form form;
    QVERIFY(showFocused(form));

    const QPointer<QFileDialog> dialog = openDialogByClick(form.field);
    QVERIFY(dialog);
    QCOMPARE(dialog->windowModality(), Qt::WindowModal);
    QCOMPARE(dialog->parentWidget(), form.field.data());
    QVERIFY(dialog->testOption(QFileDialog::DontUseNativeDialog));

    form.field->browse();
    QCOMPARE(form.field->findChildren<QFileDialog *>().size(), 1);
    QVERIFY(dialog->isActiveWindow());
}

void tst_FilenameField::dialogIsDeletedOnClose()
{
    Form form;
    QVERIFY(showFocused(form));
    const QPointer<QFileDialog> dialog = openDialogByClick(form.field);
    QVERIFY(dialog);

    dialog->close();
    form.field->browse();

    QVERIFY(dialogOf(form.field));
    QTRY_VERIFY(!dialog);
    QVERIFY(dialogOf(form.field)->isVisible());
}

void tst_FilenameField::dialogDiesWithTheField()
{
    Form form;
    QVERIFY(showFocused(form));
    const QPointer<QFileDialog> dialog = openDialogByClick(form.field);
    QVERIFY(dialog);

    delete form.field.data();

    QVERIFY(!dialog);
}

void tst_FilenameField::dialogFollowsTheSettings()
{
    Form form;
    QVERIFY(!form.field->usesNativeDialogs());
    form.field->setUseNativeDialogs(true);
    QVERIFY(form.field->usesNativeDialogs());
    form.field->setDialogTitle(QStringLiteral("Where to"));
    form.field->setNameFilters({QStringLiteral("Notes (*.txt)"), QStringLiteral("All (*)")});

    form.field->browse();

    const QFileDialog *const dialog = dialogOf(form.field);
    QVERIFY(dialog);
    QVERIFY(!dialog->testOption(QFileDialog::DontUseNativeDialog));
    QCOMPARE(dialog->windowTitle(), QStringLiteral("Where to"));
    QCOMPARE(dialog->nameFilters(),
             (QStringList{QStringLiteral("Notes (*.txt)"), QStringLiteral("All (*)")}));
    QVERIFY(FilenameField(nullptr, QFileDialog::AnyFile, true).usesNativeDialogs());
}

void tst_FilenameField::dialogModes_data()
{
    QTest::addColumn<QFileDialog::FileMode>("mode");
    QTest::addColumn<QFileDialog::FileMode>("dialogMode");
    QTest::addColumn<bool>("directoriesOnly");

    QTest::newRow("any file") << QFileDialog::AnyFile << QFileDialog::AnyFile << false;
    QTest::newRow("existing file")
        << QFileDialog::ExistingFile << QFileDialog::ExistingFile << false;
    QTest::newRow("several files")
        << QFileDialog::ExistingFiles << QFileDialog::ExistingFile << false;
    QTest::newRow("directory") << QFileDialog::Directory << QFileDialog::Directory << true;
    QTest::newRow("directory only") << kDirectoryOnlyMode << QFileDialog::Directory << true;
}

void tst_FilenameField::dialogModes()
{
    QFETCH(const QFileDialog::FileMode, mode);
    QFETCH(const QFileDialog::FileMode, dialogMode);
    QFETCH(const bool, directoriesOnly);
    Form form(mode);

    form.field->browse();

    const QFileDialog *const dialog = dialogOf(form.field);
    QVERIFY(dialog);
    QCOMPARE(dialog->fileMode(), dialogMode);
    QCOMPARE(dialog->testOption(QFileDialog::ShowDirsOnly), directoriesOnly);
    QCOMPARE(dialog->acceptMode(), QFileDialog::AcceptOpen);
}

void tst_FilenameField::clickOnTheButtonKeepsHalfTypedText()
{
    // A scroll area takes the focus of clicks that nothing inside it wants.
    QScrollArea area;
    auto *const field = new FilenameField(nullptr, QFileDialog::Directory, false);
    area.setWidget(field);
    area.show();
    area.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&area));
    field->setFocus();
    QTest::keyClicks(editOf(field), QStringLiteral("half"));
    QSignalSpy spy(field, &FilenameField::filenameSet);

    // Through the window, so that the focus is given as for a real pointer.
    const QPoint position = buttonOf(field)->mapTo(&area, buttonOf(field)->rect().center());
    QTest::mousePress(area.windowHandle(), Qt::LeftButton, Qt::NoModifier, position);
    QVERIFY(editOf(field)->hasFocus());
    QTest::mouseRelease(area.windowHandle(), Qt::LeftButton, Qt::NoModifier, position);

    QVERIFY(dialogOf(field));
    QVERIFY(QTest::qWaitForWindowActive(dialogOf(field)));
    QCOMPARE(spy.count(), 0);
    QCOMPARE(field->filename(), QStringLiteral("half"));
}

void tst_FilenameField::cancelKeepsHalfTypedText_data()
{
    QTest::addColumn<bool>("byKey");

    QTest::newRow("Escape") << true;
    QTest::newRow("the window's close button") << false;
}

void tst_FilenameField::cancelKeepsHalfTypedText()
{
    QFETCH(const bool, byKey);
    Form form;
    form.field->setFilename(QStringLiteral("/before"));
    QVERIFY(showFocused(form));
    QSignalSpy spy(form.field, &FilenameField::filenameSet);
    retype(editOf(form.field), QStringLiteral("half"));
    const QPointer<QFileDialog> dialog = openDialogByClick(form.field);
    QVERIFY(dialog && QTest::qWaitForWindowActive(dialog));

    if (byKey)
        QTest::keyClick(dialog, Qt::Key_Escape);
    else
        dialog->close();
    QTRY_VERIFY(!dialog);
    form.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&form));

    QCOMPARE(form.field->filename(), QStringLiteral("half"));
    QCOMPARE(spy.count(), 0);
    QTRY_VERIFY(editOf(form.field)->hasFocus());
    form.other->setFocus();
    QCOMPARE(spy.count(), 1);
}

void tst_FilenameField::dialogDeletedByTheHostKeepsNoHold()
{
    Form form;
    QVERIFY(showFocused(form));
    QSignalSpy spy(form.field, &FilenameField::filenameSet);
    QVERIFY(openDialogByClick(form.field));

    delete dialogOf(form.field);
    form.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&form));
    form.field->setFocus();
    QTest::keyClicks(editOf(form.field), QStringLiteral("abc"));
    form.other->setFocus();

    QCOMPARE(spy.count(), 1);
}

void tst_FilenameField::choiceByTyping()
{
    Form form(QFileDialog::Directory);
    QVERIFY(showFocused(form));
    QStringList names;
    connect(form.field, &FilenameField::filenameSet, this,
            [&] { names.append(form.field->filename()); });
    const QPointer<QFileDialog> dialog = openDialogByClick(form.field);
    QVERIFY(dialog);

    acceptByTyping(dialog, m_tree.path("alpha"));

    QTRY_COMPARE(names, QStringList(m_tree.path("alpha")));
    QTRY_VERIFY(!dialog);
    form.field->setFocus();
    form.other->setFocus();
    QCOMPARE(names.size(), 1);
}

/// Qt 5 tells of "/a/1" and "/a/12" when "/a/12" is typed in a folder that its dialog knows.
void tst_FilenameField::lastOfSeveralNamesIsTheChoice()
{
    Form form(QFileDialog::Directory);
    QVERIFY(showFocused(form));
    QSignalSpy spy(form.field, &FilenameField::filenameSet);
    const QPointer<QFileDialog> dialog = openDialogByClick(form.field);
    QVERIFY(dialog);

    Q_EMIT dialog->filesSelected({m_tree.path("alpha"), m_tree.path("beta")});
    dialog->close();

    QTRY_COMPARE(form.field->filename(), m_tree.path("beta"));
    QTRY_VERIFY(!dialog);
    QCOMPARE(spy.count(), 1);
}

void tst_FilenameField::choiceByClickingTheList()
{
    Form form(QFileDialog::Directory);
    form.field->setFilename(m_tree.root());
    QVERIFY(showFocused(form));
    QSignalSpy spy(form.field, &FilenameField::filenameSet);
    const QPointer<QFileDialog> dialog = openDialogByClick(form.field);
    QVERIFY(dialog);
    auto *const view = dialog->findChild<QAbstractItemView *>(QStringLiteral("listView"));
    QVERIFY(view);

    // The list is filled in the background, with directories alone.
    QTRY_COMPARE(view->model()->rowCount(view->rootIndex()), 2);
    const QModelIndex entry = view->model()->index(1, 0, view->rootIndex());
    QCOMPARE(entry.data().toString(), QStringLiteral("beta"));
    QTest::mouseClick(view->viewport(), Qt::LeftButton, Qt::NoModifier,
                      view->visualRect(entry).center());
    QTRY_VERIFY(acceptButtonOf(dialog)->isEnabled());
    QTest::mouseClick(acceptButtonOf(dialog), Qt::LeftButton);

    QTRY_COMPARE(spy.count(), 1);
    QCOMPARE(form.field->filename(), m_tree.path("beta"));
}

void tst_FilenameField::choosingTheShownNameFiresNothing()
{
    Form form(QFileDialog::Directory);
    form.field->setFilename(m_tree.path("alpha"));
    QVERIFY(showFocused(form));
    QSignalSpy spy(form.field, &FilenameField::filenameSet);
    const QPointer<QFileDialog> dialog = openDialogByClick(form.field);
    QVERIFY(dialog);

    acceptByTyping(dialog, m_tree.path("alpha"));

    QTRY_VERIFY(!dialog);
    QCoreApplication::processEvents();
    QCOMPARE(form.field->filename(), m_tree.path("alpha"));
    QCOMPARE(spy.count(), 0);
}

void tst_FilenameField::choiceReplacesHalfTypedText()
{
    Form form(QFileDialog::ExistingFile);
    QVERIFY(showFocused(form));
    QTest::keyClicks(editOf(form.field), QStringLiteral("half"));
    QStringList names;
    connect(form.field, &FilenameField::filenameSet, this,
            [&] { names.append(form.field->filename()); });
    QFileDialog *const dialog = openDialogByClick(form.field);
    QVERIFY(dialog);

    acceptByTyping(dialog, m_tree.path("note.txt"));

    QTRY_COMPARE(names, QStringList(m_tree.path("note.txt")));
}

void tst_FilenameField::choiceIsRefusedWhenReadOnlyMeanwhile()
{
    Form form(QFileDialog::Directory);
    QVERIFY(showFocused(form));
    QSignalSpy spy(form.field, &FilenameField::filenameSet);
    const QPointer<QFileDialog> dialog = openDialogByClick(form.field);
    QVERIFY(dialog);

    form.field->setReadOnly(true);
    acceptByTyping(dialog, m_tree.path("alpha"));

    QTRY_VERIFY(!dialog);
    QCoreApplication::processEvents();
    QCOMPARE(form.field->filename(), QString());
    QCOMPARE(spy.count(), 0);
}

void tst_FilenameField::browseDoesNothingWithoutAccess()
{
    Form form;

    form.field->setReadOnly(true);
    form.field->browse();
    QVERIFY(!dialogOf(form.field));

    form.field->setReadOnly(false);
    form.field->setEnabled(false);
    form.field->browse();
    QVERIFY(!dialogOf(form.field));
}

void tst_FilenameField::dialogStartsAt_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("startDirectory");
    QTest::addColumn<QString>("directory");

    const QString root = m_tree.root();
    const QString alpha = m_tree.path("alpha");
    const QString null = QString(QStringLiteral("/x") + QChar());
    const auto row = [](const char *title, const QString &name, const QString &start,
                        const QString &directory) {
        QTest::newRow(title) << name << start << directory;
    };
    row("existing directory", alpha, root, alpha);
    row("directory with separator", alpha + QStringLiteral("/"), root, alpha);
    row("existing file", m_tree.path("note.txt"), alpha, root);
    row("missing below a directory", alpha + QStringLiteral("/a/b/c"), root, alpha);
    row("missing below a file", m_tree.path("note.txt/x/y"), alpha, root);
    row("missing from the top", QStringLiteral("/no such/folder"), root, QStringLiteral("/"));
    row("relative directory", QStringLiteral("alpha"), root, alpha);
    row("relative up", QStringLiteral("../beta"), alpha, m_tree.path("beta"));
    row("relative and missing", QStringLiteral("none/at all"), alpha, alpha);
    row("empty", QString(), alpha, alpha);
    row("empty, start missing", QString(), alpha + QStringLiteral("/none"), alpha);
    row("typed as URL", QUrl::fromLocalFile(alpha).toString(), root, alpha);
    row("typed with quotes", QStringLiteral("\"alpha\""), root, alpha);
    row("typed below home", QStringLiteral("~/none"), root, m_home.path());
    row("cut at a null character", alpha + null, root, alpha);
    row("2^20 characters", lengthyText(), alpha, alpha);
    row("2^20 characters of folders", QStringLiteral("a/").repeated(1 << 19), alpha, alpha);
    row("2^20 separators", QString(1 << 20, QLatin1Char('/')), alpha, QStringLiteral("/"));
}

void tst_FilenameField::dialogStartsAt()
{
    QFETCH(const QString, name);
    QFETCH(const QString, startDirectory);
    QFETCH(const QString, directory);
    Form form(QFileDialog::Directory);
    form.field->setStartDirectory(startDirectory);
    form.show();
    editOf(form.field)->insert(name);

    form.field->browse();

    QVERIFY(dialogOf(form.field));
    QCOMPARE(dialogOf(form.field)->directory().path(), directory);
    QCOMPARE(form.field->filename(), name);
}

void tst_FilenameField::dialogSelectsTheFile()
{
    Form form(QFileDialog::ExistingFile);
    form.field->setFilename(m_tree.path("note.txt"));

    form.field->browse();

    QVERIFY(dialogOf(form.field));
    QCOMPARE(dialogOf(form.field)->directory().path(), m_tree.root());
    QCOMPARE(dialogOf(form.field)->selectedFiles(), QStringList(m_tree.path("note.txt")));
}

void tst_FilenameField::emptyFieldStartsAtHomeThenAtTheLastChoice()
{
    // Whether an earlier test has chosen something must not matter.
    Form first(QFileDialog::ExistingFile);
    QVERIFY(showFocused(first));
    QSignalSpy firstSpy(first.field, &FilenameField::filenameSet);
    acceptByTyping(openDialogByClick(first.field), m_tree.path("note.txt"));
    QTRY_COMPARE(firstSpy.count(), 1);

    Form second(QFileDialog::Directory);
    QVERIFY(showFocused(second));
    QFileDialog *const dialog = openDialogByClick(second.field);
    QVERIFY(dialog);
    QCOMPARE(dialog->directory().path(), m_tree.root());
    QSignalSpy secondSpy(second.field, &FilenameField::filenameSet);
    acceptByTyping(dialog, m_tree.path("beta"));
    QTRY_COMPARE(secondSpy.count(), 1);

    Form third;
    third.field->browse();
    QCOMPARE(dialogOf(third.field)->directory().path(), m_tree.path("beta"));
}

void tst_FilenameField::dropSetsTheName_data()
{
    QTest::addColumn<QFileDialog::FileMode>("mode");
    QTest::addColumn<QList<QUrl>>("urls");
    QTest::addColumn<QString>("name");

    const QString folder = m_tree.path("alpha");
    const QString file = m_tree.path("note.txt");
    const QUrl folderUrl = QUrl::fromLocalFile(folder);
    const QUrl fileUrl = QUrl::fromLocalFile(file);
    const QUrl remote(QStringLiteral("https://host/x"));
    const QUrl share(QStringLiteral("file://host/share/x%20y"));
    const QUrl encoded(QStringLiteral("file:///no/such%20file%23%C3%A9"));
    const auto row = [](const char *title, QFileDialog::FileMode mode, const QList<QUrl> &urls,
                        const QString &name) { QTest::newRow(title) << mode << urls << name; };
    row("a file", QFileDialog::AnyFile, {fileUrl}, file);
    row("a folder for any file", QFileDialog::AnyFile, {folderUrl}, folder);
    row("an existing file", QFileDialog::ExistingFile, {fileUrl}, file);
    row("the first file after a folder", QFileDialog::ExistingFile, {folderUrl, fileUrl}, file);
    row("a folder", QFileDialog::Directory, {folderUrl}, folder);
    row("a file's folder", QFileDialog::Directory, {fileUrl}, m_tree.root());
    row("the first of several", QFileDialog::AnyFile, {fileUrl, folderUrl}, file);
    row("the first local one", QFileDialog::AnyFile, {remote, QUrl(), fileUrl}, file);
    row("percent signs", QFileDialog::AnyFile, {encoded}, QStringLiteral("/no/such file#\u00e9"));
    row("a share", QFileDialog::AnyFile, {share}, QStringLiteral("//host/share/x y"));
    row("a share as folder", QFileDialog::Directory, {share}, QStringLiteral("//host/share/x y"));
    row("a missing file", QFileDialog::ExistingFile, {encoded},
        QStringLiteral("/no/such file#\u00e9"));
    row("a folder, directory-only mode", kDirectoryOnlyMode, {folderUrl}, folder);
    row("a file's folder, directory-only mode", kDirectoryOnlyMode, {fileUrl}, m_tree.root());
}

void tst_FilenameField::dropSetsTheName()
{
    QFETCH(const QFileDialog::FileMode, mode);
    QFETCH(const QList<QUrl>, urls);
    QFETCH(const QString, name);

    for (const bool onText : {true, false}) {
        Form form(mode);
        form.field->setFilename(QStringLiteral("before"));
        form.show();
        QStringList names;
        connect(form.field, &FilenameField::filenameSet, this,
                [&] { names.append(form.field->filename()); });

        const DragAnswer answer = dragUrls(
            onText ? static_cast<QWidget *>(editOf(form.field)) : buttonOf(form.field), urls);

        QVERIFY(answer.entered && answer.moved && answer.dropped);
        QCOMPARE(names, QStringList(name));
        form.field->setFocus();
        form.other->setFocus();
        QCOMPARE(names.size(), 1);
    }
}

void tst_FilenameField::dropIsRefused_data()
{
    QTest::addColumn<QFileDialog::FileMode>("mode");
    QTest::addColumn<QList<QUrl>>("urls");

    const QUrl remote(QStringLiteral("https://host/x"));
    QTest::newRow("remote") << QFileDialog::AnyFile << QList<QUrl>{remote, remote};
    QTest::newRow("empty URL") << QFileDialog::AnyFile << QList<QUrl>{QUrl()};
    QTest::newRow("URL without path")
        << QFileDialog::AnyFile << QList<QUrl>{QUrl(QStringLiteral("file:"))};
    QTest::newRow("no URL") << QFileDialog::AnyFile << QList<QUrl>();
    QTest::newRow("a folder for an existing file")
        << QFileDialog::ExistingFile << QList<QUrl>{QUrl::fromLocalFile(m_tree.path("alpha"))};
    QTest::newRow("a folder for several existing files")
        << QFileDialog::ExistingFiles << QList<QUrl>{QUrl::fromLocalFile(m_tree.path("alpha"))};
}

void tst_FilenameField::dropIsRefused()
{
    QFETCH(const QFileDialog::FileMode, mode);
    QFETCH(const QList<QUrl>, urls);
    Form form(mode);
    form.show();
    QSignalSpy spy(form.field, &FilenameField::filenameSet);
    QMimeData mime;
    mime.setUrls(urls);
    // As browsers do, the source offers the address as text too.
    if (!urls.isEmpty())
        mime.setText(QStringLiteral("https://host/x"));

    for (QWidget *part :
         {static_cast<QWidget *>(editOf(form.field)), static_cast<QWidget *>(buttonOf(form.field)),
          static_cast<QWidget *>(form.field)}) {
        const DragAnswer answer = drag(part, mime);
        QVERIFY(!answer.entered && !answer.moved && !answer.dropped);
    }
    QCOMPARE(form.field->filename(), QString());
    QCOMPARE(spy.count(), 0);
}

void tst_FilenameField::dropIsAnsweredWithCopy()
{
    Form form;
    form.show();

    const DragAnswer answer = dragUrls(form.field, {QUrl::fromLocalFile(m_tree.path("alpha"))});

    QVERIFY(answer.dropped);
    QCOMPARE(answer.enterAction, Qt::CopyAction);
    QCOMPARE(answer.moveAction, Qt::CopyAction);
    QCOMPARE(answer.dropAction, Qt::CopyAction);
}

void tst_FilenameField::dropWithoutCopyIsRefused()
{
    Form form;
    form.show();
    QMimeData mime;
    mime.setUrls({QUrl::fromLocalFile(m_tree.path("alpha"))});

    const DragAnswer answer = drag(form.field, mime, Qt::MoveAction);

    QVERIFY(!answer.entered && !answer.moved && !answer.dropped);
    QCOMPARE(form.field->filename(), QString());
}

void tst_FilenameField::dropOfTheShownNameFiresNothing()
{
    Form form;
    form.field->setFilename(m_tree.path("alpha"));
    form.show();
    QSignalSpy spy(form.field, &FilenameField::filenameSet);

    QVERIFY(dragUrls(form.field, {QUrl::fromLocalFile(m_tree.path("alpha"))}).dropped);

    QCOMPARE(spy.count(), 0);
}

void tst_FilenameField::dropReplacesHalfTypedText()
{
    Form form;
    form.field->setFilename(m_tree.path("alpha"));
    QVERIFY(showFocused(form));
    QSignalSpy spy(form.field, &FilenameField::filenameSet);
    QTest::keyClicks(editOf(form.field), QStringLiteral("half"));

    QVERIFY(dragUrls(form.field, {QUrl::fromLocalFile(m_tree.path("beta"))}).dropped);
    QCOMPARE(form.field->filename(), m_tree.path("beta"));
    QCOMPARE(spy.count(), 1);

    QTest::keyClicks(editOf(form.field), QStringLiteral("half"));
    QVERIFY(dragUrls(form.field, {QUrl::fromLocalFile(m_tree.path("beta"))}).dropped);
    QCOMPARE(form.field->filename(), m_tree.path("beta"));
    QCOMPARE(spy.count(), 1);
}

void tst_FilenameField::dropIsRefusedWithoutAccess()
{
    Form form;
    form.show();
    QMimeData urls;
    urls.setUrls({QUrl::fromLocalFile(m_tree.path("alpha"))});
    QMimeData text;
    text.setText(QStringLiteral("abc"));

    form.field->setReadOnly(true);
    for (const QMimeData *mime : {&urls, &text}) {
        QVERIFY(!drag(editOf(form.field), *mime).entered);
        QVERIFY(!drag(form.field, *mime).entered);
    }
    form.field->setReadOnly(false);
    form.field->setEnabled(false);
    for (const QMimeData *mime : {&urls, &text}) {
        QVERIFY(!drag(editOf(form.field), *mime).entered);
        QVERIFY(!drag(form.field, *mime).entered);
    }
    QCOMPARE(form.field->filename(), QString());
}

void tst_FilenameField::accessLostDuringTheDragRefusesIt()
{
    Form form;
    form.show();
    QMimeData mime;
    mime.setUrls({QUrl::fromLocalFile(m_tree.path("alpha"))});
    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(form.field, &enter);
    QVERIFY(enter.isAccepted());

    form.field->setReadOnly(true);
    QDragMoveEvent move(QPoint(6, 6), Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(form.field, &move);
    QDropEvent drop(QPoint(6, 6), Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(form.field, &drop);

    QVERIFY(!move.isAccepted());
    QVERIFY(!drop.isAccepted());
    QCOMPARE(form.field->filename(), QString());
}

void tst_FilenameField::droppedTextGoesToTheLineEdit()
{
    Form form;
    QVERIFY(showFocused(form));
    form.other->setFocus();
    QSignalSpy spy(form.field, &FilenameField::filenameSet);
    QMimeData mime;
    mime.setText(QStringLiteral("abc"));

    QVERIFY(drag(editOf(form.field), mime).dropped);
    QCOMPARE(form.field->filename(), QStringLiteral("abc"));
    QCOMPARE(spy.count(), 0);

    // The text has the focus now, so that leaving commits it.
    form.other->setFocus();
    QCOMPARE(spy.count(), 1);
}

void tst_FilenameField::droppedTextElsewhereIsRefused()
{
    Form form;
    form.show();
    QMimeData mime;
    mime.setText(QStringLiteral("abc"));

    QVERIFY(!drag(buttonOf(form.field), mime).entered);
}

void tst_FilenameField::completionStartsWithTyping()
{
    Form form;
    QVERIFY(showFocused(form));
    form.field->setFilename(QStringLiteral("/"));
    form.grab();
    QVERIFY(!editOf(form.field)->completer());

    QTest::keyClicks(editOf(form.field), QStringLiteral("a"));

    QVERIFY(editOf(form.field)->completer());
    QVERIFY(qobject_cast<QFileSystemModel *>(editOf(form.field)->completer()->model()));
}

void tst_FilenameField::completionListsDirectoriesOnlyInDirectoryMode_data()
{
    QTest::addColumn<QFileDialog::FileMode>("mode");
    QTest::addColumn<QStringList>("offered");

    const QStringList everything{QStringLiteral("alpha"), QStringLiteral("beta"),
                                 QStringLiteral("note.txt")};
    QTest::newRow("any file") << QFileDialog::AnyFile << everything;
    QTest::newRow("existing file") << QFileDialog::ExistingFile << everything;
    QTest::newRow("directory") << QFileDialog::Directory << QStringList(everything.mid(0, 2));
}

void tst_FilenameField::completionListsDirectoriesOnlyInDirectoryMode()
{
    QFETCH(const QFileDialog::FileMode, mode);
    QFETCH(const QStringList, offered);
    Form form(mode);
    QVERIFY(showFocused(form));
    QLineEdit *const edit = editOf(form.field);

    QTest::keyClicks(edit, m_tree.root() + QStringLiteral("/"));

    QTRY_VERIFY(edit->completer()->popup()->isVisible());
    const auto shown = [edit] {
        QStringList names;
        const QAbstractItemModel *const model = edit->completer()->completionModel();
        for (int row = 0; row < model->rowCount(); ++row)
            names.append(model->index(row, 0).data().toString());
        names.sort();
        return names;
    };
    QTRY_COMPARE(shown(), offered);
}

void tst_FilenameField::pickingACompletionDoesNotCommit_data()
{
    QTest::addColumn<bool>("byMouse");

    QTest::newRow("by click") << true;
    QTest::newRow("by key") << false;
}

void tst_FilenameField::pickingACompletionDoesNotCommit()
{
    QFETCH(const bool, byMouse);
    Form form(QFileDialog::Directory);
    QVERIFY(showFocused(form));
    QSignalSpy spy(form.field, &FilenameField::filenameSet);
    QLineEdit *const edit = editOf(form.field);
    QTest::keyClicks(edit, m_tree.root() + QStringLiteral("/al"));
    QAbstractItemView *const popup = edit->completer()->popup();
    QTRY_VERIFY(popup->isVisible());

    if (byMouse) {
        const QModelIndex first = popup->model()->index(0, 0, popup->rootIndex());
        QTest::mouseClick(popup->viewport(), Qt::LeftButton, Qt::NoModifier,
                          popup->visualRect(first).center());
    } else {
        QTest::keyClick(popup, Qt::Key_Down);
        QTest::keyClick(popup, Qt::Key_Return);
    }
    QTRY_VERIFY(!popup->isVisible());
    QCoreApplication::processEvents();
    QCOMPARE(form.field->filename(), m_tree.path("alpha"));
    QCOMPARE(spy.count(), 0);

    QTest::keyClick(edit, Qt::Key_Return);
    QCOMPARE(spy.count(), 1);
}

void tst_FilenameField::returnOverTheCompletionsCommits()
{
    Form form(QFileDialog::Directory);
    QVERIFY(showFocused(form));
    QSignalSpy spy(form.field, &FilenameField::filenameSet);
    QLineEdit *const edit = editOf(form.field);
    QTest::keyClicks(edit, m_tree.root() + QStringLiteral("/al"));
    QAbstractItemView *const popup = edit->completer()->popup();
    QTRY_VERIFY(popup->isVisible());

    QTest::keyClick(popup, Qt::Key_Return);

    QTRY_COMPARE(spy.count(), 1);
    QCOMPARE(form.field->filename(), m_tree.path("al"));
    QVERIFY(!popup->isVisible());
    form.other->setFocus();
    QCOMPARE(spy.count(), 1);
}

void tst_FilenameField::slotMayDeleteTheFieldOverTheCompletions()
{
    Form form(QFileDialog::Directory);
    QVERIFY(showFocused(form));
    QTest::keyClicks(editOf(form.field), m_tree.root() + QStringLiteral("/al"));
    QAbstractItemView *const popup = editOf(form.field)->completer()->popup();
    QTRY_VERIFY(popup->isVisible());
    connect(form.field, &FilenameField::filenameSet, &form, [&] { delete form.field.data(); });

    QTest::keyClick(popup, Qt::Key_Return);

    QTRY_VERIFY(!form.field);
}

void tst_FilenameField::escapeOverTheCompletionsClosesThemFirst()
{
    Form form(QFileDialog::Directory);
    QVERIFY(showFocused(form));
    QLineEdit *const edit = editOf(form.field);
    QTest::keyClicks(edit, m_tree.root() + QStringLiteral("/al"));
    QAbstractItemView *const popup = edit->completer()->popup();
    QTRY_VERIFY(popup->isVisible());

    QTest::keyClick(popup, Qt::Key_Escape);
    QVERIFY(!popup->isVisible());
    QCOMPARE(form.field->filename(), m_tree.path("al"));

    QTest::keyClick(edit, Qt::Key_Escape);
    QCOMPARE(form.field->filename(), QString());
}

void tst_FilenameField::fieldsShareOneModel()
{
    QPointer<QAbstractItemModel> model;
    {
        Form first(QFileDialog::Directory);
        Form second(QFileDialog::Directory);
        Form ofFiles(QFileDialog::AnyFile);
        for (Form *form : {&first, &second, &ofFiles}) {
            QVERIFY(showFocused(*form));
            QTest::keyClicks(editOf(form->field), QStringLiteral("a"));
        }
        model = editOf(first.field)->completer()->model();

        QVERIFY(model);
        QCOMPARE(editOf(second.field)->completer()->model(), model.data());
        QVERIFY(editOf(ofFiles.field)->completer()->model() != model.data());

        delete first.field.data();
        QVERIFY(model);
    }
    QVERIFY(!model);
}

void tst_FilenameField::ownCompleterIsKept()
{
    Form form;
    QVERIFY(showFocused(form));
    QCompleter completer(QStringList{QStringLiteral("abc")});
    editOf(form.field)->setCompleter(&completer);

    QTest::keyClicks(editOf(form.field), QStringLiteral("a"));

    QCOMPARE(editOf(form.field)->completer(), &completer);
}

void tst_FilenameField::thousandFieldsMakeNoModelAndNoThread()
{
    const int threads = threadCount();
    QVERIFY(threads > 0);
    QWidget window;
    auto *const column = new QVBoxLayout(&window);
    for (int i = 0; i < 1000; ++i) {
        auto *const field = new FilenameField(nullptr, QFileDialog::Directory, false);
        field->setFilename(m_tree.root());
        column->addWidget(field);
    }

    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));

    QCOMPARE(threadCount(), threads);
    QVERIFY(window.findChildren<QCompleter *>().isEmpty());
    QVERIFY(window.findChildren<QFileSystemModel *>().isEmpty());
}

QTEST_MAIN(tst_FilenameField)
#include "tst_FilenameField.moc"
