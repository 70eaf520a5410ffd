#include "cli/commandline.h"

#include "cli/commands.h"
#include "cli/console.h"

CommandLine::CommandLine(const QString &command, const QString &description)
    : m_command(command)
    , m_description(description)
{
    m_parser.addOption({{QStringLiteral("h"), QStringLiteral("help")},
                        QStringLiteral("Show this help and exit.")});
}

void CommandLine::addOutputOption(const QString &what)
{
    m_needsOutput = true;
    addOption({{QStringLiteral("o"), QStringLiteral("output")},
               what + QStringLiteral(" An existing file is replaced once all is written."),
               QStringLiteral("OUT")});
}

std::optional<int> CommandLine::parse(const QStringList &arguments)
{
    if (!m_parser.parse(arguments))
        return refuse(m_parser.errorText());
    if (m_parser.isSet(QStringLiteral("help")))
        return printText(helpText());
    for (const QString &option : m_parser.optionNames()) {
        if (m_parser.values(option).size() > 1)
            return refuse(QStringLiteral("%1%2 is there twice.")
                              .arg(QString(option.size() == 1 ? 1 : 2, u'-'), option));
    }
    const qsizetype plans = m_parser.positionalArguments().size() - 1;
    if (plans != 1)
        return refuse(plans < 1 ? QStringLiteral("Which plan? Name a file, or \"-\" for "
                                                 "standard input.")
                                : QStringLiteral("One plan at a time."));
    if (m_needsOutput && output().isEmpty())
        return refuse(QStringLiteral("Where to? Name the file to write with -o."));
    return std::nullopt;
}

QString CommandLine::helpText() const
{
    // The parser's own usage line knows nothing of commands.
    const QString options = m_parser.helpText();
    return QStringLiteral("Usage: ambrelune-cli %1 PLAN %2[options]\n%3\n"
                          "PLAN is a file, or \"-\" for standard input.\n\n")
               .arg(m_command, m_needsOutput ? QStringLiteral("-o OUT ") : QString(),
                    m_description) +
           options.mid(options.indexOf(QLatin1StringView("Options:")));
}

std::optional<qint64> CommandLine::number(const QString &option, qint64 least, qint64 most) const
{
    bool ok = false;
    const qint64 result = value(option).toLongLong(&ok);
    if (ok && result >= least && result <= most)
        return result;
    refuse(QStringLiteral("--%1 takes a whole number from %2 to %3, not '%4'.")
               .arg(option, QString::number(least), QString::number(most), value(option)));
    return std::nullopt;
}

std::optional<int> CommandLine::word(const QString &option, const QStringList &words) const
{
    const auto index = static_cast<int>(words.indexOf(value(option)));
    if (index >= 0)
        return index;
    refuse(
        QStringLiteral("--%1 takes %2, not '%3'.").arg(option, alternatives(words), value(option)));
    return std::nullopt;
}

int CommandLine::refuse(const QString &complaint) const
{
    complain(QStringLiteral("%1 See 'ambrelune-cli %2 --help'.").arg(complaint, m_command));
    return ExitUsage;
}

QString alternatives(const QStringList &words)
{
    return QStringList(words.first(words.size() - 1)).join(QLatin1StringView(", ")) +
           QStringLiteral(" or ") + words.constLast();
}
