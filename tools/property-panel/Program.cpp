#include "Program.h"

#include "CommandLine.h"
#include "Input.h"
#include "LivePrinter.h"
#include "PanelRenderer.h"
#include "PanelWindow.h"
#include "StandardStreams.h"
#include "Texts.h"

#include <QApplication>

namespace Tessark::PropertyPanel {

namespace {

void printProblem(const QString &text)
{
    printError(Texts::tr("property-panel: error: %1").arg(text));
}

ExitStatus check(const Input &input)
{
    if (input.problems.isEmpty())
        printLine(Texts::tr("no problems found"));
    return input.hasErrors ? ExitStatus::BadInput : ExitStatus::Saved;
}

ExitStatus render(const Input &input, const Options &options)
{
    const RenderedPictures pictures =
        renderPanel(input.list, *input.store, options.renderPath, options.size);
    for (const QString &file : pictures.files)
        printLine(file);
    if (pictures.error.isEmpty())
        return ExitStatus::Saved;
    printProblem(pictures.error);
    return ExitStatus::BadInput;
}

bool savesToFile(const Options &options)
{
    return !options.outputPath.isEmpty() || !options.settingsPath.isEmpty();
}

ValuesWriter makeWriter(const Options &options)
{
    using Layout = ValuesWriter::Layout;
    const bool isElsewhere = options.outputPath.isEmpty() && !options.settingsPath.isEmpty();
    const Layout layout = isElsewhere                             ? Layout::Nothing
                          : options.live && !savesToFile(options) ? Layout::OneLine
                                                                  : Layout::Indented;
    return ValuesWriter(options.outputPath, layout);
}

void exitWith(ExitStatus status)
{
    QCoreApplication::exit(static_cast<int>(status));
}

void printChanges(const Input &input, const Options &options, PanelWindow *window)
{
    auto *const printer = new LivePrinter(input.list, input.store.get(), window);
    printer->follow(window->panel(), options.commitMode);
    QObject::connect(window, &PanelWindow::aboutToSave, printer, &LivePrinter::flush);
    // Without reader, and without another place for the values, nothing is left to do.
    if (!savesToFile(options))
        QObject::connect(printer, &LivePrinter::outputLost, qApp,
                         [] { exitWith(ExitStatus::Cancelled); });
}

ExitStatus edit(const Input &input, const Options &options, const ValuesWriter &writer)
{
    PanelWindow window(input.list, input.store.get(), writer);
    window.setSettingsPath(options.settingsPath);
    if (options.live)
        printChanges(input, options, &window);
    // The window says how it ended; that it was the last one says nothing.
    QApplication::setQuitOnLastWindowClosed(false);
    QObject::connect(&window, &PanelWindow::finished, qApp, exitWith);
    window.resize(options.size.isValid() ? options.size : window.sizeHint());
    window.show();
    return static_cast<ExitStatus>(QApplication::exec());
}

ExitStatus runTask(const Options &options, Display display)
{
    // Before the values are read, so that it notices whoever writes them after that.
    const ValuesWriter writer = makeWriter(options);
    const Input input = readInput(options);
    for (const QString &problem : input.problems)
        printError(problem);
    if (options.task == Options::Task::Check)
        return check(input);
    if (input.hasErrors)
        return ExitStatus::BadInput;
    PropertyHost::applyPanelLook(options.theme);
    if (options.task == Options::Task::Render)
        return render(input, options);
    if (display == Display::Present)
        return edit(input, options, writer);
    printProblem(
        Texts::tr("There is no display to show a window on. Use --render to draw the panel to "
                  "PNG files, or --check to look for problems only."));
    return ExitStatus::BadInput;
}

} // namespace

ExitStatus runProgram(const QStringList &arguments, Display display)
{
    const CommandLine commandLine = parseCommandLine(arguments);
    if (!commandLine.error.isEmpty()) {
        printProblem(commandLine.error);
        printError(Texts::tr("Try property-panel --help."));
        return ExitStatus::BadInput;
    }
    switch (commandLine.options.task) {
    case Options::Task::Help:
        printLine(helpText());
        return ExitStatus::Saved;
    case Options::Task::Version:
        printLine(QStringLiteral("property-panel ") + QCoreApplication::applicationVersion());
        return ExitStatus::Saved;
    default:
        return runTask(commandLine.options, display);
    }
}

} // namespace Tessark::PropertyPanel
