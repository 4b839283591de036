// A Qt plugin that plays the user of a program under test, in its process and with real events. Qt
// loads it when QT_QPA_GENERIC_PLUGINS names it; the program knows nothing of it.

#include <support/FileDrag.h>

#include <QAbstractButton>
#include <QApplication>
#include <QGenericPlugin>
#include <QLineEdit>
#include <QListWidget>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QProcess>
#include <QTest>
#include <QTimer>
#include <QUrl>

#include <unistd.h>

namespace {

/// Plays the steps of the variable TESSARK_DRIVER_STEPS, one a line, once a window is there:
/// "line TEXT" and "text TEXT" type into the first field of that kind, "press BUTTON" clicks the
/// button with that text, "item TEXT" clicks the first entry of a list with that text, "drop PATH" drops
/// a file on the first list, "key KEYS" presses a key, "close" closes the window, "shell COMMAND" runs a
/// command, "await" says so on standard output, waits for a line of standard input and goes on.
class Driver : public QObject
{
public:
    Driver()
        : m_steps(qEnvironmentVariable("TESSARK_DRIVER_STEPS").split(QLatin1Char('\n')))
    {
        connect(&m_timer, &QTimer::timeout, this, &Driver::playNext);
        m_timer.start(20);
    }

private:
    static QWidget *frontWindow()
    {
        if (QWidget *modal = QApplication::activeModalWidget())
            return modal;
        const auto windows = QApplication::topLevelWidgets();
        for (QWidget *window : windows) {
            if (window->isVisible() && window->isActiveWindow())
                return window;
            // Without a window manager nobody hands the focus back when a dialog has closed.
            if (window->isVisible())
                window->activateWindow();
        }
        return nullptr;
    }

    void playNext()
    {
        QWidget *const window = frontWindow();
        if (!window || m_steps.isEmpty())
            return;
        const QString step = m_steps.takeFirst();
        const QString verb = step.section(QLatin1Char(' '), 0, 0);
        const QString rest = step.section(QLatin1Char(' '), 1);
        if (verb == QLatin1String("line"))
            type(visibleField<QLineEdit>(window), rest);
        else if (verb == QLatin1String("text"))
            type(visibleField<QPlainTextEdit>(window), rest);
        else if (verb == QLatin1String("press"))
            press(window, rest);
        else if (verb == QLatin1String("item"))
            clickItem(visibleField<QListWidget>(window), rest);
        else if (verb == QLatin1String("drop"))
            drop(visibleField<QListWidget>(window), rest);
        else if (verb == QLatin1String("key"))
            pressKey(window, QKeySequence(rest));
        else if (verb == QLatin1String("close"))
            window->close();
        else if (verb == QLatin1String("shell"))
            runInShell(rest);
        else if (verb == QLatin1String("await"))
            awaitLine();
        else
            qFatal("unknown step");
    }

    template <typename Field>
    static Field *visibleField(QWidget *window)
    {
        const auto fields = window->findChildren<Field *>();
        for (Field *field : fields) {
            if (field->isVisible() && field->isEnabled())
                return field;
        }
        qFatal("no such field");
        return nullptr;
    }

    static void type(QWidget *field, const QString &text)
    {
        field->setFocus();
        QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(field, text);
    }

    static void press(QWidget *window, const QString &text)
    {
        const auto buttons = window->findChildren<QAbstractButton *>();
        for (QAbstractButton *button : buttons) {
            QString shown = button->text();
            if (shown.remove(QLatin1Char('&')) == text && button->isVisible()) {
                // A check box reacts at its left only.
                QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(8, button->height() / 2));
                return;
            }
        }
        qFatal("no such button");
    }

    static void clickItem(QListWidget *list, const QString &text)
    {
        const auto items = list->findItems(text, Qt::MatchExactly);
        if (items.isEmpty())
            qFatal("no such item");
        list->scrollToItem(items.constFirst());
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                          list->visualItemRect(items.constFirst()).center());
    }

    static void drop(QListWidget *list, const QString &path)
    {
        QMimeData mime;
        mime.setUrls({QUrl::fromLocalFile(path)});
        const QPoint middle = list->viewport()->rect().center();
        sendDragEvent<QDragEnterEvent>(list->viewport(), middle, {mime});
        sendDragEvent<QDropEvent>(list->viewport(), middle, {mime});
    }

    static void pressKey(QWidget *window, const QKeySequence &keys)
    {
        QWidget *const focus = QApplication::focusWidget();
        QTest::keySequence(focus ? focus : window, keys);
    }

    static void runInShell(const QString &command)
    {
        if (QProcess::execute(QStringLiteral("/bin/sh"), {QStringLiteral("-c"), command}) != 0)
            qFatal("a command has failed");
    }

    void awaitLine()
    {
        char byte = 0;
        if (write(STDOUT_FILENO, "awaiting\n", 9) != 9 || read(STDIN_FILENO, &byte, 1) != 1)
            qFatal("nobody answers");
        playNext();
    }

    QStringList m_steps;
    QTimer m_timer;
};

} // namespace

class PanelWindowDriverPlugin : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "PanelWindowDriver.json")

public:
    QObject *create(const QString &, const QString &) override { return new Driver; }
};

#include "PanelWindowDriver.moc"
