#include "CommandLine.h"

#include "Texts.h"

#include <QCommandLineParser>
#include <QRegularExpression>

#include <iterator>
#include <optional>

namespace Tessark::PropertyPanel {

using PropertyHost::PanelLook;

namespace {

constexpr int kMaximumExtent = 10000;
constexpr int kMaximumDigits = 5;

const QString kValues = QStringLiteral("values");
const QString kSettings = QStringLiteral("settings");
const QString kOutput = QStringLiteral("output");
const QString kLive = QStringLiteral("live");
const QString kCommit = QStringLiteral("commit");
const QString kCheck = QStringLiteral("check");
const QString kRender = QStringLiteral("render");
const QString kSize = QStringLiteral("size");
const QString kTheme = QStringLiteral("theme");
const QString kTrusted = QStringLiteral("trusted");
const QString kVersion = QStringLiteral("version");
const QString kHelp = QStringLiteral("help");

void describe(QCommandLineParser &parser)
{
    parser.setApplicationDescription(Texts::tr(
        "Shows a panel for a JSON list of properties and writes the values that the user gave "
        "them, as a JSON object of name to value."));
    parser.addPositionalArgument(
        QStringLiteral("LIST.json"),
        Texts::tr(
            "The property list; - reads standard input. Without it a built-in list is shown."),
        QStringLiteral("[LIST.json]"));
    parser.addOptions({
        {kValues, Texts::tr("Start from the values in <FILE> instead of the defaults."),
         Texts::tr("FILE")},
        {kSettings,
         Texts::tr("Start from the values in the INI file <FILE>, if it exists, and save to it. "
                   "Values of "
                   "--values go before its own; its other keys stay."),
         Texts::tr("FILE")},
        {kOutput, Texts::tr("Save to <FILE>, whole or not at all, instead of to standard output."),
         Texts::tr("FILE")},
        {kLive,
         Texts::tr("Print each change at once as one line of JSON: \"name\", \"value\" and, in "
                   "\"continued\", whether it goes on with the change before it.")},
        {kCommit,
         Texts::tr(
             "When --live prints a change: live (the default), at once; rate:<N>, at most N times "
             "a second, N from 1 to 1000, and always the last; end, when the drag or the typing "
             "ends."),
         Texts::tr("WHEN")},
        {kCheck, Texts::tr("List all that is wrong with the list and the values; show nothing.")},
        {kRender,
         Texts::tr("Draw the whole panel to <PNG>, and each further tab page to a file named "
                   "after it, and print their names; show nothing."),
         Texts::tr("PNG")},
        {kSize,
         Texts::tr("Size of the window, or of the picture; a picture grows to hold the panel."),
         Texts::tr("WxH")},
        {kTheme, Texts::tr("Look: system (the default), light, dark or high-contrast."),
         Texts::tr("THEME")},
        {kTrusted,
         Texts::tr("Let the list name pictures anywhere and have style sheets. Without it, its "
                   "pictures must lie in its folder or below.")},
        {{QStringLiteral("v"), kVersion}, Texts::tr("Print the version.")},
        {{QStringLiteral("h"), kHelp}, Texts::tr("Print this help.")},
    });
}

/// The first of the options that was given an empty value, for which there is no use.
QString emptyOption(const QCommandLineParser &parser)
{
    for (const QString &name : {kValues, kSettings, kOutput, kRender}) {
        if (parser.isSet(name) && parser.value(name).isEmpty())
            return name;
    }
    return QString();
}

std::optional<QSize> sizeFromText(const QString &text)
{
    static const QRegularExpression pattern(QStringLiteral("\\A([0-9]+)x([0-9]+)\\z"));
    const QRegularExpressionMatch match = pattern.match(text);
    if (!match.hasMatch() || match.capturedLength(1) > kMaximumDigits
        || match.capturedLength(2) > kMaximumDigits)
        return std::nullopt;
    const QSize size(match.captured(1).toInt(), match.captured(2).toInt());
    if (size.isEmpty() || size.width() > kMaximumExtent || size.height() > kMaximumExtent)
        return std::nullopt;
    return size;
}

std::optional<PanelLook> themeFromText(const QString &text)
{
    constexpr struct
    {
        const char *name;
        PanelLook look;
    } themes[] = {{"system", PanelLook::System},
                  {"light", PanelLook::Light},
                  {"dark", PanelLook::Dark},
                  {"high-contrast", PanelLook::HighContrast}};
    for (const auto &entry : themes) {
        if (text == QLatin1String(entry.name))
            return entry.look;
    }
    return std::nullopt;
}

Options::Task taskOf(const QCommandLineParser &parser)
{
    if (parser.isSet(kHelp))
        return Options::Task::Help;
    if (parser.isSet(kVersion))
        return Options::Task::Version;
    if (parser.isSet(kCheck))
        return Options::Task::Check;
    return parser.isSet(kRender) ? Options::Task::Render : Options::Task::Edit;
}

Options pathsAndFlags(const QCommandLineParser &parser)
{
    Options options;
    options.task = taskOf(parser);
    options.listPath = parser.positionalArguments().value(0);
    options.valuesPath = parser.value(kValues);
    options.settingsPath = parser.value(kSettings);
    options.outputPath = parser.value(kOutput);
    options.renderPath = parser.value(kRender);
    options.live = parser.isSet(kLive);
    options.trusted = parser.isSet(kTrusted);
    return options;
}

/// What is wrong with the arguments taken together; empty when nothing is.
QString contradiction(const QCommandLineParser &parser)
{
    const QStringList positional = parser.positionalArguments();
    if (positional.size() > 1)
        return Texts::tr("There can be one property list only; \"%1\" is one too many.")
            .arg(positional.at(1));
    if (positional.value(0, QStringLiteral("x")).isEmpty())
        return Texts::tr("The name of the property list is empty.");
    const QString empty = emptyOption(parser);
    if (!empty.isEmpty())
        return Texts::tr("--%1 needs the name of a file.").arg(empty);
    if (parser.isSet(kCheck) && parser.isSet(kRender))
        return Texts::tr("--check and --render cannot be used together.");
    if (parser.isSet(kSettings) && parser.value(kSettings) == parser.value(kOutput))
        return Texts::tr("--settings and --output cannot name the same file.");
    if (parser.isSet(kCommit) && !parser.isSet(kLive))
        return Texts::tr("--commit is of use only with --live.");
    if (positional.value(0) == QLatin1String("-") && parser.value(kValues) == QLatin1String("-"))
        return Texts::tr("The list and the values cannot both come from standard input.");
    return QString();
}

void readSize(const QString &text, CommandLine &result)
{
    const std::optional<QSize> size = sizeFromText(text);
    if (!size)
        result.error =
            Texts::tr("\"%1\" is not a size; write width x height, such as 640x480, each "
                      "from 1 to %2.")
                .arg(text)
                .arg(kMaximumExtent);
    result.options.size = size.value_or(QSize());
}

void readTheme(const QString &text, CommandLine &result)
{
    const std::optional<PanelLook> theme = themeFromText(text);
    if (!theme)
        result.error =
            Texts::tr("There is no theme \"%1\"; choose system, light, dark or high-contrast.")
                .arg(text);
    result.options.theme = theme.value_or(PanelLook::System);
}

void readCommitMode(const QString &text, CommandLine &result)
{
    using PropertyHost::CommitMode;
    const std::optional<CommitMode> mode = CommitMode::fromString(text);
    if (!mode)
        result.error =
            Texts::tr("\"%1\" is no time for --commit; choose live, end, or rate:N with N from "
                      "1 to 1000.")
                .arg(text);
    result.options.commitMode = mode.value_or(CommitMode::live());
}

} // namespace

CommandLine parseCommandLine(const QStringList &arguments)
{
    QCommandLineParser parser;
    describe(parser);
    if (!parser.parse(arguments))
        return {{}, parser.errorText()};

    CommandLine result{pathsAndFlags(parser), QString()};
    const Options::Task task = result.options.task;
    if (task == Options::Task::Help || task == Options::Task::Version)
        return result;
    result.error = contradiction(parser);
    if (parser.isSet(kSize))
        readSize(parser.value(kSize), result);
    if (parser.isSet(kTheme))
        readTheme(parser.value(kTheme), result);
    if (parser.isSet(kCommit))
        readCommitMode(parser.value(kCommit), result);
    return result;
}

QString helpText()
{
    QCommandLineParser parser;
    describe(parser);
    return parser.helpText()
           + Texts::tr(
               "\nExit status:\n"
               "  0  the values were saved, or what else was asked for was done\n"
               "  1  the user cancelled, or nobody reads the changes of --live any more and there\n"
               "     is neither --output nor --settings; no values were written\n"
               "  2  wrong options, an error in the list or the values, no display to show a\n"
               "     window on, or pictures that could not be written");
}

} // namespace Tessark::PropertyPanel
