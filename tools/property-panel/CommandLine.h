#pragma once

#include <host/CommitPolicy.h>
#include <host/PanelLook.h>

#include <QSize>
#include <QString>
#include <QStringList>

namespace Tessark::PropertyPanel {

/// What the command line asks for.
struct Options
{
    enum class Task { Edit, Check, Render, Help, Version };

    Task task = Task::Edit;
    QString listPath;     // empty: the built-in list; "-": standard input
    QString valuesPath;   // empty: the defaults; "-": standard input
    QString settingsPath; // an INI file; empty: none
    QString outputPath;   // empty: standard output, or nowhere with settings
    QString renderPath;   // of the first picture
    QSize size;           // invalid: as large as the panel wants
    PropertyHost::PanelLook theme = PropertyHost::PanelLook::System;
    bool live = false;
    PropertyHost::CommitMode commitMode = PropertyHost::CommitMode::live(); // of the live lines
    bool trusted = false;
};

struct CommandLine
{
    Options options;
    QString error; // empty when the arguments are right
};

/// Reads the arguments; the first one is the program's name.
CommandLine parseCommandLine(const QStringList &arguments);

/// The text that --help prints, without line break at its end. Needs an application object.
QString helpText();

} // namespace Tessark::PropertyPanel
