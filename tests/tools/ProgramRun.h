#pragma once

#include <QByteArray>
#include <QList>
#include <QProcess>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>

// Runs of property-panel as a script or a user would start it. PROPERTY_PANEL_PROGRAM and
// TEST_PLUGINS are set for the tests that include this.

constexpr int kRunTimeout = 60000; // of one run, in milliseconds

struct ProgramResult
{
    int status = -1; // stays when the program crashed or hung
    QByteArray output;
    QByteArray error;

    QList<QByteArray> outputLines() const
    {
        QList<QByteArray> lines = output.split('\n');
        if (lines.last().isEmpty())
            lines.removeLast();
        return lines;
    }
};

/// The environment of a machine without display.
inline QProcessEnvironment withoutDisplay()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char *name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "QT_SCALE_FACTOR"})
        environment.remove(QLatin1String(name));
    return environment;
}

/// An environment in which a driver plays the steps; see PanelWindowDriver.cpp.
inline QProcessEnvironment withDriver(const QStringList &steps)
{
    QProcessEnvironment environment = withoutDisplay();
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    environment.insert(QStringLiteral("QT_PLUGIN_PATH"), QStringLiteral(TEST_PLUGINS));
    environment.insert(QStringLiteral("QT_QPA_GENERIC_PLUGINS"), QStringLiteral("tessarkdriver"));
    environment.insert(QStringLiteral("TESSARK_DRIVER_STEPS"), steps.join(QLatin1Char('\n')));
    return environment;
}

/// The steps of the driver, separated by commas.
inline QStringList driverSteps(const char *line)
{
    return QString::fromLatin1(line).split(QStringLiteral(", "));
}

/// Makes process a shell that runs a command line in which $0 is the program.
inline void prepareShell(QProcess &process, const QString &command)
{
    process.setProgram(QStringLiteral("/bin/sh"));
    process.setArguments({QStringLiteral("-c"), command, QStringLiteral(PROPERTY_PANEL_PROGRAM)});
}

/// Starts the process in the folder and takes what it prints until it ends.
inline ProgramResult finishRun(QProcess &process, const QString &folder,
                               const QByteArray &input = QByteArray())
{
    process.setWorkingDirectory(folder);
    process.start();
    process.write(input);
    process.closeWriteChannel();
    ProgramResult result;
    if (!process.waitForFinished(kRunTimeout)) {
        process.kill();
        process.waitForFinished();
    } else if (process.exitStatus() == QProcess::NormalExit) {
        result.status = process.exitCode();
    }
    result.output = process.readAllStandardOutput();
    result.error = process.readAllStandardError();
    return result;
}
