#pragma once

#include <QStringList>

#include <span>

/// The tool's exit statuses.
enum ExitStatus {
    ExitOk = 0,
    ExitNotAPlan = 1,
    ExitCannotOpen = 2,
    ExitCannotWrite = 4,
    ExitUsage = 64,
    ExitNoMemory = 71
};

/// One command of the tool. `run` takes the whole command line, the program's and the command's
/// name first, and returns an exit status.
struct Command
{
    const char *name;
    const char *summary;
    int (*run)(const QStringList &arguments);
};

/// All commands, in the order of the help text.
std::span<const Command> commands();

int showCommand(const QStringList &arguments);
int scoreCommand(const QStringList &arguments);
int saveCommand(const QStringList &arguments);
int layoutCommand(const QStringList &arguments);
int floorplanCommand(const QStringList &arguments);
