#include "cli/commands.h"
#include "cli/console.h"

#include <QApplication>
#include <QFile>

#include <algorithm>
#include <array>
#include <new>
#include <optional>

std::span<const Command> commands()
{
    static constexpr std::array all{
        Command{"show", "Show what is in a plan, for people or as JSON.", showCommand},
        Command{"score", "Show how the seating scores, and which wishes it does not meet.",
                scoreCommand},
        Command{"save", "Load a plan and write it again.", saveCommand},
        Command{"layout", "Find a seating and write the plan with it.", layoutCommand},
        Command{"floorplan", "Draw the floor plan as a picture.", floorplanCommand}};
    return all;
}

namespace {
QString helpText()
{
    QString text = QStringLiteral("Usage: ambrelune-cli COMMAND PLAN [options]\n"
                                  "Works on the plan files of Ambrelune, the seating planner.\n"
                                  "\nCommands:\n");
    for (const Command &command : commands()) {
        text += QStringLiteral("  %1 %2\n")
                    .arg(QLatin1StringView(command.name), -9)
                    .arg(QLatin1StringView(command.summary));
    }
    text += QStringLiteral("  help      Show the help of a command: help COMMAND.\n"
                           "\n"
                           "PLAN is a file, or \"-\" for standard input.\n"
                           "\n"
                           "Options:\n"
                           "  -h, --help     Show this help and exit.\n"
                           "  -v, --version  Show the version and exit.\n"
                           "\n"
                           "Exit status: 0 success, 1 not a plan, 2 cannot be opened,\n"
                           "4 cannot be written, 64 wrong usage, 71 not enough memory.\n");
    return text;
}

/// A plan's fonts need the toolkit's graphical part, but nothing here needs a display.
void useNoDisplay()
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // What a plan file holds amiss is repaired in silence; the debug channel is for developers.
    qInstallMessageHandler([](QtMsgType type, const QMessageLogContext &, const QString &text) {
        if (type == QtFatalMsg)
            complain(text);
    });
}

/// The command line as texts; nothing if one of them is no text in the user's encoding.
std::optional<QStringList> argumentsOf(std::span<char *const> values)
{
    QStringList arguments;
    for (const char *value : values) {
        arguments.append(QFile::decodeName(value));
        if (QFile::encodeName(arguments.constLast()) != value)
            return std::nullopt;
    }
    return arguments;
}

int helpCommand(const QStringList &arguments);

int runCommand(const QStringList &arguments)
{
    const QString first = arguments.value(1);
    if (first == QLatin1StringView("--help") || first == QLatin1StringView("-h"))
        return printText(helpText());
    if (first == QLatin1StringView("help"))
        return helpCommand(arguments);
    if (first == QLatin1StringView("--version") || first == QLatin1StringView("-v"))
        return printText(QStringLiteral("ambrelune-cli " AMBRELUNE_VERSION "\n"));
    const auto command = std::ranges::find_if(commands(), [&](const Command &candidate) {
        return first == QLatin1StringView(candidate.name);
    });
    if (command != commands().end())
        return command->run(arguments);
    complain(first.isEmpty() ? QStringLiteral("Which command? See 'ambrelune-cli --help'.")
                             : QStringLiteral("There is no command '%1'. See 'ambrelune-cli "
                                              "--help'.")
                                   .arg(first));
    return ExitUsage;
}

/// "help COMMAND" is "COMMAND --help".
int helpCommand(const QStringList &arguments)
{
    const QString help = QStringLiteral("--help");
    if (arguments.size() <= 3)
        return runCommand({arguments.constFirst(), arguments.value(2, help), help});
    complain(QStringLiteral("One command at a time. See 'ambrelune-cli --help'."));
    return ExitUsage;
}
} // namespace

int main(int argc, char *argv[])
{
    useNoDisplay();
    // The toolkit sees no arguments: its own options mean nothing here.
    int toolkitArgc = 1;
    const QApplication application(toolkitArgc, argv);
    const auto arguments = argumentsOf({argv, static_cast<std::size_t>(argc)});
    if (!arguments) {
        complain(QStringLiteral("A file name is not in the encoding of this system's names."));
        return ExitUsage;
    }
    try {
        return runCommand(*arguments);
    } catch (const std::bad_alloc &) {
        complain(QStringLiteral("There is not enough memory."));
        return ExitNoMemory;
    }
}
