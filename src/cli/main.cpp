#include "commands.h"
#include "console.h"

#include <QGuiApplication>

#include <algorithm>
#include <array>

std::span<const Command> commands()
{
    static constexpr std::array all{
        Command{"show", "Show what is in a plan, for people or as JSON.", showCommand},
        Command{"score", "Show how the seating scores, and which wishes it does not meet.",
                scoreCommand},
        Command{"save", "Load a plan and write it again.", saveCommand},
        Command{"layout", "Find a seating and write the plan with it.", layoutCommand}};
    return all;
}

namespace {
QString helpText()
{
    QString text = QStringLiteral("Usage: ambrelune-cli COMMAND [options] PLAN\n"
                                  "Works on the plan files of Ambrelune, the seating planner.\n"
                                  "\nCommands:\n");
    for (const Command &command : commands()) {
        text += QStringLiteral("  %1 %2\n")
                    .arg(QLatin1StringView(command.name), -8)
                    .arg(QLatin1StringView(command.summary));
    }
    text += QStringLiteral("\n"
                           "Options:\n"
                           "  -h, --help     Show this help and exit.\n"
                           "  -v, --version  Show the version and exit.\n"
                           "\n"
                           "'ambrelune-cli COMMAND --help' tells more of each command.\n"
                           "Exit status: 0 success, 1 not a plan, 2 cannot be opened,\n"
                           "4 cannot be written, 64 wrong usage.\n");
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
} // namespace

int main(int argc, char *argv[])
{
    useNoDisplay();
    const QGuiApplication application(argc, argv);
    QGuiApplication::setApplicationVersion(QStringLiteral(AMBRELUNE_VERSION));
    const QStringList arguments = QGuiApplication::arguments();
    const QString first = arguments.value(1);

    if (first == QLatin1StringView("--help") || first == QLatin1StringView("-h"))
        return printText(helpText());
    if (first == QLatin1StringView("--version") || first == QLatin1StringView("-v"))
        return printText(
            QStringLiteral("ambrelune-cli %1\n").arg(QGuiApplication::applicationVersion()));
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
